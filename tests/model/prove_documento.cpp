#include <gtest/gtest.h>

#include <map>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

#include "testiKlv.h"

/// docs/formato-klv.md says what the program does.
namespace kelvo::prove {
namespace {

std::string documento() {
    return contenuto(KELVO_SORGENTI "/docs/formato-klv.md");
}

struct RigaTabella {
    std::string chiave;
    std::string tipo;
    std::string predefinito;
};

/// The tables of properties, by the heading above them.
std::map<std::string, std::vector<RigaTabella>> tabelle() {
    std::map<std::string, std::vector<RigaTabella>> tutte;
    std::istringstream testo(documento());
    std::string titolo;
    for (std::string riga; std::getline(testo, riga);) {
        if (riga.starts_with("## ")) {
            titolo = riga.substr(3);
        }
        std::vector<std::string> celle;
        std::istringstream pezzi(riga);
        for (std::string cella; std::getline(pezzi, cella, '|');) {
            const auto inizio = cella.find_first_not_of(' ');
            celle.push_back(
                inizio == std::string::npos ? "" : cella.substr(inizio, cella.find_last_not_of(' ') - inizio + 1));
        }
        if (celle.size() == 6 && celle[1].starts_with("`")) {
            tutte[titolo].push_back({celle[1].substr(1, celle[1].size() - 2), celle[2], celle[4]});
        }
    }
    return tutte;
}

bool delTipo(const nlohmann::ordered_json& valore, const std::string& tipo) {
    if (tipo == "text" || tipo == "time" || tipo == "date") {
        return valore.is_string();
    }
    if (tipo == "boolean") {
        return valore.is_boolean();
    }
    if (tipo == "single" || tipo == "double" || tipo == "i16") {
        return valore.is_number();
    }
    return tipo == "object" ? valore.is_object() : valore.is_array();
}

/// Compares a table with an object that the program wrote: keys in their order, types, defaults.
void confronta(const std::vector<RigaTabella>& tabella, const nlohmann::ordered_json& oggetto) {
    std::vector<std::string> scritte;
    for (const auto& membro : oggetto.items()) {
        if (membro.key() != "formato" && membro.key() != "versione") {
            scritte.push_back(membro.key());
        }
    }
    std::vector<std::string> dette;
    for (const RigaTabella& riga : tabella) {
        dette.push_back(riga.chiave);
    }
    ASSERT_EQ(dette, scritte);
    for (const RigaTabella& riga : tabella) {
        const auto& valore = oggetto[riga.chiave];
        EXPECT_TRUE(delTipo(valore, riga.tipo)) << riga.chiave;
        if (riga.predefinito.starts_with("`") && riga.chiave != "NumeroRami") {
            EXPECT_EQ("`" + valore.dump() + "`", riga.predefinito) << riga.chiave;
        }
    }
}

TEST(ProveDocumento, TablesNameEveryKeyInOrderWithItsTypeAndDefault) {
    Rotonda r;
    ASSERT_TRUE(carica(r, testoMinimo()).esito);
    const auto json = nlohmann::ordered_json::parse(r.TestoFile());
    auto dette = tabelle();
    const auto& ramo = json["Rami"][0];
    confronta(dette["Root"], json);
    confronta(dette["Leg"], ramo);
    confronta(dette["theDatiTraffico"], ramo["theDatiTraffico"]);
    confronta(dette["theComposizioneTraffico"], ramo["theComposizioneTraffico"]);
    confronta(dette["theAnalisiMarginale"], ramo["theAnalisiMarginale"]);
}

TEST(ProveDocumento, TheCompleteExampleIsReadAndWrittenBackAsItStands) {
    const std::string testo = documento();
    const std::string apertura = "```json\n";
    const auto inizio = testo.find(apertura) + apertura.size();
    ASSERT_EQ(testo.find(apertura, inizio), std::string::npos) << "one example";
    const std::string esempio = testo.substr(inizio, testo.find("```", inizio) - inizio);
    Rotonda r;
    const EsitoLettura letto = carica(r, esempio);
    ASSERT_TRUE(letto.esito) << letto.messaggio;
    EXPECT_EQ(r.Ramo(1).Descrizione(), "Via Milano nord");
    EXPECT_EQ(r.TestoFile(), esempio);
}

TEST(ProveDocumento, TheLimitsAreThoseOfTheReader) {
    // Each limit is asserted at its bound in the tests of the reader; here only the figures of the page.
    for (const char* limite : {"(4194304 bytes) |", "| 16 |", "| 7 |", "| 300 |", "| 100000 |"}) {
        EXPECT_NE(documento().find(limite), std::string::npos) << limite;
    }
}

}  // namespace
}  // namespace kelvo::prove
