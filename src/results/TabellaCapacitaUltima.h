#pragma once

#include <string>

#include "base/Tabella.h"
#include "model/Rotonda.h"

namespace kelvo {

/// Ultimate capacity of the entries beside their hourly flow, with the totals of the node and the saturation index.
///
/// The texts of the cells are the only store of the figures: the totals add what the cells show.
class TabellaCapacitaUltima {
public:
    /// Fills the table from what the legs hold: NumeroRami + 4 rows of 3 columns, with their colours. Calculates
    /// nothing. Fault 6 if a figure shown, a total or the index does not fit in a single; fault 9 if legs are missing.
    void riempi(const Rotonda& rotonda);

    const Tabella& tabella() const { return tabella_; }
    /// Sum of the capacities shown, veic/h.
    float SC() const { return SC_; }
    /// Sum of the hourly flows shown, veic/h.
    float SF() const { return SF_; }
    /// Saturation index SF / SC; keeps the value of the last filling where SC is 0.
    float ISR() const { return ISR_; }
    /// The text of "Risultati.txt"; `momento` is the date and time of its closing lines.
    std::string testo(const Rotonda& rotonda, DataOra momento) const;

private:
    std::string testoIndice();

    Tabella tabella_;
    float SC_ = 0.0F;
    float SF_ = 0.0F;
    float ISR_ = 0.0F;
};

}  // namespace kelvo
