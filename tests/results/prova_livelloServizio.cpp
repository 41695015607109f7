#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include <string_view>
#include <tuple>

#include "results/livelloServizio.h"

namespace kelvo {
namespace {

struct CasoRitardo {
    float ritardo;
    std::string_view livello;
};

class LivelloDiRitardo : public testing::TestWithParam<CasoRitardo> {};

TEST_P(LivelloDiRitardo, GradesTheDelayAsDisplayedToOneDecimal) {
    EXPECT_EQ(livelloDiRitardo(GetParam().ritardo), GetParam().livello) << GetParam().ritardo;
}

INSTANTIATE_TEST_SUITE_P(Limiti, LivelloDiRitardo,
                         testing::Values(CasoRitardo{0.0F, "-"}, CasoRitardo{0.04F, "-"}, CasoRitardo{0.049F, "-"},
                                         CasoRitardo{-0.04F, "-"}, CasoRitardo{0.05F, "A"}, CasoRitardo{4.0F, "A"},
                                         CasoRitardo{10.0F, "A"}, CasoRitardo{10.04F, "A"}, CasoRitardo{10.05F, "B"},
                                         CasoRitardo{15.0F, "B"}, CasoRitardo{15.04F, "B"}, CasoRitardo{15.05F, "C"},
                                         CasoRitardo{25.0F, "C"}, CasoRitardo{25.04F, "C"}, CasoRitardo{25.05F, "D"},
                                         CasoRitardo{35.0F, "D"}, CasoRitardo{35.04F, "D"}, CasoRitardo{35.05F, "E"},
                                         CasoRitardo{50.0F, "E"}, CasoRitardo{50.04F, "E"}, CasoRitardo{50.05F, "F"},
                                         CasoRitardo{1e9F, "F"}, CasoRitardo{-3.0F, "A"}));

TEST(LivelloServizio, BoundsBelongToTheBetterLevel) {
    EXPECT_EQ(livelloServizio(0.0), "-");
    EXPECT_EQ(livelloServizio(10.0), "A");
    EXPECT_EQ(livelloServizio(10.1), "B");
    EXPECT_EQ(livelloServizio(50.0), "E");
    EXPECT_EQ(livelloServizio(50.1), "F");
}

TEST(CodiceLivello, GivesTheCodesOfChartsAndMeans) {
    EXPECT_EQ(codiceLivello("-"), 0);
    EXPECT_EQ(codiceLivello("A"), 5);
    EXPECT_EQ(codiceLivello("B"), 10);
    EXPECT_EQ(codiceLivello("C"), 15);
    EXPECT_EQ(codiceLivello("D"), 20);
    EXPECT_EQ(codiceLivello("E"), 25);
    EXPECT_EQ(codiceLivello("F"), 30);
    EXPECT_EQ(codiceLivello("G"), 0);
    EXPECT_EQ(codiceLivello(""), 0);
}

TEST(LivelloServizio, ACodeHasItsLevelAndAnyOtherNumberNone) {
    const std::vector<std::pair<int, std::string>> casi{{0, "-"},  {5, "A"},  {10, "B"}, {15, "C"},
                                                        {20, "D"}, {25, "E"}, {30, "F"}, {35, "-"},
                                                        {-5, "-"}, {7, "-"},  {31, "-"}};
    for (const auto& [codice, livello] : casi) {
        EXPECT_EQ(livelloDiCodice(codice), livello) << codice;
    }
    for (const std::string_view livello : livelliServizio) {
        EXPECT_EQ(livelloDiCodice(codiceLivello(livello)), livello);
    }
}

TEST(LivelloServizio, AMeanCodeFallsIntoBandsOfItsOwn) {
    const std::vector<std::pair<double, std::string>> casi{{0, "-"},  {1, "A"},  {5, "A"},  {6, "B"},  {10, "B"},
                                                           {11, "C"}, {15, "C"}, {20, "C"}, {21, "D"}, {25, "D"},
                                                           {26, "E"}, {30, "E"}, {31, "F"}};
    for (const auto& [codice, livello] : casi) {
        EXPECT_EQ(livelloMedio(codice), livello) << codice;
    }
}

}  // namespace
}  // namespace kelvo
