#include <gtest/gtest.h>

#include "grigliaProva.h"

namespace kelvo::prove {
namespace {

using Tasto = Griglia::Tasto;
using Righe = std::vector<std::vector<std::string>>;

TEST(RigheIncollate, CellsArePartedByTabsAndRowsByAnyLineEnd) {
    EXPECT_EQ(righeIncollate("1\t2\r\n3\t4\r\n"), (Righe{{"1", "2"}, {"3", "4"}}));
    EXPECT_EQ(righeIncollate("1\t2\n3\t4"), (Righe{{"1", "2"}, {"3", "4"}}));
    EXPECT_EQ(righeIncollate("1\r2"), (Righe{{"1"}, {"2"}}));
    EXPECT_EQ(righeIncollate(" 1 \t\t2"), (Righe{{"1", "", "2"}}));
    EXPECT_EQ(righeIncollate("1\n\n2\n"), (Righe{{"1"}, {""}, {"2"}}));
    EXPECT_EQ(righeIncollate(""), Righe{});
    EXPECT_EQ(righeIncollate("\n"), (Righe{{""}}));
}

TEST_F(ProveGriglia, TheSelectionReachesFromTheCursorToItsCorner) {
    griglia.corrente({2, 2});
    griglia.premiTasto(Tasto::su, true);
    griglia.premiTasto(Tasto::destra, true);
    EXPECT_EQ(griglia.corrente(), (Posto{2, 2}));
    EXPECT_EQ(griglia.selezione(), (AreaCelle{{1, 2}, {2, 3}}));
    griglia.premiTasto(Tasto::su, true);  // not over the headings
    EXPECT_EQ(griglia.selezione(), (AreaCelle{{1, 2}, {2, 3}}));
    EXPECT_TRUE(griglia.premiTasto(Tasto::esc));
    EXPECT_EQ(griglia.selezione(), (AreaCelle{{2, 2}, {2, 2}}));
    griglia.clic(3, 3, true);
    EXPECT_EQ(griglia.selezione(), (AreaCelle{{2, 2}, {3, 3}}));
    griglia.clic(1, 1);
    EXPECT_EQ(griglia.selezione(), (AreaCelle{{1, 1}, {1, 1}}));
    premi({Tasto::tutto});
    EXPECT_EQ(griglia.selezione(), (AreaCelle{{1, 1}, {3, 3}}));
}

TEST_F(ProveGriglia, TheWholeTableIsSelectedThoughTheCursorDoesNotStopEverywhere) {
    griglia.salta = [](Posto p) { return p.riga == p.colonna; };
    griglia.tabella(numeri());
    premi({Tasto::tutto});
    EXPECT_EQ(griglia.selezione(), (AreaCelle{{1, 1}, {3, 3}}));
}

TEST_F(ProveGriglia, CopyPutsTheSelectionOnTheClipboard) {
    griglia.corrente({1, 2});
    griglia.clic(2, 3, true);
    EXPECT_TRUE(griglia.premiTasto(Tasto::copia));
    EXPECT_EQ(custode.blocco.testo, "12\t13\r\n22\t23");
    premi({Tasto::copiaConIntestazioni});
    EXPECT_EQ(custode.blocco.testo, "C0\tC2\tC3\r\nR1\t12\t13\r\nR2\t22\t23");
}

TEST_F(ProveGriglia, CopyLeavesHiddenColumnsOutAndKeepsEveryCellInOnePiece) {
    griglia.colonna(2, {.nascosta = true});
    griglia.testo({1, 1}, "a\tb\nc");
    premi({Tasto::tutto, Tasto::copia});
    EXPECT_EQ(custode.blocco.testo, "a b c\t13\r\n21\t23\r\n31\t33");
}

TEST_F(ProveGriglia, WithoutAClipboardNothingHappens) {
    griglia.custode(nullptr);
    EXPECT_TRUE(griglia.premiTasto(Tasto::copia));
    EXPECT_TRUE(griglia.premiTasto(Tasto::incolla));
    EXPECT_FALSE(griglia.modificata());
}

TEST_F(ProveGriglia, ABlockIsPastedFromTheTopLeftCellAndClippedToTheTable) {
    std::vector<Posto> mutati;
    griglia.dopoModifica = [&](const std::vector<Posto>& posti) { mutati = posti; };
    griglia.corrente({2, 2});
    custode.blocco.testo = "1\t2\t3\r\n4\t5\t6\r\n7\t8\t9\r\n";
    EXPECT_TRUE(griglia.premiTasto(Tasto::incolla));
    EXPECT_EQ(testo(2, 2), "1");
    EXPECT_EQ(testo(2, 3), "2");
    EXPECT_EQ(testo(3, 2), "4");
    EXPECT_EQ(testo(3, 3), "5");
    EXPECT_EQ(testo(1, 1), "11");
    EXPECT_EQ(mutati, (std::vector<Posto>{{2, 2}, {2, 3}, {3, 2}, {3, 3}}));
}

TEST_F(ProveGriglia, ABlockPassesOverCellsThatTakeNoTextAndHiddenColumns) {
    griglia.modificabile = [](Posto p) { return p.riga != p.colonna; };
    griglia.corrente({1, 1});
    EXPECT_TRUE(griglia.incolla("1\t2\n3\t4"));
    EXPECT_EQ(testo(1, 1), "11");
    EXPECT_EQ(testo(1, 2), "2");
    EXPECT_EQ(testo(2, 1), "3");
    EXPECT_EQ(testo(2, 2), "22");
    griglia.colonna(2, {.nascosta = true});
    EXPECT_TRUE(griglia.incolla("5\t6"));
    EXPECT_EQ(testo(1, 2), "2");
    EXPECT_EQ(testo(1, 3), "6");
    EXPECT_FALSE(griglia.incolla("5"));  // the cell alone takes no text
    EXPECT_FALSE(griglia.incolla(""));
}

TEST_F(ProveGriglia, OneCellFillsTheSelection) {
    griglia.clic(2, 2);
    griglia.clic(3, 3, true);
    EXPECT_TRUE(griglia.incolla("0\r\n"));
    EXPECT_EQ(testo(2, 2) + testo(2, 3) + testo(3, 2) + testo(3, 3), "0000");
    EXPECT_EQ(testo(1, 2), "12");
}

TEST_F(ProveGriglia, ABlockIsRefusedAsAWhole) {
    int mutati = 0;
    griglia.dopoModifica = [&](const std::vector<Posto>&) { ++mutati; };
    EXPECT_FALSE(griglia.incolla("1\t2\n3\tx\ny\t6"));
    EXPECT_FALSE(griglia.modificata());
    EXPECT_EQ(mutati, 0);
    ASSERT_EQ(custode.esiti.size(), 1U);
    EXPECT_EQ(custode.esiti[0].motivo,
              "Il testo 'x' non è ammesso nella riga 2, colonna 2: non è stato incollato nulla.");
    EXPECT_FALSE(custode.esiti[0].bandiera);
    EXPECT_FALSE(griglia.incolla("12345"));  // too long
}

TEST_F(ProveGriglia, TheOwnerMendsABlockOrRefusesIt) {
    bool accetta = true;
    std::vector<TestoCella> visti;
    griglia.allIncolla = [&](std::vector<TestoCella>& celle) {
        visti = celle;
        for (TestoCella& cella : celle) {
            cella.testo = cella.testo == "1.5" ? "1,5" : cella.testo;
        }
        return accetta ? EsitoUscita::bene() : EsitoUscita::rifiuto(std::string{"cella"});
    };
    EXPECT_TRUE(griglia.incolla("1.5\tx"));
    EXPECT_EQ(visti, (std::vector<TestoCella>{{{1, 1}, "1.5"}, {{1, 2}, "x"}}));
    EXPECT_EQ(testo(1, 1), "1,5");
    EXPECT_EQ(testo(1, 2), "x");
    accetta = false;
    EXPECT_FALSE(griglia.incolla("9\t9"));
    EXPECT_EQ(testo(1, 1), "1,5");
}

TEST_F(ProveGriglia, WhileACellIsEditedThePasteIsTheEditors) {
    custode.blocco.testo = "7";
    griglia.scrivi("1");
    EXPECT_FALSE(griglia.premiTasto(Tasto::incolla));
    EXPECT_FALSE(griglia.incolla("7"));
    EXPECT_EQ(griglia.testoEditor(), "1");
}

TEST_F(ProveGriglia, DeleteClearsTheSelectionThroughTheChecksOfEachCell) {
    griglia.allaConferma = [](Posto p, std::string& testo) {
        testo = testo.empty() ? "0" : testo;
        return p == Posto{3, 3} ? EsitoUscita::rifiuto(std::string{"no"}) : EsitoUscita::bene();
    };
    griglia.clic(1, 1);
    griglia.clic(2, 2, true);
    premi({Tasto::canc});
    EXPECT_EQ(testo(1, 1) + testo(1, 2) + testo(2, 1) + testo(2, 2), "0000");
    EXPECT_EQ(testo(3, 3), "33");
    griglia.clic(3, 2);
    griglia.clic(3, 3, true);
    premi({Tasto::canc});  // one of them may not be cleared: none is
    EXPECT_EQ(testo(3, 2), "32");
    griglia.allaConferma = nullptr;
    premi({Tasto::canc});
    EXPECT_EQ(testo(3, 2), "");
}

TEST_F(ProveGriglia, EditsAndPastesAreUndoneAndDoneAgain) {
    int mutati = 0;
    griglia.dopoModifica = [&](const std::vector<Posto>& posti) {
        ++mutati;
        griglia.testo({posti[0].riga, 3}, "T" + testo(posti[0].riga, 1));  // a figure that follows
    };
    griglia.scrivi("1");
    premi({Tasto::invio});
    griglia.corrente({2, 1});
    EXPECT_TRUE(griglia.incolla("7\t8"));
    EXPECT_EQ(testo(1, 3), "T1");
    EXPECT_EQ(testo(2, 3), "T7");
    premi({Tasto::annulla});
    EXPECT_EQ(testo(2, 1), "21");
    EXPECT_EQ(testo(2, 2), "22");
    EXPECT_EQ(testo(1, 1), "1");
    premi({Tasto::annulla, Tasto::annulla});
    EXPECT_EQ(testo(1, 1), "11");
    EXPECT_EQ(griglia.corrente(), (Posto{1, 1}));
    premi({Tasto::ripeti, Tasto::ripeti, Tasto::ripeti});
    EXPECT_EQ(testo(1, 1), "1");
    EXPECT_EQ(testo(2, 2), "8");
    EXPECT_EQ(testo(2, 3), "T7");
    EXPECT_EQ(griglia.corrente(), (Posto{2, 1}));
    EXPECT_EQ(mutati, 6);  // two changes, two taken back, two done again
}

TEST_F(ProveGriglia, ANewEditForgetsWhatWasUndoneAndANewTableForgetsAll) {
    griglia.scrivi("1");
    premi({Tasto::invio, Tasto::annulla});
    griglia.scrivi("2");
    premi({Tasto::invio, Tasto::ripeti});
    EXPECT_EQ(testo(1, 1), "2");
    griglia.tabella(numeri());
    premi({Tasto::annulla});
    EXPECT_EQ(testo(1, 1), "11");
    EXPECT_FALSE(griglia.modificata());
}

TEST_F(ProveGriglia, TextsPutThereInTheUsersSteadReachClosedCellsAndCanBeUndone) {
    griglia.modificabile = [](Posto posto) { return posto.colonna == 1; };
    griglia.allaConferma = [](Posto, std::string&) { return EsitoUscita::rifiuto(std::string{"no"}); };
    std::vector<Posto> detti;
    std::vector<bool> rivisti;
    griglia.dopoModifica = [&](const std::vector<Posto>& posti) {
        detti = posti;
        rivisti.push_back(griglia.inRevisione());
    };
    griglia.inserisci({{{1, 1}, "8"}, {{2, 3}, "9"}});
    EXPECT_EQ(testo(1, 1), "8");
    EXPECT_EQ(testo(2, 3), "9");
    EXPECT_EQ(detti, (std::vector<Posto>{{1, 1}, {2, 3}}));
    EXPECT_TRUE(griglia.modificata());
    premi({Tasto::annulla});
    EXPECT_EQ(testo(1, 1), "11");
    EXPECT_EQ(testo(2, 3), "23");
    premi({Tasto::ripeti});
    EXPECT_EQ(testo(2, 3), "9");
    EXPECT_EQ(rivisti, (std::vector<bool>{false, true, true}));
    EXPECT_FALSE(griglia.inRevisione());
    griglia.inserisci({});
    EXPECT_EQ(rivisti.size(), 3U);
}

}  // namespace
}  // namespace kelvo::prove
