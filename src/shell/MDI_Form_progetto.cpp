#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <filesystem>

#include "app/percorsi.h"
#include "app/titoli.h"
#include "base/file.h"
#include "base/testo.h"
#include "shell/MDI_Form.h"
#include "shell/gestore.h"
#include "shell/servizi/tBox.h"

namespace kelvo {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t caratteriInizio = 14;  // "KELVO 2014 - ["
constexpr std::size_t caratteriEstensione = 4;
constexpr const char* nomeDaSolo = "Rotatoria_001";

/// Windows that a save asks for nothing.
constexpr std::array<std::string_view, 9> senzaSalvataggio{
    "frmEmptyForm",    "frmCapacitaCodeRitardiRamo", "frmCapacitaCodeRitardi",       "frmDX",    "frmConfronti",
    "frmANALIZZATORE", "frmCapacitaUltima",          "frmRisultatiAnalisiMarginale", "frmGoogle"};

RichiestaFile richiestaProgetto(const Applicazione& app) {
    RichiestaFile richiesta;
    richiesta.estensione = "klv";
    richiesta.filtro = "File definizione rotonda (*.klv)|*.klv|Tutti i files(*.*)|*.*";
    richiesta.cartella = cartellaProgetti(app.theAmbiente);
    return richiesta;
}

/// File title of a path less its last four characters.
std::string titoloSenzaEstensione(const std::string& percorso) {
    return senzaUltimi(testoDaPercorso(percorsoDaTesto(percorso).filename()), caratteriEstensione);
}

/// The path from the root on, without the components "." and ".." where that leads to the same file.
std::string percorsoIntero(const std::string& percorso) {
    std::error_code errore;
    const fs::path intero = fs::absolute(percorsoDaTesto(percorso), errore);
    if (errore) {
        return percorso;
    }
    const fs::path breve = intero.lexically_normal();
    return testoDaPercorso(fs::equivalent(intero, breve, errore) ? breve : intero);
}

}  // namespace

void MDI_Form::mostra(const std::string& testo) {
    app_.messaggi.mostra(testo, titoli::attenzione, Icona::esclamazione, Pulsanti::ok);
}

std::string MDI_Form::titoloProgetto() const {
    return fmt::format("KELVO 2014 - [{}.klv]", app_.theRotonda().NomeFile());
}

bool MDI_Form::modificato() const {
    return stato_.statoProgetto != StatoProgetto::NessunProgetto &&
           revisioneSalvata_ != app_.theRotonda().revisione().tutto;
}

void MDI_Form::fissaProgetto(bool salvato) {
    revisioneSalvata_.reset();
    if (salvato) {
        revisioneSalvata_ = app_.theRotonda().revisione().tutto;
    }
    aggiornaSegno();
}

void MDI_Form::copiaDiRecupero() {
    if (!modificato()) {
        return;
    }
    const std::string errore = recupero.scrivi();
    if (!errore.empty()) {
        avviso("Copia di recupero non scritta: " + errore);
    }
}

void MDI_Form::distruggiFinestre() {
    gestione.chiudiCorrente();
    finestre.distruggi();
}

void MDI_Form::InitGraphics() {
    app_.theRamoCorrente = nullptr;
}

void MDI_Form::NewRotonda() {
    gestisci(app_, "MDI_Form:NewRotonda()", [&] {
        InitGraphics();
        superficie().mostraModale(finestre.finestra("frmInputNumeroRami", contorno()));
        finestre.distruggi("frmInputNumeroRami");
        if (!stato_.ProgettoAperto) {
            return;
        }
        stato_.NumSegmenti = app_.theRotonda().Ramo(1).theDatiTraffico().NumSegmentiTempo();
        fissaProgetto(true);
        distruggiFinestre();
        albero.visibile(true);
        albero.selezionaCorrente("keyMyProject");
        gestioneToolbar(StatoProgetto::ProgettoNuovo);
        SetUpOpzioni();
        titolo(titoloProgetto());
        recupero.altroProgetto();
        fissaProgetto(true);
    });
}

