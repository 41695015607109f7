#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <random>

#include "model/Rotonda.h"
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

std::string ripeti(const std::string& testo, std::size_t volte, const std::string& fra = {}) {
    std::string tutto;
    for (std::size_t i = 0; i < volte; ++i) {
        tutto += (i == 0 ? "" : fra) + testo;
    }
    return tutto;
}

/// A good project with one text in the place of another.
std::string con(const std::string& da, const std::string& a) {
    return sostituito(testoCompleto(), da, a);
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

TEST(ProveRifiuti, LimitsHoldWhileTheFileIsRead) {
    // The texts end right behind what is too much: nothing more was looked at.
    const std::string inizio = R"({"formato": "Kelvo", "versione": 1, )";
    const auto coda = [](const std::string& messaggio) { return messaggio.substr(messaggio.find(": ") + 2); };
    EXPECT_EQ(coda(rifiuto(inizio + "\"Rami\": [" + ripeti("{}", 8, ",") + "!")), "Rami: più di 7 rami");
    EXPECT_EQ(coda(rifiuto(inizio + "\"Rami\": [{}, {\"theDatiTraffico\": {\"FlussoSegmento\": [" +
                           ripeti("0", 301, ",") + " !")),
              "Rami[2].theDatiTraffico.FlussoSegmento: più di 300 segmenti");
    EXPECT_EQ(coda(rifiuto(inizio + "\"Rami\": [{\"theComposizioneTraffico\": {\"CategoriaSegmento\": [" +
                           ripeti("[]", 301, ",") + "!")),
              "Rami[1].theComposizioneTraffico.CategoriaSegmento: più di 300 segmenti");
    EXPECT_EQ(coda(rifiuto(inizio + "\"x\": " + std::string(16, '[') + "!")), "più di 16 livelli, uno dentro l'altro");
    EXPECT_EQ(coda(rifiuto(inizio + "\"x\": [" + ripeti("0", 100001, ",") + " !")), "più di 100000 valori nel file");
}

TEST(ProveRifiuti, WhatStandsAtALimitIsRead) {
    const std::string flussi = "\"theDatiTraffico\": {\"FlussoSegmento\": [" + ripeti("1", 300, ",") + "]}";
    const std::string categorie =
        "\"theComposizioneTraffico\": {\"CategoriaSegmento\": [" + ripeti("[1,2,3,4,5,6,7]", 300, ",") + "]}";
    const std::string ramo = "{" + flussi + ", " + categorie + "}";
    EXPECT_EQ(rifiuto(testoMinimo({}, ripeti(ramo, 7, ","))), "");
    EXPECT_EQ(rifiuto(testoMinimo("\"x\": " + std::string(15, '[') + std::string(15, ']'))), "");
    EXPECT_THAT(rifiuto(testoMinimo("\"x\": " + std::string(16, '[') + std::string(16, ']'))),
                testing::HasSubstr("più di 16 livelli"));
    // The root, header, list of legs and its three legs are seven of the values, the foreign list is another.
    constexpr std::size_t altri = 8;
    EXPECT_EQ(rifiuto(testoMinimo("\"x\": [" + ripeti("0", 100000 - altri, ",") + "]")), "");
    EXPECT_THAT(rifiuto(testoMinimo("\"x\": [" + ripeti("0", 100000 - altri + 1, ",") + "]")),
                testing::HasSubstr("più di 100000 valori"));
    // Foreign lists of the same names have no limit of their own.
    EXPECT_EQ(rifiuto(testoMinimo("\"FlussoSegmento\": [" + ripeti("0", 301, ",") + "]")), "");
    EXPECT_EQ(rifiuto(testoMinimo("\"x\": {\"Rami\": [" + ripeti("0", 8, ",") + "]}")), "");
}

TEST(ProveRifiuti, SizeIsLimitedToFourMebibytes) {
    constexpr std::size_t massimo = 4UL * 1024UL * 1024UL;
    std::string testo = testoMinimo();
    testo.resize(massimo, ' ');
    EXPECT_EQ(rifiuto(testo), "");
    testo += ' ';
    EXPECT_EQ(rifiuto(testo), "il file supera 4 MiB");
    const CartellaTemporanea cartella;
    const std::string file = cartella.file("grande.klv");
    Rotonda r;
    std::string messaggio;
    bool esito = true;
    scriviContenuto(file, testo);
    r.Load(file, messaggio, esito);
    EXPECT_FALSE(esito);
    EXPECT_EQ(messaggio, "il file supera 4 MiB");
    testo.pop_back();
    scriviContenuto(file, testo);
    r.Load(file, messaggio, esito);
    EXPECT_TRUE(esito) << messaggio;
}

TEST(ProveRifiuti, AMessageStaysShortWhateverTheFileHolds) {
    const std::string lungo(100000, 'x');
    for (const std::string& testo :
         {R"({"formato": ")" + lungo + "\"}", R"({"formato": "Kelvo", "versione": ")" + lungo + "\"}",
          "{\"" + lungo + "\": 1, \"" + lungo + "\": 2}", con("\"07:30\"", "\"" + lungo + "\""),
          "{\"" + lungo + "\": " + lungo}) {
        const std::string messaggio = rifiuto(testo);
        EXPECT_LT(messaggio.size(), 250U) << messaggio.substr(0, 250);
        EXPECT_FALSE(messaggio.empty());
    }
}

