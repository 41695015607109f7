// dxf: the plan as a drawing for CAD programs.

#include <gtest/gtest.h>

#include <array>
#include <filesystem>

#include "cli/processo.h"
#include "comune/cartella.h"

namespace kelvo::prove {

namespace {

const std::string stazione = "Rotatoria_Viale_della_Stazione";

class ComandoDxf : public testing::Test {
protected:
    std::string file(const std::string& nome) const { return cartella_.file(nome); }
    /// Runs the command on the example of four legs with more options.
    Esito dxf(const std::vector<std::string>& opzioni = {}) const {
        std::vector<std::string> tutti{"dxf", "-o", file("p.dxf")};
        tutti.insert(tutti.end(), opzioni.begin(), opzioni.end());
        tutti.push_back(esempio(stazione));
        return kelvoCli(tutti);
    }
    std::string disegno(const std::vector<std::string>& opzioni = {}) const {
        const Esito esito = dxf(opzioni);
        EXPECT_EQ(esito.codice, 0) << esito.errori;
        return contenuto(file("p.dxf"));
    }
    CartellaTemporanea cartella_;
};

TEST_F(ComandoDxf, WritesTheDrawingAndSaysNothing) {
    const Esito esito = dxf();
    EXPECT_EQ(esito.codice, 0);
    EXPECT_EQ(esito.uscita, "");
    EXPECT_EQ(esito.errori, "");
    const std::string testo = contenuto(file("p.dxf"));
    EXPECT_EQ(testo.substr(0, 16), "  0\r\nSECTION\r\n  ");
    EXPECT_EQ(testo.substr(testo.size() - 10), "  0\r\nEOF\r\n");
    EXPECT_NE(testo.find("schema: direzioni dei rami, isole e uscite non di progetto"), std::string::npos);
    EXPECT_NE(testo.find("Via del Mercato"), std::string::npos);
}

TEST_F(ComandoDxf, WritesTheSameFileEachTimeInThePlaceOfTheOldOne) {
    const std::string primo = disegno();
    EXPECT_TRUE(disegno() == primo);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(cartella_.percorso()), {}), 1);
}

TEST_F(ComandoDxf, WritesEveryExample) {
    for (const std::string& nome : esempi()) {
        const Esito esito = kelvoCli({"dxf", "--uscita", file(nome + ".DXF"), esempio(nome)});
        EXPECT_EQ(esito.codice, 0) << esito.errori;
        EXPECT_GT(contenuto(file(nome + ".DXF")).size(), 50000U);
    }
}

TEST_F(ComandoDxf, LeavesOutWhatItIsToldTo) {
    const std::string intero = disegno();
    constexpr std::array casi{std::pair{"--senza-quote", "KELVO-QUOTE"},
                              std::pair{"--senza-testi", "KELVO-NOMI"},
                              std::pair{"--senza-segnaletica", "KELVO-FRECCE"},
                              std::pair{"--senza-superfici", "KELVO-INGRESSI"},
                              std::pair{"--senza-campiture", "KELVO-CAMPITURE-ISOLE"},
                              std::pair{"--senza-cartiglio", "KELVO-CARTIGLIO"}};
    for (const auto& [opzione, layer] : casi) {
        EXPECT_NE(intero.find(layer), std::string::npos) << layer;
        const std::string senza = disegno({opzione});
        EXPECT_EQ(senza.find(layer), std::string::npos) << opzione;
        EXPECT_NE(senza.find("KELVO-CORDOLI"), std::string::npos) << opzione;
    }
}

TEST_F(ComandoDxf, BearingsAndAssumptionsChangeTheDrawing) {
    const std::string usuale = disegno();
    EXPECT_TRUE(disegno({"--direzioni", "0,90,180,270"}) == usuale);
    const std::string altre = disegno({"--direzioni", "0,80.5,180,270"});
    EXPECT_FALSE(altre == usuale);
    EXPECT_TRUE(disegno({"--direzioni", "0;80,5;180;270"}) == altre);
    const std::vector<std::pair<std::string, std::string>> ipotesi{
        {"--anello-minimo", "9,5"}, {"--anello-su-ingresso", "2"}, {"--corona", "0"},
        {"--isola-minima", "15"},   {"--uscita-minima", "8"},      {"--raggio-uscita-minimo", "25"},
        {"--rami-minimo", "90"},    {"--attraversamento-da", "6"}, {"--attraversamento", "4"}};
    for (const auto& [opzione, valore] : ipotesi) {
        EXPECT_FALSE(disegno({opzione, valore}) == usuale) << opzione;
    }
    EXPECT_TRUE(disegno({"--corona", "1.5"}) == usuale);
    // Upper bounds tell where the radius of an entry asks for more.
    const std::string ampia = "Rotatoria_SS12_Ospedale";
    ASSERT_EQ(kelvoCli({"dxf", "-o", file("a.dxf"), esempio(ampia)}).codice, 0);
    for (const auto& [opzione, valore] :
         {std::pair{"--isola-massima", "15"}, std::pair{"--raggio-uscita-massimo", "25"}}) {
        ASSERT_EQ(kelvoCli({"dxf", "-o", file("b.dxf"), opzione, valore, esempio(ampia)}).codice, 0);
        EXPECT_FALSE(contenuto(file("a.dxf")) == contenuto(file("b.dxf"))) << opzione;
    }
}

