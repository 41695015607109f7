#include "input/frmPreviewMatriceSvolte.h"
#include "ui/VistaGriglia.h"
#include "ui/input/VistaAnteprimaProgetto.h"
#include "ui/legami.h"
#include "ui/legamiScelte.h"
#include "ui/shell/viste.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

class Vista final : public VistaAnteprimaProgetto {
public:
    Vista(frmPreviewMatriceSvolte& f, QWidget* genitore) : VistaAnteprimaProgetto(f, genitore) {
        Pannello* matrice = collega(f.frMatrice, corpo());
        auto* griglia = collega(f.ctlGrid, matrice);
        griglia->setMinimumHeight(misura::anteprimaMatrice);
        sotto(matrice, griglia);
    }
};

}  // namespace

VistaFinestra* vista_frmPreviewMatriceSvolte(Finestra& finestra, QWidget* genitore) {
    return new Vista(dynamic_cast<frmPreviewMatriceSvolte&>(finestra), genitore);
}

}  // namespace kelvo::ui