TEST(ProveRifiuti, WhatIsNoFileIsRefusedInWords) {
    const CartellaTemporanea cartella;
    ASSERT_EQ(::mkfifo(cartella.file("tubo").c_str(), 0600), 0);
    Rotonda r;
    const auto parole = [&](const std::string& percorso) {
        std::string messaggio;
        bool esito = true;
        r.Load(percorso, messaggio, esito);
        EXPECT_FALSE(esito);
        return messaggio;
    };
    EXPECT_EQ(parole(cartella.file("manca.klv")), "il file non esiste");
    EXPECT_EQ(parole(""), "il file non esiste");
    EXPECT_EQ(parole(cartella.percorso()), "non è un file");
    EXPECT_EQ(parole(cartella.file("tubo")), "non è un file");
    EXPECT_EQ(parole("/dev/zero"), "non è un file");
    EXPECT_EQ(parole(cartella.file(std::string(300, 'n'))), "il nome è troppo lungo");
}

TEST(ProveRifiuti, AFileCutAtAnyByteIsRefusedAndLeavesTheProjectUntouched) {
    Rotonda r;
    riempi(r, 4, 1);
    const std::string prima = r.TestoFile();
    const Revisione revisione = r.revisione();
    const std::string& intero = testoCompleto();
    // The last byte is the end of the last line: the text without it is whole.
    for (std::size_t lungo = 0; lungo + 1 < intero.size(); ++lungo) {
        const EsitoLettura letto = carica(r, std::string_view(intero).substr(0, lungo));
        ASSERT_FALSE(letto.esito) << lungo;
        ASSERT_FALSE(letto.messaggio.empty()) << lungo;
    }
    EXPECT_EQ(r.revisione().tutto, revisione.tutto);
    EXPECT_EQ(r.TestoFile(), prima);
    EXPECT_TRUE(carica(r, std::string_view(intero).substr(0, intero.size() - 1)).esito);
}

