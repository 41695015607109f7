// nuovo, mostra, verifica, and files that are no projects.

#include <gtest/gtest.h>

#include <filesystem>
#include <nlohmann/json.hpp>

#include "comune/cartella.h"
#include "processo.h"

namespace kelvo::prove {

namespace {

const std::string mulini = "Rotatoria_Via_dei_Mulini";

class Progetti : public testing::Test {
protected:
    std::string file(const std::string& nome) const { return cartella_.file(nome); }
    std::string cambiato(const std::string& dopo, const std::string& vecchio, const std::string& nuovo) const {
        scriviContenuto(file("progetto.klv"), conCambio(contenuto(esempio(mulini)), dopo, vecchio, nuovo));
        return file("progetto.klv");
    }
    CartellaTemporanea cartella_;
};

TEST_F(Progetti, NewProjectHasItsLegsItsNameAndTheCoefficients) {
    for (int rami = 3; rami <= 7; ++rami) {
        const std::string nome = file("nuovo" + std::to_string(rami) + ".klv");
        const Esito esito = kelvoCli({"nuovo", "--rami", std::to_string(rami), "--nome", "Prova è", nome});
        EXPECT_EQ(esito.codice, 0) << esito.errori;
        EXPECT_EQ(esito.uscita, "");
        const auto progetto = nlohmann::json::parse(contenuto(nome));
        EXPECT_EQ(progetto["NomeFile"], "Prova è");
        ASSERT_EQ(progetto["Rami"].size(), static_cast<std::size_t>(rami));
        EXPECT_EQ(progetto["Rami"][2]["Key"], "3Ramo");
        EXPECT_EQ(progetto["Rami"][2]["Descrizione"], "Ramo C");
        const auto& composizione = progetto["Rami"][2]["theComposizioneTraffico"];
        EXPECT_EQ(composizione["VEAutoarticolati"], 2.5);
        EXPECT_EQ(composizione["VEVeicoliDueRuote"], 0.8);
        EXPECT_EQ(kelvoCli({"verifica", nome}).uscita, nome + ": si legge, nessun avviso\n");
    }
}

TEST_F(Progetti, NewProjectIsNamedAfterItsFile) {
    EXPECT_EQ(kelvoCli({"nuovo", "--rami", "4", file("Rotatoria di prova.klv")}).codice, 0);
    EXPECT_EQ(nlohmann::json::parse(contenuto(file("Rotatoria di prova.klv")))["NomeFile"], "Rotatoria di prova");
}

TEST_F(Progetti, NewNeverReplacesAFileUnlessTold) {
    scriviContenuto(file("mio.klv"), "mio");
    const Esito esito = kelvoCli({"nuovo", "--rami", "4", file("mio.klv")});
    EXPECT_EQ(esito.codice, 1);
    EXPECT_EQ(esito.errori, "kelvo-cli: " + file("mio.klv") + ": esiste già; con --sovrascrivi viene sostituito\n");
    EXPECT_EQ(contenuto(file("mio.klv")), "mio");
    EXPECT_EQ(kelvoCli({"nuovo", "--rami", "4", "--sovrascrivi", file("mio.klv")}).codice, 0);
    EXPECT_EQ(kelvoCli({"mostra", file("mio.klv")}).codice, 0);
}

TEST_F(Progetti, NewSaysWhyItCannotWrite) {
    const Esito manca = kelvoCli({"nuovo", "--rami", "4", file("manca/x.klv")});
    EXPECT_EQ(manca.codice, 1);
    EXPECT_EQ(manca.errori,
              "kelvo-cli: Impossibile salvare il progetto: percorso non trovato (" + file("manca/x.klv") + ")\n");
    const Esito cartella = kelvoCli({"nuovo", "--rami", "4", "--sovrascrivi", cartella_.percorso()});
    EXPECT_EQ(cartella.codice, 1);
    EXPECT_NE(cartella.errori.find("è una cartella"), std::string::npos);
    EXPECT_TRUE(std::filesystem::is_empty(cartella_.percorso()));
}

TEST_F(Progetti, ShowGivesAReadableSummary) {
    const Esito esito = kelvoCli({"mostra", esempio(mulini)});
    EXPECT_EQ(esito.codice, 0);
    for (const char* riga :
         {"Nome progetto:          Rotatoria_Via_dei_Mulini\n",
          "Titolo:                 Rotatoria tra la SP 57 e Via dei Mulini\n", "Data:                   12/03/2026\n",
          "Finestra:               07:30 - 09:00, segmenti di 15 minuti\n",
          "Analisi:                curva di traffico\n", "Percentile della coda:  95 %\n", "\nRami: 3\n",
          "\nMatrice delle svolte, in veicoli\n"}) {
        EXPECT_NE(esito.uscita.find(riga), std::string::npos) << riga;
    }
}

TEST_F(Progetti, ShowNeedsNoConfigurationAndSeparatesProjects) {
    const Esito uno = kelvoCli({"mostra", esempio(mulini)});
    EXPECT_EQ(kelvoCli({"mostra", esempio(mulini), esempio(mulini)}).uscita, uno.uscita + "\n" + uno.uscita);
}

TEST_F(Progetti, VerifyComparesTheStoredTotalsWithTheCurve) {
    const std::string progetto = cambiato("1Ramo", "\"FlussoTotale\": 536", "\"FlussoTotale\": 540");
    const Esito esito = kelvoCli({"verifica", progetto});
    EXPECT_EQ(esito.codice, 0);
    EXPECT_EQ(esito.uscita, progetto +
                                ": si legge, avvisi: 1\n"
                                "  attenzione: SP 57 nord: flusso totale nel file 540, dai dati di traffico 536\n");
}

TEST_F(Progetti, VerifyComparesTheStoredTotalsWithTheCounts) {
    // 131 vehicles in the first quarter of an hour become 132: 2207 in 180 minutes.
    scriviContenuto(file("x.klv"),
                    conCambio(contenuto(esempio("Rotatoria_Tangenziale_est")), "\"FlussoSegmento\": [", "131", "132"));
    EXPECT_EQ(kelvoCli({"verifica", file("x.klv")}).uscita,
              file("x.klv") +
                  ": si legge, avvisi: 2\n"
                  "  attenzione: Tangenziale est: flusso totale nel file 2206, dai dati di traffico 2207\n"
                  "  attenzione: Tangenziale est: flusso orario nel file 735,33, dai dati di traffico 735,67\n");
}

TEST_F(Progetti, VerifySaysThatACurveCannotBeBuilt) {
    const Esito esito = kelvoCli({"verifica", cambiato("2Ramo", "\"Tempo2\": \"08:15\"", "\"Tempo2\": \"07:30\"")});
    EXPECT_EQ(esito.codice, 0);
    EXPECT_NE(esito.uscita.find("attenzione: SP 57 sud: la curva di traffico non si può costruire"), std::string::npos);
}

TEST_F(Progetti, VerifySaysOnceThatSegmentsHaveNoLength) {
    const Esito esito =
        kelvoCli({"verifica", cambiato("", "\"SegmentoTempo\": \"00:15\"", "\"SegmentoTempo\": \"01:00\"")});
    EXPECT_EQ(esito.codice, 0);
    EXPECT_NE(esito.uscita.find(": si legge, avvisi: 1\n  attenzione: finestra di modellazione: Divisione per zero"),
              std::string::npos)
        << esito.uscita;
}

TEST_F(Progetti, VerifySaysThatSegmentsDisagreeWithTheWindow) {
    const std::string progetto = cambiato("", "\"TempoFinale\": \"09:00\"", "\"TempoFinale\": \"08:45\"");
    const Esito esito = kelvoCli({"verifica", progetto});
    EXPECT_NE(esito.uscita.find("attenzione: SP 57 sud: 6 segmenti di tempo, la finestra ne ha 5"), std::string::npos)
        << esito.uscita;
}

TEST_F(Progetti, VerifySaysThatAChoiceIsUnknown) {
    const Esito esito = kelvoCli({"verifica", cambiato("", "\"TipoAnalisi\": 1", "\"TipoAnalisi\": 5")});
    EXPECT_NE(esito.uscita.find("attenzione: TipoAnalisi vale 5: sono previsti i valori da 0 a 2"), std::string::npos);
}

TEST_F(Progetti, WhatIsNoProjectFailsWithItsReason) {
    scriviContenuto(file("vuoto.klv"), "");
    scriviContenuto(file("altro.klv"), "{\"formato\": \"Altro\"}");
    scriviContenuto(file("tronco.klv"), contenuto(esempio(mulini)).substr(0, 3000));
    for (const char* comando : {"calcola", "capacita-ultima", "mostra", "verifica"}) {
        for (const std::string& nome :
             {file("vuoto.klv"), file("altro.klv"), file("tronco.klv"), file("manca.klv"), cartella_.percorso()}) {
            const Esito esito = kelvoCli({comando, nome});
            EXPECT_EQ(esito.codice, 1) << comando << " " << nome;
            EXPECT_EQ(esito.uscita, "") << comando << " " << nome;
            EXPECT_TRUE(esito.errori.starts_with("kelvo-cli: " + nome + ": ")) << esito.errori;
        }
    }
    EXPECT_EQ(kelvoCli({"verifica", file("manca.klv")}).errori,
              "kelvo-cli: " + file("manca.klv") + ": il file non esiste\n");
    EXPECT_EQ(kelvoCli({"verifica", ""}).errori, "kelvo-cli: '': il file non esiste\n");
}

TEST_F(Progetti, FileThatCannotBeReadGivesAJsonLineWithTheReason) {
    const Esito esito = kelvoCli({"calcola", "--json", file("manca.klv")});
    EXPECT_EQ(esito.codice, 1);
    EXPECT_EQ(esito.uscita, "{\"file\":\"" + file("manca.klv") +
                                "\",\"errori\":[{\"numero\":53,\"metodo\":\"Load\",\"descrizione\":\"il file non "
                                "esiste\"}]}\n");
    const Esito cartella = kelvoCli({"capacita-ultima", "--json", cartella_.percorso()});
    EXPECT_EQ(cartella.codice, 1);
    EXPECT_EQ(nlohmann::json::parse(cartella.uscita)["errori"][0]["numero"], 321);
}

}  // namespace

}  // namespace kelvo::prove