void MDI_Form::OpenRotonda() {
    gestisci(app_, "MDI_Form:OpenRotonda()", [&] {
        const auto percorso = servizi_.dialogo.apri(richiestaProgetto(app_), {});
        if (percorso) {
            LoadRotonda(*percorso);
        }
    });
}

void MDI_Form::LoadRotonda(const std::string& percorso) {
    gestisci(app_, "MDI_Form:LoadRotonda()", [&] {
        if (carica(percorso)) {
            progettoCaricato(percorso);
        }
    });
}

void MDI_Form::progettoCaricato(const std::string& percorso) {
    fissaProgetto(true);
    recenti.aggiungi(percorsoIntero(percorso));
    aggiornaRecenti();
}

bool MDI_Form::carica(const std::string& percorso) {
    Rotonda& rotonda = app_.theRotonda();
    rotonda.Clear();
    InitGraphics();
    std::string messaggio;
    bool esito = false;
    app_.caricaRotonda(percorso, messaggio, esito);
    if (!esito) {
        mostra("Il file selezionato non è corretto!");
        rotonda.Clear();
        return false;
    }
    rotonda.NomeFile(nomeProgetto(percorso));
    stato_.ProgettoAperto = true;
    stato_.NumeroRamiCorrente = rotonda.NumeroRami();
    stato_.NumSegmenti = rotonda.Ramo(1).theDatiTraffico().NumSegmentiTempo();
    fissaProgetto(true);
    const bool figliaAperta = gestione.corrente() != nullptr;
    distruggiFinestre();
    titolo(titoloProgetto());
    SetUpOpzioni();
    gestioneToolbar(StatoProgetto::ProgettoCaricato);
    LoadTreeView();
    albero.visibile(true);
    SetUpOpzioni();
    albero.selezionaCorrente("keyMyProject");
    if (!figliaAperta) {
        mostraFinestra("frmEmptyForm");
    }
    recupero.altroProgetto();
    return true;
}

bool MDI_Form::rilasciato(const std::string& percorso) {
    const bool progetto = maiuscoleAscii(ultimiCaratteri(percorso, caratteriEstensione)) == ".KLV";
    if (!progetto || !ctlToolbar.abilitato(std::string_view{"Apri"})) {
        return false;
    }
    LoadRotonda(percorso);
    return stato_.statoProgetto == StatoProgetto::ProgettoCaricato;
}

bool MDI_Form::offriRecupero() {
    bool aperto = false;
    gestisci(app_, "MDI_Form:offriRecupero()", [&] {
        const auto copia = recupero.trovata();
        if (!copia) {
            return;
        }
        const std::string domanda =
            fmt::format("Il programma si è chiuso senza salvare il progetto <{}>. Recuperare la copia di sicurezza?",
                        nomeProgetto(*copia));
        if (app_.messaggi.mostra(domanda, titoli::attenzione, Icona::domanda, Pulsanti::siNo) != Risposta::si) {
            recupero.elimina();
            return;
        }
        aperto = carica(*copia);
        if (aperto) {
            fissaProgetto(false);
        }
    });
    return aperto;
}

std::string MDI_Form::NomeFileProposto() const {
    if (titolo_ == titoli::programma) {
        return nomeDaSolo;
    }
    const std::string senzaParentesi = senzaUltimi(titolo_, 1);
    const std::size_t totale = lunghezza(senzaParentesi);
    return ultimiCaratteri(senzaParentesi, totale > caratteriInizio ? totale - caratteriInizio : 0);
}