TEST(ProveRifiuti, RandomDamageNeverCrashesAndWhatLoadsIsWrittenAlike) {
    std::mt19937 caso(20261121);
    const std::string& intero = testoCompleto();
    const std::string segni = "{}[]\",:0123456789.eE+-\\ntfu \x00\xFF\xC3\xA8";
    const auto fino = [&](std::size_t n) { return std::uniform_int_distribution<std::size_t>(0, n - 1)(caso); };
    int caricati = 0;
    for (int giro = 0; giro < 4000; ++giro) {
        std::string testo = intero;
        for (std::size_t colpi = 1 + fino(4); colpi > 0; --colpi) {
            const std::size_t posto = fino(testo.size());
            switch (fino(4)) {
                case 0:
                    testo[posto] = segni[fino(segni.size())];
                    break;
                case 1:
                    testo.erase(posto, 1 + fino(20));
                    break;
                case 2:
                    testo.insert(posto, testo.substr(fino(testo.size()), fino(40)));
                    break;
                default:
                    testo[posto] = static_cast<char>(testo[posto] ^ (1 << fino(8)));
                    break;
            }
        }
        Rotonda r;
        if (carica(r, testo).esito) {
            ++caricati;
            const std::string scritto = r.TestoFile();
            Rotonda riletta;
            ASSERT_TRUE(carica(riletta, scritto).esito) << testo;
            ASSERT_EQ(riletta.TestoFile(), scritto);
        }
    }
    EXPECT_GT(caricati, 100) << "the damage spares enough of the files for the second half of the test";
}

/// Peak of memory of a process that loads a text, less that of one that only holds it, in KiB.
long piccoDi(const std::string& testo, bool carico) {
    int canale[2];
    if (::pipe(canale) != 0) {
        return -1;
    }
    const pid_t figlio = ::fork();
    if (figlio == 0) {
        Rotonda r;
        std::string messaggio;
        bool esito = false;
        if (carico) {
            r.LoadTesto(testo, messaggio, esito);
        }
        rusage uso{};
        ::getrusage(RUSAGE_SELF, &uso);
        const ssize_t scritti = ::write(canale[1], &uso.ru_maxrss, sizeof uso.ru_maxrss);
        ::_exit(scritti == static_cast<ssize_t>(sizeof uso.ru_maxrss) ? 0 : 1);
    }
    long picco = -1;
    ::close(canale[1]);
    if (::read(canale[0], &picco, sizeof picco) != static_cast<ssize_t>(sizeof picco)) {
        picco = -1;
    }
    ::close(canale[0]);
    int stato = 0;
    ::waitpid(figlio, &stato, 0);
    return picco;
}

TEST(ProveRifiuti, NoFileTakesMoreThan64MebibytesOfMemory) {
#if defined(__SANITIZE_ADDRESS__)
    GTEST_SKIP() << "the sanitizer's own memory would be counted";
#endif
    constexpr std::size_t massimo = 4UL * 1024UL * 1024UL;
    const std::string inizio = R"({"formato": "Kelvo", "versione": 1, "x": )";
    const auto pieno = [&](const std::string& testa, const std::string& pezzo) {
        std::string testo = inizio + testa;
        while (testo.size() + pezzo.size() < massimo) {
            testo += pezzo;
        }
        return testo;
    };
    std::string oggetto = inizio + "{";
    for (int i = 0; i < 99990; ++i) {
        oggetto += "\"chiave che non sta in breve " + std::to_string(i) + "\":0,";
    }
    const std::string buono =
        testoMinimo("\"x\": [" + ripeti("\"un testo che non sta in breve spazio\"", 99000, ",") + "]");
    ASSERT_EQ(rifiuto(buono), "");
    for (const std::string& testo :
         {pieno("[", "[],"), pieno("[", "{},"), pieno("[", "1,"),
          pieno("[", "\"un testo non tanto breve da stare qui\","), pieno("\"", "xxxxxxxxxxxxxxxx"),
          pieno("\"", "\\u00e8"), pieno("[", "[{\"a\":["), oggetto, buono}) {
        const long senza = piccoDi(testo, false);
        const long picco = piccoDi(testo, true);
        ASSERT_GT(senza, 0);
        EXPECT_LT(picco - senza, 60 * 1024) << testo.substr(inizio.size(), 20);
    }
}

}  // namespace
}  // namespace kelvo::prove
