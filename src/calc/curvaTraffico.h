#pragma once

#include <string>
#include <vector>

#include "base/date.h"
#include "calc/totaliTraffico.h"
#include "model/Rotonda.h"

namespace kelvo {

/// Parameters of a demand curve as the fields of its window show them.
struct DatiCurva {
    double q1 = 0.0;   ///< flow at t1, veic/min
    double q2 = 0.0;   ///< flow at t2, the peak, veic/min
    double q3 = 0.0;   ///< flow at t3, veic/min; not read where the curve is flat behind its peak
    DataOra t1 = 0.0;  ///< start of the curve
    DataOra t2 = 0.0;  ///< time of the peak
    DataOra t3 = 0.0;  ///< end of the curve
    int minuti = 0;    ///< length of a segment, minutes
};

/// The bars of a demand curve, one a segment, with its totals.
struct CurvaTraffico {
    bool piatto = false;                         ///< t3 is too near to t2 for a falling stretch: q3 is q2
    std::vector<float> FlussiSegmento;           ///< veic/min, from 0
    std::vector<std::string> EtichetteSegmento;  ///< "HH:NN-HH:NN", from 0
    std::string TotaleArrotondato;               ///< vehicles, "#0"
    std::string TotaleEsatto;                    ///< vehicles, "#0.00"
    TotaliTraffico totali;
    float totale = 0.0F;  ///< vehicles, as they were added up
};

/// Builds the bars of a demand curve into `curva`: rising from q1 to the peak, which stands at index
/// minutes(t1, t2) / m, then falling to q3. False where a stretch has no segment: `piatto` is set, all else in `curva`
/// stays as it was.
///
/// What a fault finds written stays. Fault 11 for segments of 0 minutes, with nothing written, and where t1 and t3
/// coincide, with the bars and the total of vehicles written; fault 6 for a number of segments past 16 bits, for a
/// flow or a total too large for a single and for a label outside the calendar.
bool CostruisciCurva(const DatiCurva& dati, CurvaTraffico& curva);

/// The parameters that a leg holds, its numbers through their text form as a window would show them.
DatiCurva datiCurvaDi(const Rotonda& rotonda, const Ramo& ramo);

}  // namespace kelvo
