#pragma once

#include <string>

#include "base/Tabella.h"
#include "model/Rotonda.h"

namespace kelvo {

/// Number of intervals of the modelling window: its length over the segment's, rounded, ties to even; negative for a
/// window that ends before it starts. Fault 11 for segments of 0 minutes.
int numeroIntervalli(const Rotonda& rotonda);

/// Start and end of interval `k`, from 1: "HH:NN - HH:NN".
std::string testoIntervallo(const Rotonda& rotonda, int k);

/// The empty table of all entries: headings, and for each interval a band row with an entry row for each leg.
/// (NumeroRami + 1) x intervals + 1 rows of 7 columns; the headings alone for a window without intervals.
Tabella impostaTabellaVerifiche(const Rotonda& rotonda);

/// The same for a window that has nothing to show yet: the headings alone for segments of 0 minutes too.
Tabella tabellaVerificheVuota(const Rotonda& rotonda);

/// Fills the figures and levels of service from the records of every segment of an entry; sets the levels of all other
/// rows back to black and not bold. Fault 9 if an entry has more segments than the table has intervals.
void riempiTabellaVerifiche(const Rotonda& rotonda, Tabella& tabella);

/// The text of "Risultati.txt" for all entries; `momento` is the date and time of its closing lines.
std::string testoVerifiche(const Tabella& tabella, const Rotonda& rotonda, DataOra momento);

/// The text of the exchange file of the spreadsheet: the same table, behind it at once closing lines with the day.
std::string testoScambio(const Tabella& tabella, const Rotonda& rotonda, DataOra momento);

}  // namespace kelvo
