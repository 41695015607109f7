#pragma once

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

#include "app/Applicazione.h"

namespace kelvo {

/// The six measures of one entry.
struct Geometria {
    float e = 0.0F;    ///< entry width, m
    float v = 0.0F;    ///< approach half-width, m
    float l = 0.0F;    ///< effective flare length, m
    float phi = 0.0F;  ///< conflict angle, degrees
    float r = 0.0F;    ///< entry radius, m
    float D = 0.0F;    ///< inscribed circle diameter, m
};

/// The six measures that a leg holds.
Geometria geometriaDi(const Ramo& ramo);

/// The right-turn lanes that are switched on, one flag for each of four legs.
using CorsieDestra = std::array<bool, 4>;

/// The calculation engine: capacity of the entries, balancing of the flows round the ring, simulation over time.
///
/// Every operation but Calcola_Parametri ends in its own handler: a run-time fault is reported through erroreLog and
/// the operation ends; what was written up to then stays. The what-if forms take the measures `g` for the leg of
/// number `indice`, from 1, in place of those it holds; with a number that matches no leg they read every leg's own.
class modCalcolo {
public:
    explicit modCalcolo(Applicazione& app) : app_(app) {}

    /// Intercept F and slope Fc of every entry's capacity line, with K, Td, S, X2 on the way.
    /// Faults pass to the caller: 11 for a flare length or an entry radius of 0 or a sharpness of -0.5, 6 for an
    /// overflow; legs and properties not reached keep their values.
    /// Source: R. M. Kimber, The traffic capacity of roundabouts, TRRL Laboratory Report 942, 1980.
    void Calcola_Parametri();
    void Calcola_Parametri(std::int16_t indice, const Geometria& g);

    /// Balanced state in which every entry runs at its capacity: CapacitaUltima of each leg, veic/h.
    void Calcola_Bilanciamento();
    /// The same in double precision; also writes, for every segment, a record that holds the capacity alone.
    void Calcola_Bilanciamento(std::int16_t indice, const Geometria& g);

    /// Simulation of a demand curve. `modo`: "0" one composition for the window, "1" one for each segment; any other
    /// text leaves all demand at 0.
    void Calcola_Tempo_Flusso(std::string_view modo);
    void Calcola_Tempo_Flusso(std::int16_t indice, const Geometria& g, std::string_view modo);
    /// With right-turn lanes; sets QuoteSvoltaDX. Fault 9 with other than four legs as soon as an index runs out.
    void Calcola_Tempo_Flusso_DX(std::string_view modo, const CorsieDestra& corsie);

    /// Simulation of a table of segment flows; `modo` as above.
    void Calcola_Tempo_Flusso_ST(std::string_view modo);
    void Calcola_Tempo_Flusso_ST(std::int16_t indice, const Geometria& g, std::string_view modo);
    void Calcola_Tempo_Flusso_ST_DX(std::string_view modo, const CorsieDestra& corsie);

    /// Share in per cent of the entry's flow that each right-turn lane takes away, from the last right-turn run.
    const std::array<double, 4>& QuoteSvoltaDX() const { return quoteSvoltaDX_; }

private:
    Applicazione& app_;
    std::array<double, 4> quoteSvoltaDX_{};
};

}  // namespace kelvo
