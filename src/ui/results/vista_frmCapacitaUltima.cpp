#include <QtWidgets/QVBoxLayout>

#include "results/frmCapacitaUltima.h"
#include "ui/VistaGriglia.h"
#include "ui/results/VistaRisultati.h"
#include "ui/shell/viste.h"

namespace kelvo::ui {

namespace {

class Vista final : public VistaRisultati {
public:
    Vista(frmCapacitaUltima& f, QWidget* genitore) : VistaRisultati(f, genitore) {
        figure()->addWidget(tabella(f.ctlGrid, corpo()), 1);
        chiudi();
    }
};

}  // namespace

VistaFinestra* vista_frmCapacitaUltima(Finestra& finestra, QWidget* genitore) {
    return new Vista(dynamic_cast<frmCapacitaUltima&>(finestra), genitore);
}

}  // namespace kelvo::ui
