// What stands in windows as paper shows it, and the entries of their menus that put it there.

#include "shell/servizi/carta.h"

#include <gtest/gtest.h>

#include "comune/fintiFinestre.h"
#include "servizi/grigliaProva.h"
#include "shell/servizi/menuDati.h"

namespace kelvo::prove {
namespace {

using D = DocumentoPagine;

std::vector<std::string> titoli(const D::Tabella& tabella) {
    std::vector<std::string> tutti;
    for (const D::Colonna& colonna : tabella.colonne) {
        tutti.push_back(colonna.titolo);
    }
    return tutti;
}

std::vector<std::string> testi(const std::vector<D::Cella>& riga) {
    std::vector<std::string> tutti;
    for (const D::Cella& cella : riga) {
        tutti.push_back(cella.testo);
    }
    return tutti;
}

/// Headings "h0".., rows "0,1" and so on below them.
Tabella quadro(int righe, int colonne) {
    Tabella t(righe, colonne);
    for (int r = 0; r < righe; ++r) {
        for (int c = 0; c < colonne; ++c) {
            t.cella(r, c).testo = (r == 0 ? "h" : std::to_string(r) + ",") + std::to_string(c);
        }
    }
    return t;
}

TEST(TabellaSuCarta, HeadingsAreTheFixedRowsAndHiddenColumnsAreLeftOut) {
    Griglia griglia{"g", 2, 1};
    Tabella t = quadro(4, 4);
    t.cella(1, 0).testo = "";
    t.cella(0, 3).testo = "";
    griglia.tabella(t);
    griglia.colonna(1, {.nascosta = true});
    const D::Tabella carta = tabellaSuCarta(griglia);
    EXPECT_EQ(titoli(carta), (std::vector<std::string>{"h0", "h2\n1,2", "1,3"}));
    ASSERT_EQ(carta.righe.size(), 2U);
    EXPECT_EQ(testi(carta.righe[0]), (std::vector<std::string>{"2,0", "2,2", "2,3"}));
    EXPECT_EQ(testi(carta.righe[1]), (std::vector<std::string>{"3,0", "3,2", "3,3"}));
    EXPECT_EQ(carta.guida, 1U);
}

TEST(TabellaSuCarta, WidthsAndAlignmentsAreThoseOfTheGrid) {
    Griglia griglia{"g"};
    Tabella t = quadro(2, 3);
    t.larghezze = {2000, 0};
    griglia.tabella(t);
    griglia.colonna(0, {.allineamento = AllineamentoCella::sinistra});
    const D::Tabella carta = tabellaSuCarta(griglia);
    EXPECT_EQ(carta.colonne[0].allineamento, AllineamentoCella::sinistra);
    EXPECT_EQ(carta.colonne[1].allineamento, AllineamentoCella::destra);
    EXPECT_EQ(carta.colonne[0].peso, 2000.0);
    EXPECT_EQ(carta.colonne[1].peso, 1000.0);
    EXPECT_EQ(carta.colonne[2].peso, 1000.0);
}

TEST(TabellaSuCarta, GroundsThatSaySomethingStayAndThePlainOneGoes) {
    Griglia griglia{"g"};
    Tabella t = quadro(3, 3);
    t.cella(1, 0).sfondo = colori::nomeIngresso;
    t.cella(1, 0).inchiostro = colori::bianco;
    t.cella(1, 1).sfondo = colori::dati;
    t.cella(1, 2).inchiostro = colori::livelloF;
    t.cella(2, 0).grassetto = true;
    griglia.tabella(t);
    griglia.ornamento = [](Posto posto) {
        OrnamentoCella ornamento;
        if (posto == Posto{2, 2}) {
            ornamento.distintivo = distintivoLivello("A");
            ornamento.allineamento = AllineamentoCella::centro;
        }
        return ornamento;
    };
    const D::Tabella carta = tabellaSuCarta(griglia);
    EXPECT_EQ(carta.colonne[1].allineamento, AllineamentoCella::destra);
    EXPECT_EQ(carta.colonne[2].allineamento, AllineamentoCella::centro) << "a box stands in the middle";
    EXPECT_EQ(carta.righe[0][0].fondo, colori::nomeIngresso);
    EXPECT_EQ(carta.righe[0][0].inchiostro, colori::bianco);
    EXPECT_EQ(carta.righe[0][1].fondo, std::nullopt);
    EXPECT_EQ(carta.righe[0][1].inchiostro, std::nullopt);
    EXPECT_EQ(carta.righe[0][2].inchiostro, colori::livelloF);
    EXPECT_TRUE(carta.righe[1][0].grassetto);
    EXPECT_FALSE(carta.righe[1][1].grassetto);
    EXPECT_EQ(carta.righe[1][2].fondo, distintivoLivello("A").fondo);
    EXPECT_EQ(carta.righe[1][2].inchiostro, distintivoLivello("A").testo);
}

TEST(TabellaSuCarta, RowsOfAHeadingAloneHeadThoseBehindThem) {
    Griglia griglia{"g"};
    Tabella t = quadro(6, 2);
    t.cella(0, 0).sfondo = colori::intestazione;
    t.cella(1, 0).sfondo = colori::intestazione;
    t.cella(4, 0).sfondo = colori::intestazione;
    t.cella(5, 0).sfondo = colori::intestazione;
    for (const int r : {1, 4}) {
        t.cella(r, 1).testo.clear();
    }
    griglia.tabella(t);
    EXPECT_EQ(tabellaSuCarta(griglia).capi, (std::vector<std::size_t>{0, 3}));
}

TEST(TabellaSuCarta, AnEmptyTableIsEmpty) {
    const Griglia griglia{"g"};
    EXPECT_TRUE(tabellaSuCarta(griglia).colonne.empty());
    EXPECT_TRUE(tabellaSuCarta(griglia).righe.empty());
}

/// A window with a table and a chart that goes on paper.
class FinestraCarta final : public Finestra, public SuCarta {
public:
    explicit FinestraCarta(const Contorno& contorno) : Finestra(contorno, "frmProva", "Prova") {
        ordina({&ctlGrid, &ctlChart});
        ctlGrid.tabella(quadro(2, 2));
    }
    std::string impedimentoStampa() const override { return motivo; }
    void stampaFigure() override { fatti.emplace_back("stampa"); }
    void salvaFigurePDF() override { fatti.emplace_back("pdf"); }
    Griglia ctlGrid{"ctlGrid"};
    Grafico ctlChart{"ctlChart"};
    std::string motivo;
    std::vector<std::string> fatti;
};

class FinestraSenzaCarta final : public Finestra {
public:
    explicit FinestraSenzaCarta(const Contorno& contorno) : Finestra(contorno, "frmProva", "Prova") {
        ordina({&ctlGrid});
        ctlGrid.tabella(quadro(2, 2));
    }
    Griglia ctlGrid{"ctlGrid"};
};

struct ProveVociStampa : testing::Test, ScenaFinestre {
    DialogoFinto dialogo;
    FinestraCarta finestra;
    ProveVociStampa() : finestra(completo()) {}
    Contorno completo() {
        Contorno c = contorno();
        c.servizi.dialogo = &dialogo;
        return c;
    }
};

TEST_F(ProveVociStampa, TheyStandLastInTheMenusOfTablesAndCharts) {
    for (MenuChiavi* menu : {finestra.ctlGrid.menu(), finestra.ctlChart.menu()}) {
        const auto voci = menu->figli(menu->figli({}).at(0)->chiave);
        ASSERT_GT(voci.size(), 3U);
        EXPECT_EQ(voci[voci.size() - 3]->testo, "-");
        EXPECT_EQ(voci[voci.size() - 2]->testo, "Stampa...");
        EXPECT_EQ(voci[voci.size() - 2]->scorciatoia, "Ctrl+Shift+P");
        EXPECT_EQ(voci[voci.size() - 1]->testo, "Stampa in PDF...");
        EXPECT_TRUE(voci[voci.size() - 1]->abilitata);
        menu->premi("mnuXDatiStampa");
        menu->premi("mnuXDatiStampaPDF");
    }
    EXPECT_EQ(finestra.fatti, (std::vector<std::string>{"stampa", "pdf", "stampa", "pdf"}));
}

TEST_F(ProveVociStampa, WhatIsInTheWayClosesThemWithItsReason) {
    finestra.motivo = "Non ci sono cifre";
    MenuChiavi& menu = *finestra.ctlGrid.menu();
    for (const char* chiave : {"mnuXDatiStampa", "mnuXDatiStampaPDF"}) {
        EXPECT_FALSE(menu.voce(chiave).abilitata);
        EXPECT_EQ(menu.voce(chiave).nota, "Non ci sono cifre");
    }
    FinestraCarta senza(contorno());
    EXPECT_TRUE(senza.ctlGrid.menu()->voce("mnuXDatiStampa").abilitata);
    EXPECT_FALSE(senza.ctlGrid.menu()->voce("mnuXDatiStampaPDF").abilitata) << "nowhere to ask for a file";
}

TEST_F(ProveVociStampa, AWindowThatDoesNotGoOnPaperHasNone) {
    FinestraSenzaCarta senza(completo());
    EXPECT_TRUE(senza.ctlGrid.menu()->contiene("mnuXDatiCopia"));
    EXPECT_FALSE(senza.ctlGrid.menu()->contiene("mnuXDatiStampa"));
}

}  // namespace
}  // namespace kelvo::prove
