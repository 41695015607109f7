#include "ui/SegnoDati.h"

#include <QtCore/QEvent>
#include <QtGui/QPainter>
#include <algorithm>

#include "ui/legame.h"
#include "ui/legami.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

constexpr int lato = 8;

}  // namespace

SegnoDati::SegnoDati(Finestra& finestra, QWidget& titolo) : QWidget(&titolo), finestra_(finestra) {
    setFixedSize(lato, lato);
    titolo.installEventFilter(this);
    auto* legame = new Legame(finestra.segno, *this);
    legame->mostra([this] {
        setToolTip(q(finestra_.segno.testo()));
        setAccessibleName(q(finestra_.segno.testo()));
    });
    legame_ = finestra.pannello.cambiato().connect([this] { colloca(); });
    colloca();
}

SegnoDati::~SegnoDati() {
    legame_.disconnect();
}

void SegnoDati::colloca() {
    const QWidget& titolo = *parentWidget();
    const int fine = misura::margine + titolo.fontMetrics().horizontalAdvance(q(finestra_.pannello.testo()));
    move(std::clamp(fine + lato, 0, std::max(0, titolo.width() - 2 * lato)), (titolo.height() - lato) / 2);
    update();
}

void SegnoDati::paintEvent(QPaintEvent* /*evento*/) {
    QPainter pennello(this);
    pennello.setRenderHint(QPainter::Antialiasing);
    pennello.setPen(Qt::NoPen);
    pennello.setBrush(qcolore(neroOBianco(finestra_.pannello.aspetto().sfondo)));
    pennello.drawEllipse(rect());
}

bool SegnoDati::eventFilter(QObject* oggetto, QEvent* evento) {
    if (evento->type() == QEvent::Resize || evento->type() == QEvent::FontChange) {
        colloca();
    }
    return QWidget::eventFilter(oggetto, evento);
}

}  // namespace kelvo::ui
