// grafico: the demand of a leg to a file.

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <fstream>

#include "cli/processo.h"
#include "comune/cartella.h"

namespace kelvo::prove {

namespace {

const std::string curva = "Rotatoria_Viale_della_Stazione";

/// A whole number of four bytes, the highest first.
unsigned intero(const std::string& byte, std::size_t dove) {
    unsigned valore = 0;
    for (std::size_t k = 0; k < 4; ++k) {
        valore = valore * 256 + static_cast<unsigned char>(byte.at(dove + k));
    }
    return valore;
}

/// How often a word stands in a text.
std::size_t volte(const std::string& testo, const std::string& parola) {
    std::size_t trovate = 0;
    for (auto dove = testo.find(parola); dove != std::string::npos; dove = testo.find(parola, dove + 1)) {
        ++trovate;
    }
    return trovate;
}

class ComandoGrafico : public testing::Test {
protected:
    std::string file(const std::string& nome) const { return cartella_.file(nome); }
    Esito grafico(const std::string& progetto, const std::string& uscita,
                  const std::vector<std::string>& altri = {"--ramo", "1"}) const {
        std::vector<std::string> argomenti{"grafico", progetto, "-o", uscita};
        argomenti.insert(argomenti.end(), altri.begin(), altri.end());
        return kelvoCli(argomenti);
    }
    CartellaTemporanea cartella_;
};

TEST_F(ComandoGrafico, WritesAPngOfTheWidthAskedFor) {
    const Esito esito = grafico(esempio(curva), file("g.png"), {"--ramo", "2", "--larghezza", "700"});
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    EXPECT_EQ(esito.uscita, "");
    EXPECT_EQ(esito.errori, "");
    const std::string png = contenuto(file("g.png"));
    ASSERT_GT(png.size(), 1000U);
    EXPECT_EQ(png.substr(1, 3), "PNG");
    EXPECT_EQ(intero(png, 16), 700U);
    EXPECT_EQ(intero(png, 20), 420U);
}

TEST_F(ComandoGrafico, ACurveIsDrawnInVehiclesAMinuteUnderTheNameOfItsLeg) {
    ASSERT_EQ(grafico(esempio(curva), file("g.svg"), {"--ramo", "2"}).codice, 0);
    const std::string svg = contenuto(file("g.svg"));
    EXPECT_NE(svg.find("[veicoli]/[min]"), std::string::npos);
    EXPECT_NE(svg.find("[ora]"), std::string::npos);
    EXPECT_NE(svg.find("Via Garibaldi"), std::string::npos);
}

TEST_F(ComandoGrafico, WritesAPdf) {
    ASSERT_EQ(grafico(esempio(curva), file("g.PDF")).codice, 0);
    EXPECT_EQ(contenuto(file("g.PDF")).substr(0, 5), "%PDF-");
}

TEST_F(ComandoGrafico, ValuesStandOverTheBarsOnWish) {
    ASSERT_EQ(grafico(esempio(curva), file("senza.svg")).codice, 0);
    ASSERT_EQ(grafico(esempio(curva), file("con.svg"), {"--ramo", "1", "--valori"}).codice, 0);
    EXPECT_GT(volte(contenuto(file("con.svg")), "<text"), volte(contenuto(file("senza.svg")), "<text") + 3);
}

TEST_F(ComandoGrafico, ATableIsDrawnInVehicles) {
    // Four counts of a quarter of an hour at leg 1.
    std::ofstream(file("t.klv")) << R"({"formato":"Kelvo","versione":1,"TipoAnalisi":2,"NumeroRami":3,
"TempoIniziale":"08:00","TempoFinale":"09:00","SegmentoTempo":"00:15","Rami":[
{"Key":"1Ramo","Descrizione":"Via Uno","theDatiTraffico":{"NumSegmentiTempo":4,"FlussoSegmento":[10,31,20,5]}},
{"Key":"2Ramo","Descrizione":"Due"},{"Key":"3Ramo","Descrizione":"Tre"}]})";
    const Esito esito = grafico(file("t.klv"), file("t.svg"), {"--ramo", "1", "--valori"});
    ASSERT_EQ(esito.codice, 0) << esito.errori;
    const std::string svg = contenuto(file("t.svg"));
    EXPECT_NE(svg.find("[veicoli]"), std::string::npos);
    EXPECT_NE(svg.find("Via Uno"), std::string::npos);
    EXPECT_NE(svg.find(">31<"), std::string::npos) << "a count as its cell shows it";
    EXPECT_EQ(svg.find("31,00"), std::string::npos);
    EXPECT_NE(svg.find("08:00"), std::string::npos);
}

