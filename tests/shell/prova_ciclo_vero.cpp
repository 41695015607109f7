// The life of a project with the real windows.

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "comune/fintiShell.h"
#include "input/frmTempoModellazione.h"
#include "shell/frmAnagraficaRotonda.h"
#include "shell/frmInputNumeroRami.h"
#include "shell/registroFinestre.h"

namespace kelvo::prove::shell {
namespace {

namespace fs = std::filesystem;

struct CicloVero : testing::Test {
    CicloVero() {
        registraFinestre(f.cornice.finestre, {f.documenti, anteprima, collegate, simulazione});
        f.superficie.alModale = [this](Finestra& finestra) {
            if (auto* rami = dynamic_cast<frmInputNumeroRami*>(&finestra)) {
                rami->txtNumeroRami.imposta(f.ramiScelti == 0 ? 3 : f.ramiScelti);
                (f.ramiScelti == 0 ? rami->cmdCancel : rami->cmdOk).premi();
            }
        };
        f.cornice.Load();
    }
    frmAnagraficaRotonda& anagrafica() {
        f.cornice.albero.UserClick("keyAnagraficaRotonda");
        return dynamic_cast<frmAnagraficaRotonda&>(*f.cornice.gestione.corrente());
    }
    bool salva(const std::string& percorso) {
        f.dialogo.scelte = {percorso};
        bool esito = false;
        f.cornice.SaveRotonda(esito);
        return esito;
    }
    void chiudi() {
        f.messaggi.risposte = {Risposta::no};
        f.cornice.CloseRotonda();
    }
    void attendiTitolo(const std::string& titolo, const std::string& proposto) const {
        EXPECT_EQ(f.cornice.titolo(), titolo);
        EXPECT_EQ(f.cornice.NomeFileProposto(), proposto);
    }
    AnteprimaFinta anteprima;
    CollegateFinte collegate;
    CronometroATempo simulazione;
    ShellFinta f;
};

TEST_F(CicloVero, CaptionAndProposedNameFollowEachStep) {
    attendiTitolo("KELVO 2014", "Rotatoria_001");
    f.nuovo(0);
    attendiTitolo("KELVO 2014", "Rotatoria_001");
    f.nuovo(5);
    attendiTitolo("KELVO 2014 - [.klv]", ".klv");
    frmAnagraficaRotonda& finestra = anagrafica();
    EXPECT_EQ(finestra.fuoco(), &finestra.txtNomeFile);
    finestra.txtNomeFile.scrivi("Piazza [sud]");
    attendiTitolo("KELVO 2014 - [Piazza [sud].klv]", "Piazza [sud].klv");
    EXPECT_EQ(f.app.theRotonda().NomeFile(), "") << "only the caption follows the keys";
    EXPECT_TRUE(finestra.txtNomeFile.lascia());
    finestra.ctlToolbar.premi("AggiornaDati");
    EXPECT_EQ(f.app.theRotonda().NomeFile(), "Piazza [sud]");
    EXPECT_EQ(f.cornice.didascalia.testo(), "KELVO 2014 - [Piazza [sud].klv] *");
    attendiTitolo("KELVO 2014 - [Piazza [sud].klv]", "Piazza [sud].klv");

    const std::string percorso = f.cartella.file("Largo Nord.klv");
    EXPECT_TRUE(salva(percorso));
    attendiTitolo("KELVO 2014 - [" + percorso + "]", percorso);
    EXPECT_EQ(f.dialogo.richieste.back().nome, "Piazza [sud].klv");
    EXPECT_EQ(finestra.txtNomeFile.testo(), "Largo Nord");
    EXPECT_EQ(f.cornice.didascalia.testo(), "KELVO 2014 - [" + percorso + "]");
    EXPECT_TRUE(salva(percorso));
    EXPECT_EQ(f.dialogo.richieste.back().nome, percorso) << "the whole path is proposed again";

    finestra.ctlToolbar.premi("AggiornaDati");
    attendiTitolo("KELVO 2014 - [Largo Nord.klv]", "Largo Nord.klv");
    chiudi();
    attendiTitolo("KELVO 2014", "Rotatoria_001");
    f.cornice.LoadRotonda(percorso);
    attendiTitolo("KELVO 2014 - [Largo Nord.klv]", "Largo Nord.klv");
}

TEST_F(CicloVero, ANameWithAForbiddenCharacterStopsEveryCommandUntilItIsMended) {
    f.nuovo(3);
    frmAnagraficaRotonda& finestra = anagrafica();
    finestra.txtTitolo.scrivi("non ancora");
    finestra.fuocoSu(finestra.txtNomeFile);
    finestra.txtNomeFile.scrivi("a:b");
    f.dialogo.scelte = {f.cartella.file("a.klv")};
    finestra.ctlToolbar.premi("AggiornaDati");
    f.cornice.ctlMenu.premi("mnuSalva");
    f.cornice.ctlToolbar.premi("Chiudi");
    f.cornice.albero.UserClick("keyMatriceSvolte");
    f.cornice.chiudiCornice();
    const std::string messaggio = "Attenzione, non sono permessi i caratteri: \\/:*?\"<>|";
    EXPECT_EQ(f.messaggi.testi(), std::vector<std::string>(5, messaggio));
    EXPECT_EQ(f.app.theRotonda().Titolo(), "");
    EXPECT_EQ(f.cornice.gestione.corrente(), &finestra);
    EXPECT_EQ(finestra.fuoco(), &finestra.txtNomeFile);
    EXPECT_FALSE(f.superficie.terminata);
    EXPECT_TRUE(f.dialogo.richieste.empty());
    finestra.txtNomeFile.scrivi("ab");
    finestra.ctlToolbar.premi("AggiornaDati");
    EXPECT_EQ(f.app.theRotonda().NomeFile(), "ab");
    EXPECT_EQ(f.app.theRotonda().Titolo(), "non ancora");
}

TEST_F(CicloVero, ASaveWritesWhatTheModelHoldsWhereTheWindowRefuses) {
    f.nuovo(3);
    f.cornice.albero.UserClick("keyTempoModellazione");
    auto& finestra = dynamic_cast<frmTempoModellazione&>(*f.cornice.gestione.corrente());
    finestra.fuocoSu(finestra.txtSegmentoTempo);
    finestra.txtSegmentoTempo.scrivi("10");
    EXPECT_TRUE(finestra.txtSegmentoTempo.lascia());  // the end is empty now
    const DataOra segmento = f.app.theRotonda().SegmentoTempo();
    EXPECT_TRUE(salva(f.cartella.file("a.klv")));
    EXPECT_EQ(f.messaggi.mostrati.size(), 1U) << "the window says what it misses";
    EXPECT_TRUE(fs::exists(f.cartella.file("a.klv")));
    EXPECT_EQ(f.cornice.gestione.corrente(), &finestra);
    EXPECT_EQ(finestra.fuoco(), &finestra.txtTempoFinale);
    EXPECT_EQ(finestra.txtSegmentoTempo.testo(), "10");
    EXPECT_EQ(f.app.theRotonda().SegmentoTempo(), segmento);
    EXPECT_FALSE(f.stato.convalidaFallita);
}

TEST_F(CicloVero, ASaveGivesTheFocusToTheFirstFieldThatRefuses) {
    f.nuovo(3);
    f.cornice.albero.UserClick("keyTempoModellazione");
    auto& finestra = dynamic_cast<frmTempoModellazione&>(*f.cornice.gestione.corrente());
    finestra.fuocoSu(finestra.txtTempoIniziale);
    finestra.txtSegmentoTempo.scrivi("");
    finestra.txtTempoFinale.modifica("");
    EXPECT_TRUE(salva(f.cartella.file("a.klv")));
    EXPECT_EQ(finestra.fuoco(), &finestra.txtSegmentoTempo);
    EXPECT_EQ(finestra.txtSegmentoTempo.testo(), "") << "looking at the fields changes none";
}

TEST_F(CicloVero, ASaveThatFailsKeepsTheOldFileAndTheMark) {
    const std::string percorso = f.cartella.file("a.klv");
    f.nuovo(3);
    EXPECT_TRUE(salva(percorso));
    const std::string prima = contenuto(percorso);
    fs::permissions(percorso, fs::perms::owner_read);
    f.app.theRotonda().Titolo("cambiato");
    EXPECT_FALSE(salva(percorso));
    ASSERT_EQ(f.messaggi.mostrati.size(), 1U);
    EXPECT_EQ(f.messaggi.mostrati[0].testo.rfind("Impossibile salvare il progetto: ", 0), 0U);
    EXPECT_NE(f.messaggi.mostrati[0].testo.find(percorso), std::string::npos);
    EXPECT_EQ(contenuto(percorso), prima);
    EXPECT_EQ(f.cornice.didascalia.testo(), "KELVO 2014 - [" + percorso + "] *");
    // The place of the failed save is what the next one proposes, and what the CAD program is told.
    const std::string altrove = f.cartella.file("manca/b.klv");
    EXPECT_FALSE(salva(altrove));
    attendiTitolo("KELVO 2014 - [" + altrove + "]", altrove);
    EXPECT_EQ(f.impostazioni.leggi("KelvoCAD 2014", "StartUp", "FilePathKelvo"), altrove);
    EXPECT_EQ(f.app.theRotonda().NomeFile(), "b");
    EXPECT_TRUE(f.cornice.modificato());
    EXPECT_EQ(f.stato.statoProgetto, StatoProgetto::ProgettoNuovo);
    EXPECT_EQ(f.cornice.recenti.elenco(), (std::vector<std::string>{percorso}));
}

TEST_F(CicloVero, CancelBehindAnEmptyNameWritesNothing) {
    f.nuovo(3);
    f.dialogo.scelte = {f.cartella.file(".klv")};
    std::vector<std::string> avvisi;
    f.dialogo.allaRichiesta = [&] { avvisi.push_back(f.cornice.ctlStatusBar.avviso()); };
    bool esito = true;
    f.cornice.SaveRotonda(esito);
    EXPECT_FALSE(esito);
    EXPECT_EQ(avvisi, (std::vector<std::string>{"", "Il nome del file è vuoto: scriverne uno."}));
    EXPECT_FALSE(fs::exists(f.cartella.file(".klv")));
    attendiTitolo("KELVO 2014 - [.klv]", ".klv");
    EXPECT_TRUE(f.messaggi.mostrati.empty());
    EXPECT_TRUE(f.impostazioni.valori.empty());
    EXPECT_EQ(f.cornice.ctlStatusBar.avviso(), "");
}

TEST_F(CicloVero, TheFolderOfTheRecoveryCopiesTakesNoProject) {
    f.nuovo(3);
    f.app.theRotonda().Titolo("uno");
    f.cronometro.rintocco();
    const std::string riservato = f.cartella.file("Recupero/mio.klv");
    f.dialogo.scelte = {riservato, f.cartella.file("mio.klv")};
    std::vector<std::string> avvisi;
    f.dialogo.allaRichiesta = [&] { avvisi.push_back(f.cornice.ctlStatusBar.avviso()); };
    bool esito = false;
    f.cornice.SaveRotonda(esito);
    EXPECT_TRUE(esito);
    ASSERT_EQ(f.dialogo.richieste.size(), 2U);
    EXPECT_EQ(f.dialogo.richieste[1].nome, "mio.klv");
    EXPECT_EQ(avvisi, (std::vector<std::string>{
                          "", "Questa cartella è riservata alle copie di recupero: sceglierne un'altra."}));
    EXPECT_EQ(f.cornice.ctlStatusBar.avviso(), "");
    EXPECT_FALSE(fs::exists(riservato));
    EXPECT_TRUE(fs::exists(f.cartella.file("mio.klv")));
}

TEST_F(CicloVero, TheNumberOfSegmentsFollowsTheProjectAtHand) {
    f.nuovo(3);
    EXPECT_EQ(f.stato.NumSegmenti, 4);
    f.cornice.albero.UserClick("keyTempoModellazione");
    auto& finestra = dynamic_cast<frmTempoModellazione&>(*f.cornice.gestione.corrente());
    finestra.txtSegmentoTempo.scrivi("10");
    EXPECT_TRUE(finestra.txtSegmentoTempo.lascia());
    finestra.txtTempoFinale.scrivi("09:30");
    finestra.ctlToolbar.premi("AggiornaDati");
    EXPECT_EQ(f.stato.NumSegmenti, 9);  // 08:00 to 09:30 by 10 minutes
    const std::string percorso = f.cartella.file("nove.klv");
    EXPECT_TRUE(salva(percorso));
    chiudi();
    f.nuovo(4);
    EXPECT_EQ(f.stato.NumSegmenti, 4);
    chiudi();
    f.cornice.LoadRotonda(percorso);
    EXPECT_EQ(f.stato.NumSegmenti, 9);
    EXPECT_EQ(f.stato.NumeroRamiCorrente, 3);
}

TEST_F(CicloVero, AnotherProjectLeavesNoLegOfTheOneBefore) {
    f.nuovo(4);
    f.app.theRamoCorrente = &f.app.theRotonda().Ramo(2);
    f.cornice.LoadRotonda(f.progettoSuDisco("a.klv", 3));
    EXPECT_EQ(f.app.theRamoCorrente, nullptr);
    f.app.theRamoCorrente = &f.app.theRotonda().Ramo(2);
    chiudi();
    EXPECT_EQ(f.app.theRamoCorrente, nullptr);
}

TEST_F(CicloVero, AFileNameThatIsNoTextStillSavesAndCloses) {
    const std::string strano = f.cartella.file("citt\xE0.klv");
    fs::rename(f.progettoSuDisco("a.klv", 3), strano);
    f.cornice.LoadRotonda(strano);
    EXPECT_TRUE(f.messaggi.mostrati.empty());
    EXPECT_EQ(f.stato.statoProgetto, StatoProgetto::ProgettoCaricato);
    EXPECT_TRUE(salva(strano));
    f.app.theRotonda().Titolo("uno");
    f.cronometro.rintocco();
    EXPECT_EQ(f.cornice.ctlStatusBar.avviso(), "");
    chiudi();
    f.cornice.LoadRotonda(strano);
    EXPECT_EQ(f.stato.statoProgetto, StatoProgetto::ProgettoCaricato);
}

TEST_F(CicloVero, TheRecoveryCopyOfAVeryLongNameIsWritten) {
    f.nuovo(3);
    std::string lungo;
    for (int i = 0; i < 150; ++i) {
        lungo += "è";
    }
    f.app.theRotonda().NomeFile(lungo);
    f.cronometro.rintocco();
    EXPECT_EQ(f.cornice.ctlStatusBar.avviso(), "");
    EXPECT_EQ(f.cornice.recupero.trovata(), f.cornice.recupero.percorso());
    chiudi();
    EXPECT_FALSE(f.cornice.recupero.trovata());
}

TEST_F(CicloVero, ARecoveryCopyThatCannotBeReadIsToldAndNeverRemovedWithoutBeingAsked) {
    fs::create_directories(f.cartella.file("Recupero"));
    scriviContenuto(f.cartella.file("Recupero/rotta.klv"), "{");
    EXPECT_FALSE(f.cornice.offriRecupero());
    EXPECT_EQ(f.messaggi.testi().back(), "Il file selezionato non è corretto!");
    EXPECT_TRUE(fs::exists(f.cartella.file("Recupero/rotta.klv")));
    attendiTitolo("KELVO 2014", "Rotatoria_001");
    EXPECT_EQ(f.stato.statoProgetto, StatoProgetto::NessunProgetto);
}

TEST_F(CicloVero, TheRecoveryCopyStaysUntilTheRecoveredProjectIsSaved) {
    fs::create_directories(f.cartella.file("Recupero"));
    const std::string copia = f.cartella.file("Recupero/Perso.klv");
    fs::rename(f.progettoSuDisco("Perso.klv", 3), copia);
    EXPECT_TRUE(f.cornice.offriRecupero());
    f.cronometro.rintocco();
    EXPECT_TRUE(fs::exists(copia));
    EXPECT_EQ(f.cornice.NomeFileProposto(), "Perso.klv");
    EXPECT_TRUE(salva(f.cartella.file("Perso.klv")));
    EXPECT_FALSE(fs::exists(copia));
    EXPECT_FALSE(f.cornice.modificato());
}

TEST_F(CicloVero, OneFileStandsOnceInTheRecentOnes) {
    const std::string primo = f.progettoSuDisco("nodo.klv", 3);
    const std::string secondo = f.progettoSuDisco("Nodo.klv", 3);  // another file where case counts
    fs::create_directories(f.cartella.file("x"));
    fs::create_directories(f.cartella.file("altrove/y"));
    fs::create_directory_symlink(f.cartella.file("altrove/y"), f.cartella.file("z"));
    const std::string terzo = f.cartella.file("z/../nodo.klv");
    fs::copy(primo, f.cartella.file("altrove/nodo.klv"));
    for (const std::string& percorso : {primo, secondo, f.cartella.file("./x/../nodo.klv")}) {
        f.cornice.LoadRotonda(percorso);
        chiudi();
    }
    EXPECT_EQ(f.cornice.recenti.elenco(), (std::vector<std::string>{primo, secondo}));
    f.cornice.LoadRotonda(secondo);
    EXPECT_EQ(f.cornice.recenti.elenco(), (std::vector<std::string>{secondo, primo}));
    chiudi();
    f.cornice.LoadRotonda(terzo);  // the point behind a link leads elsewhere
    EXPECT_EQ(f.cornice.recenti.elenco(), (std::vector<std::string>{terzo, secondo, primo}));
}

TEST_F(CicloVero, TheTrafficWindowsFollowTheProjectAtHand) {
    f.nuovo(3);
    const std::string trafficoNuovo{f.cornice.finestraTraffico()};
    const std::string composizioneNuova{f.cornice.finestraComposizione()};
    Rotonda& rotonda = f.app.theRotonda();
    rotonda.TipoAnalisi(rotonda.TipoAnalisi() == 2 ? 1 : 2);
    rotonda.TipoFlusso(rotonda.TipoFlusso() == 1 ? 0 : 1);
    EXPECT_TRUE(salva(f.cartella.file("altro.klv")));
    chiudi();
    f.cornice.LoadRotonda(f.cartella.file("altro.klv"));
    EXPECT_NE(f.cornice.finestraTraffico(), trafficoNuovo);
    EXPECT_NE(f.cornice.finestraComposizione(), composizioneNuova);
    chiudi();
    f.nuovo(3);
    EXPECT_EQ(f.cornice.finestraTraffico(), trafficoNuovo);
    EXPECT_EQ(f.cornice.finestraComposizione(), composizioneNuova);
}

TEST_F(CicloVero, AFaultInTheDialogueIsRecordedUnderItsProcedure) {
    f.dialogo.allaRichiesta = [] { throw Guasto(NumeroGuasto::overflow); };
    f.cornice.OpenRotonda();
    ASSERT_EQ(f.messaggi.mostrati.size(), 1U);
    EXPECT_EQ(f.messaggi.mostrati[0].titolo, "KELVO 2014MDI_Form:OpenRotonda()");
    EXPECT_EQ(f.messaggi.mostrati[0].testo, "6 : Overflow");
    f.nuovo(3);
    bool esito = true;
    f.cornice.SaveRotonda(esito);
    EXPECT_FALSE(esito);
    EXPECT_EQ(f.messaggi.mostrati.back().titolo, "KELVO 2014MDI_Form:SaveRotonda()");
}

TEST_F(CicloVero, ARecoveryCopyIsWrittenWhileADialogueStands) {
    f.nuovo(3);
    f.app.theRotonda().Titolo("uno");
    f.dialogo.allaRichiesta = [&] { f.cronometro.rintocco(); };
    bool esito = true;
    f.cornice.SaveRotonda(esito);
    EXPECT_FALSE(esito);
    EXPECT_TRUE(f.cornice.recupero.trovata());
}

TEST_F(CicloVero, ADroppedFileThatIsNoProjectIsToldAndNotTaken) {
    scriviContenuto(f.cartella.file("x.klv"), "nulla");
    EXPECT_FALSE(f.cornice.rilasciato(f.cartella.file("x.klv")));
    EXPECT_EQ(f.messaggi.testi(), (std::vector<std::string>{"Il file selezionato non è corretto!"}));
    attendiTitolo("KELVO 2014", "Rotatoria_001");
}

}  // namespace
}  // namespace kelvo::prove::shell
