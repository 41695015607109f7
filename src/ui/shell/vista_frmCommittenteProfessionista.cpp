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
        professionista->riga(f.lblNomeProfessionista, collega(f.txtNomeProfessionista, professionista));
        professionista->riga(f.lblIndirizzoProfessionista, collega(f.txtIndirizzoProfessionista, professionista));
        professionista->riga(f.lblCAPProfessionista, collega(f.txtCAPProfessionista, professionista));
        professionista->riga(f.lblCittaProfessionista, collega(f.txtCittaProfessionista, professionista));
        professionista->riga(f.lblProvinciaProfessionista, collega(f.txtProvinciaProfessionista, professionista));
        professionista->riga(f.lblTelefonoProfessionista, collega(f.txtTelefonoProfessionista, professionista));
        professionista->riga(f.lblEMailProfessionista, collega(f.txtEMailProfessionista, professionista));
        colloca(professionista, {0, 0, 468, 304});
        auto* committente = new Pannello(q(f.frCommittente.titolo()), corpo());
        committente->riga(f.lblNomeCommittente, collega(f.txtNomeCommittente, committente));
        committente->riga(f.lblIndirizzoCommittente, collega(f.txtIndirizzoCommittente, committente));
        committente->riga(f.lblCAPCommittente, collega(f.txtCAPCommittente, committente));
        committente->riga(f.lblCittaCommittente, collega(f.txtCittaCommittente, committente));
        committente->riga(f.lblProvinciaCommittente, collega(f.txtProvinciaCommittente, committente));
        committente->riga(f.lblTelefonoCommittente, collega(f.txtTelefonoCommittente, committente));
        committente->riga(f.lblEMailCommittente, collega(f.txtEMailCommittente, committente));
        colloca(committente, {484, 0, 468, 304});
        chiudiDisposizione();
    }
};

}  // namespace

VistaFinestra* vista_frmCommittenteProfessionista(Finestra& finestra, QWidget* genitore) {
    return new Vista(dynamic_cast<frmCommittenteProfessionista&>(finestra), genitore);
}

}  // namespace kelvo::ui
