#include <QtWidgets/QLabel>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QVBoxLayout>

#include "reports/frmRelazioneProgressBar.h"
#include "ui/legami.h"
#include "ui/reports/viste.h"
#include "ui/stile.h"
#include "ui/titoloAccanto.h"

namespace kelvo::ui {

namespace {

class Vista final : public VistaFinestra {
public:
    Vista(frmRelazioneProgressBar& f, QWidget* genitore) : VistaFinestra(f, genitore, Forma::dialogo) {
        titoloAccanto(*this);
        constexpr int m = misura::margine;
        corpo()->layout()->setContentsMargins(m, m, m, m);
        larghezzaColonna(misura::colonnaRisultati - 2 * m - 2);
        destra()->parentWidget()->hide();
        colonna()->setSpacing(misura::spazio);
        QLabel* passo = collega(f.lblAvanzamento, corpo());
        passo->setFont(forte(punti::gruppo));
        colonna()->addWidget(passo);
        colonna()->addWidget(collega(f.ctlProgressBar, corpo()));
        chiudiDisposizione();
    }
};

}  // namespace

VistaFinestra* vista_frmRelazioneProgressBar(Finestra& finestra, QWidget* genitore) {
    return new Vista(dynamic_cast<frmRelazioneProgressBar&>(finestra), genitore);
}

}  // namespace kelvo::ui
