// The rules on demand, turning matrix, composition and coefficients.

#include <cmath>

#include "scenaControllo.h"

namespace kelvo::prove {
namespace {

const std::string nullo =
    "R Dati di traffico:Non è stata defininita una curva tempo flusso valida per l'ingresso Est, valori nulli";
const std::string nullaLaMatrice =
    "R Matrice delle svolte:Non è stata defininita nessuna Matrice di Origine-Destinazione, valori nulli";
const std::string percentualiErrate = "R Matrice delle svolte:Attenzione valori espressi in %, somme non corrette";

std::string destra(const std::string& quota, const std::string& nome = "Est") {
    return "Y Matrice delle svolte:Attenzione. Più del " + quota + "% dei veicoli entranti da " + nome +
           " eseguono la manovra di svolta a destra .Verificare possibilità di inserimento corsia preferenziale di "
           "svolta.";
}

struct RegoleTraffico : ScenaControllo {
    Testi conFlusso(float q, float v) {
        ramo(2).SemiLarghezza(v);
        ramo(2).theDatiTraffico().FlussoOrario(q);
        return trova();
    }
    static std::string unaCorsia(const char* limite, const char* v) {
        return std::string{"R Dati di traffico:Flusso totale entrante ingresso Est > di "} + limite +
               " veic/h. verificare. Una sola corsia di ingresso (" + v + "m)";
    }
    static std::string eccessivo(const char* limite) {
        return std::string{"R Dati di traffico:Flusso totale entrante ingresso Est > di "} + limite +
               " veic/h. verificare. Attenzione carico di traffico eccessivo";
    }
};

TEST_F(RegoleTraffico, ALegWithoutVehiclesHasNoDemand) {
    ramo(2).theDatiTraffico().FlussoTotale(1.0F);
    riga(2, 0.0F, 1.0F, 0.0F);
    EXPECT_EQ(trova(), Testi{});
    ramo(2).theDatiTraffico().FlussoTotale(std::nextafter(1.0F, 0.0F));
    ASSERT_FALSE(trova().empty());
    EXPECT_EQ(trova().front(), nullo);
    EXPECT_EQ(meta(), (Meta{"keyDatiTraffico2", "txtFlussoTempo1", 2}));
}

TEST_F(RegoleTraffico, NoDemandPassesOverTheFlow) {
    ramo(2).theDatiTraffico().FlussoTotale(0.0F);
    ramo(2).theDatiTraffico().FlussoOrario(2000.0F);
    riga(2, 0.0F, 0.0F, 0.0F);
    EXPECT_EQ(trova(), Testi{nullo});
}

TEST_F(RegoleTraffico, FromNineteenHundredOnOneLaneOrTheLoadIsTold) {
    EXPECT_EQ(conFlusso(1899.9F, 3.5F), Testi{});
    EXPECT_EQ(conFlusso(std::nextafter(1900.0F, 0.0F), 3.5F), Testi{});
    EXPECT_EQ(conFlusso(1900.0F, 3.5F), Testi{unaCorsia("1900", "3,5")});
    EXPECT_EQ(meta(), (Meta{"keyDatiTraffico2", "txtFlussoTempo2", 2}));
    EXPECT_EQ(conFlusso(1900.0F, std::nextafter(3.5F, 4.0F)), Testi{eccessivo("1900")});
    EXPECT_EQ(conFlusso(3800.0F, 3.25F), Testi{unaCorsia("1900", "3,25")});
    EXPECT_EQ(conFlusso(3800.0F, 8.0F), Testi{eccessivo("1900")});
}

TEST_F(RegoleTraffico, BetweenThirtyEightHundredAndOneMoreNothingIsTold) {
    EXPECT_EQ(conFlusso(std::nextafter(3800.0F, 4000.0F), 3.0F), Testi{});
    EXPECT_EQ(conFlusso(3800.5F, 8.0F), Testi{});
    EXPECT_EQ(conFlusso(3801.0F, 3.0F), Testi{});
    EXPECT_EQ(conFlusso(3801.0F, 7.0F), Testi{});
    EXPECT_EQ(conFlusso(std::nextafter(3801.0F, 4000.0F), 3.0F), Testi{unaCorsia("3800", "3")});
}

TEST_F(RegoleTraffico, AboveThatSevenMetresPartOneLaneFromMore) {
    EXPECT_EQ(conFlusso(4000.0F, 3.75F), Testi{unaCorsia("3800", "3,75")});
    EXPECT_EQ(conFlusso(4000.0F, 6.9F), Testi{unaCorsia("3800", "6,9")});
    EXPECT_EQ(conFlusso(4000.0F, std::nextafter(7.0F, 0.0F)), Testi{unaCorsia("3800", "7")});
    EXPECT_EQ(conFlusso(4000.0F, 7.0F), Testi{eccessivo("3800")});
}

TEST_F(RegoleTraffico, CountsHaveTheSameRulesAndLeadToTheirTable) {
    rotonda().TipoAnalisi(2);
    EXPECT_EQ(conFlusso(1900.0F, 3.5F), Testi{unaCorsia("1900", "3,5")});
    EXPECT_EQ(meta(), (Meta{"keyDatiTraffico2", "ctlGrid", 2}));
    errori.svuota();
    errori.INPUT_Dati_TrafficoST();
    EXPECT_EQ(errori.ctlTreeAnalizzatore.riscontri.size(), 1U);
}

TEST_F(RegoleTraffico, AStudyOfTheSaturationAloneLeadsToItsChoice) {
    rotonda().TipoAnalisi(0);
    ramo(2).theDatiTraffico().FlussoTotale(0.0F);
    riga(2, 0.0F, 0.0F, 0.0F);
    EXPECT_EQ(trova(), Testi{nullo});
    EXPECT_EQ(meta(), (Meta{"keyOpzioni", "grpTipoAnalisi", 2}));
}

using RegoleMatrice = ScenaControllo;

TEST_F(RegoleMatrice, RightTurnsAboveFortyAndAboveSeventyPerCent) {
    riga(2, 40.0F, 30.0F, 30.0F);
    EXPECT_EQ(trova(), Testi{});
    riga(2, 41.0F, 30.0F, 29.0F);
    EXPECT_EQ(trova(), Testi{destra("40")});
    EXPECT_EQ(meta(), (Meta{"keyMatriceSvolte", "ctlGrid", 2, 2}));
    riga(2, 69.0F, 30.0F, 1.0F);
    EXPECT_EQ(trova(), Testi{destra("40")});
    riga(2, 70.0F, 29.0F, 1.0F);
    EXPECT_EQ(trova(), Testi{});
    riga(2, 71.0F, 29.0F, 0.0F);
    EXPECT_EQ(trova(), Testi{destra("70")});
    riga(2, 100.0F, 0.0F, 0.0F);
    EXPECT_EQ(trova(), Testi{destra("70")});
}

TEST_F(RegoleMatrice, SharesOfExactlyTheBoundsAreExactForAnyNumberOfVehicles) {
    for (int decine = 1; decine <= 300; ++decine) {
        const auto n = static_cast<float>(decine);
        ramo(2).theDatiTraffico().FlussoTotale(10.0F * n);
        riga(2, 7.0F * n, 3.0F * n, 0.0F);
        ASSERT_EQ(trova(), Testi{}) << decine;
        riga(2, 4.0F * n, 6.0F * n, 0.0F);
        ASSERT_EQ(trova(), Testi{}) << decine;
    }
}

TEST_F(RegoleMatrice, SharesOfExactlyTheBoundsAreExactForFiguresWithDecimalsToo) {
    struct Riga {
        float destra, altre, totale;
    };
    for (const Riga& r : {Riga{0.7F, 0.3F, 1.0F}, Riga{2.8F, 1.2F, 4.0F}, Riga{34.3F, 14.7F, 49.0F},
                          Riga{28.7F, 12.3F, 41.0F}, Riga{0.4F, 0.6F, 1.0F}, Riga{40.4F, 60.6F, 101.0F}}) {
        ramo(2).theDatiTraffico().FlussoTotale(r.totale);
        riga(2, r.destra, r.altre, 0.0F);
        EXPECT_EQ(trova(), Testi{}) << r.destra;
    }
    ramo(2).theDatiTraffico().FlussoTotale(101.0F);
    riga(2, 40.5F, 60.5F, 0.0F);
    EXPECT_EQ(trova(), Testi{destra("40")});
}

TEST_F(RegoleMatrice, TheRightTurnOfTheLastLegIsTheCellOfTheFirst) {
    rotonda().MatriceSvolte(60.0F, 4, 1);
    rotonda().MatriceSvolte(20.0F, 4, 2);
    rotonda().MatriceSvolte(20.0F, 4, 3);
    EXPECT_EQ(trova(), Testi{destra("40", "Ovest")});
}

TEST_F(RegoleMatrice, ARowThatIsNotTheDemandOfItsLegIsTold) {
    riga(2, 30.0F, 35.0F, 35.5F);
    EXPECT_EQ(trova(),
              Testi{"Y Matrice delle svolte:Attenzione. Veicoli in ingresso da ramo Est non coerente con 'Flusso "
                    "totale ingresso' (100,5 veic./h <>100veic./h). Verificare."});
    riga(2, 0.0F, 0.0F, 0.0F);
    EXPECT_EQ(trova(),
              Testi{"Y Matrice delle svolte:Attenzione. Veicoli in ingresso da ramo Est non coerente con 'Flusso "
                    "totale ingresso' (0 veic./h <>100veic./h). Verificare."});
    riga(2, 0.0F, 100.0F, 0.0F);
    EXPECT_EQ(trova(), Testi{});
}

TEST_F(RegoleMatrice, TheDiagonalCountsInARow) {
    riga(2, 35.0F, 15.0F, 0.0F);
    rotonda().MatriceSvolte(50.0F, 2, 2);
    EXPECT_EQ(trova(), Testi{});  // 35 of 100 turn right
}

TEST_F(RegoleMatrice, RowsAreAddedUpToTheNearestSingle) {
    ramo(2).theDatiTraffico().FlussoTotale(0.3F);
    riga(2, 0.1F, 0.2F, 0.0F);
    errori.svuota();
    errori.INPUT_Dati_MatriceOD();
    EXPECT_TRUE(errori.ctlTreeAnalizzatore.riscontri.empty());
}

TEST_F(RegoleMatrice, AMatrixOfZerosIsToldOnceAfterTheLegs) {
    for (std::int16_t i = 1; i <= 4; ++i) {
        riga(i, 0.0F, 0.0F, 0.0F);
    }
    const Testi tutti = trova();
    ASSERT_EQ(tutti.size(), 5U);
    EXPECT_NE(tutti[0].find("ramo Nord non coerente"), std::string::npos);
    EXPECT_NE(tutti[3].find("ramo Ovest non coerente"), std::string::npos);
    EXPECT_EQ(tutti[4], nullaLaMatrice);
    EXPECT_EQ(meta(4), (Meta{"keyMatriceSvolte", "ctlGrid", 0}));
}

TEST_F(RegoleMatrice, PerCentRowsOfExactlyAHundredAreInOrder) {
    rotonda().TipoMatriceSvolte(1);
    for (std::int16_t i = 1; i <= 4; ++i) {
        ramo(i).theDatiTraffico().FlussoTotale(777.0F);  // of no account for per cent
        riga(i, 90.0F, 5.0F, 5.0F);
    }
    EXPECT_EQ(trova(), Testi{});
    riga(3, 33.3F, 33.3F, 33.4F);
    riga(4, 14.3F, 71.4F, 14.3F);
    EXPECT_EQ(trova(), Testi{});
}

TEST_F(RegoleMatrice, PerCentRowsThatAreWrongAreToldOnceHoweverMany) {
    rotonda().TipoMatriceSvolte(1);
    riga(2, 30.0F, 35.0F, 35.01F);
    EXPECT_EQ(trova(), Testi{percentualiErrate});
    EXPECT_EQ(meta(), (Meta{"keyMatriceSvolte", "ctlGrid", 0, 2}));
    for (std::int16_t i = 1; i <= 4; ++i) {
        riga(i, 30.0F, 35.0F, 35.01F);
    }
    EXPECT_EQ(trova(), Testi{percentualiErrate});
    riga(1, 30.0F, 35.0F, 35.0F);
    riga(2, 30.0F, 35.0F, 35.0F);
    riga(3, 30.0F, 35.0F, 35.0F);
    riga(4, 30.0F, 35.0F, 34.99F);
    EXPECT_EQ(trova(), Testi{percentualiErrate});
}

TEST_F(RegoleMatrice, PerCentRowsThatAreAHundredOnPaperAreInOrder) {
    rotonda().TipoMatriceSvolte(1);
    // Added up as doubles of singles each of these misses 100.
    riga(1, 34.1F, 0.7F, 65.2F);
    riga(2, 1.15F, 17.87F, 80.98F);
    riga(3, 82.2F, 4.6F, 13.2F);
    EXPECT_EQ(trova(), Testi{});
    riga(4, 30.0F, 35.0F, 35.01F);
    EXPECT_EQ(trova(), Testi{percentualiErrate});
}

TEST_F(RegoleMatrice, APerCentRowOfZerosAmongOthersIsWrong) {
    rotonda().TipoMatriceSvolte(1);
    riga(3, 0.0F, 0.0F, 0.0F);
    EXPECT_EQ(trova(), Testi{percentualiErrate});
}

TEST_F(RegoleMatrice, VehiclesThatReadAsTheDemandAreTheDemand) {
    riga(2, 30.0F, 35.0F, 35.0F);
    ramo(2).theDatiTraffico().FlussoTotale(std::nextafter(100.0F, 200.0F));  // 100.000008, which reads 100
    EXPECT_EQ(trova(), Testi{});
    ramo(2).theDatiTraffico().FlussoTotale(100.001F);
    EXPECT_EQ(trova().size(), 1U);
}

TEST_F(RegoleMatrice, PerCentOfZerosAreNoMatrixAtAll) {
    rotonda().TipoMatriceSvolte(1);
    for (std::int16_t i = 1; i <= 4; ++i) {
        riga(i, 0.0F, 0.0F, 0.0F);
    }
    EXPECT_EQ(trova(), Testi{nullaLaMatrice});
}

struct RegoleComposizione : ScenaControllo {
    static std::string personalizzato(const std::string& nome) {
        return "Y Composizione traffico:Attenzione.Valore di rapporto equivalenza veicolo personalizzato (" + nome +
               "veic.eq.) .Verificare";
    }
};

TEST_F(RegoleComposizione, EveryCoefficientIsComparedWithItsFactoryValue) {
    coefficienti("2,6", "2.1", "1,9", "1,5", "1,3", "0,9", "1,1");
    EXPECT_EQ(trova(), (Testi{personalizzato("Autoarticolati =2,6"), personalizzato("Autotreni =2,1"),
                              personalizzato("Autobus =1,9"), personalizzato("Camper =1,5"),
                              personalizzato("Veicoli ricreativi =1,3"), personalizzato("Veicoli a due ruote =0,9"),
                              personalizzato("Autovetture =1,1")}));
    EXPECT_EQ(meta(2), (Meta{"keyOpzioni", "txtPullman", 0}));
    EXPECT_EQ(meta(5), (Meta{"keyOpzioni", "txtMotocicli", 0}));
}

TEST_F(RegoleComposizione, FactoryValuesMayBeWrittenEitherWay) {
    coefficienti("2.50", "2.0", "1.8", "1,40", "1.2", "0.8", "1,0");
    EXPECT_EQ(trova(), Testi{});
    coefficienti("2.5000002", "2", "1,8", "1,4", "1,2", "0,8", "1");  // the next single is 2.50000024
    EXPECT_EQ(trova(), Testi{personalizzato("Autoarticolati =2,5")});
}

TEST_F(RegoleComposizione, AKeyThatIsMissingReadsAsZero) {
    coefficienti("2,5", "2", "", "1,4", "1,2", "0,8", "1");
    EXPECT_EQ(trova(), Testi{personalizzato("Autobus =0")});
}

TEST_F(RegoleComposizione, CoefficientsAreThoseOfTheFileNotOfMemory) {
    app.configurazione.VEAutoarticolati = 9.0F;
    EXPECT_EQ(trova(), Testi{});
    EXPECT_EQ(app.configurazione.VEAutoarticolati, 9.0F);
}

TEST_F(RegoleComposizione, FewerThanSixtyCarsInAHundredAreAnError) {
    composizione(2).Autovetture(60.0F);
    composizione(2).Pullman(40.0F);
    EXPECT_EQ(trova(), Testi{});
    composizione(2).Autovetture(std::nextafter(60.0F, 0.0F));
    EXPECT_EQ(trova(),
              Testi{"R Composizione traffico:La percenetuale di autovetture sul Ramo 'Est' < 60%, si consiglia di "
                    "controllare i dati inseriti"});
    EXPECT_EQ(meta(), (Meta{"keyComposizioneTraffico2", "txtAutoarticolati", 2}));
}

TEST_F(RegoleComposizione, HeavyVehiclesAskForTheSweptAreas) {
    const Testi pesanti{
        "Y Composizione traffico:Sono presenti dei mezzi pesanti sul Ramo 'Est', verificare la geometria in "
        "relazione alle svolte ed alle aree spazzate. "};
    composizione(2).Autotreni(1.0F);
    EXPECT_EQ(trova(), pesanti);
    EXPECT_EQ(meta(), (Meta{"keyComposizioneTraffico2", "txtAutotreni", 2}));
    composizione(2).Autotreni(0.0F);
    EXPECT_EQ(trova(), Testi{});
    composizione(2).Autoarticolati(1.0F);
    EXPECT_EQ(trova(), pesanti);
    EXPECT_EQ(meta(), (Meta{"keyComposizioneTraffico2", "txtAutoarticolati", 2}));
}

TEST_F(RegoleComposizione, ATableOfZerosIsAnErrorAndNothingElseOfItIsLookedAt) {
    rotonda().TipoFlusso(1);
    for (std::int16_t i = 1; i <= 4; ++i) {
        composizione(i).NumSegmentiTempo(4);
        composizione(i).CategoriaSegmento(1.0F, 3, 6);
        composizione(i).Autovetture(0.0F);
        composizione(i).Autotreni(100.0F);
    }
    EXPECT_EQ(trova(), Testi{});
    composizione(2).CategoriaSegmento(0.0F, 3, 6);
    EXPECT_EQ(trova(),
              Testi{"R Composizione traffico:Non è stato defininito alcun valore di composizione del traffico per "
                    "l'ingresso Est"});
    EXPECT_EQ(meta(), (Meta{"keyComposizioneTraffico2", "ctlGrid", 2}));
}

TEST_F(RegoleComposizione, CoefficientsComeFirstForTablesToo) {
    rotonda().TipoFlusso(1);
    coefficienti("2,5", "2", "1,8", "1,4", "1,2", "0,8", "2");
    const Testi tutti = trova();
    ASSERT_EQ(tutti.size(), 5U);
    EXPECT_EQ(tutti[0], personalizzato("Autovetture =2"));
    EXPECT_NE(tutti[4].find("l'ingresso Ovest"), std::string::npos);
}

}  // namespace
}  // namespace kelvo::prove
