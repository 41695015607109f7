#pragma once

#include <optional>
#include <string>
#include <vector>

#include "results/Sensibilita.h"
#include "shell/servizi/Grafico.h"

namespace kelvo {

/// Measures and figures of a chart as texts joined by "*", each decimal comma turned into a point.
struct SerieSensibilita {
    std::string x;
    std::string y;
    friend bool operator==(const SerieSensibilita&, const SerieSensibilita&) = default;
};

/// What the chart draws before a figure was chosen.
inline constexpr std::string_view titoloSenzaVariabile = "SELEZIONARE UNA VARIABILE";
inline constexpr std::string_view campioneX = "20*30*60*70*90";
inline constexpr std::string_view campioneY = "40*20*70*10*60";
/// The figures of a row that holds none.
inline constexpr std::string_view serieVuota = "0*0*0*0*0*0*0*";

/// What the chart of one figure is drawn from: measures and figures of the valid steps that hold one. Where the row
/// holds none: all the measures, and `serieVuota`.
SerieSensibilita serieSensibilita(const TabellaSensibilita& tabella, Prestazione quale);

/// Chart of one figure over the measure; the sample where none is chosen. The axes run from the smallest to the largest
/// value of the series. Of a row without figures the note says why.
Grafico::Contenuto graficoSensibilita(const TabellaSensibilita& tabella, std::optional<Prestazione> quale);

/// What one step of a measure, down and up, changes in a figure.
struct VoceTornado {
    std::size_t parametro = 0;
    double passo = 0.0;         ///< one step, as the table shows it
    std::optional<double> giu;  ///< change by a step down; none where the step is not valid or has no figure
    std::optional<double> su;   ///< change by a step up
    double ampiezza() const;    ///< the larger of the two, without its sign
};

/// The changes of the measures that have been calculated, the largest first; of equal ones in the order of the project.
/// Worked out from the figures shown. A measure without a figure at its reference, or at both steps, is left out.
std::vector<VoceTornado> tornado(const Sensibilita& analisi, Prestazione quale);

/// The same as bars to both sides of 0, one row a measure, named with its step.
Grafico::Contenuto graficoTornado(const Sensibilita& analisi, Prestazione quale);

}  // namespace kelvo
