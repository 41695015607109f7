// The window of the counts of an entry: what it reads, takes, adds up, draws and writes.

#include "input/frmDatiTrafficoST.h"

#include <gtest/gtest.h>

#include "app/nuovoProgetto.h"
#include "base/guasto.h"
#include "comune/appunti.h"
#include "comune/fintiFinestre.h"
#include "input/gestiDati.h"

namespace kelvo::prove {
namespace {

using Tasto = Griglia::Tasto;
using Testi = std::vector<std::string>;

/// A project of three legs, 08:00 to 09:30 by 15 minutes, counted at its first leg; the totals that this one holds are
/// those of its counts.
struct ProveConteggi : testing::Test, ScenaFinestre {
    AppuntiFinti blocco;
    frmDatiTrafficoST finestra{contorno()};
    Griglia& griglia = finestra.ctlGrid;
    std::vector<ErroreRegistrato> errori;

    ProveConteggi() {
        app.appunti = &blocco;
        app.comune.alErrore = [this](const ErroreRegistrato& errore) { errori.push_back(errore); };
        creaProgetto(app, 3);
        Rotonda& r = app.theRotonda();
        r.TipoAnalisi(2);
        tempi(oraDelGiorno(8, 0), oraDelGiorno(9, 30), 15);
        for (std::int16_t i = 1; i <= 3; ++i) {
            dati(i).NumSegmentiTempo(6);
            r.Ramo(i).theComposizioneTraffico().NumSegmentiTempo(6);
        }
        conteggi(1, {10.0F, 20.5F, 30.0F, 15.0F, 0.0F, 4.5F});
        dati(1).FlussoTotale(80.0F);
        dati(1).FlussoMedio(0.89F);
        dati(1).FlussoOrario(53.33F);
    }
    DatiTraffico& dati(std::int16_t i) { return app.theRotonda().Ramo(i).theDatiTraffico(); }
    void tempi(DataOra inizio, DataOra fine, int minuti) {
        app.theRotonda().TempoIniziale(inizio);
        app.theRotonda().TempoFinale(fine);
        app.theRotonda().SegmentoTempo(oraDelGiorno(0, minuti));
    }
    void conteggi(std::int16_t i, const std::vector<float>& valori) {
        for (std::size_t k = 0; k < valori.size(); ++k) {
            dati(i).FlussoSegmento(valori[k], static_cast<std::int16_t>(k), 0);
        }
    }
    /// A click on a node; false if the window at hand refused to be left.
    bool apri(const std::string& chiave = "keyDatiTraffico1") {
        navigazione.corrente = chiave;
        const bool aperta = gestione.ShowForm(&finestra);
        finestra.fuocoSu(griglia);
        return aperta;
    }
    Testi colonna(int c) const {
        Testi testi;
        for (int r = 1; r < griglia.tabella().righe(); ++r) {
            testi.push_back(griglia.testo(r, c));
        }
        return testi;
    }
    std::string totali() const {
        return finestra.txtFlussoTotale.testo() + " " + finestra.txtFlussoMedio.testo() + " " +
               finestra.txtFlussoOrario.testo();
    }
    const Grafico::Serie& barre() const { return finestra.ctlChart.contenuto().serie.at(0); }
    std::string salva(const std::string& nome) { return testoSalvato(app, cartella.percorso() + "/" + nome); }
};

TEST_F(ProveConteggi, FieldsCarryTheirLabelsAndUnitsAndAreNotTyped) {
    apri();
    EXPECT_EQ(finestra.didascalia(), "Dati di traffico");
    EXPECT_EQ(finestra.sottotitolo.testo(), "Ramo A");
    Testi righe;
    for (const frmDatiTrafficoST::Riga& riga : finestra.righe()) {
        righe.push_back(riga.campo->nome() + "|" + std::string{riga.etichetta} + "|" + std::string{riga.unita});
        const std::string prima = riga.campo->testo();
        riga.campo->scrivi("77");
        EXPECT_EQ(riga.campo->testo(), prima) << riga.campo->nome();
    }
    EXPECT_EQ(righe, (Testi{"txtDescrizioneRamo|Denominazione ramo:|", "txtIntervalloTempo|Intervallo di tempo|[min]",
                            "txtFlussoTotale|Flusso Totale Ingresso|[veicoli]",
                            "txtFlussoMedio|Flusso Medio|[veicoli/min]", "txtFlussoOrario|Flusso Orario|[veicoli/h]"}));
    EXPECT_EQ(finestra.Check1.testo(), "Inserisci valori grafico");
}

TEST_F(ProveConteggi, ReadDataShowsTheTotalsOfTheLegAndItsCounts) {
    dati(1).FlussoTotale(359.6F);
    dati(1).FlussoMedio(6.25F);
    dati(1).FlussoOrario(375.0F);
    app.theRotonda().Ramo(1).Descrizione("Via Roma");
    app.theRotonda().SegmentoTempo(oraDelGiorno(0, 5));
    apri();
    EXPECT_EQ(finestra.txtDescrizioneRamo.testo(), "Via Roma");
    EXPECT_EQ(finestra.txtIntervalloTempo.testo(), "05");
    EXPECT_EQ(totali(), "359,6 6,25 375");
    EXPECT_EQ(colonna(1), (Testi{"10", "20,5", "30", "15", "0", "4,5"}));
    EXPECT_TRUE(finestra.DatiAllineati());
}

TEST_F(ProveConteggi, GridHasARowASegmentWithItsTimes) {
    apri();
    const Tabella& t = griglia.tabella();
    EXPECT_EQ(t.righe(), 7);
    EXPECT_EQ(t.colonne(), 2);
    EXPECT_EQ(t.testo(0, 0), "Tempo");
    EXPECT_EQ(t.testo(0, 1), "Flusso [veicoli]");
    EXPECT_EQ(t.larghezze, (std::vector<int>{1900, 1800}));
    EXPECT_EQ(colonna(0), (Testi{"08:00 - 08:15", "08:15 - 08:30", "08:30 - 08:45", "08:45 - 09:00", "09:00 - 09:15",
                                 "09:15 - 09:30"}));
    EXPECT_EQ(griglia.righeFisse(), 1);
    EXPECT_EQ(griglia.colonneFisse(), 1);
}

TEST_F(ProveConteggi, GreensOfTheTableStandUnderWhiteText) {
    apri();
    const Tabella& t = griglia.tabella();
    for (const int c : {0, 1}) {
        EXPECT_EQ(t.cella(0, c).sfondo, (Colore{0, 98, 0}));
        EXPECT_EQ(t.cella(0, c).inchiostro, (Colore{255, 255, 255}));
    }
    for (int r = 1; r < t.righe(); ++r) {
        EXPECT_EQ(t.cella(r, 0).sfondo, (Colore{164, 196, 0})) << r;
        EXPECT_EQ(t.cella(r, 0).inchiostro, (Colore{255, 255, 255})) << r;
        EXPECT_EQ(t.cella(r, 1).sfondo, (Colore{255, 255, 255})) << r;
    }
}

TEST_F(ProveConteggi, ALeftCellIsAddedUpAndDrawn) {
    apri();
    griglia.scrivi("12,5");
    griglia.premiTasto(Tasto::invio);
    EXPECT_EQ(griglia.testo(1, 1), "12,5");
    // 12.5 + 20.5 + 30 + 15 + 0 + 4.5 over 90 minutes
    EXPECT_EQ(totali(), "83 0,92 55,00");
    EXPECT_EQ(barre().valori, (std::vector<double>{12.5, 20.5, 30.0, 15.0, 0.0, 4.5}));
    EXPECT_FALSE(finestra.DatiAllineati());
    EXPECT_EQ(dati(1).FlussoSegmento(0, 0), 10.0F) << "nothing before it is saved";
}

TEST_F(ProveConteggi, LeavingACellAddsUpAlsoWithoutAChange) {
    dati(1).FlussoTotale(999.0F);
    apri();
    EXPECT_EQ(totali(), "999 0,89 53,33");
    griglia.premiTasto(Tasto::giu);
    EXPECT_EQ(totali(), "80 0,89 53,33");
    EXPECT_TRUE(finestra.DatiAllineati());
}

TEST_F(ProveConteggi, TotalIsRoundedToASingleAtEachStep) {
    // Singles of this size are even: one and one again get lost behind the large count, and not in front of it.
    conteggi(1, {16777220.0F, 1.0F, 1.0F, 0.0F, 0.0F, 0.0F});
    apri();
    griglia.premiTasto(Tasto::giu);
    EXPECT_EQ(finestra.txtFlussoMedio.testo(), "186413,56");  // 16777220 / 90
    conteggi(1, {1.0F, 1.0F, 16777220.0F, 0.0F, 0.0F, 0.0F});
    finestra.ctlToolbar.premi("Refresh");
    finestra.AggiornaTotali();
    EXPECT_EQ(finestra.txtFlussoMedio.testo(), "186413,58");  // 16777222 / 90
}

TEST_F(ProveConteggi, AnEmptiedCellShowsZero) {
    apri();
    griglia.premiTasto(Tasto::canc);
    EXPECT_EQ(griglia.testo(1, 1), "0");
    EXPECT_EQ(totali(), "70 0,78 46,67");
    griglia.premiTasto(Tasto::giu);
    griglia.premiTasto(Tasto::indietro);  // opens the cell and empties it
    EXPECT_EQ(griglia.testoEditor(), "");
    griglia.premiTasto(Tasto::invio);
    EXPECT_EQ(griglia.testo(2, 1), "0");
    griglia.scrivi(",");
    griglia.premiTasto(Tasto::invio);
    EXPECT_EQ(griglia.testo(3, 1), "0") << "a lone comma";
}

TEST_F(ProveConteggi, ACellTakesThePlainNumberOfItsText) {
    apri();
    const auto scritto = [&](const std::string& testo) {
        griglia.corrente({2, 1});
        griglia.scrivi(testo);
        griglia.premiTasto(Tasto::invio);
        return griglia.testo(2, 1);
    };
    EXPECT_EQ(scritto("007"), "7");
    EXPECT_EQ(scritto("7,50"), "7,5");
    EXPECT_EQ(scritto(",25"), "0,25");
    EXPECT_EQ(scritto("8,"), "8");
    EXPECT_EQ(scritto("123,456789"), "123,456789");
}

TEST_F(ProveConteggi, ATextThatIsNoNumberStaysInTheEditor) {
    apri();
    griglia.scrivi("1,2,3");
    griglia.premiTasto(Tasto::invio);
    EXPECT_TRUE(griglia.inModifica());
    EXPECT_EQ(griglia.testoEditor(), "1,2,3");
    EXPECT_EQ(cornice.avvisato, "Scrivere un numero.");
    EXPECT_EQ(griglia.testo(1, 1), "10");
    EXPECT_FALSE(apri("keyDatiTraffico2")) << "the window is kept";
    griglia.premiTasto(Tasto::esc);
    griglia.scrivi(std::string(40, '9'));
    griglia.premiTasto(Tasto::invio);
    EXPECT_TRUE(griglia.inModifica());
    EXPECT_EQ(cornice.avvisato, "Il numero è troppo grande.");
    griglia.premiTasto(Tasto::esc);
    EXPECT_TRUE(apri("keyDatiTraffico2"));
}

TEST_F(ProveConteggi, ADroppedKeyEndsTheEditAndGoesToTheNextRow) {
    apri();
    EXPECT_EQ(griglia.corrente(), (Posto{1, 1}));
    griglia.scrivi("25x");
    EXPECT_FALSE(griglia.inModifica());
    EXPECT_EQ(griglia.testoEditor(), "");
    EXPECT_EQ(griglia.testo(1, 1), "25");
    EXPECT_EQ(griglia.corrente(), (Posto{2, 1}));
    griglia.scrivi("x.-");
    EXPECT_EQ(griglia.testo(2, 1), "20,5") << "without an edit there is nothing to end";
    griglia.scrivi("3.");
    EXPECT_EQ(griglia.testo(2, 1), "3") << "the point is dropped as well";
    griglia.scrivi("41");
    griglia.premiTasto(Tasto::indietro);
    EXPECT_EQ(griglia.testoEditor(), "4") << "Backspace passes";
    griglia.premiTasto(Tasto::invio);
    EXPECT_EQ(griglia.testo(3, 1), "4");
}

TEST_F(ProveConteggi, EnterGoesDownTheColumnAndStaysAtItsEnd) {
    apri();
    std::vector<Posto> giro;
    for (int i = 0; i < 6; ++i) {
        griglia.scrivi("2");
        griglia.premiTasto(Tasto::invio);
        giro.push_back(griglia.corrente());
    }
    EXPECT_EQ(giro, (std::vector<Posto>{{2, 1}, {3, 1}, {4, 1}, {5, 1}, {6, 1}, {6, 1}}));
    EXPECT_EQ(totali(), "12 0,13 8,00");
}

TEST_F(ProveConteggi, TheEditorOpensWithTheWholeTextOfTheCellSelected) {
    apri();
    griglia.corrente({2, 1});
    griglia.premiTasto(Tasto::f2);
    EXPECT_EQ(griglia.testoEditor(), "20,5");
    EXPECT_TRUE(griglia.tuttoScelto());
    griglia.premiTasto(Tasto::esc);
    EXPECT_TRUE(finestra.DatiAllineati());
}

TEST_F(ProveConteggi, ABlockOfDecimalsIsPastedAndClipped) {
    apri();
    griglia.corrente({4, 1});
    blocco.testo = "1,5\r\n2.25\r\n\r\n99\r\n";
    griglia.premiTasto(Tasto::incolla);
    EXPECT_EQ(colonna(1), (Testi{"10", "20,5", "30", "1,5", "2,25", "0"}));
    EXPECT_EQ(totali(), "64 0,71 42,83");  // 64.25
    EXPECT_EQ(barre().valori[4], 2.25);
    EXPECT_FALSE(finestra.DatiAllineati());
    griglia.premiTasto(Tasto::annulla);
    EXPECT_EQ(colonna(1), (Testi{"10", "20,5", "30", "15", "0", "4,5"}));
    EXPECT_EQ(totali(), "80 0,89 53,33");
    EXPECT_TRUE(finestra.DatiAllineati());
    griglia.premiTasto(Tasto::ripeti);
    EXPECT_EQ(totali(), "64 0,71 42,83");
}

TEST_F(ProveConteggi, ABlockWithABadCellIsRefusedAsAWhole) {
    apri();
    const std::string troppo(40, '9');
    for (const auto& [cella, motivo] : {std::pair<std::string, std::string>{"due", "non è un numero"},
                                        {"1.234", "si può leggere in due modi, con i decimali o con le migliaia"},
                                        {"-2", "è minore di 0"},
                                        {troppo, "è troppo grande"}}) {
        messaggi.mostrati.clear();
        blocco.testo = "1\r\n" + cella + "\r\n3";
        griglia.corrente({1, 1});
        griglia.premiTasto(Tasto::incolla);
        ASSERT_EQ(messaggi.mostrati.size(), 1U) << cella;
        EXPECT_EQ(messaggi.mostrati[0].testo, "Il testo '" + cella + "' (riga '08:15 - 08:30', colonna " +
                                                  "'Flusso [veicoli]') " + motivo + ": non è stato incollato nulla.");
        EXPECT_EQ(colonna(1), (Testi{"10", "20,5", "30", "15", "0", "4,5"})) << cella;
    }
    EXPECT_TRUE(finestra.DatiAllineati());
}

TEST_F(ProveConteggi, TheSelectionIsCopiedWithItsHeadingsOnWish) {
    apri();
    griglia.corrente({1, 1});
    griglia.premiTasto(Tasto::giu, true);
    griglia.premiTasto(Tasto::copia);
    EXPECT_EQ(blocco.testo, "10\r\n20,5");
    griglia.premiTasto(Tasto::copiaConIntestazioni);
    EXPECT_EQ(blocco.testo, "Tempo\tFlusso [veicoli]\r\n08:00 - 08:15\t10\r\n08:15 - 08:30\t20,5");
}

TEST_F(ProveConteggi, ChartIsAHistogramOfTheCounts) {
    apri();
    const Grafico::Contenuto& c = finestra.ctlChart.contenuto();
    EXPECT_EQ(c.x.titolo, "[ora]");
    EXPECT_EQ(c.y.titolo, "[veicoli]");
    EXPECT_FALSE(c.legenda);
    EXPECT_EQ(c.nota, "");
    EXPECT_EQ(barre().forma, Grafico::Forma::barre);
    EXPECT_EQ(barre().valori, (std::vector<double>{10.0, 20.5, 30.0, 15.0, 0.0, 4.5}));
    EXPECT_EQ(c.x.etichette,
              (Testi{"08:00-08:15", "08:15-08:30", "08:30-08:45", "08:45-09:00", "09:00-09:15", "09:15-09:30"}));
    EXPECT_EQ(c.x.etichette, finestra.EtichetteSegmento());
}

TEST_F(ProveConteggi, Check1PrintsTheCountsOverTheBars) {
    apri();
    EXPECT_FALSE(finestra.ctlChart.contenuto().valori);
    finestra.Check1.clicca();
    EXPECT_TRUE(finestra.ctlChart.contenuto().valori);
    EXPECT_EQ(barre().testi, (Testi{"10", "20,5", "30", "15", "0", "4,5"}));
    apri("keyDatiTraffico2");
    EXPECT_FALSE(finestra.Check1.spuntata());
    EXPECT_FALSE(finestra.ctlChart.contenuto().valori);
}

TEST_F(ProveConteggi, ChartTakesTheColourOfTheOptions) {
    apri();
    app.configurazione.LayoutPannello = 4;
    finestra.DoTheChart();
    EXPECT_EQ(barre().colore, (Colore{0, 128, 0}));
    app.configurazione.LayoutPannello = 2;
    finestra.RefreshGraph();
    EXPECT_EQ(barre().colore, (Colore{192, 0, 0}));
}

TEST_F(ProveConteggi, AChartThatFailsIsToldUnderItsTitle) {
    apri();
    finestra.ctlChart.cambiato().connect([] { throw Guasto(NumeroGuasto::overflow, "disegno"); });
    finestra.Check1.clicca();
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(messaggi.mostrati[0].titolo, "KELVO 2014 - RefreshGraph");
    EXPECT_EQ(errori.size(), 1U);
}

TEST_F(ProveConteggi, SaveDataWritesTotalsAndCounts) {
    apri();
    griglia.scrivi("12,5");
    griglia.premiTasto(Tasto::invio);
    griglia.premiTasto(Tasto::canc);
    finestra.ctlToolbar.premi("AggiornaDati");
    EXPECT_EQ(dati(1).FlussiSegmento(), (std::vector<float>{12.5F, 0.0F, 30.0F, 15.0F, 0.0F, 4.5F}));
    EXPECT_EQ(dati(1).FlussoTotale(), 62.0F);
    EXPECT_EQ(dati(1).FlussoMedio(), 0.69F);
    EXPECT_EQ(dati(1).FlussoOrario(), 41.33F);
    EXPECT_TRUE(finestra.DatiAllineati());
    EXPECT_FALSE(griglia.modificata());
}

TEST_F(ProveConteggi, WhatIsBeingTypedIsSavedAndAddedUpToo) {
    apri();
    griglia.scrivi("88");
    EXPECT_TRUE(apri("keyDatiTraffico2"));
    EXPECT_EQ(dati(1).FlussoSegmento(0, 0), 88.0F);
    EXPECT_EQ(dati(1).FlussoTotale(), 158.0F);
    EXPECT_EQ(dati(2).FlussoSegmento(0, 0), 0.0F);
    EXPECT_EQ(colonna(1), (Testi{"0", "0", "0", "0", "0", "0"}));
    EXPECT_EQ(finestra.sottotitolo.testo(), "Ramo B");
}

TEST_F(ProveConteggi, ACellThatWasNotTouchedKeepsItsDigits) {
    conteggi(1, {33.333332F});
    apri();
    EXPECT_EQ(griglia.testo(1, 1), "33,33333");
    griglia.corrente({2, 1});
    griglia.scrivi("1");
    finestra.SaveData();
    EXPECT_EQ(dati(1).FlussoSegmento(0, 0), 33.333332F);
    EXPECT_EQ(dati(1).FlussoSegmento(1, 0), 1.0F);
}

TEST_F(ProveConteggi, LookingAtALegNeverChangesIt) {
    conteggi(1, {33.333332F});
    dati(1).FlussoTotale(111.5F);  // of no table
    const std::string prima = salva("prima.klv");
    for (const char* chiave : {"keyDatiTraffico1", "keyDatiTraffico2", "keyDatiTraffico3", "keyDatiTraffico1"}) {
        EXPECT_TRUE(apri(chiave));
        for (int i = 0; i < 6; ++i) {
            griglia.premiTasto(Tasto::f2);
            griglia.premiTasto(Tasto::invio);
        }
        for (Controllo* c : finestra.ordine()) {
            finestra.fuocoSu(*c);
        }
        EXPECT_TRUE(finestra.DatiAllineati()) << chiave;
    }
    gestione.chiudiCorrente();
    EXPECT_EQ(salva("dopo.klv"), prima);
}

TEST_F(ProveConteggi, TheKeyOfTheToolBarPutsTotalsRightThatDoNotAgree) {
    dati(1).FlussoTotale(999.0F);
    apri();
    finestra.ctlToolbar.premi("AggiornaDati");
    EXPECT_EQ(dati(1).FlussoTotale(), 80.0F);
    const auto revisione = app.theRotonda().revisione().tutto;
    finestra.ctlToolbar.premi("AggiornaDati");
    EXPECT_EQ(app.theRotonda().revisione().tutto, revisione) << "once right, nothing is left to write";
}

TEST_F(ProveConteggi, RefreshDiscardsWhatWasTyped) {
    apri();
    griglia.scrivi("99");
    griglia.premiTasto(Tasto::invio);
    griglia.scrivi("5");
    finestra.ctlToolbar.premi("Refresh");
    EXPECT_FALSE(griglia.inModifica());
    EXPECT_EQ(colonna(1), (Testi{"10", "20,5", "30", "15", "0", "4,5"}));
    EXPECT_EQ(totali(), "80 0,89 53,33");
    EXPECT_EQ(barre().valori[0], 10.0);
    EXPECT_TRUE(finestra.DatiAllineati());
    finestra.ctlToolbar.premi("Archivio");
    EXPECT_TRUE(messaggi.mostrati.empty());
}

TEST_F(ProveConteggi, AnotherLegStartsAtItsFirstRowAndTheSameOneStays) {
    apri();
    griglia.corrente({4, 1});
    apri("keyDatiTraffico1");
    EXPECT_EQ(griglia.corrente(), (Posto{4, 1}));
    apri("keyDatiTraffico2");
    EXPECT_EQ(griglia.corrente(), (Posto{1, 1}));
}

TEST_F(ProveConteggi, SegmentsPastTheRowsCountAsNothing) {
    // The window was lengthened to whole segments after the rows had been counted.
    tempi(oraDelGiorno(8, 0), oraDelGiorno(9, 45), 15);
    apri();
    EXPECT_EQ(griglia.tabella().righe(), 7);
    EXPECT_EQ(finestra.FlussiSegmento(), (std::vector<float>{10.0F, 20.5F, 30.0F, 15.0F, 0.0F, 4.5F, 0.0F}));
    griglia.premiTasto(Tasto::giu);
    EXPECT_EQ(totali(), "80 0,76 45,71") << "over 105 minutes";
    EXPECT_EQ(finestra.ctlChart.contenuto().x.etichette.back(), "09:30-09:45");
}

TEST_F(ProveConteggi, RowsPastTheModellingTimeAreNotAddedUp) {
    tempi(oraDelGiorno(8, 0), oraDelGiorno(8, 30), 15);
    apri();
    griglia.premiTasto(Tasto::giu);
    EXPECT_EQ(totali(), "31 1,02 61,00");  // 10 + 20.5
    EXPECT_EQ(barre().valori.size(), 2U);
}

TEST_F(ProveConteggi, WithoutASegmentTotalsAndBarsStay) {
    apri();
    app.theRotonda().TempoFinale(oraDelGiorno(8, 0));
    griglia.scrivi("50");
    griglia.premiTasto(Tasto::invio);
    EXPECT_EQ(totali(), "80 0,89 53,33");
    EXPECT_EQ(finestra.FlussiSegmento().size(), 6U);
    apri("keyDatiTraffico2");
    EXPECT_TRUE(finestra.ctlChart.vuoto()) << "no bars of the leg before";
}

TEST_F(ProveConteggi, ASegmentOfNoMinutesFailsUnderTheNameOfTheCells) {
    apri();
    app.theRotonda().SegmentoTempo(oraDelGiorno(1, 0));
    griglia.scrivi("5");
    griglia.premiTasto(Tasto::invio);
    ASSERT_FALSE(errori.empty());
    EXPECT_EQ(errori[0].numero, 11);
    EXPECT_EQ(errori[0].metodo, "frmMatriceSvolte:Immagini");
    errori.clear();
    finestra.SaveData();
    ASSERT_EQ(errori.size(), 1U);
    EXPECT_EQ(errori[0].metodo, "frmDatiTrafficoST:SaveData");
}

TEST_F(ProveConteggi, EmptyStatesTellWhatToDo) {
    apri("keyDatiTraffico2");
    EXPECT_NE(finestra.ctlChart.contenuto().nota.find("veicoli contati"), std::string::npos);
    dati(3).NumSegmentiTempo(0);
    apri("keyDatiTraffico3");
    EXPECT_EQ(griglia.tabella().righe(), 1);
    EXPECT_NE(finestra.ctlChart.contenuto().nota.find("tempi di modellazione"), std::string::npos);
    EXPECT_TRUE(errori.empty());
}

TEST_F(ProveConteggi, AChangeOfTheTimesLeavesATableOfZeros) {
    apri();
    dati(1).NumSegmentiTempo(3);
    tempi(oraDelGiorno(8, 0), oraDelGiorno(9, 30), 30);
    gestione.chiudiCorrente();
    apri();
    EXPECT_EQ(colonna(0), (Testi{"08:00 - 08:30", "08:30 - 09:00", "09:00 - 09:30"}));
    EXPECT_EQ(colonna(1), (Testi{"0", "0", "0"}));
}

TEST_F(ProveConteggi, TheGridBringsItsPageAndTheTotalsTheirs) {
    apri();
    EXPECT_EQ(finestra.ctlHelp.pagina(), "FlussoSegmento.htm");
    finestra.fuocoSu(finestra.txtFlussoOrario);
    EXPECT_EQ(finestra.ctlHelp.pagina(), "FlussoOrario.htm");
}

TEST_F(ProveConteggi, KeyboardStartsInTheTableAndGoesOnToTheTotals) {
    apri();
    Testi nomi;
    for (const Controllo* c : finestra.ordine()) {
        if (c->prendeFuoco()) {
            nomi.push_back(c->nome());
        }
    }
    EXPECT_EQ(nomi, (Testi{"ctlGrid", "txtDescrizioneRamo", "txtIntervalloTempo", "txtFlussoTotale", "txtFlussoMedio",
                           "txtFlussoOrario", "Check1", "ctlChart"}));
}

}  // namespace
}  // namespace kelvo::prove
