#include "ui/SegnoErrore.h"

#include <QtCore/QEvent>
#include <QtCore/QLineF>
#include <QtGui/QPainter>
#include <QtGui/QPolygonF>

#include "ui/stile.h"

namespace kelvo::ui {

SegnoErrore::SegnoErrore(QWidget& campo) : QWidget(&campo) {
    setObjectName(QStringLiteral("segnoErrore"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    setFixedSize(misura::segnoErrore, misura::segnoErrore);
    campo.installEventFilter(this);
    accosta();
    hide();
}

void SegnoErrore::accosta() {
    move(misura::bordoSegno, (parentWidget()->height() - height()) / 2);
    raise();
}

bool SegnoErrore::eventFilter(QObject* oggetto, QEvent* evento) {
    if (evento->type() == QEvent::Resize || evento->type() == QEvent::Show) {
        accosta();
    }
    return QWidget::eventFilter(oggetto, evento);
}

void SegnoErrore::paintEvent(QPaintEvent* /*evento*/) {
    constexpr double lato = misura::segnoErrore;
    constexpr double penna = 1.5;
    QPainter pennello(this);
    pennello.setRenderHint(QPainter::Antialiasing);
    pennello.setPen(QPen(qcolore(tinta::errore), penna, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    pennello.setBrush(qcolore(tinta::errore));
    pennello.drawPolygon(
        QPolygonF({QPointF(lato / 2, penna), QPointF(lato - penna, lato - penna), QPointF(penna, lato - penna)}));
    pennello.setPen(QPen(Qt::white, penna, Qt::SolidLine, Qt::RoundCap));
    pennello.drawLine(QLineF(lato / 2, lato * 0.42, lato / 2, lato * 0.62));
    pennello.drawPoint(QPointF(lato / 2, lato * 0.78));
}

}  // namespace kelvo::ui
