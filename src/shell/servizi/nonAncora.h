#pragma once

#include <string_view>

namespace kelvo {

/// What a closed key tells.
inline constexpr std::string_view notaNonAncora = "Non ancora disponibile in questa versione";

}  // namespace kelvo
