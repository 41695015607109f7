#pragma once

#include <cstdint>

#include "app/Applicazione.h"

namespace kelvo {

/// Makes the project at hand a new one of `numeroRami` legs: everything at its default, the legs named "Ramo A" and
/// on, with the vehicle coefficients of the configuration in memory; no leg is the current one. Fault 5 outside 3 to 7
/// legs. What else a new project asks for is the business of the window that makes it: the trace lines, the flag of an
/// open project, the tree.
void creaProgetto(Applicazione& app, std::int16_t numeroRami);

}  // namespace kelvo
