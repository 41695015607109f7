#include "input/misureIngresso.h"

#include <fmt/format.h>

namespace kelvo {

std::string notaConsigliato(const MisuraIngresso& misura, float valore) {
    if (valore >= misura.consigliatoMinimo && valore <= misura.consigliatoMassimo) {
        return {};
    }
    return fmt::format("fuori dal campo consigliato {} ÷ {}", formatta(misura.consigliatoMinimo, misura.campo.formato),
                       formatta(misura.consigliatoMassimo, misura.campo.formato));
}

}  // namespace kelvo
