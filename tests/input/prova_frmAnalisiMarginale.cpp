#include "input/frmAnalisiMarginale.h"

#include <gtest/gtest.h>

#include "app/nuovoProgetto.h"
#include "comune/fintiFinestre.h"

namespace kelvo::prove {
namespace {

struct ProveAnalisi : testing::Test, ScenaFinestre {
    frmAnalisiMarginale finestra{contorno()};

    ProveAnalisi() {
        creaProgetto(app, 3);
        apri("keyAnalisiMarginale2");
    }
    void apri(const std::string& chiave) {
        navigazione.corrente = chiave;
        EXPECT_TRUE(gestione.ShowForm(&finestra));
    }
    AnalisiMarginale& analisi(std::int16_t i) { return app.theRotonda().Ramo(i).theAnalisiMarginale(); }
    bool scrivi(tBox& campo, const std::string& testo) {
        finestra.fuocoSu(campo);
        campo.scrivi(testo);
        const bool lasciato = finestra.lasciaFuoco();
        finestra.scordaFuoco();
        return lasciato;
    }
};

TEST_F(ProveAnalisi, ANewEntryShowsTheDefaultSteps) {
    EXPECT_EQ(finestra.didascalia(), "Opzioni Analisi Marginale");
    EXPECT_EQ(finestra.sottotitolo.testo(), "Ramo B");
    const std::vector<std::pair<std::string, std::string>> attesi{
        {"Larghezza ingresso", "0,05"},  {"Semilarghezza accesso", "0,05"},     {"Lunghezza svasatura", "0,50"},
        {"Angolo di conflitto", "5,00"}, {"Raggio curvatura ingresso", "1,00"}, {"Diametro inscritto", "1,00"}};
    const std::vector<std::string> nomi{"txtLarghezzaIngresso", "txtSemiLarghezza",   "txtLungSvasatura",
                                        "txtAngoloConflitto",   "txtRaggioCurvatura", "txtDiametroInscritto"};
    for (std::size_t i = 0; i < 6; ++i) {
        EXPECT_EQ(finestra.passi[i].chk.testo(), attesi[i].first);
        EXPECT_EQ(finestra.passi[i].txt.nome(), nomi[i]);
        EXPECT_EQ(finestra.passi[i].txt.testo(), attesi[i].second);
        EXPECT_FALSE(finestra.passi[i].chk.spuntata());
    }
    EXPECT_EQ(finestra.frAttraversamenti.titolo(), "Attraversamenti Pedonali");
    EXPECT_EQ(finestra.lblAttraversamentoPedonale.testo(), "Incidenza sulla capacità");
    EXPECT_EQ(finestra.txtAttraversamentoPedonale.testo(), "0,00");
    EXPECT_EQ(finestra.txtCondizioniEsterne.testo(), "0,00");
    EXPECT_TRUE(finestra.DatiAllineati());
}

TEST_F(ProveAnalisi, StepsHoldTheirLimits) {
    struct Caso {
        std::size_t passo;
        const char* sotto;
        const char* minimo;
        const char* massimo;
        const char* sopra;
        const char* rifiuto;
    };
    const std::vector<Caso> casi{
        {0, "0", "0,01", "2", "2,01", "Il valore deve essere compreso tra 0,01 e 2,00 m"},
        {1, "0", "0,01", "2", "2,01", "Il valore deve essere compreso tra 0,01 e 2,00 m"},
        {2, "0", "0,01", "20", "20,01", "Il valore deve essere compreso tra 0,01 e 20,00 m"},
        {3, "0,09", "0,1", "20", "20,01", "Il valore deve essere compreso tra 0,10 e 20,00 gradi"},
        {4, "0,09", "0,1", "20", "20,01", "Il valore deve essere compreso tra 0,10 e 20,00 m"},
        {5, "0,09", "0,1", "50", "50,01", "Il valore deve essere compreso tra 0,10 e 50,00 m"},
    };
    for (const Caso& caso : casi) {
        tBox& campo = finestra.passi[caso.passo].txt;
        EXPECT_FALSE(scrivi(campo, caso.sotto)) << caso.passo;
        EXPECT_EQ(messaggi.mostrati.back().testo, caso.rifiuto);
        EXPECT_FALSE(scrivi(campo, caso.sopra)) << caso.passo;
        EXPECT_FALSE(scrivi(campo, "")) << caso.passo;
        EXPECT_TRUE(scrivi(campo, caso.minimo)) << caso.passo;
        EXPECT_TRUE(scrivi(campo, caso.massimo)) << caso.passo;
    }
}

TEST_F(ProveAnalisi, PercentagesHoldTheirLimits) {
    EXPECT_TRUE(scrivi(finestra.txtAttraversamentoPedonale, "0"));
    EXPECT_TRUE(scrivi(finestra.txtAttraversamentoPedonale, "100"));
    EXPECT_FALSE(scrivi(finestra.txtAttraversamentoPedonale, "100,01"));
    EXPECT_EQ(messaggi.mostrati.back().testo, "Il valore deve essere compreso tra 0,00 e 100,00 %");
    EXPECT_TRUE(scrivi(finestra.txtAttraversamentoPedonale, "-5")) << "no sign can be typed: 5";
    EXPECT_EQ(finestra.txtAttraversamentoPedonale.testo(), "5");
    finestra.chkCondizioniEsterne.clicca();
    EXPECT_TRUE(scrivi(finestra.txtCondizioniEsterne, "-100"));
    EXPECT_FALSE(scrivi(finestra.txtCondizioniEsterne, "-100,5"));
    EXPECT_EQ(messaggi.mostrati.back().testo, "Il valore deve essere compreso tra -100,00 e 100,00 %");
    EXPECT_TRUE(scrivi(finestra.txtCondizioniEsterne, "100"));
    EXPECT_FALSE(scrivi(finestra.txtCondizioniEsterne, "101"));
}

TEST_F(ProveAnalisi, TheCheckEnablesItsTwoFields) {
    EXPECT_FALSE(finestra.txtCondizioniEsterne.abilitato());
    EXPECT_FALSE(finestra.txtDescrizioneCondizioniEsterne.abilitato());
    EXPECT_TRUE(finestra.txtAttraversamentoPedonale.abilitato());
    finestra.chkCondizioniEsterne.clicca();
    EXPECT_TRUE(finestra.txtCondizioniEsterne.abilitato());
    EXPECT_TRUE(finestra.txtDescrizioneCondizioniEsterne.abilitato());
    finestra.chkCondizioniEsterne.clicca();
    EXPECT_FALSE(finestra.txtCondizioniEsterne.abilitato());
}

TEST_F(ProveAnalisi, AggiornaDatiWritesFlagsStepsAndPercentages) {
    for (std::size_t i = 0; i < 6; ++i) {
        finestra.passi[i].chk.clicca();
        scrivi(finestra.passi[i].txt, "1," + std::to_string(i + 1));
    }
    scrivi(finestra.txtAttraversamentoPedonale, "12,5");
    finestra.chkCondizioniEsterne.clicca();
    scrivi(finestra.txtDescrizioneCondizioniEsterne, "scuola");
    scrivi(finestra.txtCondizioniEsterne, "-7,25");
    EXPECT_FALSE(finestra.DatiAllineati());
    finestra.ctlToolbar.premi("AggiornaDati");
    const AnalisiMarginale& a = analisi(2);
    EXPECT_TRUE(a.UsaLarghezzaIngresso() && a.UsaSemiLarghezza() && a.UsaLunghezzaSvasatura() &&
                a.UsaAngoloConflitto() && a.UsaRaggioCurvatura() && a.UsaDiametroInscritto());
    EXPECT_EQ(a.LarghezzaIngresso(), 1.1);
    EXPECT_EQ(a.SemiLarghezza(), 1.2);
    EXPECT_EQ(a.LungSvasatura(), 1.3);
    EXPECT_EQ(a.AngoloConflitto(), 1.4);
    EXPECT_EQ(a.RaggioCurvatura(), 1.5);
    EXPECT_EQ(a.DiametroInscritto(), 1.6);
    EXPECT_EQ(a.AttraversamentoPedonale(), 12.5);
    EXPECT_TRUE(a.UsaCondizioniEsterne());
    EXPECT_EQ(a.DescrizioneCondizioniEsterne(), "scuola");
    EXPECT_EQ(a.CondizioniEsterne(), -7.25);
    EXPECT_TRUE(finestra.DatiAllineati());
    EXPECT_EQ(cornice.passi, (std::vector<std::string>{"SetUpOpzioni"}));
    EXPECT_FALSE(analisi(1).UsaLarghezzaIngresso());
}

TEST_F(ProveAnalisi, EachFlagIsItsOwn) {
    for (std::size_t i = 0; i < 6; ++i) {
        finestra.ReadData();
        for (auto& passo : finestra.passi) {
            passo.chk.spuntata(false);
        }
        finestra.passi[i].chk.clicca();
        finestra.SaveData();
        const AnalisiMarginale& a = analisi(2);
        const std::array<bool, 6> flag{a.UsaLarghezzaIngresso(), a.UsaSemiLarghezza(),   a.UsaLunghezzaSvasatura(),
                                       a.UsaAngoloConflitto(),   a.UsaRaggioCurvatura(), a.UsaDiametroInscritto()};
        for (std::size_t j = 0; j < 6; ++j) {
            EXPECT_EQ(flag[j], i == j) << i << " " << j;
        }
    }
}

TEST_F(ProveAnalisi, AnUntickedBoxWhoseValueCountsSaysSo) {
    EXPECT_EQ(finestra.lblCondizioniEsterne.testo(), "");
    finestra.chkCondizioniEsterne.clicca();
    scrivi(finestra.txtCondizioniEsterne, "10");
    EXPECT_EQ(finestra.lblCondizioniEsterne.testo(), "");
    finestra.chkCondizioniEsterne.clicca();
    EXPECT_EQ(finestra.lblCondizioniEsterne.testo(), "Il valore conta nel calcolo anche senza la spunta.");
    finestra.SaveData();
    EXPECT_EQ(analisi(2).CondizioniEsterne(), 10.0);
    EXPECT_FALSE(analisi(2).UsaCondizioniEsterne());
}

TEST_F(ProveAnalisi, AnIncidenceWithoutACrossingSaysThatItDoesNotCount) {
    EXPECT_FALSE(finestra.lblSenzaAttraversamento.visibile());
    finestra.txtAttraversamentoPedonale.scrivi("12");
    EXPECT_TRUE(finestra.lblSenzaAttraversamento.visibile());
    EXPECT_EQ(finestra.lblSenzaAttraversamento.testo(),
              "Non conta: l'ingresso non ha un attraversamento pedonale (Geometria).");
    app.theRotonda().Ramo(2).AttraversamentoPedonale(true);
    finestra.ReadData();
    finestra.txtAttraversamentoPedonale.scrivi("12");
    EXPECT_FALSE(finestra.lblSenzaAttraversamento.visibile());
}

TEST_F(ProveAnalisi, TheParameterInUseBringsItsPageAndItsPicture) {
    EXPECT_EQ(finestra.ctlPicture.risorsa(), "RAMI3");
    ASSERT_TRUE(finestra.fuocoSu(finestra.passi[3].txt));
    EXPECT_EQ(finestra.ctlHelp.pagina(), "PassoAngoloConflitto.htm");
    EXPECT_EQ(finestra.ctlPicture.risorsa(), "ANGOLO_CONFLITTO");
    ASSERT_TRUE(finestra.fuocoSu(finestra.passi[5].chk));
    EXPECT_EQ(finestra.ctlHelp.pagina(), "PassoDiametroInscritto.htm");
    EXPECT_EQ(finestra.ctlPicture.risorsa(), "DIAMETRO_INSCRITTO");
    ASSERT_TRUE(finestra.fuocoSu(finestra.txtAttraversamentoPedonale));
    EXPECT_EQ(finestra.ctlHelp.pagina(), "IncidenzaPedonale.htm");
    EXPECT_EQ(finestra.ctlPicture.risorsa(), "RAMI3");
}

TEST_F(ProveAnalisi, ARefusedValueGoesWithItsTick) {
    finestra.chkCondizioniEsterne.clicca();
    finestra.txtCondizioniEsterne.scrivi("500");
    finestra.chkCondizioniEsterne.clicca();
    EXPECT_EQ(finestra.txtCondizioniEsterne.testo(), "0,00");
    finestra.SaveData();
    EXPECT_EQ(analisi(2).CondizioniEsterne(), 0.0);
}

TEST_F(ProveAnalisi, AnEditStaysWithItsLegAndLookingChangesNothing) {
    analisi(3).LarghezzaIngresso(0.123456789);
    analisi(3).CondizioniEsterne(3.3333333);
    const auto prima = app.theRotonda().revisione().tutto;
    apri("keyAnalisiMarginale3");
    EXPECT_EQ(finestra.passi[0].txt.testo(), "0,12");
    apri("keyAnalisiMarginale1");
    EXPECT_EQ(app.theRotonda().revisione().tutto, prima);
    EXPECT_EQ(analisi(3).LarghezzaIngresso(), 0.123456789);
    scrivi(finestra.passi[2].txt, "3");
    apri("keyAnalisiMarginale2");
    EXPECT_EQ(analisi(1).LungSvasatura(), 3.0);
    EXPECT_EQ(analisi(2).LungSvasatura(), 0.5);
}

}  // namespace
}  // namespace kelvo::prove
