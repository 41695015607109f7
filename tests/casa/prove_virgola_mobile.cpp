#include <gtest/gtest.h>

#include <cfloat>
#include <clocale>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <regex>
#include <string>
#include <vector>

#include "regole.h"

namespace kelvo::prove {
namespace {

std::string comandiDiCostruzione() {
    std::ifstream flusso(KELVO_COSTRUZIONE "/compile_commands.json", std::ios::binary);
    return {std::istreambuf_iterator<char>(flusso), std::istreambuf_iterator<char>()};
}

TEST(VirgolaMobile, EverySourceIsCompiledAsWritten) {
    const std::string testo = comandiDiCostruzione();
    const std::regex voce("\"command\": \"(.*)\",\n *\"file\": \"(.*)\"");
    int lette = 0;
    for (std::sregex_iterator i(testo.begin(), testo.end(), voce), fine; i != fine; ++i) {
        const std::string file = (*i)[2].str();
        if (file.rfind(KELVO_SORGENTI "/", 0) != 0 || file.rfind(KELVO_COSTRUZIONE "/", 0) == 0) {
            continue;
        }
        ++lette;
        for (const std::string& errore : opzioniSbagliate((*i)[1].str())) {
            ADD_FAILURE() << file << ": " << errore;
        }
    }
    EXPECT_GT(lette, 20);
}

TEST(VirgolaMobile, AWrongOptionIsFound) {
    const std::vector<std::string> sbagliati{
        "g++ -O2 -c x.cpp",
        "g++ -ffp-contract=off -ffast-math -c x.cpp",
        "g++ -ffp-contract=off -Ofast -c x.cpp",
        "g++ -ffp-contract=off -funsafe-math-optimizations -c x.cpp",
        "g++ -ffp-contract=off -ffp-contract=fast -c x.cpp",
        "g++ -DA=-ffp-contract=off -c x.cpp",
    };
    for (const std::string& comando : sbagliati) {
        EXPECT_EQ(opzioniSbagliate(comando).size(), 1U) << comando;
    }
    EXPECT_TRUE(opzioniSbagliate("g++ -O3 -ffp-contract=off -o x.o -c x.cpp").empty());
}

TEST(VirgolaMobile, AProductIsRoundedBeforeItsSum) {
    // (1 + e)(1 - e) is 1 - e^2, which rounds to 1; fused with the subtraction it would leave -e^2.
    const double e = std::ldexp(1.0, -28);
    volatile double a = 1.0 + e;
    volatile double b = 1.0 - e;
    volatile double c = -1.0;
    const double fuso = std::fma(a, b, c);
    EXPECT_EQ(a * b + c, 0.0);
    EXPECT_EQ(fuso, -e * e);
    const float f = std::ldexp(1.0F, -13);
    volatile float g = 1.0F + f;
    volatile float h = 1.0F - f;
    volatile float i = -1.0F;
    EXPECT_EQ(g * h + i, 0.0F);
}

TEST(VirgolaMobile, ASingleIsRoundedWhereItIsStored) {
    static_assert(FLT_EVAL_METHOD == 0);
    volatile double esatto = 16777217.0;
    const auto conservato = static_cast<float>(esatto);
    EXPECT_EQ(static_cast<double>(conservato), 16777216.0);
    volatile float uno = 1.0F;
    volatile float tre = 3.0F;
    const float terzo = uno / tre;
    EXPECT_NE(static_cast<double>(terzo), 1.0 / 3.0);
    volatile float grande = 16777216.0F;
    EXPECT_EQ((grande + uno) - grande, 0.0F);  // no wider register in between
}

TEST(Lingua, TheTestsRunUnderTheLanguageOfTheSystem) {
    const char* lingua = std::getenv("LC_ALL");
    if (lingua != nullptr && std::string(lingua).rfind("it_IT", 0) == 0) {
        EXPECT_STREQ(std::localeconv()->decimal_point, ",");
    } else if (lingua != nullptr && *lingua == 'C') {
        EXPECT_STREQ(std::localeconv()->decimal_point, ".");
    }
}

}  // namespace
}  // namespace kelvo::prove
