// corsia-dx and sensibilita: the two what-if analyses.

#include <gtest/gtest.h>

#include "comune/cartella.h"
#include "esempi.h"
#include "processo.h"

namespace kelvo::prove {

namespace {

/// A call of one of the commands on an example, and the file that holds its text.
struct Caso {
    const char* comando;
    std::vector<std::string> opzioni;
    std::string progetto;
};

const Caso casi[] = {
    {"corsia-dx", {"--posizioni", "1,3"}, est},
    {"corsia-dx", {"--posizioni", "4,2,3,1"}, stazione},
    {"sensibilita", {"--ramo", "1"}, stazione},
    {"sensibilita", {"--ramo", "2"}, aurelia},
    {"sensibilita", {"--ramo", "3", "--parametro", "larghezza"}, est},
    {"sensibilita", {"--ramo", "2", "--parametro", "svasatura"}, piazza},
    {"sensibilita", {"--ramo", "2", "--parametro", "angolo"}, mulini},
};

class AnalisiDiEsempio : public testing::TestWithParam<Caso> {
protected:
    Esito corri(bool json) const {
        std::vector<std::string> comando{GetParam().comando};
        comando.insert(comando.end(), GetParam().opzioni.begin(), GetParam().opzioni.end());
        if (json) {
            comando.emplace_back("--json");
        }
        comando.push_back(GetParam().progetto + ".klv");
        return kelvoCli(comando, progetti);
    }
    std::string attesoDi(const char* forma) const {
        return contenuto(atteso(GetParam().progetto + "." + GetParam().comando + "." + forma));
    }
};

TEST_P(AnalisiDiEsempio, TextIsExactToTheByte) {
    const Esito esito = corri(false);
    EXPECT_EQ(esito.codice, 0);
    EXPECT_EQ(senzaDate(esito.uscita), attesoDi("txt"));
}

TEST_P(AnalisiDiEsempio, JsonIsExactToTheByte) {
    const Esito esito = corri(true);
    EXPECT_EQ(esito.codice, 0);
    EXPECT_EQ(esito.uscita, attesoDi("json"));
}

INSTANTIATE_TEST_SUITE_P(Tutte, AnalisiDiEsempio, testing::ValuesIn(casi), [](const auto& caso) {
    const std::string comando = caso.param.comando;
    return comando.substr(0, comando.find('-')) + "_" + caso.param.progetto;
});

TEST(CorsiaDx, IsForFourEntriesWithDemandOverTime) {
    const Esito tre = kelvoCli({"corsia-dx", "--posizioni", "1", esempio(mulini)});
    EXPECT_EQ(tre.codice, 1);
    EXPECT_EQ(tre.uscita, "");
    EXPECT_EQ(tre.errori, "kelvo-cli: " + esempio(mulini) +
                              ": corsie di svolta a destra: funzione disponibile solo per rotatorie a quattro "
                              "ingressi, questa ne ha 3\n");
    const CartellaTemporanea cartella;
    const std::string file = cartella.file("saturazione.klv");
    scriviContenuto(file, conCambio(contenuto(esempio(est)), "\"TipoAnalisi\": ", "2", "0"));
    const Esito saturazione = kelvoCli({"corsia-dx", "--json", "--posizioni", "1", file});
    EXPECT_EQ(saturazione.codice, 1);
    const Json risultato = Json::parse(saturazione.uscita);
    EXPECT_FALSE(risultato.contains("tabella"));
    EXPECT_EQ(risultato["errori"][0]["descrizione"],
              "le corsie di svolta a destra non hanno effetto su un'analisi della sola saturazione");
}

TEST(CorsiaDx, TheSameFaultOfBothRunsIsToldOnceAndTheNextFileIsRead) {
    const CartellaTemporanea cartella;
    const std::string file = cartella.file("guasto.klv");
    scriviContenuto(file, conCambio(contenuto(esempio(est)), "\"Key\": \"2Ramo\"", "\"RaggioIngresso\": 18",
                                    "\"RaggioIngresso\": 0"));
    const Esito esito = kelvoCli({"corsia-dx", "--json", "--posizioni", "1,3", file, esempio(est)});
    EXPECT_EQ(esito.codice, 1);
    const auto fine = esito.uscita.find('\n');
    const Json primo = Json::parse(esito.uscita.substr(0, fine));
    ASSERT_EQ(primo["errori"].size(), 1U);
    EXPECT_EQ(primo["errori"][0]["numero"], 11);
    EXPECT_FALSE(primo.contains("rami"));
    EXPECT_EQ(Json::parse(esito.uscita.substr(fine + 1))["rami"].size(), 4U);
    EXPECT_EQ(kelvoCli({"corsia-dx", "--posizioni", "1,3", file}).uscita, "");
}

TEST(Sensibilita, WithoutChosenMeasuresOneHasToBeNamed) {
    const Esito esito = kelvoCli({"sensibilita", "--ramo", "1", esempio(mulini)});
    EXPECT_EQ(esito.codice, 1);
    EXPECT_EQ(esito.uscita, "");
    EXPECT_EQ(esito.errori, "kelvo-cli: " + esempio(mulini) +
                                ": SP 57 nord: il progetto non ha misure scelte per l'analisi, se ne può indicare una "
                                "con --parametro\n");
}

TEST(Sensibilita, ALegThatDoesNotExistIsTold) {
    const Esito esito = kelvoCli({"sensibilita", "--json", "--ramo", "4", "--parametro", "angolo", esempio(mulini)});
    EXPECT_EQ(esito.codice, 1);
    EXPECT_EQ(esito.errori, "kelvo-cli: " + esempio(mulini) + ": il ramo 4 non esiste, i rami sono 3\n");
    EXPECT_FALSE(Json::parse(esito.uscita).contains("parametri"));
}

TEST(Sensibilita, AFaultOfOneStepLeavesTheOthersAndExitCode1) {
    // e 3.5 and v 6: the sharpness is -4 / l, which is -0.5 and a division by zero at l = 8, the step after 7.5.
    const CartellaTemporanea cartella;
    const std::string file = cartella.file("guasto.klv");
    Json progetto = Json::parse(contenuto(esempio(est)));
    Json& ramo = progetto["Rami"][0];
    ramo["LarghezzaIngresso"] = 3.5;
    ramo["SemiLarghezza"] = 6;
    ramo["LunghezzaSvasatura"] = 7.5;
    ramo["theAnalisiMarginale"]["LungSvasatura"] = 0.5;
    scriviContenuto(file, progetto.dump(2));
    const Esito json = kelvoCli({"sensibilita", "--json", "--ramo", "1", "--parametro", "svasatura", file});
    EXPECT_EQ(json.codice, 1);
    const Json risultato = Json::parse(json.uscita);
    ASSERT_EQ(risultato["errori"].size(), 1U);
    EXPECT_EQ(risultato["errori"][0]["metodo"], "Calcola_Tempo_Flusso_ST");
    const Json& passi = risultato["parametri"][0]["passi"];
    EXPECT_EQ(passi[4]["misura"], 8);
    EXPECT_FALSE(passi[4].contains("Capacita"));
    EXPECT_TRUE(passi[3].contains("Capacita"));
    EXPECT_TRUE(passi[5].contains("Capacita"));
    const Esito testo = kelvoCli({"sensibilita", "--ramo", "1", "--parametro", "svasatura", file});
    EXPECT_EQ(testo.codice, 1);
    EXPECT_TRUE(testo.uscita.starts_with("Risultati: Ottimizzazione Geometrica *** Lunghezza svasatura\r\n"));
}

TEST(Sensibilita, NightCountsAndFilesComeInTheirOrder) {
    const Esito esito = kelvoCli({"sensibilita", "--json", "--ramo", "1", "--parametro", "raggio", "--notte", "10",
                                  esempio(stazione), "manca.klv", esempio(est)});
    EXPECT_EQ(esito.codice, 1);
    const auto prima = esito.uscita.find('\n');
    const auto seconda = esito.uscita.find('\n', prima + 1);
    EXPECT_TRUE(esito.uscita.substr(prima + 1).starts_with("{\"file\":\"manca.klv\",\"errori\":[{"));
    const auto capacita = [](const Json& j) { return j["parametri"][0]["passi"][3]["Capacita"].get<double>(); };
    const double notte = capacita(Json::parse(esito.uscita.substr(0, prima)));
    const double giorno = capacita(Json::parse(
        kelvoCli({"sensibilita", "--json", "--ramo", "1", "--parametro", "raggio", esempio(stazione)}).uscita));
    // The crossing takes 10 % by day, the night 10 % more.
    EXPECT_NEAR(notte, giorno * 80.0 / 90.0, 1e-4 * giorno);
    EXPECT_GT(capacita(Json::parse(esito.uscita.substr(seconda + 1))), 0.0);
}

}  // namespace

}  // namespace kelvo::prove
