#pragma once

#include <string>
#include <string_view>

#include "shell/servizi/Grafico.h"
#include "shell/servizi/Griglia.h"

/// Tables and charts as texts for other programs.
namespace kelvo {

/// The visible columns of a table as a CSV file, headings included: UTF-8 with its mark, cells parted by semicolons,
/// rows ended by CR LF. Numbers stand as the table shows them, with a decimal comma. The last row is the last one that
/// is not mute.
std::string csvDiTabella(const Griglia& griglia);

/// The values of a chart in the same form: a row for each place on the X axis, a column for each series. A place
/// without a label is called by its number, from 1.
std::string csvDiGrafico(const Grafico::Contenuto& contenuto);

/// The visible columns of a table as it is copied: tabs between cells, CR LF between rows, as far as the same row.
std::string testoDiTabella(const Griglia& griglia, bool conIntestazioni);

/// A name for a file, from the caption of a window and what it shows; without characters that no file name may have.
std::string nomeFileDati(std::string_view didascalia, std::string_view sottotitolo);

}  // namespace kelvo
