#include "ui/VistaGrafico.h"

#include <QtGui/QContextMenuEvent>
#include <QtGui/QPaintEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QToolTip>

#include "disegno/pittoreGrafico.h"
#include "disegno/valoreSotto.h"
#include "ui/legame.h"
#include "ui/legami.h"
#include "ui/shell/menuQt.h"
#include "ui/stile.h"

namespace kelvo::ui {

VistaGrafico::VistaGrafico(const Grafico& grafico, QWidget* genitore) : QWidget(genitore), grafico_(grafico) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setFocusPolicy(Qt::StrongFocus);
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

bool VistaGrafico::event(QEvent* evento) {
    if (evento->type() != QEvent::ToolTip) {
        return QWidget::event(evento);
    }
    const auto* aiuto = static_cast<QHelpEvent*>(evento);
    const std::string parole = disegno::valoreSotto(grafico_.contenuto(), size(), aiuto->pos());
    if (parole.empty()) {
        QToolTip::hideText();
    } else {
        QToolTip::showText(aiuto->globalPos(), q(parole), this);
    }
    evento->setAccepted(!parole.empty());
    return true;
}

void VistaGrafico::paintEvent(QPaintEvent* /*evento*/) {
    QPainter pennello(this);
    pennello.fillRect(rect(), qcolore(colori::bianco));
    disegno::dipingiGrafico(pennello, grafico_.contenuto(), rect());
    if (hasFocus()) {
        pennello.setPen(
            QPen(qcolore(tinta::principale), misura::bordoTesto, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        pennello.drawRect(rect().adjusted(1, 1, -1, -1));
    }
}

void VistaGrafico::contextMenuEvent(QContextMenuEvent* evento) {
    MenuChiavi* menu = grafico_.menu();
    if (menu == nullptr) {
        evento->ignore();
        return;
    }
    const bool tastiera = evento->reason() == QContextMenuEvent::Keyboard;
    mostraContesto(*menu, *this, tastiera ? rect().center() : evento->pos());
}

void VistaGrafico::focusInEvent(QFocusEvent* evento) {
    QWidget::focusInEvent(evento);
    update();
}

void VistaGrafico::focusOutEvent(QFocusEvent* evento) {
    QWidget::focusOutEvent(evento);
    update();
}

VistaGrafico* collega(Grafico& grafico, QWidget* genitore) {
    auto* vista = new VistaGrafico(grafico, genitore);
    auto* legame = new Legame(grafico, *vista);
    legame->mostra([vista] { vista->aggiorna(); });
    return vista;
}

}  // namespace kelvo::ui
