#pragma once

#include <string>

#include "model/Rotonda.h"
#include "results/risultatiProgetto.h"

namespace kelvo::cli {

// Why a project does not allow what a command asks for; an empty text where it does. For any calculation it is
// `impedimentoAnalisi` that tells.

/// For the peak hours: the kind of analysis.
std::string impedimentoSintesi(const Rotonda& rotonda);
/// For right-turn lanes: kind of analysis and number of legs.
std::string impedimentoCorsie(const Rotonda& rotonda);

}  // namespace kelvo::cli
