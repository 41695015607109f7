#pragma once

#include <string>
#include <vector>

#include "app/serviziSistema.h"

namespace kelvo {

/// The projects that were opened or saved last, the latest first, kept in the user's settings.
class ProgettiRecenti {
public:
    static constexpr std::size_t massimo = 8;

    explicit ProgettiRecenti(ImpostazioniUtente& impostazioni);

    const std::vector<std::string>& elenco() const { return elenco_; }
    /// Puts a project at the head.
    void aggiungi(const std::string& percorso);
    void togli(const std::string& percorso);

private:
    void scrivi();

    ImpostazioniUtente& impostazioni_;
    std::vector<std::string> elenco_;
};

}  // namespace kelvo
