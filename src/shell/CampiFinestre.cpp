#include "shell/CampiFinestre.h"

#include <algorithm>

#include "shell/servizi/Griglia.h"
#include "shell/servizi/tBox.h"

namespace kelvo {

namespace {

Controllo* controllo(const Finestra* finestra, std::string_view nome) {
    if (finestra == nullptr) {
        return nullptr;
    }
    const auto& tutti = finestra->ordine();
    const auto trovato =
        std::find_if(tutti.begin(), tutti.end(), [&](const Controllo* c) { return c->nome() == nome; });
    return trovato == tutti.end() ? nullptr : *trovato;
}

/// The first control behind one, round the window, that may be typed into; null for none.
Controllo* scrivibileDopo(const Finestra& finestra, const Controllo& chiuso) {
    const auto& tutti = finestra.ordine();
    const auto quanti = tutti.size();
    const auto posto = static_cast<std::size_t>(std::find(tutti.begin(), tutti.end(), &chiuso) - tutti.begin());
    for (std::size_t i = 1; i < quanti; ++i) {
        Controllo* c = tutti[(posto + i) % quanti];
        const auto* casella = dynamic_cast<const tBox*>(c);
        const bool scrivibile =
            casella != nullptr ? !casella->solaLettura() : dynamic_cast<const Griglia*>(c) != nullptr;
        if (scrivibile && c->prendeFuoco()) {
            return c;
        }
    }
    return nullptr;
}

/// Puts the cursor on the first cell of a row where it may stop.
void portaSuRiga(Griglia& griglia, int riga) {
    for (int c = griglia.colonneFisse(); c < griglia.tabella().colonne(); ++c) {
        if (griglia.corrente({riga, c})) {
            return;
        }
    }
}

}  // namespace

std::optional<std::string> CampiFinestre::testo(std::string_view finestra, std::string_view campo) const {
    const Controllo* trovato = controllo(finestre_.viva(finestra), campo);
    if (const auto* casella = dynamic_cast<const tBox*>(trovato)) {
        return casella->testo();
    }
    if (const auto* area = dynamic_cast<const AreaTesto*>(trovato)) {
        return area->testo();
    }
    return std::nullopt;
}

bool CampiFinestre::fuocoSu(std::string_view campo, int riga) {
    Finestra* finestra = gestione_.corrente();
    Controllo* trovato = controllo(finestra, campo);
    Controllo* meta = trovato == nullptr || trovato->prendeFuoco() ? trovato : scrivibileDopo(*finestra, *trovato);
    if (meta == nullptr || !finestra->fuocoSu(*meta)) {
        return false;
    }
    if (auto* griglia = dynamic_cast<Griglia*>(meta); griglia != nullptr && meta == trovato && riga > 0) {
        portaSuRiga(*griglia, riga);
    }
    return true;
}

}  // namespace kelvo
