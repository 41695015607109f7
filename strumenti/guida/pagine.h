#pragma once

#include <QtCore/QString>
#include <functional>
#include <vector>

#include "guida/pezzi.h"

namespace kelvo::guida {

/// A page of the text: what stands where.
struct Pagina {
    struct Posto {
        QPointF angolo;
        std::function<void(QPainter&, QPointF)> dipingi;
    };
    std::vector<Posto> posti;
    QString capitolo;  ///< the chapter that it belongs to
};

/// A heading and the page that it stands on, from 0.
struct VoceIndice {
    const Titolo* titolo = nullptr;
    int pagina = 0;
    double y = 0.0;  ///< its upper edge
};

struct Impaginato {
    std::vector<Pagina> pagine;
    std::vector<VoceIndice> voci;
};

/// Lays the pieces out on pages. A picture that finds no room goes to the head of the next page of its chapter, past
/// the text that follows.
Impaginato impagina(const std::vector<Pezzo>& pezzi);

}  // namespace kelvo::guida
