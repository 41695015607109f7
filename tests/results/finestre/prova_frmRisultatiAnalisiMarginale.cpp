#include "results/frmRisultatiAnalisiMarginale.h"

#include <filesystem>

#include "base/numeri.h"
#include "comune/guasti.h"
#include "results/graficiSensibilita.h"
#include "results/relazioneSensibilita.h"
#include "scenaRisultati.h"

namespace kelvo::prove {
namespace {

constexpr int larghezza = 0;
constexpr int angolo = 3;
constexpr int diametro = 5;
constexpr int riepilogo = 6;
constexpr int capacita = 0;
constexpr int coda = 1;
constexpr int ritardo = 2;

struct ProveSensibilita : ScenaRisultati {
    frmRisultatiAnalisiMarginale finestra{contorno(), servizi()};
    ProveSensibilita() {
        for (std::int16_t i = 1; i <= 3; ++i) {
            ramo(i).LarghezzaIngresso(4.5F);
            ramo(i).SemiLarghezza(3.5F);
            ramo(i).LunghezzaSvasatura(20.0F);
            ramo(i).AngoloConflitto(30.0F);
            ramo(i).RaggioIngresso(20.0F);
            ramo(i).DiametroInscritto(40.0F);
        }
        AnalisiMarginale& m = ramo(2).theAnalisiMarginale();
        m.UsaLarghezzaIngresso(true);
        m.UsaAngoloConflitto(true);
    }
    void apriRamo(int i) { apri(finestra, "keyOttimizzazioneGeometrica" + std::to_string(i)); }
    void calcola(int variabile = capacita) {
        finestra.opzVARIABILE.clicca(variabile);
        finestra.ctlToolbar.premi("keyCalcola");
    }
    const std::string& testo(int scheda, int r, int c) {
        return finestra.griglie.at(static_cast<std::size_t>(scheda)).testo(r, c);
    }
    const Grafico::Contenuto& grafico() { return finestra.RMChartX1.contenuto(); }
    std::string fileMarginale() { return app.theAmbiente.CartellaLavoro() + "RisultatiMarginale.txt"; }
};

TEST_F(ProveSensibilita, HasItsTabsOptionsAndKeys) {
    EXPECT_EQ(finestra.didascalia(), "Risultati: Ottimizzazione Geometrica");
    const char* titoli[] = {"Larghezza ingresso",
                            "Semilarghezza accesso",
                            "Lunghezza svasatura",
                            "Angolo di conflitto",
                            "Raggio curvatura ingresso",
                            "Diametro inscritto",
                            "Riepilogo"};
    ASSERT_EQ(finestra.ctlTab.schede().size(), 7U);
    for (int i = 0; i < 7; ++i) {
        EXPECT_EQ(finestra.ctlTab.scheda(i).titolo, titoli[i]);
    }
    EXPECT_EQ(finestra.frVARIABILE.titolo(), "Variabile prestazionale");
    const char* opzioni[][2] = {
        {"OptCAPACITA", "CAPACITA'"}, {"OptCODA", "LUNGHEZZA CODA "}, {"OptRITARDO", "RITARDO"}};
    ASSERT_EQ(finestra.opzVARIABILE.opzioni().size(), 3U);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(finestra.opzVARIABILE.opzione(i).nome, opzioni[i][0]);
        EXPECT_EQ(finestra.opzVARIABILE.opzione(i).testo, opzioni[i][1]);
    }
    EXPECT_EQ(finestra.opzVARIABILE.scelta(), -1);
    std::string chiavi;
    for (const auto& tasto : finestra.ctlToolbar.tasti()) {
        chiavi += tasto.chiave + " ";
    }
    EXPECT_EQ(chiavi, "keyCalcola keyAnteprima keyRelazione ");
    EXPECT_EQ(finestra.Command1.nome(), "Command1");
    EXPECT_EQ(finestra.RMChartX1.nome(), "RMChartX1");
    EXPECT_EQ(finestra.ctlChartLA.nome(), "ctlChartLA");
}

TEST_F(ProveSensibilita, OpensWithStepsAndMeasuresAndTheChosenTabsAlone) {
    apriRamo(2);
    EXPECT_EQ(finestra.indiceRamo(), 2);
    EXPECT_EQ(finestra.sottotitolo.testo(), "Ramo B");
    EXPECT_EQ(app.theRamoCorrente, &ramo(2));
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(finestra.ctlTab.scheda(i).abilitata, i == larghezza || i == angolo) << i;
    }
    EXPECT_TRUE(finestra.ctlTab.scheda(riepilogo).abilitata);
    EXPECT_EQ(finestra.ctlTab.corrente(), larghezza);
    EXPECT_EQ(testo(larghezza, 0, 1), "-0,15");
    EXPECT_EQ(testo(larghezza, 1, 1), "4,35");
    EXPECT_EQ(testo(larghezza, 1, 4), "4,50");
    EXPECT_EQ(testo(angolo, 1, 7), "45,00");
    EXPECT_EQ(testo(larghezza, 2, 4), "");
    EXPECT_TRUE(finestra.cmdCalcola.visibile());
    EXPECT_TRUE(finestra.griglie[larghezza].visibile());
    EXPECT_FALSE(finestra.griglie[angolo].visibile());
    EXPECT_EQ(finestra.griglie[larghezza].righeVisibili, 8);
    EXPECT_EQ(grafico().titolo, "SELEZIONARE UNA VARIABILE");
    EXPECT_EQ(grafico().serie.at(0).valori, (std::vector<double>{40, 20, 70, 10, 60}));
    EXPECT_EQ(r().timbro().forma, FormaCalcolo::nessuna) << "opening calculates nothing";
}

