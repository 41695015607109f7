#include "shell/servizi/scorciatoie.h"

#include <gtest/gtest.h>

#include "comune/fintiFinestre.h"
#include "comune/guasti.h"
#include "shell/servizi/Albero.h"

namespace kelvo::prove {
namespace {

TEST(Scorciatoie, EachButtonOfAWindowHasItsKeys) {
    for (const auto& [tasto, tasti] :
         {std::pair{"keyCalcola", "F9"}, std::pair{"keyAnalizza", "F9"}, std::pair{"AggiornaDati", "Ctrl+Enter"},
          std::pair{"Refresh", "F5"}, std::pair{"keyAnteprima", "Ctrl+P"}, std::pair{"keyRelazione", "Ctrl+R"},
          std::pair{"keyExcel", "Ctrl+E"}, std::pair{"Archivio", "Ctrl+I"}, std::pair{"Salva", ""}}) {
        EXPECT_EQ(scorciatoiaDiTasto(tasto), tasti) << tasto;
    }
}

TEST(Scorciatoie, AreReadAsTheKeyboardBearsThem) {
    EXPECT_EQ(nomeTasti("Ctrl+Enter"), "Ctrl+Invio");
    EXPECT_EQ(nomeTasti("Ctrl+Shift+S"), "Ctrl+Maiusc+S");
    EXPECT_EQ(nomeTasti("F5"), "F5");
}

TEST(Barra, ExplainsAButtonWithItsKeysAndWhyItIsClosed) {
    BarraStrumenti barra("ctl", {{.chiave = "Refresh", .testo = "R", .suggerimento = "Rilegge", .icona = ""},
                                 {.chiave = "A", .testo = "", .suggerimento = "Apre", .icona = "", .scorciatoia = "F2"},
                                 {.chiave = "B", .testo = "", .suggerimento = "", .icona = "", .scorciatoia = "F3"},
                                 {.chiave = "C", .testo = "", .suggerimento = "Chiude", .icona = ""}});
    EXPECT_EQ(barra.spiegazione("Refresh"), "Rilegge (F5)");
    EXPECT_EQ(barra.scorciatoia("Refresh"), "F5");
    EXPECT_EQ(barra.spiegazione("A"), "Apre (F2)");
    EXPECT_EQ(barra.scorciatoia("A"), "F2");
    EXPECT_EQ(barra.spiegazione("B"), "");
    EXPECT_EQ(barra.spiegazione("C"), "Chiude");
    EXPECT_EQ(barra.scorciatoia("C"), "");
    barra.annota("A", "Non ora");
    barra.annota("B", "Non ora");
    EXPECT_EQ(barra.spiegazione("A"), "Apre (F2)\nNon ora");
    EXPECT_EQ(barra.spiegazione("B"), "Non ora");
    EXPECT_EQ(numeroGuasto([&] { barra.spiegazione("manca"); }), 9);
    EXPECT_EQ(numeroGuasto([&] { barra.scorciatoia("manca"); }), 9);
}

TEST(Barra, TellsEachPressWhenItIsDone) {
    BarraStrumenti barra("ctl", {{"A", "a", "", "", true}, {"B", "b", "", "", false}});
    std::string passi;
    barra.dopoPressione = [&] { passi += "dopo "; };
    barra.allaPressione = [&](const std::string& chiave) { passi += chiave + " "; };
    barra.premi("A");
    barra.premi("B");
    EXPECT_EQ(passi, "A dopo ");
    // A press that takes the listener away is still told to it.
    barra.allaPressione = [&](const std::string&) { barra.dopoPressione = {}; };
    barra.premi("A");
    EXPECT_EQ(passi, "A dopo dopo ");
}

class Allineabile final : public FinestraDati {
public:
    explicit Allineabile(const Contorno& contorno) : FinestraDati(contorno, "frmProva", "Prova") {}
    void ReadData() override {}
    void allinea(bool valore) { DatiAllineati(valore); }
};

struct SegnoDati : testing::Test, ScenaFinestre {
    Allineabile finestra{contorno()};
};

TEST_F(SegnoDati, StandsBesideTheCaptionWhileTheDataAreNotThoseOfTheProject) {
    EXPECT_EQ(finestra.segno.testo(), "Dati non ancora registrati");
    EXPECT_FALSE(finestra.segno.visibile());
    int segnali = 0;
    finestra.segno.cambiato().connect([&] { ++segnali; });
    finestra.allinea(false);
    EXPECT_TRUE(finestra.segno.visibile());
    EXPECT_FALSE(finestra.DatiAllineati());
    finestra.allinea(true);
    EXPECT_FALSE(finestra.segno.visibile());
    EXPECT_TRUE(finestra.DatiAllineati());
    EXPECT_EQ(segnali, 2);
}

TEST(AlberoVersione, CountsWhatChangesAndNothingElse) {
    Albero albero("ctlTree");
    albero.aggiungi("", "a", "A", "", false);
    const unsigned prima = albero.versione();
    albero.testo("a", "A");
    albero.colore("a", colori::nero);
    albero.annota("a", "");
    albero.espandi("a", false);
    EXPECT_EQ(albero.versione(), prima);
    albero.testo("a", "B");
    albero.colore("a", colori::bianco);
    albero.annota("a", "n");
    albero.espandi("a", true);
    EXPECT_EQ(albero.versione(), prima + 4);
    EXPECT_EQ(albero.nodo("a").testo, "B");
    EXPECT_EQ(albero.nodo("a").ForeColor, colori::bianco);
    EXPECT_EQ(albero.nodo("a").nota, "n");
    EXPECT_TRUE(albero.nodo("a").espanso);
}

}  // namespace
}  // namespace kelvo::prove
