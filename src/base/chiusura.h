#pragma once

#include <string>
#include <string_view>

namespace kelvo {

/// The closing lines of an export, as righeDiChiusura (Tabella.h) writes them, with `quando` for date and time.
std::string chiusuraEsportazione(std::string_view quando, std::string_view nomeFile);

}  // namespace kelvo
