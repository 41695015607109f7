#include <gtest/gtest.h>

#include <cmath>
#include <set>
#include <string>
#include <vector>

#include "modelloProva.h"

namespace kelvo::prove {
namespace {

using Righe = std::vector<std::string>;

/// A PNG of one dot, told to be of another size where one is given.
std::string png(unsigned larghezza = 1, unsigned altezza = 1) {
    std::string dati(
        "\x89PNG\r\n\x1A\n\0\0\0\rIHDR\0\0\0\1\0\0\0\1\x08\0\0\0\0\x3A\x7E\x9B\x55\0\0\0\x0AIDAT\x78\x9C\x63\x68\0\0\0"
        "\x82\0\x81"
        "\xDD\x43\x6A\xF4\0\0\0\0IEND\xAE\x42\x60\x82",
        67);
    dati[18] = static_cast<char>(larghezza >> 8U);
    dati[19] = static_cast<char>(larghezza & 0xFFU);
    dati[22] = static_cast<char>(altezza >> 8U);
    dati[23] = static_cast<char>(altezza & 0xFFU);
    return dati;
}

TabellaRelazione tabella() {
    TabellaRelazione una;
    una.stile = "tabella kelvo";
    una.colonne = {
        {40.0, AllineamentoTesto::sinistra}, {20.0, AllineamentoTesto::destra}, {25.4, AllineamentoTesto::centro}};
    una.righe = {
        {{"TEMPO"}, {"Flusso", 2}}, {{"07:00 - 07:15"}, {"12,50", 1, "DCDCDC", "C00000"}, {"A & <B>"}}, {{"solo una"}}};
    return una;
}

TEST(Blocchi, ATableIsMadeWithItsColumnsHeadingAndStyle) {
    const auto doc = conCorpo(p("prima") + par(segno("DatiTrafficoST", 1)) + p("dopo"));
    doc->SelezionaSegnalibro("DatiTrafficoST");
    doc->InserisciTabella(tabella());
    const Letto letto(*doc);
    EXPECT_EQ(letto.blocchi(), (Righe{"prima", "[3]", "dopo"})) << "the paragraph that held its place goes";
    EXPECT_EQ(letto.tabella(),
              (std::vector<Righe>{{"TEMPO", "Flusso"}, {"07:00 - 07:15", "12,50", "A & <B>"}, {"solo una", "", ""}}));
    const pugi::xml_node nodo = letto.corpo().child("w:tbl");
    EXPECT_STREQ(nodo.child("w:tblPr").child("w:tblStyle").attribute("w:val").value(), "TabKelvo");
    std::vector<int> larghezze;
    for (const auto& colonna : nodo.child("w:tblGrid").children()) {
        larghezze.push_back(colonna.attribute("w:w").as_int());
    }
    EXPECT_EQ(larghezze, (std::vector<int>{2268, 1134, 1440}));  // 40, 20 and 25.4 mm in twentieths of a point
    EXPECT_EQ(nodo.select_nodes("w:tr/w:trPr/w:tblHeader").size(), 1U);
    EXPECT_TRUE(nodo.child("w:tr").child("w:trPr").child("w:tblHeader"));
    EXPECT_STREQ(nodo.select_node("w:tr[1]/w:tc[2]/w:tcPr/w:gridSpan").node().attribute("w:val").value(), "2");
    EXPECT_STREQ(nodo.select_node("w:tr[2]/w:tc[2]/w:tcPr/w:shd").node().attribute("w:fill").value(), "DCDCDC");
    EXPECT_STREQ(nodo.select_node("w:tr[2]/w:tc[2]//w:color").node().attribute("w:val").value(), "C00000");
    EXPECT_STREQ(nodo.select_node("w:tr[2]/w:tc[2]/w:p/w:pPr/w:jc").node().attribute("w:val").value(), "right");
    EXPECT_EQ(letto.errori(), "");
}

TEST(Blocchi, ATableThatStaysTogetherKeepsEachRowWithTheNext) {
    for (const bool insieme : {false, true}) {
        const auto doc = conCorpo(par(segno("T", 1)));
        doc->SelezionaSegnalibro("T");
        TabellaRelazione una = tabella();
        una.insieme = insieme;
        doc->InserisciTabella(una);
        const Letto letto(*doc);
        std::vector<std::size_t> legati;
        for (const pugi::xml_node riga : letto.corpo().child("w:tbl").children("w:tr")) {
            legati.push_back(riga.select_nodes(".//w:keepNext").size());
        }
        EXPECT_EQ(legati, (std::vector<std::size_t>{2, insieme ? 3U : 0U, 0})) << "never the last one";
        EXPECT_EQ(letto.errori(), "");
    }
}

TEST(Blocchi, WithoutItsStyleATableHasLines) {
    const auto doc = conCorpo(par(segno("T", 1)));
    doc->SelezionaSegnalibro("T");
    TabellaRelazione una = tabella();
    una.stile = "non c'è";
    doc->InserisciTabella(una);
    const Letto letto(*doc);
    EXPECT_EQ(letto.conta("w:tblStyle"), 0);
    EXPECT_EQ(letto.conta("w:tblBorders"), 1);
    EXPECT_EQ(letto.blocchi(), (Righe{"[3]", ""})) << "behind a last table a paragraph stays";
    EXPECT_EQ(letto.errori(), "");
}

TEST(Blocchi, BlocksStandInTheirOrderAndTablesApart) {
    const auto doc = conCorpo(par(segno("T", 1) + r("Titolo")) + p("dopo"));
    doc->SelezionaSegnalibro("T");
    doc->InserisciTabella(tabella());
    doc->InserisciTabella(tabella());
    doc->InserisciParagrafo({"fra", ""});
    doc->InserisciTabella(tabella());
    const Letto letto(*doc);
    EXPECT_EQ(letto.blocchi(), (Righe{"Titolo", "[3]", "", "[3]", "fra", "[3]", "dopo"}));
    EXPECT_EQ(letto.errori(), "");
}

TEST(Blocchi, TheMarksOfAPlaceThatGoesStay) {
    const auto doc = conCorpo(par(inizio("Paragrafo", 2) + r("Titolo")) + par(segno("T", 1) + fine(2)) + p("dopo"));
    doc->SelezionaSegnalibro("T");
    doc->InserisciTabella(tabella());
    doc->SelezionaSegnalibro("Paragrafo");
    doc->EliminaSelezione();
    const Letto letto(*doc);
    EXPECT_EQ(letto.blocchi(), Righe{"dopo"}) << "the section takes the made table along";
    EXPECT_EQ(letto.errori(), "");
}

TEST(Blocchi, AtTheEndOfASectionTheyBelongToIt) {
    const auto doc =
        conCorpo(par(segno("T", 1) + r("x"), "<w:sectPr><w:pgSz w:w=\"16838\" w:h=\"11906\"/></w:sectPr>") + p("dopo"));
    doc->SelezionaSegnalibro("T");
    doc->InserisciTabella(tabella());
    const Letto letto(*doc);
    EXPECT_EQ(letto.blocchi(), (Righe{"x", "[3]", "", "dopo"}));
    EXPECT_TRUE(letto.corpo().select_node("w:p[2]/w:pPr/w:sectPr"));
    EXPECT_FALSE(letto.corpo().select_node("w:p[1]/w:pPr/w:sectPr"));
    EXPECT_EQ(letto.errori(), "");
}

TEST(Blocchi, ATableMayStandInACellAndInAHeader) {
    const auto doc = documento(parti(tbl(2, tr(tc(par(segno("D", 1))) + tc("<w:p/>"))), par(segno("H", 2))));
    doc->SelezionaSegnalibro("D");
    doc->CellaSuccessiva();
    doc->InserisciTabella(tabella());
    doc->SelezionaSegnalibro("H");
    doc->InserisciTabella(tabella());
    doc->InserisciImmagine({png(), 10.0});
    const Letto letto(*doc);
    EXPECT_EQ(letto.conta("w:tbl"), 2);
    EXPECT_NE(letto.parte("word/header1.xml").find("<w:tbl>"), std::string::npos);
    EXPECT_NE(letto.parte("word/_rels/header1.xml.rels").find("/image\""), std::string::npos);
    EXPECT_EQ(letto.errori(), "");
}

TEST(Blocchi, APictureHasItsSizeItsWordsAndARelation) {
    const auto doc = conCorpo(p("x") + par(segno("T", 1)) + p("y"));
    doc->SelezionaSegnalibro("T");
    doc->InserisciImmagine({png(300, 100), 150.0, 0.0, "Coda & \"ritardo\""});
    doc->InserisciParagrafo({"Coda del ramo A", "caption", false, false, "Figura"});
    const Letto letto(*doc);
    EXPECT_EQ(letto.blocchi(), (Righe{"x", "", "Figura 1. Coda del ramo A", "y"}));
    const pugi::xml_node posto = letto.corpo().select_node("//wp:inline/wp:extent").node();
    EXPECT_EQ(posto.attribute("cx").as_int(), 5400000);  // 150 mm of 36000 units
    EXPECT_EQ(posto.attribute("cy").as_int(), 1800000);
    const pugi::xml_node nome = letto.corpo().select_node("//wp:docPr").node();
    EXPECT_STREQ(nome.attribute("descr").value(), "Coda & \"ritardo\"");
    const std::string id = letto.corpo().select_node("//a:blip").node().attribute("r:embed").value();
    const std::string relazioni = letto.parte("word/_rels/document.xml.rels");
    EXPECT_NE(relazioni.find("Id=\"" + id + "\""), std::string::npos);
    EXPECT_NE(relazioni.find("/word/media/kelvo1.png"), std::string::npos);
    EXPECT_EQ(letto.parte("word/media/kelvo1.png"), png(300, 100));
    EXPECT_NE(letto.parte("[Content_Types].xml").find("<Default Extension=\"png\" ContentType=\"image/png\"/>"),
              std::string::npos);
    EXPECT_STREQ(letto.corpo().select_node("w:p[3]/w:pPr/w:pStyle").node().attribute("w:val").value(), "Didascalia");
    EXPECT_EQ(letto.errori(), "");
}

TEST(Blocchi, ManyPicturesHaveIdentifiersOfTheirOwn) {
    const std::string disegno =
        "<w:r><w:drawing><wp:inline "
        "xmlns:wp=\"http://schemas.openxmlformats.org/drawingml/2006/wordprocessingDrawing\">"
        "<wp:extent cx=\"1\" cy=\"1\"/><wp:docPr id=\"7\" name=\"q\"/>"
        "<a:graphic xmlns:a=\"http://schemas.openxmlformats.org/drawingml/2006/main\"><a:graphicData "
        "uri=\"x\"/></a:graphic>"
        "</wp:inline></w:drawing></w:r>";
    const auto doc = conCorpo(par(disegno) + par(segno("T", 1)));
    doc->SelezionaSegnalibro("T");
    for (int i = 0; i < 35; ++i) {
        doc->InserisciImmagine({png(), 30.0, 20.0});
        doc->InserisciParagrafo({"", "", false, false, "Figura"});
    }
    const Letto letto(*doc);
    std::set<std::string> id;
    for (const auto& nodo : letto.corpo().select_nodes("//wp:docPr")) {
        id.insert(nodo.node().attribute("id").value());
    }
    EXPECT_EQ(id.size(), 36U);
    std::set<std::string> relazioni;
    for (const auto& nodo : letto.corpo().select_nodes("//a:blip")) {
        relazioni.insert(nodo.node().attribute("r:embed").value());
    }
    EXPECT_EQ(relazioni.size(), 35U);
    EXPECT_EQ(letto.blocchi()[70], "Figura 35");
    EXPECT_EQ(letto.errori(), "");
}

TEST(Blocchi, CaptionsAreNumberedInTheOrderInWhichTheyStand) {
    const auto campo = [](const std::string& istruzione) {
        return "<w:r><w:fldChar w:fldCharType=\"begin\"/></w:r><w:r><w:instrText xml:space=\"preserve\"> " +
               istruzione + " </w:instrText></w:r><w:r><w:fldChar w:fldCharType=\"separate\"/></w:r>" + r("9") +
               "<w:r><w:fldChar w:fldCharType=\"end\"/></w:r>";
    };
    const auto doc = conCorpo(par(inizio("S", 1) + r("Tabella ") + campo("SEQ Tabella \\* ARABIC") + fine(1)) +
                              par(r("Tabella ") + campo("SEQ Tabella \\* ARABIC")) + par(segno("T", 2)) +
                              par(r("Tabella ") + "<w:fldSimple w:instr=\"SEQ Tabella\">" + r("8") + "</w:fldSimple>") +
                              par(campo("PAGE")) + par(campo("SEQ Altra \\r 5")) + par(campo("SEQ Figura")));
    doc->SelezionaSegnalibro("S");
    doc->EliminaSelezione();
    doc->SelezionaSegnalibro("T");
    doc->InserisciParagrafo({"in mezzo", "", true, true, "Tabella"});
    const Letto letto(*doc);
    EXPECT_EQ(letto.blocchi(), (Righe{"Tabella 1", "Tabella 2. in mezzo", "Tabella 3", "9", "9", "1"}));
    EXPECT_TRUE(letto.corpo().select_node("w:p[2]/w:pPr/w:pageBreakBefore"));
    EXPECT_EQ(letto.errori(), "");
}

TEST(Blocchi, AtTheEndOfTheBodyTheyNeedNoBookmark) {
    const auto doc = conCorpo(p("x"));
    doc->SelezionaFine();
    doc->InserisciParagrafo({"uno", ""});
    doc->InserisciTabella(tabella());
    EXPECT_EQ(Letto(*doc).blocchi(), (Righe{"x", "uno", "[3]", ""}));
    const auto vuoto = conCorpo("");
    vuoto->SelezionaFine();
    vuoto->ScriviTesto("solo");
    EXPECT_EQ(Letto(*vuoto).blocchi(), Righe{"solo"});
}

TEST(Blocchi, ValuesOfMadeBlocksAreNotSearched) {
    const auto doc = conCorpo(par(segno("T", 1)));
    doc->SelezionaSegnalibro("T");
    TabellaRelazione una = tabella();
    una.righe[1][0].testo = "%A%";
    doc->InserisciTabella(una);
    doc->InserisciParagrafo({"%A%", ""});
    EXPECT_EQ(doc->Sostituisci("%A%", "x"), 0);
}

TEST(Blocchi, WhatCannotBeMadeIsRefusedAndChangesNothing) {
    const auto doc = conCorpo(par(segno("T", 1) + r("x")));
    const std::string prima = doc->Contenuto();
    doc->SelezionaSegnalibro("T");
    TabellaRelazione larga = tabella();
    larga.righe[2] = {{"a", 3}, {"b"}};
    TabellaRelazione senza = tabella();
    senza.colonne.clear();
    TabellaRelazione storta = tabella();
    storta.colonne[0].larghezzaMm = std::nan("");
    TabellaRelazione negativa = tabella();
    negativa.righe[2] = {{"a", -1}};
    EXPECT_EQ(paroleDi([&] { doc->InserisciTabella(larga); }), "Una riga della tabella è più larga delle sue colonne");
    EXPECT_EQ(paroleDi([&] { doc->InserisciTabella(negativa); }),
              "Una riga della tabella è più larga delle sue colonne");
    EXPECT_EQ(paroleDi([&] { doc->InserisciTabella(senza); }),
              "La tabella non ha righe o un numero di colonne da 1 a 63");
    EXPECT_EQ(paroleDi([&] { doc->InserisciTabella(storta); }),
              "La larghezza di una colonna della tabella non è valida");
    EXPECT_EQ(paroleDi([&] { doc->InserisciImmagine({"GIF89a", 10.0}); }), "L'immagine non è un file PNG");
    EXPECT_EQ(paroleDi([&] { doc->InserisciImmagine({png().substr(0, 60), 10.0}); }), "L'immagine non è un file PNG");
    EXPECT_EQ(paroleDi([&] { doc->InserisciImmagine({png(), 0.0}); }), "Le misure dell'immagine non sono valide");
    EXPECT_EQ(paroleDi([&] {
                  doc->InserisciImmagine({png(1, 200), 10.0});
              }),
              "Le misure dell'immagine non sono valide");
    EXPECT_EQ(doc->Contenuto(), prima);
}

}  // namespace
}  // namespace kelvo::prove
