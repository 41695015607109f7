// sintesi: the peak hours of entries and junction.

#include <gtest/gtest.h>

#include "comune/cartella.h"
#include "esempi.h"
#include "processo.h"

namespace kelvo::prove {

namespace {

class SintesiDiEsempio : public testing::TestWithParam<std::string> {};

TEST_P(SintesiDiEsempio, TextIsExactToTheByte) {
    const Esito esito = kelvoCli({"sintesi", GetParam() + ".klv"}, progetti);
    EXPECT_EQ(esito.codice, 0);
    EXPECT_EQ(senzaDate(esito.uscita), contenuto(atteso(GetParam() + ".sintesi.txt")));
}

INSTANTIATE_TEST_SUITE_P(Tutte, SintesiDiEsempio,
                         testing::Values(mulini, est, aurelia, "Rotatoria_SS12_Ospedale", stazione));

TEST(ComandoSintesi, JsonIsExactToTheByte) {
    for (const std::string& progetto : {mulini, aurelia}) {
        const Esito esito = kelvoCli({"sintesi", "--json", progetto + ".klv"}, progetti);
        EXPECT_EQ(esito.codice, 0);
        EXPECT_EQ(esito.uscita, contenuto(atteso(progetto + ".sintesi.json")));
    }
}

TEST(ComandoSintesi, AnAnalysisOfSaturationAloneHasNoPeakHourAndTheNextFileIsRead) {
    const Esito esito = kelvoCli({"sintesi", "--json", esempio(piazza), esempio(mulini)});
    EXPECT_EQ(esito.codice, 1);
    EXPECT_EQ(esito.errori, "kelvo-cli: " + esempio(piazza) +
                                ": un'analisi della sola saturazione non ha risultati nel tempo: l'ora di punta non si "
                                "trova\n");
    const auto fine = esito.uscita.find('\n');
    const Json primo = Json::parse(esito.uscita.substr(0, fine));
    EXPECT_FALSE(primo.contains("ingressi"));
    EXPECT_EQ(primo["errori"].size(), 1U);
    EXPECT_EQ(Json::parse(esito.uscita.substr(fine + 1))["ingressi"].size(), 3U);
    EXPECT_EQ(kelvoCli({"sintesi", esempio(piazza)}).uscita, "");
}

TEST(ComandoSintesi, WithoutDemandFiguresAreNull) {
    const CartellaTemporanea cartella;
    const std::string file = cartella.file("vuoto.klv");
    Json progetto = Json::parse(contenuto(esempio(mulini)));
    for (Json& ramo : progetto["Rami"]) {
        for (const char* nome : {"FlussoTempo1", "FlussoTempo2", "FlussoTempo3"}) {
            ramo["theDatiTraffico"][nome] = 0;
        }
    }
    scriviContenuto(file, progetto.dump(2));
    const Esito esito = kelvoCli({"sintesi", "--json", file});
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    const Json risultato = Json::parse(esito.uscita);
    const Json& nodo = risultato["nodo"];
    for (const char* nome :
         {"oraDiPunta", "Capacita", "riserva", "riservaVeicoli", "segmentoSat", "Ritardo", "ingressoPeggiore"}) {
        EXPECT_TRUE(nodo[nome].is_null()) << nome;
    }
    EXPECT_EQ(nodo["Flusso"], 0);
    EXPECT_EQ(nodo["LOS"], "-");
    EXPECT_EQ(risultato["ingressi"][0]["saturazioneAlta"], false);
}

TEST(ComandoSintesi, AFaultOfTheCalculationGivesNoFigures) {
    const CartellaTemporanea cartella;
    const std::string file = cartella.file("guasto.klv");
    scriviContenuto(file, conCambio(contenuto(esempio(est)), "\"Key\": \"2Ramo\"", "\"RaggioIngresso\": 18",
                                    "\"RaggioIngresso\": 0"));
    const Esito esito = kelvoCli({"sintesi", "--json", file});
    EXPECT_EQ(esito.codice, 1);
    const Json risultato = Json::parse(esito.uscita);
    ASSERT_EQ(risultato["errori"].size(), 1U);
    EXPECT_EQ(risultato["errori"][0]["numero"], 11);
    EXPECT_FALSE(risultato.contains("ingressi"));
    EXPECT_EQ(kelvoCli({"sintesi", file}).uscita, "");
}

}  // namespace
}  // namespace kelvo::prove
