#pragma once

#include <algorithm>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/nuovoProgetto.h"
#include "comune/cadFinto.h"
#include "comune/cartella.h"
#include "comune/cronometro.h"
#include "comune/finti.h"
#include "shell/MDI_Form.h"
#include "shell/Main.h"
#include "shell/finestrePerChiave.h"
#include "shell/frmAiuto.h"
#include "shell/registroFinestre.h"
#include "shell/servizi/tBox.h"

namespace kelvo::prove::shell {

/// Records the message boxes; plays the given answers in order, then "ok" for one button, "yes" else.
class MessaggiInFila final : public FinestraMessaggi {
public:
    Risposta mostra(const std::string& testo, const std::string& titolo, Icona icona, Pulsanti pulsanti) override {
        mostrati.push_back({testo, titolo, icona, pulsanti});
        if (!risposte.empty()) {
            const Risposta prima = risposte.front();
            risposte.pop_front();
            return prima;
        }
        const bool ok = pulsanti == Pulsanti::ok || pulsanti == Pulsanti::okAnnulla;
        return ok ? Risposta::ok : Risposta::si;
    }
    std::vector<std::string> testi() const {
        std::vector<std::string> tutti;
        for (const auto& m : mostrati) {
            tutti.push_back(m.testo);
        }
        return tutti;
    }
    std::vector<MessaggiFinti::Messaggio> mostrati;
    std::deque<Risposta> risposte;
};

/// A surface without a display. Units are those of the main window.
class SuperficieFinta final : public Superficie {
public:
    Rettangolo albero() const override { return posto; }
    double larghezzaInterna() const override { return 20000.0; }
    void mostra(Finestra& /*finestra*/) override {}
    void colloca(Finestra& finestra, const Rettangolo& dove) override {
        mostrate.push_back(finestra.nome());
        postoFiglia = dove;
    }
    void nascondi(Finestra& finestra) override { nascoste.push_back(finestra.nome()); }
    void vestiBarra(Finestra& /*finestra*/) override { ++vestite; }
    void ridimensiona(Finestra& /*finestra*/) override { ++ridimensionate; }
    void mostraCornice() override { passi.emplace_back("mostraCornice"); }
    void mostraAlbero(bool visibile) override { alberoVisibile = visibile; }
    void collocaAlbero(const Rettangolo& dove) override { posto = dove; }
    void scambiaFuoco() override { passi.emplace_back("scambiaFuoco"); }
    MetricheCornice metriche() const override { return altezze; }
    Misura schermo() const override { return misuraSchermo; }
    void mostraModale(Finestra& finestra) override {
        modali.push_back(finestra.nome());
        if (alModale) {
            alModale(finestra);
        }
    }
    void apriSopra(Finestra& finestra) override { passi.push_back("apriSopra " + finestra.nome()); }
    void chiudiSopra(Finestra& finestra) override { passi.push_back("chiudiSopra " + finestra.nome()); }
    void mostraAiuto(Finestra& aiuto) override { aiuti.push_back(dynamic_cast<frmAiuto&>(aiuto).pagina()); }
    Finestra* finestraInFuoco() override { return inFuoco; }
    void dimentica(Finestra& finestra) override { dimenticate.push_back(finestra.nome()); }
    void termina() override { terminata = true; }

