#pragma once

#include <string>
#include <vector>

#include "base/Tabella.h"
#include "model/Rotonda.h"

namespace kelvo {

/// Columns of the table of a composition by segments; column 0 is the interval, row 0 the headings.
namespace colonneComposizione {
inline constexpr int prima = 1;                          ///< first of the classes
inline constexpr int ultima = prima + numeroClassi - 1;  ///< last of the classes
inline constexpr int totale = ultima + 1;
inline constexpr int flusso = totale + 1;
inline constexpr int quante = flusso + 1;
}  // namespace colonneComposizione

/// The table of a leg: one row a segment with its vehicles, their total and the flow that enters. `flussi` has one
/// figure a segment.
Tabella tabellaComposizione(const Rotonda& rotonda, const Ramo& ramo, const std::vector<double>& flussi);

/// Vehicles as a cell shows them: whole ones with all their digits, past those of a single too.
std::string testoVeicoli(float valore);
/// The number of a cell; 0 for an empty one.
double veicoli(const Tabella& tabella, int riga, int colonna);
/// Vehicles of all classes of a row.
double sommaCategorie(const Tabella& tabella, int riga);
/// Puts the total of a row into its cell, dressed by how it stands to the flow.
void mostraTotaleSegmento(Tabella& tabella, int riga);

/// How the vehicles of a segment stand to the flow that enters.
enum class EsitoSegmento {
    nessuno,    ///< neither the one nor the other
    meno,       ///< fewer vehicles
    uguale,     ///< as many
    piu,        ///< more vehicles
    negativo,   ///< a class is below 0: the others are more than the flow
    sottoZero,  ///< a class is below 0, though the others do not exceed the flow
};
EsitoSegmento esitoSegmento(const Tabella& tabella, int riga);
/// The total of such a segment bears a warning.
bool segnalato(EsitoSegmento esito);
/// The same in words: "08:15 - 08:30: 48 veicoli su 60, ne mancano 12".
std::string paroleSegmento(const Tabella& tabella, int riga);

/// How the segments of a table stand to their flows.
struct EsitoTabella {
    int segmenti = 0;
    int uguali = 0;
    int meno = 0;
    int piu = 0;             ///< those counted where a class is below 0 because the others exceed the flow
    bool conFlusso = false;  ///< a flow is not 0
};
EsitoTabella esitoTabella(const Tabella& tabella);
/// The same in words.
std::string paroleTabella(const EsitoTabella& esito);

}  // namespace kelvo
