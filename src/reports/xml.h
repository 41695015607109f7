#pragma once

#include <pugixml.hpp>
#include <string>
#include <string_view>

namespace kelvo::ooxml {

/// What a part of XML may be at most: more is refused.
inline constexpr std::size_t massimoXml = std::size_t{8} * 1024 * 1024;
inline constexpr int massimaProfondita = 200;

/// Reads a part; blanks between elements are kept, comments and instructions are not. Refused are wrong XML, a document
/// type, bytes that are no UTF-8, more than the limits. Answers an empty text, or in Italian why it failed.
std::string leggiXml(std::string_view dati, pugi::xml_document& documento);
/// The text of a part in UTF-8, with its declaration.
std::string scriviXml(const pugi::xml_document& documento);

/// The node behind `nodo` in the order of the text, below `radice`; null at its end.
pugi::xml_node successivo(pugi::xml_node nodo, pugi::xml_node radice);
/// The same, past what stands inside `nodo`.
pugi::xml_node oltre(pugi::xml_node nodo, pugi::xml_node radice);
/// The nearest node of that name that `nodo` stands in; null if there is none.
pugi::xml_node antenato(pugi::xml_node nodo, std::string_view nome);

inline bool chiamato(pugi::xml_node nodo, std::string_view nome) {
    return nome == nodo.name();
}
/// Value of an attribute, empty if it is not there.
inline std::string_view valore(pugi::xml_node nodo, const char* attributo) {
    return nodo.attribute(attributo).value();
}
/// Sets an attribute, which may not stand there yet.
void imposta(pugi::xml_node nodo, const char* attributo, std::string_view valore);
/// A new last child with one attribute.
pugi::xml_node figlio(pugi::xml_node nodo, const char* nome, const char* attributo, std::string_view valore);

/// True for texts that differ at most in the case of ASCII letters.
bool ugualiSenzaMaiuscole(std::string_view a, std::string_view b);

}  // namespace kelvo::ooxml
