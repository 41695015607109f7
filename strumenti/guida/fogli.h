#pragma once

#include <QtCore/QString>
#include <functional>
#include <vector>

#include "guida/Documento.h"
#include "guida/pagine.h"

namespace kelvo::guida {

/// What the pages say of the program.
struct Dicitura {
    QString versione;  ///< "1.0.0"
    /// The drawing of the title page, into a rectangle; empty for none.
    std::function<void(QPainter&, const QRectF&)> disegno;
};

/// Every sheet of a document, ready to be painted: title page, contents, text with head and foot.
struct Fogli {
    std::vector<std::function<void(QPainter&)>> fogli;
    /// Chapters and sections with their sheets, from 0, for the list of a viewer.
    struct Segnalibro {
        int livello = 1;
        QString testo;
        int foglio = 0;
    };
    std::vector<Segnalibro> segnalibri;
    /// Where the anchors stand that links lead to.
    struct Ancora {
        QString nome;
        int foglio = 0;
        double y = 0.0;  ///< from the upper edge of the sheet
    };
    std::vector<Ancora> ancore;
};

Fogli fogliDi(const Documento& documento, const std::vector<Pezzo>& pezzi, const Dicitura& dicitura);

}  // namespace kelvo::guida
