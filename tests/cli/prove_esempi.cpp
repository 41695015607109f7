// The example projects: their results to the byte, what they cover, and that saving them changes nothing.

#include <gtest/gtest.h>

#include <algorithm>
#include <nlohmann/json.hpp>
#include <set>

#include "comune/cartella.h"
#include "model/Rotonda.h"
#include "platform/linux/SistemaFileLinux.h"
#include "processo.h"

namespace kelvo::prove {

namespace {

class Esempio : public testing::TestWithParam<std::string> {};

TEST_P(Esempio, CalcolaPrintsTheExpectedTextToTheByte) {
    const Esito esito = kelvoCli({"calcola", esempio(GetParam())});
    EXPECT_EQ(esito.codice, 0);
    EXPECT_EQ(senzaDate(esito.uscita), contenuto(atteso(GetParam() + ".calcola.txt")));
}

TEST_P(Esempio, CapacitaUltimaPrintsTheExpectedTextToTheByte) {
    const Esito esito = kelvoCli({"capacita-ultima", esempio(GetParam())});
    EXPECT_EQ(esito.codice, 0);
    EXPECT_EQ(senzaDate(esito.uscita), contenuto(atteso(GetParam() + ".capacita-ultima.txt")));
}

TEST_P(Esempio, HasNoWarning) {
    const Esito esito = kelvoCli({"verifica", esempio(GetParam())});
    EXPECT_EQ(esito.codice, 0);
    EXPECT_EQ(esito.uscita, esempio(GetParam()) + ": si legge, nessun avviso\n");
    EXPECT_EQ(esito.errori, "");
}

TEST_P(Esempio, IsSavedAgainByteForByte) {
    const CartellaTemporanea cartella;
    SistemaFileLinux sistema;
    Rotonda rotonda(sistema, [] { return DataOra{}; });
    std::string messaggio;
    bool esito = false;
    rotonda.Load(esempio(GetParam()), messaggio, esito);
    ASSERT_TRUE(esito) << messaggio;
    rotonda.Save(cartella.file("copia.klv"), messaggio, esito);
    ASSERT_TRUE(esito) << messaggio;
    EXPECT_EQ(contenuto(cartella.file("copia.klv")), contenuto(esempio(GetParam())));
}

INSTANTIATE_TEST_SUITE_P(Tutti, Esempio, testing::ValuesIn(esempi()), [](const auto& caso) { return caso.param; });

TEST(Esempi, JsonOfOneProjectIsExactToTheByte) {
    const std::string nome = "Rotatoria_Via_dei_Mulini";
    const Esito esito = kelvoCli({"calcola", "--json", nome + ".klv"}, KELVO_CARTELLA "/../Progetti");
    EXPECT_EQ(esito.codice, 0);
    EXPECT_EQ(esito.uscita, contenuto(atteso(nome + ".calcola.json")));
}

TEST(Esempi, CoverLegsAnalysesCompositionsAndMatrices) {
    std::set<int> rami;
    std::set<int> analisi;
    std::set<int> composizioni;
    std::set<int> matrici;
    for (const std::string& nome : esempi()) {
        const auto progetto = nlohmann::json::parse(contenuto(esempio(nome)));
        rami.insert(progetto["NumeroRami"].get<int>());
        analisi.insert(progetto["TipoAnalisi"].get<int>());
        composizioni.insert(progetto["TipoFlusso"].get<int>());
        matrici.insert(progetto["TipoMatriceSvolte"].get<int>());
    }
    EXPECT_GE(esempi().size(), 6U);
    EXPECT_EQ(rami, (std::set{3, 4, 5, 6, 7}));
    EXPECT_EQ(analisi, (std::set{0, 1, 2}));
    EXPECT_EQ(composizioni, (std::set{0, 1}));
    EXPECT_EQ(matrici, (std::set{0, 1}));
}

TEST(Esempi, OneIsSaturatedInThePeakAndNotAtItsEnds) {
    const Esito esito = kelvoCli({"calcola", "--json", esempio("Rotatoria_Tangenziale_est")});
    const auto risultato = nlohmann::json::parse(esito.uscita);
    double massimo = 0.0;
    for (const auto& ramo : risultato["rami"]) {
        const auto& iterazioni = ramo["iterazioni"];
        EXPECT_LT(iterazioni.front()["Coeff_Sat"].get<double>(), 1.0) << ramo["Descrizione"];
        EXPECT_LT(iterazioni.back()["Coeff_Sat"].get<double>(), 1.0) << ramo["Descrizione"];
        for (const auto& iterazione : iterazioni) {
            massimo = std::max(massimo, iterazione["Coeff_Sat"].get<double>());
        }
    }
    EXPECT_GT(massimo, 1.0);
}

}  // namespace

}  // namespace kelvo::prove
