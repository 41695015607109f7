#include "input/fileCSV.h"

#include <gtest/gtest.h>

#include <fstream>
#include <random>

#include "base/testo.h"
#include "comune/cartella.h"

namespace kelvo::prove {
namespace {

constexpr auto puntoEVirgola = SeparatoreCSV::puntoEVirgola;
constexpr auto virgola = SeparatoreCSV::virgola;
constexpr auto tabulazione = SeparatoreCSV::tabulazione;

RigheCSV celle(std::string_view testo, SeparatoreCSV separatore = puntoEVirgola) {
    const CelleCSV lette = celleCSV(testo, separatore);
    EXPECT_EQ(lette.errore, "");
    return lette.righe;
}

TEST(CelleCSV, RowsEndInAnyOfTheThreeWays) {
    const RigheCSV attese{{"a", "b"}, {"1", "2"}};
    EXPECT_EQ(celle("a;b\r\n1;2\r\n"), attese);
    EXPECT_EQ(celle("a;b\n1;2\n"), attese);
    EXPECT_EQ(celle("a;b\r1;2\r"), attese);
    EXPECT_EQ(celle("a;b\n1;2"), attese);
}

TEST(CelleCSV, EachSeparatorPartsItsCells) {
    EXPECT_EQ(celle("1,5;2\t3"), (RigheCSV{{"1,5", "2 3"}}));
    EXPECT_EQ(celle("1,5;2\t3", virgola), (RigheCSV{{"1", "5;2 3"}}));
    EXPECT_EQ(celle("1,5;2\t3", tabulazione), (RigheCSV{{"1,5;2", "3"}}));
    EXPECT_EQ(celle("1\t\t3", tabulazione), (RigheCSV{{"1", "", "3"}}));
    EXPECT_EQ(celle("\t3", tabulazione), (RigheCSV{{"", "3"}}));
}

TEST(CelleCSV, QuotedCellsHoldSeparatorsQuotesAndLineBreaks) {
    EXPECT_EQ(celle("\"a;b\";\"c\"\"d\";\"e\r\nf\"\n1;2;3\n"), (RigheCSV{{"a;b", "c\"d", "e  f"}, {"1", "2", "3"}}));
    EXPECT_EQ(celle("Via \"Roma\";2\n"), (RigheCSV{{"Via \"Roma\"", "2"}}));
}

TEST(CelleCSV, BlanksAroundACellAreGone) {
    EXPECT_EQ(celle("  a ; \"b\" ;\" c \"\n"), (RigheCSV{{"a", "b", "c"}}));
}

TEST(CelleCSV, ShortLongAndEmptyRowsStandAsTheyAre) {
    EXPECT_EQ(celle("a;b;c\n1\n\n1;2;3;4\n;\n\n\n"),
              (RigheCSV{{"a", "b", "c"}, {"1"}, {}, {"1", "2", "3", "4"}, {"", ""}}));
    EXPECT_EQ(celle("1\r\n\r\n2\r\n"), (RigheCSV{{"1"}, {}, {"2"}})) << "CR LF is one end of a line";
    EXPECT_EQ(celle(""), RigheCSV{});
    EXPECT_EQ(celle("\n\r\n  \n"), RigheCSV{});
    EXPECT_EQ(colonneCSV(celle("a\n1;2;3\n4;5\n")), 3U);
}

TEST(CelleCSV, QuotesThatAreNeverClosedAreRefusedWithTheirRow) {
    EXPECT_EQ(celleCSV("a;b\n1;\"2\n3;4\n", puntoEVirgola).errore,
              "Il file non è un CSV leggibile: le virgolette aperte nella riga 2 non si chiudono.");
    EXPECT_TRUE(celleCSV("a;b\n1;\"2\n3;4\n", puntoEVirgola).righe.empty());
}

TEST(CelleCSV, TheLimitsAreToldAndTheirLastIsTaken) {
    std::string larga(limiteCSV::colonne - 1, ';');
    EXPECT_EQ(celle(larga).at(0).size(), limiteCSV::colonne);
    EXPECT_EQ(celleCSV(larga + ";", puntoEVirgola).errore,
              "Il file ha più di 200 colonne: controllare il file e il separatore.");
    std::string lunga;
    for (std::size_t i = 0; i < limiteCSV::righe; ++i) {
        lunga += "1\r\n";
    }
    EXPECT_EQ(celle(lunga).size(), limiteCSV::righe);
    EXPECT_EQ(celle(lunga + "\r\n\r\n").size(), limiteCSV::righe);
    EXPECT_EQ(celleCSV(lunga + "\r\n2", puntoEVirgola).errore, "Il file ha più di 10000 righe.");
}

TEST(TestoCSV, Utf8ComesWithOrWithoutItsMark) {
    EXPECT_EQ(testoCSV("\xEF\xBB\xBFsì").testo, "sì");
    EXPECT_EQ(testoCSV("sì €").testo, "sì €");
    EXPECT_FALSE(testoCSV("sì €").daWindows1252);
}

TEST(TestoCSV, OtherBytesAreWindows1252) {
    const TestoCSV letto = testoCSV("citt\xE0;\x80 \x93x\x94 \x9C\x81\xFF");
    EXPECT_EQ(letto.testo, "città;€ “x” œ\xEF\xBF\xBDÿ");
    EXPECT_TRUE(letto.daWindows1252);
    EXPECT_EQ(letto.errore, "");
}

TEST(TestoCSV, EveryByteHasTheCharacterOfTheCode) {
    // The 27 that are known from 0x80 to 0x9F, in their order; the other five mean nothing.
    const std::string noti = "€‚ƒ„…†‡ˆ‰Š‹ŒŽ‘’“”•–—˜™š›œžŸ";
    std::string byte;
    std::string attesi;
    const std::vector<std::string> lettere = caratteri(noti);
    std::size_t prossima = 0;
    for (int b = 0x80; b < 0xA0; ++b) {
        byte += static_cast<char>(b);
        const bool ignoto = b == 0x81 || b == 0x8D || b == 0x8F || b == 0x90 || b == 0x9D;
        attesi += ignoto ? "\xEF\xBF\xBD" : lettere.at(prossima++);
    }
    EXPECT_EQ(prossima, lettere.size());
    EXPECT_EQ(testoCSV(byte + "\xA0\xBF\xC0\xFF").testo, attesi + "\u00A0¿Àÿ");
}

TEST(TestoCSV, WhatIsNoTextOfOneByteACharacterIsRefused) {
    EXPECT_EQ(testoCSV(std::string_view("\xFF\xFE"
                                        "1\0;\0",
                                        6))
                  .errore,
              "Il file è in formato Unicode a 16 bit: salvarlo come CSV UTF-8, oppure come CSV semplice.");
    EXPECT_EQ(testoCSV(std::string_view("PK\3\4\0\0", 6)).errore, "Il file non è un file di testo.");
    EXPECT_EQ(testoCSV(std::string(limiteCSV::byte + 1, '1')).errore, "Il file supera i 4 MiB.");
    EXPECT_EQ(testoCSV(std::string(limiteCSV::byte, '1')).errore, "");
}

TEST(TestoCSV, AFileIsReadAndOneThatCannotIsTold) {
    const CartellaTemporanea cartella;
    std::ofstream(cartella.file("a.csv"), std::ios::binary) << "\xEF\xBB\xBF"
                                                               "a;b\r\n";
    EXPECT_EQ(leggiTestoCSV(cartella.file("a.csv")).testo, "a;b\r\n");
    EXPECT_EQ(leggiTestoCSV(cartella.file("manca.csv")).errore, "Impossibile leggere il file: il file non esiste");
    std::ofstream(cartella.file("grande.csv"), std::ios::binary) << std::string(limiteCSV::byte + 1, '1');
    EXPECT_EQ(leggiTestoCSV(cartella.file("grande.csv")).errore, "Impossibile leggere il file: il file supera 4 MiB");
}

TEST(SeparatoreProbabile, IsTheOneThatTheRowsAgreeOn) {
    EXPECT_EQ(separatoreProbabile("a;b;c\n1,5;2,5;3\n"), puntoEVirgola);
    EXPECT_EQ(separatoreProbabile("a,b,c\n1.5,2.5,3\n"), virgola);
    EXPECT_EQ(separatoreProbabile("a\tb\tc\n1,5\t2,5\t3\n"), tabulazione);
    EXPECT_EQ(separatoreProbabile("Ora;Auto, moto;Bus\n08:00;12;1\n08:15;9;0\n"), puntoEVirgola);
    EXPECT_EQ(separatoreProbabile("Conteggi di maggio, ramo A\nOra;Auto\n08:00;12\n08:15;9\n"), puntoEVirgola);
    EXPECT_EQ(separatoreProbabile("\"a;b\",\"c;d\"\n1,2\n3,4\n"), virgola);
    EXPECT_EQ(separatoreProbabile("riga,1\nriga,2\nriga,3\n"), virgola);
}

TEST(SeparatoreProbabile, ALoneColumnOfDecimalsIsNotTwoColumns) {
    EXPECT_EQ(separatoreProbabile("Flusso\n12,5\n13,25\n14\n"), puntoEVirgola);
    EXPECT_EQ(separatoreProbabile("12,5\n13,5\n"), puntoEVirgola);
    EXPECT_EQ(separatoreProbabile("12\n13\n"), puntoEVirgola);
    EXPECT_EQ(separatoreProbabile(""), puntoEVirgola);
}

TEST(SeparatoreProbabile, ALongFileIsJudgedByItsBeginning) {
    std::string lungo;
    for (int i = 0; i < 20'000; ++i) {
        lungo += "08:00\t" + std::to_string(i) + "\r\n";
    }
    EXPECT_EQ(separatoreProbabile(lungo), tabulazione);
}

TEST(BytesCSV, NoBytesBringTheReaderDown) {
    std::mt19937 caso(20261121);  // NOLINT(cert-msc32-c,cert-msc51-cpp): the same bytes each time
    const std::string seme =
        "Ora;\"Auto; tutte\";Bus\r\n08:00 - 08:15;12,5;\"1\"\"2\"\r\n08:15;\t;9.125\n;;;\r\xE0\xEF\xBB\xBF,x\n";
    std::uniform_int_distribution<std::size_t> quanti(1, 12);
    std::uniform_int_distribution<int> byte(0, 255);
    constexpr std::string_view vivi = "\";,\t\r\n \xE0";
    std::size_t lette = 0;
    for (int giro = 0; giro < 4000; ++giro) {
        std::string dati = seme;
        for (std::size_t k = quanti(caso); k > 0; --k) {
            const std::size_t dove = static_cast<std::size_t>(caso()) % (dati.size() + 1);
            switch (caso() % 3U) {
                case 0:
                    dati.insert(dove, 1, static_cast<char>(byte(caso)));
                    break;
                case 1:
                    dati.insert(dove, 1, vivi[caso() % vivi.size()]);
                    break;
                default:
                    dati.erase(dove, caso() % 9U);
            }
        }
        const TestoCSV testo = testoCSV(dati);
        EXPECT_EQ(parteValida(testo.testo), testo.testo.size());
        separatoreProbabile(testo.testo);
        for (const VoceSeparatoreCSV& voce : vociSeparatoreCSV) {
            const CelleCSV celle = celleCSV(testo.testo, voce.separatore);
            EXPECT_TRUE(celle.errore.empty() || celle.righe.empty());
            for (const auto& riga : celle.righe) {
                for (const std::string& cella : riga) {
                    ASSERT_EQ(cella.find_first_of("\r\n\t"), std::string::npos);
                    ++lette;
                }
            }
        }
    }
    EXPECT_GT(lette, 10'000U);
}

}  // namespace
}  // namespace kelvo::prove
