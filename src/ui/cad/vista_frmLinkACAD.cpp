#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include "cad/frmLinkACAD.h"
#include "ui/cad/viste.h"
#include "ui/legami.h"
#include "ui/legamiScelte.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

constexpr int altezzaElenco = 152;

class Vista final : public VistaFinestra {
public:
    Vista(frmLinkACAD& f, QWidget* genitore) : VistaFinestra(f, genitore, Forma::dialogo) {
        colonna()->setSpacing(misura::spazioStretto);
        paragrafo(f.lblIstruzioni);
        paragrafo(f.lblVuoto, forte(punti::gruppo));
        paragrafo(f.lblInvece);
        auto* etichetta = collega(f.lblVersioni, corpo());
        colonna()->addWidget(etichetta);
        auto* elenco = collega(f.lstACAD, corpo());
        elenco->setFixedSize(misura::testoMessaggio, altezzaElenco);
        elenco->setTextElideMode(Qt::ElideMiddle);
        etichetta->setBuddy(elenco);
        colonna()->addWidget(elenco);
        paragrafo(f.lblCartella, dati(punti::nota));
        paragrafo(f.lblProgetto, dati(punti::nota));
        paragrafo(f.lblEsito, forte(punti::corpo));
        auto* avvia = qobject_cast<QPushButton*>(collega(f.cmdAVVIAcad, this));
        auto* chiudi = qobject_cast<QPushButton*>(collega(f.cmdChiudi, this));
        (f.cmdAVVIAcad.visibile() ? avvia : chiudi)->setDefault(true);
        alPiede(avvia);
        alPiede(chiudi);
        chiudiDisposizione();
        f.allaChiusura = [this] { window()->close(); };
    }

private:
    void paragrafo(Etichetta& testo, const QFont& carattere = dati(punti::corpo)) {
        colonna()->addWidget(paragrafoCAD(testo, carattere, corpo()));
    }
};

}  // namespace

VistaFinestra* vista_frmLinkACAD(Finestra& finestra, QWidget* genitore) {
    return new Vista(dynamic_cast<frmLinkACAD&>(finestra), genitore);
}

}  // namespace kelvo::ui
