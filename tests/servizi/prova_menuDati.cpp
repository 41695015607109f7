#include "shell/servizi/menuDati.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "comune/appunti.h"
#include "comune/cartella.h"
#include "comune/fintiFinestre.h"
#include "comune/immagini.h"
#include "servizi/grigliaProva.h"
#include "shell/servizi/tBox.h"

namespace kelvo::prove {
namespace {

/// A window with a table, a chart and a field that may refuse to be left.
class FinestraDatiProva final : public Finestra {
public:
    explicit FinestraDatiProva(const Contorno& contorno) : Finestra(contorno, "frmProva", "Prova tempo/flusso") {
        ordina({&txtCampo, &ctlGrid, &ctlChart});
        ctlGrid.tabella(ProveGriglia::numeri());
        ctlChart.contenuto({.titolo = "T", .serie = {{.nome = "A", .valori = {1.0, 2.5}}}});
        sottotitolo.testo("Ramo A");
    }
    tBox txtCampo{"txtCampo", tBox::textbox};
    Griglia ctlGrid{"ctlGrid"};
    Grafico ctlChart{"ctlChart"};
};

struct ProveMenuDati : testing::Test, ScenaFinestre {
    DialogoFinto dialogo;
    DisegnatoreFinto disegnatore;
    ImmaginiFinte immagini;
    AppuntiFinti blocco;
    FinestraDatiProva finestra;

