#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "app/Applicazione.h"
#include "results/parametriGeometrici.h"

namespace kelvo {

/// Degree of saturation that an entry is usually brought to.
inline constexpr double saturazioneObiettivo = 0.85;

/// What an entry is to reach in every segment of the modelling time: a degree of saturation of at most `saturazione`,
/// or a level of service of `livello` ("A" to "E") or better. The level goes first where both are told.
struct Obiettivo {
    double saturazione = saturazioneObiettivo;
    std::string_view livello{};
};

/// How an entry does over the modelling time.
struct StatoIngresso {
    double saturazione = 0.0;  ///< the largest of the segments
    double ritardo = 0.0;      ///< the largest of the segments, s/veic
    bool conFlusso = false;    ///< there is a segment with demand
    bool regolare = true;      ///< no segment has demand without capacity (0 or below)
};
StatoIngresso statoDi(const DatiTraffico& traffico);
bool raggiunto(const StatoIngresso& stato, const Obiettivo& obiettivo);

/// How a search ended.
enum class EsitoQuantoServe {
    giaRaggiunto,  ///< the entry as it stands reaches the goal
    trovato,       ///< a change of the measure reaches it
    nessuno,       ///< none within the limits does
    senzaDomanda,  ///< the project has no demand over time: there is nothing to be reached
    senzaFlusso,   ///< no vehicle enters there: there is nothing to be reached
    interrotto,    ///< a fault ended the calculation of the project as it stands; the engine has reported it
};

/// The answer of a search. Measures and limits in metres, the angle in degrees.
struct QuantoServe {
    EsitoQuantoServe esito = EsitoQuantoServe::nessuno;
    double attuale = 0.0;  ///< the measure as it stands
    double misura = 0.0;   ///< the measure that reaches the goal; the one as it stands where none was found
    double minimo = 0.0;   ///< the limits that were searched
    double massimo = 0.0;
    StatoIngresso prima{};  ///< the entry as it stands
    StatoIngresso dopo{};   ///< the entry with `misura`
    int prove = 0;          ///< runs of the engine
    /// Largest degree of saturation of the entry as it stands by the plain run that readied the search, which is that
    /// of the checks; none where there was no such run.
    std::optional<double> saturazioneVerifiche{};

    double variazione() const { return misura - attuale; }
};

/// The smallest change of one measure of a leg, from 1, that reaches the goal, all else as it stands.
///
/// Searched are the hundredths (of a metre, of a degree) within the limits of the analysis (`limitiGeometria`), the
/// entry always wider than its approach, on both sides of the measure; of two changes of the same size the larger
/// measure is taken. Capacity moves with each measure in one direction where the entry is wider than its approach;
/// queues and delays follow it. Rounding, and with a table of demand the ultimate capacities of the neighbours, may
/// break that, so that nothing is taken for granted: on each side measures are tried outwards, the first metre (degree)
/// at every hundredth, from there on at distances that grow by `crescitaRicerca`, the limit at last. The first that
/// reaches the goal is brought back, by halving, to a hundredth whose inner neighbour does not. A goal that is reached
/// in a narrower place between two measures that were tried, and nowhere else, may be missed; a measure that is
/// answered has been run and does reach it. One whose run ends in a fault does not reach it; such faults are not
/// reported.
///
/// The entry as it stands is judged by the same what-if form of the engine as the changes, which is that of the steps
/// of the sensitivity analysis. Leaves the records as those of the last run, stamped as what-if.
QuantoServe cercaQuantoServe(Applicazione& app, std::int16_t ramo, std::size_t parametro, const Obiettivo& obiettivo);
inline constexpr double crescitaRicerca = 0.02;

/// A search on a line of whole numbers, as the one above uses it: the number nearest to `origine` on one side of it,
/// `verso` +1 or -1, that `raggiunge`, up to `limite` included; nothing where none that was tried does. `origine`
/// itself is not tried.
std::optional<std::int64_t> cercaVerso(std::int64_t origine, std::int64_t limite, int verso,
                                       const std::function<bool(std::int64_t)>& raggiunge);

/// The answer in words: "Larghezza ingresso: da 5,00 m a 6,35 m (+1,35 m) per un coefficiente di saturazione di 0,85".
std::string paroleQuantoServe(const QuantoServe& risposta, std::size_t parametro, const Obiettivo& obiettivo);

/// How the entry does before and after in words: "Coefficiente di saturazione massimo da 1,02 a 0,85; ritardo massimo
/// da 71,4 a 24,9 s/veic (livello di servizio da F a C)"; as it stands where no change was found; empty where nothing
/// was calculated. Where the checks show another degree of saturation for the entry as it stands, a sentence says so.
std::string effettoQuantoServe(const QuantoServe& risposta);

}  // namespace kelvo
