#pragma once

#include "shell/servizi/Finestra.h"
#include "shell/servizi/tBox.h"

namespace kelvo {

/// Registry of the project.
class frmAnagraficaRotonda final : public FinestraDati {
public:
    explicit frmAnagraficaRotonda(const Contorno& contorno);

    Etichetta lblNomeFile;
    tBox txtNomeFile{"txtNomeFile", tBox::textbox};  ///< the caption of the main window follows each key
    Etichetta lblData;
    tBox txtData{"txtData", tBox::dtpicker};
    Etichetta lblStatoAvanzamento;
    tBox txtStatoAvanzamento{"txtStatoAvanzamento", tBox::combobox};  ///< a stage of the list, or free text
    Etichetta lblLocalita;
    tBox txtLocalita{"txtLocalita", tBox::textbox};
    Etichetta lblComune;
    tBox txtComune{"txtComune", tBox::textbox};
    Etichetta lblProvincia;
    tBox txtProvincia{"txtProvincia", tBox::textbox};
    Etichetta lblTitolo;
    tBox txtTitolo{"txtTitolo", tBox::textbox};
    Etichetta lblNote;
    AreaTesto txtNote{"txtNote"};
    Etichetta lblNumeroRami;
    tBox txtNumeroRami{"txtNumeroRami", tBox::textbox};  ///< shown only

    Immagine ctlPicture{"ctlPicture"};  ///< "RAMI3" to "RAMI7", beside the help

    /// Reads the project; with a project open the focus goes to the first field.
    void attivata() override;
    void ReadData() override;
    /// Writes the fields that were changed and the caption of the main window.
    void SaveData() override;

private:
    void assegnaPagine();
    EsitoUscita controllaNomeFile() const;
    void confronta();
    void mostraTitolo(const std::string& nome);
};

}  // namespace kelvo
