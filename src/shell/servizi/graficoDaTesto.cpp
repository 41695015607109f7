#include "base/numeri.h"
#include "shell/servizi/Grafico.h"

namespace kelvo {

namespace {

constexpr char divisore = '*';

}  // namespace

std::vector<std::string> etichetteDaTesto(std::string_view testo) {
    std::vector<std::string> parole;
    while (!testo.empty()) {
        const auto fine = testo.find(divisore);
        parole.emplace_back(testo.substr(0, fine));
        if (fine == std::string_view::npos) {
            break;
        }
        testo.remove_prefix(fine + 1);
        if (testo.empty()) {
            parole.emplace_back();  // what stands behind the last mark
        }
    }
    return parole;
}

std::vector<double> valoriDaTesto(std::string_view testo) {
    std::vector<double> valori;
    for (const std::string& parola : etichetteDaTesto(testo)) {
        valori.push_back(leggiNumero(parola, Separatore::virgolaOPunto).value_or(0.0));
    }
    return valori;
}

}  // namespace kelvo
