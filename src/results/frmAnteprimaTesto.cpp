#include "results/frmAnteprimaTesto.h"

#include <fmt/format.h>

#include <algorithm>

#include "base/file.h"
#include "base/guasto.h"

namespace kelvo {

frmAnteprimaTesto::frmAnteprimaTesto(const Contorno& contorno)
    : Finestra(contorno, "frmAnteprimaTesto", "Anteprima"),
      cmdCopia("cmdCopia", "Copia"),
      cmdChiudi("cmdChiudi", "Chiudi") {
    ordina({&txtTesto, &lblPercorso, &cmdCopia, &cmdChiudi});
    cmdCopia.abilitato(app().appunti != nullptr);
    cmdCopia.allaPressione = [this] { app().appunti->scrivi(txtTesto.testo()); };
    cmdChiudi.allaPressione = [this] {
        if (allaChiusura) {
            allaChiusura();
        }
    };
}

void frmAnteprimaTesto::mostra(const std::string& percorso, const std::string& testo) {
    std::string senzaCR = testo;
    senzaCR.erase(std::remove(senzaCR.begin(), senzaCR.end(), '\r'), senzaCR.end());
    txtTesto.testo(senzaCR);
    lblPercorso.testo(percorso);
    sottotitolo.testo(testoDaPercorso(percorsoDaTesto(percorso).filename()));
}

AnteprimaTesto::AnteprimaTesto(const Contorno& contorno, FinestreCollegate& finestre, ApriDocumenti& documenti)
    : visore(contorno), contorno_(contorno), finestre_(finestre), documenti_(documenti) {
    visore.allaChiusura = [this] { finestre_.chiudi(visore); };
}

AnteprimaTesto::~AnteprimaTesto() {
    finestre_.dimentica(visore);
}

void AnteprimaTesto::apri(const std::string& nomeFile, const std::string& testo) {
    const std::string percorso = contorno_.app.theAmbiente.CartellaLavoro() + nomeFile;
    scriviEsportazione(contorno_.app, percorso, testo);
    if (!documenti_.apri(percorso)) {
        visore.mostra(percorso, testo);
        finestre_.sovrapponi(visore);
    }
}

void scriviEsportazione(Applicazione& app, const std::string& percorso, const std::string& testo) {
    const std::string motivo = scriviFileSicuro(app.file, percorso, testo);
    if (!motivo.empty()) {
        throw Guasto::conParole(NumeroGuasto::accessoPercorso,
                                fmt::format("Impossibile scrivere \"{}\": {}", percorso, motivo));
    }
}

}  // namespace kelvo
