#include "shell/finestrePerChiave.h"

namespace kelvo {

namespace {

bool cifraDiRamo(char c) {
    return c >= '1' && c <= '7';
}

bool combacia(const FinestraDiChiave& riga, std::string_view chiave) {
    if (!riga.perRamo) {
        return chiave == riga.chiave;
    }
    return chiave.size() == riga.chiave.size() + 1 && chiave.substr(0, riga.chiave.size()) == riga.chiave &&
           cifraDiRamo(chiave.back());
}

}  // namespace

std::string_view finestraDiChiave(std::string_view chiave) {
    for (const FinestraDiChiave& riga : finestrePerChiave) {
        if (combacia(riga, chiave)) {
            return riga.finestra;
        }
    }
    return finestraVuota;
}

}  // namespace kelvo
