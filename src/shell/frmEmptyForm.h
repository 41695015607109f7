#pragma once

#include "shell/servizi/ElencoColonne.h"
#include "shell/servizi/Finestra.h"

namespace kelvo {

/// The window of the folders of the tree. With a project open it shows what the project holds and what is still
/// missing; each line leads to the window where it is given.
class frmEmptyForm final : public Finestra {
public:
    explicit frmEmptyForm(const Contorno& contorno);

    Etichetta lblTitolo;
    Etichetta lblGuida;                 ///< what to do next
    Immagine ctlPicture{"ctlPicture"};  ///< "RAMI3" to "RAMI7"; empty without a project
    ElencoColonne ctlContenuto;         ///< keys of the tree; columns: datum, leg, state, detail

    void attivata() override { aggiorna(); }
    /// Looks at the project again.
    void aggiorna();

private:
    void mostraProgetto();
};

}  // namespace kelvo
