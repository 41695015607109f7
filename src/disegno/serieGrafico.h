#pragma once

#include "disegno/assiGrafico.h"

namespace kelvo::disegno {

/// The bars, then the lines, of all series.
void disponiSerie(const Grafico::Contenuto& contenuto, const Assi& assi, Disposizione& disposizione);

/// The labels of the values, above their marks (below where a bar points down, or a line has a low point): of each
/// series the largest, strong, and as many others as fit. None lies on another, on a bar or on a word that stands
/// there.
void disponiValori(const Grafico::Contenuto& contenuto, const Assi& assi, double destra, Disposizione& disposizione);

/// Where bar `quale` of `quante` beside one another in a step has its middle, from the middle of the step on.
double scartoBarra(const Assi& assi, int quale, int quante);

}  // namespace kelvo::disegno
