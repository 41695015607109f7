#include "shell/CampiFinestre.h"

#include <algorithm>

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

bool CampiFinestre::fuocoSu(std::string_view campo) {
    Finestra* finestra = gestione_.corrente();
    Controllo* trovato = controllo(finestra, campo);
    return trovato != nullptr && finestra->fuocoSu(*trovato);
}

}  // namespace kelvo
