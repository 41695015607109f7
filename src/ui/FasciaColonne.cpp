#include "ui/FasciaColonne.h"

#include <QtCore/QEvent>
#include <QtGui/QResizeEvent>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QScrollBar>
#include <algorithm>

#include "ui/VistaGriglia.h"
#include "ui/stile.h"

namespace kelvo::ui {

FasciaColonne::FasciaColonne(VistaGriglia& griglia, QWidget* genitore)
    : QWidget(genitore), griglia_(griglia), finestra_(new QWidget(this)) {
    setFixedHeight(misura::spunta);
    connect(griglia.horizontalHeader(), &QHeaderView::sectionResized, this, &FasciaColonne::disponi);
    connect(griglia.horizontalScrollBar(), &QScrollBar::valueChanged, this, &FasciaColonne::disponi);
    griglia.viewport()->installEventFilter(this);
}

void FasciaColonne::sopra(int colonna, QWidget* oggetto) {
    oggetto->setParent(finestra_);
    voci_.push_back({colonna, oggetto});
    disponi();
}

void FasciaColonne::inTesta(QWidget* oggetto) {
    oggetto->setParent(this);
    testa_ = oggetto;
    disponi();
}

void FasciaColonne::resizeEvent(QResizeEvent* evento) {
    QWidget::resizeEvent(evento);
    disponi();
}

bool FasciaColonne::eventFilter(QObject* oggetto, QEvent* evento) {
    if (evento->type() == QEvent::Resize || evento->type() == QEvent::Move || evento->type() == QEvent::Show) {
        disponi();
    }
    return QWidget::eventFilter(oggetto, evento);
}

void FasciaColonne::disponi() {
    const int inizio =
        griglia_.viewport()->mapTo(griglia_.window(), QPoint(0, 0)).x() - mapTo(window(), QPoint(0, 0)).x();
    finestra_->setGeometry(inizio, 0, griglia_.viewport()->width(), height());
    if (testa_ != nullptr) {
        testa_->setGeometry(0, 0, std::max(0, inizio), height());
    }
    for (const Voce& voce : voci_) {
        const int larga = std::min(voce.oggetto->sizeHint().width(), griglia_.columnWidth(voce.colonna));
        const int x = griglia_.columnViewportPosition(voce.colonna) + (griglia_.columnWidth(voce.colonna) - larga) / 2;
        voce.oggetto->setGeometry(x, 0, larga, height());
    }
}

}  // namespace kelvo::ui
