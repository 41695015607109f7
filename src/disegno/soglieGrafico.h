#pragma once

#include "disegno/assiGrafico.h"

namespace kelvo::disegno {

/// Room that the texts of the thresholds take at the right of the plot, in a chart of this width.
double larghezzaSoglie(const Grafico::Contenuto& contenuto, double larga);

/// The dashed lines that lie within the axis, each with its text at its right end.
void disponiSoglie(const Grafico::Contenuto& contenuto, const Assi& assi, const QRectF& spazio,
                   Disposizione& disposizione);

}  // namespace kelvo::disegno
