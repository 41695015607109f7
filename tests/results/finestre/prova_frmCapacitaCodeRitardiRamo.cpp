#include "results/frmCapacitaCodeRitardiRamo.h"

#include <filesystem>

#include "base/numeri.h"

#include "comune/guasti.h"
#include "results/tabellaRamo.h"
#include "scenaRisultati.h"

namespace kelvo::prove {
namespace {

struct ProveRamo : ScenaRisultati {
    frmCapacitaCodeRitardiRamo finestra{contorno(), servizi()};
    void apriRamo(int i) { apri(finestra, "keyCodeRitardi_Out" + std::to_string(i)); }
    void calcola() { finestra.ctlToolbar.premi("keyCalcola"); }
    const std::string& testo(int r, int c) { return finestra.ctlGrid.testo(r, c); }
    bool abilitato(const char* chiave) { return finestra.ctlToolbar2.abilitato(chiave); }
};

TEST_F(ProveRamo, OpensEmptyWithItsToolsClosed) {
    apriRamo(2);
    EXPECT_EQ(finestra.didascalia(), "Risultati: Verifiche prestazionali");
    EXPECT_EQ(finestra.sottotitolo.testo(), "Ramo B");
    EXPECT_EQ(finestra.indiceRamo(), 2);
    EXPECT_EQ(app.theRamoCorrente, &ramo(2));
    EXPECT_EQ(finestra.ctlGrid.tabella().righe(), 5);
    EXPECT_EQ(testo(1, 0), "08:00 - 08:15");
    EXPECT_EQ(testo(1, 1), "");
    EXPECT_FALSE(abilitato("Visualizza"));
    EXPECT_FALSE(abilitato("Aggiuntivi"));
    EXPECT_TRUE(finestra.cmdCalcola.visibile());
    for (const Grafico& grafico : finestra.grafici) {
        EXPECT_TRUE(grafico.vuoto());
        EXPECT_EQ(grafico.contenuto().invito, "Calcola (F9)");
    }
    for (const auto& r : finestra.riassunti) {
        EXPECT_EQ(r.minimo.testo() + r.massimo.testo() + r.medio.testo(), "");
        EXPECT_TRUE(r.minimo.solaLettura());
    }
}

TEST_F(ProveRamo, ANodeWithoutALegIsAFault) {
    navigazione.corrente = "keyCodeRitardi_Out";
    EXPECT_EQ(numeroGuasto([&] { finestra.attivata(); }), 9);
    navigazione.corrente = "keyCodeRitardi_Out4";
    EXPECT_EQ(numeroGuasto([&] { finestra.attivata(); }), 9);
    navigazione.corrente = "";
    EXPECT_EQ(numeroGuasto([&] { finestra.attivata(); }), 9);
}

TEST_F(ProveRamo, HasItsKeysTabsAndOptions) {
    const auto chiavi = [](const BarraStrumenti& barra) {
        std::string tutte;
        for (const auto& tasto : barra.tasti()) {
            tutte += tasto.chiave + "/" + tasto.testo + " ";
        }
        return tutte;
    };
    EXPECT_EQ(chiavi(finestra.ctlToolbar), "keyCalcola/Calcola keyAnteprima/Anteprima keyRelazione/Relazione ");
    EXPECT_EQ(chiavi(finestra.ctlToolbar2), "Visualizza/Visualizza Aggiuntivi/Aggiuntivi ");
    const std::vector<std::string> titoli{"Risultati",      "Capacità", "Coefficiente Saturazione",
                                          "Lunghezza Code", "Ritardi",  "Livello di Servizio"};
    ASSERT_EQ(finestra.ctlTab.schede().size(), titoli.size());
    for (std::size_t i = 0; i < titoli.size(); ++i) {
        EXPECT_EQ(finestra.ctlTab.scheda(static_cast<int>(i)).titolo, titoli[i]);
    }
    EXPECT_EQ(finestra.lblLegenda.testo(), "Premi tasto Dx del Mouse per visualizzare legenda valori e colori.");
    EXPECT_EQ(finestra.frVALORI.titolo(), "Valori riassuntivi");
    EXPECT_EQ(finestra.lblMINIMO.testo(), "MINIMO");
    EXPECT_EQ(finestra.lblMASSIMO.testo(), "MASSIMO");
    EXPECT_EQ(finestra.lblMEDIO.testo(), "MEDIO");
    EXPECT_EQ(finestra.cmdRIASSUNTO.testo(), "Dati Riassuntivi ingresso");
    EXPECT_EQ(finestra.cmdMARKER.testo(), "Visualizzatore Marker");
    EXPECT_EQ(finestra.cmdMARKER.forma(), Casella::bottone);
    EXPECT_EQ(finestra.chkValori.testo(), "Inserisci valori grafico");
    EXPECT_EQ(finestra.opzForma.opzione(0).testo, "Grafico a LINEE");
    EXPECT_EQ(finestra.opzForma.opzione(1).testo, "Grafico a BARRE");
}

TEST_F(ProveRamo, CalculatesTheWholeRoundaboutAndShowsItsEntry) {
    apriRamo(2);
    calcola();
    EXPECT_EQ(r().timbro().forma, FormaCalcolo::piana);
    EXPECT_GT(ramo(1).theDatiTraffico().GetIterazione(1).Capacita, 0.0F);
    const Iterazione k2 = ramo(2).theDatiTraffico().GetIterazione(2);
    EXPECT_EQ(testo(2, 1), formatta(k2.Flusso, "#0.00"));
    EXPECT_EQ(testo(2, 3), formatta(k2.Coeff_Sat, "#0.000"));
    EXPECT_TRUE(abilitato("Aggiuntivi"));
    EXPECT_FALSE(abilitato("Visualizza"));
    EXPECT_FALSE(finestra.cmdCalcola.visibile());
    EXPECT_FALSE(finestra.lblVecchi.visibile());
    EXPECT_EQ(finestra.grafici[0].contenuto().titolo, "Capacità - Ramo B");
    EXPECT_EQ(finestra.grafici[4].contenuto().titolo, "Livello di Servizio - Ramo B");
    EXPECT_EQ(finestra.grafici[0].contenuto().serie[0].valori.size(), 4U);
    EXPECT_TRUE(app.risultati.statistiche.presenti);
    EXPECT_EQ(app.risultati.statistiche.ValoriMassimi, finestra.statistiche().ValoriMassimi);
    EXPECT_TRUE(messaggi.mostrati.empty());
}

TEST_F(ProveRamo, ShowsItsSummaryInTheFormatsOfTheCharts) {
    r().TipoAnalisi(0);  // the records stay as they are
    const Iterazione record[] = {{1.0F, 900.125F, 0.3333F, 1.26F, 12.34F},
                                 {2.0F, 800.5F, 0.4449F, 0.04F, 60.0F},
                                 {3.0F, 850.25F, 0.5F, 2.0F, 0.0F},
                                 {3.0F, 850.25F, 0.5F, 2.0F, 0.0F}};
    for (std::int16_t k = 1; k <= 4; ++k) {
        ramo(1).theDatiTraffico().SetIterazione(k, record[k - 1]);
    }
    apriRamo(1);
    calcola();
    const std::vector<std::array<std::string, 4>> attesi{
        {"800,50", "900,13", "850,28", "[veic./h]"},  // mean 3401.125 / 4 = 850.28125
        {"0,330", "0,500", "0,445", ""},              // extremes to two decimals; mean of 0.3333, 0.4449, 0.5, 0.5
        {"0,0", "2,0", "1,3", "[veic.]"},             // 0.04 is shown as 0.0; 5.3 / 4 = 1.325
        {"0,0", "60,0", "18,1", "[s/veic.]"},         // 72.34 / 4 = 18.085
        {"-", "F", "B", ""}};                         // codes 10, 30, 0, 0: 10
    for (std::size_t i = 0; i < attesi.size(); ++i) {
        const auto& r = finestra.riassunti[i];
        EXPECT_EQ(r.minimo.testo(), attesi[i][0]) << i;
        EXPECT_EQ(r.massimo.testo(), attesi[i][1]) << i;
        EXPECT_EQ(r.medio.testo(), attesi[i][2]) << i;
        EXPECT_EQ(r.unita.testo(), attesi[i][3]) << i;
    }
    const std::vector<std::array<const char*, 3>> nomi{{"txtMIN", "txtMAX", "txtMEDIA"},
                                                       {"txtMIN2", "txtMAX2", "txtMEDIA2"},
                                                       {"txtMIN3", "txtMAX3", "txtMEDIA3"},
                                                       {"txtMIN4", "txtMAX4", "txtMEDIA4"},
                                                       {"txtminLOS", "txtmaxLOS", "txtmedLOS"}};
    for (std::size_t i = 0; i < nomi.size(); ++i) {
        EXPECT_EQ(finestra.riassunti[i].minimo.nome(), nomi[i][0]);
        EXPECT_EQ(finestra.riassunti[i].massimo.nome(), nomi[i][1]);
        EXPECT_EQ(finestra.riassunti[i].medio.nome(), nomi[i][2]);
    }
}

TEST_F(ProveRamo, EachTabShowsItsOwn) {
    apriRamo(1);
    for (int scheda = 0; scheda < 6; ++scheda) {
        finestra.ctlTab.scegli(scheda);
        EXPECT_EQ(finestra.ctlGrid.visibile(), scheda == 0);
        EXPECT_EQ(finestra.lblLegenda.visibile(), scheda == 0);
        EXPECT_EQ(finestra.frVALORI.visibile(), scheda != 0);
        EXPECT_EQ(finestra.lblMEDIO.visibile(), scheda != 0);
        for (std::size_t i = 0; i < 5; ++i) {
            const bool suo = scheda == static_cast<int>(i) + 1;
            EXPECT_EQ(finestra.grafici[i].visibile(), suo);
            EXPECT_EQ(finestra.riassunti[i].minimo.visibile(), suo);
            EXPECT_EQ(finestra.riassunti[i].unita.visibile(), suo);
        }
    }
}

TEST_F(ProveRamo, ChartOptionsRedrawAllChartsWithoutACalculation) {
    apriRamo(1);
    calcola();
    const Timbro timbro = r().timbro();
    ramo(1).theDatiTraffico().FlussoTempo2(99.0F);
    finestra.opzForma.clicca(0);
    finestra.chkValori.clicca();
    for (const Grafico& grafico : finestra.grafici) {
        EXPECT_EQ(grafico.contenuto().serie[0].forma, Grafico::Forma::linee);
        EXPECT_FALSE(grafico.contenuto().valori);
        EXPECT_EQ(grafico.contenuto().serie[0].valori.size(), 4U);
    }
    finestra.opzForma.clicca(1);
    finestra.chkValori.clicca();
    for (const Grafico& grafico : finestra.grafici) {
        EXPECT_EQ(grafico.contenuto().serie[0].forma, Grafico::Forma::barre);
        EXPECT_TRUE(grafico.contenuto().valori);
    }
    EXPECT_EQ(r().timbro(), timbro);
    finestra.opzForma.clicca(0);
    calcola();
    EXPECT_EQ(finestra.grafici[2].contenuto().serie[0].forma, Grafico::Forma::linee);
}

TEST_F(ProveRamo, ANewActivationClosesTheToolsAndKeepsTheTableOfItsEntry) {
    apriRamo(2);
    calcola();
    const std::string prima = testo(1, 2);
    ramo(2).LarghezzaIngresso(9.0F);
    apriRamo(2);
    EXPECT_EQ(testo(1, 2), prima);
    EXPECT_FALSE(abilitato("Aggiuntivi"));
    EXPECT_TRUE(finestra.lblVecchi.visibile());
    EXPECT_EQ(finestra.lblVecchi.testo(),
              "I dati sono cambiati dopo il calcolo: le cifre non sono più quelle del progetto. Premere Calcola (F9).");
}

TEST_F(ProveRamo, AnotherEntryEmptiesTheWindow) {
    apriRamo(2);
    calcola();
    apriRamo(3);
    EXPECT_EQ(finestra.sottotitolo.testo(), "Ramo C");
    EXPECT_EQ(testo(1, 1), "");
    EXPECT_TRUE(finestra.grafici[0].vuoto());
    EXPECT_EQ(finestra.riassunti[0].massimo.testo(), "");
    EXPECT_TRUE(finestra.cmdCalcola.visibile());
    EXPECT_FALSE(finestra.statistiche().presenti);
    calcola();
    EXPECT_NE(testo(1, 1), "");
}

TEST_F(ProveRamo, TellsWhyTheFlowsOfItsEntryAreZero) {
    ramo(2).theDatiTraffico().FlussoTempo1(0.0F);
    ramo(2).theDatiTraffico().FlussoTempo2(0.0F);
    ramo(2).theDatiTraffico().FlussoTempo3(0.0F);
    apriRamo(2);
    EXPECT_FALSE(finestra.lblFlussi.visibile()) << "nothing was calculated yet";
    calcola();
    EXPECT_EQ(finestra.lblFlussi.testo(),
              "Tutti i flussi dell'ingresso sono 0: non c'è domanda di traffico (Dati di traffico).");
    apriRamo(1);
    calcola();
    EXPECT_FALSE(finestra.lblFlussi.visibile());
}

TEST_F(ProveRamo, AnEntryWithoutSegmentsShowsEmptyStatistics) {
    for (int i = 1; i <= 3; ++i) {
        ramo(i).theDatiTraffico().NumSegmentiTempo(0);
    }
    r().TipoAnalisi(0);
    apriRamo(1);
    calcola();
    EXPECT_TRUE(finestra.conFigure());
    EXPECT_EQ(finestra.riassunti[0].minimo.testo(), "");
    EXPECT_EQ(finestra.riassunti[4].medio.testo(), "");
    EXPECT_TRUE(finestra.grafici[0].vuoto());
    EXPECT_TRUE(messaggi.mostrati.empty());
}

TEST_F(ProveRamo, TheRightPressOpensTheLegendWithItsColourKeysByTheMarkerButton) {
    apriRamo(1);
    EXPECT_TRUE(finestra.ctlGrid.tastoDestro(1, 1));
    EXPECT_EQ(collegate.passi, (std::vector<std::string>{"affianca frmLEGENDA"}));
    EXPECT_FALSE(finestra.legenda.lblColori[0].visibile());
    EXPECT_FALSE(finestra.legenda.ctlColori[4].visibile());
    finestra.cmdMARKER.clicca();
    EXPECT_TRUE(finestra.legenda.lblColori[0].visibile());
    EXPECT_TRUE(finestra.legenda.ctlColori[4].visibile());
    finestra.legenda.cmdChiudi.premi();
    EXPECT_EQ(collegate.passi.back(), "chiudi frmLEGENDA");
    gestione.chiudiCorrente();
    EXPECT_EQ(collegate.passi.size(), 3U) << "it goes with the window";
    EXPECT_EQ(collegate.passi.back(), "chiudi frmLEGENDA");
}

TEST_F(ProveRamo, TheLegendReadsAsItAlwaysDid) {
    const frmLEGENDA& l = finestra.legenda;
    EXPECT_EQ(l.lblLOS.testo(), "LOS   [sec/veicolo]");
    const std::vector<std::string> righe{"A           = 10",  "B         10 ÷ 15", "C         15 ÷ 25",
                                         "D         25 ÷ 35", "E         35 ÷ 50", "F           > 50"};
    for (std::size_t i = 0; i < righe.size(); ++i) {
        EXPECT_EQ(l.lblLivelli[i].testo(), righe[i]);
    }
    const std::vector<std::pair<std::string, Colore>> chiavi{{"Valore MINIMO", {200, 200, 200}},
                                                             {"Valore MASSIMO", {200, 200, 200}},
                                                             {"Valore INFERIORE", {220, 255, 220}},
                                                             {"Valore SUPERIORE", {255, 220, 220}},
                                                             {"Valore CRITICO", {200, 200, 200}}};
    for (std::size_t i = 0; i < chiavi.size(); ++i) {
        EXPECT_EQ(l.lblColori[i].testo(), chiavi[i].first);
        EXPECT_EQ(l.ctlColori[i].colore(), chiavi[i].second);
    }
    EXPECT_EQ(chiaviLegenda[0].inchiostro, (Colore{0, 103, 0}));
    EXPECT_EQ(chiaviLegenda[1].inchiostro, (Colore{230, 0, 0}));
    EXPECT_EQ(chiaviLegenda[4].inchiostro, (Colore{255, 255, 102}));
}

TEST_F(ProveRamo, WritesItsTextToTheByte) {
    struct Caso {
        const char* progetto;
        int ramo;
        const char* nome;
    };
    for (const Caso& caso :
         {Caso{"Rotatoria_Via_dei_Mulini", 3, ""}, Caso{"Rotatoria_Tangenziale_est", 2, "Località Città Più Là"},
          Caso{"Rotatoria_Aurelia_Sette_Strade", 7, ""}}) {
        esempio(caso.progetto);
        if (*caso.nome != '\0') {
            ramo(caso.ramo).Descrizione(caso.nome);
        }
        frmCapacitaCodeRitardiRamo altra(contorno(), servizi());
        apri(altra, "keyCodeRitardi_Out" + std::to_string(caso.ramo));
        altra.ctlToolbar.premi("keyCalcola");
        altra.ctlToolbar.premi("keyAnteprima");
        EXPECT_EQ(file("Risultati.txt"), atteso("results/attesi/" + std::string{caso.progetto} + "." +
                                                std::to_string(caso.ramo) + ".ingresso.txt"));
        gestione.chiudiCorrente();
    }
}

TEST_F(ProveRamo, APreviewThatCannotBeWrittenIsTracedUnderItsLabel) {
    apriRamo(1);
    std::filesystem::create_directory(app.theAmbiente.CartellaLavoro() + "Risultati.txt");
    app.configurazione.TraceAbilitato = true;
    app.configurazione.PathErrore = "log.txt";
    scriviContenuto(cartella.file("log.txt"), "");
    finestra.ctlToolbar.premi("keyAnteprima");
    EXPECT_NE(contenuto(cartella.file("log.txt")).find(" - frmCapacitaCodeRitardiRamo:Anteprima 75 : "),
              std::string::npos);
    EXPECT_TRUE(messaggi.mostrati.empty());
}

TEST_F(ProveRamo, AWindowThatGoesTakesItsCompanionsAlong) {
    { const frmCapacitaCodeRitardiRamo altra(contorno(), servizi()); }
    for (const char* nome : {"frmLEGENDA", "frmRAMO_AGGIUNTIVA", "frmAnteprimaTesto"}) {
        EXPECT_NE(std::find(collegate.passi.begin(), collegate.passi.end(), "dimentica " + std::string{nome}),
                  collegate.passi.end())
            << nome;
    }
}

TEST_F(ProveRamo, SignsStandInTheGridOnlyWhileThereAreFigures) {
    apriRamo(1);
    calcola();
    const auto s = finestra.statistiche();
    ASSERT_GT(s.RigaMassimo[0], 0);
    EXPECT_EQ(finestra.ctlGrid.ornamento({s.RigaMassimo[0], 1}).segno, OrnamentoCella::Segno::massimo);
    apriRamo(2);
    EXPECT_EQ(finestra.ctlGrid.ornamento({s.RigaMassimo[0], 1}).segno, OrnamentoCella::Segno::nessuno);
}

}  // namespace
}  // namespace kelvo::prove
