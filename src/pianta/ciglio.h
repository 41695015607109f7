#pragma once

#include "pianta/curve.h"
#include "pianta/ipotesi.h"

/// One side of a leg: its kerb, from the end of the leg to the inscribed circle, and the corner of the splitter island.
///
/// Everything here stands in the frame of the leg: the leg points down the y axis and the side is its right one (the
/// entry's, seen travelling towards the centre). An exit is worked out as if it were an entry and then mirrored.
/// Distances from the centre along the leg, downwards, are called depths.
namespace kelvo::pianta {

/// What a side is asked for. Lengths in metres, angles in radians.
struct RichiestaCiglio {
    double R = 0.0;           ///< half the diameter of the inscribed circle
    double settore = 0.0;     ///< angle from the axis to the border of the leg's sector
    double semi = 0.0;        ///< half-width of the road before the flare
    double larghezza = 0.0;   ///< width at the corner of the island, square to the kerb
    double svasatura = 0.0;   ///< length of the flare, from that width's foot on the kerb, along the axis
    double raggio = 0.0;      ///< radius of the curve that leads to the circle
    double profondita = 0.0;  ///< depth within which everything has to stand
};

/// The side as drawn. Where a measure cannot be drawn (a width wider than its sector, a curve that starts beyond the
/// end of the leg), it differs from what was asked for.
struct Ciglio {
    double R = 0.0;
    double semi = 0.0;             ///< half-width before the flare
    double semiCurva = 0.0;        ///< half-width where the curve starts
    double raggio = 0.0;           ///< radius of the curve
    double larghezza = 0.0;        ///< width at the corner, square to the kerb
    double svasatura = 0.0;        ///< length of the flare
    double fineCurva = 0.0;        ///< azimuth at which the curve meets the circle
    double inizioCurva = 0.0;      ///< depth at which the curve starts
    double fineSvasatura = 0.0;    ///< depth at which the flare of the kerb has its full width
    double inizioSvasatura = 0.0;  ///< depth at which it begins
    Punto angolo{};                ///< corner of the island
    Punto piede{};                 ///< end of the width on the kerb
    Punto centro{};                ///< centre of the curve

    /// Deepest of its parts.
    double profondita() const;
};

/// Distance from the centre to the head of the islands.
double raggioTeste(double R, const Ipotesi& ipotesi);
/// Least half-width of the head of an island.
double semitesta(double R, const Ipotesi& ipotesi);

/// The entry side. The half-width is at most a part of its sector's chord; the curve has the radius asked for, or the
/// largest with which the entry stays within its sector and the leg; the width is then true, or the widest there is.
Ciglio ciglioIngresso(const RichiestaCiglio& richiesta, const Ipotesi& ipotesi);

/// The exit side: the island's head is as wide as on the entry side (`testa`, half), narrower where the exit needs
/// room. Its curve ends within its sector.
Ciglio ciglioUscita(const RichiestaCiglio& richiesta, double testa, const Ipotesi& ipotesi);

/// The kerb of a side, from depth `fine` to the circle. The curve touches the circle from outside and the straight
/// kerb; its azimuth grows all along.
Tracciato tracciatoCiglio(const Ciglio& ciglio, double fine);

}  // namespace kelvo::pianta
