// Arithmetic of arcs and chains.

#include "pianta/curve.h"

#include <gtest/gtest.h>

#include <cmath>

namespace kelvo::pianta {
namespace {

constexpr double molto = 1e-12;

TEST(Curve, AQuarterTurnToTheLeftHasItsCentreOnTheLeft) {
    const Cerchio c = cerchioDi({1, 0}, {0, 1}, bombaturaDi(pi / 2));
    EXPECT_NEAR(c.centro.x, 0, molto);
    EXPECT_NEAR(c.centro.y, 0, molto);
    EXPECT_NEAR(c.raggio, 1, molto);
    EXPECT_NEAR(c.da, 0, molto);
    EXPECT_NEAR(c.gira, pi / 2, molto);
}

TEST(Curve, AQuarterTurnToTheRightHasItsCentreOnTheRight) {
    const Cerchio c = cerchioDi({1, 0}, {0, 1}, -bombaturaDi(pi / 2));
    EXPECT_NEAR(c.centro.x, 1, molto);
    EXPECT_NEAR(c.centro.y, 1, molto);
    EXPECT_NEAR(c.gira, -pi / 2, molto);
}

TEST(Curve, ACircleHasItsArea) {
    EXPECT_NEAR(superficie(circonferenza({3, -2}, 2)), 4 * pi, 1e-9);
    EXPECT_NEAR(superficie({{{0, 0}, 0}, {{2, 0}, 0}, {{2, 3}, 0}, {{0, 3}, 0}}), 6, molto);
    EXPECT_NEAR(superficie({{{0, 0}, 0}, {{0, 3}, 0}, {{2, 3}, 0}, {{2, 0}, 0}}), -6, molto);
}

TEST(Curve, AWayWalkedBackPassesTheSamePoints) {
    const Tracciato via{{{0, 0}, 0.3}, {{2, 1}, 0}, {{4, 1}, -0.5}, {{5, 5}, 0}};
    const auto avanti = spezzata(via, false);
    auto indietro = spezzata(inverso(via), false);
    ASSERT_EQ(avanti.size(), indietro.size());
    for (std::size_t i = 0; i < avanti.size(); ++i) {
        EXPECT_NEAR(norma(avanti[i] - indietro[avanti.size() - 1 - i]), 0, 1e-12);
    }
}

TEST(Curve, AMirroredWayIsMirroredPointByPoint) {
    const Tracciato via{{{0, 0}, 0.3}, {{2, 1}, -0.5}, {{5, 5}, 0}};
    const auto avanti = spezzata(via, false);
    const auto altra = spezzata(specchiato(via), false);
    ASSERT_EQ(avanti.size(), altra.size());
    for (std::size_t i = 0; i < avanti.size(); ++i) {
        EXPECT_NEAR(avanti[i].x, -altra[i].x, molto);
        EXPECT_NEAR(avanti[i].y, altra[i].y, molto);
    }
}

TEST(Curve, AChainKeepsItsEndsAndTheRadiusOfItsArcs) {
    const Tracciato via{{{7, 0}, bombaturaDi(2.0)}, {polare(7, 2.0), 0}};
    const auto catena = spezzata(via, false, 0.1);
    EXPECT_EQ(catena.size(), 21U);
    EXPECT_EQ(catena.front(), via.front().p);
    EXPECT_EQ(catena.back(), via.back().p);
    for (const Punto& p : catena) {
        EXPECT_NEAR(norma(p), 7, 1e-9);
    }
}

TEST(Curve, AWayIsCutWhereARayMeetsIt) {
    // Up the line x = 2, then along a quarter of a circle of radius 4 about (6, -8).
    const Tracciato via{
        {{2, -20}, 0}, {{2, -8}, -bombaturaDi(pi / 4)}, {{6 - 2 * std::sqrt(8.0), -8 + std::sqrt(8.0)}, 0}};
    const auto sulRetto = incontro(via, std::atan2(2.0, 10.0));
    ASSERT_TRUE(sulRetto);
    EXPECT_EQ(sulRetto->pezzo, 0U);
    EXPECT_NEAR(puntoIn(via, *sulRetto).y, -10, 1e-9);
    EXPECT_FALSE(incontro(via, 0.0));
    EXPECT_FALSE(incontro(via, 3.0));
    const Tracciato parte = fino(via, *sulRetto);
    ASSERT_EQ(parte.size(), 2U);
    EXPECT_NEAR(parte.back().p.x, 2, 1e-12);
}

TEST(Curve, AnArcThatIsCutStaysOnItsCircle) {
    const Tracciato via{{sulCerchio(5, 0.2), bombaturaDi(0.9)}, {sulCerchio(5, 1.1), 0}};
    const auto dove = incontro(via, 0.5);
    ASSERT_TRUE(dove);
    const Tracciato parte = fino(via, *dove);
    EXPECT_NEAR(4 * std::atan(parte.front().bombatura), 0.3, 1e-9);
    EXPECT_NEAR(norma(parte.back().p - sulCerchio(5, 0.5)), 0, 1e-9);
}

TEST(Curve, BisectionFindsTheChangeOfSign) {
    EXPECT_NEAR(bisezione(0.0, 2.0, [](double x) { return 2 - x * x; }), std::sqrt(2.0), 1e-15);
}

}  // namespace
}  // namespace kelvo::pianta
