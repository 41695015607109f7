#include <gtest/gtest.h>

#include <algorithm>

#include "progettoProva.h"

namespace kelvo::prove {
namespace {

std::vector<std::string> didascalie(const Letto& letto) {
    std::vector<std::string> trovate;
    for (const std::string& blocco : letto.blocchi()) {
        if (blocco.rfind("Figura ", 0) == 0) {
            trovate.push_back(blocco);
        }
    }
    return trovate;
}

TEST(RelazioneGrafici, EveryEntryHasItsFiveCharts) {
    Scena scena({.rami = 3});
    EXPECT_EQ(scena.modulo().compilaGrafici(), EsitoRelazione::fatta);
    const Letto letto = scena.letto();
    EXPECT_EQ(letto.errori(), "");
    const std::vector<std::string> attese{"Figura 1. Capacità - Ingresso Via A",
                                          "Figura 2. Coefficiente di Saturazione - Ingresso Via A",
                                          "Figura 3. Lunghezza delle code - Ingresso Via A",
                                          "Figura 4. Ritardi - Ingresso Via A",
                                          "Figura 5. Livello di servizio (L.O.S.) - Ingresso Via A",
                                          "Figura 6. Capacità - Ingresso Via B",
                                          "Figura 7. Coefficiente di Saturazione - Ingresso Via B",
                                          "Figura 8. Lunghezza delle code - Ingresso Via B",
                                          "Figura 9. Ritardi - Ingresso Via B",
                                          "Figura 10. Livello di servizio (L.O.S.) - Ingresso Via B",
                                          "Figura 11. Capacità - Ingresso Via C",
                                          "Figura 12. Coefficiente di Saturazione - Ingresso Via C",
                                          "Figura 13. Lunghezza delle code - Ingresso Via C",
                                          "Figura 14. Ritardi - Ingresso Via C",
                                          "Figura 15. Livello di servizio (L.O.S.) - Ingresso Via C"};
    EXPECT_EQ(didascalie(letto), attese);
    const std::vector<std::string> blocchi = letto.blocchi();
    EXPECT_EQ(std::count(blocchi.begin(), blocchi.end(), "ANALISI GRANDEZZE PRESTAZIONALI"), 1);
    EXPECT_EQ(std::count(blocchi.begin(), blocchi.end(), "Singoli ingressi"), 1);
    EXPECT_EQ(scena.dialogo.richieste.front().nome, "Grafici_Rotatoria_prova_21-11-2026--10-30.docx");
    ASSERT_EQ(scena.messaggi.mostrati.size(), 1U);
    EXPECT_EQ(scena.messaggi.mostrati.front().titolo, "KELVO 2014 - Elaborazione terminata");
}

TEST(RelazioneGrafici, ChartsShowTheRecordsOfTheirEntry) {
    Scena scena({.rami = 3});
    modCalcolo(scena.app).Calcola_Tempo_Flusso("0");
    for (std::int16_t i = 1; i <= 3; ++i) {
        for (std::int16_t s = 1; s <= 4; ++s) {
            scena.app.theRotonda().Ramo(i).theDatiTraffico().SetIterazione(s,
                                                                           {.Flusso = 1.0F,
                                                                            .Capacita = static_cast<float>(100 * i + s),
                                                                            .Coeff_Sat = 0.5F,
                                                                            .Coda = static_cast<float>(s),
                                                                            .Ritardo = 12.0F});
        }
    }
    scena.modulo().compilaGrafici({.forma = Grafico::Forma::linee, .valori = false});
    ASSERT_EQ(scena.disegnatore.grafici.size(), 15U);
    const Grafico::Contenuto& capacita = scena.disegnatore.grafici[5];
    EXPECT_EQ(capacita.serie.at(0).valori, (std::vector<double>{201.0, 202.0, 203.0, 204.0}));
    EXPECT_EQ(capacita.serie.at(0).forma, Grafico::Forma::linee);
    EXPECT_FALSE(capacita.valori);
    EXPECT_EQ(scena.disegnatore.grafici[14].serie.at(0).valori, (std::vector<double>{10.0, 10.0, 10.0, 10.0}));
}

TEST(RelazioneGrafici, AStudyOfSaturationAloneHasNone) {
    Scena scena({.analisi = 0});
    EXPECT_EQ(scena.modulo().compilaGrafici(), EsitoRelazione::fallita);
    ASSERT_EQ(scena.errori.size(), 1U);
    EXPECT_EQ(scena.errori.front().descrizione,
              "L'analisi del progetto è di sola saturazione: non ci sono grandezze nel tempo da rappresentare.");
    EXPECT_TRUE(scena.dialogo.richieste.empty());
}

TEST(RelazioneGrafici, ADrawingThatFailsEndsTheRun) {
    Scena scena;
    scena.disegnatore.errore = "l'immagine è troppo grande";
    EXPECT_EQ(scena.modulo().compilaGrafici(), EsitoRelazione::fallita);
    ASSERT_EQ(scena.errori.size(), 1U);
    EXPECT_EQ(scena.errori.front().descrizione, "l'immagine è troppo grande");
    EXPECT_EQ(scena.avanzamento.passi.back(), "chiudi");
    scena.conDisegni = false;
    EXPECT_EQ(scena.modulo().compilaGrafici(), EsitoRelazione::fallita);
    EXPECT_EQ(scena.errori.back().descrizione, "Questo programma non può disegnare");
    EXPECT_FALSE(scena.salvato());
}

TEST(RelazioneGrafici, AWindowsReportHasItsLinesTableAndCharts) {
    Scena scena;
    Tabella tabella(2, 2);
    tabella.cella(0, 1).testo = "-0,05";
    tabella.cella(1, 0).testo = "Larghezza ingresso";
    tabella.cella(1, 0).sfondo = colori::intestazione;
    tabella.cella(1, 0).inchiostro = colori::bianco;
    tabella.cella(1, 1).testo = "4,95";
    RelazioneGrafica relazione{.modello = "\\Modelli\\Grafico_AM.dot",
                               .prefisso = "Ottimizzazione_geometrica_",
                               .titolo = "OTTIMIZZAZIONE GEOMETRICA",
                               .sottotitolo = "Analisi risultati",
                               .righe = {"Denominazione ramo:  Via A", "Variabile prestazionale:  Capacità"},
                               .tabella = tabella,
                               .didascaliaTabella = "Passi della misura"};
    relazione.figure.push_back({{.titolo = "Relazione tra"}, "Larghezza Ingresso e Capacità"});
    EXPECT_EQ(scena.modulo().compilaGrafico(relazione), EsitoRelazione::fatta);
    EXPECT_TRUE(scena.errori.empty());
    const Letto letto = scena.letto();
    EXPECT_EQ(letto.errori(), "");
    const std::vector<std::string> blocchi = letto.blocchi();
    const auto qui = std::find(blocchi.begin(), blocchi.end(), "Denominazione ramo:  Via A");
    ASSERT_NE(qui, blocchi.end());
    EXPECT_EQ(std::vector<std::string>(qui, qui + 6),
              (std::vector<std::string>{"Denominazione ramo:  Via A", "Variabile prestazionale:  Capacità",
                                        "Tabella 1. Passi della misura", "[2]", "",
                                        "Figura 1. Larghezza Ingresso e Capacità"}));
    EXPECT_EQ(tabellaDopo(letto, "Passi della misura"), (Celle2D{{"", "-0,05"}, {"Larghezza ingresso", "4,95"}}));
    EXPECT_EQ(scena.dialogo.richieste.front().nome, "Ottimizzazione_geometrica_Rotatoria_prova_21-11-2026--10-30.docx");
    EXPECT_EQ(scena.app.theRotonda().timbro().forma, FormaCalcolo::nessuna) << "the window has its figures";
    relazione.modello = "\\Modelli\\Grafico.dot";
    EXPECT_EQ(scena.modulo().compilaGrafico(relazione), EsitoRelazione::fatta);
}

}  // namespace
}  // namespace kelvo::prove