TEST_F(ProveSensibilita, ANodeWithoutALegIsAFault) {
    for (const char* chiave : {"keyOttimizzazioneGeometrica", "keyOttimizzazioneGeometrica4", ""}) {
        navigazione.corrente = chiave;
        EXPECT_EQ(numeroGuasto([&] { finestra.attivata(); }), 9) << chiave;
    }
}

TEST_F(ProveSensibilita, WithoutAVariableNothingIsCalculated) {
    apriRamo(2);
    finestra.ctlToolbar.premi("keyCalcola");
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(messaggi.mostrati[0].testo, "Attenzione! Selezionare una variabile");
    EXPECT_EQ(messaggi.mostrati[0].titolo, "Kelvo 2014");
    EXPECT_EQ(messaggi.mostrati[0].icona, Icona::critica);
    EXPECT_EQ(finestra.fuoco(), &finestra.opzVARIABILE);
    finestra.Command1.premi();
    EXPECT_EQ(messaggi.mostrati.size(), 2U);
    finestra.cmdCalcola.premi();
    EXPECT_EQ(messaggi.mostrati.size(), 3U);
    EXPECT_EQ(testo(larghezza, 2, 4), "");
    EXPECT_EQ(r().timbro().forma, FormaCalcolo::nessuna);
    EXPECT_TRUE(finestra.cmdCalcola.visibile());
}

