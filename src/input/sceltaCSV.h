#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/serviziSistema.h"
#include "input/fileCSV.h"

namespace kelvo {

/// A column of a table that takes one of a file.
struct ColonnaCSV {
    std::string titolo;              ///< what it is called; a column of the file with that heading is proposed for it
    int colonna = 0;                 ///< of the grid, from 0, fixed ones counted
    std::vector<std::string> altri;  ///< other headings by which it is known
};

/// How the cells of a file are taken.
struct SceltaCSV {
    SeparatoreCSV separatore = SeparatoreCSV::puntoEVirgola;
    bool intestazioni = false;  ///< the first row holds headings
    std::vector<int> colonne;   ///< for each column of the table that of the file, from 0; -1 for none
    friend bool operator==(const SceltaCSV&, const SceltaCSV&) = default;
};

/// The first row is no row of figures: it has a text, and none of its cells holds a figure, the first cell left out
/// where there are others.
bool primaRigaDiTesti(const RigheCSV& righe);

/// Columns of the file for those of the table: by equal headings (in capitals or not, blanks around them left out);
/// where none is equal, or there are none, by position. A first column that names its rows is passed over.
std::vector<int> colonneProposte(const RigheCSV& righe, bool intestazioni, const std::vector<ColonnaCSV>& colonne);

/// Characters of a text that are shown or quoted.
inline constexpr std::size_t caratteriMostratiCSV = 60;
/// A text as it is shown or quoted: what is too long of it gives way to "…".
std::string testoBreveCSV(std::string_view testo);

/// What a text in a cell of the file is.
struct LetturaCSV {
    std::optional<double> numero;  ///< empty: it is refused
    bool ambigua = false;          ///< it is a number that could be read in two ways
};
/// Where cells are parted by commas, "1,234" may be thousands in the English way or decimals: it is refused as well.
LetturaCSV leggiCellaCSV(std::string_view testo, SeparatoreCSV separatore = SeparatoreCSV::puntoEVirgola);
/// The columns proposed anew, but for those that the user chose himself (`aMano`, as many as `scelte`), which stay; a
/// column of the file that one of them holds is proposed for no other.
std::vector<int> colonneRiproposte(const std::vector<int>& scelte, const std::vector<bool>& aMano,
                                   std::vector<int> proposte);

/// The choice that was made for the last file of a kind, in the settings of the user.
class MemoriaCSV {
public:
    /// `impostazioni`: null where nothing is remembered.
    MemoriaCSV(ImpostazioniUtente* impostazioni, std::string tipo)
        : impostazioni_(impostazioni), tipo_(std::move(tipo)) {}

    /// The choice for files of that kind, if the cells, as its separator parts them, have the columns of the file that
    /// it was made for: the same headings, or as many columns where there were none.
    std::optional<SceltaCSV> adatta(std::string_view testo, std::size_t colonneTabella) const;
    void ricorda(const SceltaCSV& scelta, const RigheCSV& righe);
    /// Folder of the last file of any kind; empty for none.
    std::string cartella() const;
    void cartella(const std::string& valore);

private:
    std::string leggi(const std::string& chiave) const;
    void scrivi(const std::string& chiave, const std::string& valore);

    ImpostazioniUtente* impostazioni_;
    std::string tipo_;
};

}  // namespace kelvo
