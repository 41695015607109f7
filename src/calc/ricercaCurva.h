#pragma once

#include <functional>
#include <optional>
#include <string>

#include "calc/curvaTraffico.h"

namespace kelvo {

/// Steps after which a search gives up.
inline constexpr int passiMassimiRicerca = 20000;
/// Total flow of an entry above which a target looks too high, vehicles.
inline constexpr double obiettivoElevato = 5000.0;
/// Distance of the peak from q1 above which a curve looks wrong, veic/min.
inline constexpr double differenzaAnomala = 15.0;

/// What a search of the peak starts from.
struct RichiestaRicerca {
    DatiCurva dati;          ///< times and length of a segment; its flows are not read
    std::string q1;          ///< text of the field, veic/min
    double obiettivo = 0.0;  ///< vehicles that the curve is to bring
};

enum class EsitoRicerca {
    trovata,        ///< the total, rounded to whole vehicles, is the target
    fallita,        ///< the peak would fall below q1, or to 0
    passiEsauriti,  ///< the steps came to their end first
};

/// Where a search ended.
struct RisultatoRicerca {
    EsitoRicerca esito = EsitoRicerca::trovata;
    std::string q2;  ///< text for the field: up to 15 significant digits
    std::string q3;  ///< the same, or the text of q1
    int passi = 0;   ///< times that the peak was moved and the curve was built again
};

/// Searches the peak q2, and q3 beside it, with which the curve brings the target. q2 starts at q1 and moves by 0,01
/// veic/min towards it, at least once; q3 starts above q1 (by 0,3 below 1 veic/min, else by 3) and, where q2 does not
/// come to lie above it, the search goes on with q3 at q1. All flows pass through the texts of their fields. On a flat
/// curve q3 follows q2, so that its search never ends but by failure or by the number of steps.
///
/// `curva` is left as it was last built on the way, `TotaleArrotondato` empty where it cannot be built; then the total
/// counts as 0. `alPasso` is told how far the search has come, out of `passiMassimiRicerca`: after each step, and all
/// of it where a target was met. Faults of CostruisciCurva; 13 for a q1 that is no number.
RisultatoRicerca cercaCurva(const RichiestaRicerca& richiesta, CurvaTraffico& curva,
                            const std::function<void(int)>& alPasso);

/// True if the peak lies so far above q1 that q1 looks wrong.
bool piccoAnomalo(double q1, double q2);

/// By how much the total (text "#0.00" of a curve; an empty one reads as 0) differs from the target, per cent of the
/// target; nothing for a target of 0.
std::optional<double> approssimazione(const std::string& totaleEsatto, double obiettivo);

}  // namespace kelvo
