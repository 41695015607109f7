#include <gtest/gtest.h>

#include <filesystem>

#include "app/clsAmbiente.h"
#include "comune/finti.h"

namespace kelvo::prove {
namespace {

struct ProveAmbiente : testing::Test {
    CartellaTemporanea cartella;
    clsAmbiente ambiente{cartella.percorso(), cartella.percorso(), sistemaFileStandard()};
    std::string ini = cartella.file("Kelvo.ini");
};

TEST_F(ProveAmbiente, WorkingFolderEndsInASeparatorAndTheProgramsDoesNot) {
    EXPECT_EQ(ambiente.CartellaLavoro(), cartella.percorso() + "/");
    EXPECT_EQ(ambiente.CartellaProgramma(), cartella.percorso());
    EXPECT_EQ(ambiente.PercorsoIni(), cartella.percorso() + "/Kelvo.ini");
    EXPECT_EQ(clsAmbiente("", "a/", sistemaFileStandard()).CartellaLavoro(), "a/");
    EXPECT_EQ(clsAmbiente("", "", sistemaFileStandard()).CartellaLavoro(), "./");
    EXPECT_EQ(clsAmbiente("", "", sistemaFileStandard()).PercorsoIni(), "./Kelvo.ini");
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
    ambiente.ScriviIni(cartella.percorso(), "S", "B", "2");
    EXPECT_TRUE(std::filesystem::is_directory(cartella.percorso()));
    EXPECT_FALSE(std::filesystem::exists(cartella.percorso() + ".tmp~"));
}

TEST_F(ProveAmbiente, AReadOnlyFileStaysAsItIs) {
    scriviContenuto(ini, "[S]\nB=1\n");
    std::filesystem::permissions(ini, std::filesystem::perms::owner_read);
    ambiente.ScriviIni(ini, "S", "B", "2");
    EXPECT_EQ(contenuto(ini), "[S]\nB=1\n");
}

}  // namespace
}  // namespace kelvo::prove
