// The tabs of the window of all entries beyond its table: peak hours and map of the levels.

#include <algorithm>
#include <filesystem>

#include "results/frmCapacitaCodeRitardi.h"
#include "scenaRisultati.h"
#include "shell/servizi/MenuChiavi.h"
#include "shell/servizi/esporta.h"

namespace kelvo::prove {
namespace {

struct SchedeVerifiche : ScenaRisultati {
    frmCapacitaCodeRitardi finestra{contorno(), servizi()};
    /// Records written by hand: an analysis that calculates nothing leaves them.
    void scriviRecord() {
        r().TipoAnalisi(0);
        // An hour in quarters: flow 40 / 4 * 60 = 600, capacity 800, delay 12; the last quarter is past 0,85.
        for (std::int16_t s = 1; s <= 4; ++s) {
            ramo(2).theDatiTraffico().SetIterazione(s, {10.0F, 800.0F, s == 4 ? 0.9F : 0.7F, 1.0F, 12.0F});
        }
    }
    void apriVerifiche() { apri(finestra, "keyCodeRitardi_Out"); }
    void calcola() { finestra.ctlToolbar.premi("keyCalcola"); }
    void calcolata() {
        scriviRecord();
        apriVerifiche();
        calcola();
    }
};

TEST_F(SchedeVerifiche, TheFirstTabHasTheTableAndNothingElse) {
    apriVerifiche();
    const auto& schede = finestra.ctlTab.schede();
    ASSERT_EQ(schede.size(), 3U);
    EXPECT_EQ(schede[0].titolo, "Risultati");
    EXPECT_EQ(schede[1].titolo, "Sintesi nodo");
    EXPECT_EQ(schede[2].titolo, "Mappa dei livelli");
    EXPECT_EQ(finestra.ctlTab.corrente(), 0);
    EXPECT_TRUE(finestra.ctlGrid.visibile());
    EXPECT_TRUE(finestra.Cmd_EXCEL.visibile());
    EXPECT_FALSE(finestra.ctlSintesi.visibile());
    EXPECT_FALSE(finestra.ctlMappa.visibile());
    EXPECT_EQ(finestra.ctlGrid.tabella().colonne(), 7);
}

TEST_F(SchedeVerifiche, EachTabShowsItsOwnControls) {
    calcolata();
    finestra.ctlTab.scegli(1);
    EXPECT_FALSE(finestra.ctlGrid.visibile());
    EXPECT_FALSE(finestra.Cmd_EXCEL.visibile());
    EXPECT_TRUE(finestra.ctlSintesi.visibile());
    EXPECT_TRUE(finestra.lblSaturazione.visibile());
    EXPECT_TRUE(finestra.cmdAnteprimaSintesi.visibile());
    EXPECT_FALSE(finestra.ctlMappa.visibile());
    finestra.ctlTab.scegli(2);
    EXPECT_FALSE(finestra.ctlSintesi.visibile());
    EXPECT_FALSE(finestra.lblSaturazione.visibile());
    EXPECT_FALSE(finestra.cmdAnteprimaSintesi.visibile());
    EXPECT_TRUE(finestra.ctlMappa.visibile());
    EXPECT_TRUE(finestra.lblCella.visibile());
}

TEST_F(SchedeVerifiche, TheyAreEmptyBeforeACalculation) {
    apriVerifiche();
    EXPECT_EQ(finestra.ctlSintesi.tabella().righe(), 5);
    EXPECT_EQ(finestra.ctlSintesi.testo(1, 2), "");
    EXPECT_EQ(finestra.ctlMappa.tabella().colonne(), 5);
    EXPECT_EQ(finestra.ctlMappa.testo(1, 1), "");
    EXPECT_EQ(finestra.lblOra.testo(), "");
    EXPECT_EQ(finestra.lblPeggiore.testo(), "");
    EXPECT_FALSE(finestra.cmdAnteprimaSintesi.abilitato());
}

TEST_F(SchedeVerifiche, CalcolaFillsThem) {
    calcolata();
    EXPECT_EQ(finestra.ctlSintesi.testo(2, 1), "08:00 - 09:00");
    EXPECT_EQ(finestra.ctlSintesi.testo(2, 2), "600,00");
    EXPECT_EQ(finestra.ctlSintesi.testo(2, 4), "0,250");
    EXPECT_EQ(finestra.ctlSintesi.testo(2, 9), "B");
    EXPECT_EQ(finestra.ctlSintesi.testo(4, 0), "Nodo");
    EXPECT_EQ(finestra.lblSaturazione.testo(), "Saturazione oltre 0,85: Ramo B 0,900 (08:45 - 09:00).");
    EXPECT_EQ(finestra.lblSaturazione.tag(), "ROSSO");
    EXPECT_EQ(finestra.lblPeggiore.testo(), "Ingresso peggiore: Ramo B, saturazione 0,900 nel segmento 08:45 - 09:00.");
    EXPECT_NE(finestra.lblOra.testo().find("4 segmenti consecutivi"), std::string::npos);
    EXPECT_EQ(finestra.ctlMappa.testo(2, 4), "B");
    EXPECT_EQ(finestra.ctlMappa.testo(1, 4), "-");
    EXPECT_EQ(finestra.ore(), (std::vector<OraMappa>{{0.0, "08:00"}, {4.0, "09:00"}}));
}

TEST_F(SchedeVerifiche, WithoutAHighSaturationNothingWarns) {
    apriVerifiche();
    calcola();
    finestra.ctlTab.scegli(1);
    EXPECT_EQ(finestra.lblSaturazione.testo(), "");
    EXPECT_FALSE(finestra.lblSaturazione.visibile());
    EXPECT_NE(finestra.lblPeggiore.testo(), "");
}

TEST_F(SchedeVerifiche, TheCursorOfTheMapTellsItsCellInWords) {
    scriviRecord();
    apriVerifiche();
    EXPECT_EQ(finestra.lblCella.testo(), "Il livello di servizio di ogni ingresso, segmento per segmento.");
    calcola();
    finestra.ctlTab.scegli(2);
    finestra.ctlMappa.clic(2, 4);
    EXPECT_EQ(finestra.lblCella.testo(), "Ramo B, 08:45 - 09:00: L.O.S. B, ritardo 12,0 s/veic, saturazione 0,900");
    finestra.ctlMappa.premiTasto(Griglia::Tasto::sinistra);
    EXPECT_EQ(finestra.lblCella.testo(), "Ramo B, 08:30 - 08:45: L.O.S. B, ritardo 12,0 s/veic, saturazione 0,700");
    finestra.ctlMappa.premiTasto(Griglia::Tasto::giu);
    EXPECT_EQ(finestra.lblCella.testo(), "Ramo C, 08:30 - 08:45: L.O.S. -, ritardo 0,0 s/veic, saturazione 0,000");
}

TEST_F(SchedeVerifiche, ThePreviewKeyWritesTheTableFromAnyTab) {
    calcolata();
    finestra.ctlToolbar.premi("keyAnteprima");
    const std::string prima = file("Risultati.txt");
    for (const int scheda : {1, 2}) {
        finestra.ctlTab.scegli(scheda);
        finestra.ctlToolbar.premi("keyAnteprima");
        EXPECT_EQ(file("Risultati.txt"), prima);
    }
    EXPECT_EQ(file("Sintesi.txt"), "");
    EXPECT_EQ(documenti.aperti.size(), 3U);
}

TEST_F(SchedeVerifiche, ThePeakHoursHaveAPreviewOfTheirOwn) {
    calcolata();
    finestra.ctlTab.scegli(1);
    finestra.cmdAnteprimaSintesi.premi();
    const std::string testo = file("Sintesi.txt");
    EXPECT_EQ(testo.rfind("Risultati: Sintesi nodo\r\n\r\n", 0), 0U);
    EXPECT_NE(testo.find("\r\nSaturazione oltre 0,85: Ramo B 0,900 (08:45 - 09:00).\r\n"), std::string::npos);
    EXPECT_NE(testo.find("Output creato con Kelvo V"), std::string::npos);
    ASSERT_EQ(documenti.aperti.size(), 1U);
    EXPECT_EQ(file("Risultati.txt"), "");
}

TEST_F(SchedeVerifiche, TheWordsOfThePreviewAreThoseOfItsFigures) {
    calcolata();
    r().TempoIniziale(oraDelGiorno(6, 0));
    ramo(2).Descrizione("Altrove");
    finestra.ctlTab.scegli(1);
    finestra.cmdAnteprimaSintesi.premi();
    EXPECT_NE(file("Sintesi.txt").find("Ramo B 0,900 (08:45 - 09:00)"), std::string::npos);
}

TEST_F(SchedeVerifiche, APreviewThatCannotBeWrittenIsToldInTheStatusBar) {
    calcolata();
    finestra.ctlTab.scegli(1);
    std::filesystem::create_directory(app.theAmbiente.CartellaLavoro() + "Sintesi.txt");
    finestra.cmdAnteprimaSintesi.premi();
    EXPECT_EQ(cornice.avvisato.rfind("Impossibile scrivere", 0), 0U);
    EXPECT_TRUE(messaggi.mostrati.empty());
}

TEST_F(SchedeVerifiche, TheyAreCopiedAndSavedAsEveryTable) {
    AppuntiFinti appunti;
    app.appunti = &appunti;
    calcolata();
    for (Griglia* griglia : {&finestra.ctlSintesi, &finestra.ctlMappa}) {
        ASSERT_TRUE(griglia->menuCompleto);
        MenuChiavi& menu = griglia->menuCompleto();
        EXPECT_TRUE(menu.contiene("mnuXDatiCSV"));
        menu.premi("mnuXDatiCopiaIntestazioni");
        EXPECT_NE(appunti.contenuto, "");
    }
    EXPECT_EQ(csvDiTabella(finestra.ctlMappa),
              "\xEF\xBB\xBF;08:00 - 08:15;08:15 - 08:30;08:30 - 08:45;08:45 - 09:00\r\n"
              "Ramo A;-;-;-;-\r\nRamo B;B;B;B;B\r\nRamo C;-;-;-;-\r\n");
    EXPECT_EQ(csvDiTabella(finestra.ctlSintesi)
                      .find("Ramo B;08:00 - 09:00;600,00;800,00;0,250;200,00;0,900;"
                            "08:45 - 09:00;12,0;B\r\n") != std::string::npos,
              true);
}

TEST_F(SchedeVerifiche, AFaultOfTheirsLeavesTheTable) {
    calcolata();
    for (std::int16_t s = 1; s <= 4; ++s) {
        ramo(2).theDatiTraffico().SetIterazione(s, {3e38F, 800.0F, 0.7F, 1.0F, 12.0F});
    }
    calcola();
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(finestra.ctlGrid.testo(3, 2), "800,00");
    EXPECT_EQ(finestra.ctlSintesi.testo(2, 2), "") << "no figure of the calculation before";
    EXPECT_EQ(finestra.ctlMappa.testo(2, 1), "");
    EXPECT_FALSE(finestra.cmdAnteprimaSintesi.abilitato());
    EXPECT_TRUE(finestra.conFigure());
}

TEST_F(SchedeVerifiche, WhyTheSpreadsheetIsClosedStandsBesideItsButton) {
    apriVerifiche();
    EXPECT_EQ(finestra.lblExcel.testo(), "Disponibile dopo Calcola");
    calcola();
    EXPECT_EQ(finestra.lblExcel.testo(), "");
}

TEST_F(SchedeVerifiche, TheExampleOfThreeLegsHasItsPeakHours) {
    esempio("Rotatoria_Via_dei_Mulini");
    apriVerifiche();
    calcola();
    finestra.ctlTab.scegli(1);
    finestra.cmdAnteprimaSintesi.premi();
    EXPECT_EQ(file("Sintesi.txt"), atteso("cli/attesi/Rotatoria_Via_dei_Mulini.sintesi.txt"));
}

}  // namespace
}  // namespace kelvo::prove
