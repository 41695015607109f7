#include "shell/CampiFinestre.h"

#include "comune/fintiShell.h"
#include "shell/servizi/Griglia.h"

namespace kelvo::prove::shell {
namespace {

/// The real windows behind the main window, with a project of four legs.
struct ProveCampiFinestre : testing::Test, ShellFinta {
    ServiziFinestreFinti altri;
    CampiFinestre campi{cornice.finestre, cornice.gestione};

    ProveCampiFinestre() {
        registraFinestre(cornice.finestre, altri.servizi());
        nuovo(4);
        app.theRotonda().Comune("Lucca");
        app.theRotonda().Note("una nota");
    }
};

TEST_F(ProveCampiFinestre, AWindowThatDoesNotLiveShowsNothing) {
    EXPECT_EQ(campi.testo("frmAnagraficaRotonda", "txtComune"), std::nullopt);
    EXPECT_EQ(campi.testo("frmInesistente", "txtComune"), std::nullopt);
}

TEST_F(ProveCampiFinestre, AWindowThatLivesShowsWhatWasTypedAndNotWritten) {
    ASSERT_TRUE(cornice.albero.UserClick("keyAnagraficaRotonda"));
    EXPECT_EQ(campi.testo("frmAnagraficaRotonda", "txtComune"), "Lucca");
    EXPECT_EQ(campi.testo("frmAnagraficaRotonda", "txtNote"), "una nota");
    EXPECT_EQ(campi.testo("frmAnagraficaRotonda", "txtManca"), std::nullopt);
    EXPECT_EQ(campi.testo("frmAnagraficaRotonda", "lblComune"), std::nullopt);
    auto* finestra = cornice.gestione.corrente();
    for (Controllo* c : finestra->ordine()) {
        if (c->nome() == "txtComune") {
            finestra->fuocoSu(*c);
            dynamic_cast<tBox&>(*c).scrivi("Pisa");
        }
    }
    EXPECT_EQ(campi.testo("frmAnagraficaRotonda", "txtComune"), "Pisa");
    EXPECT_EQ(app.theRotonda().Comune(), "Lucca");
}

TEST_F(ProveCampiFinestre, TheFocusGoesToAFieldOfTheWindowAtHand) {
    ASSERT_TRUE(cornice.albero.UserClick("keyRamo2"));
    EXPECT_TRUE(campi.fuocoSu("txtLungSvasatura", 0));
    ASSERT_NE(cornice.gestione.corrente()->fuoco(), nullptr);
    EXPECT_EQ(cornice.gestione.corrente()->fuoco()->nome(), "txtLungSvasatura");
    EXPECT_FALSE(campi.fuocoSu("txtManca", 0));
    EXPECT_FALSE(campi.fuocoSu("", 0));
    EXPECT_EQ(cornice.gestione.corrente()->fuoco()->nome(), "txtLungSvasatura");
}

TEST_F(ProveCampiFinestre, TheFieldsThatFindingsLeadToStandInTheirWindows) {
    struct Meta {
        const char* chiave;
        const char* campo;
    };
    for (const Meta& meta :
         {Meta{"keyAnagraficaRotonda", "txtData"}, Meta{"keyAnagraficaRotonda", "txtNomeFile"},
          Meta{"keyAnagraficaRotonda", "txtStatoAvanzamento"}, Meta{"keyAnagraficaRotonda", "txtLocalita"},
          Meta{"keyAnagraficaRotonda", "txtProvincia"}, Meta{"keyAnagraficaRotonda", "txtNote"},
          Meta{"keyAnagraficaRotonda", "txtTitolo"}, Meta{"keyAnagraficaProfessionista", "txtNomeProfessionista"},
          Meta{"keyAnagraficaProfessionista", "txtIndirizzoProfessionista"},
          Meta{"keyAnagraficaProfessionista", "txtCAPProfessionista"},
          Meta{"keyAnagraficaProfessionista", "txtCittaProfessionista"},
          Meta{"keyAnagraficaProfessionista", "txtProvinciaProfessionista"},
          Meta{"keyAnagraficaProfessionista", "txtTelefonoProfessionista"},
          Meta{"keyAnagraficaProfessionista", "txtEMailProfessionista"},
          Meta{"keyToponomasticaIntersezione", "txtIngresso4"}, Meta{"keyRamo3", "txtDiametroInscritto"},
          Meta{"keyRamo3", "txtLarghezzaIngresso"}, Meta{"keyRamo3", "txtLungSvasatura"},
          Meta{"keyRamo3", "txtSemiLarghezza"}, Meta{"keyOpzioni", "grpTipoAnalisi"},
          Meta{"keyOpzioni", "txtAutoarticolati"}, Meta{"keyOpzioni", "txtAutotreni"}, Meta{"keyOpzioni", "txtPullman"},
          Meta{"keyOpzioni", "txtCamper"}, Meta{"keyOpzioni", "txtRoulotte"}, Meta{"keyOpzioni", "txtMotocicli"},
          Meta{"keyOpzioni", "txtAutovetture"}, Meta{"keyDatiTraffico2", "txtFlussoTempo1"},
          Meta{"keyDatiTraffico2", "txtFlussoTempo2"}, Meta{"keyMatriceSvolte", "ctlGrid"},
          Meta{"keyComposizioneTraffico2", "txtAutoarticolati"}, Meta{"keyComposizioneTraffico2", "txtAutotreni"},
          // Last: who was in this field has to choose the end again before the window lets go.
          Meta{"keyTempoModellazione", "txtSegmentoTempo"}}) {
        ASSERT_TRUE(cornice.albero.UserClick(meta.chiave)) << meta.chiave;
        EXPECT_TRUE(campi.fuocoSu(meta.campo, 0)) << meta.chiave << " " << meta.campo;
        ASSERT_NE(cornice.gestione.corrente()->fuoco(), nullptr);
        EXPECT_EQ(cornice.gestione.corrente()->fuoco()->nome(), meta.campo) << meta.chiave;
    }
}

TEST_F(ProveCampiFinestre, TheTextsThatTheRulesReadStandInTheirWindows) {
    struct Campo {
        const char* chiave;
        const char* finestra;
        std::vector<const char*> campi;
    };
    for (const Campo& uno : {Campo{"keyAnagraficaRotonda",
                                   "frmAnagraficaRotonda",
                                   {"txtNomeFile", "txtData", "txtStatoAvanzamento", "txtLocalita", "txtComune",
                                    "txtProvincia", "txtTitolo", "txtNote"}},
                             Campo{"keyAnagraficaProfessionista",
                                   "frmCommittenteProfessionista",
                                   {"txtNomeProfessionista", "txtIndirizzoProfessionista", "txtCAPProfessionista",
                                    "txtCittaProfessionista", "txtProvinciaProfessionista", "txtTelefonoProfessionista",
                                    "txtEMailProfessionista"}},
                             Campo{"keyTempoModellazione",
                                   "frmTempoModellazione",
                                   {"txtTempoIniziale", "txtTempoFinale", "txtSegmentoTempo"}}}) {
        ASSERT_TRUE(cornice.albero.UserClick(uno.chiave)) << uno.chiave;
        for (const char* campo : uno.campi) {
            EXPECT_NE(campi.testo(uno.finestra, campo), std::nullopt) << uno.finestra << " " << campo;
        }
    }
}

TEST_F(ProveCampiFinestre, AWindowThatWasRefusedShowsNothing) {
    ASSERT_TRUE(cornice.albero.UserClick("keyTempoModellazione"));
    Finestra* tempi = cornice.gestione.corrente();
    for (Controllo* c : tempi->ordine()) {
        if (c->nome() == "txtSegmentoTempo") {
            ASSERT_TRUE(tempi->fuocoSu(*c));
            dynamic_cast<tBox&>(*c).scrivi("10");  // empties the end as it is left
        }
    }
    EXPECT_FALSE(cornice.albero.UserClick("keyAnagraficaProfessionista"));
    EXPECT_EQ(cornice.gestione.corrente(), tempi);
    EXPECT_EQ(campi.testo("frmCommittenteProfessionista", "txtNomeProfessionista"), std::nullopt);
}

TEST_F(ProveCampiFinestre, CountsAndCompositionBySegmentsHaveTheirTables) {
    app.theRotonda().TipoAnalisi(2);
    app.theRotonda().TipoFlusso(1);
    cornice.SetUpOpzioni();
    for (const char* chiave : {"keyDatiTraffico2", "keyComposizioneTraffico2"}) {
        ASSERT_TRUE(cornice.albero.UserClick(chiave)) << chiave;
        EXPECT_TRUE(campi.fuocoSu("ctlGrid", 0)) << chiave;
        EXPECT_EQ(cornice.gestione.corrente()->fuoco()->nome(), "ctlGrid") << chiave;
    }
    EXPECT_EQ(cornice.gestione.corrente()->nome(), "frmComposizioneTrafficoST");
}

TEST_F(ProveCampiFinestre, ARowOfATableGetsTheCursor) {
    ASSERT_TRUE(cornice.albero.UserClick("keyMatriceSvolte"));
    const auto* griglia = dynamic_cast<const Griglia*>(cornice.gestione.corrente()->successivo(true));
    ASSERT_NE(griglia, nullptr);
    ASSERT_EQ(griglia->nome(), "ctlGrid");
    for (const auto& [riga, attesa] : {std::pair{3, Posto{3, 1}}, std::pair{1, Posto{1, 2}}, std::pair{0, Posto{1, 2}},
                                       std::pair{4, Posto{4, 1}}, std::pair{9, Posto{4, 1}}}) {
        EXPECT_TRUE(campi.fuocoSu("ctlGrid", riga));
        EXPECT_EQ(griglia->corrente(), attesa) << riga;
    }
}

TEST_F(ProveCampiFinestre, AFieldThatIsClosedGivesWayToTheNextThatMayBeTypedInto) {
    ASSERT_TRUE(cornice.albero.UserClick("keyDatiTraffico1"));
    for (Controllo* c : cornice.gestione.corrente()->ordine()) {
        if (c->nome() == "Check2") {
            dynamic_cast<Casella&>(*c).clicca();  // the peak is searched: its field is closed
        }
    }
    EXPECT_TRUE(campi.fuocoSu("txtFlussoTempo2", 0));
    EXPECT_EQ(cornice.gestione.corrente()->fuoco()->nome(), "txtTarget");
    EXPECT_TRUE(campi.fuocoSu("lblTarget", 0)) << "a label gives way too";
}

}  // namespace
}  // namespace kelvo::prove::shell
