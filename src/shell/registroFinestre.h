#pragma once

#include "shell/FabbricaFinestre.h"

namespace kelvo {

/// Registers every window of the work area, and those over it.
void registraFinestre(FabbricaFinestre& finestre);

}  // namespace kelvo
