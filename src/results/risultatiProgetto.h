#pragma once

#include <string>

#include "app/Applicazione.h"

namespace kelvo {

/// Makes the records those of the project as it stands, before anything with results is printed or exported: where they
/// are missing, older than the data or of a what-if, runs the operation of the project's kind of analysis. False where
/// that ends in a fault, which its own handler has told the user, and for a kind of analysis that does not exist, which
/// is told as fault 5.
bool assicuraRisultati(Applicazione& app);

/// Why no calculation fits the project's kind of analysis; an empty text where one does.
std::string impedimentoAnalisi(const Rotonda& rotonda);

/// True for a kind of analysis that leaves records over time.
bool analisiNelTempo(const Rotonda& rotonda);

}  // namespace kelvo
