#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "platform/Piattaforma.h"

namespace kelvo::prove {
namespace {

TEST(PiattaformaLinux, TheLocaleIsTheProgramsOwnAndCannotBeSet) {
    const auto sistema = creaPiattaforma();
    sistema->locale().scriviSeparatori(".", " ");
    EXPECT_EQ(sistema->locale().leggi().decimale, ",");
    EXPECT_EQ(sistema->locale().leggi().migliaia, ".");
}

TEST(PiattaformaLinux, SettingsAndDocumentsAreLeftToTheToolkit) {
    const auto sistema = creaPiattaforma();
    EXPECT_EQ(sistema->impostazioni(), nullptr);
    EXPECT_EQ(sistema->documenti(), nullptr);
}

TEST(PiattaformaLinux, TheWordsOfTheCommandLineStandBehindTheProgram) {
    const auto sistema = creaPiattaforma();
    std::string programma = "kelvo-cli";
    std::string prima = "calcola";
    std::string seconda = "Città di Forlì.klv";
    std::array<char*, 4> argv{programma.data(), prima.data(), seconda.data(), nullptr};
    EXPECT_EQ(sistema->argomenti(3, argv.data()), (std::vector<std::string>{prima, seconda}));
    EXPECT_EQ(sistema->argomenti(1, argv.data()), std::vector<std::string>{});
    EXPECT_EQ(sistema->argomenti(0, argv.data()), std::vector<std::string>{});
}

}  // namespace
}  // namespace kelvo::prove
