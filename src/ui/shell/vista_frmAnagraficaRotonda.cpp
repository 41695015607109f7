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
        progetto->riga(f.lblNomeFile.testo(), collega(f.txtNomeFile, progetto));
        progetto->riga(f.lblData.testo(), collega(f.txtData, progetto));
        progetto->riga(f.lblStatoAvanzamento.testo(), collega(f.txtStatoAvanzamento, progetto));
        progetto->riga(f.lblNumeroRami.testo(), collega(f.txtNumeroRami, progetto));
        colonna()->addWidget(progetto);
        auto* luogo = new Pannello(QStringLiteral("Localizzazione"), corpo());
        luogo->riga(f.lblLocalita.testo(), collega(f.txtLocalita, luogo));
        luogo->riga(f.lblComune.testo(), collega(f.txtComune, luogo));
        luogo->riga(f.lblProvincia.testo(), collega(f.txtProvincia, luogo));
        colonna()->addWidget(luogo);
        auto* testi = new Pannello(QStringLiteral("Descrizione"), corpo());
        testi->riga(f.lblTitolo.testo(), collega(f.txtTitolo, testi));
        testi->riga(f.lblNote.testo(), collega(f.txtNote, testi));
        destra()->addWidget(testi);
        destra()->addStretch(1);
        chiudiDisposizione();
    }
};

}  // namespace

VistaFinestra* vista_frmAnagraficaRotonda(Finestra& finestra, QWidget* genitore) {
    return new Vista(dynamic_cast<frmAnagraficaRotonda&>(finestra), genitore);
}

}  // namespace kelvo::ui
