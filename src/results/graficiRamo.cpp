#include "results/graficiRamo.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "base/guasto.h"
#include "results/livelloServizio.h"

namespace kelvo {

namespace {

constexpr const char* titoloOre = "ora";
constexpr const char* invito = "Calcola (F9)";
constexpr double passoCima = 5.0;
constexpr std::int64_t minutiOra = 60;

std::vector<std::string> testiColonna(const Tabella& tabella, int colonna, int segmenti) {
    std::vector<std::string> testi;
    for (int r = 1; r <= segmenti; ++r) {
        testi.push_back(tabella.testo(r, colonna));
    }
    return testi;
}

/// Hours of the modelling window; the last one counts where it is not whole.
Grafico::Asse asseOre(const Rotonda& rotonda, int segmenti) {
    const std::int64_t durata = std::max<std::int64_t>(0, minutiTra(rotonda.TempoIniziale(), rotonda.TempoFinale()));
    const int passo = minutoCampo(rotonda.SegmentoTempo());
    Grafico::Asse asse{.titolo = titoloOre,
                       .minimo = 0.0,
                       .massimo = static_cast<double>(segmenti),
                       .tacche = segmenti > 0 ? segmenti + 1 : 0};
    for (std::int64_t h = 0; h * minutiOra < durata; ++h) {
        asse.etichette.push_back(testoHHNN(rotonda.TempoIniziale() + static_cast<double>(h) / 24.0));
    }
    asse.passiPerEtichetta = passo == 0 ? 0.0 : static_cast<double>(minutiOra) / passo;
    return asse;
}

Grafico::Contenuto conSerie(Grafico::Contenuto contenuto, Grafico::Serie serie, const OpzioniGrafici& opzioni) {
    contenuto.valori = opzioni.valori;
    contenuto.invito = invito;
    if (!serie.valori.empty()) {
        serie.forma = opzioni.forma;
        contenuto.serie.push_back(std::move(serie));
    }
    return contenuto;
}

}  // namespace

std::string datiGrafico(const std::vector<std::string>& testi) {
    std::string dati;
    for (const std::string& testo : testi) {
        dati += (&testo == testi.data() ? "" : "*") + testo;
    }
    std::replace(dati.begin(), dati.end(), ',', '.');
    return dati;
}

double cimaAsse(int colonna, double massimo) {
    if (colonna == colonnaSaturazione) {
        return std::floor(massimo) + 1.0;
    }
    const double m = arrotondaPari(massimo);
    return m + (passoCima - std::fmod(m, passoCima));
}

Grafico::Contenuto graficoValori(const Rotonda& rotonda, const Tabella& tabella, const GraficoGrandezza& quale,
                                 int segmenti, const OpzioniGrafici& opzioni) {
    Grafico::Serie serie{.colore = quale.colore, .testi = testiColonna(tabella, quale.colonna, segmenti)};
    serie.valori = valoriDaTesto(datiGrafico(serie.testi));
    serie.valori.resize(serie.testi.size());  // one empty cell joins to an empty text, which has no values
    double massimo = 0.0;
    double minimo = 0.0;
    for (const double valore : serie.valori) {
        massimo = std::max(massimo, valore);
        minimo = std::min(minimo, valore);
    }
    Grafico::Contenuto contenuto;
    contenuto.titolo = quale.titolo;
    contenuto.x = asseOre(rotonda, segmenti);
    contenuto.y = {.titolo = std::string{quale.etichettaY},
                   .minimo = std::floor(minimo),
                   .massimo = cimaAsse(quale.colonna, massimo)};
    return conSerie(std::move(contenuto), std::move(serie), opzioni);
}

Grafico::Contenuto graficoLivelli(const Rotonda& rotonda, const Tabella& tabella, int segmenti,
                                  const OpzioniGrafici& opzioni) {
    Grafico::Serie serie{.colore = tinta::serieLOS, .testi = testiColonna(tabella, colonnaLivello, segmenti)};
    for (const std::string& livello : serie.testi) {
        serie.valori.push_back(codiceLivello(livello));
    }
    Grafico::Contenuto contenuto;
    contenuto.titolo = titoloLivelli;
    contenuto.nota = notaLOS;
    contenuto.x = asseOre(rotonda, segmenti);
    contenuto.y = {.titolo = titoloLOS,
                   .minimo = 0.0,
                   .massimo = static_cast<double>(codiceLivello("F")),
                   .tacche = static_cast<int>(livelliServizio.size()),
                   .etichette = etichetteDaTesto(scalaLOS)};
    return conSerie(std::move(contenuto), std::move(serie), opzioni);
}

}  // namespace kelvo
