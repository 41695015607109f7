// The faults of the simulations, with what stays written.

#include "base/date.h"
#include "traccia.h"

namespace kelvo::prove {

namespace {

constexpr std::array<bool, 4> nessunaCorsia{};

/// The tidy project of four legs: demand starts with segment 1, so that record 1 of the curve has no flow.
struct GuastiSimulazione : testing::Test {
    GuastiSimulazione() { progettoOrdinato(banco, 4); }

    /// Runs on marked results, compares with the oracle and checks fault, label and stamp.
    void corri(const Corsa& corsa, int numero, const std::string& parole) {
        segna(banco);
        EXPECT_EQ(banco.confronta(corsa), "");
        EXPECT_EQ(banco.guasto, numero) << corsa.nome();
        EXPECT_EQ(banco.descrizione.rfind(parole, 0), 0U) << corsa.nome() << ": " << banco.descrizione;
        EXPECT_EQ(banco.metodo, numero == 0 ? "" : corsa.metodo()) << corsa.nome();
        if (numero != 0) {
            EXPECT_EQ(banco.rotonda().timbro().forma,
                      recordScritti(banco) == 0 ? FormaCalcolo::piana : FormaCalcolo::interrotta)
                << corsa.nome();
        }
    }
    void corriBene(const Corsa& corsa) { corri(corsa, 0, ""); }

    /// Nothing at all was written.
    void nullaScritto(const Corsa& corsa) {
        for (int i = 1; i <= banco.rotonda().NumeroRami(); ++i) {
            EXPECT_EQ(parametriScritti(banco, i), 0) << corsa.nome();
        }
        EXPECT_EQ(capacitaScritte(banco), 0) << corsa.nome();
        EXPECT_EQ(recordScritti(banco), 0) << corsa.nome();
    }
    /// Parameters of all legs, so many ultimate capacities and so many records were written.
    void scritti(const Corsa& corsa, int capacita, int record) {
        for (int i = 1; i <= banco.rotonda().NumeroRami(); ++i) {
            EXPECT_EQ(parametriScritti(banco, i), 6) << corsa.nome();
        }
        EXPECT_EQ(capacitaScritte(banco), capacita) << corsa.nome();
        EXPECT_EQ(recordScritti(banco), record) << corsa.nome();
    }

    std::vector<Corsa> curve(const std::string& modo) {
        return {curva(modo), curvaIpotesi(1, misureDi(banco, 1), modo), curvaDX(modo, nessunaCorsia)};
    }
    std::vector<Corsa> tabelle(const std::string& modo) {
        return {tabella(modo), tabellaIpotesi(1, misureDi(banco, 1), modo), tabellaDX(modo, nessunaCorsia)};
    }
    /// The what-if curve leaves the ultimate capacities; all other forms write all four.
    static int capacitaDi(const Corsa& corsa) {
        return corsa.operazione == Operazione::curva && corsa.richiesta.forma == oracolo::Forma::ipotesi ? 0 : 4;
    }

