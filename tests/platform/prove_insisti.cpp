#include "platform/insisti.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

namespace kelvo::prove {
namespace {

constexpr int preso = 0;
constexpr int occupato = 1;
constexpr int altroRifiuto = 2;

/// A program that answers one thing after the other, the last of them for ever.
struct ProveInsisti : testing::Test {
    int chiama(int tentativi, const std::vector<int>& risposte) {
        std::size_t prossima = 0;
        return insisti(
            tentativi,
            [&] {
                passi += "c";
                const std::size_t questa = prossima;
                prossima = std::min(prossima + 1, risposte.size() - 1);
                return risposte.at(questa);
            },
            [](int risposta) { return risposta == occupato; }, [&] { passi += "p"; });
    }
    std::string passi;  ///< calls and pauses, in order
};

TEST_F(ProveInsisti, AnAnswerThatStandsIsTakenAtOnce) {
    EXPECT_EQ(chiama(5, {preso}), preso);
    EXPECT_EQ(passi, "c");
    passi.clear();
    EXPECT_EQ(chiama(5, {altroRifiuto}), altroRifiuto);
    EXPECT_EQ(passi, "c");
}

TEST_F(ProveInsisti, WhoIsTurnedAwayWaitsAndCallsAgain) {
    EXPECT_EQ(chiama(5, {occupato, occupato, preso}), preso);
    EXPECT_EQ(passi, "cpcpc");
    passi.clear();
    EXPECT_EQ(chiama(5, {occupato, altroRifiuto, preso}), altroRifiuto);
    EXPECT_EQ(passi, "cpc");
}

TEST_F(ProveInsisti, AfterTheLastTryTheRefusalStands) {
    EXPECT_EQ(chiama(4, {occupato}), occupato);
    EXPECT_EQ(passi, "cpcpcpc") << "there is nothing to wait for behind the last one";
    passi.clear();
    EXPECT_EQ(chiama(4, {occupato, occupato, occupato, preso}), preso);
    EXPECT_EQ(passi, "cpcpcpc");
    passi.clear();
    EXPECT_EQ(chiama(1, {occupato}), occupato);
    EXPECT_EQ(passi, "c");
}

}  // namespace
}  // namespace kelvo::prove
