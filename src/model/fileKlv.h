#pragma once

#include <string>
#include <string_view>

#include "model/Rotonda.h"

/// The two directions of the project file. Both raise a fault whose description is the message for the user.
namespace kelvo::klv {

/// Fills a fresh project from the text of a project file; on a fault it is left half filled.
void leggi(std::string_view testo, Rotonda& rotonda);

/// The text of a project file. A project that could not be read back raises a fault: legs that are missing, segments
/// past the limit, a number that is not finite, a date outside the calendar.
std::string scrivi(const Rotonda& rotonda);

/// True if the key carries the digit of a leg's position: at its end or, where no digit stands there, at its beginning.
bool chiaveDelRamo(std::string_view chiave, std::int16_t posizione);

}  // namespace kelvo::klv
