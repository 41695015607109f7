#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/Rotonda.h"
#include "reports/LibroFoglio.h"

namespace kelvo::foglio {

/// Columns of the sheet of an entry, from 0.
inline constexpr int colonnaInizio = 0;
inline constexpr int colonnaFine = 1;
inline constexpr int primaGrandezza = 2;  ///< the five of the record
inline constexpr int colonnaLivelloFoglio = 7;
inline constexpr int colonnaCodice = 8;
inline constexpr int colonneIngresso = 9;
/// Rows of every sheet: title, project, headings, then the table.
inline constexpr int rigaTestata = 2;
inline constexpr int primaRiga = 3;

/// The looks that the sheets share.
Aspetto aspettoTestata();
Aspetto aspettoNome();
Aspetto aspettoNumero(std::string formato);
Aspetto aspettoLivello(std::string_view livello);

/// A figure of a record as a cell takes it: its plain text form as a number.
double valoreCella(float valore);

/// What every sheet needs to begin.
struct Testata {
    std::string titolo;
    std::string progetto;
};
/// Begins a sheet: title, project, page set-up.
lxw_worksheet* nuovoFoglio(Libro& libro, const std::string& nome, const Testata& testata);

/// The table of all entries; without records the frame alone. Fault 9 if an entry has more segments than the table has
/// intervals.
void foglioVerifiche(Libro& libro, const Rotonda& rotonda, bool conRecord);
/// One entry, from 1: its segments, extremes and means, its charts.
void foglioIngresso(Libro& libro, const Rotonda& rotonda, std::int16_t ramo);
/// Any table of texts, those that are numbers as numbers; lines of words below it.
void foglioTabella(Libro& libro, const std::string& nome, const Testata& testata, const Tabella& tabella,
                   const std::vector<std::string>& parole);

/// The charts of an entry, beside its table.
void graficiIngresso(Libro& libro, lxw_worksheet* foglio, const std::string& nome, const Rotonda& rotonda,
                     std::int16_t ramo);

}  // namespace kelvo::foglio
