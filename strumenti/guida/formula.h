#pragma once

#include <QtCore/QPointF>
#include <QtCore/QString>
#include <functional>

class QPainter;

namespace kelvo::guida {

/// A formula, or a part of one, as it is painted.
struct Scatola {
    double larghezza = 0.0;
    double sopra = 0.0;                               ///< above the line that it stands on
    double sotto = 0.0;                               ///< below it
    std::function<void(QPainter&, QPointF)> dipingi;  ///< from the left end of that line
};

/// Sets a formula: letters are slanted, the rest upright; _{} and ^{} below and above, \frac{}{}, \sqrt{}, \text{},
/// \par{} in round and \qua{} in square brackets as high as what they hold. Raises std::runtime_error for an unclosed
/// brace or an unknown word.
Scatola componiFormula(const QString& sorgente);

}  // namespace kelvo::guida
