#include "checkup/frmCheckUpMessaggio.h"

#include <fmt/format.h>

#include "base/versione.h"

namespace kelvo {

namespace {

std::string gruppo(std::string_view chiave) {
    switch (chiave.empty() ? '\0' : chiave.front()) {
        case 'R':
            return "Messaggi di Errore : ";
        case 'Y':
            return "Messaggi di Verifica : ";
        case 'G':
            return "Messaggi di Informazione : ";
        default:
            return {};
    }
}

/// "1.0" of "1.0.3".
std::string_view versioneBreve() {
    const std::string_view intera = versione();
    const auto minore = intera.find('.');
    return intera.substr(0, intera.find('.', minore + 1));
}

}  // namespace

frmCheckUpMessaggio::frmCheckUpMessaggio(const Contorno& contorno, const Riscontro& riscontro)
    : Finestra(contorno, "frmCheckUpMessaggio",
               fmt::format("Kelvo {} - CheckUp Rotatoria messaggio - {}", versioneBreve(),
                           contorno.app.theRotonda().NomeFile())),
      lblGruppo("lblGruppo", gruppo(riscontro.chiave)),
      ctlLivello("ctlLivello", std::string{nomeLivello(riscontro.livello)}),
      lblMessaggio("lblMessaggio", riscontro.testo) {
    ordina({&lblGruppo, &ctlLivello, &lblMessaggio, &cmdVaiAlCampo, &ImageCHIUDI});
    cmdVaiAlCampo.abilitato(!riscontro.meta.chiave.empty());
    cmdVaiAlCampo.allaPressione = [this] {
        vaiAlCampo_ = true;
        chiudi();
    };
    ImageCHIUDI.allaPressione = [this] { chiudi(); };
}

void frmCheckUpMessaggio::chiudi() {
    if (allaChiusura) {
        allaChiusura();
    }
}

}  // namespace kelvo
