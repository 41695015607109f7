#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "shell/servizi/Grafico.h"

namespace kelvo {

/// Texts of a chart in the form that it takes them: joined by "*", each decimal comma turned into a point.
std::string testoGrafico(const std::vector<std::string>& testi);

/// What a histogram of an entry's demand shows: one bar a time segment, without a legend.
struct Istogramma {
    std::string etichette;      ///< of the segments, as `testoGrafico` joins them
    std::string valori;         ///< as many, in the unit of the axis
    std::string_view unita;     ///< title of the vertical axis
    Colore colore{};            ///< of the bars
    bool mostraValori = false;  ///< a figure stands over each bar
};

/// The chart of a histogram: the vertical axis holds 0 and ends at a round step beyond the longest bar.
Grafico::Contenuto istogrammaTraffico(const Istogramma& istogramma);

}  // namespace kelvo
