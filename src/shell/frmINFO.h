#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "shell/servizi/Finestra.h"

namespace kelvo {

/// A library that the program is linked with, or a face that travels with it.
struct LibreriaUsata {
    std::string_view nome;
    std::string_view scopo;
    std::string_view licenza;
};

/// All of them, in the order in which the window tells them.
std::span<const LibreriaUsata> librerieUsate();

/// Window with the program's version and the name of its maker; below them the libraries with their licences and the
/// folders at work, which can be copied for whoever gives help.
class frmINFO final : public Finestra {
public:
    explicit frmINFO(const Contorno& contorno);

    Etichetta lblProgramma;
    Etichetta lblVersione;
    Etichetta lblProduttore;
    VisorePagina ctlDettagli{"ctlDettagli"};
    Bottone cmdCopia{"cmdCopia", "Copia per l'assistenza"};  ///< closed where there is no clipboard
    Bottone cmdOk{"cmdOk", "OK"};
    /// Whoever shows the window closes it here.
    std::function<void()> allaChiusura;

    /// What the button copies: version and folders, one a line, with line ends LF.
    std::string perAssistenza() const;

private:
    std::string dettagli() const;
};

}  // namespace kelvo
