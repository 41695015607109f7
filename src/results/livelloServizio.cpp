#include "results/livelloServizio.h"

#include "base/numeri.h"

namespace kelvo {

namespace {

struct Banda {
    std::string_view livello;
    double limite;  ///< upper limit of the delay, s/veic, part of the band
    int codice;
};

constexpr std::array bande{
    Banda{"A", 10.0, 5}, Banda{"B", 15.0, 10}, Banda{"C", 25.0, 15}, Banda{"D", 35.0, 20}, Banda{"E", 50.0, 25},
};
constexpr std::string_view ultimoLivello = "F";
constexpr int ultimoCodice = 30;
constexpr std::string_view nessunLivello = "-";

}  // namespace

std::string_view livelloServizio(double ritardoMostrato) {
    if (ritardoMostrato == 0.0) {
        return nessunLivello;
    }
    for (const Banda& banda : bande) {
        if (ritardoMostrato <= banda.limite) {
            return banda.livello;
        }
    }
    return ultimoLivello;
}

std::string_view livelloDiRitardo(float ritardo) {
    return livelloServizio(leggiNumero(formatta(ritardo, "#0.0")).value_or(0.0));
}

int codiceLivello(std::string_view livello) {
    for (const Banda& banda : bande) {
        if (banda.livello == livello) {
            return banda.codice;
        }
    }
    return livello == ultimoLivello ? ultimoCodice : 0;
}

std::string_view livelloDiCodice(int codice) {
    const int posto = codice / passoCodici;
    const bool noto = codice >= 0 && codice <= ultimoCodice && codice % passoCodici == 0;
    return noto ? livelliServizio[static_cast<std::size_t>(posto)] : nessunLivello;
}

std::string_view livelloMedio(double codice) {
    constexpr std::array limiti{0.0, 5.0, 10.0, 20.0, 25.0, 30.0};
    constexpr std::array<std::string_view, limiti.size()> lettere{"-", "A", "B", "C", "D", "E"};
    for (std::size_t i = 0; i < limiti.size(); ++i) {
        if (codice <= limiti[i]) {
            return lettere[i];
        }
    }
    return ultimoLivello;
}

}  // namespace kelvo
