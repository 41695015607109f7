#pragma once

#include <QtWidgets/QTreeWidget>
#include <string>

#include "shell/frmTreeView.h"

namespace kelvo::ui {

/// The project tree: mirrors the nodes of the logic and hands it the mouse, the keyboard and the drags.
class VistaAlbero final : public QTreeWidget {
    Q_OBJECT
public:
    VistaAlbero(frmTreeView& logica, QWidget* genitore);
    ~VistaAlbero() override;
    VistaAlbero(const VistaAlbero&) = delete;
    VistaAlbero& operator=(const VistaAlbero&) = delete;

    /// Room that the widest row takes, logical pixels.
    int larghezzaRighe() const;

Q_SIGNALS:
    /// The rows were made anew.
    void righeNuove();

protected:
    void drawRow(QPainter* pennello, const QStyleOptionViewItem& opzione, const QModelIndex& indice) const override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;
    void mouseDoubleClickEvent(QMouseEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void startDrag(Qt::DropActions azioni) override;
    void dragEnterEvent(QDragEnterEvent* evento) override;
    void dragMoveEvent(QDragMoveEvent* evento) override;
    void dropEvent(QDropEvent* evento) override;

private:
    void prenota();
    void aggiorna();
    bool conNodoAperto(const Albero::Nodo& nodo) const;
    void aggiungi(const std::string& chiave, QTreeWidgetItem* padre);
    void scegli(QTreeWidgetItem* nodo);
    void aperto(QTreeWidgetItem* nodo, bool valore);
    std::string chiaveA(QPoint posto) const;

    frmTreeView& logica_;
    sigc::connection legame_;
    std::string premuto_;  ///< key of the node that the left button went down on
    unsigned versione_ = 0;
    bool inCostruzione_ = false;
    bool prenotato_ = false;
};

}  // namespace kelvo::ui
