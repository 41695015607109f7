#include "shell/barraPrincipale.h"

#include <algorithm>
#include <string>

#include "base/guasto.h"
#include "shell/menuPrincipale.h"

namespace kelvo {

std::vector<BarraStrumenti::Tasto> tastiBarraPrincipale() {
    std::vector<BarraStrumenti::Tasto> tasti;
    tasti.reserve(barraPrincipale.size());
    for (const RigaBarra& riga : barraPrincipale) {
        tasti.push_back({.chiave = std::string{riga.chiave},
                         .testo = std::string{riga.descrizione},
                         .suggerimento = std::string{riga.suggerimento},
                         .icona = std::string{riga.icona},
                         .abilitato = true,
                         .scorciatoia = std::string{scorciatoiaDiVoce(riga.argomento)},
                         .separatoreDopo = riga.separatoreDopo});
    }
    return tasti;
}

const RigaBarra& rigaBarra(std::string_view chiave) {
    const auto* const trovata = std::find_if(barraPrincipale.begin(), barraPrincipale.end(),
                                             [&](const RigaBarra& riga) { return riga.chiave == chiave; });
    if (trovata == barraPrincipale.end()) {
        throw Guasto(NumeroGuasto::indiceFuoriIntervallo, "tasto '" + std::string{chiave} + "'");
    }
    return *trovata;
}

}  // namespace kelvo
