#include "ui/checkup/VistaRiscontri.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtGui/QTextLayout>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QStyledItemDelegate>
#include <algorithm>
#include <cmath>

#include "checkup/report.h"
#include "ui/icone.h"
#include "ui/legame.h"
#include "ui/legami.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

constexpr int ruoloChiave = Qt::UserRole;
constexpr int lato = 18;      ///< of a sign
constexpr int distacco = 10;  ///< between sign and text
constexpr int aria = 7;       ///< above and below the text
constexpr int rientro = 26;

/// Breaks the text of a row; its heading, as far as it has one, is strong. A root is strong altogether.
double componi(QTextLayout& testo, bool radice, double larghezza) {
    const std::string scritto = s(testo.text());
    const QString titolo = q(std::string{titoloRiscontro(scritto)});
    testo.setFont(radice ? forte(punti::corpo) : dati(punti::corpo));
    if (!radice && !titolo.isEmpty()) {
        QTextCharFormat spicca;
        spicca.setFont(forte(punti::corpo));
        testo.setFormats({{0, static_cast<int>(titolo.size()), spicca}});
    }
    testo.setTextOption(QTextOption(Qt::AlignLeft));
    testo.beginLayout();
    double y = 0.0;
    for (QTextLine riga = testo.createLine(); riga.isValid(); riga = testo.createLine()) {
        riga.setLineWidth(larghezza);
        riga.setPosition({0.0, y});
        y += riga.height();
    }
    testo.endLayout();
    return y;
}

class RigaRiscontro final : public QStyledItemDelegate {
public:
    explicit RigaRiscontro(VistaRiscontri& vista) : QStyledItemDelegate(&vista), vista_(vista) {}

    QSize sizeHint(const QStyleOptionViewItem& /*opzione*/, const QModelIndex& indice) const override {
        const bool radice = !indice.parent().isValid();
        const int sinistra = vista_.indentation() * (radice ? 1 : 2);
        const int larga = vista_.viewport()->width() - sinistra;
        QTextLayout testo(indice.data().toString());
        const double alta = componi(testo, radice, spazioTesto(larga));
        return {larga, std::max(static_cast<int>(std::ceil(alta)), lato) + 2 * aria};
    }

    void paint(QPainter* pennello, const QStyleOptionViewItem& opzione, const QModelIndex& indice) const override {
        const QRect dove = opzione.rect;
        QTextLayout testo(indice.data().toString());
        componi(testo, !indice.parent().isValid(), spazioTesto(dove.width()));
        const double prima = testo.lineCount() == 0 ? 0.0 : testo.lineAt(0).height();
        const double alta = std::max(prima, static_cast<double>(lato));
        const auto icona = indice.data(Qt::DecorationRole).value<QIcon>();
        const int y = dove.top() + aria + static_cast<int>(std::lround((alta - lato) / 2.0));
        icona.paint(pennello, QRect(dove.left(), y, lato, lato));
        pennello->setPen(qcolore(tinta::inchiostro));
        testo.draw(pennello, QPointF(dove.left() + lato + distacco, dove.top() + aria + (alta - prima) / 2.0));
    }

private:
    static double spazioTesto(int larghezza) { return std::max(1, larghezza - lato - distacco - misura::spazio); }

    const VistaRiscontri& vista_;
};

}  // namespace

