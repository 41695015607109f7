#pragma once

#include <string>
#include <vector>

namespace kelvo {

/// An axis of values: its ends and the values at its ticks.
struct Scala {
    double minimo = 0.0;
    double massimo = 1.0;          ///< above `minimo`
    std::vector<double> tacche{};  ///< ascending, within the ends
    int decimali = 0;              ///< that tell the values at the ticks apart

    /// Where a value lies: 0 at the beginning of the axis, 1 at its end; beyond them for values outside.
    double quota(double valore) const;
    /// A value as it stands at its tick: the same number of decimals for all of them, decimal comma.
    std::string testo(double valore) const;
};

/// The fewest ticks that an axis of values has where there is room for them.
inline constexpr int minimeTacche = 4;
/// The most that it has.
inline constexpr int massimeTacche = 8;

/// Ends as given, ticks at the round values between them (multiples of 1, 2, 2,5, 5, also of 1,5, 3 and 4, times a
/// power of ten); a step that ends on the last value goes before others. `quante`: the most ticks, 2 to
/// `massimeTacche`. Ends that are equal, in the wrong order or too near to tell apart are taken for an axis from 0 to
/// the larger of them.
Scala scalaEntro(double minimo, double massimo, int quante);
/// The same, with the ends moved outwards to round values. Where both are 0 it runs from 0 to 1.
Scala scalaAttorno(double minimo, double massimo, int quante);
/// Ends as given, `quante` ticks (2 or more) at equal distances, the first at the beginning, the last at the end.
Scala scalaDivisa(double minimo, double massimo, int quante);

/// Every how many-th label of a value is printed, when the widest is `larghezza` wide and they stand `passo` apart:
/// each one up to 1.15 steps, else every second one, or as many as do not touch.
int diradamentoValori(double larghezza, double passo);
/// Every how many-th label of an axis is printed so that none touches the next: 1, 2, 3, 4, 6, 12 or a multiple of 12,
/// which are steps that the hours of a day have too.
int diradamentoEtichette(double larghezza, double passo);

}  // namespace kelvo
