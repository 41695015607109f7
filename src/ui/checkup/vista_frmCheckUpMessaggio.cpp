#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include "checkup/frmCheckUpMessaggio.h"
#include "ui/checkup/viste.h"
#include "ui/icone.h"
#include "ui/legame.h"
#include "ui/legami.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

constexpr double puntiMessaggio = 14.0;
constexpr int larghezzaMessaggio = 560;

class Vista final : public VistaFinestra {
public:
    Vista(frmCheckUpMessaggio& f, QWidget* genitore) : VistaFinestra(f, genitore, Forma::dialogo) {
        larghezzaColonna(QWIDGETSIZE_MAX);
        destra()->parentWidget()->hide();
        auto* testa = new QHBoxLayout;
        testa->setSpacing(misura::margine);
        testa->addWidget(livello(f), 0, Qt::AlignTop);
        auto* parole = new QVBoxLayout;
        parole->setSpacing(misura::spazio);
        auto* gruppo = collega(f.lblGruppo, corpo());
        gruppo->setFont(forte(punti::pannello));
        parole->addWidget(gruppo);
        auto* testo = collega(f.lblMessaggio, corpo());
        testo->setFont(leggero(puntiMessaggio));
        testo->setWordWrap(true);
        testo->setTextInteractionFlags(Qt::TextSelectableByMouse);
        testo->setFixedWidth(larghezzaMessaggio);
        testo->setMinimumHeight(testo->heightForWidth(larghezzaMessaggio));
        parole->addWidget(testo);
        testa->addLayout(parole, 1);
        colonna()->addLayout(testa);
        auto* vai = qobject_cast<QPushButton*>(collega(f.cmdVaiAlCampo, this));
        auto* chiudi = qobject_cast<QPushButton*>(collega(f.ImageCHIUDI, this));
        chiudi->setIcon(icona("Chiudi", false));
        chiudi->setIconSize({misura::icona, misura::icona});
        (f.cmdVaiAlCampo.abilitato() ? vai : chiudi)->setDefault(true);
        alPiede(vai);
        alPiede(chiudi);
        chiudiDisposizione();
    }

private:
    QLabel* livello(frmCheckUpMessaggio& f) {
        auto* disegno = new QLabel(corpo());
        auto* legame = new Legame(f.ctlLivello, *disegno);
        legame->mostra([&f, disegno] {
            const QSize lato(misura::segno, misura::segno);
            disegno->setPixmap(segno(f.ctlLivello.risorsa()).pixmap(lato, disegno->devicePixelRatioF()));
        });
        return disegno;
    }
};

}  // namespace

VistaFinestra* vista_frmCheckUpMessaggio(Finestra& finestra, QWidget* genitore) {
    return new Vista(dynamic_cast<frmCheckUpMessaggio&>(finestra), genitore);
}

}  // namespace kelvo::ui
