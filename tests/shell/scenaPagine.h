#pragma once

#include <filesystem>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "base/testo.h"
#include "checkup/frmCheckUpMessaggio.h"
#include "comune/cartella.h"
#include "comune/fintiShell.h"
#include "input/frmImportaCSV.h"
#include "input/frmMatriceSvolte.h"
#include "input/frmPreviewMatriceSvolte.h"
#include "input/frmPreviewRami.h"
#include "reports/frmRelazioneProgressBar.h"
#include "results/frmAnteprimaTesto.h"
#include "results/frmLEGENDA.h"
#include "results/frmRAMO_AGGIUNTIVA.h"
#include "shell/frmSplash.h"

namespace kelvo::prove {

inline const std::string cartellaPagine = KELVO_SORGENTI "/assets/Support/";

/// The pages of the help, by their file names, in order.
inline std::vector<std::string> pagineTutte() {
    std::set<std::string> nomi;
    for (const auto& voce : std::filesystem::directory_iterator(cartellaPagine)) {
        if (voce.path().extension() == ".htm") {
            nomi.insert(voce.path().filename().string());
        }
    }
    return {nomi.begin(), nomi.end()};
}

inline std::string pagina(const std::string& nome) {
    return contenuto(cartellaPagine + nome);
}

/// What a reader of a page sees: its text without marks and comments, line ends as blanks.
inline std::string testoVisibile(const std::string& html) {
    const auto corpo = html.find("<body>");
    std::string testo;
    bool segno = false;
    for (const char c : corpo == std::string::npos ? std::string{} : html.substr(corpo)) {
        segno = segno || c == '<';
        if (!segno) {
            testo += c == '\n' ? ' ' : c;
        }
        segno = segno && c != '>';
    }
    return htmlInTesto(testo);
}

/// Every window of the program, of a project of four legs: those that the main window knows by name, and those that
/// others bring up.
class FinestreTutte : public shell::ShellFinta {
public:
    FinestreTutte() {
        registraFinestre(finestre, servizi.servizi());
        nuovo(4);
        for (const std::string& nome : finestre.nomi()) {
            tutte.push_back(&finestre.finestra(nome, contorno()));
        }
        auto& matrice = dynamic_cast<frmMatriceSvolte&>(finestre.finestra("frmMatriceSvolte", contorno()));
        metti(std::make_unique<frmImportaCSV>(contorno(), matrice.bersaglioCSV()));
        metti(std::make_unique<frmCheckUpMessaggio>(contorno(), Riscontro{}));
        metti(std::make_unique<frmPreviewRami>(contorno()));
        metti(std::make_unique<frmPreviewMatriceSvolte>(contorno()));
        metti(std::make_unique<frmLEGENDA>(contorno()));
        metti(std::make_unique<frmRAMO_AGGIUNTIVA>(
            contorno(), ServiziRisultati{.documenti = servizi.documenti, .finestre = servizi.collegate}));
        metti(std::make_unique<frmAnteprimaTesto>(contorno()));
        metti(std::make_unique<frmRelazioneProgressBar>(contorno()));
        metti(std::make_unique<frmSplash>(contorno()));
    }
    /// The windows go before what they were handed.
    ~FinestreTutte() { finestre.distruggi(); }
    FinestreTutte(const FinestreTutte&) = delete;
    FinestreTutte& operator=(const FinestreTutte&) = delete;
    Contorno contorno() { return cornice.contorno(); }

    shell::ServiziFinestreFinti servizi;
    FabbricaFinestre& finestre = cornice.finestre;
    std::vector<Finestra*> tutte;

private:
    void metti(std::unique_ptr<Finestra> finestra) {
        tutte.push_back(finestra.get());
        altre_.push_back(std::move(finestra));
    }
    std::vector<std::unique_ptr<Finestra>> altre_;
};

}  // namespace kelvo::prove
