#include "model/ComposizioneTraffico.h"

#include <fmt/format.h>

#include "base/guasto.h"

namespace kelvo {

namespace {

[[noreturn]] void fuori(std::int16_t segmento, std::int16_t classe) {
    throw Guasto(NumeroGuasto::indiceFuoriIntervallo, fmt::format("segmento {}, categoria {}", segmento, classe));
}

}  // namespace

void ComposizioneTraffico::NumSegmentiTempo(std::int16_t valore) {
    if (valore < 0) {
        throw Guasto(NumeroGuasto::indiceFuoriIntervallo, fmt::format("{} segmenti di tempo", valore));
    }
    categorie_.assign(static_cast<std::size_t>(valore), PerClasse{});
    segnaDato();
}

float ComposizioneTraffico::CategoriaSegmento(std::int16_t segmento, std::int16_t classe) const {
    if (segmento < 0 || classe < 0 || classe >= numeroClassi) {
        fuori(segmento, classe);
    }
    const auto riga = static_cast<std::size_t>(segmento);
    return riga < categorie_.size() ? categorie_[riga][static_cast<std::size_t>(classe)] : 0.0F;
}

void ComposizioneTraffico::CategoriaSegmento(float valore, std::int16_t segmento, std::int16_t classe) {
    const auto riga = static_cast<std::size_t>(segmento);
    if (segmento < 0 || classe < 0 || classe >= numeroClassi || riga >= categorie_.size()) {
        fuori(segmento, classe);
    }
    scriviDato(categorie_[riga][static_cast<std::size_t>(classe)], valore);
}

}  // namespace kelvo
