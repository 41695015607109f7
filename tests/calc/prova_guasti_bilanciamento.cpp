// The faults of the capacity line and of the balancing, with what stays written.

#include "base/guasto.h"
#include "calc/bilanciamento.h"
#include "traccia.h"

namespace kelvo::prove {

namespace {

/// Runs `corsa` on marked results and compares with the oracle.
void corri(Banco& banco, const Corsa& corsa) {
    segna(banco);
    EXPECT_EQ(banco.confronta(corsa), "");
}

/// The calls that read the geometry of the legs as it stands.
std::vector<Corsa> corseSulPosto() {
    return {bilancia(),
            bilanciaIpotesi(0, {}),
            curva("0"),
            curvaIpotesi(0, {}, "1"),
            tabella("0"),
            curvaDX("0", {true, false, false, false}),
            tabellaDX("1", {false, true, false, false})};
}

void aspettaGuasto(Banco& banco, const Corsa& corsa, int numero, const std::string& parole) {
    EXPECT_EQ(banco.guasto, numero) << corsa.nome();
    EXPECT_EQ(banco.descrizione.rfind(parole, 0), 0U) << corsa.nome() << ": " << banco.descrizione;
    EXPECT_EQ(banco.metodo, corsa.metodo()) << corsa.nome();
    ASSERT_EQ(banco.finta.messaggi.mostrati.size(), 1U) << corsa.nome();
    EXPECT_EQ(banco.finta.messaggi.mostrati[0].icona, Icona::critica);
}

/// A fault in the geometry of leg 2: leg 1 is whole, of leg 2 so many of the six stand, nothing else changed.
void aspettaGuastoNelSecondo(Banco& banco, int numero, const std::string& parole, int scrittiNelSecondo) {
    for (const Corsa& corsa : corseSulPosto()) {
        corri(banco, corsa);
        aspettaGuasto(banco, corsa, numero, parole);
        EXPECT_EQ(parametriScritti(banco, 1), 6) << corsa.nome();
        EXPECT_EQ(parametriScritti(banco, 2), scrittiNelSecondo) << corsa.nome();
        EXPECT_EQ(parametriScritti(banco, 3), 0) << corsa.nome();
        EXPECT_EQ(capacitaScritte(banco), 0) << corsa.nome();
        EXPECT_EQ(recordScritti(banco), 0) << corsa.nome();
        EXPECT_EQ(banco.rotonda().timbro().forma, FormaCalcolo::piana) << corsa.nome();
    }
}

// With these widths and diameters, phi 30 and r 20, the slope Fc is 1 to the last bit of a single; the last one lies
// one bit below. Worked out from Fc = 0.21 tD (1 + 0.2 x2), x2 = v.
constexpr float larghezzaPendenza1 = 14.047619F;       // D = 60
constexpr float larghezzaPendenza1D40 = 11.529817F;    // D = 40
constexpr float larghezzaSottoPendenza1 = 11.529816F;  // D = 40
constexpr float larghezzaPendenza2 = 33.0952377F;      // D = 60, a slope of 2

void geometriaDiritta(Ramo& ramo, float larghezza, float D) {
    ramo.LarghezzaIngresso(larghezza);
    ramo.SemiLarghezza(larghezza);
    ramo.LunghezzaSvasatura(10.0F);
    ramo.AngoloConflitto(30.0F);
    ramo.RaggioIngresso(20.0F);
    ramo.DiametroInscritto(D);
}

void svuotaMatrice(Banco& banco) {
    const std::int16_t n = banco.rotonda().NumeroRami();
    for (std::int16_t o = 1; o <= n; ++o) {
        for (std::int16_t c = 1; c <= n; ++c) {
            banco.rotonda().MatriceSvolte(0.0F, o, c);
        }
    }
}

/// Four legs of which A and C weigh on each other with the whole of their flow: A goes to D, C goes to B.
void dueDiFronte(Banco& banco, float larghezzaC) {
    progettoOrdinato(banco, 4);
    svuotaMatrice(banco);
    banco.rotonda().MatriceSvolte(100.0F, 1, 4);
    banco.rotonda().MatriceSvolte(100.0F, 3, 2);
    geometriaDiritta(banco.ramo(1), larghezzaPendenza1, 60.0F);
    geometriaDiritta(banco.ramo(3), larghezzaC, 40.0F);
}

/// Three legs that throttle each other in a ring: all vehicles take the second exit.
void anello(Banco& banco, float larghezza) {
    progettoOrdinato(banco, 3);
    svuotaMatrice(banco);
    for (std::int16_t o = 1; o <= 3; ++o) {
        banco.rotonda().MatriceSvolte(50.0F, o, static_cast<std::int16_t>((o + 1) % 3 + 1));
        geometriaDiritta(banco.ramo(o), larghezza, 60.0F);
    }
}

/// The six of every leg were written, and nothing else.
void aspettaSoloParametri(Banco& banco, const Corsa& corsa) {
    for (int i = 1; i <= banco.rotonda().NumeroRami(); ++i) {
        EXPECT_EQ(parametriScritti(banco, i), 6) << corsa.nome();
    }
    EXPECT_EQ(capacitaScritte(banco), 0) << corsa.nome();
    EXPECT_EQ(recordScritti(banco), 0) << corsa.nome();
    EXPECT_EQ(banco.rotonda().timbro().forma, FormaCalcolo::piana) << corsa.nome();
}

void aspettaNonConverge(Banco& banco, const Corsa& corsa) {
    aspettaGuasto(banco, corsa, 17, "Il bilanciamento non converge");
    aspettaSoloParametri(banco, corsa);
}

/// The coefficient matrix of the project, after its parameters.
Quadrata<float> matriceDi(Banco& banco) {
    banco.motore.Calcola_Parametri();
    return Costruisci_Matrice(banco.rotonda());
}

}  // namespace

TEST(GuastiGeometria, FlareLengthZeroStopsAtTheSharpness) {
    Banco banco;
    progettoOrdinato(banco, 4);
    banco.ramo(2).LunghezzaSvasatura(0.0F);
    aspettaGuastoNelSecondo(banco, 11, divisionePerZero, 2);
}

TEST(GuastiGeometria, FlareLengthZeroWithoutAFlareIsStillADivisionByZero) {
    Banco banco;
    progettoOrdinato(banco, 4);
    banco.ramo(2).LunghezzaSvasatura(0.0F);
    banco.ramo(2).LarghezzaIngresso(banco.ramo(2).SemiLarghezza());
    aspettaGuastoNelSecondo(banco, 11, divisionePerZero, 2);
}

TEST(GuastiGeometria, EntryRadiusZeroStopsAtTheFirstFactor) {
    Banco banco;
    progettoOrdinato(banco, 4);
    banco.ramo(2).RaggioIngresso(0.0F);
    aspettaGuastoNelSecondo(banco, 11, divisionePerZero, 0);
}

TEST(GuastiGeometria, SharpnessOfMinusOneHalfStopsAtTheEffectiveWidth) {
    Banco banco;
    progettoOrdinato(banco, 4);
    banco.ramo(2).LarghezzaIngresso(3.75F);
    banco.ramo(2).SemiLarghezza(5.0F);
    banco.ramo(2).LunghezzaSvasatura(4.0F);
    aspettaGuastoNelSecondo(banco, 11, divisionePerZero, 3);
    EXPECT_EQ(banco.ramo(2).S(), -0.5);
}

TEST(GuastiGeometria, HugeDiameterOverflowsTheExponential) {
    Banco banco;
    progettoOrdinato(banco, 4);
    banco.ramo(2).DiametroInscritto(7158.0F);  // exp(709.8) is above the largest double
    aspettaGuastoNelSecondo(banco, 6, overflow, 1);
    banco.ramo(2).DiametroInscritto(7157.0F);
    for (const Corsa& corsa : corseSulPosto()) {
        corri(banco, corsa);
        EXPECT_EQ(banco.guasto, 0) << corsa.nome();
    }
    EXPECT_EQ(banco.ramo(2).Td(), 1.0);
}

TEST(GuastiGeometria, ParametersAlonePassTheFaultToTheCaller) {
    Banco banco;
    progettoOrdinato(banco, 3);
    banco.ramo(2).RaggioIngresso(0.0F);
    segna(banco);
    try {
        banco.motore.Calcola_Parametri();
        FAIL() << "no fault";
    } catch (const Guasto& guasto) {
        EXPECT_EQ(guasto.codice(), 11);
    }
    EXPECT_TRUE(banco.finta.messaggi.mostrati.empty());
    EXPECT_EQ(parametriScritti(banco, 1), 6);
    EXPECT_EQ(parametriScritti(banco, 2), 0);
    EXPECT_EQ(parametriScritti(banco, 3), 0);
}

TEST(GuastiGeometria, WhatIfMeasuresFaultLikeStoredOnes) {
    Banco banco;
    progettoOrdinato(banco, 4);
    oracolo::Misure misure = misureDi(banco, 3);
    misure.l = 0.0F;
    for (const Corsa& corsa :
         {bilanciaIpotesi(3, misure), curvaIpotesi(3, misure, "0"), tabellaIpotesi(3, misure, "0")}) {
        corri(banco, corsa);
        aspettaGuasto(banco, corsa, 11, divisionePerZero);
        EXPECT_EQ(parametriScritti(banco, 2), 6) << corsa.nome();
        EXPECT_EQ(parametriScritti(banco, 3), 2) << corsa.nome();
        EXPECT_EQ(parametriScritti(banco, 4), 0) << corsa.nome();
        EXPECT_EQ(capacitaScritte(banco), 0) << corsa.nome();
        EXPECT_EQ(recordScritti(banco), 0) << corsa.nome();
        EXPECT_EQ(banco.ramo(3).LunghezzaSvasatura(), 18.0F);
    }
    // The other way round: the measures passed in heal a leg that would fault.
    banco.ramo(3).LunghezzaSvasatura(0.0F);
    misure.l = 18.0F;
    for (const Corsa& corsa :
         {bilanciaIpotesi(3, misure), curvaIpotesi(3, misure, "0"), tabellaIpotesi(3, misure, "0")}) {
        corri(banco, corsa);
        EXPECT_EQ(banco.guasto, 0) << corsa.nome();
        EXPECT_EQ(banco.rotonda().timbro().forma, FormaCalcolo::ipotesi);
    }
}

TEST(GuastiBilanciamento, DeterminantZeroStopsAfterTheParameters) {
    Banco banco;
    dueDiFronte(banco, larghezzaPendenza1D40);
    for (const Corsa& corsa : corseSulPosto()) {
        corri(banco, corsa);
        aspettaGuasto(banco, corsa, 11, divisionePerZero);
        aspettaSoloParametri(banco, corsa);
    }
}

TEST(GuastiBilanciamento, DeterminantOfTheDiagonalsCountsAndNotTheTrueOne) {
    // The two that face each other, and B whose vehicles all go to D: the diagonals give 1 - 1, the true determinant
    // adds M[0,1] M[1,2] M[2,0], which is not 0.
    Banco banco;
    dueDiFronte(banco, larghezzaPendenza1D40);
    banco.rotonda().MatriceSvolte(100.0F, 2, 4);
    const Quadrata<float> M = matriceDi(banco);
    EXPECT_EQ(M[0][2], 1.0F);
    EXPECT_EQ(M[2][0], 1.0F);
    EXPECT_GT(M[0][1] * M[1][2], 0.1F);
    EXPECT_EQ(M[3][0], 0.0F);  // no other cycle
    for (const Corsa& corsa : corseSulPosto()) {
        corri(banco, corsa);
        aspettaGuasto(banco, corsa, 11, divisionePerZero);
        aspettaSoloParametri(banco, corsa);
    }
}

TEST(GuastiBilanciamento, TrueDeterminantOfZeroIsNoDivisionByZero) {
    // 1 - M[0,2] M[2,0] + M[0,1] M[1,2] M[2,0] = 1 - 2 + 1: no state balances, and each sweep climbs by the same step.
    Banco banco;
    dueDiFronte(banco, larghezzaPendenza1D40);
    geometriaDiritta(banco.ramo(1), larghezzaPendenza2, 60.0F);
    geometriaDiritta(banco.ramo(2), larghezzaPendenza1, 60.0F);
    banco.rotonda().MatriceSvolte(50.0F, 2, 4);
    banco.rotonda().MatriceSvolte(50.0F, 2, 3);
    const Quadrata<float> M = matriceDi(banco);
    EXPECT_EQ(M[2][0], 2.0F);
    EXPECT_EQ(M[0][2], 1.0F);
    EXPECT_EQ(M[0][1], 1.0F);
    EXPECT_EQ(M[1][2], 0.5F);
    EXPECT_EQ(M[3], (std::array<float, 8>{0.0F, 0.0F, 0.0F, 1.0F}));
    for (const Corsa& corsa : {bilancia(), bilanciaIpotesi(0, {})}) {
        corri(banco, corsa);
        aspettaNonConverge(banco, corsa);
    }
}

TEST(GuastiBilanciamento, WeightTooLargeForASingleOverflows) {
    // A turning share of 3e36 on a slope of 5e4.
    Banco banco;
    progettoOrdinato(banco, 4);
    banco.rotonda().TipoMatriceSvolte(1);
    banco.rotonda().MatriceSvolte(3e38F, 1, 3);
    geometriaDiritta(banco.ramo(2), 1e6F, 60.0F);
    for (const Corsa& corsa : corseSulPosto()) {
        corri(banco, corsa);
        aspettaGuasto(banco, corsa, 6, "Overflow (bilanciamento dei flussi)");
        aspettaSoloParametri(banco, corsa);
    }
}

TEST(GuastiBilanciamento, WhatIfRecordsStandUpToACapacityTooLargeForASingle) {
    // Intercepts of 303 times the width: 3.6e38 on leg 3. With an empty matrix each is its own ultimate capacity.
    Banco banco;
    progettoOrdinato(banco, 4);
    svuotaMatrice(banco);
    geometriaDiritta(banco.ramo(3), 1.2e36F, 60.0F);
    const Corsa corsa = bilanciaIpotesi(0, {});
    corri(banco, corsa);
    aspettaGuasto(banco, corsa, 6, "Overflow (Ramo C, capacità ultima)");
    EXPECT_EQ(capacitaScritte(banco), 4);
    for (int k = 1; k <= 8; ++k) {
        EXPECT_EQ(banco.record(1, k).Capacita, static_cast<float>(banco.ramo(1).CapacitaUltima())) << k;
        EXPECT_EQ(banco.record(2, k).Capacita, static_cast<float>(banco.ramo(2).CapacitaUltima())) << k;
        EXPECT_EQ(banco.record(3, k), recordVecchio) << k;
        EXPECT_EQ(banco.record(4, k), recordVecchio) << k;
    }
    EXPECT_EQ(banco.rotonda().timbro().forma, FormaCalcolo::interrotta);

    // The first record due is the one that overflows: nothing was written over, and the old stamp stays.
    geometriaDiritta(banco.ramo(1), 1.2e36F, 60.0F);
    corri(banco, corsa);
    aspettaGuasto(banco, corsa, 6, "Overflow (Ramo A, capacità ultima)");
    EXPECT_EQ(recordScritti(banco), 0);
    EXPECT_EQ(banco.rotonda().timbro().forma, FormaCalcolo::piana);

    // Legs without segments have no record due.
    banco.ramo(1).theDatiTraffico().NumSegmentiTempo(0);
    banco.ramo(3).theDatiTraffico().NumSegmentiTempo(0);
    corri(banco, corsa);
    EXPECT_EQ(banco.guasto, 0);
    EXPECT_EQ(banco.rotonda().timbro().forma, FormaCalcolo::ipotesi);
}

TEST(GuastiBilanciamento, OverflowsNameLegAndParameterOrRow) {
    Banco banco;
    progettoOrdinato(banco, 4);
    geometriaDiritta(banco.ramo(3), 1.2e36F, 60.0F);
    corri(banco, bilancia());
    EXPECT_EQ(banco.descrizione, "Overflow (Ramo C, F)");
    // No width that a single holds lifts the slope past one: a short radius does.
    banco.ramo(3).RaggioIngresso(1e-30F);
    banco.ramo(3).SemiLarghezza(1e10F);
    banco.ramo(3).LarghezzaIngresso(1e10F);
    corri(banco, bilanciaIpotesi(0, {}));
    EXPECT_EQ(banco.descrizione, "Overflow (Ramo C, Fc)");

    progettoOrdinato(banco, 4);
    banco.rotonda().MatriceSvolte(2e38F, 2, 1);
    banco.rotonda().MatriceSvolte(-2e38F, 2, 2);
    banco.rotonda().MatriceSvolte(0.01F, 2, 3);
    banco.rotonda().MatriceSvolte(0.0F, 2, 4);
    banco.esegui(bilancia());
    EXPECT_EQ(banco.guasto, 6);
    EXPECT_EQ(banco.descrizione, "Overflow (riga 2 della matrice delle svolte)");
}

TEST(GuastiBilanciamento, SweepWhoseStateComesBackIsAFault) {
    Banco banco;
    anello(banco, larghezzaPendenza1);
    for (const Corsa& corsa : {bilancia(), bilanciaIpotesi(0, {}), curva("0"), curvaIpotesi(0, {}, "0"), tabella("0"),
                               tabellaIpotesi(0, {}, "0"), curvaDX("0", {}), tabellaDX("0", {})}) {
        corri(banco, corsa);
        aspettaNonConverge(banco, corsa);
    }
}

TEST(GuastiBilanciamento, SweepPastOneMillionPassesIsAFault) {
    // 1 - M[0,2] M[2,0] = 2^-24: the state climbs by some 760 veic/h a pass towards 1.3e10 and never comes back.
    Banco banco;
    dueDiFronte(banco, larghezzaSottoPendenza1);
    for (const Corsa& corsa : {bilancia(), bilanciaIpotesi(0, {})}) {
        corri(banco, corsa);
        aspettaNonConverge(banco, corsa);
    }
}

TEST(GuastiBilanciamento, SweepThatDivergesOverflows) {
    Banco banco;
    anello(banco, 40.0F);  // slopes of 2.36: each pass multiplies the error by -13
    for (const Corsa& corsa : corseSulPosto()) {
        if (corsa.richiesta.forma == oracolo::Forma::corsie) {
            continue;  // with three legs the second lane has no place to end
        }
        corri(banco, corsa);
        aspettaGuasto(banco, corsa, 6, overflow);
        aspettaSoloParametri(banco, corsa);
    }
}

TEST(GuastiBilanciamento, GoodRunsStampTheirForm) {
    Banco banco;
    progettoOrdinato(banco, 4);
    const oracolo::Misure misure = misureDi(banco, 1);
    const std::vector<std::pair<Corsa, FormaCalcolo>> forme{
        {bilancia(), FormaCalcolo::bilanciamento},
        {bilanciaIpotesi(1, misure), FormaCalcolo::ipotesi},
        {curva("0"), FormaCalcolo::piana},
        {curvaIpotesi(1, misure, "0"), FormaCalcolo::ipotesi},
        {curvaDX("0", {true, true, true, true}), FormaCalcolo::corsiaDestra},
        {tabella("0"), FormaCalcolo::piana},
        {tabellaIpotesi(1, misure, "0"), FormaCalcolo::ipotesi},
        {tabellaDX("0", {true, true, true, true}), FormaCalcolo::corsiaDestra},
    };
    for (const auto& [corsa, forma] : forme) {
        corri(banco, corsa);
        EXPECT_EQ(banco.guasto, 0) << corsa.nome();
        EXPECT_EQ(banco.rotonda().timbro().forma, forma) << corsa.nome();
        EXPECT_EQ(banco.rotonda().timbro().revisione, banco.rotonda().revisione().calcolo) << corsa.nome();
        EXPECT_EQ(banco.rotonda().timbro().ambiente.equivalenti, coefficientiDiFabbrica) << corsa.nome();
    }
}

TEST(GuastiBilanciamento, WhatIfBalancingWritesCapacityAloneForEverySegment) {
    Banco banco;
    progettoOrdinato(banco, 4);
    corri(banco, bilanciaIpotesi(2, misureDi(banco, 2)));
    for (int i = 1; i <= 4; ++i) {
        for (int k = 1; k <= 8; ++k) {
            const Iterazione atteso{0.0F, static_cast<float>(banco.ramo(i).CapacitaUltima()), 0.0F, 0.0F, 0.0F};
            EXPECT_EQ(banco.record(i, k), atteso) << i << ", " << k;
        }
        EXPECT_EQ(banco.record(i, 9), recordVecchio);
    }
    corri(banco, bilancia());
    EXPECT_EQ(recordScritti(banco), 0);
    EXPECT_EQ(capacitaScritte(banco), 4);
}

TEST(GuastiBilanciamento, ProjectWithoutItsLegsFaultsWithoutWriting) {
    Banco banco;
    banco.finta.app.nuovaRotonda();
    for (const Corsa& corsa : {bilancia(), curva("0"), tabella("0")}) {
        EXPECT_EQ(banco.confronta(corsa), "");
        aspettaGuasto(banco, corsa, 9, indiceFuori);
    }
}

}  // namespace kelvo::prove
