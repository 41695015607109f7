#include <QtWidgets/QLabel>
#include <QtWidgets/QTreeWidget>
#include <QtWidgets/QVBoxLayout>

#include "shell/frmEmptyForm.h"
#include "ui/legami.h"
#include "ui/shell/viste.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

class Vista final : public VistaFinestra {
public:
    Vista(frmEmptyForm& f, QWidget* genitore) : VistaFinestra(f, genitore) {
        auto* sinistra = colonna({0, 0, 336, 616});
        auto* titolo = collega(f.lblTitolo, corpo());
        sinistra->addWidget(titolo);
        titolo->setFont(leggero(18.0));  // a new parent would undo it
        titolo->setWordWrap(true);
        auto* guida = collega(f.lblGuida, corpo());
        guida->setWordWrap(true);
        sinistra->addWidget(guida);
        sinistra->addWidget(collega(f.ctlPicture, corpo()));
        sinistra->addStretch(1);
        colloca(collega(f.ctlContenuto, corpo()), {352, 0, 600, 616});
        chiudiDisposizione();
    }
};

}  // namespace

VistaFinestra* vista_frmEmptyForm(Finestra& finestra, QWidget* genitore) {
    return new Vista(dynamic_cast<frmEmptyForm&>(finestra), genitore);
}

}  // namespace kelvo::ui
