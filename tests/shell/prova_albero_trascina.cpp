#include <gtest/gtest.h>

#include <string>

#include "comune/fintiShell.h"

namespace kelvo::prove::shell {
namespace {

/// Presses on a node, drags it and drops it; true if the drop was offered.
bool trascina(ShellFinta& f, const std::string& da, const std::string& a) {
    f.cornice.albero.mousePremuto(da);
    const auto dati = f.cornice.albero.OLEStartDrag();
    const bool offerto = f.cornice.albero.OLEDragOver(a) == frmTreeView::effettoSposta;
    f.cornice.albero.OLEDragDrop(dati.value_or(""), a);
    return offerto;
}

class Trascinamento : public ::testing::TestWithParam<int> {
protected:
    void SetUp() override {
        f.disposizione(GetParam());
        f.nuovo(4);
        f.app.theRotonda().Ramo(1).Descrizione("Via Po");
        f.app.theRotonda().Ramo(3).Descrizione("Via Adda");
    }
    ShellFinta f;
};

TEST_P(Trascinamento, TheQuestionOfTrafficNamesBothLegs) {
    f.messaggi.risposte = {Risposta::no};
    EXPECT_TRUE(trascina(f, "keyDatiTraffico1", "keyDatiTraffico3"));
    ASSERT_EQ(f.messaggi.mostrati.size(), 1U);
    const auto& m = f.messaggi.mostrati[0];
    EXPECT_EQ(m.testo, "Vuoi copiare i dati del traffico dal ramo <Via Po> al ramo <Via Adda> ?");
    EXPECT_EQ(m.titolo, "KELVO 2014 - Attenzione");
    EXPECT_EQ(m.icona, Icona::domanda);
    EXPECT_EQ(m.pulsanti, Pulsanti::siNo);
}

TEST_P(Trascinamento, TheQuestionOfCompositionNamesBothLegs) {
    f.messaggi.risposte = {Risposta::no};
    EXPECT_TRUE(trascina(f, "keyComposizioneTraffico3", "keyComposizioneTraffico1"));
    ASSERT_EQ(f.messaggi.mostrati.size(), 1U);
    EXPECT_EQ(f.messaggi.mostrati[0].testo,
              "Vuoi copiare i dati della composizione del traffico dal ramo <Via Adda> al ramo <Via Po> ?");
}

TEST_P(Trascinamento, ADropElsewhereAsksNothing) {
    for (const auto& [da, a] : {std::pair<std::string, std::string>{"keyDatiTraffico1", "keyDatiTraffico1"},
                                {"keyDatiTraffico1", "keyComposizioneTraffico3"},
                                {"keyDatiTraffico1", "keyRamo2"},
                                {"keyDatiTraffico1", "keyDatiTraffico"},
                                {"keyDatiTraffico1", ""},
                                {"keyDatiTraffico1", "keyDatiTraffico9"},
                                {"keyRamo1", "keyRamo2"},
                                {"keyRami1", "keyRami2"},
                                {"keyDatiTraffico", "keyDatiTraffico2"},
                                {"", "keyDatiTraffico2"}}) {
        EXPECT_FALSE(trascina(f, da, a)) << da << " " << a;
        EXPECT_FALSE(f.cornice.albero.dragInCorso());
    }
    EXPECT_TRUE(f.messaggi.mostrati.empty());
}

TEST_P(Trascinamento, OnlyTheNodesOfALegMayBeDragged) {
    for (const auto& [chiave, consentito] : {std::pair<std::string, bool>{"keyDatiTraffico2", true},
                                             {"keyComposizioneTraffico4", true},
                                             {"keyDatiTraffico", false},
                                             {"keyComposizioneTraffico", false},
                                             {"keyRami2", false},
                                             {"keyMatriceSvolte", false}}) {
        f.cornice.albero.mousePremuto(chiave);
        EXPECT_EQ(f.cornice.albero.dragConsentito(), consentito) << chiave;
    }
}

TEST_P(Trascinamento, ADragFromElsewhereHasNoEffect) {
    EXPECT_EQ(f.cornice.albero.OLEDragOver("keyDatiTraffico2"), frmTreeView::effettoNessuno);
    f.cornice.albero.OLEDragDrop("keyDatiTraffico1", "keyDatiTraffico2");
    f.cornice.albero.mousePremuto("keyDatiTraffico1");
    EXPECT_EQ(f.cornice.albero.OLEDragOver("keyDatiTraffico2"), frmTreeView::effettoNessuno);
    EXPECT_TRUE(f.messaggi.mostrati.empty());
}

INSTANTIATE_TEST_SUITE_P(Layouts, Trascinamento, ::testing::Values(0, 1));

TEST(CopiaTraffico, AnOpenSourceWindowSavesBeforeAndAnOpenTargetReadsAfter) {
    ShellFinta f;
    f.nuovo(4);
    f.cornice.albero.UserClick("keyDatiTraffico1");
    FinestraFinta& finestra = *f.corrente();
    finestra.alSalvataggio = [](Applicazione& app) { app.theRotonda().Ramo(1).theDatiTraffico().FlussoTempo1(9.0F); };
    ASSERT_TRUE(trascina(f, "keyDatiTraffico1", "keyDatiTraffico2"));
    EXPECT_EQ(finestra.salvataggi, 1);
    EXPECT_EQ(f.app.theRotonda().Ramo(2).theDatiTraffico().FlussoTempo1(), 9.0F);
    EXPECT_EQ(finestra.lette.size(), 1U);
    ASSERT_TRUE(trascina(f, "keyDatiTraffico3", "keyDatiTraffico1"));
    EXPECT_EQ(finestra.lette.size(), 2U);
    EXPECT_EQ(finestra.salvataggi, 1);
}

TEST(CopiaTraffico, ASourceWindowWithBadDataIsNotCopied) {
    ShellFinta f;
    f.nuovo(4);
    f.cornice.albero.UserClick("keyDatiTraffico1");
    f.app.theRotonda().Ramo(1).theDatiTraffico().FlussoTempo1(9.0F);
    f.corrente()->campo.testo("storto");
    ASSERT_TRUE(trascina(f, "keyDatiTraffico1", "keyDatiTraffico2"));
    EXPECT_EQ(f.corrente()->salvataggi, 0);
    EXPECT_EQ(f.app.theRotonda().Ramo(2).theDatiTraffico().FlussoTempo1(), 0.0F);
    EXPECT_FALSE(f.stato.convalidaFallita);
}

void riempi(DatiTraffico& d) {
    d.NumSegmentiTempo(4);
    d.FlussoMedio(10.0F);
    d.FlussoOrario(600.0F);
    d.FlussoTempo1(5.0F);
    d.FlussoTempo2(15.0F);
    d.FlussoTempo3(7.0F);
    d.FlussoTotale(450.0F);
    d.Tempo1(oraDelGiorno(8, 5));
    d.Tempo2(oraDelGiorno(8, 25));
    d.Tempo3(oraDelGiorno(8, 55));
    for (std::int16_t s = 0; s < 4; ++s) {
        d.FlussoSegmento(100.0F + static_cast<float>(s), s, 0);
    }
}

TEST(CopiaTraffico, EveryFieldIsCopiedAndTheHourlyFlowTakesTheMean) {
    ShellFinta f;
    f.nuovo(4);
    DatiTraffico& da = f.app.theRotonda().Ramo(2).theDatiTraffico();
    DatiTraffico& a = f.app.theRotonda().Ramo(4).theDatiTraffico();
    riempi(da);
    a.NumSegmentiTempo(4);
    a.SetIterazione(1, {1, 2, 3, 4, 5});
    da.SetIterazione(1, {1, 2, 3, 4, 5});
    ASSERT_TRUE(trascina(f, "keyDatiTraffico2", "keyDatiTraffico4"));
    EXPECT_EQ(a.FlussoMedio(), 10.0F);
    EXPECT_EQ(a.FlussoOrario(), 10.0F);
    EXPECT_EQ(a.FlussoTempo1(), 5.0F);
    EXPECT_EQ(a.FlussoTempo2(), 15.0F);
    EXPECT_EQ(a.FlussoTempo3(), 7.0F);
    EXPECT_EQ(a.FlussoTotale(), 450.0F);
    EXPECT_EQ(a.Tempo1(), oraDelGiorno(8, 5));
    EXPECT_EQ(a.Tempo2(), oraDelGiorno(8, 25));
    EXPECT_EQ(a.Tempo3(), oraDelGiorno(8, 55));
    EXPECT_EQ(a.FlussiSegmento(), (std::vector<float>{100, 101, 102, 103}));
    EXPECT_EQ(a.NumSegmentiTempo(), 4);
    EXPECT_EQ(a.IterazioniScritte(), 0);
    EXPECT_EQ(da.IterazioniScritte(), 1);
    EXPECT_EQ(da.FlussoOrario(), 600.0F);
}

TEST(CopiaTraffico, TheRecordsOfTheProjectAreOlderThanItsDataAfterwards) {
    ShellFinta f;
    f.nuovo(4);
    f.app.theRotonda().timbra(FormaCalcolo::piana);
    f.cornice.albero.CopyDatiTraffico("1", "2");  // equal legs: nothing but the records goes
    EXPECT_FALSE(f.app.theRotonda().risultatiAttuali({}));
}

TEST(CopiaTraffico, AFaultIsRecordedUnderTheLabelOfTheCopy) {
    ShellFinta f;
    f.nuovo(3);
    f.cornice.albero.CopyDatiTraffico("1", "5");
    f.cornice.albero.CopyComposizioneTraffico("6", "1");
    f.cornice.albero.CopyDatiTraffico("x", "1");
    ASSERT_EQ(f.messaggi.mostrati.size(), 3U);
    EXPECT_EQ(f.messaggi.mostrati[0].titolo, "KELVO 2014frmTreeView:CopyDatiTraffico");
    EXPECT_EQ(f.messaggi.mostrati[0].testo.substr(0, 4), "9 : ");
    EXPECT_EQ(f.messaggi.mostrati[1].titolo, "KELVO 2014frmTreeView:CopyComposizioneTraffico");
    EXPECT_EQ(f.messaggi.mostrati[2].testo.substr(0, 5), "13 : ");
}

TEST(CopiaComposizione, SharesAndTableAreCopiedButNotTheEquivalents) {
    ShellFinta f;
    f.nuovo(4);
    ComposizioneTraffico& da = f.app.theRotonda().Ramo(1).theComposizioneTraffico();
    ComposizioneTraffico& a = f.app.theRotonda().Ramo(2).theComposizioneTraffico();
    DatiTraffico& traffico = f.app.theRotonda().Ramo(2).theDatiTraffico();
    traffico.FlussoTempo1(3.0F);
    traffico.SetIterazione(1, {1, 2, 3, 4, 5});
    da.NumSegmentiTempo(2);
    a.NumSegmentiTempo(2);
    da.Autoarticolati(1.0F);
    da.Autotreni(2.0F);
    da.Autovetture(80.0F);
    da.Camper(3.0F);
    da.Pullman(4.0F);
    da.Roulotte(5.0F);
    da.VeicoliDueRuote(6.0F);
    da.VECamper(9.0F);
    for (std::int16_t s = 0; s < 2; ++s) {
        for (std::int16_t c = 0; c < numeroClassi; ++c) {
            da.CategoriaSegmento(static_cast<float>(10 * s + c + 1), s, c);
        }
    }
    ASSERT_TRUE(trascina(f, "keyComposizioneTraffico1", "keyComposizioneTraffico2"));
    EXPECT_EQ(a.Autoarticolati(), 1.0F);
    EXPECT_EQ(a.Autotreni(), 2.0F);
    EXPECT_EQ(a.Autovetture(), 80.0F);
    EXPECT_EQ(a.Camper(), 3.0F);
    EXPECT_EQ(a.Pullman(), 4.0F);
    EXPECT_EQ(a.Roulotte(), 5.0F);
    EXPECT_EQ(a.VeicoliDueRuote(), 6.0F);
    EXPECT_EQ(a.VECamper(), 1.4F);
    EXPECT_EQ(a.Categorie(), (TabellaCategorie{{1, 2, 3, 4, 5, 6, 7}, {11, 12, 13, 14, 15, 16, 17}}));
    EXPECT_EQ(traffico.FlussoTempo1(), 3.0F);
    EXPECT_EQ(traffico.IterazioniScritte(), 0);
}

}  // namespace
}  // namespace kelvo::prove::shell
