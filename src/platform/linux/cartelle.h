#pragma once

#include <string>

namespace kelvo {

/// Folder of the running program, links resolved, without a separator at its end.
std::string cartellaEseguibile();

/// Folder of the user's temporary files.
std::string cartellaTemporanea();

}  // namespace kelvo