struct Errato {
    std::vector<std::string> opzioni;
    const char* messaggio;
};

TEST_F(ComandoDxf, AWrongUseIsToldAndWritesNothing) {
    const std::vector<Errato> casi{
        {{"--direzioni", "0,x"},
         "--direzioni: serve un angolo per ramo, separati da virgole (0,90,180,270), non '0,x'"},
        {{"--direzioni", "0,90,,270"},
         "--direzioni: serve un angolo per ramo, separati da virgole (0,90,180,270), non '0,90,,270'"},
        {{"--direzioni", ""}, "--direzioni: serve un angolo per ramo, separati da virgole (0,90,180,270), non ''"},
        {{"--direzioni", "10,90,180,270"},
         "--direzioni: la direzione del ramo A deve essere 0: le altre si contano da essa"},
        {{"--direzioni", "0,90,119,270"}, "--direzioni: tra i rami B e C servono almeno 30 gradi, in senso antiorario"},
        {{"--direzioni", "0,180,90,270"}, "--direzioni: tra i rami B e C servono almeno 30 gradi, in senso antiorario"},
        {{"--direzioni", "0,90,180,331"}, "--direzioni: tra i rami D e A servono almeno 30 gradi, in senso antiorario"},
        {{"--corona", "6,5"}, "--corona: serve un numero da 0 a 6, non '6,5'"},
        {{"--corona", "-1"}, "--corona: serve un numero da 0 a 6, non '-1'"},
        {{"--uscita-minima", "quattro"}, "--uscita-minima: serve un numero da 3,5 a 10, non 'quattro'"},
        {{"--senza-quote=no"}, "--senza-quote"},
        {{"--senza-tutto"}, "argomento non riconosciuto: '--senza-tutto'"},
    };
    for (const Errato& caso : casi) {
        const Esito esito = dxf(caso.opzioni);
        EXPECT_EQ(esito.codice, 2) << caso.messaggio;
        EXPECT_EQ(esito.uscita, "");
        EXPECT_EQ(esito.errori.find(std::string{"kelvo-cli: "} + caso.messaggio), 0U) << esito.errori << caso.messaggio;
        EXPECT_NE(esito.errori.find("Per l'aiuto: kelvo-cli dxf --help\n"), std::string::npos) << esito.errori;
    }
    const Esito nome = kelvoCli({"dxf", "-o", file("p.dwg"), esempio(stazione)});
    EXPECT_EQ(nome.codice, 2);
    EXPECT_NE(nome.errori.find("p.dwg': serve un nome che finisce con .dxf\n"), std::string::npos) << nome.errori;
    EXPECT_EQ(kelvoCli({"dxf", esempio(stazione)}).codice, 2);
    EXPECT_EQ(kelvoCli({"dxf", "-o", file("p.dxf")}).codice, 2);
    EXPECT_TRUE(std::filesystem::is_empty(cartella_.percorso()));
}

TEST_F(ComandoDxf, TheProjectIsNeverReplaced) {
    const std::string progetto = file("p.dxf");
    scriviContenuto(progetto, contenuto(esempio(stazione)));
    const Esito esito = kelvoCli({"dxf", "-o", progetto, progetto});
    EXPECT_EQ(esito.codice, 2);
    EXPECT_NE(esito.errori.find("è il progetto, che il disegno sostituirebbe"), std::string::npos) << esito.errori;
    EXPECT_EQ(contenuto(progetto), contenuto(esempio(stazione)));
}

TEST_F(ComandoDxf, NoOtherProjectIsReplacedEither) {
    scriviContenuto(file("p.dxf"), contenuto(esempio("Rotatoria_Via_dei_Mulini")));
    const Esito esito = dxf();
    EXPECT_EQ(esito.codice, 2);
    EXPECT_NE(esito.errori.find("è un progetto, che il disegno sostituirebbe"), std::string::npos) << esito.errori;
    EXPECT_EQ(contenuto(file("p.dxf")), contenuto(esempio("Rotatoria_Via_dei_Mulini")));
}

TEST_F(ComandoDxf, SaysWhatDidNotWork) {
    const Esito rami = dxf({"--direzioni", "0,120,240"});
    EXPECT_EQ(rami.codice, 1);
    EXPECT_EQ(rami.errori, "kelvo-cli: " + esempio(stazione) + ": --direzioni ha 3 valori, i rami sono 4\n");
    const Esito manca = kelvoCli({"dxf", "-o", file("manca/p.dxf"), esempio(stazione)});
    EXPECT_EQ(manca.codice, 1);
    EXPECT_EQ(manca.errori,
              "kelvo-cli: Impossibile scrivere il disegno: percorso non trovato (" + file("manca/p.dxf") + ")\n");
    EXPECT_EQ(kelvoCli({"dxf", "-o", file("p.dxf"), file("manca.klv")}).codice, 1);
    EXPECT_TRUE(std::filesystem::is_empty(cartella_.percorso()));
}

}  // namespace

}  // namespace kelvo::prove
