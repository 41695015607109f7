#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "base/Tabella.h"
#include "model/Rotonda.h"
#include "results/grandezze.h"
#include "shell/servizi/Grafico.h"
#include "shell/servizi/relazioneGrafica.h"

namespace kelvo {

/// In which unit a comparison tells flows and capacities.
enum class UnitaFlussi { ora, minuto };

/// A quantity of the records in which the entries are compared.
struct VariabileConfronto {
    std::array<std::string_view, 2> nomi;  ///< by unit
    std::array<std::string_view, 2> assi;  ///< title of the axis of values, by unit
    float Iterazione::*campo = nullptr;
    Formato formato = "#0";
    Colore colore{};
    float perOra = 1.0F;    ///< the record times this is the value in the first unit
    float alMinuto = 1.0F;  ///< the record by this is the value in the second unit
    bool livello = false;   ///< the value is the code of the level of service of the record
};

/// In the order of their list. Flows are kept by the minute, capacities by the hour: each has its factor in one unit.
inline constexpr std::array variabiliConfronto{
    VariabileConfronto{.nomi = {"Flusso di traffico [veic/h]", "Flusso di traffico [veic/min]"},
                       .assi = {"veic/h", "veic/min"},
                       .campo = &Iterazione::Flusso,
                       .formato = "#0.00",
                       .colore = tinta::titolo,
                       .perOra = 60.0F},
    VariabileConfronto{.nomi = {"Capacità [veic/h]", "Capacità [veic/min]"},
                       .assi = {"veic/h", "veic/min"},
                       .campo = &Iterazione::Capacita,
                       .formato = "#0.00",
                       .colore = tinta::serieCapacita,
                       .alMinuto = 60.0F},
    VariabileConfronto{.nomi = {"Coefficiente di Saturazione", "Coefficiente di Saturazione"},
                       .assi = {"Coeff. Saturazione", "Coeff. Saturazione"},
                       .campo = &Iterazione::Coeff_Sat,
                       .formato = "#0.00",
                       .colore = tinta::serieSaturazione},
    VariabileConfronto{.nomi = {"Lunghezza coda [veic]", "Lunghezza coda [veic]"},
                       .assi = {"veic", "veic"},
                       .campo = &Iterazione::Coda,
                       .formato = "#0.0",
                       .colore = tinta::serieCode},
    VariabileConfronto{.nomi = {"Ritardo [s/veic]", "Ritardo [s/veic]"},
                       .assi = {"s/veic", "s/veic"},
                       .campo = &Iterazione::Ritardo,
                       .formato = "#0.0",
                       .colore = tinta::serieRitardi},
    VariabileConfronto{.nomi = {"Livello di Servizio (L.O.S.)", "Livello di Servizio (L.O.S.)"},
                       .assi = {"L.O.S. (*)", "L.O.S. (*)"},
                       .campo = &Iterazione::Ritardo,
                       .formato = "#0.0",
                       .colore = tinta::serieLOS,
                       .livello = true},
};
inline constexpr int variabileSaturazione = 2;
inline constexpr int variabileCoda = 3;
inline constexpr int variabileRitardo = 4;
inline constexpr int variabileLivello = 5;

/// What is compared: a position in `variabiliConfronto` and a unit.
struct SceltaConfronto {
    int variabile = 0;
    UnitaFlussi unita = UnitaFlussi::ora;
};

/// Name of what is compared, as the list tells it.
std::string nomeVariabile(const SceltaConfronto& scelta);

/// Top of the axis of values for the largest of them, 0 or more: 1.05 times that for the degree of saturation, the
/// code of "F" for levels of service; else the value, rounded, if its whole part is a multiple of 5, if not what leads
/// to the next multiple added to it, rounded: other than `cimaAsse` it does not go on from a multiple.
float MassimoGrafico(int variabile, float massimo);

/// The records of all entries side by side, as they stood when it was made. Entries and segments count from 1.
class Confronto {
public:
    Confronto() = default;
    explicit Confronto(const Rotonda& rotonda);

    int ingressi() const { return static_cast<int>(nomi_.size()); }
    /// Segments of the first entry.
    int segmenti() const { return static_cast<int>(istanti_.size()); }
    /// Names of the entries; starts of the segments, "HH:NN".
    const std::vector<std::string>& nomi() const { return nomi_; }
    const std::vector<std::string>& istanti() const { return istanti_; }

    /// All 0 where an entry has no such record. Fault 9 for an entry or a segment that does not exist.
    const Iterazione& record(int ingresso, int segmento) const;
    /// The value in the unit asked for; of a level its code. Fault 6 where it leaves the range of a single.
    float valore(const SceltaConfronto& scelta, int ingresso, int segmento) const;
    /// The value in its format; of a level its letter.
    std::string testo(const SceltaConfronto& scelta, int ingresso, int segmento) const;
    /// The largest value of all entries and all their segments; 0 where there is none.
    float massimo(const SceltaConfronto& scelta) const;
    /// The values of all entries in one segment as the chart takes them: joined by "*", with a decimal point.
    std::string dati(const SceltaConfronto& scelta, int segmento) const;

private:
    std::vector<std::string> nomi_;
    std::vector<std::string> istanti_;
    std::vector<std::vector<Iterazione>> record_;  ///< by entry, then segment
};

/// Chart of one segment, one bar an entry; without values where `segmento` is 0. `cima`: `MassimoGrafico` of the
/// largest value, where the axis ends; at 1 where that is 0.
Grafico::Contenuto graficoConfronto(const Confronto& confronto, const SceltaConfronto& scelta, int segmento,
                                    float cima);

/// Table of what is compared: a row an entry, a column an instant, headings and names at their edges. Without figures
/// its cells are empty.
Tabella tabellaConfronto(const Confronto& confronto, const SceltaConfronto& scelta, bool conFigure);
/// The text of "Confronto.txt"; `momento` is the date and time of its closing lines.
std::string testoConfronto(const Tabella& tabella, const SceltaConfronto& scelta, DataOra momento,
                           std::string_view nomeFile);

/// The report of what a chart shows at an instant, "HH:NN".
RelazioneGrafica relazioneConfronto(const SceltaConfronto& scelta, const std::string& istante,
                                    const Grafico::Contenuto& grafico);

}  // namespace kelvo
