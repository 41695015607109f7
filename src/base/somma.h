#pragma once

#include <span>

namespace kelvo {

/// What singles add up to as their texts show them: the decimals of their plain text forms are added up in double
/// precision and rounded to single once, so that figures which are 100 on paper are 100 here. Fault 6 for a sum past
/// the range of a single, and for an infinity or a NaN.
float sommaMostrata(std::span<const float> valori);

}  // namespace kelvo
