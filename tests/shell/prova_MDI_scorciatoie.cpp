#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "comune/fintiShell.h"
#include "shell/barraPrincipale.h"
#include "shell/menuPrincipale.h"
#include "shell/servizi/scorciatoie.h"

namespace kelvo::prove::shell {
namespace {

using Suggerimenti = std::vector<SuggerimentoTasto>;

/// A window with a tool bar of its own.
class ConBarra final : public Finestra {
public:
    ConBarra(const Contorno& c, const std::string& nome, std::vector<BarraStrumenti::Tasto> tasti)
        : Finestra(c, nome, nome), ctlToolbar("ctlToolbar", std::move(tasti)) {
        ordina({});
        ctlToolbar.allaPressione = [this](const std::string& chiave) {
            premuti += chiave + " ";
            rotonda().Titolo(premuti);
        };
    }
    BarraStrumenti* barra() override { return &ctlToolbar; }
    BarraStrumenti ctlToolbar;
    std::string premuti;
};

class Tasti : public ::testing::Test {
protected:
    void SetUp() override { f.cornice.Load(); }
    ConBarra& mostra(const std::vector<BarraStrumenti::Tasto>& tasti) {
        f.cornice.finestre.registra("frmMatriceSvolte", [tasti](const Contorno& c) {
            return std::make_unique<ConBarra>(c, "frmMatriceSvolte", tasti);
        });
        f.cornice.albero.UserClick("keyMatriceSvolte");
        return dynamic_cast<ConBarra&>(*f.cornice.gestione.corrente());
    }
    ShellFinta f;
};

const std::vector<BarraStrumenti::Tasto> tastiDati{{"Archivio", "Archivio", "", "", true},
                                                   {"AggiornaDati", "Aggiorna dati", "", "", true},
                                                   {"Refresh", "Ripristina", "", "", true}};
const std::vector<BarraStrumenti::Tasto> tastiRisultati{{"keyCalcola", "Calcola", "", "", true},
                                                        {"keyAnteprima", "Anteprima", "", "", true},
                                                        {"keyRelazione", "Relazione", "", "", true},
                                                        {"keyExcel", "Excel", "", "", false}};

TEST_F(Tasti, TheListHoldsEachOnce) {
    std::vector<std::string> tutte = MDI_Form::scorciatoie();
    std::sort(tutte.begin(), tutte.end());
    EXPECT_EQ(tutte, (std::vector<std::string>{"Ctrl+E", "Ctrl+Enter", "Ctrl+I", "Ctrl+N", "Ctrl+O", "Ctrl+P", "Ctrl+Q",
                                               "Ctrl+R", "Ctrl+S", "Ctrl+Shift+S", "Ctrl+W", "F1", "F5", "F6", "F9",
                                               "Shift+F1"}));
}

TEST_F(Tasti, OfAResultWindowPressItsButtons) {
    f.nuovo(3);
    ConBarra& finestra = mostra(tastiRisultati);
    EXPECT_TRUE(f.cornice.scorciatoia("F9"));
    EXPECT_TRUE(f.cornice.scorciatoia("Ctrl+P"));
    EXPECT_TRUE(f.cornice.scorciatoia("Ctrl+R"));
    EXPECT_FALSE(f.cornice.scorciatoia("Ctrl+E"));  // closed
    EXPECT_FALSE(f.cornice.scorciatoia("F5"));
    EXPECT_EQ(finestra.premuti, "keyCalcola keyAnteprima keyRelazione ");
    finestra.ctlToolbar.abilita("keyExcel", true);
    EXPECT_TRUE(f.cornice.scorciatoia("Ctrl+E"));
}

TEST_F(Tasti, TheSameKeyRunsTheCheckUp) {
    f.nuovo(3);
    ConBarra& finestra = mostra({{"keyAnalizza", "Analizza", "", "", true}});
    EXPECT_TRUE(f.cornice.scorciatoia("F9"));
    EXPECT_EQ(finestra.premuti, "keyAnalizza ");
    EXPECT_EQ(f.cornice.ctlStatusBar.suggerimenti(),
              (Suggerimenti{{"F6", "Albero"}, {"F9", "Analizza"}, {"F1", "Aiuto"}}));
}

TEST_F(Tasti, F6GoesBetweenTreeAndWindowWhileTheTreeIsInSight) {
    EXPECT_FALSE(f.cornice.scorciatoia("F6"));
    EXPECT_TRUE(f.superficie.passi.empty());
    f.nuovo(3);
    EXPECT_TRUE(f.cornice.scorciatoia("F6"));
    EXPECT_EQ(f.superficie.passi, (std::vector<std::string>{"scambiaFuoco"}));
}

TEST_F(Tasti, AButtonOfTheWindowAtHandIsToldByTheMarkOfUnsavedChanges) {
    f.nuovo(3);
    ConBarra& finestra = mostra(tastiDati);
    EXPECT_EQ(f.cornice.didascalia.testo(), "KELVO 2014 - [.klv]");
    finestra.ctlToolbar.premi("AggiornaDati");
    EXPECT_EQ(f.cornice.didascalia.testo(), "KELVO 2014 - [.klv] *");
}

TEST_F(Tasti, TheStatusBarTellsThoseOfTheMoment) {
    const Suggerimenti senza{{"Ctrl+N", "Nuovo"}, {"Ctrl+O", "Apri"}, {"F1", "Guida"}};
    EXPECT_EQ(f.cornice.ctlStatusBar.suggerimenti(), senza);
    f.nuovo(3);
    const Suggerimenti albero{{"F6", "Albero"}, {"F1", "Aiuto"}};
    EXPECT_EQ(f.cornice.ctlStatusBar.suggerimenti(), albero);
    mostra(tastiDati);
    const Suggerimenti dati{{"F6", "Albero"}, {"Ctrl+Invio", "Aggiorna dati"}, {"F5", "Ripristina"}, {"F1", "Aiuto"}};
    EXPECT_EQ(f.cornice.ctlStatusBar.suggerimenti(), dati);
    f.cornice.albero.UserClick("keyMyProject");
    EXPECT_EQ(f.cornice.ctlStatusBar.suggerimenti(), albero);
    f.cornice.albero.UserClick("keyMatriceSvolte");
    EXPECT_EQ(f.cornice.ctlStatusBar.suggerimenti(), dati);
    f.messaggi.risposte = {Risposta::no};
    f.cornice.CloseRotonda();
    EXPECT_EQ(f.cornice.ctlStatusBar.suggerimenti(), senza);
}

TEST_F(Tasti, TheStatusBarTellsFourAtMostAndNoneThatIsClosed) {
    f.nuovo(3);
    ConBarra& finestra = mostra(tastiRisultati);
    EXPECT_EQ(f.cornice.ctlStatusBar.suggerimenti(),
              (Suggerimenti{{"F6", "Albero"}, {"F9", "Calcola"}, {"Ctrl+P", "Anteprima"}, {"F1", "Aiuto"}}));
    finestra.ctlToolbar.abilita("keyCalcola", false);
    EXPECT_EQ(f.cornice.ctlStatusBar.suggerimenti(),
              (Suggerimenti{{"F6", "Albero"}, {"Ctrl+P", "Anteprima"}, {"Ctrl+R", "Relazione"}, {"F1", "Aiuto"}}));
    f.cornice.albero.UserClick("keyMyProject");
    finestra.ctlToolbar.abilita("keyCalcola", true);  // hidden meanwhile
    EXPECT_EQ(f.cornice.ctlStatusBar.suggerimenti(), (Suggerimenti{{"F6", "Albero"}, {"F1", "Aiuto"}}));
}

TEST_F(Tasti, TheButtonsOfTheMainBarAreExplainedWithTheirKeys) {
    for (const auto& [tasto, attesa] : {std::pair{"Nuovo", "Nuovo progetto (Ctrl+N)"},
                                        {"Apri", "Apri progetto (Ctrl+O)"},
                                        {"Salva", "Salva progetto (Ctrl+S)"},
                                        {"Chiudi", "Chiudi progetto (Ctrl+W)"},
                                        {"Help", "Guida utente (Maiusc+F1)"},
                                        {"Opzioni", "Opzioni programma"},
                                        {"Analizzatore", "Analizzatore rotatoria"},
                                        {"Dx", "Valutazione Corsia Preferenziale"},
                                        {"Check", "Check progetto rotatoria"},
                                        {"Google", ""},
                                        {"KelvoCAD", "Avvia KelvoCAD"},
                                        {"Esci", "Esci dal programma (Ctrl+Q)"}}) {
        EXPECT_EQ(f.cornice.ctlToolbar.spiegazione(tasto), attesa);
    }
}

TEST_F(Tasti, ALineFollowsFourButtonsOfTheMainBar) {
    std::vector<std::string> prima;
    for (const BarraStrumenti::Tasto& tasto : f.cornice.ctlToolbar.tasti()) {
        if (tasto.separatoreDopo) {
            prima.push_back(tasto.chiave);
        }
    }
    EXPECT_EQ(prima, (std::vector<std::string>{"Chiudi", "Opzioni", "Google", "KelvoCAD"}));
}

TEST_F(Tasti, TheBrushOfTheToolBarIsSetAgainForEachWindow) {
    f.nuovo(3);
    f.cornice.ctlToolbar.aspetto({});
    f.cornice.albero.UserClick("keyMatriceSvolte");
    EXPECT_EQ(f.cornice.ctlToolbar.aspetto().sfondo, (Colore{0, 114, 198}));
}

}  // namespace
}  // namespace kelvo::prove::shell
