#include "results/frmCapacitaUltima.h"

#include <filesystem>

#include "base/numeri.h"

#include "scenaRisultati.h"

namespace kelvo::prove {
namespace {

struct ProveCapacitaUltima : ScenaRisultati {
    frmCapacitaUltima finestra{contorno(), servizi()};
    void apriUltima() { apri(finestra, "keyCapacitaUltima_Out"); }
};

TEST_F(ProveCapacitaUltima, OpensWithTheStoredValuesAndCalculatesNothing) {
    ramo(1).CapacitaUltima(400.0);
    ramo(2).CapacitaUltima(800.0);
    apriUltima();
    EXPECT_EQ(finestra.didascalia(), "Risultati: Capacità ultima");
    EXPECT_EQ(finestra.ctlGrid.tabella().righe(), 7);
    EXPECT_EQ(finestra.ctlGrid.righeVisibili, 7);
    EXPECT_EQ(finestra.ctlGrid.testo(1, 1), "400,00");
    EXPECT_EQ(finestra.ctlGrid.testo(6, 1), "50,00%");  // 600 / 1200
    EXPECT_EQ(r().timbro().forma, FormaCalcolo::nessuna);
    EXPECT_EQ(ramo(3).CapacitaUltima(), 0.0);
    EXPECT_FALSE(finestra.cmdCalcola.visibile());
}

TEST_F(ProveCapacitaUltima, CalculatesTheBalanceAndFillsTheGrid) {
    apriUltima();
    EXPECT_EQ(finestra.ctlGrid.testo(6, 1), " - ");
    finestra.ctlToolbar.premi("keyCalcola");
    EXPECT_EQ(r().timbro().forma, FormaCalcolo::bilanciamento);
    EXPECT_EQ(finestra.ctlGrid.testo(2, 1), formatta(ramo(2).CapacitaUltima(), "#0.00"));
    EXPECT_GT(ramo(2).CapacitaUltima(), 0.0);
    EXPECT_EQ(finestra.contenuto().SF(), 600.0F);
    EXPECT_EQ(finestra.ctlGrid.testo(6, 1), formatta(finestra.contenuto().ISR(), "#0.00%"));
    EXPECT_TRUE(messaggi.mostrati.empty());
}

TEST_F(ProveCapacitaUltima, HasItsKeysAndTheReportDoesNothing) {
    const auto& tasti = finestra.ctlToolbar.tasti();
    ASSERT_EQ(tasti.size(), 3U);
    EXPECT_EQ(tasti[0].chiave, "keyCalcola");
    EXPECT_EQ(tasti[0].testo, "Calcola");
    EXPECT_EQ(tasti[1].chiave, "keyAnteprima");
    EXPECT_EQ(tasti[1].testo, "Anteprima");
    EXPECT_EQ(tasti[2].chiave, "keyRelazione");
    EXPECT_EQ(tasti[2].testo, "Relazione");
    EXPECT_FALSE(tasti[2].abilitato);
    EXPECT_EQ(tasti[2].nota, "Questa finestra non ha una relazione");
    apriUltima();
    finestra.ctlToolbar.premi("keyRelazione");
    EXPECT_TRUE(navigazione.chieste.empty());
    EXPECT_TRUE(messaggi.mostrati.empty());
}

TEST_F(ProveCapacitaUltima, TellsHowOldTheCapacitiesAre) {
    apriUltima();
    EXPECT_TRUE(finestra.lblVecchi.visibile());
    EXPECT_EQ(finestra.lblVecchi.testo(), "Le capacità ultime non sono ancora state calcolate. Premere Calcola (F9).");
    finestra.ctlToolbar.premi("keyCalcola");
    EXPECT_FALSE(finestra.lblVecchi.visibile());
    app.configurazione.VEPullman = 9.0F;
    finestra.aggiornaNote();
    EXPECT_FALSE(finestra.lblVecchi.visibile()) << "no coefficient weighs on the balanced state";
    ramo(1).LarghezzaIngresso(9.0F);
    finestra.aggiornaNote();
    EXPECT_EQ(finestra.lblVecchi.testo(),
              "I dati sono cambiati dopo il calcolo: le capacità possono non essere più quelle del progetto. Premere "
              "Calcola (F9).");
    for (const FormaCalcolo forma : {FormaCalcolo::piana, FormaCalcolo::corsiaDestra, FormaCalcolo::bilanciamento}) {
        r().timbra(forma);
        apriUltima();
        EXPECT_FALSE(finestra.lblVecchi.visibile());
    }
    for (const FormaCalcolo forma : {FormaCalcolo::ipotesi, FormaCalcolo::interrotta}) {
        r().timbra(forma);
        apriUltima();
        EXPECT_EQ(finestra.lblVecchi.testo(),
                  "L'ultimo calcolo è di un'ipotesi o si è interrotto: le capacità possono non essere quelle del "
                  "progetto. Premere Calcola (F9).");
    }
}

TEST_F(ProveCapacitaUltima, AFillingThatFailsLeavesTheFiguresTheirTextAndTheirAge) {
    apriUltima();
    finestra.ctlToolbar.premi("keyCalcola");
    const std::string primo = finestra.ctlGrid.testo(1, 1);
    ramo(1).LarghezzaIngresso(9.0F);
    ramo(1).CapacitaUltima(1e39);
    EXPECT_FALSE(gestione.corrente() == nullptr);
    apriUltima();
    ASSERT_FALSE(messaggi.mostrati.empty());
    EXPECT_NE(messaggi.mostrati.back().testo.find("Overflow"), std::string::npos);
    EXPECT_EQ(finestra.ctlGrid.testo(1, 1), primo);
    EXPECT_TRUE(finestra.lblVecchi.visibile());
    finestra.ctlToolbar.premi("keyAnteprima");
    EXPECT_NE(file("Risultati.txt").find(primo), std::string::npos);
}

TEST_F(ProveCapacitaUltima, TellsWhyThereAreNoFlows) {
    apriUltima();
    EXPECT_FALSE(finestra.lblFlussi.visibile());
    for (int i = 1; i <= 3; ++i) {
        ramo(i).theDatiTraffico().FlussoOrario(0.0F);
    }
    const std::string flussi =
        "Tutti i flussi orari sono 0: vengono dai totali della domanda di ogni ingresso (Dati di traffico).";
    apriUltima();
    EXPECT_EQ(finestra.lblFlussi.testo(), flussi);
    for (int i = 1; i <= 3; ++i) {
        for (int j = 1; j <= 3; ++j) {
            r().MatriceSvolte(0.0F, static_cast<std::int16_t>(i), static_cast<std::int16_t>(j));
        }
    }
    apriUltima();
    EXPECT_EQ(finestra.lblFlussi.testo(),
              flussi + " La matrice delle svolte è vuota: nessun flusso circola nell'anello.");
}

TEST_F(ProveCapacitaUltima, WritesItsTextToTheByteForThreeFourAndSevenLegs) {
    for (const char* nome :
         {"Rotatoria_Via_dei_Mulini", "Rotatoria_Tangenziale_est", "Rotatoria_Aurelia_Sette_Strade"}) {
        esempio(nome);
        apriUltima();
        finestra.ctlToolbar.premi("keyCalcola");
        finestra.ctlToolbar.premi("keyAnteprima");
        EXPECT_EQ(file("Risultati.txt"), atteso("cli/attesi/" + std::string{nome} + ".capacita-ultima.txt"));
    }
    EXPECT_EQ(documenti.aperti.size(), 3U);
    EXPECT_EQ(documenti.aperti[0], app.theAmbiente.CartellaLavoro() + "Risultati.txt");
}

TEST_F(ProveCapacitaUltima, AFileThatCannotBeWrittenIsToldUnderTheNameOfAnotherWindow) {
    apriUltima();
    std::filesystem::create_directory(app.theAmbiente.CartellaLavoro() + "Risultati.txt");
    finestra.ctlToolbar.premi("keyAnteprima");
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(messaggi.mostrati[0].titolo, "KELVO 2014frmCapacitaCodeRitardiRamo:Anteprima");
    EXPECT_EQ(messaggi.mostrati[0].testo.rfind("Impossibile scrivere \"", 0), 0U) << messaggi.mostrati[0].testo;
    EXPECT_EQ(messaggi.mostrati[0].icona, Icona::critica);
    EXPECT_TRUE(documenti.aperti.empty());
}

TEST_F(ProveCapacitaUltima, AFaultOfTheFillingIsToldAndTheWindowStays) {
    apriUltima();
    ramo(1).theDatiTraffico().FlussoOrario(3e38F);
    ramo(2).theDatiTraffico().FlussoOrario(3e38F);
    finestra.ctlToolbar.premi("keyCalcola");
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(messaggi.mostrati[0].titolo, "KELVO 2014frmCapacitaUltima:keyCalcola");
}

}  // namespace
}  // namespace kelvo::prove
