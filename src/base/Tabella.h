#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "base/date.h"

namespace kelvo {

/// A colour: red, green, blue.
struct Colore {
    std::uint8_t rosso = 0;
    std::uint8_t verde = 0;
    std::uint8_t blu = 0;
    friend bool operator==(const Colore&, const Colore&) = default;
};

/// Colours that the tables share.
namespace colori {
inline constexpr Colore nero{0, 0, 0};
inline constexpr Colore bianco{255, 255, 255};
inline constexpr Colore intestazione{0, 98, 0};
inline constexpr Colore nomeIngresso{164, 196, 0};
inline constexpr Colore dati{220, 220, 220};
inline constexpr Colore livelloF{255, 0, 0};
inline constexpr Colore evidenza{244, 237, 90};
}  // namespace colori

/// One cell of a table: its text is the only store of the figure that it shows.
struct Cella {
    std::string testo;
    Colore sfondo = colori::bianco;
    Colore inchiostro = colori::nero;
    bool grassetto = false;
};

/// Cells in rows and columns, both counted from 0, with the column widths and row height (twips) of their grid.
class Tabella {
public:
    Tabella() = default;
    /// Empty cells. Fault 9 for a negative number of rows or columns.
    Tabella(int righe, int colonne);

    int righe() const { return righe_; }
    int colonne() const { return colonne_; }
    /// The cell; fault 9 outside the table.
    Cella& cella(int riga, int colonna);
    const Cella& cella(int riga, int colonna) const;
    const std::string& testo(int riga, int colonna) const { return cella(riga, colonna).testo; }

    /// Column widths in twips; 0 where none was told.
    std::vector<int> larghezze;
    /// Row height in twips.
    int altezzaRiga = 300;

private:
    std::size_t posizione(int riga, int colonna) const;

    int righe_ = 0;
    int colonne_ = 0;
    std::vector<Cella> celle_;
};

enum class Allineamento { sinistra, destra };

/// How the text writer lays a table out.
struct Impaginazione {
    /// Blanks before the text (right) or after it (left).
    Allineamento allineamento = Allineamento::destra;
    /// True for a row that one empty line precedes; none if not set.
    std::function<bool(const Tabella&, int)> rigaVuotaPrima;
};

/// Width of each column in characters: the longest text of the column plus 2.
std::vector<std::size_t> larghezzeTesto(const Tabella& tabella);

/// The table as text: each cell padded to its column's width and followed by a tab, also the last one; each row ends
/// in CR LF.
std::string testoTabella(const Tabella& tabella, const Impaginazione& impaginazione);

/// The two closing lines of every export: program version with `momento` as date and time, project name.
std::string righeDiChiusura(DataOra momento, std::string_view nomeFile);

}  // namespace kelvo
