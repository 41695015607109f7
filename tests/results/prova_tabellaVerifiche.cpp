#include <gtest/gtest.h>

#include "app/nuovoProgetto.h"
#include "base/guasto.h"
#include "comune/finti.h"
#include "results/tabellaVerifiche.h"

namespace kelvo {
namespace {

using prove::AppFinta;

const DataOra momento = giornoCalendario(2026, 11, 21) + oraDelGiorno(10, 30, 5);

/// Three legs, 08:00 to 08:30 in segments of 15 minutes, records written by hand.
class TabellaVerifiche : public testing::Test {
protected:
    TabellaVerifiche() {
        Rotonda& r = finta.app.theRotonda();
        r.Clear();
        r.NumeroRami(3);
        r.TempoFinale(oraDelGiorno(8, 30));
        for (const char* chiave : {"1Ramo", "2Ramo", "3Ramo"}) {
            r.AddRamo(chiave);
        }
        r.NomeFile("Prova");
        r.Ramo(2).Descrizione("Città");
        r.Ramo(1).theDatiTraffico().SetIterazione(1, {10.0F, 900.0F, 0.66666669F, 5.25505F, 11.4334F});
        r.Ramo(1).theDatiTraffico().SetIterazione(2, {15.0F, 900.0F, 1.0F, 18.3581F, 50.05F});
        r.Ramo(2).theDatiTraffico().SetIterazione(1, {0.005F, 1234.565F, 0.0005F, 0.05F, 10.04F});
    }
    Rotonda& rotonda() { return finta.app.theRotonda(); }
    Tabella piena() {
        Tabella tabella = impostaTabellaVerifiche(rotonda());
        riempiTabellaVerifiche(rotonda(), tabella);
        return tabella;
    }
    AppFinta finta;
};

TEST_F(TabellaVerifiche, HasABandRowAndAnEntryRowPerLegForEachInterval) {
    const Tabella t = piena();
    EXPECT_EQ(t.colonne(), 7);
    EXPECT_EQ(t.righe(), (3 + 1) * 2 + 1);
    EXPECT_EQ(t.testo(1, 0), "08:00 - 08:15");
    EXPECT_EQ(t.testo(2, 0), "Ramo A");
    EXPECT_EQ(t.testo(3, 0), "Città");
    EXPECT_EQ(t.testo(4, 0), "Ramo C");
    EXPECT_EQ(t.testo(5, 0), "08:15 - 08:30");
    EXPECT_EQ(t.testo(6, 0), "Ramo A");
    EXPECT_EQ(t.testo(1, 1), "");
}

TEST_F(TabellaVerifiche, HasItsHeadingsAsTheyStand) {
    const Tabella t = piena();
    const std::vector<std::string> attese{
        "",      "Flusso [veic/min]", "Capacità [veic/h]", "Coeff. saturazione", "Coda [veic]", "Ritardo [s/veic]",
        "L.O.S."};
    for (int c = 0; c < 7; ++c) {
        EXPECT_EQ(t.testo(0, c), attese[static_cast<std::size_t>(c)]);
    }
}

TEST_F(TabellaVerifiche, ShowsEachQuantityInItsFormat) {
    const Tabella t = piena();
    const std::vector<std::string> prima{"10,00", "900,00", "0,667", "5,3", "11,4", "B"};
    const std::vector<std::string> seconda{"0,01", "1234,57", "0,001", "0,1", "10,0", "A"};
    const std::vector<std::string> vuota{"0,00", "0,00", "0,000", "0,0", "0,0", "-"};
    for (int c = 1; c < 7; ++c) {
        const auto i = static_cast<std::size_t>(c - 1);
        EXPECT_EQ(t.testo(2, c), prima[i]);
        EXPECT_EQ(t.testo(3, c), seconda[i]);
        EXPECT_EQ(t.testo(4, c), vuota[i]);
    }
    EXPECT_EQ(t.testo(6, 5), "50,1");
    EXPECT_EQ(t.testo(6, 6), "F");
}

TEST_F(TabellaVerifiche, ColoursHeadingsBandsAndNames) {
    const Tabella t = piena();
    for (int c = 0; c < 7; ++c) {
        EXPECT_EQ(t.cella(0, c).sfondo, (Colore{0, 98, 0}));
        EXPECT_EQ(t.cella(0, c).inchiostro, (Colore{255, 255, 255}));
    }
    EXPECT_EQ(t.cella(1, 0).sfondo, (Colore{0, 98, 0}));
    EXPECT_EQ(t.cella(1, 0).inchiostro, (Colore{255, 255, 255}));
    for (int c = 1; c < 7; ++c) {
        EXPECT_EQ(t.cella(1, c).sfondo, (Colore{220, 220, 220}));
        EXPECT_EQ(t.cella(2, c).sfondo, (Colore{255, 255, 255}));
    }
    EXPECT_EQ(t.cella(2, 0).sfondo, (Colore{164, 196, 0}));
    EXPECT_EQ(t.cella(2, 0).inchiostro, (Colore{255, 255, 255}));
}

TEST_F(TabellaVerifiche, PaintsLevelFRedAndNotBoldAndOthersBlack) {
    Tabella t = piena();
    EXPECT_EQ(t.cella(6, 6).inchiostro, (Colore{255, 0, 0}));
    EXPECT_FALSE(t.cella(6, 6).grassetto);
    EXPECT_EQ(t.cella(6, 6).sfondo, (Colore{255, 255, 255}));
    EXPECT_EQ(t.cella(2, 6).inchiostro, (Colore{0, 0, 0}));
    t.cella(6, 6).grassetto = true;
    rotonda().Ramo(1).theDatiTraffico().SetIterazione(2, {15.0F, 900.0F, 1.0F, 18.0F, 12.0F});
    riempiTabellaVerifiche(rotonda(), t);
    EXPECT_EQ(t.testo(6, 6), "B");
    EXPECT_EQ(t.cella(6, 6).inchiostro, (Colore{0, 0, 0}));
    EXPECT_FALSE(t.cella(6, 6).grassetto);
}

TEST_F(TabellaVerifiche, ARefillSetsTheLevelOfEveryRowButTheHeadingBack) {
    for (std::int16_t i = 1; i <= 3; ++i) {
        rotonda().Ramo(i).theDatiTraffico().SetIterazione(1, {1.0F, 2.0F, 3.0F, 4.0F, 60.0F});
    }
    Tabella t = piena();
    for (const int riga : {2, 3, 4}) {
        EXPECT_EQ(t.testo(riga, 6), "F");
        EXPECT_EQ(t.cella(riga, 6).inchiostro, (Colore{255, 0, 0}));
    }
    for (int riga = 1; riga < t.righe(); ++riga) {
        t.cella(riga, 6).inchiostro = {1, 2, 3};
        t.cella(riga, 6).grassetto = true;
    }
    for (std::int16_t i = 1; i <= 3; ++i) {
        rotonda().Ramo(i).theDatiTraffico().NumSegmentiTempo(1);
        rotonda().Ramo(i).theDatiTraffico().SetIterazione(1, {1.0F, 2.0F, 3.0F, 4.0F, 5.0F});
    }
    riempiTabellaVerifiche(rotonda(), t);
    for (int riga = 1; riga < t.righe(); ++riga) {
        EXPECT_EQ(t.cella(riga, 6).inchiostro, (Colore{0, 0, 0})) << riga;
        EXPECT_FALSE(t.cella(riga, 6).grassetto) << riga;
    }
    EXPECT_EQ(t.testo(3, 6), "A");
    EXPECT_EQ(t.cella(0, 6).inchiostro, (Colore{255, 255, 255}));
}

TEST_F(TabellaVerifiche, NumberOfIntervalsIsRoundedWithTiesToEven) {
    struct Caso {
        int minuti;
        int attesi;
    };
    rotonda().SegmentoTempo(oraDelGiorno(0, 10));
    for (const Caso caso :
         {Caso{75, 8}, Caso{65, 6}, Caso{74, 7}, Caso{76, 8}, Caso{5, 0}, Caso{60, 6}, Caso{-60, -6}}) {
        rotonda().TempoFinale(oraDelGiorno(8, caso.minuti));
        EXPECT_EQ(numeroIntervalli(rotonda()), caso.attesi) << caso.minuti;
    }
    rotonda().TempoFinale(oraDelGiorno(9, 15));
    EXPECT_EQ(impostaTabellaVerifiche(rotonda()).righe(), (3 + 1) * 8 + 1);
}

TEST_F(TabellaVerifiche, AWindowThatEndsBeforeItStartsHasTheHeadingsAlone) {
    rotonda().TempoFinale(oraDelGiorno(7, 30));
    Tabella t = impostaTabellaVerifiche(rotonda());
    EXPECT_EQ(t.righe(), 1);
    EXPECT_EQ(t.testo(0, 6), "L.O.S.");
    try {
        riempiTabellaVerifiche(rotonda(), t);
        ADD_FAILURE() << "no fault";
    } catch (const Guasto& guasto) {
        EXPECT_EQ(guasto.codice(), 9);
        EXPECT_EQ(guasto.descrizione(),
                  "Indice non compreso nell'intervallo (la finestra di modellazione non ha intervalli)");
    }
    for (std::int16_t i = 1; i <= 3; ++i) {
        rotonda().Ramo(i).theDatiTraffico().NumSegmentiTempo(0);
    }
    riempiTabellaVerifiche(rotonda(), t);
    EXPECT_EQ(t.righe(), 1);
}

TEST_F(TabellaVerifiche, HasItsWidths) {
    const Tabella t = piena();
    EXPECT_EQ(t.larghezze, (std::vector<int>{2000, 1300, 1400, 1400, 1000, 1300, 900}));
    EXPECT_EQ(t.altezzaRiga, 300);
}

TEST_F(TabellaVerifiche, FewerSegmentsThanIntervalsLeaveRowsEmpty) {
    rotonda().Ramo(3).theDatiTraffico().NumSegmentiTempo(1);
    const Tabella t = piena();
    EXPECT_EQ(t.testo(4, 6), "-");
    EXPECT_EQ(t.testo(8, 1), "");
    EXPECT_EQ(t.testo(8, 6), "");
}

TEST_F(TabellaVerifiche, MoreSegmentsThanIntervalsAreASubscriptFault) {
    rotonda().Ramo(3).theDatiTraffico().NumSegmentiTempo(3);
    try {
        piena();
        FAIL() << "no fault";
    } catch (const Guasto& guasto) {
        EXPECT_EQ(guasto.codice(), 9);
    }
}

TEST_F(TabellaVerifiche, AWholeHourAsSegmentIsADivisionByZero) {
    rotonda().SegmentoTempo(oraDelGiorno(1, 0));
    try {
        impostaTabellaVerifiche(rotonda());
        FAIL() << "no fault";
    } catch (const Guasto& guasto) {
        EXPECT_EQ(guasto.codice(), 11);
    }
}

TEST_F(TabellaVerifiche, IntervalTextRunsPastMidnight) {
    rotonda().TempoIniziale(oraDelGiorno(23, 50));
    EXPECT_EQ(testoIntervallo(rotonda(), 1), "23:50 - 00:05");
}

TEST_F(TabellaVerifiche, ExportsItsTextByteForByte) {
    // Widths: 13 + 2, 17 + 2, 17 + 2, 18 + 2, 11 + 2, 16 + 2, 6 + 2.
    const std::string r = "\r\n";
    const std::string atteso =
        "Risultati: Verifiche prestazionali" + r + r +
        "               \t  Flusso [veic/min]\t  Capacità [veic/h]\t  Coeff. saturazione\t  Coda [veic]\t  Ritardo "
        "[s/veic]\t  L.O.S.\t" +
        r + r +
        "  08:00 - 08:15\t                   \t                   \t                    \t             \t"
        "                  \t        \t" +
        r +
        "         Ramo A\t              10,00\t             900,00\t               0,667\t          5,3\t"
        "              11,4\t       B\t" +
        r +
        "          Città\t               0,01\t            1234,57\t               0,001\t          0,1\t"
        "              10,0\t       A\t" +
        r +
        "         Ramo C\t               0,00\t               0,00\t               0,000\t          0,0\t"
        "               0,0\t       -\t" +
        r + r +
        "  08:15 - 08:30\t                   \t                   \t                    \t             \t"
        "                  \t        \t" +
        r +
        "         Ramo A\t              15,00\t             900,00\t               1,000\t         18,4\t"
        "              50,1\t       F\t" +
        r +
        "          Città\t               0,00\t               0,00\t               0,000\t          0,0\t"
        "               0,0\t       -\t" +
        r +
        "         Ramo C\t               0,00\t               0,00\t               0,000\t          0,0\t"
        "               0,0\t       -\t" +
        r;
    const std::string nome = r + "Nome Progetto: Prova" + r;
    EXPECT_EQ(testoVerifiche(piena(), rotonda(), momento),
              atteso + r + "Output creato con Kelvo V1.0.0 il 21/11/2026 10:30:05" + nome);
    // The exchange file of the spreadsheet: the day alone, and no empty line before it.
    EXPECT_EQ(testoScambio(piena(), rotonda(), momento),
              atteso + "Output creato con Kelvo V1.0.0 il 21/11/2026" + nome);
}

}  // namespace
}  // namespace kelvo
