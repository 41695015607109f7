#include "results/tipiProgetto.h"

#include <fmt/format.h>

#include <array>

namespace kelvo {

namespace {

constexpr std::array analisi{"sola saturazione", "curva di traffico", "tabella dei flussi per segmento"};
constexpr std::array composizione{"costante", "per segmento di tempo"};
constexpr std::array matrice{"in veicoli", "in percentuale"};

template <std::size_t N>
std::string voce(const std::array<const char*, N>& voci, std::int16_t valore) {
    const bool nota = valore >= 0 && static_cast<std::size_t>(valore) < N;
    return nota ? voci[static_cast<std::size_t>(valore)] : paroleNonPrevisto(valore);
}

}  // namespace

std::string paroleNonPrevisto(std::int16_t numero) {
    return fmt::format("non previsto ({})", numero);
}

std::string paroleAnalisi(std::int16_t tipo) {
    return voce(analisi, tipo);
}

std::string paroleComposizione(std::int16_t tipo) {
    return voce(composizione, tipo);
}

std::string paroleMatrice(std::int16_t tipo) {
    return voce(matrice, tipo);
}

}  // namespace kelvo
