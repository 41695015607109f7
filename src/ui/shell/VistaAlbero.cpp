#include "ui/shell/VistaAlbero.h"

#include <QtCore/QMimeData>
#include <QtCore/QTimer>
#include <QtGui/QDrag>
#include <QtGui/QDropEvent>
#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QTreeWidgetItemIterator>

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
    setIndentation(16);
    setIconSize({misura::icona, misura::icona});
    setFont(leggero(10.0));
    setDragEnabled(true);
    setAcceptDrops(true);
    setDropIndicatorShown(true);
    setUniformRowHeights(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    legame_ = logica_.ctlTree.cambiato().connect([this] { prenota(); });
    aggiorna();
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
        riga->setFlags(riga->flags() & ~Qt::ItemIsEnabled & ~Qt::ItemIsSelectable);
    }
    for (const std::string& figlio : nodo.figli) {
        aggiungi(figlio, riga);
    }
    riga->setExpanded(nodo.espanso);
}

void VistaAlbero::aggiorna() {
    prenotato_ = false;
    const QSignalBlocker zitto(this);
    inCostruzione_ = true;
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
        (*it)->setFont(0, scelto ? forte(10.0) : leggero(10.0));
        if (scelto) {
            setCurrentItem(*it);
        }
    }
    inCostruzione_ = false;
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
    if (evento->button() == Qt::LeftButton && logica_.mousePremuto(chiaveA(evento->pos()))) {
        evento->accept();
        return;
    }
    QTreeWidget::mousePressEvent(evento);
}

void VistaAlbero::mouseReleaseEvent(QMouseEvent* evento) {
    const std::string chiave = chiaveA(evento->pos());
    if (evento->button() == Qt::LeftButton && logica_.mouseRilasciato(chiave)) {
        evento->accept();
        return;
    }
    QTreeWidget::mouseReleaseEvent(evento);
    const QRect riga = visualItemRect(itemAt(evento->pos()));
    // The arrow in front of a folder opens it and nothing else.
    if (evento->button() == Qt::LeftButton && riga.contains(evento->pos())) {
        scegli(itemAt(evento->pos()));
    }
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
