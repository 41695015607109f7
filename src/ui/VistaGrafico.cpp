#include "ui/VistaGrafico.h"

#include <QtGui/QPaintEvent>
#include <QtGui/QPainter>

#include "disegno/pittoreGrafico.h"
#include "ui/legame.h"
#include "ui/legami.h"
#include "ui/stile.h"

namespace kelvo::ui {

VistaGrafico::VistaGrafico(const Grafico& grafico, QWidget* genitore) : QWidget(genitore), grafico_(grafico) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAttribute(Qt::WA_OpaquePaintEvent);  // all of it is painted white
}

void VistaGrafico::aggiorna() {
    const Grafico::Contenuto& contenuto = grafico_.contenuto();
    setAccessibleName(q(contenuto.titolo.empty() ? contenuto.y.titolo : contenuto.titolo).simplified());
    setAccessibleDescription(q(grafico_.descrizione()));
    update();
}

QSize VistaGrafico::sizeHint() const {
    return {misura::grafico, misura::grafico * 3 / 5};
}

QSize VistaGrafico::minimumSizeHint() const {
    return {misura::graficoMinimo, misura::graficoMinimo * 3 / 5};
}

void VistaGrafico::paintEvent(QPaintEvent* /*evento*/) {
    QPainter pennello(this);
    pennello.fillRect(rect(), qcolore(colori::bianco));
    disegno::dipingiGrafico(pennello, grafico_.contenuto(), rect());
}

VistaGrafico* collega(Grafico& grafico, QWidget* genitore) {
    auto* vista = new VistaGrafico(grafico, genitore);
    auto* legame = new Legame(grafico, *vista);
    legame->mostra([vista] { vista->aggiorna(); });
    return vista;
}

}  // namespace kelvo::ui
