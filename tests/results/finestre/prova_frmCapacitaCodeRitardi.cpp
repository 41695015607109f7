#include "results/frmCapacitaCodeRitardi.h"

#include <filesystem>

#include "calc/modCalcolo.h"
#include "results/tabellaVerifiche.h"
#include "scenaRisultati.h"

namespace kelvo::prove {
namespace {

struct ProveVerifiche : ScenaRisultati {
    std::vector<std::string> fogli;
    frmCapacitaCodeRitardi finestra{contorno(), servizi()};
    void apriVerifiche() { apri(finestra, "keyCodeRitardi_Out"); }
    void calcola() { finestra.ctlToolbar.premi("keyCalcola"); }
    const std::string& testo(int r, int c) { return finestra.ctlGrid.testo(r, c); }
};

TEST_F(ProveVerifiche, OpensWithAnEmptyTableAndAnInvitation) {
    apriVerifiche();
    EXPECT_EQ(finestra.didascalia(), "Risultati: Verifiche prestazionali");
    EXPECT_EQ(finestra.ctlGrid.tabella().righe(), 4 * 4 + 1);
    EXPECT_EQ(testo(0, 1), "Flusso [veic/min]");
    EXPECT_EQ(testo(1, 0), "08:00 - 08:15");
    EXPECT_EQ(testo(2, 0), "Ramo A");
    EXPECT_EQ(testo(2, 1), "");
    EXPECT_TRUE(finestra.cmdCalcola.visibile());
    EXPECT_EQ(finestra.cmdCalcola.testo(), "Calcola (F9)");
    EXPECT_FALSE(finestra.conFigure());
    EXPECT_FALSE(finestra.lblVecchi.visibile());
    EXPECT_FALSE(finestra.lblFlussi.visibile());
    EXPECT_EQ(finestra.ctlGrid.ornamento({2, 6}).distintivo, std::nullopt);
}

TEST_F(ProveVerifiche, SegmentsOfAWholeHourOpenWithTheHeadingsAlone) {
    r().SegmentoTempo(oraDelGiorno(1, 0));
    apriVerifiche();
    EXPECT_EQ(finestra.ctlGrid.tabella().righe(), 1);
    EXPECT_TRUE(messaggi.mostrati.empty());
    calcola();
    EXPECT_EQ(messaggi.mostrati.size(), 2U) << "the engine's fault and that of the table";
    EXPECT_TRUE(finestra.cmdCalcola.visibile());
}

TEST_F(ProveVerifiche, HasItsKeysInOrder) {
    const auto& tasti = finestra.ctlToolbar.tasti();
    ASSERT_EQ(tasti.size(), 4U);
    const std::vector<std::pair<std::string, std::string>> attesi{
        {"keyCalcola", "Calcola"}, {"keyAnteprima", "Anteprima"}, {"keyRelazione", "Relazione"}, {"keyExcel", "Excel"}};
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(tasti[i].chiave, attesi[i].first);
        EXPECT_EQ(tasti[i].testo, attesi[i].second);
    }
    EXPECT_TRUE(tasti[0].abilitato);
    EXPECT_TRUE(tasti[1].abilitato);
}

TEST_F(ProveVerifiche, CalculatesACurveOrATableByTheAnalysis) {
    apriVerifiche();
    calcola();
    EXPECT_EQ(r().timbro().forma, FormaCalcolo::piana);
    // The curve rises from 4 at 08:00 to 9, 10, 11 at 08:30.
    EXPECT_EQ(testo(2, 1), "4,00");
    EXPECT_EQ(testo(3, 1), "4,00");
    EXPECT_FALSE(finestra.cmdCalcola.visibile());
    r().TipoAnalisi(2);
    ramo(2).theDatiTraffico().FlussoSegmento(90.0F, 1, 0);
    calcola();
    EXPECT_EQ(testo(2, 1), "0,00");
    EXPECT_EQ(testo(4 + 3, 1), "6,00");  // 90 in 15 minutes
    EXPECT_TRUE(messaggi.mostrati.empty());
}

TEST_F(ProveVerifiche, AnyOtherAnalysisLeavesTheRecordsAndFillsTheTable) {
    ramo(2).theDatiTraffico().SetIterazione(1, {7.0F, 800.0F, 0.5F, 1.0F, 12.0F});
    apriVerifiche();
    for (const int tipo : {0, 3}) {
        r().TipoAnalisi(static_cast<std::int16_t>(tipo));
        calcola();
        EXPECT_EQ(r().timbro().forma, FormaCalcolo::nessuna);
        EXPECT_EQ(testo(3, 1), "7,00");
        EXPECT_EQ(testo(3, 6), "B");
        EXPECT_TRUE(finestra.lblVecchi.visibile());
        EXPECT_EQ(finestra.lblVecchi.testo(),
                  "Le verifiche nel tempo non vengono calcolate: l'analisi è di sola saturazione (Opzioni).");
    }
}

TEST_F(ProveVerifiche, AKindOfFlowIsHandedToTheCalculation) {
    apriVerifiche();
    r().TipoFlusso(1);  // by segment, with an empty table of classes: no demand
    calcola();
    EXPECT_EQ(testo(2, 1), "0,00");
    EXPECT_TRUE(finestra.lblFlussi.visibile());
    EXPECT_EQ(finestra.lblFlussi.testo(),
              "Tutti i flussi sono 0: la composizione del traffico è vuota (Composizione del traffico).");
}

TEST_F(ProveVerifiche, BadgesFollowTheLevelAndTheCriticalOneIsRedOnWhite) {
    apriVerifiche();
    r().TipoAnalisi(0);
    ramo(1).theDatiTraffico().SetIterazione(1, {7.0F, 800.0F, 0.5F, 1.0F, 60.0F});
    ramo(2).theDatiTraffico().SetIterazione(1, {7.0F, 800.0F, 0.5F, 1.0F, 12.0F});
    calcola();
    const auto distintivo = [&](int riga) { return finestra.ctlGrid.ornamento({riga, 6}).distintivo; };
    EXPECT_EQ(distintivo(2), (Distintivo{{255, 255, 255}, {255, 0, 0}, {255, 0, 0}}));
    EXPECT_EQ(distintivo(3), distintivoLivello("B"));
    EXPECT_EQ(distintivo(4), distintivoLivello("-"));
    EXPECT_EQ(distintivo(1), std::nullopt) << "a band has no level";
    EXPECT_EQ(distintivo(0), std::nullopt);
    EXPECT_EQ(finestra.ctlGrid.ornamento({2, 5}).allineamento, std::nullopt);
}

TEST_F(ProveVerifiche, ATableStaysAsItIsUntilCalcolaAndIsToldToBeOld) {
    apriVerifiche();
    calcola();
    EXPECT_FALSE(finestra.lblVecchi.visibile());
    const std::string prima = testo(3, 2);
    ramo(2).LarghezzaIngresso(9.0F);
    apriVerifiche();
    EXPECT_EQ(testo(3, 2), prima);
    EXPECT_TRUE(finestra.lblVecchi.visibile());
    EXPECT_EQ(finestra.lblVecchi.testo(),
              "I dati sono cambiati dopo il calcolo: le cifre non sono più quelle del progetto. Premere Calcola (F9).");
    calcola();
    EXPECT_NE(testo(3, 2), prima);
    EXPECT_FALSE(finestra.lblVecchi.visibile());
    // What is in force beside the project counts as well.
    app.configurazione.VEAutovetture = 1.1F;
    finestra.aggiornaNote();
    EXPECT_TRUE(finestra.lblVecchi.visibile());
    app.configurazione.VEAutovetture = 1.0F;
    finestra.aggiornaNote();
    EXPECT_FALSE(finestra.lblVecchi.visibile());
}

TEST_F(ProveVerifiche, FiguresShownStayThoseOfTheProjectWhenAnotherWindowCalculates) {
    apriVerifiche();
    calcola();
    modCalcolo motore(app);
    motore.Calcola_Bilanciamento();
    finestra.aggiornaNote();
    EXPECT_FALSE(finestra.lblVecchi.visibile());
}

TEST_F(ProveVerifiche, FiguresOfOtherFormsAreTold) {
    apriVerifiche();
    const auto nota = [&](FormaCalcolo forma) {
        // A calculation that fails before its first record leaves the stamp as it was.
        ramo(1).RaggioIngresso(0.0F);
        r().timbra(forma, app.ambienteCalcolo());
        calcola();
        return finestra.lblVecchi.testo();
    };
    EXPECT_EQ(nota(FormaCalcolo::ipotesi),
              "Le cifre sono di un'analisi di ipotesi, non del progetto. Premere Calcola (F9).");
    EXPECT_EQ(nota(FormaCalcolo::corsiaDestra),
              "Le cifre sono di un'analisi di ipotesi, non del progetto. Premere Calcola (F9).");
    EXPECT_EQ(nota(FormaCalcolo::interrotta), "Il calcolo si è interrotto: le cifre non sono complete.");
    EXPECT_EQ(nota(FormaCalcolo::nessuna), "Il calcolo non è riuscito: le cifre non sono quelle del progetto.");
    EXPECT_EQ(nota(FormaCalcolo::bilanciamento), "Il calcolo non è riuscito: le cifre non sono quelle del progetto.");
}

TEST_F(ProveVerifiche, AFailedCalculationIsNotToldAsOlderData) {
    apriVerifiche();
    calcola();
    ramo(1).RaggioIngresso(0.0F);
    calcola();
    EXPECT_EQ(finestra.lblVecchi.testo(), "Il calcolo non è riuscito: le cifre non sono quelle del progetto.");
    ramo(1).RaggioIngresso(20.0F);
    calcola();
    EXPECT_FALSE(finestra.lblVecchi.visibile());
}

TEST_F(ProveVerifiche, FiguresOfOtherDataAreNotExplainedByTheDataAtHand) {
    apriVerifiche();
    calcola();
    ASSERT_EQ(finestra.ctlGrid.testo(2, 1).find("0,00"), std::string::npos);
    for (int i = 1; i <= 3; ++i) {
        ramo(i).theDatiTraffico().NumSegmentiTempo(6);
    }
    apriVerifiche();
    EXPECT_FALSE(finestra.lblFlussi.visibile()) << "the table still shows flows";
    EXPECT_TRUE(finestra.lblVecchi.visibile());
}

TEST_F(ProveVerifiche, ShowsWhatIsInForceAndWarnsOfANightWithoutIncidence) {
    r().CondizioniNotturne(true);
    apriVerifiche();
    EXPECT_TRUE(finestra.lblNotte.visibile());
    EXPECT_EQ(finestra.lblNotte.tag(), "ROSSO");
    app.theAmbiente.PercentualeNotturna(15);
    apriVerifiche();
    EXPECT_FALSE(finestra.lblNotte.visibile());
    EXPECT_NE(finestra.lblInVigore.testo().find("notte 15 %"), std::string::npos);
    const Tabella& t = finestra.ctlInVigore.tabella();
    ASSERT_EQ(t.righe(), 1 + 2 + 3 + 7);
    EXPECT_EQ(t.testo(0, 0), "In vigore nel calcolo");
    EXPECT_EQ(t.testo(0, 1), "Valore");
    EXPECT_EQ(t.testo(2, 0), "Condizioni notturne");
    EXPECT_EQ(t.testo(2, 1), "15 %");
    EXPECT_EQ(t.cella(2, 0).sfondo, (Colore{164, 196, 0}));
    EXPECT_EQ(t.cella(0, 0).sfondo, (Colore{0, 98, 0}));
}

TEST_F(ProveVerifiche, TheSpreadsheetOpensWithTheFirstCalculationTheReportIsOpenBefore) {
    ServiziRisultati conFoglio = servizi();
    int relazioni = 0;
    conFoglio.foglio = [this](const std::string& percorso) { fogli.push_back(percorso); };
    conFoglio.relazione = [&] { ++relazioni; };
    frmCapacitaCodeRitardi altra(contorno(), conFoglio);
    apri(altra, "keyCodeRitardi_Out");
    EXPECT_FALSE(altra.ctlToolbar.abilitato("keyExcel"));
    EXPECT_FALSE(altra.Cmd_EXCEL.abilitato());
    EXPECT_TRUE(altra.ctlToolbar.abilitato("keyRelazione"));
    EXPECT_EQ(altra.ctlToolbar.spiegazione("keyExcel"),
              "Porta la tabella in un foglio di calcolo (Ctrl+E)\nDisponibile dopo Calcola");
    altra.Cmd_EXCEL.premi();
    EXPECT_TRUE(fogli.empty());
    altra.cmdCalcola.premi();
    EXPECT_TRUE(altra.ctlToolbar.abilitato("keyExcel"));
    EXPECT_TRUE(altra.Cmd_EXCEL.abilitato());
    altra.ctlToolbar.premi("keyExcel");
    altra.Cmd_EXCEL.premi();
    ASSERT_EQ(fogli.size(), 2U);
    EXPECT_EQ(fogli[0], app.theAmbiente.PercorsoProgramma("xls\\Risultati.txt"));
    EXPECT_EQ(contenuto(fogli[0]), testoScambio(altra.ctlGrid.tabella(), r(), app.orologio.adesso()));
    EXPECT_EQ(file("Risultati.txt"), "");
    altra.ctlToolbar.premi("keyRelazione");
    EXPECT_EQ(relazioni, 1);
}

TEST_F(ProveVerifiche, TheSpreadsheetGetsTheFiguresOfTheProjectAsItStands) {
    ServiziRisultati conFoglio = servizi();
    std::vector<std::string> scambi;
    conFoglio.foglio = [&](const std::string& percorso) { scambi.push_back(contenuto(percorso)); };
    frmCapacitaCodeRitardi altra(contorno(), conFoglio);
    apri(altra, "keyCodeRitardi_Out");
    altra.cmdCalcola.premi();
    altra.Cmd_EXCEL.premi();
    // The data change while the table is shown: what is exported is calculated first, and shown.
    ramo(2).LarghezzaIngresso(ramo(2).LarghezzaIngresso() + 1.0F);
    const std::string prima = altra.ctlGrid.testo(3, 2);
    altra.Cmd_EXCEL.premi();
    ASSERT_EQ(scambi.size(), 2U);
    EXPECT_NE(altra.ctlGrid.testo(3, 2), prima);
    EXPECT_FALSE(altra.lblVecchi.visibile());
    EXPECT_EQ(scambi[1], testoScambio(altra.ctlGrid.tabella(), r(), app.orologio.adesso()));
    EXPECT_NE(scambi[1], scambi[0]);
    // Data that no calculation comes through with: nothing is exported, the reason is shown.
    ramo(2).RaggioIngresso(0.0F);
    altra.ctlToolbar.premi("keyExcel");
    EXPECT_EQ(scambi.size(), 2U);
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_NE(messaggi.mostrati[0].testo.find("Divisione per zero"), std::string::npos);
    EXPECT_TRUE(altra.lblVecchi.visibile());
}

TEST_F(ProveVerifiche, AnExportWithoutResultsWritesTheFrameAlone) {
    r().NomeFile("Prova");
    ServiziRisultati conFoglio = servizi();
    std::string scambio;
    conFoglio.foglio = [&](const std::string& percorso) { scambio = contenuto(percorso); };
    // Widths: 13 + 2, 17 + 2, 17 + 2, 18 + 2, 11 + 2, 16 + 2, 6 + 2.
    const std::string vuote = "\t" + std::string(19, ' ') + "\t" + std::string(19, ' ') + "\t" + std::string(20, ' ') +
                              "\t" + std::string(13, ' ') + "\t" + std::string(18, ' ') + "\t" + std::string(8, ' ') +
                              "\t\r\n";
    std::string atteso =
        "Risultati: Verifiche prestazionali\r\n\r\n"
        "               \t  Flusso [veic/min]\t  Capacità [veic/h]\t  Coeff. saturazione\t  Coda [veic]\t  Ritardo "
        "[s/veic]\t  L.O.S.\t\r\n";
    for (const char* intervallo : {"08:00 - 08:15", "08:15 - 08:30", "08:30 - 08:45", "08:45 - 09:00"}) {
        atteso += std::string("\r\n  ") + intervallo + vuote;
        for (const char* nome : {"Ramo A", "Ramo B", "Ramo C"}) {
            atteso += std::string("         ") + nome + vuote;
        }
    }
    atteso += "Output creato con Kelvo V1.0.0 il " + testoData(app.orologio.adesso()) + "\r\nNome Progetto: Prova\r\n";
    frmCapacitaCodeRitardi altra(contorno(), conFoglio);
    apri(altra, "keyCodeRitardi_Out");
    altra.cmdCalcola.premi();
    EXPECT_NE(altra.ctlGrid.testo(2, 1), "");
    // The table still shows the figures of the study that it was before.
    r().TipoAnalisi(0);
    altra.Cmd_EXCEL.premi();
    EXPECT_EQ(scambio.find("0,00"), std::string::npos);
    EXPECT_EQ(scambio, atteso);
    scambio.clear();
    altra.ctlToolbar.premi("keyCalcola");
    altra.Cmd_EXCEL.premi();
    EXPECT_EQ(scambio.find("0,00"), std::string::npos);
    EXPECT_EQ(scambio, atteso);
    EXPECT_TRUE(messaggi.mostrati.empty());
}

TEST_F(ProveVerifiche, ASpreadsheetFileThatCannotBeWrittenIsTracedAndToldInTheStatusBar) {
    ServiziRisultati conFoglio = servizi();
    conFoglio.foglio = [this](const std::string& percorso) { fogli.push_back(percorso); };
    frmCapacitaCodeRitardi altra(contorno(), conFoglio);
    apri(altra, "keyCodeRitardi_Out");
    altra.cmdCalcola.premi();
    std::filesystem::create_directories(app.theAmbiente.PercorsoProgramma("XLS\\Risultati.txt"));
    app.configurazione.TraceAbilitato = true;
    app.configurazione.PathErrore = "log.txt";
    scriviContenuto(cartella.file("log.txt"), "");
    altra.ctlToolbar.premi("keyExcel");
    EXPECT_TRUE(fogli.empty());
    EXPECT_NE(contenuto(cartella.file("log.txt")).find(" - Esporta dati XLS: 75 : Impossibile scrivere"),
              std::string::npos);
    EXPECT_EQ(cornice.avvisato.rfind("Impossibile scrivere", 0), 0U);
    EXPECT_TRUE(messaggi.mostrati.empty());
}

TEST_F(ProveVerifiche, WritesItsTextToTheByteForThreeFourAndSevenLegs) {
    for (const char* nome :
         {"Rotatoria_Via_dei_Mulini", "Rotatoria_Tangenziale_est", "Rotatoria_Aurelia_Sette_Strade"}) {
        esempio(nome);
        apriVerifiche();
        calcola();
        finestra.ctlToolbar.premi("keyAnteprima");
        EXPECT_EQ(file("Risultati.txt"), atteso("cli/attesi/" + std::string{nome} + ".calcola.txt"));
    }
}

TEST_F(ProveVerifiche, APreviewWithoutFiguresWritesTheEmptyTable) {
    apriVerifiche();
    finestra.ctlToolbar.premi("keyAnteprima");
    const std::string testo = file("Risultati.txt");
    EXPECT_NE(testo.find("Flusso [veic/min]"), std::string::npos);
    EXPECT_NE(testo.find("Ramo C"), std::string::npos);
    EXPECT_EQ(testo.find(','), std::string::npos);
}

TEST_F(ProveVerifiche, WithoutAnEditorTheTextOpensInAWindowOfOurs) {
    AppuntiFinti appunti;
    app.appunti = &appunti;
    {
        frmCapacitaCodeRitardi altra(contorno(), servizi());
        apri(altra, "keyCodeRitardi_Out");
        documenti.riesce = false;
        altra.ctlToolbar.premi("keyAnteprima");
        EXPECT_EQ(collegate.passi, (std::vector<std::string>{"sovrapponi frmAnteprimaTesto"}));
        gestione.chiudiCorrente();
    }
    EXPECT_EQ(collegate.passi.back(), "dimentica frmAnteprimaTesto");
}

TEST_F(ProveVerifiche, APreviewThatCannotBeWrittenIsTracedUnderItsLabel) {
    apriVerifiche();
    std::filesystem::create_directory(app.theAmbiente.CartellaLavoro() + "Risultati.txt");
    app.configurazione.TraceAbilitato = true;
    app.configurazione.PathErrore = "log.txt";
    scriviContenuto(cartella.file("log.txt"), "");
    finestra.ctlToolbar.premi("keyAnteprima");
    EXPECT_NE(contenuto(cartella.file("log.txt")).find(" - frmCapacitaCodeRitardi:Anteprima 75 : Impossibile scrivere"),
              std::string::npos);
    EXPECT_EQ(cornice.avvisato.rfind("Impossibile scrivere", 0), 0U);
    EXPECT_TRUE(documenti.aperti.empty());
    EXPECT_TRUE(messaggi.mostrati.empty());
}

TEST(AnteprimaTestoFinestra, ShowsTextAndPathAndCopies) {
    ScenaFinestre scena;
    AppuntiFinti appunti;
    scena.app.appunti = &appunti;
    frmAnteprimaTesto visore(scena.contorno());
    visore.mostra("cartella/Risultati.txt", "uno\r\ndue\r\n");
    EXPECT_EQ(visore.txtTesto.testo(), "uno\ndue\n");
    EXPECT_EQ(visore.lblPercorso.testo(), "cartella/Risultati.txt");
    EXPECT_EQ(visore.sottotitolo.testo(), "Risultati.txt");
    visore.cmdCopia.premi();
    EXPECT_EQ(appunti.contenuto, "uno\ndue\n");
    int chiusure = 0;
    visore.allaChiusura = [&] { ++chiusure; };
    visore.cmdChiudi.premi();
    EXPECT_EQ(chiusure, 1);
    scena.app.appunti = nullptr;
    frmAnteprimaTesto senza(scena.contorno());
    EXPECT_FALSE(senza.cmdCopia.abilitato());
}

}  // namespace
}  // namespace kelvo::prove
