#include "ui/PannelloTitolo.h"

#include <QtGui/QFontMetrics>
#include <QtGui/QPaintEvent>
#include <QtGui/QPainter>
#include <algorithm>

#include "ui/legame.h"
#include "ui/legami.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

constexpr int altezzaLinea = 20;

}  // namespace

PannelloTitolo::PannelloTitolo(Finestra& finestra, QWidget* genitore) : QWidget(genitore), finestra_(finestra) {
    setFont(forte(punti::pannello));
    auto* legame = new Legame(finestra.pannello, *this);
    legame->mostra([this] { aggiorna(); });
    legame_ = finestra.sottotitolo.cambiato().connect([this] { aggiorna(); });
}

PannelloTitolo::~PannelloTitolo() {
    legame_.disconnect();
}

void PannelloTitolo::aggiorna() {
    const std::string& ramo = finestra_.sottotitolo.testo();
    setAccessibleName(q(finestra_.pannello.testo() + (ramo.empty() ? "" : ", " + ramo)));
    update();
    Q_EMIT mutato();
}

PannelloTitolo::Parole PannelloTitolo::parole() const {
    const int spazio = std::max(0, width() - 2 * misura::margine);
    Parole p;
    p.titolo = fontMetrics().elidedText(q(finestra_.pannello.testo()), Qt::ElideMiddle, spazio);
    p.fine = misura::margine + fontMetrics().horizontalAdvance(p.titolo);
    p.inizioRamo = p.fine + misura::lineaRamo;
    const int resto = misura::margine + spazio - p.inizioRamo;
    const QFontMetrics sottile(leggero(punti::pannello), this);
    if (!finestra_.sottotitolo.testo().empty() && resto > sottile.horizontalAdvance(QChar(0x2026))) {
        p.ramo = sottile.elidedText(q(finestra_.sottotitolo.testo()), Qt::ElideMiddle, resto);
        p.fine = p.inizioRamo + sottile.horizontalAdvance(p.ramo);
    }
    return p;
}

int PannelloTitolo::fineParole() const {
    return std::min(parole().fine, width());
}

void PannelloTitolo::paintEvent(QPaintEvent* /*evento*/) {
    const Colore sfondo = finestra_.pannello.aspetto().sfondo;
    QPainter pennello(this);
    pennello.fillRect(rect(), qcolore(sfondo));
    pennello.setPen(qcolore(neroOBianco(sfondo)));
    const Parole p = parole();
    const auto scrivi = [&](int da, const QString& testo) {
        pennello.drawText(QRect(da, 0, width() - da, height()), Qt::AlignLeft | Qt::AlignVCenter, testo);
    };
    scrivi(misura::margine, p.titolo);
    if (p.ramo.isEmpty()) {
        return;
    }
    const int linea = p.inizioRamo - misura::lineaRamo / 2;
    pennello.fillRect(QRect(linea, (height() - altezzaLinea) / 2, 1, altezzaLinea), pennello.pen().color());
    pennello.setFont(leggero(punti::pannello));
    scrivi(p.inizioRamo, p.ramo);
}

}  // namespace kelvo::ui