std::optional<std::string> MDI_Form::chiediPercorso() {
    RichiestaFile richiesta = richiestaProgetto(app_);
    richiesta.nome = NomeFileProposto();
    auto percorso = servizi_.dialogo.salva(richiesta);
    for (; percorso; percorso = servizi_.dialogo.salva(richiesta)) {
        if (titoloSenzaEstensione(*percorso).empty()) {
            avviso("Il nome del file è vuoto: scriverne uno.");
            richiesta.nome = nomeDaSolo;
        } else if (recupero.appartiene(*percorso)) {
            // A save removes what stands there.
            avviso("Questa cartella è riservata alle copie di recupero: sceglierne un'altra.");
            richiesta.nome = testoDaPercorso(percorsoDaTesto(*percorso).filename());
        } else {
            break;
        }
    }
    avviso({});
    return percorso;
}

void MDI_Form::salvaFiglia() {
    Finestra* figlia = gestione.corrente();
    const auto fuori = [&] {
        return std::find(senzaSalvataggio.begin(), senzaSalvataggio.end(), figlia->nome()) != senzaSalvataggio.end();
    };
    if (figlia == nullptr || fuori() || !figlia->haSaveData()) {
        return;
    }
    figlia->SaveData();
    figlia->convalida();  // gives the focus to the first field that refuses
    stato_.convalidaFallita = false;
}

void MDI_Form::scriviNomeFile(const std::string& nome) {
    if (const Finestra* anagrafica = finestre.viva("frmAnagraficaRotonda")) {
        for (Controllo* controllo : anagrafica->ordine()) {
            auto* campo = dynamic_cast<tBox*>(controllo);
            if (campo != nullptr && campo->nome() == "txtNomeFile") {
                campo->testo(nome);
            }
        }
    }
    app_.theRotonda().NomeFile(nome);
}

void MDI_Form::SaveRotonda(bool& esito) {
    esito = true;
    const bool concluso = gestisci(app_, "MDI_Form:SaveRotonda()", [&] {
        const auto percorso = chiediPercorso();
        if (!percorso) {
            esito = false;
            return;
        }
        salvaFiglia();
        servizi_.impostazioni.scrivi("KelvoCAD 2014", "StartUp", "FilePathKelvo", *percorso);
        titolo(fmt::format("KELVO 2014 - [{}]", *percorso));
        scriviNomeFile(titoloSenzaEstensione(*percorso));
        std::string messaggio;
        bool ok = false;
        app_.theRotonda().Save(*percorso, messaggio, ok);
        if (!ok) {
            mostra(messaggio);
            esito = false;
            return;
        }
        progettoCaricato(*percorso);
        recupero.elimina();
    });
    if (!concluso) {
        esito = false;
    }
}

bool MDI_Form::chiediSalvataggio(const char* domanda, bool& rifiutato) {
    rifiutato = app_.messaggi.mostra(domanda, titoli::attenzione, Icona::domanda, Pulsanti::siNo) != Risposta::si;
    if (rifiutato) {
        return true;
    }
    bool esito = true;
    SaveRotonda(esito);
    if (!esito) {
        mostra("Operazione annullata");
    }
    return esito;
}

void MDI_Form::CloseRotonda() {
    gestisci(app_, "MDI_Form:CloseRotonda()", [&] {
        bool rifiutato = false;
        if (chiediSalvataggio("Attenzione! Salvare il progetto corrente prima di chiuderlo?", rifiutato)) {
            chiudiProgetto();
            if (rifiutato) {
                recupero.elimina();
            }
        }
    });
}

void MDI_Form::chiudiProgetto() {
    // The windows go while the project that they show still stands.
    distruggiFinestre();
    app_.theRotonda().Clear();
    app_.nuovaRotonda();
    albero.visibile(false);
    albero.scordaCorrente();
    stato_.ProgettoAperto = false;
    gestioneToolbar(StatoProgetto::NessunProgetto);
    titolo(titoli::programma);
    recupero.altroProgetto();
    stato_.opzioniModificate = false;  // the options went with their project
}

}  // namespace kelvo