VistaRiscontri::VistaRiscontri(Albero& albero, const QString& vuoto, QWidget* genitore)
    : QTreeWidget(genitore), albero_(albero), vuoto_(vuoto) {
    header()->hide();
    setFocusPolicy(Qt::StrongFocus);
    setIndentation(rientro);
    setUniformRowHeights(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setItemDelegate(new RigaRiscontro(*this));
}

std::string VistaRiscontri::chiaveDi(const QTreeWidgetItem* riga) {
    return riga == nullptr ? std::string{} : s(riga->data(0, ruoloChiave).toString());
}

void VistaRiscontri::mostra() {
    if (letto_ && versione_ == albero_.versione()) {
        return;
    }
    letto_ = true;
    versione_ = albero_.versione();
    clear();
    const auto riga = [this](const std::string& chiave, QTreeWidgetItem* padre) {
        const Albero::Nodo& nodo = albero_.nodo(chiave);
        auto* nuova = padre == nullptr ? new QTreeWidgetItem(this) : new QTreeWidgetItem(padre);
        nuova->setText(0, q(nodo.testo));
        nuova->setData(0, ruoloChiave, q(chiave));
        nuova->setIcon(0, padre == nullptr ? icona(nodo.immagine, false) : segno(nodo.immagine));
        return nuova;
    };
    for (const std::string& radice : albero_.radici()) {
        QTreeWidgetItem* testa = riga(radice, nullptr);
        for (const std::string& figlio : albero_.nodo(radice).figli) {
            riga(figlio, testa);
        }
        testa->setExpanded(albero_.nodo(radice).espanso);
        setCurrentItem(testa->childCount() > 0 ? testa->child(0) : testa);
    }
    scrollToTop();
}

void VistaRiscontri::drawRow(QPainter* pennello, const QStyleOptionViewItem& opzione, const QModelIndex& indice) const {
    const QRect riga(0, opzione.rect.top(), viewport()->width(), opzione.rect.height());
    const bool scelta = selectionModel()->isSelected(indice);
    if (scelta) {
        pennello->fillRect(riga, qcolore(tinta::scelto));
    }
    QTreeWidget::drawRow(pennello, opzione, indice);
    if (scelta) {
        pennello->fillRect(QRect(0, riga.top(), misura::barraAlbero, riga.height()), qcolore(tinta::principale));
    }
    pennello->fillRect(QRect(0, riga.bottom(), riga.width(), 1), qcolore(tinta::rigaPannello));
}

void VistaRiscontri::paintEvent(QPaintEvent* evento) {
    QTreeWidget::paintEvent(evento);
    const QTreeWidgetItem* radice = topLevelItem(0);
    if (radice == nullptr || radice->childCount() > 0) {
        return;
    }
    QPainter pennello(viewport());
    pennello.setFont(dati(punti::corpo));
    pennello.setPen(qcolore(tinta::secondario));
    const int sotto = visualItemRect(radice).bottom() + misura::margine;
    pennello.drawText(QRect(0, sotto, viewport()->width(), misura::rigaCampo), Qt::AlignHCenter | Qt::AlignTop, vuoto_);
}

void VistaRiscontri::mousePressEvent(QMouseEvent* evento) {
    premuto_ = evento->button() == Qt::LeftButton ? itemAt(evento->position().toPoint()) : nullptr;
    QTreeWidget::mousePressEvent(evento);
}

void VistaRiscontri::mouseReleaseEvent(QMouseEvent* evento) {
    QTreeWidget::mouseReleaseEvent(evento);
    const QPoint dove = evento->position().toPoint();
    const QTreeWidgetItem* riga = evento->button() == Qt::LeftButton ? itemAt(dove) : nullptr;
    // The arrow in front of the root opens and closes it and nothing else.
    const bool scelta = riga != nullptr && riga == premuto_ && visualItemRect(riga).contains(dove);
    premuto_ = nullptr;
    if (scelta) {
        Q_EMIT scelto(q(chiaveDi(riga)));
    }
}

void VistaRiscontri::keyPressEvent(QKeyEvent* evento) {
    const bool semplice = (evento->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (semplice && (evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter)) {
        Q_EMIT invio(q(chiaveDi(currentItem())));
    } else if (semplice && evento->key() == Qt::Key_Space) {
        Q_EMIT scelto(q(chiaveDi(currentItem())));
    } else {
        QTreeWidget::keyPressEvent(evento);
    }
}

void VistaRiscontri::resizeEvent(QResizeEvent* evento) {
    QTreeWidget::resizeEvent(evento);
    if (evento->oldSize().width() != evento->size().width()) {
        scheduleDelayedItemsLayout();
    }
}

VistaRiscontri* collegaRiscontri(Albero& albero, const QString& vuoto, QWidget* genitore) {
    auto* vista = new VistaRiscontri(albero, vuoto, genitore);
    auto* legame = new Legame(albero, *vista);
    legame->mostra([vista] { vista->mostra(); });
    return vista;
}

}  // namespace kelvo::ui
