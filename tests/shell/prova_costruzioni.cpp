#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "comune/fintiShell.h"
#include "shell/menuPrincipale.h"

namespace kelvo::prove::shell {
namespace {

bool acceso(const MDI_Form& cornice, const std::string& chiave) {
    return cornice.albero.ctlTree.nodo(chiave).ForeColor == frmTreeView::coloreAbilitato;
}

/// Both layouts: by leg (0), by type (1).
class Costruzioni : public ::testing::TestWithParam<int> {
protected:
    void SetUp() override {
        f.disposizione(GetParam());
        f.cornice.Load();
    }
    /// A project and its tree, out of sight.
    void costruisci(int rami) {
        creaProgetto(f.app, static_cast<std::int16_t>(rami));
        f.cornice.LoadTreeView();
    }
    ShellFinta f;
};

TEST_P(Costruzioni, ARebuildLeavesEachMenuWithItsRowsOnce) {
    f.nuovo(3);
    const std::vector<std::string> menu{"mnuFile",      "mnuDati", "mnuOpzioni", "mnuRisultati",
                                        "mnuStrumenti", "mnuHelp", "mnuKelvoCAD"};
    std::vector<std::size_t> righe;
    for (const std::string& chiave : menu) {
        righe.push_back(f.cornice.ctlMenu.figli(chiave).size());
        EXPECT_GT(righe.back(), 0U) << chiave;
    }
    const std::size_t voci = f.cornice.ctlMenu.voci().size();
    f.cornice.Handle_Menu();
    f.cornice.LoadTreeView();
    for (std::size_t i = 0; i < menu.size(); ++i) {
        EXPECT_EQ(f.cornice.ctlMenu.figli(menu[i]).size(), righe[i]) << menu[i];
    }
    EXPECT_EQ(f.cornice.ctlMenu.voci().size(), voci);
}

TEST_P(Costruzioni, HiddenMenusStayHiddenThroughEveryBuildOfTheRun) {
    const std::vector<std::string> menu{"mnuFile",      "mnuDati", "mnuOpzioni", "mnuRisultati",
                                        "mnuStrumenti", "mnuHelp", "mnuKelvoCAD"};
    f.nuovo(3);
    f.cornice.mostraMenu(false);
    f.cornice.Handle_Menu();
    f.cornice.LoadTreeView();
    for (const std::string& chiave : menu) {
        EXPECT_FALSE(f.cornice.ctlMenu.voce(chiave).visibile) << chiave;
    }
    EXPECT_TRUE(f.cornice.ctlToolbar.abilitato("Salva")) << "tool bar and shortcuts stay";
    f.cornice.mostraMenu(true);
    for (const std::string& chiave : menu) {
        EXPECT_TRUE(f.cornice.ctlMenu.voce(chiave).visibile) << chiave;
    }
}

TEST_P(Costruzioni, AGreyNodeClosesItsEntryAfterARebuildOfTheMenu) {
    f.nuovo(3);
    f.cornice.albero.DisableNode(f.cornice.albero.ctlTree, "keyMatriceSvolte");
    f.cornice.albero.DisableNode(f.cornice.albero.ctlTree, "keyCodeRitardi_Out");
    f.cornice.Handle_Menu();
    for (const char* chiave : {"keyMatriceSvolte", "keyCodeRitardi_Out", "keyCodeRitardi_Out3"}) {
        EXPECT_FALSE(f.cornice.ctlMenu.voce(chiave).abilitata) << chiave;
    }
    EXPECT_TRUE(f.cornice.ctlMenu.voce("keyCapacitaUltima_Out").abilitata);
    f.cornice.albero.EnableNode(f.cornice.albero.ctlTree, "keyMatriceSvolte");
    f.cornice.Handle_Menu();
    EXPECT_TRUE(f.cornice.ctlMenu.voce("keyMatriceSvolte").abilitata);
}

TEST_P(Costruzioni, ALoadedProjectHasTheFlagsOfAProjectAfterItsBuild) {
    f.cornice.LoadRotonda(f.progettoSuDisco("p.klv", 5));
    const MenuChiavi& menu = f.cornice.ctlMenu;
    EXPECT_FALSE(menu.voce("mnuNuovo").abilitata);
    EXPECT_FALSE(menu.voce("mnuApri").abilitata);
    EXPECT_TRUE(menu.voce("mnuSalva").abilitata);
    EXPECT_TRUE(menu.voce("mnuChiudi").abilitata);
    EXPECT_TRUE(menu.voce("mnuDati").abilitata);
    EXPECT_FALSE(menu.voce("keyAnalisiMarginale5").abilitata);
    EXPECT_FALSE(acceso(f.cornice, "keyOttimizzazioneGeometrica5"));
}

TEST_P(Costruzioni, AfterAProjectIsClosedTheFullMenuStandsWithTheFlagsOfNoProject) {
    f.nuovo(3);
    const std::size_t voci = f.cornice.ctlMenu.voci().size();
    f.messaggi.risposte = {Risposta::no};
    f.cornice.CloseRotonda();
    const MenuChiavi& menu = f.cornice.ctlMenu;
    EXPECT_EQ(menu.voci().size(), voci);
    for (const char* chiave : {"mnuNuovo", "mnuApri", "mnuHelp", "mnuEsci"}) {
        EXPECT_TRUE(menu.voce(chiave).abilitata) << chiave;
    }
    for (const char* chiave : {"mnuChiudi", "mnuSalva", "mnuDati", "mnuOpzioni", "mnuRisultati", "mnuStrumenti"}) {
        EXPECT_FALSE(menu.voce(chiave).abilitata) << chiave;
    }
    EXPECT_FALSE(f.superficie.alberoVisibile);
    EXPECT_EQ(f.cornice.gestione.corrente(), nullptr);
    f.cornice.ctlMenu.premi("keyMatriceSvolte");
    EXPECT_EQ(f.cornice.gestione.corrente(), nullptr);
}

TEST_P(Costruzioni, OutOfSightTheTreeIsGreyedByItsOwnBuild) {
    costruisci(3);
    ASSERT_FALSE(f.cornice.albero.visibile());
    for (const char* chiave : {"keyAnalisiMarginale1", "keyAnalisiMarginale3", "keyOttimizzazioneGeometrica1",
                               "keyOttimizzazioneGeometrica3"}) {
        EXPECT_FALSE(acceso(f.cornice, chiave)) << chiave;
        EXPECT_FALSE(f.cornice.ctlMenu.voce(chiave).abilitata) << chiave;
    }
    f.app.theRotonda().OttimizzazioneGeometrica(true);
    f.app.theRotonda().Ramo(3).theAnalisiMarginale().UsaDiametroInscritto(true);
    f.cornice.albero.GestioneAnalisiMarginale();
    EXPECT_TRUE(acceso(f.cornice, "keyAnalisiMarginale1"));
    EXPECT_FALSE(acceso(f.cornice, "keyOttimizzazioneGeometrica1"));
    EXPECT_TRUE(acceso(f.cornice, "keyOttimizzazioneGeometrica3"));
    EXPECT_TRUE(f.messaggi.mostrati.empty());
}

TEST_P(Costruzioni, OnlyTheLayoutByTypeSetsTheOptionsUpAtItsEnd) {
    creaProgetto(f.app, 3);
    f.app.theRotonda().TipoAnalisi(2);
    f.app.theRotonda().TipoFlusso(1);
    f.cornice.LoadTreeView();
    EXPECT_EQ(f.cornice.finestraTraffico(), GetParam() == 1 ? "frmDatiTrafficoST" : "");
    EXPECT_EQ(f.cornice.finestraComposizione(),
              GetParam() == 1 ? "frmComposizioneTrafficoST" : "frmComposizioneTraffico");
}

TEST_P(Costruzioni, ABuildKeepsTheNodeOfTheWindowAtHand) {
    f.nuovo(3);
    f.cornice.albero.UserClick("keyMatriceSvolte");
    f.cornice.LoadTreeView();
    EXPECT_EQ(f.cornice.albero.ctlTree.selezionato(), "keyMatriceSvolte");
}

TEST_P(Costruzioni, ANodeThatIsGreyedWithItsFolderIsNoLongerSelected) {
    f.nuovo(3);
    Albero& albero = f.cornice.albero.ctlTree;
    albero.seleziona("keyCodeRitardi_Out2");
    f.cornice.albero.DisableNode(albero, "keyRisultati");
    EXPECT_EQ(albero.selezionato(), "");
    albero.seleziona("keyOpzioni");
    f.cornice.albero.DisableNode(albero, "keyStrumenti");
    EXPECT_EQ(albero.selezionato(), "keyOpzioni");
}

INSTANTIATE_TEST_SUITE_P(Layouts, Costruzioni, ::testing::Values(0, 1));

TEST(MenuPrimo, TheFirstBuildEmptiesSixMenusEveryOtherSeven) {
    ShellFinta f;
    f.cornice.Load();
    f.nuovo(3);
    f.cornice.Load();
    for (const char* menu : {"mnuDati", "mnuOpzioni", "mnuRisultati", "mnuKelvoCAD", "mnuHelp"}) {
        EXPECT_TRUE(f.cornice.ctlMenu.figli(menu).empty()) << menu;
    }
    EXPECT_EQ(f.cornice.ctlMenu.figli("mnuStrumenti").size(), 4U);
    f.app.theRotonda().Clear();
    f.cornice.Handle_Menu_normale();  // empties, then meets a leg that is not there
    EXPECT_TRUE(f.cornice.ctlMenu.figli("mnuStrumenti").empty());
}

TEST(FinestreScelte, SaturationAloneAndAConstantMixTakeTheOthersPlace) {
    ShellFinta f;
    f.nuovo(3);
    f.app.theRotonda().TipoAnalisi(1);
    f.app.theRotonda().TipoFlusso(1);
    f.cornice.SetUpOpzioni();
    f.app.theRotonda().TipoFlusso(0);
    f.app.theRotonda().TipoAnalisi(0);
    f.cornice.SetUpOpzioni();
    EXPECT_EQ(f.cornice.finestraTraffico(), "");
    EXPECT_EQ(f.cornice.finestraComposizione(), "frmComposizioneTraffico");
}

}  // namespace
}  // namespace kelvo::prove::shell
