#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "app/Applicazione.h"
#include "calc/Geometria.h"
#include "calc/simulazione.h"

namespace kelvo {

/// How the faults of the engine's operations are told.
enum class Racconto {
    sempre,    ///< each of them
    unaVolta,  ///< one of the same number, operation and words as one told before is passed over
    mai,       ///< none: whoever calls looks at riuscita()
};

/// The calculation engine: capacity of the entries, balancing of the flows round the ring, simulation over time.
///
/// Every operation but Calcola_Parametri ends in its own handler: a run-time fault is reported through erroreLog and
/// the operation ends; what was written up to then stays. The what-if forms take the measures `g` for the leg of
/// number `indice`, from 1, in place of those it holds; with a number that matches no leg they read every leg's own.
/// A calculation stamps the project with its form; one that a fault ends among its records stamps it as broken off.
/// Where legs are missing every operation ends in fault 9: a simulation with nothing written, the others with the
/// parameters of the legs that stand before the first missing one.
class modCalcolo {
public:
    explicit modCalcolo(Applicazione& app, Racconto racconto = Racconto::sempre) : app_(app), racconto_(racconto) {}

    /// True if the operation run last ended without a fault; true before the first.
    bool riuscita() const { return riuscita_; }

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
    /// With right-turn lanes; sets QuoteSvoltaDX. Fault 9 as soon as a leg or a lane lies past the four places.
    void Calcola_Tempo_Flusso_DX(std::string_view modo, const CorsieDestra& corsie);

    /// Simulation of a table of segment flows; `modo` as above.
    void Calcola_Tempo_Flusso_ST(std::string_view modo);
    void Calcola_Tempo_Flusso_ST(std::int16_t indice, const Geometria& g, std::string_view modo);
    void Calcola_Tempo_Flusso_ST_DX(std::string_view modo, const CorsieDestra& corsie);

    /// Share in per cent of the entry's flow that each right-turn lane takes away, from the last right-turn run.
    const std::array<double, 4>& QuoteSvoltaDX() const { return quoteSvoltaDX_; }

private:
    void bilanciamentoPiano();
    void bilanciamentoIpotesi(std::int16_t indice, const Geometria& g);
    void simula(const RichiestaSimulazione& richiesta);
    /// Runs an operation in its handler.
    template <class Operazione>
    void gestisci(const char* metodo, Operazione operazione);

    /// True if this fault is to be told.
    bool daRaccontare(const std::string& impronta);

    Applicazione& app_;
    Racconto racconto_;
    bool riuscita_ = true;
    std::vector<std::string> raccontati_;  ///< faults told so far, where each is told once
    std::array<double, 4> quoteSvoltaDX_{};
    MemoriaSimulazione memoria_;
};

}  // namespace kelvo
