// The bars of a demand curve against a second, plain construction.

#include <cmath>
#include <cstdlib>
#include <optional>

#include "base/date.h"
#include "base/numeri.h"
#include "calc/curvaTraffico.h"
#include "comune/guasti.h"
#include "progetti.h"

namespace kelvo::prove {

namespace {

int intero(double valore) {
    return static_cast<int>(std::nearbyint(valore));
}

/// Step after step. Nothing where a stretch has no segment; `piatto` tells the kind of curve in either case.
std::optional<CurvaTraffico> costruisci(const DatiCurva& dati, bool& piatto) {
    CurvaTraffico curva;
    const double m = dati.minuti;
    const auto minuti12 = static_cast<double>(minutiTra(dati.t1, dati.t2));
    const auto minuti23 = static_cast<double>(minutiTra(dati.t2, dati.t3));
    const int n1 = intero(minuti12 / m);
    int n2 = intero(minuti23 / m - 1.0);
    piatto = n2 <= 1;
    curva.piatto = piatto;
    const double q3 = piatto ? dati.q2 : dati.q3;
    n2 = intero(minuti23 / m - 1.0 + (piatto ? 1 : 0));
    const auto durata = static_cast<double>(minutiTra(dati.t1, dati.t3));
    if (n1 == 0 || n2 == 0) {
        return std::nullopt;
    }
    const auto p1 = static_cast<float>((dati.q2 - dati.q1) / n1);
    const auto p2 = static_cast<float>((q3 - dati.q2) / n2);
    float totale = 0.0F;
    for (int i = 0; i <= std::abs(n1) + std::abs(n2) - (piatto ? 1 : 0); ++i) {
        const bool sale = i <= n1;
        const DataOra da = sale ? dati.t1 : dati.t2;
        const int passi = sale ? i : i - n1;
        const double flusso =
            sale ? dati.q1 + i * static_cast<double>(p1) : dati.q2 + (i - n1) * static_cast<double>(p2);
        curva.FlussiSegmento.push_back(static_cast<float>(flusso));
        curva.EtichetteSegmento.push_back(testoHHNN(da + oraDelGiorno(0, passi * dati.minuti)) + "-" +
                                          testoHHNN(da + oraDelGiorno(0, (passi + 1) * dati.minuti)));
        totale = static_cast<float>(static_cast<double>(totale) + static_cast<double>(curva.FlussiSegmento.back()) * m);
    }
    const auto t = static_cast<double>(totale);
    curva.TotaleArrotondato = formatta(totale, "#0");
    curva.TotaleEsatto = formatta(totale, "#0.00");
    curva.totali.FlussoTotale = formatta(totale, "#0");
    curva.totali.FlussoMedio = formatta(t / durata, "#0.00");
    curva.totali.FlussoOrario = formatta(t / durata * 60.0, "#0.00");
    return curva;
}

/// A curve that was there before.
CurvaTraffico vecchia() {
    return {.piatto = false,
            .FlussiSegmento = {7.0F},
            .EtichetteSegmento = {"vecchia"},
            .TotaleArrotondato = "1",
            .TotaleEsatto = "2",
            .totali = {.FlussoTotale = "3", .FlussoMedio = "4", .FlussoOrario = "5"}};
}

void aspettaUguali(const CurvaTraffico& atteso, const CurvaTraffico& trovato, int numero) {
    EXPECT_EQ(trovato.piatto, atteso.piatto) << numero;
    EXPECT_EQ(trovato.FlussiSegmento, atteso.FlussiSegmento) << numero;
    EXPECT_EQ(trovato.EtichetteSegmento, atteso.EtichetteSegmento) << numero;
    EXPECT_EQ(trovato.TotaleArrotondato, atteso.TotaleArrotondato) << numero;
    EXPECT_EQ(trovato.TotaleEsatto, atteso.TotaleEsatto) << numero;
    EXPECT_EQ(trovato.totali, atteso.totali) << numero;
}

/// q 4, 10, 2 from 08:00 with the peak at 08:30, by 10 minutes.
DatiCurva perDieci(DataOra t3) {
    return {
        .q1 = 4.0, .q2 = 10.0, .q3 = 2.0, .t1 = oraDelGiorno(8, 0), .t2 = oraDelGiorno(8, 30), .t3 = t3, .minuti = 10};
}

}  // namespace

TEST(CurvaOracolo, BarsLabelsAndTotalsAgreeOverManyCurves) {
    Caso caso(99);
    int costruite = 0;
    int meta = 0;
    for (int numero = 0; numero < 1000; ++numero) {
        DatiCurva dati;
        dati.minuti = std::array{5, 10, 15, 20, 30}[static_cast<std::size_t>(caso.intero(0, 4))];
        dati.q1 = caso.intero(0, 1500) / 100.0;
        dati.q2 = caso.intero(0, 3000) / 100.0;
        dati.q3 = caso.intero(0, 1500) / 100.0;
        // Lengths of whole and half segments, of five minutes, and of any minute.
        const int passo = std::array{dati.minuti, dati.minuti, 5, 1}[static_cast<std::size_t>(caso.intero(0, 3))];
        const int passi = 10 * dati.minuti / passo;
        const int inizio = caso.intero(0, 23 * 60);
        const int picco = inizio + passo * caso.intero(caso.volte(0.1) ? -passi / 5 : 0, passi);
        const int fine = picco + passo * caso.intero(caso.volte(0.1) ? -passi / 5 : 0, passi);
        dati.t1 = oraDelGiorno(0, inizio);
        dati.t2 = oraDelGiorno(0, picco);
        dati.t3 = oraDelGiorno(0, fine);
        if (fine == inizio) {
            continue;  // mean over no time
        }
        CurvaTraffico atteso = vecchia();
        const std::optional<CurvaTraffico> nuova = costruisci(dati, atteso.piatto);
        if (nuova) {
            atteso = *nuova;
        }
        costruite += nuova ? 1 : 0;
        meta += nuova && 2 * (fine - picco) % (2 * dati.minuti) == dati.minuti ? 1 : 0;
        CurvaTraffico trovato = vecchia();
        EXPECT_EQ(CostruisciCurva(dati, trovato), nuova.has_value()) << numero;
        aspettaUguali(atteso, trovato, numero);
    }
    EXPECT_GT(costruite, 600);
    EXPECT_GT(meta, 30);
}

TEST(CurvaOracolo, HalfASegmentGoesToTheEvenNumberOfTheWholeExpression) {
    using Barre = std::vector<float>;
    CurvaTraffico curva;
    // 25 minutes: 1.5 is 2. Total (4 + 6 + 8 + 10 + 6 + 2) x 10 over 55 minutes.
    ASSERT_TRUE(CostruisciCurva(perDieci(oraDelGiorno(8, 55)), curva));
    EXPECT_FALSE(curva.piatto);
    EXPECT_EQ(curva.FlussiSegmento, (Barre{4.0F, 6.0F, 8.0F, 10.0F, 6.0F, 2.0F}));
    EXPECT_EQ(curva.EtichetteSegmento.front(), "08:00-08:10");
    EXPECT_EQ(curva.EtichetteSegmento.back(), "08:50-09:00");
    EXPECT_EQ(curva.totali, (TotaliTraffico{"360", "6,55", "392,73"}));
    // 35 minutes: 2.5 is 2.
    ASSERT_TRUE(CostruisciCurva(perDieci(oraDelGiorno(9, 5)), curva));
    EXPECT_FALSE(curva.piatto);
    EXPECT_EQ(curva.FlussiSegmento, (Barre{4.0F, 6.0F, 8.0F, 10.0F, 6.0F, 2.0F}));
    EXPECT_EQ(curva.totali, (TotaliTraffico{"360", "5,54", "332,31"}));
    // 15 minutes: 0.5 is 0, a flat curve; then 1.5 is 2.
    ASSERT_TRUE(CostruisciCurva(perDieci(oraDelGiorno(8, 45)), curva));
    EXPECT_TRUE(curva.piatto);
    EXPECT_EQ(curva.FlussiSegmento, (Barre{4.0F, 6.0F, 8.0F, 10.0F, 10.0F}));
    // A rise of 25 minutes: 2.5 is 2.
    DatiCurva dati = perDieci(oraDelGiorno(9, 0));
    dati.t1 = oraDelGiorno(8, 5);
    ASSERT_TRUE(CostruisciCurva(dati, curva));
    EXPECT_EQ(curva.FlussiSegmento, (Barre{4.0F, 7.0F, 10.0F, 6.0F, 2.0F}));
}

TEST(CurvaOracolo, CurveWithoutSegmentsLeavesTheBarsAndTellsWhetherItIsFlat) {
    CurvaTraffico curva = vecchia();
    CurvaTraffico atteso = vecchia();
    // Half a segment behind the peak: -0.5 is 0, and 0.5 is 0.
    EXPECT_FALSE(CostruisciCurva(perDieci(oraDelGiorno(8, 35)), curva));
    atteso.piatto = true;
    aspettaUguali(atteso, curva, 1);
    // No rise, with a fall of three.
    DatiCurva dati = perDieci(oraDelGiorno(9, 0));
    dati.t1 = dati.t2;
    EXPECT_FALSE(CostruisciCurva(dati, curva));
    atteso.piatto = false;
    aspettaUguali(atteso, curva, 2);
}

TEST(CurvaOracolo, CurveOfNoDurationFaultsWithItsBarsWritten) {
    // Up in three segments, three segments back: the mean is over no time.
    CurvaTraffico curva = vecchia();
    const DatiCurva dati = perDieci(oraDelGiorno(8, 0));
    EXPECT_EQ(numeroGuasto([&] { (void)CostruisciCurva(dati, curva); }), 11);
    // -3 - 1 + 1 = -3 segments of a flat curve: 3 + 3 - 1 + 1 bars.
    EXPECT_TRUE(curva.piatto);
    EXPECT_EQ(curva.FlussiSegmento, (std::vector<float>{4.0F, 6.0F, 8.0F, 10.0F, 10.0F, 10.0F}));
    EXPECT_EQ(curva.EtichetteSegmento.size(), 6U);
    EXPECT_EQ(curva.TotaleArrotondato, "480");
    EXPECT_EQ(curva.TotaleEsatto, "480,00");
    EXPECT_EQ(curva.totali, (TotaliTraffico{"480", "4", "5"}));
}

TEST(CurvaOracolo, SegmentOfNoLengthFaultsWithNothingWritten) {
    CurvaTraffico curva = vecchia();
    DatiCurva dati = perDieci(oraDelGiorno(8, 35));
    dati.minuti = 0;
    EXPECT_EQ(numeroGuasto([&] { (void)CostruisciCurva(dati, curva); }), 11);
    aspettaUguali(vecchia(), curva, 0);
}

TEST(CurvaOracolo, FlowsAndTotalsTooLargeForASingleOverflow) {
    CurvaTraffico curva = vecchia();
    DatiCurva dati = perDieci(oraDelGiorno(9, 0));
    dati.q1 = dati.q2 = dati.q3 = 4e38;  // no slope, but no single
    EXPECT_EQ(numeroGuasto([&] { (void)CostruisciCurva(dati, curva); }), 6);
    dati.q1 = dati.q2 = dati.q3 = 3e38;  // a single, but not ten minutes of it
    EXPECT_EQ(numeroGuasto([&] { (void)CostruisciCurva(dati, curva); }), 6);
    dati.q2 = 2e39;  // a slope of 5.7e38
    curva = vecchia();
    EXPECT_EQ(numeroGuasto([&] { (void)CostruisciCurva(dati, curva); }), 6);
    aspettaUguali(vecchia(), curva, 0);
    dati.q1 = dati.q2 = dati.q3 = 4e36;
    EXPECT_EQ(numeroGuasto([&] { (void)CostruisciCurva(dati, curva); }), 0);
}

TEST(CurvaOracolo, ParametersOfALegPassThroughTheirText) {
    Banco banco(3);
    banco.rotonda().SegmentoTempo(oraDelGiorno(0, 20));
    DatiTraffico& traffico = banco.ramo(2).theDatiTraffico();
    traffico.FlussoTempo1(0.1F);
    traffico.FlussoTempo2(12.3456784F);  // eight digits are one too many
    traffico.FlussoTempo3(-2.5F);
    traffico.Tempo1(oraDelGiorno(8, 1));
    traffico.Tempo2(oraDelGiorno(8, 12));
    traffico.Tempo3(oraDelGiorno(8, 53));
    const DatiCurva dati = datiCurvaDi(banco.rotonda(), banco.ramo(2));
    EXPECT_EQ(dati.q1, 0.1);
    EXPECT_EQ(dati.q2, 12.34568);
    EXPECT_EQ(dati.q3, -2.5);
    EXPECT_EQ(dati.t1, oraDelGiorno(8, 1));
    EXPECT_EQ(dati.t2, oraDelGiorno(8, 12));
    EXPECT_EQ(dati.t3, oraDelGiorno(8, 53));
    EXPECT_EQ(dati.minuti, 20);
}

TEST(Totali, TableAddsUpTheSegmentsOfTheWindow) {
    Banco banco(3);
    banco.finestra(oraDelGiorno(8, 0), oraDelGiorno(9, 30), 15, 6);
    DatiTraffico& traffico = banco.ramo(2).theDatiTraffico();
    for (std::int16_t k = 0; k < 6; ++k) {
        traffico.FlussoSegmento(static_cast<float>(10 * (k + 1)) + 0.25F, k, 0);
    }
    const auto totali = [&] { return totaliTabella(banco.rotonda(), banco.ramo(2)); };
    // 211.5 vehicles over 90 minutes
    EXPECT_EQ(totali(), (TotaliTraffico{"212", "2,35", "141,00"}));
    // 35 of 10 minutes are 4 segments, 25 are 2; rows past the window do not count.
    banco.rotonda().SegmentoTempo(oraDelGiorno(0, 10));
    banco.rotonda().TempoFinale(oraDelGiorno(8, 35));
    EXPECT_EQ(totali(), (TotaliTraffico{"101", "2,89", "173,14"}));
    banco.rotonda().TempoFinale(oraDelGiorno(8, 25));
    EXPECT_EQ(totali(), (TotaliTraffico{"31", "1,22", "73,20"}));
    // 5 of 10 are none.
    banco.rotonda().TempoFinale(oraDelGiorno(8, 5));
    EXPECT_EQ(totali(), std::nullopt);
    banco.rotonda().TempoFinale(oraDelGiorno(8, 0));
    EXPECT_EQ(totali(), std::nullopt);
    // A window that ends before it starts has a number of segments, and no vehicles.
    banco.rotonda().TempoFinale(oraDelGiorno(7, 0));
    EXPECT_EQ(totali(), (TotaliTraffico{"0", "0,00", "0,00"}));
    banco.rotonda().SegmentoTempo(oraDelGiorno(1, 0));
    EXPECT_EQ(numeroGuasto([&] { (void)totali(); }), 11);
}

TEST(Totali, TableTooLargeForASingleOverflows) {
    Banco banco(3);
    banco.ramo(1).theDatiTraffico().FlussoSegmento(3e38F, 0, 0);
    banco.ramo(1).theDatiTraffico().FlussoSegmento(3e38F, 1, 0);
    EXPECT_EQ(numeroGuasto([&] { (void)totaliTabella(banco.rotonda(), banco.ramo(1)); }), 6);
}

TEST(Totali, CurveGivesItsOwnOrNothing) {
    Banco banco(3);
    banco.rotonda().SegmentoTempo(oraDelGiorno(0, 10));
    DatiTraffico& traffico = banco.ramo(1).theDatiTraffico();
    traffico.FlussoTempo1(4.0F);
    traffico.FlussoTempo2(10.0F);
    traffico.FlussoTempo3(2.0F);
    traffico.Tempo1(oraDelGiorno(8, 0));
    traffico.Tempo2(oraDelGiorno(8, 30));
    traffico.Tempo3(oraDelGiorno(8, 55));
    EXPECT_EQ(totaliCurva(banco.rotonda(), banco.ramo(1)), (TotaliTraffico{"360", "6,55", "392,73"}));
    traffico.Tempo1(oraDelGiorno(8, 30));
    EXPECT_EQ(totaliCurva(banco.rotonda(), banco.ramo(1)), std::nullopt);
}

}  // namespace kelvo::prove
