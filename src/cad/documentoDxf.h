#pragma once

#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "pianta/primitive.h"

/// A drawing for CAD programs and its text as a DXF file. Lengths in metres, angles in degrees.
namespace kelvo::dxf {

using pianta::Allineamento;
using pianta::Punto;
using pianta::Tracciato;

enum class TipoLinea { continua, tratteggiata, trattoPunto };

struct Layer {
    std::string_view nome{};
    int colore = 7;      ///< index of the CAD palette; 7 is black on a white ground and white on a black one
    int centesimi = 25;  ///< weight of its lines, hundredths of a millimetre; one of those that CAD programs know
    TipoLinea linea = TipoLinea::continua;
    bool spento = false;  ///< its entities stand in the file and are not shown until it is switched on
};

/// A chain of straight pieces and arcs; two vertices without an arc are written as a line, a full circle as a circle.
struct Polilinea {
    std::string_view layer{};
    Tracciato tracciato{};
    bool chiusa = false;
};

/// A solid filled area; the first border is the outer one, the others are holes.
struct Campitura {
    std::string_view layer{};
    std::vector<Tracciato> contorni{};
};

/// A filled triangle.
struct Triangolo {
    std::string_view layer{};
    Punto a{};
    Punto b{};
    Punto c{};
};

/// A point that is not printed: where a dimension is taken.
struct PuntoQuotato {
    Punto p{};
};

struct Scritta {
    std::string_view layer{};
    std::string testo{};
    Punto punto{};         ///< on half the height of the capitals, at the side that `allineamento` tells
    double altezza = 1.0;  ///< of the capitals
    double rotazione = 0.0;
    Allineamento allineamento = Allineamento::centro;
};

using Entita = std::variant<Polilinea, Campitura, Triangolo, PuntoQuotato, Scritta>;

/// A dimension: what a CAD program measures anew, and the picture of it that the others show. Of one whose points leave
/// nothing to measure the texts of its picture alone are written.
struct Quotatura {
    enum class Tipo { ruotata = 0, allineata = 1, diametro = 3, raggio = 4, angolo = 5 };
    std::string_view layer{};
    Tipo tipo = Tipo::allineata;
    /// Place of the dimension line (`ruotata`, `allineata`), far end of the diameter, centre of the circle, point of
    /// the arc of the angle.
    Punto definizione{};
    Punto primo{};           ///< what is measured, of the linear ones and of an angle; of circles the point on them
    Punto secondo{};         ///< the other end
    Punto vertice{};         ///< of an angle
    double direzione = 0.0;  ///< of the dimension line, of `ruotata` alone
    Punto testoA{};          ///< middle of the text
    double rotazioneTesto = 0.0;
    double misura = 0.0;  ///< as drawn: m, or degrees
    /// What the text reads; "<>" stands for the measure in the style of the dimensions.
    std::string testo{};
    std::vector<Entita> figura{};
};

/// How dimensions are written when a CAD program makes them anew.
struct StileQuote {
    double altezzaTesto = 1.0;
    double freccia = 1.0;
};

struct Documento {
    std::vector<Layer> layer{};
    std::vector<Entita> entita{};
    std::vector<Quotatura> quote{};
    StileQuote stile{};
    pianta::Riquadro estensione{};  ///< what is seen when the file is opened
};

/// The document as an ASCII DXF file of AutoCAD 2007 (AC1021): UTF-8, lines ended by CR LF, units of metres. The same
/// document gives the same bytes. Vertices that coincide are joined; what has no extent or a coordinate that is no
/// number is left out.
std::string testoDxf(const Documento& documento);

/// A text as an entity shows it: one line of valid UTF-8 of at most 240 characters, "…" behind them where it is longer.
/// What would be read as a code of the format is parted by a blank.
std::string testoSemplice(std::string_view testo);

}  // namespace kelvo::dxf
