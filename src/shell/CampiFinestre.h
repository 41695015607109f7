#pragma once

#include "app/campiMostrati.h"
#include "shell/FabbricaFinestre.h"
#include "shell/servizi/modGestioneFinestre.h"

namespace kelvo {

/// The fields of the windows that live.
class CampiFinestre final : public CampiMostrati {
public:
    CampiFinestre(const FabbricaFinestre& finestre, const modGestioneFinestre& gestione)
        : finestre_(finestre), gestione_(gestione) {}

    std::optional<std::string> testo(std::string_view finestra, std::string_view campo) const override;
    bool fuocoSu(std::string_view campo, int riga) override;

private:
    const FabbricaFinestre& finestre_;
    const modGestioneFinestre& gestione_;
};

}  // namespace kelvo
