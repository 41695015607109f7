#include "results/frmConfronti.h"

#include <algorithm>
#include <chrono>

#include "comune/immagini.h"
#include "scenaConfronti.h"

namespace kelvo::prove {
namespace {

TEST_F(ProveConfronti, OpeningCalculatesAndDrawsTheFirstVariableAtTheFirstInstant) {
    apriConfronti();
    EXPECT_EQ(f->didascalia(), "Analizzatore");
    EXPECT_EQ(r().timbro().forma, FormaCalcolo::piana);
    EXPECT_EQ(f->txtTipoVariabile.scelta(), 0);
    EXPECT_EQ(f->txtTipoVariabile.voci().size(), 6U);
    EXPECT_EQ(f->listTEMPO.voci(), (std::vector<std::string>{"08:00", "08:15", "08:30", "08:45"}));
    EXPECT_EQ(f->Slider1.minimo(), 1);
    EXPECT_EQ(f->Slider1.massimo(), 4);
    controllaIstante(1, "08:00");
    EXPECT_EQ(titolo(), prefisso + "Flusso di traffico [veic/h]");
    EXPECT_EQ(f->txtdescrizioneGRAFICO.testo(), titolo());
    EXPECT_EQ(f->txtVARselezionata.testo(), "Flusso di traffico [veic/h]");
    EXPECT_EQ(valori(), attesi(1));
    EXPECT_GT(valori()[0], 0.0);
    EXPECT_TRUE(f->conFigure());
    EXPECT_FALSE(f->cmdCalcola.visibile());
    EXPECT_FALSE(f->lblVecchi.visibile());
    EXPECT_TRUE(messaggi.mostrati.empty());
}

TEST_F(ProveConfronti, CalculatesTheTableOfSegmentsWithTheOtherAnalysis) {
    r().TipoAnalisi(2);
    ramo(1).theDatiTraffico().FlussoSegmento(75.0F, 0, 0);
    apriConfronti();
    EXPECT_EQ(valori()[0], 300.0);  // 75 in a quarter
    EXPECT_EQ(valori()[1], 0.0);
}

TEST_F(ProveConfronti, AnAnalysisOfSaturationRunsNothingAndSaysSo) {
    r().TipoAnalisi(0);
    apriConfronti();
    EXPECT_EQ(r().timbro().forma, FormaCalcolo::nessuna);
    EXPECT_TRUE(f->lblVecchi.visibile());
    EXPECT_EQ(valori(), (std::vector<double>{0.0, 0.0, 0.0}));
    EXPECT_EQ(f->MassimoGrafico(), 0.0F);
}

TEST_F(ProveConfronti, AVariableIsDrawnAtTheInstantInView) {
    apriConfronti();
    f->Slider1.imposta(3);
    f->txtTipoVariabile.scegli(4);
    EXPECT_EQ(f->txtVARselezionata.testo(), "Ritardo [s/veic]");
    EXPECT_EQ(valori(), attesi(3, {variabileRitardo, UnitaFlussi::ora}));
    controllaIstante(3, "08:30");
    EXPECT_EQ(f->MassimoGrafico(),
              MassimoGrafico(variabileRitardo, Confronto(r()).massimo({variabileRitardo, UnitaFlussi::ora})));
    EXPECT_EQ(f->ctlChartConfronti.contenuto().y.massimo, static_cast<double>(f->MassimoGrafico()));
    EXPECT_EQ(f->ctlGrid.testo(1, 3), Confronto(r()).testo({variabileRitardo, UnitaFlussi::ora}, 1, 3));
}

TEST_F(ProveConfronti, TheAxisStandsStillWhileTheInstantMoves) {
    apriConfronti();
    const double cima = f->ctlChartConfronti.contenuto().y.massimo;
    EXPECT_GT(cima, 0.0);
    for (int s = 1; s <= 4; ++s) {
        f->Slider1.imposta(s);
        EXPECT_EQ(f->ctlChartConfronti.contenuto().y.massimo, cima);
    }
}

TEST_F(ProveConfronti, TheAxisStandsStillWhereItsTopIsZero) {
    apriConfronti();
    for (std::int16_t s = 1; s <= 4; ++s) {
        for (int i = 1; i <= 3; ++i) {
            Iterazione record = ramo(i).theDatiTraffico().GetIterazione(s);
            record.Coda = s == 2 ? 0.4F : 0.1F;
            ramo(i).theDatiTraffico().SetIterazione(s, record);
        }
    }
    riapri();
    f->txtTipoVariabile.scegli(variabileCoda);
    EXPECT_EQ(f->MassimoGrafico(), 0.0F);
    for (int s = 1; s <= 4; ++s) {
        f->Slider1.imposta(s);
        EXPECT_EQ(valori(), std::vector<double>(3, s == 2 ? 0.4 : 0.1));
        EXPECT_EQ(f->ctlChartConfronti.contenuto().y.minimo, 0.0);
        EXPECT_EQ(f->ctlChartConfronti.contenuto().y.massimo, 1.0);
    }
}

TEST_F(ProveConfronti, ChangingTheUnitKeepsThePlaceInTheListAndTheInstant) {
    apriConfronti();
    f->txtTipoVariabile.scegli(1);
    f->Slider1.imposta(2);
    EXPECT_EQ(f->lblUnita.testo(), "[veic/h]");
    EXPECT_EQ(f->opzUnita.opzione(0).nome, "Option1veich");
    EXPECT_EQ(f->opzUnita.opzione(0).testo, "[veic./h]");
    EXPECT_EQ(f->opzUnita.opzione(1).nome, "Option2veicmin");
    EXPECT_EQ(f->opzUnita.opzione(1).testo, "[veic./min]");
    const std::vector<double> allOra = valori();
    f->opzUnita.clicca(1);
    EXPECT_EQ(f->lblUnita.testo(), "[veic/min]");
    EXPECT_EQ(f->txtTipoVariabile.scelta(), 1);
    EXPECT_EQ(f->txtTipoVariabile.testo(), "Capacità [veic/min]");
    EXPECT_EQ(f->txtTipoVariabile.voci()[0], "Flusso di traffico [veic/min]");
    EXPECT_EQ(valori(), attesi(2, {1, UnitaFlussi::minuto}));
    EXPECT_NEAR(valori()[0], allOra[0] / 60.0, 0.01);
    controllaIstante(2, "08:15");
    f->opzUnita.clicca(0);
    EXPECT_EQ(f->txtTipoVariabile.testo(), "Capacità [veic/h]");
    EXPECT_EQ(valori(), allOra);
}

TEST_F(ProveConfronti, TheSliderMovesTheInstantAndTheTitleTellsIt) {
    apriConfronti();
    f->Slider1.imposta(3);
    controllaIstante(3, "08:30");
    EXPECT_EQ(valori(), attesi(3));
    EXPECT_EQ(titolo(), prefisso + "Flusso di traffico [veic/h] - 08:30");
    EXPECT_EQ(f->txtdescrizioneGRAFICO.testo(), titolo());
    calcola();
    EXPECT_EQ(titolo(), prefisso + "Flusso di traffico [veic/h]");
    controllaIstante(3, "08:30");
}

TEST_F(ProveConfronti, TheListAndTheTableMoveTheInstantToo) {
    apriConfronti();
    f->listTEMPO.scegli(1);
    controllaIstante(2, "08:15");
    EXPECT_EQ(valori(), attesi(2));
    ASSERT_TRUE(f->ctlGrid.corrente({2, 4}));
    controllaIstante(4, "08:45");
    EXPECT_EQ(f->ctlGrid.corrente().riga, 2);
    EXPECT_EQ(valori(), attesi(4));
}

TEST_F(ProveConfronti, LevelsOfServiceHaveTheirAxisAndBadgesInTheTable) {
    apriConfronti();
    f->txtTipoVariabile.scegli(5);
    EXPECT_EQ(f->ctlChartConfronti.contenuto().nota, "(*) L.O.S. (Level of service) - HCM Americano");
    EXPECT_EQ(f->ctlChartConfronti.contenuto().y.massimo, 30.0);
    const std::string livello = f->ctlGrid.testo(1, 1);
    EXPECT_EQ(f->ctlGrid.ornamento({1, 1}).distintivo, distintivoLivello(livello));
    EXPECT_EQ(f->ctlGrid.ornamento({0, 1}).distintivo, std::nullopt);
    f->txtTipoVariabile.scegli(0);
    EXPECT_EQ(f->ctlGrid.ornamento({1, 1}).distintivo, std::nullopt);
}

TEST_F(ProveConfronti, ThePlanFollowsTheInstant) {
    apriConfronti();
    EXPECT_EQ(f->ctlPianta.dati().rami.size(), 3U);
    int mosse = 0;
    f->ctlPianta.statiMutati().connect([&] { ++mosse; });
    for (int s = 2; s <= 3; ++s) {
        f->Slider1.imposta(s);
        const Confronto c(r());
        ASSERT_EQ(f->ctlPianta.stati().size(), 3U);
        for (int i = 1; i <= 3; ++i) {
            const pianta::StatoIngresso& suo = f->ctlPianta.stati()[static_cast<std::size_t>(i) - 1];
            EXPECT_EQ(suo.livello, c.testo({variabileLivello, UnitaFlussi::ora}, i, s));
            EXPECT_EQ(static_cast<float>(suo.coda), c.record(i, s).Coda);
        }
    }
    EXPECT_EQ(mosse, 2);
    EXPECT_EQ(f->ctlPianta.opzioni().stati, f->ctlPianta.stati());
    EXPECT_EQ(f->ctlPianta.descrizione().rfind("A: livello ", 0), 0U) << f->ctlPianta.descrizione();
}

TEST_F(ProveConfronti, AReturnKeepsVariableAndInstantAndSaysThatTheFiguresAreOld) {
    apriConfronti();
    f->txtTipoVariabile.scegli(3);
    f->Slider1.imposta(2);
    const std::vector<double> prima = valori();
    gestione.chiudiCorrente();
    ramo(1).theDatiTraffico().FlussoTempo2(20.0F);
    apriConfronti();
    EXPECT_EQ(f->txtTipoVariabile.scelta(), 3);
    controllaIstante(2, "08:15");
    EXPECT_EQ(valori(), prima);
    EXPECT_TRUE(f->lblVecchi.visibile());
    calcola();
    EXPECT_FALSE(f->lblVecchi.visibile());
    EXPECT_NE(valori(), prima);
}

TEST_F(ProveConfronti, AReturnShowsWhatTheLastCalculationLeft) {
    apriConfronti();
    gestione.chiudiCorrente();
    ramo(1).theDatiTraffico().FlussoTempo1(6.0F);
    modCalcolo(app).Calcola_Tempo_Flusso("0");
    apriConfronti();
    EXPECT_EQ(valori(), attesi(1));
    EXPECT_FALSE(f->lblVecchi.visibile());
}

TEST_F(ProveConfronti, TheUltimateCapacityMakesNoFigureOld) {
    apriConfronti();
    const std::vector<double> prima = valori();
    gestione.chiudiCorrente();
    modCalcolo(app).Calcola_Bilanciamento();
    ASSERT_EQ(r().timbro().forma, FormaCalcolo::bilanciamento);
    apriConfronti();
    EXPECT_EQ(valori(), prima);
    EXPECT_FALSE(f->lblVecchi.visibile()) << f->lblVecchi.testo();
    gestione.chiudiCorrente();
    ramo(1).theDatiTraffico().FlussoTempo2(20.0F);
    modCalcolo(app).Calcola_Bilanciamento();
    apriConfronti();
    EXPECT_EQ(f->lblVecchi.testo().rfind("I dati sono cambiati dopo il calcolo", 0), 0U) << f->lblVecchi.testo();
}

TEST_F(ProveConfronti, AFailureIsPastOnceAnotherWindowHasCalculated) {
    const auto nota = [this](const char* inizio) { return f->lblVecchi.testo().rfind(inizio, 0) == 0; };
    apriConfronti();
    ramo(1).RaggioIngresso(0.0F);
    calcola();
    EXPECT_TRUE(nota("Il calcolo non è riuscito")) << f->lblVecchi.testo();
    riapri();
    EXPECT_TRUE(nota("Il calcolo non è riuscito")) << "nothing has been calculated since";
    ramo(1).RaggioIngresso(20.0F);
    modCalcolo(app).Calcola_Tempo_Flusso("0");
    riapri();
    EXPECT_FALSE(f->lblVecchi.visibile()) << f->lblVecchi.testo();
    ramo(1).theDatiTraffico().FlussoTempo2(20.0F);
    riapri();
    EXPECT_TRUE(nota("I dati sono cambiati dopo il calcolo")) << f->lblVecchi.testo();
}

TEST_F(ProveConfronti, TheRecordsOfAnyEntryThatAreGoneAreCalculatedAgain) {
    apriConfronti();
    const std::vector<double> prima = valori();
    gestione.chiudiCorrente();
    ramo(2).theDatiTraffico().ScartaIterazioni();
    apriConfronti();
    EXPECT_EQ(ramo(2).theDatiTraffico().IterazioniScritte(), 4);
    EXPECT_EQ(valori(), prima);
    EXPECT_FALSE(f->lblVecchi.visibile());
}

TEST_F(ProveConfronti, RecordsThatAreGoneAreCalculatedAgainWithTheirInstants) {
    r().TipoAnalisi(2);
    apriConfronti();
    f->Slider1.imposta(4);
    gestione.chiudiCorrente();
    r().TempoFinale(oraDelGiorno(8, 45));
    for (int i = 1; i <= 3; ++i) {
        ramo(i).theDatiTraffico().NumSegmentiTempo(3);
        ramo(i).theDatiTraffico().FlussoSegmento(30.0F, 2, 0);
    }
    apriConfronti();
    EXPECT_EQ(f->listTEMPO.voci().size(), 3U);
    controllaIstante(3, "08:30");
    EXPECT_EQ(valori()[0], 120.0);  // 30 in a quarter
    EXPECT_FALSE(f->lblVecchi.visibile());
}

TEST_F(ProveConfronti, TellsWhyThereAreNoFlows) {
    for (int i = 1; i <= 3; ++i) {
        ramo(i).theDatiTraffico().FlussoTempo1(0.0F);
        ramo(i).theDatiTraffico().FlussoTempo2(0.0F);
        ramo(i).theDatiTraffico().FlussoTempo3(0.0F);
    }
    apriConfronti();
    EXPECT_TRUE(f->lblFlussi.visibile());
    EXPECT_EQ(f->MassimoGrafico(), 0.0F);
    EXPECT_EQ(f->ctlChartConfronti.contenuto().y.massimo, 1.0);
    for (const pianta::StatoIngresso& suo : f->ctlPianta.stati()) {
        EXPECT_EQ(suo.livello, "-");
        EXPECT_EQ(suo.coda, 0.0);
    }
}

TEST_F(ProveConfronti, FiguresOfOtherDataAreNotExplainedByTheDataAtHand) {
    for (int i = 1; i <= 3; ++i) {
        ramo(i).theDatiTraffico().FlussoTempo1(0.0F);
        ramo(i).theDatiTraffico().FlussoTempo2(0.0F);
        ramo(i).theDatiTraffico().FlussoTempo3(0.0F);
    }
    apriConfronti();
    EXPECT_TRUE(f->lblFlussi.visibile());
    ramo(1).theDatiTraffico().FlussoTempo2(20.0F);
    riapri();
    EXPECT_TRUE(f->lblVecchi.visibile());
    EXPECT_FALSE(f->lblFlussi.visibile()) << f->lblFlussi.testo();
}

TEST_F(ProveConfronti, AFieldHasItsHelpPageWithoutAPaneToo) {
    EXPECT_EQ(f->aiuto(), nullptr);
    EXPECT_EQ(f->txtTipoVariabile.paginaAiuto, "GrandezzaConfronto.htm");
    EXPECT_NE(f->txtTipoVariabile.suggerimento.find("fissato sul valore più grande"), std::string::npos);
}

TEST_F(ProveConfronti, WritesItsTextToTheByteForThreeFourAndSevenLegs) {
    struct Caso {
        const char* nome;
        int variabile;
        int unita;
    };
    for (const Caso& caso : {Caso{"Rotatoria_Via_dei_Mulini", 0, 0}, Caso{"Rotatoria_Tangenziale_est", 1, 1},
                             Caso{"Rotatoria_Aurelia_Sette_Strade", 5, 0}}) {
        f.reset();
        esempio(caso.nome);
        if (caso.variabile == 1) {
            ramo(2).Descrizione("Località Città Più Là");
        }
        f = std::make_unique<frmConfronti>(contorno(), servizi(), cronometro);
        gestione.ShowForm(f.get());
        f->opzUnita.clicca(caso.unita);
        f->txtTipoVariabile.scegli(caso.variabile);
        f->ctlToolbar.premi("keyAnteprima");
        EXPECT_EQ(file("Confronto.txt"), atteso("results/attesi/" + std::string{caso.nome} + ".confronto.txt"));
        gestione.chiudiCorrente();
    }
    EXPECT_EQ(documenti.aperti.size(), 3U);
}

TEST_F(ProveConfronti, ThePreviewWithoutFiguresIsTheEmptyTable) {
    f->ctlToolbar.premi("keyAnteprima");
    const std::string testo = file("Confronto.txt");
    EXPECT_NE(testo.find("Variabile prestazionale: Flusso di traffico [veic/h]"), std::string::npos);
    EXPECT_NE(testo.find("Ingresso"), std::string::npos);
    EXPECT_NE(testo.find("Output creato con Kelvo V"), std::string::npos);
}

TEST_F(ProveConfronti, TheReportIsOfTheChartInView) {
    apriConfronti();
    f->txtTipoVariabile.scegli(2);
    f->Slider1.imposta(3);
    const RelazioneGrafica relazione = f->perRelazione();
    EXPECT_EQ(relazione.righe, (std::vector<std::string>{"Variabile prestazionale: Coefficiente di Saturazione",
                                                         "Intervallo di tempo: 08:30"}));
    EXPECT_EQ(relazione.figure.at(0).grafico, f->ctlChartConfronti.contenuto());
}

TEST_F(ProveConfronti, TheReportCalculatesWhatIsOldAndEndsAPlayback) {
    std::vector<RelazioneGrafica> fatte;
    ServiziRisultati conRelazione = servizi();
    conRelazione.relazione = [] {};
    conRelazione.relazioneGrafica = [&fatte](const RelazioneGrafica& r) { fatte.push_back(r); };
    frmConfronti altra(contorno(), conRelazione, cronometro);
    apri(altra, "keyConfronti");
    altra.Slider1.imposta(2);
    altra.ctlToolbar.premi("keyRelazione");
    ASSERT_EQ(fatte.size(), 1U);
    const std::vector<double> prima = fatte[0].figure.at(0).grafico.serie.at(0).valori;
    EXPECT_GT(prima.at(0), 0.0);
    altra.cmdPLAY.premi();
    ASSERT_TRUE(altra.inSimulazione());
    altra.ctlToolbar.premi("keyRelazione");
    EXPECT_FALSE(altra.inSimulazione());
    ASSERT_EQ(fatte.size(), 2U);
    EXPECT_EQ(fatte[1].figure.at(0).grafico.titolo.rfind("Grafico Confronto Rami:", 0), 0U) << "not of a playback";
    // Other demand: the figures of the report are those of the project as it stands.
    altra.Slider1.imposta(2);
    ramo(1).theDatiTraffico().FlussoTempo2(ramo(1).theDatiTraffico().FlussoTempo2() + 5.0F);
    altra.ctlToolbar.premi("keyRelazione");
    ASSERT_EQ(fatte.size(), 3U);
    EXPECT_NE(fatte[2].figure.at(0).grafico.serie.at(0).valori, prima);
    EXPECT_EQ(fatte[2].figure.at(0).grafico, altra.ctlChartConfronti.contenuto());
    EXPECT_FALSE(altra.lblVecchi.visibile());
    gestione.chiudiCorrente();
}

TEST_F(ProveConfronti, AFailedCalculationAndAStudyOfSaturationAloneMakeNoReport) {
    int fatte = 0;
    ServiziRisultati conRelazione = servizi();
    conRelazione.relazione = [] {};
    conRelazione.relazioneGrafica = [&fatte](const RelazioneGrafica&) { ++fatte; };
    frmConfronti altra(contorno(), conRelazione, cronometro);
    apri(altra, "keyConfronti");
    DatiTraffico& traffico = ramo(2).theDatiTraffico();
    const auto picco = traffico.Tempo2();
    traffico.Tempo2(traffico.Tempo1());
    messaggi.mostrati.clear();
    altra.ctlToolbar.premi("keyRelazione");
    EXPECT_EQ(fatte, 0);
    EXPECT_EQ(messaggi.mostrati.size(), 1U) << "the reason is told once";
    traffico.Tempo2(picco);
    r().TipoAnalisi(0);
    altra.ctlToolbar.premi("keyRelazione");
    EXPECT_EQ(fatte, 0);
    ASSERT_EQ(messaggi.mostrati.size(), 2U);
    EXPECT_NE(messaggi.mostrati.back().testo.find("sola saturazione"), std::string::npos);
    gestione.chiudiCorrente();
}

TEST_F(ProveConfronti, ThePlanIsCopiedAndSavedByItsMenu) {
    DialogoFinto dialogo;
    DisegnatoreFinto disegnatore;
    ImmaginiFinte immagini;
    Contorno completo = contorno();
    completo.servizi = {.dialogo = &dialogo, .disegnatore = &disegnatore, .immagini = &immagini};
    frmConfronti finestra(completo, servizi(), cronometro);
    MenuChiavi& menu = *finestra.ctlPianta.menu();
    EXPECT_FALSE(menu.voce("mnuXDatiPNG").abilitata);
    EXPECT_EQ(menu.voce("mnuXDatiPNG").nota, "La pianta non ha dati");
    navigazione.corrente = "keyConfronti";
    finestra.attivata();
    EXPECT_TRUE(finestra.ctlPianta.menu()->voce("mnuXDatiSVG").abilitata);
    EXPECT_FALSE(menu.contiene("mnuXDatiCSV"));
    dialogo.risposta = cartella.file("pianta.svg");
    menu.premi("mnuXDatiSVG");
    EXPECT_EQ(contenuto(cartella.file("pianta.svg")), "disegno");
    EXPECT_EQ(disegnatore.disegnati.back(), FormatoDisegno::svg);
    menu.premi("mnuXDatiCopiaImmagine");
    EXPECT_EQ(immagini.png, "disegno");
    EXPECT_EQ(finestra.ctlChartConfronti.menu()->voce("mnuXDatiCSV").testo, "Salva i dati come CSV...");
}

}  // namespace
}  // namespace kelvo::prove
