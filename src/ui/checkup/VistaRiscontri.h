#pragma once

#include <QtWidgets/QTreeWidget>

#include "shell/servizi/Albero.h"

namespace kelvo::ui {

/// A tree of findings: below its root one row each, with the sign of its level, its text broken to the width, the
/// heading in the strong face, and a thin line below.
class VistaRiscontri final : public QTreeWidget {
    Q_OBJECT
public:
    /// `vuoto`: what is told where there is no finding.
    VistaRiscontri(Albero& albero, const QString& vuoto, QWidget* genitore);

    /// Shows the tree as it stands.
    void mostra();
    /// Key of a row; empty for none.
    static std::string chiaveDi(const QTreeWidgetItem* riga);

Q_SIGNALS:
    /// A row was clicked, or the space bar pressed on it.
    void scelto(const QString& chiave);
    /// Enter was pressed on a row.
    void invio(const QString& chiave);

protected:
    void drawRow(QPainter* pennello, const QStyleOptionViewItem& opzione, const QModelIndex& indice) const override;
    void paintEvent(QPaintEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;

private:
    Albero& albero_;
    QString vuoto_;
    unsigned versione_ = 0;
    bool letto_ = false;
    const QTreeWidgetItem* premuto_ = nullptr;  ///< row that the left button went down on; compared, never followed
};

/// Binds a tree of findings.
VistaRiscontri* collegaRiscontri(Albero& albero, const QString& vuoto, QWidget* genitore);

}  // namespace kelvo::ui
