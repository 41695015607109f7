#include "results/graficiSensibilita.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

#include "base/numeri.h"

namespace kelvo {

namespace {

constexpr int rigaMisure = 1;
constexpr int colonnaRiferimento = 1 + passiPerParte;

void aggiungi(std::string& serie, const std::string& testo) {
    serie.append(serie.empty() ? "" : "*");
    std::transform(testo.begin(), testo.end(), std::back_inserter(serie), [](char c) { return c == ',' ? '.' : c; });
}

/// The colour that a figure has in all charts.
Colore tintaDi(Prestazione quale) {
    constexpr std::array<Colore, prestazioni.size()> tinte{tinta::serieCapacita, tinta::serieCode, tinta::serieRitardi};
    return tinte.at(static_cast<std::size_t>(quale));
}

/// Points of a chart, with the figures as the table shows them.
struct Punti {
    std::vector<double> x;
    std::vector<double> y;
    std::vector<std::string> testi;
};

double numeroDi(const std::string& testo) {
    return leggiNumero(testo).value_or(0.0);
}

/// Columns whose step is valid and holds a figure; none for a row without figures.
std::vector<int> colonnePiene(const TabellaSensibilita& tabella, Prestazione quale) {
    std::vector<int> colonne;
    for (int c = 1; c <= numeroPassi; ++c) {
        const bool valido = tabella.passi().at(static_cast<std::size_t>(c - 1)).valido;
        if (valido && !tabella.tabella().testo(TabellaSensibilita::riga(quale), c).empty()) {
            colonne.push_back(c);
        }
    }
    return colonne;
}

Punti puntiDi(const TabellaSensibilita& tabella, Prestazione quale) {
    Punti punti;
    for (const int c : colonnePiene(tabella, quale)) {
        const std::string& figura = tabella.tabella().testo(TabellaSensibilita::riga(quale), c);
        punti.x.push_back(numeroDi(tabella.tabella().testo(rigaMisure, c)));
        punti.y.push_back(numeroDi(figura));
        punti.testi.push_back(figura);
    }
    return punti;
}

Grafico::Asse asseAttorno(std::string titolo, const std::vector<double>& valori) {
    const auto [minimo, massimo] = std::minmax_element(valori.begin(), valori.end());
    return {.titolo = std::move(titolo), .minimo = *minimo, .massimo = *massimo};
}

Grafico::Contenuto contenutoDi(std::string titolo, std::string titoloX, std::string titoloY, Punti punti,
                               Colore colore) {
    Grafico::Contenuto contenuto{.titolo = std::move(titolo)};
    contenuto.x = asseAttorno(std::move(titoloX), punti.x);
    contenuto.y = asseAttorno(std::move(titoloY), punti.y);
    contenuto.serie.push_back({.forma = Grafico::Forma::linee,
                               .colore = colore,
                               .valori = std::move(punti.y),
                               .testi = std::move(punti.testi),
                               .ascisse = std::move(punti.x)});
    return contenuto;
}

/// Why a row holds no figures.
std::string notaSenzaFigure(const TabellaSensibilita& tabella, Prestazione quale) {
    if (!tabella.calcolata()) {
        return "Nessun risultato: premere Calcola";
    }
    return colonnePiene(tabella, Prestazione::capacita).empty()
               ? "Nessun passo ha un risultato"
               : fmt::format("{}: nessun valore nell'analisi della sola saturazione", voce(quale).nomeGrafico);
}

Grafico::Contenuto campione() {
    return contenutoDi(std::string{titoloSenzaVariabile}, {}, {},
                       {.x = {20, 30, 60, 70, 90}, .y = {40, 20, 70, 10, 60}, .testi = {}}, tinta::serieLOS);
}

}  // namespace

SerieSensibilita serieSensibilita(const TabellaSensibilita& tabella, Prestazione quale) {
    SerieSensibilita serie;
    for (const int c : colonnePiene(tabella, quale)) {
        aggiungi(serie.x, tabella.tabella().testo(rigaMisure, c));
        aggiungi(serie.y, tabella.tabella().testo(TabellaSensibilita::riga(quale), c));
    }
    if (serie.y.empty()) {
        for (int c = 1; c <= numeroPassi; ++c) {
            aggiungi(serie.x, tabella.tabella().testo(rigaMisure, c));
        }
        serie.y = serieVuota;
    }
    return serie;
}

Grafico::Contenuto graficoSensibilita(const TabellaSensibilita& tabella, std::optional<Prestazione> quale) {
    if (!quale) {
        return campione();
    }
    const ParametroGeometrico& p = tabella.parametro();
    const VocePrestazione& v = voce(*quale);
    Punti punti = puntiDi(tabella, *quale);
    std::string nota;
    if (punti.x.empty()) {
        nota = notaSenzaFigure(tabella, *quale);
        for (int c = 1; c <= numeroPassi; ++c) {
            punti.x.push_back(numeroDi(tabella.tabella().testo(rigaMisure, c)));
            punti.y.push_back(0.0);
        }
    }
    Grafico::Contenuto contenuto =
        contenutoDi(fmt::format("Relazione tra {} e {}", p.nomeGrafico, v.nomeGrafico),
                    fmt::format("{} [{}]", p.nomeGrafico, p.unita), fmt::format("{} {}", v.nomeGrafico, v.unita),
                    std::move(punti), tintaDi(*quale));
    contenuto.nota = nota;
    contenuto.valori = nota.empty();
    return contenuto;
}

double VoceTornado::ampiezza() const {
    return std::max(std::fabs(giu.value_or(0.0)), std::fabs(su.value_or(0.0)));
}

std::vector<VoceTornado> tornado(const Sensibilita& analisi, Prestazione quale) {
    std::vector<VoceTornado> voci;
    const int riga = TabellaSensibilita::riga(quale);
    for (std::size_t i = 0; i < numeroParametri; ++i) {
        const TabellaSensibilita& tabella = analisi.tabella(i);
        const auto figura = [&](int colonna) -> std::optional<double> {
            const bool valido = tabella.passi().at(static_cast<std::size_t>(colonna - 1)).valido;
            return valido ? leggiNumero(tabella.tabella().testo(riga, colonna)) : std::nullopt;
        };
        const auto riferimento = figura(colonnaRiferimento);
        if (!riferimento) {
            continue;
        }
        const auto cambio = [&](int colonna) -> std::optional<double> {
            const auto f = figura(colonna);
            return f ? std::optional{*f - *riferimento} : std::nullopt;
        };
        VoceTornado v{.parametro = i,
                      .passo = numeroDi(tabella.tabella().testo(0, colonnaRiferimento + 1)),
                      .giu = cambio(colonnaRiferimento - 1),
                      .su = cambio(colonnaRiferimento + 1)};
        if (v.giu || v.su) {
            voci.push_back(v);
        }
    }
    std::stable_sort(voci.begin(), voci.end(),
                     [](const VoceTornado& a, const VoceTornado& b) { return a.ampiezza() > b.ampiezza(); });
    return voci;
}

Grafico::Contenuto graficoTornado(const Sensibilita& analisi, Prestazione quale) {
    const VocePrestazione& v = voce(quale);
    Grafico::Contenuto contenuto{.titolo = fmt::format("{}: variazione per un passo di ogni grandezza", v.nomeGrafico)};
    contenuto.y.titolo = fmt::format("Variazione {} {}", v.nomeGrafico, v.unita);
    contenuto.x.posa = Grafico::Posa::nome;
    contenuto.legenda = true;
    contenuto.valori = true;
    contenuto.invito = "Nessun risultato: premere Calcola";
    Grafico::Serie giu{.nome = "un passo in meno", .forma = Grafico::Forma::tornado, .colore = tinta::secondario};
    Grafico::Serie su{.nome = "un passo in più", .forma = Grafico::Forma::tornado, .colore = tintaDi(quale)};
    const auto scrivi = [&](Grafico::Serie& serie, const std::optional<double>& cambio) {
        serie.valori.push_back(cambio.value_or(0.0));
        std::string testo = cambio ? formatta(*cambio, v.formato) : "n.d.";
        serie.testi.push_back(cambio && *cambio > 0.0 ? "+" + testo : testo);
    };
    for (const VoceTornado& voceTornado : tornado(analisi, quale)) {
        const ParametroGeometrico& p = parametriGeometrici.at(voceTornado.parametro);
        const std::string unitaPasso = p.unita == "m" ? " m" : std::string{p.unita};
        contenuto.x.etichette.push_back(
            fmt::format("{} ±{}{}", p.nome, formatta(voceTornado.passo, "#0.00"), unitaPasso));
        scrivi(giu, voceTornado.giu);
        scrivi(su, voceTornado.su);
    }
    if (!giu.valori.empty()) {
        contenuto.serie = {giu, su};
    }
    return contenuto;
}

}  // namespace kelvo
