#pragma once

#include <optional>
#include <string>

#include "model/Rotonda.h"

namespace kelvo {

/// Totals of an entry's demand as its window shows them.
struct TotaliTraffico {
    std::string FlussoTotale;  ///< vehicles, "#0"
    std::string FlussoMedio;   ///< veic/min, "#0.00"
    std::string FlussoOrario;  ///< veic/h, "#0.00"
    friend bool operator==(const TotaliTraffico&, const TotaliTraffico&) = default;
};

/// Words a total of vehicles over so many minutes. Fault 11 for a duration of 0, with FlussoTotale written.
void scriviTotali(TotaliTraffico& totali, float veicoli, double durata);

/// Totals of the segment table of a leg over the modelling window; nothing if the window has no segment.
/// Fault 11 for segments of 0 minutes, fault 6 for a total too large for a single or segments past 16 bits.
std::optional<TotaliTraffico> totaliTabella(const Rotonda& rotonda, const Ramo& ramo);

/// Totals of the demand curve of a leg; nothing if the curve cannot be built. Faults of CostruisciCurva.
std::optional<TotaliTraffico> totaliCurva(const Rotonda& rotonda, const Ramo& ramo);

/// The totals that a leg holds, in the same form.
TotaliTraffico totaliConservati(const Ramo& ramo);

}  // namespace kelvo