TEST_F(ComandoGrafico, SaysWhyItCannotDrawOrWrite) {
    const Esito ramo = grafico(esempio(curva), file("g.png"), {"--ramo", "5"});
    EXPECT_EQ(ramo.codice, 1);
    EXPECT_EQ(ramo.errori, "kelvo-cli: " + esempio(curva) + ": il ramo 5 non esiste, i rami sono 4\n");
    EXPECT_EQ(grafico(file("manca.klv"), file("g.png")).codice, 1);
    const Esito percorso = grafico(esempio(curva), file("manca/g.png"));
    EXPECT_EQ(percorso.codice, 1);
    EXPECT_EQ(percorso.errori,
              "kelvo-cli: Impossibile scrivere il disegno: percorso non trovato (" + file("manca/g.png") + ")\n");
    EXPECT_TRUE(std::filesystem::is_empty(cartella_.percorso()));
}

TEST_F(ComandoGrafico, ALegWithoutACurveIsToldAndNothingIsWritten) {
    std::ofstream(file("v.klv")) << R"({"formato":"Kelvo","versione":1,"TipoAnalisi":1,"NumeroRami":3,"Rami":[
{"Key":"1Ramo","Descrizione":"Uno","theDatiTraffico":{"Tempo1":"08:00","Tempo2":"08:00","Tempo3":"09:00"}},
{"Key":"2Ramo","Descrizione":"Due"},{"Key":"3Ramo","Descrizione":"Tre"}]})";
    const Esito esito = grafico(file("v.klv"), file("v.png"));
    EXPECT_EQ(esito.codice, 1);
    EXPECT_EQ(esito.errori, "kelvo-cli: " + file("v.klv") + ": Uno: la curva di traffico non si può costruire\n");
    EXPECT_FALSE(std::filesystem::exists(file("v.png")));
}

struct UsoErrato {
    const char* nome;
    std::vector<std::string> argomenti;
    const char* messaggio;
};

const std::array usi{
    UsoErrato{"OtherFormat",
              {"x.klv", "--ramo", "1", "-o", "x.jpg"},
              "'x.jpg': serve un nome che finisce con .png, .svg o .pdf"},
    UsoErrato{"LegEight", {"x.klv", "--ramo", "8", "-o", "x.png"}, "--ramo: serve un numero intero da 1 a 7, non '8'"},
    UsoErrato{"WidthTooSmall",
              {"x.klv", "--ramo", "1", "-o", "x.png", "--larghezza", "10"},
              "--larghezza: serve un numero intero da 64 a 10000, non '10'"},
};

class UsiErratiGrafico : public testing::TestWithParam<UsoErrato> {};

TEST_P(UsiErratiGrafico, IsToldInItalianWithExitCode2) {
    const CartellaTemporanea cartella;
    std::vector<std::string> argomenti{"grafico"};
    argomenti.insert(argomenti.end(), GetParam().argomenti.begin(), GetParam().argomenti.end());
    const Esito esito = kelvoCli(argomenti, cartella.percorso());
    EXPECT_EQ(esito.codice, 2);
    EXPECT_EQ(esito.errori.substr(0, esito.errori.find('\n')), std::string("kelvo-cli: ") + GetParam().messaggio);
    EXPECT_TRUE(std::filesystem::is_empty(cartella.percorso()));
}

INSTANTIATE_TEST_SUITE_P(Tutti, UsiErratiGrafico, testing::ValuesIn(usi),
                         [](const auto& caso) { return std::string(caso.param.nome); });

TEST(AiutoGrafico, IsItalianAndWhatIsMissingIsAWrongUse) {
    const Esito esito = kelvoCli({"grafico", "--help"});
    EXPECT_EQ(esito.codice, 0);
    EXPECT_NE(esito.uscita.find("Uso: kelvo-cli grafico"), std::string::npos) << esito.uscita;
    EXPECT_NE(esito.uscita.find("\nEsempi:\n  kelvo-cli grafico"), std::string::npos);
    EXPECT_NE(kelvoCli({"--help"}).uscita.find("\n  grafico "), std::string::npos);
    EXPECT_EQ(kelvoCli({"grafico", "x.klv", "-o", "x.png"}).codice, 2);
    EXPECT_EQ(kelvoCli({"grafico", "x.klv", "--ramo", "1"}).codice, 2);
    EXPECT_EQ(kelvoCli({"grafico", "--ramo", "1", "-o", "x.png"}).codice, 2);
}

}  // namespace

}  // namespace kelvo::prove
