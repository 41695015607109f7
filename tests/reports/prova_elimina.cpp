#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "modelloProva.h"

namespace kelvo::prove {
namespace {

using Righe = std::vector<std::string>;

const std::string vuotaC = tc("<w:p/>");
const std::string tabella2 = tbl(1, tr(tc(p("t1"))) + tr(tc(p("t2"))));
const std::string paragrafoDiSezione = par("", "<w:sectPr><w:pgSz w:w=\"16838\" w:h=\"11906\"/></w:sectPr>");

/// What is left of a body when the bookmark "S" goes; it must be a valid document without any mark of it.
Letto senzaS(const std::string& corpo) {
    const auto doc = conCorpo(corpo);
    doc->SelezionaSegnalibro("S");
    doc->EliminaSelezione();
    EXPECT_FALSE(doc->HaSegnalibro("S"));
    Letto letto(*doc);
    EXPECT_EQ(letto.errori(), "");
    EXPECT_STREQ(letto.corpo().last_child().name(), "w:sectPr");
    EXPECT_EQ(letto.conta("w:bookmarkStart"), letto.conta("w:bookmarkEnd"));
    return letto;
}

TEST(Elimina, ParagraphsAndTablesOfASectionGo) {
    const Letto letto = senzaS(p("prima") + par(inizio("S", 1) + r("titolo")) + p("testo") + tabella2 +
                               par(r("ultimo") + fine(1)) + p("dopo"));
    EXPECT_EQ(letto.blocchi(), (Righe{"prima", "dopo"}));
}

TEST(Elimina, EndsBetweenTheBlocksTakeWhatStandsBetweenThem) {
    EXPECT_EQ(senzaS(p("a") + inizio("S", 1) + p("b") + tabella2 + fine(1) + p("c")).blocchi(), (Righe{"a", "c"}));
    EXPECT_EQ(senzaS(p("a") + par(inizio("S", 1) + r("b")) + tabella2 + fine(1) + p("c")).blocchi(), (Righe{"a", "c"}));
    EXPECT_EQ(senzaS(p("a") + inizio("S", 1) + tabella2 + par(r("b") + fine(1)) + p("c")).blocchi(), (Righe{"a", "c"}));
    EXPECT_EQ(senzaS(p("a") + par(inizio("S", 1) + r("b")) + par(fine(1) + r("c"))).blocchi(), (Righe{"a", "c"}));
}

TEST(Elimina, WhatStandsBesideTheEndsStaysAndIsJoined) {
    const Letto letto = senzaS(par(r("prima ") + inizio("S", 1) + r("via"), "<w:jc w:val=\"left\"/>") + p("via") +
                               par(r("via") + fine(1) + r("dopo"), "<w:jc w:val=\"right\"/>"));
    EXPECT_EQ(letto.blocchi(), Righe{"prima dopo"});
    EXPECT_STREQ(letto.corpo().child("w:p").child("w:pPr").child("w:jc").attribute("w:val").value(), "right");
}

TEST(Elimina, InsideAParagraphOnlyItsTextGoes) {
    EXPECT_EQ(senzaS(par(r("a") + inizio("S", 1) + r("b") + fine(1) + r("c"))).blocchi(), Righe{"ac"});
    EXPECT_EQ(senzaS(p("x") + par(inizio("S", 1) + r("tutto") + fine(1)) + p("y")).blocchi(), (Righe{"x", "y"}));
    const std::string legame = "<w:hyperlink w:anchor=\"q\">" + r("1") + inizio("S", 1) + r("2") + "</w:hyperlink>";
    EXPECT_EQ(senzaS(par(legame + r("3") + fine(1) + r("4"))).blocchi(), Righe{"14"});
}

TEST(Elimina, ABookmarkThatSpansNothingTakesNothing) {
    EXPECT_EQ(senzaS(par(segno("S", 1) + r("x"))).blocchi(), Righe{"x"});
    EXPECT_EQ(senzaS(p("a") + segno("S", 1) + p("b")).blocchi(), (Righe{"a", "b"}));
    EXPECT_EQ(senzaS(par(fine(1) + r("x")) + par(inizio("S", 1) + r("y"))).blocchi(), (Righe{"x", "y"}));
    EXPECT_EQ(senzaS(par(inizio("S", 1) + r("senza fine")) + p("y")).blocchi(), (Righe{"senza fine", "y"}));
}

TEST(Elimina, SectionBreaksInsideGoAndTheLastSectionStays) {
    const Letto letto = senzaS(p("a") + par(inizio("S", 1) + r("b")) + paragrafoDiSezione + par(r("c") + fine(1)));
    EXPECT_EQ(letto.blocchi(), Righe{"a"});
    EXPECT_EQ(letto.conta("w:sectPr"), 1);
    // A break at the end of the last paragraph lies behind the end of the bookmark.
    const Letto altra =
        senzaS(p("a") + par(inizio("S", 1) + r("b")) +
               par(r("c") + fine(1), "<w:sectPr><w:pgSz w:w=\"16838\" w:h=\"11906\"/></w:sectPr>") + p("d"));
    EXPECT_EQ(altra.blocchi(), (Righe{"a", "", "d"}));
    EXPECT_EQ(altra.conta("w:sectPr"), 2);
}

TEST(Elimina, AWholeBodyLeavesAParagraph) {
    EXPECT_EQ(senzaS(par(inizio("S", 1) + r("a")) + tabella2 + par(r("b") + fine(1))).blocchi(), Righe{""});
    EXPECT_EQ(senzaS(inizio("S", 1) + tabella2 + p("b") + fine(1)).blocchi(), Righe{""});
}

TEST(Elimina, BehindALastTableAParagraphStays) {
    EXPECT_EQ(senzaS(tabella2 + par(inizio("S", 1) + r("b") + fine(1))).blocchi(), (Righe{"[2]", ""}));
}

TEST(Elimina, TwoTablesNeverTouch) {
    EXPECT_EQ(senzaS(tabella2 + par(inizio("S", 1) + r("a")) + par(r("b") + fine(1)) + tabella2 + p("x")).blocchi(),
              (Righe{"[2]", "", "[2]", "x"}));
}

TEST(Elimina, ACellKeepsAParagraph) {
    const Letto letto = senzaS(tbl(2, tr(tc(par(inizio("S", 1) + r("a")) + par(r("b") + fine(1))) + tc(p("c")))));
    EXPECT_EQ(letto.tabella(), (std::vector<Righe>{{"", "c"}}));
    const Letto uno = senzaS(tbl(2, tr(tc(par(inizio("S", 1) + r("a") + fine(1))) + tc(p("c")))));
    EXPECT_EQ(uno.tabella(), (std::vector<Righe>{{"", "c"}}));
}

TEST(Elimina, OfATableThatIsTouchedInPartItsRowsGo) {
    const std::string righe = tr(tc(p("1"))) + tr(tc(par(r("2") + fine(1)))) + tr(tc(p("3")));
    const Letto sopra = senzaS(par(inizio("S", 1) + r("a")) + tbl(1, righe) + p("b"));
    EXPECT_EQ(sopra.blocchi(), (Righe{"[1]", "b"}));
    EXPECT_EQ(sopra.tabella(), std::vector<Righe>{{"3"}});
    const std::string basse = tr(tc(p("1"))) + tr(tc(par(inizio("S", 1) + r("2")))) + tr(tc(p("3")));
    const Letto sotto = senzaS(tbl(1, basse) + p("a") + par(fine(1) + r("b")));
    EXPECT_EQ(sotto.tabella(), std::vector<Righe>{{"1"}});
    EXPECT_EQ(sotto.blocchi(), (Righe{"[1]", "b"}));
}

TEST(Elimina, ATableWhoseLastCellEndsTheBookmarkGoesWhole) {
    const std::string righe = tr(tc(p("1"))) + tr(tc(par(r("2") + fine(1))));
    EXPECT_EQ(senzaS(p("x") + par(inizio("S", 1) + r("a")) + tbl(1, righe) + p("b")).blocchi(), (Righe{"x", "b"}));
    const std::string dalla = tr(tc(par(inizio("S", 1) + r("1")))) + tr(tc(p("2")));
    EXPECT_EQ(senzaS(p("x") + tbl(1, dalla) + par(fine(1) + r("b"))).blocchi(), (Righe{"x", "b"}));
}

TEST(Elimina, RowsOfOneTableGoAndCellsOfOneRowAreEmptied) {
    const std::string righe =
        tr(tc(p("1"))) + tr(tc(par(inizio("S", 1) + r("2")))) + tr(tc(par(r("3") + fine(1)))) + tr(tc(p("4")));
    EXPECT_EQ(senzaS(tbl(1, righe) + p("x")).tabella(), (std::vector<Righe>{{"1"}, {"4"}}));
    const std::string tutte = tr(tc(par(inizio("S", 1) + r("1")))) + tr(tc(par(r("2") + fine(1))));
    EXPECT_EQ(senzaS(tbl(1, tutte) + p("x")).blocchi(), Righe{"x"});
    const std::string celle =
        tr(tc(p("1")) + tc(par(inizio("S", 1) + r("2"))) + tc(par(r("3") + fine(1))) + tc(p("4")));
    EXPECT_EQ(senzaS(tbl(4, celle) + p("x")).tabella(), (std::vector<Righe>{{"1", "", "", "4"}}));
}

TEST(Elimina, ContentControlsThatAreEmptiedGo) {
    const std::string controllo = "<w:sdt><w:sdtPr><w:alias w:val=\"q\"/></w:sdtPr><w:sdtContent>" + p("b") +
                                  par(r("c") + fine(1)) + "</w:sdtContent></w:sdt>";
    const Letto letto = senzaS(p("a") + par(inizio("S", 1) + r("t")) + controllo + p("d"));
    EXPECT_EQ(letto.blocchi(), (Righe{"a", "d"}));
    EXPECT_EQ(letto.conta("w:sdt"), 0);
}

TEST(Elimina, OtherBookmarksLoseNoEndAndNoHalfFieldStays) {
    const std::string apre =
        "<w:r><w:fldChar w:fldCharType=\"begin\"/></w:r><w:r><w:instrText>TOC</w:instrText></w:r>"
        "<w:r><w:fldChar w:fldCharType=\"separate\"/></w:r>";
    const std::string chiude = "<w:r><w:fldChar w:fldCharType=\"end\"/></w:r>";
    const Letto letto =
        senzaS(par(inizio("S", 1) + r("a") + inizio("Altro", 2) + apre) + par(fine(1) + r("b") + chiude + fine(2)) +
               par(segno("Resta", 3) + apre + r("c") + chiude));
    EXPECT_EQ(letto.blocchi(), (Righe{"b", "c"}));
    EXPECT_EQ(letto.conta("w:bookmarkStart"), 1);
    EXPECT_EQ(letto.conta("w:fldChar"), 3);
}

TEST(Elimina, TheContentsForgetAHeadingThatIsGone) {
    const auto voce = [](const std::string& titolo, const std::string& nome) {
        return par("<w:hyperlink w:anchor=\"" + nome + "\">" + r(titolo) + "</w:hyperlink>");
    };
    const Letto letto =
        senzaS(voce("Uno", "_Toc1") + voce("Due", "_Toc2") + p("x") + par(segno("_Toc1", 5) + r("Uno")) +
               par(inizio("S", 1) + segno("_Toc2", 6) + r("Due")) + par(fine(1) + r("fine")));
    EXPECT_EQ(letto.blocchi(), (Righe{"Uno", "x", "Uno", "fine"}));
}

TEST(Elimina, ASelectedCellIsEmptied) {
    const auto doc = conCorpo(tbl(2, tr(tc(par(segno("D", 1))) + tc(p("piena")))));
    doc->SelezionaSegnalibro("D");
    doc->CellaSuccessiva();
    doc->EliminaSelezione();
    EXPECT_EQ(Letto(*doc).tabella(), (std::vector<Righe>{{"", ""}}));
}

TEST(Elimina, SectionsCanGoOneAfterTheOther) {
    const auto doc =
        conCorpo(par(inizio("A", 1) + r("a")) + tabella2 + par(r("a") + fine(1)) + par(inizio("B", 2) + r("b")) +
                 par(r("b") + fine(2)) + par(inizio("C", 3) + r("c")) + tabella2 + par(r("c") + fine(3)));
    for (const char* nome : {"A", "C", "B"}) {
        doc->SelezionaSegnalibro(nome);
        doc->EliminaSelezione();
    }
    const Letto letto(*doc);
    EXPECT_EQ(letto.blocchi(), Righe{""});
    EXPECT_EQ(letto.errori(), "");
}

}  // namespace
}  // namespace kelvo::prove
