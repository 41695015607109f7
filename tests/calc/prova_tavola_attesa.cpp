// The engine against a table of expected records, worked out by tavola_attesa.py in another language.

#include <fmt/format.h>

#include <algorithm>

#include "base/date.h"
#include "progetti.h"
#include "tavola_attesa.h"

namespace kelvo::prove {

namespace {

/// The other measures of the what-if runs.
constexpr oracolo::Misure piuLarga{9.5F, 4.0F, 25.0F, 30.0F, 25.0F, 50.0F};

void prepara(Banco& banco, const CasoAtteso& caso) {
    progettoOrdinato(banco, caso.rami);
    for (int i = 1; i <= caso.rami; ++i) {
        DatiTraffico& traffico = banco.ramo(i).theDatiTraffico();
        traffico.FlussoTempo1(traffico.FlussoTempo1() * caso.domanda);
        traffico.FlussoTempo2(traffico.FlussoTempo2() * caso.domanda);
        traffico.FlussoTempo3(traffico.FlussoTempo3() * caso.domanda);
        for (std::int16_t k = 0; k < 8; ++k) {
            traffico.FlussoSegmento(traffico.FlussoSegmento(k, 0) * caso.domanda, k, 0);
        }
        if (caso.mezzi) {
            ComposizioneTraffico& mezzi = banco.ramo(i).theComposizioneTraffico();
            mezzi.Autoarticolati(4.0F);
            mezzi.Autotreni(3.0F);
            mezzi.Pullman(2.0F);
            mezzi.Camper(1.0F);
            mezzi.Roulotte(1.0F);
            mezzi.VeicoliDueRuote(9.0F);
            mezzi.Autovetture(80.0F);
        }
    }
    if (caso.riduzioni) {
        banco.rotonda().CondizioniNotturne(true);
        banco.finta.app.theAmbiente.PercentualeNotturna(8);
        banco.ramo(1).theAnalisiMarginale().CondizioniEsterne(-12.5);
        banco.ramo(2).theAnalisiMarginale().AttraversamentoPedonale(17.5);
        banco.ramo(2).AttraversamentoPedonale(true);
        banco.ramo(3).theAnalisiMarginale().CondizioniEsterne(20.0);
    }
}

void corri(Banco& banco, const CasoAtteso& caso) {
    const std::string modo(1, caso.modo);
    const std::array<bool, 4> corsie{(caso.corsie & 1) != 0, (caso.corsie & 2) != 0, (caso.corsie & 4) != 0,
                                     (caso.corsie & 8) != 0};
    if (caso.corsie >= 0) {
        banco.esegui(caso.curva ? curvaDX(modo, corsie) : tabellaDX(modo, corsie));
        return;
    }
    banco.esegui(caso.curva ? curva(modo) : tabella(modo));
    if (caso.ramo > 0) {
        banco.esegui(caso.curva ? curvaIpotesi(caso.ramo, piuLarga, modo) : tabellaIpotesi(caso.ramo, piuLarga, modo));
    }
}

class TavolaAttesa : public testing::TestWithParam<std::size_t> {};

}  // namespace

// Values to at least seven digits: four units in the last place of a single.
TEST_P(TavolaAttesa, RunGivesTheExpectedFigures) {
    Banco banco;
    const CasoAtteso& caso = casiAttesi[GetParam()];
    prepara(banco, caso);
    corri(banco, caso);
    EXPECT_EQ(banco.descrizione, "");
    int confrontati = 0;
    for (const CapacitaAttesa& attesa : capacitaAttese) {
        if (attesa.caso == GetParam()) {
            EXPECT_FLOAT_EQ(static_cast<float>(banco.ramo(attesa.ramo).CapacitaUltima()),
                            static_cast<float>(attesa.valore))
                << "leg " << attesa.ramo;
            ++confrontati;
        }
    }
    EXPECT_EQ(confrontati, caso.rami);
    for (const RecordAtteso& atteso : recordAttesi) {
        if (atteso.caso != GetParam()) {
            continue;
        }
        const Iterazione record = banco.record(atteso.ramo, atteso.record);
        const std::string dove = fmt::format("leg {}, record {}", atteso.ramo, atteso.record);
        EXPECT_FLOAT_EQ(record.Flusso, atteso.valori[0]) << dove;
        EXPECT_FLOAT_EQ(record.Capacita, atteso.valori[1]) << dove;
        EXPECT_FLOAT_EQ(record.Coeff_Sat, atteso.valori[2]) << dove;
        EXPECT_FLOAT_EQ(record.Coda, atteso.valori[3]) << dove;
        EXPECT_FLOAT_EQ(record.Ritardo, atteso.valori[4]) << dove;
        ++confrontati;
    }
    EXPECT_EQ(confrontati, 6 * caso.rami);
}

INSTANTIATE_TEST_SUITE_P(Casi, TavolaAttesa, testing::Range(std::size_t{0}, casiAttesi.size()));

TEST(TavolaAttesaCopertura, ThreeCasesHoldDemandAboveTheUltimateCapacity) {
    for (const std::size_t numero : {std::size_t{4}, std::size_t{5}, std::size_t{9}}) {
        int saturi = 0;
        for (const RecordAtteso& atteso : recordAttesi) {
            const auto capacita = std::find_if(capacitaAttese.begin(), capacitaAttese.end(), [&](const auto& c) {
                return c.caso == numero && c.ramo == atteso.ramo;
            });
            if (atteso.caso == numero && static_cast<double>(atteso.valori[0]) * 60.0 > capacita->valore) {
                ++saturi;
            }
        }
        EXPECT_GT(saturi, 0) << numero;
    }
}

// The worked rows of the capacity line, to the printed digit.
TEST(RigheSvolte, CapacityLineOfThreeEntries) {
    struct Riga {
        oracolo::Misure misure;
        double k, tD, S, x2, F, Fc;
    };
    const std::array righe{
        Riga{{4.0F, 3.5F, 20.0F, 30.0F, 20.0F, 40.0F}, 1.0, 1.44039854, 0.04, 3.96296296, 1200.77778, 0.54223003},
        Riga{{7.0F, 3.5F, 25.0F, 25.0F, 30.0F, 40.0F}, 1.03365, 1.44039854, 0.224, 5.91712707, 1853.22023, 0.68267475},
        Riga{{3.5F, 3.5F, 10.0F, 30.0F, 20.0F, 60.0F}, 1.0, 1.25, 0.0, 3.5, 1060.5, 0.44625},
    };
    Banco banco(3);
    for (const Riga& riga : righe) {
        const Geometria g{.e = riga.misure.e,
                          .v = riga.misure.v,
                          .l = riga.misure.l,
                          .phi = riga.misure.phi,
                          .r = riga.misure.r,
                          .D = riga.misure.D};
        banco.motore.Calcola_Parametri(2, g);
        const Ramo& ramo = banco.ramo(2);
        EXPECT_NEAR(ramo.K(), riga.k, 5e-9);
        EXPECT_NEAR(ramo.Td(), riga.tD, 5e-9);
        EXPECT_NEAR(ramo.S(), riga.S, 5e-9);
        EXPECT_NEAR(ramo.X2(), riga.x2, 5e-9);
        EXPECT_NEAR(ramo.F(), riga.F, 5e-6);
        EXPECT_NEAR(ramo.Fc(), riga.Fc, 5e-9);
    }
}

namespace {

/// Three legs whose first has a capacity of exactly 900 veic/h: no flow circulates and the external condition takes
/// 1060.5 down to 900, to the nearest single.
void ingressoDa900(Banco& banco) {
    banco.finestra(oraDelGiorno(8, 0), oraDelGiorno(9, 0), 15, 5);  // 60 minutes over 4: T is 15
    for (int i = 1; i <= 3; ++i) {
        Ramo& ramo = banco.ramo(i);
        ramo.LarghezzaIngresso(3.5F);
        ramo.SemiLarghezza(3.5F);
        ramo.LunghezzaSvasatura(10.0F);
        ramo.AngoloConflitto(30.0F);
        ramo.RaggioIngresso(20.0F);
        ramo.DiametroInscritto(60.0F);
        ramo.theDatiTraffico().Tempo1(oraDelGiorno(8, 0));
        ramo.theDatiTraffico().Tempo2(oraDelGiorno(8, 30));
        ramo.theDatiTraffico().Tempo3(oraDelGiorno(9, 0));
    }
    banco.ramo(1).theAnalisiMarginale().CondizioniEsterne(100.0 - 900.0 / 1060.5 * 100.0);
}

}  // namespace

// The worked rows of queue and delay: percentile 95, T = 15, c = 900.
TEST(RigheSvolte, QueueAndDelayBelowAndAtCapacity) {
    Banco banco(3);
    ingressoDa900(banco);
    DatiTraffico& traffico = banco.ramo(1).theDatiTraffico();
    traffico.FlussoTempo1(10.0F);
    traffico.FlussoTempo2(15.0F);
    traffico.FlussoTempo3(10.0F);
    banco.esegui(curva("0"));
    ASSERT_EQ(banco.descrizione, "");
    const Iterazione sotto = banco.record(1, 1);
    EXPECT_NEAR(sotto.Capacita, 900.0F, 1e-4);
    EXPECT_EQ(sotto.Flusso, 10.0F);
    EXPECT_NEAR(sotto.Coeff_Sat, 0.66666669, 1e-7);
    EXPECT_NEAR(sotto.Coda, 5.25505, 5e-6);
    EXPECT_NEAR(sotto.Ritardo, 11.4334, 5e-5);
    const Iterazione pari = banco.record(1, 3);
    EXPECT_EQ(pari.Flusso, 15.0F);
    EXPECT_NEAR(pari.Coeff_Sat, 1.0, 1e-7);
    EXPECT_NEAR(pari.Coda, 18.3581, 5e-5);
    EXPECT_NEAR(pari.Ritardo, 44.4735, 5e-5);
}

TEST(RigheSvolte, TableGivesTheServiceTimeWithoutDemandWhereTheCurveGivesZero) {
    Banco banco(3);
    ingressoDa900(banco);
    banco.esegui(tabella("0"));
    ASSERT_EQ(banco.descrizione, "");
    EXPECT_EQ(banco.record(1, 2).Coda, 0.0F);
    EXPECT_NEAR(banco.record(1, 2).Ritardo, 4.0F, 1e-6);
    banco.esegui(curva("0"));
    EXPECT_EQ(banco.record(1, 2).Ritardo, 0.0F);
}

TEST(RigheSvolte, HundredVehiclesInAQuarterOfAnHour) {
    Banco banco(3);
    ingressoDa900(banco);
    banco.ramo(1).theDatiTraffico().FlussoSegmento(100.0F, 1, 0);
    banco.esegui(tabella("0"));
    EXPECT_EQ(banco.record(1, 2).Flusso, 6.6666667F);
    EXPECT_EQ(banco.record(1, 1).Flusso, 0.0F);
    EXPECT_EQ(banco.record(1, 3).Flusso, 0.0F);
}

}  // namespace kelvo::prove
