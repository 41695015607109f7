#pragma once

#include <nlohmann/json.hpp>
#include <string>

namespace kelvo::prove {

/// Keys in the order of the file.
using Json = nlohmann::ordered_json;

// The folder of the example projects, and those that the tests call by name.
inline const std::string progetti = KELVO_CARTELLA "/../Progetti";
inline const std::string mulini = "Rotatoria_Via_dei_Mulini";
inline const std::string stazione = "Rotatoria_Viale_della_Stazione";
inline const std::string est = "Rotatoria_Tangenziale_est";
inline const std::string aurelia = "Rotatoria_Aurelia_Sette_Strade";
inline const std::string piazza = "Rotatoria_Piazza_Italia";

}  // namespace kelvo::prove