    ProveMenuDati() : finestra(completo()) { app.appunti = &blocco; }
    Contorno completo() {
        Contorno c = contorno();
        c.servizi = {.dialogo = &dialogo, .disegnatore = &disegnatore, .immagini = &immagini};
        return c;
    }
    static std::vector<std::string> testi(MenuChiavi& menu) {
        std::vector<std::string> tutti;
        for (const MenuChiavi::Voce* voce : menu.figli(menu.figli({}).at(0)->chiave)) {
            tutti.push_back(voce->testo + (voce->abilitata ? "" : " (chiusa)"));
        }
        return tutti;
    }
    /// Chooses the entry of those words.
    static void scegli(MenuChiavi& menu, const std::string& testo) {
        for (const MenuChiavi::Voce* voce : menu.figli(menu.figli({}).at(0)->chiave)) {
            if (voce->testo == testo) {
                const std::string chiave = voce->chiave;
                menu.premi(chiave);
                return;
            }
        }
        FAIL() << "no entry " << testo;
    }
    MenuChiavi& tabella() { return *finestra.ctlGrid.menu(); }
    MenuChiavi& grafico() { return *finestra.ctlChart.menu(); }
    std::string file(const char* nome) const { return cartella.percorso() + "/" + nome; }
};

TEST_F(ProveMenuDati, ATableHasItsEntries) {
    EXPECT_EQ(testi(tabella()), (std::vector<std::string>{"Copia", "Copia con intestazioni", "Incolla (chiusa)", "-",
                                                          "Salva come CSV..."}));
    EXPECT_EQ(tabella().voce("mnuXDatiCopia").scorciatoia, "Ctrl+C");
    EXPECT_EQ(tabella().voce("mnuXDatiCopiaIntestazioni").scorciatoia, "Ctrl+Shift+C");
}

TEST_F(ProveMenuDati, AChartHasItsEntries) {
    EXPECT_EQ(testi(grafico()),
              (std::vector<std::string>{"Copia immagine", "-", "Salva come PNG...", "Salva come SVG...",
                                        "Salva come PDF...", "Salva i dati come CSV..."}));
}

TEST_F(ProveMenuDati, WhereThereIsNothingToSaveTheEntriesAreClosedAndSayWhy) {
    finestra.ctlChart.svuota();
    for (const MenuChiavi::Voce* voce : grafico().figli("mnuXDati")) {
        if (voce->testo != "-") {
            EXPECT_FALSE(voce->abilitata) << voce->testo;
            EXPECT_EQ(voce->nota, "Il grafico non ha dati");
        }
    }
    finestra.ctlGrid.tabella(Tabella(1, 4));
    EXPECT_FALSE(tabella().voce("mnuXDatiCSV").abilitata);
    EXPECT_EQ(tabella().voce("mnuXDatiCopia").nota, "La tabella è vuota");
}

TEST_F(ProveMenuDati, WithoutServicesTheEntriesAreClosed) {
    FinestraDatiProva povera(contorno());
    EXPECT_FALSE(povera.ctlGrid.menu()->voce("mnuXDatiCSV").abilitata);
    EXPECT_TRUE(povera.ctlGrid.menu()->voce("mnuXDatiCopia").abilitata);
    for (const char* chiave : {"mnuXDatiCopiaImmagine", "mnuXDatiPNG", "mnuXDatiSVG", "mnuXDatiPDF", "mnuXDatiCSV"}) {
        EXPECT_FALSE(povera.ctlChart.menu()->voce(chiave).abilitata) << chiave;
    }
}

TEST_F(ProveMenuDati, TheSelectionIsCopied) {
    finestra.ctlGrid.clic(2, 1);
    finestra.ctlGrid.clic(3, 2, true);
    scegli(tabella(), "Copia");
    EXPECT_EQ(blocco.testo, "21\t22\r\n31\t32");
    scegli(tabella(), "Copia con intestazioni");
    EXPECT_EQ(blocco.testo, "C0\tC1\tC2\r\nR2\t21\t22\r\nR3\t31\t32");
}

TEST_F(ProveMenuDati, ATextIsPastedWhereTheCellMayBeTypedInto) {
    EXPECT_EQ(tabella().voce("mnuXDatiIncolla").nota, "La cella non si può modificare");
    finestra.ctlGrid.modificabile = [](Posto p) { return p.colonna == 2; };
    finestra.ctlGrid.clic(1, 1);
    EXPECT_FALSE(tabella().voce("mnuXDatiIncolla").abilitata);
    finestra.ctlGrid.clic(1, 2);
    EXPECT_TRUE(tabella().voce("mnuXDatiIncolla").abilitata);
    EXPECT_EQ(tabella().voce("mnuXDatiIncolla").scorciatoia, "Ctrl+V");
    blocco.testo = "7\r\n8";
    scegli(tabella(), "Incolla");
    EXPECT_EQ(finestra.ctlGrid.testo(1, 2), "7");
    EXPECT_EQ(finestra.ctlGrid.testo(2, 2), "8");
    app.appunti = nullptr;
    EXPECT_EQ(tabella().voce("mnuXDatiIncolla").nota, "Non disponibile");
    EXPECT_FALSE(tabella().voce("mnuXDatiIncolla").abilitata);
}

TEST_F(ProveMenuDati, OfATableWithoutACursorAllIsCopied) {
    finestra.ctlGrid.salta = [](Posto) { return true; };
    finestra.ctlGrid.tabella(ProveGriglia::numeri());
    scegli(tabella(), "Copia");
    EXPECT_EQ(blocco.testo, "11\t12\t13\r\n21\t22\t23\r\n31\t32\t33");
}

TEST_F(ProveMenuDati, ATableIsSavedUnderANameOfWindowAndLeg) {
    dialogo.risposta = file("t.csv");
    scegli(tabella(), "Salva come CSV...");
    ASSERT_EQ(dialogo.richieste.size(), 1U);
    EXPECT_EQ(dialogo.richieste[0].nome, "Prova tempo-flusso - Ramo A.csv");
    EXPECT_EQ(dialogo.richieste[0].estensione, "csv");
    EXPECT_EQ(contenuto(file("t.csv")).substr(0, 16),
              "\xEF\xBB\xBF"
              "C0;C1;C2;C3\r\n");
    EXPECT_EQ(cornice.avvisato, "Scritto il file " + file("t.csv"));
    EXPECT_TRUE(messaggi.mostrati.empty());
}

TEST_F(ProveMenuDati, OnCancelNothingIsWritten) {
    scegli(tabella(), "Salva come CSV...");
    EXPECT_EQ(dialogo.richieste.size(), 1U);
    EXPECT_EQ(cornice.avvisato, "");
    EXPECT_EQ(disegnatore.disegnati.size(), 0U);
}

TEST_F(ProveMenuDati, AWriteThatFailsIsTold) {
    dialogo.risposta = file("manca/t.csv");
    scegli(tabella(), "Salva come CSV...");
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(messaggi.mostrati[0].testo,
              "Impossibile scrivere il file: percorso non trovato (" + file("manca/t.csv") + ")");
    EXPECT_EQ(messaggi.mostrati[0].titolo, "KELVO 2014 - Attenzione");
    EXPECT_EQ(cornice.avvisato, "");
}

TEST_F(ProveMenuDati, AChartIsSavedInEachFormat) {
    struct Caso {
        const char* voce;
        const char* estensione;
        FormatoDisegno formato;
    };
    for (const Caso& caso :
         {Caso{"Salva come PNG...", "png", FormatoDisegno::png}, Caso{"Salva come SVG...", "svg", FormatoDisegno::svg},
          Caso{"Salva come PDF...", "pdf", FormatoDisegno::pdf}}) {
        const std::string percorso = file((std::string{"g."} + caso.estensione).c_str());
        dialogo.risposta = percorso;
        scegli(grafico(), caso.voce);
        EXPECT_EQ(dialogo.richieste.back().estensione, caso.estensione);
        EXPECT_EQ(dialogo.richieste.back().nome, std::string{"Prova tempo-flusso - Ramo A."} + caso.estensione);
        EXPECT_EQ(disegnatore.disegnati.back(), caso.formato);
        EXPECT_EQ(disegnatore.ultimo, finestra.ctlChart.contenuto());
        EXPECT_EQ(contenuto(percorso), "disegno");
    }
}

TEST_F(ProveMenuDati, AChartThatCannotBeDrawnIsTold) {
    disegnatore.errore = "memoria insufficiente";
    dialogo.risposta = file("g.png");
    scegli(grafico(), "Salva come PNG...");
    scegli(grafico(), "Copia immagine");
    ASSERT_EQ(messaggi.mostrati.size(), 2U);
    EXPECT_EQ(messaggi.mostrati[0].testo,
              "Impossibile scrivere il file: memoria insufficiente (" + file("g.png") + ")");
    EXPECT_EQ(messaggi.mostrati[1].testo, "Impossibile copiare l'immagine: memoria insufficiente");
    EXPECT_FALSE(std::filesystem::exists(file("g.png")));
    EXPECT_EQ(immagini.png, "");
}

TEST_F(ProveMenuDati, ThePictureGoesToTheClipboard) {
    scegli(grafico(), "Copia immagine");
    EXPECT_EQ(immagini.png, "disegno");
    EXPECT_EQ(disegnatore.disegnati, std::vector<FormatoDisegno>{FormatoDisegno::png});
    immagini.riesce = false;
    scegli(grafico(), "Copia immagine");
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(messaggi.mostrati[0].testo, "Impossibile copiare l'immagine: gli appunti non la accettano");
}

TEST_F(ProveMenuDati, TheValuesOfAChartAreSavedWithoutADrawing) {
    dialogo.risposta = file("g.csv");
    scegli(grafico(), "Salva i dati come CSV...");
    EXPECT_EQ(contenuto(file("g.csv")), "\xEF\xBB\xBFX;A\r\n1;1\r\n2;2,5\r\n");
    EXPECT_TRUE(disegnatore.disegnati.empty());
}

TEST_F(ProveMenuDati, EntriesOfTheGridsOwnStandInFrontAndWork) {
    MenuChiavi proprio("menuProprio");
    proprio.aggiungiMenu("radice", "");
    proprio.aggiungi({.padre = "radice", .testo = "Legenda", .chiave = "mnuXLegenda"});
    proprio.aggiungi({.padre = "radice", .testo = "Altro", .chiave = "mnuXAltro"});
    proprio.aggiungi({.padre = "mnuXAltro", .testo = "Sotto", .chiave = "mnuXSotto"});
    std::vector<std::string> premute;
    proprio.alClic = [&](const std::string& chiave) { premute.push_back(chiave); };
    finestra.ctlGrid.menuContesto = &proprio;
    EXPECT_EQ(testi(tabella()), (std::vector<std::string>{"Legenda", "Altro", "-", "Copia", "Copia con intestazioni",
                                                          "Incolla (chiusa)", "-", "Salva come CSV..."}));
    EXPECT_EQ(tabella().figli("mnuXAltro").at(0)->testo, "Sotto");
    tabella().premi("mnuXLegenda");
    tabella().premi("mnuXSotto");
    EXPECT_EQ(premute, (std::vector<std::string>{"mnuXLegenda", "mnuXSotto"}));
    finestra.ctlGrid.clic(1, 1);
    scegli(tabella(), "Copia");
    EXPECT_EQ(blocco.testo, "11");
}

TEST_F(ProveMenuDati, AFieldThatRefusesToBeLeftKeepsAnEntryFromRunning) {
    finestra.txtCampo.controllo = [] { return EsitoUscita::rifiuto(std::string{"no"}); };
    finestra.fuocoSu(finestra.txtCampo);
    scegli(tabella(), "Salva come CSV...");
    EXPECT_TRUE(dialogo.richieste.empty());
}

TEST_F(ProveMenuDati, AChartTakesTheKeyboardWhereItCanBeReached) {
    EXPECT_TRUE(finestra.fuocoSu(finestra.ctlChart));
    finestra.ctlChart.visibile(false);
    EXPECT_FALSE(finestra.ctlChart.prendeFuoco());
}

}  // namespace
}  // namespace kelvo::prove
