#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

#include "input/frmPreviewMatriceSvolte.h"
#include "ui/VistaGriglia.h"
#include "ui/legami.h"
#include "ui/legamiScelte.h"
#include "ui/shell/viste.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

class Vista final : public VistaFinestra {
public:
    Vista(frmPreviewMatriceSvolte& f, QWidget* genitore) : VistaFinestra(f, genitore, Forma::dialogo) {
        larghezzaColonna(QWIDGETSIZE_MAX);
        destra()->parentWidget()->hide();
        corpo()->layout()->setContentsMargins(0, 0, 0, 0);
        Pannello* progetto = collega(f.frDatiProgetto, corpo());
        progetto->valore(f.lblNumeroRami, f.txtNumeroRami);
        progetto->valore(f.lblNomeProgetto, f.txtNomeProgetto);
        progetto->valore(f.lblTitolo, f.txtTitolo);
        progetto->valore(f.lblNote, f.txtNote);
        colonna()->addWidget(progetto);
        Pannello* matrice = collega(f.frMatrice, corpo());
        auto* griglia = collega(f.ctlGrid, matrice);
        griglia->setMinimumHeight(misura::anteprimaMatrice);
        matrice->larga(griglia);
        auto* avviso = collega(f.lblAvviso, matrice);
        avviso->setFont(dati(punti::corpo));
        avviso->setWordWrap(true);
        matrice->larga(avviso);
        colonna()->addWidget(matrice, 1);
        chiudiDisposizione();
    }
};

}  // namespace

VistaFinestra* vista_frmPreviewMatriceSvolte(Finestra& finestra, QWidget* genitore) {
    return new Vista(dynamic_cast<frmPreviewMatriceSvolte&>(finestra), genitore);
}

}  // namespace kelvo::ui
