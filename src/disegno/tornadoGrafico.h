#pragma once

#include "disegno/disposizioneGrafico.h"

namespace kelvo::disegno {

/// Lying bars to both sides of 0: a row for each value, its name at the left, the axis of values below. Values of one
/// row that point to different sides share the height of the row, others part it among them. The label of a value
/// stands at the outer end of its bar. False, and nothing laid out, where there are no values.
bool disponiTornado(const Grafico::Contenuto& contenuto, const QRectF& spazio, Disposizione& disposizione);

}  // namespace kelvo::disegno
