// The link to the CAD companion through the main window, with its own save.

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "app/percorsi.h"
#include "comune/fintiShell.h"

namespace kelvo::prove::shell {
namespace {

constexpr const char* domanda = "Attenzione! Per continuare è necessario salvare il progetto. Salvare adesso?";

struct CadMDI : testing::Test {
    CadMDI() {
        f.cornice.Load();
        f.nuovo(3);
    }
    void premi() { f.cornice.ctlToolbar.premi("KelvoCAD"); }
    ShellFinta f;
};

TEST_F(CadMDI, TheButtonSavesUnderTheChosenPathAndHandsItToTheCompanion) {
    const std::string percorso = f.cartella.file("Piazza Nord.klv");
    f.dialogo.scelte = {percorso};
    premi();
    EXPECT_EQ(f.messaggi.testi(), std::vector<std::string>{domanda});
    EXPECT_TRUE(std::filesystem::exists(percorso));
    EXPECT_EQ(f.impostazioni.leggi("KelvoCAD 2014", "StartUp", "FilePathKelvo"), percorso);
    EXPECT_EQ(f.documenti.avviati, std::vector<std::string>{percorsoKelvoCAD(f.app.theAmbiente) + "|" + percorso});
    EXPECT_EQ(f.cornice.titolo(), "KELVO 2014 - [" + percorso + "]");
    EXPECT_FALSE(f.cornice.modificato());
}

TEST_F(CadMDI, CancelInTheSaveDialogueStartsNothing) {
    bool esito = true;
    f.cornice.LinkKELVOCAD(esito);
    EXPECT_FALSE(esito);
    EXPECT_EQ(f.dialogo.richieste.size(), 1U);
    EXPECT_TRUE(f.documenti.avviati.empty());
}

TEST_F(CadMDI, WithDifferentDiametersAndNoTheSaveDialogueDoesNotComeUp) {
    f.app.theRotonda().Ramo(2).DiametroInscritto(f.app.theRotonda().Ramo(1).DiametroInscritto() + 5.0F);
    f.messaggi.risposte = {Risposta::si, Risposta::no};
    premi();
    EXPECT_EQ(f.messaggi.mostrati.size(), 2U);
    EXPECT_TRUE(f.dialogo.richieste.empty());
    EXPECT_TRUE(f.documenti.avviati.empty());
    bool esito = true;
    f.messaggi.risposte = {Risposta::no};
    f.cornice.ControllaDATIexportKCAD(esito);
    EXPECT_FALSE(esito);
}

TEST_F(CadMDI, AFieldThatRefusesToBeLeftKeepsTheCommandFromRunning) {
    f.cornice.albero.UserClick("keyTempoModellazione");
    FinestraFinta& finestra = *f.corrente();
    ASSERT_TRUE(finestra.fuocoSu(finestra.campo));
    finestra.campo.scrivi("storto");
    f.messaggi.mostrati.clear();
    premi();
    for (const std::string& testo : f.messaggi.testi()) {
        EXPECT_NE(testo, domanda);
    }
    EXPECT_TRUE(f.dialogo.richieste.empty());
}

TEST_F(CadMDI, WithoutACompanionTheProjectIsSavedAllTheSame) {
    f.dialogo.scelte = {f.cartella.file("Piazza Nord.klv")};
    f.documenti.riesce = false;
    premi();
    ASSERT_EQ(f.messaggi.mostrati.size(), 2U);
    EXPECT_EQ(f.messaggi.mostrati[1].titolo, "Kelvo 2014");
    EXPECT_TRUE(std::filesystem::exists(f.cartella.file("Piazza Nord.klv")));
}

}  // namespace
}  // namespace kelvo::prove::shell
