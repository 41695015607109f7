#include "reports/celle.h"

#include <fmt/format.h>

#include <algorithm>
#include <numeric>

#include "shell/servizi/tinte.h"

namespace kelvo {

namespace {

/// The lime of the names on paper, where a full one would weigh too much.
constexpr Colore nomi{228, 236, 190};
constexpr std::size_t righeInsieme = 28;

std::string esadecimale(Colore colore) {
    return fmt::format("{:02X}{:02X}{:02X}", colore.rosso, colore.verde, colore.blu);
}

CellaRelazione vestita(const std::string& testo, Colore sfondo, Colore inchiostro) {
    return {.testo = testo,
            .sfondo = esadecimale(sfondo),
            .inchiostro = esadecimale(inchiostroLeggibile(inchiostro, sfondo))};
}

TabellaRelazione conStili() {
    TabellaRelazione tabella;
    tabella.stile = tabellaRapporto::stile;
    tabella.stileTesto = tabellaRapporto::testo;
    tabella.stileIntestazione = tabellaRapporto::intestazione;
    return tabella;
}

}  // namespace

std::string nomeIngresso(std::int16_t ramo) {
    return fmt::format("Ingresso {}", static_cast<char>('A' + ramo - 1));
}

TabellaRelazione nuovaTabella(std::size_t colonne, double nomiMm, double massimaMm) {
    TabellaRelazione tabella = conStili();
    const double resto = (tabellaRapporto::larghezzaMm - nomiMm) / static_cast<double>(colonne);
    tabella.colonne.assign(colonne + 1, {std::min(resto, massimaMm), AllineamentoTesto::destra});
    tabella.colonne.front() = {nomiMm, AllineamentoTesto::sinistra};
    return tabella;
}

CellaRelazione cellaIntestazione(const std::string& testo, int colonne) {
    std::string inRighe = testo;
    const auto unita = inRighe.find(" [");
    if (colonne == 1 && unita != std::string::npos) {
        inRighe[unita] = '\n';
    }
    CellaRelazione cella = vestita(inRighe, colori::intestazione, colori::bianco);
    cella.colonne = colonne;
    return cella;
}

CellaRelazione cellaNome(const std::string& testo) {
    return vestita(testo, nomi, colori::nero);
}

CellaRelazione cellaLivello(const std::string& livello) {
    const Distintivo distintivo = distintivoLivello(livello);
    return vestita(livello, distintivo.fondo, distintivo.testo);
}

TabellaRelazione comeTabella(const Tabella& tabella) {
    TabellaRelazione nuova = conStili();
    const auto colonne = static_cast<std::size_t>(tabella.colonne());
    std::vector<double> larghezze(colonne, 1.0);
    if (tabella.larghezze.size() == colonne &&
        std::all_of(tabella.larghezze.begin(), tabella.larghezze.end(), [](int l) { return l > 0; })) {
        larghezze.assign(tabella.larghezze.begin(), tabella.larghezze.end());
    }
    const double totale = std::accumulate(larghezze.begin(), larghezze.end(), 0.0);
    for (std::size_t c = 0; c < colonne; ++c) {
        nuova.colonne.push_back({tabellaRapporto::larghezzaMm * larghezze[c] / totale,
                                 c == 0 ? AllineamentoTesto::sinistra : AllineamentoTesto::destra});
    }
    for (int r = 0; r < tabella.righe(); ++r) {
        auto& riga = nuova.righe.emplace_back();
        for (int c = 0; c < tabella.colonne(); ++c) {
            const Cella& cella = tabella.cella(r, c);
            riga.push_back(vestita(cella.testo, cella.sfondo, cella.inchiostro));
        }
    }
    return nuova;
}

void inserisciConDidascalia(DocumentoRelazione& documento, const std::string& didascalia, TabellaRelazione tabella) {
    tabella.insieme = tabella.righe.size() <= righeInsieme;
    documento.InserisciParagrafo({.testo = didascalia,
                                  .stile = tabellaRapporto::didascalia,
                                  .conSeguente = true,
                                  .etichetta = tabellaRapporto::etichettaTabella});
    documento.InserisciTabella(tabella);
}

}  // namespace kelvo
