#pragma once

#include <QtCore/QPointF>
#include <QtCore/QString>
#include <QtGui/QImage>
#include <functional>
#include <memory>
#include <vector>

#include "guida/Documento.h"
#include "guida/testo.h"

class QPainter;

namespace kelvo::guida {

/// What stands on a page as a whole, across the width of the text.
struct Pezzo {
    double alto = 0.0;
    double prima = 0.0;                               ///< air above it, but not at the head of a page
    bool conSeguente = false;                         ///< on the same page as what follows
    std::function<void(QPainter&, QPointF)> dipingi;  ///< from its upper left corner
    std::shared_ptr<Pezzo> testata;                   ///< stands above it where a page begins with it
    const Titolo* titolo = nullptr;                   ///< the heading that it is; of the document
    bool aPagina = false;                             ///< begins a page
    /// The same, but no higher than told: of a picture, which may also go on to the next page past the text below it.
    std::function<Pezzo(double)> entro;
};

/// Pictures by their names; a null one where there is none.
using Immagini = std::function<QImage(const QString&)>;

/// Turns the blocks of a document into pieces. Raises std::runtime_error for a picture that is missing.
std::vector<Pezzo> pezziDi(const Documento& documento, const Immagini& immagini);

}  // namespace kelvo::guida
