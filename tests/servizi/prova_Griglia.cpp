#include "shell/servizi/Griglia.h"

#include <gtest/gtest.h>

#include "comune/guasti.h"
#include "grigliaProva.h"

namespace kelvo::prove {
namespace {

using Tasto = Griglia::Tasto;

TEST_F(ProveGriglia, TheCursorStartsOnTheFirstCellThatIsNotFixed) {
    EXPECT_EQ(griglia.corrente(), (Posto{1, 1}));
    Griglia vuota("g");
    EXPECT_EQ(vuota.corrente(), Posto{});
    EXPECT_FALSE(vuota.premiTasto(Tasto::giu));
    vuota.tabella(Tabella(1, 1));  // headings alone
    EXPECT_EQ(vuota.corrente(), Posto{});
    Griglia intera("g", 0, 0);
    intera.tabella(Tabella(1, 1));
    EXPECT_EQ(intera.corrente(), (Posto{0, 0}));
}

TEST_F(ProveGriglia, ArrowsWalkBetweenTheCellsAndStayAtTheEdges) {
    premi({Tasto::su, Tasto::sinistra});
    EXPECT_EQ(griglia.corrente(), (Posto{1, 1}));
    premi({Tasto::giu, Tasto::giu, Tasto::destra});
    EXPECT_EQ(griglia.corrente(), (Posto{3, 2}));
    premi({Tasto::giu, Tasto::destra, Tasto::destra});
    EXPECT_EQ(griglia.corrente(), (Posto{3, 3}));
    premi({Tasto::inizio});
    EXPECT_EQ(griglia.corrente(), (Posto{3, 1}));
    premi({Tasto::inizioTabella, Tasto::fine});
    EXPECT_EQ(griglia.corrente(), (Posto{1, 3}));
    premi({Tasto::fineTabella});
    EXPECT_EQ(griglia.corrente(), (Posto{3, 3}));
}

TEST_F(ProveGriglia, HiddenColumnsAndSkippedCellsAreNoStops) {
    griglia.colonna(2, {.nascosta = true});
    premi({Tasto::destra});
    EXPECT_EQ(griglia.corrente(), (Posto{1, 3}));
    griglia.colonna(2, {});
    griglia.salta = [](Posto p) { return p.riga == p.colonna; };
    EXPECT_TRUE(griglia.corrente({2, 1}));
    premi({Tasto::destra});
    EXPECT_EQ(griglia.corrente(), (Posto{2, 3}));
    premi({Tasto::sinistra});
    EXPECT_EQ(griglia.corrente(), (Posto{2, 1}));
    premi({Tasto::su});  // only the skipped cell lies there
    EXPECT_EQ(griglia.corrente(), (Posto{2, 1}));
    EXPECT_FALSE(griglia.corrente({2, 2}));
    EXPECT_FALSE(griglia.corrente({0, 1}));
    EXPECT_FALSE(griglia.corrente({9, 1}));
}

TEST_F(ProveGriglia, ThePageKeysGoByWhatTheViewShows) {
    griglia.tabella(Tabella(40, 2));
    griglia.righeVisibili = 11;
    premi({Tasto::paginaGiu});
    EXPECT_EQ(griglia.corrente(), (Posto{11, 1}));
    premi({Tasto::paginaGiu, Tasto::paginaGiu, Tasto::paginaGiu});
    EXPECT_EQ(griglia.corrente(), (Posto{39, 1}));
    premi({Tasto::paginaSu});
    EXPECT_EQ(griglia.corrente(), (Posto{29, 1}));
}

TEST_F(ProveGriglia, EnterGoesDownTheColumnsOrAlongTheRows) {
    premi({Tasto::invio, Tasto::invio});
    EXPECT_EQ(griglia.corrente(), (Posto{3, 1}));
    premi({Tasto::invio});
    EXPECT_EQ(griglia.corrente(), (Posto{1, 2}));
    griglia.corrente({3, 3});
    premi({Tasto::invio});
    EXPECT_EQ(griglia.corrente(), (Posto{3, 3}));  // the end of the table
    griglia.versoInvio = Griglia::Verso::destra;
    griglia.corrente({1, 2});
    premi({Tasto::invio, Tasto::invio});
    EXPECT_EQ(griglia.corrente(), (Posto{2, 1}));
    griglia.premiTasto(Tasto::invio, true);  // and back
    EXPECT_EQ(griglia.corrente(), (Posto{1, 3}));
}

TEST_F(ProveGriglia, EnterPassesOverCellsThatTakeNoText) {
    griglia.versoInvio = Griglia::Verso::destra;
    griglia.modificabile = [](Posto p) { return p.colonna != 2; };
    premi({Tasto::invio});
    EXPECT_EQ(griglia.corrente(), (Posto{1, 3}));
    premi({Tasto::sinistra});  // the arrows stop there, to copy
    EXPECT_EQ(griglia.corrente(), (Posto{1, 2}));
}

TEST_F(ProveGriglia, TabWalksAlongTheRowsAndLeavesAtTheEnd) {
    EXPECT_TRUE(griglia.premiTasto(Tasto::tab));
    EXPECT_EQ(griglia.corrente(), (Posto{1, 2}));
    EXPECT_TRUE(griglia.premiTasto(Tasto::tabIndietro));
    EXPECT_FALSE(griglia.premiTasto(Tasto::tabIndietro));
    griglia.corrente({3, 3});
    EXPECT_FALSE(griglia.premiTasto(Tasto::tab));
    EXPECT_EQ(griglia.corrente(), (Posto{3, 3}));
    griglia.modificabile = nullptr;  // a table to look at is one stop
    griglia.corrente({1, 1});
    EXPECT_FALSE(griglia.premiTasto(Tasto::tab));
}

TEST_F(ProveGriglia, AnotherTableKeepsTheCursorWhereItMayStillStop) {
    griglia.corrente({2, 2});
    griglia.tabella(Tabella(3, 3));
    EXPECT_EQ(griglia.corrente(), (Posto{2, 2}));
    griglia.tabella(Tabella(2, 3));
    EXPECT_EQ(griglia.corrente(), (Posto{1, 1}));
}

TEST_F(ProveGriglia, AClickMovesTheCursorAndIsTold) {
    std::vector<Posto> clic;
    std::vector<Posto> mosse;
    griglia.alClic = [&](Posto p) { clic.push_back(p); };
    griglia.alMovimento = [&](Posto p) { mosse.push_back(p); };
    EXPECT_TRUE(griglia.clic(2, 3));
    EXPECT_TRUE(griglia.clic(0, 2));   // a heading
    EXPECT_FALSE(griglia.clic(4, 1));  // no such cell
    EXPECT_EQ(griglia.corrente(), (Posto{2, 3}));
    EXPECT_EQ(clic, (std::vector<Posto>{{2, 3}, {0, 2}}));
    EXPECT_EQ(mosse, (std::vector<Posto>{{2, 3}}));
    griglia.abilitato(false);
    EXPECT_FALSE(griglia.clic(1, 1));
    EXPECT_EQ(clic.size(), 2U);
}

TEST_F(ProveGriglia, TheSpaceBarClicksACellThatTakesNoText) {
    std::vector<Posto> clic;
    griglia.alClic = [&](Posto p) { clic.push_back(p); };
    griglia.scrivi(" ");
    EXPECT_TRUE(clic.empty());
    griglia.modificabile = nullptr;
    griglia.scrivi(" x");
    EXPECT_EQ(clic, (std::vector<Posto>{{1, 1}}));
    EXPECT_FALSE(griglia.inModifica());
}

TEST_F(ProveGriglia, TheRightButtonIsTakenWhereSomethingIsToldOfIt) {
    EXPECT_FALSE(griglia.tastoDestro(1, 1));
    Posto premuto;
    griglia.alTastoDestro = [&](Posto p) { premuto = p; };
    EXPECT_TRUE(griglia.tastoDestro(2, 1));
    EXPECT_EQ(premuto, (Posto{2, 1}));
}

TEST_F(ProveGriglia, TheRightButtonMovesTheCursorToACellOutsideTheSelection) {
    std::vector<Posto> clic;
    griglia.alClic = [&](Posto p) { clic.push_back(p); };
    griglia.clic(1, 1);
    griglia.clic(2, 2, true);
    clic.clear();
    griglia.tastoDestro(2, 1);
    EXPECT_EQ(griglia.selezione(), (AreaCelle{{1, 1}, {2, 2}}));
    EXPECT_FALSE(griglia.tastoDestro(3, 3));
    EXPECT_EQ(griglia.corrente(), (Posto{3, 3}));
    EXPECT_EQ(griglia.selezione(), (AreaCelle{{3, 3}, {3, 3}}));
    griglia.tastoDestro(0, 2);
    EXPECT_EQ(griglia.corrente(), (Posto{3, 3})) << "a heading";
    EXPECT_TRUE(clic.empty());
    griglia.abilitato(false);
    griglia.tastoDestro(1, 1);
    EXPECT_EQ(griglia.corrente(), (Posto{3, 3}));
}

TEST_F(ProveGriglia, TheTopRowStaysInTheTable) {
    griglia.tabella(Tabella(40, 2));
    int alta = -1;
    griglia.alloScorrimento = [&](int riga) { alta = riga; };
    EXPECT_EQ(griglia.rigaAlta(), 1);
    griglia.rigaAlta(21);
    EXPECT_EQ(griglia.rigaAlta(), 21);
    EXPECT_EQ(alta, -1);  // the program's own
    griglia.scorri(34);
    EXPECT_EQ(alta, 34);
    griglia.scorri(99);
    EXPECT_EQ(griglia.rigaAlta(), 39);
    griglia.scorri(0);
    EXPECT_EQ(griglia.rigaAlta(), 1);
}

TEST_F(ProveGriglia, TextsCountAsModifiedWhereTheyDifferFromThoseThatWerePutThere) {
    EXPECT_FALSE(griglia.modificata());
    griglia.testo({2, 2}, "7");
    EXPECT_TRUE(griglia.modificata());
    EXPECT_TRUE(griglia.modificata(Posto{2, 2}));
    EXPECT_FALSE(griglia.modificata(Posto{2, 1}));
    griglia.testo({2, 2}, "22");
    EXPECT_FALSE(griglia.modificata());
    griglia.testo({2, 2}, "7");
    griglia.salvata();
    EXPECT_FALSE(griglia.modificata());
    EXPECT_EQ(numeroGuasto([&] { griglia.testo({9, 9}, "x"); }), 9);
    EXPECT_EQ(numeroGuasto([&] { griglia.colonna(-1, {}); }), 9);
}

TEST_F(ProveGriglia, ChangesAreCountedAndTold) {
    int segnali = 0;
    griglia.cambiato().connect([&] { ++segnali; });
    const unsigned prima = griglia.versione();
    griglia.modifica([](Tabella& t) { t.cella(1, 1).sfondo = colori::dati; });
    EXPECT_EQ(griglia.versione(), prima + 1);
    griglia.testo({1, 1}, "11");  // what stands there
    EXPECT_EQ(segnali, 1);
    premi({Tasto::giu});
    EXPECT_EQ(segnali, 2);
    EXPECT_EQ(griglia.versione(), prima + 1);
}

}  // namespace
}  // namespace kelvo::prove
