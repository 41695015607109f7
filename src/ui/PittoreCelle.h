#pragma once

#include <QtCore/QRect>
#include <QtCore/QString>
#include <QtGui/QFont>

#include "shell/servizi/Griglia.h"

class QPainter;

namespace kelvo::ui {

/// Paints the cells of a grid, fixed ones too, and knows the room that they need. The colours are those of the table;
/// only the text is painted so that it can be read.
class PittoreCelle {
public:
    explicit PittoreCelle(const Griglia& griglia) : griglia_(griglia) {}

    /// Paints a cell in its place, in logical pixels.
    void dipingi(QPainter& pittore, const QRect& posto, Posto cella) const;
    /// Face of a cell's text.
    QFont carattere(Posto cella) const;
    /// Height of a row of one line.
    static int altezzaRiga();
    /// Width that shows the whole text of a cell: in one line, or its longest word where the text may be broken.
    int larghezza(Posto cella) const;
    /// Height of the text of a cell that is broken to a width.
    int altezza(Posto cella, int larghezza) const;
    Qt::Alignment allineamento(Posto cella) const;

private:
    bool aCapo(Posto cella) const;
    OrnamentoCella ornamento(Posto cella) const;
    void dipingiSegno(QPainter& pittore, const QRectF& posto, OrnamentoCella::Segno segno, const QColor& tinta) const;
    void dipingiDistintivo(QPainter& pittore, const QRectF& posto, Posto cella, const Distintivo& distintivo) const;

    const Griglia& griglia_;
};

}  // namespace kelvo::ui
