#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

#include "shell/frmINFO.h"
#include "ui/legami.h"
#include "ui/shell/viste.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

constexpr Misura misuraVista{432, 180};

class Vista final : public VistaFinestra {
public:
    Vista(frmINFO& f, QWidget* genitore) : VistaFinestra(f, genitore, misuraVista) {
        auto* tutto = colonna({0, 0, misuraVista.W, misuraVista.H});
        auto* programma = collega(f.lblProgramma, corpo());
        tutto->addWidget(programma);
        programma->setFont(leggero(18.0));  // a new parent would undo it
        tutto->addWidget(collega(f.lblVersione, corpo()));
        tutto->addWidget(collega(f.lblProduttore, corpo()));
        tutto->addWidget(collega(f.cmdOk, corpo()), 0, Qt::AlignRight);
        tutto->addStretch(1);
        chiudiDisposizione();
        f.allaChiusura = [this] { window()->close(); };
    }
};

}  // namespace

VistaFinestra* vista_frmINFO(Finestra& finestra, QWidget* genitore) {
    return new Vista(dynamic_cast<frmINFO&>(finestra), genitore);
}

}  // namespace kelvo::ui
