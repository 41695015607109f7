#include "shell/servizi/Grafico.h"

#include <gtest/gtest.h>

#include <limits>

#include "comune/guasti.h"

namespace kelvo::prove {
namespace {

TEST(Grafico, ValuesAndLabelsComeAsTexts) {
    EXPECT_EQ(valoriDaTesto("1.5*2,25*-3"), (std::vector<double>{1.5, 2.25, -3.0}));
    EXPECT_EQ(valoriDaTesto("7"), (std::vector<double>{7.0}));
    EXPECT_EQ(valoriDaTesto("0*0*0*0*0*0*0*").size(), 8U);
    EXPECT_EQ(valoriDaTesto("-*x*4"), (std::vector<double>{0.0, 0.0, 4.0}));
    EXPECT_TRUE(valoriDaTesto("").empty());
    EXPECT_EQ(etichetteDaTesto("0*A*B"), (std::vector<std::string>{"0", "A", "B"}));
    EXPECT_EQ(etichetteDaTesto("A**"), (std::vector<std::string>{"A", "", ""}));
    EXPECT_TRUE(etichetteDaTesto("").empty());
}

struct ProveGrafico : testing::Test {
    Grafico grafico{"ctlChart"};
    int segnali = 0;
    Grafico::Contenuto contenuto;
    ProveGrafico() {
        contenuto.titolo = "Ritardi";
        contenuto.x = {.titolo = "ora", .tacche = 4, .etichette = {"07:00", "08:00"}, .passiPerEtichetta = 2.0};
        contenuto.y = {.titolo = "s/veic", .minimo = 0.0, .massimo = 30.0, .tacche = 7};
        contenuto.serie = {
            {.nome = "A", .forma = Grafico::Forma::barre, .valori = {12.5, 30.0, 7.0}, .testi = {"12,5", "30", "7"}},
            {.nome = "B", .forma = Grafico::Forma::torta, .valori = {-2.0, 4.0}}};
        grafico.contenuto(contenuto);
        grafico.cambiato().connect([this] { ++segnali; });
    }
};

TEST_F(ProveGrafico, HoldsWhatItIsGivenAndTellsChangesOnce) {
    EXPECT_EQ(grafico.contenuto(), contenuto);
    grafico.contenuto(contenuto);
    EXPECT_EQ(segnali, 0);
    contenuto.nota = "(*)";
    grafico.contenuto(contenuto);
    EXPECT_EQ(segnali, 1);
}

TEST_F(ProveGrafico, KnowsItsExtremes) {
    EXPECT_EQ(grafico.massimo(), 30.0);
    EXPECT_EQ(grafico.minimo(), -2.0);
    EXPECT_FALSE(grafico.vuoto());
    contenuto.serie = {{.valori = {-5.0, -3.0}}};
    grafico.contenuto(contenuto);
    EXPECT_EQ(grafico.massimo(), -3.0);
    EXPECT_EQ(grafico.minimo(), -5.0);
}

TEST_F(ProveGrafico, EmptiedItKeepsTitleAndAxes) {
    grafico.svuota();
    EXPECT_TRUE(grafico.vuoto());
    EXPECT_EQ(grafico.contenuto().titolo, "Ritardi");
    EXPECT_EQ(grafico.contenuto().y, contenuto.y);
    EXPECT_EQ(grafico.massimo(), 0.0);
    EXPECT_EQ(segnali, 1);
}

TEST_F(ProveGrafico, ChangesFormAndLabelsWithoutOtherFigures) {
    grafico.forma(Grafico::Forma::linee);
    grafico.mostraValori(true);
    EXPECT_EQ(grafico.contenuto().serie[0].forma, Grafico::Forma::linee);
    EXPECT_EQ(grafico.contenuto().serie[1].forma, Grafico::Forma::torta);
    EXPECT_EQ(grafico.contenuto().serie[0].valori, contenuto.serie[0].valori);
    EXPECT_TRUE(grafico.contenuto().valori);
    EXPECT_EQ(segnali, 2);
    grafico.mostraValori(true);
    grafico.forma(Grafico::Forma::linee);
    EXPECT_EQ(segnali, 2);
}

TEST_F(ProveGrafico, RefusesWhatCannotBeDrawnAndKeepsWhatItHas) {
    const auto numeroDi = [&](const auto& guasta) {
        Grafico::Contenuto cattivo = contenuto;
        guasta(cattivo);
        return numeroGuasto([&] { grafico.contenuto(cattivo); });
    };
    using C = Grafico::Contenuto;
    EXPECT_EQ(numeroDi([](C& c) { c.serie[0].testi.pop_back(); }), 5);
    EXPECT_EQ(numeroDi([](C& c) { c.serie[0].ascisse = {1.0}; }), 5);
    EXPECT_EQ(numeroDi([](C& c) { c.serie[1].colori.resize(3); }), 5);
    EXPECT_EQ(numeroDi([](C& c) { c.y.massimo = -1.0; }), 5);
    EXPECT_EQ(numeroDi([](C& c) { c.x.tacche = -1; }), 5);
    EXPECT_EQ(numeroDi([](C& c) { c.x.passiPerEtichetta = -1.0; }), 5);
    EXPECT_EQ(numeroDi([](C& c) { c.serie[0].valori[1] = std::numeric_limits<double>::quiet_NaN(); }), 6);
    EXPECT_EQ(numeroDi([](C& c) { c.y.massimo = std::numeric_limits<double>::infinity(); }), 6);
    EXPECT_EQ(numeroDi([](C& c) { c.soglie = {{.valore = std::numeric_limits<double>::infinity()}}; }), 6);
    EXPECT_EQ(grafico.contenuto(), contenuto);
    EXPECT_EQ(segnali, 0);
}

TEST_F(ProveGrafico, SaysInWordsWhatItShows) {
    EXPECT_EQ(grafico.descrizione(), "A: 3 valori, minimo 7, massimo 30; B: 2 valori, minimo -2, massimo 4");
    contenuto.serie = {{.valori = {4.25, 9.5, 4.25, 9.5}}};
    contenuto.x = {.etichette = {"a", "b", "c", "d"}, .passiPerEtichetta = 1.0};
    grafico.contenuto(contenuto);
    EXPECT_EQ(grafico.descrizione(), "4 valori, minimo 4,25 (a), massimo 9,5 (b)");
    contenuto.serie = {{.valori = {4.0}, .testi = {"quattro"}, .ascisse = {3.75}}};
    grafico.contenuto(contenuto);
    EXPECT_EQ(grafico.descrizione(), "1 valore, minimo quattro (3,75), massimo quattro (3,75)");
}

TEST_F(ProveGrafico, WithoutValuesItSaysItsInvitation) {
    grafico.svuota();
    EXPECT_EQ(grafico.descrizione(), "Nessun dato");
    contenuto.serie.clear();
    contenuto.invito = "Calcola (F9)";
    grafico.contenuto(contenuto);
    EXPECT_EQ(grafico.descrizione(), "Calcola (F9)");
}

TEST_F(ProveGrafico, ThresholdsAreContent) {
    contenuto.soglie = {{.testo = "massimo", .valore = 20.0}};
    grafico.contenuto(contenuto);
    EXPECT_EQ(segnali, 1);
    EXPECT_EQ(grafico.contenuto().soglie[0].colore, tinta::errore);
    EXPECT_EQ(grafico.massimo(), 30.0);
}

}  // namespace
}  // namespace kelvo::prove