TEST_F(ProveSensibilita, CalculatesTheEnabledTabsAndDrawsTheOneInView) {
    apriRamo(2);
    calcola();
    EXPECT_TRUE(messaggi.mostrati.empty());
    EXPECT_EQ(r().timbro().forma, FormaCalcolo::ipotesi);
    // The reference is what the project's own calculation gives at the segment of the largest flow.
    modCalcolo motore(app);
    motore.Calcola_Tempo_Flusso("0");
    Iterazione punta{};
    for (std::int16_t k = 1; k <= ramo(2).theDatiTraffico().NumSegmentiTempo(); ++k) {
        const Iterazione record = ramo(2).theDatiTraffico().GetIterazione(k);
        punta = record.Flusso > punta.Flusso ? record : punta;
    }
    ASSERT_GT(punta.Capacita, 0.0F);
    for (const int scheda : {larghezza, angolo}) {
        EXPECT_EQ(testo(scheda, 2, 4), formatta(punta.Capacita, "#0.00"));
        EXPECT_EQ(testo(scheda, 3, 4), "0,00%");
        EXPECT_EQ(testo(scheda, 4, 4), formatta(punta.Coda, "#0.0"));
        EXPECT_EQ(testo(scheda, 6, 4), formatta(punta.Ritardo, "#0.0"));
    }
    EXPECT_EQ(testo(diametro, 2, 4), "") << "its flag is off";
    EXPECT_GT(leggiNumero(testo(larghezza, 2, 7)).value(), leggiNumero(testo(larghezza, 2, 1)).value());
    EXPECT_LT(leggiNumero(testo(angolo, 2, 7)).value(), leggiNumero(testo(angolo, 2, 1)).value());
    EXPECT_EQ(grafico().titolo, "Relazione tra Larghezza Ingresso e Capacità");
    EXPECT_EQ(grafico().serie.at(0).ascisse.size(), 7U);
    EXPECT_FALSE(finestra.cmdCalcola.visibile());
    EXPECT_FALSE(finestra.lblVecchi.visibile());
}

TEST_F(ProveSensibilita, AnotherOptionOrTabRedrawsFromTheTableWithoutACalculation) {
    apriRamo(2);
    calcola();
    ramo(2).LarghezzaIngresso(9.0F);  // would change every figure
    finestra.opzVARIABILE.clicca(ritardo);
    EXPECT_EQ(grafico().titolo, "Relazione tra Larghezza Ingresso e Ritardo");
    EXPECT_EQ(grafico().y.titolo, "Ritardo [s/veic]");
    EXPECT_EQ(grafico().serie.at(0).testi.at(3), testo(larghezza, 6, 4));
    finestra.ctlTab.scegli(angolo);
    EXPECT_EQ(grafico().titolo, "Relazione tra Angolo di Conflitto e Ritardo");
    EXPECT_EQ(grafico().x.titolo, "Angolo di Conflitto [°]");
    EXPECT_TRUE(finestra.griglie[angolo].visibile());
    EXPECT_FALSE(finestra.griglie[larghezza].visibile());
    EXPECT_EQ(testo(larghezza, 1, 4), "4,50");
}

TEST_F(ProveSensibilita, Command1CalculatesTheTabInViewOnly) {
    apriRamo(2);
    finestra.opzVARIABILE.clicca(coda);
    finestra.ctlTab.scegli(angolo);
    finestra.Command1.premi();
    EXPECT_NE(testo(angolo, 2, 1), "");
    EXPECT_EQ(testo(larghezza, 2, 1), "");
    EXPECT_EQ(grafico().titolo, "Relazione tra Angolo di Conflitto e Coda");
    EXPECT_FALSE(finestra.cmdCalcola.visibile());
    finestra.ctlTab.scegli(larghezza);
    EXPECT_TRUE(finestra.cmdCalcola.visibile()) << "this table is still empty";
}

TEST_F(ProveSensibilita, EachTabTellsWhetherItsOwnFiguresAreOld) {
    const std::string vecchi =
        "I dati sono cambiati dopo il calcolo: le cifre non sono più quelle del progetto. Premere Calcola (F9).";
    apriRamo(2);
    calcola();
    ramo(1).LarghezzaIngresso(9.0F);  // another leg: measures and steps of this one stay
    apriRamo(2);
    EXPECT_NE(testo(larghezza, 2, 1), "");
    EXPECT_EQ(finestra.lblVecchi.testo(), vecchi);
    finestra.Command1.premi();
    EXPECT_FALSE(finestra.lblVecchi.visibile());
    finestra.ctlTab.scegli(angolo);
    EXPECT_EQ(finestra.lblVecchi.testo(), vecchi);
    finestra.ctlTab.scegli(riepilogo);
    EXPECT_EQ(finestra.lblVecchi.testo(), vecchi);
    finestra.ctlToolbar.premi("keyCalcola");
    EXPECT_FALSE(finestra.lblVecchi.visibile());
    app.configurazione.VEAutovetture = 7.0F;
    finestra.aggiornaNote();
    EXPECT_EQ(finestra.lblVecchi.testo(), vecchi);
}

