#include "results/FinestraRisultati.h"

#include "results/frmCapacitaCodeRitardiRamo.h"
#include "results/frmCapacitaUltima.h"
#include "scenaRisultati.h"

namespace kelvo::prove {
namespace {

/// What the result windows have in common, on two of them.
struct ProveComuni : ScenaRisultati {
    frmCapacitaCodeRitardiRamo ingresso{contorno(), servizi()};
    frmCapacitaUltima ultima{contorno(), servizi()};
    void apriIngresso() { apri(ingresso, "keyCodeRitardi_Out1"); }
};

TEST_F(ProveComuni, WhatIsInForceIsATableThatIsHiddenUntilItIsAskedFor) {
    apriIngresso();
    EXPECT_FALSE(ingresso.ctlInVigore.visibile());
    EXPECT_EQ(ingresso.cmdInVigore.testo(), "In vigore nel calcolo");
    ingresso.cmdInVigore.clicca();
    EXPECT_TRUE(ingresso.ctlInVigore.visibile());
    EXPECT_EQ(ingresso.ctlInVigore.testo(0, 0), "In vigore nel calcolo");
    EXPECT_GT(ingresso.ctlInVigore.tabella().righe(), 7) << "percentile, night and the seven coefficients at least";
    ingresso.ctlToolbar.premi("keyCalcola");
    EXPECT_TRUE(ingresso.ctlInVigore.visibile()) << "a calculation closes nothing";
    ingresso.cmdInVigore.clicca();
    EXPECT_FALSE(ingresso.ctlInVigore.visibile());
}

TEST_F(ProveComuni, CopyAndSaveGoWithTheTableOrChartInView) {
    apriIngresso();
    EXPECT_EQ(ingresso.cmdDati.testo(), "Copia e salva");
    const std::vector<std::string> attesi{"menu_ctlGrid",      "menu_ctlChartCapacita", "menu_ctlChartSaturazione",
                                          "menu_ctlChartCode", "menu_ctlChartRitardi",  "menu_ctlChartLOS"};
    ingresso.cmdInVigore.clicca();  // a table too, and not the one that is meant
    for (std::size_t i = 0; i < attesi.size(); ++i) {
        ingresso.ctlTab.scegli(static_cast<int>(i));
        ASSERT_NE(ingresso.menuDati(), nullptr);
        EXPECT_EQ(ingresso.menuDati()->nome(), attesi[i]);
    }
    EXPECT_EQ(ultima.menuDati()->nome(), "menu_ctlGrid");
}

TEST_F(ProveComuni, TheTablesMenuBeginsWithTheLegendAndCopiesBehindIt) {
    apriIngresso();
    MenuChiavi* menu = ingresso.ctlGrid.menu();
    ASSERT_NE(menu, nullptr);
    const auto voci = menu->figli(menu->figli({}).front()->chiave);
    ASSERT_GT(voci.size(), 3U);
    EXPECT_EQ(voci[0]->testo, "Legenda valori e colori");
    EXPECT_EQ(voci[1]->testo, "-");
    EXPECT_EQ(voci[2]->testo, "Copia");
    menu->premi(voci[0]->chiave);
    EXPECT_EQ(collegate.passi, (std::vector<std::string>{"affianca frmLEGENDA"}));
}

TEST_F(ProveComuni, TheLegendGoesWhenAChartComesIntoView) {
    apriIngresso();
    ingresso.ctlGrid.tastoDestro(1, 1);
    ingresso.ctlTab.scegli(3);
    EXPECT_EQ(collegate.passi, (std::vector<std::string>{"affianca frmLEGENDA", "chiudi frmLEGENDA"}));
    ingresso.ctlTab.scegli(0);
    EXPECT_EQ(collegate.passi.size(), 2U) << "it does not come back by itself";
}

TEST_F(ProveComuni, TheButtonInTheMiddleGivesWayToTheFiguresAndHandsThemTheKeyboard) {
    apriIngresso();
    ASSERT_TRUE(ingresso.fuocoSu(ingresso.cmdCalcola));
    ingresso.cmdCalcola.premi();
    EXPECT_FALSE(ingresso.cmdCalcola.visibile());
    EXPECT_EQ(ingresso.fuoco(), &ingresso.ctlGrid);
}

TEST_F(ProveComuni, ACalculationByTheKeyLeavesTheKeyboardWhereItIs) {
    apriIngresso();
    ASSERT_TRUE(ingresso.fuocoSu(ingresso.chkValori));
    ingresso.ctlToolbar.premi("keyCalcola");
    EXPECT_EQ(ingresso.fuoco(), &ingresso.chkValori);
}

TEST_F(ProveComuni, WindowsWithAHelpPaneBeginWithTheirPage) {
    EXPECT_EQ(ultima.ctlHelp.pagina(), "CapacitaUltima.htm");
    apriIngresso();
    ingresso.ctlToolbar.premi("keyCalcola");
    ingresso.cmdMARKER.clicca();
    ingresso.ctlToolbar2.premi("Aggiuntivi");
    frmRAMO_AGGIUNTIVA& a = ingresso.aggiuntiva;
    EXPECT_EQ(a.ctlHelp.pagina(), "DatiRiassuntivi.htm");
    const std::vector<std::string> pagine{"SogliaFlusso.htm", "SogliaCapacita.htm", "SogliaSaturazione.htm",
                                          "SogliaCoda.htm",   "SogliaRitardo.htm",  "SogliaLivello.htm"};
    for (std::size_t i = 0; i < pagine.size(); ++i) {
        EXPECT_EQ(a.soglie[i].minimo.paginaAiuto, pagine[i]);
        EXPECT_EQ(a.soglie[i].massimo.paginaAiuto, pagine[i]);
    }
    a.soglie[4].spunta.clicca();
    ASSERT_TRUE(a.fuocoSu(a.soglie[4].minimo));
    EXPECT_EQ(a.ctlHelp.pagina(), "SogliaRitardo.htm");
    a.scordaFuoco();
    apri(ingresso, "keyCodeRitardi_Out1");
}

}  // namespace
}  // namespace kelvo::prove
