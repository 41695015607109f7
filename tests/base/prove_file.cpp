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

TEST(LeggiFile, ReadsEveryByte) {
    const CartellaTemporanea cartella;
    std::string tutti;
    for (int i = 0; i < 256; ++i) {
        tutti.push_back(static_cast<char>(i));
    }
    tutti += "\r\n\n\x1A fine";
    scriviContenuto(cartella.file("byte"), tutti);
    std::string dati;
    EXPECT_EQ(leggiFile(cartella.file("byte"), mebi, dati), "");
    EXPECT_EQ(dati, tutti);
}

TEST(LeggiFile, AnEmptyFileIsAnEmptyText) {
    const CartellaTemporanea cartella;
    scriviContenuto(cartella.file("vuoto"), "");
    std::string dati = "prima";
    EXPECT_EQ(leggiFile(cartella.file("vuoto"), 0, dati), "");
    EXPECT_EQ(dati, "");
}

TEST(LeggiFile, TakesTheBoundAndNotOneByteMore) {
    const CartellaTemporanea cartella;
    scriviContenuto(cartella.file("dati"), std::string(mebi, 'x'));
    std::string dati = "prima";
    EXPECT_EQ(leggiFile(cartella.file("dati"), mebi, dati), "");
    EXPECT_EQ(dati.size(), mebi);
    scriviContenuto(cartella.file("dati"), std::string(mebi + 1, 'x'));
    dati = "prima";
    EXPECT_EQ(leggiFile(cartella.file("dati"), mebi, dati), "il file supera 1 MiB");
    EXPECT_EQ(dati, "prima");
}

TEST(LeggiFile, NamesASmallBoundInBytes) {
    const CartellaTemporanea cartella;
    scriviContenuto(cartella.file("dati"), std::string(101, 'x'));
    std::string dati;
    EXPECT_EQ(leggiFile(cartella.file("dati"), 100, dati), "il file supera 100 byte");
}

TEST(LeggiFile, AMissingFileIsSaidInWords) {
    const CartellaTemporanea cartella;
    std::string dati = "prima";
    EXPECT_EQ(leggiFile(cartella.file("manca"), mebi, dati), "il file non esiste");
    EXPECT_EQ(leggiFile(cartella.file("manca/ancora"), mebi, dati), "il file non esiste");
    EXPECT_EQ(leggiFile("", mebi, dati), "il file non esiste");
    EXPECT_EQ(dati, "prima");
}

TEST(LeggiFile, AFolderIsNoFile) {
    const CartellaTemporanea cartella;
    std::string dati = "prima";
    EXPECT_EQ(leggiFile(cartella.percorso(), mebi, dati), "non è un file");
    EXPECT_EQ(dati, "prima");
}

TEST(LeggiFile, APathThroughAFileIsSaidInWords) {
    const CartellaTemporanea cartella;
    scriviContenuto(cartella.file("dati"), "x");
    std::string dati = "prima";
    EXPECT_NE(leggiFile(cartella.file("dati/sotto"), mebi, dati), "");
    EXPECT_EQ(dati, "prima");
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
