#pragma once

#include "app/serviziSistema.h"
#include "shell/FabbricaFinestre.h"
#include "shell/servizi/DialogoAnteprima.h"

namespace kelvo {

/// What the windows ask of the system beyond what every window has.
struct ServiziFinestre {
    ApriDocumenti& documenti;
    DialogoAnteprima& anteprima;
};

/// Registers every window of the work area, and those over it. The services must outlive the windows.
void registraFinestre(FabbricaFinestre& finestre, const ServiziFinestre& servizi);

}  // namespace kelvo
