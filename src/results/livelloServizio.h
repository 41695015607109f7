#pragma once

#include <string>
#include <string_view>

namespace kelvo {

/// Level of service of a delay in s/veic as displayed to one decimal: "-" at 0, "A" to 10, "B" to 15, "C" to 25,
/// "D" to 35, "E" to 50, "F" above; a delay on a bound takes the better level.
/// Source: Highway Capacity Manual, yield control. Grades the delay alone, whatever the saturation.
std::string_view livelloServizio(double ritardoMostrato);

/// The level of a delay as it is kept in a record: shown under "#0.0" first, then graded.
std::string_view livelloDiRitardo(float ritardo);

/// Code of a level for charts and means: "-" 0, "A" 5, "B" 10, ... "F" 30; 0 for any other text.
int codiceLivello(std::string_view livello);

}  // namespace kelvo
