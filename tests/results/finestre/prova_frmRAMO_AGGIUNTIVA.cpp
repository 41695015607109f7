#include "scenaAggiuntiva.h"

namespace kelvo::prove {
namespace {

TEST_F(ProveAggiuntiva, ShowsTheSummaryOfItsEntry) {
    conFigure(2);
    apriAggiuntiva(false);
    EXPECT_EQ(a.frRIASSUNTO.titolo(), "Dati Riassuntivi ingresso");
    EXPECT_EQ(a.sottotitolo.testo(), "Ramo B");
    const Tabella& t = a.ctlGRID1.tabella();
    const std::vector<std::vector<std::string>> attesa{{"", "V.Minimo", "V.Massimo", "V.Medio"},
                                                       {"Flusso [veic./min]", "2,00", "12,00", "7,00"},
                                                       {"Capacità [veic./min]", "500,50", "900,00", "725,13"},
                                                       {"Coeff. saturazione", "0,360", "1,200", "0,715"},
                                                       {"Coda [veic.]", "0,0", "20,5", "6,4"},
                                                       {"Ritardi [sec/veic.]", "4,0", "60,0", "24,0"},
                                                       {"L.O.S.", "A", "F", "C"}};
    ASSERT_EQ(t.righe(), 7);
    ASSERT_EQ(t.colonne(), 4);
    for (int riga = 0; riga < 7; ++riga) {
        for (int c = 0; c < 4; ++c) {
            EXPECT_EQ(t.testo(riga, c), attesa[static_cast<std::size_t>(riga)][static_cast<std::size_t>(c)]);
        }
    }
    EXPECT_EQ(t.larghezze, (std::vector<int>{2500, 1400, 1400, 1400}));
    EXPECT_EQ(t.altezzaRiga, 300);
    EXPECT_EQ(t.cella(0, 2).sfondo, (Colore{0, 98, 0}));
    EXPECT_EQ(t.cella(0, 2).inchiostro, (Colore{255, 255, 255}));
    EXPECT_EQ(t.cella(3, 0).sfondo, (Colore{164, 196, 0}));
    EXPECT_EQ(t.cella(3, 0).inchiostro, (Colore{255, 255, 255}));
    EXPECT_EQ(t.cella(3, 1).sfondo, (Colore{220, 220, 220}));
    EXPECT_EQ(a.txtminLOS.testo(), "A");
    EXPECT_EQ(a.txtmaxLOS.testo(), "F");
    EXPECT_EQ(a.ctlGRID1.ornamento({6, 2}).distintivo, distintivoLivello("F"));
    EXPECT_EQ(a.ctlGRID1.ornamento({5, 2}).distintivo, std::nullopt);
    EXPECT_EQ(a.ctlGRID1.ornamento({6, 0}).distintivo, std::nullopt);
}

TEST_F(ProveAggiuntiva, TellsWhatIsInForceAlsoWhereThresholdsAloneAreShown) {
    conFigure(1);
    apriAggiuntiva();
    ASSERT_FALSE(a.frRIASSUNTO.visibile());
    EXPECT_TRUE(a.lblInVigore.visibile());
    EXPECT_EQ(a.lblInVigore.testo(),
              "Percentile 95,00 % · notte non in vigore · nessuna riduzione dei rami · veicoli equivalenti 2,50 2,00 "
              "1,80 1,40 1,20 0,80 1,00");
    ritorno();
    r().ValorePercentile(90.0F);
    apriAggiuntiva(false);
    EXPECT_EQ(a.lblInVigore.testo().rfind("Percentile 90,00 % · ", 0), 0U) << a.lblInVigore.testo();
}

TEST_F(ProveAggiuntiva, PanelsFollowTheTwoButtons) {
    conFigure(1);
    const auto pannelli = [&](bool riassunto, bool soglie) {
        if (finestra.cmdRIASSUNTO.spuntata() != riassunto) {
            finestra.cmdRIASSUNTO.clicca();
        }
        apriAggiuntiva(soglie);
        const auto visti = std::make_pair(a.frRIASSUNTO.visibile(), a.frMARKER.visibile());
        EXPECT_EQ(a.ctlGRID1.visibile(), visti.first);
        EXPECT_EQ(a.soglie[2].spunta.visibile(), visti.second);
        EXPECT_EQ(a.soglie[5].massimo.visibile(), visti.second);
        EXPECT_EQ(a.cmdAzzera.visibile(), visti.second);
        ritorno();
        return visti;
    };
    EXPECT_EQ(pannelli(false, false), std::make_pair(true, false));
    EXPECT_EQ(pannelli(true, false), std::make_pair(true, false));
    EXPECT_EQ(pannelli(false, true), std::make_pair(false, true));
    EXPECT_EQ(pannelli(true, true), std::make_pair(true, true));
    EXPECT_EQ(a.frMARKER.titolo(), "Marker controllo risultati");
}

TEST_F(ProveAggiuntiva, HasItsFieldsAndTheyOpenWithTheirTicks) {
    conFigure(1);
    apriAggiuntiva();
    const std::vector<std::array<const char*, 4>> attesi{
        {"chFLUSSO", "txtvalMIN1", "txtvalMAX1", "Flusso [veic./min]"},
        {"chCAPACITA", "txtvalMIN2", "txtvalMAX2", "Capacità [veic./h]"},
        {"chSATURAZIONE", "txtvalMIN3", "txtvalMAX3", "Coeff. Saturazione"},
        {"chCODA", "txtvalMIN4", "txtvalMAX4", "Coda  [veic.]"},
        {"chRITARDO", "txtvalMIN5", "txtvalMAX5", "Ritardo [sec./veic.]"},
        {"chLOS", "comboLOSmin", "comboLOSmax", "L.O.S."}};
    const std::vector<std::string> zeri{"0,00", "0,00", "0,000", "0,0", "0,0", "-"};
    for (std::size_t i = 0; i < attesi.size(); ++i) {
        auto& soglia = a.soglie[i];
        EXPECT_EQ(soglia.spunta.nome(), attesi[i][0]);
        EXPECT_EQ(soglia.minimo.nome(), attesi[i][1]);
        EXPECT_EQ(soglia.massimo.nome(), attesi[i][2]);
        EXPECT_EQ(soglia.spunta.testo(), attesi[i][3]);
        EXPECT_FALSE(soglia.spunta.spuntata());
        EXPECT_EQ(soglia.minimo.testo(), zeri[i]);
        EXPECT_EQ(soglia.massimo.testo(), zeri[i]);
        EXPECT_FALSE(soglia.minimo.abilitato());
        soglia.spunta.clicca();
        EXPECT_TRUE(soglia.minimo.abilitato());
        EXPECT_TRUE(soglia.massimo.abilitato());
        soglia.spunta.clicca();
        EXPECT_FALSE(soglia.massimo.abilitato());
    }
    EXPECT_EQ(s(6).minimo.voci(), (std::vector<std::string>{"-", "A", "B", "C", "D", "E", "F"}));
    EXPECT_EQ(s(6).massimo.voci(), s(6).minimo.voci());
    const auto& tasti = a.ctlToolbar.tasti();
    ASSERT_EQ(tasti.size(), 2U);
    EXPECT_EQ(tasti[0].testo, "Anteprima");
    EXPECT_EQ(tasti[1].testo, "Ritorno");
}

TEST_F(ProveAggiuntiva, DigitsAndTheCommaPassAndOnlyNumbersCanBeLeft) {
    conFigure(1);
    apriAggiuntiva();
    s(2).spunta.clicca();
    s(2).minimo.scrivi("600,50");
    EXPECT_EQ(s(2).minimo.testo(), "600,50");
    // A key that is not taken changes nothing, nor does a pasted text: without its point it would be another figure.
    for (const char* testo : {"600,5.0", "600,50a", "0.85", "-1", " 12", "."}) {
        s(2).minimo.scrivi(testo);
        EXPECT_EQ(s(2).minimo.testo(), "600,50") << testo;
    }
    for (const char* testo : {"", ",", "1,2,3"}) {
        messaggi.mostrati.clear();
        EXPECT_FALSE(scrivi(s(2).minimo, testo)) << testo;
        ASSERT_EQ(messaggi.mostrati.size(), 1U);
        EXPECT_EQ(messaggi.mostrati[0].testo, "Attenzione! Inserire solo valori numerici");
        EXPECT_EQ(messaggi.mostrati[0].titolo, "KELVO 2014");
    }
}

TEST_F(ProveAggiuntiva, APairIsCheckedWhenItIsConfirmed) {
    conFigure(1);
    apriAggiuntiva();
    s(2).spunta.clicca();
    EXPECT_TRUE(scrivi(s(2).minimo, "600"));  // the upper value still is 0
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(messaggi.mostrati[0].testo, "Attenzione! valori ammessi: MINIMO = 500,5; MASSIMO = 900");
    EXPECT_EQ(messaggi.mostrati[0].titolo, "KELVO 2014 - Attenzione");
    EXPECT_EQ(messaggi.mostrati[0].icona, Icona::esclamazione);
    messaggi.mostrati.clear();
    EXPECT_TRUE(scrivi(s(2).massimo, "550,5"));
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(messaggi.mostrati[0].testo, "Attenzione! valore MASSIMO < valore MINIMO  550,5 < 600");
    messaggi.mostrati.clear();
    for (const char* buono : {"600", "600,01", "900"}) {
        EXPECT_TRUE(scrivi(s(2).massimo, buono));
        EXPECT_TRUE(messaggi.mostrati.empty()) << buono;
    }
    EXPECT_TRUE(scrivi(s(2).massimo, "900,01"));
    EXPECT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_TRUE(scrivi(s(2).massimo, "900"));
    EXPECT_TRUE(scrivi(s(2).minimo, "500,5"));
    EXPECT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_TRUE(scrivi(s(2).minimo, "500,49"));
    EXPECT_EQ(messaggi.mostrati.size(), 2U);
    // A field that is only passed through says nothing.
    EXPECT_TRUE(scrivi(s(2).minimo, "500,49"));
    EXPECT_EQ(messaggi.mostrati.size(), 2U);
}

TEST_F(ProveAggiuntiva, AnUpperLevelBeforeTheLowerIsRefusedAndADashPasses) {
    conFigure(1);
    apriAggiuntiva();
    s(6).spunta.clicca();
    s(6).massimo.scrivi("D");
    s(6).minimo.scrivi("C");
    EXPECT_TRUE(messaggi.mostrati.empty());
    s(6).massimo.scrivi("A");
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(messaggi.mostrati[0].testo, "Selezionare un LOS coerente!");
    EXPECT_EQ(messaggi.mostrati[0].titolo, "KELVO 2014");
    EXPECT_EQ(messaggi.mostrati[0].icona, Icona::critica);
    EXPECT_EQ(s(6).massimo.testo(), "D");
    s(6).massimo.scrivi("C");
    s(6).massimo.scrivi("-");
    s(6).massimo.scrivi("F");
    s(6).minimo.scrivi("-");
    s(6).massimo.scrivi("A");
    s(6).minimo.scrivi("F");  // the lower one is tested by nothing beyond the list
    EXPECT_EQ(messaggi.mostrati.size(), 1U);
    s(6).minimo.scrivi("G");
    EXPECT_EQ(s(6).minimo.testo(), "F");
}

TEST_F(ProveAggiuntiva, GoingBackWithoutThresholdsClosesVisualizza) {
    conFigure(1);
    apriAggiuntiva(false);
    ritorno();
    EXPECT_TRUE(tornata());
    EXPECT_FALSE(visualizza());
    apriAggiuntiva(true);
    soglia(2, "600", "800");
    ritorno();
    EXPECT_TRUE(tornata());
    EXPECT_TRUE(visualizza());
    apriAggiuntiva(true);
    s(2).spunta.clicca();
    ritorno();
    EXPECT_TRUE(tornata());
    EXPECT_FALSE(visualizza());
    EXPECT_EQ(marker().MarkerAttivo(1, 2), 1.0) << "nothing was stored on that way";
}

TEST_F(ProveAggiuntiva, AReturnIsNoActivation) {
    conFigure(1);
    const std::string prima = finestra.ctlGrid.testo(1, 1);
    apriAggiuntiva(true);
    soglia(1, "3", "7");
    ritorno();
    EXPECT_TRUE(tornata());
    EXPECT_EQ(finestra.ctlGrid.testo(1, 1), prima);
    EXPECT_TRUE(finestra.ctlToolbar2.abilitato("Aggiuntivi"));
    EXPECT_TRUE(visualizza());
    apri(finestra, "keyCodeRitardi_Out1");  // by the tree it is one
    EXPECT_FALSE(finestra.ctlToolbar2.abilitato("Aggiuntivi"));
    EXPECT_FALSE(visualizza());
}

TEST_F(ProveAggiuntiva, LeavingByTheTreeStoresNothing) {
    conFigure(1);
    apriAggiuntiva(true);
    soglia(1, "3", "7");
    apri(finestra, "keyCodeRitardi_Out1");
    EXPECT_EQ(marker().MarkerAttivo(1, 1), 0.0);
    EXPECT_EQ(marker().MarkerMassimo(1, 1), 0.0);
    EXPECT_TRUE(messaggi.mostrati.empty());
}

TEST_F(ProveAggiuntiva, ASeventhEntryHasNoThresholdsAndIsTold) {
    progetto(7);
    r().TipoAnalisi(0);
    conFigure(7);
    apriAggiuntiva(true);
    const std::string motivo =
        "Indice non compreso nell'intervallo (le soglie sono previste per gli ingressi da 1 a 6, questo è il numero 7)";
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(messaggi.mostrati[0].testo, motivo);
    EXPECT_EQ(messaggi.mostrati[0].titolo, "KELVO 2014frmRAMO_AGGIUNTIVA:Form_Load");
    EXPECT_TRUE(a.lblSenzaSoglie.visibile());
    EXPECT_EQ(a.lblSenzaSoglie.testo(),
              "Questo ingresso non può avere soglie: sono previste per gli ingressi da 1 a 6.");
    EXPECT_TRUE(a.ctlGRID1.visibile()) << "the summary stands, asked for or not";
    EXPECT_EQ(a.ctlGRID1.testo(1, 1), "2,00");
    for (const auto& soglia : a.soglie) {
        EXPECT_FALSE(soglia.spunta.abilitato());
        EXPECT_FALSE(soglia.minimo.abilitato());
    }
    EXPECT_FALSE(a.cmdAzzera.visibile());
    ritorno();
    EXPECT_TRUE(tornata());
    EXPECT_FALSE(visualizza());
    // Whoever did not ask for thresholds is not stopped by a box.
    messaggi.mostrati.clear();
    apriAggiuntiva(false);
    EXPECT_TRUE(messaggi.mostrati.empty());
    EXPECT_FALSE(a.lblSenzaSoglie.visibile());
    ritorno();
    // The sixth has its row, and its panel opens again.
    conFigure(6);
    apriAggiuntiva(true);
    EXPECT_TRUE(messaggi.mostrati.empty());
    EXPECT_TRUE(s(1).spunta.abilitato());
    EXPECT_FALSE(a.lblSenzaSoglie.visibile());
    soglia(1, "3", "7");
    ritorno();
    EXPECT_EQ(marker().MarkerMassimo(6, 1), 7.0);
}

TEST_F(ProveAggiuntiva, AFieldThatBreaksItsPairStopsTheReturnWithOneBox) {
    conFigure(1);
    apriAggiuntiva(true);
    s(1).spunta.clicca();
    a.fuocoSu(s(1).massimo);
    s(1).massimo.scrivi("99");
    ritorno();
    EXPECT_EQ(testi(), std::vector<std::string>{"Attenzione! valori ammessi: MINIMO = 2; MASSIMO = 12"});
    EXPECT_FALSE(tornata());
}

TEST_F(ProveAggiuntiva, UntickingARefusedFieldPutsBackWhatStoodThere) {
    conFigure(1);
    apriAggiuntiva(true);
    s(1).spunta.clicca();
    EXPECT_FALSE(scrivi(s(1).minimo, ""));
    s(1).spunta.clicca();
    EXPECT_EQ(s(1).minimo.testo(), "0,00");
    ritorno();
    EXPECT_TRUE(tornata());
}

TEST_F(ProveAggiuntiva, WritesItsTextToTheByte) {
    for (const auto& [nome, i, descrizione] : std::vector<std::tuple<std::string, int, std::string>>{
             {"Rotatoria_Via_dei_Mulini", 3, ""},
             {"Rotatoria_Tangenziale_est", 2, "Località Città Più Là"},
             {"Rotatoria_Aurelia_Sette_Strade", 7, ""}}) {
        esempio(nome);
        if (!descrizione.empty()) {
            ramo(i).Descrizione(descrizione);
        }
        frmCapacitaCodeRitardiRamo altra(contorno(), servizi());
        apri(altra, "keyCodeRitardi_Out" + std::to_string(i));
        altra.ctlToolbar.premi("keyCalcola");
        altra.ctlToolbar2.premi("Aggiuntivi");
        altra.aggiuntiva.ctlToolbar.premi("Anteprima");
        EXPECT_EQ(file("Risultati2.txt"),
                  atteso("results/attesi/" + nome + "." + std::to_string(i) + ".riassunto.txt"));
        EXPECT_EQ(documenti.aperti.back(), app.theAmbiente.CartellaLavoro() + "Risultati2.txt");
        gestione.chiudiCorrente();
    }
}

TEST_F(ProveAggiuntiva, APreviewThatCannotBeWrittenIsTracedUnderItsLabel) {
    conFigure(1);
    apriAggiuntiva(false);
    std::filesystem::create_directory(app.theAmbiente.CartellaLavoro() + "Risultati2.txt");
    app.configurazione.TraceAbilitato = true;
    app.configurazione.PathErrore = "log.txt";
    scriviContenuto(cartella.file("log.txt"), "");
    a.ctlToolbar.premi("Anteprima");
    EXPECT_NE(contenuto(cartella.file("log.txt")).find(" - frmRAMO_AGGIUNTIVA:Anteprima 75 : Impossibile scrivere"),
              std::string::npos);
    EXPECT_EQ(cornice.avvisato.rfind("Impossibile scrivere", 0), 0U);
}

TEST_F(ProveAggiuntiva, AnEntryWithoutSegmentsHasAnEmptySummary) {
    ramo(1).theDatiTraffico().NumSegmentiTempo(0);
    apri(finestra, "keyCodeRitardi_Out1");
    finestra.ctlToolbar.premi("keyCalcola");
    apriAggiuntiva(true);
    for (int riga = 1; riga < 7; ++riga) {
        for (int c = 1; c < 4; ++c) {
            EXPECT_EQ(a.ctlGRID1.testo(riga, c), "");
        }
    }
    EXPECT_EQ(a.txtminLOS.testo(), "");
}

}  // namespace
}  // namespace kelvo::prove
