#pragma once

#include <cmath>
#include <cstdlib>

#include "base/guasto.h"
#include "base/numeri.h"
#include "calc/curvaTraffico.h"

/// The arithmetic of a demand curve, shared by its construction and by the search of its peak.
namespace kelvo::spezzata {

/// What the times of a curve fix.
struct Forma {
    int n1 = 0;           ///< segments of the rising stretch; below 0 where t2 lies before t1
    int n2 = 0;           ///< segments of the falling stretch
    bool piatto = false;  ///< t3 is too near to t2 for a falling stretch: q3 is q2
    int minuti = 0;       ///< length of a segment
    double durata = 0.0;  ///< minutes from t1 to t3

    /// False where a stretch has no segment.
    bool costruibile() const { return n1 != 0 && n2 != 0; }
    /// Index of the last bar.
    int ultima() const { return std::abs(n1) + std::abs(n2) - (piatto ? 1 : 0); }
};

/// Reads the times of a curve. Fault 11 for segments of 0 minutes, fault 6 for a number of segments past 16 bits.
Forma formaDi(const DatiCurva& dati);

/// The two straight stretches: a flow at their beginning and what each segment adds to it.
struct Rette {
    double q1 = 0.0;
    double p1 = 0.0;
    double q2 = 0.0;
    double p2 = 0.0;
};

inline constexpr auto oltre = [] { return "curva di traffico"; };

/// The stretches of a curve that can be built. Fault 6 for a slope too large for a single.
inline Rette retteDi(const Forma& forma, double q1, double q2, double q3) {
    return {.q1 = q1,
            .p1 = static_cast<double>(aSingolo(dividi(q2 - q1, forma.n1), oltre)),
            .q2 = q2,
            .p2 = static_cast<double>(aSingolo(dividi((forma.piatto ? q2 : q3) - q2, forma.n2), oltre))};
}

/// Goes through the bars, from 0, tells each with its flow, and answers the vehicles. Fault 6 for a flow or a total too
/// large for a single.
template <class PerBarra>
float percorri(const Forma& forma, const Rette& rette, PerBarra perBarra) {
    const int ultima = forma.ultima();
    const double minuti = forma.minuti;
    float totale = 0.0F;
    for (int i = 0; i <= ultima; ++i) {
        const float flusso =
            aSingolo(i <= forma.n1 ? rette.q1 + i * rette.p1 : rette.q2 + (i - forma.n1) * rette.p2, oltre);
        perBarra(i, flusso);
        totale = aSingolo(static_cast<double>(totale) + static_cast<double>(flusso) * minuti, oltre);
    }
    return totale;
}

/// A number as the text of its field gives it back.
template <class T>
double comeTesto(T valore) {
    return leggiNumero(testoNumero(valore)).value_or(0.0);
}

/// A total as its text "#0" gives it back.
inline double arrotondato(float totale) {
    // Below it seven digits have two decimals to spare: well away from a half no text is needed to round.
    constexpr double limite = 1e5;
    constexpr double margine = 0.01;
    const auto valore = static_cast<double>(totale);
    if (valore >= 0.0 && valore < limite) {
        const double sotto = std::floor(valore);
        const double resto = valore - sotto;
        if (resto < 0.5 - margine || resto > 0.5 + margine) {
            return resto < 0.5 ? sotto : sotto + 1.0;
        }
    }
    return leggiNumero(formatta(totale, "#0")).value_or(0.0);
}

}  // namespace kelvo::spezzata
