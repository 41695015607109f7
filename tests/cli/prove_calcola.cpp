// calcola and capacita-ultima: what-if, lanes, night, configuration, faults.

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "comune/cartella.h"
#include "processo.h"

namespace kelvo::prove {

namespace {

using Json = nlohmann::ordered_json;

const std::string mulini = "Rotatoria_Via_dei_Mulini";
const std::string quattro = "Rotatoria_Tangenziale_est";
const std::string notturna = "Rotatoria_Viale_della_Stazione";

Json json(const Esito& esito) {
    return Json::parse(esito.uscita);
}

std::vector<std::string> chiavi(const Json& oggetto) {
    std::vector<std::string> nomi;
    for (const auto& voce : oggetto.items()) {
        nomi.push_back(voce.key());
    }
    return nomi;
}

/// An example with one change in it, in a folder of its own.
class ProgettoCambiato {
public:
    ProgettoCambiato(const std::string& nome, const std::string& dopo, const std::string& vecchio,
                     const std::string& nuovo) {
        scriviContenuto(file(), conCambio(contenuto(esempio(nome)), dopo, vecchio, nuovo));
    }
    std::string file() const { return cartella_.file("progetto.klv"); }

private:
    CartellaTemporanea cartella_;
};

ProgettoCambiato conSvasaturaNulla() {
    return {mulini, "\"Key\": \"2Ramo\"", "\"LunghezzaSvasatura\": 15", "\"LunghezzaSvasatura\": 0"};
}

TEST(Calcola, JsonHoldsItsKeysInOrder) {
    const Json risultato = json(kelvoCli({"calcola", "--json", esempio(mulini)}));
    EXPECT_EQ(chiavi(risultato), (std::vector<std::string>{"file", "NomeFile", "TipoAnalisi", "TipoFlusso",
                                                           "NumeroRami", "ambiente", "rami", "errori"}));
    EXPECT_EQ(chiavi(risultato["ambiente"]), (std::vector<std::string>{"coefficienti", "ValorePercentile", "notte"}));
    EXPECT_EQ(chiavi(risultato["ambiente"]["coefficienti"]),
              (std::vector<std::string>{"Autoarticolati", "Autotreni", "Pullman", "Camper", "Roulotte", "Motocicli",
                                        "Autovetture"}));
    EXPECT_EQ(chiavi(risultato["rami"][0]), (std::vector<std::string>{"Key", "Descrizione", "K", "Td", "S", "X2", "F",
                                                                      "Fc", "CapacitaUltima", "iterazioni"}));
    EXPECT_EQ(chiavi(risultato["rami"][0]["iterazioni"][0]),
              (std::vector<std::string>{"intervallo", "Flusso", "Capacita", "Coeff_Sat", "Coda", "Ritardo", "LOS"}));
    EXPECT_EQ(risultato["rami"][0]["iterazioni"][0]["intervallo"], "07:30 - 07:45");
}

TEST(Calcola, FaultEndsWithExitCode1AndTheJsonHoldsWhatWasWrittenBefore) {
    const ProgettoCambiato progetto = conSvasaturaNulla();
    const Esito esito = kelvoCli({"calcola", "--json", progetto.file()});
    EXPECT_EQ(esito.codice, 1);
    const Json risultato = json(esito);
    const Json intero = json(kelvoCli({"calcola", "--json", esempio(mulini)}));
    for (const char* chiave : {"K", "Td", "S", "X2", "F", "Fc"}) {
        EXPECT_EQ(risultato["rami"][0][chiave], intero["rami"][0][chiave]) << chiave;
        EXPECT_EQ(risultato["rami"][2][chiave], 0) << chiave;
    }
    EXPECT_EQ(risultato["rami"][1]["Td"], intero["rami"][1]["Td"]);
    EXPECT_EQ(risultato["rami"][1]["F"], 0);
    EXPECT_TRUE(risultato["rami"][0]["iterazioni"].empty());
    ASSERT_EQ(risultato["errori"].size(), 1U);
    EXPECT_EQ(risultato["errori"][0], (Json{{"numero", 11},
                                            {"metodo", "Calcola_Tempo_Flusso"},
                                            {"descrizione", "Divisione per zero (SP 57 sud, lunghezza svasatura 0)"}}));
    EXPECT_EQ(esito.errori, "kelvo-cli: " + progetto.file() +
                                ": Divisione per zero (SP 57 sud, lunghezza svasatura 0) "
                                "[Calcola_Tempo_Flusso, errore 11]\n");
}

TEST(Calcola, FaultPrintsNoTable) {
    const Esito esito = kelvoCli({"calcola", conSvasaturaNulla().file()});
    EXPECT_EQ(esito.codice, 1);
    EXPECT_EQ(esito.uscita, "");
}

TEST(Calcola, UltimateCapacityAfterAFaultIsZeroInTheJson) {
    const ProgettoCambiato progetto = conSvasaturaNulla();
    const Esito esito = kelvoCli({"capacita-ultima", "--json", progetto.file()});
    EXPECT_EQ(esito.codice, 1);
    EXPECT_EQ(json(esito)["SC"], 0);
    EXPECT_EQ(json(esito)["errori"][0]["numero"], 11);
}

TEST(Calcola, WhatIfTakesTheMeasuresForItsLegAlone) {
    // K = 1, Td = 1.5, S = 4 * 1.6 / 16 = 0.4 and X2 = 4 / 1.8 + 4 for phi 30, r 20, D 60.
    const std::vector<std::string> comando{"calcola", "--json", "--ramo", "2", "--geometria", "8,4,16,30,20,60"};
    for (const std::string& nome : {mulini, quattro, std::string("Rotatoria_Piazza_Italia")}) {
        std::vector<std::string> conFile = comando;
        conFile.push_back(esempio(nome));
        const Esito esito = kelvoCli(conFile);
        EXPECT_EQ(esito.codice, 0) << nome;
        const Json prima = json(kelvoCli({"calcola", "--json", esempio(nome)}));
        const Json dopo = json(esito);
        EXPECT_NEAR(dopo["rami"][1]["F"].get<double>(), (4 / 1.8 + 4) * 303, 1e-9) << nome;
        EXPECT_NEAR(dopo["rami"][1]["S"].get<double>(), 0.4, 1e-15) << nome;
        EXPECT_EQ(dopo["rami"][0]["F"], prima["rami"][0]["F"]) << nome;
        EXPECT_GT(dopo["rami"][1]["iterazioni"].size(), 0U) << nome;
    }
}

TEST(Calcola, FiguresOfAnotherFormSayWhichInFrontOfThem) {
    const auto testo = [](std::vector<std::string> opzioni) {
        opzioni.insert(opzioni.begin(), "calcola");
        opzioni.push_back(esempio(quattro));
        return kelvoCli(opzioni).uscita;
    };
    EXPECT_TRUE(testo({}).starts_with("Risultati: Verifiche prestazionali\r\n"));
    EXPECT_TRUE(testo({"--ramo", "2", "--geometria", "5.5,3.5,12,30,20,45"})
                    .starts_with("Ipotesi: Via Industriale con e 5,5, v 3,5, l' 12, phi 30, r 20, D 45\r\n\r\n"
                                 "Risultati: Verifiche prestazionali\r\n"));
    EXPECT_TRUE(testo({"--corsie-dx", "1,3"})
                    .starts_with("Con corsie preferenziali di svolta a destra: posizioni 1,3\r\n\r\n"
                                 "Risultati: Verifiche prestazionali\r\n"));
    const auto chiaviDi = [&](const std::vector<std::string>& opzioni) {
        std::vector<std::string> tutte{"--json"};
        tutte.insert(tutte.end(), opzioni.begin(), opzioni.end());
        return Json::parse(testo(tutte));
    };
    EXPECT_FALSE(chiaviDi({}).contains("ipotesi"));
    EXPECT_EQ(chiaviDi({"--corsie-dx", "3,1"})["corsie_dx"], Json::parse("[1,3]"));
    EXPECT_EQ(chiaviDi({"--ramo", "2", "--geometria", "5.5,3.5,12,30,20,45"})["ipotesi"],
              Json::parse(R"({"ramo":2,"e":5.5,"v":3.5,"l":12,"phi":30,"r":20,"D":45})"));
}

TEST(Calcola, AnUnknownKindOfAnalysisIsToldAndComputesNothing) {
    const ProgettoCambiato progetto(mulini, "\"TipoAnalisi\": ", "1", "7");
    const Esito esito = kelvoCli({"calcola", progetto.file()});
    EXPECT_EQ(esito.codice, 1);
    EXPECT_EQ(esito.uscita, "");
    EXPECT_NE(esito.errori.find("il tipo di analisi 7 non è previsto"), std::string::npos);
}

TEST(Calcola, MeasuresMayCarryTheDecimalComma) {
    const auto prova = [](const std::string& misure) {
        const Esito esito = kelvoCli({"calcola", "--json", "--ramo", "1", "--geometria=" + misure, esempio(mulini)});
        EXPECT_EQ(esito.codice, 0) << misure;
        return esito.uscita;
    };
    EXPECT_EQ(prova("5,5;3,75;12;30;20;40"), prova("5.5,3.75,12,30,20,40"));
}

TEST(Calcola, NegativeMeasuresReachTheFormulas) {
    // e = v makes S 0 and X2 = v, here -2: F = -2 * 303 with K = 1.
    const Esito esito = kelvoCli(
        {"calcola", "--json", "--ramo", "1", "--geometria", "-2,-2,10,30,20,60", esempio("Rotatoria_Piazza_Italia")});
    EXPECT_NEAR(json(esito)["rami"][0]["F"].get<double>(), -606.0, 1e-9);
}

TEST(Calcola, WhatIfOfAMissingLegFails) {
    const Esito esito = kelvoCli({"calcola", "--ramo", "4", "--geometria", "5,4,12,30,20,40", esempio(mulini)});
    EXPECT_EQ(esito.codice, 1);
    EXPECT_EQ(esito.uscita, "");
    EXPECT_EQ(esito.errori, "kelvo-cli: " + esempio(mulini) + ": il ramo 4 non esiste, i rami sono 3\n");
}

TEST(Calcola, LanesTakeTheRightTurnsOutOfTheirEntriesAlone) {
    const Json prima = json(kelvoCli({"calcola", "--json", esempio(quattro)}));
    const Esito esito = kelvoCli({"calcola", "--json", "--corsie-dx", "1,3", esempio(quattro)});
    EXPECT_EQ(esito.codice, 0);
    const Json dopo = json(esito);
    const auto flusso = [](const Json& risultato, std::size_t ramo) {
        return risultato["rami"][ramo]["iterazioni"][0]["Flusso"].get<double>();
    };
    EXPECT_LT(flusso(dopo, 0), flusso(prima, 0));
    EXPECT_EQ(flusso(dopo, 1), flusso(prima, 1));
    EXPECT_LT(flusso(dopo, 2), flusso(prima, 2));
    EXPECT_EQ(flusso(dopo, 3), flusso(prima, 3));
}

TEST(Calcola, LanesAreForFourEntriesOnly) {
    for (const char* nome : {"Rotatoria_Via_dei_Mulini", "Rotatoria_SS12_Ospedale"}) {
        const Esito esito = kelvoCli({"calcola", "--json", "--corsie-dx", "1", esempio(nome)});
        EXPECT_EQ(esito.codice, 1) << nome;
        EXPECT_NE(esito.errori.find("funzione disponibile solo per rotatorie a quattro ingressi"), std::string::npos);
        EXPECT_TRUE(json(esito)["rami"][0]["iterazioni"].empty()) << nome;
    }
}

TEST(Calcola, NightReducesTheCapacityOfANightProjectAlone) {
    const auto capacita = [](const Esito& esito) {
        return json(esito)["rami"][1]["iterazioni"][0]["Capacita"].get<double>();
    };
    const Esito giorno = kelvoCli({"calcola", "--json", "--notte", "0", esempio(notturna)});
    const Esito notte = kelvoCli({"calcola", "--json", "--notte", "25", esempio(notturna)});
    EXPECT_EQ(json(giorno)["ambiente"]["notte"], 0);
    EXPECT_EQ(json(notte)["ambiente"]["notte"], 25);
    EXPECT_LT(capacita(notte), capacita(giorno));
    EXPECT_EQ(notte.errori, "");
    const Esito altro = kelvoCli({"calcola", "--json", "--notte", "25", esempio(mulini)});
    EXPECT_EQ(altro.codice, 0);
    EXPECT_EQ(altro.uscita, kelvoCli({"calcola", "--json", esempio(mulini)}).uscita);
    EXPECT_NE(altro.errori.find("--notte non ha effetto"), std::string::npos);
}

TEST(Calcola, NightProjectWithoutAPercentageIsTold) {
    const Esito esito = kelvoCli({"calcola", esempio(notturna)});
    EXPECT_EQ(esito.codice, 0);
    EXPECT_EQ(esito.errori, "kelvo-cli: " + esempio(notturna) +
                                ": attenzione: il progetto è in condizioni notturne: senza --notte la riduzione "
                                "vale 0\n");
}

TEST(Calcola, CoefficientsOfTheNamedConfigurationAreUsed) {
    const CartellaTemporanea cartella;
    const std::string ini = contenuto(KELVO_CARTELLA "/Kelvo.ini");
    scriviContenuto(cartella.file("mia.ini"), conCambio(ini, "Autotreni=", "2", "3.25"));
    const Json risultato = json(kelvoCli({"calcola", "--json", "--ini", cartella.file("mia.ini"), esempio(mulini)}));
    EXPECT_EQ(risultato["ambiente"]["coefficienti"]["Autotreni"], 3.25);
}

struct IniGuasto {
    const char* nome;
    const char* valore;
    const char* parole;
};

class Configurazione : public testing::TestWithParam<IniGuasto> {};

TEST_P(Configurazione, UnusableEndsWithExitCode2BeforeAnyResult) {
    const CartellaTemporanea cartella;
    const std::string ini = contenuto(KELVO_CARTELLA "/Kelvo.ini");
    const std::string file = cartella.file("guasta.ini");
    scriviContenuto(file, conCambio(ini, "Pullman=", "Camper=1,4", GetParam().valore));
    for (const char* comando : {"calcola", "capacita-ultima"}) {
        const Esito esito = kelvoCli({comando, "--ini", file, esempio(mulini)});
        EXPECT_EQ(esito.codice, 2);
        EXPECT_EQ(esito.uscita, "");
        EXPECT_EQ(esito.errori, "kelvo-cli: configurazione '" + file + "': " + GetParam().parole + "\n");
    }
}

INSTANTIATE_TEST_SUITE_P(
    Guasta, Configurazione,
    testing::Values(
        IniGuasto{"MissingKey", "", "il coefficiente 'Camper' della sezione [VEICOLI EQUIVALENTI] manca o vale 0"},
        IniGuasto{"Zero", "Camper=0", "il coefficiente 'Camper' della sezione [VEICOLI EQUIVALENTI] manca o vale 0"},
        IniGuasto{"Negative", "Camper=-1", "il coefficiente 'Camper' della sezione [VEICOLI EQUIVALENTI] vale -1"},
        IniGuasto{"Text", "Camper=abc", "Tipo non corrispondente (Kelvo.ini, [VEICOLI EQUIVALENTI] Camper=abc)"},
        IniGuasto{"NotANumber", "Camper=nan", "Tipo non corrispondente (Kelvo.ini, [VEICOLI EQUIVALENTI] Camper=nan)"}),
    [](const auto& caso) { return std::string(caso.param.nome); });

TEST(ConfigurazioneIllegibile, AWideEncodingIsNamedAndEndsWithExitCode2) {
    const CartellaTemporanea cartella;
    std::string largo = "\xFF\xFE";
    for (const char c : contenuto(KELVO_CARTELLA "/Kelvo.ini")) {
        largo += c;
        largo += '\0';
    }
    const std::string file = cartella.file("larga.ini");
    scriviContenuto(file, largo);
    const Esito esito = kelvoCli({"calcola", "--ini", file, esempio(mulini)});
    EXPECT_EQ(esito.codice, 2);
    EXPECT_EQ(esito.uscita, "");
    EXPECT_EQ(esito.errori,
              "kelvo-cli: configurazione '" + file + "': il testo non è in UTF-8 né in una codifica a un byte\n");
}

TEST(ConfigurazioneAssente, MissingFileEndsWithExitCode2) {
    const Esito esito = kelvoCli({"calcola", "--ini", "/manca/Kelvo.ini", esempio(mulini)});
    EXPECT_EQ(esito.codice, 2);
    EXPECT_EQ(esito.errori, "kelvo-cli: configurazione '/manca/Kelvo.ini': il file non esiste\n");
}

TEST(CapacitaUltima, JsonHoldsTheSumsAndTheTable) {
    const Esito esito = kelvoCli({"capacita-ultima", "--json", esempio("Rotatoria_Piazza_Italia")});
    EXPECT_EQ(esito.codice, 0);
    const Json risultato = json(esito);
    EXPECT_EQ(chiavi(risultato), (std::vector<std::string>{"file", "SC", "SF", "ISR", "tabella", "errori"}));
    EXPECT_EQ(risultato["tabella"].size(), 6U + 4U);
    EXPECT_EQ(risultato["tabella"][0], (Json{"", "Capacita' di saturazione [veic/h]", "Flusso orario [veic/h]"}));
    // The flows of the six legs: 520 + 280 + 480 + 210 + 455 + 340.
    EXPECT_EQ(risultato["SF"], 2285);
    EXPECT_NEAR(risultato["ISR"].get<double>(), risultato["SF"].get<double>() / risultato["SC"].get<double>(), 1e-7);
}

}  // namespace

}  // namespace kelvo::prove
