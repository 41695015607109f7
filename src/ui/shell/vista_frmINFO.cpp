#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

#include "shell/frmINFO.h"
#include "ui/legami.h"
#include "ui/shell/viste.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

class Vista final : public VistaFinestra {
public:
    Vista(frmINFO& f, QWidget* genitore) : VistaFinestra(f, genitore) {
        auto* programma = collega(f.lblProgramma, corpo());
        programma->setFont(leggero(18.0));
        colonna()->addWidget(programma);
        colonna()->addWidget(collega(f.lblVersione, corpo()));
        colonna()->addWidget(collega(f.lblProduttore, corpo()));
        colonna()->addWidget(collega(f.cmdOk, corpo()), 0, Qt::AlignRight);
        chiudiDisposizione();
        f.allaChiusura = [this] { window()->close(); };
    }
};

}  // namespace

VistaFinestra* vista_frmINFO(Finestra& finestra, QWidget* genitore) {
    return new Vista(dynamic_cast<frmINFO&>(finestra), genitore);
}

}  // namespace kelvo::ui
