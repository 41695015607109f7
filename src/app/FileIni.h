#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kelvo {

/// The text of a configuration file: sections in square brackets, lines "key=value", comments after ';' or '#'.
///
/// Sections and keys are found without regard to (ASCII) case; the first of equal keys counts. What is not written
/// stays as it is: comments, order, foreign keys, line ends, lines of no known form. Any text can be read.
class FileIni {
public:
    FileIni() = default;
    explicit FileIni(std::string_view testo);

    /// The value, without blanks at its ends and without a pair of double quotes around it; nothing if the key is
    /// missing.
    std::optional<std::string> leggi(std::string_view sezione, std::string_view chiave) const;
    /// Writes the value in place, or behind the last line of its section, or in a new section at the end.
    /// Line breaks in `valore` become blanks.
    void scrivi(std::string_view sezione, std::string_view chiave, std::string_view valore);
    /// The whole text.
    std::string testo() const;

private:
    struct Posto {
        bool sezioneTrovata = false;
        std::size_t inserimento = 0;      ///< line in front of which a new key of the section goes
        std::optional<std::size_t> riga;  ///< line of the key
    };
    Posto cerca(std::string_view sezione, std::string_view chiave) const;

    std::vector<std::string> righe_;  ///< without their line ends
    std::string fineRiga_ = "\r\n";
    bool bom_ = false;
};

}  // namespace kelvo
