#pragma once

#include <functional>
#include <string>

#include "app/serviziSistema.h"
#include "shell/servizi/FinestreCollegate.h"
#include "shell/servizi/documentoPagine.h"
#include "shell/servizi/relazioneGrafica.h"

namespace kelvo {

/// What the result windows ask of the outside, beyond what every window is handed. The references outlive the windows.
struct ServiziRisultati {
    ApriDocumenti& documenti;
    FinestreCollegate& finestre;
    /// Hands the file of all entries, whole path, over to the spreadsheet.
    std::function<void(const std::string&)> foglio{};
    /// Leads to the window of the reports.
    std::function<void()> relazione{};
    /// Makes the report of what a window shows.
    std::function<void(const RelazioneGrafica&)> relazioneGrafica{};
    /// Makes the whole report, with the right-turn lanes.
    std::function<void()> relazioneTotale{};
    /// Paper and PDF; null for none.
    StampaPagine* stampa = nullptr;
};

}  // namespace kelvo
