#include "shell/servizi/scalaGrafico.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace kelvo::prove {
namespace {

using Valori = std::vector<double>;

TEST(ScalaGrafico, AStepThatEndsOnTheTopGoesBeforeARounderOne) {
    const Scala scala = scalaEntro(0, 75, 8);
    EXPECT_EQ(scala.tacche, (Valori{0, 15, 30, 45, 60, 75}));
    EXPECT_EQ(scala.minimo, 0);
    EXPECT_EQ(scala.massimo, 75);
    EXPECT_EQ(scala.testo(45), "45");
}

TEST(ScalaGrafico, AnOddTopKeepsItsPlaceAboveTheLastRoundValue) {
    const Scala scala = scalaEntro(0, 1505, 8);
    EXPECT_EQ(scala.massimo, 1505);
    EXPECT_EQ(scala.tacche, (Valori{0, 200, 400, 600, 800, 1000, 1200, 1400}));
    EXPECT_NEAR(scala.quota(1400), 0.930233, 1e-6);
}

TEST(ScalaGrafico, TicksStandAtRoundValuesBetweenOddEnds) {
    EXPECT_EQ(scalaEntro(1159.52, 1350.61, 8).tacche, (Valori{1200, 1250, 1300, 1350}));
    EXPECT_EQ(scalaEntro(-3, 3, 8).tacche, (Valori{-3, -2, -1, 0, 1, 2, 3}));
}

TEST(ScalaGrafico, EndsMoveOutToRoundValues) {
    const Scala ritardi = scalaAttorno(0, 71.4, 8);
    EXPECT_EQ(ritardi.tacche, (Valori{0, 20, 40, 60, 80}));
    EXPECT_EQ(ritardi.massimo, 80);
    const Scala saturazione = scalaAttorno(0, 1.017, 8);
    EXPECT_EQ(saturazione.massimo, 1.2);
    EXPECT_EQ(saturazione.testo(saturazione.tacche[1]), "0,2");
    EXPECT_EQ(saturazione.testo(0), "0,0");
    const Scala sotto = scalaAttorno(-12, 30, 8);
    EXPECT_EQ(sotto.minimo, -20);
    EXPECT_EQ(sotto.massimo, 30);
}

TEST(ScalaGrafico, TheDecimalsTellTheTicksApart) {
    const Scala quarti = scalaDivisa(0, 1, 5);
    EXPECT_EQ(quarti.tacche, (Valori{0, 0.25, 0.5, 0.75, 1}));
    EXPECT_EQ(quarti.testo(0.25), "0,25");
    EXPECT_EQ(scalaDivisa(0, 30, 7).testo(5), "5");
    EXPECT_EQ(scalaDivisa(0, 1505, 6).testo(301), "301");
    const Scala terzi = scalaDivisa(0, 10, 4);
    EXPECT_EQ(terzi.testo(terzi.tacche[1]), "3,33");
}

TEST(ScalaGrafico, FourToEightRoundTicksOnAnyAxis) {
    for (int i = 0; i < 375; ++i) {
        const double massimo = 1e-4 * std::pow(1.07, i);  // to ten million
        for (const double minimo : {0.0, -0.4 * massimo, 0.9 * massimo}) {
            for (const Scala& scala : {scalaEntro(minimo, massimo, 8), scalaAttorno(minimo, massimo, 8)}) {
                ASSERT_GE(scala.tacche.size(), 4U) << minimo << " " << massimo;
                ASSERT_LE(scala.tacche.size(), 8U) << minimo << " " << massimo;
                const double passo = scala.tacche[1] - scala.tacche[0];
                for (const double tacca : scala.tacche) {
                    ASSERT_GE(tacca, scala.minimo);
                    ASSERT_LE(tacca, scala.massimo);
                    ASSERT_NEAR(tacca / passo, std::round(tacca / passo), 1e-5);
                }
                // At most three digits tell a step.
                const double cifre = passo / std::pow(10.0, std::floor(std::log10(passo)) - 1);
                ASSERT_NEAR(cifre, std::round(cifre), 1e-4) << passo;
                if (minimo <= 0.0) {
                    ASSERT_NEAR(scala.tacche[static_cast<std::size_t>(std::lround(-scala.tacche[0] / passo))], 0.0,
                                1e-9 * passo);
                }
            }
            const Scala attorno = scalaAttorno(minimo, massimo, 8);
            ASSERT_LE(attorno.minimo, minimo);
            ASSERT_GE(attorno.massimo, massimo);
        }
    }
}

TEST(ScalaGrafico, ALowChartHasFewerTicks) {
    for (int quante = 2; quante <= 8; ++quante) {
        EXPECT_LE(scalaEntro(0, 75, quante).tacche.size(), static_cast<std::size_t>(quante));
        EXPECT_GE(scalaEntro(0, 75, quante).tacche.size(), 2U);
    }
    EXPECT_EQ(scalaEntro(0, 75, 100).tacche.size(), 6U);
}

TEST(ScalaGrafico, EndsWithoutLengthGiveAnAxisAllTheSame) {
    EXPECT_EQ(scalaAttorno(0, 0, 8).massimo, 1);
    EXPECT_EQ(scalaEntro(0, 0, 8).massimo, 1);
    const Scala uno = scalaAttorno(7.5, 7.5, 8);
    EXPECT_EQ(uno.minimo, 0);
    EXPECT_GE(uno.massimo, 7.5);
    EXPECT_EQ(scalaAttorno(-4, -4, 8).massimo, 0);
    const Scala quasi = scalaEntro(1e9, 1e9 + 1e-6, 8);
    EXPECT_EQ(quasi.minimo, 0);
    constexpr double limite = std::numeric_limits<double>::max();
    EXPECT_TRUE(std::isfinite(scalaEntro(-limite, limite, 8).quota(3)));
    EXPECT_GE(scalaAttorno(0, 5e-324, 8).tacche.size(), 2U);
}

TEST(ScalaGrafico, WideValueLabelsAreEverySecondOneOrFewer) {
    EXPECT_EQ(diradamentoValori(20, 40), 1);
    EXPECT_EQ(diradamentoValori(46, 40), 1);  // 1,15 steps
    EXPECT_EQ(diradamentoValori(46.1, 40), 2);
    EXPECT_EQ(diradamentoValori(77, 40), 2);
    EXPECT_EQ(diradamentoValori(81, 40), 3);
    EXPECT_GT(diradamentoValori(10, 0), 1000);
    EXPECT_GT(diradamentoValori(10, 1e-300), 1000);
}

TEST(ScalaGrafico, AxisLabelsAreThinnedToStepsThatHoursHave) {
    EXPECT_EQ(diradamentoEtichette(30, 40), 1);
    EXPECT_EQ(diradamentoEtichette(33, 40), 2);
    EXPECT_EQ(diradamentoEtichette(30, 8), 6);  // five would do
    EXPECT_EQ(diradamentoEtichette(30, 1), 48);
    EXPECT_GT(diradamentoEtichette(30, 0), 1000);
    EXPECT_GT(diradamentoEtichette(30, 1e-300), 1000);
}

}  // namespace
}  // namespace kelvo::prove
