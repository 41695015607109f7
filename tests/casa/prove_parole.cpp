#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "regole.h"

namespace kelvo::prove {
namespace {

TEST(Parole, NoFileHoldsAWordThatMustNotStandThere) {
    int letti = 0;
    for (const std::string& percorso : fileDelDeposito()) {
        ++letti;
        for (const std::string& trovata : paroleVietate(testoDelDeposito(percorso))) {
            ADD_FAILURE() << percorso << ":" << trovata;
        }
    }
    EXPECT_GT(letti, 50);
}

TEST(Parole, TheWholeRepositoryIsRead) {
    const std::vector<std::string> tutti = fileDelDeposito();
    for (const std::string atteso : {"CMakeLists.txt", ".ci/run", "run.sh", "tests/casa/prove_parole.cpp",
                                     "src/base/numeri.h", "docs/vocabolario.md"}) {
        EXPECT_EQ(std::count(tutti.begin(), tutti.end(), atteso), 1) << atteso;
        EXPECT_FALSE(testoDelDeposito(atteso).empty()) << atteso;
    }
    for (const std::string& percorso : tutti) {
        EXPECT_NE(percorso.rfind("build/", 0), 0U) << percorso;
        EXPECT_NE(percorso.rfind(".git/", 0), 0U) << percorso;
    }
}

TEST(Parole, APlantedWordIsFoundWithItsLine) {
    // In pieces, so that this file is not one that the search finds.
    const std::vector<std::string> vietate{
        std::string("TO") + "DO",          std::string("FIX") + "ME",        std::string("sp") + "ec",
        std::string("Sp") + "ecification", std::string("/wo") + "rk/shared", std::string("/ro") + "ot/x",
        std::string("P") + "art 2.3",      std::string("/tm") + "p/kelvo-D", std::string("DES") + "IGN.md",
    };
    for (const std::string& parola : vietate) {
        EXPECT_EQ(paroleVietate("uno\n// due " + parola + " tre\n").size(), 1U) << parola;
        EXPECT_EQ(paroleVietate("uno\ndue " + parola).front().substr(0, 3), "2: ") << parola;
    }
    EXPECT_TRUE(
        paroleVietate(std::string("specifico, special, inspect, todos, /network/, assets/home/x, build/wo") + "rk/y")
            .empty());
}

}  // namespace
}  // namespace kelvo::prove
