#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "base/Tabella.h"
#include "model/Rotonda.h"
#include "results/grandezze.h"
#include "shell/servizi/Grafico.h"

namespace kelvo {

/// A chart of one quantity over the modelling window.
struct GraficoGrandezza {
    std::string_view nome;        ///< of its control
    std::string_view titolo;      ///< of its tab
    std::string_view etichettaY;  ///< title of the axis of values
    int colonna = 0;              ///< of the entry's table that it draws
    Colore colore{};
};

/// The charts of values in the order of their tabs.
inline constexpr std::array graficiGrandezze{
    GraficoGrandezza{"ctlChartCapacita", "Capacità", "veic/h", colonnaCapacita, tinta::serieCapacita},
    GraficoGrandezza{"ctlChartSaturazione", "Coefficiente Saturazione", "Coeff. Saturazione", colonnaSaturazione,
                     tinta::serieSaturazione},
    GraficoGrandezza{"ctlChartCode", "Lunghezza Code", "veic", colonnaCoda, tinta::serieCode},
    GraficoGrandezza{"ctlChartRitardi", "Ritardi", "s/veic", colonnaRitardo, tinta::serieRitardi},
};
/// What stands below every chart of levels of service, and the labels of their axis, one a code from 0 on.
inline constexpr const char* notaLOS = "(*) L.O.S. (Level of service) - HCM Americano";
inline constexpr const char* scalaLOS = "0*A*B*C*D*E*F";
inline constexpr const char* titoloLOS = "L.O.S. (*)";

/// Texts of values as a chart takes its data: joined by "*", the decimal comma turned into a point.
std::string datiGrafico(const std::vector<std::string>& testi);

/// Title of the tab with the levels of service.
inline constexpr std::string_view titoloLivelli = "Livello di Servizio";

/// Top of the axis of values for the largest of them, 0 or more: its whole part plus 1 for the degree of saturation,
/// else the multiple of 5 above it, so that a value on a multiple gets five more.
double cimaAsse(int colonna, double massimo);

/// How the charts are drawn.
struct OpzioniGrafici {
    Grafico::Forma forma = Grafico::Forma::barre;
    bool valori = true;  ///< a label stands at each value
};

/// The chart of a column of the entry's table, row 1 first; a cell that is no number counts as 0. `segmenti`: rows that
/// hold figures; with 0 the chart has its axes alone.
Grafico::Contenuto graficoValori(const Rotonda& rotonda, const Tabella& tabella, const GraficoGrandezza& quale,
                                 int segmenti, const OpzioniGrafici& opzioni);
/// The chart of the levels of service, by their codes.
Grafico::Contenuto graficoLivelli(const Rotonda& rotonda, const Tabella& tabella, int segmenti,
                                  const OpzioniGrafici& opzioni);

}  // namespace kelvo
