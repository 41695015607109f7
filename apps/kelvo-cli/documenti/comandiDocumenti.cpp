#include "documenti/documenti.h"

namespace kelvo::cli {

std::vector<std::unique_ptr<Comando>> comandiDocumenti(CLI::App& radice) {
    std::vector<std::unique_ptr<Comando>> comandi;
    comandi.push_back(comandoRelazione(radice));
    comandi.push_back(comandoEsporta(radice));
    return comandi;
}

}  // namespace kelvo::cli
