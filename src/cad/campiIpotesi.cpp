#include "cad/campiIpotesi.h"

#include <fmt/format.h>

#include "base/numeri.h"

namespace kelvo::dxf {

std::vector<double> direzioniUguali(std::size_t rami) {
    constexpr double giro = 360.0;
    std::vector<double> direzioni;
    for (std::size_t i = 0; i < rami; ++i) {
        direzioni.push_back(giro * static_cast<double>(i) / static_cast<double>(rami));
    }
    return direzioni;
}

std::string difettoDirezioni(const std::vector<double>& direzioni) {
    if (direzioni.empty() || direzioni.front() != 0) {
        return "la direzione del ramo A deve essere 0: le altre si contano da essa";
    }
    const double minimo = pianta::Ipotesi{}.distaccoMinimo;
    constexpr double giro = 360.0;
    for (std::size_t i = 0; i < direzioni.size(); ++i) {
        const bool ultimo = i + 1 == direzioni.size();
        const double prossima = ultimo ? giro : direzioni[i + 1];
        if (!(prossima - direzioni[i] >= minimo)) {
            const auto uno = static_cast<int>(i) + 1;
            return fmt::format("tra i rami {} e {} servono almeno {} gradi, in senso antiorario", pianta::lettera(uno),
                               pianta::lettera(ultimo ? 1 : uno + 1), testoNumero(minimo));
        }
    }
    return {};
}

}  // namespace kelvo::dxf
