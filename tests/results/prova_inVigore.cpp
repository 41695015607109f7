#include "results/inVigore.h"

#include <gtest/gtest.h>

#include "app/nuovoProgetto.h"
#include "base/date.h"
#include "calc/modCalcolo.h"
#include "comune/finti.h"
#include "comune/guasti.h"

namespace kelvo::prove {
namespace {

struct InVigore : testing::Test, AppFinta {
    InVigore() { creaProgetto(app, 3); }
    Rotonda& r() { return app.theRotonda(); }
    Ramo& ramo(std::int16_t i) { return r().Ramo(i); }
};

TEST_F(InVigore, ListsWhatWeighsOnAFigureOfANewProject) {
    const std::vector<VoceInVigore> attese{{"Percentile della coda", "95,00 %"},
                                           {"Condizioni notturne", "non in vigore"},
                                           {"Ramo A", "condizioni esterne 0,00 %, senza attraversamento pedonale"},
                                           {"Ramo B", "condizioni esterne 0,00 %, senza attraversamento pedonale"},
                                           {"Ramo C", "condizioni esterne 0,00 %, senza attraversamento pedonale"},
                                           {"Veicoli equivalenti, autoarticolati", "2,50"},
                                           {"Veicoli equivalenti, autotreni", "2,00"},
                                           {"Veicoli equivalenti, pullman", "1,80"},
                                           {"Veicoli equivalenti, camper", "1,40"},
                                           {"Veicoli equivalenti, roulotte", "1,20"},
                                           {"Veicoli equivalenti, motocicli", "0,80"},
                                           {"Veicoli equivalenti, autovetture", "1,00"}};
    EXPECT_EQ(inVigore(app), attese);
    EXPECT_EQ(rigaInVigore(app),
              "Percentile 95,00 % · notte non in vigore · nessuna riduzione dei rami · veicoli equivalenti 2,50 2,00 "
              "1,80 1,40 1,20 0,80 1,00");
}

TEST_F(InVigore, StandsInATableOfNamesAndValues) {
    const Tabella tabella = tabellaInVigore({{"Percentile della coda", "95,00 %"}, {"Ramo A", "nessuna"}});
    ASSERT_EQ(tabella.righe(), 3);
    ASSERT_EQ(tabella.colonne(), 2);
    EXPECT_EQ(tabella.testo(0, 0), "In vigore nel calcolo");
    EXPECT_EQ(tabella.testo(0, 1), "Valore");
    EXPECT_EQ(tabella.testo(2, 0), "Ramo A");
    EXPECT_EQ(tabella.testo(1, 1), "95,00 %");
    EXPECT_EQ(tabella.cella(0, 1).sfondo, colori::intestazione);
    EXPECT_EQ(tabella.cella(0, 1).inchiostro, colori::bianco);
    EXPECT_EQ(tabella.cella(2, 0).sfondo, colori::nomeIngresso);
    EXPECT_EQ(tabella.cella(2, 1).sfondo, colori::dati);
    EXPECT_EQ(tabella.cella(2, 1).inchiostro, colori::nero);
}

TEST_F(InVigore, TellsWhatCountsWhateverIsTicked) {
    r().ValorePercentile(90.5F);
    r().CondizioniNotturne(true);
    app.theAmbiente.PercentualeNotturna(20);
    ramo(2).theAnalisiMarginale().CondizioniEsterne(-5.25);  // counts without its tick
    ramo(2).theAnalisiMarginale().AttraversamentoPedonale(8.0);
    ramo(3).AttraversamentoPedonale(true);
    ramo(3).theAnalisiMarginale().AttraversamentoPedonale(10.0);
    ramo(3).theAnalisiMarginale().CondizioniEsterne(2.0);
    const std::vector<VoceInVigore> voci = inVigore(app);
    EXPECT_EQ(voci[0].valore, "90,50 %");
    EXPECT_EQ(voci[1].valore, "20 %");
    EXPECT_EQ(voci[3].valore, "condizioni esterne -5,25 %, senza attraversamento pedonale");
    EXPECT_EQ(voci[4].valore, "condizioni esterne 2,00 %, pedoni 10,00 %");
    EXPECT_EQ(rigaInVigore(app),
              "Percentile 90,50 % · notte 20 % · riduzioni: Ramo B (esterne -5,25 %); Ramo C (esterne 2,00 %, pedoni "
              "10,00 %) · veicoli equivalenti 2,50 2,00 1,80 1,40 1,20 0,80 1,00");
}

TEST_F(InVigore, WarnsOfNightConditionsWithoutAnIncidence) {
    EXPECT_EQ(avvisoNotte(app), "");
    r().CondizioniNotturne(true);
    EXPECT_EQ(avvisoNotte(app),
              "Le condizioni notturne sono attive con incidenza 0: la capacità non viene ridotta (Opzioni).");
    app.theAmbiente.PercentualeNotturna(1);
    EXPECT_EQ(avvisoNotte(app), "");
    EXPECT_EQ(inVigore(app)[1].valore, "1 %");
}

/// A project with a turning matrix and demand in all legs, and no calculation.
struct NotaFlussi : InVigore {
    NotaFlussi() {
        r().MatriceSvolte(10.0F, 1, 2);
        for (std::int16_t i = 1; i <= 3; ++i) {
            ramo(i).theDatiTraffico().FlussoTempo2(5.0F);
            ramo(i).theDatiTraffico().FlussoSegmento(50.0F, 0, 0);
        }
    }
    void perOgni(const std::function<void(Ramo&)>& cosa) {
        for (std::int16_t i = 1; i <= 3; ++i) {
            cosa(ramo(i));
        }
    }
};

TEST_F(NotaFlussi, IsEmptyAsSoonAsOneFlowIsNotZero) {
    ramo(3).theDatiTraffico().SetIterazione(4, {0.01F, 1.0F, 1.0F, 1.0F, 1.0F});
    EXPECT_EQ(notaFlussi(app), "");
    EXPECT_EQ(notaFlussi(app, 3), "");
    EXPECT_NE(notaFlussi(app, 2), "");
    EXPECT_EQ(numeroGuasto([&] { notaFlussi(app, 4); }), 9);
}

TEST_F(NotaFlussi, NamesTheAnalysisThatHasNoFlows) {
    r().TipoAnalisi(0);
    EXPECT_EQ(notaFlussi(app), "Tutti i flussi sono 0: l'analisi è di sola saturazione (Opzioni).");
}

TEST_F(NotaFlussi, NamesAWindowWithoutSegments) {
    perOgni([](Ramo& ramo) { ramo.theDatiTraffico().NumSegmentiTempo(0); });
    EXPECT_EQ(notaFlussi(app),
              "Tutti i flussi sono 0: la finestra di modellazione non ha segmenti di tempo (Tempi di modellazione).");
}

TEST_F(NotaFlussi, NamesAMissingDemandOfTheKindOfAnalysisAlone) {
    perOgni([](Ramo& ramo) { ramo.theDatiTraffico().FlussoTempo2(0.0F); });
    EXPECT_EQ(notaFlussi(app), "Tutti i flussi sono 0: non c'è domanda di traffico (Dati di traffico).");
    r().TipoAnalisi(2);
    EXPECT_EQ(notaFlussi(app),
              "Tutti i flussi sono 0: il calcolo con questi dati non è stato eseguito o non è riuscito.");
    perOgni([](Ramo& ramo) { ramo.theDatiTraffico().FlussoSegmento(0.0F, 0, 0); });
    EXPECT_EQ(notaFlussi(app), "Tutti i flussi sono 0: non c'è domanda di traffico (Dati di traffico).");
}

TEST_F(NotaFlussi, OneEntryIsToldByItself) {
    ramo(2).theDatiTraffico().FlussoTempo2(0.0F);
    EXPECT_EQ(notaFlussi(app, 2),
              "Tutti i flussi dell'ingresso sono 0: non c'è domanda di traffico (Dati di traffico).");
    EXPECT_EQ(notaFlussi(app),
              "Tutti i flussi sono 0: il calcolo con questi dati non è stato eseguito o non è riuscito.");
}

TEST_F(NotaFlussi, NamesAnEmptyComposition) {
    const std::string vuota =
        "Tutti i flussi sono 0: la composizione del traffico è vuota (Composizione del traffico).";
    perOgni([](Ramo& ramo) { ramo.theComposizioneTraffico().Autovetture(0.0F); });
    EXPECT_EQ(notaFlussi(app), vuota);
    ramo(1).theComposizioneTraffico().Camper(1.0F);
    EXPECT_NE(notaFlussi(app), vuota);
    EXPECT_EQ(notaFlussi(app, 2),
              "Tutti i flussi dell'ingresso sono 0: la composizione del traffico è vuota (Composizione del traffico).");
    r().TipoFlusso(1);
    EXPECT_EQ(notaFlussi(app), vuota);
    ramo(1).theComposizioneTraffico().CategoriaSegmento(3.0F, 0, 0);
    EXPECT_NE(notaFlussi(app), vuota);
}

TEST_F(NotaFlussi, NamesAnUnknownCompositionAndCoefficientsOfZero) {
    r().TipoFlusso(2);
    EXPECT_EQ(notaFlussi(app),
              "Tutti i flussi sono 0: la composizione del traffico scelta non è fra quelle previste (Opzioni).");
    r().TipoFlusso(0);
    app.configurazione.coefficienti({});
    EXPECT_EQ(notaFlussi(app), "Tutti i flussi sono 0: i coefficienti dei veicoli equivalenti sono tutti 0 (Opzioni).");
}

TEST_F(NotaFlussi, LegsWithoutFlowsForDifferentReasonsAreToldTogether) {
    ramo(1).theDatiTraffico().FlussoTempo2(0.0F);
    ramo(2).theComposizioneTraffico().Autovetture(0.0F);
    ramo(3).theComposizioneTraffico().Autovetture(0.0F);
    EXPECT_EQ(notaFlussi(app),
              "Tutti i flussi sono 0: in nessun ingresso ci sono insieme domanda e composizione del traffico.");
    EXPECT_EQ(notaFlussi(app, 1),
              "Tutti i flussi dell'ingresso sono 0: non c'è domanda di traffico (Dati di traffico).");
    ramo(1).theComposizioneTraffico().Autovetture(0.0F);  // the demand of leg 1 is missing before its composition
    EXPECT_EQ(notaFlussi(app),
              "Tutti i flussi sono 0: in nessun ingresso ci sono insieme domanda e composizione del traffico.");
    r().TipoFlusso(2);
    EXPECT_EQ(notaFlussi(app),
              "Tutti i flussi sono 0: la composizione del traffico scelta non è fra quelle previste (Opzioni).");
}

TEST_F(NotaFlussi, CoefficientsCountForTheClassesThatAreThere) {
    const std::string presenti = "i coefficienti dei veicoli equivalenti delle classi presenti sono 0 (Opzioni).";
    CoefficientiVeicoli senzaAutovetture{};
    senzaAutovetture.fill(2.0F);
    senzaAutovetture.back() = 0.0F;  // cars are all there is in a new project
    app.configurazione.coefficienti(senzaAutovetture);
    EXPECT_EQ(notaFlussi(app), "Tutti i flussi sono 0: " + presenti);
    ramo(1).theDatiTraffico().FlussoTempo2(0.0F);
    EXPECT_EQ(notaFlussi(app),
              "Tutti i flussi sono 0: in nessun ingresso ci sono insieme domanda e composizione del traffico con "
              "coefficienti diversi da 0.");
    ramo(3).theComposizioneTraffico().Camper(1.0F);
    EXPECT_EQ(notaFlussi(app),
              "Tutti i flussi sono 0: il calcolo con questi dati non è stato eseguito o non è riuscito.");
    EXPECT_EQ(notaFlussi(app, 2), "Tutti i flussi dell'ingresso sono 0: " + presenti);
    r().TipoFlusso(1);
    ramo(2).theComposizioneTraffico().CategoriaSegmento(3.0F, 1, 6);
    EXPECT_EQ(notaFlussi(app, 2), "Tutti i flussi dell'ingresso sono 0: " + presenti);
}

/// The same with equal turns, calculated.
struct NotaFlussiCalcolati : NotaFlussi {
    NotaFlussiCalcolati() {
        for (std::int16_t i = 1; i <= 3; ++i) {
            for (std::int16_t j = 1; j <= 3; ++j) {
                r().MatriceSvolte(i == j ? 0.0F : 10.0F, i, j);
            }
        }
    }
    void calcola() {
        modCalcolo motore(app);
        const std::string flusso = r().TipoFlusso() == 0 ? "0" : "1";
        if (r().TipoAnalisi() == 1) {
            motore.Calcola_Tempo_Flusso(flusso);
        } else {
            motore.Calcola_Tempo_Flusso_ST(flusso);
        }
        ASSERT_TRUE(motore.riuscita());
        ASSERT_TRUE(app.risultatiAttuali());
    }
};

TEST_F(NotaFlussiCalcolati, TellsACurveThatFallsOutsideTheSegments) {
    perOgni([](Ramo& ramo) {  // the window ends at 09:00
        ramo.theDatiTraffico().Tempo1(oraDelGiorno(12, 0));
        ramo.theDatiTraffico().Tempo2(oraDelGiorno(12, 30));
        ramo.theDatiTraffico().Tempo3(oraDelGiorno(13, 0));
    });
    calcola();
    EXPECT_EQ(notaFlussi(app), "Tutti i flussi sono 0: la curva di domanda non cade in alcun segmento di tempo.");
    r().TipoFlusso(1);
    perOgni([](Ramo& ramo) { ramo.theComposizioneTraffico().CategoriaSegmento(3.0F, 0, 6); });
    calcola();
    EXPECT_EQ(notaFlussi(app),
              "Tutti i flussi sono 0: la curva di domanda non cade in alcun segmento di tempo con veicoli.");
}

TEST_F(NotaFlussiCalcolati, TellsCountsOutsideTheSegmentsThatHaveAResult) {
    r().TipoAnalisi(2);
    r().TempoFinale(oraDelGiorno(8, 30));  // two segments have a result, the legs keep their four rows
    perOgni([](Ramo& ramo) {
        ramo.theDatiTraffico().FlussoSegmento(0.0F, 0, 0);
        ramo.theDatiTraffico().FlussoSegmento(50.0F, 3, 0);
    });
    const std::string fuori =
        "Tutti i flussi sono 0: i veicoli contati cadono fuori dai segmenti che hanno un risultato.";
    calcola();
    EXPECT_EQ(notaFlussi(app), fuori);
    r().TipoFlusso(1);
    ramo(2).theComposizioneTraffico().CategoriaSegmento(3.0F, 3, 6);
    calcola();
    EXPECT_EQ(notaFlussi(app), fuori);
}

TEST_F(NotaFlussiCalcolati, TellsCountsWithoutACompositionInTheirSegment) {
    r().TipoAnalisi(2);
    r().TipoFlusso(1);
    perOgni([](Ramo& ramo) { ramo.theComposizioneTraffico().CategoriaSegmento(3.0F, 1, 6); });  // counted in the first
    calcola();
    EXPECT_EQ(notaFlussi(app),
              "Tutti i flussi sono 0: i veicoli contati non hanno una composizione nel loro segmento di tempo.");
}

TEST_F(NotaFlussi, TellsAnEmptyMatrixWhateverTheFlows) {
    const std::string matrice = "La matrice delle svolte è vuota: nessun flusso circola nell'anello.";
    EXPECT_FALSE(matriceVuota(r()));
    r().MatriceSvolte(0.0F, 1, 2);
    EXPECT_TRUE(matriceVuota(r()));
    r().TipoAnalisi(0);
    EXPECT_EQ(notaFlussi(app), "Tutti i flussi sono 0: l'analisi è di sola saturazione (Opzioni). " + matrice);
    ramo(1).theDatiTraffico().SetIterazione(1, {1.0F, 1.0F, 1.0F, 1.0F, 1.0F});
    EXPECT_EQ(notaFlussi(app), matrice);
}

}  // namespace
}  // namespace kelvo::prove
