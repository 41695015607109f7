#include <QtWidgets/QTextBrowser>
#include <QtWidgets/QVBoxLayout>

#include "shell/frmGoogle.h"
#include "ui/VistaPagina.h"
#include "ui/shell/viste.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

/// The page takes the whole window.
class Vista final : public VistaFinestra {
public:
    Vista(frmGoogle& f, QWidget* genitore) : VistaFinestra(f, genitore) {
        larghezzaColonna(0);
        destra()->setContentsMargins(misura::margine, misura::spazio, misura::margine, 0);
        destra()->addWidget(collega(f.ctlBrowser, corpo()), 1);
        chiudiDisposizione();
    }
};

}  // namespace

VistaFinestra* vista_frmGoogle(Finestra& finestra, QWidget* genitore) {
    return new Vista(dynamic_cast<frmGoogle&>(finestra), genitore);
}

}  // namespace kelvo::ui
