// The dimensions of the drawing, read back by another program.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <string>
#include <vector>

#include "cad/disegnoProva.h"
#include "cad/lettura/lettura.h"

namespace kelvo::prove {

namespace {

TEST_F(Lettura, DimensionsMeasureWhatTheProjectHolds) {
    pianta::DatiPianta dati = rotatoria(4);
    dati.rami[2].larghezzaIngresso = 6.5;
    dati.rami[2].angoloConflitto = 40;
    const Letto letto = leggi(filePianta(dati));
    sano(letto, "quote");
    const std::vector<Riga>& quote = letto.at("quota");
    ASSERT_EQ(quote.size(), 4U * 5 + 1);
    struct Attesa {
        int tipo;
        double misura;
        const char* riscritto;
        const char* testo;
    };
    const std::vector<Attesa> primo{{1, 5.0, "e = <> m", "e = 5,00 m"},     {1, 3.75, "v = <> m", "v = 3,75 m"},
                                    {0, 20.0, "l' = <> m", "l' = 20,00 m"}, {5, 25.0, "φ = <>", "φ = 25,00°"},
                                    {4, 25.0, "<> m", "R25,00 m"},          {3, 40.0, "<> m", "Ø40,00 m"}};
    for (std::size_t k = 0; k < primo.size(); ++k) {
        EXPECT_EQ(quote[k].at(0), std::to_string(primo[k].tipo));
        EXPECT_NEAR(numero(quote[k].at(1)), primo[k].misura, 1e-6) << primo[k].testo;
        EXPECT_NEAR(numero(quote[k].at(2)), primo[k].misura, 1e-6) << primo[k].testo;
        EXPECT_EQ(quote[k].at(3), primo[k].riscritto);
        EXPECT_EQ(quote[k].at(4), primo[k].testo);
    }
    const std::size_t terzo = 6 + 5;
    EXPECT_NEAR(numero(quote[terzo].at(1)), 6.5, 1e-6);
    EXPECT_EQ(quote[terzo].at(4), "e = 6,50 m");
    EXPECT_NEAR(numero(quote[terzo + 3].at(1)), 40, 1e-5);
    EXPECT_EQ(quote[terzo + 3].at(4), "φ = 40,00°");
}

TEST_F(Lettura, AMeasureThatDoesNotFitReadsItsTrueValueAndSaysSo) {
    pianta::DatiPianta dati = rotatoria(7);
    dati.rami[0].raggioIngresso = 500;
    dati.rami[3].diametroInscritto = 60;
    const Letto letto = leggi(filePianta(dati));
    sano(letto, "fuori scala");
    const Riga& raggio = letto.at("quota").at(4);
    EXPECT_LT(numero(raggio.at(1)), 499);
    EXPECT_EQ(raggio.at(3), "R500,00 m (non in scala)");
    EXPECT_EQ(raggio.at(4), "R500,00 m (non in scala)");
    // The circle is that of the first leg; the notes tell that another leg has another one.
    EXPECT_NEAR(numero(letto.at("quota").at(5).at(1)), 40, 1e-6);
    const std::vector<std::string> note = testi(letto, "KELVO-NOTE");
    EXPECT_NE(std::find(note.begin(), note.end(), "diametri diversi tra i rami: disegnato D = 40,00 m"), note.end());
    EXPECT_NE(std::find(note.begin(), note.end(), "misure non in scala: A r"), note.end());
}

TEST_F(Lettura, DimensionsMadeAnewLookAsTheyWereDrawn) {
    const Letto letto = leggi(filePianta(rotatoria(4)));
    std::map<std::string, std::string> stile;
    for (const Riga& riga : letto.at("stile")) {
        if (riga.at(0) == "KELVO") {
            stile[riga.at(1)] = riga.at(2);
        }
    }
    EXPECT_EQ(stile["dimdsep"], "44") << "a comma";
    EXPECT_EQ(stile["dimdec"], "2");
    EXPECT_EQ(stile["dimadec"], "2");
    EXPECT_EQ(stile["dimzin"], "0") << "with the zeros at the end";
    EXPECT_EQ(stile["dimlunit"], "2");
    EXPECT_EQ(stile["dimtih"], "0");
    EXPECT_EQ(stile["dimtoh"], "0");
    // 3 % of the radius of 20 m for text and arrows.
    EXPECT_NEAR(numero(stile["dimtxt"]), 0.6, 1e-9);
    EXPECT_NEAR(numero(stile["dimasz"]), 0.6, 1e-9);
    EXPECT_NEAR(numero(stile["dimgap"]), 0.3, 1e-9);
    EXPECT_NEAR(numero(stile["dimexo"]), 0.18, 1e-9);
    EXPECT_NEAR(numero(stile["dimexe"]), 0.3, 1e-9);
    EXPECT_NEAR(numero(stile["dimscale"]), 1, 1e-9);
    EXPECT_NEAR(numero(stile["dimlfac"]), 1, 1e-9);
    const std::vector<Riga>& quote = letto.at("stilequota");
    ASSERT_EQ(quote.size(), 21U);
    int angoli = 0;
    for (const Riga& riga : quote) {
        EXPECT_EQ(riga.at(1), "KELVO");
        const bool angolo = riga.at(0) == "5";
        angoli += angolo ? 1 : 0;
        // The text of the angle alone stands level.
        EXPECT_EQ(riga.at(2), angolo ? "1" : "0") << riga.at(0);
        EXPECT_EQ(riga.at(3), angolo ? "1" : "0") << riga.at(0);
    }
    EXPECT_EQ(angoli, 4);
}

TEST_F(Lettura, AnAngleOfNothingIsNoDimensionAndKeepsItsText) {
    pianta::DatiPianta dati = rotatoria(4);
    dati.rami[1].angoloConflitto = 0;
    const Letto letto = leggi(filePianta(dati));
    sano(letto, "angolo nullo");
    int angoli = 0;
    for (const Riga& riga : letto.at("stilequota")) {
        angoli += riga.at(0) == "5" ? 1 : 0;
        EXPECT_EQ(riga.at(4), "0") << "no rays that coincide";
    }
    EXPECT_EQ(angoli, 3);
    EXPECT_EQ(letto.at("quota").size(), 20U);
    EXPECT_EQ(testi(letto, "KELVO-QUOTE"), std::vector<std::string>{"φ = 0,00°"});
    EXPECT_EQ(testi(leggi(filePianta(rotatoria(4))), "KELVO-QUOTE"), std::vector<std::string>{});
}

TEST_F(Lettura, TextsOfDimensionsStandAtTheirLines) {
    pianta::DatiPianta dati = rotatoria(4);
    dati.ipotesi.ramoMinimo = 200;
    const Letto letto = leggi(filePianta(dati));
    const std::vector<Riga>& testi = letto.at("testoquota");
    ASSERT_EQ(testi.size(), 21U);
    for (const Riga& riga : testi) {
        EXPECT_EQ(riga.at(0), "KELVO-QUOTE");
        EXPECT_NEAR(numero(riga.at(3)), 0.6, 1e-9);
        EXPECT_EQ(riga.at(5), "1");
        EXPECT_EQ(riga.at(6), "2");
    }
    const auto sta = [&](std::size_t k, double x, double y, double rotazione) {
        EXPECT_NEAR(numero(testi.at(k).at(1)), x, 1e-6) << k;
        EXPECT_NEAR(numero(testi.at(k).at(2)), y, 1e-6) << k;
        EXPECT_NEAR(numero(testi.at(k).at(4)), rotazione, 1e-6) << k;
    };
    // Half-width: taken 1.2 sizes of 0.0672 * 220 m before the end of the leg. Behind its 3.75 m the height of the text
    // and half of ten letters of 0.85 heights; 0.9 heights over the line.
    constexpr double lungo = 201.7192;
    constexpr double fianco = 6.9;
    sta(1, fianco, -lungo, 0);
    sta(6 + 1, lungo, fianco, 90);
    sta(11 + 1, -fianco, lungo, 0);
    sta(16 + 1, -lungo, -fianco, 90);
    // The diameter runs from above on the left to below on the right, its text over the centre.
    sta(5, 0.54 * std::sqrt(0.5), 0.54 * std::sqrt(0.5), -45);
    for (const std::size_t k : {3U, 9U, 14U, 19U}) {
        EXPECT_NEAR(numero(testi.at(k).at(4)), 0, 1e-9) << "angles are level";
    }
    for (const std::size_t k : {2U, 13U}) {
        EXPECT_NEAR(numero(testi.at(k).at(4)), 90, 1e-6) << "along the flare of a leg that goes up";
    }
}

}  // namespace

}  // namespace kelvo::prove
