#pragma once

#include <QtCore/QRect>
#include <QtCore/QString>
#include <QtGui/QFont>
#include <QtGui/QFontMetrics>
#include <functional>
#include <optional>
#include <utility>

#include "shell/servizi/Griglia.h"

class QPainter;

namespace kelvo::ui {

/// Paints the cells of a grid, fixed ones too, and knows the room that they need. The colours are those of the table;
/// only the text is painted so that it can be read.
class PittoreCelle {
public:
    explicit PittoreCelle(const Griglia& griglia);

    /// Tells of a cell that shows a box in place of its text whether it is ticked; nothing for any other cell.
    using Caselle = std::function<std::optional<bool>(Posto)>;
    void caselle(Caselle quali) { caselle_ = std::move(quali); }

    /// Face of the headings: they are smaller in a narrow window, and all rows stand closer there.
    void testate(bool strette);
    /// Paints a cell in its place, in logical pixels. The cell of the cursor is marked while the grid has the focus.
    void dipingi(QPainter& pittore, const QRect& posto, Posto cella, bool conFuoco = false) const;
    /// Face of a cell's text.
    const QFont& carattere(Posto cella) const { return faccia(cella).carattere; }
    /// Height of a row of one line.
    int altezzaRiga() const;
    /// Width that shows the whole text of a cell: in one line, or its longest word where the text may be broken.
    int larghezza(Posto cella) const;
    /// Height of the text of a cell that is broken to a width.
    int altezza(Posto cella, int larghezza) const;
    Qt::Alignment allineamento(Posto cella) const;

private:
    /// Room between the text of a cell of that width and its edges.
    int lato(Posto cella, int larghezza) const;
    /// A face with its measures: both are dear to make and asked for cell by cell.
    struct Faccia {
        explicit Faccia(const QFont& font) : carattere(font), metrica(font) {}
        QFont carattere;
        QFontMetrics metrica;
    };
    const Faccia& faccia(Posto cella) const;
    QString testo(Posto cella) const;
    bool aCapo(Posto cella) const;
    OrnamentoCella ornamento(Posto cella) const;
    void dipingiSegno(QPainter& pittore, const QRectF& posto, OrnamentoCella::Segno segno, const QColor& tinta) const;
    void dipingiDistintivo(QPainter& pittore, const QRectF& posto, Posto cella, const Distintivo& distintivo) const;

    const Griglia& griglia_;
    Caselle caselle_;
    Faccia normale_;
    Faccia forte_;
    Faccia testata_;
    /// Above and below the text of a row together.
    static constexpr int ariaLarga = 6;
    int aria_ = ariaLarga;
};

}  // namespace kelvo::ui
