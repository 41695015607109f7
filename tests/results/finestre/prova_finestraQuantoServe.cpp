// How much of a measure is needed: the part of the window of the sensitivity that asks for it.

#include "results/frmRisultatiAnalisiMarginale.h"
#include "results/livelloServizio.h"
#include "scenaRisultati.h"

namespace kelvo::prove {
namespace {

constexpr int larghezza = 0;
constexpr int riepilogo = 6;
constexpr int perLivello = 1;

struct ProveQuantoServe : ScenaRisultati {
    frmRisultatiAnalisiMarginale finestra{contorno(), servizi()};
    ProveQuantoServe() {
        ramo(2).LarghezzaIngresso(4.5F);
        ramo(2).SemiLarghezza(3.5F);
        ramo(2).LunghezzaSvasatura(20.0F);
        ramo(2).AngoloConflitto(30.0F);
        ramo(2).RaggioIngresso(20.0F);
        ramo(2).DiametroInscritto(40.0F);
        ramo(2).theDatiTraffico().FlussoTempo2(25.0F);
        ramo(2).theAnalisiMarginale().UsaLarghezzaIngresso(true);
        apri(finestra, "keyOttimizzazioneGeometrica2");
        finestra.ctlTab.scegli(riepilogo);
    }
    std::string cerca() {
        finestra.cmdQuantoServe.premi();
        return finestra.lblQuantoServe.testo();
    }
};

TEST_F(ProveQuantoServe, StartsWithTheUsualSaturationAndTheFirstMeasure) {
    EXPECT_EQ(finestra.txtGrandezza.testo(), "Larghezza ingresso");
    EXPECT_EQ(finestra.txtGrandezza.voci().size(), 6U);
    EXPECT_EQ(finestra.txtSaturazione.testo(), "0,85");
    EXPECT_EQ(finestra.txtLivello.voci(), (std::vector<std::string>{"A", "B", "C", "D", "E"}));
    EXPECT_EQ(finestra.txtLivello.testo(), "C");
    EXPECT_TRUE(finestra.txtSaturazione.abilitato());
    EXPECT_FALSE(finestra.txtLivello.abilitato());
    EXPECT_EQ(finestra.lblQuantoServe.testo(), "Scegliere grandezza e obiettivo e premere Cerca.");
    EXPECT_FALSE(finestra.lblEffetto.visibile());
    EXPECT_EQ(finestra.lblSoloLettura.testo(), "La geometria del progetto non viene modificata.");
}

TEST_F(ProveQuantoServe, IsThereInTheSummaryAlone) {
    for (const Controllo* c : finestra.frQUANTOSERVE.contenuto()) {
        EXPECT_EQ(c->visibile(), c != &finestra.lblEffetto) << c->nome();
    }
    cerca();
    EXPECT_TRUE(finestra.lblEffetto.visibile());
    finestra.ctlTab.scegli(larghezza);
    EXPECT_FALSE(finestra.frQUANTOSERVE.visibile());
    for (const Controllo* c : finestra.frQUANTOSERVE.contenuto()) {
        EXPECT_FALSE(c->visibile()) << c->nome();
    }
    finestra.ctlTab.scegli(riepilogo);
    EXPECT_TRUE(finestra.lblEffetto.visibile()) << "the answer still stands";
}

TEST_F(ProveQuantoServe, AnswersWithTheSmallestWidthThatReachesTheSaturation) {
    const std::string detto = cerca();
    ASSERT_TRUE(finestra.risposta());
    const QuantoServe& r = *finestra.risposta();
    ASSERT_EQ(r.esito, EsitoQuantoServe::trovato) << detto;
    EXPECT_EQ(detto, paroleQuantoServe(r, larghezza, {.saturazione = 0.85}));
    EXPECT_EQ(detto.rfind("Larghezza ingresso: da 4,50 m a ", 0), 0U) << detto;
    EXPECT_GT(r.prima.saturazione, 0.85);
    EXPECT_LE(r.dopo.saturazione, 0.85);
    EXPECT_EQ(finestra.lblEffetto.testo(), effettoQuantoServe(r));
    EXPECT_TRUE(messaggi.mostrati.empty());
}

TEST_F(ProveQuantoServe, ALevelOfServiceCanBeTheGoal) {
    finestra.opzOBIETTIVO.clicca(perLivello);
    EXPECT_FALSE(finestra.txtSaturazione.abilitato());
    EXPECT_TRUE(finestra.txtLivello.abilitato());
    finestra.txtLivello.scegli(1);
    const std::string detto = cerca();
    EXPECT_NE(detto.find("il livello di servizio B"), std::string::npos) << detto;
    ASSERT_EQ(finestra.risposta()->esito, EsitoQuantoServe::trovato);
    EXPECT_LE(finestra.risposta()->dopo.ritardo, 15.05);
}

TEST_F(ProveQuantoServe, SaysWhereNoMeasureWithinItsLimitsDoes) {
    finestra.txtSaturazione.scrivi("0,01");
    const std::string detto = cerca();
    EXPECT_EQ(finestra.risposta()->esito, EsitoQuantoServe::nessuno);
    EXPECT_NE(detto.find("nessun valore tra 3,51 m e 16,20 m"), std::string::npos) << detto;
}

TEST_F(ProveQuantoServe, AWordOfAnotherQuestionDoesNotStay) {
    const std::string invito = finestra.lblQuantoServe.testo();
    const auto senzaRisposta = [&] {
        const bool scordata =
            !finestra.risposta() && finestra.lblQuantoServe.testo() == invito && finestra.lblEffetto.testo().empty();
        cerca();
        return scordata && finestra.risposta().has_value();
    };
    cerca();
    finestra.txtGrandezza.scegli(3);
    EXPECT_TRUE(senzaRisposta());
    finestra.opzOBIETTIVO.clicca(perLivello);
    EXPECT_TRUE(senzaRisposta());
    finestra.txtLivello.scegli(3);
    EXPECT_TRUE(senzaRisposta());
    finestra.opzOBIETTIVO.clicca(0);
    EXPECT_TRUE(senzaRisposta());
    finestra.txtSaturazione.scrivi("0,9");
    EXPECT_TRUE(senzaRisposta());
    ramo(1).LarghezzaIngresso(9.0F);
    apri(finestra, "keyOttimizzazioneGeometrica2");
    EXPECT_TRUE(senzaRisposta());
    apri(finestra, "keyOttimizzazioneGeometrica1");
    EXPECT_TRUE(senzaRisposta());
}

TEST_F(ProveQuantoServe, TheGoalIsAskedWithItsLimitsAndTwoDecimals) {
    finestra.fuocoSu(finestra.txtSaturazione);
    finestra.txtSaturazione.scrivi("3");
    finestra.cmdQuantoServe.premi();
    EXPECT_FALSE(finestra.risposta());
    EXPECT_EQ(finestra.fuoco(), &finestra.txtSaturazione);
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(messaggi.mostrati[0].testo, "Il valore deve essere compreso tra 0,01 e 2,00");
    finestra.txtSaturazione.scrivi("0,9");
    finestra.cmdQuantoServe.premi();
    EXPECT_EQ(finestra.txtSaturazione.testo(), "0,90");
    EXPECT_NE(finestra.lblQuantoServe.testo().find("0,90"), std::string::npos);
}

TEST_F(ProveQuantoServe, WithoutDemandOverTimeThereIsNoGoal) {
    r().TipoAnalisi(0);
    apri(finestra, "keyOttimizzazioneGeometrica2");
    EXPECT_EQ(cerca(),
              "L'analisi della sola saturazione non ha una domanda nel tempo: non c'è un obiettivo da raggiungere");
    EXPECT_FALSE(finestra.lblEffetto.visibile());
}

TEST(EffettoQuantoServe, TellsTheEntryBeforeAndAfter) {
    QuantoServe r{.esito = EsitoQuantoServe::trovato};
    r.prima = {.saturazione = 1.017, .ritardo = 71.44, .regolare = true};
    r.dopo = {.saturazione = 0.849, .ritardo = 24.96, .regolare = true};
    EXPECT_EQ(effettoQuantoServe(r),
              "Coefficiente di saturazione massimo da 1,02 a 0,85; ritardo massimo da 71,4 a 25,0 s/veic (livello di "
              "servizio da F a C)");
    const std::string prima =
        "Coefficiente di saturazione massimo 1,02; ritardo massimo 71,4 s/veic (livello di servizio F)";
    for (const EsitoQuantoServe esito : {EsitoQuantoServe::giaRaggiunto, EsitoQuantoServe::nessuno}) {
        r.esito = esito;
        EXPECT_EQ(effettoQuantoServe(r), prima);
    }
    for (const EsitoQuantoServe esito : {EsitoQuantoServe::senzaDomanda, EsitoQuantoServe::interrotto}) {
        r.esito = esito;
        EXPECT_EQ(effettoQuantoServe(r), "");
    }
}

TEST(EffettoQuantoServe, TellsWhatTheChecksShowWhereThatIsAnotherFigure) {
    QuantoServe r{.esito = EsitoQuantoServe::giaRaggiunto};
    r.prima = {.saturazione = 0.843, .ritardo = 14.02, .regolare = true};
    r.dopo = r.prima;
    const std::string stato =
        "Coefficiente di saturazione massimo 0,84; ritardo massimo 14,0 s/veic (livello di servizio B)";
    EXPECT_EQ(effettoQuantoServe(r), stato);
    r.saturazioneVerifiche = 0.838;  // shown as 0,84 too
    EXPECT_EQ(effettoQuantoServe(r), stato);
    r.saturazioneVerifiche = 0.912;
    const std::string nota =
        ". Nelle verifiche l'ingresso com'è raggiunge 0,91: l'analisi di ipotesi semplifica la curva di domanda.";
    EXPECT_EQ(effettoQuantoServe(r), stato + nota);
    r.esito = EsitoQuantoServe::senzaFlusso;
    EXPECT_EQ(effettoQuantoServe(r), "");
}

}  // namespace
}  // namespace kelvo::prove
