#include "input/frmComposizioneTraffico.h"

#include <gtest/gtest.h>

#include "base/guasto.h"
#include "input/graficiComposizione.h"
#include "input/scenaComposizione.h"

namespace kelvo::prove {
namespace {

constexpr const char* oltreCento = "Attenzione il totale della categorie dei veicoli deve essere 100";

struct ProveComposizione : ScenaComposizione<frmComposizioneTraffico> {
    tBox& percento(std::size_t i) { return finestra.righe[i].txtPercento; }
    tBox& coefficiente(std::size_t i) { return finestra.righe[i].txtEquivalenti; }
    tBox& autovetture() { return percento(6); }
    bool scrivi(tBox& campo, const std::string& testo) { return scriviIn(finestra, campo, testo); }
    static std::vector<double> valori(const Grafico& grafico) { return grafico.contenuto().serie.at(0).valori; }
    void unMessaggio(const std::string& testo) {
        ASSERT_EQ(messaggi.mostrati.size(), 1U);
        EXPECT_EQ(messaggi.mostrati[0].testo, testo);
        EXPECT_EQ(messaggi.mostrati[0].titolo, "KELVO 2014 - Attenzione");
        EXPECT_EQ(messaggi.mostrati[0].icona, Icona::esclamazione);
        EXPECT_EQ(messaggi.mostrati[0].pulsanti, Pulsanti::ok);
    }
};

TEST_F(ProveComposizione, TheSevenClassesStandInTheirOrderUnderTheirGroups) {
    struct Attesa {
        const char* nome;
        const char* percento;
        const char* coefficiente;
        const char* riferimento;
        const char* gruppo;
    };
    constexpr std::array<Attesa, 7> attese{{
        {"Autoarticolati", "txtAutoarticolati", "txtAutoarticolatiEquivalenti", "txtVEAutoarticolati",
         "Veicoli pesanti"},
        {"Autotreni", "txtAutotreni", "txtAutotreniEquivalenti", "txtVEAutotreni", "Veicoli pesanti"},
        {"Autobus", "txtPullman", "txtPullmanEquivalenti", "txtVEPullman", "Veicoli pesanti"},
        {"Camper", "txtCamper", "txtCamperEquivalenti", "txtVECamper", "Veicoli ricreativi e commerciali"},
        {"Roulotte", "txtRoulotte", "txtRoulotteEquivalenti", "txtVERoulotte", "Veicoli ricreativi e commerciali"},
        {"Veicoli a due ruote", "txtVeicoliDueRuote", "txtVeicoliDueRuoteEquivalenti", "txtVEMotocicli",
         "Veicoli a due ruote"},
        {"Autovetture", "txtAutovetture", "txtAutovettureEquivalenti", "txtVEAutovetture", "Veicoli ordinari"},
    }};
    for (std::size_t i = 0; i < attese.size(); ++i) {
        EXPECT_EQ(finestra.righe[i].lblCategoria.testo(), attese[i].nome);
        EXPECT_EQ(percento(i).nome(), attese[i].percento);
        EXPECT_EQ(coefficiente(i).nome(), attese[i].coefficiente);
        EXPECT_EQ(finestra.righe[i].txtRiferimento.nome(), attese[i].riferimento);
        EXPECT_EQ(categorieTraffico[i].gruppo, attese[i].gruppo);
    }
    EXPECT_EQ(finestra.didascalia(), "Composizione del traffico");
}

TEST_F(ProveComposizione, FieldsShowWhatTheLegAndTheConfigurationHold) {
    ComposizioneTraffico& c = composizione(2);
    c.Autoarticolati(1.5F);
    c.Autotreni(2.25F);
    c.Pullman(3.0F);
    c.Camper(4.125F);
    c.Roulotte(0.5F);
    c.VeicoliDueRuote(6.0F);
    c.Autovetture(82.625F);
    c.VEAutoarticolati(2.51F);
    c.VEAutotreni(2.52F);
    c.VEPullman(2.53F);
    c.VECamper(2.54F);
    c.VERoulotte(2.55F);
    c.VEVeicoliDueRuote(2.56F);
    c.VEAutovetture(2.57F);
    apri(2);
    const std::array<const char*, 7> percenti{"1,5", "2,25", "3", "4,125", "0,5", "6", "82,625"};
    const std::array<const char*, 7> coefficienti{"2,51", "2,52", "2,53", "2,54", "2,55", "2,56", "2,57"};
    const std::array<const char*, 7> riferimenti{"2,5", "2", "1,8", "1,4", "1,2", "0,8", "1"};
    for (std::size_t i = 0; i < 7; ++i) {
        EXPECT_EQ(percento(i).testo(), percenti[i]);
        EXPECT_EQ(coefficiente(i).testo(), coefficienti[i]);
        EXPECT_EQ(finestra.righe[i].txtRiferimento.testo(), riferimenti[i]);
    }
    EXPECT_EQ(finestra.sottotitolo.testo(), "Ramo B");
    EXPECT_TRUE(finestra.DatiAllineati());
}

TEST_F(ProveComposizione, CarsAndReferencesTakeNoText) {
    apri();
    EXPECT_TRUE(autovetture().solaLettura());
    scrivi(autovetture(), "50");
    EXPECT_EQ(autovetture().testo(), "100");
    for (std::size_t i = 0; i < 7; ++i) {
        tBox& riferimento = finestra.righe[i].txtRiferimento;
        const std::string prima = riferimento.testo();
        EXPECT_TRUE(riferimento.solaLettura());
        scrivi(riferimento, "9");
        EXPECT_EQ(riferimento.testo(), prima);
        EXPECT_EQ(percento(i).solaLettura(), i == 6);
        EXPECT_FALSE(coefficiente(i).solaLettura());
    }
}

TEST_F(ProveComposizione, CarsTakeWhatTheSixOthersLeave) {
    apri();
    for (std::size_t i = 0; i < 6; ++i) {
        EXPECT_TRUE(scrivi(percento(i), std::to_string(i + 1)));
    }
    EXPECT_EQ(autovetture().testo(), "79");  // 100 - 1 - 2 - 3 - 4 - 5 - 6
    EXPECT_TRUE(messaggi.mostrati.empty());
    EXPECT_EQ(finestra.lblTotale.testo(), "Totale 100 %, di cui autovetture 79 %");
    EXPECT_FALSE(finestra.lblErroreTotale.visibile());
}

TEST_F(ProveComposizione, SixSharesOfExactlyHundredLeaveNoCars) {
    apri();
    for (std::size_t i = 0; i < 5; ++i) {
        ASSERT_TRUE(scrivi(percento(i), "16"));
    }
    EXPECT_TRUE(scrivi(percento(5), "20"));
    EXPECT_EQ(autovetture().testo(), "0");
    EXPECT_TRUE(messaggi.mostrati.empty());
    gestione.ShowForm(nullptr);
    finestra.SaveData();
    EXPECT_EQ(composizione(1).Autovetture(), 0.0F);
}

TEST_F(ProveComposizione, DecimalsThatAddUpToHundredAreAcceptedThoughSinglesDoNot) {
    // 100 - 10,3 - 10,3 - 10,3 - 10,3 - 10,3 - 48,5 is below 0 by one bit of a single.
    float r = 100.0F;
    for (const float quota : {10.3F, 10.3F, 10.3F, 10.3F, 10.3F, 48.5F}) {
        r -= quota;
    }
    ASSERT_LT(r, 0.0F);
    apri();
    for (std::size_t i = 0; i < 5; ++i) {
        ASSERT_TRUE(scrivi(percento(i), "10,3"));
    }
    EXPECT_TRUE(scrivi(percento(5), "48,5"));
    EXPECT_EQ(autovetture().testo(), "0");
    EXPECT_TRUE(messaggi.mostrati.empty());
}

TEST_F(ProveComposizione, TheResidualIsToldWithoutTheNoiseOfSingles) {
    apri();
    const std::array<const char*, 6> quote{"0,6", "7,7", "5,5", "5,7", "5,9", "1,2"};
    for (std::size_t i = 0; i < 6; ++i) {
        ASSERT_TRUE(scrivi(percento(i), quote[i]));
    }
    EXPECT_EQ(autovetture().testo(), "73,4");
}

TEST_F(ProveComposizione, EveryDecimalUpToTheSeventhCounts) {
    apri();
    EXPECT_TRUE(scrivi(percento(0), "99,9999"));
    EXPECT_EQ(autovetture().testo(), "0,0001");
    EXPECT_TRUE(scrivi(percento(1), "0,0001"));
    EXPECT_EQ(autovetture().testo(), "0");
    EXPECT_FALSE(scrivi(percento(2), "0,00002"));
    unMessaggio(oltreCento);
    EXPECT_EQ(finestra.lblErroreTotale.testo(), "Totale 100,00002 %: 0,00002 % di troppo");
    messaggi.mostrati.clear();
    EXPECT_FALSE(scrivi(percento(2), "0,0000001"));
    unMessaggio(oltreCento);
    EXPECT_TRUE(scrivi(percento(2), "0,00000001"));
    EXPECT_EQ(autovetture().testo(), "0");
}

TEST_F(ProveComposizione, TheResidualHasTheDecimalsOfTheShares) {
    apri();
    ASSERT_TRUE(scrivi(percento(0), "33,33333"));
    EXPECT_EQ(autovetture().testo(), "66,66667");
    ASSERT_TRUE(scrivi(percento(0), "99,1234567"));
    EXPECT_EQ(autovetture().testo(), "0,8765433");
    EXPECT_EQ(finestra.lblTotale.testo(), "Totale 100 %, di cui autovetture 0,8765433 %");
}

TEST_F(ProveComposizione, AHundredthPastHundredIsRefusedAndCarsStayAsTheyWere) {
    apri();
    ASSERT_TRUE(scrivi(percento(0), "40"));
    ASSERT_EQ(autovetture().testo(), "60");
    for (std::size_t i = 1; i < 6; ++i) {
        SCOPED_TRACE(i);
        messaggi.mostrati.clear();
        EXPECT_FALSE(scrivi(percento(i), "60,01"));
        unMessaggio(oltreCento);
        EXPECT_TRUE(percento(i).fallito());
        EXPECT_EQ(autovetture().testo(), "60");
        EXPECT_EQ(finestra.lblErroreTotale.testo(), "Totale 100,01 %: 0,01 % di troppo");
        EXPECT_TRUE(finestra.lblErroreTotale.visibile());
        EXPECT_FALSE(finestra.lblTotale.visibile());
        EXPECT_TRUE(scrivi(percento(i), "0"));
    }
    messaggi.mostrati.clear();
    EXPECT_FALSE(scrivi(percento(0), "100,01"));
    unMessaggio(oltreCento);
    EXPECT_EQ(autovetture().testo(), "60");
}

TEST_F(ProveComposizione, ATextThatIsNoNumberKeepsTheFocusInAnyField) {
    apri();
    for (std::size_t i = 0; i < 7; ++i) {
        for (tBox* campo : {&percento(i), &coefficiente(i)}) {
            if (campo->solaLettura()) {
                continue;
            }
            for (const char* testo : {"", ",", "1,2,3"}) {
                SCOPED_TRACE(campo->nome() + " '" + testo + "'");
                const std::string prima = campo->testo();
                messaggi.mostrati.clear();
                EXPECT_FALSE(scrivi(*campo, testo));
                unMessaggio("Inserire un valore numerico");
                EXPECT_EQ(autovetture().testo(), "100");
                EXPECT_TRUE(scrivi(*campo, prima));
            }
        }
    }
}

TEST_F(ProveComposizione, DigitsAndOneCommaCanBeTyped) {
    apri();
    finestra.fuocoSu(percento(0));
    percento(0).scrivi("1a2-3 4");
    EXPECT_EQ(percento(0).testo(), "1234");
    percento(0).scrivi("12.5");
    EXPECT_EQ(percento(0).testo(), "12,5");
    percento(0).scrivi("12,5,");  // the key of a second comma
    EXPECT_EQ(percento(0).testo(), "12,5");
    percento(0).scrivi("12,54");
    EXPECT_EQ(percento(0).testo(), "12,54");
}

TEST_F(ProveComposizione, ChartsFollowEachFieldThatIsChecked) {
    apri();
    ASSERT_TRUE(scrivi(percento(1), "10"));
    const std::vector<double> accettati{0, 10, 0, 0, 0, 0, 90};
    EXPECT_EQ(valori(finestra.ctlGraphPie), accettati);
    EXPECT_EQ(valori(finestra.ctlGraphBar), accettati);
    ASSERT_FALSE(scrivi(percento(2), "95,5"));
    const std::vector<double> rifiutati{0, 10, 95.5, 0, 0, 0, 90};
    EXPECT_EQ(valori(finestra.ctlGraphPie), rifiutati);
    EXPECT_EQ(valori(finestra.ctlGraphBar), rifiutati);
    messaggi.mostrati.clear();
    ASSERT_FALSE(scrivi(percento(2), ","));  // no number: the charts stay
    EXPECT_EQ(valori(finestra.ctlGraphPie), rifiutati);
}

TEST_F(ProveComposizione, ChartsShowTheLegWhenItComesUpAndAfterAReload) {
    composizione(2).Camper(12.5F);
    composizione(2).Autovetture(87.5F);
    apri(2);
    const std::vector<double> attesi{0, 0, 0, 12.5, 0, 0, 87.5};
    EXPECT_EQ(valori(finestra.ctlGraphPie), attesi);
    ASSERT_TRUE(scrivi(percento(0), "1"));
    finestra.ctlToolbar.premi("Refresh");
    EXPECT_EQ(valori(finestra.ctlGraphPie), attesi);
    EXPECT_EQ(valori(finestra.ctlGraphBar), attesi);
    EXPECT_EQ(percento(0).testo(), "0");
    EXPECT_TRUE(finestra.DatiAllineati());
}

TEST_F(ProveComposizione, BothChartsListEveryClassAlsoAtZero) {
    apri();
    const std::vector<std::string> nomi{"Autoarticolati", "Autotreni",           "Autobus",    "Camper",
                                        "Roulotte",       "Veicoli a due ruote", "Autovetture"};
    for (const Grafico* grafico : {&finestra.ctlGraphPie, &finestra.ctlGraphBar}) {
        const Grafico::Contenuto& contenuto = grafico->contenuto();
        EXPECT_EQ(contenuto.x.etichette, nomi);
        ASSERT_EQ(contenuto.serie.size(), 1U);
        EXPECT_EQ(contenuto.serie[0].testi,
                  (std::vector<std::string>{"0,00", "0,00", "0,00", "0,00", "0,00", "0,00", "100,00"}));
        EXPECT_TRUE(contenuto.valori);
    }
    EXPECT_EQ(finestra.ctlGraphPie.contenuto().serie[0].forma, Grafico::Forma::torta);
    EXPECT_EQ(finestra.ctlGraphBar.contenuto().serie[0].forma, Grafico::Forma::barre);
    EXPECT_EQ(std::string{nomiCategorie},
              "Autoarticolati*Autotreni*Autobus*Camper*Roulotte*Veicoli a due ruote*Autovetture");
    for (std::size_t i = 0; i < nomi.size(); ++i) {
        EXPECT_EQ(categorieTraffico[i].nome, nomi[i]);
    }
}

TEST_F(ProveComposizione, CoefficientsHoldTheirLimits) {
    apri();
    for (std::size_t i = 0; i < 7; ++i) {
        SCOPED_TRACE(i);
        for (const char* testo : {"0", "0,009", "100", "99,991"}) {
            messaggi.mostrati.clear();
            EXPECT_FALSE(scrivi(coefficiente(i), testo)) << testo;
            unMessaggio("Il valore deve essere compreso tra 0,01 e 99,99 veicoli/eq");
        }
        messaggi.mostrati.clear();
        EXPECT_TRUE(scrivi(coefficiente(i), "0,01"));
        EXPECT_TRUE(scrivi(coefficiente(i), "99,99"));
        EXPECT_TRUE(messaggi.mostrati.empty());
    }
}

TEST_F(ProveComposizione, ACoefficientThatDepartsFromItsReferenceBearsASign) {
    apri();
    for (std::size_t i = 0; i < 7; ++i) {
        EXPECT_FALSE(finestra.righe[i].lblDiverso.visibile());
    }
    EXPECT_FALSE(finestra.lblDiversi.visibile());
    for (std::size_t i = 0; i < 7; ++i) {
        const std::string prima = coefficiente(i).testo();
        finestra.fuocoSu(coefficiente(i));
        coefficiente(i).scrivi("3,7");
        EXPECT_TRUE(finestra.righe[i].lblDiverso.visibile()) << i;
        EXPECT_TRUE(finestra.lblDiversi.visibile());
        coefficiente(i).scrivi(prima);
        EXPECT_FALSE(finestra.righe[i].lblDiverso.visibile()) << i;
        EXPECT_FALSE(finestra.lblDiversi.visibile());
    }
    composizione(3).VEPullman(1.9F);
    apri(3);
    EXPECT_TRUE(finestra.righe[2].lblDiverso.visibile());
    EXPECT_EQ(finestra.righe[2].lblDiverso.testo(), "≠");
    app.configurazione.VEPullman = 1.9F;
    apri(3);
    EXPECT_FALSE(finestra.righe[2].lblDiverso.visibile());
    EXPECT_EQ(finestra.righe[2].txtRiferimento.testo(), "1,9");
}

TEST_F(ProveComposizione, AggiornaDatiWritesTheFourteenNumbers) {
    apri(2);
    const std::array<const char*, 6> quote{"1", "2,5", "3", "4", "5", "6,25"};
    const std::array<const char*, 7> coefficienti{"3", "2,9", "2,8", "2,7", "2,6", "2,5", "2,4"};
    for (std::size_t i = 0; i < 7; ++i) {
        if (i < 6) {
            ASSERT_TRUE(scrivi(percento(i), quote[i]));
        }
        ASSERT_TRUE(scrivi(coefficiente(i), coefficienti[i]));
    }
    EXPECT_FALSE(finestra.DatiAllineati());
    EXPECT_EQ(composizione(2).Autotreni(), 0.0F);
    finestra.ctlToolbar.premi("AggiornaDati");
    const ComposizioneTraffico& c = composizione(2);
    const PerClasse scritte{c.Autoarticolati(), c.Autotreni(),       c.Pullman(),    c.Camper(),
                            c.Roulotte(),       c.VeicoliDueRuote(), c.Autovetture()};
    EXPECT_EQ(scritte, (PerClasse{1.0F, 2.5F, 3.0F, 4.0F, 5.0F, 6.25F, 78.25F}));
    const PerClasse VE{c.VEAutoarticolati(), c.VEAutotreni(),       c.VEPullman(),    c.VECamper(),
                       c.VERoulotte(),       c.VEVeicoliDueRuote(), c.VEAutovetture()};
    EXPECT_EQ(VE, (PerClasse{3.0F, 2.9F, 2.8F, 2.7F, 2.6F, 2.5F, 2.4F}));
    EXPECT_TRUE(finestra.DatiAllineati());
    EXPECT_EQ(composizione(1).Autovetture(), 100.0F);
    EXPECT_EQ(app.configurazione.VEAutoarticolati, 2.5F);
}

TEST_F(ProveComposizione, WalkingThroughTheFieldsWritesNothing) {
    ComposizioneTraffico& c = composizione(1);
    c.Autotreni(100.0F / 3.0F);
    c.Camper(0.1234567F);
    c.Autovetture(12.34567F);  // with the others it adds up to less than 100
    c.VECamper(0.0F);          // out of the limits
    c.VEPullman(1.0F / 3.0F);
    apri();
    const std::string prima = salva("prima.klv");
    for (Controllo* controllo : finestra.ordine()) {
        if (controllo->prendeFuoco()) {
            EXPECT_TRUE(finestra.fuocoSu(*controllo)) << controllo->nome();
        }
    }
    EXPECT_TRUE(finestra.lasciaFuoco());
    EXPECT_TRUE(passa(2));
    EXPECT_TRUE(messaggi.mostrati.empty());
    EXPECT_EQ(salva("prima.klv"), prima);
}

TEST_F(ProveComposizione, OnlyTheFieldsThatWereChangedAreWritten) {
    composizione(1).Camper(0.1234567F);
    composizione(1).VECamper(1.0F / 3.0F);
    composizione(1).Autovetture(99.0F);
    apri();
    ASSERT_TRUE(scrivi(percento(0), "5"));
    finestra.SaveData();
    EXPECT_EQ(composizione(1).Camper(), 0.1234567F);
    EXPECT_EQ(composizione(1).VECamper(), 1.0F / 3.0F);
    EXPECT_EQ(composizione(1).Autoarticolati(), 5.0F);
    // 100 - 5 - 0,1234567 = 94,8765433, of which a single shows seven digits.
    EXPECT_EQ(finestra.righe[6].txtPercento.testo(), "94,87654");
    EXPECT_EQ(composizione(1).Autovetture(), 94.87654F);
}

TEST_F(ProveComposizione, AChangeTakenBackGivesTheCarsBack) {
    apri();
    ASSERT_TRUE(scrivi(percento(0), "7"));
    ASSERT_EQ(autovetture().testo(), "93");
    ASSERT_TRUE(scrivi(percento(0), "0"));
    EXPECT_EQ(autovetture().testo(), "100");
    const std::string prima = salva("a.klv");
    finestra.SaveData();
    EXPECT_EQ(salva("a.klv"), prima);
}

TEST_F(ProveComposizione, AChangeTakenBackGivesCarsBackThatTheResidualDoesNotMake) {
    composizione(1).Autotreni(100.0F / 3.0F);
    composizione(1).Autovetture(200.0F / 3.0F);
    apri();
    ASSERT_EQ(percento(1).testo(), "33,33333");
    ASSERT_EQ(autovetture().testo(), "66,66666");  // 100 - 33,33333 is 66,66667
    const std::string prima = salva("a.klv");
    ASSERT_TRUE(scrivi(percento(0), "7"));
    ASSERT_EQ(autovetture().testo(), "59,66667");
    EXPECT_FALSE(finestra.DatiAllineati());
    ASSERT_TRUE(scrivi(percento(0), "0"));
    EXPECT_EQ(autovetture().testo(), "66,66666");
    EXPECT_EQ(finestra.lblTotale.testo(), "Totale 100 %, di cui autovetture 66,66666 %");
    EXPECT_TRUE(finestra.DatiAllineati());
    finestra.SaveData();
    EXPECT_EQ(salva("a.klv"), prima);
}

TEST_F(ProveComposizione, ACoefficientTakenBackIsThatOfTheProjectAgain) {
    apri();
    ASSERT_TRUE(scrivi(coefficiente(2), "3"));
    EXPECT_FALSE(finestra.DatiAllineati());
    ASSERT_TRUE(scrivi(percento(2), "3"));
    ASSERT_TRUE(scrivi(coefficiente(2), "1,8"));
    EXPECT_FALSE(finestra.DatiAllineati());  // the share still differs
    ASSERT_TRUE(scrivi(percento(2), "0"));
    EXPECT_TRUE(finestra.DatiAllineati());
}

TEST_F(ProveComposizione, AMixFarPastHundredIsMendedShareByShare) {
    composizione(1).Autotreni(90.0F);
    composizione(1).Camper(80.0F);
    composizione(1).Autovetture(25.0F);
    apri();
    EXPECT_EQ(finestra.lblErroreTotale.testo(), "Totale 195 %: 95 % di troppo");
    EXPECT_TRUE(scrivi(percento(1), "60"));
    EXPECT_EQ(autovetture().testo(), "25");
    EXPECT_EQ(finestra.lblErroreTotale.testo(), "Totale 165 %: 65 % di troppo");
    EXPECT_TRUE(messaggi.mostrati.empty());
    EXPECT_FALSE(scrivi(percento(3), "80,01"));  // none may rise
    unMessaggio(oltreCento);
    messaggi.mostrati.clear();
    EXPECT_TRUE(scrivi(percento(3), "70"));
    finestra.SaveData();
    EXPECT_EQ(composizione(1).Autotreni(), 60.0F);
    EXPECT_EQ(composizione(1).Camper(), 70.0F);
    EXPECT_EQ(composizione(1).Autovetture(), 25.0F);
    EXPECT_TRUE(scrivi(percento(3), "10"));
    EXPECT_EQ(autovetture().testo(), "30");
    EXPECT_EQ(finestra.lblTotale.testo(), "Totale 100 %, di cui autovetture 30 %");
    EXPECT_TRUE(finestra.lblTotale.visibile());
    EXPECT_TRUE(messaggi.mostrati.empty());
    finestra.SaveData();
    EXPECT_FALSE(scrivi(percento(3), "45"));  // the project is whole again: the bound holds as ever
    unMessaggio(oltreCento);
}

TEST_F(ProveComposizione, SharesThatNoSingleAddsUpAreToldAndCanBeMended) {
    composizione(1).Autotreni(3e38F);
    composizione(1).Camper(3e38F);
    apri();
    EXPECT_EQ(finestra.lblErroreTotale.testo(), oltreCento);
    EXPECT_TRUE(finestra.lblErroreTotale.visibile());
    const std::string prima = salva("a.klv");
    for (std::size_t i = 0; i < 6; ++i) {
        EXPECT_TRUE(finestra.fuocoSu(percento(i)));
        EXPECT_TRUE(finestra.fuocoSu(coefficiente(i)));
    }
    finestra.SaveData();
    EXPECT_EQ(salva("a.klv"), prima);
    finestra.fuocoSu(percento(0));
    percento(0).scrivi("5");
    EXPECT_EQ(finestra.lblErroreTotale.testo(), oltreCento);
    EXPECT_FALSE(finestra.lasciaFuoco());
    unMessaggio(oltreCento);
    messaggi.mostrati.clear();
    percento(0).scrivi("0");
    EXPECT_TRUE(scrivi(percento(1), "4"));
    EXPECT_EQ(autovetture().testo(), "100");
    EXPECT_TRUE(scrivi(percento(3), "6"));
    EXPECT_EQ(autovetture().testo(), "90");
    EXPECT_TRUE(messaggi.mostrati.empty());
    EXPECT_TRUE(errori.empty());
}

TEST_F(ProveComposizione, CarsThatNoSingleHoldsStayAsTheyAre) {
    composizione(1).Autotreni(-3e38F);
    composizione(1).Camper(-3e38F);
    apri();
    EXPECT_EQ(finestra.lblErroreTotale.testo(), oltreCento);
    finestra.fuocoSu(percento(1));
    percento(1).scrivi("5");
    finestra.lasciaFuoco();
    EXPECT_TRUE(errori.empty());
}

TEST_F(ProveComposizione, AFaultOfOneChartIsRecordedAndTheOtherFollowsAllTheSame) {
    apri();
    const auto guasto = [] { throw Guasto(NumeroGuasto::overflow, "disegno"); };
    sigc::connection torta = finestra.ctlGraphPie.cambiato().connect(guasto);
    ASSERT_TRUE(scrivi(percento(0), "10"));
    ASSERT_FALSE(errori.empty());
    for (const ErroreRegistrato& errore : errori) {
        EXPECT_EQ(errore.metodo, "DoCtlGraphPie");
    }
    EXPECT_EQ(valori(finestra.ctlGraphBar), (std::vector<double>{10, 0, 0, 0, 0, 0, 90}));
    torta.disconnect();
    errori.clear();
    finestra.ctlGraphBar.cambiato().connect(guasto);
    ASSERT_TRUE(scrivi(percento(0), "20"));
    ASSERT_FALSE(errori.empty());
    for (const ErroreRegistrato& errore : errori) {
        EXPECT_EQ(errore.metodo, "frmComposizioneTraffico:RefreshGraph");
    }
    EXPECT_EQ(valori(finestra.ctlGraphPie), (std::vector<double>{20, 0, 0, 0, 0, 0, 80}));
}

TEST_F(ProveComposizione, AMixThatTheProjectHoldsWrongIsToldAndCanBeLeft) {
    composizione(1).Autotreni(60.0F);
    composizione(1).Camper(50.0F);
    composizione(2).Autovetture(96.0F);
    apri(1);
    EXPECT_EQ(finestra.lblErroreTotale.testo(), "Totale 210 %: 110 % di troppo");
    EXPECT_TRUE(passa(2));
    EXPECT_EQ(finestra.lblErroreTotale.testo(), "Totale 96 %: 4 % in meno");
    EXPECT_TRUE(messaggi.mostrati.empty());
    ASSERT_TRUE(scrivi(percento(0), "1"));
    EXPECT_EQ(autovetture().testo(), "99");
    EXPECT_FALSE(finestra.lblErroreTotale.visibile());
}

TEST_F(ProveComposizione, TheTotalFollowsTheKeys) {
    apri();
    finestra.fuocoSu(percento(3));
    percento(3).scrivi("12,5");
    EXPECT_EQ(finestra.lblTotale.testo(), "Totale 100 %, di cui autovetture 87,5 %");
    percento(3).scrivi("112,5");
    EXPECT_EQ(finestra.lblErroreTotale.testo(), "Totale 112,5 %: 12,5 % di troppo");
    percento(3).scrivi("");
    EXPECT_EQ(finestra.lblErroreTotale.testo(), "Inserire un valore numerico");
    EXPECT_TRUE(percento(3).annulla());
    EXPECT_EQ(finestra.lblTotale.testo(), "Totale 100 %, di cui autovetture 100 %");
    EXPECT_TRUE(finestra.lblTotale.visibile());
}

TEST_F(ProveComposizione, ARefusedFieldHoldsTheWindowAndRefreshMendsIt) {
    apri(1);
    finestra.fuocoSu(percento(4));
    percento(4).scrivi("101");
    finestra.ctlToolbar.premi("AggiornaDati");
    EXPECT_EQ(composizione(1).Roulotte(), 0.0F);
    unMessaggio(oltreCento);
    finestra.ctlToolbar.premi("Refresh");
    EXPECT_EQ(percento(4).testo(), "0");
    EXPECT_FALSE(percento(4).fallito());
    stato.convalidaFallita = false;
    EXPECT_TRUE(passa(2));
    EXPECT_EQ(messaggi.mostrati.size(), 1U);
}

TEST_F(ProveComposizione, OfTwoFieldsThatAreTooMuchOneBoxTells) {
    apri();
    percento(0).scrivi("70");
    percento(1).scrivi("70");
    EXPECT_FALSE(finestra.convalida());
    unMessaggio(oltreCento);
    EXPECT_EQ(finestra.fuoco(), &percento(0));
}

TEST_F(ProveComposizione, AnotherLegTakesOverAfterTheFirstWasWritten) {
    apri(1);
    ASSERT_TRUE(scrivi(percento(5), "8"));
    EXPECT_TRUE(passa(3));
    EXPECT_EQ(composizione(1).VeicoliDueRuote(), 8.0F);
    EXPECT_EQ(composizione(1).Autovetture(), 92.0F);
    EXPECT_EQ(percento(5).testo(), "0");
    EXPECT_EQ(finestra.sottotitolo.testo(), "Ramo C");
}

TEST_F(ProveComposizione, TheWindowHasNoImport) {
    apri();
    EXPECT_FALSE(finestra.ctlToolbar.abilitato("Archivio"));
    EXPECT_EQ(finestra.ctlToolbar.tasti()[0].nota, "Questa finestra non importa dati");
}

TEST_F(ProveComposizione, EveryFieldHasItsHelp) {
    apri();
    for (Controllo* controllo : finestra.ordine()) {
        if (const auto* campo = dynamic_cast<tBox*>(controllo)) {
            ASSERT_TRUE(finestra.fuocoSu(*controllo));
            EXPECT_EQ(finestra.ctlHelp.pagina(), campo->paginaAiuto);
            EXPECT_NE(campo->paginaAiuto, "") << campo->nome();
        }
    }
}

}  // namespace
}  // namespace kelvo::prove
