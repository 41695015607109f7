#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QVBoxLayout>

#include "shell/frmAnagraficaRotonda.h"
#include "ui/legami.h"
#include "ui/shell/viste.h"

namespace kelvo::ui {

namespace {

class Vista final : public VistaFinestra {
public:
    Vista(frmAnagraficaRotonda& f, QWidget* genitore) : VistaFinestra(f, genitore) {
        auto* progetto = new Pannello(QStringLiteral("Dati progetto"), corpo());
        progetto->riga(f.lblNomeFile, collega(f.txtNomeFile, progetto));
        progetto->riga(f.lblData, collega(f.txtData, progetto));
        progetto->riga(f.lblStatoAvanzamento, collega(f.txtStatoAvanzamento, progetto));
        progetto->riga(f.lblNumeroRami, collega(f.txtNumeroRami, progetto));
        colloca(progetto, {0, 0, 468, 200});
        auto* luogo = new Pannello(QStringLiteral("Localizzazione"), corpo());
        luogo->riga(f.lblLocalita, collega(f.txtLocalita, luogo));
        luogo->riga(f.lblComune, collega(f.txtComune, luogo));
        luogo->riga(f.lblProvincia, collega(f.txtProvincia, luogo));
        colloca(luogo, {0, 216, 468, 168});
        auto* testi = new Pannello(QStringLiteral("Descrizione"), corpo());
        testi->riga(f.lblTitolo, collega(f.txtTitolo, testi));
        testi->riga(f.lblNote, collega(f.txtNote, testi));
        colloca(testi, {484, 0, 468, 384});
        chiudiDisposizione();
    }
};

}  // namespace

VistaFinestra* vista_frmAnagraficaRotonda(Finestra& finestra, QWidget* genitore) {
    return new Vista(dynamic_cast<frmAnagraficaRotonda&>(finestra), genitore);
}

}  // namespace kelvo::ui
