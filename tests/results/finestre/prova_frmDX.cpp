#include "results/frmDX.h"

#include <filesystem>

#include "base/numeri.h"
#include "comune/guasti.h"
#include "scenaRisultati.h"

namespace kelvo::prove {
namespace {

struct ProveDX : ScenaRisultati {
    frmDX finestra{contorno(), servizi()};
    ProveDX() {
        progetto(4);
        for (int i = 1; i <= 4; ++i) {
            ramo(i).theDatiTraffico().FlussoTotale(300.0F);
        }
    }
    void apriDX() { apri(finestra, "keyCorsiaDX"); }
    void scegli(std::initializer_list<int> posizioni) {
        for (const int p : posizioni) {
            finestra.listDX.clicca(p);
        }
    }
    const std::string& testo(int r, int c) { return finestra.ctlGrid.testo(r, c); }
};

TEST_F(ProveDX, HasItsWordsAndKeys) {
    apriDX();
    EXPECT_EQ(finestra.didascalia(), "Analisi e Simulazione: Corsia preferenziale svolta in destra");
    EXPECT_EQ(finestra.frSCELTA.titolo(), "Scegliere corsia di svolta a destra da verificare:");
    ASSERT_EQ(finestra.listDX.voci().size(), 4U);
    EXPECT_EQ(finestra.listDX.voci()[0].testo, "Posizione 1: (svolta Ramo A-->Ramo B)");
    EXPECT_EQ(finestra.listDX.voci()[3].testo, "Posizione 4: (svolta Ramo D-->Ramo A)");
    EXPECT_EQ(finestra.listDX.quanteSpuntate(), 0);
    EXPECT_FALSE(finestra.chkStampaDX.spuntata());
    const auto& tasti = finestra.ctlToolbar.tasti();
    ASSERT_EQ(tasti.size(), 3U);
    EXPECT_EQ(tasti[0].chiave + tasti[1].chiave + tasti[2].chiave, "keyCalcolakeyAnteprimakeyRelazione");
    EXPECT_FALSE(finestra.frameAVVISO.visibile());
    EXPECT_FALSE(finestra.lblAVVISO.visibile());
    EXPECT_EQ(finestra.ctlGrid.tabella().righe(), 18);
    EXPECT_EQ(finestra.ctlGrid.righeVisibili, 18);
    EXPECT_TRUE(finestra.cmdCalcola.visibile());
    ASSERT_NE(finestra.aiuto(), nullptr);
    EXPECT_EQ(finestra.aiuto()->pagina(), "CorsiaDX.htm");
}

TEST_F(ProveDX, LabelsShowNamesAndTurnsAsTheyWereEntered) {
    const char* nomi[] = {"labelAB", "labelBC", "labelCD", "labelDA"};
    ramo(2).Descrizione("Via Verdi");
    r().MatriceSvolte(30.0F, 1, 2);
    r().MatriceSvolte(45.0F, 4, 1);
    apriDX();
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(finestra.flussi[i].nome(), nomi[i]);
        EXPECT_EQ(finestra.txtIngresso[i].nome(), "txtIngresso" + std::to_string(i + 1));
        EXPECT_TRUE(finestra.txtIngresso[i].solaLettura());
    }
    EXPECT_EQ(finestra.txtIngresso[0].testo(), "Ramo A");
    EXPECT_EQ(finestra.txtIngresso[1].testo(), "Via Verdi");
    EXPECT_EQ(finestra.flussi[0].testo(), "30 [veic.]");
    EXPECT_EQ(finestra.flussi[3].testo(), "45 [veic.]");
    r().TipoMatriceSvolte(1);
    r().MatriceSvolte(12.5F, 2, 3);
    apriDX();
    EXPECT_EQ(finestra.flussi[1].testo(), "12,5 [%]");
}

TEST_F(ProveDX, OtherThanFourLegsShowTheNoticeAlone) {
    for (const int rami : {3, 5, 7}) {
        progetto(rami);
        frmDX altra{contorno(), servizi()};
        apri(altra, "keyCorsiaDX");
        for (const Controllo* c : altra.ordine()) {
            const bool avviso = c == &altra.frameAVVISO || c == &altra.lblAVVISO;
            EXPECT_EQ(c->visibile(), avviso) << c->nome();
        }
        EXPECT_EQ(altra.frameAVVISO.titolo(), "Informazione");
        EXPECT_EQ(altra.lblAVVISO.testo(), "Funzione disponibile solo per rotatorie a quattro ingressi!");
        for (const char* chiave : {"keyCalcola", "keyAnteprima", "keyRelazione"}) {
            EXPECT_FALSE(altra.ctlToolbar.abilitato(chiave)) << chiave;
            altra.ctlToolbar.premi(chiave);
        }
        EXPECT_TRUE(messaggi.mostrati.empty());
        EXPECT_EQ(r().timbro().forma, FormaCalcolo::nessuna);
        EXPECT_TRUE(altra.svolteScelte().empty());
        EXPECT_FALSE(altra.perRelazione());
        gestione.chiudiCorrente();
    }
}

TEST_F(ProveDX, WithoutAPositionEveryKeyIsRefusedAndNothingRuns) {
    int relazioni = 0;
    ServiziRisultati conRelazione = servizi();
    conRelazione.relazione = [&relazioni] { ++relazioni; };
    frmDX altra{contorno(), conRelazione};
    apri(altra, "keyCorsiaDX");
    int volte = 0;
    for (const char* chiave : {"keyCalcola", "keyAnteprima", "keyRelazione"}) {
        altra.ctlToolbar.premi(chiave);
        ASSERT_EQ(messaggi.mostrati.size(), static_cast<std::size_t>(++volte)) << chiave;
        EXPECT_EQ(messaggi.mostrati.back().testo,
                  "Attezione! Selezionare almeno una corsia di svolta a destra da verificare.");
        EXPECT_EQ(messaggi.mostrati.back().titolo, "KELVO 2014");
        EXPECT_EQ(messaggi.mostrati.back().icona, Icona::critica);
        EXPECT_EQ(altra.fuoco(), &altra.listDX);
    }
    EXPECT_EQ(r().timbro().forma, FormaCalcolo::nessuna);
    EXPECT_EQ(relazioni, 0);
    EXPECT_TRUE(documenti.aperti.empty());
    altra.listDX.clicca(2);
    altra.ctlToolbar.premi("keyRelazione");
    EXPECT_EQ(relazioni, 1);
    gestione.chiudiCorrente();
}

TEST_F(ProveDX, CalculatesWithThenWithoutTheLanes) {
    apriDX();
    scegli({0, 2});
    finestra.ctlToolbar.premi("keyCalcola");
    EXPECT_TRUE(finestra.confronto().calcolato());
    EXPECT_EQ(r().timbro().forma, FormaCalcolo::piana);
    // Of three equal turns of A the lane takes one, a third of its 300 vehicles.
    const double senza = leggiNumero(testo(1, 1)).value();
    const double con = leggiNumero(testo(2, 1)).value();
    EXPECT_NEAR(senza - con, 100.0, 0.02);
    EXPECT_NEAR(leggiNumero(testo(3, 1).substr(0, testo(3, 1).size() - 1)).value(), 100.0 * 100.0 / senza, 0.01);
    EXPECT_EQ(testo(1, 2), testo(2, 2));
    EXPECT_EQ(testo(3, 2), "0%");
    EXPECT_NE(testo(3, 3), "0%");
    EXPECT_FALSE(finestra.cmdCalcola.visibile());
    EXPECT_FALSE(finestra.lblVecchi.visibile());
    EXPECT_TRUE(messaggi.mostrati.empty());
}

TEST_F(ProveDX, LevelsStandInTheirBoxes) {
    apriDX();
    EXPECT_FALSE(finestra.ctlGrid.ornamento({16, 1}).distintivo) << "nothing stands there yet";
    scegli({0, 1, 2, 3});
    finestra.ctlToolbar.premi("keyCalcola");
    for (int c = 1; c <= 4; ++c) {
        for (const int r : {16, 17}) {
            ASSERT_NE(testo(r, c), "");
            EXPECT_EQ(finestra.ctlGrid.ornamento({r, c}).distintivo, distintivoLivello(testo(r, c)));
        }
        EXPECT_FALSE(finestra.ctlGrid.ornamento({15, c}).distintivo);
    }
    EXPECT_FALSE(finestra.ctlGrid.ornamento({16, 0}).distintivo);
}

TEST_F(ProveDX, OtherLanesAndOtherDataAreTold) {
    apriDX();
    scegli({0});
    EXPECT_FALSE(finestra.lblVecchi.visibile()) << "there are no figures yet";
    finestra.ctlToolbar.premi("keyCalcola");
    scegli({1});
    EXPECT_EQ(finestra.lblVecchi.testo(),
              "Le corsie scelte non sono quelle del confronto mostrato. Premere Calcola (F9).");
    EXPECT_TRUE(finestra.lblVecchi.visibile());
    scegli({1});
    EXPECT_FALSE(finestra.lblVecchi.visibile());
    ramo(1).LarghezzaIngresso(9.0F);
    apriDX();
    EXPECT_EQ(finestra.lblVecchi.testo(),
              "I dati sono cambiati dopo il calcolo: le cifre non sono più quelle del progetto. Premere Calcola (F9).");
    EXPECT_EQ(finestra.listDX.quanteSpuntate(), 1) << "the lanes stay chosen";
    finestra.ctlToolbar.premi("keyCalcola");
    EXPECT_FALSE(finestra.lblVecchi.visibile());
}

TEST_F(ProveDX, AStudyOfSaturationAloneIsToldAndKeepsTheTable) {
    apriDX();
    scegli({0});
    finestra.ctlToolbar.premi("keyCalcola");
    const std::string prima = testo(4, 1);
    const std::string nota = "Il confronto richiede una domanda nel tempo: l'analisi è di sola saturazione (Opzioni).";
    r().TipoAnalisi(0);
    apriDX();
    EXPECT_EQ(finestra.lblVecchi.testo(), nota);
    finestra.ctlToolbar.premi("keyCalcola");
    EXPECT_EQ(testo(4, 1), prima);
    EXPECT_EQ(finestra.lblVecchi.testo(), nota);
    EXPECT_TRUE(messaggi.mostrati.empty());
}

TEST_F(ProveDX, AFaultIsToldOnceAndTheFiguresAreCalledIncomplete) {
    apriDX();
    scegli({0});
    finestra.ctlToolbar.premi("keyCalcola");
    DatiTraffico& traffico = ramo(2).theDatiTraffico();
    traffico.Tempo2(traffico.Tempo1());
    finestra.ctlToolbar.premi("keyCalcola");
    EXPECT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(testo(1, 1), "");
    EXPECT_EQ(testo(2, 1), "");
    EXPECT_EQ(finestra.lblVecchi.testo(), "Il calcolo si è interrotto: le cifre non sono complete.");
}

TEST_F(ProveDX, TellsWhyThereAreNoFlows) {
    for (int i = 1; i <= 4; ++i) {
        DatiTraffico& t = ramo(i).theDatiTraffico();
        t.FlussoTempo1(0.0F);
        t.FlussoTempo2(0.0F);
        t.FlussoTempo3(0.0F);
    }
    apriDX();
    scegli({0});
    EXPECT_FALSE(finestra.lblFlussi.visibile());
    finestra.ctlToolbar.premi("keyCalcola");
    EXPECT_EQ(finestra.lblFlussi.testo(), "Tutti i flussi sono 0: non c'è domanda di traffico (Dati di traffico).");
}

TEST_F(ProveDX, TheTextIsCalculatedFirstAndIsThatOfTheCommandLineToTheByte) {
    struct Caso {
        const char* nome;
        std::vector<int> posizioni;
    };
    for (const Caso& caso :
         {Caso{"Rotatoria_Tangenziale_est", {0, 2}}, Caso{"Rotatoria_Viale_della_Stazione", {0, 1, 2, 3}}}) {
        esempio(caso.nome);
        frmDX altra{contorno(), servizi()};
        apri(altra, "keyCorsiaDX");
        for (const int p : caso.posizioni) {
            altra.listDX.clicca(p);
        }
        altra.ctlToolbar.premi("keyAnteprima");
        EXPECT_EQ(file("RisultatiDX.txt"), atteso("cli/attesi/" + std::string{caso.nome} + ".corsia-dx.txt"));
        EXPECT_NE(altra.ctlGrid.testo(1, 1), "");
        EXPECT_FALSE(altra.cmdCalcola.visibile());
        EXPECT_EQ(documenti.aperti.back(), app.theAmbiente.CartellaLavoro() + "RisultatiDX.txt");
        gestione.chiudiCorrente();
    }
}

TEST_F(ProveDX, TheTextNamesTheLanesOfItsFigures) {
    apriDX();
    scegli({0});
    finestra.ctlToolbar.premi("keyCalcola");
    r().TipoAnalisi(0);
    scegli({0, 2});  // the first is taken away again
    finestra.ctlToolbar.premi("keyAnteprima");
    const std::string scritto = file("RisultatiDX.txt");
    EXPECT_NE(scritto.find("IPOTESI:\r\nPosizione 1: (svolta Ramo A-->Ramo B) ==> 10 [veic.]\r\n\r\n"),
              std::string::npos)
        << scritto;
    EXPECT_EQ(scritto.find("Posizione 3"), std::string::npos);
}

TEST_F(ProveDX, WithoutFiguresNoTextIsWrittenAndTheStatusBarSaysWhy) {
    const std::string percorso = app.theAmbiente.CartellaLavoro() + "RisultatiDX.txt";
    apriDX();
    scegli({0});
    r().TipoAnalisi(0);
    finestra.ctlToolbar.premi("keyAnteprima");
    EXPECT_EQ(cornice.avvisato,
              "Il confronto richiede una domanda nel tempo: l'analisi è di sola saturazione (Opzioni).");
    EXPECT_FALSE(std::filesystem::exists(percorso));
    r().TipoAnalisi(1);
    DatiTraffico& traffico = ramo(2).theDatiTraffico();
    const auto picco = traffico.Tempo2();
    traffico.Tempo2(traffico.Tempo1());
    finestra.ctlToolbar.premi("keyAnteprima");
    EXPECT_EQ(cornice.avvisato, "Il calcolo si è interrotto: le cifre non sono complete.");
    EXPECT_FALSE(std::filesystem::exists(percorso));
    EXPECT_TRUE(documenti.aperti.empty());
    traffico.Tempo2(picco);
    finestra.ctlToolbar.premi("keyAnteprima");
    EXPECT_TRUE(std::filesystem::exists(percorso));
    EXPECT_EQ(cornice.avvisato, "");
}

TEST_F(ProveDX, AfterAFailedRunTheReportTakesTheMendedData) {
    apriDX();
    scegli({0});
    finestra.chkStampaDX.clicca();
    DatiTraffico& traffico = ramo(2).theDatiTraffico();
    const auto picco = traffico.Tempo2();
    traffico.Tempo2(traffico.Tempo1());
    finestra.ctlToolbar.premi("keyCalcola");
    EXPECT_FALSE(finestra.perRelazione());
    traffico.Tempo2(picco);
    const auto dati = finestra.perRelazione();
    ASSERT_TRUE(dati);
    EXPECT_NE(dati->tabella.testo(4, 1), "");
    EXPECT_FALSE(finestra.lblVecchi.visibile());
}

TEST_F(ProveDX, AFileThatCannotBeWrittenIsTracedUnderTheNameOfAnotherWindow) {
    app.configurazione.TraceAbilitato = true;
    app.configurazione.PathErrore = "log.txt";
    scriviContenuto(cartella.file("log.txt"), "");
    apriDX();
    scegli({0});
    std::filesystem::create_directory(app.theAmbiente.CartellaLavoro() + "RisultatiDX.txt");
    finestra.ctlToolbar.premi("keyAnteprima");
    EXPECT_TRUE(messaggi.mostrati.empty());
    EXPECT_EQ(cornice.avvisato.rfind("Impossibile scrivere \"", 0), 0U) << cornice.avvisato;
    EXPECT_NE(contenuto(cartella.file("log.txt")).find(" - frmCapacitaCodeRitardiRamo:Anteprima 75 : "),
              std::string::npos);
    EXPECT_TRUE(documenti.aperti.empty());
}

TEST_F(ProveDX, ThePlanShowsTheTurnsThatAreChosen) {
    r().MatriceSvolte(30.0F, 2, 3);
    apriDX();
    EXPECT_TRUE(finestra.svolteScelte().empty());
    scegli({1, 3});
    const auto svolte = finestra.svolteScelte();
    ASSERT_EQ(svolte.size(), 4U);
    for (std::size_t i = 0; i < 4; ++i) {
        for (std::size_t j = 0; j < 4; ++j) {
            EXPECT_EQ(svolte[i][j], i == 1 && j == 2 ? 30.0F : i == 3 && j == 0 ? 10.0F : 0.0F) << i << j;
        }
    }
}

TEST_F(ProveDX, TheReportGetsTheComparisonOnlyWhereItWasAskedForAndCalculated) {
    apriDX();
    EXPECT_FALSE(finestra.perRelazione());
    scegli({0, 2});
    finestra.chkStampaDX.clicca();
    EXPECT_FALSE(finestra.perRelazione()) << "never calculated";
    finestra.ctlToolbar.premi("keyCalcola");
    auto dati = finestra.perRelazione();
    ASSERT_TRUE(dati);
    EXPECT_EQ(dati->corsie, (CorsieDestra{true, false, true, false}));
    EXPECT_EQ(dati->tabella.testo(4, 1), testo(4, 1));
    // What is not the project's own any more is calculated anew.
    const std::string prima = testo(4, 1);
    ramo(1).LarghezzaIngresso(9.0F);
    dati = finestra.perRelazione();
    ASSERT_TRUE(dati);
    EXPECT_NE(dati->tabella.testo(4, 1), prima);
    EXPECT_EQ(testo(4, 1), dati->tabella.testo(4, 1));
    finestra.listDX.clicca(0);
    EXPECT_EQ(finestra.perRelazione()->tabella.testo(3, 1), "0%") << "A has no lane any more";
    finestra.chkStampaDX.clicca();
    EXPECT_FALSE(finestra.perRelazione());
    finestra.chkStampaDX.clicca();
    finestra.listDX.clicca(2);
    EXPECT_FALSE(finestra.perRelazione()) << "no lane is chosen";
    finestra.listDX.clicca(2);
    r().TipoAnalisi(0);
    EXPECT_FALSE(finestra.perRelazione());
}

TEST_F(ProveDX, TheReportIsTheWholeOneWhereTheComparisonGoesIntoItElseTheirWindow) {
    int finestre = 0;
    int totali = 0;
    ServiziRisultati conRelazione = servizi();
    conRelazione.relazione = [&finestre] { ++finestre; };
    conRelazione.relazioneTotale = [&totali] { ++totali; };
    frmDX altra{contorno(), conRelazione};
    apri(altra, "keyCorsiaDX");
    altra.chkStampaDX.clicca();
    altra.ctlToolbar.premi("keyRelazione");
    EXPECT_EQ(messaggi.mostrati.back().testo,
              "Attezione! Selezionare almeno una corsia di svolta a destra da verificare.");
    EXPECT_EQ(finestre + totali, 0);
    altra.listDX.clicca(0);
    altra.ctlToolbar.premi("keyRelazione");
    EXPECT_EQ(totali, 1);
    EXPECT_TRUE(altra.perRelazione()) << "calculated first";
    altra.chkStampaDX.clicca();
    altra.ctlToolbar.premi("keyRelazione");
    EXPECT_EQ(finestre, 1);
    EXPECT_EQ(totali, 1);
    // A calculation that fails makes no report and tells why.
    altra.chkStampaDX.clicca();
    ramo(2).theDatiTraffico().Tempo2(ramo(2).theDatiTraffico().Tempo1());
    const std::size_t detti = messaggi.mostrati.size();
    altra.ctlToolbar.premi("keyRelazione");
    EXPECT_EQ(totali, 1);
    EXPECT_GT(messaggi.mostrati.size(), detti);
    gestione.chiudiCorrente();
}

TEST_F(ProveDX, AReportOfSaturationAloneSaysThatItLeavesTheComparisonOut) {
    int totali = 0;
    ServiziRisultati conRelazione = servizi();
    conRelazione.relazione = [] {};
    conRelazione.relazioneTotale = [this, &totali] {
        ++totali;
        EXPECT_EQ(messaggi.mostrati.size(), 1U) << "told before the report is made";
    };
    frmDX altra{contorno(), conRelazione};
    apri(altra, "keyCorsiaDX");
    altra.listDX.clicca(0);
    altra.chkStampaDX.clicca();
    r().TipoAnalisi(0);
    altra.ctlToolbar.premi("keyRelazione");
    EXPECT_EQ(totali, 1);
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(messaggi.mostrati[0].testo,
              "Il confronto richiede una domanda nel tempo: l'analisi è di sola saturazione (Opzioni).\r\nLa relazione "
              "lo tralascia.");
    altra.chkStampaDX.clicca();
    altra.ctlToolbar.premi("keyRelazione");
    EXPECT_EQ(messaggi.mostrati.size(), 1U) << "nobody has asked for it";
    gestione.chiudiCorrente();
}

TEST_F(ProveDX, NothingIsWrittenToTheProject) {
    apriDX();
    const auto revisione = r().revisione().tutto;
    scegli({0, 1, 2, 3});
    finestra.chkStampaDX.clicca();
    finestra.ctlToolbar.premi("keyCalcola");
    finestra.ctlToolbar.premi("keyAnteprima");
    finestra.perRelazione();
    EXPECT_EQ(r().revisione().tutto, revisione);
}

}  // namespace
}  // namespace kelvo::prove
