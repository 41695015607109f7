#pragma once

#include <string>

#include "app/statoRisultati.h"
#include "base/Tabella.h"
#include "model/Rotonda.h"
#include "shell/servizi/CellaGriglia.h"

namespace kelvo {

/// The empty table of one entry: headings and a row for each interval of the modelling window, 7 columns; the headings
/// alone for a window without intervals or with segments of 0 minutes.
Tabella impostaTabellaRamo(const Rotonda& rotonda);

/// Fills figures and levels of service from the records of an entry, works out its statistics and marks the cell of the
/// largest and then of the smallest value of each quantity; all cells get their plain colours first. Both sides of the
/// comparisons are taken to two decimals, the means are of the unrounded values. An entry without segments has neither
/// marks nor statistics. Fault 9 if it has more segments than the table has intervals, fault 6 for a figure past the
/// range of numbers.
StatisticheIngresso riempiTabellaRamo(const Ramo& ramo, Tabella& tabella);

/// Colours the cells of a filled table that lie beyond the thresholds of an entry: a value strictly above the upper
/// one, or strictly below the lower one, for each quantity whose threshold is on; a threshold of 0 is none. The raw
/// record is compared, in single precision; for the level of service the code of the cell. Earlier colours stay. Fault
/// 9 for an entry without thresholds, or with more segments than the table has intervals.
void segnaSoglie(const Ramo& ramo, int ingresso, const Marker& marker, Tabella& tabella);

/// What stands in a cell of a filled table beside its text: sign of an extreme, bar of a threshold, badge of a level.
OrnamentoCella ornamentoRamo(const Tabella& tabella, const StatisticheIngresso& statistiche, Posto posto);

/// The text of "Risultati.txt" for one entry; `momento` is the date and time of its closing lines.
std::string testoRamo(const Tabella& tabella, const Ramo& ramo, const Rotonda& rotonda, DataOra momento);

/// The lines below a table of results that tell where the levels of service come from, and the closing lines.
std::string notaLivelli(const Rotonda& rotonda, DataOra momento);

}  // namespace kelvo
