#include "ui/input/VistaAnteprimaProgetto.h"

#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

#include "ui/legami.h"
#include "ui/legamiScelte.h"
#include "ui/stile.h"

namespace kelvo::ui {

VistaAnteprimaProgetto::VistaAnteprimaProgetto(AnteprimaProgetto& f, QWidget* genitore)
    : VistaFinestra(f, genitore, Forma::dialogo), f_(f) {
    larghezzaColonna(QWIDGETSIZE_MAX);
    destra()->parentWidget()->hide();
    corpo()->layout()->setContentsMargins(0, 0, 0, 0);
    Pannello* progetto = collega(f.frDatiProgetto, corpo());
    progetto->valore(f.lblNumeroRami, f.txtNumeroRami);
    progetto->valore(f.lblNomeProgetto, f.txtNomeProgetto);
    progetto->valore(f.lblTitolo, f.txtTitolo);
    progetto->valore(f.lblNote, f.txtNote);
    colonna()->addWidget(progetto);
}

void VistaAnteprimaProgetto::sotto(Pannello* pannello, QWidget* dati) {
    pannello->larga(dati);
    auto* avviso = collega(f_.lblAvviso, pannello);
    avviso->setFont(ui::dati(punti::corpo));
    avviso->setWordWrap(true);
    pannello->larga(avviso);
    colonna()->addWidget(pannello, 1);
    chiudiDisposizione();
}

}  // namespace kelvo::ui
