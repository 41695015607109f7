#pragma once

#include <cstdint>

#include "model/Rotonda.h"

namespace kelvo {

/// Copies the demand of leg `da` to leg `a`, positions from 1: flows, times and the counts of the segments; then the
/// records of the target are dropped. FlussoOrario takes the source's FlussoMedio. Fault 9 for a leg that does not
/// exist or a target with fewer segments.
void copiaDatiTraffico(Rotonda& rotonda, std::int16_t da, std::int16_t a);

/// Copies the vehicle mix of leg `da` to leg `a`, positions from 1: shares and the table of the segments, but not the
/// equivalents; then the records of the target are dropped. Faults as above.
void copiaComposizioneTraffico(Rotonda& rotonda, std::int16_t da, std::int16_t a);

}  // namespace kelvo
