#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include "shell/frmINFO.h"
#include "ui/legami.h"
#include "ui/shell/viste.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

constexpr Misura misuraVista{432, 180};

class Vista final : public VistaFinestra {
public:
    Vista(frmINFO& f, QWidget* genitore) : VistaFinestra(f, genitore, Forma::dialogo) {
        auto* programma = collega(f.lblProgramma, corpo());
        programma->setFont(leggero(punti::titolo));
        programma->setMinimumWidth(misura::avanzamento);
        colonna()->setSpacing(misura::spazio);
        colonna()->addWidget(programma);
        colonna()->addWidget(collega(f.lblVersione, corpo()));
        colonna()->addWidget(collega(f.lblProduttore, corpo()));
        auto* ok = qobject_cast<QPushButton*>(collega(f.cmdOk, this));
        ok->setDefault(true);
        alPiede(ok);
        chiudiDisposizione();
        f.allaChiusura = [this] { window()->close(); };
    }
};

}  // namespace

VistaFinestra* vista_frmINFO(Finestra& finestra, QWidget* genitore) {
    return new Vista(dynamic_cast<frmINFO&>(finestra), genitore);
}

}  // namespace kelvo::ui
