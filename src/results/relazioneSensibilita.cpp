#include "results/relazioneSensibilita.h"

#include <fmt/format.h>

namespace kelvo {

RelazioneGrafica relazioneSensibilita(const TabellaSensibilita& tabella, Prestazione quale, const Ramo& ramo) {
    const Grafico::Contenuto grafico = graficoSensibilita(tabella, quale);
    return {.modello = "\\Modelli\\Grafico_AM.dot",
            .prefisso = "Ottimizzazione_geometrica_",
            .titolo = "OTTIMIZZAZIONE GEOMETRICA",
            .sottotitolo = "Analisi risultati",
            .righe = {"Denominazione ramo:  " + ramo.Descrizione(),
                      fmt::format("Variabile prestazionale:  {}", voce(quale).nomeRelazione),
                      fmt::format("Grandezza geometrica: {}", tabella.parametro().nomeRelazione)},
            .tabella = tabella.tabella(),
            .didascaliaTabella = fmt::format("Passi di: {}", tabella.parametro().nome),
            .figure = {{.grafico = grafico, .didascalia = grafico.titolo}}};
}

}  // namespace kelvo
