#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "base/file.h"
#include "comune/cartella.h"

namespace kelvo {
namespace {

using prove::CartellaTemporanea;
using prove::scriviContenuto;

constexpr std::uint64_t mebi = std::uint64_t{1024} * 1024;

// Names that differ in case alone are different files here, and links can be made by anybody.

class PercorsoSenzaMaiuscole : public testing::Test {
protected:
    PercorsoSenzaMaiuscole() {
        std::filesystem::create_directories(cartella.file("XLS/Sotto"));
        scriviContenuto(cartella.file("XLS/Sotto/Foglio.xlsx"), "");
    }
    std::string trova(const std::string& nome) const { return percorsoSenzaMaiuscole(cartella.percorso(), nome); }
    CartellaTemporanea cartella;
};

TEST_F(PercorsoSenzaMaiuscole, EveryComponentIsFoundWhateverItsCase) {
    EXPECT_EQ(trova("XLS/Sotto/Foglio.xlsx"), cartella.file("XLS/Sotto/Foglio.xlsx"));
    EXPECT_EQ(trova("xls/SOTTO/foglio.XLSX"), cartella.file("XLS/Sotto/Foglio.xlsx"));
    EXPECT_EQ(trova("xls"), cartella.file("XLS"));
}

TEST_F(PercorsoSenzaMaiuscole, BothSlashesSeparate) {
    EXPECT_EQ(trova("\\xls\\sotto\\foglio.xlsx"), cartella.file("XLS/Sotto/Foglio.xlsx"));
    EXPECT_EQ(trova("xls\\\\sotto/foglio.xlsx"), cartella.file("XLS/Sotto/Foglio.xlsx"));
    EXPECT_EQ(trova("manca\\ancora"), cartella.file("manca/ancora"));
}

TEST_F(PercorsoSenzaMaiuscole, AnExactNameComesBeforeAnyOther) {
    scriviContenuto(cartella.file("prova.txt"), "");
    scriviContenuto(cartella.file("PROVA.TXT"), "");
    scriviContenuto(cartella.file("Prova.txt"), "");
    EXPECT_EQ(trova("prova.txt"), cartella.file("prova.txt"));
    EXPECT_EQ(trova("PROVA.TXT"), cartella.file("PROVA.TXT"));
    EXPECT_EQ(trova("pROVA.txt"), cartella.file("PROVA.TXT")) << "the first in alphabetical order";
}

TEST_F(PercorsoSenzaMaiuscole, AMissingNameStandsInTheFolderThatIsThere) {
    EXPECT_EQ(trova("xls/Risultati.txt"), cartella.file("XLS/Risultati.txt"));
    EXPECT_EQ(trova("Manca/Risultati.txt"), cartella.file("Manca/Risultati.txt"));
    EXPECT_EQ(trova("xls/sotto/foglio.xlsx/altro"), cartella.file("XLS/Sotto/Foglio.xlsx/altro"));
    EXPECT_EQ(percorsoSenzaMaiuscole(cartella.file("manca"), "A"), cartella.file("manca/A"));
    EXPECT_EQ(trova(""), cartella.percorso());
}

TEST_F(PercorsoSenzaMaiuscole, AccentsAreNotFolded) {
    scriviContenuto(cartella.file("Citt\xC3\xA0"), "");
    EXPECT_EQ(trova("CITT\xC3\xA0"), cartella.file("Citt\xC3\xA0"));
    EXPECT_EQ(trova("CITT\xC3\x80"), cartella.file("CITT\xC3\x80"));
}

TEST(LeggiFile, ANameTooLongIsSaidInWords) {
    const CartellaTemporanea cartella;
    std::string dati = "prima";
    EXPECT_EQ(leggiFile(cartella.file(std::string(5000, 'n')), mebi, dati), "il nome è troppo lungo");
    EXPECT_EQ(dati, "prima");
}

TEST(LeggiFile, FollowsALinkAndFindsNamesWithAccents) {
    const CartellaTemporanea cartella;
    scriviContenuto(cartella.file("Citt\xC3\xA0.klv"), "contenuto");
    std::filesystem::create_symlink(cartella.file("Citt\xC3\xA0.klv"), cartella.file("legame"));
    std::string dati;
    EXPECT_EQ(leggiFile(cartella.file("Citt\xC3\xA0.klv"), mebi, dati), "");
    EXPECT_EQ(dati, "contenuto");
    EXPECT_EQ(leggiFile(cartella.file("legame"), mebi, dati), "");
    EXPECT_EQ(dati, "contenuto");
    std::filesystem::remove(cartella.file("Citt\xC3\xA0.klv"));
    EXPECT_EQ(leggiFile(cartella.file("legame"), mebi, dati), "il file non esiste");
}

}  // namespace
}  // namespace kelvo
