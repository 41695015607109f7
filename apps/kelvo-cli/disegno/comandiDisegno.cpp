#include "Comando.h"
#include "disegno/disegni.h"

namespace kelvo::cli {

std::vector<std::unique_ptr<Comando>> comandiDisegno(CLI::App& radice) {
    std::vector<std::unique_ptr<Comando>> comandi;
    comandi.push_back(comandoPianta(radice));
    comandi.push_back(comandoGrafico(radice));
    return comandi;
}

}  // namespace kelvo::cli
