#include <gtest/gtest.h>

#include <filesystem>
#include <iterator>

#include "app/clsAmbiente.h"
#include "comune/finti.h"
#include "comune/guasti.h"

namespace kelvo::prove {
namespace {

struct ProveAmbiente : testing::Test {
    CartellaTemporanea cartella;
    clsAmbiente ambiente{cartella.percorso(), cartella.percorso(), sistemaFileStandard()};
    std::string ini = cartella.file("Kelvo.ini");
};

TEST_F(ProveAmbiente, WorkingFolderEndsInASeparatorAndTheProgramsDoesNot) {
    const std::string barra{static_cast<char>(std::filesystem::path::preferred_separator)};
    EXPECT_EQ(ambiente.CartellaLavoro(), cartella.percorso() + barra);
    EXPECT_EQ(ambiente.CartellaProgramma(), cartella.percorso());
    EXPECT_EQ(ambiente.PercorsoIni(), cartella.file("Kelvo.ini"));
    EXPECT_EQ(clsAmbiente("", "a/", sistemaFileStandard()).CartellaLavoro(), "a/");
    EXPECT_EQ(clsAmbiente("", "", sistemaFileStandard()).CartellaLavoro(), "." + barra);
    EXPECT_EQ(clsAmbiente("", "", sistemaFileStandard()).PercorsoIni(), "." + barra + "Kelvo.ini");
}

TEST_F(ProveAmbiente, AMissingKeyOrFileReadsAsAnEmptyText) {
    EXPECT_EQ(ambiente.LeggiIni("S", "A", ini), "");
    scriviContenuto(ini, "[S]\nB=1\n");
    EXPECT_EQ(ambiente.LeggiIni("S", "A", ini), "");
    EXPECT_EQ(ambiente.LeggiIni("S", "B", ini), "1");
    EXPECT_EQ(ambiente.LeggiIni("S", "B", cartella.percorso()), "");
}

TEST_F(ProveAmbiente, AWriteKeepsTheRestOfTheFile) {
    scriviContenuto(ini, "; commento\r\n[S]\nB=1\r\n");
    ambiente.ScriviIni(ini, "S", "B", "2");
    EXPECT_EQ(contenuto(ini), "; commento\r\n[S]\nB=2\r\n");
}

TEST_F(ProveAmbiente, AWriteMakesAMissingFile) {
    ambiente.ScriviIni(ini, "S", "B", "2");
    EXPECT_EQ(contenuto(ini), "[S]\r\nB=2\r\n");
}

TEST_F(ProveAmbiente, AFileThatCannotBeReadIsNotOverwritten) {
    const std::string enorme(1024UL * 1024UL + 1, ';');
    scriviContenuto(ini, enorme);
    ambiente.ScriviIni(ini, "S", "B", "2");
    EXPECT_EQ(contenuto(ini), enorme);
    const std::string sotto = cartella.file("sotto");
    std::filesystem::create_directory(sotto);
    ambiente.ScriviIni(sotto, "S", "B", "2");
    EXPECT_TRUE(std::filesystem::is_directory(sotto));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(cartella.percorso()), {}), 2) << "and nothing else";
}

TEST_F(ProveAmbiente, AFileInUtf16IsReadAsEmptyAndNotWrittenInto) {
    const std::string largo(
        "\xFF\xFE[\0S\0]\0\n\0B\0=\0"
        "1\0",
        16);
    scriviContenuto(ini, largo);
    EXPECT_EQ(ambiente.LeggiIni("S", "B", ini), "");
    EXPECT_EQ(ambiente.ScriviIni(ini, "S", "B", "2"), "il file non è di testo UTF-8");
    EXPECT_EQ(contenuto(ini), largo);
}

TEST_F(ProveAmbiente, ANameThatCouldNotBeFoundAgainIsFault5) {
    EXPECT_EQ(numeroGuasto([&] { ambiente.ScriviIni(ini, "S", "A=B", "2"); }), 5);
    EXPECT_EQ(numeroGuasto([&] { ambiente.ScriviIni(ini, "S]", "A", "2"); }), 5);
    EXPECT_FALSE(std::filesystem::exists(ini));
}

TEST_F(ProveAmbiente, AReadOnlyFileStaysAsItIs) {
    scriviContenuto(ini, "[S]\nB=1\n");
    std::filesystem::permissions(ini, std::filesystem::perms::owner_read);
    EXPECT_EQ(ambiente.ScriviIni(ini, "S", "B", "2"), "il file è di sola lettura");
    EXPECT_EQ(contenuto(ini), "[S]\nB=1\n");
    EXPECT_EQ(ambiente.ScriviIni(ini, "S", "B", "1"), "") << "nothing to write";
}

}  // namespace
}  // namespace kelvo::prove
