#pragma once

#include <cstdint>

#include "app/Applicazione.h"

namespace kelvo {

/// Makes the project at hand a new one of `numeroRami` legs: everything at its default, the legs named "Ramo A" and
/// on, with the vehicle coefficients of the configuration in memory. Fault 5 outside 3 to 7 legs.
void creaProgetto(Applicazione& app, std::int16_t numeroRami);

}  // namespace kelvo
