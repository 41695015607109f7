#include <QtWidgets/QTreeWidget>

#include "input/frmPreviewRami.h"
#include "ui/input/VistaAnteprimaProgetto.h"
#include "ui/legami.h"
#include "ui/legamiScelte.h"
#include "ui/shell/viste.h"

namespace kelvo::ui {

namespace {

class Vista final : public VistaAnteprimaProgetto {
public:
    Vista(frmPreviewRami& f, QWidget* genitore) : VistaAnteprimaProgetto(f, genitore) {
        Pannello* geometria = collega(f.frGeometria, corpo());
        sotto(geometria, collega(f.lstRami, geometria));
    }
};

}  // namespace

VistaFinestra* vista_frmPreviewRami(Finestra& finestra, QWidget* genitore) {
    return new Vista(dynamic_cast<frmPreviewRami&>(finestra), genitore);
}

}  // namespace kelvo::ui
