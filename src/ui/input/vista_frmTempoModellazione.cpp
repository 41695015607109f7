#include <QtWidgets/QVBoxLayout>

#include "input/frmTempoModellazione.h"
#include "ui/RiquadroAiuto.h"
#include "ui/legami.h"
#include "ui/shell/viste.h"

namespace kelvo::ui {

namespace {

class Vista final : public VistaFinestra {
public:
    Vista(frmTempoModellazione& f, QWidget* genitore) : VistaFinestra(f, genitore) {
        auto* tempi = new Pannello(QStringLiteral("Finestra di modellazione"), corpo());
        tempi->riga(f.lblTempoIniziale, collega(f.txtTempoIniziale, tempi), QStringLiteral("[hh:mm]"));
        tempi->riga(f.lblSegmentoTempo, collega(f.txtSegmentoTempo, tempi), QStringLiteral("[min]"),
                    QStringLiteral("5 ÷ 30"));
        tempi->riga(f.lblTempoFinale, collega(f.txtTempoFinale, tempi), QStringLiteral("[hh:mm]"));
        colonna()->addWidget(tempi);
        aggiungiAiuto(QStringLiteral("Descrizione del parametro"))->figura("TempiModellazione");
        chiudiDisposizione();
    }
};

}  // namespace

VistaFinestra* vista_frmTempoModellazione(Finestra& finestra, QWidget* genitore) {
    return new Vista(dynamic_cast<frmTempoModellazione&>(finestra), genitore);
}

}  // namespace kelvo::ui
