#include "results/tabellaRamo.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "app/nuovoProgetto.h"
#include "comune/finti.h"
#include "comune/guasti.h"
#include "results/grandezze.h"

namespace kelvo::prove {
namespace {

/// Three legs, four segments of 15 minutes from 08:00; records of leg 2 written by hand.
struct TabellaRamo : testing::Test, AppFinta {
    TabellaRamo() {
        creaProgetto(app, 3);
        records({{10.0F, 900.0F, 0.66666669F, 5.25505F, 11.4334F},
                 {15.0F, 800.0F, 1.0F, 18.3581F, 50.05F},
                 {15.001F, 950.5F, 0.2F, 0.04F, 9.96F},
                 {2.5F, 799.999F, 0.301F, 18.36F, 0.04F}});
    }
    Ramo& ramo() { return app.theRotonda().Ramo(2); }
    void records(const std::vector<Iterazione>& valori) {
        ramo().theDatiTraffico().NumSegmentiTempo(static_cast<std::int16_t>(valori.size()));
        for (std::size_t k = 0; k < valori.size(); ++k) {
            ramo().theDatiTraffico().SetIterazione(static_cast<std::int16_t>(k + 1), valori[k]);
        }
    }
    void riempi() {
        tabella = impostaTabellaRamo(app.theRotonda());
        s = riempiTabellaRamo(ramo(), tabella);
    }
    void attendi(int riga, int colonna, Colore sfondo, Colore inchiostro, bool grassetto) {
        const Cella& cella = tabella.cella(riga, colonna);
        EXPECT_EQ(cella.sfondo, sfondo) << riga << ", " << colonna;
        EXPECT_EQ(cella.inchiostro, inchiostro) << riga << ", " << colonna;
        EXPECT_EQ(cella.grassetto, grassetto) << riga << ", " << colonna;
    }
    Tabella tabella;
    StatisticheIngresso s;
};

constexpr Colore verde{0, 98, 0};
constexpr Colore bianco{255, 255, 255};
constexpr Colore nero{0, 0, 0};
constexpr Colore dati{220, 220, 220};
constexpr Colore estremo{200, 200, 200};
constexpr Colore rosso{230, 0, 0};
constexpr Colore verdeMinimo{0, 103, 0};

TEST_F(TabellaRamo, HasARowForEachIntervalAndItsWidths) {
    const Tabella vuota = impostaTabellaRamo(app.theRotonda());
    ASSERT_EQ(vuota.righe(), 5);
    ASSERT_EQ(vuota.colonne(), 7);
    EXPECT_EQ(vuota.larghezze, (std::vector<int>{1300, 1300, 1400, 1400, 1000, 1300, 900}));
    EXPECT_EQ(vuota.altezzaRiga, 300);
    const std::vector<std::string> intestazioni{
        "",      "Flusso [veic/min]", "Capacità [veic/h]", "Coeff. saturazione", "Coda [veic]", "Ritardo [s/veic]",
        "L.O.S."};
    for (int c = 0; c < 7; ++c) {
        EXPECT_EQ(vuota.testo(0, c), intestazioni[static_cast<std::size_t>(c)]);
    }
    EXPECT_EQ(vuota.testo(1, 0), "08:00 - 08:15");
    EXPECT_EQ(vuota.testo(4, 0), "08:45 - 09:00");
    EXPECT_EQ(vuota.testo(4, 6), "");
}

TEST_F(TabellaRamo, AWindowWithoutIntervalsHasTheHeadingsAlone) {
    app.theRotonda().TempoFinale(oraDelGiorno(7, 0));
    EXPECT_EQ(impostaTabellaRamo(app.theRotonda()).righe(), 1);
    app.theRotonda().TempoFinale(oraDelGiorno(9, 0));
    app.theRotonda().SegmentoTempo(oraDelGiorno(1, 0));
    EXPECT_EQ(impostaTabellaRamo(app.theRotonda()).righe(), 1);
}

TEST_F(TabellaRamo, ShowsEachQuantityInItsFormatAndGradesTheDelayShown) {
    riempi();
    const std::vector<std::vector<std::string>> attese{{"10,00", "900,00", "0,667", "5,3", "11,4", "B"},
                                                       {"15,00", "800,00", "1,000", "18,4", "50,1", "F"},
                                                       {"15,00", "950,50", "0,200", "0,0", "10,0", "A"},
                                                       {"2,50", "800,00", "0,301", "18,4", "0,0", "-"}};
    for (int r = 1; r <= 4; ++r) {
        for (int c = 1; c <= 6; ++c) {
            EXPECT_EQ(tabella.testo(r, c), attese[static_cast<std::size_t>(r) - 1][static_cast<std::size_t>(c) - 1])
                << r << ", " << c;
        }
    }
}

TEST_F(TabellaRamo, ExtremesAreComparedToTwoDecimalsAndTheFirstOfEqualsKeepsTheMark) {
    riempi();
    EXPECT_TRUE(s.presenti);
    // Flow 15.001 is 15.00 to two decimals: the second row keeps the mark. Capacity 799.999 is 800.00, as the second.
    EXPECT_EQ(s.RigaMassimo, (std::array<std::int16_t, 5>{2, 3, 2, 2, 2}));
    EXPECT_EQ(s.RigaMinimo, (std::array<std::int16_t, 5>{4, 2, 3, 3, 4}));
    EXPECT_EQ(s.ValoriMassimi, (std::array<double, 5>{15.0, 950.5, 1.0, 18.36, 50.05}));
    EXPECT_EQ(s.ValoriMinimi, (std::array<double, 5>{2.5, 800.0, 0.2, 0.04, 0.04}));
}

TEST_F(TabellaRamo, MeansAreOfTheUnroundedValues) {
    records({{1.004F, 100.0F, 0.5F, 1.0F, 2.0F}, {1.004F, 101.0F, 0.25F, 2.0F, 3.0F}});
    riempi();
    EXPECT_EQ(s.ValoriMedi[0], static_cast<double>(1.004F));
    EXPECT_EQ(s.ValoriMedi[1], 100.5);
    EXPECT_EQ(s.ValoriMedi[2], 0.375);
    EXPECT_EQ(s.ValoriMedi[3], 1.5);
    EXPECT_EQ(s.ValoriMedi[4], 2.5);
}

TEST_F(TabellaRamo, ColoursDataExtremesAndTheCriticalLevel) {
    riempi();
    for (int c = 0; c < 7; ++c) {
        attendi(0, c, verde, bianco, false);
    }
    for (int r = 1; r <= 4; ++r) {
        attendi(r, 0, verde, bianco, false);
    }
    attendi(1, 1, dati, nero, false);
    attendi(1, 6, dati, nero, false);
    attendi(2, 1, estremo, rosso, true);
    attendi(4, 1, estremo, verdeMinimo, true);
    attendi(3, 2, estremo, rosso, true);
    attendi(2, 2, estremo, verdeMinimo, true);
    attendi(2, 6, estremo, {255, 255, 102}, true);
}

TEST_F(TabellaRamo, ARefillTakesEveryEarlierColourAway) {
    riempi();
    tabella.cella(1, 1).sfondo = {1, 2, 3};
    tabella.cella(3, 6).grassetto = true;
    records({{1.0F, 2.0F, 3.0F, 4.0F, 5.0F}, {2.0F, 1.0F, 1.0F, 1.0F, 1.0F}, {1.5F, 1.5F, 2.0F, 2.0F, 2.0F}});
    s = riempiTabellaRamo(ramo(), tabella);
    attendi(1, 1, estremo, verdeMinimo, true);
    attendi(2, 1, estremo, rosso, true);
    attendi(3, 1, dati, nero, false);
    attendi(3, 6, dati, nero, false);
    attendi(2, 6, dati, nero, false);
}

TEST_F(TabellaRamo, ZerosHaveNoMaximumAndTheirMinimumInRowOne) {
    records({{}, {}, {}});
    riempi();
    EXPECT_EQ(s.RigaMassimo, (std::array<std::int16_t, 5>{0, 0, 0, 0, 0}));
    EXPECT_EQ(s.RigaMinimo, (std::array<std::int16_t, 5>{1, 1, 1, 1, 1}));
    attendi(1, 3, estremo, verdeMinimo, true);
    attendi(2, 3, dati, nero, false);
    EXPECT_EQ(s.livelloMinimo, "-");
    EXPECT_EQ(s.livelloMassimo, "-");
    EXPECT_EQ(s.livelloMedio, "-");
}

TEST_F(TabellaRamo, AConstantLiesOnRowOneAndTheMinimumWins) {
    records({{3.0F, 500.0F, 0.36F, 1.0F, 9.0F}, {3.0F, 500.0F, 0.36F, 1.0F, 9.0F}});
    riempi();
    EXPECT_EQ(s.RigaMassimo, (std::array<std::int16_t, 5>{1, 1, 1, 1, 1}));
    EXPECT_EQ(s.RigaMinimo, (std::array<std::int16_t, 5>{1, 1, 1, 1, 1}));
    for (int c = 1; c <= 5; ++c) {
        attendi(1, c, estremo, verdeMinimo, true);
        attendi(2, c, dati, nero, false);
        EXPECT_EQ(ornamentoRamo(tabella, s, {1, c}).segno, OrnamentoCella::Segno::minimo);
    }
}

TEST_F(TabellaRamo, AValueOfTenThousandIsNeverTheSmallest) {
    records({{10000.0F, 9999.99F, 1.0F, 1.0F, 1.0F}});
    riempi();
    EXPECT_EQ(s.RigaMinimo[0], 0);
    EXPECT_EQ(s.ValoriMinimi[0], 10000.0);
    EXPECT_EQ(s.RigaMinimo[1], 1);
    attendi(1, 1, estremo, rosso, true);
}

TEST_F(TabellaRamo, LevelsHaveAMeanOfTheirOwn) {
    records({{1, 1, 1, 1, 60.0F}, {1, 1, 1, 1, 70.0F}});
    riempi();
    EXPECT_EQ(s.livelloMinimo, "F");
    EXPECT_EQ(s.livelloMassimo, "F");
    EXPECT_EQ(s.livelloMedio, "E");
    // Codes 0, 5, 15: 20 / 3 rounds to 7, "B". The smallest is that of no delay.
    records({{1, 1, 1, 1, 0.0F}, {1, 1, 1, 1, 10.0F}, {1, 1, 1, 1, 20.0F}});
    riempi();
    EXPECT_EQ(s.livelloMinimo, "-");
    EXPECT_EQ(s.livelloMassimo, "C");
    EXPECT_EQ(s.livelloMedio, "B");
    // Nine times 10 and once 15: 10.5 goes to the even 10, still "B".
    std::vector<Iterazione> meta(10, Iterazione{1, 1, 1, 1, 12.0F});
    meta[4].Ritardo = 20.0F;
    app.theRotonda().TempoFinale(oraDelGiorno(10, 30));
    records(meta);
    riempi();
    EXPECT_EQ(s.livelloMedio, "B");
    // Once 5 among four: 1.25 is 1, "A".
    std::vector<Iterazione> radi(4, Iterazione{});
    radi[0].Ritardo = 1.0F;
    records(radi);
    riempi();
    EXPECT_EQ(s.livelloMedio, "A");
}

TEST_F(TabellaRamo, AnEntryWithoutSegmentsHasNeitherMarksNorStatistics) {
    records({});
    riempi();
    EXPECT_FALSE(s.presenti);
    EXPECT_EQ(s.livelloMassimo, "");
    EXPECT_EQ(s.RigaMinimo, (std::array<std::int16_t, 5>{0, 0, 0, 0, 0}));
    for (int c = 1; c < 7; ++c) {
        attendi(1, c, dati, nero, false);
        EXPECT_EQ(tabella.testo(1, c), "");
    }
}

TEST_F(TabellaRamo, MoreSegmentsThanIntervalsAreASubscriptFault) {
    records(std::vector<Iterazione>(5));
    tabella = impostaTabellaRamo(app.theRotonda());
    EXPECT_EQ(numeroGuasto([&] { riempiTabellaRamo(ramo(), tabella); }), 9);
    EXPECT_EQ(numeroGuasto([&] { segnaSoglie(ramo(), 2, {}, tabella); }), 9);
}

/// The same table with thresholds.
struct SoglieRamo : TabellaRamo {
    SoglieRamo() { riempi(); }
    void soglia(int q, double minimo, double massimo, double attiva = 1.0) {
        marker.MarkerAttivo(2, q) = attiva;
        marker.MarkerMinimo(2, q) = minimo;
        marker.MarkerMassimo(2, q) = massimo;
    }
    Colore sfondo(int riga, int colonna) const { return tabella.cella(riga, colonna).sfondo; }
    Marker marker;
    static constexpr Colore sopra{255, 220, 220};
    static constexpr Colore sotto{220, 255, 220};
};

TEST_F(SoglieRamo, ValuesStrictlyBeyondAThresholdAreColoured) {
    soglia(1, 10.0, 15.0);
    segnaSoglie(ramo(), 2, marker, tabella);
    EXPECT_EQ(sfondo(1, 1), dati) << "10 is not below 10";
    EXPECT_EQ(sfondo(2, 1), estremo) << "15 is not above 15";
    EXPECT_EQ(sfondo(3, 1), sopra) << "the raw 15.001 is, though 15,00 is shown";
    EXPECT_EQ(sfondo(4, 1), sotto);
    attendi(4, 1, sotto, verdeMinimo, true);
    EXPECT_EQ(sfondo(1, 2), dati) << "other quantities stay";
}

TEST_F(SoglieRamo, ThresholdsAreComparedInSinglePrecision) {
    // The single 0.2 of the record lies above the double 0.2, and equals it as a single.
    soglia(3, 0.2, 0.66666669);
    segnaSoglie(ramo(), 2, marker, tabella);
    EXPECT_EQ(sfondo(3, 3), estremo);
    EXPECT_EQ(sfondo(1, 3), dati);
    EXPECT_EQ(sfondo(2, 3), sopra);
}

TEST_F(SoglieRamo, AThresholdOfZeroOrOneThatIsOffMarksNothing) {
    soglia(5, 0.0, 0.0);
    soglia(2, 850.0, 850.0, 0.0);
    const Tabella prima = tabella;
    segnaSoglie(ramo(), 2, marker, tabella);
    for (int r = 1; r <= 4; ++r) {
        for (int c = 1; c < 7; ++c) {
            EXPECT_EQ(sfondo(r, c), prima.cella(r, c).sfondo) << r << ", " << c;
        }
    }
}

TEST_F(SoglieRamo, LevelsAreComparedByTheirCodes) {
    soglia(6, 10.0, 25.0);  // B to E
    segnaSoglie(ramo(), 2, marker, tabella);
    EXPECT_EQ(sfondo(1, 6), dati);   // B
    EXPECT_EQ(sfondo(2, 6), sopra);  // F
    EXPECT_EQ(sfondo(3, 6), sotto);  // A
    EXPECT_EQ(sfondo(4, 6), sotto);  // -
    attendi(2, 6, sopra, {255, 255, 102}, true);
}

TEST_F(SoglieRamo, MarksStayUntilTheTableIsFilledAgain) {
    soglia(1, 0.0, 12.0);
    segnaSoglie(ramo(), 2, marker, tabella);
    EXPECT_EQ(sfondo(2, 1), sopra);
    soglia(1, 0.0, 100.0);
    segnaSoglie(ramo(), 2, marker, tabella);
    EXPECT_EQ(sfondo(2, 1), sopra);
    riempiTabellaRamo(ramo(), tabella);
    EXPECT_EQ(sfondo(2, 1), estremo);
}

TEST_F(SoglieRamo, ASeventhEntryIsASubscriptFault) {
    EXPECT_EQ(numeroGuasto([&] { segnaSoglie(ramo(), 7, marker, tabella); }), 9);
}

TEST_F(SoglieRamo, SignsBarsAndBadgesStandBesideTheTexts) {
    soglia(1, 5.0, 12.0);
    segnaSoglie(ramo(), 2, marker, tabella);
    const auto o = [&](int r, int c) { return ornamentoRamo(tabella, s, {r, c}); };
    EXPECT_EQ(o(2, 1).segno, OrnamentoCella::Segno::massimo);
    EXPECT_EQ(o(4, 1).segno, OrnamentoCella::Segno::minimo);
    EXPECT_EQ(o(1, 1).segno, OrnamentoCella::Segno::nessuno);
    EXPECT_EQ(o(2, 1).barra, (Colore{176, 0, 32}));
    EXPECT_EQ(o(4, 1).barra, (Colore{0, 98, 0}));
    EXPECT_EQ(o(1, 1).barra, std::nullopt);
    EXPECT_EQ(o(1, 6).distintivo, distintivoLivello("B"));
    EXPECT_EQ(o(1, 6).allineamento, AllineamentoCella::centro);
    EXPECT_EQ(o(0, 6).allineamento, AllineamentoCella::centro);
    EXPECT_EQ(o(0, 6).distintivo, std::nullopt);
    EXPECT_EQ(o(1, 0).segno, OrnamentoCella::Segno::nessuno);
    const Tabella vuota = impostaTabellaRamo(app.theRotonda());
    EXPECT_EQ(ornamentoRamo(vuota, {}, {1, 6}).distintivo, std::nullopt);
    EXPECT_EQ(ornamentoRamo(vuota, {}, {1, 1}).segno, OrnamentoCella::Segno::nessuno);
}

}  // namespace
}  // namespace kelvo::prove
