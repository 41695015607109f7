#include "shell/servizi/Controllo.h"

#include "shell/servizi/CustodeCampi.h"

namespace kelvo {

void Controllo::entra() {
    if (custode_ != nullptr && prendeFuoco()) {
        custode_->entrato(*this);
    }
}

bool Controllo::haFuoco() const {
    return custode_ == nullptr || custode_->haFuoco(*this);
}

}  // namespace kelvo
