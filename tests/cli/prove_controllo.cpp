// kelvo-cli controllo: the findings of a project, as a text and as JSON, and its exit codes.

#include <gtest/gtest.h>

#include <filesystem>
#include <nlohmann/json.hpp>
#include <regex>

#include "comune/cartella.h"
#include "processo.h"

namespace kelvo::prove {

namespace {

const std::string mulini = "Rotatoria_Via_dei_Mulini";

/// Time of the root and date of the closing lines give way to marks, where they have their form.
std::string senzaTempo(const std::string& testo) {
    static const std::regex ora(R"((\.klv\] - )[0-9]{2}:[0-9]{2}( - [0-9]{2}/[0-9]{2}/[0-9]{4}))");
    static const std::regex data(R"((Output creato con Kelvo V1\.0\.0 il )[0-9]{2}/[0-9]{2}/[0-9]{4} [0-9:]{8})");
    return std::regex_replace(std::regex_replace(testo, ora, "$1<ora>$2"), data, "$1<data>");
}

class Controllo : public testing::Test {
protected:
    /// An example as a project of 1 January 2000, with one text of it replaced.
    std::string progetto(const std::string& nome, const std::string& dopo = {}, const std::string& vecchio = {},
                         const std::string& nuovo = {}) const {
        static const std::regex data("\"Data\": \"[0-9-]+\"");
        std::string testo = std::regex_replace(contenuto(esempio(nome)), data, std::string{"\"Data\": \"2000-01-01\""});
        if (!vecchio.empty()) {
            testo = conCambio(testo, dopo, vecchio, nuovo);
        }
        // The findings call a project by its file.
        const std::string dove = cartella_.file(std::to_string(quanti_++));
        std::filesystem::create_directory(dove);
        const std::string percorso = dove + "/" + nome + ".klv";
        scriviContenuto(percorso, testo);
        return percorso;
    }
    /// A project with a flare of 31 m, which is an error.
    std::string errato() const {
        return progetto(mulini, "2Ramo", "\"LunghezzaSvasatura\": 15", "\"LunghezzaSvasatura\": 31");
    }

    CartellaTemporanea cartella_;
    mutable int quanti_ = 0;
};

TEST_F(Controllo, TheExamplesHaveTheirExpectedFindingsAndNoErrors) {
    const std::vector<std::string> nomi = esempi();
    ASSERT_GE(nomi.size(), 6U);
    for (const std::string& nome : nomi) {
        const Esito esito = kelvoCli({"controllo", progetto(nome)});
        EXPECT_EQ(esito.codice, 0) << nome;
        EXPECT_EQ(senzaTempo(esito.uscita), contenuto(atteso(nome + ".controllo.txt")));
        EXPECT_EQ(esito.errori, "") << nome;
    }
}

TEST_F(Controllo, AProjectIsCalledByItsFileAsOnTheDesktop) {
    const std::string copia = cartella_.file("Copia di prova.KLV");
    std::filesystem::copy_file(progetto(mulini), copia);
    const Esito esito = kelvoCli({"controllo", copia});
    EXPECT_NE(esito.uscita.find("KELVO 2014 - [Copia di prova.klv] - "), std::string::npos) << esito.uscita;
    EXPECT_TRUE(esito.uscita.ends_with("Nome Progetto: Copia di prova\r\n")) << esito.uscita;
    const std::string solito = cartella_.file("Rotatoria_001.klv");
    std::filesystem::copy_file(copia, solito);
    EXPECT_NE(kelvoCli({"controllo", solito}).uscita.find("Nome file progetto di Default"), std::string::npos);
    EXPECT_EQ(nlohmann::json::parse(kelvoCli({"controllo", "--json", copia}).uscita)["NomeFile"], "Copia di prova");
}

TEST_F(Controllo, AnErrorOfTheProjectEndsWithThree) {
    const Esito esito = kelvoCli({"controllo", errato()});
    EXPECT_EQ(esito.codice, 3);
    EXPECT_EQ(esito.errori, "");
    EXPECT_NE(esito.uscita.find("\r\n[1]  - Geometria Ingresso:Ramo 'SP 57 sud', Lunghezza svasatura superiore a 30m. "
                                "Scarso aumento di capacità. Verificare dati di input\r\n"),
              std::string::npos)
        << esito.uscita;
}

TEST_F(Controllo, JsonTellsLevelHeadingTextAndPlace) {
    const std::string file = errato();
    const Esito esito = kelvoCli({"controllo", "--json", file});
    EXPECT_EQ(esito.codice, 3);
    const auto json = nlohmann::ordered_json::parse(esito.uscita);
    EXPECT_EQ(json["file"], file);
    EXPECT_EQ(json["NomeFile"], mulini);
    EXPECT_TRUE(json["errori"].empty());
    EXPECT_EQ(
        json["riscontri"][0].dump(),
        R"({"livello":"Yellow","titolo":"Anagrafica rotatoria:","testo":"campo 'Data' di progetto prededente data )"
        R"(attuale.","meta":{"chiave":"keyAnagraficaRotonda","campo":"txtData"}})");
    nlohmann::ordered_json rossi = nlohmann::ordered_json::array();
    for (const auto& riscontro : json["riscontri"]) {
        if (riscontro["livello"] == "Red") {
            rossi.push_back(riscontro);
        }
    }
    EXPECT_EQ(rossi.dump(),
              R"([{"livello":"Red","titolo":"Geometria Ingresso:","testo":"Ramo 'SP 57 sud', Lunghezza svasatura )"
              R"(superiore a 30m. Scarso aumento di capacità. Verificare dati di input","meta":{"chiave":"keyRamo2",)"
              R"("campo":"txtLungSvasatura","ramo":2}}])");
}

