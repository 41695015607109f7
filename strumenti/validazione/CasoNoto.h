#pragma once

#include <map>
#include <string>
#include <vector>

#include "model/Ramo.h"

namespace kelvo::validazione {

/// One case of tests/calc/casi: lines "key=value", among them its source (`fonte`), its title (`titolo`), what is put
/// in and the expected figures as they are printed in the source, with a decimal point.
using CasoNoto = std::map<std::string, std::string>;

/// Reads a case. Throws std::runtime_error if the file cannot be read or names no source.
CasoNoto leggiCaso(const std::string& percorso);

/// Files of the folder whose names begin so, in order.
std::vector<std::string> fileDeiCasi(const std::string& cartella, const std::string& inizio);

/// A figure of the case. Throws std::runtime_error if it is missing or no number.
double numero(const CasoNoto& caso, const std::string& chiave);

/// The same as the single that the model keeps.
float misura(const CasoNoto& caso, const std::string& chiave);

/// Decimals with which a figure is printed.
int decimali(const CasoNoto& caso, const std::string& chiave);

/// Gives a leg the six measures of the case: e, v, l, D, phi, r.
void applica(Ramo& ramo, const CasoNoto& caso);

}  // namespace kelvo::validazione
