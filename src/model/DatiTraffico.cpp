#include "model/DatiTraffico.h"

#include <fmt/format.h>

#include "base/guasto.h"

namespace kelvo {

void DatiTraffico::NumSegmentiTempo(std::int16_t valore) {
    if (valore < 0) {
        throw Guasto(NumeroGuasto::indiceFuoriIntervallo, fmt::format("{} segmenti di tempo", valore));
    }
    numSegmentiTempo_ = valore;
    flussi_.assign(static_cast<std::size_t>(valore), 0.0F);
    record_.clear();
    segnaDato();
}

void DatiTraffico::aggiungiIterazione(std::int16_t indice, const Iterazione& record) {
    if (indice < 1) {
        throw Guasto(NumeroGuasto::indiceFuoriIntervallo, fmt::format("record {}", indice));
    }
    record_.resize(static_cast<std::size_t>(indice));
    record_.back() = record;
}

void DatiTraffico::PreparaIterazioni(std::int16_t ultimo) {
    if (ultimo > 0) {
        record_.reserve(static_cast<std::size_t>(ultimo));
    }
}

Iterazione DatiTraffico::GetIterazione(std::int16_t indice) const {
    if (indice < 1) {
        throw Guasto(NumeroGuasto::indiceFuoriIntervallo, fmt::format("record {}", indice));
    }
    const auto numero = static_cast<std::size_t>(indice);
    return numero <= record_.size() ? record_[numero - 1] : Iterazione{};
}

void DatiTraffico::FlussoSegmento(float valore, std::int16_t segmento, std::int16_t colonna) {
    if (colonna != 0 || segmento < 0 || segmento >= numSegmentiTempo_) {
        throw Guasto(NumeroGuasto::indiceFuoriIntervallo, fmt::format("segmento {}, colonna {}", segmento, colonna));
    }
    scriviDato(flussi_[static_cast<std::size_t>(segmento)], valore);
}

float DatiTraffico::FlussoSegmento(std::int16_t segmento, std::int16_t colonna) const {
    if (colonna != 0 || segmento < 0) {
        throw Guasto(NumeroGuasto::indiceFuoriIntervallo, fmt::format("segmento {}, colonna {}", segmento, colonna));
    }
    return segmento < numSegmentiTempo_ ? flussi_[static_cast<std::size_t>(segmento)] : 0.0F;
}

}  // namespace kelvo
