#pragma once

#include "shell/servizi/Finestra.h"

namespace kelvo {

/// How far a report has come.
class frmRelazioneProgressBar final : public Finestra {
public:
    explicit frmRelazioneProgressBar(const Contorno& contorno);

    Etichetta lblAvanzamento;  ///< "Passo n di total"
    BarraProgresso ctlProgressBar;

    /// A run of so many steps begins.
    void inizia(int totale);
    /// Step `n`, from 1, is done.
    void avanza(int n);

private:
    int totale_ = 1;
};

}  // namespace kelvo
