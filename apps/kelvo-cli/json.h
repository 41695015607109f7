#pragma once

#include <nlohmann/json.hpp>
#include <string>

#include "Contesto.h"
#include "base/Tabella.h"

namespace kelvo::cli {

using Json = nlohmann::ordered_json;

/// A number that prints in the shortest form that reads back, whole numbers without a point.
Json numero(float valore);
Json numero(double valore);

/// The texts of the cells of a table, row by row.
Json tabellaJson(const Tabella& tabella);

/// The faults of the file at hand.
Json erroriJson(const Contesto& contesto);

/// One line of JSON.
std::string riga(const Json& json);

}  // namespace kelvo::cli
