#pragma once

#include <string>
#include <vector>

#include "base/date.h"
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
    bool costruita = false;                      ///< false: a stretch has no segment; what was there before stands
    bool piatto = false;                         ///< t3 is too near to t2 for a falling stretch: q3 is q2
    std::vector<float> FlussiSegmento;           ///< veic/min, from 0
    std::vector<std::string> EtichetteSegmento;  ///< "HH:NN-HH:NN", from 0
    std::string TotaleArrotondato;               ///< vehicles, "#0"
    std::string TotaleEsatto;                    ///< vehicles, "#0.00"
    std::string FlussoTotale;                    ///< vehicles, "#0"
    std::string FlussoMedio;                     ///< veic/min, "#0.00"
    std::string FlussoOrario;                    ///< veic/h, "#0.00"
};

/// Builds the bars of a demand curve: rising from q1 to the peak, which stands at index minutes(t1, t2) / m, then
/// falling to q3. Fault 11 for segments of 0 minutes or where t1 and t3 coincide, fault 6 for an overflow.
CurvaTraffico CostruisciCurva(const DatiCurva& dati);

/// The parameters that a leg holds, its numbers through their text form as a window would show them.
DatiCurva datiCurvaDi(const Rotonda& rotonda, const Ramo& ramo);

}  // namespace kelvo
