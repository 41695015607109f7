#pragma once

#include <cstddef>

namespace kelvo::prove {

/// Allocations of the whole program since it was started, by any form of operator new.
std::size_t allocazioni();

}  // namespace kelvo::prove
