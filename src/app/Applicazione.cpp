#include "app/Applicazione.h"

#include <cmath>

namespace kelvo {

void Applicazione::caricaRotonda(const std::string& percorso, std::string& messaggio, bool& esito) {
    rotonda_->Load(percorso, messaggio, esito);
    if (esito) {
        altroProgetto();
    }
}

DataOra Applicazione::giorno() const {
    return std::floor(orologio.adesso());
}

}  // namespace kelvo
