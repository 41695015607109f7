#pragma once

#include <QtCore/QRectF>
#include <QtCore/QSizeF>
#include <QtGui/QColor>
#include <memory>
#include <vector>

#include "shell/servizi/documentoPagine.h"

class QTextLayout;

namespace kelvo::disegno {

/// Length of a point in the units of a page: fine enough for type of any size.
inline constexpr double punto = 10.0;

/// A page: what stands where, in units of a tenth of a point from its upper left corner.
struct PaginaImpaginata {
    struct Fondo {
        QRectF dove;
        QColor colore;
    };
    /// Lines of a text, from `da` to before `a`; the first stands at `posto`.
    struct Brano {
        std::shared_ptr<QTextLayout> testo;
        int da = 0;
        int a = 0;
        QPointF posto;
    };
    struct Segno {
        QRectF dove;
        DocumentoPagine::Segno segno = DocumentoPagine::Segno::nessuno;
    };
    struct Casella {
        QRectF dove;
        bool spuntata = false;
    };
    struct Figura {
        QRectF dove;
        const DocumentoPagine::Figura* figura = nullptr;  ///< of the document, which must live as long
    };
    QSizeF foglio;  ///< size of the page
    std::vector<Fondo> fondi;
    std::vector<Brano> brani;
    std::vector<Segno> segni;
    std::vector<Casella> caselle;
    std::vector<Figura> figure;
};

/// A document on its pages.
struct Impaginato {
    std::vector<PaginaImpaginata> pagine;
};

/// Lays a document out on pages of A4; a page at least, with head and foot on each. What is laid out refers to the
/// pictures of `documento`.
Impaginato impagina(const DocumentoPagine& documento);

}  // namespace kelvo::disegno
