#pragma once

#include <functional>
#include <string>

#include "app/campiMostrati.h"
#include "app/convertitorePDF.h"
#include "app/serviziSistema.h"
#include "shell/FabbricaFinestre.h"
#include "shell/servizi/DialogoAnteprima.h"
#include "shell/servizi/FinestreCollegate.h"
#include "shell/servizi/documentoPagine.h"

namespace kelvo {

/// What the windows ask of the system beyond what every window has.
struct ServiziFinestre {
    ApriDocumenti& documenti;
    DialogoAnteprima& anteprima;
    FinestreCollegate& collegate;
    Cronometro& cronometro;  ///< of the playback of the comparison alone
    /// Hands a file, whole path, over to the spreadsheet.
    std::function<void(const std::string&)> foglio{};
    /// What open windows show, and the way to their fields, for the check-up; null for none.
    CampiMostrati* campi = nullptr;
    /// Paper and PDF; null for none.
    StampaPagine* stampa = nullptr;
    /// Lets the progress of a report be painted and nothing else happen; null where nothing is painted.
    Attesa* attesa = nullptr;
    /// Makes the PDF of a report; null for none.
    ConvertitorePDF* pdf = nullptr;
};

/// Registers every window of the work area, and those over it. The services must outlive the windows; what a result
/// window makes a report of goes through the window of the reports, made where it does not live.
void registraFinestre(FabbricaFinestre& finestre, const ServiziFinestre& servizi);

}  // namespace kelvo
