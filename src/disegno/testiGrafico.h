#pragma once

#include <QtCore/QStringList>
#include <QtGui/QFont>
#include <QtGui/QFontMetricsF>
#include <string>

#include "disegno/disposizioneGrafico.h"

namespace kelvo::disegno {

/// A type of a chart.
struct Tipo {
    int altezza = 12;  ///< logical pixels
    bool forte = false;
};

/// The types of the charts: 9 points for whatever stands at axes and values, 12 for the title.
inline constexpr Tipo tipoMinuto{12, false};
inline constexpr Tipo tipoMinutoForte{12, true};
inline constexpr Tipo tipoTitolo{16, true};
inline constexpr Tipo tipoTitoloBasso{14, true};  ///< in a small room

QFont carattere(Tipo tipo);
double larghezza(const QString& parole, Tipo tipo);
double altezzaRiga(Tipo tipo);
QString qtesto(const std::string& testo);

/// The words in at most `massime` lines, broken at blanks; what is still too wide is shortened in its middle.
QStringList inRighe(const QString& parole, double larga, int massime, Tipo tipo);
/// The words in one line, shortened in their middle if they must be; empty where not even two letters fit.
QString accorciato(const QString& parole, double larga, Tipo tipo);

/// Words of which the point stands at the left (0), in the middle (0.5) or at the right (1) of their box, and likewise
/// at its top, middle or bottom.
Disposizione::Testo testoPresso(Disposizione::Testi ruolo, const QString& parole, QPointF punto, QPointF parte,
                                Tipo tipo = tipoMinuto);

/// A colour that needs a line around it to be seen on white.
bool pallido(Colore colore);

}  // namespace kelvo::disegno
