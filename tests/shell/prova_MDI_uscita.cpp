#include <gtest/gtest.h>

#include <filesystem>
#include <limits>
#include <string>
#include <vector>

#include "comune/fintiShell.h"
#include "shell/menuPrincipale.h"

namespace kelvo::prove::shell {
namespace {

namespace fs = std::filesystem;

const std::string domandaSalva = "Vuoi salvare la rotonda prima di uscire dal programma?";
const std::string domandaEsci = "Uscire dall'applicazione?";
using Testi = std::vector<std::string>;

class Uscita : public ::testing::TestWithParam<StatoProgetto> {
protected:
    void SetUp() override {
        f.cornice.Load();
        f.nuovo(4);
        f.cornice.gestioneToolbar(GetParam());
    }
    bool chiede() const {
        return GetParam() == StatoProgetto::ProgettoNuovo || GetParam() == StatoProgetto::ProgettoCaricato;
    }
    ShellFinta f;
};

TEST_P(Uscita, TheMenuAsksToSaveOnlyWithAProjectAndThenAlwaysToLeave) {
    f.messaggi.risposte = chiede() ? std::deque{Risposta::no, Risposta::ok} : std::deque{Risposta::ok};
    f.cornice.ctlMenu.premi("mnuEsci");
    EXPECT_EQ(f.messaggi.testi(), chiede() ? (Testi{domandaSalva, domandaEsci}) : (Testi{domandaEsci}));
    EXPECT_EQ(f.messaggi.mostrati.back().pulsanti, Pulsanti::okAnnulla);
    EXPECT_EQ(f.messaggi.mostrati.back().icona, Icona::domanda);
    EXPECT_EQ(f.messaggi.mostrati.back().titolo, "KELVO 2014 - Attenzione");
    if (chiede()) {
        EXPECT_EQ(f.messaggi.mostrati[0].pulsanti, Pulsanti::siNo);
        EXPECT_EQ(f.messaggi.mostrati[0].icona, Icona::domanda);
        EXPECT_EQ(f.messaggi.mostrati[0].titolo, "KELVO 2014 - Attenzione");
    }
    EXPECT_TRUE(f.superficie.terminata);
}

TEST_P(Uscita, TheSystemBoxAsksOnlyToLeave) {
    f.messaggi.risposte = {Risposta::annulla};
    f.cornice.chiudiCornice();
    EXPECT_EQ(f.messaggi.testi(), (Testi{domandaEsci}));
    EXPECT_FALSE(f.superficie.terminata);
    f.cornice.chiudiCornice();
    EXPECT_TRUE(f.superficie.terminata);
}

TEST_P(Uscita, CancelStaysInTheProgram) {
    f.messaggi.risposte = chiede() ? std::deque{Risposta::no, Risposta::annulla} : std::deque{Risposta::annulla};
    f.cornice.esci();
    EXPECT_FALSE(f.superficie.terminata);
    EXPECT_EQ(f.app.theRotonda().Rami().Count(), 4);
}

TEST_P(Uscita, AFailedSaveStaysInTheProgram) {
    f.cornice.esci();  // yes, then the file dialogue is cancelled
    if (chiede()) {
        EXPECT_EQ(f.messaggi.testi(), (Testi{domandaSalva, "Operazione annullata"}));
        EXPECT_EQ(f.messaggi.mostrati[1].icona, Icona::esclamazione);
        EXPECT_FALSE(f.superficie.terminata);
    } else {
        EXPECT_TRUE(f.superficie.terminata);
    }
}

TEST_P(Uscita, YesSavesAndLeaves) {
    f.dialogo.scelte = {f.cartella.file("a.klv")};
    f.cornice.esci();
    EXPECT_EQ(fs::exists(f.cartella.file("a.klv")), chiede());
    EXPECT_TRUE(f.superficie.terminata);
}

INSTANTIATE_TEST_SUITE_P(Tutti, Uscita,
                         ::testing::Values(StatoProgetto::ProgettoNuovo, StatoProgetto::ProgettoSalvato,
                                           StatoProgetto::NessunProgetto, StatoProgetto::ProgettoCaricato));

TEST(Scarico, WindowsTreeProjectAndMenuGo) {
    ShellFinta f;
    f.cornice.Load();
    f.nuovo(4);
    f.cornice.albero.UserClick("keyMatriceSvolte");
    f.app.theRamoCorrente = &f.app.theRotonda().Ramo(1);
    int scarichi = 0;
    f.cornice.alloScarico = [&] { ++scarichi; };
    f.cornice.Unload();
    EXPECT_EQ(f.cornice.finestre.quanteVive(), 0U);
    EXPECT_EQ(f.cornice.gestione.corrente(), nullptr);
    EXPECT_TRUE(f.cornice.albero.ctlTree.chiavi().empty());
    EXPECT_FALSE(f.cornice.albero.nodiDisabilitati.attaccato());
    EXPECT_EQ(f.app.theRotonda().Rami().Count(), 0);
    EXPECT_EQ(f.app.theRamoCorrente, nullptr);
    EXPECT_EQ(f.cornice.ctlMenu.voci().size(), menuPrincipali.size());
    EXPECT_EQ(scarichi, 1);
    EXPECT_FALSE(f.cronometro.rintocco);
    EXPECT_TRUE(f.cornice.scaricata());
}

TEST(Recenti, TheLastEightStandInTheFileMenuLatestFirst) {
    ShellFinta f;
    f.cornice.Load();
    EXPECT_FALSE(f.cornice.ctlMenu.voce("mnuXRecenti").abilitata);
    std::vector<std::string> percorsi;
    for (int i = 0; i < 9; ++i) {
        percorsi.push_back(f.progettoSuDisco("p" + std::to_string(i) + ".klv", 3));
        f.cornice.LoadRotonda(percorsi.back());
    }
    f.messaggi.risposte = {Risposta::no};
    f.cornice.CloseRotonda();
    const auto voci = f.cornice.ctlMenu.figli("mnuXRecenti");
    ASSERT_EQ(voci.size(), 8U);
    EXPECT_EQ(voci[0]->testo, "1 " + percorsi[8]);
    EXPECT_EQ(voci[0]->chiave, "mnuXRecente1");
    EXPECT_EQ(voci[7]->testo, "8 " + percorsi[1]);
    EXPECT_TRUE(f.cornice.ctlMenu.voce("mnuXRecenti").abilitata);
    f.cornice.ctlMenu.premi("mnuXRecente3");
    EXPECT_EQ(f.app.theRotonda().NomeFile(), "p6");
    EXPECT_EQ(f.cornice.recenti.elenco().front(), percorsi[6]);
    EXPECT_EQ(f.cornice.recenti.elenco().size(), 8U);
    EXPECT_FALSE(f.cornice.ctlMenu.voce("mnuXRecenti").abilitata);
    f.cornice.ctlMenu.premi("mnuXRecente1");
    f.cornice.ctlMenu.premi("mnuXRecente2");
    EXPECT_EQ(f.app.theRotonda().NomeFile(), "p6");
    const ProgettiRecenti altri(f.impostazioni);
    EXPECT_EQ(altri.elenco(), f.cornice.recenti.elenco());
}

TEST(Recenti, AProjectThatIsGoneIsToldAndTakenAway) {
    ShellFinta f;
    f.cornice.Load();
    const std::string percorso = f.progettoSuDisco("p.klv", 3);
    f.cornice.LoadRotonda(percorso);
    f.messaggi.risposte = {Risposta::no};
    f.cornice.CloseRotonda();
    fs::remove(percorso);
    f.cornice.ctlMenu.premi("mnuXRecente1");
    EXPECT_EQ(f.messaggi.testi().back(), "Il file selezionato non è corretto!");
    EXPECT_TRUE(f.cornice.recenti.elenco().empty());
    EXPECT_TRUE(f.cornice.ctlMenu.figli("mnuXRecenti").empty());
    EXPECT_EQ(f.impostazioni.leggi("Kelvo", "ProgettiRecenti", "File1"), "");
}

TEST(Rilascio, ADroppedProjectOpensWhereApriMay) {
    ShellFinta f;
    f.cornice.Load();
    EXPECT_FALSE(f.cornice.rilasciato(f.cartella.file("foto.png")));
    EXPECT_TRUE(f.cornice.rilasciato(f.progettoSuDisco("P.KLV", 3)));
    EXPECT_EQ(f.app.theRotonda().NomeFile(), "P");
    EXPECT_FALSE(f.cornice.rilasciato(f.progettoSuDisco("q.klv", 4)));
    EXPECT_EQ(f.app.theRotonda().NomeFile(), "P");
}

class CopiaRecupero : public ::testing::Test {
protected:
    void SetUp() override {
        f.cornice.Load();
        f.nuovo(4);
    }
    std::vector<std::string> copie() const {
        std::vector<std::string> trovate;
        std::error_code errore;
        for (const auto& voce : fs::directory_iterator(f.cartella.file("Recupero"), errore)) {
            trovate.push_back(voce.path().filename().string());
        }
        return trovate;
    }
    void cambia(const std::string& titolo) { f.app.theRotonda().Titolo(titolo); }
    ShellFinta f;
};

TEST_F(CopiaRecupero, IsWrittenEveryTwoMinutesWhereThereAreChanges) {
    EXPECT_EQ(f.cronometro.millisecondi, 120'000);
    f.cronometro.rintocco();
    EXPECT_TRUE(copie().empty());
    cambia("uno");
    f.cronometro.rintocco();
    EXPECT_EQ(copie(), (Testi{"Rotatoria_001.klv"}));
    EXPECT_NE(contenuto(f.cartella.file("Recupero/Rotatoria_001.klv")).find("\"uno\""), std::string::npos);
    EXPECT_EQ(f.cornice.titolo(), "KELVO 2014 - [.klv]");
}

TEST_F(CopiaRecupero, IsWrittenWhenAWindowIsLeft) {
    f.cornice.albero.UserClick("keyMatriceSvolte");
    cambia("due");
    f.cornice.albero.UserClick("keyTempoModellazione");
    EXPECT_EQ(copie().size(), 1U);
}

TEST_F(CopiaRecupero, AnUnchangedProjectIsNotWrittenTwice) {
    cambia("uno");
    f.cronometro.rintocco();
    fs::remove(f.cartella.file("Recupero/Rotatoria_001.klv"));
    f.cronometro.rintocco();
    EXPECT_TRUE(copie().empty());
}

TEST_F(CopiaRecupero, FollowsTheNameOfTheProject) {
    cambia("uno");
    f.cronometro.rintocco();
    f.app.theRotonda().NomeFile("a/b:c");
    f.cronometro.rintocco();
    EXPECT_EQ(copie(), (Testi{"a_b_c.klv"}));
}

TEST_F(CopiaRecupero, ASaveRemovesIt) {
    cambia("uno");
    f.cronometro.rintocco();
    f.dialogo.scelte = {f.cartella.file("a.klv")};
    bool esito = false;
    f.cornice.SaveRotonda(esito);
    EXPECT_TRUE(copie().empty());
}

TEST_F(CopiaRecupero, AFailedSaveKeepsIt) {
    cambia("uno");
    f.cronometro.rintocco();
    f.dialogo.scelte = {f.cartella.file("manca/a.klv")};
    bool esito = false;
    f.cornice.SaveRotonda(esito);
    EXPECT_EQ(copie().size(), 1U);
}

TEST_F(CopiaRecupero, NoToTheQuestionsRemovesIt) {
    f.cornice.albero.UserClick("keyMatriceSvolte");
    cambia("uno");
    f.cronometro.rintocco();
    f.messaggi.risposte = {Risposta::no};
    f.cornice.CloseRotonda();
    EXPECT_TRUE(copie().empty());
    f.nuovo(3);
    cambia("due");
    f.cronometro.rintocco();
    EXPECT_EQ(copie().size(), 1U);
    f.messaggi.risposte = {Risposta::no, Risposta::ok};
    f.cornice.esci();
    EXPECT_TRUE(copie().empty());
}

TEST_F(CopiaRecupero, LeavingByTheSystemBoxKeepsWhatWasNotSaved) {
    cambia("uno");
    f.cornice.chiudiCornice();
    EXPECT_EQ(copie().size(), 1U);
}

TEST_F(CopiaRecupero, WhatCannotBeWrittenIsToldInTheStatusBar) {
    scriviContenuto(f.cartella.file("Recupero"), "un file in luogo della cartella");
    cambia("uno");
    f.cronometro.rintocco();
    EXPECT_EQ(f.cornice.ctlStatusBar.avviso().rfind("Copia di recupero non scritta: ", 0), 0U);
    EXPECT_TRUE(f.messaggi.mostrati.empty());
}

TEST_F(CopiaRecupero, AProjectThatCannotBeWrittenIsToldInTheStatusBar) {
    f.app.theRotonda().Ramo(1).LarghezzaIngresso(std::numeric_limits<float>::infinity());
    f.cronometro.rintocco();
    EXPECT_EQ(f.cornice.ctlStatusBar.avviso().rfind("Copia di recupero non scritta: ", 0), 0U);
    EXPECT_TRUE(copie().empty());
}

TEST_F(CopiaRecupero, IsOfferedAndOpenedUnderTheNameOfItsProject) {
    f.app.theRotonda().NomeFile("Nodo");
    cambia("perso");
    f.cronometro.rintocco();
    f.cornice.recupero.altroProgetto();
    f.app.nuovaRotonda();
    f.stato.statoProgetto = StatoProgetto::NessunProgetto;
    EXPECT_TRUE(f.cornice.offriRecupero());
    ASSERT_EQ(f.messaggi.mostrati.size(), 1U);
    EXPECT_EQ(f.messaggi.mostrati[0].testo,
              "Il programma si è chiuso senza salvare il progetto <Nodo>. Recuperare la copia di sicurezza?");
    EXPECT_EQ(f.messaggi.mostrati[0].pulsanti, Pulsanti::siNo);
    EXPECT_EQ(f.app.theRotonda().Titolo(), "perso");
    EXPECT_EQ(f.cornice.titolo(), "KELVO 2014 - [Nodo.klv]");
    EXPECT_EQ(f.cornice.didascalia.testo(), "KELVO 2014 - [Nodo.klv] *");
    EXPECT_TRUE(f.cornice.recenti.elenco().empty());
    EXPECT_EQ(copie().size(), 1U);
}

TEST_F(CopiaRecupero, NoToTheOfferRemovesIt) {
    cambia("perso");
    f.cronometro.rintocco();
    f.messaggi.risposte = {Risposta::no};
    EXPECT_FALSE(f.cornice.offriRecupero());
    EXPECT_TRUE(copie().empty());
    f.messaggi.mostrati.clear();
    EXPECT_FALSE(f.cornice.offriRecupero());
    EXPECT_TRUE(f.messaggi.mostrati.empty());
}

}  // namespace
}  // namespace kelvo::prove::shell