    Banco banco;
};

}  // namespace

TEST_F(GuastiSimulazione, SegmentOfWholeHoursFaultsBeforeAnythingIsWritten) {
    banco.rotonda().SegmentoTempo(oraDelGiorno(1, 0));
    for (const char* modo : {"0", "1", "x"}) {
        for (const auto& corse : {curve(modo), tabelle(modo)}) {
            for (const Corsa& corsa : corse) {
                corri(corsa, 11, divisionePerZero);
                nullaScritto(corsa);
            }
        }
    }
}

TEST_F(GuastiSimulazione, RiseOfNoLengthFaultsBeforeAnythingIsWritten) {
    banco.ramo(3).theDatiTraffico().Tempo1(banco.ramo(3).theDatiTraffico().Tempo2());
    for (const char* modo : {"0", "1", "x"}) {
        for (const Corsa& corsa : curve(modo)) {
            corri(corsa, 11, divisionePerZero);
            nullaScritto(corsa);
        }
    }
    for (const Corsa& corsa : tabelle("0")) {
        corriBene(corsa);
    }
}

TEST_F(GuastiSimulazione, FallOfOneSegmentFaultsInThePlainFormAndNotInTheWhatIf) {
    banco.ramo(2).theDatiTraffico().Tempo3(oraDelGiorno(8, 45));  // one segment behind the peak
    corri(curva("0"), 11, divisionePerZero);
    nullaScritto(curva("0"));
    corri(curvaDX("0", nessunaCorsia), 11, divisionePerZero);
    corriBene(curvaIpotesi(1, misureDi(banco, 1), "0"));
    banco.ramo(2).theDatiTraffico().Tempo3(oraDelGiorno(8, 30));  // at the peak: the fall is one segment back
    corriBene(curva("0"));
    corri(curvaIpotesi(1, misureDi(banco, 1), "0"), 11, divisionePerZero);
    nullaScritto(curvaIpotesi(1, misureDi(banco, 1), "0"));
}

TEST_F(GuastiSimulazione, RiseShorterThanHalfASegmentFaults) {
    DatiTraffico& traffico = banco.ramo(1).theDatiTraffico();
    traffico.Tempo1(oraDelGiorno(8, 23));  // 7 of 15 minutes: 0 segments
    corri(curva("0"), 11, divisionePerZero);
    nullaScritto(curva("0"));
    traffico.Tempo1(oraDelGiorno(8, 22));  // 8 of 15: 1 segment
    corriBene(curva("0"));
    banco.rotonda().SegmentoTempo(oraDelGiorno(0, 10));
    traffico.Tempo1(oraDelGiorno(8, 25));  // 5 of 10: the half goes to the even 0
    corri(curva("0"), 11, divisionePerZero);
    nullaScritto(curva("0"));
    traffico.Tempo1(oraDelGiorno(8, 15));
    traffico.Tempo2(oraDelGiorno(8, 30));  // 15 of 10: the half goes to the even 2
    corriBene(curva("0"));
}

TEST_F(GuastiSimulazione, OneSegmentFaultsInTheFirstRecordWithFlow) {
    for (int i = 1; i <= 4; ++i) {
        banco.ramo(i).theDatiTraffico().NumSegmentiTempo(1);
    }
    for (const Corsa& corsa : curve("0")) {
        corri(corsa, 11, divisionePerZero);
        scritti(corsa, capacitaDi(corsa), 4);  // record 1 has no flow on any leg
        EXPECT_EQ(banco.record(1, 1).Flusso, 0.0F);
    }
    for (const Corsa& corsa : tabelle("0")) {
        corri(corsa, 11, divisionePerZero);
        scritti(corsa, 4, 0);
    }
}

TEST_F(GuastiSimulazione, OneSegmentWithoutFlowIsNoFaultOfTheCurve) {
    for (int i = 1; i <= 4; ++i) {
        banco.ramo(i).theDatiTraffico().NumSegmentiTempo(1);
    }
    corriBene(curva("no"));
    scritti(curva("no"), 4, 32);
    corri(tabella("no"), 11, divisionePerZero);
}

TEST_F(GuastiSimulazione, CapacityZeroFaultsWithFlowInTheCurveAndAlwaysInTheTable) {
    banco.ramo(2).theAnalisiMarginale().CondizioniEsterne(100.0);
    banco.ramo(2).theDatiTraffico().FlussoSegmento(0.0F, 0, 0);
    for (const Corsa& corsa : curve("0")) {
        corri(corsa, 11, divisionePerZero);
        scritti(corsa, capacitaDi(corsa), 5);  // record 1 of all legs, record 2 of the first
        EXPECT_EQ(banco.record(2, 1).Capacita, 0.0F);
        EXPECT_EQ(banco.record(2, 1).Coeff_Sat, 0.0F);
    }
    for (const Corsa& corsa : tabelle("0")) {
        corri(corsa, 11, divisionePerZero);
        scritti(corsa, 4, 1);  // 0 over 0 on the second leg
    }
}

TEST_F(GuastiSimulazione, CapacityBelowZeroIsNoFault) {
    banco.ramo(2).theAnalisiMarginale().CondizioniEsterne(130.0);
    for (const Corsa& corsa : curve("0")) {
        corriBene(corsa);
        scritti(corsa, capacitaDi(corsa), 32);
        const Iterazione record = banco.record(2, 3);
        EXPECT_LT(record.Capacita, 0.0F);
        EXPECT_GT(record.Flusso, 0.0F);
        EXPECT_EQ(record.Coeff_Sat, 0.0F);
    }
    for (const Corsa& corsa : tabelle("0")) {
        corriBene(corsa);
        scritti(corsa, 4, 32);
        EXPECT_LT(banco.record(2, 3).Coeff_Sat, 0.0F);
    }
}

TEST_F(GuastiSimulazione, PercentileHundredIsALogarithmOfZero) {
    banco.rotonda().ValorePercentile(100.0F);
    for (const Corsa& corsa : curve("0")) {
        corri(corsa, 5, chiamataNonValida);
        scritti(corsa, capacitaDi(corsa), 4);
    }
    for (const Corsa& corsa : tabelle("0")) {
        corri(corsa, 5, chiamataNonValida);
        scritti(corsa, 4, 0);
    }
    corriBene(curva("no"));  // no flow, no queue
    corri(tabella("no"), 5, chiamataNonValida);
}

TEST_F(GuastiSimulazione, PercentileAboveHundredIsALogarithmOfANegative) {
    banco.rotonda().ValorePercentile(100.5F);
    corri(curva("0"), 5, chiamataNonValida);
    scritti(curva("0"), 4, 4);
    corri(tabella("0"), 5, chiamataNonValida);
    scritti(tabella("0"), 4, 0);
}

TEST_F(GuastiSimulazione, NegativePercentileCanLeaveANegativeRoot) {
    // Short segments and -ln w below 0: (1 - x)^2 + 8 x / cT (-ln w) falls below 0 on a busy entry.
    for (int i = 1; i <= 4; ++i) {
        banco.ramo(i).theDatiTraffico().NumSegmentiTempo(300);
        banco.ramo(i).theDatiTraffico().FlussoSegmento(10.0F, 0, 0);
    }
    banco.ramo(3).theDatiTraffico().FlussoSegmento(280.0F, 0, 0);
    banco.rotonda().ValorePercentile(-50.0F);
    for (const Corsa& corsa : tabelle("0")) {
        corri(corsa, 5, chiamataNonValida);
        scritti(corsa, 4, 2);
    }
}

TEST_F(GuastiSimulazione, SegmentsShorterThanHalfAMinuteDivideByACapacityOfZero) {
    for (int i = 1; i <= 4; ++i) {
        banco.ramo(i).theDatiTraffico().NumSegmentiTempo(300);  // 120 / 299 minutes: whole, 0
    }
    for (const Corsa& corsa : {curva("0"), curvaDX("0", nessunaCorsia)}) {
        corri(corsa, 11, divisionePerZero);
        scritti(corsa, 4, 4);
    }
    corriBene(curvaIpotesi(1, misureDi(banco, 1), "0"));
}

TEST_F(GuastiSimulazione, RightTurnFormOfFiveLegsRunsOutOfPlaces) {
    progettoOrdinato(banco, 5);
    for (const Corsa& corsa : {curvaDX("0", {true, false, false, true}), tabellaDX("1", {true, false, false, true})}) {
        corri(corsa, 9, indiceFuori);
        nullaScritto(corsa);
        // The shares come first and stand: A to B, and D to A by the rule of four.
        oracolo::Progetto p = oracolo::leggi(banco.finta.app, {});
        EXPECT_EQ(banco.motore.QuoteSvoltaDX()[0], 100.0 * static_cast<double>(p.p[0][1]));
        EXPECT_EQ(banco.motore.QuoteSvoltaDX()[1], 0.0);
        EXPECT_EQ(banco.motore.QuoteSvoltaDX()[3], 100.0 * static_cast<double>(p.p[3][0]));
    }
}

TEST_F(GuastiSimulazione, RightTurnFormOfThreeLegsRunsOutWithTheThirdLane) {
    progettoOrdinato(banco, 3);
    for (const std::array<bool, 4> corsie :
         {std::array{false, false, true, false}, std::array{true, false, false, true}}) {
        for (const Corsa& corsa : {curvaDX("0", corsie), tabellaDX("0", corsie)}) {
            corri(corsa, 9, indiceFuori);
            nullaScritto(corsa);
        }
    }
    corriBene(curvaDX("0", {true, true, false, false}));
    scritti(curvaDX("0", {true, true, false, false}), 3, 24);
}

TEST_F(GuastiSimulazione, WindowOfMoreThan16BitsOfSegmentsOverflows) {
    banco.rotonda().SegmentoTempo(oraDelGiorno(0, 1));
    banco.rotonda().TempoFinale(oraDelGiorno(7, 30) + 23.0);  // 33120 minutes
    for (const Corsa& corsa : curve("0")) {
        corri(corsa, 6, overflow);
        scritti(corsa, capacitaDi(corsa), 0);
    }
    for (const Corsa& corsa : tabelle("0")) {
        corri(corsa, 6, overflow);
        nullaScritto(corsa);
    }
}

TEST_F(GuastiSimulazione, CurveFarOutsideTheWindowOverflowsItsSegmentNumbers) {
    banco.rotonda().SegmentoTempo(oraDelGiorno(0, 1));
    banco.ramo(4).theDatiTraffico().Tempo1(oraDelGiorno(8, 0) - 23.0);
    for (const Corsa& corsa : curve("0")) {
        corri(corsa, 6, overflow);
        scritti(corsa, capacitaDi(corsa), 0);
    }
    for (const Corsa& corsa : tabelle("0")) {
        corriBene(corsa);
    }
}

TEST_F(GuastiSimulazione, SegmentLengthOfTheRecordsOverflowsWhereItIsWhole) {
    banco.rotonda().SegmentoTempo(oraDelGiorno(0, 30));
    banco.rotonda().TempoFinale(oraDelGiorno(7, 30) + 23.0);  // 33120 minutes
    for (int i = 1; i <= 4; ++i) {
        banco.ramo(i).theDatiTraffico().NumSegmentiTempo(2);
    }
    for (const Corsa& corsa : {curva("0"), curvaDX("0", nessunaCorsia)}) {
        corri(corsa, 6, overflow);
        EXPECT_EQ(capacitaScritte(banco), 4);
        EXPECT_EQ(recordScritti(banco), 0);  // 07:45 lies in segment 0
    }
    corriBene(curvaIpotesi(1, misureDi(banco, 1), "0"));
    corriBene(tabella("0"));
}

TEST_F(GuastiSimulazione, ReductionTooLargeForASingleOverflows) {
    banco.ramo(3).theAnalisiMarginale().CondizioniEsterne(1e39);
    for (const auto& corse : {curve("0"), tabelle("0")}) {
        for (const Corsa& corsa : corse) {
            corri(corsa, 6, overflow);
            scritti(corsa, capacitaDi(corsa), 2);
        }
    }
}

TEST_F(GuastiSimulazione, PedestrianIncidenceIsReadOnlyWhereACrossingStands) {
    banco.ramo(3).theAnalisiMarginale().AttraversamentoPedonale(1e39);
    corriBene(curva("0"));
    banco.ramo(3).AttraversamentoPedonale(true);
    corri(curva("0"), 6, overflow);
    scritti(curva("0"), 4, 2);
}

TEST_F(GuastiSimulazione, RowPastTheLastRecordTakesPart) {
    // Nine rows for eight records; the composition of the ninth is too large for a single.
    banco.finestra(oraDelGiorno(7, 30), oraDelGiorno(9, 30), 15, 9);
    for (int i = 1; i <= 4; ++i) {
        for (std::int16_t k = 0; k < 9; ++k) {
            banco.ramo(i).theComposizioneTraffico().CategoriaSegmento(90.0F, k, 6);
        }
    }
    banco.ramo(1).theComposizioneTraffico().CategoriaSegmento(3e38F, 8, 5);
    banco.ramo(1).theComposizioneTraffico().CategoriaSegmento(3e38F, 8, 6);
    for (const auto& corse : {curve("1"), tabelle("1")}) {
        for (const Corsa& corsa : corse) {
            corri(corsa, 6, "Overflow (Ramo A, segmento 9, composizione)");
            scritti(corsa, capacitaDi(corsa), 0);
        }
    }
    corriBene(curva("0"));
    scritti(curva("0"), 4, 32);
}

TEST_F(GuastiSimulazione, VehiclesTooManyForASingleOverflowAlsoWithoutCoefficients) {
    banco.finta.app.configurazione.coefficienti({});
    banco.ramo(2).theComposizioneTraffico().CategoriaSegmento(3e38F, 2, 0);
    banco.ramo(2).theComposizioneTraffico().CategoriaSegmento(3e38F, 2, 6);
    for (const auto& corse : {curve("1"), tabelle("1")}) {
        for (const Corsa& corsa : corse) {
            corri(corsa, 6, "Overflow (Ramo B, segmento 3, composizione)");
            scritti(corsa, capacitaDi(corsa), 0);
        }
    }
}

TEST_F(GuastiSimulazione, CompositionOfTheWindowTooLargeForASingleOverflows) {
    banco.ramo(2).theComposizioneTraffico().Autotreni(3e38F);
    banco.finta.app.configurazione.VEAutotreni = 1000.0F;
    for (const Corsa& corsa : curve("0")) {
        corri(corsa, 6, "Overflow (Ramo B, composizione)");
        nullaScritto(corsa);
    }
    for (const Corsa& corsa : tabelle("0")) {
        corri(corsa, 6, "Overflow (Ramo B, composizione)");
        if (corsa.richiesta.forma == oracolo::Forma::corsie) {
            nullaScritto(corsa);
        } else {
            scritti(corsa, 4, 0);
        }
    }
    // A window that holds row 0 alone needs it, one that ends before it starts does not; the lanes do in any window.
    banco.rotonda().TempoFinale(banco.rotonda().TempoIniziale());
    corri(tabella("0"), 6, overflow);
    banco.rotonda().TempoFinale(oraDelGiorno(6, 0));
    corriBene(tabella("0"));
    corriBene(tabellaIpotesi(1, misureDi(banco, 1), "0"));
    corri(tabellaDX("0", nessunaCorsia), 6, overflow);
    nullaScritto(tabellaDX("0", nessunaCorsia));
}

TEST_F(GuastiSimulazione, LanesReadCompositionAndShareLegByLeg) {
    // Leg 2 has no segments to share by, leg 3 a composition that overflows: leg 2 comes first.
    banco.ramo(2).theDatiTraffico().NumSegmentiTempo(0);
    banco.ramo(3).theComposizioneTraffico().Autotreni(3e38F);
    banco.finta.app.configurazione.VEAutotreni = 1000.0F;
    for (const Corsa& corsa : {curvaDX("0", nessunaCorsia), tabellaDX("0", nessunaCorsia)}) {
        corri(corsa, 11, "Divisione per zero (Ramo B, nessun segmento di tempo)");
        nullaScritto(corsa);
    }
    // The other way round the composition of leg 1 comes before the share of leg 2.
    banco.ramo(1).theComposizioneTraffico().Autotreni(3e38F);
    for (const Corsa& corsa : {curvaDX("0", nessunaCorsia), tabellaDX("0", nessunaCorsia)}) {
        corri(corsa, 6, "Overflow (Ramo A, composizione)");
    }
}

TEST_F(GuastiSimulazione, FaultsOfDemandNameTheirPlace) {
    banco.ramo(3).theDatiTraffico().FlussoSegmento(3e38F, 0, 0);
    corri(tabella("0"), 6, "Overflow (Ramo C, segmento 1)");
    banco.ramo(3).theDatiTraffico().FlussoTempo2(1e38F);  // times 60
    corri(curva("0"), 6, "Overflow (Ramo C, segmento 3)");
    banco.ramo(3).theDatiTraffico().FlussoTempo2(3e38F);  // times the segments of the rise
    corri(curva("0"), 6, "Overflow (Ramo C, curva di domanda)");
    banco.ramo(3).theDatiTraffico().Tempo1(banco.ramo(3).theDatiTraffico().Tempo2());
    banco.ramo(3).theDatiTraffico().FlussoTempo2(5.0F);
    corri(curva("0"), 11, "Divisione per zero (Ramo C, tratto della curva senza segmenti)");
}

TEST_F(GuastiSimulazione, SegmentOfWholeHoursIsNamedInEveryForm) {
    banco.rotonda().SegmentoTempo(oraDelGiorno(1, 0));
    corri(curva("0"), 11, "Divisione per zero (Ramo A, segmento di tempo di 0 minuti)");
    corri(curvaDX("0", nessunaCorsia), 11, "Divisione per zero (Ramo A, segmento di tempo di 0 minuti)");
    corri(tabella("0"), 11, "Divisione per zero (segmento di tempo di 0 minuti)");
    corri(tabellaDX("0", nessunaCorsia), 11, "Divisione per zero (segmento di tempo di 0 minuti)");
}

TEST_F(GuastiSimulazione, RecordsPastTheGridKeepTheirOldValues) {
    for (const auto& corse : {curve("0"), tabelle("1")}) {
        for (const Corsa& corsa : corse) {
            corriBene(corsa);
            EXPECT_EQ(recordScritti(banco), 32) << corsa.nome();
            EXPECT_EQ(banco.record(1, 9), recordVecchio) << corsa.nome();
        }
    }
}

}  // namespace kelvo::prove
