#pragma once

#include <string_view>

namespace kelvo {

/// Version of the program, "major.minor.revision"; set once, by the build.
std::string_view versione();

}  // namespace kelvo
