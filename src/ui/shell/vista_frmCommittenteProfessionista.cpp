#include <QtWidgets/QVBoxLayout>

#include "shell/frmCommittenteProfessionista.h"
#include "ui/legami.h"
#include "ui/shell/viste.h"

namespace kelvo::ui {

namespace {

class Vista final : public VistaFinestra {
public:
    Vista(frmCommittenteProfessionista& f, QWidget* genitore) : VistaFinestra(f, genitore) {
        auto* professionista = new Pannello(q(f.frProfessionista.titolo()), corpo());
        professionista->riga(f.lblNomeProfessionista.testo(), collega(f.txtNomeProfessionista, professionista));
        professionista->riga(f.lblIndirizzoProfessionista.testo(),
                             collega(f.txtIndirizzoProfessionista, professionista));
        professionista->riga(f.lblCAPProfessionista.testo(), collega(f.txtCAPProfessionista, professionista));
        professionista->riga(f.lblCittaProfessionista.testo(), collega(f.txtCittaProfessionista, professionista));
        professionista->riga(f.lblProvinciaProfessionista.testo(),
                             collega(f.txtProvinciaProfessionista, professionista));
        professionista->riga(f.lblTelefonoProfessionista.testo(), collega(f.txtTelefonoProfessionista, professionista));
        professionista->riga(f.lblEMailProfessionista.testo(), collega(f.txtEMailProfessionista, professionista));
        colonna()->addWidget(professionista);
        auto* committente = new Pannello(q(f.frCommittente.titolo()), corpo());
        committente->riga(f.lblNomeCommittente.testo(), collega(f.txtNomeCommittente, committente));
        committente->riga(f.lblIndirizzoCommittente.testo(), collega(f.txtIndirizzoCommittente, committente));
        committente->riga(f.lblCAPCommittente.testo(), collega(f.txtCAPCommittente, committente));
        committente->riga(f.lblCittaCommittente.testo(), collega(f.txtCittaCommittente, committente));
        committente->riga(f.lblProvinciaCommittente.testo(), collega(f.txtProvinciaCommittente, committente));
        committente->riga(f.lblTelefonoCommittente.testo(), collega(f.txtTelefonoCommittente, committente));
        committente->riga(f.lblEMailCommittente.testo(), collega(f.txtEMailCommittente, committente));
        destra()->addWidget(committente);
        destra()->addStretch(1);
        chiudiDisposizione();
    }
};

}  // namespace

VistaFinestra* vista_frmCommittenteProfessionista(Finestra& finestra, QWidget* genitore) {
    return new Vista(dynamic_cast<frmCommittenteProfessionista&>(finestra), genitore);
}

}  // namespace kelvo::ui
