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

/// The figures of the series as the table shows them.
std::vector<std::string> figureDi(const TabellaSensibilita& tabella, Prestazione quale) {
    std::vector<std::string> figure;
    for (const int c : colonnePiene(tabella, quale)) {
        figure.push_back(tabella.tabella().testo(TabellaSensibilita::riga(quale), c));
    }
    return figure;
}

/// Numbers of a series; nothing stands behind a mark at its end.
std::vector<double> numeriDi(std::string_view serie) {
    if (serie.ends_with('*')) {
        serie.remove_suffix(1);
    }
    return valoriDaTesto(serie);
}

Grafico::Asse asseAttorno(std::string titolo, const std::vector<double>& valori) {
    if (valori.empty()) {
        return {.titolo = std::move(titolo)};
    }
    const auto [minimo, massimo] = std::minmax_element(valori.begin(), valori.end());
    return {.titolo = std::move(titolo), .minimo = *minimo, .massimo = *massimo};
}

Grafico::Contenuto contenutoDi(std::string titolo, std::string titoloX, std::string titoloY,
                               const SerieSensibilita& serie, std::vector<std::string> testi, Colore colore) {
    Grafico::Contenuto contenuto{.titolo = std::move(titolo)};
    std::vector<double> x = numeriDi(serie.x);
    std::vector<double> y = numeriDi(serie.y);
    contenuto.x = asseAttorno(std::move(titoloX), x);
    contenuto.y = asseAttorno(std::move(titoloY), y);
    contenuto.serie.push_back({.forma = Grafico::Forma::linee,
                               .colore = colore,
                               .valori = std::move(y),
                               .testi = std::move(testi),
                               .ascisse = std::move(x)});
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
                       {.x = std::string{campioneX}, .y = std::string{campioneY}}, {}, tinta::serieLOS);
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
    std::vector<std::string> figure = figureDi(tabella, *quale);
    const std::string nota = figure.empty() ? notaSenzaFigure(tabella, *quale) : std::string{};
    Grafico::Contenuto contenuto =
        contenutoDi(fmt::format("Relazione tra {} e {}", p.nomeGrafico, v.nomeGrafico),
                    fmt::format("{} [{}]", p.nomeGrafico, p.unita), fmt::format("{} {}", v.nomeGrafico, v.unita),
                    serieSensibilita(tabella, *quale), std::move(figure), tintaDi(*quale));
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
