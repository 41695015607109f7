#pragma once

#include "shell/servizi/Finestra.h"
#include "shell/servizi/tBox.h"

namespace kelvo {

/// Registry of the engineer. The client's block beside it is tied to nothing: what is typed there is kept nowhere.
class frmCommittenteProfessionista final : public FinestraDati {
public:
    explicit frmCommittenteProfessionista(const Contorno& contorno);

    Etichetta lblNomeProfessionista;
    tBox txtNomeProfessionista{"txtNomeProfessionista", tBox::textbox};
    Etichetta lblIndirizzoProfessionista;
    tBox txtIndirizzoProfessionista{"txtIndirizzoProfessionista", tBox::textbox};
    Etichetta lblCAPProfessionista;
    tBox txtCAPProfessionista{"txtCAPProfessionista", tBox::maskedit};  ///< five digits
    Etichetta lblCittaProfessionista;
    tBox txtCittaProfessionista{"txtCittaProfessionista", tBox::textbox};
    Etichetta lblProvinciaProfessionista;
    tBox txtProvinciaProfessionista{"txtProvinciaProfessionista", tBox::textbox};
    Etichetta lblTelefonoProfessionista;
    tBox txtTelefonoProfessionista{"txtTelefonoProfessionista", tBox::maskedit};
    Etichetta lblEMailProfessionista;
    tBox txtEMailProfessionista{"txtEMailProfessionista", tBox::textbox};

    Etichetta lblNomeCommittente;
    tBox txtNomeCommittente{"txtNomeCommittente", tBox::textbox};
    Etichetta lblIndirizzoCommittente;
    tBox txtIndirizzoCommittente{"txtIndirizzoCommittente", tBox::textbox};
    Etichetta lblCAPCommittente;
    tBox txtCAPCommittente{"txtCAPCommittente", tBox::maskedit};
    Etichetta lblCittaCommittente;
    tBox txtCittaCommittente{"txtCittaCommittente", tBox::textbox};
    Etichetta lblProvinciaCommittente;
    tBox txtProvinciaCommittente{"txtProvinciaCommittente", tBox::textbox};
    Etichetta lblTelefonoCommittente;
    tBox txtTelefonoCommittente{"txtTelefonoCommittente", tBox::maskedit};
    Etichetta lblEMailCommittente;
    tBox txtEMailCommittente{"txtEMailCommittente", tBox::textbox};

    Riquadro frProfessionista;
    Riquadro frCommittente;

    Immagine ctlPicture{"ctlPicture"};  ///< "RAMI3" to "RAMI7", beside the help

    void ReadData() override;
    /// Writes the fields of the engineer that were changed.
    void SaveData() override;

private:
    EsitoUscita controllaCAP() const;
    void confronta();
};

}  // namespace kelvo
