#include "results/graficiRamo.h"

#include "results/tabellaRamo.h"
#include "scenaRisultati.h"

namespace kelvo::prove {
namespace {

struct Grafici : ScenaRisultati {
    Grafici() {
        tabella = impostaTabellaRamo(r());
        const float capacita[] = {900.25F, 1500.0F, 1.0F, 0.0F};
        for (std::int16_t k = 1; k <= 4; ++k) {
            ramo(1).theDatiTraffico().SetIterazione(
                k, {1.0F, capacita[k - 1], 0.25F * static_cast<float>(k), 2.0F, 20.0F * static_cast<float>(k - 1)});
        }
        riempiTabellaRamo(ramo(1), tabella);
    }
    Grafico::Contenuto valori(std::size_t quale, const OpzioniGrafici& opzioni = {}) {
        return graficoValori(r(), tabella, graficiGrandezze[quale], 4, opzioni);
    }
    Tabella tabella;
};

TEST_F(Grafici, TheTopOfAnAxisGoesOnToTheNextMultipleOfFive) {
    const std::vector<std::pair<double, double>> casi{
        {0.0, 5.0},  {0.4, 5.0},   {4.4, 5.0},   {4.6, 10.0},      {5.0, 10.0},      {5.5, 10.0},
        {9.5, 15.0}, {12.5, 15.0}, {14.5, 15.0}, {1500.0, 1505.0}, {1499.4, 1500.0}, {1499.6, 1505.0}};
    for (const auto& [massimo, cima] : casi) {
        EXPECT_EQ(cimaAsse(colonnaCapacita, massimo), cima) << massimo;
        EXPECT_EQ(cimaAsse(colonnaCoda, massimo), cima) << massimo;
        EXPECT_EQ(cimaAsse(colonnaRitardo, massimo), cima) << massimo;
    }
    const std::vector<std::pair<double, double>> saturazione{{0.0, 1.0}, {0.999, 1.0}, {1.0, 2.0}, {1.198, 2.0}};
    for (const auto& [massimo, cima] : saturazione) {
        EXPECT_EQ(cimaAsse(colonnaSaturazione, massimo), cima) << massimo;
    }
}

TEST_F(Grafici, EachQuantityHasItsAxisColumnAndColour) {
    struct Caso {
        const char* nome;
        const char* titolo;
        const char* etichetta;
        std::vector<double> valori;
        double cima;
        Colore colore;
    };
    const std::vector<Caso> casi{
        {"ctlChartCapacita", "Capacità", "veic/h", {900.25, 1500.0, 1.0, 0.0}, 1505.0, {0, 114, 198}},
        {"ctlChartSaturazione",
         "Coefficiente Saturazione",
         "Coeff. Saturazione",
         {0.25, 0.5, 0.75, 1.0},
         2.0,
         {196, 78, 0}},
        {"ctlChartCode", "Lunghezza Code", "veic", {2.0, 2.0, 2.0, 2.0}, 5.0, {0, 122, 98}},
        {"ctlChartRitardi", "Ritardi", "s/veic", {0.0, 20.0, 40.0, 60.0}, 65.0, {136, 46, 114}}};
    ASSERT_EQ(graficiGrandezze.size(), casi.size());
    for (std::size_t i = 0; i < casi.size(); ++i) {
        const Grafico::Contenuto g = valori(i);
        EXPECT_EQ(graficiGrandezze[i].nome, casi[i].nome);
        EXPECT_EQ(g.titolo, casi[i].titolo);
        EXPECT_EQ(g.y.titolo, casi[i].etichetta);
        EXPECT_EQ(g.y.minimo, 0.0);
        EXPECT_EQ(g.y.massimo, casi[i].cima);
        EXPECT_EQ(g.x.titolo, "ora");
        ASSERT_EQ(g.serie.size(), 1U);
        EXPECT_EQ(g.serie[0].valori, casi[i].valori);
        EXPECT_EQ(g.serie[0].colore, casi[i].colore);
        EXPECT_EQ(g.nota, "");
    }
}

TEST_F(Grafici, ValuesAreThoseOfTheCellsAndNoNumberCountsAsZero) {
    tabella.cella(1, colonnaCapacita).testo = "12,50";
    tabella.cella(2, colonnaCapacita).testo = "x";
    tabella.cella(3, colonnaCapacita).testo = "";
    const Grafico::Contenuto g = valori(0);
    EXPECT_EQ(g.serie[0].valori, (std::vector<double>{12.5, 0.0, 0.0, 0.0}));
    EXPECT_EQ(g.serie[0].testi, (std::vector<std::string>{"12,50", "x", "", "0,00"}));
    tabella.cella(1, colonnaCapacita).testo = "";
    EXPECT_EQ(graficoValori(r(), tabella, graficiGrandezze[0], 1, {}).serie[0].valori, (std::vector<double>{0.0}));
}

TEST_F(Grafici, HoursAreLabelledAndThePartOfAnHourCounts) {
    struct Caso {
        int fine;  // minutes behind 08:00
        int passo;
        std::vector<std::string> ore;
        double passi;
    };
    const std::vector<Caso> casi{{60, 15, {"08:00"}, 4.0},           {75, 15, {"08:00", "09:00"}, 4.0},
                                 {120, 10, {"08:00", "09:00"}, 6.0}, {125, 5, {"08:00", "09:00", "10:00"}, 12.0},
                                 {60, 20, {"08:00"}, 3.0},           {72, 8, {"08:00", "09:00"}, 7.5}};
    for (const Caso& caso : casi) {
        r().TempoFinale(oraDelGiorno(8, caso.fine));
        r().SegmentoTempo(oraDelGiorno(0, caso.passo));
        const Grafico::Contenuto g = valori(0);
        EXPECT_EQ(g.x.etichette, caso.ore) << caso.fine;
        EXPECT_EQ(g.x.passiPerEtichetta, caso.passi) << caso.fine;
    }
    EXPECT_EQ(valori(0).x.minimo, 0.0);
    EXPECT_EQ(valori(0).x.massimo, 4.0);
    EXPECT_EQ(valori(0).x.tacche, 5);
}

TEST_F(Grafici, FormAndValueLabelsFollowTheOptions) {
    EXPECT_EQ(valori(0).serie[0].forma, Grafico::Forma::barre);
    EXPECT_TRUE(valori(0).valori);
    const Grafico::Contenuto g = valori(0, {Grafico::Forma::linee, false});
    EXPECT_EQ(g.serie[0].forma, Grafico::Forma::linee);
    EXPECT_FALSE(g.valori);
    EXPECT_EQ(graficoLivelli(r(), tabella, 4, {Grafico::Forma::linee, false}).serie[0].forma, Grafico::Forma::linee);
}

TEST_F(Grafici, LevelsAreDrawnByTheirCodes) {
    const Grafico::Contenuto g = graficoLivelli(r(), tabella, 4, {});
    EXPECT_EQ(g.serie[0].valori, (std::vector<double>{0.0, 15.0, 25.0, 30.0}));  // 0, 20, 40, 60 s
    EXPECT_EQ(g.serie[0].testi, (std::vector<std::string>{"-", "C", "E", "F"}));
    EXPECT_EQ(g.serie[0].colore, (Colore{64, 72, 80}));
    EXPECT_EQ(g.y.titolo, "L.O.S. (*)");
    EXPECT_EQ(g.y.etichette, (std::vector<std::string>{"0", "A", "B", "C", "D", "E", "F"}));
    EXPECT_EQ(g.y.minimo, 0.0);
    EXPECT_EQ(g.y.massimo, 30.0);
    EXPECT_EQ(g.y.tacche, 7);
    EXPECT_EQ(g.nota, "(*) L.O.S. (Level of service) - HCM Americano");
    EXPECT_EQ(g.x.titolo, "ora");
    EXPECT_EQ(g.titolo, "Livello di Servizio");
}

TEST_F(Grafici, AChartWithoutFiguresHasItsAxesAndAnInvitation) {
    for (const Grafico::Contenuto& g :
         {graficoValori(r(), tabella, graficiGrandezze[1], 0, {}), graficoLivelli(r(), tabella, 0, {})}) {
        Grafico grafico("grafico");
        grafico.contenuto(g);
        EXPECT_TRUE(grafico.vuoto());
        EXPECT_EQ(g.invito, "Calcola (F9)");
        EXPECT_EQ(g.x.titolo, "ora");
        EXPECT_GT(g.y.massimo, 0.0);
    }
}

TEST_F(Grafici, ANegativeCapacityMovesTheFootOfTheAxis) {
    tabella.cella(2, colonnaCapacita).testo = "-12,50";
    EXPECT_EQ(valori(0).y.minimo, -13.0);
    EXPECT_EQ(valori(0).y.massimo, 905.0);
}

}  // namespace
}  // namespace kelvo::prove
