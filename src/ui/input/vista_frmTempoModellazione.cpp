#include <QtWidgets/QVBoxLayout>

#include "input/frmTempoModellazione.h"
#include "ui/legami.h"
#include "ui/shell/viste.h"

namespace kelvo::ui {

namespace {

class Vista final : public VistaFinestra {
public:
    Vista(frmTempoModellazione& f, QWidget* genitore) : VistaFinestra(f, genitore) {
        auto* tempi = new Pannello(q(f.frTempo.titolo()), corpo());
        tempi->riga(f.lblTempoIniziale, collega(f.txtTempoIniziale, tempi), QStringLiteral("[ora]"));
        tempi->riga(f.lblSegmentoTempo, collega(f.txtSegmentoTempo, tempi), QStringLiteral("[min]"),
                    q(f.limitiSegmento()));
        tempi->riga(f.lblTempoFinale, collega(f.txtTempoFinale, tempi), QStringLiteral("[ora]"));
        colloca(tempi, {0, 0, 468, 168});
        chiudiDisposizione();
    }
};

}  // namespace

VistaFinestra* vista_frmTempoModellazione(Finestra& finestra, QWidget* genitore) {
    return new Vista(dynamic_cast<frmTempoModellazione&>(finestra), genitore);
}

}  // namespace kelvo::ui
