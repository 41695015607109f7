// The map of the levels of service, on records written by hand.

#include <gtest/gtest.h>

#include "base/guasto.h"
#include "comune/finti.h"
#include "results/mappaLivelli.h"

namespace kelvo {
namespace {

using prove::AppFinta;

class Mappa : public testing::Test {
protected:
    Mappa() { studio(oraDelGiorno(8, 0), 15, 8); }
    void studio(DataOra inizio, int passo, int segmenti) {
        Rotonda& r = rotonda();
        r.Clear();
        r.NumeroRami(3);
        r.TempoIniziale(inizio);
        r.SegmentoTempo(oraDelGiorno(0, passo));
        r.TempoFinale(inizio + passo * segmenti / 1440.0);
        for (const char* chiave : {"1Ramo", "2Ramo", "3Ramo"}) {
            r.AddRamo(chiave);
        }
        for (std::int16_t i = 1; i <= 3; ++i) {
            r.Ramo(i).theDatiTraffico().NumSegmentiTempo(static_cast<std::int16_t>(segmenti));
        }
    }
    Rotonda& rotonda() { return finta.app.theRotonda(); }
    void ritardi(std::int16_t ramo, const std::vector<float>& valori) {
        std::int16_t s = 0;
        for (const float ritardo : valori) {
            rotonda().Ramo(ramo).theDatiTraffico().SetIterazione(++s, {1.0F, 900.0F, 0.5F, 1.0F, ritardo});
        }
    }
    AppFinta finta;
};

TEST_F(Mappa, HasAnEntryARowAndASegmentAColumn) {
    const Tabella t = mappaLivelli(rotonda());
    ASSERT_EQ(t.righe(), 1 + 3);
    ASSERT_EQ(t.colonne(), 1 + 8);
    EXPECT_EQ(t.testo(0, 0), "");
    EXPECT_EQ(t.testo(0, 1), "08:00 - 08:15");
    EXPECT_EQ(t.testo(0, 8), "09:45 - 10:00");
    EXPECT_EQ(t.testo(1, 0), "Ramo A");
    EXPECT_EQ(t.testo(3, 0), "Ramo C");
    EXPECT_EQ(t.cella(0, 3).sfondo, (Colore{0, 98, 0}));
    EXPECT_EQ(t.cella(2, 0).sfondo, (Colore{164, 196, 0}));
}

TEST_F(Mappa, EachLevelStandsOnItsOwnGroundInALetterThatCanBeRead) {
    ritardi(2, {0.04F, 10.04F, 15.0F, 25.0F, 35.0F, 50.0F, 50.06F});
    const Tabella t = mappaLivelli(rotonda());
    const std::vector<std::string> lettere{"-", "A", "B", "C", "D", "E", "F", "-"};
    const std::vector<Colore> fondi{{255, 255, 255}, {0, 98, 0},     {63, 122, 0}, {164, 196, 0},
                                    {255, 210, 77},  {240, 138, 36}, {140, 0, 25}, {255, 255, 255}};
    for (int c = 1; c <= 8; ++c) {
        const Cella& cella = t.cella(2, c);
        EXPECT_EQ(cella.testo, lettere[static_cast<std::size_t>(c) - 1]);
        EXPECT_EQ(cella.sfondo, fondi[static_cast<std::size_t>(c) - 1]);
        EXPECT_GE(contrasto(cella.inchiostro, cella.sfondo), 4.5) << cella.testo;
    }
    EXPECT_EQ(t.testo(1, 2), "-") << "other entries have their own records";
}

TEST_F(Mappa, WithoutFiguresItsCellsAreEmpty) {
    ritardi(1, {20.0F});
    const Tabella t = mappaLivelliVuota(rotonda());
    ASSERT_EQ(t.righe(), 4);
    ASSERT_EQ(t.colonne(), 9);
    EXPECT_EQ(t.testo(1, 1), "");
    EXPECT_EQ(t.cella(1, 1).sfondo, (Colore{220, 220, 220}));
    EXPECT_EQ(t.testo(0, 1), "08:00 - 08:15");
}

TEST_F(Mappa, AWindowWithoutIntervalsHasNamesAlone) {
    studio(oraDelGiorno(8, 0), 15, 0);
    EXPECT_EQ(mappaLivelli(rotonda()).colonne(), 1);
    EXPECT_TRUE(oreMappa(rotonda()).empty());
    rotonda().SegmentoTempo(oraDelGiorno(1, 0));
    EXPECT_EQ(mappaLivelliVuota(rotonda()).colonne(), 1);
    EXPECT_TRUE(oreMappa(rotonda()).empty());
    EXPECT_EQ(mappaLivelliVuota(rotonda()).testo(3, 0), "Ramo C");
}

TEST_F(Mappa, MoreSegmentsThanIntervalsAreAFault) {
    rotonda().Ramo(3).theDatiTraffico().NumSegmentiTempo(9);
    try {
        mappaLivelli(rotonda());
        FAIL();
    } catch (const Guasto& guasto) {
        EXPECT_EQ(guasto.numero(), NumeroGuasto::indiceFuoriIntervallo);
        EXPECT_NE(guasto.descrizione().find("Ramo C: 9 segmenti in 8 intervalli"), std::string::npos);
    }
}

TEST_F(Mappa, MarksStartAndWholeHours) {
    EXPECT_EQ(oreMappa(rotonda()), (std::vector<OraMappa>{{0.0, "08:00"}, {4.0, "09:00"}, {8.0, "10:00"}}));
    // From 07:50 on in segments of 20 minutes to 09:10: 08:00 is half a segment behind the start.
    studio(oraDelGiorno(7, 50), 20, 4);
    EXPECT_EQ(oreMappa(rotonda()), (std::vector<OraMappa>{{0.0, "07:50"}, {0.5, "08:00"}, {3.5, "09:00"}}));
    studio(oraDelGiorno(8, 10), 10, 3);
    EXPECT_EQ(oreMappa(rotonda()), (std::vector<OraMappa>{{0.0, "08:10"}}));
    studio(oraDelGiorno(23, 30), 30, 2);
    EXPECT_EQ(oreMappa(rotonda()), (std::vector<OraMappa>{{0.0, "23:30"}, {1.0, "00:00"}}));
}

TEST_F(Mappa, TellsACellInWords) {
    ritardi(2, {5.0F, 60.0F});
    const Tabella t = mappaLivelli(rotonda());
    EXPECT_EQ(parolaMappa(t, {2, 2}), "Ramo B, 08:15 - 08:30: L.O.S. F");
    EXPECT_EQ(parolaMappa(t, {1, 1}), "Ramo A, 08:00 - 08:15: L.O.S. -");
    for (const Posto posto : {Posto{0, 1}, Posto{1, 0}, Posto{-1, -1}, Posto{4, 1}, Posto{1, 9}}) {
        EXPECT_EQ(parolaMappa(t, posto), "") << posto.riga << " " << posto.colonna;
    }
    EXPECT_EQ(parolaMappa(mappaLivelliVuota(rotonda()), {2, 2}), "");
}

}  // namespace
}  // namespace kelvo
