#pragma once

#include <string>
#include <vector>

namespace kelvo::modelli {

/// A table of a template.
struct TabellaModello {
    enum class Genere { testata, riga, vuota, unita };
    struct Riga {
        Genere genere = Genere::riga;
        double altezzaMm = 0.0;
        std::vector<std::string> celle{};
    };
    std::string segnalibro{};  ///< stands in the last cell of the headings; empty for none
    std::string stile = "TabellaKelvo";
    std::string didascalia{};
    std::string allineamento{};  ///< a letter a column: s, c, d
    double corpo = 9.0;          ///< size of the type, points
    std::vector<double> colonneMm{};
    std::vector<Riga> righe{};
};

/// A block of a template, in the order of its text.
struct Blocco {
    enum class Genere {
        paragrafo,  ///< `testo` in the style `nome`
        titolo,     ///< a numbered heading of `livello`
        tabella,
        punto,   ///< an empty paragraph with the bookmark `nome`
        apre,    ///< the bookmark `nome` begins
        chiude,  ///< it ends
        pagina,  ///< the next paragraph begins a page
        indice,  ///< the contents
    };
    Genere genere = Genere::paragrafo;
    std::string nome{};
    std::string testo{};
    int livello = 0;
    TabellaModello tabella{};
};

/// Reads the source of a template, whole path, with what it includes. Throws std::runtime_error with the file and the
/// line of what it does not understand.
///
/// A source is lines of text: "# " a remark, "= " and "== " headings, "- " a point of a list, "$ " a formula,
/// "[Style] " a paragraph of a style; other lines up to an empty one are a paragraph. Commands begin with "@":
/// "@includi FILE", "@sezione NAME" to "@fine" (a bookmark), "@punto NAME", "@pagina", "@indice", and "@tabella NAME"
/// to "@fine" with the lines "stile", "corpo", "didascalia", "colonne" (mm), "allinea", "altezza" (mm, of the rows that
/// follow), "testata", "riga" (cells parted by "|"), "unita" (one cell over all columns), "righe" (how many empty
/// ones).
std::vector<Blocco> leggiModello(const std::string& percorso);

}  // namespace kelvo::modelli
