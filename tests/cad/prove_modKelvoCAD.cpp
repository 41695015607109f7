#include "cad/modKelvoCAD.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "app/percorsi.h"
#include "base/file.h"
#include "scenaCad.h"

namespace kelvo::prove {
namespace {

namespace fs = std::filesystem;

constexpr const char* titoloAttenzione = "KELVO 2014 - Attenzione";
constexpr const char* domanda = "Attenzione! Per continuare è necessario salvare il progetto. Salvare adesso?";
constexpr const char* senzaEseguibile =
    "Attenzione!\nL'eseguibile di KelvoCAD non è stato trovato.\nNon sarà possibile esportare la rotatoria in ambiente "
    "CAD.";

struct LinkCAD : ScenaCad {
    LinkCAD() { progetto({40.0F, 40.0F, 40.0F, 40.0F}); }
    bool collega() {
        bool esito = salvataggio.volte == 0;  // whatever it held
        kelvoCAD.LinkKELVOCAD(esito);
        return esito;
    }
    std::string compagno() const { return cartella.file("KELVOCAD 2014/KelvoCAD 2014.exe"); }
};

TEST_F(LinkCAD, AsksSavesAndStartsTheCompanionWithThePathOfTheProject) {
    const std::string percorso = cartella.file("Città di Forlì.klv");
    risposte = {Risposta::si};
    salvataggio.alSalvataggio = [&] {
        EXPECT_TRUE(documenti.avviati.empty()) << "the companion comes after the save";
        impostazioni.scrivi("KelvoCAD 2014", "StartUp", "FilePathKelvo", percorso);
    };
    EXPECT_TRUE(collega());
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(messaggi.mostrati[0].testo, domanda);
    EXPECT_EQ(messaggi.mostrati[0].titolo, titoloAttenzione);
    EXPECT_EQ(messaggi.mostrati[0].pulsanti, Pulsanti::siNo);
    EXPECT_EQ(salvataggio.volte, 1);
    ASSERT_EQ(documenti.avviati.size(), 1U);
    EXPECT_EQ(documenti.avviati[0].first + " " + documenti.avviati[0].second, compagno() + " " + percorso);
    EXPECT_TRUE(errori.empty());
}

TEST_F(LinkCAD, AnythingButYesEndsItBeforeAnythingElse) {
    progetto({40.0F, 41.0F, 40.0F});
    for (const Risposta risposta : {Risposta::no, Risposta::annulla, Risposta::ok}) {
        messaggi.mostrati.clear();
        risposte = {risposta};
        EXPECT_FALSE(collega());
        EXPECT_EQ(testi(), std::vector<std::string>{domanda});
    }
    EXPECT_EQ(salvataggio.volte, 0);
    EXPECT_TRUE(documenti.avviati.empty());
}

TEST_F(LinkCAD, WithDifferentDiametersAndNoNothingIsSavedNorStarted) {
    progetto({40.0F, 40.0F, 38.5F});
    risposte = {Risposta::si, Risposta::no};
    EXPECT_FALSE(collega());
    EXPECT_EQ(messaggi.mostrati.size(), 2U);
    EXPECT_EQ(salvataggio.volte, 0);
    EXPECT_TRUE(documenti.avviati.empty());
}

TEST_F(LinkCAD, WithDifferentDiametersAndYesItGoesOn) {
    progetto({40.0F, 40.0F, 38.5F});
    risposte = {Risposta::si, Risposta::si};
    EXPECT_TRUE(collega());
    EXPECT_EQ(salvataggio.volte, 1);
    EXPECT_EQ(documenti.avviati.size(), 1U);
}

TEST_F(LinkCAD, ASaveThatFailsOrIsGivenUpStartsNothing) {
    risposte = {Risposta::si};
    salvataggio.riesce = false;
    EXPECT_FALSE(collega());
    EXPECT_EQ(salvataggio.volte, 1);
    EXPECT_TRUE(documenti.avviati.empty());
    EXPECT_EQ(testi(), std::vector<std::string>{domanda});
}

TEST_F(LinkCAD, ACompanionThatIsNotThereIsToldAndLogged) {
    risposte = {Risposta::si};
    documenti.riesce = false;
    EXPECT_FALSE(collega());
    ASSERT_EQ(messaggi.mostrati.size(), 2U) << "the log shows nothing of its own";
    EXPECT_EQ(messaggi.mostrati[1].testo, senzaEseguibile);
    EXPECT_EQ(messaggi.mostrati[1].titolo, "Kelvo 2014");
    EXPECT_EQ(messaggi.mostrati[1].pulsanti, Pulsanti::ok);
    ASSERT_EQ(errori.size(), 1U);
    EXPECT_EQ(errori[0].numero, 53);
    EXPECT_EQ(errori[0].metodo, "LinkKELVOCAD:");
    EXPECT_EQ(errori[0].descrizione, "File non trovato (" + compagno() + ")");
    EXPECT_NE(log().find("Metodo: LinkKELVOCAD: - Descrizione: File non trovato"), std::string::npos) << log();
}

TEST_F(LinkCAD, ACompanionThatStandsAndDoesNotStartIsToldAlike) {
    fs::create_directories(percorsoDaTesto(cartella.file("KELVOCAD 2014")));
    scriviContenuto(compagno(), "guasto");
    risposte = {Risposta::si};
    documenti.riesce = false;
    EXPECT_FALSE(collega());
    EXPECT_EQ(messaggi.mostrati.back().testo, senzaEseguibile);
    ASSERT_EQ(errori.size(), 1U);
    EXPECT_EQ(errori[0].numero, 5);
}

TEST_F(LinkCAD, AFolderInThePlaceOfTheCompanionIsNone) {
    fs::create_directories(percorsoDaTesto(compagno()));
    risposte = {Risposta::si};
    documenti.riesce = false;
    EXPECT_FALSE(collega());
    ASSERT_EQ(errori.size(), 1U);
    EXPECT_EQ(errori[0].numero, 53);
}

TEST_F(LinkCAD, TheCompanionIsFoundWithoutRegardToCase) {
    fs::create_directories(percorsoDaTesto(cartella.file("KelvoCAD 2014")));
    const std::string altro = cartella.file("KelvoCAD 2014/kelvocad 2014.EXE");
    scriviContenuto(altro, "");
    risposte = {Risposta::si};
    EXPECT_TRUE(collega());
    ASSERT_EQ(documenti.avviati.size(), 1U);
    // A system that does not tell cases apart finds it under either name.
    EXPECT_TRUE(fs::equivalent(percorsoDaTesto(documenti.avviati[0].first), percorsoDaTesto(altro)));
}

struct PercorsiTagliati : testing::Test {
    /// The path with this system's separators.
    static std::string nativo(const std::string& percorso) {
        return testoDaPercorso(percorsoDaTesto(percorso).make_preferred());
    }
    static clsAmbiente in(const std::string& cartella) { return {cartella, "lavoro", sistemaFileStandard()}; }
};

TEST_F(PercorsiTagliati, ElevenAndSixCharactersGoFromTheProgramsFolder) {
    const clsAmbiente ambiente = in(nativo("/opt/città/Prog/Kelvo"));
    EXPECT_EQ(percorsoKelvoCAD(ambiente), nativo("/opt/città/KELVOCAD 2014/KelvoCAD 2014.exe"));
    EXPECT_EQ(percorsoMacroKelvoCAD(ambiente), nativo("/opt/città/Prog/KelvoCAD/doc/KelvoCAD2008.dvb"));
}

TEST_F(PercorsiTagliati, CharactersAreCountedAndNeitherBytesNorNamesOfFolders) {
    const clsAmbiente ambiente = in(nativo("/opt/perché/bèllo"));
    EXPECT_EQ(percorsoKelvoCAD(ambiente), nativo("/opt/p/KELVOCAD 2014/KelvoCAD 2014.exe"));
    EXPECT_EQ(percorsoMacroKelvoCAD(ambiente), nativo("/opt/perché/KelvoCAD/doc/KelvoCAD2008.dvb"));
}

TEST_F(PercorsiTagliati, BelowTheRootTheCompanionStandsInTheRoot) {
    const clsAmbiente ambiente = in(nativo("/Prog/Kelvo"));
    EXPECT_EQ(percorsoKelvoCAD(ambiente), nativo("/KELVOCAD 2014/KelvoCAD 2014.exe"));
}

struct Diametri : ScenaCad {
    bool controlla() {
        bool esito = !messaggi.mostrati.empty();
        kelvoCAD.ControllaDATIexportKCAD(esito);
        return esito;
    }
};

TEST_F(Diametri, EqualOnesAreFineWithoutAQuestion) {
    progetto({40.0F, 40.0F, 40.0F});
    EXPECT_TRUE(controlla());
    progetto({32.15F, 32.15F, 32.15F, 32.15F, 32.15F, 32.15F, 32.15F});
    EXPECT_TRUE(controlla());
    EXPECT_TRUE(messaggi.mostrati.empty());
}

TEST_F(Diametri, OfThreeLegsEachStandsOnALineInThePlainForm) {
    progetto({40.0F, 38.5F, 40.0F});
    risposte = {Risposta::si};
    EXPECT_TRUE(controlla());
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(messaggi.mostrati[0].titolo, titoloAttenzione);
    EXPECT_EQ(messaggi.mostrati[0].pulsanti, Pulsanti::siNo);
    EXPECT_EQ(messaggi.mostrati[0].testo,
              "Attenzione! Rilevati differenti valori del diametro relativo agli ingressi:\n"
              "      Ramo 1 = 40\n"
              "      Ramo 2 = 38,5\n"
              "      Ramo 3 = 40\n"
              "KelvoCAD utilizzerà il valore D=40m per il diametro della rotatoria.\n"
              "Procedere con questo valore?");
}

TEST_F(Diametri, OfSevenLegsTheFirstOneCountsAndTheLastIsAskedFor) {
    progetto({41.25F, 41.25F, 41.25F, 41.25F, 41.25F, 41.25F, 100.1F});
    risposte = {Risposta::no};
    EXPECT_FALSE(controlla());
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(messaggi.mostrati[0].testo,
              "Attenzione! Rilevati differenti valori del diametro relativo agli ingressi:\n"
              "      Ramo 1 = 41,25\n"
              "      Ramo 2 = 41,25\n"
              "      Ramo 3 = 41,25\n"
              "      Ramo 4 = 41,25\n"
              "      Ramo 5 = 41,25\n"
              "      Ramo 6 = 41,25\n"
              "      Ramo 7 = 100,1\n"
              "KelvoCAD utilizzerà il valore D=41,25m per il diametro della rotatoria.\n"
              "Procedere con questo valore?");
}

TEST_F(Diametri, TheQuestionLeavesTheProjectAsItIs) {
    progetto({40.0F, 38.5F, 39.0F});
    const auto prima = app.theRotonda().revisione().tutto;
    risposte = {Risposta::si};
    EXPECT_TRUE(controlla());
    EXPECT_EQ(app.theRotonda().revisione().tutto, prima);
    EXPECT_EQ(app.theRotonda().Ramo(2).DiametroInscritto(), 38.5F);
}

struct Installati : ScenaCad {
    std::vector<std::string> righe() {
        std::vector<std::string> testi;
        for (const AUTOCADInstallato& voce : kelvoCAD.LeggeAUTOCADinstallati()) {
            testi.push_back(voce.testo);
        }
        return testi;
    }
};

TEST_F(Installati, EachKnownVersionHasItsRowItsNameAndItsAutomationName) {
    struct Riga {
        const char* chiave;
        const char* testo;
        const char* nome;
        const char* progID;
    };
    const std::vector<Riga> tavola{
        {"R16.0", "  >  Autocad 2004  -  ", "Autocad 2004", "AutoCAD.Application.16"},
        {"R16.1", "  >  Autocad 2005  -  ", "Autocad 2005", "AutoCAD.Application.16.1"},
        {"R16.2", "  >  Autocad 2006  -  ", "Autocad 2006", "AutoCAD.Application.16.2"},
        {"R17.0", "  >  Autocad 2007  -  ", "Autocad 2007", "AutoCAD.Application.17"},
        {"R17.1", "  >  Autocad 2008  -  ", "Autocad 2008", "AutoCAD.Application.17.1"},
        {"R17.2", "  >  Autocad 2009  -  ", "Autocad 2009", "AutoCAD.Application.17.2"},
    };
    for (const Riga& riga : tavola) {
        registro.prodotto(riga.chiave, "ACAD-1:410", std::string{"C:\\"} + riga.chiave, "Italiano");
    }
    const auto trovati = kelvoCAD.LeggeAUTOCADinstallati();
    ASSERT_EQ(trovati.size(), tavola.size());
    for (std::size_t i = 0; i < tavola.size(); ++i) {
        const std::string chiave = tavola[i].chiave;
        EXPECT_EQ(trovati[i],
                  (AUTOCADInstallato{"Software\\Autodesk\\AutoCAD\\" + chiave + "\\ACAD-1:410", "C:\\" + chiave,
                                     tavola[i].testo + std::string{"Italiano"}, tavola[i].nome}));
        EXPECT_EQ(progIDAutoCAD(trovati[i].nome), tavola[i].progID);
    }
    EXPECT_EQ(progIDAutoCAD("Autocad 2010"), "");
    EXPECT_TRUE(errori.empty());
}

TEST_F(Installati, AMachineWithoutTheKeyGivesAnEmptyListAndNoBox) {
    EXPECT_EQ(righe(), std::vector<std::string>{});
    EXPECT_EQ(registro.lette, std::vector<std::string>{"Software\\Autodesk\\AutoCAD"});
    EXPECT_TRUE(messaggi.mostrati.empty());
    EXPECT_TRUE(errori.empty());
}

TEST_F(Installati, WithoutARegistryTheListIsEmpty) {
    modKelvoCAD senza{app, {documenti, impostazioni, salvataggio}};
    EXPECT_TRUE(senza.LeggeAUTOCADinstallati().empty());
    EXPECT_EQ(senza.ACAD_Path("x"), "");
    EXPECT_TRUE(errori.empty());
}

TEST_F(Installati, OtherVersionsAreSkippedAndTheOrderIsTheRegistrys) {
    registro.prodotto("R17.1", "ACAD-6001:410", "C:\\2008", "Italiano");
    registro.prodotto("R18.0", "ACAD-8001:410", "C:\\2010", "Italiano");
    registro.prodotto("R15.0", "ACAD-1:409", "C:\\2000", "English");
    registro.prodotto("R16.0", "ACAD-201:409", "C:\\2004", "English");
    EXPECT_EQ(righe(), (std::vector<std::string>{"  >  Autocad 2008  -  Italiano", "  >  Autocad 2004  -  English"}));
}

TEST_F(Installati, KeysAreTakenInAnyCase) {
    registro.prodotto("r17.2", "ACAD-7001:410", "C:\\2009", "Italiano");
    EXPECT_EQ(righe(), std::vector<std::string>{"  >  Autocad 2009  -  Italiano"});
}

TEST_F(Installati, OfSeveralProductsOfAVersionTheFirstOneTells) {
    registro.prodotto("R17.0", "ACAD-5001:410", "C:\\2007", "Italiano");
    const std::string versione = "Software\\Autodesk\\AutoCAD\\R17.0";
    registro.chiavi[versione].emplace_back("ACAD-5004:409");
    registro.valori[versione + "\\ACAD-5004:409|Location"] = "C:\\altro";
    const auto trovati = kelvoCAD.LeggeAUTOCADinstallati();
    ASSERT_EQ(trovati.size(), 1U);
    EXPECT_EQ(trovati[0].cartella, "C:\\2007");
}

TEST_F(Installati, TheLanguageIsReadOnlyWhereTheFolderIsTold) {
    registro.prodotto("R17.0", "ACAD-5001:410", "", "Italiano");
    const auto trovati = kelvoCAD.LeggeAUTOCADinstallati();
    ASSERT_EQ(trovati.size(), 1U);
    EXPECT_EQ(trovati[0].testo, "  >  Autocad 2007  -  ");
    EXPECT_EQ(trovati[0].cartella, "");
    const std::string chiave = "Software\\Autodesk\\AutoCAD\\R17.0";
    EXPECT_EQ(registro.lette,
              (std::vector<std::string>{"Software\\Autodesk\\AutoCAD", chiave, chiave + "\\ACAD-5001:410|Location"}));
}

TEST_F(Installati, AVersionWithoutAProductHasARowWithoutALanguage) {
    registro.chiavi["Software\\Autodesk\\AutoCAD"] = {"R16.1"};
    EXPECT_EQ(righe(), std::vector<std::string>{"  >  Autocad 2005  -  "});
}

TEST_F(Installati, ThereAreAtMostTwentyRows) {
    for (int i = 0; i < 25; ++i) {
        registro.prodotto("R17.0", "ACAD-" + std::to_string(i), "C:\\2007", "Italiano");
    }
    EXPECT_EQ(righe().size(), 20U);
    EXPECT_TRUE(errori.empty());
}

TEST_F(Installati, AFolderThatCannotBeReadIsLoggedAndLeftEmpty) {
    registro.prodotto("R17.0", "ACAD-5001:410", "C:\\2007", "Italiano");
    registro.prodotto("R17.1", "ACAD-6001:410", "C:\\2008", "Italiano");
    registro.guaste = {"Software\\Autodesk\\AutoCAD\\R17.0\\ACAD-5001:410|Location"};
    EXPECT_EQ(righe(), (std::vector<std::string>{"  >  Autocad 2007  -  ", "  >  Autocad 2008  -  Italiano"}));
    EXPECT_EQ(metodi(), std::vector<std::string>{"  ACAD_Path:"});
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(messaggi.mostrati[0].titolo, "KELVO 2014  ACAD_Path:");
    EXPECT_NE(log().find(" - Metodo:   ACAD_Path: - Descrizione: Autorizzazione negata"), std::string::npos) << log();
}

TEST_F(Installati, ALanguageThatCannotBeReadIsLoggedAndLeftEmpty) {
    registro.prodotto("R17.0", "ACAD-5001:410", "C:\\2007", "Italiano");
    registro.guaste = {"Software\\Autodesk\\AutoCAD\\R17.0\\ACAD-5001:410|Language"};
    const auto trovati = kelvoCAD.LeggeAUTOCADinstallati();
    ASSERT_EQ(trovati.size(), 1U);
    EXPECT_EQ(trovati[0].testo, "  >  Autocad 2007  -  ");
    EXPECT_EQ(trovati[0].cartella, "C:\\2007");
    EXPECT_EQ(metodi(), std::vector<std::string>{"  ACAD_Lingua:"});
    EXPECT_NE(log().find(" - Metodo:   ACAD_Lingua: - "), std::string::npos) << log();
}

TEST_F(Installati, AListOfKeysThatCannotBeReadIsLogged) {
    registro.prodotto("R17.0", "ACAD-5001:410", "C:\\2007", "Italiano");
    registro.prodotto("R17.1", "ACAD-6001:410", "C:\\2008", "Italiano");
    registro.guaste = {"Software\\Autodesk\\AutoCAD\\R17.0"};
    EXPECT_EQ(righe(), (std::vector<std::string>{"  >  Autocad 2007  -  ", "  >  Autocad 2008  -  Italiano"}));
    EXPECT_EQ(metodi(), std::vector<std::string>{"  LeggeAUTOCADinstallati:"});
    registro.guaste = {"Software\\Autodesk\\AutoCAD"};
    EXPECT_EQ(righe(), std::vector<std::string>{});
    EXPECT_EQ(metodi(), (std::vector<std::string>{"  LeggeAUTOCADinstallati:", "  LeggeAUTOCADinstallati:"}));
    EXPECT_NE(log().find(" - Metodo:   LeggeAUTOCADinstallati: - "), std::string::npos) << log();
}

}  // namespace
}  // namespace kelvo::prove
