#include "Pittore.h"

namespace kelvo::cli {

std::unique_ptr<Pittore> creaPittore(const std::string& /*cartellaCaratteri*/) {
    return nullptr;
}

}  // namespace kelvo::cli
