#pragma once

#include <array>
#include <string_view>
#include <vector>

#include "pianta/primitive.h"

namespace kelvo::pianta {

/// The mark that every plan carries.
inline constexpr std::string_view marchio = "schema: direzioni dei rami, isole e uscite non di progetto";

/// What a plan needs and a project does not hold, each by one rule. Lengths in metres, angles in degrees. R: half the
/// diameter of the inscribed circle; half sector: half the angle between a leg and the next one.
struct Ipotesi {
    /// Bearing of each leg, counter-clockwise from the one of leg A, ascending from 0. Empty, of another number of
    /// legs, or two closer than `distaccoMinimo`: legs at equal angles.
    std::vector<double> direzioni{};
    double distaccoMinimo = 30.0;
    double semisettoreMassimo = 60.0;  ///< a half sector counts at most this much

    // Ring.
    double anelloSuIngresso = 1.2;  ///< width of the ring: the widest entry times this, ...
    double anelloMinimo = 7.0;      ///< ... at least this, ...
    double anelloSuRaggio = 0.56;   ///< ... at most this part of R
    double corona = 1.5;            ///< width of the apron, ...
    double coronaSuRaggio = 0.1;    ///< ... at most this part of R

    // Legs.
    double ramoSuRaggio = 1.9;           ///< length of a leg from the centre: R times this, ...
    double ramoMinimo = 18.0;            ///< ... at least R and this, and whatever its parts need
    double ramoMassimoSuRaggio = 2.5;    ///< the parts are drawn within R times this, ...
    double ramoMassimo = 45.0;           ///< ... or within R and this, if that is more
    double semilarghezzaSuCorda = 0.8;   ///< approach half-width: at most this part of the chord of half a sector
    double larghezzaSuCorda = 0.9;       ///< half-width where the entry curve starts: at most this part
    double piedeSuSettore = 0.95;        ///< the entry ends within this part of half a sector
    double quotaSvasaturaCiglio = 0.35;  ///< part of e - v that the kerb takes along the flare; the island the rest
    double svasaturaRipida = 1.5;        ///< a flare of the kerb is at least this times longer than it is wide
    double raggioMinimo = 0.5;           ///< least radius drawn

    // Splitter islands.
    double arretramentoIsola = 0.6;   ///< from the inscribed circle to the head of the island
    double semitestaMinima = 0.5;     ///< least half-width of its head, ...
    double semitestaSuRaggio = 0.04;  ///< ... or this part of R, if that is less
    double seminaso = 0.15;           ///< half-width of its nose
    double isolaMinima = 6.0;         ///< least length, ...
    double isolaSuTesta = 1.5;        ///< ... or this times the half-width of its head
    double angoloTesta = 10.0;        ///< least angle between its edges and its head
    double isolaMassima = 22.0;       ///< longest, where its head allows

    // Exits.
    double uscitaMinima = 4.5;             ///< width of the exit, ...
    double uscitaSuSemilarghezza = 1.05;   ///< ... at least this times the approach half-width
    double raggioUscitaSuIngresso = 1.25;  ///< radius of the exit curve: r times this, ...
    double raggioUscitaMinimo = 15.0;      ///< ... within these two, where the sector has room
    double raggioUscitaMassimo = 60.0;
    double svasaturaUscitaRipida = 3.0;  ///< it is at least this times longer than it is wide
    double svasaturaUscita = 8.0;        ///< length of the exit's flare

    // Markings.
    double cuneoPrecedenza = 1.5;  ///< the give-way line ends where the kerb is this far from the circle, ...
    double cuneoSuRaggio = 0.15;   ///< ... or this part of R, if that is less
    double passoDenti = 0.95;
    double attraversamentoDa = 4.0;  ///< from the inscribed circle to the crossing
    double attraversamento = 3.0;    ///< depth of the crossing
    double strisciaAttraversamento = 0.5;
};

/// One measure of an entry: its words and the range that its field allows.
struct VoceMisura {
    std::string_view nome;       ///< "Larghezza ingresso"
    std::string_view breve;      ///< "e"
    std::string_view unita;      ///< "m"
    std::string_view argomento;  ///< short word for command lines: "larghezza"
};

/// In the order of `Misura`.
inline constexpr std::array<VoceMisura, numeroMisure> vociMisure{
    VoceMisura{"Larghezza ingresso", "e", "m", "larghezza"},
    VoceMisura{"Semilarghezza accesso", "v", "m", "semilarghezza"},
    VoceMisura{"Lunghezza svasatura", "l'", "m", "svasatura"},
    VoceMisura{"Angolo conflitto", "φ", "°", "angolo"},
    VoceMisura{"Raggio curvatura ingresso", "r", "m", "raggio"},
    VoceMisura{"Diametro inscritto", "D", "m", "diametro"},
};

}  // namespace kelvo::pianta
