#include <gtest/gtest.h>

#include "comune/guasti.h"
#include "model/ComposizioneTraffico.h"
#include "model/DatiTraffico.h"

namespace kelvo::prove {
namespace {

TEST(ProveDatiTraffico, SettingTheSegmentsDiscardsValuesAndRecordsAndKeepsTheTimes) {
    Revisione revisione;
    DatiTraffico d(revisione);
    d.NumSegmentiTempo(2);
    d.Tempo1(0.25);
    d.Tempo2(0.5);
    d.Tempo3(0.75);
    d.FlussoSegmento(7.5F, 1, 0);
    d.SetIterazione(3, {1, 2, 3, 4, 5});
    EXPECT_EQ(d.FlussoSegmento(1, 0), 7.5F);
    EXPECT_EQ(d.IterazioniScritte(), 3);
    d.NumSegmentiTempo(2);
    EXPECT_EQ(d.FlussoSegmento(1, 0), 0.0F);
    EXPECT_EQ(d.IterazioniScritte(), 0);
    EXPECT_EQ(d.GetIterazione(3), Iterazione{});
    EXPECT_EQ(d.Tempo1(), 0.25);
    EXPECT_EQ(d.Tempo2(), 0.5);
    EXPECT_EQ(d.Tempo3(), 0.75);
}

TEST(ProveDatiTraffico, SegmentsOutsideTheTableAreFaultsToWriteAndZeroToRead) {
    Revisione revisione;
    DatiTraffico d(revisione);
    d.NumSegmentiTempo(2);
    EXPECT_EQ(d.FlussoSegmento(2, 0), 0.0F);
    EXPECT_EQ(numeroGuasto([&] { d.FlussoSegmento(1.0F, 2, 0); }), 9);
    EXPECT_EQ(numeroGuasto([&] { d.FlussoSegmento(1.0F, 0, 1); }), 9);
    EXPECT_EQ(numeroGuasto([&] { d.FlussoSegmento(1.0F, -1, 0); }), 9);
    EXPECT_EQ(numeroGuasto([&] { return d.FlussoSegmento(-1, 0); }), 9);
    EXPECT_EQ(numeroGuasto([&] { return d.FlussoSegmento(0, 1); }), 9);
    EXPECT_EQ(numeroGuasto([&] { d.NumSegmentiTempo(-1); }), 9);
}

TEST(ProveDatiTraffico, RecordsAreCountedFromOneAndMayLiePastTheSegments) {
    Revisione revisione;
    DatiTraffico d(revisione);
    d.NumSegmentiTempo(1);
    const Iterazione record{.Flusso = 1, .Capacita = 2, .Coeff_Sat = 3, .Coda = 4, .Ritardo = 5};
    d.SetIterazione(2, record);
    EXPECT_EQ(d.GetIterazione(2), record);
    EXPECT_EQ(d.GetIterazione(1), Iterazione{});
    EXPECT_EQ(numeroGuasto([&] { return d.GetIterazione(0); }), 9);
    EXPECT_EQ(numeroGuasto([&] { d.SetIterazione(0, record); }), 9);
}

TEST(ProveComposizioneTraffico, TableIsReadWrittenAndCopiedByClass) {
    Revisione revisione;
    ComposizioneTraffico c(revisione);
    c.NumSegmentiTempo(2);
    for (std::int16_t s = 0; s < 2; ++s) {
        for (std::int16_t k = 0; k < numeroClassi; ++k) {
            c.CategoriaSegmento(static_cast<float>(10 * s + k), s, k);
        }
    }
    EXPECT_EQ(c.CategoriaSegmento(1, 6), 16.0F);
    TabellaCategorie tabella;
    c.GetCategorieSegmenti(tabella);
    EXPECT_EQ(tabella, (TabellaCategorie{{0, 1, 2, 3, 4, 5, 6}, {10, 11, 12, 13, 14, 15, 16}}));
    EXPECT_EQ(c.CategoriaSegmento(2, 0), 0.0F);
    EXPECT_EQ(numeroGuasto([&] { c.CategoriaSegmento(1.0F, 2, 0); }), 9);
    EXPECT_EQ(numeroGuasto([&] { c.CategoriaSegmento(1.0F, 0, 7); }), 9);
    EXPECT_EQ(numeroGuasto([&] { return c.CategoriaSegmento(0, 7); }), 9);
    EXPECT_EQ(numeroGuasto([&] { return c.CategoriaSegmento(-1, 0); }), 9);
    c.NumSegmentiTempo(2);
    EXPECT_EQ(c.CategoriaSegmento(1, 6), 0.0F);
    EXPECT_EQ(numeroGuasto([&] { c.NumSegmentiTempo(-1); }), 9);
}

}  // namespace
}  // namespace kelvo::prove
