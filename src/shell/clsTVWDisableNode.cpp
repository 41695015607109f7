#include "shell/clsTVWDisableNode.h"

namespace kelvo {

bool clsTVWDisableNode::filtra(std::string_view chiave) const {
    if (albero_ == nullptr || chiave.empty() || !albero_->contiene(chiave)) {
        return false;
    }
    const Albero::Nodo& nodo = albero_->nodo(chiave);
    if (nodo.ForeColor == coloreAbilitato_) {
        return false;
    }
    if (NodoDisabilitatoClick) {
        NodoDisabilitatoClick(nodo.testo);
    }
    return true;
}

}  // namespace kelvo
