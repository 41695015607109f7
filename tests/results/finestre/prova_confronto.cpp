#include "results/confronto.h"

#include <cmath>
#include <string>
#include <vector>

#include "base/guasto.h"
#include "scenaRisultati.h"

namespace kelvo::prove {
namespace {

constexpr UnitaFlussi ora = UnitaFlussi::ora;
constexpr UnitaFlussi minuto = UnitaFlussi::minuto;

/// Three legs, 08:00 to 09:00 in quarters, records written by hand.
struct Confronti : ScenaRisultati {
    Confronti() {
        ramo(1).Descrizione("Via Roma");
        ramo(2).Descrizione("Città");
        segna(1, 1, {10.0F, 900.0F, 0.6666667F, 5.25F, 10.04F});
        segna(1, 2, {12.125F, 873.0F, 0.8333333F, 9.55F, 10.05F});
        segna(2, 1, {0.0F, 1500.0F, 0.0F, 0.0F, 0.0F});
        segna(3, 1, {3.5F, 1234.565F, 0.1701F, 0.04F, 50.05F});
        segna(3, 4, {7.0F, 1000.0F, 0.42F, 2.0F, 25.0F});
    }
    void segna(int i, std::int16_t s, const Iterazione& record) { ramo(i).theDatiTraffico().SetIterazione(s, record); }
    Confronto letto() { return Confronto(r()); }
};

TEST_F(Confronti, HasItsVariablesInOrderAndInTwoUnits) {
    const std::vector<std::array<const char*, 2>> attese{
        {"Flusso di traffico [veic/h]", "Flusso di traffico [veic/min]"},
        {"Capacità [veic/h]", "Capacità [veic/min]"},
        {"Coefficiente di Saturazione", "Coefficiente di Saturazione"},
        {"Lunghezza coda [veic]", "Lunghezza coda [veic]"},
        {"Ritardo [s/veic]", "Ritardo [s/veic]"},
        {"Livello di Servizio (L.O.S.)", "Livello di Servizio (L.O.S.)"}};
    ASSERT_EQ(variabiliConfronto.size(), attese.size());
    for (int v = 0; v < 6; ++v) {
        EXPECT_EQ(nomeVariabile({v, ora}), attese[static_cast<std::size_t>(v)][0]);
        EXPECT_EQ(nomeVariabile({v, minuto}), attese[static_cast<std::size_t>(v)][1]);
    }
}

TEST_F(Confronti, FlowsAreScaledInOneUnitAndCapacitiesInTheOther) {
    const Confronto c = letto();
    EXPECT_EQ(c.valore({0, ora}, 1, 2), 727.5F);
    EXPECT_EQ(c.valore({0, minuto}, 1, 2), 12.125F);
    EXPECT_EQ(c.valore({1, ora}, 1, 2), 873.0F);
    EXPECT_EQ(c.valore({1, minuto}, 1, 2), 14.55F);
    for (const UnitaFlussi unita : {ora, minuto}) {
        EXPECT_EQ(c.valore({variabileSaturazione, unita}, 1, 2), 0.8333333F);
        EXPECT_EQ(c.valore({variabileCoda, unita}, 1, 2), 9.55F);
        EXPECT_EQ(c.valore({variabileRitardo, unita}, 1, 2), 10.05F);
    }
}

TEST_F(Confronti, EachVariableHasItsFormat) {
    const Confronto c = letto();
    EXPECT_EQ(c.testo({0, ora}, 1, 2), "727,50");
    EXPECT_EQ(c.testo({0, minuto}, 1, 2), "12,13");
    EXPECT_EQ(c.testo({1, ora}, 3, 1), "1234,57");
    EXPECT_EQ(c.testo({1, minuto}, 3, 1), "20,58");  // 20,576...
    EXPECT_EQ(c.testo({variabileSaturazione, ora}, 1, 1), "0,67");
    EXPECT_EQ(c.testo({variabileCoda, ora}, 1, 1), "5,3");
    EXPECT_EQ(c.testo({variabileRitardo, ora}, 1, 1), "10,0");
}

TEST_F(Confronti, TheLevelIsGradedByTheDelayAsShownAndHasItsCode) {
    const Confronto c = letto();
    const SceltaConfronto livello{variabileLivello, ora};
    EXPECT_EQ(c.testo(livello, 1, 1), "A");  // 10,0
    EXPECT_EQ(c.valore(livello, 1, 1), 5.0F);
    EXPECT_EQ(c.testo(livello, 1, 2), "B");  // 10,1
    EXPECT_EQ(c.valore(livello, 1, 2), 10.0F);
    EXPECT_EQ(c.testo(livello, 2, 1), "-");
    EXPECT_EQ(c.valore(livello, 2, 1), 0.0F);
    EXPECT_EQ(c.testo(livello, 3, 1), "F");  // 50,1
    EXPECT_EQ(c.valore(livello, 3, 1), 30.0F);
    EXPECT_EQ(c.testo(livello, 3, 4), "C");
    EXPECT_EQ(c.valore(livello, 3, 4), 15.0F);
}

TEST_F(Confronti, InstantsAreTheStartsOfTheSegmentsOfTheFirstEntry) {
    const Confronto c = letto();
    EXPECT_EQ(c.istanti(), (std::vector<std::string>{"08:00", "08:15", "08:30", "08:45"}));
    EXPECT_EQ(c.nomi(), (std::vector<std::string>{"Via Roma", "Città", "Ramo C"}));
    EXPECT_EQ(c.segmenti(), 4);
    EXPECT_EQ(c.ingressi(), 3);
    r().TempoIniziale(oraDelGiorno(23, 50));
    EXPECT_EQ(letto().istanti(), (std::vector<std::string>{"23:50", "00:05", "00:20", "00:35"}));
    EXPECT_EQ(Confronto{}.segmenti(), 0);
    EXPECT_EQ(Confronto{}.massimo({}), 0.0F);
}

TEST_F(Confronti, AnEntryWithFewerSegmentsCountsAsZeroBehindThem) {
    ramo(2).theDatiTraffico().NumSegmentiTempo(1);
    segna(2, 1, {9.0F, 700.0F, 0.5F, 1.0F, 4.0F});
    const Confronto c = letto();
    EXPECT_EQ(c.testo({0, minuto}, 2, 1), "9,00");
    EXPECT_EQ(c.testo({0, minuto}, 2, 4), "0,00");
    EXPECT_THROW((void)c.record(2, 5), Guasto);
    EXPECT_THROW((void)c.record(2, 0), Guasto);
    EXPECT_THROW((void)c.record(4, 1), Guasto);
    EXPECT_THROW((void)c.record(0, 1), Guasto);
}

TEST_F(Confronti, IsWhatStoodThereWhenItWasRead) {
    const Confronto c = letto();
    segna(1, 1, {99.0F, 1.0F, 1.0F, 1.0F, 1.0F});
    ramo(1).Descrizione("Altro");
    EXPECT_EQ(c.testo({0, minuto}, 1, 1), "10,00");
    EXPECT_EQ(c.nomi()[0], "Via Roma");
}

TEST_F(Confronti, TheLargestValueIsThatOfAllEntriesAndSegments) {
    const Confronto c = letto();
    EXPECT_EQ(c.massimo({0, ora}), 727.5F);
    EXPECT_EQ(c.massimo({0, minuto}), 12.125F);
    EXPECT_EQ(c.massimo({1, ora}), 1500.0F);
    EXPECT_EQ(c.massimo({1, minuto}), 25.0F);
    EXPECT_EQ(c.massimo({variabileRitardo, ora}), 50.05F);
    EXPECT_EQ(c.massimo({variabileLivello, ora}), 30.0F);
}

TEST_F(Confronti, TheTopOfTheAxisStaysOnAMultipleOfFive) {
    const std::vector<std::pair<float, float>> casi{
        {0.0F, 0.0F},   {0.4F, 0.0F},       {0.5F, 0.0F},       {0.6F, 1.0F},      {1.0F, 5.0F},
        {3.2F, 5.0F},   {3.7F, 6.0F},       {5.0F, 5.0F},       {5.4F, 5.0F},      {5.6F, 6.0F},
        {12.3F, 15.0F}, {12.5F, 16.0F},     {12.6F, 16.0F},     {14.5F, 16.0F},    {10.5F, 10.0F},
        {15.5F, 16.0F}, {1500.0F, 1500.0F}, {1499.0F, 1500.0F}, {1501.0F, 1505.0F}};
    for (const int variabile : {0, 1, variabileCoda, variabileRitardo}) {
        for (const auto& [massimo, cima] : casi) {
            EXPECT_EQ(MassimoGrafico(variabile, massimo), cima) << variabile << " " << massimo;
        }
    }
}

TEST_F(Confronti, TheTopOfTheSaturationIsFivePerCentAboveTheLargest) {
    EXPECT_EQ(MassimoGrafico(variabileSaturazione, 0.0F), 0.0F);
    EXPECT_EQ(MassimoGrafico(variabileSaturazione, 1.0F), 1.05F);
    EXPECT_EQ(MassimoGrafico(variabileSaturazione, 2.0F), 2.1F);
    EXPECT_FLOAT_EQ(MassimoGrafico(variabileSaturazione, 0.8333333F), 0.875F);
}

TEST_F(Confronti, TheAxisOfTheLevelsHoldsAllCodes) {
    EXPECT_EQ(MassimoGrafico(variabileLivello, 5.0F), 30.0F);
    EXPECT_EQ(MassimoGrafico(variabileLivello, 30.0F), 30.0F);
}

TEST_F(Confronti, DataAreJoinedByStarsWithADecimalPoint) {
    const Confronto c = letto();
    EXPECT_EQ(c.dati({0, ora}, 1), "600.00*0.00*210.00");
    EXPECT_EQ(c.dati({1, minuto}, 1), "15.00*25.00*20.58");
    EXPECT_EQ(c.dati({variabileCoda, ora}, 1), "5.3*0.0*0.0");
    EXPECT_EQ(c.dati({variabileLivello, ora}, 1), "5*0*30");
}

TEST_F(Confronti, TheChartHasOneBarAnEntry) {
    const Confronto c = letto();
    const Grafico::Contenuto g = graficoConfronto(c, {1, ora}, 1, 1500.0F);
    EXPECT_EQ(g.x.etichette, (std::vector<std::string>{"Via Roma", "Città", "Ramo C"}));
    EXPECT_EQ(g.x.posa, Grafico::Posa::nome);
    EXPECT_EQ(g.y.minimo, 0.0);
    EXPECT_EQ(g.y.massimo, 1500.0);
    EXPECT_EQ(g.y.titolo, "veic/h");
    EXPECT_EQ(g.nota, "");
    ASSERT_EQ(g.serie.size(), 1U);
    EXPECT_EQ(g.serie[0].nome, "Capacità [veic/h]");
    EXPECT_EQ(g.serie[0].valori, (std::vector<double>{900.0, 1500.0, 1234.57}));
    EXPECT_EQ(g.serie[0].testi, (std::vector<std::string>{"900,00", "1500,00", "1234,57"}));
    EXPECT_EQ(g.serie[0].forma, Grafico::Forma::barre);
    EXPECT_TRUE(g.valori);
    EXPECT_EQ(graficoConfronto(c, {1, minuto}, 1, 25.0F).y.titolo, "veic/min");
}

TEST_F(Confronti, TheChartOfTheLevelsHasLettersOnItsAxisANoteAndAMarkedName) {
    const Grafico::Contenuto g = graficoConfronto(letto(), {variabileLivello, ora}, 1, 30.0F);
    EXPECT_EQ(g.y.etichette, (std::vector<std::string>{"0", "A", "B", "C", "D", "E", "F"}));
    EXPECT_EQ(g.y.tacche, 7);
    EXPECT_EQ(g.y.massimo, 30.0);
    EXPECT_EQ(g.nota, "(*) L.O.S. (Level of service) - HCM Americano");
    ASSERT_EQ(g.serie.size(), 1U);
    EXPECT_EQ(g.serie[0].nome, "Livello di Servizio (L.O.S.) (*)");
    EXPECT_EQ(g.serie[0].valori, (std::vector<double>{5.0, 0.0, 30.0}));
    EXPECT_EQ(g.serie[0].testi, (std::vector<std::string>{"A", "-", "F"}));
    EXPECT_EQ(g.serie[0].colori[0], (Colore{0, 98, 0}));
    EXPECT_EQ(g.serie[0].colori[2], (Colore{140, 0, 25}));
}

TEST_F(Confronti, AllFlowsZeroHaveATopOfZeroAndAnAxisThatEndsAtOne) {
    for (int i = 1; i <= 3; ++i) {
        ramo(i).theDatiTraffico().ScartaIterazioni();
    }
    const Confronto c = letto();
    const float cima = MassimoGrafico(0, c.massimo({0, ora}));
    EXPECT_EQ(cima, 0.0F);
    const Grafico::Contenuto g = graficoConfronto(c, {0, ora}, 1, cima);
    EXPECT_EQ(g.y.massimo, 1.0);
    EXPECT_EQ(g.serie[0].testi, (std::vector<std::string>{"0,00", "0,00", "0,00"}));
}

TEST_F(Confronti, WithoutASegmentTheChartHasItsAxesAndAnInvitation) {
    const Grafico::Contenuto g = graficoConfronto(letto(), {0, ora}, 0, 0.0F);
    EXPECT_TRUE(g.serie.empty());
    EXPECT_EQ(g.y.massimo, 0.0) << "an axis without figures";
    EXPECT_EQ(g.x.etichette.size(), 3U);
    EXPECT_EQ(g.invito, "Calcola (F9)");
}

TEST_F(Confronti, TheTableHasARowAnEntryAndAColumnAnInstant) {
    const Tabella t = tabellaConfronto(letto(), {0, ora}, true);
    EXPECT_EQ(t.righe(), 4);
    EXPECT_EQ(t.colonne(), 5);
    EXPECT_EQ(t.testo(0, 0), "Ingresso");
    EXPECT_EQ(t.testo(0, 4), "08:45");
    EXPECT_EQ(t.testo(2, 0), "Città");
    EXPECT_EQ(t.testo(1, 2), "727,50");
    EXPECT_EQ(t.testo(3, 4), "420,00");
    EXPECT_EQ(t.cella(0, 0).sfondo, colori::intestazione);
    EXPECT_EQ(t.cella(1, 0).sfondo, colori::nomeIngresso);
    EXPECT_EQ(t.cella(1, 1).sfondo, colori::dati);
    const Tabella vuota = tabellaConfronto(letto(), {0, ora}, false);
    EXPECT_EQ(vuota.colonne(), 5);
    EXPECT_EQ(vuota.testo(1, 1), "");
}

TEST_F(Confronti, TheReportTellsWhatItIsMadeOf) {
    const Grafico::Contenuto g = graficoConfronto(letto(), {variabileCoda, ora}, 2, 10.0F);
    const RelazioneGrafica relazione = relazioneConfronto({variabileCoda, ora}, "08:15", g);
    EXPECT_EQ(relazione.modello, "\\Modelli\\Grafico.dot");
    EXPECT_EQ(relazione.prefisso, "Analizzatore_");
    EXPECT_EQ(relazione.titolo, "ANALISI GRANDEZZE PRESTAZIONALI");
    EXPECT_EQ(relazione.sottotitolo, "Confronto ingressi");
    EXPECT_EQ(relazione.righe, (std::vector<std::string>{"Variabile prestazionale: Lunghezza coda [veic]",
                                                         "Intervallo di tempo: 08:15"}));
    ASSERT_EQ(relazione.figure.size(), 1U);
    EXPECT_EQ(relazione.figure[0].grafico, g);
    EXPECT_EQ(relazione.figure[0].didascalia, "Confronto ingressi - Lunghezza coda [veic], 08:15");
    EXPECT_FALSE(relazione.tabella);
}

}  // namespace
}  // namespace kelvo::prove
