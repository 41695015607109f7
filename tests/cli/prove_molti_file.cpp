// Several files in one call, results that cannot be written, time and memory of the whole process.

#include <gtest/gtest.h>

#include <filesystem>
#include <nlohmann/json.hpp>
#include <sstream>

#include "comune/cartella.h"
#include "processo.h"

namespace kelvo::prove {

namespace {

const std::string mulini = "Rotatoria_Via_dei_Mulini";

/// `quanti` names of files in a folder, the examples in turn behind them, in the order of the numbers.
std::vector<std::string> cartellaPiena(const CartellaTemporanea& cartella, int quanti) {
    const std::vector<std::string> modelli = esempi();
    std::vector<std::string> nomi;
    for (int i = 0; i < quanti; ++i) {
        nomi.push_back(std::to_string(i) + ".klv");
        std::filesystem::create_symlink(esempio(modelli[static_cast<std::size_t>(i) % modelli.size()]),
                                        cartella.file(nomi.back()));
    }
    return nomi;
}

TEST(MoltiFile, OneThatFailsDoesNotStopTheOthers) {
    const Esito esito = kelvoCli({"calcola", "--json", "manca1.klv", esempio(mulini), "manca2.klv", esempio(mulini)});
    EXPECT_EQ(esito.codice, 1);
    const std::vector<std::string> tutte = righe(esito.uscita);
    ASSERT_EQ(tutte.size(), 4U);
    EXPECT_TRUE(tutte[0].starts_with("{\"file\":\"manca1.klv\",\"errori\":[{"));
    EXPECT_EQ(nlohmann::json::parse(tutte[1])["rami"].size(), 3U);
    EXPECT_TRUE(tutte[2].starts_with("{\"file\":\"manca2.klv\",\"errori\":[{"));
    EXPECT_EQ(tutte[3], tutte[1]);
    EXPECT_EQ(esito.errori, "kelvo-cli: manca1.klv: il file non esiste\nkelvo-cli: manca2.klv: il file non esiste\n");
}

TEST(MoltiFile, FaultOfOneFileLeavesNothingInTheNext) {
    const CartellaTemporanea cartella;
    scriviContenuto(cartella.file("guasto.klv"),
                    conCambio(contenuto(esempio(mulini)), "2Ramo", "\"RaggioIngresso\": 22", "\"RaggioIngresso\": 0"));
    const Esito solo = kelvoCli({"capacita-ultima", "--json", esempio(mulini)});
    const Esito dopo = kelvoCli({"capacita-ultima", "--json", cartella.file("guasto.klv"), esempio(mulini)});
    EXPECT_EQ(dopo.codice, 1);
    ASSERT_EQ(righe(dopo.uscita).size(), 2U);
    EXPECT_EQ(righe(dopo.uscita)[1] + "\n", solo.uscita);
}

TEST(MoltiFile, AThousandProjectsComeInTheirOrder) {
    const CartellaTemporanea cartella;
    std::vector<std::string> comando = cartellaPiena(cartella, 1000);
    comando.insert(comando.begin(), {"calcola", "--json"});
    const Esito esito = kelvoCli(comando, cartella.percorso());
    EXPECT_EQ(esito.codice, 0);
    const std::vector<std::string> tutte = righe(esito.uscita);
    const std::vector<std::string> modelli = esempi();
    ASSERT_EQ(tutte.size(), 1000U);
    for (std::size_t i = 0; i < tutte.size(); ++i) {
        const std::string inizio = "{\"file\":\"" + std::to_string(i) + ".klv\",\"NomeFile\":\"";
        ASSERT_TRUE(tutte[i].starts_with(inizio + modelli[i % modelli.size()] + "\"")) << i;
        ASSERT_EQ(tutte[i].substr(inizio.size()),
                  tutte[i % modelli.size()].substr(inizio.size() - std::to_string(i).size() + 1))
            << i;
    }
}

/// Largest resident set of a run, KiB, taken by a small process.
long picco(std::vector<std::string> argomenti, const std::string& cartella) {
    argomenti.insert(argomenti.begin(), {KELVO_COSTRUZIONE "/tests/kelvo-picco", "1", KELVO_CARTELLA "/kelvo-cli"});
    const Esito esito = esegui(argomenti, cartella);
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    double mediana = 0.0;
    double alto = 0.0;
    long kib = 0;
    std::istringstream(esito.uscita) >> mediana >> alto >> kib;
    EXPECT_GT(kib, 0);
    return kib;
}

TEST(MoltiFile, MemoryOfAThousandIsThatOfAHundred) {
#ifdef KELVO_SANIFICATORI
    GTEST_SKIP() << "the sanitizers keep freed memory";
#endif
    const CartellaTemporanea cartella;
    const std::vector<std::string> nomi = cartellaPiena(cartella, 1000);
    for (const std::vector<std::string>& comando :
         {std::vector<std::string>{"calcola"}, {"calcola", "--json"}, {"capacita-ultima"}, {"verifica"}}) {
        std::vector<std::string> cento = comando;
        cento.insert(cento.end(), nomi.begin(), nomi.begin() + 100);
        std::vector<std::string> mille = comando;
        mille.insert(mille.end(), nomi.begin(), nomi.end());
        const long prima = picco(cento, cartella.percorso());
        const long dopo = picco(mille, cartella.percorso());
        EXPECT_LE(dopo, prima + 1024) << comando.front() << ": " << prima << " KiB, then " << dopo;
        EXPECT_LE(dopo, KELVO_PICCO_MIB * 1024) << comando.front();
    }
}

TEST(Uscita, FullOrClosedIsAFailure) {
    const std::vector<std::vector<std::string>> comandi{
        {"calcola", esempio(mulini)},
        {"calcola", "--json", esempio(mulini)},
        {"verifica", esempio(mulini)},
        {"mostra", esempio(mulini)},
        {"--help"},
        {"calcola", "--help"},
        {"--version"},
    };
    for (const auto& comando : comandi) {
        for (const Uscita uscita : {Uscita::discoPieno, Uscita::chiusa}) {
            const Esito esito = kelvoCli(comando, {}, uscita);
            EXPECT_EQ(esito.codice, 1) << comando.front();
            EXPECT_EQ(esito.errori, "kelvo-cli: impossibile scrivere il risultato\n") << comando.front();
        }
    }
}

}  // namespace

}  // namespace kelvo::prove