    Rettangolo posto;
    Rettangolo postoFiglia;
    MetricheCornice altezze{10000.0, 300.0, 350.0, 700.0, 250.0};
    Misura misuraSchermo{15360.0, 11520.0};
    std::vector<std::string> mostrate;
    std::vector<std::string> nascoste;
    std::vector<std::string> modali;
    std::vector<std::string> dimenticate;
    std::vector<std::string> aiuti;  ///< pages that the help window was shown with
    Finestra* inFuoco = nullptr;     ///< beside the one of the work area
    std::vector<std::string> passi;
    std::function<void(Finestra&)> alModale;
    int vestite = 0;
    int ridimensionate = 0;
    bool alberoVisibile = false;
    bool terminata = false;
};

class DialogoFinto final : public DialogoFile {
public:
    std::optional<std::string> apri(const RichiestaFile& richiesta,
                                    const std::function<void(const std::string&)>& /*alCambio*/) override {
        richieste.push_back(richiesta);
        return prossimo();
    }
    std::optional<std::string> salva(const RichiestaFile& richiesta) override {
        richieste.push_back(richiesta);
        return prossimo();
    }
    std::vector<RichiestaFile> richieste;
    std::deque<std::string> scelte;       ///< none left: Cancel
    std::function<void()> allaRichiesta;  ///< while a dialogue stands; may be empty

private:
    std::optional<std::string> prossimo() {
        if (allaRichiesta) {
            allaRichiesta();
        }
        if (scelte.empty()) {
            return std::nullopt;
        }
        const std::string scelta = scelte.front();
        scelte.pop_front();
        return scelta;
    }
};

class DocumentiFinti final : public ApriDocumenti {
public:
    bool apri(const std::string& percorso) override {
        aperti.push_back(percorso);
        return riesce;
    }
    bool avvia(const std::string& programma, const std::string& argomento) override {
        avviati.push_back(programma + "|" + argomento);
        return riesce;
    }
    std::vector<std::string> aperti;
    std::vector<std::string> avviati;
    bool riesce = true;
};

/// A file dialogue with a preview: what its user does is told by the test.
class AnteprimaFinta final : public DialogoAnteprima {
public:
    bool apri(const RichiestaFile& richiesta, FinestraAnteprima& anteprima) override {
        richieste.push_back(richiesta);
        return alDialogo && alDialogo(anteprima);
    }
    std::vector<RichiestaFile> richieste;
    std::function<bool(FinestraAnteprima&)> alDialogo;  ///< empty: Cancel
};

/// Windows beside and over another: writes down what is asked.
class CollegateFinte final : public FinestreCollegate {
public:
    bool mostra(Finestra& finestra) override { return nota("mostra ", finestra); }
    void affianca(Finestra& finestra) override { nota("affianca ", finestra); }
    void sovrapponi(Finestra& finestra) override { nota("sovrapponi ", finestra); }
    void chiudi(Finestra& finestra) override { nota("chiudi ", finestra); }
    void dimentica(Finestra& finestra) override { nota("dimentica ", finestra); }
    std::vector<std::string> passi;

private:
    bool nota(const std::string& passo, const Finestra& finestra) {
        passi.push_back(passo + finestra.nome());
        return true;
    }
};

/// The services of the real windows.
struct ServiziFinestreFinti {
    DocumentiFinti documenti;
    AnteprimaFinta anteprima;
    CollegateFinte collegate;
    CronometroATempo simulazione;
    ServiziFinestre servizi() { return {documenti, anteprima, collegate, simulazione}; }
};

class ImpostazioniFinte final : public ImpostazioniUtente {
public:
    void scrivi(const std::string& applicazione, const std::string& sezione, const std::string& chiave,
                const std::string& valore) override {
        valori[applicazione + "|" + sezione + "|" + chiave] = valore;
    }
    std::string leggi(const std::string& applicazione, const std::string& sezione,
                      const std::string& chiave) const override {
        const auto trovato = valori.find(applicazione + "|" + sezione + "|" + chiave);
        return trovato == valori.end() ? std::string{} : trovato->second;
    }
    std::map<std::string, std::string> valori;
};

class CronometroFinto final : public Cronometro {
public:
    void ogni(int ms, const std::function<void()>& cosa) override {
        millisecondi = ms;
        rintocco = cosa;
    }
    void ferma() override { rintocco = {}; }
    int millisecondi = 0;
    std::function<void()> rintocco;
};

/// A window of the work area with one field, which refuses the text "storto" and is bound to the node of the moment.
class FinestraFinta final : public Finestra {
public:
    FinestraFinta(const Contorno& contorno, const std::string& nome, bool dati)
        : Finestra(contorno, nome, nome), dati_(dati) {
        ordina({&campo});
        campo.controllo = [this] {
            return campo.testo() == "storto" ? EsitoUscita::rifiuto(std::string{"storto"}) : EsitoUscita::bene();
        };
    }
    void attivata() override { lette.push_back(navigazione().chiaveCorrente()); }
    bool haSaveData() const override { return dati_; }
    void SaveData() override {
        ++salvataggi;
        if (alSalvataggio) {
            alSalvataggio(app());
        }
    }
    tBox campo{"campo", tBox::textbox};
    std::vector<std::string> lette;  ///< the node at each activation
    int salvataggi = 0;
    std::function<void(Applicazione&)> alSalvataggio;

private:
    bool dati_;
};

inline const std::vector<std::string>& nomiFinestre() {
    static const std::vector<std::string> nomi{"frmEmptyForm",
                                               "frmAnagraficaRotonda",
                                               "frmCommittenteProfessionista",
                                               "frmTempoModellazione",
                                               "frmInputNumeroRami",
                                               "frmToponomasticaIntersezione",
                                               "frmParametriRamo",
                                               "frmDatiTraffico",
                                               "frmDatiTrafficoST",
                                               "frmMatriceSvolte",
                                               "frmComposizioneTraffico",
                                               "frmComposizioneTrafficoST",
                                               "frmAnalisiMarginale",
                                               "frmOpzioni",
                                               "frmCapacitaCodeRitardi",
                                               "frmCapacitaCodeRitardiRamo",
                                               "frmCapacitaUltima",
                                               "frmRisultatiAnalisiMarginale",
                                               "frmConfronti",
                                               "frmDX",
                                               "frmANALIZZATORE",
                                               "frmGoogle",
                                               "frmOPZrelazione"};
    return nomi;
}

/// The program without a display, with a fake of every window.
class ShellFinta {
public:
    ShellFinta() {
        app.configurazione.coefficienti(coefficientiDiFabbrica);
        scriviIni("[FILE_LOG]\nPathError=FILELOGERROR.TXT\n[OPZ_EXPLORER]\nRami=0\n");
        app.configurazione.PathErrore = "FILELOGERROR.TXT";
        for (const std::string& nome : nomiFinestre()) {
            registra(nome);
        }
        superficie.alModale = [this](Finestra& finestra) {
            if (finestra.nome() == "frmInputNumeroRami") {
                scegliRami();
            }
        };
    }