TEST_F(ProveSensibilita, APlainCalculationElsewhereDoesNotMakeItsFiguresOld) {
    apriRamo(2);
    calcola();
    modCalcolo(app).Calcola_Tempo_Flusso("0");
    apriRamo(2);
    EXPECT_FALSE(finestra.lblVecchi.visibile());
    EXPECT_NE(testo(larghezza, 2, 1), "");
}

TEST_F(ProveSensibilita, AnotherLegAnotherMeasureOrAnotherStepEmptiesTheTables) {
    apriRamo(2);
    calcola();
    apriRamo(2);
    EXPECT_NE(testo(larghezza, 2, 1), "") << "nothing changed";
    ramo(2).theAnalisiMarginale().LarghezzaIngresso(0.2);
    apriRamo(2);
    EXPECT_EQ(testo(larghezza, 1, 5), "4,70");
    EXPECT_EQ(testo(larghezza, 2, 1), "");
    EXPECT_TRUE(finestra.cmdCalcola.visibile());
    calcola();
    ramo(2).AngoloConflitto(25.0F);
    apriRamo(2);
    EXPECT_EQ(testo(angolo, 1, 4), "25,00");
    EXPECT_EQ(testo(larghezza, 2, 1), "");
    calcola();
    ramo(2).theAnalisiMarginale().UsaDiametroInscritto(true);
    apriRamo(2);
    EXPECT_TRUE(finestra.ctlTab.scheda(diametro).abilitata);
    EXPECT_EQ(testo(larghezza, 2, 1), "");
    calcola();
    ramo(1).theAnalisiMarginale().UsaDiametroInscritto(true);
    apriRamo(1);
    EXPECT_EQ(finestra.sottotitolo.testo(), "Ramo A");
    EXPECT_EQ(finestra.ctlTab.corrente(), diametro) << "the only one that is open";
    EXPECT_EQ(testo(diametro, 2, 1), "");
    EXPECT_EQ(finestra.variabile(), Prestazione::capacita) << "the figure stays chosen";
}

TEST_F(ProveSensibilita, AStepBelowItsLowerLimitIsMarkedAndLeftOutOfTheChart) {
    ramo(2).LarghezzaIngresso(3.2F);
    ramo(2).SemiLarghezza(3.0F);
    apriRamo(2);
    calcola();
    for (const int r : {2, 4, 6}) {
        EXPECT_EQ(testo(larghezza, r, 1), "0");
        EXPECT_EQ(finestra.griglie[larghezza].tabella().cella(r, 1).sfondo, (Colore{190, 100, 100}));
    }
    EXPECT_EQ(grafico().serie.at(0).ascisse, (std::vector<double>{3.1, 3.15, 3.2, 3.25, 3.3, 3.35}));
}

TEST_F(ProveSensibilita, WithoutDemandOverTimeThereIsTheCapacityAloneAndANoteSaysSo) {
    r().TipoAnalisi(0);
    apriRamo(2);
    calcola();
    EXPECT_NE(testo(larghezza, 2, 4), "");
    EXPECT_EQ(testo(larghezza, 4, 4), "");
    EXPECT_FALSE(finestra.lblVecchi.visibile());
    EXPECT_EQ(finestra.lblFlussi.testo(),
              "Analisi di sola saturazione: ogni passo ha la capacità, senza code e ritardi (Opzioni).");
    finestra.opzVARIABILE.clicca(coda);
    EXPECT_EQ(grafico().nota, "Coda: nessun valore nell'analisi della sola saturazione");
}

