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

}  // namespace
}  // namespace kelvo
