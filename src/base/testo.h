#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace kelvo {

/// End of a line where the exports are told to have CR LF.
inline constexpr std::string_view fineRiga = "\r\n";

/// Number of characters of a UTF-8 text; a byte that is no valid UTF-8 counts as one character.
std::size_t lunghezza(std::string_view testo);
/// The characters one by one; every wrong byte sequence as U+FFFD.
std::vector<std::string> caratteri(std::string_view testo);
/// The last `quanti` characters, or the whole text if it is shorter.
std::string ultimiCaratteri(std::string_view testo, std::size_t quanti);
/// The text less its last `quanti` characters; empty if it is shorter.
std::string senzaUltimi(std::string_view testo, std::size_t quanti);
/// The text, or its first `quanti` characters and "…" where it is longer. `quanti` is no less than 0; what lies behind
/// them is not looked at.
std::string accorciato(std::string_view testo, std::size_t quanti);
/// Number of bytes before the first that is no valid UTF-8: the size of the text if there is none.
std::size_t parteValida(std::string_view testo);
/// The text with every wrong byte sequence replaced by U+FFFD.
std::string utf8Valido(std::string_view testo);
/// The text without blanks and tabs at its ends.
std::string_view rifila(std::string_view testo);
/// ASCII capitals only: for keys and extensions.
std::string maiuscoleAscii(std::string_view testo);

/// The text as it may stand in HTML, between marks and within quoted attributes; wrong bytes become U+FFFD.
std::string testoHtml(std::string_view testo);
/// The text behind the five entities that testoHtml writes.
std::string htmlInTesto(std::string_view html);
/// The text as a part of an address: every byte of its UTF-8 but letters, digits and "-._~" as "%XX".
std::string codificaPercento(std::string_view testo);

}  // namespace kelvo
