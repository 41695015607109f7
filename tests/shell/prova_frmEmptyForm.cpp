#include "shell/frmEmptyForm.h"

#include <gtest/gtest.h>

#include "app/nuovoProgetto.h"
#include "comune/fintiFinestre.h"

namespace kelvo::prove {
namespace {

struct ProveVuota : testing::Test, ScenaFinestre {
    frmEmptyForm finestra{contorno()};
    Rotonda& rotonda() { return app.theRotonda(); }
    void nuovo(std::int16_t rami) {
        creaProgetto(app, rami);
        stato.ProgettoAperto = true;
        finestra.attivata();
    }
    std::string statoDi(const std::string& chiave) {
        finestra.aggiorna();
        const auto* riga = finestra.ctlContenuto.riga(chiave);
        return riga == nullptr ? "nessuna riga" : riga->celle.at(2);
    }
    std::string dettaglioDi(const std::string& chiave) {
        finestra.aggiorna();
        return finestra.ctlContenuto.riga(chiave)->celle.at(3);
    }
    /// Gives everything that a project of three legs lacks.
    void completa() {
        rotonda().NomeFile("Prova");
        rotonda().NomeProfessionista("Ing. Bianchi");
        rotonda().TempoFinale(oraDelGiorno(10, 0));
        for (std::int16_t i = 1; i <= 3; ++i) {
            rotonda().Ramo(i).DiametroInscritto(40.0F);
            rotonda().Ramo(i).theDatiTraffico().FlussoTempo2(5.0F);
            rotonda().Ramo(i).theComposizioneTraffico().Autovetture(90.0F);
            rotonda().MatriceSvolte(10.0F, i, static_cast<std::int16_t>(i % 3 + 1));
        }
    }
};

TEST_F(ProveVuota, WithoutAProjectItSaysHowToBegin) {
    EXPECT_EQ(finestra.lblTitolo.testo(), "Nessun progetto aperto");
    EXPECT_EQ(finestra.lblGuida.testo(), "Nuovo (Ctrl+N) crea un progetto, Apri (Ctrl+O) ne apre uno.");
    EXPECT_TRUE(finestra.ctlContenuto.righe().empty());
    EXPECT_FALSE(finestra.ctlContenuto.visibile());
    EXPECT_EQ(finestra.ctlPicture.risorsa(), "");
    EXPECT_FALSE(finestra.haSaveData());
    EXPECT_EQ(finestra.nome(), "frmEmptyForm");
}

TEST_F(ProveVuota, ANewProjectLacksItsDataLineByLine) {
    nuovo(3);
    struct Attesa {
        const char* chiave;
        std::vector<std::string> celle;
        bool evidente;
    };
    const std::vector<Attesa> attese{
        {"keyAnagraficaRotonda", {"Nome del progetto", "", "Manca", ""}, true},
        {"keyAnagraficaProfessionista", {"Professionista", "", "Manca", ""}, true},
        {"keyTempoModellazione",
         {"Tempi di modellazione", "", "Valori iniziali", "08:00 - 09:00, segmenti di 15 min"},
         false},
        {"keyRamo1", {"Geometria", "Ramo A", "Valori iniziali", "e 5,00 m, D 65,00 m"}, false},
        {"keyRamo2", {"Geometria", "Ramo B", "Valori iniziali", "e 5,00 m, D 65,00 m"}, false},
        {"keyRamo3", {"Geometria", "Ramo C", "Valori iniziali", "e 5,00 m, D 65,00 m"}, false},
        {"keyDatiTraffico1", {"Dati di traffico", "Ramo A", "Manca", ""}, true},
        {"keyDatiTraffico2", {"Dati di traffico", "Ramo B", "Manca", ""}, true},
        {"keyDatiTraffico3", {"Dati di traffico", "Ramo C", "Manca", ""}, true},
        {"keyMatriceSvolte", {"Matrice delle svolte", "", "Manca", "senza svolte da: Ramo A, Ramo B, Ramo C"}, true},
        {"keyComposizioneTraffico1",
         {"Composizione del traffico", "Ramo A", "Valori iniziali", "autovetture 100 %"},
         false},
        {"keyComposizioneTraffico2",
         {"Composizione del traffico", "Ramo B", "Valori iniziali", "autovetture 100 %"},
         false},
        {"keyComposizioneTraffico3",
         {"Composizione del traffico", "Ramo C", "Valori iniziali", "autovetture 100 %"},
         false},
    };
    const auto& righe = finestra.ctlContenuto.righe();
    ASSERT_EQ(righe.size(), attese.size());
    for (std::size_t i = 0; i < attese.size(); ++i) {
        EXPECT_EQ(righe[i].chiave, attese[i].chiave);
        EXPECT_EQ(righe[i].celle, attese[i].celle) << attese[i].chiave;
        EXPECT_EQ(righe[i].evidente, attese[i].evidente) << attese[i].chiave;
    }
    EXPECT_EQ(finestra.lblTitolo.testo(), "Progetto senza nome");
    EXPECT_EQ(finestra.lblGuida.testo(), "Da completare: Nome del progetto.");
    EXPECT_EQ(finestra.ctlPicture.risorsa(), "RAMI3");
    EXPECT_EQ(finestra.ctlContenuto.intestazioni(), (std::vector<std::string>{"Dato", "Ramo", "Stato", "Dettaglio"}));
}

TEST_F(ProveVuota, SevenLegsHaveSevenLinesOfEachKind) {
    nuovo(7);
    EXPECT_EQ(finestra.ctlContenuto.righe().size(), 4U + 3U * 7U);
    EXPECT_EQ(statoDi("keyComposizioneTraffico7"), "Valori iniziali");
    EXPECT_EQ(finestra.ctlPicture.risorsa(), "RAMI7");
}

TEST_F(ProveVuota, EachLineLeadsToItsWindow) {
    nuovo(3);
    for (const auto& riga : finestra.ctlContenuto.righe()) {
        finestra.ctlContenuto.attiva(riga.chiave);
        EXPECT_EQ(navigazione.chieste.back(), riga.chiave);
    }
    EXPECT_EQ(navigazione.chieste.size(), finestra.ctlContenuto.righe().size());
}

TEST_F(ProveVuota, WhatIsGivenIsPresent) {
    nuovo(3);
    completa();
    finestra.attivata();
    for (const auto& riga : finestra.ctlContenuto.righe()) {
        EXPECT_EQ(riga.celle[2], "Presente") << riga.chiave;
    }
    EXPECT_EQ(finestra.lblTitolo.testo(), "Prova");
    EXPECT_EQ(finestra.lblGuida.testo(), "Tutti i dati sono presenti: calcolare nelle verifiche prestazionali (F9).");
    EXPECT_EQ(dettaglioDi("keyDatiTraffico2"), "picco 5,00 veic/min");
    EXPECT_EQ(dettaglioDi("keyAnagraficaProfessionista"), "Ing. Bianchi");
}

TEST_F(ProveVuota, TheGuideNamesWhatComesNext) {
    nuovo(3);
    completa();
    rotonda().Ramo(2).theDatiTraffico().FlussoTempo2(0.0F);
    finestra.aggiorna();
    EXPECT_EQ(finestra.lblGuida.testo(), "Da completare: Dati di traffico, Ramo B.");
    rotonda().Ramo(2).theDatiTraffico().FlussoTempo1(1.0F);
    rotonda().Ramo(3).DiametroInscritto(65.0F);
    finestra.aggiorna();
    EXPECT_EQ(finestra.lblGuida.testo(), "Da verificare, ha ancora i valori iniziali: Geometria, Ramo C.");
}

TEST_F(ProveVuota, TheKindOfAnalysisChoosesWhatIsAsked) {
    nuovo(3);
    DatiTraffico& dati = rotonda().Ramo(1).theDatiTraffico();
    dati.FlussoSegmento(12.0F, 1, 0);
    EXPECT_EQ(statoDi("keyDatiTraffico1"), "Manca");  // the curve counts
    rotonda().TipoAnalisi(2);
    EXPECT_EQ(statoDi("keyDatiTraffico1"), "Presente");
    EXPECT_EQ(dettaglioDi("keyDatiTraffico1"), "12 veic");
    EXPECT_EQ(statoDi("keyDatiTraffico2"), "Manca");
    rotonda().TipoAnalisi(0);
    EXPECT_EQ(statoDi("keyDatiTraffico1"), "nessuna riga");
}

TEST_F(ProveVuota, ACompositionBySegmentIsAskedFromItsTable) {
    nuovo(3);
    rotonda().TipoFlusso(1);
    rotonda().Ramo(2).theComposizioneTraffico().CategoriaSegmento(3.0F, 1, 6);
    EXPECT_EQ(statoDi("keyComposizioneTraffico1"), "Manca");
    EXPECT_EQ(statoDi("keyComposizioneTraffico2"), "Presente");
}

TEST_F(ProveVuota, TheDiagonalOfTheMatrixIsNoMovement) {
    nuovo(3);
    for (std::int16_t i = 1; i <= 3; ++i) {
        rotonda().MatriceSvolte(10.0F, i, i);
    }
    rotonda().MatriceSvolte(10.0F, 2, 3);
    EXPECT_EQ(statoDi("keyMatriceSvolte"), "Manca");
    EXPECT_EQ(dettaglioDi("keyMatriceSvolte"), "senza svolte da: Ramo A, Ramo C");
}

TEST_F(ProveVuota, TimesThatGiveNoWindowAreMissing) {
    nuovo(3);
    rotonda().TempoFinale(rotonda().TempoIniziale());
    EXPECT_EQ(statoDi("keyTempoModellazione"), "Manca");
    rotonda().TempoFinale(oraDelGiorno(9, 0));
    rotonda().SegmentoTempo(0.0);
    EXPECT_EQ(statoDi("keyTempoModellazione"), "Manca");
}

TEST_F(ProveVuota, ComingUpLooksAtTheProjectAgain) {
    nuovo(3);
    rotonda().NomeFile("Dopo");
    gestione.ShowForm(&finestra);
    EXPECT_EQ(finestra.lblTitolo.testo(), "Dopo");
    gestione.chiudiCorrente();
}

}  // namespace
}  // namespace kelvo::prove
