#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "comune/fintiShell.h"

namespace kelvo::prove::shell {
namespace {

const std::vector<std::pair<std::string, std::string>> finestreAttese{
    {"keyMyProject", "frmEmptyForm"},
    {"keyAnagraficaRotonda", "frmAnagraficaRotonda"},
    {"keyAnagraficaProfessionista", "frmCommittenteProfessionista"},
    {"keyTempoModellazione", "frmTempoModellazione"},
    {"keyToponomasticaIntersezione", "frmToponomasticaIntersezione"},
    {"keyRamo1", "frmParametriRamo"},
    {"keyRamo7", "frmParametriRamo"},
    {"keyDatiTraffico1", "frmDatiTraffico"},
    {"keyDatiTraffico7", "frmDatiTraffico"},
    {"keyMatriceSvolte", "frmMatriceSvolte"},
    {"keyComposizioneTraffico1", "frmComposizioneTraffico"},
    {"keyComposizioneTraffico7", "frmComposizioneTraffico"},
    {"keyAnalisiMarginale1", "frmAnalisiMarginale"},
    {"keyAnalisiMarginale7", "frmAnalisiMarginale"},
    {"keyOpzioni", "frmOpzioni"},
    {"keyCodeRitardi_Out", "frmCapacitaCodeRitardi"},
    {"keyCodeRitardi_Out1", "frmCapacitaCodeRitardiRamo"},
    {"keyCodeRitardi_Out7", "frmCapacitaCodeRitardiRamo"},
    {"keyCapacitaUltima_Out", "frmCapacitaUltima"},
    {"keyOttimizzazioneGeometrica1", "frmRisultatiAnalisiMarginale"},
    {"keyOttimizzazioneGeometrica7", "frmRisultatiAnalisiMarginale"},
    {"keyConfronti", "frmConfronti"},
    {"keyCorsiaDX", "frmDX"},
    {"keyAnalizzatore", "frmANALIZZATORE"},
    {"keyterra", "frmGoogle"},
    {"keyRotonda", "frmEmptyForm"},
    {"keyRami", "frmEmptyForm"},
    {"keyRisultati", "frmEmptyForm"},
    {"keyStrumenti", "frmEmptyForm"},
    {"keyDatiTraffico", "frmEmptyForm"},
    {"keyComposizioneTraffico", "frmEmptyForm"},
    {"keyOttimizzazioneGeometrica", "frmEmptyForm"},
    {"keyRamo8", "frmEmptyForm"},
    {"keyRamo0", "frmEmptyForm"},
    {"keyDatiTraffico8", "frmEmptyForm"},
    {"keyRamo12", "frmEmptyForm"},
};

TEST(UserClick, EachKeyShowsItsWindowAndSelectsItsNode) {
    ShellFinta f;
    f.disposizione(1);
    f.nuovo(7);
    for (const auto& [chiave, finestra] : finestreAttese) {
        SCOPED_TRACE(chiave);
        EXPECT_TRUE(f.cornice.albero.UserClick(chiave));
        EXPECT_EQ(f.nomeCorrente(), finestra);
        if (f.cornice.albero.ctlTree.contiene(chiave)) {
            EXPECT_EQ(f.cornice.albero.ctlTree.selezionato(), chiave);
            EXPECT_EQ(f.cornice.albero.nodoCorrente(), chiave);
            EXPECT_EQ(f.corrente()->lette.back(), chiave);
        }
    }
    EXPECT_TRUE(f.messaggi.mostrati.empty());
}

TEST(UserClick, TheFolderOfALegShowsTheEmptyWindow) {
    ShellFinta f;
    f.nuovo(3);
    EXPECT_TRUE(f.cornice.albero.UserClick("keyRami2"));
    EXPECT_EQ(f.nomeCorrente(), "frmEmptyForm");
}

TEST(UserClick, TheWindowsOfTrafficAndCompositionFollowTheOptions) {
    ShellFinta f;
    f.nuovo(3);
    f.app.theRotonda().TipoAnalisi(2);
    f.app.theRotonda().TipoFlusso(1);
    f.cornice.SetUpOpzioni();
    f.cornice.albero.UserClick("keyDatiTraffico3");
    EXPECT_EQ(f.nomeCorrente(), "frmDatiTrafficoST");
    f.cornice.albero.UserClick("keyComposizioneTraffico3");
    EXPECT_EQ(f.nomeCorrente(), "frmComposizioneTrafficoST");
    EXPECT_EQ(f.cornice.TipoAnalisi(), 2);
    EXPECT_EQ(f.cornice.TipoFlusso(), 1);
}

TEST(UserClick, WithSaturationAloneTheTrafficNodesShowNoWindow) {
    ShellFinta f;
    f.nuovo(3);
    f.cornice.albero.UserClick("keyMatriceSvolte");
    f.app.theRotonda().TipoAnalisi(0);
    f.cornice.SetUpOpzioni();
    const std::size_t mostrate = f.superficie.mostrate.size();
    EXPECT_TRUE(f.cornice.albero.UserClick("keyDatiTraffico2"));
    EXPECT_EQ(f.superficie.mostrate.size(), mostrate);
    EXPECT_EQ(f.nomeCorrente(), "frmMatriceSvolte");
    EXPECT_EQ(f.corrente()->salvataggi, 0);
}

TEST(UserClick, ARefusedSwitchSelectsTheNodeOfTheWindowAgain) {
    ShellFinta f;
    f.nuovo(3);
    f.cornice.albero.UserClick("keyRamo2");
    f.corrente()->campo.testo("storto");
    int segnali = 0;
    f.cornice.albero.ctlTree.cambiato().connect([&] { ++segnali; });
    EXPECT_FALSE(f.cornice.albero.UserClick("keyMatriceSvolte"));
    EXPECT_EQ(f.nomeCorrente(), "frmParametriRamo");
    EXPECT_EQ(f.cornice.albero.ctlTree.selezionato(), "keyRamo2");
    EXPECT_EQ(f.cornice.albero.nodoCorrente(), "keyRamo2");
    EXPECT_EQ(f.corrente()->salvataggi, 0);
    EXPECT_GT(segnali, 0);
    EXPECT_TRUE(f.messaggi.mostrati.empty());
    EXPECT_FALSE(f.stato.convalidaFallita);
    f.corrente()->campo.testo("dritto");
    EXPECT_TRUE(f.cornice.albero.UserClick("keyMatriceSvolte"));
    EXPECT_EQ(f.finta("frmParametriRamo").salvataggi, 1);
}

TEST(UserClick, AFieldInFocusThatRefusesToBeLeftStopsTheClick) {
    ShellFinta f;
    f.nuovo(3);
    f.cornice.albero.UserClick("keyRamo2");
    FinestraFinta& finestra = *f.corrente();
    finestra.fuocoSu(finestra.campo);
    finestra.campo.scrivi("storto");
    f.cornice.albero.clic("keyMatriceSvolte");
    EXPECT_EQ(f.nomeCorrente(), "frmParametriRamo");
    EXPECT_EQ(f.cornice.albero.ctlTree.selezionato(), "keyRamo2");
    EXPECT_EQ(finestra.fuoco(), &finestra.campo);
    EXPECT_EQ(f.cornice.ctlStatusBar.avviso(), "storto");
}

TEST(UserClick, AWindowIsMadeOnceAndBoundToItsNodeAtEachActivation) {
    ShellFinta f;
    f.nuovo(3);
    f.cornice.albero.UserClick("keyRamo1");
    FinestraFinta* prima = f.corrente();
    f.cornice.albero.UserClick("keyRamo3");
    EXPECT_EQ(f.corrente(), prima);
    EXPECT_EQ(prima->lette, (std::vector<std::string>{"keyRamo1", "keyRamo3"}));
    EXPECT_EQ(prima->salvataggi, 1);
}

TEST(UserClick, AFaultOfAWindowIsRecordedUnderTheLabelOfTheTree) {
    ShellFinta f;
    f.nuovo(3);
    f.cornice.albero.UserClick("keyOpzioni");
    f.cornice.finestre.registra("frmMatriceSvolte", [](const Contorno&) -> std::unique_ptr<Finestra> {
        throw Guasto(NumeroGuasto::divisionePerZero);
    });
    EXPECT_FALSE(f.cornice.albero.UserClick("keyMatriceSvolte"));
    ASSERT_EQ(f.messaggi.mostrati.size(), 1U);
    EXPECT_EQ(f.messaggi.mostrati[0].titolo, "KELVO 2014frmTreeView:UserClick()");
    EXPECT_EQ(f.messaggi.mostrati[0].testo, "11 : Divisione per zero");
    EXPECT_EQ(f.nomeCorrente(), "frmOpzioni");
    EXPECT_EQ(f.cornice.albero.ctlTree.selezionato(), "keyOpzioni") << "the node of the window that is still shown";
}

TEST(NodiDisabilitati, AGreyNodeSwallowsTheMouseAndTellsItsText) {
    ShellFinta f;
    f.cornice.Load();
    f.nuovo(3);
    std::vector<std::string> detti;
    f.cornice.albero.nodiDisabilitati.NodoDisabilitatoClick = [&](const std::string& t) { detti.push_back(t); };
    f.cornice.albero.DisableNode(f.cornice.albero.ctlTree, "keyMatriceSvolte");
    EXPECT_TRUE(f.cornice.albero.mousePremuto("keyMatriceSvolte"));
    EXPECT_TRUE(f.cornice.albero.mouseRilasciato("keyMatriceSvolte"));
    EXPECT_EQ(detti, (std::vector<std::string>{"Matrice delle svolte", "Matrice delle svolte"}));
    EXPECT_FALSE(f.cornice.albero.mousePremuto("keyOpzioni"));
    EXPECT_FALSE(f.cornice.albero.mousePremuto(""));
    f.cornice.albero.clic("keyMatriceSvolte");
    EXPECT_EQ(f.nomeCorrente(), "");
}

TEST(NodiDisabilitati, TheColourAloneTellsWhatIsEnabled) {
    Albero albero("ctlTree");
    albero.aggiungi("", "a", "A", "", false);
    clsTVWDisableNode filtro;
    EXPECT_FALSE(filtro.filtra("a"));
    filtro.Attach(albero);
    albero.colore("a", {1, 2, 3});
    EXPECT_TRUE(filtro.filtra("a"));
    filtro.ColoreAbilitato({1, 2, 3});
    EXPECT_FALSE(filtro.filtra("a"));
    albero.colore("a", colori::nero);
    EXPECT_TRUE(filtro.filtra("a"));
    filtro.Detach();
    EXPECT_FALSE(filtro.filtra("a"));
}

TEST(NodiDisabilitati, ASubtreeGoesGreyAndComesBackWhole) {
    ShellFinta f;
    f.nuovo(3);
    Albero& albero = f.cornice.albero.ctlTree;
    albero.seleziona("keyRisultati");
    f.cornice.albero.DisableNode(albero, "keyRisultati");
    EXPECT_EQ(albero.selezionato(), "");
    for (const char* chiave : {"keyRisultati", "keyCodeRitardi_Out", "keyCodeRitardi_Out3", "keyCapacitaUltima_Out"}) {
        EXPECT_EQ(albero.nodo(chiave).ForeColor, (Colore{192, 192, 192})) << chiave;
    }
    EXPECT_EQ(albero.nodo("keyOpzioni").ForeColor, colori::nero);
    f.cornice.albero.EnableNode(albero, "keyRisultati");
    for (const char* chiave : {"keyRisultati", "keyCodeRitardi_Out", "keyCodeRitardi_Out3"}) {
        EXPECT_EQ(albero.nodo(chiave).ForeColor, colori::nero) << chiave;
    }
}

TEST(NodiDisabilitati, ANodeThatIsNotThereIsRecorded) {
    ShellFinta f;
    f.nuovo(3);
    f.cornice.albero.DisableNode(f.cornice.albero.ctlTree, "keyManca");
    ASSERT_EQ(f.messaggi.mostrati.size(), 1U);
    EXPECT_EQ(f.messaggi.mostrati[0].titolo, "KELVO 2014frmTreeView:DisableNode()");
    EXPECT_EQ(f.messaggi.mostrati[0].testo.substr(0, 4), "9 : ");
}

}  // namespace
}  // namespace kelvo::prove::shell
