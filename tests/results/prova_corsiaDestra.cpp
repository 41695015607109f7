#include <gtest/gtest.h>

#include <algorithm>

#include "base/numeri.h"
#include "comune/guasti.h"
#include "progettoAnalisi.h"
#include "results/corsiaDestra.h"

namespace kelvo {
namespace {

using prove::AppFinta;

const DataOra momento = giornoCalendario(2026, 11, 21) + oraDelGiorno(10, 30, 5);

class CorsiaDestra : public testing::Test {
protected:
    CorsiaDestra() { prove::creaStudio(finta, 4, 1); }
    Rotonda& rotonda() { return finta.app.theRotonda(); }
    std::string cella(int riga, int colonna) const { return confronto.tabella().testo(riga, colonna); }
    AppFinta finta;
    ConfrontoCorsie confronto;
};

TEST_F(CorsiaDestra, FourPositionsGoFromALegToTheNext) {
    ASSERT_EQ(posizioniDX.size(), 4U);
    EXPECT_EQ(posizioniDX[0].testo, "Posizione 1: (svolta Ramo A-->Ramo B)");
    EXPECT_EQ(posizioniDX[1].testo, "Posizione 2: (svolta Ramo B-->Ramo C)");
    EXPECT_EQ(posizioniDX[2].testo, "Posizione 3: (svolta Ramo C-->Ramo D)");
    EXPECT_EQ(posizioniDX[3].testo, "Posizione 4: (svolta Ramo D-->Ramo A)");
    EXPECT_EQ(posizioniDX[0].etichetta, "labelAB");
    EXPECT_EQ(posizioniDX[3].etichetta, "labelDA");
    for (std::int16_t k = 0; k < 4; ++k) {
        EXPECT_EQ(posizioniDX.at(static_cast<std::size_t>(k)).origine, k + 1);
        EXPECT_EQ(posizioniDX.at(static_cast<std::size_t>(k)).destinazione, (k + 1) % 4 + 1);
    }
}

TEST_F(CorsiaDestra, MessagesAreWorded) {
    EXPECT_EQ(testiDX::nessunaPosizione.testo,
              "Attezione! Selezionare almeno una corsia di svolta a destra da verificare.");
    EXPECT_EQ(testiDX::nessunaPosizione.titolo, "KELVO 2014");
    EXPECT_EQ(testiDX::nessunaPosizione.icona, Icona::critica);
    EXPECT_EQ(testiDX::titoloAvviso, "Informazione");
    EXPECT_EQ(testiDX::avviso, "Funzione disponibile solo per rotatorie a quattro ingressi!");
    EXPECT_EQ(testiDX::metodoAnteprima, "frmCapacitaCodeRitardiRamo:Anteprima");
}

TEST_F(CorsiaDestra, IsForFourLegsAndAtLeastOneLane) {
    EXPECT_TRUE(corsieDisponibili(rotonda()));
    for (const auto rami : std::initializer_list<std::int16_t>{3, 5, 7}) {
        prove::creaStudio(finta, rami, 1);
        EXPECT_FALSE(corsieDisponibili(rotonda())) << rami;
    }
    EXPECT_FALSE(almenoUnaCorsia({}));
    EXPECT_TRUE(almenoUnaCorsia({false, false, false, true}));
}

TEST_F(CorsiaDestra, TheFlowOfATurnIsShownAsItWasEntered) {
    rotonda().MatriceSvolte(12.5F, 1, 2);
    rotonda().MatriceSvolte(33.33F, 4, 1);
    EXPECT_EQ(flussoSvolta(rotonda(), 0), "12,5 [veic.]");
    EXPECT_EQ(flussoSvolta(rotonda(), 1), "25 [veic.]");
    rotonda().TipoMatriceSvolte(1);
    EXPECT_EQ(flussoSvolta(rotonda(), 0), "12,5 [%]");
    EXPECT_EQ(flussoSvolta(rotonda(), 3), "33,33 [%]");
    for (const char* scritto : {"33,33333", "66,66667", "14,28571", "64,00066", "8,2", "0,005"}) {
        rotonda().MatriceSvolte(static_cast<float>(leggiNumero(scritto).value()), 1, 2);
        EXPECT_EQ(flussoSvolta(rotonda(), 0), std::string{scritto} + " [%]");
    }
    for (int decimi = 1; decimi <= 1000; ++decimi) {
        const float scritto = static_cast<float>(decimi) / 10.0F;
        rotonda().MatriceSvolte(scritto, 1, 2);
        EXPECT_EQ(flussoSvolta(rotonda(), 0), testoNumero(scritto) + " [%]");
    }
    prove::creaStudio(finta, 3, 1);
    EXPECT_EQ(prove::numeroGuasto([&] { flussoSvolta(rotonda(), 2); }), 9);
    EXPECT_EQ(prove::numeroGuasto([&] { flussoSvolta(rotonda(), 1); }), 0);
}

TEST_F(CorsiaDestra, TotalsAddTheFlowAndKeepTheLargestFromZeroOn) {
    DatiTraffico& a = rotonda().Ramo(1).theDatiTraffico();
    a.SetIterazione(1, {.Flusso = 2.0F, .Capacita = 900.0F, .Coeff_Sat = 0.1F, .Coda = 1.0F, .Ritardo = 4.0F});
    a.SetIterazione(2, {.Flusso = 3.5F, .Capacita = 800.0F, .Coeff_Sat = 0.5F, .Coda = 7.5F, .Ritardo = 3.0F});
    a.SetIterazione(3, {.Flusso = 1.0F, .Capacita = 950.0F, .Coeff_Sat = 0.2F, .Coda = 2.0F, .Ritardo = 9.0F});
    rotonda().Ramo(2).theDatiTraffico().SetIterazione(
        1, {.Flusso = 1.0F, .Capacita = -5.0F, .Coeff_Sat = -1.0F, .Coda = -2.0F, .Ritardo = -3.0F});
    const TotaliDX totali = totaliDX(rotonda());
    EXPECT_EQ(totali[0].Flusso, 6.5 * 15);
    EXPECT_EQ(totali[0].Capacita, 950.0);
    EXPECT_EQ(totali[0].Coeff_Sat, 0.5);
    EXPECT_EQ(totali[0].Coda, 7.5);
    EXPECT_EQ(totali[0].Ritardo, 9.0);
    EXPECT_EQ(totali[1].Flusso, 15.0);
    EXPECT_EQ(totali[1].Capacita, 0.0);
    EXPECT_EQ(totali[1].Coeff_Sat, 0.0);
    EXPECT_EQ(totali[1].Coda, 0.0);
    EXPECT_EQ(totali[1].Ritardo, 0.0);
}

TEST_F(CorsiaDestra, TheTableHasItsRowsAndWidths) {
    const Tabella& t = confronto.tabella();
    ASSERT_EQ(t.righe(), 18);
    ASSERT_EQ(t.colonne(), 5);
    const char* nomi[] = {"",
                          "Flusso Tot[veic.eq]",
                          "Flusso Tot[veic.eq](*)",
                          "Variazione %",
                          "Capacità [veic/h]",
                          "Capacità [veic/h](*)",
                          "Variazione %",
                          "Coeff. saturazione",
                          "Coeff. saturazione(*)",
                          "Variazione %",
                          "Coda [veic]",
                          "Coda [veic](*)",
                          "Variazione %",
                          "Ritardo [s/veic]",
                          "Ritardo [s/veic](*)",
                          "Variazione %",
                          "L.O.S.",
                          "L.O.S.(*)"};
    for (int r = 0; r < 18; ++r) {
        EXPECT_EQ(t.testo(r, 0), nomi[r]) << r;
        for (int c = 1; r > 0 && c < 5; ++c) {
            EXPECT_EQ(t.testo(r, c), "") << r;
        }
    }
    const char* colonne[] = {"", "RAMO A", "RAMO B", "RAMO C", "RAMO D"};
    for (int c = 1; c < 5; ++c) {
        EXPECT_EQ(t.testo(0, c), colonne[c]);
        EXPECT_EQ(t.larghezze.at(static_cast<std::size_t>(c)), 1100);
    }
}

TEST_F(CorsiaDestra, RowsWithLanesHaveTheirOwnColours) {
    confronto.calcola(finta.app, {true, true, false, false});
    const Tabella& t = confronto.tabella();
    for (int r = 0; r < t.righe(); ++r) {
        const bool corsia = (r < 16 && r % 3 == 2) || r == 17;
        for (int c = 0; c < t.colonne(); ++c) {
            const Cella& cella = t.cella(r, c);
            if (r == 0 || c == 0) {
                EXPECT_EQ(cella.sfondo, (Colore{0, 98, 0})) << r << "," << c;
                EXPECT_EQ(cella.inchiostro, (Colore{255, 255, 255})) << r << "," << c;
            } else if (corsia) {
                EXPECT_EQ(cella.sfondo, (Colore{250, 254, 216})) << r << "," << c;
                EXPECT_EQ(cella.inchiostro, (Colore{200, 100, 100})) << r << "," << c;
            } else {
                EXPECT_EQ(cella.sfondo, (Colore{220, 220, 220})) << r << "," << c;
                EXPECT_EQ(cella.inchiostro, (Colore{0, 0, 0})) << r << "," << c;
            }
        }
    }
}

TEST_F(CorsiaDestra, VariationsComeFromTheShownFigures) {
    EXPECT_EQ(variazioneDX("200,00", "150,00"), "25%");
    EXPECT_EQ(variazioneDX("200,00", "225,00"), "-12,5%");
    EXPECT_EQ(variazioneDX("3,0", "2,0"), "33,33%");
    EXPECT_EQ(variazioneDX("6,0", "2,0"), "66,67%");
    EXPECT_EQ(variazioneDX("32,0", "31,0"), "3,13%");
    EXPECT_EQ(variazioneDX("100000,00", "100000,01"), "0%");
    EXPECT_EQ(variazioneDX("5,0", "5,0"), "0%");
    EXPECT_EQ(variazioneDX("0,00", "0,00"), "0%");
    EXPECT_EQ(variazioneDX("0,00", "0,01"), "n.d.");
    EXPECT_EQ(variazioneDX("0,5", "0,0"), "100%");
    EXPECT_EQ(variazioneDX("", "1,0"), "");
    EXPECT_EQ(variazioneDX("1,0", ""), "");
}

TEST_F(CorsiaDestra, FiguresAreThoseOfTheTwoRuns) {
    // A turn of 25 in 75: the lane takes a third of 400 vehicles over four segments, 400 / 3 / 60 = 2.222 a minute.
    confronto.calcola(finta.app, {true, false, false, false});
    EXPECT_TRUE(confronto.calcolato());
    modCalcolo motore(finta.app);
    motore.Calcola_Tempo_Flusso_DX("0", {true, false, false, false});
    const TotaliDX con = totaliDX(rotonda());
    motore.Calcola_Tempo_Flusso("0");
    const TotaliDX senza = totaliDX(rotonda());
    EXPECT_NEAR(senza[0].Flusso - con[0].Flusso, 400.0 / 3.0, 0.01);
    for (std::size_t i = 0; i < 4; ++i) {
        const int c = static_cast<int>(i) + 1;
        EXPECT_EQ(cella(1, c), formatta(senza[i].Flusso, "#0.00"));
        EXPECT_EQ(cella(2, c), formatta(con[i].Flusso, "#0.00"));
        EXPECT_EQ(cella(4, c), formatta(senza[i].Capacita, "#0.00"));
        EXPECT_EQ(cella(5, c), formatta(con[i].Capacita, "#0.00"));
        EXPECT_EQ(cella(7, c), formatta(senza[i].Coeff_Sat, "#0.00"));
        EXPECT_EQ(cella(8, c), formatta(con[i].Coeff_Sat, "#0.00"));
        EXPECT_EQ(cella(10, c), formatta(senza[i].Coda, "#0.0"));
        EXPECT_EQ(cella(11, c), formatta(con[i].Coda, "#0.0"));
        EXPECT_EQ(cella(13, c), formatta(senza[i].Ritardo, "#0.0"));
        EXPECT_EQ(cella(14, c), formatta(con[i].Ritardo, "#0.0"));
        for (const int r : {3, 6, 9, 12, 15}) {
            EXPECT_EQ(cella(r, c), variazioneDX(cella(r - 2, c), cella(r - 1, c)));
        }
        EXPECT_EQ(confronto.senza()[i].Capacita, senza[i].Capacita);
        EXPECT_EQ(confronto.con()[i].Capacita, con[i].Capacita);
        EXPECT_EQ(confronto.livello(false, i), cella(16, c));
        EXPECT_EQ(confronto.livello(true, i), cella(17, c));
    }
}

TEST_F(CorsiaDestra, TheLevelFollowsTheShownDelay) {
    confronto.calcola(finta.app, {true, true, true, true});
    const auto livelloAtteso = [](double ritardo) {
        return ritardo <= 10.0   ? "A"
               : ritardo <= 15.0 ? "B"
               : ritardo <= 25.0 ? "C"
               : ritardo <= 35.0 ? "D"
               : ritardo <= 50.0 ? "E"
                                 : "F";
    };
    for (int c = 1; c < 5; ++c) {
        for (const int r : {0, 1}) {
            const double ritardo = leggiNumero(cella(13 + r, c)).value();
            ASSERT_GT(ritardo, 0.0);
            EXPECT_EQ(cella(16 + r, c), livelloAtteso(ritardo));
        }
    }
}

TEST_F(CorsiaDestra, TheRecordsAreThoseOfTheProjectAgain) {
    modCalcolo(finta.app).Calcola_Tempo_Flusso("0");
    std::vector<Iterazione> prima;
    for (std::int16_t k = 1; k <= 4; ++k) {
        prima.push_back(rotonda().Ramo(1).theDatiTraffico().GetIterazione(k));
    }
    const auto revisione = rotonda().revisione().tutto;
    confronto.calcola(finta.app, {true, true, true, true});
    for (std::int16_t k = 1; k <= 4; ++k) {
        EXPECT_EQ(rotonda().Ramo(1).theDatiTraffico().GetIterazione(k), prima[static_cast<std::size_t>(k - 1)]);
    }
    EXPECT_EQ(rotonda().timbro().forma, FormaCalcolo::piana);
    EXPECT_EQ(rotonda().revisione().tutto, revisione);
}

TEST_F(CorsiaDestra, ATurnOfNothingChangesNothing) {
    rotonda().MatriceSvolte(0.0F, 2, 3);
    confronto.calcola(finta.app, {false, true, false, false});
    for (int c = 1; c < 5; ++c) {
        for (const int r : {1, 4, 7, 10, 13}) {
            EXPECT_EQ(cella(r, c), cella(r + 1, c));
            EXPECT_EQ(cella(r + 2, c), "0%");
        }
    }
}

TEST_F(CorsiaDestra, TheTableOfDemandHasItsOwnRuns) {
    prove::creaStudio(finta, 4, 2);
    confronto.calcola(finta.app, {false, false, false, true});
    // 60 + 80 + 100 + 60 vehicles; the lane of D takes 400 / 3 of them over the hour.
    EXPECT_EQ(cella(1, 1), "300,00");
    EXPECT_EQ(cella(2, 1), "300,00");
    // The share is per minute and stands against vehicles per segment: 2.2222 in each of four segments.
    EXPECT_EQ(cella(1, 4), "300,00");
    EXPECT_EQ(cella(2, 4), "291,11");
    EXPECT_EQ(cella(3, 4), "2,96%");
    EXPECT_EQ(rotonda().timbro().forma, FormaCalcolo::piana);
}

TEST_F(CorsiaDestra, WithoutDemandOverTimeTheTableKeepsItsContent) {
    confronto.calcola(finta.app, {true, false, false, false});
    const std::string prima = cella(4, 1);
    ASSERT_NE(prima, "");
    rotonda().TipoAnalisi(0);
    rotonda().Ramo(1).LarghezzaIngresso(9.0F);
    const Timbro timbro = rotonda().timbro();
    confronto.calcola(finta.app, {true, false, false, false});
    EXPECT_EQ(cella(4, 1), prima);
    EXPECT_EQ(rotonda().timbro(), timbro);
}

TEST_F(CorsiaDestra, TheSameFaultOfBothRunsIsToldOnceAndLeavesEmptyRows) {
    confronto.calcola(finta.app, {true, false, false, false});
    prove::guastaCurva(finta, 2);
    confronto.calcola(finta.app, {true, false, false, false});
    ASSERT_EQ(finta.messaggi.mostrati.size(), 1U);
    EXPECT_EQ(finta.messaggi.mostrati[0].titolo, "KELVO 2014Calcola_Tempo_Flusso");
    EXPECT_FALSE(confronto.calcolato());
    for (int r = 1; r < 18; ++r) {
        for (int c = 1; c < 5; ++c) {
            EXPECT_EQ(cella(r, c), "") << r;
        }
    }
}

TEST_F(CorsiaDestra, AFaultOfTheLanesAloneLeavesTheRowsWithoutThem) {
    // The right turn of A weighs on no entry; its lane would take 5000 % of 3e38 vehicles, which no single holds.
    prove::creaStudio(finta, 4, 2);
    rotonda().TipoMatriceSvolte(1);
    rotonda().MatriceSvolte(5000.0F, 1, 2);
    rotonda().Ramo(1).theDatiTraffico().FlussoTotale(3e38F);
    confronto.calcola(finta.app, {true, false, false, false});
    ASSERT_EQ(finta.messaggi.mostrati.size(), 1U);
    EXPECT_EQ(cella(1, 1), "300,00");
    EXPECT_EQ(cella(2, 1), "");
    EXPECT_EQ(cella(3, 1), "");
    EXPECT_NE(cella(16, 1), "");
    EXPECT_EQ(cella(17, 1), "");
    EXPECT_EQ(rotonda().timbro().forma, FormaCalcolo::piana);
}

TEST_F(CorsiaDestra, TheTextHasItsLinesInOrder) {
    rotonda().NomeFile("Prova");
    confronto.calcola(finta.app, {true, false, false, true});
    const std::string testo = confronto.testo(rotonda(), {true, false, false, true}, momento);
    const std::string inizio =
        "ANALISI CORSIA PREFERENZIALE SVOLTA IN DESTRA: \r\n\r\nIPOTESI:\r\n"
        "Posizione 1: (svolta Ramo A-->Ramo B) ==> 25 [veic.]\r\n"
        "Posizione 4: (svolta Ramo D-->Ramo A) ==> 25 [veic.]\r\n"
        "\r\nCONFRONTO VALORI PRESTAZIONALI\r\n\r\n"
        "                        \t";
    EXPECT_EQ(testo.substr(0, inizio.size()), inizio);
    const std::string fine =
        "\t\r\n\r\n---------------\r\nL.O.S. (Level of service) - HCM Americano\r\n"
        "(*) Valore dovuto all'introduzione della corsia preferenziale di svolta in destra\r\n---------------\r\n" +
        righeDiChiusura(momento, "Prova");
    ASSERT_GT(testo.size(), fine.size());
    EXPECT_EQ(testo.substr(testo.size() - fine.size()), fine);
    EXPECT_EQ(std::count(testo.begin(), testo.end(), '\n'), 8 + 18 + 5 + 2);
}

}  // namespace
}  // namespace kelvo
