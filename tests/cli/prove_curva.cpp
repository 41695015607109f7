// curva: the demand curve of a leg and the search of its peak.

#include <gtest/gtest.h>

#include "comune/cartella.h"
#include "esempi.h"
#include "processo.h"

namespace kelvo::prove {

namespace {

std::vector<std::string> chiavi(const Json& oggetto) {
    std::vector<std::string> nomi;
    for (const auto& voce : oggetto.items()) {
        nomi.push_back(voce.key());
    }
    return nomi;
}

class CurvaDiEsempio : public testing::TestWithParam<const char*> {};

TEST_P(CurvaDiEsempio, BarsAndTotalsAreExactToTheByte) {
    const Esito esito = kelvoCli({"curva", "--ramo", "1", esempio(GetParam())});
    EXPECT_EQ(esito.codice, 0);
    EXPECT_EQ(esito.errori, "");
    EXPECT_EQ(senzaDate(esito.uscita), contenuto(atteso(GetParam() + std::string{".curva.txt"})));
}

TEST_P(CurvaDiEsempio, SearchIsExactToTheByte) {
    const Esito esito = kelvoCli({"curva", "--ramo", "2", "--obiettivo", "600", esempio(GetParam())});
    EXPECT_EQ(esito.codice, 0);
    EXPECT_EQ(esito.errori, "");
    EXPECT_EQ(senzaDate(esito.uscita), contenuto(atteso(GetParam() + std::string{".curva-obiettivo.txt"})));
}

INSTANTIATE_TEST_SUITE_P(Tutte, CurvaDiEsempio,
                         testing::Values("Rotatoria_Via_dei_Mulini", "Rotatoria_Viale_della_Stazione"),
                         [](const auto& caso) { return std::string{caso.param}; });

TEST(Curva, JsonOfASearchIsExactToTheByte) {
    const Esito esito = kelvoCli({"curva", "--json", "--ramo", "3", "--obiettivo", "500", mulini + ".klv"}, progetti);
    EXPECT_EQ(esito.codice, 0);
    EXPECT_EQ(esito.uscita, contenuto(atteso(mulini + ".curva.json")));
}

TEST(Curva, JsonWithoutATargetHasNoSearch) {
    const Esito esito = kelvoCli({"curva", "--json", "--ramo", "1", esempio(mulini)});
    EXPECT_EQ(esito.codice, 0);
    EXPECT_EQ(chiavi(Json::parse(esito.uscita)),
              (std::vector<std::string>{"file", "NomeFile", "Key", "Descrizione", "minuti", "Tempo1", "Tempo2",
                                        "Tempo3", "FlussoTempo1", "FlussoTempo2", "FlussoTempo3", "piatto", "barre",
                                        "FlussoTotale", "FlussoMedio", "FlussoOrario", "errori"}));
}

TEST(Curva, SearchThatFailsIsAFailureWithItsFigures) {
    const Esito esito = kelvoCli({"curva", "--json", "--ramo", "1", "--obiettivo", "300", esempio(mulini)});
    EXPECT_EQ(esito.codice, 1);
    const Json risultato = Json::parse(esito.uscita);
    EXPECT_EQ(risultato["ricerca"]["esito"], "fallita");
    EXPECT_EQ(risultato["ricerca"]["q2"], 3.99);
    EXPECT_EQ(risultato["ricerca"]["passi"], 0);
    ASSERT_EQ(risultato["errori"].size(), 1U);
    EXPECT_EQ(risultato["errori"][0]["metodo"], "frmDatiTraffico:CalcolaCurva");
    EXPECT_EQ(esito.errori, "kelvo-cli: " + esempio(mulini) +
                                ": la ricerca non è riuscita: il picco scenderebbe sotto q1; conviene ridurre q1\n");
    const Esito testo = kelvoCli({"curva", "--ramo", "1", "--obiettivo", "300", esempio(mulini)});
    EXPECT_EQ(testo.codice, 1);
    EXPECT_EQ(testo.errori, esito.errori);
    for (const char* parte : {"Curva di traffico: SP 57 nord\r\n", "  07:30-07:45", "  08:45-09:00", "q2 [veic/min]",
                              "\t3,99 ", "\t300 ", "\tnon riuscita ", "Passi", "Approssimazione applicata"}) {
        EXPECT_NE(testo.uscita.find(parte), std::string::npos) << parte << testo.uscita;
    }
}

TEST(Curva, ATargetOfZeroIsSearchedAndHasNoApproximation) {
    const Esito testo = kelvoCli({"curva", "--ramo", "1", "--obiettivo", "0", esempio(mulini)});
    EXPECT_EQ(testo.codice, 1) << "the peak would fall below q1";
    EXPECT_NE(testo.uscita.find("\tnon riuscita"), std::string::npos) << testo.uscita;
    EXPECT_EQ(testo.uscita.find("Approssimazione"), std::string::npos);
    const Json risultato =
        Json::parse(kelvoCli({"curva", "--json", "--ramo", "1", "--obiettivo", "0", esempio(mulini)}).uscita);
    EXPECT_EQ(risultato["ricerca"]["obiettivo"], 0);
    EXPECT_FALSE(risultato["ricerca"].contains("approssimazione"));
}

TEST(Curva, StepsThatEndAndPeaksThatLookWrongAreTold) {
    const Esito esauriti = kelvoCli({"curva", "--json", "--ramo", "1", "--obiettivo", "600.5", esempio(mulini)});
    EXPECT_EQ(esauriti.codice, 0);
    const Json ricerca = Json::parse(esauriti.uscita)["ricerca"];
    EXPECT_EQ(ricerca["esito"], "passiEsauriti");
    EXPECT_EQ(ricerca["passi"], 20000);
    EXPECT_EQ(ricerca["obiettivo"], 600.5);
    EXPECT_EQ(esauriti.errori,
              "kelvo-cli: " + esempio(mulini) + ": attenzione: la ricerca ha esaurito i suoi 20000 passi\n");
    const Esito anomala = kelvoCli({"curva", "--json", "--ramo", "1", "--obiettivo", "5001", esempio(mulini)});
    EXPECT_EQ(anomala.codice, 0);
    EXPECT_EQ(Json::parse(anomala.uscita)["ricerca"]["differenzaAnomala"], true);
    EXPECT_EQ(anomala.errori,
              "kelvo-cli: " + esempio(mulini) +
                  ": attenzione: valore apparentemente elevato, oltre 5000 veicoli\nkelvo-cli: " + esempio(mulini) +
                  ": attenzione: differenza anomala tra il valore di picco q2 e q1: conviene modificare q1\n");
    EXPECT_EQ(kelvoCli({"curva", "--ramo", "1", "--obiettivo", "5000", esempio(mulini)}).errori.find("elevato"),
              std::string::npos);
}

TEST(Curva, FlatCurveShowsQ2AsItsQ3) {
    const CartellaTemporanea cartella;
    scriviContenuto(cartella.file("piatta.klv"),
                    conCambio(contenuto(esempio(mulini)), "1Ramo", "\"Tempo2\": \"08:15\"", "\"Tempo2\": \"08:30\""));
    const Json risultato =
        Json::parse(kelvoCli({"curva", "--json", "--ramo", "1", cartella.file("piatta.klv")}).uscita);
    EXPECT_EQ(risultato["piatto"], true);
    EXPECT_EQ(risultato["FlussoTempo3"], risultato["FlussoTempo2"]);
    EXPECT_EQ(risultato["barre"].back()["Flusso"], 9);
}

TEST(Curva, WhatCannotBeShownIsToldAndTheNextFileIsRead) {
    const CartellaTemporanea cartella;
    const auto cambia = [&](const std::string& nome, const std::string& vecchio, const std::string& nuovo) {
        scriviContenuto(cartella.file(nome), conCambio(contenuto(esempio(mulini)), "1Ramo", vecchio, nuovo));
        return cartella.file(nome);
    };
    const std::string senzaSalita = cambia("a.klv", "\"Tempo2\": \"08:15\"", "\"Tempo2\": \"07:30\"");
    const std::string senzaFlusso = cambia("b.klv", "\"FlussoTempo1\": 4", "\"FlussoTempo1\": 0");
    const Esito esito = kelvoCli({"curva", "--json", "--ramo", "1", "--obiettivo", "600", senzaSalita, senzaFlusso,
                                  "manca.klv", esempio(mulini)});
    EXPECT_EQ(esito.codice, 1);
    EXPECT_EQ(esito.errori,
              "kelvo-cli: " + senzaSalita +
                  ": SP 57 nord: la curva di traffico non si può costruire, un suo tratto non ha segmenti di tempo\n"
                  "kelvo-cli: " +
                  senzaFlusso + ": la ricerca parte da q1, che vale 0\nkelvo-cli: manca.klv: il file non esiste\n");
    EXPECT_NE(esito.uscita.find("{\"file\":\"manca.klv\",\"errori\":[{"), std::string::npos);
    EXPECT_NE(esito.uscita.find("\"esito\":\"trovata\""), std::string::npos);
}

TEST(Curva, ALegThatDoesNotExistAndAnotherAnalysisAreTold) {
    const Esito ramo = kelvoCli({"curva", "--ramo", "4", esempio(mulini)});
    EXPECT_EQ(ramo.codice, 1);
    EXPECT_EQ(ramo.uscita, "");
    EXPECT_EQ(ramo.errori, "kelvo-cli: " + esempio(mulini) + ": il ramo 4 non esiste, i rami sono 3\n");
    const Esito tabella = kelvoCli({"curva", "--ramo", "1", esempio("Rotatoria_SS12_Ospedale")});
    EXPECT_NE(tabella.errori.find("attenzione: il progetto non calcola con le curve di traffico"), std::string::npos);
}

}  // namespace

}  // namespace kelvo::prove
