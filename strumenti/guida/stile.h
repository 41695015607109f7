#pragma once

#include <QtGui/QColor>
#include <QtGui/QFont>

#include "disegno/caratteri.h"
#include "disegno/impaginazione.h"
#include "shell/servizi/tinte.h"

/// Measures and faces of the pages, in units of a tenth of a point.
namespace kelvo::guida {

using disegno::punto;
using disegno::qcolore;

inline constexpr double millimetro = punto * 72.0 / 25.4;
inline constexpr double larghezzaFoglio = 210.0 * millimetro;
inline constexpr double altezzaFoglio = 297.0 * millimetro;
inline constexpr double margineLato = 21.0 * millimetro;
inline constexpr double margineAlto = 24.0 * millimetro;
inline constexpr double margineBasso = 21.0 * millimetro;
inline constexpr double larghezzaTesto = larghezzaFoglio - 2.0 * margineLato;
inline constexpr double altezzaTesto = altezzaFoglio - margineAlto - margineBasso;

namespace corpo {
inline constexpr double testo = 9.5;
inline constexpr double codice = 7.2;
inline constexpr double tabella = 8.5;
inline constexpr double didascalia = 8.5;
inline constexpr double formula = 11.0;
inline constexpr double capitolo = 22.0;
inline constexpr double sezione = 14.0;
inline constexpr double parte = 10.5;
inline constexpr double piede = 8.0;
}  // namespace corpo

/// Which face a stretch of text has.
struct Faccia {
    bool forte = false;
    bool corsivo = false;
    bool fissa = false;
    bool leggera = false;
};

/// A face at a size in points, for pages: not fitted to the pixels of a screen.
QFont carattere(double punti, const Faccia& faccia = {});

}  // namespace kelvo::guida
