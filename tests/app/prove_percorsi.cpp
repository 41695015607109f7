#include "app/percorsi.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <regex>
#include <set>
#include <string>

#include "comune/cartella.h"

namespace kelvo::prove {
namespace {

TEST(Percorsi, TheFolderOfTheProjectsIsCutByCountOfCharacters) {
    const auto progetti = [](const std::string& cartella) {
        return percorsoDaTesto(cartellaProgetti(clsAmbiente(cartella, cartella, sistemaFileStandard())));
    };
    EXPECT_EQ(progetti("/opt/Prog/Kelvo"), percorsoDaTesto("/opt/Prog/Progetti"));
    EXPECT_EQ(progetti("/opt/Città/Kèlvò"), percorsoDaTesto("/opt/Città/Progetti")) << "characters, not bytes";
    EXPECT_EQ(progetti("/opt/Prog/Kelvo14"), percorsoDaTesto("/opt/Prog/K/Progetti"))
        << "another length is cut all the same";
}

TEST(Percorsi, EveryPathThatIsCutComesOutRightInEveryTree) {
    // The build tree, an installation, the package, a portable folder, the user's own copy.
    const std::string costruzione = KELVO_COSTRUZIONE;
    for (const std::string& radice :
         {costruzione, std::string("/usr/local/lib/kelvo"), std::string("/usr/lib/kelvo"),
          std::string("/media/Città è/Kelvo 1.0"), std::string("/casa/anna/.local/share/Kelvo")}) {
        const std::string cartella = radice + "/Prog/Kelvo";
        const clsAmbiente ambiente(cartella, cartella, sistemaFileStandard());
        EXPECT_EQ(percorsoDaTesto(cartellaProgetti(cartella)), percorsoDaTesto(radice + "/Prog/Progetti"));
        EXPECT_EQ(percorsoDaTesto(percorsoMacroKelvoCAD(ambiente)),
                  percorsoDaTesto(radice + "/Prog/KelvoCAD/doc/KelvoCAD2008.dvb"));
        EXPECT_EQ(percorsoDaTesto(percorsoKelvoCAD(ambiente)),
                  percorsoDaTesto(radice + "/KELVOCAD 2014/KelvoCAD 2014.exe"));
    }
    EXPECT_EQ(costruzione + "/Prog/Kelvo", KELVO_CARTELLA);
}

TEST(Percorsi, OneSourceAloneCutsFoldersByCountOfCharacters) {
    const std::regex taglio(R"(senzaUltimi\([^;]*[cC]artella)");
    std::set<std::string> trovati;
    for (const auto& voce : std::filesystem::recursive_directory_iterator(KELVO_SORGENTI "/src")) {
        const std::string percorso = voce.path().string();
        if (voce.is_regular_file() && std::regex_search(contenuto(percorso), taglio)) {
            trovati.insert(std::filesystem::relative(voce.path(), KELVO_SORGENTI "/src").generic_string());
        }
    }
    EXPECT_EQ(trovati, (std::set<std::string>{"app/percorsi.cpp"}));
}

TEST(Percorsi, AnAddressOfAFileIsItsPath) {
    EXPECT_EQ(percorsoDaIndirizzo("file:///casa/Nodo.klv"), "/casa/Nodo.klv");
    EXPECT_EQ(percorsoDaIndirizzo("FILE://localhost/casa/Nodo.klv"), "/casa/Nodo.klv");
    EXPECT_EQ(percorsoDaIndirizzo("file:/casa/Nodo.klv"), "/casa/Nodo.klv");
    EXPECT_EQ(percorsoDaIndirizzo("file:///Citt%C3%A0%20alta/100%25%2e.klv"), "/Città alta/100%..klv");
    EXPECT_EQ(percorsoDaIndirizzo("file:///a%2Fb%zz%4"), "/a/b%zz%4");
    EXPECT_EQ(percorsoDaIndirizzo("file:///a%00b"), "/a%00b") << "no path holds a zero byte";
}

TEST(Percorsi, WhatIsNoAddressOfThisMachineStaysAsItIs) {
    for (const std::string testo : {"", "Nodo.klv", "/a/file:/b.klv", "/a%20b.klv", "file://altra/casa/Nodo.klv",
                                    "file:", "file:Nodo.klv", "http://x/y.klv"}) {
        EXPECT_EQ(percorsoDaIndirizzo(testo), testo);
    }
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
