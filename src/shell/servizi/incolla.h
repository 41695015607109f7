#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "shell/servizi/Griglia.h"

namespace kelvo {

/// The number of a cell that was copied from a spreadsheet: digits with a decimal comma or point; groups of thousands
/// only where both separators stand, or several points. A blank cell and a lone comma count as 0. Nothing where it is
/// no number or could be read in two ways, as "1.234".
std::optional<double> numeroIncollato(std::string_view testo);

/// Why such a text is no number, in the words of a refusal: none at all, or one that could be read in two ways.
std::string_view motivoNonNumero(std::string_view testo);

/// Refuses a pasted block for one of its cells, which the message names by the headings of its row and column.
EsitoUscita rifiutoBlocco(const Griglia& griglia, const TestoCella& cella, std::string_view motivo);

}  // namespace kelvo
