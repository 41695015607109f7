#pragma once

#include <span>
#include <string>
#include <string_view>

#include "model/Rotonda.h"
#include "shell/servizi/Albero.h"

namespace kelvo {

/// A row of a tree layout; it stands under the last row before it that is one level less deep.
struct RigaAlbero {
    int livello = 0;
    std::string_view chiave;
    std::string_view testo;  ///< empty: the leg's name
    std::string_view immagine;
    bool espanso = false;
    bool perRamo = false;  ///< once a leg, the digit of the leg behind the key
};

/// Rows of the layout by type.
std::span<const RigaAlbero> alberoPerTipo();
/// Rows of the layout by leg.
std::span<const RigaAlbero> alberoPerRamo();

/// Appends the nodes of a layout. Fault 9 for a leg that does not exist.
void costruisciAlbero(Albero& albero, std::span<const RigaAlbero> righe, const Rotonda& rotonda);

/// Gives a leg's name to all nodes of the leg that show it in this layout. `cifra`: digit of the leg, '1' to '7'.
void rinominaRamo(Albero& albero, std::span<const RigaAlbero> righe, char cifra, const std::string& nome);

}  // namespace kelvo
