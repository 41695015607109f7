#pragma once

#include <functional>
#include <string>

#include "app/campiMostrati.h"
#include "app/convertitorePDF.h"
#include "app/serviziSistema.h"
#include "results/ServiziRisultati.h"
#include "shell/FabbricaFinestre.h"
#include "shell/servizi/DialogoAnteprima.h"
#include "shell/servizi/documentoPagine.h"

namespace kelvo {

/// What the windows ask of the system beyond what every window has.
struct ServiziFinestre {
    ApriDocumenti& documenti;
    DialogoAnteprima& anteprima;
    FinestreCollegate& collegate;
    Cronometro& cronometro;  ///< of the playback of the comparison alone
    /// Hands a file, whole path, over to the spreadsheet; empty while there is no such export.
    std::function<void(const std::string&)> foglio{};
    /// Leads to the window of the reports; empty while there is none.
    std::function<void()> relazione{};
    /// Makes the report of a sensitivity analysis; empty while there is none.
    std::function<void(const RelazioneSensibilita&)> relazioneSensibilita{};

    /// What open windows show, and the way to their fields, for the check-up; null for none.
    CampiMostrati* campi = nullptr;
    /// Paper and PDF; null for none.
    StampaPagine* stampa = nullptr;
    /// Makes the PDF of whole documents; null for none.
    ConvertitorePDF* pdf = nullptr;

    /// What of it the result windows are handed.
    ServiziRisultati risultati() const {
        return {documenti, collegate, foglio, relazione, relazioneSensibilita, stampa};
    }
};

/// Registers every window of the work area, and those over it. The services must outlive the windows.
void registraFinestre(FabbricaFinestre& finestre, const ServiziFinestre& servizi);

}  // namespace kelvo
