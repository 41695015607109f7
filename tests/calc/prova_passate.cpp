// When the balancing sweeps end, and after how many.

#include <gtest/gtest.h>

#include <cmath>

#include "base/guasto.h"
#include "calc/bilanciamento.h"

namespace kelvo::prove {

namespace {

constexpr Quadrata<float> senzaPesi{};

/// Two entries that throttle each other: q0 = F0 - w1 q1, q1 = F1 - w0 q0.
Quadrata<float> dueIngressi(float w0, float w1) {
    Quadrata<float> W{};
    W[0][1] = w0;
    W[1][0] = w1;
    return W;
}

/// Three entries, each behind the next with its whole flow.
Quadrata<float> anelloDiTre() {
    Quadrata<float> W{};
    W[2][0] = 1.0F;
    W[0][1] = 1.0F;
    W[1][2] = 1.0F;
    return W;
}

template <class T>
void aspettaNonConverge(int n, const PerRamo<T>& F, const Quadrata<float>& W) {
    try {
        (void)Itera_Bilanciamento<T>(n, F, W);
        FAIL() << "the sweep ended";
    } catch (const Guasto& guasto) {
        EXPECT_EQ(guasto.codice(), 17);
        EXPECT_EQ(guasto.descrizione(), "Il bilanciamento non converge");
    }
}

/// Change of a sweep of two entries with F = (0, 1), weights 1 and |w1| = rho: rho to the power of the sweep less one.
/// The first sweep below 0.001.
int passateAttese(double rho) {
    return static_cast<int>(std::floor(std::log(0.001) / std::log(rho))) + 2;
}

}  // namespace

TEST(Passate, ChangeOfExactlyTheThresholdForcesOneMore) {
    EXPECT_EQ(Itera_Bilanciamento<double>(3, {0.001, 0.0, 0.0}, senzaPesi).passate, 2);
    EXPECT_EQ(Itera_Bilanciamento<double>(3, {0.000999, 0.0, 0.0}, senzaPesi).passate, 1);
    EXPECT_EQ(Itera_Bilanciamento<double>(3, {-0.001, 0.0, 0.0}, senzaPesi).passate, 2);
    // The single next to 0.001 lies above it.
    EXPECT_EQ(Itera_Bilanciamento<float>(3, {0.001F, 0.0F, 0.0F}, senzaPesi).passate, 2);
    EXPECT_EQ(Itera_Bilanciamento<float>(3, {0.000999F, 0.0F, 0.0F}, senzaPesi).passate, 1);
}

TEST(Passate, SweepForcedByTheThresholdChangesTheResult) {
    // First sweep (0.001, 0.0005), the largest change exactly 0.001; the second takes 0.0005 off the first entry.
    const Soluzione<double> s = Itera_Bilanciamento<double>(2, {0.001, 0.0005}, dueIngressi(0.0F, 1.0F));
    EXPECT_EQ(s.passate, 2);
    EXPECT_EQ(s.Q[0], 0.0005);
    EXPECT_EQ(s.Q[1], 0.0005);
    // A hair below, and the first sweep stands.
    const Soluzione<double> prima = Itera_Bilanciamento<double>(2, {0.00099, 0.0005}, dueIngressi(0.0F, 1.0F));
    EXPECT_EQ(prima.passate, 1);
    EXPECT_EQ(prima.Q[0], 0.00099);
}

TEST(Passate, LargestChangeOfAnyEntryCounts) {
    EXPECT_EQ(Itera_Bilanciamento<double>(3, {0.5, 0.0, 0.0}, senzaPesi).passate, 2);
    EXPECT_EQ(Itera_Bilanciamento<double>(3, {0.0, 0.5, 0.0}, senzaPesi).passate, 2);
    EXPECT_EQ(Itera_Bilanciamento<double>(3, {0.0, 0.0, 0.5}, senzaPesi).passate, 2);
}

TEST(Passate, WithoutWeightsTheInterceptsStandAfterTwo) {
    const PerRamo<float> F{1200.5F, 900.25F, 0.0F, -30.0F, 1500.0F};
    const Soluzione<float> s = Itera_Bilanciamento<float>(5, F, senzaPesi);
    EXPECT_EQ(s.passate, 2);
    EXPECT_EQ(s.Q, F);
    const Soluzione<double> d = Itera_Bilanciamento<double>(2, {1200.0 / 7.0, 1.0 / 3.0}, senzaPesi);
    EXPECT_EQ(d.passate, 2);
    EXPECT_EQ(d.Q[0], 1200.0 / 7.0);
    EXPECT_EQ(d.Q[1], 1.0 / 3.0);
}

TEST(Passate, SlowBalanceEndsShortOfAMillion) {
    const float rho = 1.0F - 7.2e-6F;
    const int attese = passateAttese(static_cast<double>(rho));
    ASSERT_GT(attese, 900'000);
    ASSERT_LT(attese, 1'000'000);
    // Of one sign the flows run away from each other, of two they swing round 1 / 2.
    for (const float peso : {rho, -rho}) {
        const Soluzione<double> s = Itera_Bilanciamento<double>(2, {0.0, 1.0}, dueIngressi(1.0F, peso));
        EXPECT_TRUE(s.convergente);
        EXPECT_NEAR(s.passate, attese, 1) << peso;
        EXPECT_NEAR(s.Q[1], (1.0 - std::pow(static_cast<double>(peso), s.passate)) / (1.0 - static_cast<double>(peso)),
                    0.01)
            << peso;
    }
}

TEST(Passate, BalanceThatNeedsMoreThanAMillionIsAFault) {
    const float rho = 1.0F - 5e-6F;
    ASSERT_GT(passateAttese(static_cast<double>(rho)), 1'000'000);
    for (const float peso : {rho, -rho}) {
        const Soluzione<double> s = scorriBilanciamento<double>(2, {0.0, 1.0}, dueIngressi(1.0F, peso));
        EXPECT_FALSE(s.convergente);
        EXPECT_EQ(s.passate, 1'000'000);
        aspettaNonConverge<double>(2, {0.0, 1.0}, dueIngressi(1.0F, peso));
    }
}

TEST(Passate, StateThatComesBackEndsTheSweepsAtOnce) {
    // From 0 the state goes (F, 0, F), (0, F, 0) and back to (F, 0, F).
    const Soluzione<float> s = scorriBilanciamento<float>(3, {1000.0F, 1000.0F, 1000.0F}, anelloDiTre());
    EXPECT_FALSE(s.convergente);
    EXPECT_EQ(s.passate, 3);
    aspettaNonConverge<float>(3, {1000.0F, 1000.0F, 1000.0F}, anelloDiTre());
    aspettaNonConverge<double>(3, {1000.0, 1000.0, 1000.0}, anelloDiTre());
}

TEST(Passate, StateThatComesBackLateEndsTheSweepsSoonAfter) {
    // A damped swing round 502.5 that single precision turns, from sweep 1296 on, into a step to and fro of one bit.
    const PerRamo<float> F{0.0F, 1000.0F};
    const Soluzione<float> s = scorriBilanciamento<float>(2, F, dueIngressi(1.0F, -0.99F));
    EXPECT_FALSE(s.convergente);
    EXPECT_GE(s.passate, 1298);
    EXPECT_LE(s.passate, 2600);
    // In double precision the same balance is found.
    EXPECT_TRUE(scorriBilanciamento<double>(2, {0.0, 1000.0}, dueIngressi(1.0F, -0.99F)).convergente);
}

}  // namespace kelvo::prove
