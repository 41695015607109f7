#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/Applicazione.h"
#include "app/convertitorePDF.h"
#include "app/serviziSistema.h"
#include "reports/DocumentoRelazione.h"
#include "results/corsiaDestra.h"
#include "results/graficiRamo.h"
#include "shell/servizi/disegnatore.h"
#include "shell/servizi/relazioneGrafica.h"

namespace kelvo {

/// Shows how far a report has come.
class AvanzamentoRelazione {
public:
    AvanzamentoRelazione() = default;
    AvanzamentoRelazione(const AvanzamentoRelazione&) = delete;
    AvanzamentoRelazione& operator=(const AvanzamentoRelazione&) = delete;
    virtual ~AvanzamentoRelazione() = default;

    virtual void mostra(int totale) = 0;
    /// Step `n` of the total, from 1, is done.
    virtual void passo(int n) = 0;
    /// Some 20 times a second while the run waits for another program.
    virtual void attende() {}
    virtual void chiudi() = 0;
};

/// What a report asks of the outside.
struct ServiziRelazione {
    FinestraMessaggi& messaggi;
    DialogoFile* dialogo = nullptr;               ///< where the report is saved; needed without `percorso`
    ApriDocumenti* documenti = nullptr;           ///< opens it; null: the end is told and nobody is asked
    AvanzamentoRelazione* avanzamento = nullptr;  ///< null for nobody who looks
    Disegnatore* disegnatore = nullptr;           ///< null: reports have no plan, and there are none of charts
    /// The comparison that is to go into the report; nothing where there is none.
    std::function<std::optional<AnalisiCorsiaDX>()> corsiaDX{};
    /// Where the report is written without asking; empty to ask.
    std::string percorso{};
    /// Makes a PDF of the report too, beside it and under its name; null for none. One that stands there is replaced
    /// where the user says so, or where `percorso` is given.
    ConvertitorePDF* pdf = nullptr;
    /// A template of the user's own, whole path, in the place of the master templates; empty for none.
    std::string modelloProprio{};
};

enum class EsitoRelazione {
    fatta,
    senzaPDF,   ///< the report is written, its PDF is not; the reason was shown, or the user keeps an older one
    annullata,  ///< the user did not choose a file; nothing was written
    fallita,    ///< the reason was shown
};

/// Compiles the reports of the project: a document from a template whose placeholders and tables are filled, section by
/// section, and whose sections that do not apply are taken away.
///
/// A procedure of a section ends in its own handler: what it cannot do is recorded and the next one runs. A fault of
/// the run itself, and any other exception, ends it; no file is left then.
class modStampaRelazione {
public:
    static constexpr int passiRelazione = 19;
    static constexpr int passiAllegati = 9;

    modStampaRelazione(Applicazione& app, const ServiziRelazione& servizi);

    /// The report of a template of the folder "Modelli". What follows from its name is told by the name as it is given:
    /// "RelazioneMasterIN" has no results, "RelazioneMasterTOT" alone has the right-turn lanes.
    EsitoRelazione compilaRelazioneWord(const std::string& nomeModello);
    /// The annexes: results alone.
    EsitoRelazione compilaAllegatiWord(const std::string& nomeModello);
    /// The charts of every entry, five each.
    EsitoRelazione compilaGrafici(const OpzioniGrafici& opzioni = {});
    /// What a window shows.
    EsitoRelazione compilaGrafico(const RelazioneGrafica& relazione);

    /// How many sections the last run passed over because a template of the user's own does not have them.
    int sezioniMancanti() const { return saltate_; }

    /// Replaces a placeholder wherever it stands; answers how often it did.
    int InserisciVariabileWord(std::string_view testoCercato, std::string_view testoNuovo);

    // The sections, on the document at hand.
    void riempiAnagraficaRotonda();
    void riempiToponomasticaIngressi();
    void riempiGeometriaIngressi();
    void riempiDatiTraffico();
    void riempiDatiTrafficoST();
    void riempiMatriceSvoltePerc();
    void riempiMatriceSvolte();
    void riempiTotaliMatriceSvolte();
    void riempiVeicoliEquivalenti();
    void riempiComposizioneTraffico();
    void riempiComposizioneTrafficoST();
    void riempiCondizioniEsterne();
    void riempiTempoModellazione();
    void riempiCapacitaUltima();
    void riempiCapacitaCodeRitardi();
    void riempiCorsiaDX();
    void nascondiMatriceSvolte();
    void nascondiDatiTraffico();
    void nascondiDatiTrafficoST();
    void nascondiComposizioneTraffico();
    void nascondiComposizioneTrafficoST();
    void nascondiCorsiaDX();
    /// The plan of the roundabout, where the template has a place for it and there is somebody to draw it.
    void riempiPianta();

    /// The document that the sections write to, in the place of the one at hand.
    void documento(std::unique_ptr<DocumentoRelazione> nuovo) { documento_ = std::move(nuovo); }
    DocumentoRelazione& documento() { return *documento_; }

private:
    using Passo = std::function<void()>;
    /// One run: its label, its template, the beginning of its file's name, the steps between opening and saving.
    struct Corsa {
        std::string metodo;
        std::string modello;
        std::string prefisso;
        bool conRisultati = false;
        bool modelloProprio = true;  ///< a template of the user's own may stand in
        int totale = 0;
        std::vector<Passo> passi{};
    };

    EsitoRelazione compila(const Corsa& corsa);
    EsitoRelazione componiESalva(const Corsa& corsa);
    EsitoRelazione salva(const Corsa& corsa);
    EsitoRelazione gestisci(const std::string& metodo, const std::function<EsitoRelazione()>& procedura);
    void apriModello(const Corsa& corsa);
    void fattoPasso();
    std::string nomePredefinito(const std::string& prefisso) const;
    std::string cartellaRelazioni();
    void diceMancanti();
    void chiude(const std::string& percorso);
    bool faPDF(const std::string& percorso);

    /// Runs a section in its handler.
    void sezione(std::string_view nome, const Passo& procedura);
    /// Takes a section away that is the program's own and that a template may lack.
    void togli(std::string_view segnalibro);
    void elimina(std::string_view segnalibro);
    void traffico();
    void composizione();
    void matrice();
    void corsie();
    void inserisciFigura(const FiguraRelazione& figura);
    void inserisciTabella(const Tabella& tabella, const std::string& didascalia);
    void scriviMatrice(std::string_view segnalibro, const std::vector<std::vector<std::string>>& valori);
    RelazioneGrafica graficiIngresso(std::int16_t ramo, const OpzioniGrafici& opzioni) const;

    const Rotonda& rotonda() const { return app_.theRotonda(); }

    Applicazione& app_;
    ServiziRelazione servizi_;
    std::unique_ptr<DocumentoRelazione> documento_;
    std::vector<std::string> mancanti_;  ///< sections that a template of the user's own does not have
    int saltate_ = 0;                    ///< of all its sections, those that are taken away too
    bool proprio_ = false;               ///< the template at hand is the user's own
    int passo_ = 0;
};

}  // namespace kelvo
