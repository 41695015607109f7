#pragma once

#include "app/Applicazione.h"
#include "calc/simulazione.h"
#include "nucleo.h"

namespace kelvo::misure {

/// Fills the project at hand with a full study: `rami` legs, 72 segments of five minutes, demand as curve and as table,
/// composition for the window and for each segment, pedestrians on every other leg.
void riempiProgetto(Applicazione& app, std::int16_t rami);

/// The same numbers for the bare run.
Nucleo nucleoDi(const Applicazione& app, Domanda domanda, bool perSegmento);

}  // namespace kelvo::misure
