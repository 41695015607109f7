#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "app/Applicazione.h"
#include "calc/Geometria.h"
#include "calc/bilanciamento.h"
#include "model/Revisione.h"

namespace kelvo {

/// The right-turn lanes that are switched on, one flag for each of four legs.
using CorsieDestra = std::array<bool, 4>;

/// Where the demand of the entries comes from.
enum class Domanda { curva, tabella };

/// Which vehicle composition weighs the demand; with none there is no demand.
enum class Composizione { costante, perSegmento, nessuna };

/// What is to be simulated.
struct RichiestaSimulazione {
    Domanda domanda = Domanda::curva;
    FormaCalcolo forma = FormaCalcolo::piana;  ///< piana, ipotesi or corsiaDestra
    std::string_view modo;                     ///< "0" one composition, "1" one for each segment
    std::int16_t indice = 0;                   ///< ipotesi: the leg that takes `geometria`, from 1
    Geometria geometria{};
    CorsieDestra corsie{};
};

/// Working arrays, kept from run to run so that no segment allocates. Once they and the records of the legs have grown,
/// a run allocates the turning shares alone.
struct MemoriaSimulazione {
    std::vector<float> Dq;  ///< demand, veic/h; segments by legs
    std::vector<float> Cq;  ///< capacity before the reductions, veic/h; segments by legs
};

/// Sets each share to 0 and then, for a lane that is on, to the per cent of the entry's flow that turns right there.
/// Fault 9 if the lane starts or ends at a leg that does not exist; fault 6 for a turning share too large for a single.
void preparaQuote(const Rotonda& rotonda, const CorsieDestra& corsie, std::array<double, 4>& quote);

/// One run of the simulation over time, in any of its forms.
///
/// Plays all segments for all entries together and writes records 1 to K of each; record k holds segment k - 1.
/// Nothing carries over from one segment to the next. Faults pass to the caller; what was written stays.
/// Queue and delay: R. M. Kimber and E. M. Hollis, Traffic queues and delays at road junctions, TRRL Laboratory
/// Report 909, 1979, in the form used for roundabout entries.
class Simulazione {
public:
    Simulazione(Applicazione& app, const RichiestaSimulazione& richiesta, const std::array<double, 4>& quote,
                MemoriaSimulazione& memoria);
    void esegui();

private:
    /// One stretch of a demand curve, veic/min: flow = scarto + pendenza * segments.
    struct Retta {
        float pendenza = 0.0F;
        float scarto = 0.0F;
    };
    /// What a run knows of one entry.
    struct Ingresso {
        Ramo* ramo = nullptr;
        double t3 = 0.0;
        double d12 = 0.0;
        double d23 = 0.0;
        float q1 = 0.0F;
        float q2 = 0.0F;
        float q3 = 0.0F;
        Retta salita;
        Retta discesa;
        std::int16_t k1 = 0;
        std::int16_t k2 = 0;
        std::int16_t k3 = 0;
        float G = 0.0F;      ///< equivalent vehicles for one vehicle, one composition
        double quota = 0.0;  ///< taken away by the right-turn lane
        float F = 0.0F;
        double CU = 0.0;  ///< ultimate capacity, veic/h
        Colonna vicini;   ///< the upstream entries that weigh on this one
    };
    /// What is the same for every record of one entry.
    struct CostantiCoda {
        double w = 0.0;                ///< share of the time in which the queue is longer
        double T = 0.0;                ///< segment length in minutes as the records count it
        std::optional<double> menoLn;  ///< -ln w, where it was worked out
    };

    float coefficienteMedio(const Ingresso& in) const;
    float coefficienteSegmento(const Ingresso& in, std::int16_t k) const;
    double quotaCorsia(std::size_t i) const;

    void leggiCurve();
    Retta retta(const Ingresso& in, float qa, float qb, double durata) const;
    void costruisciRette();
    void bilanciaRete();
    void dividiCurve();
    std::int16_t numeroSegmenti() const;
    void leggiComposizioni();
    void leggiCorsie();

    float domandaCurva(const Ingresso& in, std::int16_t k) const;
    float domandaTabella(const Ingresso& in, std::int16_t k) const;
    void calcolaPortate(std::int16_t K);
    void scriviRecord(std::int16_t K);
    template <class C>
    CostantiCoda costantiCoda(const Ingresso& in, std::int16_t k) const;
    template <class C>
    void codaRitardo(Iterazione& r, const Ingresso& in, const CostantiCoda& costanti, std::int16_t k) const;
    template <class C, class Costanti>
    Iterazione record(const Ingresso& in, const Costanti& costanti, std::size_t posto, std::int16_t k) const;

    Applicazione& app_;
    Rotonda& rotonda_;
    const RichiestaSimulazione& richiesta_;
    const std::array<double, 4>& quote_;
    MemoriaSimulazione& memoria_;
    CoefficientiVeicoli VE_;
    Composizione composizione_;
    bool singoli_;  ///< the named values of queue and delay are singles: plain forms of a demand curve
    std::size_t n_;
    int m_ = 0;  ///< minutes of a segment
    PerRamo<Ingresso> ingressi_{};
};

}  // namespace kelvo
