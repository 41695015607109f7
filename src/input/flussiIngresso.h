#pragma once

#include <vector>

#include "model/Rotonda.h"

namespace kelvo {

/// Vehicles that enter at a leg in each time segment of its composition, from 0.
///
/// With a demand curve: the bar of the segment by its minutes, rounded to whole vehicles, 0 outside the curve and where
/// it cannot be built. With counts: the counts as they are. For a saturation alone 0. Faults of `CostruisciCurva`.
std::vector<double> flussiIngresso(const Rotonda& rotonda, const Ramo& ramo);

}  // namespace kelvo
