// The oracle against figures worked out by hand, before it is asked about the engine.

#include <gtest/gtest.h>

#include "oracolo.h"

namespace kelvo::prove {

namespace {

using oracolo::MatriceDoppia;

oracolo::Progetto unIngresso(const oracolo::Misure& misure) {
    oracolo::Progetto p;
    p.n = 1;
    p.ingressi.resize(1);
    p.ingressi[0].misure = misure;
    return p;
}

}  // namespace

TEST(Oracolo, ReproducesTheLineOfThePlainEntry) {
    oracolo::Progetto p = unIngresso({4.0F, 3.5F, 20.0F, 30.0F, 20.0F, 40.0F});
    oracolo::parametri(p, nullptr);
    EXPECT_EQ(p.ingressi[0].K, 1.0);
    EXPECT_NEAR(p.ingressi[0].Td, 1.44039854, 5e-9);
    EXPECT_NEAR(p.ingressi[0].X2, 3.96296296, 5e-9);
    EXPECT_NEAR(p.ingressi[0].F, 1200.77778, 5e-6);
    EXPECT_NEAR(p.ingressi[0].Fc, 0.54223003, 5e-9);
}

TEST(Oracolo, ReproducesQueueAndDelayBelowAndAtCapacity) {
    const oracolo::CodaRitardo sotto = oracolo::codaSingola(10.0F, 900.0F, 95.0F, 15);
    EXPECT_NEAR(sotto.coda, 5.25505, 5e-6);
    EXPECT_NEAR(sotto.ritardo, 11.4334, 5e-5);
    const oracolo::CodaRitardo pari = oracolo::codaSingola(15.0F, 900.0F, 95.0F, 15);
    EXPECT_NEAR(pari.coda, 18.3581, 5e-5);
    EXPECT_NEAR(pari.ritardo, 44.4735, 5e-5);
}

TEST(Oracolo, ExtendedSarrusIsTheDeterminantUpToThree) {
    EXPECT_EQ(oracolo::determinante(2, MatriceDoppia{{3, 1}, {4, 2}}), 2.0);
    EXPECT_EQ(oracolo::determinante(3, MatriceDoppia{{2, 0, 1}, {1, 3, 2}, {1, 1, 1}}), 0.0);
    EXPECT_EQ(oracolo::determinante(3, MatriceDoppia{{2, 5, 1}, {1, 3, 2}, {7, 1, 4}}), 50.0);
}

TEST(Oracolo, ExtendedSarrusOfFourTakesOnlyTheEightDiagonals) {
    // Falling: 1*6*1*6=36 from row 0, then rows shifted by 1, 2, 3; rising likewise.
    const MatriceDoppia A{{1, 2, 3, 4}, {5, 6, 7, 8}, {9, 0, 1, 2}, {3, 4, 5, 6}};
    // falling from row t: A[t][0] A[t+1][1] A[t+2][2] A[t+3][3]
    const double falling = 1.0 * 6 * 1 * 6 + 5.0 * 0 * 5 * 4 + 9.0 * 4 * 3 * 8 + 3.0 * 2 * 7 * 2;
    const double rising = 4.0 * 7 * 0 * 3 + 8.0 * 1 * 4 * 1 + 2.0 * 5 * 2 * 5 + 6.0 * 3 * 6 * 9;
    EXPECT_EQ(oracolo::determinante(4, A), falling - rising);
}

TEST(Oracolo, InverseOfThreeTimesTheMatrixIsTheUnit) {
    const MatriceDoppia A{{2, 5, 1}, {1, 3, 2}, {7, 1, 4}};
    const MatriceDoppia T = oracolo::trasposta(3, A);
    const MatriceDoppia I = oracolo::inversa(3, A, T, oracolo::determinante(3, A));
    for (std::size_t i = 0; i < 3; ++i) {
        for (std::size_t j = 0; j < 3; ++j) {
            double somma = 0.0;
            for (std::size_t h = 0; h < 3; ++h) {
                somma += A[i][h] * I[h][j];
            }
            EXPECT_NEAR(somma, i == j ? 1.0 : 0.0, 1e-14) << i << ", " << j;
        }
    }
}

TEST(Oracolo, FlowFromLegTwoToLegOneWeighsOnTwoEntriesDownstream) {
    // Legs from 0. With four legs the flow passes entries 3 and 0; with five it passes 3, 4 and 0, and 0 is left out.
    for (const int n : {4, 5}) {
        oracolo::Progetto p;
        p.n = n;
        p.ingressi.resize(static_cast<std::size_t>(n));
        for (auto& ingresso : p.ingressi) {
            ingresso.Fc = 0.5;
        }
        p.p.assign(static_cast<std::size_t>(n), std::vector<float>(static_cast<std::size_t>(n), 0.0F));
        p.p[2][1] = 1.0F;
        const oracolo::MatriceSingola M = oracolo::costruisciMatrice(p);
        EXPECT_EQ(M[2][3], 0.5F) << n;
        EXPECT_EQ(M[2][n == 4 ? 0U : 4U], 0.5F) << n;
        EXPECT_EQ(M[2][n == 4 ? 1U : 0U], 0.0F) << n;
        EXPECT_EQ(M[2][2], 1.0F) << n;
    }
}

TEST(Oracolo, UTurnCountsFromTheSecondUpstreamLegAlone) {
    oracolo::Progetto p;
    p.n = 4;
    p.ingressi.resize(4);
    for (auto& ingresso : p.ingressi) {
        ingresso.Fc = 0.25;
    }
    p.p.assign(4, std::vector<float>(4, 0.0F));
    p.p[1][1] = 1.0F;
    const oracolo::MatriceSingola M = oracolo::costruisciMatrice(p);
    EXPECT_EQ(M[1][2], 0.0F);
    EXPECT_EQ(M[1][3], 0.25F);
    EXPECT_EQ(M[1][0], 0.0F);
}

TEST(Oracolo, SweepOfOneRingOfWeightsOneNeverEnds) {
    // q0 = F - q2, q1 = F - q0, q2 = F - q1: from 0 the state goes (F, 0, F), (0, F, 0) and round again.
    const oracolo::MatriceSingola W{{0, 1, 0}, {0, 0, 1}, {1, 0, 0}};
    try {
        (void)oracolo::iteraSingolo({1000.0F, 1000.0F, 1000.0F}, W);
        FAIL() << "the sweep ended";
    } catch (const oracolo::Difetto& difetto) {
        EXPECT_EQ(difetto.numero, oracolo::nonConverge);
    }
}

TEST(Oracolo, SweepSolvesTwoEntriesThatThrottleEachOther) {
    // q0 = 1000 - q1 / 2, q1 = 800 - q0 / 4: q0 = 600 / (1 - 1/8) = 685.714..., q1 = 628.571...
    const oracolo::MatriceSingola W{{0, 0.25F}, {0.5F, 0}};
    const std::vector<double> Q = oracolo::iteraDoppio({1000.0, 800.0}, W);
    EXPECT_NEAR(Q[0], 4800.0 / 7.0, 1e-3);
    EXPECT_NEAR(Q[1], 4400.0 / 7.0, 1e-3);
}

}  // namespace kelvo::prove
