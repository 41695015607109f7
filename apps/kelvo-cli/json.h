#pragma once

#include <nlohmann/json.hpp>
#include <string>

#include "Contesto.h"

namespace kelvo::cli {

using Json = nlohmann::ordered_json;

/// A number that prints in the shortest form that reads back, whole numbers without a point.
Json numero(float valore);
Json numero(double valore);

/// The faults of the file at hand.
Json erroriJson(const Contesto& contesto);

/// One line of JSON.
std::string riga(const Json& json);

}  // namespace kelvo::cli
