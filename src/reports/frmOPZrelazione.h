#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "reports/frmRelazioneProgressBar.h"
#include "reports/modStampaRelazione.h"
#include "shell/servizi/FinestreCollegate.h"
#include "shell/servizi/TastiPropri.h"

namespace kelvo {

/// A button of the window of the reports.
struct VoceRelazione {
    std::string_view nome;         ///< of its control; its last character is the digit of its shortcut
    std::string_view titolo;       ///< first line
    std::string_view sottotitolo;  ///< second line
    std::string_view icona;
    std::string_view pagina;  ///< of the help
};
inline constexpr std::array<VoceRelazione, 5> vociRelazione{{
    {"cmd1", "Ipotesi progettuali", "(solo dati di input)", "DatiTraffico", "RelazioneDati.htm"},
    {"cmd2", "Verifiche prestazionali", "(solo risultati)", "Risultati", "RelazioneRisultati.htm"},
    {"cmd3", "Ipotesi progettuali e Verifiche prestazionali", "(dati di input e risultati)", "Relazione",
     "RelazioneDatiRisultati.htm"},
    {"cmd4", "Relazione di calcolo COMPLETA", "(dati di input, risultati e Corsia preferenziale)", "Progetto",
     "RelazioneCompleta.htm"},
    {"cmd5", "ANALISI GRANDEZZE PRESTAZIONALI", "Singoli ingressi", "Analizzatore", "RelazioneGrafici.htm"},
}};

/// What the window asks of the outside beyond what every window is handed; the references outlive it.
struct ServiziOPZrelazione {
    ApriDocumenti& documenti;
    FinestreCollegate& finestre;
    /// Lets the progress be painted; null where nothing is painted.
    Attesa* attesa = nullptr;
    /// The comparison of right-turn lanes that is to go into a report; nothing where there is none.
    std::function<std::optional<AnalisiCorsiaDX>()> corsiaDX{};
    /// How the charts are drawn; empty for bars with their values.
    std::function<OpzioniGrafici()> grafici{};
    /// Makes the PDF of a report; null for none.
    ConvertitorePDF* pdf = nullptr;
};

/// "Compila relazione": the reports of the project, and the template of the user's own that they are made from.
class frmOPZrelazione final : public Finestra, public TastiPropri {
public:
    frmOPZrelazione(const Contorno& contorno, const ServiziOPZrelazione& servizi);
    frmOPZrelazione(const frmOPZrelazione&) = delete;
    frmOPZrelazione& operator=(const frmOPZrelazione&) = delete;
    ~frmOPZrelazione() override;

    Etichetta lblTitolo;         ///< "Nome Progetto: ..."
    std::array<Bottone, 5> cmd;  ///< cmd1 to cmd5, in the order of `vociRelazione`
    Etichetta lblSaturazione;    ///< why there are no charts; else hidden
    Etichetta lblModello;        ///< which templates are used
    Bottone cmdModello;          ///< chooses one of the user's own
    Bottone cmdModelloKelvo;     ///< goes back to those of the program; hidden while they are used
    Casella chkPDF;    ///< a PDF of each report too, beside it; kept from run to run, closed where there is none
    Etichetta lblPDF;  ///< why `chkPDF` is closed; else hidden
    frmRelazioneProgressBar avanzamento;

    PannelloAiuto ctlHelp{"ctlHelp"};  ///< what the button in use makes
    PannelloAiuto* aiuto() override { return &ctlHelp; }
    std::vector<SuggerimentoTasto> suggerimenti() const override;
    void entrato(Controllo& campo) override;

    /// Compiles the report of a button, from 0. A run at a time: nothing happens while one goes on.
    void compila(std::size_t quale);
    /// The report of what a window shows.
    void compilaGrafico(const RelazioneGrafica& relazione);
    /// The whole report with the right-turn lanes, for the window of their analysis.
    void compilaTotale();

    void attivata() override;

private:
    /// Shows the steps of a run in the window of its own.
    class Passi final : public AvanzamentoRelazione {
    public:
        explicit Passi(frmOPZrelazione& finestra) : finestra_(finestra) {}
        void mostra(int totale) override;
        void passo(int n) override;
        void attende() override;
        void chiudi() override;

    private:
        frmOPZrelazione& finestra_;
        bool aperta_ = false;
    };

    void corri(const std::function<void(modStampaRelazione&)>& procedura);
    void scegliModello();
    void modello(const std::string& percorso);
    std::string modello();
    void aggiornaModello();
    void aggiornaPDF();
    void sceltoPDF();
    void abilita(bool valore);

    ServiziOPZrelazione servizi_;
    Passi passi_;
    std::string modello_;  ///< where there are no settings to keep it in
    bool inCorso_ = false;
    bool puoPDF_ = false;
};

}  // namespace kelvo
