#pragma once

#include <QtCore/QRectF>

#include "pianta/Pianta.h"

class QPainter;

namespace kelvo::disegno {

/// How a plan is painted.
struct StilePianta {
    double tratto = 1.0;  ///< the pens are this times as wide as on a screen at 100 %
    bool testi = true;    ///< false: shapes and lines alone
};

/// Paints the view of a plan into `spazio`, as large as it goes, in the middle; in a close-up what lies beside the view
/// fills the rest. Nothing is painted outside `spazio`, and no ground behind it.
void dipingiPianta(QPainter& pennello, const pianta::Pianta& pianta, const QRectF& spazio,
                   const StilePianta& stile = {});

}  // namespace kelvo::disegno
