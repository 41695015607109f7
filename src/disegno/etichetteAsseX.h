#pragma once

#include <vector>

#include "disegno/assiGrafico.h"

namespace kelvo::disegno {

/// A label of the X axis at its place.
struct EtichettaX {
    double posto = 0.0;  ///< in units of the axis
    QString parole{};
};

/// All labels that the axis could show.
std::vector<EtichettaX> etichetteX(const Grafico::Contenuto& contenuto, const Assi& assi);

/// The labels that fit, for a plot whose lower edge is at 0; and how much room they take below it.
struct FilaX {
    std::vector<Disposizione::Testo> testi{};
    std::vector<double> lunghe{};  ///< places, in units of the axis, where a longer tick stands
    double altezza = 0.0;
};
FilaX filaX(const Grafico::Contenuto& contenuto, const Assi& assi);

/// The ticks of the axis, at the lower edge of the plot.
void disponiTaccheX(const Grafico::Contenuto& contenuto, const Assi& assi, const FilaX& fila,
                    Disposizione& disposizione);

}  // namespace kelvo::disegno
