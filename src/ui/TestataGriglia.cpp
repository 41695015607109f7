#include "ui/TestataGriglia.h"

#include <QtGui/QPainter>
#include <numeric>

namespace kelvo::ui {

TestataGriglia::TestataGriglia(Qt::Orientation verso, const Griglia& griglia, QWidget* genitore)
    : QHeaderView(verso, genitore), griglia_(griglia), pittore_(griglia) {
    setSectionsClickable(true);
    setHighlightSections(false);
    setSectionResizeMode(QHeaderView::Fixed);
    setMinimumSectionSize(1);
}

int TestataGriglia::spessore() const {
    return std::accumulate(spessori_.begin(), spessori_.end(), 0);
}

void TestataGriglia::spessori(const std::vector<int>& valori) {
    if (spessori_ != valori) {
        spessori_ = valori;
        if (orientation() == Qt::Horizontal) {
            setFixedHeight(spessore());
        } else {
            setFixedWidth(spessore());
        }
    }
}

QSize TestataGriglia::sizeHint() const {
    const QSize comune = QHeaderView::sizeHint();
    return orientation() == Qt::Horizontal ? QSize(comune.width(), spessore()) : QSize(spessore(), comune.height());
}

void TestataGriglia::paintSection(QPainter* pittore, const QRect& posto, int sezione) const {
    const bool sopra = orientation() == Qt::Horizontal;
    int inizio = sopra ? posto.top() : posto.left();
    for (int i = 0; i < static_cast<int>(spessori_.size()); ++i) {
        const int spesso = spessori_[static_cast<std::size_t>(i)];
        const Posto cella =
            sopra ? Posto{i, sezione + griglia_.colonneFisse()} : Posto{sezione + griglia_.righeFisse(), i};
        const QRect parte = sopra ? QRect(posto.left(), inizio, posto.width(), spesso)
                                  : QRect(inizio, posto.top(), spesso, posto.height());
        if (cella.riga < griglia_.tabella().righe() && cella.colonna < griglia_.tabella().colonne()) {
            pittore_.dipingi(*pittore, parte, cella);
        }
        inizio += spesso;
    }
}

}  // namespace kelvo::ui
