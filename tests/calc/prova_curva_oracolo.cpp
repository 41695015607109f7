// The bars of a demand curve against a second, plain construction.

#include <cmath>
#include <cstdlib>

#include "base/date.h"
#include "base/guasto.h"
#include "base/numeri.h"
#include "calc/curvaTraffico.h"
#include "progetti.h"

namespace kelvo::prove {

namespace {

int intero(double valore) {
    return static_cast<int>(std::nearbyint(valore));
}

/// Step after step. Lengths are multiples of the segment here, so that no quotient lies half-way.
CurvaTraffico costruisci(const DatiCurva& dati) {
    CurvaTraffico curva;
    const double m = dati.minuti;
    const auto minuti12 = static_cast<double>(minutiTra(dati.t1, dati.t2));
    const auto minuti23 = static_cast<double>(minutiTra(dati.t2, dati.t3));
    const int n1 = intero(minuti12 / m);
    int n2 = intero(minuti23 / m - 1.0);
    const int piatto = n2 > 1 ? 0 : 1;
    curva.piatto = piatto == 1;
    const double q3 = curva.piatto ? dati.q2 : dati.q3;
    n2 = intero(minuti23 / m - 1.0 + piatto);
    const auto durata = static_cast<double>(minutiTra(dati.t1, dati.t3));
    if (n1 == 0 || n2 == 0) {
        return curva;
    }
    curva.costruita = true;
    const auto p1 = static_cast<float>((dati.q2 - dati.q1) / n1);
    const auto p2 = static_cast<float>((q3 - dati.q2) / n2);
    float totale = 0.0F;
    for (int i = 0; i <= std::abs(n1) + std::abs(n2) - piatto; ++i) {
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
    const double t = static_cast<double>(totale);
    curva.TotaleArrotondato = formatta(totale, "#0");
    curva.TotaleEsatto = formatta(totale, "#0.00");
    curva.FlussoTotale = formatta(totale, "#0");
    curva.FlussoMedio = formatta(t / durata, "#0.00");
    curva.FlussoOrario = formatta(t / durata * 60.0, "#0.00");
    return curva;
}

void aspettaUguali(const CurvaTraffico& atteso, const CurvaTraffico& trovato, int numero) {
    EXPECT_EQ(trovato.costruita, atteso.costruita) << numero;
    EXPECT_EQ(trovato.piatto, atteso.piatto) << numero;
    EXPECT_EQ(trovato.FlussiSegmento, atteso.FlussiSegmento) << numero;
    EXPECT_EQ(trovato.EtichetteSegmento, atteso.EtichetteSegmento) << numero;
    EXPECT_EQ(trovato.TotaleArrotondato, atteso.TotaleArrotondato) << numero;
    EXPECT_EQ(trovato.TotaleEsatto, atteso.TotaleEsatto) << numero;
    EXPECT_EQ(trovato.FlussoTotale, atteso.FlussoTotale) << numero;
    EXPECT_EQ(trovato.FlussoMedio, atteso.FlussoMedio) << numero;
    EXPECT_EQ(trovato.FlussoOrario, atteso.FlussoOrario) << numero;
}

}  // namespace

TEST(CurvaOracolo, BarsLabelsAndTotalsAgreeOverManyCurves) {
    Caso caso(99);
    int costruite = 0;
    for (int numero = 0; numero < 500; ++numero) {
        DatiCurva dati;
        dati.minuti = std::array{5, 10, 15, 20, 30}[static_cast<std::size_t>(caso.intero(0, 4))];
        dati.q1 = caso.intero(0, 1500) / 100.0;
        dati.q2 = caso.intero(0, 3000) / 100.0;
        dati.q3 = caso.intero(0, 1500) / 100.0;
        const int inizio = caso.intero(0, 23 * 60);
        const int picco = inizio + dati.minuti * caso.intero(caso.volte(0.1) ? -2 : 0, 10);
        const int fine = picco + dati.minuti * caso.intero(caso.volte(0.1) ? -2 : 0, 10);
        dati.t1 = oraDelGiorno(0, inizio);
        dati.t2 = oraDelGiorno(0, picco);
        dati.t3 = oraDelGiorno(0, fine);
        if (fine == inizio) {
            continue;  // mean over no time
        }
        const CurvaTraffico atteso = costruisci(dati);
        costruite += atteso.costruita ? 1 : 0;
        aspettaUguali(atteso, CostruisciCurva(dati), numero);
    }
    EXPECT_GT(costruite, 300);
}

TEST(CurvaOracolo, SegmentOfNoLengthAndCurveOfNoDurationAreDivisionsByZero) {
    DatiCurva dati{.q1 = 1.0,
                   .q2 = 2.0,
                   .q3 = 1.0,
                   .t1 = oraDelGiorno(8, 0),
                   .t2 = oraDelGiorno(9, 0),
                   .t3 = oraDelGiorno(10, 0),
                   .minuti = 0};
    try {
        (void)CostruisciCurva(dati);
        FAIL() << "no fault";
    } catch (const Guasto& guasto) {
        EXPECT_EQ(guasto.codice(), 11);
    }
    dati.minuti = 15;
    dati.t3 = dati.t1;
    try {
        (void)CostruisciCurva(dati);
        FAIL() << "no fault";
    } catch (const Guasto& guasto) {
        EXPECT_EQ(guasto.codice(), 11);
    }
}

}  // namespace kelvo::prove
