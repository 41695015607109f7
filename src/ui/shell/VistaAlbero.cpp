#include "ui/shell/VistaAlbero.h"

#include <QtCore/QMimeData>
#include <QtCore/QTimer>
#include <QtGui/QDrag>
#include <QtGui/QDropEvent>
#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QTreeWidgetItemIterator>
#include <algorithm>

#include "shell/icone.h"
#include "ui/icone.h"
#include "ui/legami.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

constexpr int ruoloChiave = Qt::UserRole;

std::string chiaveDi(const QTreeWidgetItem* nodo) {
    return nodo == nullptr ? std::string{} : s(nodo->data(0, ruoloChiave).toString());
}

/// The drawing of a node's picture: the tree has keys of its own for some.
std::string disegnoDi(const std::string& immagine) {
    for (const ImmagineAlbero& voce : immaginiAlbero) {
        if (voce.chiave == immagine) {
            return std::string{voce.disegno};
        }
    }
    return immagine;
}

}  // namespace

VistaAlbero::VistaAlbero(frmTreeView& logica, QWidget* genitore) : QTreeWidget(genitore), logica_(logica) {
    setObjectName(q(logica.ctlTree.nome()));
    header()->hide();
    // A click is a command: it asks the field in focus itself, once, and leaves the keyboard there if that refuses.
    setFocusPolicy(Qt::TabFocus);
    setIndentation(misura::rientroAlbero);
    setIconSize({misura::icona, misura::icona});
    setFont(leggero(punti::corpo));
    setDragEnabled(true);
    setAcceptDrops(true);
    setDropIndicatorShown(true);
    setUniformRowHeights(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    legame_ = logica_.ctlTree.cambiato().connect([this] { prenota(); });
    QObject::connect(this, &QTreeWidget::itemExpanded, this, [this](QTreeWidgetItem* nodo) { aperto(nodo, true); });
    QObject::connect(this, &QTreeWidget::itemCollapsed, this, [this](QTreeWidgetItem* nodo) { aperto(nodo, false); });
    aggiorna();
}

void VistaAlbero::aperto(QTreeWidgetItem* nodo, bool valore) {
    // The logic keeps what the user opened, so that a rebuild of what is seen finds it again.
    const bool pari = versione_ == logica_.ctlTree.versione();
    logica_.ctlTree.espandi(chiaveDi(nodo), valore);
    if (pari) {
        versione_ = logica_.ctlTree.versione();
    }
}

void VistaAlbero::prenota() {
    // A build of the tree changes it node by node: it is shown once, when all is said.
    if (!prenotato_) {
        prenotato_ = true;
        QTimer::singleShot(0, this, &VistaAlbero::aggiorna);
    }
}

VistaAlbero::~VistaAlbero() {
    legame_.disconnect();
}

bool VistaAlbero::conNodoAperto(const Albero::Nodo& nodo) const {
    return std::any_of(nodo.figli.begin(), nodo.figli.end(), [this](const std::string& chiave) {
        const Albero::Nodo& figlio = logica_.ctlTree.nodo(chiave);
        return figlio.ForeColor == logica_.nodiDisabilitati.ColoreAbilitato() || conNodoAperto(figlio);
    });
}

void VistaAlbero::aggiungi(const std::string& chiave, QTreeWidgetItem* padre) {
    const Albero::Nodo& nodo = logica_.ctlTree.nodo(chiave);
    auto* riga = padre == nullptr ? new QTreeWidgetItem(this) : new QTreeWidgetItem(padre);
    riga->setText(0, q(nodo.testo));
    riga->setData(0, ruoloChiave, q(chiave));
    riga->setIcon(0, icona(disegnoDi(nodo.immagine), false));
    riga->setToolTip(0, q(nodo.nota));
    const bool aperto = nodo.ForeColor == logica_.nodiDisabilitati.ColoreAbilitato();
    riga->setForeground(0, qcolore(aperto ? tinta::inchiostro : nodo.ForeColor));
    if (!aperto) {
        // The toolkit closes what stands below a closed row: one with an open row below it only looks closed.
        const bool tutto = !conNodoAperto(nodo);
        riga->setFlags(riga->flags() & ~Qt::ItemIsSelectable & ~(tutto ? Qt::ItemIsEnabled : Qt::NoItemFlags));
        if (!tutto) {
            const QSize lato(misura::icona, misura::icona);
            riga->setIcon(0, QIcon(riga->icon(0).pixmap(lato, devicePixelRatioF(), QIcon::Disabled)));
        }
    }
    for (const std::string& figlio : nodo.figli) {
        aggiungi(figlio, riga);
    }
    riga->setExpanded(nodo.espanso);
}

void VistaAlbero::aggiorna() {
    prenotato_ = false;
    QSignalBlocker zitto(this);
    inCostruzione_ = true;
    const bool nuove = versione_ != logica_.ctlTree.versione();
    if (versione_ != logica_.ctlTree.versione()) {
        versione_ = logica_.ctlTree.versione();
        clear();
        for (const std::string& radice : logica_.ctlTree.radici()) {
            aggiungi(radice, nullptr);
        }
    }
    for (QTreeWidgetItemIterator it(this); *it != nullptr; ++it) {
        const bool scelto = chiaveDi(*it) == logica_.ctlTree.selezionato();
        (*it)->setSelected(scelto);
        (*it)->setFont(0, scelto ? forte(punti::corpo) : leggero(punti::corpo));
        if (scelto) {
            setCurrentItem(*it);
        }
    }
    inCostruzione_ = false;
    if (nuove) {
        zitto.unblock();
        Q_EMIT righeNuove();
    }
}

int VistaAlbero::larghezzaRighe() const {
    // Every row counts, also those that are closed: the tree keeps its width when they open.
    const QFontMetrics metrica(forte(punti::corpo));
    int massima = 0;
    for (QTreeWidgetItemIterator it(const_cast<VistaAlbero*>(this)); *it != nullptr; ++it) {
        int livello = 1;
        for (const QTreeWidgetItem* padre = (*it)->parent(); padre != nullptr; padre = padre->parent()) {
            ++livello;
        }
        const int riga = livello * indentation() + misura::icona + misura::spazio;
        massima = std::max(massima, riga + metrica.horizontalAdvance((*it)->text(0)));
    }
    return massima;
}

void VistaAlbero::drawRow(QPainter* pennello, const QStyleOptionViewItem& opzione, const QModelIndex& indice) const {
    QTreeWidget::drawRow(pennello, opzione, indice);
    if (selectionModel()->isSelected(indice)) {
        const QRect riga = opzione.rect;
        pennello->fillRect(QRect(0, riga.top(), misura::barraAlbero, riga.height()), qcolore(tinta::principale));
    }
}

std::string VistaAlbero::chiaveA(QPoint posto) const {
    return chiaveDi(itemAt(posto));
}

void VistaAlbero::scegli(QTreeWidgetItem* nodo) {
    const std::string chiave = chiaveDi(nodo);
    if (!chiave.empty() && !inCostruzione_) {
        logica_.clic(chiave);
        // A refused switch leaves the logic's selection where it was: show that.
        aggiorna();
    }
}

void VistaAlbero::mousePressEvent(QMouseEvent* evento) {
    if (evento->button() == Qt::LeftButton) {
        premuto_.clear();
        const std::string chiave = chiaveA(evento->pos());
        if (logica_.mousePremuto(chiave)) {
            evento->accept();
            return;
        }
        premuto_ = chiave;
    }
    QTreeWidget::mousePressEvent(evento);
}

void VistaAlbero::mouseReleaseEvent(QMouseEvent* evento) {
    const std::string chiave = chiaveA(evento->pos());
    if (evento->button() != Qt::LeftButton) {
        QTreeWidget::mouseReleaseEvent(evento);
        return;
    }
    const std::string premuto = std::exchange(premuto_, {});
    if (logica_.mouseRilasciato(chiave)) {
        aggiorna();
        evento->accept();
        return;
    }
    QTreeWidget::mouseReleaseEvent(evento);
    // The arrow in front of a folder opens it and nothing else.
    const bool sulNodo = visualItemRect(itemAt(evento->pos())).contains(evento->pos());
    if (sulNodo && chiave == premuto) {
        scegli(itemAt(evento->pos()));
    } else {
        aggiorna();
    }
}

void VistaAlbero::mouseDoubleClickEvent(QMouseEvent* evento) {
    if (evento->button() == Qt::LeftButton && logica_.nodiDisabilitati.filtra(chiaveA(evento->pos()))) {
        evento->accept();
        return;
    }
    QTreeWidget::mouseDoubleClickEvent(evento);
}

void VistaAlbero::keyPressEvent(QKeyEvent* evento) {
    if (evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter || evento->key() == Qt::Key_Space) {
        scegli(currentItem());
        return;
    }
    QTreeWidget::keyPressEvent(evento);
}

void VistaAlbero::startDrag(Qt::DropActions /*azioni*/) {
    const auto dati = logica_.OLEStartDrag();
    if (!dati) {
        return;
    }
    auto* carico = new QMimeData;
    carico->setText(q(*dati));
    auto* trascinamento = new QDrag(this);
    trascinamento->setMimeData(carico);
    trascinamento->exec(Qt::MoveAction);
    logica_.OLECompleteDrag();
}

void VistaAlbero::dragEnterEvent(QDragEnterEvent* evento) {
    if (evento->mimeData()->hasText()) {
        evento->acceptProposedAction();
    }
}

void VistaAlbero::dragMoveEvent(QDragMoveEvent* evento) {
    if (logica_.OLEDragOver(chiaveA(evento->position().toPoint())) == frmTreeView::effettoSposta) {
        evento->setDropAction(Qt::MoveAction);
        evento->accept();
    } else {
        evento->ignore();
    }
}

void VistaAlbero::dropEvent(QDropEvent* evento) {
    const std::string meta = chiaveA(evento->position().toPoint());
    if (logica_.OLEDragOver(meta) == frmTreeView::effettoSposta) {
        evento->setDropAction(Qt::MoveAction);
        evento->accept();
        logica_.OLEDragDrop(s(evento->mimeData()->text()), meta);
    }
}

}  // namespace kelvo::ui
