#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "comune/fintiShell.h"

namespace kelvo::prove::shell {
namespace {

namespace fs = std::filesystem;

std::string cartellaProgettiAttesa(const ShellFinta& f) {
    const std::string cartella = f.cartella.percorso();
    return cartella.substr(0, cartella.size() - 6) + "/Progetti";
}

TEST(Nuovo, ANewProjectShowsTheTreeAndAnEmptyName) {
    ShellFinta f;
    f.cornice.Load();
    f.nuovo(5);
    EXPECT_EQ(f.superficie.modali, (std::vector<std::string>{"frmInputNumeroRami"}));
    EXPECT_EQ(f.cornice.finestre.viva("frmInputNumeroRami"), nullptr);
    EXPECT_TRUE(f.superficie.alberoVisibile);
    EXPECT_EQ(f.cornice.albero.ctlTree.selezionato(), "keyMyProject");
    EXPECT_EQ(f.stato.statoProgetto, StatoProgetto::ProgettoNuovo);
    EXPECT_EQ(f.cornice.titolo(), "KELVO 2014 - [.klv]");
    EXPECT_EQ(f.cornice.gestione.corrente(), nullptr);
    EXPECT_EQ(f.app.theRotonda().Rami().Count(), 5);
    EXPECT_FALSE(f.cornice.modificato());
}

TEST(Nuovo, CancelLeavesCaptionMenuAndStateAsTheyWere) {
    ShellFinta f;
    f.cornice.Load();
    const std::vector<MenuChiavi::Voce> prima = f.cornice.ctlMenu.voci();
    f.nuovo(0);
    EXPECT_EQ(f.cornice.titolo(), "KELVO 2014");
    EXPECT_EQ(f.stato.statoProgetto, StatoProgetto::NessunProgetto);
    EXPECT_EQ(f.cornice.ctlMenu.voci(), prima);
    EXPECT_FALSE(f.superficie.alberoVisibile);
    EXPECT_FALSE(f.stato.ProgettoAperto);
}

TEST(Apri, TheDialogueIsAskedWithItsFilterAndFolder) {
    ShellFinta f;
    f.cornice.OpenRotonda();
    ASSERT_EQ(f.dialogo.richieste.size(), 1U);
    const RichiestaFile& r = f.dialogo.richieste[0];
    EXPECT_EQ(r.estensione, "klv");
    EXPECT_EQ(r.filtro, "File definizione rotonda (*.klv)|*.klv|Tutti i files(*.*)|*.*");
    EXPECT_EQ(r.flag, 2054);
    EXPECT_EQ(r.cartella, cartellaProgettiAttesa(f));
    EXPECT_TRUE(f.messaggi.mostrati.empty());
    EXPECT_EQ(f.stato.statoProgetto, StatoProgetto::NessunProgetto);
}

TEST(Apri, AProjectIsLoadedUnderTheNameOfItsFile) {
    ShellFinta f;
    f.cornice.Load();
    f.dialogo.scelte = {f.progettoSuDisco("Nodo Est.klv", 5)};
    f.cornice.ctlMenu.premi("mnuApri");
    EXPECT_EQ(f.app.theRotonda().NomeFile(), "Nodo Est");
    EXPECT_EQ(f.cornice.titolo(), "KELVO 2014 - [Nodo Est.klv]");
    EXPECT_EQ(f.cornice.didascalia.testo(), "KELVO 2014 - [Nodo Est.klv]");
    EXPECT_EQ(f.stato.statoProgetto, StatoProgetto::ProgettoCaricato);
    EXPECT_TRUE(f.stato.ProgettoAperto);
    EXPECT_EQ(f.stato.NumeroRamiCorrente, 5);
    EXPECT_EQ(f.stato.NumSegmenti, 4);  // 08:00 to 09:00 by 15 minutes
    EXPECT_TRUE(f.superficie.alberoVisibile);
    EXPECT_EQ(f.cornice.albero.ctlTree.selezionato(), "keyMyProject");
    EXPECT_EQ(f.nomeCorrente(), "frmEmptyForm");
    EXPECT_FALSE(f.cornice.modificato());
    EXPECT_FALSE(f.cornice.ctlMenu.voce("mnuApri").abilitata);
    EXPECT_FALSE(f.cornice.ctlMenu.voce("keyAnalisiMarginale1").abilitata);
}

TEST(Apri, OverAnOpenProjectTheChildIsClosedAndNothingIsShown) {
    ShellFinta f;
    f.nuovo(3);
    f.cornice.albero.UserClick("keyMatriceSvolte");
    f.cornice.LoadRotonda(f.progettoSuDisco("a.klv", 4));
    EXPECT_EQ(f.cornice.gestione.corrente(), nullptr);
    EXPECT_EQ(f.cornice.finestre.quanteVive(), 0U);
    EXPECT_EQ(f.superficie.dimenticate.back(), "frmMatriceSvolte");
    EXPECT_EQ(f.stato.statoProgetto, StatoProgetto::ProgettoCaricato);
}

TEST(Apri, AFileThatIsNoProjectIsToldAndLeavesNoTree) {
    ShellFinta f;
    f.cornice.Load();
    scriviContenuto(f.cartella.file("x.klv"), "nulla");
    for (const std::string nome : {"x.klv", "manca.klv"}) {
        f.messaggi.mostrati.clear();
        f.cornice.LoadRotonda(f.cartella.file(nome));
        ASSERT_EQ(f.messaggi.mostrati.size(), 1U);
        EXPECT_EQ(f.messaggi.mostrati[0].testo, "Il file selezionato non è corretto!");
        EXPECT_EQ(f.messaggi.mostrati[0].titolo, "KELVO 2014 - Attenzione");
        EXPECT_EQ(f.messaggi.mostrati[0].icona, Icona::esclamazione);
    }
    EXPECT_EQ(f.stato.statoProgetto, StatoProgetto::NessunProgetto);
    EXPECT_EQ(f.app.theRotonda().Rami().Count(), 0);
    EXPECT_EQ(f.cornice.titolo(), "KELVO 2014");
    EXPECT_FALSE(f.superficie.alberoVisibile);
    EXPECT_TRUE(f.cornice.recenti.elenco().empty());
}

TEST(NomeProposto, FollowsTheCaption) {
    ShellFinta f;
    EXPECT_EQ(f.cornice.NomeFileProposto(), "Rotatoria_001");
    f.cornice.titolo("KELVO 2014 - [Nodo.klv]");
    EXPECT_EQ(f.cornice.NomeFileProposto(), "Nodo.klv");
    f.cornice.titolo("KELVO 2014 - [.klv]");
    EXPECT_EQ(f.cornice.NomeFileProposto(), ".klv");
    f.cornice.titolo("KELVO 2014 - [/a/b/Città.klv]");
    EXPECT_EQ(f.cornice.NomeFileProposto(), "/a/b/Città.klv");
}

TEST(Salva, TheProjectIsWrittenNamedAndRemembered) {
    ShellFinta f;
    f.cornice.Load();
    f.nuovo(4);
    const std::string percorso = f.cartella.file("Piazza.klv");
    f.dialogo.scelte = {percorso};
    bool esito = false;
    f.cornice.SaveRotonda(esito);
    EXPECT_TRUE(esito);
    EXPECT_EQ(f.dialogo.richieste[0].nome, ".klv");
    EXPECT_EQ(f.dialogo.richieste[0].cartella, cartellaProgettiAttesa(f));
    EXPECT_EQ(f.dialogo.richieste[0].flag, 2054);
    EXPECT_EQ(f.impostazioni.leggi("KelvoCAD 2014", "StartUp", "FilePathKelvo"), percorso);
    EXPECT_EQ(f.cornice.titolo(), "KELVO 2014 - [" + percorso + "]");
    EXPECT_EQ(f.cornice.NomeFileProposto(), percorso);
    EXPECT_EQ(f.app.theRotonda().NomeFile(), "Piazza");
    EXPECT_EQ(f.stato.statoProgetto, StatoProgetto::ProgettoNuovo);
    EXPECT_NE(contenuto(percorso).find("\"NomeFile\": \"Piazza\""), std::string::npos);
    EXPECT_EQ(f.cornice.recenti.elenco(), (std::vector<std::string>{percorso}));
}

TEST(Salva, AnEmptyNameIsRefusedAndRotatoria001ProposedThen) {
    ShellFinta f;
    f.nuovo(4);
    f.dialogo.scelte = {f.cartella.file(".klv"), f.cartella.file(".klv"), f.cartella.file("Rotatoria_001.klv")};
    bool esito = false;
    f.cornice.SaveRotonda(esito);
    EXPECT_TRUE(esito);
    ASSERT_EQ(f.dialogo.richieste.size(), 3U);
    EXPECT_EQ(f.dialogo.richieste[0].nome, ".klv");
    EXPECT_EQ(f.dialogo.richieste[1].nome, "Rotatoria_001");
    EXPECT_EQ(f.dialogo.richieste[2].nome, "Rotatoria_001");
    EXPECT_FALSE(fs::exists(f.cartella.file(".klv")));
    EXPECT_TRUE(fs::exists(f.cartella.file("Rotatoria_001.klv")));
}

TEST(Salva, CancelGivesNoResultAndChangesNothing) {
    ShellFinta f;
    f.nuovo(4);
    f.cornice.albero.UserClick("keyRamo1");
    bool esito = true;
    f.cornice.SaveRotonda(esito);
    EXPECT_FALSE(esito);
    EXPECT_EQ(f.corrente()->salvataggi, 0);
    EXPECT_EQ(f.cornice.titolo(), "KELVO 2014 - [.klv]");
    EXPECT_TRUE(f.impostazioni.valori.empty());
    EXPECT_TRUE(f.messaggi.mostrati.empty());
}

TEST(Salva, TheOpenChildSavesFirst) {
    ShellFinta f;
    f.nuovo(4);
    f.cornice.albero.UserClick("keyRamo1");
    f.corrente()->alSalvataggio = [](Applicazione& app) { app.theRotonda().Titolo("Dalla finestra"); };
    f.dialogo.scelte = {f.cartella.file("a.klv")};
    bool esito = false;
    f.cornice.SaveRotonda(esito);
    EXPECT_EQ(f.corrente()->salvataggi, 1);
    EXPECT_NE(contenuto(f.cartella.file("a.klv")).find("Dalla finestra"), std::string::npos);
    EXPECT_FALSE(f.cornice.modificato());
}

TEST(Salva, TheNineWindowsAndThoseWithoutDataAreAskedNothing) {
    for (const char* chiave :
         {"frmEmptyForm", "frmCapacitaCodeRitardiRamo", "frmCapacitaCodeRitardi", "frmDX", "frmConfronti",
          "frmANALIZZATORE", "frmCapacitaUltima", "frmRisultatiAnalisiMarginale", "frmGoogle"}) {
        ShellFinta f;
        f.nuovo(4);
        const std::string nome = chiave;
        f.cornice.finestre.registra(
            nome, [nome](const Contorno& c) { return std::make_unique<FinestraFinta>(c, nome, true); });
        ASSERT_TRUE(f.cornice.mostraFinestra(nome));
        f.dialogo.scelte = {f.cartella.file("a.klv")};
        bool esito = false;
        f.cornice.SaveRotonda(esito);
        EXPECT_TRUE(esito);
        EXPECT_EQ(f.finta(nome).salvataggi, 0) << nome;
    }
}

TEST(Salva, ARefusedChildTakesTheFocusAndTheFileIsStillWritten) {
    ShellFinta f;
    f.nuovo(4);
    f.cornice.albero.UserClick("keyRamo1");
    f.corrente()->campo.testo("storto");
    f.dialogo.scelte = {f.cartella.file("a.klv")};
    bool esito = false;
    f.cornice.SaveRotonda(esito);
    EXPECT_TRUE(esito);
    EXPECT_TRUE(fs::exists(f.cartella.file("a.klv")));
    EXPECT_EQ(f.nomeCorrente(), "frmParametriRamo");
    EXPECT_EQ(f.corrente()->fuoco(), &f.corrente()->campo);
    EXPECT_FALSE(f.stato.convalidaFallita);
}

TEST(Salva, AFailureShowsTheWordsAndGivesNoResult) {
    ShellFinta f;
    f.nuovo(4);
    f.dialogo.scelte = {f.cartella.file("manca/a.klv")};
    bool esito = true;
    f.cornice.SaveRotonda(esito);
    EXPECT_FALSE(esito);
    ASSERT_EQ(f.messaggi.mostrati.size(), 1U);
    EXPECT_FALSE(f.messaggi.mostrati[0].testo.empty());
    EXPECT_EQ(f.messaggi.mostrati[0].titolo, "KELVO 2014 - Attenzione");
    EXPECT_EQ(f.messaggi.mostrati[0].icona, Icona::esclamazione);
    EXPECT_TRUE(f.cornice.recenti.elenco().empty());
}

/// A stand-in for the registry window with its name field.
class AnagraficaFinta final : public Finestra {
public:
    explicit AnagraficaFinta(const Contorno& c) : Finestra(c, "frmAnagraficaRotonda", "") { ordina({&txtNomeFile}); }
    tBox txtNomeFile{"txtNomeFile", tBox::textbox};
};

TEST(Salva, TheNameStandsInTheFieldOfTheRegistryWindow) {
    ShellFinta f;
    f.nuovo(4);
    f.cornice.finestre.registra("frmAnagraficaRotonda",
                                [](const Contorno& c) { return std::make_unique<AnagraficaFinta>(c); });
    f.cornice.albero.UserClick("keyAnagraficaRotonda");
    f.cornice.albero.UserClick("keyMatriceSvolte");
    f.dialogo.scelte = {f.cartella.file("Nuovo nome.klv")};
    bool esito = false;
    f.cornice.SaveRotonda(esito);
    const auto* finestra = dynamic_cast<AnagraficaFinta*>(f.cornice.finestre.viva("frmAnagraficaRotonda"));
    ASSERT_NE(finestra, nullptr);
    EXPECT_EQ(finestra->txtNomeFile.testo(), "Nuovo nome");
    EXPECT_FALSE(finestra->txtNomeFile.modificato());
}

TEST(Chiudi, TheQuestionIsAskedAlwaysAndNoDropsTheProject) {
    ShellFinta f;
    f.cornice.Load();
    f.cornice.LoadRotonda(f.progettoSuDisco("a.klv", 4));
    f.cornice.albero.UserClick("keyMatriceSvolte");
    const Rotonda* prima = &f.app.theRotonda();
    f.messaggi.risposte = {Risposta::no};
    f.cornice.CloseRotonda();
    ASSERT_EQ(f.messaggi.mostrati.size(), 1U);
    EXPECT_EQ(f.messaggi.mostrati[0].testo, "Attenzione! Salvare il progetto corrente prima di chiuderlo?");
    EXPECT_EQ(f.messaggi.mostrati[0].titolo, "KELVO 2014 - Attenzione");
    EXPECT_EQ(f.messaggi.mostrati[0].icona, Icona::domanda);
    EXPECT_EQ(f.messaggi.mostrati[0].pulsanti, Pulsanti::siNo);
    EXPECT_NE(&f.app.theRotonda(), prima);
    EXPECT_EQ(f.app.theRotonda().Rami().Count(), 0);
    EXPECT_FALSE(f.superficie.alberoVisibile);
    EXPECT_EQ(f.cornice.gestione.corrente(), nullptr);
    EXPECT_EQ(f.cornice.finestre.quanteVive(), 0U);
    EXPECT_EQ(f.stato.statoProgetto, StatoProgetto::NessunProgetto);
    EXPECT_EQ(f.cornice.titolo(), "KELVO 2014");
    EXPECT_TRUE(f.cornice.ctlToolbar.abilitato(std::string_view{"Nuovo"}));
    EXPECT_TRUE(f.cornice.ctlMenu.voce("mnuHelp").abilitata);
    EXPECT_FALSE(f.cornice.ctlMenu.voce("mnuDati").abilitata);
    EXPECT_TRUE(f.cornice.ctlMenu.contiene("keyMatriceSvolte"));  // the full menu stays built
}

TEST(Chiudi, AFailedSaveKeepsTheProjectOpen) {
    ShellFinta f;
    f.nuovo(4);
    f.cornice.CloseRotonda();  // yes, then the dialogue is cancelled
    EXPECT_EQ(f.messaggi.testi(),
              (std::vector<std::string>{"Attenzione! Salvare il progetto corrente prima di chiuderlo?",
                                        "Operazione annullata"}));
    EXPECT_EQ(f.messaggi.mostrati[1].titolo, "KELVO 2014 - Attenzione");
    EXPECT_EQ(f.stato.statoProgetto, StatoProgetto::ProgettoNuovo);
    EXPECT_EQ(f.app.theRotonda().Rami().Count(), 4);
}

TEST(Chiudi, ChangedOptionsAreNotToldOfTheNextProject) {
    ShellFinta f;
    f.nuovo(4);
    f.stato.opzioniModificate = true;
    f.messaggi.risposte = {Risposta::no};
    f.cornice.CloseRotonda();
    EXPECT_FALSE(f.stato.ProgettoAperto);
    EXPECT_FALSE(f.stato.opzioniModificate);
}

TEST(Chiudi, YesSavesAndCloses) {
    ShellFinta f;
    f.nuovo(4);
    f.dialogo.scelte = {f.cartella.file("a.klv")};
    f.cornice.CloseRotonda();
    EXPECT_TRUE(fs::exists(f.cartella.file("a.klv")));
    EXPECT_EQ(f.stato.statoProgetto, StatoProgetto::NessunProgetto);
}

TEST(Segno, UnsavedChangesShowBehindTheCaptionAndAreNoPartOfIt) {
    ShellFinta f;
    f.cornice.Load();
    f.cornice.LoadRotonda(f.progettoSuDisco("a.klv", 4));
    EXPECT_EQ(f.cornice.didascalia.testo(), "KELVO 2014 - [a.klv]");
    f.app.theRotonda().Titolo("altro");
    f.cornice.aggiornaSegno();
    EXPECT_EQ(f.cornice.didascalia.testo(), "KELVO 2014 - [a.klv] *");
    EXPECT_EQ(f.cornice.titolo(), "KELVO 2014 - [a.klv]");
    EXPECT_EQ(f.cornice.NomeFileProposto(), "a.klv");
    f.dialogo.scelte = {f.cartella.file("b.klv")};
    bool esito = false;
    f.cornice.SaveRotonda(esito);
    EXPECT_EQ(f.cornice.didascalia.testo(), "KELVO 2014 - [" + f.cartella.file("b.klv") + "]");
    f.messaggi.risposte = {Risposta::no};
    f.app.theRotonda().Titolo("ancora");
    f.cornice.CloseRotonda();
    EXPECT_EQ(f.cornice.didascalia.testo(), "KELVO 2014");
}

TEST(Etichette, AFaultInAWindowThatGoesIsRecordedUnderTheProcedureThatClosesIt) {
    ShellFinta f;
    f.nuovo(3);
    f.cornice.albero.UserClick("keyMatriceSvolte");
    f.cornice.finestre.allaFine = [](Finestra&) { throw Guasto(NumeroGuasto::overflow); };
    f.messaggi.risposte = {Risposta::no};
    f.cornice.CloseRotonda();
    EXPECT_EQ(f.messaggi.mostrati.back().titolo, "KELVO 2014MDI_Form:CloseRotonda()");
    EXPECT_EQ(f.messaggi.mostrati.back().testo, "6 : Overflow");
    f.cornice.LoadRotonda(f.progettoSuDisco("a.klv", 3));
    EXPECT_EQ(f.messaggi.mostrati.back().titolo, "KELVO 2014MDI_Form:LoadRotonda()");
}

TEST(Progetto, OpeningAProjectWithTheSensitivityAnalysisEnablesNothingInATreeThatIsNotBuilt) {
    ShellFinta f;
    creaProgetto(f.app, 4);
    f.app.theRotonda().OttimizzazioneGeometrica(true);
    f.app.theRotonda().Ramo(2).theAnalisiMarginale().UsaSemiLarghezza(true);
    f.cornice.SetUpOpzioni();
    EXPECT_TRUE(f.messaggi.mostrati.empty());
    EXPECT_FALSE(f.cornice.albero.ctlTree.contiene("keyAnalisiMarginale2"));
}

TEST(Etichette, OptionsOfAProjectWithoutItsLegsAreRecordedUnderTheirProcedure) {
    ShellFinta f;
    f.app.theRotonda().Clear();
    f.app.theRotonda().OttimizzazioneGeometrica(true);
    f.cornice.SetUpOpzioni();
    ASSERT_EQ(f.messaggi.mostrati.size(), 1U);
    EXPECT_EQ(f.messaggi.mostrati.back().titolo, "KELVO 2014MDI_Form:SetUpOpzioni");
    EXPECT_EQ(f.messaggi.mostrati.back().testo.substr(0, 4), "9 : ");
    f.cornice.albero.GestioneAnalisiMarginale();
    EXPECT_EQ(f.messaggi.mostrati.back().titolo, "KELVO 2014frmTreeView:GestioneAnalisiMarginale");
}

TEST(Etichette, AFaultOfTheLifecycleIsRecordedUnderItsProcedure) {
    ShellFinta f;
    f.superficie.alModale = [](Finestra&) { throw Guasto(NumeroGuasto::overflow); };
    f.cornice.NewRotonda();
    ASSERT_EQ(f.messaggi.mostrati.size(), 1U);
    EXPECT_EQ(f.messaggi.mostrati[0].titolo, "KELVO 2014MDI_Form:NewRotonda()");
    EXPECT_EQ(f.messaggi.mostrati[0].testo, "6 : Overflow");
    f.messaggi.mostrati.clear();
    f.superficie.alModale = {};
    creaProgetto(f.app, 4);
    f.stato.statoProgetto = StatoProgetto::ProgettoNuovo;
    f.cornice.finestre.registra("frmMatriceSvolte", [](const Contorno& c) {
        auto finestra = std::make_unique<FinestraFinta>(c, "frmMatriceSvolte", true);
        finestra->alSalvataggio = [](Applicazione&) { throw Guasto(NumeroGuasto::overflow); };
        return finestra;
    });
    f.cornice.mostraFinestra("frmMatriceSvolte");
    f.dialogo.scelte = {f.cartella.file("a.klv")};
    bool esito = true;
    f.cornice.SaveRotonda(esito);
    EXPECT_FALSE(esito);
    ASSERT_EQ(f.messaggi.mostrati.size(), 1U);
    EXPECT_EQ(f.messaggi.mostrati[0].titolo, "KELVO 2014MDI_Form:SaveRotonda()");
}

}  // namespace
}  // namespace kelvo::prove::shell
