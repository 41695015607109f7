#include "shell/frmINFO.h"

#include <fmt/format.h>

#include "base/versione.h"

namespace kelvo {

frmINFO::frmINFO(const Contorno& contorno)
    : Finestra(contorno, "frmINFO", "Informazioni sul programma"),
      lblProgramma("lblProgramma", "KELVO 2014"),
      lblVersione("lblVersione", fmt::format("Versione {}", versione())),
      lblProduttore("lblProduttore", "Vaq") {
    ordina({&lblProgramma, &lblVersione, &lblProduttore, &cmdOk});
    cmdOk.allaPressione = [this] {
        if (allaChiusura) {
            allaChiusura();
        }
    };
}

}  // namespace kelvo
