#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "shell/servizi/Albero.h"

namespace kelvo {

/// Gives a tree disabled nodes: it sees a press or release of the left button before the tree does and keeps from it
/// what falls on a node that is not of the enabled colour.
class clsTVWDisableNode {
public:
    /// Colour of an enabled node, the system's window text.
    static constexpr Colore testoFinestra = colori::nero;

    void Attach(Albero& albero) { albero_ = &albero; }
    void Detach() { albero_ = nullptr; }
    bool attaccato() const { return albero_ != nullptr; }

    Colore ColoreAbilitato() const { return coloreAbilitato_; }
    void ColoreAbilitato(Colore valore) { coloreAbilitato_ = valore; }

    /// Told the text of a disabled node that was pressed; may be empty.
    std::function<void(const std::string&)> NodoDisabilitatoClick;

    /// Left button down or up on a node, by its key; empty beside all nodes. True: the tree must not see it.
    bool filtra(std::string_view chiave) const;

private:
    Albero* albero_ = nullptr;
    Colore coloreAbilitato_ = testoFinestra;
};

}  // namespace kelvo
