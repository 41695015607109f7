#include "app/percorsi.h"

#include <gtest/gtest.h>

namespace kelvo::prove {
namespace {

TEST(Percorsi, TheFolderOfTheProjectsIsCutByCountOfCharacters) {
    const auto progetti = [](const std::string& cartella) {
        return cartellaProgetti(clsAmbiente(cartella, cartella, sistemaFileStandard()));
    };
    EXPECT_EQ(progetti("/opt/Prog/Kelvo"), "/opt/Prog/Progetti");
    EXPECT_EQ(progetti("/opt/Città/Kèlvò"), "/opt/Città/Progetti") << "characters, not bytes";
    EXPECT_EQ(progetti("/opt/Prog/Kelvo14"), "/opt/Prog/K/Progetti") << "another length is cut all the same";
}

TEST(Percorsi, TheNameOfAProjectIsItsFileWithoutFolderAndExtension) {
    EXPECT_EQ(nomeProgetto("/a/b/Nodo Est.klv"), "Nodo Est");
    EXPECT_EQ(nomeProgetto("Nodo.KLV"), "Nodo");
    EXPECT_EQ(nomeProgetto("/a/Nodo.v2.klv"), "Nodo.v2");
    EXPECT_EQ(nomeProgetto("/a/Nodo.txt"), "Nodo.txt");
    EXPECT_EQ(nomeProgetto("/a/.klv"), "");
}

}  // namespace
}  // namespace kelvo::prove
