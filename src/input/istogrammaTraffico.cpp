#include "input/istogrammaTraffico.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/numeri.h"

namespace kelvo {

namespace {

constexpr const char* titoloOre = "[ora]";
constexpr double intervalliMassimi = 7.0;

/// Distance of the lines of an axis as long as `lunghezza`, above 0: 1, 2 or 5 times a power of ten.
double passoTondo(double lunghezza) {
    const double decina = std::pow(10.0, std::floor(std::log10(lunghezza / intervalliMassimi)));
    for (const double volte : std::array{1.0, 2.0, 5.0}) {
        if (std::ceil(lunghezza / (volte * decina)) <= intervalliMassimi) {
            return volte * decina;
        }
    }
    return 10.0 * decina;
}

Grafico::Asse asseValori(const std::vector<double>& valori, std::string_view unita) {
    const double massimo = valori.empty() ? 0.0 : std::max(0.0, *std::max_element(valori.begin(), valori.end()));
    const double minimo = valori.empty() ? 0.0 : std::min(0.0, *std::min_element(valori.begin(), valori.end()));
    const double lunghezza = massimo - minimo;
    const double passo = passoTondo(lunghezza > 0.0 ? lunghezza : 1.0);
    const double sopra = std::ceil((lunghezza > 0.0 ? massimo : 1.0) / passo);
    const double sotto = std::floor(minimo / passo);
    return {.titolo = std::string{unita},
            .minimo = sotto * passo,
            .massimo = sopra * passo,
            .tacche = static_cast<int>(sopra - sotto) + 1};
}

}  // namespace

std::string testoGrafico(const std::vector<std::string>& testi) {
    std::string uniti;
    for (const std::string& testo : testi) {
        uniti += (&testo == testi.data() ? "" : "*") + testo;
    }
    std::replace(uniti.begin(), uniti.end(), ',', '.');
    return uniti;
}

Grafico::Contenuto istogrammaTraffico(const Istogramma& istogramma) {
    Grafico::Contenuto contenuto;
    Grafico::Serie barre{
        .forma = Grafico::Forma::barre, .colore = istogramma.colore, .valori = valoriDaTesto(istogramma.valori)};
    for (const double valore : barre.valori) {
        barre.testi.push_back(formatta(valore, "#0.00"));
    }
    contenuto.x = {.titolo = titoloOre,
                   .minimo = 0.0,
                   .massimo = static_cast<double>(barre.valori.size()),
                   .tacche = static_cast<int>(barre.valori.size()) + 1,
                   .etichette = etichetteDaTesto(istogramma.etichette),
                   .passiPerEtichetta = 1.0,
                   .posa = Grafico::Posa::centro};
    contenuto.y = asseValori(barre.valori, istogramma.unita);
    contenuto.serie = {barre};
    contenuto.valori = istogramma.mostraValori;
    return contenuto;
}

}  // namespace kelvo
