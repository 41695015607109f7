// The window of a demand curve: what it reads, shows and writes.

#include "input/frmDatiTraffico.h"

#include <set>

#include "base/numeri.h"
#include "scenaTraffico.h"

namespace kelvo::prove {
namespace {

using ProveCurva = ScenaTraffico;
using Barre = std::vector<float>;

TEST_F(ProveCurva, FieldsCarryTheirLabelsAndUnits) {
    EXPECT_EQ(finestra.didascalia(), "Dati di traffico");
    std::vector<std::string> righe;
    for (const frmDatiTraffico::Riga& riga : finestra.righe()) {
        righe.push_back(riga.campo->nome() + "|" + std::string{riga.etichetta} + "|" + std::string{riga.unita});
    }
    EXPECT_EQ(righe, (std::vector<std::string>{
                         "txtDescrizioneRamo|Denominazione ramo:|", "txtIntervalloTempo|Intervallo di tempo|[min]",
                         "txtTempo1|t1|[ora]", "txtTempo2|t2|[ora]", "txtTempo3|t3|[ora]",
                         "txtFlussoTempo1|q1|[veicoli/min]", "txtFlussoTempo2|q2|[veicoli/min]",
                         "txtFlussoTempo3|q3|[veicoli/min]", "txtFlussoTotale|Flusso Totale Ingresso|[veicoli]",
                         "txtFlussoMedio|Flusso Medio|[veicoli/min]", "txtFlussoOrario|Flusso Orario|[veicoli/h]"}));
    EXPECT_EQ(finestra.lblTarget.testo(), "Imposta un valore di flusso totale da assegnare all'ingresso");
    EXPECT_EQ(finestra.lblUnitaTarget.testo(), "[veicoli]");
    EXPECT_EQ(finestra.Check1.testo(), "Inserisci valori grafico");
    EXPECT_EQ(finestra.Check2.testo(), "Calcola curva di traffico");
    EXPECT_EQ(finestra.Command1.testo(), "Avvia calcolo curva di traffico");
}

TEST_F(ProveCurva, ReadDataShowsThePlainTextsOfTheLeg) {
    flussi(1, 12.3456784F, 0.5F, 3.0F);
    dati(1).FlussoTotale(359.6F);
    dati(1).FlussoMedio(6.25F);
    dati(1).FlussoOrario(375.0F);
    app.theRotonda().SegmentoTempo(oraDelGiorno(0, 5));
    app.theRotonda().Ramo(1).Descrizione("Via Roma");
    finestra.ReadData();
    EXPECT_EQ(finestra.txtDescrizioneRamo.testo(), "Via Roma");
    EXPECT_EQ(finestra.txtIntervalloTempo.testo(), "05");
    EXPECT_EQ(q1.testo(), "12,34568");
    EXPECT_EQ(q2.testo(), "0,5");
    EXPECT_EQ(q3.testo(), "3");
    EXPECT_EQ(totali(), "359,6 6,25 375");
    EXPECT_EQ(t1.testo(), "08:00");
    EXPECT_EQ(t2.testo(), "08:30");
    EXPECT_EQ(t3.testo(), "09:30");
    EXPECT_TRUE(finestra.DatiAllineati());
}

TEST_F(ProveCurva, NameLengthOfASegmentAndTotalsAreNotTyped) {
    for (tBox* campo : {&finestra.txtDescrizioneRamo, &finestra.txtIntervalloTempo, &finestra.txtFlussoTotale,
                        &finestra.txtFlussoMedio, &finestra.txtFlussoOrario}) {
        const std::string prima = campo->testo();
        campo->scrivi("77");
        EXPECT_EQ(campo->testo(), prima) << campo->nome();
    }
}

TEST_F(ProveCurva, OpeningBuildsTheCurveAndStartsInTheModeThatTypes) {
    EXPECT_EQ(finestra.curva().FlussiSegmento, (Barre{4.0F, 7.0F, 10.0F, 7.33333302F, 4.66666651F, 1.99999976F}));
    EXPECT_EQ(finestra.curva().EtichetteSegmento,
              (std::vector<std::string>{"08:00-08:15", "08:15-08:30", "08:30-08:45", "08:45-09:00", "09:00-09:15",
                                        "09:15-09:30"}));
    EXPECT_EQ(finestra.curva().TotaleArrotondato, "525");
    EXPECT_EQ(finestra.curva().TotaleEsatto, "525,00");
    EXPECT_EQ(totali(), "525 5,83 350,00");
    EXPECT_FALSE(finestra.Check1.spuntata());
    EXPECT_FALSE(finestra.Check2.spuntata());
    EXPECT_FALSE(finestra.txtTarget.visibile());
    EXPECT_EQ(finestra.prgCurva.minimo(), 0);
    EXPECT_EQ(finestra.prgCurva.massimo(), 20000);
    EXPECT_EQ(finestra.prgCurva.valore(), 0);
    EXPECT_EQ(finestra.lblApprox.testo(), "");
    EXPECT_TRUE(finestra.DatiAllineati());
    EXPECT_EQ(barre().valori.size(), 6U);
}

TEST_F(ProveCurva, OpeningAgainPutsBoxesBarAndApproximationBack) {
    finestra.Check1.clicca();
    finestra.Check2.clicca();
    finestra.txtTarget.scrivi("600");
    finestra.Command1.premi();
    ASSERT_NE(finestra.lblApprox.testo(), "");
    ASSERT_EQ(finestra.prgCurva.valore(), 20000);
    apri("keyDatiTraffico2");
    EXPECT_FALSE(finestra.Check1.spuntata());
    EXPECT_FALSE(finestra.Check2.spuntata());
    EXPECT_FALSE(finestra.ctlChart.contenuto().valori);
    EXPECT_EQ(finestra.prgCurva.valore(), 0);
    EXPECT_EQ(finestra.lblApprox.testo(), "");
    EXPECT_EQ(finestra.txtTarget.testo(), "");
}

TEST_F(ProveCurva, LegIsThatOfTheNodesLastCharacter) {
    flussi(3, 1.0F, 2.0F, 3.0F);
    apri("keyDatiTraffico3");
    EXPECT_EQ(finestra.sottotitolo.testo(), "Ramo C");
    EXPECT_EQ(q1.testo(), "1");
    EXPECT_EQ(app.theRamoCorrente, &app.theRotonda().Ramo(3));
}

TEST_F(ProveCurva, AnEditStaysWithItsLegWhenTheNextIsChosen) {
    scrivi(q1, "5");
    EXPECT_TRUE(apri("keyDatiTraffico2"));
    EXPECT_EQ(dati(1).FlussoTempo1(), 5.0F);
    EXPECT_EQ(dati(2).FlussoTempo1(), 4.0F);
    EXPECT_EQ(q1.testo(), "4");
}

TEST_F(ProveCurva, BarsOfAnotherLegDoNotStayWhereALegHasNone) {
    tempi(2, oraDelGiorno(8, 30), oraDelGiorno(8, 30), oraDelGiorno(9, 30));
    apri("keyDatiTraffico2");
    EXPECT_TRUE(finestra.curva().FlussiSegmento.empty());
    EXPECT_TRUE(finestra.ctlChart.vuoto());
    EXPECT_EQ(finestra.curva().TotaleArrotondato, "");
    EXPECT_NE(finestra.ctlChart.contenuto().nota.find("non si può costruire"), std::string::npos);
    EXPECT_EQ(totali(), "0 0 0");
}

TEST_F(ProveCurva, SaveDataWritesParametersTotalsAndTimes) {
    scrivi(q1, "5,25");
    scrivi(q2, "11");
    scrivi(q3, "3,5");
    scrivi(t1, "08:15");
    scrivi(t2, "08:45");
    scrivi(t3, "09:15");
    EXPECT_EQ(dati(1).FlussoTempo1(), 4.0F) << "nothing before it is saved";
    finestra.ctlToolbar.premi("AggiornaDati");
    EXPECT_EQ(dati(1).FlussoTempo1(), 5.25F);
    EXPECT_EQ(dati(1).FlussoTempo2(), 11.0F);
    EXPECT_EQ(dati(1).FlussoTempo3(), 11.0F) << "two segments behind the peak: flat";
    EXPECT_EQ(testoHHNN(dati(1).Tempo1()), "08:15");
    EXPECT_EQ(testoHHNN(dati(1).Tempo2()), "08:45");
    EXPECT_EQ(testoHHNN(dati(1).Tempo3()), "09:15");
    // 5.25, 8.125, 11, 11 by 15 minutes over an hour
    EXPECT_EQ(dati(1).FlussoTotale(), 531.0F);
    EXPECT_EQ(dati(1).FlussoMedio(), 8.84F);
    EXPECT_EQ(dati(1).FlussoOrario(), 530.63F);
    EXPECT_TRUE(finestra.DatiAllineati());
    EXPECT_EQ(q3.testo(), "11");
}

TEST_F(ProveCurva, ALoneCommaIsSavedAsZero) {
    scrivi(q3, "7");
    scrivi(q3, ",");
    finestra.SaveData();
    EXPECT_EQ(dati(1).FlussoTempo3(), 0.0F);
    // 4, 7, 10, 6.667, 3.333 and 0 by 15 minutes: the totals are those of the flows that are saved.
    EXPECT_EQ(dati(1).FlussoTotale(), 465.0F);
}

TEST_F(ProveCurva, RefreshOpensTheThirdFlowAgain) {
    ASSERT_TRUE(scrivi(t2, "09:00"));
    ASSERT_FALSE(q3.abilitato());
    finestra.ctlToolbar.premi("Refresh");
    EXPECT_TRUE(q3.abilitato());
    EXPECT_TRUE(q2.abilitato());
}

TEST_F(ProveCurva, RefreshDiscardsWhatWasTypedAndBuildsTheCurveOfTheLeg) {
    scrivi(q2, "30");
    EXPECT_NE(totali(), "525 5,83 350,00");
    finestra.ctlToolbar.premi("Refresh");
    EXPECT_EQ(q2.testo(), "10");
    EXPECT_EQ(totali(), "525 5,83 350,00");
    EXPECT_EQ(barre().valori[2], 10.0);
    EXPECT_TRUE(finestra.DatiAllineati());
    finestra.ctlToolbar.premi("Archivio");
    EXPECT_TRUE(messaggi.mostrati.empty());
}

TEST_F(ProveCurva, LookingAtALegNeverChangesIt) {
    // Decimals past the text, totals of another curve, a flat curve with a q3 of its own, seconds, a day beyond.
    flussi(1, 12.3456784F, 10.0F, 2.0F);
    dati(1).FlussoTotale(111.5F);
    flussi(2, 4.0F, 10.0F, 2.0F);
    tempi(2, oraDelGiorno(8, 0), oraDelGiorno(8, 30), oraDelGiorno(9, 0));
    tempi(3, oraDelGiorno(8, 0, 20), oraDelGiorno(8, 30), oraDelGiorno(9, 30, 40));
    const std::string prima = salva("prima.klv");
    for (const char* chiave : {"keyDatiTraffico1", "keyDatiTraffico2", "keyDatiTraffico3", "keyDatiTraffico1"}) {
        EXPECT_TRUE(apri(chiave));
        for (Controllo* c : finestra.ordine()) {
            finestra.fuocoSu(*c);
        }
        EXPECT_TRUE(finestra.lasciaFuoco());
        EXPECT_TRUE(finestra.DatiAllineati()) << chiave;
    }
    EXPECT_EQ(salva("dopo.klv"), prima);
    EXPECT_TRUE(messaggi.mostrati.empty());
}

TEST_F(ProveCurva, OneEditKeepsWhatTheOthersHoldBeyondTheirTexts) {
    flussi(1, 12.3456784F, 20.0F, 2.0F);
    dati(1).Tempo1(oraDelGiorno(8, 0, 20));
    dati(1).FlussoTotale(1.0F);
    riapri("keyDatiTraffico1");
    scrivi(q2, "21");
    finestra.SaveData();
    EXPECT_EQ(dati(1).FlussoTempo1(), 12.3456784F);
    EXPECT_EQ(dati(1).Tempo1(), oraDelGiorno(8, 0, 20));
    EXPECT_EQ(dati(1).FlussoTotale(), leggiSingolo(finestra.curva().totali.FlussoTotale).value());
}

TEST_F(ProveCurva, OneEditWritesTheTotalsAlsoWhereTheyLookAsBefore) {
    // The totals of the leg are those of no curve; the edit leaves the shown ones as they were.
    dati(1).FlussoTotale(999.0F);
    riapri("keyDatiTraffico1");
    EXPECT_EQ(totali(), "525 5,83 350,00");
    scrivi(q1, "4,0001");
    EXPECT_EQ(totali(), "525 5,83 350,00");
    finestra.SaveData();
    EXPECT_EQ(dati(1).FlussoTotale(), 525.0F);
}

TEST_F(ProveCurva, TimesOfTheLegThatTheFieldsDoNotShowAreBuiltWith) {
    // An end on the next day: 00:30 in the field.
    app.theRotonda().TempoFinale(oraDelGiorno(24, 30));
    tempi(1, oraDelGiorno(23, 0), oraDelGiorno(23, 30), oraDelGiorno(24, 30));
    riapri("keyDatiTraffico1");
    EXPECT_EQ(t3.testo(), "00:30");
    EXPECT_EQ(finestra.curva().FlussiSegmento.size(), 6U);
    EXPECT_EQ(finestra.curva().EtichetteSegmento.back(), "00:15-00:30");
}

TEST_F(ProveCurva, ASegmentOfNoMinutesIsAFaultOfTheConstruction) {
    app.theRotonda().SegmentoTempo(oraDelGiorno(1, 0));
    riapri("keyDatiTraffico1");
    ASSERT_EQ(errori.size(), 1U);
    EXPECT_EQ(errori[0].numero, 11);
    EXPECT_EQ(errori[0].metodo, "frmDatiTraffico:CostruisciCurva");
    EXPECT_TRUE(scrivi(t2, "08:40")) << "no length can be asked for";
    EXPECT_EQ(finestra.txtIntervalloTempo.testo(), "00");
}

TEST_F(ProveCurva, KeyboardStartsInTheFirstFieldThatIsTypedInto) {
    EXPECT_EQ(finestra.fuoco(), &t1);
    finestra.fuocoSu(q2);
    apri("keyDatiTraffico2");
    EXPECT_EQ(finestra.fuoco(), &t1);
}

TEST_F(ProveCurva, EveryFieldHasItsPage) {
    std::set<std::string> pagine;
    for (Controllo* c : finestra.ordine()) {
        if (auto* campo = dynamic_cast<tBox*>(c)) {
            EXPECT_NE(campo->paginaAiuto, "") << campo->nome();
            EXPECT_TRUE(pagine.insert(campo->paginaAiuto).second) << campo->nome();
            if (campo == &finestra.txtTarget) {
                finestra.Check2.clicca();
            }
            ASSERT_TRUE(finestra.fuocoSu(*campo)) << campo->nome();
            EXPECT_EQ(finestra.ctlHelp.pagina(), campo->paginaAiuto);
        }
    }
    EXPECT_EQ(pagine.size(), 12U);
}

TEST_F(ProveCurva, TabOrderFollowsTheReadingOrder) {
    std::vector<std::string> nomi;
    finestra.Check2.clicca();
    for (const Controllo* c : finestra.ordine()) {
        if (c->prendeFuoco()) {
            nomi.push_back(c->nome());
        }
    }
    EXPECT_EQ(nomi,
              (std::vector<std::string>{"txtDescrizioneRamo", "txtIntervalloTempo", "txtTempo1", "txtTempo2",
                                        "txtTempo3", "txtFlussoTempo1", "txtFlussoTotale", "txtFlussoMedio",
                                        "txtFlussoOrario", "Check1", "Check2", "txtTarget", "Command1", "ctlChart"}));
}

}  // namespace
}  // namespace kelvo::prove
