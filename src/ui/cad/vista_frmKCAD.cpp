#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include "cad/frmKCAD.h"
#include "ui/cad/viste.h"
#include "ui/icone.h"
#include "ui/legami.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

class Vista final : public VistaFinestra {
public:
    Vista(frmKCAD& f, QWidget* genitore) : VistaFinestra(f, genitore, Forma::dialogo) {
        auto* testa = new QHBoxLayout;
        testa->setSpacing(misura::margine);
        auto* disegno = new QLabel(corpo());
        disegno->setPixmap(
            icona("KelvoCAD", false).pixmap(QSize(misura::segno, misura::segno), disegno->devicePixelRatioF()));
        testa->addWidget(disegno, 0, Qt::AlignTop);
        auto* titolo = collega(f.lblTitolo, corpo());
        titolo->setFont(leggero(punti::titolo));
        titolo->setProperty("titoloPagina", true);
        testa->addWidget(titolo, 1);
        colonna()->setSpacing(misura::spazioStretto);
        colonna()->addLayout(testa);
        for (Etichetta* testo : {&f.lblDescrizione, &f.lblPassaggio, &f.lblStato, &f.lblInvece}) {
            colonna()->addWidget(paragrafoCAD(*testo, dati(punti::corpo), corpo()));
        }
        alPiede(collega(f.cmdVAQ, this));
        alPiede(collega(f.cmdPDF, this));
        auto* chiudi = qobject_cast<QPushButton*>(collega(f.cmdChiudi, this));
        chiudi->setDefault(true);
        alPiede(chiudi);
        chiudiDisposizione();
        f.allaChiusura = [this] { window()->close(); };
    }
};

}  // namespace

VistaFinestra* vista_frmKCAD(Finestra& finestra, QWidget* genitore) {
    return new Vista(dynamic_cast<frmKCAD&>(finestra), genitore);
}

}  // namespace kelvo::ui
