#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "modelloProva.h"

namespace kelvo::prove {
namespace {

using Righe = std::vector<std::string>;

TEST(Sostituisci, EveryOccurrenceIsReplacedInAnyCase) {
    const auto doc = conCorpo(p("a %TMTI% b %tmti%%Tmti%") + p("niente"));
    EXPECT_EQ(doc->Sostituisci("%TMTI%", "07:30"), 3);
    EXPECT_EQ(Letto(*doc).blocchi(), (Righe{"a 07:30 b 07:3007:30", "niente"}));
    EXPECT_EQ(doc->Sostituisci("%TMTI%", "08:00"), 0);
}

TEST(Sostituisci, AccentedLettersAreFoundInAnyCase) {
    const auto doc = conCorpo(p("CITTÀ città Città ×÷"));
    EXPECT_EQ(doc->Sostituisci("città", "x"), 3);
    EXPECT_EQ(doc->Sostituisci("÷", "y"), 1);  // no pair of letters
    EXPECT_EQ(Letto(*doc).blocchi(), Righe{"x x x ×y"});
}

TEST(Sostituisci, ATextSplitAcrossRunsTakesTheFormatOfTheFirst) {
    const auto doc = conCorpo(par(r("da %Com", "<w:b/>") + "<w:proofErr w:type=\"spellStart\"/>" +
                                  segno("in_mezzo", 7) + r("une", "<w:i/>") + "<w:hyperlink w:anchor=\"x\">" +
                                  r("Progetto% a", "<w:u w:val=\"single\"/>") + "</w:hyperlink>"));
    EXPECT_EQ(doc->Sostituisci("%ComuneProgetto%", "Forlì"), 1);
    const Letto letto(*doc);
    EXPECT_EQ(letto.blocchi(), Righe{"da Forlì a"});
    EXPECT_EQ(Letto::testo(letto.corpo().select_node("//w:r[w:rPr/w:b]").node()), "da Forlì");
    EXPECT_EQ(Letto::testo(letto.corpo().select_node("//w:r[w:rPr/w:u]").node()), " a");
    EXPECT_EQ(letto.conta("w:bookmarkStart"), 1);
    EXPECT_EQ(letto.errori(), "");
}

TEST(Sostituisci, SeveralInOneRunAndAcrossTheirBoundsAllComeOutRight) {
    const auto doc = conCorpo(par(r("%A%-%B") + r("%-%A%%") + r("B%.")));
    const std::vector<Sostituzione> coppie{{"%A%", "uno"}, {"%B%", "due"}};
    EXPECT_EQ(doc->Sostituisci(coppie), 4);
    EXPECT_EQ(Letto(*doc).blocchi(), Righe{"uno-due-unodue."});
}

TEST(Sostituisci, OfTwoAtOnePlaceTheLongerIsTaken) {
    const auto doc = conCorpo(p("%VE1%0"));
    const std::vector<Sostituzione> coppie{{"%VE1%", "corto"}, {"%VE1%0", "lungo"}};
    EXPECT_EQ(doc->Sostituisci(coppie), 1);
    EXPECT_EQ(Letto(*doc).blocchi(), Righe{"lungo"});
}

TEST(Sostituisci, BodyTablesTextBoxesHeadersFootersAndNotesAreSearched) {
    const std::string tabelle = tbl(1, tr(tc(tbl(1, tr(tc(p("t %X%")))) + "<w:p/>")));
    const auto doc =
        documento(parti(tabelle + par(casella(p("c %X%")) + r("d %X%")), p("i %X%"), p("p %X%"), p("n %X%")));
    EXPECT_EQ(doc->Sostituisci("%x%", "1"), 6);
    const Letto letto(*doc);
    EXPECT_EQ(letto.tabella()[0][0], "t 1");
    EXPECT_NE(letto.testoParte("document").find("c 1"), std::string::npos);
    EXPECT_NE(letto.testoParte("document").find("d 1"), std::string::npos);
    EXPECT_NE(letto.testoParte("header1").find("i 1"), std::string::npos);
    EXPECT_NE(letto.testoParte("footer1").find("p 1"), std::string::npos);
    EXPECT_NE(letto.testoParte("footnotes").find("n 1"), std::string::npos);
    EXPECT_EQ(letto.errori(), "");
}

TEST(Sostituisci, ATextBoxInsideAParagraphIsNoPartOfItsText) {
    const auto doc = conCorpo(par(r("%A") + casella(p("dentro")) + r("%")));
    EXPECT_EQ(doc->Sostituisci("%A%", "x"), 0);
    const auto altro = conCorpo(par(r("%A%") + casella(p("%A%"))));
    EXPECT_EQ(altro->Sostituisci("%A%", "x"), 2);
}

TEST(Sostituisci, AValueIsNeverSearchedAgain) {
    const auto doc =
        conCorpo(p("%TitoloProgetto% di %NomeProfessionista%") + tbl(2, tr(tc(par(segno("T", 1))) + tc("<w:p/>"))));
    EXPECT_EQ(doc->Sostituisci("%TitoloProgetto%", "%NomeProfessionista%%CN%"), 1);
    EXPECT_EQ(doc->Sostituisci("%NomeProfessionista%", "Rossi %"), 1);
    doc->SelezionaSegnalibro("T");
    doc->CellaSuccessiva();
    doc->ScriviTesto("%CN%");
    doc->Contenuto();  // writing it changes nothing of that
    EXPECT_EQ(doc->Sostituisci("%CN%", "sì"), 0);
    constexpr std::array<std::string_view, 2> elenco{"%CN%", "%NomeProfessionista%"};
    EXPECT_EQ(doc->Sbianca(elenco), 0);
    const Letto letto(*doc);
    EXPECT_EQ(letto.blocchi()[0], "%NomeProfessionista%%CN% di Rossi %");
    EXPECT_EQ(letto.tabella()[0][1], "%CN%");
    EXPECT_EQ(letto.parte("word/document.xml").find("kelvo"), std::string::npos);
    EXPECT_EQ(letto.errori(), "");
}

TEST(Sostituisci, AValueThatHoldsItsOwnPlaceholderEnds) {
    const auto doc = conCorpo(p("%A% e %A%"));
    EXPECT_EQ(doc->Sostituisci("%A%", "x%A%x"), 2);
    EXPECT_EQ(Letto(*doc).blocchi(), Righe{"x%A%x e x%A%x"});
}

TEST(Sostituisci, AValueAndWhatStandsBesideItNeverMakeAPlaceholder) {
    const auto doc = conCorpo(p("%A%CN%"));
    EXPECT_EQ(doc->Sostituisci("%A%", "%"), 1);
    EXPECT_EQ(doc->Sostituisci("%CN%", "no"), 0);
    EXPECT_EQ(Letto(*doc).blocchi(), Righe{"%CN%"});
}

TEST(Sostituisci, LineBreaksAndTabsBecomeThoseOfTheDocument) {
    const auto doc = conCorpo(p("[%A%]"));
    EXPECT_EQ(doc->Sostituisci("%A%", "uno\r\ndue\n\ntre\rquattro\tcinque\n"), 1);
    const Letto letto(*doc);
    EXPECT_EQ(letto.blocchi(), Righe{"[uno\ndue\n\ntre\nquattro\tcinque\n]"});
    EXPECT_EQ(letto.conta("w:br"), 5);
    EXPECT_EQ(letto.conta("w:tab"), 1);
    EXPECT_EQ(letto.conta("w:p"), 1);
    EXPECT_EQ(letto.errori(), "");
}

TEST(Sostituisci, MarkupQuotesAccentsAndEmojiStandAsTheyAre) {
    const std::string valore = "Rossi & <Figli> \"S.p.A.\" l'età 🚗 ]]>";
    const auto doc = conCorpo(p("%A%"));
    doc->Sostituisci("%A%", valore);
    const Letto letto(*doc);
    EXPECT_EQ(letto.blocchi(), Righe{valore});
    EXPECT_EQ(letto.errori(), "");
}

TEST(Sostituisci, WhatNoDocumentHoldsIsDropped) {
    const auto doc = conCorpo(p("%A%"));
    doc->Sostituisci("%A%", std::string("a\0b\x01\x0B\x1F"
                                        "c\xEF\xBF\xBE",
                                        10) +
                                "\xEF\xBF\xBF" + "d\xC3(");
    const Letto letto(*doc);
    EXPECT_EQ(letto.blocchi(), Righe{"abcd\xEF\xBF\xBD("});
    EXPECT_EQ(letto.errori(), "");
}

TEST(Sostituisci, BlanksBesideAValueAreKept) {
    const auto doc = conCorpo(p("  %A%  ") + par(r("x ") + r(" ") + r("%B%")));
    const std::vector<Sostituzione> coppie{{"%A%", " v "}, {"%B%", ""}};
    EXPECT_EQ(doc->Sostituisci(coppie), 2);
    const Letto letto(*doc);
    EXPECT_EQ(letto.blocchi(), (Righe{"   v   ", "x  "}));
    for (const auto& testo : letto.corpo().select_nodes("//w:t")) {
        EXPECT_STREQ(testo.node().attribute("xml:space").value(), "preserve");
    }
}

TEST(Sostituisci, NothingIsFoundForNothing) {
    const auto doc = conCorpo(p("x"));
    EXPECT_EQ(doc->Sostituisci("", "y"), 0);
    EXPECT_EQ(doc->Sostituisci("\x01", "y"), 0);
    EXPECT_EQ(Letto(*doc).blocchi(), Righe{"x"});
}

TEST(Sostituisci, FieldsDrawingsAndDeletedTextStandBetweenPieces) {
    const std::string campo =
        "<w:r><w:fldChar w:fldCharType=\"begin\"/></w:r><w:r><w:instrText>%A%</w:instrText></w:r>"
        "<w:r><w:fldChar w:fldCharType=\"end\"/></w:r>";
    const auto doc = conCorpo(par(r("%") + campo + r("A%")));
    EXPECT_EQ(doc->Sostituisci("%A%", "x"), 0);
    EXPECT_EQ(Letto(*doc).errori(), "");
}

TEST(Sbianca, WhatNoStepFilledGoesAndTheRestStays) {
    const auto doc = documento(
        parti(p("A %Ipotesi1% B %ipotesi2%C") + par(r("%VE") + r("1%")) + p("100% di 50% e %Altro%"), p("%CN%")));
    constexpr std::array<std::string_view, 4> elenco{"%Ipotesi1%", "%Ipotesi2%", "%VE1%", "%CN%"};
    EXPECT_EQ(doc->Sbianca(elenco), 4);
    const Letto letto(*doc);
    EXPECT_EQ(letto.blocchi(), (Righe{"A  B C", "", "100% di 50% e %Altro%"}));
    EXPECT_EQ(letto.parte("word/header1.xml").find('%'), std::string::npos);
    EXPECT_EQ(letto.errori(), "");
}

}  // namespace
}  // namespace kelvo::prove
