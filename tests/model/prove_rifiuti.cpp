#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "testiKlv.h"

namespace kelvo::prove {
namespace {

struct Caso {
    std::string testo;
    std::string messaggio;
};

void attendi(const std::vector<Caso>& casi) {
    for (const Caso& caso : casi) {
        EXPECT_EQ(rifiuto(caso.testo), caso.messaggio) << caso.testo.substr(0, 200);
    }
}

TEST(ProveRifiuti, WhatIsNoKelvoProjectIsToldApart) {
    attendi({
        {"", "il file è vuoto"},
        {"\xEF\xBB\xBF", "il file è vuoto"},
        {"[]", "non è un progetto Kelvo: il testo non è un oggetto"},
        {"3", "non è un progetto Kelvo: il testo non è un oggetto"},
        {"\"Kelvo\"", "non è un progetto Kelvo: il testo non è un oggetto"},
        {"{}", "non è un progetto Kelvo: manca \"formato\""},
        {R"({"versione": 1, "Rami": []})", "non è un progetto Kelvo: manca \"formato\""},
        {R"({"formato": "Altro"})", "non è un progetto Kelvo: \"formato\" è \"Altro\", non \"Kelvo\""},
        {R"({"formato": 3})", "non è un progetto Kelvo: \"formato\" è 3, non \"Kelvo\""},
        {R"({"formato": "kelvo", "Rami": [)", "non è un progetto Kelvo: \"formato\" è \"kelvo\", non \"Kelvo\""},
        {R"({"a": {"formato": "Kelvo", "versione": 1}})", "non è un progetto Kelvo: manca \"formato\""},
        {"PK\x03\x04", "riga 1, colonna 1: sintassi non valida presso «P»"},
        {"<xml/>", "riga 1, colonna 1: sintassi non valida presso «<»"},
    });
}

TEST(ProveRifiuti, ANewerVersionIsNamedWithTheOneThatCanBeRead) {
    const std::string inizio = R"({"formato": "Kelvo", "versione": )";
    attendi({
        // What follows is not looked at: a newer file may hold what this version would refuse.
        {inizio + "2, \"Rami\": [[[",
         "riga 1, colonna 35: il file è della versione 2 del formato; "
         "questo programma legge fino alla versione 1"},
        {inizio + "0}", "riga 1, colonna 35: \"versione\" è 0, non un numero intero da 1 in su"},
        {inizio + "-1}", "riga 1, colonna 36: \"versione\" è -1, non un numero intero da 1 in su"},
        {inizio + "1.5}", "riga 1, colonna 37: \"versione\" è 1.5, non un numero intero da 1 in su"},
        {inizio + "\"1\"}", "riga 1, colonna 36: \"versione\" è \"1\", non un numero intero da 1 in su"},
        {R"({"formato": "Kelvo"})", "riga 1, colonna 20: manca \"versione\""},
    });
    EXPECT_THAT(rifiuto(inizio + std::string(5000, '9') + "}"), testing::HasSubstr("troppo grande"));
}

TEST(ProveRifiuti, SyntaxErrorsTellLineAndColumn) {
    attendi({
        {"{\n  \"formato\": \"Kelvo\",\n  \"à\" 3\n}", "riga 3, colonna 7: sintassi non valida presso «3»"},
        {"{\"formato\": \"Kelvo\",}", "riga 1, colonna 21: sintassi non valida presso «\"Kelvo\",}»"},
        {"{\"formato\"", "riga 1, colonna 10: il testo finisce prima della fine del progetto"},
        {"{\n\n  \"formato\": \"Kel", "riga 3, colonna 17: il testo finisce prima della fine del progetto"},
        {"{\"formato\": \"Kelvo\", \"x\": 1e400}", "riga 1, colonna 31: il numero «1e400» è troppo grande"},
        {"{\"formato\": \"Ke\xFFlvo\"}", "riga 1, colonna 16: il testo non è UTF-8"},
    });
    EXPECT_THAT(rifiuto(testoCompleto() + "{"), testing::StartsWith("riga 227, colonna 1: sintassi non valida"));
    EXPECT_THAT(rifiuto("{\"formato\": \"\\ud800\"}"), testing::HasSubstr("sintassi non valida"));
    EXPECT_THAT(rifiuto("{\"formato\": NaN}"), testing::HasSubstr("sintassi non valida"));
    EXPECT_THAT(rifiuto("// {}"), testing::HasSubstr("sintassi non valida"));
}

TEST(ProveRifiuti, WrongTypesAreToldByPath) {
    attendi({
        {con("\"LarghezzaIngresso\": 300.25", "\"LarghezzaIngresso\": \"3\""),
         "Rami[3].LarghezzaIngresso: atteso un numero, trovato un testo"},
        {con("\"ValorePercentile\": 90.5", "\"ValorePercentile\": null"),
         "ValorePercentile: atteso un numero, trovato null"},
        {con("\"Titolo\": \"Rotatoria di esempio\"", "\"Titolo\": 1"), "Titolo: atteso un testo, trovato un numero"},
        {con("\"UsaPercentile\": true", "\"UsaPercentile\": 1"),
         "UsaPercentile: atteso un valore vero/falso, trovato un numero"},
        {con("\"Comune\": \"Forlì\"", "\"Comune\": false"), "Comune: atteso un testo, trovato un valore vero/falso"},
        {con("\"Tempo3\": \"08:01\"", "\"Tempo3\": 8"),
         "Rami[1].theDatiTraffico.Tempo3: atteso un testo, trovato un numero"},
        {con("\"LungSvasatura\": 282.1", "\"LungSvasatura\": []"),
         "Rami[2].theAnalisiMarginale.LungSvasatura: atteso un numero, trovato un elenco"},
        {con("[120, 121.75]", "{}"), "Rami[1].theDatiTraffico.FlussoSegmento: atteso un elenco, trovato un oggetto"},
        {con("[120, 121.75]", "[120, \"a\"]"),
         "Rami[1].theDatiTraffico.FlussoSegmento[2]: atteso un numero, trovato un testo"},
        {con("[150, 151", "[150, []"),
         "Rami[1].theComposizioneTraffico.CategoriaSegmento[1][2]: atteso un numero, trovato un elenco"},
        {con("[0, 60.5, 39.5]", "[0, 60.5, true]"),
         "MatriceSvolte[1][3]: atteso un numero, trovato un valore vero/falso"},
        {testoMinimo({}, "{}, [], {}"), "Rami[2]: atteso un oggetto, trovato un elenco"},
        {testoMinimo({}, "{}, {\"theDatiTraffico\": 1}, {}"),
         "Rami[2].theDatiTraffico: atteso un oggetto, trovato un numero"},
        {testoMinimo({}, "{}, {\"theComposizioneTraffico\": null}, {}"),
         "Rami[2].theComposizioneTraffico: atteso un oggetto, trovato null"},
        {testoMinimo({}, "{}, {\"theAnalisiMarginale\": []}, {}"),
         "Rami[2].theAnalisiMarginale: atteso un oggetto, trovato un elenco"},
        {R"({"formato": "Kelvo", "versione": 1, "Rami": {}})", "Rami: atteso un elenco, trovato un oggetto"},
        {R"({"formato": "Kelvo", "versione": 1})", "Rami: manca"},
    });
}

TEST(ProveRifiuti, NumbersOutsideTheirTypeAreRefused) {
    attendi({
        {con("\"ValorePercentile\": 90.5", "\"ValorePercentile\": 3.5e38"),
         "ValorePercentile: il numero 3.5e38 è troppo grande"},
        {con("121.75", "-1e39"), "Rami[1].theDatiTraffico.FlussoSegmento[2]: il numero -1e39 è troppo grande"},
        {con("\"TipoAnalisi\": 2", "\"TipoAnalisi\": 1.5"),
         "TipoAnalisi: atteso un numero intero da -32768 a 32767, trovato 1.5"},
        {con("\"TipoFlusso\": 1", "\"TipoFlusso\": 32768"),
         "TipoFlusso: atteso un numero intero da -32768 a 32767, trovato 32768"},
        {con("\"TipoFlusso\": 1", "\"TipoFlusso\": -32769"),
         "TipoFlusso: atteso un numero intero da -32768 a 32767, trovato -32769"},
    });
    EXPECT_EQ(rifiuto(con("\"TipoFlusso\": 1", "\"TipoFlusso\": 32767")), "");
    EXPECT_EQ(rifiuto(con("\"TipoFlusso\": 1", "\"TipoFlusso\": -32768.0")), "");
    EXPECT_EQ(rifiuto(con("\"ValorePercentile\": 90.5", "\"ValorePercentile\": 1e-400")), "");
    EXPECT_EQ(rifiuto(con("\"ValorePercentile\": 90.5", "\"ValorePercentile\": 3.4028234e38")), "");
}

TEST(ProveRifiuti, TimesAndDatesMustBeOfTheirForm) {
    for (const std::string ora : {"8:00", "08:60", "08.00", "08:00:60", "", "08:00:00:00", " 08:00"}) {
        EXPECT_EQ(rifiuto(con("\"TempoIniziale\": \"07:30\"", "\"TempoIniziale\": \"" + ora + "\"")),
                  "TempoIniziale: atteso un orario \"HH:MM\", trovato \"" + ora + "\"");
    }
    for (const std::string data : {"2026-02-29", "21/11/2026", "2026-13-01", "2026-11-21T00:00", ""}) {
        EXPECT_EQ(rifiuto(con("\"Data\": \"2026-11-21\"", "\"Data\": \"" + data + "\"")),
                  "Data: attesa una data \"AAAA-MM-GG\", trovato \"" + data + "\"");
    }
}

TEST(ProveRifiuti, NumberOfLegsMatrixAndSegmentsMustAgree) {
    attendi({
        {testoMinimo({}, "{}, {}"), "Rami: attesi da 3 a 7 rami, trovati 2"},
        {testoMinimo({}, ""), "Rami: attesi da 3 a 7 rami, trovati 0"},
        {con("\"NumeroRami\": 3", "\"NumeroRami\": 4"), "NumeroRami: 4 rami, ma 3 in Rami"},
        {con("\"NumeroRami\": 3", "\"NumeroRami\": 8"), "NumeroRami: atteso un numero da 3 a 7, trovato 8"},
        {con("\"NumeroRami\": 3", "\"NumeroRami\": 2"), "NumeroRami: atteso un numero da 3 a 7, trovato 2"},
        {con("[0, 60.5, 39.5],", ""), "MatriceSvolte: attese 3 righe, trovate 2"},
        {con("[0, 60.5, 39.5]", "[0, 60.5]"), "MatriceSvolte[1]: attesi 3 numeri, trovati 2"},
        {con("[25, 0, 75]", "[25, 0, 75, 0]"), "MatriceSvolte[2]: attesi 3 numeri, trovati 4"},
        {con("[120, 121.75]", "[120, 121.75, 1]"),
         "Rami[1].theDatiTraffico.FlussoSegmento: 3 valori per 2 segmenti di tempo"},
        {con("[150, 151, 152, 153, 154, 155, 156],", "[0, 0, 0, 0, 0, 0, 0], [0, 0, 0, 0, 0, 0, 0],"),
         "Rami[1].theComposizioneTraffico.CategoriaSegmento: 3 valori per 2 segmenti di tempo"},
        {con("[150, 151, 152, 153, 154, 155, 156]", "[150]"),
         "Rami[1].theComposizioneTraffico.CategoriaSegmento[1]: attesi 7 numeri, trovati 1"},
        {con("\"NumSegmentiTempo\": 2", "\"NumSegmentiTempo\": 3"),
         "Rami[1].theComposizioneTraffico.NumSegmentiTempo: 2 segmenti, ma 3 in theDatiTraffico"},
        {testoMinimo({}, "{}, {}, {\"theDatiTraffico\": {\"NumSegmentiTempo\": 301}}"),
         "Rami[3].theDatiTraffico.NumSegmentiTempo: atteso un numero da 0 a 300, trovato 301"},
        {testoMinimo({}, "{}, {}, {\"theComposizioneTraffico\": {\"NumSegmentiTempo\": -1}}"),
         "Rami[3].theComposizioneTraffico.NumSegmentiTempo: atteso un numero da 0 a 300, trovato -1"},
        {testoMinimo(R"("TempoIniziale": "00:00", "TempoFinale": "05:01", "SegmentoTempo": "00:01")"),
         "Rami[1].theDatiTraffico.NumSegmentiTempo: la finestra di tempo dà 301 segmenti, più di 300"},
    });
    EXPECT_EQ(rifiuto(testoMinimo(R"("TempoIniziale": "00:00", "TempoFinale": "05:00", "SegmentoTempo": "00:01")")),
              "");
}

TEST(ProveRifiuti, KeysOfTheLegsMustCarryTheirPosition) {
    attendi({
        {con("\"Key\": \"2Ramo\"", "\"Key\": \"3Ramo\""), "Rami[2].Key: la chiave del ramo non porta la cifra 2"},
        {con("\"Key\": \"2Ramo\"", "\"Key\": \"\""), "Rami[2].Key: la chiave del ramo non porta la cifra 2"},
        {con("\"Key\": \"2Ramo\"", "\"Key\": \"2Ramo3\""), "Rami[2].Key: la chiave del ramo non porta la cifra 2"},
        {con("\"Key\": \"2Ramo\"", "\"Key\": 2"), "Rami[2].Key: atteso un testo, trovato un numero"},
        {testoMinimo({}, R"({"Key": "1x2"}, {"Key": "1x2"}, {})"),
         "Rami[1].Key: la chiave del ramo non porta la cifra 1"},
    });
    Rotonda r;
    ASSERT_TRUE(carica(r, con("\"Key\": \"2Ramo\"", "\"Key\": \"keyRamo2\"")).esito);
    EXPECT_EQ(r.Ramo(2).Key(), "keyRamo2");
}

TEST(ProveRifiuti, AKeyTwiceInOneObjectIsRefused) {
    EXPECT_EQ(rifiuto(con("  \"Comune\": \"Forlì\",\n", "  \"Comune\": \"Forlì\",\n  \"Comune\": \"Forlì\",\n")),
              "riga 7, colonna 10: la chiave Comune compare due volte");
    EXPECT_EQ(rifiuto(con("\"VECamper\": 233", "\"VEPullman\": 233")),
              "riga 128, colonna 19: la chiave Rami[2].theComposizioneTraffico.VEPullman compare due volte");
    EXPECT_THAT(rifiuto(testoMinimo(R"("x": [{"a": 1, "a": 2}])")),
                testing::HasSubstr("la chiave x[1].a compare due volte"));
    EXPECT_THAT(rifiuto(R"({"formato": "Kelvo", "formato": "Kelvo"})"),
                testing::HasSubstr("formato compare due volte"));
}

}  // namespace
}  // namespace kelvo::prove
