#pragma once

#include <string>
#include <string_view>

namespace kelvo {

/// The system's own form of a text, UTF-16, and back. What is no UTF-8 (or a half of a pair) becomes U+FFFD.
std::wstring testoLargo(std::string_view testo);
std::string testoStretto(std::wstring_view largo);

/// The path as the file calls of the system take it: whole, with backslashes, and beyond some 240 characters with the
/// prefix that lifts the system's limit ("\\?\", for a share "\\?\UNC\"). A path that has such a prefix stays as it is.
std::wstring percorsoLargo(std::string_view percorso);

/// Why a call failed, in Italian, from the system's number (GetLastError).
std::string paroleErroreWindows(unsigned long numero);

}  // namespace kelvo
