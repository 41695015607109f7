// The check-up window: pages, trees, messages, export, check list.

#include "checkup/frmANALIZZATORE.h"

#include <filesystem>

#include "checkup/checkList.h"
#include "scenaControllo.h"

namespace kelvo::prove {
namespace {

constexpr int si = frmANALIZZATORE::colonnaSI;
constexpr int no = frmANALIZZATORE::colonnaNO;

struct ProveAnalizzatore : ScenaControllo {
    DocumentiFinti documenti;
    std::function<void(frmCheckUpMessaggio&)> alMessaggio;
    frmANALIZZATORE finestra{contorno(), {documenti, &campi, [this](frmCheckUpMessaggio& messaggio) {
                                              if (alMessaggio) {
                                                  alMessaggio(messaggio);
                                              }
                                          }}};

    ProveAnalizzatore() {
        rotonda().Data(giornoCalendario(2026, 11, 20));
        rotonda().Comune("");
        ramo(1).LunghezzaSvasatura(31.0F);
    }
    Testi testiDi(const Albero& albero) const {
        Testi testi;
        for (const std::string& chiave : albero.chiavi()) {
            testi.push_back(chiave + "|" + albero.nodo(chiave).immagine + "|" + albero.nodo(chiave).testo);
        }
        return testi;
    }
    Testi schede() const {
        Testi testi;
        for (int i = 0; i < 4; ++i) {
            testi.push_back(finestra.TabStrip1.testo(i));
        }
        return testi;
    }
    std::string casella(int riga, int colonna) const { return finestra.ctlGrid.testo(riga, colonna); }
    std::string punti(int riga) const { return casella(riga, frmANALIZZATORE::colonnaPunti); }
    /// Answers all questions alike.
    void rispondi(int colonna) {
        for (int r = 0; r < static_cast<int>(righeCheckList.size()); ++r) {
            finestra.ctlGrid.clic(r, colonna);
        }
    }
    std::string report() const { return contenuto(app.theAmbiente.CartellaLavoro() + "Report.txt"); }
    static std::string atteso(const std::string& nome) {
        return contenuto(std::string{KELVO_SORGENTI} + "/tests/checkup/attesi/" + nome);
    }
};

const std::string datiVecchi = "Anagrafica rotatoria:campo 'Data' di progetto prededente data attuale.";
const std::string senzaComune = "Anagrafica rotatoria:campo 'Comune' non inserito.";
const std::string svasatura =
    "Geometria Ingresso:Ramo 'Nord', Lunghezza svasatura superiore a 30m. Scarso aumento di capacità. Verificare dati "
    "di input";

TEST_F(ProveAnalizzatore, TheFirstShowingRunsTheAnalysisAndFillsFourTrees) {
    EXPECT_TRUE(finestra.ctlTreeAnalizzatore.radici().empty());
    finestra.attivata();
    const std::string fine = "KELVO 2014 - [Prova.klv] - 10:30 - 20/11/2026";
    EXPECT_EQ(testiDi(finestra.ctlTreeAnalizzatore),
              (Testi{"keyMyProject|Progetto|Report Analisi Progetto: " + fine, "Yellow2|Yellow|" + datiVecchi,
                     "Green3|Green|" + senzaComune, "Red4|Red|" + svasatura}));
    EXPECT_EQ(testiDi(finestra.ctlTreeGREEN),
              (Testi{"keyMyProject|Progetto|Messaggi di INFORMAZIONE Progetto: " + fine, "G1|Green|" + senzaComune}));
    EXPECT_EQ(testiDi(finestra.ctlTreeYELLOW),
              (Testi{"keyMyProject|Progetto|Messaggi di VERIFICA Progetto: " + fine, "Y1|Yellow|" + datiVecchi}));
    EXPECT_EQ(testiDi(finestra.ctlTreeRED),
              (Testi{"keyMyProject|Progetto|Messaggi di ERRORE Progetto: " + fine, "R1|Red|" + svasatura}));
    EXPECT_EQ(finestra.fuoco(), &finestra.ctlTreeAnalizzatore);
    EXPECT_TRUE(finestra.ctlTreeAnalizzatore.nodo("keyMyProject").espanso);
    EXPECT_EQ(finestra.ctlTreeAnalizzatore.nodo("Red4").padre, "keyMyProject");
    EXPECT_EQ(schede(), (Testi{"[3] Report", "[1] Messaggi di informazione", "[1] Messaggi di verifica",
                               "[1] Messaggi di errore"}));
    EXPECT_EQ(finestra.TabStrip1.scheda(3).icona, "Red");
}

TEST_F(ProveAnalizzatore, AProjectInOrderHasRootsAndCountsOfNothing) {
    rotonda().Data(giornoCalendario(2026, 11, 21));
    rotonda().Comune("Lucca");
    ramo(1).LunghezzaSvasatura(20.0F);
    finestra.attivata();
    EXPECT_EQ(schede(), (Testi{"[0] Report", "[0] Messaggi di informazione", "[0] Messaggi di verifica",
                               "[0] Messaggi di errore"}));
    EXPECT_EQ(testiDi(finestra.ctlTreeAnalizzatore),
              Testi{"keyMyProject|Progetto|Report Analisi Progetto: KELVO 2014 - [Prova.klv] - 10:30 - 21/11/2026"});
}

TEST_F(ProveAnalizzatore, LaterShowingsKeepTheReportAndTellThatTheProjectHasChanged) {
    finestra.attivata();
    EXPECT_FALSE(finestra.segno.visibile());
    finestra.attivata();
    EXPECT_FALSE(finestra.segno.visibile());
    rotonda().Comune("Lucca");
    finestra.attivata();
    EXPECT_EQ(finestra.TabStrip1.testo(0), "[3] Report");
    EXPECT_TRUE(finestra.segno.visibile());
    EXPECT_EQ(finestra.segno.testo(), "Il progetto è cambiato dopo l'analisi");
    finestra.ctlToolbar.premi("keyAnalizza");
    EXPECT_EQ(finestra.TabStrip1.testo(0), "[2] Report");
    EXPECT_FALSE(finestra.segno.visibile());
}

TEST_F(ProveAnalizzatore, CoefficientsChangedInTheOptionsMarkTheReportToo) {
    finestra.attivata();
    app.configurazione.VEPullman = 2.2F;
    finestra.attivata();
    EXPECT_TRUE(finestra.segno.visibile());
    finestra.Analizza();
    EXPECT_FALSE(finestra.segno.visibile());
    finestra.attivata();
    EXPECT_FALSE(finestra.segno.visibile());
}

TEST_F(ProveAnalizzatore, AFindingOnARowOfTheMatrixLeadsToThatRow) {
    riga(3, 45.0F, 20.0F, 35.0F);
    finestra.attivata();
    finestra.invioRiscontro(finestra.ctlTreeYELLOW, "Y2");
    EXPECT_EQ(navigazione.chieste, Testi{"keyMatriceSvolte"});
    EXPECT_EQ(campi.chiesti, Testi{"ctlGrid 3"});
}

TEST_F(ProveAnalizzatore, OnlyTheTreeOfTheTabInViewIsSeen) {
    finestra.attivata();
    const std::array<const Albero*, 4> alberi{&finestra.ctlTreeAnalizzatore, &finestra.ctlTreeGREEN,
                                              &finestra.ctlTreeYELLOW, &finestra.ctlTreeRED};
    for (int scheda : {1, 2, 3, 0}) {
        finestra.TabStrip1.scegli(scheda);
        for (int i = 0; i < 4; ++i) {
            EXPECT_EQ(alberi.at(static_cast<std::size_t>(i))->visibile(), i == scheda) << scheda << " " << i;
        }
    }
}

TEST_F(ProveAnalizzatore, ThePagesHaveTheirCaptionsAndTheirControls) {
    finestra.attivata();
    EXPECT_EQ(finestra.pannello.testo(), "Check Up Rotatoria: Analisi Report Progetto");
    EXPECT_FALSE(finestra.ctlGrid.visibile());
    EXPECT_FALSE(finestra.lblCopertina.visibile());
    finestra.TabStrip2.scegli(1);
    EXPECT_EQ(finestra.pannello.testo(), "Check Up Rotatoria: Analisi Check List Progetto");
    EXPECT_TRUE(finestra.ctlGrid.visibile());
    EXPECT_TRUE(finestra.lblCopertina.visibile());
    EXPECT_FALSE(finestra.TabStrip1.visibile());
    EXPECT_FALSE(finestra.ctlTreeAnalizzatore.visibile());
    finestra.TabStrip2.scegli(0);
    EXPECT_EQ(finestra.pannello.testo(), "Check Up Rotatoria: Analisi Report Progetto");
    EXPECT_TRUE(finestra.ctlTreeAnalizzatore.visibile());
    EXPECT_FALSE(finestra.lblIndice.visibile());
}

TEST_F(ProveAnalizzatore, RunningTheAnalysisShowsTheFirstTab) {
    finestra.attivata();
    finestra.TabStrip1.scegli(3);
    finestra.TabStrip2.scegli(1);
    finestra.ctlToolbar.premi("keyAnalizza");
    EXPECT_EQ(finestra.TabStrip1.corrente(), 0);
    EXPECT_EQ(finestra.TabStrip2.corrente(), 0);
    EXPECT_TRUE(finestra.ctlTreeAnalizzatore.visibile());
    EXPECT_EQ(finestra.pannello.testo(), "Check Up Rotatoria: Analisi Report Progetto");
}

TEST_F(ProveAnalizzatore, AClickOnAFindingShowsItInAWindowOfItsOwn) {
    finestra.attivata();
    Testi mostrati;
    alMessaggio = [&](frmCheckUpMessaggio& m) {
        mostrati.push_back(m.titolo() + "|" + m.lblGruppo.testo() + "|" + m.ctlLivello.risorsa() + "|" +
                           m.lblMessaggio.testo());
    };
    finestra.clicRiscontro(finestra.ctlTreeAnalizzatore, "Red4");
    finestra.clicRiscontro(finestra.ctlTreeYELLOW, "Y1");
    finestra.clicRiscontro(finestra.ctlTreeGREEN, "G1");
    finestra.clicRiscontro(finestra.ctlTreeRED, "R1");
    const std::string titolo = "Kelvo 1.0 - CheckUp Rotatoria messaggio - Prova|";
    EXPECT_EQ(mostrati, (Testi{titolo + "Messaggi di Errore : |Red|" + svasatura,
                               titolo + "Messaggi di Verifica : |Yellow|" + datiVecchi,
                               titolo + "Messaggi di Informazione : |Green|" + senzaComune,
                               titolo + "Messaggi di Errore : |Red|" + svasatura}));
    EXPECT_TRUE(navigazione.chieste.empty());
}

TEST_F(ProveAnalizzatore, ARootShowsNothingAndLeadsNowhere) {
    finestra.attivata();
    bool mostrato = false;
    alMessaggio = [&](frmCheckUpMessaggio& /*m*/) { mostrato = true; };
    for (const char* chiave : {"keyMyProject", "Red99", ""}) {
        finestra.clicRiscontro(finestra.ctlTreeAnalizzatore, chiave);
        finestra.invioRiscontro(finestra.ctlTreeAnalizzatore, chiave);
    }
    EXPECT_FALSE(mostrato);
    EXPECT_TRUE(navigazione.chieste.empty());
}

TEST_F(ProveAnalizzatore, TheWindowOfAMessageIsClosedByItsPicture) {
    finestra.attivata();
    int chiusure = 0;
    alMessaggio = [&](frmCheckUpMessaggio& m) {
        m.allaChiusura = [&] { ++chiusure; };
        m.ImageCHIUDI.premi();
        EXPECT_FALSE(m.vaiAlCampo());
    };
    finestra.clicRiscontro(finestra.ctlTreeRED, "R1");
    EXPECT_EQ(chiusure, 1);
    EXPECT_TRUE(navigazione.chieste.empty());
}

TEST_F(ProveAnalizzatore, TheButtonOfAMessageLeadsToTheFieldAfterItIsClosed) {
    finestra.attivata();
    int chiusure = 0;
    alMessaggio = [&](frmCheckUpMessaggio& m) {
        m.allaChiusura = [&] { ++chiusure; };
        EXPECT_EQ(m.cmdVaiAlCampo.testo(), "Vai al campo");
        m.cmdVaiAlCampo.premi();
        EXPECT_TRUE(navigazione.chieste.empty());
    };
    finestra.clicRiscontro(finestra.ctlTreeRED, "R1");
    EXPECT_EQ(chiusure, 1);
    EXPECT_EQ(navigazione.chieste, Testi{"keyRamo1"});
    EXPECT_EQ(campi.chiesti, Testi{"txtLungSvasatura"});
}

TEST_F(ProveAnalizzatore, EnterOnAFindingLeadsToItsFieldAtOnce) {
    finestra.attivata();
    finestra.invioRiscontro(finestra.ctlTreeAnalizzatore, "Green3");
    finestra.invioRiscontro(finestra.ctlTreeYELLOW, "Y1");
    EXPECT_EQ(navigazione.chieste, (Testi{"keyAnagraficaRotonda", "keyAnagraficaRotonda"}));
    EXPECT_EQ(campi.chiesti, (Testi{"txtComune", "txtData"}));
}

TEST_F(ProveAnalizzatore, AWindowThatDoesNotComeUpGetsNoFocus) {
    finestra.attivata();
    navigazione.risposta = false;
    finestra.invioRiscontro(finestra.ctlTreeRED, "R1");
    EXPECT_EQ(navigazione.chieste, Testi{"keyRamo1"});
    EXPECT_TRUE(campi.chiesti.empty());
}

TEST_F(ProveAnalizzatore, AMessageThatLeadsNowhereHasItsButtonClosed) {
    const frmCheckUpMessaggio solo(contorno(), Riscontro{"Red2", "Titolo:testo", Livello::Red, {}});
    EXPECT_FALSE(solo.cmdVaiAlCampo.abilitato());
    EXPECT_EQ(solo.pannello.testo(), "Kelvo 1.0 - CheckUp Rotatoria messaggio - Prova");
}

TEST_F(ProveAnalizzatore, TheExportWritesTheTreeOfTheTabInViewAndOpensIt) {
    finestra.attivata();
    scriviContenuto(app.theAmbiente.CartellaLavoro() + "Report.txt", "un vecchio report");
    constexpr std::array nomi{"Report.txt", "Report-informazione.txt", "Report-verifica.txt", "Report-errore.txt"};
    for (int scheda = 0; scheda < 4; ++scheda) {
        finestra.TabStrip1.scegli(scheda);
        finestra.ctlToolbar.premi("keyAnteprima");
        EXPECT_EQ(report(), atteso(nomi.at(static_cast<std::size_t>(scheda)))) << scheda;
    }
    EXPECT_EQ(documenti.aperti, Testi(4, app.theAmbiente.CartellaLavoro() + "Report.txt"));
    EXPECT_TRUE(messaggi.mostrati.empty());
}

TEST_F(ProveAnalizzatore, OverTheCheckListTheExportWritesTheFindingsOfTheInnerTab) {
    finestra.attivata();
    finestra.TabStrip1.scegli(3);
    finestra.TabStrip2.scegli(1);
    finestra.ctlToolbar.premi("keyAnteprima");
    EXPECT_EQ(report(), atteso("Report-errore.txt"));
    EXPECT_EQ(finestra.TabStrip2.corrente(), 1);
    EXPECT_EQ(documenti.aperti.size(), 1U);
}

TEST_F(ProveAnalizzatore, AReportThatNobodyOpensIsToldWhereItStands) {
    finestra.attivata();
    documenti.riesce = false;
    finestra.Anteprima();
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(messaggi.mostrati[0].testo, "Il report è stato scritto in '" + app.theAmbiente.CartellaLavoro() +
                                              "Report.txt', ma nessun programma lo ha aperto.");
    EXPECT_TRUE(registrati.empty());
}

TEST_F(ProveAnalizzatore, AnExportThatFailsIsRecordedUnderTheLabelOfTheTableOfOneEntry) {
    finestra.attivata();
    std::filesystem::create_directory(app.theAmbiente.CartellaLavoro() + "Report.txt");
    finestra.ctlToolbar.premi("keyAnteprima");
    ASSERT_EQ(registrati.size(), 1U);
    EXPECT_EQ(registrati[0].metodo, "frmCapacitaCodeRitardiRamo:Anteprima");
    EXPECT_TRUE(documenti.aperti.empty());
}

TEST_F(ProveAnalizzatore, TheGridHasTheRowsTheirKindsAndTheirColours) {
    const Tabella& t = finestra.ctlGrid.tabella();
    ASSERT_EQ(t.colonne(), 5);
    ASSERT_EQ(t.righe(), 44 + righeVuote);
    const auto genere = [&](int r) { return casella(r, frmANALIZZATORE::colonnaGenere); };
    EXPECT_EQ(genere(0), "DESCRIZIONE");
    EXPECT_EQ(genere(1), "GRIGIO");
    EXPECT_EQ(genere(3), "BIANCO");
    EXPECT_EQ(t.cella(0, 0).sfondo, (Colore{234, 234, 234}));
    EXPECT_EQ(t.cella(1, 0).sfondo, (Colore{0, 98, 0}));
    EXPECT_EQ(t.cella(1, 0).inchiostro, (Colore{255, 255, 255}));
    EXPECT_EQ(t.cella(3, 0).sfondo, (Colore{164, 196, 0}));
    EXPECT_EQ(casella(2, si), "SI");
    EXPECT_EQ(casella(2, no), "NO");
    EXPECT_EQ(casella(1, si), "");
    EXPECT_EQ(casella(3, si), "£");
    EXPECT_EQ(casella(3, no), "£");
    EXPECT_EQ(punti(3), "");
    EXPECT_EQ(casella(44, 0), "");
    EXPECT_EQ(t.cella(44, 1).sfondo, (Colore{234, 234, 234}));
    EXPECT_TRUE(finestra.ctlGrid.colonna(frmANALIZZATORE::colonnaPunti).nascosta);
    EXPECT_TRUE(finestra.ctlGrid.colonna(frmANALIZZATORE::colonnaGenere).nascosta);
    EXPECT_FALSE(finestra.ctlGrid.colonna(si).nascosta);
}

TEST_F(ProveAnalizzatore, AnAnswerTicksItsBoxAndCountsItsPoints) {
    finestra.TabStrip2.scegli(1);
    EXPECT_EQ(finestra.lblIndice.testo(), "Risposte inserite: 0 di 29   -   Indice: 0");
    finestra.ctlGrid.clic(3, si);
    EXPECT_EQ(casella(3, si), "R");
    EXPECT_EQ(casella(3, no), "£");
    EXPECT_EQ(punti(3), "6");
    EXPECT_EQ(finestra.lblIndice.testo(), "Risposte inserite: 1 di 29   -   Indice: 6");
    finestra.ctlGrid.clic(12, no);
    EXPECT_EQ(finestra.lblIndice.testo(), "Risposte inserite: 2 di 29   -   Indice: -2");
    finestra.ctlGrid.clic(43, si);
    EXPECT_EQ(finestra.lblIndice.testo(), "Risposte inserite: 3 di 29   -   Indice: -1");
}

TEST_F(ProveAnalizzatore, TheOtherBoxChangesTheAnswerAndTheSameOneDoesNotWithdrawIt) {
    finestra.TabStrip2.scegli(1);
    finestra.ctlGrid.clic(3, si);
    finestra.ctlGrid.clic(3, no);
    EXPECT_EQ(casella(3, si), "£");
    EXPECT_EQ(casella(3, no), "R");
    EXPECT_EQ(punti(3), "-8");
    EXPECT_EQ(finestra.lblIndice.testo(), "Risposte inserite: 1 di 29   -   Indice: -8");
    finestra.ctlGrid.clic(3, no);
    EXPECT_EQ(casella(3, no), "R");
    EXPECT_EQ(finestra.lblIndice.testo(), "Risposte inserite: 1 di 29   -   Indice: -8");
}

TEST_F(ProveAnalizzatore, WhatIsNoBoxOfAQuestionTakesNoClick) {
    finestra.TabStrip2.scegli(1);
    for (const int riga : {0, 1, 2, 9, 10, 11, 44, 50}) {
        finestra.ctlGrid.clic(riga, si);
        finestra.ctlGrid.clic(riga, no);
    }
    finestra.ctlGrid.clic(3, 0);
    EXPECT_EQ(finestra.risposte(), 0);
    EXPECT_EQ(casella(2, si), "SI");
    EXPECT_EQ(casella(0, si), "");
}

TEST_F(ProveAnalizzatore, TheKeyboardWalksFromBoxToBoxAndTheSpaceBarAnswers) {
    finestra.TabStrip2.scegli(1);
    ASSERT_TRUE(finestra.fuocoSu(finestra.ctlGrid));
    EXPECT_EQ(finestra.ctlGrid.corrente(), (Posto{3, si}));
    finestra.ctlGrid.scrivi(" ");
    EXPECT_EQ(punti(3), "6");
    finestra.ctlGrid.premiTasto(Griglia::Tasto::destra);
    finestra.ctlGrid.scrivi(" ");
    EXPECT_EQ(punti(3), "-8");
    for (int i = 0; i < 6; ++i) {
        finestra.ctlGrid.premiTasto(Griglia::Tasto::giu);
    }
    EXPECT_EQ(finestra.ctlGrid.corrente(), (Posto{12, no}));
    finestra.ctlGrid.scrivi("x");
    EXPECT_EQ(finestra.risposte(), 1);
}

TEST_F(ProveAnalizzatore, AllYesIsAHundredAndOneWithoutALevel) {
    finestra.TabStrip2.scegli(1);
    rispondi(si);
    EXPECT_EQ(finestra.lblIndice.testo(), "Risposte inserite: 29 di 29   -   Indice: 101");
    EXPECT_FALSE(finestra.lblCopertina.visibile());
    EXPECT_TRUE(finestra.frLivello.visibile());
    for (const Etichetta& livello : finestra.lblLivello) {
        EXPECT_EQ(livello.testo(), "");
    }
    EXPECT_EQ(finestra.lblCommento.testo(), "");
}

TEST_F(ProveAnalizzatore, AllNoIsInTheFirstBand) {
    finestra.TabStrip2.scegli(1);
    rispondi(no);
    EXPECT_EQ(finestra.lblIndice.testo(), "Risposte inserite: 29 di 29   -   Indice: -71");
    EXPECT_EQ(finestra.lblLivello[0].testo(), " LIVELLO CRITICO: ");
    EXPECT_EQ(finestra.lblLivello[1].testo(), "");
    EXPECT_EQ(finestra.lblCommento.testo(), fasceIndice[0].commento);
}

TEST_F(ProveAnalizzatore, TheLevelIsCoveredUntilTheLastAnswer) {
    frmANALIZZATORE altra{contorno(), {documenti}};
    altra.TabStrip2.scegli(1);
    for (int r = 0; r < 43; ++r) {
        altra.ctlGrid.clic(r, si);
    }
    EXPECT_EQ(altra.risposte(), 28);
    EXPECT_TRUE(altra.lblCopertina.visibile());
    EXPECT_FALSE(altra.frLivello.visibile());
    EXPECT_FALSE(altra.lblLivello[6].visibile());
    EXPECT_EQ(altra.lblLivello[6].testo(), "");
    altra.ctlGrid.clic(43, no);  // -1 in place of 1: 2 less than 101
    EXPECT_FALSE(altra.lblCopertina.visibile());
    EXPECT_TRUE(altra.lblLivello[6].visibile());
    EXPECT_EQ(altra.indice(), 99);
    EXPECT_EQ(altra.lblLivello[6].testo(), " LIVELLO ECCELLENTE: ");
    altra.ctlGrid.clic(12, no);  // 15 less
    EXPECT_EQ(altra.indice(), 84);
    EXPECT_EQ(altra.lblLivello[6].testo(), "");
    EXPECT_EQ(altra.lblLivello[4].testo(), " LIVELLO BUONO: ");
    EXPECT_EQ(altra.lblCommento.testo(), fasceIndice[4].commento);
}

TEST_F(ProveAnalizzatore, AnswersLiveAsLongAsTheWindowAndTouchNoProject) {
    const auto revisione = rotonda().revisione().tutto;
    finestra.attivata();
    finestra.TabStrip2.scegli(1);
    finestra.ctlGrid.clic(3, si);
    finestra.nascosta();
    finestra.attivata();
    finestra.Analizza();
    EXPECT_EQ(finestra.risposte(), 1);
    EXPECT_EQ(rotonda().revisione().tutto, revisione);
    EXPECT_FALSE(finestra.haSaveData());
}

TEST_F(ProveAnalizzatore, TheNavigatorMovesTheGridAndTheTitleOfTheSection) {
    finestra.TabStrip2.scegli(1);
    EXPECT_EQ(finestra.lblSezione.testo(), "Analisi Check List Progetto - Visibilità e Accessibilità");
    EXPECT_FALSE(finestra.cmdINDIETROsezione.abilitato());
    const std::array attesi{
        std::pair{8, "Analisi Check List Progetto - Progettazione e Geometria"},
        std::pair{21, "Analisi Check List Progetto - Segnaletica"},
        std::pair{28, "Analisi Check List Progetto - Impianti accessori"},
        std::pair{34, "Analisi Check List Progetto - Interferenza utenza debole e sicurezza generale"}};
    for (const auto& [riga, titolo] : attesi) {
        finestra.cmdAVANTIsezione.premi();
        EXPECT_EQ(finestra.ctlGrid.rigaAlta(), riga);
        EXPECT_EQ(finestra.lblSezione.testo(), titolo);
    }
    EXPECT_FALSE(finestra.cmdAVANTIsezione.abilitato());
    finestra.cmdAVANTIsezione.premi();
    EXPECT_EQ(finestra.ctlGrid.rigaAlta(), 34);
    for (const int riga : {28, 21, 8, 0}) {
        finestra.cmdINDIETROsezione.premi();
        EXPECT_EQ(finestra.ctlGrid.rigaAlta(), riga);
    }
    EXPECT_EQ(finestra.lblSezione.testo(), "Analisi Check List Progetto - Visibilità e Accessibilità");
}

TEST_F(ProveAnalizzatore, ThePicturesOfTheNavigatorAreClosedWithTheirButtons) {
    finestra.TabStrip2.scegli(1);
    EXPECT_FALSE(finestra.ImageINDIETRO.abilitato());
    EXPECT_TRUE(finestra.ImageAVANTI.abilitato());
    for (int i = 0; i < 4; ++i) {
        finestra.cmdAVANTIsezione.premi();
    }
    EXPECT_TRUE(finestra.ImageINDIETRO.abilitato());
    EXPECT_FALSE(finestra.ImageAVANTI.abilitato());
}

TEST_F(ProveAnalizzatore, TheNavigatorTakesTheCursorToTheFirstQuestionOfTheSection) {
    finestra.TabStrip2.scegli(1);
    ASSERT_TRUE(finestra.fuocoSu(finestra.ctlGrid));
    finestra.ctlGrid.premiTasto(Griglia::Tasto::destra);
    for (const int riga : {12, 25, 32, 39}) {
        finestra.cmdAVANTIsezione.premi();
        EXPECT_EQ(finestra.ctlGrid.corrente(), (Posto{riga, no}));
    }
    for (const int riga : {32, 25, 12, 3}) {
        finestra.cmdINDIETROsezione.premi();
        EXPECT_EQ(finestra.ctlGrid.corrente(), (Posto{riga, no}));
    }
}

TEST_F(ProveAnalizzatore, InAHighWindowTheLastSectionStandsOnTopToo) {
    finestra.TabStrip2.scegli(1);
    finestra.ctlGrid.clic(3, si);
    finestra.ctlGrid.righeVisibili = 90;
    for (int i = 0; i < 4; ++i) {
        finestra.cmdAVANTIsezione.premi();
    }
    EXPECT_EQ(finestra.ctlGrid.rigaAlta(), 34);
    EXPECT_GE(finestra.ctlGrid.tabella().righe(), 34 + 90);
    EXPECT_EQ(finestra.risposte(), 1);
    EXPECT_EQ(punti(3), "6");
    EXPECT_EQ(casella(100, frmANALIZZATORE::colonnaGenere), "");
    EXPECT_EQ(finestra.ctlGrid.tabella().cella(100, 1).sfondo, (Colore{234, 234, 234}));
}

TEST_F(ProveAnalizzatore, TheTitleFollowsWhoeverScrolls) {
    finestra.TabStrip2.scegli(1);
    finestra.ctlGrid.scorri(23);
    EXPECT_EQ(finestra.lblSezione.testo(), "Analisi Check List Progetto - Segnaletica");
    finestra.cmdINDIETROsezione.premi();
    EXPECT_EQ(finestra.ctlGrid.rigaAlta(), 21);
    finestra.ctlGrid.scorri(23);
    finestra.cmdAVANTIsezione.premi();
    EXPECT_EQ(finestra.ctlGrid.rigaAlta(), 28);
}

}  // namespace
}  // namespace kelvo::prove
