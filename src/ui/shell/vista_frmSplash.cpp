#include <QtWidgets/QLabel>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QVBoxLayout>

#include "shell/frmSplash.h"
#include "ui/legami.h"
#include "ui/shell/viste.h"

namespace kelvo::ui {

namespace {

constexpr Misura misuraVista{432, 80};

class Vista final : public VistaFinestra {
public:
    Vista(frmSplash& f, QWidget* genitore) : VistaFinestra(f, genitore, misuraVista) {
        auto* tutto = colonna({0, 0, misuraVista.W, misuraVista.H});
        tutto->addWidget(collega(f.lblTesto, corpo()));
        tutto->addWidget(collega(f.ctlProgresso, corpo()));
        tutto->addStretch(1);
        chiudiDisposizione();
    }
};

}  // namespace

VistaFinestra* vista_frmSplash(Finestra& finestra, QWidget* genitore) {
    return new Vista(dynamic_cast<frmSplash&>(finestra), genitore);
}

}  // namespace kelvo::ui
