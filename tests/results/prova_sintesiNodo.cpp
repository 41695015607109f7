// Peak hours of entries and junction, on records written by hand. The expected figures are worked out in the comments.

#include <gtest/gtest.h>

#include "base/guasto.h"
#include "comune/finti.h"
#include "results/sintesiNodo.h"

namespace kelvo {
namespace {

using prove::AppFinta;

const DataOra momento = giornoCalendario(2026, 11, 21) + oraDelGiorno(10, 30, 5);

class Sintesi : public testing::Test {
protected:
    Sintesi() { studio(15, 6); }
    /// Three legs, so many segments of so many minutes from 08:00, records all 0.
    void studio(int passo, int segmenti) {
        Rotonda& r = rotonda();
        r.Clear();
        r.NumeroRami(3);
        r.TempoIniziale(oraDelGiorno(8, 0));
        r.SegmentoTempo(oraDelGiorno(0, passo));
        r.TempoFinale(oraDelGiorno(8, 0) + passo * segmenti / 1440.0);
        for (const char* chiave : {"1Ramo", "2Ramo", "3Ramo"}) {
            r.AddRamo(chiave);
        }
        r.NomeFile("Prova");
        for (std::int16_t i = 1; i <= 3; ++i) {
            r.Ramo(i).theDatiTraffico().NumSegmentiTempo(static_cast<std::int16_t>(segmenti));
        }
    }
    Rotonda& rotonda() { return finta.app.theRotonda(); }
    void record(int ramo, const std::vector<Iterazione>& righe) {
        std::int16_t s = 0;
        for (const Iterazione& riga : righe) {
            rotonda().Ramo(static_cast<std::int16_t>(ramo)).theDatiTraffico().SetIterazione(++s, riga);
        }
    }
    SintesiNodo sintesi() { return sintesiNodo(rotonda()); }
    std::vector<std::string> riga(int r) {
        const Tabella t = tabellaSintesi(rotonda(), sintesi());
        std::vector<std::string> testi;
        for (int c = 0; c < t.colonne(); ++c) {
            testi.push_back(t.testo(r, c));
        }
        return testi;
    }
    AppFinta finta;
};

/// Flow, capacity, saturation, queue, delay.
const std::vector<Iterazione> primo{{5.0F, 1000.0F, 0.3F, 0.0F, 5.0F},    {10.0F, 1000.0F, 0.6F, 1.0F, 10.0F},
                                    {14.0F, 900.0F, 0.933F, 6.0F, 30.0F}, {16.0F, 800.0F, 1.2F, 9.0F, 60.0F},
                                    {10.0F, 900.0F, 0.667F, 4.0F, 20.0F}, {4.0F, 1000.0F, 0.24F, 0.0F, 4.0F}};
const std::vector<Iterazione> secondo{{12.0F, 800.0F, 0.85F, 2.0F, 8.0F}, {8.0F, 900.0F, 0.5F, 1.0F, 6.0F},
                                      {6.0F, 900.0F, 0.4F, 1.0F, 4.0F},   {4.0F, 1000.0F, 0.24F, 0.0F, 3.0F},
                                      {2.0F, 1000.0F, 0.12F, 0.0F, 2.0F}, {1.0F, 1000.0F, 0.06F, 0.0F, 2.0F}};

TEST_F(Sintesi, FindsThePeakHourOfAnEntryAndItsFigures) {
    record(1, primo);
    // Runs of four: 45, 50, 44. The second, 08:15 - 09:15: flow 50 / 4 * 60 = 750, capacity (1000 + 900 + 800 + 900) /
    // 4 = 900, 1 - 750 / 900 = 0.16667, delay (100 + 420 + 960 + 200) / 50 = 33.6.
    const VoceSintesi voce = sintesi().ingressi[0];
    EXPECT_EQ(voce.segmento, 2);
    EXPECT_EQ(voce.Flusso, 750.0F);
    EXPECT_EQ(voce.Capacita, 900.0F);
    ASSERT_TRUE(voce.riserva);
    EXPECT_NEAR(*voce.riserva, 1.0 / 6.0, 1e-7);
    EXPECT_EQ(voce.riservaVeicoli, 150.0F);
    EXPECT_FLOAT_EQ(voce.Ritardo, 33.6F);
    EXPECT_EQ(voce.livello, "D");
    EXPECT_EQ(riga(1), (std::vector<std::string>{"Ramo A", "08:15 - 09:15", "750,00", "900,00", "0,167", "150,00",
                                                 "1,200", "08:45 - 09:00", "33,6", "D"}));
}

TEST_F(Sintesi, TheLargestSaturationIsThatOfTheWholeStudyAndTheFirstOfEqualOnes) {
    auto righe = primo;
    righe[5].Coeff_Sat = 1.2003F;  // shown as the fourth is, and outside the peak hour
    record(1, righe);
    const VoceSintesi voce = sintesi().ingressi[0];
    EXPECT_EQ(voce.segmentoSat, 4);
    EXPECT_TRUE(voce.saturazioneAlta);
    righe[5].Coeff_Sat = 1.2006F;
    record(1, righe);
    EXPECT_EQ(sintesi().ingressi[0].segmentoSat, 6);
}

TEST_F(Sintesi, WarnsAboveTheThresholdAsItIsShownAndNotOnIt) {
    for (const auto& [saturazione, alta] :
         std::vector<std::pair<float, bool>>{{0.85F, false}, {0.8504F, false}, {0.8505F, true}, {0.851F, true}}) {
        record(2, {{1.0F, 800.0F, saturazione, 0.0F, 2.0F}});
        EXPECT_EQ(sintesi().ingressi[1].saturazioneAlta, alta) << saturazione;
        EXPECT_EQ(avvisoSaturazione(rotonda(), sintesi()).empty(), !alta) << saturazione;
    }
}

TEST_F(Sintesi, TheJunctionHasAPeakHourOfItsOwn) {
    record(1, primo);
    record(2, secondo);
    // Sums 17 18 20 20 12 5; runs of four: 75, 70, 57: the junction's hour is the first, 08:00 - 09:00, that of entry 1
    // is the second. Flow 75 * 15 = 1125. Capacity: entry 1 (1000 + 1000 + 900 + 800) / 4 = 925, entry 2 (800 + 900 +
    // 900 + 1000) / 4 = 900, entry 3 0. Delay: 25 + 100 + 420 + 960 + 96 + 48 + 24 + 12 = 1685, over 75 = 22.4667.
    const SintesiNodo s = sintesi();
    EXPECT_EQ(s.ingressi[0].segmento, 2);
    EXPECT_EQ(s.ingressi[1].segmento, 1);
    EXPECT_EQ(s.nodo.segmento, 1);
    EXPECT_EQ(s.nodo.ingressoSat, 1);
    EXPECT_EQ(riga(4), (std::vector<std::string>{"Nodo", "08:00 - 09:00", "1125,00", "1825,00", "0,384", "700,00",
                                                 "1,200", "08:45 - 09:00", "22,5", "C"}));
    EXPECT_EQ(ingressoPeggiore(rotonda(), s),
              "Ingresso peggiore: Ramo A, saturazione 1,200 nel segmento 08:45 - 09:00.");
    EXPECT_EQ(avvisoSaturazione(rotonda(), s), "Saturazione oltre 0,85: Ramo A 1,200 (08:45 - 09:00).");
}

TEST_F(Sintesi, NamesEveryEntryWithAHighSaturationAndTheFirstOfEquallyBadOnesAsTheWorst) {
    record(2, {{}, {1.0F, 800.0F, 0.9F, 0.0F, 2.0F}});
    record(3, {{1.0F, 800.0F, 0.9F, 0.0F, 2.0F}});
    const SintesiNodo s = sintesi();
    EXPECT_EQ(avvisoSaturazione(rotonda(), s),
              "Saturazione oltre 0,85: Ramo B 0,900 (08:15 - 08:30); Ramo C 0,900 (08:00 - 08:15).");
    EXPECT_EQ(s.nodo.ingressoSat, 2);
    EXPECT_EQ(s.nodo.segmentoSat, 2);
}

TEST_F(Sintesi, OfEqualHoursTheFirstIsThePeak) {
    const std::vector<Iterazione> piatto(6, {8.1F, 900.0F, 0.54F, 1.0F, 7.0F});
    record(1, piatto);
    EXPECT_EQ(sintesi().ingressi[0].segmento, 1);
    // Noise below the figures shown makes no peak: 8.1 and 8.10001 both come to 486,00 veic/h.
    auto rumore = piatto;
    rumore[5].Flusso = 8.10001F;
    record(1, rumore);
    EXPECT_EQ(sintesi().ingressi[0].segmento, 1);
    rumore[5].Flusso = 8.2F;
    record(1, rumore);
    EXPECT_EQ(sintesi().ingressi[0].segmento, 3);
}

TEST_F(Sintesi, SegmentsThatDoNotDivideTheHourMakeTheLongestRunThatFitsIt) {
    studio(25, 4);
    record(1, {{1.0F, 600.0F, 0.1F, 0.0F, 2.0F}, {6.0F, 600.0F, 0.6F, 0.0F, 8.0F}, {9.0F, 500.0F, 0.8F, 0.0F, 12.0F}});
    // Two segments, 50 minutes: the second and third, 15 / 2 * 60 = 450 veic/h; delay (48 + 108) / 15 = 10.4.
    const SintesiNodo s = sintesi();
    EXPECT_EQ(s.segmentiOra, 2);
    EXPECT_FALSE(s.oraIntera);
    EXPECT_EQ(riga(1), (std::vector<std::string>{"Ramo A", "08:25 - 09:15", "450,00", "550,00", "0,182", "100,00",
                                                 "0,800", "08:50 - 09:15", "10,4", "B"}));
    EXPECT_EQ(notaOraDiPunta(s).rfind("Ora di punta di ogni ingresso e del nodo: 2 segmenti consecutivi, in tutto 50 "
                                      "minuti, con il flusso maggiore. Il segmento non divide l'ora: i flussi sono "
                                      "riportati all'ora.",
                                      0),
              0U)
        << notaOraDiPunta(s);
}

TEST_F(Sintesi, AStudyShorterThanAnHourIsItsOwnPeakHour) {
    studio(15, 2);
    record(1, {{4.0F, 600.0F, 0.4F, 0.0F, 3.0F}, {6.0F, 600.0F, 0.6F, 0.0F, 5.0F}});
    const SintesiNodo s = sintesi();
    EXPECT_EQ(s.segmentiOra, 2);
    EXPECT_TRUE(s.studioBreve);
    // (4 + 6) / 2 * 60 = 300; delay (12 + 30) / 10 = 4.2.
    EXPECT_EQ(riga(1), (std::vector<std::string>{"Ramo A", "08:00 - 08:30", "300,00", "600,00", "0,500", "300,00",
                                                 "0,600", "08:15 - 08:30", "4,2", "A"}));
    EXPECT_EQ(notaOraDiPunta(s).rfind("Lo studio dura meno di un'ora: come ora di punta valgono tutti i suoi 30 "
                                      "minuti; i flussi sono riportati all'ora.",
                                      0),
              0U);
}

TEST_F(Sintesi, OneSegmentIsEnough) {
    studio(30, 1);
    record(3, {{7.0F, 840.0F, 0.5F, 0.0F, 15.0F}});
    EXPECT_EQ(riga(3), (std::vector<std::string>{"Ramo C", "08:00 - 08:30", "420,00", "840,00", "0,500", "420,00",
                                                 "0,500", "08:00 - 08:30", "15,0", "B"}));
    EXPECT_EQ(riga(4)[1], "08:00 - 08:30");
}

TEST_F(Sintesi, AWholeHourIsToldAsSuch) {
    const SintesiNodo s = sintesi();
    EXPECT_EQ(s.segmentiOra, 4);
    EXPECT_TRUE(s.oraIntera);
    EXPECT_FALSE(s.studioBreve);
    EXPECT_EQ(notaOraDiPunta(s).rfind("Ora di punta di ogni ingresso e del nodo: 4 segmenti consecutivi, in tutto 60 "
                                      "minuti, con il flusso maggiore.",
                                      0),
              0U);
    studio(59, 2);
    EXPECT_EQ(notaOraDiPunta(sintesi()).rfind("Ora di punta di ogni ingresso e del nodo: il segmento di 59 minuti con "
                                              "il flusso maggiore. Il segmento non divide l'ora",
                                              0),
              0U);
}

TEST_F(Sintesi, NoFlowHasNoPeakHourAndDividesByNothing) {
    record(1, {{0.0F, 900.0F, 0.0F, 0.0F, 0.0F}});
    const std::vector<std::string> niente{"Ramo A", "-", "0,00", "-", "-", "-", "0,000", "-", "-", "-"};
    EXPECT_EQ(riga(1), niente);
    EXPECT_EQ(riga(4)[1], "-");
    EXPECT_EQ(riga(4)[9], "-");
    EXPECT_EQ(ingressoPeggiore(rotonda(), sintesi()), "");
    EXPECT_EQ(avvisoSaturazione(rotonda(), sintesi()), "");
}

TEST_F(Sintesi, WithoutSegmentsThereIsNoFigure) {
    studio(15, 0);
    const SintesiNodo s = sintesi();
    EXPECT_EQ(s.segmentiOra, 0);
    EXPECT_EQ(riga(1)[1], "-");
    EXPECT_EQ(riga(4)[2], "0,00");
    EXPECT_EQ(notaOraDiPunta(s), "La finestra di modellazione non ha segmenti di tempo.");
}

TEST_F(Sintesi, WithoutCapacityThereIsNoShareOfIt) {
    record(1, {{10.0F, 0.0F, 0.0F, 5.0F, 20.0F}, {10.0F, 0.0F, 0.0F, 5.0F, 20.0F}});
    // Of the four segments two flow: 20 / 4 * 60 = 300.
    EXPECT_EQ(riga(1), (std::vector<std::string>{"Ramo A", "08:00 - 09:00", "300,00", "0,00", "-", "-300,00", "0,000",
                                                 "-", "20,0", "C"}));
}

TEST_F(Sintesi, ADelayIsGradedAsItIsShown) {
    // One constant delay of 12.45, which is a little less as a single: shown as the other tables show it, 12,5.
    record(1, std::vector<Iterazione>(6, {3.0F, 600.0F, 0.3F, 0.0F, 12.45F}));
    EXPECT_EQ(riga(1)[8], "12,5");
    record(1, std::vector<Iterazione>(6, {3.0F, 600.0F, 0.3F, 0.0F, 10.04F}));
    EXPECT_EQ(riga(1)[8], "10,0");
    EXPECT_EQ(riga(1)[9], "A");
    record(1, std::vector<Iterazione>(6, {3.0F, 600.0F, 0.3F, 0.0F, 10.05F}));
    EXPECT_EQ(riga(1)[8], "10,1");
    EXPECT_EQ(riga(1)[9], "B");
}

TEST_F(Sintesi, EntriesOfUnequalLengthCountAsFarAsTheyGo) {
    rotonda().Ramo(2).theDatiTraffico().NumSegmentiTempo(2);
    record(1, std::vector<Iterazione>(6, {2.0F, 600.0F, 0.2F, 0.0F, 2.0F}));
    record(2, std::vector<Iterazione>(6, {3.0F, 700.0F, 0.3F, 0.0F, 4.0F}));
    const SintesiNodo s = sintesi();
    EXPECT_EQ(s.ingressi[1].Flusso, 180.0F) << "of its two segments alone";
    EXPECT_EQ(s.ingressi[1].segmenti, 2);
    // 4 x 2 + 2 x 3 = 14 in four segments: 210.
    EXPECT_EQ(s.nodo.Flusso, 210.0F);
    EXPECT_EQ(riga(2)[1], "08:00 - 08:30");
}

TEST_F(Sintesi, SegmentsOfNoLengthAreAFault) {
    rotonda().SegmentoTempo(oraDelGiorno(1, 0));
    try {
        sintesi();
        FAIL();
    } catch (const Guasto& guasto) {
        EXPECT_EQ(guasto.numero(), NumeroGuasto::divisionePerZero);
    }
}

TEST_F(Sintesi, AFlowPastTheRangeOfSinglesIsAFault) {
    record(1, std::vector<Iterazione>(6, {3e38F, 600.0F, 0.3F, 0.0F, 2.0F}));
    try {
        sintesi();
        FAIL();
    } catch (const Guasto& guasto) {
        EXPECT_EQ(guasto.numero(), NumeroGuasto::overflow);
    }
}

TEST_F(Sintesi, TheTableHasItsHeadingsAndColours) {
    record(1, primo);
    const Tabella t = tabellaSintesi(rotonda(), sintesi());
    ASSERT_EQ(t.righe(), 1 + 3 + 1);
    ASSERT_EQ(t.colonne(), 10);
    const std::vector<std::string> attese{"",
                                          "Ora di punta",
                                          "Flusso [veic/h]",
                                          "Capacità [veic/h]",
                                          "Riserva 1 - x",
                                          "Riserva [veic/h]",
                                          "Saturazione massima",
                                          "nel segmento",
                                          "Ritardo medio [s/veic]",
                                          "L.O.S."};
    for (int c = 0; c < 10; ++c) {
        EXPECT_EQ(t.testo(0, c), attese[static_cast<std::size_t>(c)]);
        EXPECT_EQ(t.cella(0, c).sfondo, (Colore{0, 98, 0}));
    }
    EXPECT_EQ(t.cella(1, 0).sfondo, (Colore{164, 196, 0}));
    EXPECT_EQ(t.cella(4, 0).sfondo, (Colore{0, 98, 0}));
    EXPECT_TRUE(t.cella(4, 2).grassetto);
    EXPECT_EQ(t.cella(2, 6).sfondo, (Colore{220, 220, 220}));
    EXPECT_EQ(t.cella(1, 6).sfondo, (Colore{255, 220, 220}));
    EXPECT_EQ(t.cella(4, 7).sfondo, (Colore{255, 220, 220}));
    EXPECT_EQ(t.cella(1, 4).sfondo, (Colore{220, 220, 220})) << "150 veic/h are left";
    EXPECT_EQ(ornamentoSintesi(t, {1, 6}).segno, OrnamentoCella::Segno::attenzione);
    EXPECT_EQ(ornamentoSintesi(t, {1, 7}).segno, OrnamentoCella::Segno::nessuno);
    EXPECT_EQ(ornamentoSintesi(t, {2, 6}).segno, OrnamentoCella::Segno::nessuno);
    EXPECT_EQ(ornamentoSintesi(t, {1, 9}).distintivo, distintivoLivello("D"));
    EXPECT_EQ(ornamentoSintesi(t, {0, 9}).distintivo, std::nullopt);
    EXPECT_EQ(ornamentoSintesi(t, {0, 9}).allineamento, AllineamentoCella::centro);
}

TEST_F(Sintesi, AnHourPastItsCapacityIsMarked) {
    record(1, std::vector<Iterazione>(6, {10.0F, 500.0F, 1.2F, 3.0F, 70.0F}));
    const Tabella t = tabellaSintesi(rotonda(), sintesi());
    EXPECT_EQ(t.testo(1, 4), "-0,200");
    EXPECT_EQ(t.testo(1, 5), "-100,00");
    EXPECT_EQ(t.cella(1, 4).sfondo, (Colore{255, 220, 220}));
    EXPECT_EQ(t.cella(1, 5).sfondo, (Colore{255, 220, 220}));
    EXPECT_EQ(ornamentoSintesi(t, {1, 5}).barra, tinta::errore);
    EXPECT_EQ(t.testo(1, 9), "F");
}

TEST_F(Sintesi, AReserveIsMarkedWhereItsFigureIsShownBelowZero) {
    // 60 * flow - capacity: 600 - 599.996 = 0.004, shown as 0,00; 600 - 599.75 = 0.25, and 1 - 600 / 599.75 = -0.0004,
    // shown as 0,000.
    record(1, std::vector<Iterazione>(6, {10.0F, 599.996F, 1.0F, 3.0F, 70.0F}));
    record(2, std::vector<Iterazione>(6, {10.0F, 599.75F, 1.0F, 3.0F, 70.0F}));
    const SintesiNodo s = sintesi();
    ASSERT_LT(s.ingressi[0].riservaVeicoli, 0.0F);
    const Tabella t = tabellaSintesi(rotonda(), s);
    EXPECT_EQ(t.testo(1, 5), "0,00");
    EXPECT_EQ(t.cella(1, 4).sfondo, (Colore{220, 220, 220}));
    EXPECT_EQ(t.cella(1, 5).sfondo, (Colore{220, 220, 220}));
    EXPECT_EQ(ornamentoSintesi(t, {1, 5}).barra, std::nullopt);
    EXPECT_EQ(t.testo(2, 4), "0,000");
    EXPECT_EQ(t.testo(2, 5), "-0,25");
    EXPECT_EQ(t.cella(2, 4).sfondo, (Colore{220, 220, 220}));
    EXPECT_EQ(t.cella(2, 5).sfondo, (Colore{255, 220, 220}));
}

TEST_F(Sintesi, WithoutFiguresTheTableHasNamesAlone) {
    const Tabella t = tabellaSintesiVuota(rotonda());
    ASSERT_EQ(t.righe(), 5);
    EXPECT_EQ(t.testo(2, 0), "Ramo B");
    EXPECT_EQ(t.testo(4, 0), "Nodo");
    for (int c = 1; c < 10; ++c) {
        EXPECT_EQ(t.testo(2, c), "");
        EXPECT_EQ(ornamentoSintesi(t, {2, c}).distintivo, std::nullopt);
    }
}

TEST_F(Sintesi, TheTextHoldsTableWordsAndClosingLines) {
    studio(15, 1);
    record(1, {{10.0F, 600.0F, 1.0F, 3.0F, 20.0F}});
    const SintesiNodo s = sintesi();
    const std::string testo =
        testoSintesi(tabellaSintesi(rotonda(), s), paroleSintesi(rotonda(), s), rotonda().NomeFile(), momento);
    EXPECT_EQ(testo.rfind("Risultati: Sintesi nodo\r\n\r\n        \t   Ora di punta\t  Flusso [veic/h]\t", 0), 0U)
        << testo;
    EXPECT_NE(testo.find("\r\n  Ramo A\t  08:00 - 08:15\t           600,00\t             600,00\t          0,000\t"),
              std::string::npos)
        << testo;
    EXPECT_NE(
        testo.find("\t       C\t\r\n\r\nSaturazione oltre 0,85: Ramo A 1,000 (08:00 - 08:15).\r\nIngresso peggiore: "
                   "Ramo A, saturazione 1,000 nel segmento 08:00 - 08:15.\r\nLo studio dura meno di un'ora"),
        std::string::npos)
        << testo;
    EXPECT_NE(testo.find("punta, non la capacità ultima.\r\n\r\nOutput creato con Kelvo V1.0.0 il 21/11/2026 "
                         "10:30:05\r\nNome Progetto: Prova\r\n"),
              std::string::npos)
        << testo;
}

}  // namespace
}  // namespace kelvo
