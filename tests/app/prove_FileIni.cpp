#include <gtest/gtest.h>

#include "app/FileIni.h"
#include "base/guasto.h"

namespace kelvo::prove {
namespace {

std::string scritto(std::string_view testo, std::string_view sezione, std::string_view chiave,
                    std::string_view valore) {
    FileIni ini(testo);
    ini.scrivi(sezione, chiave, valore);
    return ini.testo();
}

TEST(ProveFileIni, ReadsValuesWithoutRegardToCaseAndBlanks) {
    const FileIni ini("; commento\r\n[ LAY_OUT ]\r\n  CustomPanel = 3 \r\nTesto=\" a b \"\r\n[VUOTA]\r\nX=\r\n");
    EXPECT_EQ(ini.leggi("lay_out", "CUSTOMPANEL"), "3");
    EXPECT_EQ(ini.leggi("LAY_OUT", "Testo"), " a b ");
    EXPECT_EQ(ini.leggi("VUOTA", "X"), "");
    EXPECT_EQ(ini.leggi("VUOTA", "CustomPanel"), std::nullopt);
    EXPECT_EQ(ini.leggi("ALTRA", "X"), std::nullopt);
}

TEST(ProveFileIni, CommentsAndPairsBeforeAnySectionAreNotRead) {
    const FileIni ini("A=0\n[S]\n;A=1\n#A=2\nA=3\n");
    EXPECT_EQ(ini.leggi("S", "A"), "3");
    EXPECT_EQ(ini.leggi("S", ";A"), std::nullopt);
}

TEST(ProveFileIni, FirstOfEqualKeysCountsAlsoOverSectionsOfOneName) {
    const FileIni ini("[S]\nA=1\nA=2\n[T]\nB=3\n[s]\nA=4\nC=5\n");
    EXPECT_EQ(ini.leggi("S", "A"), "1");
    EXPECT_EQ(ini.leggi("S", "C"), "5");
}

TEST(ProveFileIni, AnyTextIsKeptToTheByte) {
    for (const std::string_view testo :
         {std::string_view{""}, std::string_view{"\n"}, std::string_view{"\r"}, std::string_view{"[S"},
          std::string_view{"[S]\r\nA=1\nB=2\r\r\n\n;x"}, std::string_view{"\xEF\xBB\xBF[S]\nA=1"},
          std::string_view{"\xEF\xBB\xBF"}, std::string_view{"\0\n[\0]\n\xFF=\xFE", 10}}) {
        EXPECT_EQ(FileIni(testo).testo(), testo);
    }
}

TEST(ProveFileIni, AWriteChangesItsLineAlone) {
    EXPECT_EQ(scritto("; c\n[S]\r\n  A = 1 \nB=2\r\n;x\r\n[T]\nA=3", "S", "A", "9"),
              "; c\n[S]\r\n  A =9\nB=2\r\n;x\r\n[T]\nA=3");
    EXPECT_EQ(scritto("[S]\r\nA=1\nB=2", "s", "b", "7"), "[S]\r\nA=1\nB=7") << "a last line without an end stays so";
    EXPECT_EQ(scritto("\xEF\xBB\xBF[S]\nA=1\n", "S", "A", "2"), "\xEF\xBB\xBF[S]\nA=2\n");
}

TEST(ProveFileIni, ANewKeyGoesBehindTheLastPairOfItsSection) {
    EXPECT_EQ(scritto("[S]\nA=1\n\n; fine\n[T]\r\nB=2\r\n", "S", "N", "5"), "[S]\nA=1\nN=5\n\n; fine\n[T]\r\nB=2\r\n");
    EXPECT_EQ(scritto("[S]\r\n[T]\r\nB=2", "S", "N", "5"), "[S]\r\nN=5\r\n[T]\r\nB=2");
    EXPECT_EQ(scritto("[S]\nA=1", "S", "N", "5"), "[S]\nA=1\nN=5\n");
}

TEST(ProveFileIni, ANewSectionGoesToTheEnd) {
    EXPECT_EQ(scritto("", "S", "A", "1"), "[S]\r\nA=1\r\n");
    EXPECT_EQ(scritto("[T]\nB=2", "S", "A", "1"), "[T]\nB=2\n[S]\nA=1\n");
    EXPECT_EQ(scritto("\xEF\xBB\xBF", "S", "A", "1"), "\xEF\xBB\xBF[S]\r\nA=1\r\n");
}

TEST(ProveFileIni, WhatIsWrittenIsReadBack) {
    for (const std::string valore : {"", "1", " a ", "\"", "\"\"", "\"a\"", "a=b", ";", "[x]", "à€", "\t", "a\"b"}) {
        FileIni ini("[S]\nA=1\n");
        ini.scrivi("S", "A", valore);
        ini.scrivi("S", "Nuova", valore);
        const FileIni riletto(ini.testo());
        EXPECT_EQ(riletto.leggi("S", "A"), valore);
        EXPECT_EQ(riletto.leggi("S", "Nuova"), valore);
    }
}

TEST(ProveFileIni, LineBreaksInAValueBecomeBlanks) {
    FileIni ini;
    ini.scrivi("S", "A", "a\r\n[T]\nB=1");
    EXPECT_EQ(FileIni(ini.testo()).leggi("S", "A"), "a  [T] B=1");
    EXPECT_EQ(FileIni(ini.testo()).leggi("T", "B"), std::nullopt);
}

TEST(ProveFileIni, ATextOfWideCharactersIsToldApart) {
    for (const std::string_view testo :
         {std::string_view{"\xFF\xFE[\0S\0", 6}, std::string_view{"\xFE\xFF\0[\0S", 6}, std::string_view{"\xFF\xFE"},
          std::string_view{"[\0S\0]\0", 6}, std::string_view{"\0\0\xFE\xFF", 4}}) {
        EXPECT_TRUE(FileIni::codificaNonValida(testo)) << testo.size();
    }
    for (const std::string_view testo :
         {"", "[S]\nA=1\n", "\xEF\xBB\xBF[S]", "[Citt\xC3\xA0]", "[Citt\xE0]", "\xFF", "\xFE"}) {
        EXPECT_FALSE(FileIni::codificaNonValida(testo)) << testo;
    }
}

TEST(ProveFileIni, WhatIsMissingOrWithoutAValueIsTakenFromAnother) {
    FileIni ini("; mio\r\n[s]\r\na = 1\r\nvuota=\r\n");
    ini.completa(FileIni("nessuna=0\n[S]\nA=2\n;C=3\nVuota=4\nB=\"x \"\nNulla=\n[T]\nD=5\n"));
    EXPECT_EQ(ini.testo(), "; mio\r\n[s]\r\na = 1\r\nvuota=4\r\nB=\"x \"\r\n[T]\r\nD=5\r\n");
}

TEST(ProveFileIni, WhatIsTakenFromAnotherHasItsNameWithoutBlanksAndOneOfNoUseIsPassedOver) {
    FileIni ini("[S]\nA=1\n");
    ini.completa(FileIni("[ S ]\nB=2\n=3\n[aperta=4\n[ T\t]\nC=5\n[a\rb]\nD=6\n"));
    EXPECT_EQ(ini.testo(), "[S]\nA=1\nB=2\n[T]\nC=5\n");
}

TEST(ProveFileIni, NamesThatCouldNotBeFoundAgainAreFaults) {
    FileIni ini("[S]\n");
    for (const std::string chiave : {"", "a=b", ";a", "#a", "[a", " a", "a ", "a\nb", "a\rb"}) {
        EXPECT_THROW(ini.scrivi("S", chiave, "1"), Guasto) << chiave;
    }
    for (const std::string sezione : {"a]", " a", "a\nb"}) {
        EXPECT_THROW(ini.scrivi(sezione, "a", "1"), Guasto) << sezione;
    }
    EXPECT_EQ(ini.testo(), "[S]\n");
}

}  // namespace
}  // namespace kelvo::prove
