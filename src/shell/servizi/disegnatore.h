#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "shell/servizi/Grafico.h"

namespace kelvo::pianta {
struct DatiPianta;
struct OpzioniPianta;
}  // namespace kelvo::pianta

namespace kelvo {

enum class FormatoDisegno { png, svg, pdf };

/// The format that a file name asks for by its extension, in capitals or not; nothing for another one.
std::optional<FormatoDisegno> formatoDiFile(std::string_view percorso);

/// How large a drawing is made. Logical pixels are those of a screen at 100 %, 96 to the inch.
struct MisuraDisegno {
    int larghezza = 1200;  ///< logical pixels, `minimaLarghezza` to `massimaLarghezza`
    int altezza = 0;       ///< logical pixels; 0: as the drawing's own shape asks for
    double scala = 1.0;    ///< pixels of a PNG to one logical pixel, 0.5 to 8

    static constexpr int minimaLarghezza = 64;
    static constexpr int massimaLarghezza = 10000;
};

/// A finished drawing, or in Italian why there is none.
struct EsitoDisegno {
    std::string dati;    ///< content of the file
    std::string errore;  ///< empty: all is well
};

/// Paints what the program shows into pictures, the same as on the screen.
class Disegnatore {
public:
    Disegnatore() = default;
    Disegnatore(const Disegnatore&) = delete;
    Disegnatore& operator=(const Disegnatore&) = delete;
    virtual ~Disegnatore() = default;

    /// Plan of the roundabout. `opzioni.rapporto` and `opzioni.altezzaTesto` are taken as they are.
    virtual EsitoDisegno pianta(const pianta::DatiPianta& dati, const pianta::OpzioniPianta& opzioni,
                                FormatoDisegno formato, const MisuraDisegno& misura) = 0;
    /// A chart; its own shape is 5 wide to 3 high. Above 900 logical pixels of width type and lines grow with it, so
    /// that a large picture on a page reads as a small one.
    virtual EsitoDisegno grafico(const Grafico::Contenuto& contenuto, FormatoDisegno formato,
                                 const MisuraDisegno& misura) = 0;
};

}  // namespace kelvo
