#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

/// The text of a project file as a tree of values, before any meaning is given to them.
namespace kelvo::klv {

/// Deepest nesting; the outermost object is level 1.
inline constexpr std::size_t massimaProfondita = 16;
/// Largest number of values in a file, those of foreign keys included: it bounds the memory that a file can ask for.
inline constexpr std::size_t massimoValori = 100000;

struct Valore;
struct Membro;

struct Nullo {};
/// A number as it stands in the text, with a decimal point.
struct Numero {
    std::string testo;
};
using Elenco = std::vector<Valore>;
/// Members in the order of the file; no key twice.
using Oggetto = std::vector<Membro>;

struct Valore {
    std::variant<Nullo, bool, Numero, std::string, Elenco, Oggetto> contenuto;
};

struct Membro {
    std::string chiave;
    Valore valore;
};

/// The member of that key, or null.
const Valore* cerca(const Oggetto& oggetto, std::string_view chiave);

/// Reads the text of a project file. The header (formato, versione) and all limits are checked while it is read.
/// A text that is refused raises a fault whose description is the message for the user, with line and column.
Oggetto leggiAlbero(std::string_view testo);

/// A value on one line.
std::string testoJson(const Valore& valore);
/// A text in quotes, with its escapes; wrong UTF-8 is replaced by U+FFFD.
std::string testoJson(const std::string& testo);

}  // namespace kelvo::klv
