#pragma once

#include <cstdint>

#include "app/Applicazione.h"
#include "calc/modCalcolo.h"

namespace kelvo {

/// Kinds of analysis of a project.
namespace analisi {
inline constexpr std::int16_t saturazione = 0;
inline constexpr std::int16_t curva = 1;
inline constexpr std::int16_t tabella = 2;
}  // namespace analisi

/// Readies the project for what-if runs: those of a demand curve go on with the ultimate capacities of a plain run, so
/// that one is made. False where it ends in a fault: figures that stand on it would mean nothing.
bool preparaIpotesi(Applicazione& app, modCalcolo& motore);

/// Runs the project's own analysis with other measures for one leg, from 1. True if it ended without a fault; false
/// for a kind of analysis that does not exist.
bool calcolaIpotesi(Applicazione& app, modCalcolo& motore, std::int16_t ramo, const Geometria& misure);

}  // namespace kelvo
