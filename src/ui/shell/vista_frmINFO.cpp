#include <QtCore/QSize>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTextBrowser>
#include <QtWidgets/QVBoxLayout>

#include "shell/frmINFO.h"
#include "ui/VistaPagina.h"
#include "ui/icone.h"
#include "ui/legami.h"
#include "ui/shell/viste.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

constexpr QSize misuraDettagli{560, 330};
constexpr int latoSegno = 56;

class Vista final : public VistaFinestra {
public:
    Vista(frmINFO& f, QWidget* genitore) : VistaFinestra(f, genitore, Forma::dialogo) {
        larghezzaColonna(0);
        destra()->addLayout(testata(f));
        auto* dettagli = collega(f.ctlDettagli, corpo());
        dettagli->setMinimumSize(misuraDettagli);
        destra()->addWidget(dettagli, 1);
        alPiede(collega(f.cmdCopia, this));
        auto* ok = qobject_cast<QPushButton*>(collega(f.cmdOk, this));
        ok->setDefault(true);
        alPiede(ok);
        chiudiDisposizione();
        f.allaChiusura = [this] { window()->close(); };
    }
    bool ridimensionabile() const override { return true; }

private:
    QHBoxLayout* testata(frmINFO& f) {
        auto* riga = new QHBoxLayout;
        riga->setSpacing(misura::margine);
        auto* figura = new QLabel(corpo());
        figura->setPixmap(segno("Kelvo").pixmap(QSize(latoSegno, latoSegno), devicePixelRatioF()));
        riga->addWidget(figura, 0, Qt::AlignTop);
        auto* parole = new QVBoxLayout;
        parole->setSpacing(misura::canale);
        auto* programma = collega(f.lblProgramma, corpo());
        programma->setFont(leggero(punti::titolo));
        parole->addWidget(programma);
        parole->addWidget(collega(f.lblVersione, corpo()));
        parole->addWidget(collega(f.lblProduttore, corpo()));
        riga->addLayout(parole, 1);
        return riga;
    }
};

}  // namespace

VistaFinestra* vista_frmINFO(Finestra& finestra, QWidget* genitore) {
    return new Vista(dynamic_cast<frmINFO&>(finestra), genitore);
}

}  // namespace kelvo::ui
