// confronta: two variants of a project side by side.

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <set>

#include "comune/cartella.h"
#include "esempi.h"
#include "processo.h"

namespace kelvo::prove {

namespace {

/// A folder with an example as "Stato.klv" and, changed, as "Progetto.klv".
class Varianti : public testing::Test {
protected:
    void cambia(const std::string& nome, const std::function<void(Json&)>& cambio) {
        const std::string testo = contenuto(esempio(nome));
        scriviContenuto(cartella.file("Stato.klv"), testo);
        Json progetto = Json::parse(testo);
        cambio(progetto);
        scriviContenuto(cartella.file("Progetto.klv"), progetto.dump(2));
    }
    Esito confronta(std::vector<std::string> opzioni = {}) const {
        opzioni.insert(opzioni.begin(), "confronta");
        opzioni.insert(opzioni.end(), {"Stato.klv", "Progetto.klv"});
        return kelvoCli(opzioni, cartella.percorso());
    }
    Json json(std::vector<std::string> opzioni = {}) const {
        opzioni.emplace_back("--json");
        return Json::parse(confronta(opzioni).uscita);
    }
    CartellaTemporanea cartella;
};

/// A wider entry with a shorter flare, another name, more demand on one leg, a few movements.
void allargata(Json& progetto) {
    progetto["Titolo"] = "Variante 1";
    progetto["MatriceSvolte"][0][1] = 260;
    Json& primo = progetto["Rami"][0];
    primo["LarghezzaIngresso"] = 5.2;
    primo["LunghezzaSvasatura"] = 10;
    Json& terzo = progetto["Rami"][2];
    terzo["Descrizione"] = "Via dei Mulini nuova";
    terzo["theDatiTraffico"]["FlussoTempo2"] = 7.5;
}

TEST_F(Varianti, TextAndJsonAreExactToTheByte) {
    cambia(mulini, allargata);
    const Esito testo = confronta();
    EXPECT_EQ(testo.codice, 0) << testo.errori;
    EXPECT_EQ(testo.errori, "");
    EXPECT_EQ(senzaDate(testo.uscita), contenuto(atteso("Varianti.confronta.txt")));
    const Esito json = confronta({"--json"});
    EXPECT_EQ(json.codice, 0);
    EXPECT_EQ(json.uscita, contenuto(atteso("Varianti.confronta.json")));
}

TEST_F(Varianti, IdenticalProjectsSaySo) {
    cambia(mulini, [](Json&) {});
    const Esito esito = confronta();
    EXPECT_EQ(esito.codice, 0);
    EXPECT_NE(esito.uscita.find("I dati di ingresso delle due varianti sono identici.\r\n"), std::string::npos);
    EXPECT_NE(esito.uscita.find("migliori 0, peggiori 0, uguali "), std::string::npos);
    const Json confronto = json();
    EXPECT_EQ(confronto["identici"], true);
    EXPECT_TRUE(confronto["dati"].empty());
    EXPECT_EQ(confronto["risultati"]["nodo"]["ISR"]["differenza"], 0);
}

TEST_F(Varianti, FiguresAreThoseOfTheOtherCommands) {
    for (const std::string& nome : esempi()) {
        cambia(nome, [](Json& progetto) { progetto["Rami"][1]["LarghezzaIngresso"] = 6.25; });
        const Json confronto = json({"--notte", "15"});
        for (const char* variante : {"A", "B"}) {
            const std::string file = variante == std::string{"A"} ? "Stato.klv" : "Progetto.klv";
            const auto altro = [&](const std::string& comando) {
                return Json::parse(kelvoCli({comando, "--notte", "15", "--json", file}, cartella.percorso()).uscita);
            };
            const Json ultima = altro("capacita-ultima");
            const Json& nodo = confronto["risultati"]["nodo"];
            EXPECT_EQ(nodo["SC"][variante], ultima["SC"]) << nome;
            EXPECT_EQ(nodo["SF"][variante], ultima["SF"]) << nome;
            EXPECT_EQ(nodo["ISR"][variante], ultima["ISR"]) << nome;
            const Json calcolo = altro("calcola");
            const Json sintesi = altro("sintesi");
            for (std::size_t i = 0; i < calcolo["rami"].size(); ++i) {
                const Json& grandezze = confronto["risultati"]["ingressi"][i]["grandezze"];
                EXPECT_EQ(grandezze["CapacitaUltima"][variante], calcolo["rami"][i]["CapacitaUltima"]) << nome;
                if (!sintesi.contains("ingressi")) {
                    EXPECT_TRUE(grandezze["Coda"][variante].is_null()) << nome;
                    continue;
                }
                double coda = 0.0;
                double ritardo = 0.0;
                double somma = 0.0;
                Json peggiore;
                for (const Json& iterazione : calcolo["rami"][i]["iterazioni"]) {
                    coda = std::max(coda, iterazione["Coda"].get<double>());
                    ritardo = std::max(ritardo, iterazione["Ritardo"].get<double>());
                    somma += iterazione["Ritardo"].get<double>();
                    if (iterazione["intervallo"] == sintesi["ingressi"][i]["segmentoSat"]) {
                        peggiore = iterazione["Capacita"];
                    }
                }
                EXPECT_EQ(grandezze["Coda"][variante].get<double>(), coda) << nome;
                EXPECT_EQ(grandezze["RitardoMassimo"][variante].get<double>(), ritardo) << nome;
                EXPECT_NEAR(grandezze["RitardoMedio"][variante].get<double>(),
                            somma / static_cast<double>(calcolo["rami"][i]["iterazioni"].size()), 1e-3)
                    << nome;
                EXPECT_EQ(grandezze["Capacita"][variante], peggiore) << nome;
                for (const char* chiave :
                     {"Coeff_Sat", "segmentoSat", "oraDiPunta", "Flusso", "riserva", "riservaVeicoli", "LOS"}) {
                    EXPECT_EQ(grandezze[chiave][variante], sintesi["ingressi"][i][chiave]) << nome << " " << chiave;
                }
            }
        }
    }
}

TEST_F(Varianti, ALegOfOneAloneStandsBesideNothing) {
    const Esito esito = kelvoCli({"confronta", "--json", esempio(mulini), esempio(stazione)});
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    const Json confronto = Json::parse(esito.uscita);
    EXPECT_EQ(confronto["note"][0], "I rami sono 3 in A e 4 in B; solo in B: ramo D (Via del Mercato).");
    const Json& ultimo = confronto["risultati"]["ingressi"][3];
    EXPECT_TRUE(ultimo["DescrizioneA"].is_null());
    EXPECT_EQ(ultimo["DescrizioneB"], "Via del Mercato");
    EXPECT_TRUE(ultimo["grandezze"]["CapacitaUltima"]["A"].is_null());
    EXPECT_FALSE(ultimo["grandezze"]["CapacitaUltima"]["B"].is_null());
    EXPECT_TRUE(ultimo["grandezze"]["CapacitaUltima"]["giudizio"].is_null());
    const std::string testo = kelvoCli({"confronta", esempio(mulini), esempio(stazione)}).uscita;
    EXPECT_NE(testo.find("\r\n\r\nRamo D: Via del Mercato (solo in B)"), std::string::npos);
}

TEST_F(Varianti, EveryPairOfExamplesIsCompared) {
    for (const std::string& a : esempi()) {
        for (const std::string& b : esempi()) {
            const Esito esito = kelvoCli({"confronta", esempio(a), esempio(b)});
            EXPECT_EQ(esito.codice, 0) << a << ", " << b << ": " << esito.errori;
            EXPECT_NE(esito.uscita.find("\r\n\r\nNodo "), std::string::npos) << a << ", " << b;
            // No line ends in LF alone.
            for (std::size_t i = esito.uscita.find('\n'); i != std::string::npos; i = esito.uscita.find('\n', i + 1)) {
                if (esito.uscita[i - 1] != '\r') {
                    FAIL() << a << ", " << b << " at " << i;
                }
            }
        }
    }
}

TEST_F(Varianti, AFileThatCannotBeReadGivesNoComparison) {
    cambia(mulini, [](Json&) {});
    const Esito testo = kelvoCli({"confronta", "Stato.klv", "manca.klv"}, cartella.percorso());
    EXPECT_EQ(testo.codice, 1);
    EXPECT_EQ(testo.uscita, "");
    EXPECT_EQ(testo.errori, "kelvo-cli: manca.klv: il file non esiste\n");
    const Esito esito = kelvoCli({"confronta", "--json", "manca.klv", "Stato.klv"}, cartella.percorso());
    EXPECT_EQ(esito.codice, 1);
    const Json confronto = Json::parse(esito.uscita);
    EXPECT_EQ(confronto["A"]["errori"][0]["numero"], 53);
    EXPECT_EQ(confronto["B"]["NumeroRami"], 3);
    EXPECT_FALSE(confronto.contains("dati"));
}

TEST_F(Varianti, ACalculationThatFailsLeavesTheInputCompared) {
    cambia(mulini, [](Json& progetto) { progetto["Rami"][1]["RaggioIngresso"] = 0; });
    const Esito testo = confronta();
    EXPECT_EQ(testo.codice, 1);
    EXPECT_NE(testo.errori.find("Progetto.klv: Divisione per zero"), std::string::npos) << testo.errori;
    EXPECT_NE(testo.uscita.find("Dati di ingresso diversi: 1\r\n"), std::string::npos);
    EXPECT_NE(testo.uscita.find("\r\nRisultati: non si confrontano, un calcolo non è riuscito.\r\n"),
              std::string::npos);
    const Json confronto = json();
    EXPECT_EQ(confronto["dati"].size(), 1U);
    EXPECT_FALSE(confronto.contains("risultati"));
    EXPECT_EQ(confronto["B"]["errori"][0]["numero"], 11);
    EXPECT_TRUE(confronto["A"]["errori"].empty());
}

TEST_F(Varianti, AKindOfAnalysisThatDoesNotExistIsAFailure) {
    cambia(mulini, [](Json& progetto) { progetto["TipoAnalisi"] = 7; });
    const Esito esito = confronta();
    EXPECT_EQ(esito.codice, 1);
    EXPECT_EQ(esito.errori, "kelvo-cli: Progetto.klv: il tipo di analisi 7 non è previsto: i valori sono 0, 1 e 2\n");
    EXPECT_NE(esito.uscita.find("non previsto (7)"), std::string::npos);
}

TEST_F(Varianti, WrongUseIsTwo) {
    cambia(mulini, [](Json&) {});
    EXPECT_EQ(kelvoCli({"confronta", "Stato.klv"}, cartella.percorso()).codice, 2);
    EXPECT_EQ(kelvoCli({"confronta"}, cartella.percorso()).codice, 2);
    EXPECT_EQ(kelvoCli({"confronta", "Stato.klv", "Progetto.klv", "Stato.klv"}, cartella.percorso()).codice, 2);
    EXPECT_EQ(kelvoCli({"confronta", "", "Progetto.klv"}, cartella.percorso()).codice, 2);
    const Esito esito = confronta({"--ini", "/manca/Kelvo.ini"});
    EXPECT_EQ(esito.codice, 2);
    EXPECT_EQ(esito.errori, "kelvo-cli: configurazione '/manca/Kelvo.ini': il file non esiste\n");
}

TEST_F(Varianti, TheNightPercentageCountsWhereTheProjectIsByNight) {
    cambia(stazione, [](Json& progetto) { progetto["CondizioniNotturne"] = false; });
    const Json confronto = json({"--notte", "20"});
    EXPECT_EQ(confronto["A"]["notte"], 20);
    EXPECT_EQ(confronto["B"]["notte"], 0);
    EXPECT_EQ(confronto["risultati"]["nodo"]["Coeff_Sat"]["giudizio"], "migliore");
    EXPECT_EQ(
        confronta({"--notte", "20"}).errori,
        "kelvo-cli: Progetto.klv: attenzione: --notte non ha effetto: il progetto non è in condizioni notturne\n");
}

/// Every key of an object, at any depth, but for those of the quantities.
void raccogli(const Json& valore, std::set<std::string>& chiavi) {
    if (valore.is_object()) {
        for (const auto& [chiave, contenuto] : valore.items()) {
            chiavi.insert(chiave);
            raccogli(contenuto, chiavi);
        }
    } else if (valore.is_array()) {
        for (const Json& voce : valore) {
            raccogli(voce, chiavi);
        }
    }
}

TEST_F(Varianti, EveryKeyOfTheJsonIsDocumented) {
    cambia(mulini, [](Json& progetto) { progetto["Rami"][1]["RaggioIngresso"] = 0; });
    std::set<std::string> chiavi;
    raccogli(json(), chiavi);
    cambia(mulini, allargata);
    raccogli(json(), chiavi);
    EXPECT_GT(chiavi.size(), 30U);
    const std::string pagina = contenuto(KELVO_SORGENTI "/docs/confronto-varianti.md");
    for (const std::string& chiave : chiavi) {
        EXPECT_NE(pagina.find("`" + chiave + "`"), std::string::npos) << chiave;
    }
}

}  // namespace

}  // namespace kelvo::prove
