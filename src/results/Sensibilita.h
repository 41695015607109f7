#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "base/Tabella.h"
#include "base/numeri.h"
#include "calc/modCalcolo.h"
#include "results/messaggioUtente.h"
#include "results/parametriGeometrici.h"

namespace kelvo {

/// Words of the analysis.
namespace testiSensibilita {
inline constexpr MessaggioUtente nessunaVariabile{"Attenzione! Selezionare una variabile", "Kelvo 2014",
                                                  Icona::critica};
inline constexpr MessaggioUtente nessunRisultato{"Attenzione! Nessun risultato da esportare.", "Kelvo 2014",
                                                 Icona::critica};
/// Label of a fault of the text export.
inline constexpr std::string_view metodoAnteprima = "frmCapacitaCodeRitardi:Anteprima";
}  // namespace testiSensibilita

/// Steps of a measure: so many below the reference, as many above it.
inline constexpr int passiPerParte = 3;
inline constexpr int numeroPassi = 2 * passiPerParte + 1;

/// A figure that the analysis shows, in the order of its rows.
enum class Prestazione { capacita, coda, ritardo };
inline constexpr std::array<Prestazione, 3> prestazioni{Prestazione::capacita, Prestazione::coda, Prestazione::ritardo};

/// Words and formats of a figure.
struct VocePrestazione {
    std::string_view riga;            ///< heading of its row
    std::string_view rigaVariazione;  ///< of the row below it
    Formato formato;
    std::string_view opzione;        ///< caption of the option that chooses it
    std::string_view nomeGrafico;    ///< in the title and at the axis of a chart
    std::string_view unita;          ///< with its brackets
    std::string_view nomeRelazione;  ///< in a report
    float Iterazione::*campo;
};
const VocePrestazione& voce(Prestazione quale);

/// What a step of a measure gave.
struct PassoSensibilita {
    float misura = 0.0F;     ///< the measure as the table shows it
    bool valido = false;     ///< at or above the lower limit of the measure
    bool calcolato = false;  ///< valid, and the run ended without a fault
    Iterazione risultato{};  ///< the record with the largest flow; with no demand over time the capacity alone
};

/// One measure of one entry moved by steps of -3 to +3, all else as it stands: what becomes of the entry.
///
/// Eight rows of eight columns: column 1 + passiPerParte is the reference. The texts of the cells are the only store of
/// what is shown: measures and variations are worked out from them.
class TabellaSensibilita {
public:
    explicit TabellaSensibilita(std::size_t parametro);

    const ParametroGeometrico& parametro() const { return parametriGeometrici.at(indice_); }

    /// Sets steps and measures from the leg, without results. A measure past the singles is left empty and not valid.
    void imposta(const Ramo& ramo);
    /// Runs the steps for the leg of that number, from 1, with the measures that `imposta` has set, and writes figures
    /// and variations. A step below the lower limit is not valid: "0" on a red ground. A step whose run a fault ends
    /// stays empty; the engine reports it, the others go on. Of no demand over time there is the capacity alone.
    void calcola(Applicazione& app, modCalcolo& motore, std::int16_t ramo);
    /// Takes figures, variations and marks away; steps and measures stay.
    void svuota();

    const Tabella& tabella() const { return tabella_; }
    const std::array<PassoSensibilita, numeroPassi>& passi() const { return passi_; }
    /// `calcola` has run since `imposta`.
    bool calcolata() const { return calcolata_; }
    /// The first result cell is empty: there is nothing to export.
    bool senzaRisultati() const;
    /// The row of a figure; its variation stands in the next one.
    static int riga(Prestazione quale);

    /// The text of "RisultatiMarginale.txt"; `momento` is the date and time of its closing lines.
    std::string testo(const Rotonda& rotonda, DataOra momento) const;

private:
    void scriviPasso(int colonna, bool soloCapacita);
    void scriviVariazioni();

    std::size_t indice_;
    Tabella tabella_;
    std::array<PassoSensibilita, numeroPassi> passi_{};
    bool calcolata_ = false;
};

/// The record of the largest flow of an entry: the last strict increase from 0 on; all 0 where no flow is above 0.
Iterazione recordDiPunta(const DatiTraffico& traffico);

/// Relative change of a shown figure against the shown reference, "#0.00%"; empty where one of them is missing or the
/// reference is 0.
std::string variazioneSensibilita(const std::string& valore, const std::string& riferimento);

/// The analysis of one entry: a table for each of the six measures.
class Sensibilita {
public:
    Sensibilita();

    /// Takes the leg of that number, from 1: steps and measures without results. Fault 9 if there is none.
    void imposta(const Rotonda& rotonda, std::int16_t ramo);
    std::int16_t ramo() const { return ramo_; }
    /// The measure takes part in the analysis of the leg.
    bool attivo(std::size_t parametro) const { return attivi_.at(parametro); }
    bool nessunoAttivo() const;

    /// Calculates every measure that takes part; the others keep their tables. The same fault of several runs is told
    /// once. Leaves the records of all entries as those of the last step, stamped as what-if.
    void calcola(Applicazione& app);
    /// Calculates one measure, whether it takes part or not.
    void calcola(Applicazione& app, std::size_t parametro);

    const TabellaSensibilita& tabella(std::size_t parametro) const { return tabelle_.at(parametro); }
    const std::array<TabellaSensibilita, numeroParametri>& tabelle() const { return tabelle_; }

private:
    std::int16_t ramo_ = 0;
    std::array<bool, numeroParametri> attivi_{};
    std::array<TabellaSensibilita, numeroParametri> tabelle_;
};

}  // namespace kelvo
