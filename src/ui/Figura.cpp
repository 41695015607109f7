#include "ui/Figura.h"

#include <QtGui/QPaintEvent>
#include <QtGui/QPainter>

#include "ui/icone.h"
#include "ui/stile.h"

namespace kelvo::ui {

Figura::Figura(QWidget* genitore) : QLabel(genitore) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void Figura::risorsa(const std::string& nome) {
    if (risorsa_ != nome) {
        risorsa_ = nome;
        disegnata_ = {};
        update();
    }
}

QSize Figura::sizeHint() const {
    return {misura::figura, misura::figura};
}

QSize Figura::minimumSizeHint() const {
    return {misura::figuraMinima, misura::figuraMinima};
}

void Figura::paintEvent(QPaintEvent* /*evento*/) {
    const double rapporto = devicePixelRatioF();
    if (disegnata_.isNull() || disegnata_.size() != size() * rapporto) {
        disegnata_ = immagine(risorsa_, size(), rapporto);
    }
    QPainter pennello(this);
    pennello.drawPixmap(0, 0, disegnata_);
}

}  // namespace kelvo::ui
