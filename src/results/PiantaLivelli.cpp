#include "results/PiantaLivelli.h"

#include <fmt/format.h>

#include <utility>

#include "base/numeri.h"

namespace kelvo {

void PiantaLivelli::dati(pianta::DatiPianta valore) {
    dati_ = std::move(valore);
    if (stati_.size() != dati_.rami.size()) {
        stati_.clear();
    }
    cambiato().emit();
}

void PiantaLivelli::stati(std::vector<pianta::StatoIngresso> valore) {
    const bool nuovaForma = valore.size() != stati_.size();
    if (valore != stati_) {
        stati_ = std::move(valore);
        (nuovaForma ? cambiato() : statiMutati_).emit();
    }
}

pianta::OpzioniPianta PiantaLivelli::opzioni() const {
    return {.vista = pianta::Vista::intera, .stati = stati_};
}

std::string PiantaLivelli::descrizione() const {
    std::string parole;
    for (std::size_t i = 0; i < stati_.size(); ++i) {
        parole +=
            fmt::format("{}{}: livello {}, coda {} veic", i == 0 ? "" : "; ", pianta::lettera(static_cast<int>(i) + 1),
                        stati_[i].livello, formatta(stati_[i].coda, "#0.0"));
    }
    return parole;
}

MenuPianta::MenuPianta(Finestra& finestra, const Contorno& contorno, PiantaLivelli& pianta)
    : MenuImmagine(finestra, contorno, pianta.nome()), pianta_(pianta) {
    pianta_.menuCompleto = [this]() -> MenuChiavi& { return menu(); };
}

std::string MenuPianta::vuota() const {
    return pianta_.dati().rami.empty() ? "La pianta non ha dati" : std::string{};
}

EsitoDisegno MenuPianta::disegna(FormatoDisegno formato) const {
    return contorno().servizi.disegnatore->pianta(pianta_.dati(), pianta_.opzioni(), formato,
                                                  {.scala = scalaImmagineDati});
}

}  // namespace kelvo
