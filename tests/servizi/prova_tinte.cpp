#include "shell/servizi/tinte.h"

#include <gtest/gtest.h>

#include <array>

#include "shell/servizi/pelle.h"

namespace kelvo::prove {
namespace {

TEST(Tinte, TheContrastOfTheColoursIsThatOfTheLook) {
    struct Caso {
        Colore testo;
        Colore sfondo;
        double atteso;
    };
    const std::array casi{
        Caso{colori::bianco, tinta::principale, 4.97},
        Caso{colori::bianco, tinta::principaleScuro, 7.1},
        Caso{colori::bianco, tinta::principalePremuto, 9.9},
        Caso{tinta::titolo, colori::bianco, 7.7},
        Caso{tinta::inchiostro, colori::bianco, 16.3},
        Caso{tinta::inchiostro, {220, 220, 220}, 11.9},
        Caso{tinta::inchiostro, {200, 200, 200}, 9.7},
        Caso{tinta::inchiostro, {164, 196, 0}, 8.1},
        Caso{tinta::secondario, colori::bianco, 6.4},
        Caso{tinta::secondario, {240, 242, 244}, 5.7},
        Caso{tinta::spento, colori::bianco, 4.7},
        Caso{tinta::grafite, colori::bianco, 9.3},
        Caso{colori::bianco, {0, 98, 0}, 7.6},
        Caso{tinta::errore, colori::bianco, 7.3},
        Caso{tinta::inchiostro, tinta::fondoErrore, 14.7},
        Caso{{255, 255, 102}, {140, 0, 25}, 9.3},
    };
    for (const Caso& caso : casi) {
        EXPECT_NEAR(contrasto(caso.testo, caso.sfondo), caso.atteso, 0.06) << &caso - casi.data();
        EXPECT_EQ(contrasto(caso.testo, caso.sfondo), contrasto(caso.sfondo, caso.testo));
    }
    EXPECT_NEAR(contrasto(colori::nero, colori::bianco), 21.0, 1e-9);
    EXPECT_NEAR(contrasto(tinta::titolo, tinta::titolo), 1.0, 1e-9);
}

TEST(Tinte, TextThatCannotBeReadIsMendedAndNoOther) {
    struct Caso {
        Colore testo;
        Colore sfondo;
        Colore atteso;
    };
    const std::array casi{
        Caso{{255, 255, 255}, {164, 196, 0}, {32, 32, 32}},    // white on lime
        Caso{{230, 0, 0}, {200, 200, 200}, {173, 0, 0}},       // a maximum
        Caso{{0, 103, 0}, {200, 200, 200}, {0, 98, 0}},        // a minimum
        Caso{{255, 0, 0}, {255, 255, 255}, {230, 0, 0}},       // level F
        Caso{{255, 255, 255}, {0, 98, 0}, {255, 255, 255}},    // a heading is read as it is
        Caso{{0, 0, 0}, {220, 220, 220}, {0, 0, 0}},           //
        Caso{{128, 128, 128}, {255, 255, 255}, {32, 32, 32}},  // a grey on a light ground
    };
    for (const Caso& caso : casi) {
        const Colore mendato = inchiostroLeggibile(caso.testo, caso.sfondo);
        EXPECT_EQ(mendato, caso.atteso) << &caso - casi.data();
        EXPECT_GE(contrasto(mendato, caso.sfondo), 4.5);
    }
}

TEST(Tinte, OnADarkGroundTextGoesLighter) {
    const Colore fondo{0, 0, 120};
    const Colore rosso = inchiostroLeggibile({160, 0, 0}, fondo);
    EXPECT_GE(contrasto(rosso, fondo), 4.5);
    EXPECT_GE(rosso.rosso, 160);
    EXPECT_GT(rosso.verde, 0);
    const Colore grigio = inchiostroLeggibile({60, 60, 60}, fondo);
    EXPECT_GE(contrasto(grigio, fondo), 4.5);
    EXPECT_GT(grigio.rosso, 60);
}

TEST(Tinte, TheCaptionPanelsTakeTheInkThatContrastsMore) {
    // Grigio, Granata, Blu, Verde, Sfumato verde, Arancio, Rosa
    const std::array<double, 7> attesi{5.0, 6.5, 11.9, 5.1, 4.8, 8.3, 9.8};
    const std::array<bool, 7> nero{true, false, false, false, false, true, true};
    for (std::size_t i = 0; i < coloriPannello.size(); ++i) {
        const Colore fondo = coloriPannello[i].colore;
        EXPECT_EQ(neroOBianco(fondo), nero[i] ? colori::nero : colori::bianco) << coloriPannello[i].nome;
        EXPECT_NEAR(contrasto(neroOBianco(fondo), fondo), attesi[i], 0.06) << coloriPannello[i].nome;
    }
}

TEST(Tinte, EveryLevelOfServiceHasABoxThatCanBeRead) {
    EXPECT_EQ(distintivoLivello("A").fondo, (Colore{0, 98, 0}));
    EXPECT_EQ(distintivoLivello("B").fondo, (Colore{63, 122, 0}));
    EXPECT_EQ(distintivoLivello("C").fondo, (Colore{164, 196, 0}));
    EXPECT_EQ(distintivoLivello("D").fondo, (Colore{255, 210, 77}));
    EXPECT_EQ(distintivoLivello("E").fondo, (Colore{240, 138, 36}));
    EXPECT_EQ(distintivoLivello("F").fondo, (Colore{140, 0, 25}));
    EXPECT_EQ(distintivoLivello("F").testo, (Colore{255, 255, 102}));
    EXPECT_EQ(distintivoLivello("-").fondo, colori::bianco);
    EXPECT_EQ(distintivoLivello("-").bordo, tinta::bordoCampo);
    EXPECT_EQ(distintivoLivello("G"), distintivoLivello("-"));
    for (const char* livello : {"A", "B", "C", "D", "E", "F", "-"}) {
        const Distintivo d = distintivoLivello(livello);
        EXPECT_GE(contrasto(d.testo, d.fondo), 4.5) << livello;
    }
}

}  // namespace
}  // namespace kelvo::prove
