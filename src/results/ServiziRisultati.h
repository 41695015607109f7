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
    /// Hands the file of all entries, whole path, over to the spreadsheet; empty while there is no such export.
    std::function<void(const std::string&)> foglio{};
    /// Leads to the window of the reports; empty while there is none.
    std::function<void()> relazione{};
    /// Makes the report of what a window shows; empty while there is none.
    std::function<void(const RelazioneGrafica&)> relazioneGrafica{};
    /// Makes the whole report, with the right-turn lanes; empty while there is none.
    std::function<void()> relazioneTotale{};
    /// Paper and PDF; null for none.
    StampaPagine* stampa = nullptr;
};

}  // namespace kelvo
