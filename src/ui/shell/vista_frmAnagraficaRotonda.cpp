#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QVBoxLayout>

#include "shell/frmAnagraficaRotonda.h"
#include "ui/RiquadroAiuto.h"
#include "ui/legami.h"
#include "ui/shell/viste.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

class Vista final : public VistaFinestra {
public:
    Vista(frmAnagraficaRotonda& f, QWidget* genitore) : VistaFinestra(f, genitore) {
        larghezzaColonna(misura::colonnaLarga);
        auto* progetto = new Pannello(QStringLiteral("Dati progetto"), corpo());
        progetto->riga(f.lblNomeFile, collega(f.txtNomeFile, progetto));
        progetto->riga(f.lblData, collega(f.txtData, progetto));
        progetto->riga(f.lblStatoAvanzamento, collega(f.txtStatoAvanzamento, progetto));
        colonna()->addWidget(progetto);
        auto* luogo = new Pannello(QStringLiteral("Localizzazione"), corpo());
        luogo->riga(f.lblLocalita, collega(f.txtLocalita, luogo));
        luogo->riga(f.lblComune, collega(f.txtComune, luogo));
        luogo->riga(f.lblProvincia, collega(f.txtProvincia, luogo));
        colonna()->addWidget(luogo);
        auto* testi = new Pannello(QStringLiteral("Descrizione"), corpo());
        testi->riga(f.lblTitolo, collega(f.txtTitolo, testi));
        auto* note = collega(f.txtNote, testi);
        note->setFixedHeight(misura::note);
        testi->riga(f.lblNote, note);
        auto* rami = collega(f.txtNumeroRami, testi);
        rami->setFixedWidth(misura::campoCorto);
        testi->riga(f.lblNumeroRami, rami);
        colonna()->addWidget(testi);
        aggiungiAiuto(QStringLiteral("Descrizione del campo"))->segui(f.ctlPicture);
        chiudiDisposizione();
    }
};

}  // namespace

VistaFinestra* vista_frmAnagraficaRotonda(Finestra& finestra, QWidget* genitore) {
    return new Vista(dynamic_cast<frmAnagraficaRotonda&>(finestra), genitore);
}

}  // namespace kelvo::ui
