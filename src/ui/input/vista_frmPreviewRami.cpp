#include <QtWidgets/QLabel>
#include <QtWidgets/QTreeWidget>
#include <QtWidgets/QVBoxLayout>

#include "input/frmPreviewRami.h"
#include "ui/legami.h"
#include "ui/legamiScelte.h"
#include "ui/shell/viste.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

class Vista final : public VistaFinestra {
public:
    Vista(frmPreviewRami& f, QWidget* genitore) : VistaFinestra(f, genitore, Forma::dialogo) {
        larghezzaColonna(QWIDGETSIZE_MAX);
        destra()->parentWidget()->hide();
        corpo()->layout()->setContentsMargins(0, 0, 0, 0);
        Pannello* progetto = collega(f.frDatiProgetto, corpo());
        progetto->valore(f.lblNumeroRami, f.txtNumeroRami);
        progetto->valore(f.lblNomeProgetto, f.txtNomeProgetto);
        progetto->valore(f.lblTitolo, f.txtTitolo);
        progetto->valore(f.lblNote, f.txtNote);
        colonna()->addWidget(progetto);
        Pannello* geometria = collega(f.frGeometria, corpo());
        geometria->larga(collega(f.lstRami, geometria));
        auto* avviso = collega(f.lblAvviso, geometria);
        avviso->setFont(dati(punti::corpo));
        avviso->setWordWrap(true);
        geometria->larga(avviso);
        colonna()->addWidget(geometria, 1);
        chiudiDisposizione();
    }
};

}  // namespace

VistaFinestra* vista_frmPreviewRami(Finestra& finestra, QWidget* genitore) {
    return new Vista(dynamic_cast<frmPreviewRami&>(finestra), genitore);
}

}  // namespace kelvo::ui
