#pragma once

#include <QtGui/QFont>
#include <QtWidgets/QAbstractScrollArea>
#include <functional>
#include <string>
#include <vector>

#include "results/mappaLivelli.h"
#include "shell/servizi/Griglia.h"

namespace kelvo::ui {

/// A map of coloured letters: a row for each entry, as many narrow columns as there are segments, in the room that
/// there is; the hours stand above. Keys, clicks and menu are those of every table. It is scrolled to the side where
/// its letters would not be read any more.
class VistaMappa final : public QAbstractScrollArea {
    Q_OBJECT
public:
    struct Parole {
        std::function<const std::vector<OraMappa>&()> ore;  ///< marks above the columns
        std::function<std::string(Posto)> cella;            ///< what the mouse is told over a cell
    };
    VistaMappa(Griglia& griglia, Parole parole, QWidget* genitore);

    /// Shows the map as it stands.
    void mostra();
    /// Where a cell is seen, in the coordinates of the viewport.
    QRect posto(Posto cella) const;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool viewportEvent(QEvent* evento) override;
    void paintEvent(QPaintEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void contextMenuEvent(QContextMenuEvent* evento) override;
    void focusInEvent(QFocusEvent* evento) override;
    void focusOutEvent(QFocusEvent* evento) override;

private:
    int righe() const;
    int segmenti() const;
    /// Width of the names at the left, which stay where they are.
    int nomi() const;
    int larghezzaMappa() const;
    /// Left edge of a segment, counted from 0; also between two.
    double ascissa(double segmento) const;
    Posto sotto(QPoint punto) const;
    void misuraBarra();
    void vediCorrente();
    void dipingiOre(QPainter& pittore) const;
    void dipingiNomi(QPainter& pittore) const;
    void dipingiCella(QPainter& pittore, Posto cella) const;

    Griglia& griglia_;
    Parole parole_;
    QFont lettere_;
    QFont testata_;
    Posto corrente_;
};

/// Binds a grid that is shown as a map.
VistaMappa* collegaMappa(Griglia& griglia, VistaMappa::Parole parole, QWidget* genitore);

}  // namespace kelvo::ui
