#pragma once

#include <QtCore/QRectF>
#include <cstddef>

#include "disegno/disposizioneGrafico.h"
#include "shell/servizi/scalaGrafico.h"

namespace kelvo::disegno {

/// The axes of a chart once their place is known: from values to points.
struct Assi {
    QRectF campo{};         ///< the plot
    double sinistra = 0.0;  ///< words stand from here
    double destra = 0.0;    ///< to here
    double daX = 0.0;       ///< at the beginning of the X axis
    double aX = 1.0;        ///< at its end, above `daX`
    double rientro = 0.0;   ///< from the edges of the plot to the ends of the X axis
    double scalino = 0.0;   ///< distance of neighbours along X, logical pixels
    Scala scala{};

    double x(double posto) const;
    /// Values beyond the axis stand at its end.
    double y(double valore) const;
    bool dentro(double valore) const { return valore >= scala.minimo && valore <= scala.massimo; }
    /// Where bars stand on.
    double base() const { return y(0.0); }
};

/// Where value `i` of a series stands on the X axis, in units of the axis: the middle of its step unless it is told.
double posto(const Grafico::Serie& serie, std::size_t i);

/// Finds the room of the plot in `spazio` and lays out the axes with everything that belongs to them.
Assi disponiAssi(const Grafico::Contenuto& contenuto, const QRectF& spazio, Disposizione& disposizione);

}  // namespace kelvo::disegno
