#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "modelloProva.h"

namespace kelvo::prove {
namespace {

using Tabella = std::vector<std::vector<std::string>>;

const std::string vuotaC = tc("<w:p/>");

/// Walks on and writes, once for each text.
void scriviCelle(DocumentoRelazione& doc, const std::vector<std::string>& testi) {
    for (const std::string& testo : testi) {
        doc.CellaSuccessiva();
        doc.ScriviTesto(testo);
    }
}

TEST(Celle, TheWalkGoesAlongTheRowAndOnToTheNext) {
    const auto doc =
        conCorpo(tbl(3, tr(tc(par(segno("Dati", 1) + r("testa"))) + vuotaC + vuotaC) + tr(vuotaC + vuotaC + vuotaC)));
    doc->SelezionaSegnalibro("dati");
    scriviCelle(*doc, {"b1", "c1", "a2", "b2"});
    const Letto letto(*doc);
    EXPECT_EQ(letto.tabella(), (Tabella{{"testa", "b1", "c1"}, {"a2", "b2", ""}}));
    EXPECT_EQ(letto.errori(), "");
}

TEST(Celle, ASelectionTellsWhetherItStandsInATable) {
    const auto doc =
        conCorpo(par(segno("Fuori", 1) + r("x")) + tbl(2, tr(tc(par(segno("Dentro", 2))) + segno("Fra", 3) + vuotaC)));
    EXPECT_FALSE(doc->SelezioneInTabella());
    doc->SelezionaSegnalibro("Fuori");
    EXPECT_FALSE(doc->SelezioneInTabella());
    for (const char* nome : {"Dentro", "Fra"}) {
        doc->SelezionaSegnalibro(nome);
        EXPECT_TRUE(doc->SelezioneInTabella()) << nome;
    }
    doc->CellaSuccessiva();
    EXPECT_TRUE(doc->SelezioneInTabella());
    doc->ScriviTesto("y");
    EXPECT_TRUE(doc->SelezioneInTabella());
}

TEST(Celle, BehindTheLastCellARowComesWithTheFormatsAndWithoutTheContent) {
    const std::string ricca = tc(par(r("pieno", "<w:b/>") + segno("Dentro", 9), "<w:jc w:val=\"right\"/>") + p("altro"),
                                 "<w:tcW w:w=\"1000\" w:type=\"dxa\"/><w:shd w:val=\"clear\" w:fill=\"DCDCDC\"/>");
    const auto doc = conCorpo(tbl(2, tr(tc(par(segno("Dati", 1))) + ricca, "<w:cantSplit/><w:tblHeader/>")));
    doc->SelezionaSegnalibro("Dati");
    scriviCelle(*doc, {"uno", "due", "tre", "quattro", "cinque"});
    const Letto letto(*doc);
    EXPECT_EQ(letto.tabella(), (Tabella{{"", "uno"}, {"due", "tre"}, {"quattro", "cinque"}}));
    for (const auto& cella : letto.corpo().select_nodes("w:tbl/w:tr/w:tc[2]")) {
        EXPECT_STREQ(cella.node().child("w:tcPr").child("w:shd").attribute("w:fill").value(), "DCDCDC");
        EXPECT_STREQ(cella.node().child("w:p").child("w:pPr").child("w:jc").attribute("w:val").value(), "right");
        EXPECT_TRUE(cella.node().select_node("w:p/w:r/w:rPr/w:b")) << "the format of the text";
    }
    EXPECT_EQ(letto.corpo().select_nodes("w:tbl/w:tr/w:trPr/w:tblHeader").size(), 1U);
    EXPECT_EQ(letto.corpo().select_nodes("w:tbl/w:tr/w:trPr/w:cantSplit").size(), 3U);
    EXPECT_EQ(letto.corpo().select_nodes("//w:bookmarkStart[@w:name='Dentro']").size(), 1U);
    EXPECT_EQ(letto.errori(), "");
}

TEST(Celle, AMergedCellIsOneCell) {
    const std::string larga = tc("<w:p/>", "<w:gridSpan w:val=\"2\"/>");
    const std::string alta = tc("<w:p/>", "<w:vMerge w:val=\"restart\"/>");
    const std::string sotto = tc("<w:p/>", "<w:vMerge/>");
    const auto doc =
        conCorpo(tbl(3, tr(tc(par(segno("D", 1))) + larga) + tr(vuotaC + vuotaC + alta) + tr(vuotaC + vuotaC + sotto)));
    doc->SelezionaSegnalibro("D");
    scriviCelle(*doc, {"1", "2", "3", "4", "5", "6", "7", "8", "9"});
    const Letto letto(*doc);
    EXPECT_EQ(letto.tabella(), (Tabella{{"", "1"}, {"2", "3", "4"}, {"5", "6", ""}, {"7", "8", "9"}}));
    EXPECT_EQ(letto.conta("w:vMerge"), 2) << "the new row is not merged with the one above";
    EXPECT_EQ(letto.errori(), "");
}

TEST(Celle, ATableInsideACellIsNoPartOfTheWalk) {
    const std::string dentro = tc(tbl(1, tr(tc(p("interna")))) + "<w:p/>");
    const auto doc = conCorpo(tbl(2, tr(tc(par(segno("D", 1))) + vuotaC) + tr(vuotaC + dentro) + tr(vuotaC + vuotaC)));
    doc->SelezionaSegnalibro("D");
    doc->CellaSuccessiva();
    doc->CellaSuccessiva();
    doc->CellaSuccessiva();  // on the cell that holds a table
    scriviCelle(*doc, {"x", "y"});
    const Letto letto(*doc);
    EXPECT_EQ(letto.tabella(), (Tabella{{"", ""}, {"", "interna"}, {"x", "y"}}));
    const auto altro = conCorpo(tbl(2, tr(tc(tbl(1, tr(tc(par(segno("D", 1))))) + "<w:p/>") + tc(p("fuori")))));
    altro->SelezionaSegnalibro("D");
    scriviCelle(*altro, {"nuova"});
    const Letto interno(*altro);
    EXPECT_EQ(interno.tabella(), (Tabella{{"nuova", "fuori"}}));
    EXPECT_EQ(interno.conta("w:tr"), 3);
    EXPECT_EQ(interno.errori(), "");
}

TEST(Celle, RowsAndCellsInsideContentControlsAreWalked) {
    const std::string riga = "<w:sdt><w:sdtContent>" +
                             tr(vuotaC + "<w:sdt><w:sdtContent>" + vuotaC + "</w:sdtContent></w:sdt>") +
                             "</w:sdtContent></w:sdt>";
    const auto doc = conCorpo(tbl(2, tr(tc(par(segno("D", 1))) + vuotaC) + riga));
    doc->SelezionaSegnalibro("D");
    scriviCelle(*doc, {"1", "2", "3", "4", "5"});
    const Letto letto(*doc);
    std::vector<std::string> testi;
    for (const auto& cella : letto.corpo().select_nodes(".//w:tc")) {
        testi.push_back(Letto::testo(cella.node()));
    }
    EXPECT_EQ(testi, (std::vector<std::string>{"", "1", "2", "3", "4", "5"}));
}

TEST(Celle, TypingTakesThePlaceOfWhatStoodInTheCell) {
    const std::string piena = tc(par(r("vecchio", "<w:i/>") + fine(5), "<w:jc w:val=\"center\"/>") + p("e ancora"));
    const auto doc = conCorpo(par(inizio("Sopra", 5) + r("a")) + tbl(2, tr(tc(par(segno("D", 1))) + piena)));
    doc->SelezionaSegnalibro("D");
    doc->CellaSuccessiva();
    doc->ScriviTesto("nuovo");
    doc->ScriviTesto(" e altro");
    const Letto letto(*doc);
    EXPECT_EQ(letto.tabella(), (Tabella{{"", "nuovo e altro"}}));
    EXPECT_EQ(letto.corpo().select_nodes("//w:r[w:rPr/w:i]").size(), 2U);
    EXPECT_EQ(letto.conta("w:bookmarkEnd"), 2) << "the end of a bookmark outlives what stood around it";
    EXPECT_EQ(letto.errori(), "");
}

TEST(Celle, EmptyTextEmptiesACellAndLeavesItsParagraph) {
    const auto doc = conCorpo(tbl(2, tr(tc(par(segno("D", 1))) + tc(p("-")))));
    doc->SelezionaSegnalibro("D");
    scriviCelle(*doc, {""});
    const Letto letto(*doc);
    EXPECT_EQ(letto.tabella(), (Tabella{{"", ""}}));
    EXPECT_EQ(letto.errori(), "");
}

TEST(Celle, TheFormatOfTheMarkHoldsInAnEmptyCell) {
    const std::string rossa = tc(par("", "<w:rPr><w:color w:val=\"FF0000\"/></w:rPr>"));
    const auto doc = conCorpo(tbl(2, tr(tc(par(segno("D", 1))) + rossa)));
    doc->SelezionaSegnalibro("D");
    scriviCelle(*doc, {"x"});
    EXPECT_EQ(Letto(*doc).corpo().select_nodes("//w:r[w:rPr/w:color/@w:val='FF0000']").size(), 1U);
}

TEST(Celle, ABookmarkBetweenTwoCellsCountsForTheOneBehindIt) {
    const auto doc = conCorpo(tbl(3, tr(vuotaC + segno("D", 1) + vuotaC + vuotaC)));
    doc->SelezionaSegnalibro("D");
    scriviCelle(*doc, {"x"});
    EXPECT_EQ(Letto(*doc).tabella(), (Tabella{{"", "", "x"}}));
}

TEST(Celle, OutsideATableOrWithoutABookmarkThereAreWords) {
    const auto doc = conCorpo(par(segno("Fuori", 1) + r("x")));
    EXPECT_EQ(paroleDi([&] { doc->ScriviTesto("x"); }), "Nel documento non è selezionato nulla");
    EXPECT_EQ(paroleDi([&] { doc->EliminaSelezione(); }), "Nel documento non è selezionato nulla");
    EXPECT_EQ(paroleDi([&] { doc->CellaSuccessiva(); }), "La selezione non sta in una tabella");
    EXPECT_EQ(paroleDi([&] { doc->SelezionaSegnalibro("Manca"); }), "Il segnalibro \"Manca\" non esiste nel documento");
    doc->SelezionaSegnalibro("Fuori");
    EXPECT_EQ(paroleDi([&] { doc->CellaSuccessiva(); }), "La selezione non sta in una tabella");
    EXPECT_TRUE(doc->HaSegnalibro("FUORI"));
    EXPECT_FALSE(doc->HaSegnalibro("Manca"));
    EXPECT_EQ(Letto(*doc).blocchi(), std::vector<std::string>{"x"});
}

TEST(Celle, ATextGoesToItsBookmarkInAParagraph) {
    const auto doc =
        documento(parti(par(r("[", "<w:b/>") + segno("Vuoto", 1) + r("]")) +
                            par(r("&lt;&lt;") + inizio("Pieno", 2) + r("vecchio", "<w:i/>") + fine(2) + r("&gt;&gt;")) +
                            segno("Fra", 3) + par(r("dopo"), "<w:jc w:val=\"left\"/>"),
                        par(segno("Testa", 4))));
    doc->SelezionaSegnalibro("Vuoto");
    doc->ScriviTesto("a");
    doc->ScriviTesto("b\tc");
    doc->SelezionaSegnalibro("Pieno");
    doc->ScriviTesto("nuovo");
    doc->SelezionaSegnalibro("Fra");
    doc->ScriviTesto("prima ");
    doc->SelezionaSegnalibro("Testa");
    doc->ScriviTesto("intestazione");
    const Letto letto(*doc);
    EXPECT_EQ(letto.blocchi(), (std::vector<std::string>{"[ab\tc]", "<<nuovo>>", "prima dopo"}));
    EXPECT_EQ(letto.corpo().select_nodes("//w:r[w:rPr/w:i]").size(), 1U);
    EXPECT_EQ(letto.corpo().select_nodes("//w:r[w:rPr/w:b]").size(), 3U);
    EXPECT_NE(letto.parte("word/header1.xml").find("intestazione"), std::string::npos);
    EXPECT_EQ(letto.errori(), "");
}

}  // namespace
}  // namespace kelvo::prove
