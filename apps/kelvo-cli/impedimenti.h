#pragma once

#include <cstdint>
#include <string>

#include "Comando.h"
#include "model/Rotonda.h"
#include "results/risultatiProgetto.h"

namespace kelvo::cli {

// Why a project does not allow what a command asks for. For any calculation it is `impedimentoAnalisi` that tells.

/// For the peak hours: the kind of analysis.
std::string impedimentoSintesi(const Rotonda& rotonda);
/// For right-turn lanes: kind of analysis and number of legs.
std::string impedimentoCorsie(const Rotonda& rotonda);
/// For what is asked of one leg, from 1: that it does not exist.
Impedimento impedimentoRamo(const Rotonda& rotonda, std::int16_t ramo);

}  // namespace kelvo::cli
