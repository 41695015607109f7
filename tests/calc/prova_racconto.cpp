// How often the engine tells its faults, and what it answers after them.

#include <gtest/gtest.h>

#include "progetti.h"

namespace kelvo::prove {

namespace {

class RaccontoDeiGuasti : public testing::Test {
protected:
    RaccontoDeiGuasti() { progettoOrdinato(banco, 4); }
    std::size_t detti() const { return banco.finta.messaggi.mostrati.size(); }
    Banco banco;
};

TEST_F(RaccontoDeiGuasti, AnOperationSaysWhetherItEndedWell) {
    modCalcolo motore(banco.finta.app);
    EXPECT_TRUE(motore.riuscita());
    banco.ramo(2).RaggioIngresso(0.0F);
    motore.Calcola_Tempo_Flusso("0");
    EXPECT_FALSE(motore.riuscita());
    motore.Calcola_Bilanciamento();
    EXPECT_FALSE(motore.riuscita());
    banco.ramo(2).RaggioIngresso(20.0F);
    motore.Calcola_Tempo_Flusso_ST("1");
    EXPECT_TRUE(motore.riuscita());
}

TEST_F(RaccontoDeiGuasti, ByDefaultEveryFaultIsTold) {
    banco.ramo(2).RaggioIngresso(0.0F);
    modCalcolo motore(banco.finta.app);
    motore.Calcola_Tempo_Flusso("0");
    motore.Calcola_Tempo_Flusso("0");
    EXPECT_EQ(detti(), 2U);
}

TEST_F(RaccontoDeiGuasti, OnceEachMeansOneOfTheSameNumberOperationAndWords) {
    modCalcolo motore(banco.finta.app, Racconto::unaVolta);
    banco.ramo(2).RaggioIngresso(0.0F);
    motore.Calcola_Tempo_Flusso("0");
    motore.Calcola_Tempo_Flusso("0");
    EXPECT_EQ(detti(), 1U);
    motore.Calcola_Tempo_Flusso_ST("0");
    EXPECT_EQ(detti(), 2U);
    banco.ramo(1).LunghezzaSvasatura(0.0F);
    motore.Calcola_Tempo_Flusso_ST("0");
    EXPECT_EQ(detti(), 3U);
    motore.Calcola_Tempo_Flusso_ST("0");
    EXPECT_EQ(detti(), 3U);
    EXPECT_FALSE(motore.riuscita());
}

TEST_F(RaccontoDeiGuasti, NeverMeansNeitherBoxNorLog) {
    int registrati = 0;
    banco.finta.app.comune.alErrore = [&](const ErroreRegistrato&) { ++registrati; };
    banco.ramo(2).RaggioIngresso(0.0F);
    modCalcolo motore(banco.finta.app, Racconto::mai);
    motore.Calcola_Tempo_Flusso("0");
    EXPECT_FALSE(motore.riuscita());
    EXPECT_EQ(detti(), 0U);
    EXPECT_EQ(registrati, 0);
}

}  // namespace

}  // namespace kelvo::prove
