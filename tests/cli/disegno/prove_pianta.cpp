// pianta: drawings of the plan to files.

#include <gtest/gtest.h>

#include <array>
#include <filesystem>

#include "cli/processo.h"
#include "comune/cartella.h"

namespace kelvo::prove {

namespace {

const std::string stazione = "Rotatoria_Viale_della_Stazione";

/// A whole number of four bytes, the highest first.
unsigned intero(const std::string& byte, std::size_t dove) {
    unsigned valore = 0;
    for (std::size_t k = 0; k < 4; ++k) {
        valore = valore * 256 + static_cast<unsigned char>(byte.at(dove + k));
    }
    return valore;
}

class ComandoPianta : public testing::Test {
protected:
    std::string file(const std::string& nome) const { return cartella_.file(nome); }
    CartellaTemporanea cartella_;
};

TEST_F(ComandoPianta, WritesAPngOfTheWidthAskedFor) {
    const Esito esito = kelvoCli({"pianta", esempio(stazione), file("p.png"), "--larghezza", "640"});
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    EXPECT_EQ(esito.uscita, "");
    EXPECT_EQ(esito.errori, "");
    const std::string png = contenuto(file("p.png"));
    ASSERT_GT(png.size(), 1000U);
    EXPECT_EQ(png.substr(1, 3), "PNG");
    EXPECT_EQ(intero(png, 16), 640U);
    EXPECT_GT(intero(png, 20), 300U);
}

TEST_F(ComandoPianta, WritesAnSvgWithTheNamesOfTheLegs) {
    ASSERT_EQ(kelvoCli({"pianta", esempio(stazione), file("p.SVG")}).codice, 0);
    const std::string svg = contenuto(file("p.SVG"));
    EXPECT_NE(svg.find("<svg "), std::string::npos);
    EXPECT_NE(svg.find("</svg>"), std::string::npos);
    EXPECT_NE(svg.find("Via del Mercato"), std::string::npos);
    EXPECT_NE(svg.find("schema: direzioni dei rami, isole e uscite non di progetto"), std::string::npos);
    EXPECT_EQ(svg.find("Larghezza ingresso"), std::string::npos);
}

TEST_F(ComandoPianta, ACloseUpShowsTheMeasureOfItsLeg) {
    ASSERT_EQ(kelvoCli({"pianta", esempio(stazione), file("b.svg"), "--ramo", "b", "--misura", "larghezza"}).codice, 0);
    const std::string svg = contenuto(file("b.svg"));
    EXPECT_NE(svg.find("Larghezza ingresso"), std::string::npos);
    EXPECT_NE(svg.find("4,00 m"), std::string::npos);
}

TEST_F(ComandoPianta, WritesAPdf) {
    ASSERT_EQ(kelvoCli({"pianta", esempio(stazione), file("p.pdf")}).codice, 0);
    EXPECT_EQ(contenuto(file("p.pdf")).substr(0, 5), "%PDF-");
}

TEST_F(ComandoPianta, SaysWhyItCannotWrite) {
    const Esito esito = kelvoCli({"pianta", esempio(stazione), file("manca/p.png")});
    EXPECT_EQ(esito.codice, 1);
    EXPECT_EQ(esito.errori,
              "kelvo-cli: Impossibile scrivere il disegno: percorso non trovato (" + file("manca/p.png") + ")\n");
    EXPECT_TRUE(std::filesystem::is_empty(cartella_.percorso()));
}

TEST_F(ComandoPianta, SaysThatALegOrAProjectDoesNotExist) {
    const Esito ramo = kelvoCli({"pianta", esempio(stazione), file("p.png"), "--ramo", "E"});
    EXPECT_EQ(ramo.codice, 1);
    EXPECT_EQ(ramo.errori, "kelvo-cli: " + esempio(stazione) + ": il ramo E non esiste, i rami sono 4\n");
    EXPECT_EQ(kelvoCli({"pianta", file("manca.klv"), file("p.png")}).codice, 1);
    EXPECT_TRUE(std::filesystem::is_empty(cartella_.percorso()));
}

struct UsoErrato {
    const char* nome;
    std::vector<std::string> argomenti;
    const char* messaggio;
};

const std::array usi{
    UsoErrato{"OtherFormat", {"x.klv", "x.jpg"}, "'x.jpg': serve un nome che finisce con .png, .svg o .pdf"},
    UsoErrato{"NoOutput", {"x.klv"}, "manca il nome del file da scrivere"},
    UsoErrato{
        "LegByNumber", {"x.klv", "x.png", "--ramo", "1"}, "--ramo: serve la lettera di un ramo, da A a G, non '1'"},
    UsoErrato{"LegH", {"x.klv", "x.png", "--ramo", "H"}, "--ramo: serve la lettera di un ramo, da A a G, non 'H'"},
    UsoErrato{"UnknownMeasure",
              {"x.klv", "x.png", "--ramo", "A", "--misura", "altezza"},
              "--misura: serve una di larghezza, semilarghezza, svasatura, angolo, raggio, diametro, non 'altezza'"},
    UsoErrato{"MeasureWithoutLeg", {"x.klv", "x.png", "--misura", "raggio"}, "l'opzione --misura va data con --ramo"},
    UsoErrato{"WidthTooSmall",
              {"x.klv", "x.png", "--larghezza", "10"},
              "--larghezza: serve un numero intero da 64 a 10000, non '10'"},
};

class UsiErratiPianta : public testing::TestWithParam<UsoErrato> {};

TEST_P(UsiErratiPianta, IsToldInItalianWithExitCode2) {
    const CartellaTemporanea cartella;
    std::vector<std::string> argomenti{"pianta"};
    argomenti.insert(argomenti.end(), GetParam().argomenti.begin(), GetParam().argomenti.end());
    const Esito esito = kelvoCli(argomenti, cartella.percorso());
    EXPECT_EQ(esito.codice, 2);
    EXPECT_EQ(esito.errori.substr(0, esito.errori.find('\n')), std::string("kelvo-cli: ") + GetParam().messaggio);
    EXPECT_TRUE(std::filesystem::is_empty(cartella.percorso()));
}

INSTANTIATE_TEST_SUITE_P(Tutti, UsiErratiPianta, testing::ValuesIn(usi),
                         [](const auto& caso) { return std::string(caso.param.nome); });

TEST(AiutoPianta, IsItalianAndNamesItsFiles) {
    const Esito esito = kelvoCli({"pianta", "--help"});
    EXPECT_EQ(esito.codice, 0);
    EXPECT_NE(esito.uscita.find("Uso: kelvo-cli pianta [OPZIONI] FILE USCITA"), std::string::npos) << esito.uscita;
    EXPECT_NE(esito.uscita.find("\nEsempi:\n  kelvo-cli pianta"), std::string::npos);
    EXPECT_NE(kelvoCli({"--help"}).uscita.find("\n  pianta "), std::string::npos);
}

}  // namespace

}  // namespace kelvo::prove