TEST_F(ProveSensibilita, AProjectThatCannotBeCalculatedIsToldAndShowsNoFigures) {
    apriRamo(2);
    calcola();
    DatiTraffico& traffico = ramo(1).theDatiTraffico();
    traffico.Tempo2(traffico.Tempo1());
    finestra.ctlToolbar.premi("keyCalcola");
    EXPECT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(testo(larghezza, 2, 4), "");
    EXPECT_FALSE(finestra.conFigure());
    EXPECT_TRUE(finestra.cmdCalcola.visibile());
}

TEST_F(ProveSensibilita, AfterAGoodRunOfNoFlowsNothingSaysThatThereWasNone) {
    DatiTraffico& traffico = ramo(2).theDatiTraffico();
    traffico.Tempo1(oraDelGiorno(10, 0));  // behind the hour that is modelled
    traffico.Tempo2(oraDelGiorno(10, 30));
    traffico.Tempo3(oraDelGiorno(11, 0));
    apriRamo(2);
    calcola();
    EXPECT_TRUE(messaggi.mostrati.empty());
    EXPECT_NE(testo(larghezza, 2, 4), "");
    EXPECT_FALSE(finestra.lblFlussi.visibile()) << finestra.lblFlussi.testo();
    for (std::int16_t i = 1; i <= 3; ++i) {
        for (std::int16_t j = 1; j <= 3; ++j) {
            r().MatriceSvolte(0.0F, i, j);
        }
    }
    calcola();
    EXPECT_EQ(finestra.lblFlussi.testo(), "La matrice delle svolte è vuota: nessun flusso circola nell'anello.");
}

TEST_F(ProveSensibilita, WithoutAMeasureToMoveItSaysWhatToDo) {
    apriRamo(3);
    EXPECT_EQ(finestra.ctlTab.corrente(), riepilogo);
    EXPECT_EQ(finestra.lblVecchi.testo(),
              "Nessuna grandezza da variare: spuntarne almeno una in Opzioni Analisi Marginale.");
    EXPECT_FALSE(finestra.ctlToolbar.abilitato("keyCalcola"));
    EXPECT_FALSE(finestra.cmdCalcola.visibile());
    EXPECT_FALSE(finestra.Command1.abilitato());
    apriRamo(2);
    EXPECT_TRUE(finestra.ctlToolbar.abilitato("keyCalcola"));
    EXPECT_FALSE(finestra.lblVecchi.visibile());
}

TEST_F(ProveSensibilita, WritesTheTableInViewAsTheCommandLineDoesToTheByte) {
    esempio("Rotatoria_Tangenziale_est");
    ramo(3).theAnalisiMarginale().UsaLarghezzaIngresso(true);
    ramo(3).theAnalisiMarginale().UsaAngoloConflitto(true);
    apriRamo(3);
    calcola(ritardo);
    finestra.ctlToolbar.premi("keyAnteprima");
    EXPECT_EQ(file("RisultatiMarginale.txt"), atteso("cli/attesi/Rotatoria_Tangenziale_est.sensibilita.txt"));
    ASSERT_EQ(documenti.aperti.size(), 1U);
    EXPECT_EQ(documenti.aperti[0], fileMarginale());
    finestra.ctlTab.scegli(angolo);
    finestra.ctlToolbar.premi("keyAnteprima");
    EXPECT_EQ(
        file("RisultatiMarginale.txt").rfind("Risultati: Ottimizzazione Geometrica *** Angolo di conflitto\r\n\r\n", 0),
        0U);
}

TEST_F(ProveSensibilita, WithoutResultsNothingIsWritten) {
    apriRamo(2);
    finestra.ctlToolbar.premi("keyAnteprima");
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(messaggi.mostrati[0].testo, "Attenzione! Nessun risultato da esportare.");
    EXPECT_EQ(messaggi.mostrati[0].titolo, "Kelvo 2014");
    EXPECT_EQ(messaggi.mostrati[0].icona, Icona::critica);
    EXPECT_FALSE(std::filesystem::exists(fileMarginale()));
    EXPECT_TRUE(documenti.aperti.empty());
}

