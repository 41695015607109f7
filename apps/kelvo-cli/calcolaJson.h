#pragma once

#include <string>

#include "json.h"

namespace kelvo::cli {

/// What a run left in the project at hand: options, legs with their parameters and records (record 1 first), faults.
/// After a fault it holds what was written before it; of a file that was not loaded only the faults.
/// `premessa` are members that tell the run's form, empty for the project's own figures.
Json calcolaJson(Contesto& contesto, const std::string& file, const Json& premessa);

}  // namespace kelvo::cli
