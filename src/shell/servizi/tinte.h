#pragma once

#include <string_view>

#include "base/Tabella.h"

namespace kelvo {

/// The colours of the program's look, for widgets and painters alike.
namespace tinta {
inline constexpr Colore principale{0, 114, 198};
inline constexpr Colore principaleScuro{0, 90, 158};
inline constexpr Colore principalePremuto{0, 69, 122};
inline constexpr Colore titolo{0, 86, 143};
inline constexpr Colore inchiostro{32, 32, 32};
inline constexpr Colore secondario{90, 96, 104};
inline constexpr Colore spento{110, 117, 124};
inline constexpr Colore grafite{64, 72, 80};
inline constexpr Colore bordoCampo{124, 133, 141};
inline constexpr Colore bordo{195, 200, 205};
inline constexpr Colore bordoSpento{211, 215, 218};
inline constexpr Colore fondo{246, 248, 250};
inline constexpr Colore barra{240, 242, 244};
inline constexpr Colore scelto{204, 227, 243};
inline constexpr Colore sfiorato{229, 241, 250};
inline constexpr Colore errore{176, 0, 32};
inline constexpr Colore fondoErrore{255, 240, 240};
inline constexpr Colore rigaPannello{225, 228, 231};
}  // namespace tinta

/// Contrast ratio of two colours, 1 to 21 (WCAG 2.1, relative luminance).
double contrasto(Colore a, Colore b);
/// Black or white, whichever contrasts more.
Colore neroOBianco(Colore sfondo);
/// `testo` on `sfondo` so that it can be read: unchanged from a contrast of 4.5 on; else a grey becomes ink on a light
/// ground, any other hue goes darker (or lighter, on a dark ground) in steps of 5 % until 4.5 is reached.
Colore inchiostroLeggibile(Colore testo, Colore sfondo);

/// A text in a small box of its own.
struct Distintivo {
    Colore fondo = colori::bianco;
    Colore testo = tinta::inchiostro;
    Colore bordo = colori::bianco;
    friend bool operator==(const Distintivo&, const Distintivo&) = default;
};

/// The box of a level of service, "A" to "F"; white with a grey border for anything else ("-").
Distintivo distintivoLivello(std::string_view livello);

}  // namespace kelvo