TEST_F(ProveSensibilita, AFileThatCannotBeWrittenIsTracedUnderTheNameOfAnotherWindow) {
    app.configurazione.TraceAbilitato = true;
    app.configurazione.PathErrore = "log.txt";
    scriviContenuto(cartella.file("log.txt"), "");
    apriRamo(2);
    calcola();
    std::filesystem::create_directory(fileMarginale());
    finestra.ctlToolbar.premi("keyAnteprima");
    EXPECT_TRUE(messaggi.mostrati.empty());
    EXPECT_NE(contenuto(cartella.file("log.txt")).find(" - frmCapacitaCodeRitardi:Anteprima 75 : "), std::string::npos);
}

TEST_F(ProveSensibilita, TheReportIsMadeOfTheTabInViewAndTheChosenFigure) {
    std::vector<RelazioneGrafica> fatte;
    ServiziRisultati conRelazione = servizi();
    conRelazione.relazioneGrafica = [&fatte](const RelazioneGrafica& r) { fatte.push_back(r); };
    frmRisultatiAnalisiMarginale altra{contorno(), conRelazione};
    r().NomeFile("Prova");
    apri(altra, "keyOttimizzazioneGeometrica2");
    altra.ctlToolbar.premi("keyRelazione");
    EXPECT_EQ(messaggi.mostrati.back().testo, "Attenzione! Selezionare una variabile");
    altra.opzVARIABILE.clicca(coda);
    altra.ctlToolbar.premi("keyRelazione");
    EXPECT_EQ(messaggi.mostrati.back().testo, "Attenzione! Nessun risultato da esportare.");
    EXPECT_TRUE(fatte.empty());
    altra.ctlToolbar.premi("keyCalcola");
    altra.ctlTab.scegli(angolo);
    altra.ctlToolbar.premi("keyRelazione");
    ASSERT_EQ(fatte.size(), 1U);
    const RelazioneGrafica& fatta = fatte[0];
    EXPECT_EQ(fatta.modello, "\\Modelli\\Grafico_AM.dot");
    EXPECT_EQ(fatta.prefisso, "Ottimizzazione_geometrica_");
    EXPECT_EQ(fatta.titolo, "OTTIMIZZAZIONE GEOMETRICA");
    EXPECT_EQ(fatta.sottotitolo, "Analisi risultati");
    EXPECT_EQ(fatta.righe,
              (std::vector<std::string>{"Denominazione ramo:  Ramo B", "Variabile prestazionale:  Lunghezza coda",
                                        "Grandezza geometrica: Angolo di conflitto"}));
    ASSERT_TRUE(fatta.tabella);
    EXPECT_EQ(fatta.tabella->testo(2, 4), altra.griglie[angolo].testo(2, 4));
    EXPECT_EQ(fatta.didascaliaTabella, "Passi di: Angolo di conflitto");
    ASSERT_EQ(fatta.figure.size(), 1U);
    EXPECT_EQ(fatta.figure[0].grafico.titolo, "Relazione tra Angolo di Conflitto e Coda");
    EXPECT_EQ(fatta.figure[0].didascalia, "Relazione tra Angolo di Conflitto e Coda");
    // Of a demand that changed since, the tab in view is calculated anew.
    const std::string prima = fatta.tabella->testo(2, 4);
    ramo(1).theDatiTraffico().FlussoTempo2(ramo(1).theDatiTraffico().FlussoTempo2() + 5.0F);
    altra.ctlToolbar.premi("keyRelazione");
    ASSERT_EQ(fatte.size(), 2U);
    EXPECT_NE(fatte[1].tabella->testo(2, 4), prima);
    EXPECT_EQ(fatte[1].tabella->testo(2, 4), altra.griglie[angolo].testo(2, 4));
    gestione.chiudiCorrente();
}

