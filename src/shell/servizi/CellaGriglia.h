#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "base/Tabella.h"
#include "shell/servizi/tinte.h"

namespace kelvo {

/// A cell of a grid: row and column from 0, fixed ones counted.
struct Posto {
    int riga = -1;
    int colonna = -1;
    friend bool operator==(const Posto&, const Posto&) = default;
};

/// A rectangle of cells, corners included.
struct AreaCelle {
    Posto da;
    Posto a;
    bool contiene(Posto p) const {
        return p.riga >= da.riga && p.riga <= a.riga && p.colonna >= da.colonna && p.colonna <= a.colonna;
    }
    friend bool operator==(const AreaCelle&, const AreaCelle&) = default;
};

/// A text for a cell.
struct TestoCella {
    Posto posto;
    std::string testo;
    friend bool operator==(const TestoCella&, const TestoCella&) = default;
};

/// What the editor of a column takes.
struct RegoleCella {
    std::string caratteri;             ///< characters that may be typed; empty for all
    std::size_t lunghezzaMassima = 0;  ///< characters; 0 for no limit
    /// A key that is not taken ends the edit and moves on, as Enter does; else it is passed over.
    bool esclusoChiude = false;
    friend bool operator==(const RegoleCella&, const RegoleCella&) = default;
};

enum class AllineamentoCella { sinistra, centro, destra };

/// A column of a grid beyond the texts of its cells.
struct ColonnaGriglia {
    AllineamentoCella allineamento = AllineamentoCella::destra;
    bool nascosta = false;
    bool aCapo = false;  ///< texts too long for the column go on in lines below
    RegoleCella regole{};
    friend bool operator==(const ColonnaGriglia&, const ColonnaGriglia&) = default;
};

/// What stands in a cell beside its text.
struct OrnamentoCella {
    enum class Segno {
        nessuno,
        massimo,     ///< triangle up at the left
        minimo,      ///< triangle down at the left
        attenzione,  ///< warning triangle at the left
        freccia,     ///< corner of a matrix: rows enter, columns leave
    };
    Segno segno = Segno::nessuno;
    std::optional<Colore> barra{};                    ///< a bar along the left edge
    std::optional<Distintivo> distintivo{};           ///< the text stands in a box of its own
    std::optional<AllineamentoCella> allineamento{};  ///< other than that of the column
};

}  // namespace kelvo
