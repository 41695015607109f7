#include <QtWidgets/QLabel>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QVBoxLayout>

#include "shell/frmSplash.h"
#include "ui/legami.h"
#include "ui/shell/viste.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

constexpr Misura misuraVista{432, 80};

class Vista final : public VistaFinestra {
public:
    Vista(frmSplash& f, QWidget* genitore) : VistaFinestra(f, genitore, Forma::dialogo) {
        auto* nome = new QLabel(q(f.didascalia()), corpo());
        nome->setFont(leggero(punti::titolo));
        nome->setObjectName(QStringLiteral("pagina"));
        colonna()->addWidget(nome);
        colonna()->addWidget(collega(f.lblTesto, corpo()));
        auto* avanzamento = collega(f.ctlProgresso, corpo());
        avanzamento->setFixedWidth(misura::avanzamento);
        colonna()->addWidget(avanzamento);
        chiudiDisposizione();
    }
    bool senzaCornice() const override { return true; }
};

}  // namespace

VistaFinestra* vista_frmSplash(Finestra& finestra, QWidget* genitore) {
    return new Vista(dynamic_cast<frmSplash&>(finestra), genitore);
}

}  // namespace kelvo::ui
