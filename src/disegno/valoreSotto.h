#pragma once

#include <QtCore/QPointF>
#include <QtCore/QSizeF>
#include <string>

#include "shell/servizi/Grafico.h"

namespace kelvo::disegno {

/// The value of a chart that stands at a point of a room of this size, in words: its series, its place on the X axis
/// and its label, which the axis itself may show thinned out. Of a bar all its step across counts, whatever its height;
/// of a line what is near to its point. Empty where there is none.
std::string valoreSotto(const Grafico::Contenuto& contenuto, QSizeF misura, QPointF punto);

}  // namespace kelvo::disegno
