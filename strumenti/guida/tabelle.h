#pragma once

#include <vector>

#include "guida/pezzi.h"

namespace kelvo::guida {

/// A table as pieces, a row each; its headings stand above the first row of every page.
void righeTabella(const Tabella& tabella, const Numeri& numeri, std::vector<Pezzo>& pezzi);

}  // namespace kelvo::guida
