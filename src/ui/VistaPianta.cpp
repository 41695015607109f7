#include "ui/VistaPianta.h"

#include <QtGui/QContextMenuEvent>
#include <QtGui/QFocusEvent>
#include <QtGui/QPaintEvent>
#include <QtGui/QPainter>
#include <algorithm>
#include <cmath>
#include <utility>

#include "disegno/pittorePianta.h"
#include "shell/servizi/ControlloPianta.h"
#include "ui/legame.h"
#include "ui/legami.h"
#include "ui/shell/menuQt.h"
#include "ui/stile.h"

namespace kelvo::ui {

VistaPianta::VistaPianta(std::function<Soggetto()> soggetto, QWidget* genitore)
    : QWidget(genitore), soggetto_(std::move(soggetto)) {
    setObjectName(QStringLiteral("ctlPianta"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void VistaPianta::aggiorna() {
    disegnata_.reset();
    update();
}

void VistaPianta::aggiornaStati() {
    statiVecchi_ = true;
    update();
}

void VistaPianta::menu(std::function<MenuChiavi*()> quale) {
    menu_ = std::move(quale);
    setFocusPolicy(Qt::StrongFocus);
}

void VistaPianta::contextMenuEvent(QContextMenuEvent* evento) {
    MenuChiavi* menu = menu_ ? menu_() : nullptr;
    if (menu == nullptr) {
        evento->ignore();
        return;
    }
    const bool tastiera = evento->reason() == QContextMenuEvent::Keyboard;
    mostraContesto(*menu, *this, tastiera ? rect().center() : evento->pos());
}

void VistaPianta::focusInEvent(QFocusEvent* evento) {
    QWidget::focusInEvent(evento);
    update();
}

void VistaPianta::focusOutEvent(QFocusEvent* evento) {
    QWidget::focusOutEvent(evento);
    update();
}

QSize VistaPianta::sizeHint() const {
    return {misura::pianta, misura::pianta};
}

QSize VistaPianta::minimumSizeHint() const {
    return {misura::figuraMinima, misura::figuraMinima};
}

void VistaPianta::resizeEvent(QResizeEvent* evento) {
    QWidget::resizeEvent(evento);
    disegnata_.reset();
}

void VistaPianta::disegna() {
    Soggetto soggetto = soggetto_();
    if (soggetto.dati.rami.empty()) {
        return;
    }
    const auto costruisci = [&](double alta) {
        soggetto.opzioni.rapporto = width() / std::max(1.0, alta);
        soggetto.opzioni.altezzaTesto = misura::testoPianta / std::max<double>(misura::testoPianta, alta);
        disegnata_ = pianta::costruisci(soggetto.dati, soggetto.opzioni);
    };
    // The strip of the remarks stands below the picture: what is left is the room of the picture itself. It is mostly
    // as high as the last time.
    constexpr double scarto = 0.01;
    costruisci(height() * parte_);
    const double parte = pianta::parteVista(*disegnata_);
    if (std::abs(parte - parte_) > scarto) {
        parte_ = parte;
        costruisci(height() * parte_);
    }
    setAccessibleName(q(disegnata_->nomeAccessibile));
}

void VistaPianta::paintEvent(QPaintEvent* /*evento*/) {
    if (!disegnata_) {
        disegna();
    } else if (statiVecchi_) {
        mostraStati(*disegnata_, soggetto_().opzioni.stati);
    }
    statiVecchi_ = false;
    if (!disegnata_) {
        return;
    }
    QPainter pennello(this);
    disegno::dipingiPianta(pennello, *disegnata_, rect());
    if (hasFocus()) {
        pennello.setPen(
            QPen(qcolore(tinta::principale), misura::bordoTesto, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        pennello.drawRect(rect().adjusted(1, 1, -1, -1));
    }
}

VistaPianta* collega(ControlloPianta& pianta, QWidget* genitore) {
    auto* vista = new VistaPianta(
        [&pianta] {
            const DocumentoPagine::Pianta soggetto = pianta.soggetto();
            return soggetto.dati && soggetto.opzioni ? VistaPianta::Soggetto{*soggetto.dati, *soggetto.opzioni}
                                                     : VistaPianta::Soggetto{};
        },
        genitore);
    vista->menu([&pianta] { return pianta.menu(); });
    auto* legame = new Legame(pianta, *vista);
    legame->mostra([vista, &pianta] {
        vista->aggiorna();
        vista->setAccessibleDescription(q(pianta.descrizione()));
    });
    return vista;
}

}  // namespace kelvo::ui
