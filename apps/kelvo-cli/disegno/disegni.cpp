#include "disegno/disegni.h"

#include <fmt/format.h>

#include "Pittore.h"
#include "argomenti.h"
#include "base/file.h"

namespace kelvo::cli {

std::string usoDisegno(const std::string& uscita) {
    return formatoDiFile(uscita) ? std::string{}
                                 : fmt::format("{}: serve un nome che finisce con .png, .svg o .pdf", citato(uscita));
}

bool scriviDisegno(Contesto& contesto, const std::string& uscita,
                   const std::function<EsitoDisegno(Disegnatore&, FormatoDisegno)>& disegna) {
    const auto pittore = creaPittore(contesto.app().theAmbiente.PercorsoProgramma("Caratteri"));
    const EsitoDisegno esito = disegna(pittore->disegnatore(), *formatoDiFile(uscita));
    const std::string errore =
        esito.errore.empty() ? scriviFileSicuro(contesto.app().file, uscita, esito.dati) : esito.errore;
    if (!errore.empty()) {
        avvisa(fmt::format("Impossibile scrivere il disegno: {} ({})", errore, uscita));
    }
    return errore.empty();
}

}  // namespace kelvo::cli
