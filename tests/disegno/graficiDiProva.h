#pragma once

#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

#include "base/numeri.h"
#include "shell/servizi/Grafico.h"

/// The charts of the program, with figures like those of a study.
namespace kelvo::prove {

using Contenuto = Grafico::Contenuto;
using Forma = Grafico::Forma;
using Posa = Grafico::Posa;

inline std::string ora(int minuti) {
    constexpr int sette = 7 * 60;
    const int m = sette + minuti;
    const auto due = [](int n) { return (n < 10 ? "0" : "") + std::to_string(n); };
    return due(m / 60) + ":" + due(m % 60);
}

inline std::vector<std::string> testi(const std::vector<double>& valori, Formato formato) {
    std::vector<std::string> fatti;
    fatti.reserve(valori.size());
    for (const double v : valori) {
        fatti.push_back(formatta(v, formato));
    }
    return fatti;
}

/// The delays of the example: 18 segments of 10 minutes.
inline const std::vector<double> ritardi{3.4,  4.2,  4.4,  4.7, 5.7, 8.0, 13.9, 31.4, 61.8,
                                         71.4, 41.4, 13.4, 6.7, 5.2, 4.5, 4.3,  4.2,  4.2};

/// A peak in the middle of `quanti` segments.
inline std::vector<double> onda(int quanti, double basso, double picco) {
    std::vector<double> valori;
    valori.reserve(static_cast<std::size_t>(quanti));
    for (int i = 0; i < quanti; ++i) {
        const double t = (i - quanti * 0.47) / (quanti * 0.14);
        valori.push_back(std::round((basso + (picco - basso) * std::exp(-t * t)) * 100.0) / 100.0);
    }
    return valori;
}

/// A performance chart of one entry: hours below, a tick each segment of `passo` minutes.
inline Contenuto prestazioni(const std::vector<double>& valori, int passo, Forma forma = Forma::barre) {
    Contenuto c;
    c.titolo = "Ritardi - S.P. 62 Sud";
    const auto quanti = static_cast<int>(valori.size());
    c.x = {.titolo = "ora", .tacche = quanti + 1, .passiPerEtichetta = 60.0 / passo};
    for (int m = 0; m < quanti * passo; m += 60) {
        c.x.etichette.push_back(ora(m));
    }
    double massimo = 0.0;
    for (const double v : valori) {
        massimo = std::max(massimo, v);
    }
    const double m = std::round(massimo);
    c.y = {.titolo = "s/veic", .massimo = m + 5.0 - std::fmod(m, 5.0)};
    c.serie = {{.nome = "Ritardi",
                .forma = forma,
                .colore = tinta::serieRitardi,
                .valori = valori,
                .testi = testi(valori, "#0.0")}};
    c.valori = true;
    return c;
}

/// The demand of one entry: each segment bears its own times.
inline Contenuto domanda(int quanti, int passo) {
    Contenuto c;
    c.y = {.titolo = "[veicoli]/[min]"};
    c.x = {.titolo = "[ora]", .tacche = quanti + 1, .passiPerEtichetta = 1.0, .posa = Posa::centro};
    for (int i = 0; i < quanti; ++i) {
        c.x.etichette.push_back(ora(i * passo) + "-" + ora((i + 1) * passo));
    }
    const std::vector<double> valori = onda(quanti, 7.95, 19.66);
    c.serie = {{.colore = tinta::principale, .valori = valori, .testi = testi(valori, "#0.00")}};
    c.valori = true;
    return c;
}

inline Contenuto livelli(Forma forma) {
    Contenuto c = prestazioni({5, 5, 5, 5, 5, 5, 10, 20, 30, 30, 25, 10, 5, 5, 5, 0, 0, 5}, 10, forma);
    c.titolo = "Livello di Servizio - S.P. 62 Sud";
    c.nota = "(*) L.O.S. (Level of service) - HCM Americano";
    c.y = {.titolo = "L.O.S. (*)", .massimo = 30.0, .tacche = 7, .etichette = etichetteDaTesto("0*A*B*C*D*E*F")};
    c.serie[0].colore = tinta::serieLOS;
    c.serie[0].testi = etichetteDaTesto("A*A*A*A*A*A*B*D*F*F*E*B*A*A*A*-*-*A");
    return c;
}

inline const char* const categorie = "Autoarticolati*Autotreni*Autobus*Camper*Roulotte*Veicoli a due ruote*Autovetture";

inline Contenuto composizione(Forma forma, const std::vector<double>& valori = {3.5, 2.0, 1.5, 0.0, 1.0, 6.0, 86.0}) {
    Contenuto c;
    c.titolo = "Composizione del traffico";
    c.x = {.etichette = etichetteDaTesto(categorie), .passiPerEtichetta = 1.0, .posa = Posa::nome};
    c.y = {.titolo = "[%]"};
    c.serie = {{.forma = forma, .valori = valori, .testi = testi(valori, "#0.00")}};
    c.serie[0].colori.assign(tinta::categorie.begin(), tinta::categorie.end());
    c.valori = true;
    return c;
}

inline Contenuto confronto() {
    Contenuto c;
    c.titolo = "Grafico Confronto Rami:                                    Flusso di traffico [veic/h]";
    c.x = {.etichette = {"S.P. 62 Sud", "Via Giuseppe Garibaldi", "S.P. 62 Nord (tangenziale)", "Via dei Mille"},
           .passiPerEtichetta = 1.0,
           .posa = Posa::nome};
    c.y = {.titolo = "veic/h", .massimo = 1180.0};
    c.serie = {{.colore = tinta::principale,
                .valori = {1179.6, 486.6, 0.0, 312.0},
                .testi = {"1179,60", "486,60", "0,00", "312,00"}}};
    c.valori = true;
    return c;
}

inline Contenuto sensibilita() {
    Contenuto c;
    c.titolo = "Relazione tra Larghezza Ingresso e Capacità";
    c.x = {.titolo = "Larghezza Ingresso [m]", .minimo = 3.8, .massimo = 6.2};
    c.y = {.titolo = "Capacità [veic/h]", .minimo = 1021.11, .massimo = 1467.9};
    const std::vector<double> valori{1021.11, 1098.02, 1174.76, 1250.23, 1324.4, 1396.98, 1467.9};
    c.serie = {{.nome = "Capacità",
                .forma = Forma::linee,
                .colore = tinta::serieCapacita,
                .valori = valori,
                .testi = testi(valori, "#0.00"),
                .ascisse = {3.8, 4.2, 4.6, 5.0, 5.4, 5.8, 6.2}}};
    c.valori = true;
    return c;
}

inline Contenuto conSoglie(Forma forma) {
    Contenuto c = prestazioni(ritardi, 10, forma);
    c.soglie = {{.testo = "Superiore 50,0", .valore = 50.0},
                {.testo = "Inferiore 5,0", .valore = 5.0, .colore = tinta::verde}};
    return c;
}

inline Contenuto dueSerie() {
    Contenuto c = prestazioni(ritardi, 10);
    c.titolo = "Prima e dopo";
    c.serie[0].nome = "Senza corsia";
    std::vector<double> dopo = ritardi;
    for (double& v : dopo) {
        v = std::round(v * 7.0) / 10.0;
    }
    c.serie.push_back({.nome = "Con corsia preferenziale",
                       .colore = tinta::categorie[5],
                       .valori = dopo,
                       .testi = testi(dopo, "#0.0")});
    c.serie.push_back(
        {.nome = "Media", .forma = Forma::linee, .colore = tinta::serieCode, .valori = std::vector<double>(18, 16.3)});
    c.legenda = true;
    return c;
}

inline Contenuto conNegativi() {
    Contenuto c = prestazioni({-4, -2.5, 0, 3, 7.5, 6, -1, -6}, 10);
    c.titolo = "Variazione";
    c.y = {.titolo = "[%]"};
    return c;
}

/// What a step of each measure changes, the largest first.
inline Contenuto tornado(std::size_t righe = 6) {
    Contenuto c;
    c.titolo = "Capacità: variazione per un passo di ogni grandezza";
    c.y.titolo = "Variazione Capacità [veic/h]";
    c.x.posa = Posa::nome;
    c.x.etichette = {"Angolo di conflitto ±5,00°",    "Larghezza ingresso ±0,05 m",
                     "Semilarghezza accesso ±0,05 m", "Raggio curvatura ingresso ±1,00 m",
                     "Lunghezza svasatura ±0,50 m",   "Diametro inscritto ±1,00 m"};
    std::vector<double> giu{19.02, -8.29, -4.48, -2.82, -1.51, -0.66};
    std::vector<double> su{-19.02, 8.19, 4.38, 2.55, 1.45, 0.71};
    c.x.etichette.resize(righe);
    giu.resize(righe);
    su.resize(righe);
    c.serie = {{.nome = "un passo in meno",
                .forma = Forma::tornado,
                .colore = tinta::secondario,
                .valori = giu,
                .testi = testi(giu, "#0.00")},
               {.nome = "un passo in più",
                .forma = Forma::tornado,
                .colore = tinta::serieCapacita,
                .valori = su,
                .testi = testi(su, "#0.00")}};
    c.valori = true;
    c.legenda = true;
    return c;
}

inline Contenuto senzaDati() {
    Contenuto c = prestazioni(ritardi, 10);
    c.serie.clear();
    c.invito = "Calcola (F9)";
    return c;
}

}  // namespace kelvo::prove