TEST_F(Controllo, JsonNamesTheRowOfTheTableThatIsWrong) {
    const Esito esito = kelvoCli(
        {"controllo", "--json", progetto("Rotatoria_Viale_della_Stazione", "", "[50, 30, 0, 20]", "[50, 30, 0, 21]")});
    EXPECT_EQ(esito.codice, 3);
    nlohmann::ordered_json rossi = nlohmann::ordered_json::array();
    const auto json = nlohmann::ordered_json::parse(esito.uscita);
    for (const auto& riscontro : json["riscontri"]) {
        if (riscontro["livello"] == "Red") {
            rossi.push_back(riscontro["meta"]);
        }
    }
    EXPECT_EQ(rossi.dump(), R"([{"chiave":"keyMatriceSvolte","campo":"ctlGrid","riga":3}])");
}

TEST_F(Controllo, SeveralFilesComeInOrderAndOneThatFailsDoesNotStopTheOthers) {
    const std::string buono = progetto(mulini);
    const std::string storto = errato();
    const Esito uno = kelvoCli({"controllo", "--json", buono});
    const Esito esito = kelvoCli({"controllo", "--json", "manca.klv", storto, buono});
    EXPECT_EQ(esito.codice, 3);
    EXPECT_EQ(esito.errori, "kelvo-cli: manca.klv: il file non esiste\n");
    EXPECT_TRUE(esito.uscita.starts_with("{\"file\":\"manca.klv\",\"errori\":[{\"numero\":53,"));
    EXPECT_TRUE(esito.uscita.ends_with("\n" + uno.uscita));
    EXPECT_EQ(kelvoCli({"controllo", storto, buono}).codice, 3);
    EXPECT_EQ(kelvoCli({"controllo", buono, buono}).codice, 0);
    const Esito testo = kelvoCli({"controllo", buono, "manca.klv", buono});
    EXPECT_EQ(testo.codice, 1);
    EXPECT_EQ(senzaTempo(testo.uscita),
              contenuto(atteso(mulini + ".controllo.txt")) + contenuto(atteso(mulini + ".controllo.txt")));
}

TEST_F(Controllo, CoefficientsAreThoseOfTheConfigurationThatIsNamed) {
    const std::string ini = cartella_.file("altro.ini");
    scriviContenuto(ini, conCambio(contenuto(KELVO_SORGENTI "/assets/Kelvo.ini"), "", "Pullman=1,8", "Pullman=2,2"));
    const Esito esito = kelvoCli({"controllo", "--ini", ini, progetto(mulini)});
    EXPECT_EQ(esito.codice, 0);
    EXPECT_NE(esito.uscita.find("[2]  - Composizione traffico:Attenzione.Valore di rapporto equivalenza veicolo "
                                "personalizzato (Autobus =2,2veic.eq.) .Verificare\r\n"),
              std::string::npos);
}

TEST_F(Controllo, ACoefficientThatIsMissingOrNotANumberIsAFindingAndStopsNothing) {
    const std::string ini = cartella_.file("altro.ini");
    const std::string fabbrica = contenuto(KELVO_SORGENTI "/assets/Kelvo.ini");
    for (const char* pullman : {"Pullman=", "Pullman=0"}) {
        scriviContenuto(ini, conCambio(fabbrica, "", "Pullman=1,8", pullman));
        const Esito esito = kelvoCli({"controllo", "--ini", ini, progetto(mulini)});
        EXPECT_EQ(esito.codice, 0) << pullman;
        EXPECT_NE(esito.uscita.find("(Autobus =0veic.eq.)"), std::string::npos) << pullman;
        EXPECT_EQ(kelvoCli({"calcola", "--ini", ini, progetto(mulini)}).codice, 2) << pullman;
    }
}

TEST_F(Controllo, WithoutAUsableConfigurationNothingIsChecked) {
    const Esito esito = kelvoCli({"controllo", "--ini", cartella_.file("manca.ini"), progetto(mulini)});
    EXPECT_EQ(esito.codice, 2);
    EXPECT_EQ(esito.uscita, "");
    EXPECT_EQ(kelvoCli({"controllo", "--notte", "5", progetto(mulini)}).codice, 2);
}

}  // namespace

}  // namespace kelvo::prove
