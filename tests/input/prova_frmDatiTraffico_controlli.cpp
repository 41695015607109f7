// Leaving of the fields of the demand curve: what is refused, in which words, and what is put back.

#include "scenaTraffico.h"

namespace kelvo::prove {
namespace {

struct ControlliCurva : ScenaTraffico {
    /// What the field shows while the box is open.
    std::string mentre;
    /// Types a time that is refused: the focus stays, the flag is raised, the text of the leg comes back.
    void rifiuta(tBox& campo, const std::string& testo, const std::string& resta) {
        stato.convalidaFallita = false;
        messaggi.mostrati.clear();
        messaggi.alMostrare = [this, &campo] { mentre = campo.testo(); };
        ASSERT_TRUE(finestra.fuocoSu(campo));
        campo.scrivi(testo);
        EXPECT_FALSE(finestra.lasciaFuoco()) << testo;
        EXPECT_EQ(finestra.fuoco(), &campo);
        EXPECT_TRUE(stato.convalidaFallita) << testo;
        EXPECT_EQ(campo.testo(), resta) << testo;
        EXPECT_FALSE(campo.fallito());
        EXPECT_FALSE(campo.modificato());
    }
    /// The one box that came up is a warning in these words.
    void avvisa(const std::string& parole) {
        ASSERT_EQ(messaggi.mostrati.size(), 1U) << parole;
        EXPECT_EQ(messaggi.mostrati[0].testo, parole);
        EXPECT_EQ(messaggi.mostrati[0].titolo, "KELVO 2014 - Attenzione");
        EXPECT_EQ(messaggi.mostrati[0].icona, Icona::esclamazione);
    }
    const std::string intervallo = "Indicare dei tempi che rispettino l'intervallo di tempo indicato";
};

TEST_F(ControlliCurva, T1AfterT2IsPutBackWithoutAMessage) {
    rifiuta(t1, "08:45", "08:00");
    EXPECT_TRUE(messaggi.mostrati.empty());
    EXPECT_NE(cornice.avvisato, "");
    EXPECT_TRUE(finestra.lasciaFuoco()) << "what was put back passes";
}

TEST_F(ControlliCurva, T1BeforeTheModellingTimeIsTold) {
    rifiuta(t1, "07:45", "08:00");
    avvisa("Il parametro 't1' deve essere compreso nel  tempo di modellazione [08:00],[09:30]");
    EXPECT_EQ(mentre, "07:45") << "put back after the box";
}

TEST_F(ControlliCurva, T1AtTheStartPassesAndT1IsNotTestedAgainstTheEnd) {
    EXPECT_TRUE(scrivi(t1, "08:00"));
    // A window that ends before t1: t2 lies behind it too.
    app.theRotonda().TempoFinale(oraDelGiorno(8, 10));
    EXPECT_TRUE(scrivi(t1, "08:15"));
    EXPECT_TRUE(messaggi.mostrati.empty());
}

TEST_F(ControlliCurva, T1ThatIsNoWholeNumberOfSegmentsBeforeT2IsTold) {
    rifiuta(t1, "08:05", "08:00");
    avvisa(intervallo);
    EXPECT_EQ(mentre, "08:00") << "put back before the box";
}

TEST_F(ControlliCurva, T1PassesWhereItMeetsT2AndNothingIsBuilt) {
    const auto prima = finestra.curva().FlussiSegmento;
    EXPECT_TRUE(scrivi(t1, "08:30"));
    EXPECT_EQ(finestra.curva().FlussiSegmento, prima);
    EXPECT_EQ(totali(), "525 5,83 350,00");
    EXPECT_EQ(finestra.curva().TotaleArrotondato, "525");
    EXPECT_NE(finestra.ctlChart.contenuto().nota, "");
}

TEST_F(ControlliCurva, T1IsOrderedBeforeItIsHeldAgainstTheWindow) {
    tempi(1, oraDelGiorno(7, 0), oraDelGiorno(7, 15), oraDelGiorno(9, 30));
    riapri("keyDatiTraffico1");
    rifiuta(t1, "07:30", "07:00");
    EXPECT_TRUE(messaggi.mostrati.empty()) << "after t2 and before the window: the order speaks, without words";
}

TEST_F(ControlliCurva, T2OutsideItsNeighboursIsTold) {
    const std::string parole = "Il parametro 't2' deve essere compreso tra i valori di 't1' [08:00] e di 't3' [09:30]";
    rifiuta(t2, "09:45", "08:30");
    avvisa(parole);
    EXPECT_EQ(mentre, "08:30") << "put back before the box";
    rifiuta(t2, "07:45", "08:30");
    avvisa(parole);
}

TEST_F(ControlliCurva, T2ThatIsNoWholeNumberOfSegmentsAfterT1IsTold) {
    rifiuta(t2, "08:40", "08:30");
    avvisa(intervallo);
    EXPECT_EQ(mentre, "08:30");
}

TEST_F(ControlliCurva, T2IsNotAskedForItsDistanceToT3) {
    scrivi(t3, "09:15");
    app.theRotonda().SegmentoTempo(oraDelGiorno(0, 10));
    messaggi.mostrati.clear();
    EXPECT_TRUE(scrivi(t2, "08:20"));
    EXPECT_TRUE(messaggi.mostrati.empty());
}

TEST_F(ControlliCurva, T2PassesWhereItMeetsItsNeighboursAndNothingIsBuilt) {
    EXPECT_TRUE(scrivi(t2, "08:00"));
    EXPECT_EQ(totali(), "525 5,83 350,00");
    EXPECT_TRUE(scrivi(t2, "09:30"));
    EXPECT_EQ(totali(), "525 5,83 350,00");
    EXPECT_TRUE(messaggi.mostrati.empty());
    EXPECT_TRUE(scrivi(t2, "08:45"));
    EXPECT_NE(totali(), "525 5,83 350,00");
}

TEST_F(ControlliCurva, T3BeforeT2IsTold) {
    rifiuta(t3, "08:15", "09:30");
    avvisa("Il parametro 't3' deve essere maggiore del parametro 't2' [08:30].");
    EXPECT_EQ(mentre, "08:15") << "put back after the box";
}

TEST_F(ControlliCurva, T3AfterTheModellingTimeIsTold) {
    rifiuta(t3, "09:45", "09:30");
    avvisa("Il parametro 't3' deve essere compreso nel  tempo di modellazione [08:00],[09:30]");
    EXPECT_EQ(mentre, "09:45");
}

TEST_F(ControlliCurva, T3IsNotTestedAgainstTheStart) {
    tempi(1, oraDelGiorno(6, 0), oraDelGiorno(6, 30), oraDelGiorno(7, 30));
    riapri("keyDatiTraffico1");
    EXPECT_FALSE(finestra.lasciaFuoco()) << "t1 complains once";
    messaggi.mostrati.clear();
    EXPECT_TRUE(scrivi(t3, "07:45"));
    EXPECT_TRUE(messaggi.mostrati.empty());
}

TEST_F(ControlliCurva, T3ThatIsNoWholeNumberOfSegmentsAfterT2IsTold) {
    rifiuta(t3, "09:20", "09:30");
    avvisa(intervallo);
    EXPECT_EQ(mentre, "09:30");
}

TEST_F(ControlliCurva, T3PassesWhereItMeetsT2AndNothingIsBuilt) {
    EXPECT_TRUE(scrivi(t3, "08:30"));
    EXPECT_EQ(totali(), "525 5,83 350,00");
    EXPECT_TRUE(messaggi.mostrati.empty());
    EXPECT_TRUE(t3.abilitato()) << "flat, but no earlier t2 could open it again";
    EXPECT_EQ(q3.testo(), "10");
}

TEST_F(ControlliCurva, TimesThatPassAreBuiltAndDrawn) {
    EXPECT_TRUE(scrivi(t1, "08:15"));
    EXPECT_EQ(finestra.curva().FlussiSegmento.size(), 5U);
    EXPECT_EQ(barre().valori.size(), 5U);
    EXPECT_TRUE(scrivi(t2, "08:45"));
    EXPECT_EQ(finestra.curva().EtichetteSegmento.front(), "08:15-08:30");
    EXPECT_EQ(barre().valori[2], 10.0);
    app.theRotonda().TempoFinale(oraDelGiorno(10, 0));
    EXPECT_TRUE(scrivi(t3, "10:00"));
    EXPECT_EQ(finestra.curva().EtichetteSegmento.back(), "09:45-10:00");
    EXPECT_FALSE(finestra.DatiAllineati());
}

TEST_F(ControlliCurva, ALegWhoseTimesLieOutsideTheWindowComplainsAndCanStillBeLeft) {
    // The modelling time was moved by as much at both ends: the legs kept their times.
    app.theRotonda().TempoIniziale(oraDelGiorno(10, 0));
    app.theRotonda().TempoFinale(oraDelGiorno(11, 30));
    riapri("keyDatiTraffico1");
    messaggi.mostrati.clear();
    ASSERT_TRUE(finestra.fuocoSu(t1));
    EXPECT_FALSE(finestra.lasciaFuoco());
    avvisa("Il parametro 't1' deve essere compreso nel  tempo di modellazione [10:00],[11:30]");
    EXPECT_EQ(t1.testo(), "08:00");
    EXPECT_TRUE(finestra.lasciaFuoco()) << "once told it lets go";
    // A time of the user's own is refused each time, and then the leg's again once.
    rifiuta(t1, "08:15", "08:00");
    EXPECT_FALSE(finestra.lasciaFuoco());
    EXPECT_TRUE(finestra.lasciaFuoco());
    // The three can be brought in, from the last to the first.
    EXPECT_TRUE(scrivi(t3, "11:30"));
    EXPECT_TRUE(scrivi(t2, "10:30"));
    EXPECT_TRUE(scrivi(t1, "10:00"));
    EXPECT_TRUE(apri("keyDatiTraffico2"));
    EXPECT_EQ(testoHHNN(dati(1).Tempo1()), "10:00");
    EXPECT_EQ(testoHHNN(dati(1).Tempo3()), "11:30");
}

TEST_F(ControlliCurva, AWindowOfBadTimesIsKeptOnceAndThenLeftUnchanged) {
    app.theRotonda().TempoIniziale(oraDelGiorno(10, 0));
    app.theRotonda().TempoFinale(oraDelGiorno(11, 30));
    const std::string prima = salva("prima.klv");
    riapri("keyDatiTraffico1");
    EXPECT_FALSE(apri("keyDatiTraffico2"));
    EXPECT_EQ(finestra.fuoco(), &t1);
    EXPECT_TRUE(apri("keyDatiTraffico2"));
    EXPECT_EQ(salva("dopo.klv"), prima);
}

TEST_F(ControlliCurva, AFlowThatDiffersClearsTheMarkAndIsBuiltAndDrawn) {
    EXPECT_TRUE(scrivi(q1, "4,0"));
    EXPECT_TRUE(finestra.DatiAllineati()) << "the same number in other digits";
    for (tBox* campo : {&q1, &q2, &q3}) {
        finestra.ReadData();
        EXPECT_TRUE(scrivi(*campo, "8,5"));
        EXPECT_FALSE(finestra.DatiAllineati()) << campo->nome();
    }
    finestra.ctlToolbar.premi("Refresh");
    scrivi(q2, "16");
    EXPECT_EQ(finestra.curva().FlussiSegmento[1], 10.0F);
    EXPECT_EQ(barre().valori[2], 16.0);
    EXPECT_EQ(finestra.curva().TotaleArrotondato, finestra.txtFlussoTotale.testo());
}

TEST_F(ControlliCurva, ALoneCommaDoesNothing) {
    for (const char* vuoto : {",", "."}) {
        EXPECT_TRUE(scrivi(q2, vuoto)) << vuoto;
        EXPECT_TRUE(finestra.DatiAllineati()) << vuoto;
        EXPECT_EQ(totali(), "525 5,83 350,00") << vuoto;
        EXPECT_EQ(barre().valori[2], 10.0) << vuoto;
    }
    EXPECT_TRUE(errori.empty());
}

TEST_F(ControlliCurva, AnEmptiedFlowCountsAsZero) {
    EXPECT_TRUE(scrivi(q2, ""));
    EXPECT_FALSE(finestra.DatiAllineati());
    EXPECT_EQ(finestra.curva().FlussiSegmento[2], 0.0F);
    EXPECT_EQ(barre().valori[2], 0.0);
}

TEST_F(ControlliCurva, T3StaysOpenWhereNoEarlierT2CouldOpenItAgain) {
    EXPECT_TRUE(scrivi(t2, "08:45"));
    EXPECT_TRUE(scrivi(t3, "09:15"));
    EXPECT_FALSE(t3.abilitato()) << "t2 at 08:15 or before opens it";
    EXPECT_TRUE(scrivi(t2, "08:15"));
    EXPECT_TRUE(t3.abilitato());
    EXPECT_TRUE(scrivi(t3, "08:30"));
    EXPECT_TRUE(t3.abilitato()) << "two segments in all";
    EXPECT_TRUE(scrivi(t3, "09:30"));
    EXPECT_EQ(q3.testo(), "10");
    EXPECT_EQ(finestra.curva().FlussiSegmento.size(), 6U);
}

TEST_F(ControlliCurva, T3OfAFlatCurveStaysOpenWhileItLiesOutsideTheStudy) {
    EXPECT_TRUE(scrivi(t2, "09:00"));
    EXPECT_FALSE(t3.abilitato());
    finestra.SaveData();
    app.theRotonda().TempoFinale(oraDelGiorno(9, 15));
    riapri("keyDatiTraffico1");
    EXPECT_TRUE(t3.abilitato());
    EXPECT_FALSE(scrivi(t3, "09:45"));
    EXPECT_TRUE(scrivi(t3, "09:15"));
}

TEST_F(ControlliCurva, TheModeDoesNotChangeWhileAFieldRefusesToBeLeft) {
    finestra.fuocoSu(q2);
    q2.scrivi("1,2,3");
    finestra.Check2.clicca();
    EXPECT_FALSE(finestra.Check2.spuntata());
    EXPECT_TRUE(q2.abilitato());
    EXPECT_FALSE(finestra.txtTarget.visibile());
    EXPECT_TRUE(q2.fallito());
    EXPECT_TRUE(errori.empty());
}

TEST_F(ControlliCurva, FlowsTakeDigitsAndACommaAndNoSecondOne) {
    scrivi(q1, "a5.2x5-");
    EXPECT_EQ(q1.testo(), "5,25");
    EXPECT_FALSE(scrivi(q1, "1,2,3"));
    EXPECT_TRUE(q1.fallito());
    EXPECT_TRUE(stato.convalidaFallita);
    EXPECT_NE(cornice.avvisato, "");
    q1.scrivi(std::string(30, '9'));
    EXPECT_EQ(q1.testo().size(), 17U);
    EXPECT_TRUE(finestra.lasciaFuoco());
}

TEST_F(ControlliCurva, AFlatCurveClosesT3AndQ3AndQ3TakesQ2) {
    // Two segments behind the peak: 2 - 1 is not above 1.
    EXPECT_TRUE(scrivi(t3, "09:00"));
    EXPECT_TRUE(finestra.curva().piatto);
    EXPECT_FALSE(t3.abilitato());
    EXPECT_FALSE(q3.abilitato());
    EXPECT_EQ(q3.testo(), "10");
    EXPECT_EQ(finestra.curva().FlussiSegmento, (std::vector<float>{4.0F, 7.0F, 10.0F, 10.0F}));
    EXPECT_EQ(totali(), "465 7,75 465,00");
    scrivi(q2, "12,5");
    EXPECT_EQ(q3.testo(), "12,5");
    // t2 further back: t3 opens again, q3 stays closed until something else opens it.
    EXPECT_TRUE(scrivi(t2, "08:15"));
    EXPECT_FALSE(finestra.curva().piatto);
    EXPECT_TRUE(t3.abilitato());
    EXPECT_FALSE(q3.abilitato());
    EXPECT_EQ(q3.testo(), "12,5");
}

TEST_F(ControlliCurva, OnOpeningTheModeOpensQ3OfAFlatCurve) {
    tempi(1, oraDelGiorno(8, 0), oraDelGiorno(8, 30), oraDelGiorno(9, 0));
    riapri("keyDatiTraffico1");
    EXPECT_TRUE(finestra.curva().piatto);
    EXPECT_TRUE(q3.abilitato());
    EXPECT_FALSE(t3.abilitato());
    EXPECT_EQ(q3.testo(), "10");
    // What is typed there gives way to q2 as soon as the curve is built.
    scrivi(q3, "3");
    EXPECT_EQ(q3.testo(), "10");
    EXPECT_FALSE(q3.abilitato());
}

}  // namespace
}  // namespace kelvo::prove
