#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "results/Sensibilita.h"
#include "shell/servizi/Grafico.h"

namespace kelvo {

/// All that the report of a sensitivity analysis shows.
struct RelazioneSensibilita {
    std::string titolo;       ///< "OTTIMIZZAZIONE GEOMETRICA"
    std::string sottotitolo;  ///< "Analisi risultati"
    std::string ramo;         ///< "Denominazione ramo:  " and the name
    std::string variabile;    ///< "Variabile prestazionale:  Capacità" and its kin
    std::string grandezza;    ///< "Grandezza geometrica: Larghezza ingresso" and its kin
    Tabella tabella;
    Grafico::Contenuto grafico;
    std::string nomeFile;  ///< that the report is saved under at first, with its extension
};

/// Template of the report, in the folder of the templates.
inline constexpr std::string_view modelloSensibilita = "Grafico_AM.dot";
/// Name of the picture of its chart.
inline constexpr std::string_view immagineSensibilita = "GraficoCapacita.PNG";

/// The report of one measure of a leg and one figure. `momento` is the date and time in the name of its file.
RelazioneSensibilita relazioneSensibilita(const TabellaSensibilita& tabella, Prestazione quale, const Ramo& ramo,
                                          const Rotonda& rotonda, DataOra momento);

}  // namespace kelvo
