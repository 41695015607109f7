#include "ui/DisposizioneProporzionale.h"

#include <QtWidgets/QWidget>
#include <algorithm>
#include <cmath>

namespace kelvo::ui {

DisposizioneProporzionale::DisposizioneProporzionale(Misura disegno, QWidget* genitore)
    : QLayout(genitore), disegno_(disegno) {}

DisposizioneProporzionale::~DisposizioneProporzionale() = default;

void DisposizioneProporzionale::aggiungi(QWidget* pannello, const Rettangolo& posto) {
    addWidget(pannello);
    voci_.back().posto = posto;
}

void DisposizioneProporzionale::sposta(const QWidget* pannello, const Rettangolo& posto) {
    for (Voce& voce : voci_) {
        if (voce.cosa->widget() == pannello) {
            voce.posto = posto;
            invalidate();
        }
    }
}

void DisposizioneProporzionale::addItem(QLayoutItem* voce) {
    voci_.push_back({std::unique_ptr<QLayoutItem>(voce), {0.0, 0.0, disegno_.W, disegno_.H}});
}

int DisposizioneProporzionale::count() const {
    return static_cast<int>(voci_.size());
}

QLayoutItem* DisposizioneProporzionale::itemAt(int indice) const {
    return indice >= 0 && indice < count() ? voci_[static_cast<std::size_t>(indice)].cosa.get() : nullptr;
}

QLayoutItem* DisposizioneProporzionale::takeAt(int indice) {
    if (indice < 0 || indice >= count()) {
        return nullptr;
    }
    const auto posizione = voci_.begin() + indice;
    QLayoutItem* cosa = posizione->cosa.release();
    voci_.erase(posizione);
    return cosa;
}

template <class Funzione>
QSize DisposizioneProporzionale::perTutti(Funzione misura) const {
    Misura dentro;
    for (const Voce& voce : voci_) {
        if (voce.posto.W <= 0.0 || voce.posto.H <= 0.0) {
            continue;
        }
        const QSize chiesta = misura(voce);
        dentro.W = std::max(dentro.W, chiesta.width() * disegno_.W / voce.posto.W);
        dentro.H = std::max(dentro.H, chiesta.height() * disegno_.H / voce.posto.H);
    }
    const QMargins bordi = contentsMargins();
    return {static_cast<int>(std::ceil(dentro.W)) + bordi.left() + bordi.right(),
            static_cast<int>(std::ceil(dentro.H)) + bordi.top() + bordi.bottom()};
}

QSize DisposizioneProporzionale::sizeHint() const {
    const QMargins bordi = contentsMargins();
    const QSize disegno(static_cast<int>(disegno_.W) + bordi.left() + bordi.right(),
                        static_cast<int>(disegno_.H) + bordi.top() + bordi.bottom());
    return perTutti([](const Voce& voce) { return voce.cosa->sizeHint().expandedTo(voce.cosa->minimumSize()); })
        .expandedTo(disegno);
}

QSize DisposizioneProporzionale::minimumSize() const {
    return perTutti([](const Voce& voce) { return voce.cosa->minimumSize(); });
}

bool DisposizioneProporzionale::hasHeightForWidth() const {
    return std::any_of(voci_.begin(), voci_.end(), [](const Voce& voce) { return voce.cosa->hasHeightForWidth(); });
}

int DisposizioneProporzionale::heightForWidth(int larghezza) const {
    const QMargins bordi = contentsMargins();
    const double scala = (larghezza - bordi.left() - bordi.right()) / disegno_.W;
    return perTutti([scala](const Voce& voce) {
               const auto sua = static_cast<int>(voce.posto.W * scala);
               const int alta = voce.cosa->hasHeightForWidth() ? voce.cosa->heightForWidth(sua) : 0;
               return QSize(0, std::max(alta, voce.cosa->minimumSize().height()));
           })
        .height();
}

void DisposizioneProporzionale::setGeometry(const QRect& rettangolo) {
    QLayout::setGeometry(rettangolo);
    const QRect dentro = rettangolo.marginsRemoved(contentsMargins());
    clsResize::Modulo modulo{disegno_, {double(dentro.width()), double(dentro.height())}, {}};
    for (const Voce& voce : voci_) {
        modulo.controlli.push_back(voce.posto);
    }
    clsResize resize;
    resize.SourceForm(&modulo);
    resize.ResizeControls();
    for (std::size_t i = 0; i < voci_.size(); ++i) {
        const Rettangolo& r = modulo.controlli[i];
        // Edges are rounded, not sizes: neighbours neither overlap nor drift apart.
        const QPoint primo(static_cast<int>(std::lround(r.L)), static_cast<int>(std::lround(r.T)));
        const QPoint ultimo(static_cast<int>(std::lround(r.L + r.W)) - 1, static_cast<int>(std::lround(r.T + r.H)) - 1);
        voci_[i].cosa->setGeometry(QRect(primo, ultimo).translated(dentro.topLeft()));
    }
}

}  // namespace kelvo::ui
