#include <QtWidgets/QLabel>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QVBoxLayout>

#include "shell/frmSplash.h"
#include "ui/legami.h"
#include "ui/shell/viste.h"

namespace kelvo::ui {

namespace {

class Vista final : public VistaFinestra {
public:
    Vista(frmSplash& f, QWidget* genitore) : VistaFinestra(f, genitore) {
        colonna()->addWidget(collega(f.lblTesto, corpo()));
        colonna()->addWidget(collega(f.ctlProgresso, corpo()));
        chiudiDisposizione();
    }
};

}  // namespace

VistaFinestra* vista_frmSplash(Finestra& finestra, QWidget* genitore) {
    return new Vista(dynamic_cast<frmSplash&>(finestra), genitore);
}

}  // namespace kelvo::ui
