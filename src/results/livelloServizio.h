#pragma once

#include <array>
#include <string>
#include <string_view>

namespace kelvo {

/// Level of service of a delay in s/veic as displayed to one decimal: "-" at 0, "A" to 10, "B" to 15, "C" to 25,
/// "D" to 35, "E" to 50, "F" above; a delay on a bound takes the better level.
/// Source: Highway Capacity Manual, yield control. Grades the delay alone, whatever the saturation.
std::string_view livelloServizio(double ritardoMostrato);

/// The level of a delay as it is kept in a record: shown under "#0.0" first, then graded.
std::string_view livelloDiRitardo(float ritardo);

/// The levels in the order of their codes: "-", "A" to "F".
inline constexpr std::array<std::string_view, 7> livelliServizio{"-", "A", "B", "C", "D", "E", "F"};
/// Codes of two neighbouring levels lie so far apart.
inline constexpr int passoCodici = 5;

/// Code of a level for charts and means: "-" 0, "A" 5, "B" 10, ... "F" 30; 0 for any other text.
int codiceLivello(std::string_view livello);
/// The level of a code: 0 "-", 5 "A", ... 30 "F"; "-" for any other number.
std::string_view livelloDiCodice(int codice);
/// Level of a mean of codes, a whole number: "-" at 0, "A" to 5, "B" to 10, "C" to 20, "D" to 25, "E" to 30, "F" above.
/// These bands are not those of the codes: means of 15 and of 20 are both "C", and no mean of codes is "F".
std::string_view livelloMedio(double codice);

}  // namespace kelvo
