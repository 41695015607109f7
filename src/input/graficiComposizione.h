#pragma once

#include <string>

#include "shell/servizi/Grafico.h"

namespace kelvo {

/// Names of the classes as the charts of a composition take them, joined by "*".
inline constexpr const char* nomiCategorie =
    "Autoarticolati*Autotreni*Autobus*Camper*Roulotte*Veicoli a due ruote*Autovetture";

/// The shares of a composition as slices; a class at 0 is listed too. `valori`: seven per cents joined by "*", with a
/// decimal point.
Grafico::Contenuto tortaComposizione(const std::string& valori);
/// The same shares as bars.
Grafico::Contenuto barreComposizione(const std::string& valori);

}  // namespace kelvo
