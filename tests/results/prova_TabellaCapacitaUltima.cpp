#include <gtest/gtest.h>

#include <limits>

#include "app/nuovoProgetto.h"
#include "base/guasto.h"
#include "comune/finti.h"
#include "comune/guasti.h"
#include "results/TabellaCapacitaUltima.h"

namespace kelvo {
namespace {

using prove::AppFinta;

const DataOra momento = giornoCalendario(2026, 11, 21) + oraDelGiorno(10, 30, 5);

class CapacitaUltima : public testing::Test {
protected:
    CapacitaUltima() { creaProgetto(finta.app, 3); }
    Rotonda& rotonda() { return finta.app.theRotonda(); }
    void riempi(double a, double b, double c, float fa, float fb, float fc) {
        const double capacita[] = {a, b, c};
        const float flussi[] = {fa, fb, fc};
        for (std::int16_t i = 1; i <= 3; ++i) {
            rotonda().Ramo(i).CapacitaUltima(capacita[i - 1]);
            rotonda().Ramo(i).theDatiTraffico().FlussoOrario(flussi[i - 1]);
        }
        tabella.riempi(rotonda());
    }
    AppFinta finta;
    TabellaCapacitaUltima tabella;
};

TEST_F(CapacitaUltima, HasTheRowsOfLegsTotalsAndIndex) {
    riempi(1000.004, 500.5, 250.25, 100.0F, 50.0F, 25.125F);
    const Tabella& t = tabella.tabella();
    ASSERT_EQ(t.righe(), 7);
    ASSERT_EQ(t.colonne(), 3);
    EXPECT_EQ(t.testo(0, 0), "");
    EXPECT_EQ(t.testo(0, 1), "Capacita' di saturazione [veic/h]");
    EXPECT_EQ(t.testo(0, 2), "Flusso orario [veic/h]");
    EXPECT_EQ(t.testo(1, 0), "Ramo A");
    EXPECT_EQ(t.testo(1, 1), "1000,00");
    EXPECT_EQ(t.testo(3, 2), "25,13");
    EXPECT_EQ(t.testo(4, 0), "");
    EXPECT_EQ(t.testo(4, 1), "Capacita' Ultima intersezione [veic/h]");
    EXPECT_EQ(t.testo(4, 2), "Flusso totale nodo [veic/h]");
    EXPECT_EQ(t.testo(5, 0), "");
    EXPECT_EQ(t.testo(5, 1), "1750,75");
    EXPECT_EQ(t.testo(5, 2), "175,13");
    EXPECT_EQ(t.testo(6, 0), "Indice di saturazione della rotatoria (I.S.R.)");
    EXPECT_EQ(t.testo(6, 1), "10,00%");
    EXPECT_EQ(t.testo(6, 2), "");
}

TEST_F(CapacitaUltima, TotalsAddTheShownFigures) {
    // Each 0.004 is shown as 0.00: three of them stored would add up to 0.01.
    riempi(0.004, 0.004, 0.004, 1.0F, 0.0F, 0.0F);
    EXPECT_EQ(tabella.tabella().testo(5, 1), "0,00");
    EXPECT_EQ(tabella.SC(), 0.0F);
}

TEST_F(CapacitaUltima, TheTotalOfFlowsAddsTheShownFiguresToo) {
    riempi(1.0, 1.0, 1.0, 0.004F, 0.004F, 0.004F);
    EXPECT_EQ(tabella.tabella().testo(5, 2), "0,00");
    EXPECT_EQ(tabella.SF(), 0.0F);
    EXPECT_EQ(tabella.tabella().testo(6, 1), " - ");
}

TEST_F(CapacitaUltima, EachSumIsASingle) {
    // 16777216 is the single from which on 1 is less than half a step; 16777218 would be a single.
    riempi(16777216.0, 1.0, 1.0, 1.0F, 1.0F, 1.0F);
    EXPECT_EQ(tabella.SC(), 16777216.0F);
    // Shown with its seven digits, 16777220.
    riempi(1.0, 1.0, 1.0, 16777216.0F, 1.0F, 1.0F);
    EXPECT_EQ(tabella.tabella().testo(1, 2), "16777220,00");
    EXPECT_EQ(tabella.SF(), 16777220.0F);
}

TEST_F(CapacitaUltima, AFigureOrATotalPastTheSinglesIsAnOverflow) {
    for (const double grande : {3.5e38, -3.5e38, 1e300, std::numeric_limits<double>::max()}) {
        try {
            riempi(1.0, grande, 1.0, 1.0F, 1.0F, 1.0F);
            ADD_FAILURE() << grande;
        } catch (const Guasto& guasto) {
            EXPECT_EQ(guasto.codice(), 6);
            EXPECT_EQ(guasto.descrizione(), "Overflow (Ramo B, Capacita' di saturazione [veic/h])");
        }
    }
    EXPECT_EQ(prove::numeroGuasto([&] { riempi(2e38, 2e38, 0.0, 1.0F, 1.0F, 1.0F); }), 6);
    EXPECT_EQ(prove::numeroGuasto([&] { riempi(1.0, 1.0, 1.0, 2e38F, 2e38F, 0.0F); }), 6);
    EXPECT_EQ(prove::numeroGuasto([&] { riempi(3e38, 0.0, 0.0, 3e38F, 0.0F, 0.0F); }), 0);
}

TEST_F(CapacitaUltima, HasTheColoursOfTheTables) {
    for (const std::int16_t n : {std::int16_t{3}, std::int16_t{7}}) {
        creaProgetto(finta.app, n);
        tabella.riempi(rotonda());
        const Tabella& t = tabella.tabella();
        const Colore bianco{255, 255, 255};
        const Colore nero{0, 0, 0};
        const auto attendi = [&](int riga, int colonna, Colore sfondo, Colore inchiostro) {
            EXPECT_EQ(t.cella(riga, colonna).sfondo, sfondo) << n << ": " << riga << ", " << colonna;
            EXPECT_EQ(t.cella(riga, colonna).inchiostro, inchiostro) << n << ": " << riga << ", " << colonna;
        };
        for (int c = 0; c < 3; ++c) {
            attendi(0, c, {0, 98, 0}, bianco);
            attendi(n + 1, c, {0, 98, 0}, bianco);
        }
        for (int i = 1; i <= n; ++i) {
            attendi(i, 0, {164, 196, 0}, bianco);
            attendi(i, 1, {220, 220, 220}, nero);
            attendi(i, 2, {220, 220, 220}, nero);
        }
        attendi(n + 2, 0, {220, 220, 220}, nero);
        attendi(n + 2, 1, {244, 237, 90}, nero);
        attendi(n + 2, 2, {244, 237, 90}, nero);
        attendi(n + 3, 0, {0, 98, 0}, bianco);
        attendi(n + 3, 1, {244, 237, 90}, nero);
        attendi(n + 3, 2, {220, 220, 220}, nero);
    }
}

TEST_F(CapacitaUltima, NoCapacityShowsADashAndKeepsTheIndexOfTheLastFilling) {
    riempi(100.0, 100.0, 200.0, 100.0F, 50.0F, 50.0F);
    EXPECT_EQ(tabella.ISR(), 0.5F);
    riempi(0.0, 0.0, 0.0, 100.0F, 50.0F, 50.0F);
    EXPECT_EQ(tabella.tabella().testo(6, 1), " - ");
    EXPECT_EQ(tabella.ISR(), 0.5F);
    EXPECT_EQ(tabella.SC(), 0.0F);
    EXPECT_EQ(tabella.SF(), 200.0F);
}

TEST_F(CapacitaUltima, NoFlowShowsADashAndNeverAZeroPercentage) {
    riempi(100.0, 100.0, 200.0, 0.0F, 0.0F, 0.0F);
    EXPECT_EQ(tabella.tabella().testo(6, 1), " - ");
    EXPECT_EQ(tabella.ISR(), 0.0F);
}

TEST_F(CapacitaUltima, TheIndexHasNoUpperLimit) {
    riempi(100.0, 100.0, 200.0, 500.0F, 500.0F, 0.0F);
    EXPECT_EQ(tabella.tabella().testo(6, 1), "250,00%");
}

TEST_F(CapacitaUltima, ExportsItsTextByteForByteWithTheBlanksBehind) {
    riempi(100.0, 100.0, 200.0, 100.0F, 50.0F, 50.0F);
    rotonda().NomeFile("Nodo");
    // Widths: 46 + 2, 38 + 2, 27 + 2.
    const auto riga = [](const std::string& a, const std::string& b, const std::string& c) {
        const auto cella = [](std::string testo, std::size_t larghezza) {
            testo.resize(larghezza, ' ');
            return testo + "\t";
        };
        return cella(a, 48) + cella(b, 40) + cella(c, 29) + "\r\n";
    };
    EXPECT_EQ(
        tabella.testo(rotonda(), momento),
        "Risultati: Capacità ultima\r\n\r\n" + riga("", "Capacita' di saturazione [veic/h]", "Flusso orario [veic/h]") +
            riga("Ramo A", "100,00", "100,00") + riga("Ramo B", "100,00", "50,00") + riga("Ramo C", "200,00", "50,00") +
            riga("", "Capacita' Ultima intersezione [veic/h]", "Flusso totale nodo [veic/h]") +
            riga("", "400,00", "200,00") + riga("Indice di saturazione della rotatoria (I.S.R.)", "50,00%", "") +
            "\r\nOutput creato con Kelvo V1.0.0 il 21/11/2026 10:30:05\r\nNome Progetto: Nodo\r\n");
}

}  // namespace
}  // namespace kelvo