    void scriviIni(const std::string& testo) { scriviContenuto(cartella.file("Kelvo.ini"), testo); }
    void disposizione(int valore) {
        scriviIni("[FILE_LOG]\nPathError=FILELOGERROR.TXT\n[OPZ_EXPLORER]\nRami=" + std::to_string(valore) + "\n");
    }
    void registra(const std::string& nome) {
        const bool dati = nome != "frmEmptyForm" && nome.rfind("frmCapacita", 0) != 0;
        cornice.finestre.registra(nome, [nome, dati](const Contorno& contorno) {
            return std::make_unique<FinestraFinta>(contorno, nome, dati);
        });
    }
    /// A new project of so many legs, by the menu's way.
    void nuovo(int rami) {
        ramiScelti = rami;
        cornice.NewRotonda();
    }
    FinestraFinta& finta(const std::string& nome) {
        auto* viva = dynamic_cast<FinestraFinta*>(cornice.finestre.viva(nome));
        if (viva == nullptr) {
            throw std::runtime_error(nome + " does not live");
        }
        return *viva;
    }
    FinestraFinta* corrente() { return dynamic_cast<FinestraFinta*>(cornice.gestione.corrente()); }
    std::string nomeCorrente() { return corrente() == nullptr ? std::string{} : corrente()->nome(); }
    /// A project file of so many legs.
    std::string progettoSuDisco(const std::string& nome, int rami) {
        Rotonda rotonda;
        rotonda.NumeroRami(static_cast<std::int16_t>(rami));
        for (int i = 1; i <= rami; ++i) {
            rotonda.AddRamo(std::to_string(i) + "Ramo");
        }
        std::string percorso = cartella.file(nome);
        std::string messaggio;
        bool esito = false;
        rotonda.Save(percorso, messaggio, esito);
        if (!esito) {
            throw std::runtime_error(messaggio);
        }
        return percorso;
    }

    CartellaTemporanea cartella;
    MessaggiInFila messaggi;
    OrologioFinto orologio;
    Applicazione app{cartella.percorso(), cartella.percorso(), {messaggi, orologio, sistemaFileStandard()}};
    StatoFinestre stato;
    SuperficieFinta superficie;
    DialogoFinto dialogo;
    DocumentiFinti documenti;
    ImpostazioniFinte impostazioni;
    CronometroFinto cronometro;
    RegistroFinto registro;
    AutomazioneFinta cad;
    MDI_Form cornice{app,
                     stato,
                     {superficie, dialogo, documenti, impostazioni, cronometro, cartella.file("Recupero"), nullptr,
                      nullptr, &registro, &cad}};
    int ramiScelti = 4;  ///< 0: Cancel

private:
    void scegliRami() {
        if (ramiScelti == 0) {
            stato.ProgettoAperto = false;
            return;
        }
        creaProgetto(app, static_cast<std::int16_t>(ramiScelti));
        stato.ProgettoAperto = true;
        cornice.LoadTreeView();
    }
};

}  // namespace kelvo::prove::shell
