// The search of the peak of a demand curve against a table of expected ones, worked out by ricerca_attesa.py in another
// language.

#include "calc/ricercaCurva.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "base/numeri.h"
#include "calc/spezzata.h"
#include "comune/guasti.h"
#include "ricerca_attesa.h"

namespace kelvo::prove {
namespace {

RichiestaRicerca richiestaDi(const RicercaAttesa& caso) {
    return {.dati = {.t1 = oraDelGiorno(8, caso.t[0]),
                     .t2 = oraDelGiorno(8, caso.t[1]),
                     .t3 = oraDelGiorno(8, caso.t[2]),
                     .minuti = caso.minuti},
            .q1 = caso.q1,
            .obiettivo = leggiNumero(caso.obiettivo).value()};
}

double numero(const std::string& testo) {
    return leggiNumero(testo).value();
}

class Ricerca : public testing::TestWithParam<RicercaAttesa> {};

TEST_P(Ricerca, EndsWhereItShouldAfterItsSteps) {
    const RicercaAttesa& caso = GetParam();
    CurvaTraffico curva;
    std::vector<int> passi;
    const RisultatoRicerca trovato =
        cercaCurva(richiestaDi(caso), curva, [&passi](int passo) { passi.push_back(passo); });
    EXPECT_EQ(trovato.esito, caso.esito);
    EXPECT_EQ(trovato.q2, caso.q2);
    EXPECT_EQ(trovato.q3, caso.q3);
    EXPECT_EQ(trovato.passi, caso.passi);
    EXPECT_EQ(curva.TotaleArrotondato, caso.arrotondato);
    EXPECT_EQ(curva.TotaleEsatto, caso.esatto);
    EXPECT_EQ(trovato.esito == EsitoRicerca::trovata && piccoAnomalo(numero(caso.q1), numero(trovato.q2)),
              caso.anomala);
    EXPECT_EQ(passi.empty() ? 0 : passi.back(), caso.barra);
    const auto contati =
        std::count_if(passi.begin(), passi.end(), [](int passo) { return passo != passiMassimiRicerca; });
    EXPECT_EQ(contati, std::min(caso.passi, passiMassimiRicerca - 1)) << "each step is told once";
}

TEST_P(Ricerca, BuiltAgainGivesItsApproximation) {
    const RicercaAttesa& caso = GetParam();
    const RichiestaRicerca richiesta = richiestaDi(caso);
    CurvaTraffico curva;
    const RisultatoRicerca trovato = cercaCurva(richiesta, curva, [](int) {});
    DatiCurva dati = richiesta.dati;
    dati.q1 = numero(richiesta.q1);
    dati.q2 = numero(trovato.q2);
    dati.q3 = numero(trovato.q3);
    CostruisciCurva(dati, curva);
    EXPECT_EQ(curva.TotaleEsatto, caso.esattoDopo);
    const auto scarto = approssimazione(curva.TotaleEsatto, richiesta.obiettivo);
    EXPECT_EQ(scarto ? formatta(*scarto, "0.0000") + "%" : "", caso.approssimazione);
}

INSTANTIATE_TEST_SUITE_P(Tavola, Ricerca, testing::ValuesIn(ricercheAttese),
                         [](const auto& caso) { return std::string{caso.param.nome}; });

TEST(RicercaCurva, ProgressStartsAgainWhereItWasAfterTheFirstPass) {
    // Met at the first step with q3 above q2: told as done, then on with the second step.
    CurvaTraffico curva;
    std::vector<int> passi;
    cercaCurva(richiestaDi(ricercheAttese[1]), curva, [&passi](int passo) { passi.push_back(passo); });
    ASSERT_EQ(passi.size(), 241U);
    EXPECT_EQ(std::vector<int>(passi.begin(), passi.begin() + 4), (std::vector<int>{1, 20000, 2, 3}));
    EXPECT_EQ(passi[239], 239);
    EXPECT_EQ(passi[240], 20000);
}

TEST(RicercaCurva, LeavesTheCurveAsItWasLastBuilt) {
    // Failed at once: the bars are those of a flat curve at q1 that falls to q3, not those of the peak it went to.
    CurvaTraffico curva;
    cercaCurva(richiestaDi(ricercheAttese[11]), curva, [](int) {});
    EXPECT_EQ(curva.FlussiSegmento, (std::vector<float>{10.0F, 10.0F, 10.0F, 11.0F, 12.0F, 13.0F}));
    EXPECT_EQ(curva.EtichetteSegmento.front(), "08:00-08:15");
    EXPECT_EQ(curva.EtichetteSegmento.back(), "09:15-09:30");
    EXPECT_EQ(curva.totali.FlussoTotale, "990");
    EXPECT_EQ(curva.totali.FlussoMedio, "11,00");
    EXPECT_EQ(curva.totali.FlussoOrario, "660,00");
}

TEST(RicercaCurva, WithoutAStretchTheOldBarsStayAndTheRoundedTotalIsEmpty) {
    CurvaTraffico curva;
    curva.FlussiSegmento = {7.0F};
    curva.TotaleArrotondato = "105";
    curva.TotaleEsatto = "105,00";
    RichiestaRicerca richiesta = richiestaDi(ricercheAttese[0]);
    richiesta.dati.t2 = richiesta.dati.t1;
    const RisultatoRicerca trovato = cercaCurva(richiesta, curva, [](int) {});
    EXPECT_EQ(trovato.esito, EsitoRicerca::passiEsauriti);
    EXPECT_EQ(curva.TotaleArrotondato, "");
    EXPECT_EQ(curva.TotaleEsatto, "105,00");
    EXPECT_EQ(curva.FlussiSegmento, (std::vector<float>{7.0F}));
    EXPECT_EQ(formatta(approssimazione(curva.TotaleEsatto, 600.0).value(), "0.0000"), "-82,5000");
}

TEST(RicercaCurva, FaultsAreThoseOfTheCurveAndOfAQ1ThatIsNoNumber) {
    CurvaTraffico curva;
    RichiestaRicerca richiesta = richiestaDi(ricercheAttese[0]);
    const auto numeroDi = [&] { return numeroGuasto([&] { cercaCurva(richiesta, curva, [](int) {}); }); };
    EXPECT_EQ(numeroDi(), 0);
    richiesta.q1 = "x";
    EXPECT_EQ(numeroDi(), 13);
    richiesta.q1 = std::string(39, '9');
    EXPECT_EQ(numeroDi(), 6);
    richiesta.q1 = "4";
    richiesta.dati.minuti = 0;
    EXPECT_EQ(numeroDi(), 11);
}

TEST(RicercaCurva, RoundingWithoutATextIsThatOfTheText) {
    const auto diTesto = [](float totale) { return leggiNumero(formatta(totale, "#0")).value(); };
    for (int i = 0; i < 200000; ++i) {
        // Steps of no whole number of hundredths, past the six digits where seven leave one decimal.
        const auto totale = static_cast<float>(i * 0.7531);
        ASSERT_EQ(spezzata::arrotondato(totale), diTesto(totale)) << i;
        ASSERT_EQ(spezzata::arrotondato(-totale), diTesto(-totale)) << i;
    }
    for (const float mezzo : {0.5F, 123.5F, 9999.5F, 99999.5F, 123456.46F, 999999.5F, 1e10F}) {
        for (const float totale : {std::nextafter(mezzo, 0.0F), mezzo, std::nextafter(mezzo, 1e30F)}) {
            EXPECT_EQ(spezzata::arrotondato(totale), diTesto(totale)) << totale;
        }
        EXPECT_EQ(spezzata::arrotondato(mezzo + 0.0101F), diTesto(mezzo + 0.0101F)) << mezzo;
    }
    EXPECT_EQ(spezzata::arrotondato(123456.46F), 123457.0) << "seven digits round to 123456,5 first";
}

TEST(RicercaCurva, ShortWayGivesTheTotalOfTheWholeConstruction) {
    // What a step adds up is what the bars add up to, over many peaks.
    DatiCurva dati{
        .q1 = 3.7, .t1 = oraDelGiorno(7, 30), .t2 = oraDelGiorno(8, 15), .t3 = oraDelGiorno(10, 0), .minuti = 15};
    for (int i = 0; i < 2000; ++i) {
        dati.q2 = spezzata::comeTesto(3.7 + i * 0.01);
        dati.q3 = spezzata::comeTesto(3.7 + i % 7 * 0.37);
        CurvaTraffico curva;
        ASSERT_TRUE(CostruisciCurva(dati, curva));
        float somma = 0.0F;
        for (const float flusso : curva.FlussiSegmento) {
            somma = static_cast<float>(static_cast<double>(somma) + static_cast<double>(flusso) * 15.0);
        }
        ASSERT_EQ(curva.totale, somma) << i;
        const spezzata::Forma forma = spezzata::formaDi(dati);
        ASSERT_EQ(spezzata::percorri(forma, spezzata::retteDi(forma, dati.q1, dati.q2, dati.q3), [](int, float) {}),
                  somma)
            << i;
    }
}

}  // namespace
}  // namespace kelvo::prove
