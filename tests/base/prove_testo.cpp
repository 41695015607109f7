#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <initializer_list>
#include <string>
#include <string_view>

#include "base/testo.h"

namespace kelvo {
namespace {

// Written as bytes, so that no editor can change them.
constexpr std::string_view capacita = "Capacit\xC3\xA0";  // a with a grave accent, two bytes
constexpr std::string_view euro = "\xE2\x82\xAC";         // three bytes
constexpr std::string_view faccina = "\xF0\x9F\x98\x80";  // four bytes
constexpr std::string_view sostituto = "\xEF\xBF\xBD";    // U+FFFD

std::string unisci(std::initializer_list<std::string_view> pezzi) {
    std::string testo;
    for (const std::string_view pezzo : pezzi) {
        testo += pezzo;
    }
    return testo;
}

TEST(Lunghezza, CountsCharactersAndNotBytes) {
    EXPECT_EQ(lunghezza(""), 0U);
    EXPECT_EQ(lunghezza("Ramo"), 4U);
    EXPECT_EQ(lunghezza(capacita), 8U);
    EXPECT_EQ(lunghezza(euro), 1U);
    EXPECT_EQ(lunghezza(faccina), 1U);
    EXPECT_EQ(lunghezza(unisci({faccina, capacita, euro})), 10U);
}

TEST(Lunghezza, CountsAnAccentOfItsOwnAsACharacter) {
    EXPECT_EQ(lunghezza("a\xCC\x80"), 2U);
}

TEST(Lunghezza, CountsEachWrongByteAsOne) {
    struct Caso {
        std::string_view testo;
        std::size_t attesa;
    };
    constexpr std::array casi{
        Caso{"\x80", 1},
        Caso{"\xFF\xFE", 2},
        Caso{"\xE2\x82", 2},          // cut short
        Caso{"\xF0\x9F\x98", 3},      // cut short
        Caso{"\xC0\xAF", 2},          // overlong
        Caso{"\xED\xA0\x80", 3},      // half of a pair
        Caso{"\xF4\x90\x80\x80", 4},  // past the last character
        Caso{"Citt\xE0", 5},          // a single-byte encoding
        Caso{"Citt\xE0 di Norma", 14},
        Caso{"\xE2\x82\x61\xC3\xA0", 4},  // two wrong bytes, two characters
    };
    for (const Caso& caso : casi) {
        EXPECT_EQ(lunghezza(caso.testo), caso.attesa) << caso.testo;
    }
}

TEST(Lunghezza, CountsAZeroByte) {
    EXPECT_EQ(lunghezza(std::string_view("a\0b", 3)), 3U);
}

TEST(UltimiCaratteri, TakesWholeCharactersFromTheEnd) {
    EXPECT_EQ(ultimiCaratteri("keyRamo3", 1), "3");
    EXPECT_EQ(ultimiCaratteri(capacita, 1), "\xC3\xA0");
    EXPECT_EQ(ultimiCaratteri(capacita, 2), "t\xC3\xA0");
    EXPECT_EQ(ultimiCaratteri(unisci({"a", faccina}), 1), faccina);
    EXPECT_EQ(ultimiCaratteri(unisci({euro, faccina}), 2), unisci({euro, faccina}));
}

TEST(UltimiCaratteri, AreTheWholeOfAShorterText) {
    EXPECT_EQ(ultimiCaratteri("ab", 2), "ab");
    EXPECT_EQ(ultimiCaratteri("ab", 3), "ab");
    EXPECT_EQ(ultimiCaratteri("", 1), "");
    EXPECT_EQ(ultimiCaratteri("ab", 0), "");
}

TEST(UltimiCaratteri, TakeAWrongByteForOneCharacter) {
    EXPECT_EQ(ultimiCaratteri("Citt\xE0", 1), "\xE0");
    EXPECT_EQ(ultimiCaratteri("\xC3\xA0\x80", 1), "\x80");
    EXPECT_EQ(ultimiCaratteri("\xC3\xA0\x80", 2), "\xC3\xA0\x80");
    EXPECT_EQ(ultimiCaratteri("\x80\x80\x80", 2), "\x80\x80");
    EXPECT_EQ(ultimiCaratteri("a\xE2\x82", 2), "\xE2\x82");
}

TEST(SenzaUltimi, IsTheComplementOfUltimiCaratteri) {
    EXPECT_EQ(senzaUltimi("progetto.klv", 4), "progetto");
    EXPECT_EQ(senzaUltimi(capacita, 1), "Capacit");
    EXPECT_EQ(senzaUltimi("ab", 2), "");
    EXPECT_EQ(senzaUltimi("ab", 3), "");
    EXPECT_EQ(senzaUltimi("ab", 0), "ab");
    for (const std::string& testo : {unisci({capacita, "\x80", faccina, "\xE2\x82", euro, "x"}), std::string("\xC3")}) {
        const std::size_t quanti = lunghezza(testo);
        for (std::size_t i = 0; i <= quanti + 1; ++i) {
            EXPECT_EQ(senzaUltimi(testo, i) + ultimiCaratteri(testo, i), testo) << i;
            EXPECT_EQ(lunghezza(ultimiCaratteri(testo, i)), std::min(i, quanti)) << i;
        }
    }
}

TEST(ParteValida, EndsAtTheFirstWrongByte) {
    EXPECT_EQ(parteValida(""), 0U);
    EXPECT_EQ(parteValida("Citta"), 5U);
    EXPECT_EQ(parteValida("Citt\xC3\xA0"), 6U);
    EXPECT_EQ(parteValida("Citt\xE0"), 4U);
    EXPECT_EQ(parteValida("\xFF"), 0U);
    EXPECT_EQ(parteValida("a\xEF\xBF"), 1U);
    EXPECT_EQ(parteValida("\xC3\xA0 \x80 x"), 3U);
}

TEST(Utf8Valido, LeavesGoodTextAlone) {
    const std::string testo = unisci({capacita, " ", euro, faccina, "\r\n"});
    EXPECT_EQ(utf8Valido(testo), testo);
    EXPECT_EQ(utf8Valido(""), "");
}

TEST(Utf8Valido, ReplacesWrongSequences) {
    EXPECT_EQ(utf8Valido("Citt\xE0"), unisci({"Citt", sostituto}));
    EXPECT_EQ(utf8Valido("Citt\xE0 nuova"), unisci({"Citt", sostituto, " nuova"}));
    EXPECT_EQ(utf8Valido("\xFF"), sostituto);
    EXPECT_EQ(utf8Valido("a\x80\x62"), unisci({"a", sostituto, "b"}));
    EXPECT_EQ(utf8Valido("\xC3"), sostituto);
    EXPECT_EQ(utf8Valido("\xE2\x82"), sostituto);
    EXPECT_EQ(utf8Valido("\xED\xA0\x80 "), unisci({sostituto, " "}));
}

TEST(Utf8Valido, WhatIsMendedIsGoodText) {
    const std::string mendato = utf8Valido("\xF0\x9F\xC0\xAF z \xE2\x82");
    EXPECT_EQ(utf8Valido(mendato), mendato);
    EXPECT_EQ(mendato.find('\xC0'), std::string::npos);
    EXPECT_NE(mendato.find(" z "), std::string::npos);
}

TEST(Rifila, TakesBlanksAndTabsFromTheEndsAlone) {
    EXPECT_EQ(rifila(" \t a b\t "), "a b");
    EXPECT_EQ(rifila("a"), "a");
    EXPECT_EQ(rifila(""), "");
    EXPECT_EQ(rifila(" \t "), "");
    EXPECT_EQ(rifila("\na\r"), "\na\r");
}

TEST(MaiuscoleAscii, ChangesAsciiLettersAlone) {
    EXPECT_EQ(maiuscoleAscii("Kelvo.ini az{`"), "KELVO.INI AZ{`");
    EXPECT_EQ(maiuscoleAscii(capacita), "CAPACIT\xC3\xA0");
    EXPECT_EQ(maiuscoleAscii(""), "");
}

TEST(FineRiga, IsCarriageReturnAndLineFeed) {
    EXPECT_EQ(fineRiga, "\x0D\x0A");
}

TEST(Accorciato, CutsBehindSoManyCharactersAndSaysSo) {
    EXPECT_EQ(accorciato("abc", 3), "abc");
    EXPECT_EQ(accorciato("abcd", 3), "abc…");
    EXPECT_EQ(accorciato("à€è", 3), "à€è");
    EXPECT_EQ(accorciato("à€èx", 3), "à€è…");
    EXPECT_EQ(accorciato("", 0), "");
    EXPECT_EQ(accorciato("a", 0), "…");
}

TEST(Testo, CharactersComeOneByOne) {
    EXPECT_EQ(caratteri("aè€"), (std::vector<std::string>{"a", "è", "€"}));
    EXPECT_EQ(caratteri("a\xFF"), (std::vector<std::string>{"a", "\xEF\xBF\xBD"}));
    EXPECT_TRUE(caratteri("").empty());
}

TEST(TestoHtml, MarksAndQuotesBecomeEntitiesAndComeBack) {
    const std::string testo = "<script>alert(\"Sant'Ilario & C.\")</script> è 😀";
    const std::string html = testoHtml(testo);
    EXPECT_EQ(html, "&lt;script&gt;alert(&quot;Sant&#39;Ilario &amp; C.&quot;)&lt;/script&gt; è 😀");
    EXPECT_EQ(htmlInTesto(html), testo);
    EXPECT_EQ(htmlInTesto("&amp;lt;"), "&lt;") << "what came out of an entity is not read again";
    EXPECT_EQ(htmlInTesto("R&D &"), "R&D &");
    EXPECT_EQ(testoHtml("\xff<"), "\xEF\xBF\xBD&lt;");
}

TEST(CodificaPercento, EveryByteThatIsNotFreeIsWrittenInHexadecimals) {
    EXPECT_EQ(codificaPercento("AZaz09-._~"), "AZaz09-._~");
    EXPECT_EQ(codificaPercento("Forlì, Cesena"), "Forl%C3%AC%2C%20Cesena");
    EXPECT_EQ(codificaPercento("a&b=c#d?e/f+g\"h'<%>"), "a%26b%3Dc%23d%3Fe%2Ff%2Bg%22h%27%3C%25%3E");
    EXPECT_EQ(codificaPercento("😀"), "%F0%9F%98%80");
    EXPECT_EQ(codificaPercento(""), "");
}

}  // namespace
}  // namespace kelvo
