#pragma once

#include <string>

#include "shell/servizi/Grafico.h"
#include "shell/servizi/Griglia.h"
#include "shell/servizi/documentoPagine.h"

/// What stands in windows as paper shows it.
namespace kelvo {

/// A window that goes on paper is one of these too: its tables and charts then offer it in their menus.
class SuCarta {
public:
    SuCarta() = default;
    SuCarta(const SuCarta&) = delete;
    SuCarta& operator=(const SuCarta&) = delete;
    virtual ~SuCarta() = default;

    /// Why there is nothing to print, or nobody who could; empty where there is.
    virtual std::string impedimentoStampa() const = 0;
    /// Prints; nothing happens where something is in the way.
    virtual void stampaFigure() = 0;
    /// Saves the same pages as a PDF file, likewise.
    virtual void salvaFigurePDF() = 0;
};

/// The visible columns of a table with its alignments, strong texts, grounds and boxes. Its fixed rows are the
/// headings, its fixed columns stand in each band of one too wide for a page; a row of a heading alone heads those
/// behind it. The plain ground of figures is left out: it would only cost ink.
DocumentoPagine::Tabella tabellaSuCarta(const Griglia& griglia);

/// The chart as wide as the page.
DocumentoPagine::Figura figuraSuCarta(const Grafico::Contenuto& contenuto);

}  // namespace kelvo
