#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/date.h"

namespace kelvo {

/// Levels of a finding: information, verification, error.
enum class Livello { Green, Yellow, Red };

inline constexpr std::array livelli{Livello::Green, Livello::Yellow, Livello::Red};

/// "Green", "Yellow", "Red": the key of its picture, and what the keys of its findings begin with.
std::string_view nomeLivello(Livello livello);
/// Priority of a finding in the printed report, by the first letter of its key: "1" for R, "2" for Y, "3" for G, "+"
/// for any other.
std::string_view prioritaMessaggio(std::string_view chiave);

/// Where a finding leads: the key of the tree whose window mends it, and the control in that window.
struct Meta {
    std::string chiave;     ///< empty where it leads nowhere
    std::string campo;      ///< name of the control; empty for none
    std::int16_t ramo = 0;  ///< position of the leg, from 1; 0 for the whole project
    int riga = 0;           ///< row of the control's table, from 1; 0 for none in particular
    friend bool operator==(const Meta&, const Meta&) = default;
};

/// A finding.
struct Riscontro {
    std::string chiave;  ///< its first letter tells the level
    std::string testo;   ///< heading and message, with nothing between them
    Livello livello = Livello::Green;
    Meta meta;
};

/// Heading of a finding's text, with its colon; empty where there is none.
std::string_view titoloRiscontro(std::string_view testo);
/// What follows the heading.
std::string_view messaggioRiscontro(std::string_view testo);

/// Key of the root of every list of findings, and of its picture.
inline constexpr std::string_view chiaveRadice = "keyMyProject";
inline constexpr std::string_view immagineRadice = "Progetto";

/// Findings below a root, in the order in which they were made.
struct AlberoRiscontri {
    std::string radice;  ///< text of the root
    std::vector<Riscontro> riscontri;

    void svuota() { riscontri.clear(); }
    /// Nodes, the root counted.
    std::size_t nodi() const { return riscontri.size() + 1; }
};

/// What is told of a list without findings.
inline constexpr std::string_view testoNessunRiscontro = "Nessun messaggio.";

/// The findings as a text: title, root, one line a finding with its priority, legend, closing lines with `momento` and
/// the project's name. Lines end in CR LF.
std::string testoReport(const AlberoRiscontri& albero, DataOra momento, std::string_view nomeProgetto);

}  // namespace kelvo
