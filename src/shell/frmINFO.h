#pragma once

#include <functional>

#include "shell/servizi/Finestra.h"

namespace kelvo {

/// Window with the program's version and the name of its maker.
class frmINFO final : public Finestra {
public:
    explicit frmINFO(const Contorno& contorno);

    Etichetta lblProgramma;
    Etichetta lblVersione;
    Etichetta lblProduttore;
    Bottone cmdOk{"cmdOk", "OK"};
    /// Whoever shows the window closes it here.
    std::function<void()> allaChiusura;
};

}  // namespace kelvo
