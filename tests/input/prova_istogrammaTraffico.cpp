#include "input/istogrammaTraffico.h"

#include <gtest/gtest.h>

namespace kelvo::prove {
namespace {

Grafico::Contenuto conValori(const std::string& valori, bool mostra = false) {
    return istogrammaTraffico({.etichette = "08:00-08:15*08:15-08:30*08:30-08:45",
                               .valori = valori,
                               .unita = "[veicoli]",
                               .colore = {1, 2, 3},
                               .mostraValori = mostra});
}

TEST(Istogramma, TextsAreJoinedByStarsWithPointsForCommas) {
    EXPECT_EQ(testoGrafico({"4,5", "7", "0,25"}), "4.5*7*0.25");
    EXPECT_EQ(testoGrafico({"08:00-08:15"}), "08:00-08:15");
    EXPECT_EQ(testoGrafico({}), "");
}

TEST(Istogramma, IsOneSeriesOfBarsWithoutALegend) {
    const Grafico::Contenuto c = conValori("4.5*7*2.25", true);
    ASSERT_EQ(c.serie.size(), 1U);
    EXPECT_EQ(c.serie[0].forma, Grafico::Forma::barre);
    EXPECT_EQ(c.serie[0].valori, (std::vector<double>{4.5, 7.0, 2.25}));
    EXPECT_EQ(c.serie[0].testi, (std::vector<std::string>{"4,50", "7,00", "2,25"}));
    EXPECT_EQ(c.serie[0].colore, (Colore{1, 2, 3}));
    EXPECT_EQ(c.y.titolo, "[veicoli]");
    EXPECT_EQ(c.x.titolo, "[ora]");
    EXPECT_EQ(c.x.etichette, (std::vector<std::string>{"08:00-08:15", "08:15-08:30", "08:30-08:45"}));
    EXPECT_EQ(c.x.tacche, 4);
    EXPECT_EQ(c.x.passiPerEtichetta, 1.0);
    EXPECT_EQ(c.x.posa, Grafico::Posa::centro) << "a label is of its whole bar";
    EXPECT_FALSE(c.legenda);
    EXPECT_TRUE(c.valori);
    EXPECT_FALSE(conValori("4.5*7*2.25").valori);
}

struct CasoAsse {
    const char* valori;
    double minimo;
    double massimo;
    int tacche;
};

TEST(Istogramma, ValueAxisHoldsZeroAndEndsAtARoundStep) {
    for (const CasoAsse& caso : std::vector<CasoAsse>{{"4.5*7*2.25", 0.0, 7.0, 8},
                                                      {"4.5*7.1*2", 0.0, 8.0, 5},
                                                      {"10*0*0", 0.0, 10.0, 6},
                                                      {"33*1*1", 0.0, 35.0, 8},
                                                      {"36*1*1", 0.0, 40.0, 5},
                                                      {"150*1*1", 0.0, 150.0, 4},
                                                      {"0.6*0.1*0", 0.0, 0.6, 7},
                                                      {"0*0*0", 0.0, 1.0, 6},
                                                      {"", 0.0, 1.0, 6},
                                                      {"-3*5*0", -4.0, 6.0, 6}}) {
        const Grafico::Asse asse = conValori(caso.valori).y;
        EXPECT_NEAR(asse.minimo, caso.minimo, 1e-12) << caso.valori;
        EXPECT_NEAR(asse.massimo, caso.massimo, 1e-12) << caso.valori;
        EXPECT_EQ(asse.tacche, caso.tacche) << caso.valori;
    }
}

}  // namespace
}  // namespace kelvo::prove