TEST_F(ProveSensibilita, EveryFigureAndMeasureHasItsLineInTheReport) {
    const char* variabili[] = {"Capacità", "Lunghezza coda", "Ritardo"};
    const char* grandezze[] = {"Larghezza ingresso",  "Semi Larghezza Accesso",    "Larghezza Svasatura",
                               "Angolo di conflitto", "Raggio curvatura ingresso", "Diametro inscritto"};
    for (std::size_t v = 0; v < 3; ++v) {
        for (std::size_t g = 0; g < 6; ++g) {
            const RelazioneGrafica fatta = relazioneSensibilita(TabellaSensibilita{g}, prestazioni.at(v), ramo(1));
            EXPECT_EQ(fatta.righe.at(1), "Variabile prestazionale:  " + std::string{variabili[v]});
            EXPECT_EQ(fatta.righe.at(2), "Grandezza geometrica: " + std::string{grandezze[g]});
        }
    }
}

TEST_F(ProveSensibilita, TheSummaryShowsTheTornadoOfTheChosenFigure) {
    apriRamo(2);
    finestra.ctlTab.scegli(riepilogo);
    EXPECT_EQ(grafico().titolo, "SELEZIONARE UNA VARIABILE");
    EXPECT_TRUE(finestra.RMChartX1.vuoto());
    EXPECT_EQ(grafico().invito, "Selezionare una variabile prestazionale");
    for (const char* chiave : {"keyAnteprima", "keyRelazione"}) {
        EXPECT_FALSE(finestra.ctlToolbar.abilitato(chiave)) << chiave;
        EXPECT_NE(finestra.ctlToolbar.spiegazione(chiave).find("Scegliere la scheda di una grandezza"),
                  std::string::npos)
            << chiave;
    }
    EXPECT_FALSE(finestra.Command1.abilitato());
    calcola(capacita);
    EXPECT_EQ(grafico().titolo, "Capacità: variazione per un passo di ogni grandezza");
    ASSERT_EQ(grafico().serie.size(), 2U);
    EXPECT_EQ(grafico().serie[0].forma, Grafico::Forma::tornado);
    EXPECT_EQ(grafico().x.etichette.size(), 2U);
    EXPECT_EQ(grafico().nota, "Mostrate le grandezze spuntate in Opzioni Analisi Marginale");
    finestra.opzVARIABILE.clicca(ritardo);
    EXPECT_EQ(grafico().titolo, "Ritardo: variazione per un passo di ogni grandezza");
    finestra.ctlTab.scegli(larghezza);
    EXPECT_TRUE(finestra.ctlToolbar.abilitato("keyAnteprima"));
    EXPECT_TRUE(finestra.ctlToolbar.abilitato("keyRelazione"));
    EXPECT_TRUE(finestra.Command1.abilitato());
}

TEST_F(ProveSensibilita, WithAllSixMeasuresTheTornadoHasNoNote) {
    AnalisiMarginale& m = ramo(2).theAnalisiMarginale();
    m.UsaSemiLarghezza(true);
    m.UsaLunghezzaSvasatura(true);
    m.UsaRaggioCurvatura(true);
    m.UsaDiametroInscritto(true);
    apriRamo(2);
    calcola();
    finestra.ctlTab.scegli(riepilogo);
    EXPECT_EQ(grafico().x.etichette.size(), 6U);
    EXPECT_EQ(grafico().nota, "");
}

TEST_F(ProveSensibilita, TheProjectIsNeverWritten) {
    apriRamo(2);
    const auto revisione = r().revisione().tutto;
    calcola();
    finestra.Command1.premi();
    finestra.ctlTab.scegli(riepilogo);
    finestra.txtGrandezza.scegli(5);
    finestra.txtSaturazione.scrivi("0,10");
    finestra.cmdQuantoServe.premi();
    EXPECT_TRUE(finestra.risposta());
    EXPECT_EQ(r().revisione().tutto, revisione);
    EXPECT_FALSE(finestra.haSaveData());
}

}  // namespace
}  // namespace kelvo::prove
