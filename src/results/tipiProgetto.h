#pragma once

#include <cstdint>
#include <string>

namespace kelvo {

// The choices of a project in words; a number that is none of them is named as such.

/// Kind of analysis, `TipoAnalisi`.
std::string paroleAnalisi(std::int16_t tipo);
/// Composition of the traffic, `TipoFlusso`.
std::string paroleComposizione(std::int16_t tipo);
/// Units of the turning matrix, `TipoMatriceSvolte`.
std::string paroleMatrice(std::int16_t tipo);

/// The words of a number that is no choice.
std::string paroleNonPrevisto(std::int16_t numero);

}  // namespace kelvo
