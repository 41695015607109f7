#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <random>
#include <string>

#include "model/testiKlv.h"

/// Files that are too large, cut, damaged or made to hurt.
namespace kelvo::prove {
namespace {

std::string ripeti(const std::string& testo, std::size_t volte, const std::string& fra = {}) {
    std::string tutto;
    for (std::size_t i = 0; i < volte; ++i) {
        tutto += (i == 0 ? "" : fra) + testo;
    }
    return tutto;
}

TEST(ProveTenutaKlv, LimitsHoldWhileTheFileIsRead) {
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

TEST(ProveTenutaKlv, WhatStandsAtALimitIsRead) {
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

TEST(ProveTenutaKlv, SizeIsLimitedToFourMebibytes) {
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

TEST(ProveTenutaKlv, AMessageStaysShortWhateverTheFileHolds) {
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

TEST(ProveTenutaKlv, WhatIsNoFileIsRefusedInWords) {
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

TEST(ProveTenutaKlv, AFileCutAtAnyByteIsRefusedAndLeavesTheProjectUntouched) {
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

TEST(ProveTenutaKlv, RandomDamageNeverCrashesAndWhatLoadsIsWrittenAlike) {
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

TEST(ProveTenutaKlv, NoFileTakesMoreThan64MebibytesOfMemory) {
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
