#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/Tabella.h"
#include "shell/servizi/Grafico.h"

namespace kelvo {

/// A chart of a report and the caption below it.
struct FiguraRelazione {
    Grafico::Contenuto grafico{};
    std::string didascalia{};
};

/// A short report of what a window shows: title, lines of text, a table, charts.
struct RelazioneGrafica {
    std::string modello{};   ///< template, a path below the folder of the program
    std::string prefisso{};  ///< the file name begins with it: "Analizzatore_"
    std::string titolo{};    ///< "ANALISI GRANDEZZE PRESTAZIONALI"
    std::string sottotitolo{};
    std::vector<std::string> righe{};
    std::optional<Tabella> tabella{};
    std::string didascaliaTabella{};
    std::vector<FiguraRelazione> figure{};
};

}  // namespace kelvo
