// The words of the drawing, read back by another program.

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "cad/disegnoProva.h"
#include "cad/lettura/lettura.h"
#include "model/Rotonda.h"

namespace kelvo::prove {

namespace {

TEST_F(Lettura, EveryDrawingBearsItsMarkAndTheProjectsOwnWords) {
    std::vector<std::string> progetti;
    for (const auto& voce : std::filesystem::directory_iterator(KELVO_SORGENTI "/assets/Progetti")) {
        progetti.push_back(voce.path().string());
    }
    EXPECT_GE(progetti.size(), 6U);
    for (const std::string& nome : progetti) {
        Rotonda rotonda;
        std::string messaggio;
        bool esito = true;
        rotonda.Load(nome, messaggio, esito);
        ASSERT_TRUE(esito) << messaggio;
        const Letto letto = leggi(dxf::testoDxf(dxf::disegno(pianta::datiPianta(rotonda), dxf::cartiglioDi(rotonda))));
        sano(letto, nome);
        EXPECT_EQ(testi(letto, "KELVO-NOTE").front(), "schema: direzioni dei rami, isole e uscite non di progetto");
        EXPECT_EQ(static_cast<int>(testi(letto, "KELVO-LETTERE").size()), rotonda.NumeroRami());
        std::vector<std::string> nomi = testi(letto, "KELVO-NOMI");
        for (std::int16_t i = 1; i <= rotonda.NumeroRami(); ++i) {
            EXPECT_EQ(nomi.at(static_cast<std::size_t>(i) - 1), rotonda.Ramo(i).Descrizione()) << nome;
        }
        const std::vector<std::string> cartiglio = testi(letto, "KELVO-CARTIGLIO");
        EXPECT_EQ(cartiglio.front(), rotonda.Titolo());
        EXPECT_EQ(cartiglio.at(2), "Progettista: " + rotonda.NomeProfessionista());
        EXPECT_EQ(cartiglio.at(3), "Data: " + testoData(rotonda.Data()));
    }
}

TEST_F(Lettura, WordsOfAnyKindComeBackAsTheyAre) {
    const std::vector<std::string> parole{"Città \"Forlì\" €", "50%% d'uso", "a^Ib", "C:\\U+00E0", "🚗 {b}; \\P"};
    pianta::DatiPianta dati = rotatoria(5);
    for (std::size_t i = 0; i < parole.size(); ++i) {
        dati.rami[i].nome = parole[i];
    }
    dxf::Cartiglio cartiglio{.titolo = std::string(5000, 'W')};
    cartiglio.progettista = "Studio «Così & Là»\nsecondo rigo";
    const Letto letto = leggi(dxf::testoDxf(dxf::disegno(dati, cartiglio)));
    sano(letto, "parole");
    // Two percent signs and the beginning of a letter's code would be read as something else: a blank parts them.
    const std::vector<std::string> lette{parole[0], "50% % d'uso", parole[2], "C:\\ U+00E0", parole[4]};
    EXPECT_EQ(testi(letto, "KELVO-NOMI"), lette);
    EXPECT_EQ(testi(letto, "KELVO-CARTIGLIO").at(0), std::string(90, 'W') + "…");
    EXPECT_EQ(testi(letto, "KELVO-CARTIGLIO").at(1), "Progettista: Studio «Così & Là» secondo rigo");
}

TEST_F(Lettura, TextsStandWhereThePlanHasThemAndAsLarge) {
    // Legs of 20 m + 200 m. Size of the type: 0.02 of 2.4 times that, 10.56 m; its capitals are 0.7 of it.
    pianta::DatiPianta dati = rotatoria(4);
    dati.ipotesi.ramoMinimo = 200;
    const Letto letto = leggi(filePianta(dati));
    struct Posto {
        double x, y, altezza, rotazione;
        const char* lato;  // 0 left, 1 middle, 2 right
    };
    const auto confronta = [&](const char* fatto, const std::string& layer, const std::vector<Posto>& attesi) {
        std::size_t k = 0;
        for (const Riga& riga : letto.at(fatto)) {
            if (riga.at(0) != layer) {
                continue;
            }
            EXPECT_EQ(riga.at(6), "2") << "on half the height";
            EXPECT_EQ(riga.at(7), "KELVO");
            if (k < attesi.size()) {
                EXPECT_NEAR(numero(riga.at(1)), attesi[k].x, 1e-6) << layer << " " << k;
                EXPECT_NEAR(numero(riga.at(2)), attesi[k].y, 1e-6) << layer << " " << k;
                EXPECT_NEAR(numero(riga.at(3)), attesi[k].altezza, 1e-6) << layer << " " << k;
                EXPECT_NEAR(numero(riga.at(4)), attesi[k].rotazione, 1e-6) << layer << " " << k;
                EXPECT_EQ(riga.at(5), attesi[k].lato) << layer << " " << k;
            }
            ++k;
        }
        return k;
    };
    // A disc of 1.35 sizes, its centre 1.4 of its radii beyond the leg: 220 + 1.89 * 10.56. Letters of 1.45 sizes.
    constexpr double d = 239.9584;
    constexpr double l = 10.7184;
    EXPECT_EQ(confronta("posto", "KELVO-LETTERE",
                        {{0, -d, l, 0, "1"}, {d, 0, l, 0, "1"}, {0, d, l, 0, "1"}, {-d, 0, l, 0, "1"}}),
              4U);
    // Names 0.3 sizes beyond the disc: half a line more above and below, 0.15 sizes more at the sides.
    constexpr double sotto = 263.9824;
    constexpr double fianco = 258.9664;
    constexpr double n = 7.392;
    EXPECT_EQ(
        confronta("posto", "KELVO-NOMI",
                  {{0, -sotto, n, 0, "1"}, {fianco, 0, n, 0, "0"}, {0, sotto, n, 0, "1"}, {-fianco, 0, n, 0, "2"}}),
        4U);
}

}  // namespace

}  // namespace kelvo::prove
