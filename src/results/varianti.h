#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Tabella.h"
#include "base/numeri.h"
#include "results/differenze.h"

/// The results of two variants of a project, side by side.
namespace kelvo {

/// Which of two figures is the better one.
enum class Verso {
    nessuno,  ///< neither
    basso,
    alto,
};

/// A quantity that two variants are compared in.
struct GrandezzaVariante {
    std::string_view chiave;  ///< for programs
    std::string_view nome;    ///< in Italian, with its unit
    Verso verso = Verso::nessuno;
    Formato formato = "#0.00";
    Formato formatoScarto = "#+0.00";
};

/// Of each entry. "Study" is the whole modelling window; peak hours are those of `SintesiNodo`.
inline constexpr std::array grandezzeIngresso{
    GrandezzaVariante{"Coeff_Sat", "Saturazione massima", Verso::basso, "#0.000", "#+0.000"},
    GrandezzaVariante{"segmentoSat", "nel segmento"},
    GrandezzaVariante{"Capacita", "Capacità in quel segmento [veic/h]", Verso::alto},
    GrandezzaVariante{"Coda", "Coda massima [veic]", Verso::basso, "#0.0", "#+0.0"},
    GrandezzaVariante{"RitardoMedio", "Ritardo medio dello studio [s/veic]", Verso::basso, "#0.0", "#+0.0"},
    GrandezzaVariante{"RitardoMassimo", "Ritardo massimo [s/veic]", Verso::basso, "#0.0", "#+0.0"},
    GrandezzaVariante{"LOSMassimo", "L.O.S. del ritardo massimo", Verso::basso},
    GrandezzaVariante{"oraDiPunta", "Ora di punta"},
    GrandezzaVariante{"Flusso", "Flusso nell'ora di punta [veic/h]"},
    GrandezzaVariante{"riserva", "Riserva nell'ora di punta, 1 - x", Verso::alto, "#0.000", "#+0.000"},
    GrandezzaVariante{"riservaVeicoli", "Riserva nell'ora di punta [veic/h]", Verso::alto},
    GrandezzaVariante{"LOS", "L.O.S. dell'ora di punta", Verso::basso},
    GrandezzaVariante{"FlussoOrario", "Flusso orario [veic/h]"},
    GrandezzaVariante{"CapacitaUltima", "Capacità ultima [veic/h]", Verso::alto},
};

/// Of the junction.
inline constexpr std::array grandezzeNodo{
    GrandezzaVariante{"Coeff_Sat", "Saturazione massima", Verso::basso, "#0.000", "#+0.000"},
    GrandezzaVariante{"ingressoPeggiore", "dell'ingresso"},
    GrandezzaVariante{"segmentoSat", "nel segmento"},
    GrandezzaVariante{"oraDiPunta", "Ora di punta"},
    GrandezzaVariante{"Flusso", "Flusso nell'ora di punta [veic/h]"},
    GrandezzaVariante{"Capacita", "Capacità nell'ora di punta [veic/h]", Verso::alto},
    GrandezzaVariante{"riserva", "Riserva nell'ora di punta, 1 - x", Verso::alto, "#0.000", "#+0.000"},
    GrandezzaVariante{"riservaVeicoli", "Riserva nell'ora di punta [veic/h]", Verso::alto},
    GrandezzaVariante{"Ritardo", "Ritardo medio nell'ora di punta [s/veic]", Verso::basso, "#0.0", "#+0.0"},
    GrandezzaVariante{"LOS", "L.O.S. dell'ora di punta", Verso::basso},
    GrandezzaVariante{"SF", "Flusso orario totale [veic/h]"},
    GrandezzaVariante{"SC", "Capacità ultima [veic/h]", Verso::alto},
    GrandezzaVariante{"ISR", "Indice di saturazione (I.S.R.)", Verso::basso, "#0.00%", "#+0.00%"},
};

/// A figure of one variant; none where there is nothing to tell.
struct Cifra {
    std::optional<ValoreDato> valore{};
    std::string testo = "-";
};

/// What a variant comes to: a figure for each quantity.
struct EsitiVariante {
    std::vector<std::array<Cifra, grandezzeIngresso.size()>> ingressi;  ///< one for each leg
    std::array<Cifra, grandezzeNodo.size()> nodo;
};

/// The figures of a project whose results are its own. A study of saturation alone has those of the ultimate capacity
/// and no others. Faults of `sintesiNodo`, `riempiTabellaRamo` and `TabellaCapacitaUltima`.
EsitiVariante esitiVariante(const Rotonda& rotonda);

/// What B is beside A, as both are shown.
enum class Giudizio { nessuno, uguale, migliore, peggiore };
/// "uguale", "migliore", "peggiore"; empty for none.
std::string_view parolaGiudizio(Giudizio giudizio);

/// One quantity of both variants.
struct RigaVarianti {
    const GrandezzaVariante* grandezza = nullptr;
    Cifra a{};
    Cifra b{};
    std::optional<ValoreDato> scarto{};  ///< of the values as they are
    std::string testoScarto{};           ///< of the figures as they are shown, with its sign; empty where there is none
    Giudizio giudizio = Giudizio::nessuno;
};

/// The figures of both, row by row in the order of the quantities.
struct ConfrontoEsiti {
    std::vector<std::vector<RigaVarianti>> ingressi;  ///< by position; what only one variant has stands beside "-"
    std::vector<RigaVarianti> nodo;
    /// Figures of B of that judgement, entries and junction together.
    int quante(Giudizio giudizio) const;
};
ConfrontoEsiti confrontaEsiti(const EsitiVariante& a, const EsitiVariante& b);

/// What a comparison is written from.
struct ConfrontoVarianti {
    const Rotonda& a;
    const Rotonda& b;
    std::string nomeA{};  ///< as the user called the file
    std::string nomeB{};
    DifferenzeProgetti differenze{};
    std::optional<ConfrontoEsiti> esiti{};  ///< none where a calculation failed
};

/// "Ramo B: name", with the names of both where they differ.
std::string titoloRamo(const ConfrontoVarianti& varianti, std::int16_t ramo);

/// The tables of the comparison: headings, then rows below a band for the roundabout and for each leg.
/// Columns: datum, A, B, difference, remark.
Tabella tabellaDifferenze(const ConfrontoVarianti& varianti);
/// Columns: quantity, A, B, difference, judgement of B with its sign. To be asked for where there are results.
Tabella tabellaEsiti(const ConfrontoVarianti& varianti);

/// The comparison as a text; `momento` is the date and time of its closing lines.
std::string testoVarianti(const ConfrontoVarianti& varianti, DataOra momento);

}  // namespace kelvo
