#include "shell/servizi/tinte.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

namespace kelvo {

namespace {

constexpr double contrastoMinimo = 4.5;

double canale(std::uint8_t valore) {
    const double v = valore / 255.0;
    return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
}

double luminanza(Colore c) {
    return 0.2126 * canale(c.rosso) + 0.7152 * canale(c.verde) + 0.0722 * canale(c.blu);
}

bool grigio(Colore c) {
    return c.rosso == c.verde && c.verde == c.blu;
}

Colore verso(Colore c, Colore meta, double quanto) {
    const auto mescola = [quanto](std::uint8_t da, std::uint8_t a) {
        return static_cast<std::uint8_t>(std::lround(da + (a - da) * quanto));
    };
    return {mescola(c.rosso, meta.rosso), mescola(c.verde, meta.verde), mescola(c.blu, meta.blu)};
}

struct VoceLivello {
    std::string_view livello;
    Distintivo distintivo;
};
constexpr std::array livelli{
    VoceLivello{"A", {{0, 98, 0}, colori::bianco, {0, 98, 0}}},
    VoceLivello{"B", {{63, 122, 0}, colori::bianco, {63, 122, 0}}},
    VoceLivello{"C", {{164, 196, 0}, tinta::inchiostro, {164, 196, 0}}},
    VoceLivello{"D", {{255, 210, 77}, tinta::inchiostro, {255, 210, 77}}},
    VoceLivello{"E", {{240, 138, 36}, tinta::inchiostro, {240, 138, 36}}},
    VoceLivello{"F", {{140, 0, 25}, {255, 255, 102}, {140, 0, 25}}},
};
constexpr Distintivo senzaLivello{colori::bianco, tinta::inchiostro, tinta::bordoCampo};

}  // namespace

double contrasto(Colore a, Colore b) {
    const double alta = std::max(luminanza(a), luminanza(b));
    const double bassa = std::min(luminanza(a), luminanza(b));
    return (alta + 0.05) / (bassa + 0.05);
}

Colore neroOBianco(Colore sfondo) {
    return contrasto(colori::nero, sfondo) > contrasto(colori::bianco, sfondo) ? colori::nero : colori::bianco;
}

Colore inchiostroLeggibile(Colore testo, Colore sfondo) {
    constexpr int passi = 20;
    if (contrasto(testo, sfondo) >= contrastoMinimo) {
        return testo;
    }
    const bool chiaro = neroOBianco(sfondo) == colori::nero;
    if (grigio(testo) && chiaro) {
        return tinta::inchiostro;
    }
    Colore provato = testo;
    for (int i = 1; i <= passi && contrasto(provato, sfondo) < contrastoMinimo; ++i) {
        provato = verso(testo, chiaro ? colori::nero : colori::bianco, i / static_cast<double>(passi));
    }
    return provato;
}

Distintivo distintivoLivello(std::string_view livello) {
    const auto* trovato =
        std::find_if(livelli.begin(), livelli.end(), [&](const VoceLivello& v) { return v.livello == livello; });
    return trovato == livelli.end() ? senzaLivello : trovato->distintivo;
}

}  // namespace kelvo
