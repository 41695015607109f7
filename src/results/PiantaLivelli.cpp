#include "results/PiantaLivelli.h"

#include <fmt/format.h>

#include <utility>

#include "base/numeri.h"

namespace kelvo {

PiantaLivelli::PiantaLivelli(std::string nome)
    : ControlloPianta(std::move(nome), [this] {
          return dati_.rami.empty() ? DocumentoPagine::Pianta{} : piantaDaMostrare(dati_, opzioni());
      }) {}

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

}  // namespace kelvo
