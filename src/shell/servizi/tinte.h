#pragma once

#include <array>
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
inline constexpr Colore spentoSuBlu{97, 168, 220};
inline constexpr Colore verde{0, 98, 0};

// Plan of the roundabout.
inline constexpr Colore asfalto{217, 222, 227};
inline constexpr Colore isola{220, 232, 168};
inline constexpr Colore corona{238, 240, 228};  ///< apron and splitter islands
inline constexpr Colore ingressoCorrente{191, 224, 246};

// Charts: grid lines, the quantities that have a chart of their own, the categories of one chart in their order.
inline constexpr Colore griglia{217, 222, 227};
inline constexpr Colore serieCapacita{0, 114, 198};
inline constexpr Colore serieSaturazione{196, 78, 0};
inline constexpr Colore serieCode{0, 122, 98};
inline constexpr Colore serieRitardi{136, 46, 114};
inline constexpr Colore serieLOS{64, 72, 80};
inline constexpr std::array<Colore, 7> categorie{
    serieCapacita, serieSaturazione, serieCode, serieRitardi, serieLOS, Colore{240, 200, 40}, Colore{140, 200, 235}};
}  // namespace tinta

/// Widths of the pens, logical pixels at 100 %.
namespace tratto {
inline constexpr double cordolo = 1.5;
inline constexpr double isola = 1.0;
inline constexpr double quota = 1.5;
inline constexpr double quotaSecondaria = 1.0;
inline constexpr double asse = 1.5;
inline constexpr double percorso = 3.5;
inline constexpr double disco = 1.5;
inline constexpr double flusso = 0.75;         ///< border of the flows of an origin
inline constexpr double flussoCorrente = 1.5;  ///< what the flow at hand is wider than it would be
inline constexpr double veicolo = 0.75;        ///< border of a queued vehicle
inline constexpr double taglio = 2.0;          ///< sign of a queue that is cut
inline constexpr double assi = 1.5;            ///< axes of a chart
inline constexpr double griglia = 1.0;         ///< grid and ticks of a chart
inline constexpr double serie = 2.0;           ///< line of a chart
}  // namespace tratto

/// Families of the faces, the first that a system has.
namespace famiglia {
inline constexpr std::array<const char*, 2> dati{"Segoe UI Semilight", "Open Sans"};
inline constexpr std::array<const char*, 4> forte{"Segoe UI Semibold", "Open Sans Semibold", "Open Sans SemiBold",
                                                  "Open Sans"};
}  // namespace famiglia

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
