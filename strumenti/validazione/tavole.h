#pragma once

#include <string>

namespace kelvo::validazione {

/// The tables of the validation report, and how the comparisons ended.
struct Tavole {
    std::string testo;  ///< Markdown
    int confronti = 0;
    int fuori = 0;  ///< comparisons out of tolerance
};

/// Runs the engine on every case of the folder and sets what it finds beside what the case expects.
/// Throws std::runtime_error for a case that cannot be read or computed.
Tavole tavole(const std::string& cartellaCasi);

}  // namespace kelvo::validazione
