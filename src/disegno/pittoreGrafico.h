#pragma once

#include <QtCore/QRectF>

#include "shell/servizi/Grafico.h"

class QPainter;

namespace kelvo::disegno {

/// How a chart is painted.
struct StileGrafico {
    double scala = 1.0;  ///< type and pens are this times as large as on a screen at 100 %
};

/// Paints a chart into `spazio`. Nothing is painted outside it, and no ground behind it.
void dipingiGrafico(QPainter& pennello, const Grafico::Contenuto& contenuto, const QRectF& spazio,
                    const StileGrafico& stile = {});

}  // namespace kelvo::disegno
