#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kelvo {

/// The text of a configuration file: sections in square brackets, lines "key=value", comments after ';' or '#' at the
/// start of a line.
///
/// Sections and keys are found without regard to (ASCII) case and to blanks around them; the first of equal keys
/// counts, also over several sections of one name. What is not written stays as it is, to the byte: comments, order,
/// foreign keys, lines of no known form, each line's own end, a last line without one. Any text can be read.
class FileIni {
public:
    /// True for a text in UTF-16 or UTF-32, known by the mark at its start or by a zero byte: no key can be found in
    /// it, and nothing may be written into it. What is left (UTF-8 and the codes of one byte) can be read.
    static bool codificaNonValida(std::string_view testo);

    FileIni() = default;
    explicit FileIni(std::string_view testo);

    /// The value, without blanks at its ends and without a pair of double quotes around it; nothing if the key is
    /// missing.
    std::optional<std::string> leggi(std::string_view sezione, std::string_view chiave) const;
    /// Writes the value in place, keeping what stands in front of it, or behind the last pair of its section, or in a
    /// new section at the end. Line breaks in `valore` become blanks; a value that would lose its ends when it is read
    /// gets a pair of double quotes. Fault 5 for names that could not be found again: an empty key, '=' or a comment
    /// sign or a bracket that would change the sense of the line, a line break, blanks at the ends.
    void scrivi(std::string_view sezione, std::string_view chiave, std::string_view valore);
    /// Writes every key that `fornito` holds with a value and that is missing here, or stands here without one. A name
    /// that could not be found again is passed over.
    void completa(const FileIni& fornito);
    /// The whole text.
    std::string testo() const;

private:
    struct Riga {
        std::string testo;
        std::string fine;  ///< "\n", "\r\n", or empty for a last line without an end
    };
    struct Posto {
        bool sezioneTrovata = false;
        std::size_t inserimento = 0;      ///< line in front of which a new key of the section goes
        std::optional<std::size_t> riga;  ///< line of the key
    };
    Posto cerca(std::string_view sezione, std::string_view chiave) const;
    void inserisci(std::size_t posto, const std::string& testo);

    std::vector<Riga> righe_;
    bool bom_ = false;
};

}  // namespace kelvo
