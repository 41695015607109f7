#include "Comando.h"

namespace kelvo::cli {

std::vector<std::unique_ptr<Comando>> comandiDocumenti(CLI::App& /*radice*/) {
    return {};
}

}  // namespace kelvo::cli
