#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "reports/xml.h"

namespace kelvo::ooxml {

/// Mark of the texts that came in as values; never written to a file.
inline constexpr const char* segnoValore = "kelvo-valore";

/// A text as a document can hold it: control characters but tab and line breaks dropped, line breaks as '\n', wrong
/// bytes as U+FFFD.
std::string testoAmmesso(std::string_view testo);
/// The text with the case of its letters taken away (ASCII and the accented ones of Latin-1); of the same size.
std::string senzaMaiuscole(std::string_view testo);

/// Adds `testo` to the run `corsa` as values: pieces of text, tabs and line breaks.
void aggiungiValore(pugi::xml_node corsa, std::string_view testo);
/// A new run at the end of the paragraph `paragrafo` with `testo` as values.
pugi::xml_node aggiungiCorsa(pugi::xml_node paragrafo, std::string_view testo);
/// The text of a paragraph or of any other part, without that of text boxes inside it; tabs as '\t', breaks as '\n'.
std::string testoDi(pugi::xml_node nodo);

/// A text to be found, with the case of its letters taken away, and its value.
struct Coppia {
    std::string cercato;
    std::string nuovo;
};
/// Replaces the texts of `coppie` in all paragraphs below `radice`; values are not searched. Answers how many.
int sostituisci(pugi::xml_node radice, const std::vector<Coppia>& coppie);

/// Copies the format of a run from `da` (a w:rPr, of a run or of the mark of a paragraph) into the run `corsa`.
void copiaFormato(pugi::xml_node corsa, pugi::xml_node da);

}  // namespace kelvo::ooxml
