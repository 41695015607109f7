#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kelvo {

/// What parts the cells of a row.
enum class SeparatoreCSV { puntoEVirgola, virgola, tabulazione };

/// A separator, its character and its name.
struct VoceSeparatoreCSV {
    SeparatoreCSV separatore = SeparatoreCSV::puntoEVirgola;
    char carattere = ';';
    const char* nome = "";
};
inline constexpr std::array vociSeparatoreCSV{
    VoceSeparatoreCSV{SeparatoreCSV::puntoEVirgola, ';', "Punto e virgola"},
    VoceSeparatoreCSV{SeparatoreCSV::virgola, ',', "Virgola"},
    VoceSeparatoreCSV{SeparatoreCSV::tabulazione, '\t', "Tabulazione"},
};

/// The largest file that is read.
namespace limiteCSV {
inline constexpr std::uint64_t byte = 4U << 20U;
inline constexpr std::size_t righe = 10'000;
inline constexpr std::size_t colonne = 200;
}  // namespace limiteCSV

/// The cells of a file, row by row: blanks around them are gone, line breaks within them are blanks. A row is as long
/// as it stands in the file; an empty line is a row without cells, but those at the end of the file count for nothing.
using RigheCSV = std::vector<std::vector<std::string>>;

/// The content of a file, or in Italian why there is none.
struct TestoCSV {
    std::string testo;           ///< UTF-8, without a mark at its beginning
    bool daWindows1252 = false;  ///< the file was in that code
    std::string errore;          ///< empty: all is well
};
struct CelleCSV {
    RigheCSV righe;
    std::string errore;  ///< empty: all is well
};

/// The text of the bytes of a file: UTF-8 where they are that, else Windows-1252. Text in two bytes a character and
/// what is no text is refused.
TestoCSV testoCSV(std::string_view byte);
/// The same of a file on the disk.
TestoCSV leggiTestoCSV(const std::string& percorso);

/// The cells of a text. A cell that holds a separator, a line break or a quote stands between double quotes.
CelleCSV celleCSV(std::string_view testo, SeparatoreCSV separatore);

/// The separator that the first rows agree best on. Lines that are numbers with a decimal comma are one column.
SeparatoreCSV separatoreProbabile(std::string_view testo);

/// Length of the longest row.
std::size_t colonneCSV(const RigheCSV& righe);

}  // namespace kelvo
