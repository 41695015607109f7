#include "shell/servizi/Controllo.h"

#include "shell/servizi/CustodeCampi.h"

namespace kelvo {

void Controllo::entra() {
    if (custode_ != nullptr && prendeFuoco()) {
        custode_->entrato(*this);
    }
}

}  // namespace kelvo
