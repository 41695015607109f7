#include "shell/servizi/scelte.h"

#include <gtest/gtest.h>

#include <limits>

#include "comune/guasti.h"

namespace kelvo::prove {
namespace {

struct ProveGruppoOpzioni : testing::Test {
    GruppoOpzioni gruppo{"gr", {{"optA", "A"}, {"optB", "B"}, {"optC", "C"}}};
    std::vector<int> cambi;
    ProveGruppoOpzioni() {
        gruppo.alCambio = [this](int i) { cambi.push_back(i); };
    }
};

TEST_F(ProveGruppoOpzioni, OneOptionAtATimeIsChosen) {
    EXPECT_EQ(gruppo.scelta(), -1);
    gruppo.clicca(1);
    gruppo.clicca(1);  // already chosen
    gruppo.clicca(2);
    EXPECT_EQ(gruppo.scelta(), 2);
    EXPECT_EQ(cambi, (std::vector<int>{1, 2}));
    gruppo.scelta(0);
    gruppo.scelta(-1);
    EXPECT_EQ(gruppo.scelta(), -1);
    EXPECT_EQ(cambi.size(), 2U);  // the program's own choices are not told
}

TEST_F(ProveGruppoOpzioni, AClosedOrHiddenOptionIsNotChosenByTheUser) {
    gruppo.abilita(0, false);
    gruppo.mostra(1, false);
    gruppo.clicca(0);
    gruppo.clicca(1);
    gruppo.clicca(3);
    gruppo.clicca(-1);
    EXPECT_EQ(gruppo.scelta(), -1);
    gruppo.scelta(0);  // what the project holds is shown though closed
    EXPECT_EQ(gruppo.scelta(), 0);
    gruppo.abilitato(false);
    gruppo.clicca(2);
    EXPECT_EQ(gruppo.scelta(), 0);
    EXPECT_TRUE(cambi.empty());
}

TEST_F(ProveGruppoOpzioni, TheArrowsPassClosedOptionsOver) {
    gruppo.abilita(1, false);
    gruppo.sposta(true);
    EXPECT_EQ(gruppo.scelta(), 0);
    gruppo.sposta(true);
    EXPECT_EQ(gruppo.scelta(), 2);
    gruppo.sposta(true);
    EXPECT_EQ(gruppo.scelta(), 0);
    gruppo.sposta(false);
    EXPECT_EQ(gruppo.scelta(), 2);
    gruppo.abilita(0, false);
    gruppo.sposta(false);
    EXPECT_EQ(gruppo.scelta(), 2);
    EXPECT_EQ(cambi, (std::vector<int>{0, 2, 0, 2}));
    gruppo.scelta(-1);
    gruppo.sposta(false);
    EXPECT_EQ(gruppo.scelta(), 2);
}

TEST_F(ProveGruppoOpzioni, TakesTheFocusWhileAnOptionIsOpen) {
    EXPECT_TRUE(gruppo.prendeFuoco());
    for (int i = 0; i < 3; ++i) {
        gruppo.abilita(i, false);
    }
    EXPECT_FALSE(gruppo.prendeFuoco());
}

TEST_F(ProveGruppoOpzioni, WhatIsOutsideTheGroupIsAFault) {
    EXPECT_EQ(numeroGuasto([&] { gruppo.scelta(3); }), 9);
    EXPECT_EQ(numeroGuasto([&] { gruppo.scelta(-2); }), 9);
    EXPECT_EQ(numeroGuasto([&] { gruppo.abilita(3, true); }), 9);
    EXPECT_EQ(numeroGuasto([&] { (void)gruppo.opzione(-1); }), 9);
}

TEST(Elenco, TheChoiceIsToldWhenTheUserMakesIt) {
    Elenco elenco("lst");
    std::vector<int> cambi;
    elenco.alCambio = [&](int i) { cambi.push_back(i); };
    elenco.voci({"uno", "due", "tre"});
    EXPECT_EQ(elenco.scelta(), -1);
    elenco.scegli(2);
    elenco.scegli(2);
    elenco.scegli(3);
    elenco.scegli(-1);
    elenco.scelta(0);
    EXPECT_EQ(elenco.scelta(), 0);
    EXPECT_EQ(cambi, (std::vector<int>{2}));
    EXPECT_EQ(numeroGuasto([&] { elenco.scelta(3); }), 9);
    elenco.abilitato(false);
    elenco.scegli(1);
    EXPECT_EQ(elenco.scelta(), 0);
}

TEST(Elenco, OtherLinesKeepTheChoiceWhereThereStillIsOne) {
    Elenco elenco("lst");
    elenco.voci({"uno", "due", "tre"});
    elenco.scelta(1);
    elenco.voci({"1", "2"});
    EXPECT_EQ(elenco.scelta(), 1);
    elenco.voci({"solo"});
    EXPECT_EQ(elenco.scelta(), -1);
    elenco.scelta(0);
    elenco.scelta(-1);
    EXPECT_EQ(elenco.scelta(), -1);
}

TEST(ElencoSpunte, TicksAreIndependentUnlessTheirOwnerSaysSo) {
    ElencoSpunte elenco("lst");
    elenco.voci({"a", "b", "c"});
    elenco.clicca(0);
    elenco.clicca(2);
    EXPECT_EQ(elenco.quanteSpuntate(), 2);
    EXPECT_EQ(elenco.primaSpuntata(), 0);
    elenco.clicca(0);
    EXPECT_FALSE(elenco.spuntata(0));
    EXPECT_EQ(elenco.primaSpuntata(), 2);
    elenco.alClic = [&](int i) {
        if (elenco.quanteSpuntate() > 1) {
            elenco.azzera();
            elenco.spunta(i, true);
        }
    };
    elenco.clicca(1);
    EXPECT_EQ(elenco.quanteSpuntate(), 1);
    EXPECT_TRUE(elenco.spuntata(1));
    elenco.clicca(1);
    EXPECT_EQ(elenco.primaSpuntata(), -1);
}

TEST(ElencoSpunte, OtherLinesAreUntickedAndWhatIsOutsideIsNoLine) {
    ElencoSpunte elenco("lst");
    int clic = 0;
    elenco.alClic = [&](int) { ++clic; };
    elenco.voci({"a"});
    elenco.clicca(0);
    elenco.clicca(1);
    elenco.clicca(-1);
    EXPECT_EQ(clic, 1);
    elenco.voci({"a", "b"});
    EXPECT_EQ(elenco.quanteSpuntate(), 0);
    EXPECT_EQ(numeroGuasto([&] { elenco.spunta(2, true); }), 9);
    EXPECT_EQ(numeroGuasto([&] { (void)elenco.spuntata(-1); }), 9);
    elenco.visibile(false);
    elenco.clicca(0);
    EXPECT_EQ(elenco.quanteSpuntate(), 0);
}

TEST(Scorrimento, SlidesByStepsBetweenItsLimits) {
    Scorrimento cursore("Slider1", 1, 12, 5);  // 1, 6, 11
    std::vector<int> cambi;
    cursore.alCambio = [&](int v) { cambi.push_back(v); };
    cursore.imposta(3);
    EXPECT_EQ(cursore.valore(), 1);
    cursore.imposta(4);
    EXPECT_EQ(cursore.valore(), 6);
    cursore.imposta(99);
    EXPECT_EQ(cursore.valore(), 11);
    cursore.imposta(std::numeric_limits<int>::min());
    EXPECT_EQ(cursore.valore(), 1);
    EXPECT_EQ(cambi, (std::vector<int>{6, 11, 1}));
    cursore.valore(11);
    EXPECT_EQ(cambi.size(), 3U);
}

TEST(Scorrimento, OtherLimitsKeepTheValueAsNearAsTheyCan) {
    Scorrimento cursore("Slider1", 1, 18);
    cursore.valore(18);
    int segnali = 0;
    cursore.cambiato().connect([&] { ++segnali; });
    cursore.limiti(1, 12);
    EXPECT_EQ(cursore.valore(), 12);
    EXPECT_EQ(segnali, 1);
    cursore.limiti(5, 3);
    EXPECT_EQ(cursore.massimo(), 5);
    EXPECT_EQ(cursore.valore(), 5);
    const int estremo = std::numeric_limits<int>::max();
    Scorrimento largo("s", -estremo, estremo, 0);
    largo.imposta(estremo);
    EXPECT_EQ(largo.valore(), estremo);
    EXPECT_EQ(largo.passo(), 1);
}

struct ProveSchede : testing::Test {
    Schede schede{"TabStrip1", {"Report", "Errori", "Altro"}};
    std::vector<int> cambi;
    ProveSchede() {
        schede.alCambio = [this](int i) { cambi.push_back(i); };
    }
};

TEST_F(ProveSchede, TheUserBringsOpenTabsIntoView) {
    EXPECT_EQ(schede.corrente(), 0);
    schede.abilita(1, false);
    schede.scegli(1);
    schede.scegli(0);
    schede.scegli(7);
    schede.scegli(2);
    EXPECT_EQ(schede.corrente(), 2);
    schede.corrente(1);
    EXPECT_EQ(schede.corrente(), 1);
    EXPECT_EQ(cambi, (std::vector<int>{2}));
    EXPECT_EQ(numeroGuasto([&] { schede.corrente(3); }), 9);
}

TEST_F(ProveSchede, GoingOnPassesClosedTabsOverAndGoesRound) {
    schede.abilita(1, false);
    schede.sposta(true);
    schede.sposta(true);
    schede.sposta(false);
    EXPECT_EQ(cambi, (std::vector<int>{2, 0, 2}));
    schede.abilitato(false);
    schede.sposta(true);
    EXPECT_EQ(schede.corrente(), 2);
}

TEST_F(ProveSchede, ACountStandsBeforeTheTitle) {
    schede.conteggio(0, 12);
    schede.conteggio(1, 0);
    EXPECT_EQ(schede.testo(0), "[12] Report");
    EXPECT_EQ(schede.testo(1), "[0] Errori");
    EXPECT_EQ(schede.testo(2), "Altro");
    schede.conteggio(0, std::nullopt);
    schede.titolo(0, "Nuovo");
    EXPECT_EQ(schede.testo(0), "Nuovo");
}

TEST(CampioneColore, TellsWhenItsColourChanges) {
    CampioneColore campione("pic");
    int segnali = 0;
    campione.cambiato().connect([&] { ++segnali; });
    campione.colore({192, 0, 0});
    campione.colore({192, 0, 0});
    EXPECT_EQ(segnali, 1);
    EXPECT_EQ(campione.colore(), (Colore{192, 0, 0}));
}

}  // namespace
}  // namespace kelvo::prove
