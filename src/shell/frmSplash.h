#pragma once

#include "app/serviziSistema.h"
#include "shell/servizi/Finestra.h"

namespace kelvo {

/// The window of the start, with its progress.
class frmSplash final : public Finestra {
public:
    /// Pause at each step of the progress, milliseconds.
    static constexpr int pausaPasso = 40;

    explicit frmSplash(const Contorno& contorno);

    Etichetta lblTesto{"lblTesto", "Personalizzazione interfaccia in corso....."};
    BarraProgresso ctlProgresso{"ctlProgresso", 0, 100};

    /// Runs the progress to its end; a key or click ends it.
    void esegui(Attesa& attesa);
};

}  // namespace kelvo
