#pragma once

#include "app/Applicazione.h"

namespace kelvo {

/// Makes the records those of the project as it stands, before anything with results is printed or exported: where they
/// are missing, older than the data or of a what-if, runs the operation of the project's kind of analysis. False where
/// that ends in a fault, which its own handler has told the user.
bool assicuraRisultati(Applicazione& app);

/// True for a kind of analysis that leaves records over time.
bool analisiNelTempo(const Rotonda& rotonda);

}  // namespace kelvo
