#include "input/tabellaComposizione.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cmath>

#include "base/date.h"
#include "base/numeri.h"
#include "input/categorieTraffico.h"

namespace kelvo {

namespace {

namespace col = colonneComposizione;

namespace testi {
constexpr const char* angolo = "[ora]\\[veicoli]";
constexpr const char* totale = "Totale segmento";
constexpr const char* flusso = "Flusso ingresso";
constexpr const char* tuttiUguali = "Totale uguale al flusso in ingresso in tutti i segmenti";
constexpr const char* conteggio =
    "Segmenti con totale uguale al flusso in ingresso: {} su {}; inferiore: {}; superiore: {}";
}  // namespace testi

constexpr Colore rosso{255, 140, 140};
/// Shares of the room, in twips.
constexpr int larghezzaIntervallo = 1300;
constexpr int larghezzaFigura = 1000;
constexpr double minutiGiorno = 1440.0;

void intesta(Cella& cella, std::string testo) {
    cella = {
        .testo = std::move(testo), .sfondo = colori::intestazione, .inchiostro = colori::bianco, .grassetto = true};
}

std::string intervallo(const Rotonda& rotonda, int segmento) {
    const int minuti = minutoCampo(rotonda.SegmentoTempo());
    const auto ora = [&](int quanti) { return testoHHNN(rotonda.TempoIniziale() + quanti * minuti / minutiGiorno); };
    return ora(segmento) + " - " + ora(segmento + 1);
}

}  // namespace

Tabella tabellaComposizione(const Rotonda& rotonda, const Ramo& ramo, const std::vector<double>& flussi) {
    const TabellaCategorie& categorie = ramo.theComposizioneTraffico().Categorie();
    Tabella tabella(static_cast<int>(categorie.size()) + 1, col::quante);
    tabella.larghezze.assign(col::quante, larghezzaFigura);
    tabella.larghezze[0] = larghezzaIntervallo;
    intesta(tabella.cella(0, 0), testi::angolo);
    intesta(tabella.cella(0, col::totale), testi::totale);
    intesta(tabella.cella(0, col::flusso), testi::flusso);
    for (std::size_t j = 0; j < categorieTraffico.size(); ++j) {
        intesta(tabella.cella(0, col::prima + static_cast<int>(j)), std::string{categorieTraffico[j].intestazione});
    }
    for (std::size_t k = 0; k < categorie.size(); ++k) {
        const int riga = static_cast<int>(k) + 1;
        intesta(tabella.cella(riga, 0), intervallo(rotonda, riga - 1));
        for (std::size_t j = 0; j < categorie[k].size(); ++j) {
            tabella.cella(riga, col::prima + static_cast<int>(j)).testo = testoVeicoli(categorie[k][j]);
        }
        tabella.cella(riga, col::flusso).testo = testoNumero(flussi.at(k));
        tabella.cella(riga, col::flusso).sfondo = colori::dati;
        mostraTotaleSegmento(tabella, riga);
    }
    return tabella;
}

std::string testoVeicoli(float valore) {
    const auto esatto = static_cast<double>(valore);
    return esatto == std::floor(esatto) ? testoNumero(esatto) : testoNumero(valore);
}

double veicoli(const Tabella& tabella, int riga, int colonna) {
    return leggiNumero(tabella.testo(riga, colonna)).value_or(0.0);
}

double sommaCategorie(const Tabella& tabella, int riga) {
    double somma = 0.0;
    for (int c = col::prima; c <= col::ultima; ++c) {
        somma += veicoli(tabella, riga, c);
    }
    return somma;
}

void mostraTotaleSegmento(Tabella& tabella, int riga) {
    Cella& cella = tabella.cella(riga, col::totale);
    cella.testo = testoNumero(sommaCategorie(tabella, riga));
    const EsitoSegmento esito = esitoSegmento(tabella, riga);
    cella.sfondo = segnalato(esito) ? rosso : colori::dati;
    cella.grassetto = segnalato(esito) || esito == EsitoSegmento::uguale;
}

EsitoSegmento esitoSegmento(const Tabella& tabella, int riga) {
    const double somma = sommaCategorie(tabella, riga);
    const double flusso = veicoli(tabella, riga, col::flusso);
    bool sottoZero = false;
    for (int c = col::prima; c <= col::ultima; ++c) {
        const double classe = veicoli(tabella, riga, c);
        if (classe < 0.0 && somma - classe > flusso) {
            return EsitoSegmento::negativo;
        }
        sottoZero = sottoZero || classe < 0.0;
    }
    if (sottoZero) {
        return EsitoSegmento::sottoZero;
    }
    if (somma == flusso) {
        return flusso == 0.0 ? EsitoSegmento::nessuno : EsitoSegmento::uguale;
    }
    return somma < flusso ? EsitoSegmento::meno : EsitoSegmento::piu;
}

bool segnalato(EsitoSegmento esito) {
    return esito == EsitoSegmento::piu || esito == EsitoSegmento::negativo || esito == EsitoSegmento::sottoZero;
}

std::string paroleSegmento(const Tabella& tabella, int riga) {
    const double somma = sommaCategorie(tabella, riga);
    const double flusso = veicoli(tabella, riga, col::flusso);
    const std::string& ore = tabella.testo(riga, 0);
    const std::string scarto = testoNumero(std::fabs(somma - flusso));
    std::string figure = fmt::format("{}: {} {} su {}", ore, testoNumero(somma), somma == 1.0 ? "veicolo" : "veicoli",
                                     testoNumero(flusso));
    switch (esitoSegmento(tabella, riga)) {
        case EsitoSegmento::nessuno:
            return ore + ": nessun veicolo in ingresso";
        case EsitoSegmento::meno:
            return figure + (scarto == "1" ? ", ne manca " : ", ne mancano ") + scarto;
        case EsitoSegmento::piu:
            return figure + ", " + scarto + " di troppo";
        case EsitoSegmento::negativo:
            return figure + ", una categoria è negativa: le altre superano il flusso in ingresso";
        case EsitoSegmento::sottoZero:
            return figure + ", una categoria è negativa";
        case EsitoSegmento::uguale:
            break;
    }
    return figure;
}

EsitoTabella esitoTabella(const Tabella& tabella) {
    EsitoTabella esito;
    for (int r = 1; r < tabella.righe(); ++r) {
        const EsitoSegmento riga = esitoSegmento(tabella, r);
        ++esito.segmenti;
        esito.uguali += riga == EsitoSegmento::uguale || riga == EsitoSegmento::nessuno ? 1 : 0;
        esito.meno += riga == EsitoSegmento::meno || riga == EsitoSegmento::sottoZero ? 1 : 0;
        esito.piu += riga == EsitoSegmento::piu || riga == EsitoSegmento::negativo ? 1 : 0;
        esito.conFlusso = esito.conFlusso || veicoli(tabella, r, col::flusso) != 0.0;
    }
    return esito;
}

std::string paroleTabella(const EsitoTabella& esito) {
    if (esito.uguali == esito.segmenti) {
        return testi::tuttiUguali;
    }
    return fmt::format(testi::conteggio, esito.uguali, esito.segmenti, esito.meno, esito.piu);
}

}  // namespace kelvo
