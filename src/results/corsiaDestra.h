#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "base/Tabella.h"
#include "calc/modCalcolo.h"
#include "results/messaggioUtente.h"

namespace kelvo {

/// Legs of a roundabout whose right turns can be given lanes of their own.
inline constexpr std::int16_t ramiConCorsie = 4;

/// A right turn that a lane can take past the ring; legs from 1.
struct PosizioneDX {
    std::string_view testo;
    std::int16_t origine;
    std::int16_t destinazione;
    std::string_view etichetta;  ///< name of the label that shows its flow
};
inline constexpr std::array<PosizioneDX, 4> posizioniDX{{
    {"Posizione 1: (svolta Ramo A-->Ramo B)", 1, 2, "labelAB"},
    {"Posizione 2: (svolta Ramo B-->Ramo C)", 2, 3, "labelBC"},
    {"Posizione 3: (svolta Ramo C-->Ramo D)", 3, 4, "labelCD"},
    {"Posizione 4: (svolta Ramo D-->Ramo A)", 4, 1, "labelDA"},
}};

/// Words of the analysis.
namespace testiDX {
inline constexpr std::string_view titoloAvviso = "Informazione";
inline constexpr std::string_view avviso = "Funzione disponibile solo per rotatorie a quattro ingressi!";
inline constexpr MessaggioUtente nessunaPosizione{
    "Attezione! Selezionare almeno una corsia di svolta a destra da verificare.", "KELVO 2014", Icona::critica};
/// Label of a fault of the text export.
inline constexpr std::string_view metodoAnteprima = "frmCapacitaCodeRitardiRamo:Anteprima";
}  // namespace testiDX

/// True for the one number of legs that the analysis is for.
bool corsieDisponibili(const Rotonda& rotonda);
/// True where at least one lane is switched on.
bool almenoUnaCorsia(const CorsieDestra& corsie);

/// Right-turn lanes as their window compared them: the lanes, and the table of the comparison.
struct AnalisiCorsiaDX {
    CorsieDestra corsie{};
    Tabella tabella;
};

/// Flow of a right turn, by its place from 0: vehicles (" [veic.]") or, where the matrix is in per cent, per cent of
/// the entry's flow (" [%]"). Fault 9 where the legs of the turn do not exist.
std::string flussoSvolta(const Rotonda& rotonda, std::size_t posizione);

/// What one run left of one entry.
struct TotaliIngresso {
    double Flusso = 0.0;  ///< vehicles over the modelling time
    // The largest of the segments, 0 where none is above 0.
    double Capacita = 0.0;
    double Coeff_Sat = 0.0;
    double Coda = 0.0;
    double Ritardo = 0.0;
};
/// The results of a run, entry by entry.
using TotaliDX = std::array<TotaliIngresso, ramiConCorsie>;

/// The totals of the records that the first four legs hold; flows are per minute and count for the minutes of a
/// segment. Fault 9 where there are fewer legs.
TotaliDX totaliDX(const Rotonda& rotonda);

/// How the four entries do with and without right-turn lanes.
///
/// The texts of the cells are the only store of what is shown: variations and levels are worked out from them.
class ConfrontoCorsie {
public:
    /// The empty table: 18 rows of 5 columns, headings and colours.
    ConfrontoCorsie();

    /// Runs the simulation with the lanes, then without them, so that the records are those of the project again, and
    /// fills the table. Where the project is no study over time nothing runs and the table keeps its content.
    /// A run that a fault ends is reported by the engine and leaves its rows empty; the other goes on. The same fault
    /// of both is told once. To be called for four legs only.
    void calcola(Applicazione& app, const CorsieDestra& corsie);

    const Tabella& tabella() const { return tabella_; }
    /// A run of both has filled the table at least once.
    bool calcolato() const { return calcolato_; }
    // Results of the runs made last; all 0 before the first and for a run that a fault ended.
    const TotaliDX& senza() const { return senza_; }
    const TotaliDX& con() const { return con_; }
    /// Level of service of an entry, from 0, as the table shows it, with or without the lanes.
    const std::string& livello(bool corsia, std::size_t ingresso) const;

    /// The text of "RisultatiDX.txt" for these lanes; `momento` is the date and time of its closing lines.
    std::string testo(const Rotonda& rotonda, const CorsieDestra& corsie, DataOra momento) const;

private:
    void scriviRighe(bool corsia, const TotaliDX* totali);
    void scriviVariazioni();

    Tabella tabella_;
    bool calcolato_ = false;
    TotaliDX senza_{};
    TotaliDX con_{};
};

/// A variation of the comparison, from two figures as the table shows them: how much of `senza` the lanes take away,
/// per cent to two decimals ("12,5%", a rise is negative); "0%" where both are 0, "n.d." where `senza` alone is 0,
/// empty where a figure is missing.
std::string variazioneDX(const std::string& senza, const std::string& con);

}  // namespace kelvo
