#include "ui/SegnoDati.h"

#include <QtCore/QEvent>
#include <QtGui/QPainter>
#include <algorithm>

#include "ui/PannelloTitolo.h"
#include "ui/legame.h"
#include "ui/legami.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

constexpr int lato = 8;

}  // namespace

SegnoDati::SegnoDati(Finestra& finestra, PannelloTitolo& titolo)
    : QWidget(&titolo), finestra_(finestra), titolo_(titolo) {
    setFixedSize(lato, lato);
    titolo.installEventFilter(this);
    auto* legame = new Legame(finestra.segno, *this);
    legame->mostra([this] {
        setToolTip(q(finestra_.segno.testo()));
        setAccessibleName(q(finestra_.segno.testo()));
    });
    connect(&titolo, &PannelloTitolo::mutato, this, &SegnoDati::colloca);
    colloca();
}

void SegnoDati::colloca() {
    move(std::clamp(titolo_.fineParole() + lato, 0, std::max(0, titolo_.width() - 2 * lato)),
         (titolo_.height() - lato) / 2);
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
