#include <QtWidgets/QVBoxLayout>

#include "input/frmToponomasticaIntersezione.h"
#include "ui/RiquadroAiuto.h"
#include "ui/legami.h"
#include "ui/shell/viste.h"

namespace kelvo::ui {

namespace {

class Vista final : public VistaFinestra {
public:
    Vista(frmToponomasticaIntersezione& f, QWidget* genitore) : VistaFinestra(f, genitore) {
        auto* nomi = new Pannello(QStringLiteral("Nomi degli ingressi"), corpo());
        for (std::size_t i = 0; i < f.txtIngresso.size(); ++i) {
            nomi->riga(f.lblIngresso[i], collega(f.txtIngresso[i], nomi));
        }
        colonna()->addWidget(nomi);
        aggiungiAiuto(QStringLiteral("Schema dell'intersezione"))->segui(f.ctlPicture);
        chiudiDisposizione();
    }
};

}  // namespace

VistaFinestra* vista_frmToponomasticaIntersezione(Finestra& finestra, QWidget* genitore) {
    return new Vista(dynamic_cast<frmToponomasticaIntersezione&>(finestra), genitore);
}

}  // namespace kelvo::ui
