#pragma once

#include "disegno/disposizioneGrafico.h"

namespace kelvo::disegno {

/// The slices of the first series that has that form, clockwise from the top, each with its colour, name and value: at
/// both sides of the pie where there is room, else in a list. A value of 0 or below has no slice, but its name.
/// False, and nothing laid out, where there are no values.
bool disponiTorta(const Grafico::Contenuto& contenuto, const QRectF& spazio, Disposizione& disposizione);

}  // namespace kelvo::disegno
