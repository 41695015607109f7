#include "results/relazioneSensibilita.h"

#include <fmt/format.h>

#include "base/date.h"
#include "results/graficiSensibilita.h"

namespace kelvo {

namespace {

constexpr std::string_view titolo = "OTTIMIZZAZIONE GEOMETRICA";
constexpr std::string_view sottotitolo = "Analisi risultati";
constexpr std::string_view prefissoFile = "Ottimizzazione_geometrica_";

/// "21-11-2026--10-30"
std::string momentoNelNome(DataOra momento) {
    const PartiData p = partiDi(momento);
    return fmt::format("{:02}-{:02}-{}--{:02}-{:02}", p.giorno, p.mese, p.anno, p.ora, p.minuto);
}

}  // namespace

RelazioneSensibilita relazioneSensibilita(const TabellaSensibilita& tabella, Prestazione quale, const Ramo& ramo,
                                          const Rotonda& rotonda, DataOra momento) {
    return {.titolo = std::string{titolo},
            .sottotitolo = std::string{sottotitolo},
            .ramo = "Denominazione ramo:  " + ramo.Descrizione(),
            .variabile = fmt::format("Variabile prestazionale:  {}", voce(quale).nomeRelazione),
            .grandezza = fmt::format("Grandezza geometrica: {}", tabella.parametro().nomeRelazione),
            .tabella = tabella.tabella(),
            .grafico = graficoSensibilita(tabella, quale),
            .nomeFile = fmt::format("{}{}_{}.doc", prefissoFile, rotonda.NomeFile(), momentoNelNome(momento))};
}

}  // namespace kelvo
