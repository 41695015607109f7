#include "ui/titoloAccanto.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

#include "ui/VistaFinestra.h"
#include "ui/icone.h"
#include "ui/legami.h"
#include "ui/stile.h"

namespace kelvo::ui {

QHBoxLayout* titoloAccanto(VistaFinestra& vista) {
    auto* barra = new QWidget(&vista);
    barra->setObjectName(QStringLiteral("piede"));
    barra->setAttribute(Qt::WA_StyledBackground);
    auto* riga = new QHBoxLayout(barra);
    riga->setContentsMargins(misura::spazioStretto, misura::canale, misura::canale, misura::canale);
    riga->setSpacing(misura::spazio);
    auto* disegno = new QLabel(barra);
    disegno->setPixmap(segno("Kelvo").pixmap(QSize(misura::margine, misura::margine), vista.devicePixelRatioF()));
    riga->addWidget(disegno);
    auto* nome = new QLabel(q(vista.finestra().didascalia()), barra);
    nome->setFont(dati(punti::corpo));
    riga->addWidget(nome, 1);
    qobject_cast<QVBoxLayout*>(vista.layout())->insertWidget(0, barra);
    return riga;
}

}  // namespace kelvo::ui
