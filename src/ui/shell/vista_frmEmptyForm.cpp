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
        larghezzaColonna(misura::colonnaStretta);
        auto* titolo = collega(f.lblTitolo, corpo());
        titolo->setFont(leggero(punti::titolo));
        titolo->setWordWrap(true);
        auto* guida = collega(f.lblGuida, corpo());
        guida->setFont(dati(punti::corpo));
        guida->setWordWrap(true);
        colonna()->addWidget(titolo);
        colonna()->addWidget(guida);
        colonna()->addWidget(collega(f.ctlPicture, corpo()), 3);
        destra()->addWidget(collega(f.ctlContenuto, corpo()), 1);
        chiudiDisposizione();
    }
};

}  // namespace

VistaFinestra* vista_frmEmptyForm(Finestra& finestra, QWidget* genitore) {
    return new Vista(dynamic_cast<frmEmptyForm&>(finestra), genitore);
}

}  // namespace kelvo::ui
