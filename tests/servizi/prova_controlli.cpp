#include "shell/servizi/controlli.h"

#include <gtest/gtest.h>

#include "comune/guasti.h"
#include "shell/servizi/Albero.h"
#include "shell/servizi/ElencoColonne.h"
#include "shell/servizi/MenuChiavi.h"

namespace kelvo::prove {
namespace {

TEST(Controlli, AChangeIsToldOnceAndNoChangeIsNot) {
    Etichetta etichetta("lbl", "a");
    int segnali = 0;
    etichetta.cambiato().connect([&] { ++segnali; });
    etichetta.testo("b");
    etichetta.testo("b");
    etichetta.visibile(false);
    etichetta.visibile(false);
    EXPECT_EQ(segnali, 2);
}

TEST(Controlli, AButtonAndACheckDoNothingWhileClosed) {
    int volte = 0;
    Bottone bottone("cmd", "Vai");
    bottone.allaPressione = [&] { ++volte; };
    Casella casella("chk", "Sì");
    casella.alClic = [&] { ++volte; };
    bottone.abilitato(false);
    casella.visibile(false);
    bottone.premi();
    casella.clicca();
    EXPECT_EQ(volte, 0);
    EXPECT_FALSE(casella.spuntata());
    bottone.abilitato(true);
    casella.visibile(true);
    bottone.premi();
    casella.clicca();
    EXPECT_EQ(volte, 2);
    EXPECT_TRUE(casella.spuntata());
}

TEST(Controlli, ASpinStaysBetweenItsLimits) {
    Spin spin("spn", 3, 7, 4);
    int cambi = 0;
    spin.alCambio = [&] { ++cambi; };
    spin.imposta(99);
    EXPECT_EQ(spin.valore(), 7);
    spin.imposta(8);  // still 7
    EXPECT_EQ(cambi, 1);
    spin.imposta(-1);
    EXPECT_EQ(spin.valore(), 3);
    EXPECT_EQ(cambi, 2);
    spin.valore(5);  // the program's own change
    EXPECT_EQ(cambi, 2);
}

TEST(Controlli, LinesOfTextKnowIfTheUserChangedThem) {
    AreaTesto area("txtNote");
    area.testo("uno\ndue");
    EXPECT_FALSE(area.modificato());
    area.scrivi("tre");
    EXPECT_TRUE(area.modificato());
    area.abilitato(false);
    area.scrivi("quattro");
    EXPECT_EQ(area.testo(), "tre");
}

TEST(Controlli, AFrameOpensAndShowsItsGroup) {
    Bottone dentro("cmd");
    Riquadro riquadro("fr", "Gruppo", {&dentro});
    riquadro.abilitaContenuto(false);
    EXPECT_FALSE(dentro.abilitato());
    riquadro.mostraContenuto(false);
    EXPECT_FALSE(dentro.visibile());
    riquadro.abilitaContenuto(true);
    riquadro.mostraContenuto(true);
    EXPECT_TRUE(dentro.prendeFuoco());
}

TEST(Controlli, AToolbarKnowsItsKeys) {
    BarraStrumenti barra("ctl", {{"A", "a", "", "", true}, {"B", "b", "", "", false}});
    std::string premuto;
    barra.allaPressione = [&](const std::string& chiave) { premuto += chiave; };
    barra.premi("B");
    barra.premi("A");
    EXPECT_EQ(premuto, "A");
    barra.abilita("B", true);
    barra.premi("B");
    EXPECT_EQ(premuto, "AB");
    EXPECT_TRUE(barra.abilitato("B"));
    EXPECT_EQ(numeroGuasto([&] { barra.premi("C"); }), 9);
    EXPECT_EQ(numeroGuasto([&] { barra.abilita("C", true); }), 9);
}

TEST(Controlli, ProgressStaysBetweenItsLimits) {
    BarraProgresso barra("prg", 0, 10);
    barra.valore(11);
    EXPECT_EQ(barra.valore(), 10);
    barra.valore(-1);
    EXPECT_EQ(barra.valore(), 0);
}

TEST(Controlli, ProgressIsToldWhereItCanBeSeen) {
    int segnali = 0;
    BarraProgresso corta("prg", 0, 10);
    corta.cambiato().connect([&] { ++segnali; });
    for (int i = 1; i <= 10; ++i) {
        corta.valore(i);
        corta.valore(i);
    }
    EXPECT_EQ(segnali, 10);
    BarraProgresso lunga("prg", 0, 20000);
    segnali = 0;
    int mostrato = 0;
    lunga.cambiato().connect([&] {
        ++segnali;
        mostrato = lunga.valore();
    });
    for (int i = 1; i <= 19999; ++i) {
        lunga.valore(i);
        EXPECT_EQ(lunga.valore(), i);
        EXPECT_LT(i - mostrato, 100);
    }
    EXPECT_EQ(segnali, 199);
    lunga.valore(20000);
    EXPECT_EQ(mostrato, 20000) << "its end is always told";
    lunga.valore(1);
    EXPECT_EQ(mostrato, 1);
    EXPECT_EQ(segnali, 201);
}

TEST(ElencoColonne, ARowLeadsSomewhereByItsKey) {
    ElencoColonne elenco("lst", {"a", "b"});
    elenco.righe({{"k1", {"1", "2"}, false}, {"k2", {"3", "4"}, true}});
    std::string chiave;
    elenco.allAttivazione = [&](const std::string& k) { chiave += k; };
    elenco.attiva("k2");
    elenco.attiva("k3");
    elenco.abilitato(false);
    elenco.attiva("k1");
    EXPECT_EQ(chiave, "k2");
    EXPECT_EQ(elenco.riga("k1")->celle[1], "2");
    EXPECT_EQ(elenco.riga("k3"), nullptr);
}

TEST(Albero, KeepsNodesUnderTheirParentsInOrder) {
    Albero albero("ctlTree");
    albero.aggiungi("", "radice", "Radice", "r", true);
    albero.aggiungi("radice", "a", "A", "i", false);
    albero.aggiungi("radice", "b", "B", "i", false);
    albero.aggiungi("a", "a1", "A1", "i", false);
    EXPECT_EQ(albero.chiavi(), (std::vector<std::string>{"radice", "a", "a1", "b"}));
    EXPECT_EQ(albero.nodo("a1").padre, "a");
    EXPECT_EQ(albero.nodo("radice").figli, (std::vector<std::string>{"a", "b"}));
    EXPECT_TRUE(albero.nodo("radice").espanso);
    EXPECT_EQ(numeroGuasto([&] { albero.aggiungi("", "a", "", "", false); }), 457);
    EXPECT_EQ(numeroGuasto([&] { albero.aggiungi("manca", "c", "", "", false); }), 9);
    EXPECT_EQ(numeroGuasto([&] { albero.seleziona("manca"); }), 9);
    EXPECT_FALSE(albero.contiene("c"));
}

TEST(Albero, SelectionColourAndTextAreItsNodes) {
    Albero albero("ctlTree");
    albero.aggiungi("", "a", "A", "i", false);
    const unsigned prima = albero.versione();
    albero.seleziona("a");
    albero.testo("a", "Nuovo");
    albero.colore("a", {192, 192, 192});
    albero.espandi("a", true);
    EXPECT_EQ(albero.selezionato(), "a");
    EXPECT_EQ(albero.nodo("a").testo, "Nuovo");
    EXPECT_EQ(albero.nodo("a").ForeColor, (Colore{192, 192, 192}));
    EXPECT_TRUE(albero.nodo("a").espanso);
    EXPECT_GT(albero.versione(), prima);
    albero.svuota();
    EXPECT_EQ(albero.selezionato(), "");
    EXPECT_TRUE(albero.chiavi().empty());
}

TEST(MenuChiavi, EmptyingAMenuTakesItsSubmenusAndLeavesTheRest) {
    MenuChiavi menu("ctlMenu");
    menu.aggiungiMenu("mnuA", "A");
    menu.aggiungiMenu("mnuB", "B");
    const std::string sotto = menu.aggiungi({.padre = "mnuA", .testo = "Sotto", .chiave = {}, .scorciatoia = {}});
    menu.aggiungi({.padre = sotto, .testo = "Dentro", .chiave = "k1", .scorciatoia = {}});
    menu.aggiungi({.padre = "mnuB", .testo = "Altro", .chiave = "k2", .scorciatoia = {}});
    menu.svuota("mnuA");
    EXPECT_TRUE(menu.figli("mnuA").empty());
    EXPECT_FALSE(menu.contiene("k1"));
    EXPECT_FALSE(menu.contiene(sotto));
    EXPECT_TRUE(menu.contiene("k2"));
    EXPECT_TRUE(menu.contiene("mnuA"));
    EXPECT_EQ(numeroGuasto([&] { menu.aggiungi({.padre = "manca", .testo = {}, .chiave = {}, .scorciatoia = {}}); }),
              9);
}

TEST(MenuChiavi, AnEntryOfAClosedMenuDoesNothing) {
    MenuChiavi menu("ctlMenu");
    menu.aggiungiMenu("mnuA", "A");
    menu.aggiungi({.padre = "mnuA", .testo = "Uno", .chiave = "k1", .scorciatoia = {}});
    std::string premute;
    menu.alClic = [&](const std::string& chiave) { premute += chiave; };
    menu.abilita("mnuA", false);
    menu.premi("k1");
    menu.abilita("mnuA", true);
    menu.abilita("k1", false);
    menu.premi("k1");
    menu.abilita("k1", true);
    menu.abilita("nessuna", true);  // entries come and go
    menu.premi("k1");
    EXPECT_EQ(premute, "k1");
    EXPECT_EQ(numeroGuasto([&] { menu.premi("nessuna"); }), 9);
}

}  // namespace
}  // namespace kelvo::prove
