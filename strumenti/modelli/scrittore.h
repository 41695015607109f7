#pragma once

#include <string>
#include <vector>

#include "modelli/Modello.h"

namespace kelvo::modelli {

/// The text of the template as the part "word/document.xml".
std::string scriviDocumento(const std::vector<Blocco>& blocchi);

}  // namespace kelvo::modelli
