#include "input/frmComposizioneTrafficoST.h"

#include <gtest/gtest.h>

#include "input/scenaComposizioneST.h"

namespace kelvo::prove {
namespace {

struct ProveTabella : ScenaComposizioneST {};

TEST_F(ProveTabella, HeadingsAndIntervalsAreThoseOfTheLeg) {
    apri(2);
    EXPECT_EQ(finestra.didascalia(), "Composizione del traffico per segmenti");
    EXPECT_EQ(finestra.sottotitolo.testo(), "Ramo B");
    const std::array<const char*, 10> testate{"[ora]\\[veicoli]", "Autoarticolati", "Autocarri", "Autobus",
                                              "Furgoni",          "Roulotte",       "Motocicli", "Autovetture",
                                              "Totale segmento",  "Flusso ingresso"};
    ASSERT_EQ(griglia.tabella().righe(), 7);
    ASSERT_EQ(griglia.tabella().colonne(), 10);
    for (int c = 0; c < 10; ++c) {
        EXPECT_EQ(griglia.testo(0, c), testate[static_cast<std::size_t>(c)]);
        EXPECT_EQ(griglia.tabella().cella(0, c).sfondo, (Colore{0, 98, 0}));
        EXPECT_EQ(griglia.tabella().cella(0, c).inchiostro, (Colore{255, 255, 255}));
    }
    const std::array<const char*, 6> intervalli{"08:00 - 08:15", "08:15 - 08:30", "08:30 - 08:45",
                                                "08:45 - 09:00", "09:00 - 09:15", "09:15 - 09:30"};
    for (int r = 1; r <= 6; ++r) {
        EXPECT_EQ(griglia.testo(r, 0), intervalli[static_cast<std::size_t>(r - 1)]);
    }
}

TEST_F(ProveTabella, CellsShowTheVehiclesAndTheirTotal) {
    riempi(1);
    apri();
    EXPECT_EQ(riga(1), "1 2 3 4 5 6 7 28 60");
    EXPECT_EQ(riga(2), "11 12 13 14 15 16 17 98 105");
    EXPECT_EQ(riga(6), "51 52 53 54 55 56 57 378 30");
}

TEST_F(ProveTabella, TheFlowOfACurveIsItsBarByTheMinutes) {
    apri();
    EXPECT_EQ(flussi(), "60 105 150 110 70 30");
}

TEST_F(ProveTabella, ABarIsRoundedToWholeVehicles) {
    // 15 minutes of 4,1 are 61,5; of 7,05 are 105,75.
    dati(1).FlussoTempo1(4.1F);
    apri();
    EXPECT_EQ(flussi(), "62 106 150 110 70 30");
}

TEST_F(ProveTabella, OutsideTheCurveNothingEnters) {
    // From 08:15 to 09:15: 4, 10, then down to 2 in two steps.
    dati(1).Tempo1(oraDelGiorno(8, 15));
    dati(1).Tempo2(oraDelGiorno(8, 30));
    dati(1).Tempo3(oraDelGiorno(9, 15));
    apri();
    EXPECT_EQ(flussi(), "0 60 150 90 30 0");
}

TEST_F(ProveTabella, ACurveThatBeginsBeforeTheWindowGivesItsLaterBars) {
    app.theRotonda().TempoIniziale(oraDelGiorno(8, 30));
    apri();
    EXPECT_EQ(flussi(), "150 110 70 30 0 0");
    EXPECT_EQ(griglia.testo(1, 0), "08:30 - 08:45");
}

TEST_F(ProveTabella, ACurveThatCannotBeBuiltGivesNothingAndSaysWhatToDo) {
    dati(1).Tempo2(oraDelGiorno(8, 0));
    apri();
    EXPECT_EQ(flussi(), "0 0 0 0 0 0");
    EXPECT_TRUE(errori.empty());
    EXPECT_EQ(finestra.lblErroreStato.testo(),
              "Flusso in ingresso nullo: inserire prima i dati di traffico dell'ingresso");
    EXPECT_TRUE(finestra.lblErroreStato.visibile());
    EXPECT_FALSE(finestra.lblStato.visibile());
}

TEST_F(ProveTabella, AFaultOfTheCurveIsRecordedAndTheTableStandsAllTheSame) {
    app.theRotonda().SegmentoTempo(oraDelGiorno(1, 0));  // its minutes field is 0
    riempi(1);
    apri();
    ASSERT_EQ(errori.size(), 1U);
    EXPECT_EQ(errori[0].metodo, "frmComposizioneTrafficoST:ReadData");
    EXPECT_EQ(riga(1), "1 2 3 4 5 6 7 28 0");
}

TEST_F(ProveTabella, TheFlowOfCountsIsTheCount) {
    app.theRotonda().TipoAnalisi(2);
    for (std::int16_t k = 0; k < 6; ++k) {
        dati(1).FlussoSegmento(static_cast<float>(k) + 20.5F, k, 0);
    }
    apri();
    EXPECT_EQ(flussi(), "20,5 21,5 22,5 23,5 24,5 25,5");
}

TEST_F(ProveTabella, ASaturationAloneHasNoFlow) {
    app.theRotonda().TipoAnalisi(0);
    apri();
    EXPECT_EQ(flussi(), "0 0 0 0 0 0");
    EXPECT_EQ(finestra.lblErroreStato.testo(),
              "Flusso in ingresso nullo: il tipo di analisi scelto nelle Opzioni non ha dati di traffico");
}

TEST_F(ProveTabella, ATableWithoutSegmentsSaysWhatToDoFirst) {
    segmenti(1, 0);
    apri();
    EXPECT_EQ(griglia.tabella().righe(), 1);
    EXPECT_EQ(finestra.lblErroreStato.testo(), "Nessun segmento di tempo: impostare prima i tempi di modellazione");
    for (Casella& casella : finestra.chkLock) {
        EXPECT_FALSE(casella.abilitato());
        casella.clicca();
        EXPECT_FALSE(casella.spuntata());
    }
    EXPECT_TRUE(messaggi.mostrati.empty());
    EXPECT_FALSE(finestra.cmdImportaCSV.abilitato());
    finestra.SaveData();
    EXPECT_TRUE(errori.empty());
    segmenti(1, 1);
    apri();
    EXPECT_TRUE(finestra.cmdImportaCSV.abilitato());
}

TEST_F(ProveTabella, OtherTimesBringATableOfThatManyRows) {
    apri();
    segmenti(1, 72);
    apri();
    EXPECT_EQ(griglia.tabella().righe(), 73);
    EXPECT_EQ(riga(72), "0 0 0 0 0 0 0 0 0");
}

TEST_F(ProveTabella, OnlyDigitsPassTheEditor) {
    apri();
    griglia.scrivi("1");
    griglia.scrivi("a,.- +");
    griglia.scrivi("2");
    EXPECT_EQ(griglia.testoEditor(), "12");
    EXPECT_TRUE(griglia.inModifica());
    griglia.premiTasto(Tasto::indietro);
    EXPECT_EQ(griglia.testoEditor(), "1");
}

TEST_F(ProveTabella, AnEmptyTextBecomesZero) {
    riempi(1);
    apri();
    griglia.corrente({1, 3});
    griglia.premiTasto(Tasto::f2);
    griglia.correggi("");
    EXPECT_TRUE(griglia.premiTasto(Tasto::invio));
    EXPECT_EQ(riga(1), "1 2 0 4 5 6 7 25 60");
    griglia.premiTasto(Tasto::canc);
    EXPECT_EQ(riga(1), "1 2 0 0 5 6 7 21 60");
}

TEST_F(ProveTabella, LeadingZerosFallAway) {
    apri();
    scrivi(1, 1, "007");
    EXPECT_EQ(riga(1), "7 0 0 0 0 0 0 7 60");
}

TEST_F(ProveTabella, TheTotalIsMadeAnewWithEachValue) {
    apri();
    for (int c = 1; c <= 7; ++c) {
        scrivi(2, c, std::to_string(c));
    }
    EXPECT_EQ(riga(2), "1 2 3 4 5 6 7 28 105");
    EXPECT_FALSE(finestra.DatiAllineati());
    EXPECT_TRUE(messaggi.mostrati.empty());
}

TEST_F(ProveTabella, EnterGoesAlongTheRowPastTheTotals) {
    apri();
    scrivi(1, 6, "1");
    EXPECT_EQ(griglia.corrente(), (Posto{1, 7}));
    scrivi(1, 7, "1");
    EXPECT_EQ(griglia.corrente(), (Posto{2, 1}));
}

TEST_F(ProveTabella, TotalAndFlowTakeNoText) {
    apri();
    for (const int c : {8, 9}) {
        EXPECT_TRUE(griglia.corrente({1, c}));
        EXPECT_FALSE(griglia.puoModificare({1, c}));
        griglia.scrivi("5");
        EXPECT_FALSE(griglia.inModifica());
    }
    EXPECT_EQ(riga(1), "0 0 0 0 0 0 0 0 60");
}

TEST_F(ProveTabella, ANumberTooLargeIsRefusedAndTheCellReset) {
    riempi(1);
    apri();
    messaggi.alMostrare = [this] { EXPECT_TRUE(griglia.fallita()); };
    for (const char* testo : {"1000000000", "99999999999999999999999999999999999999999999999"}) {
        messaggi.mostrati.clear();
        scrivi(1, 2, testo);
        ASSERT_EQ(messaggi.mostrati.size(), 1U);
        EXPECT_EQ(messaggi.mostrati[0].testo, "Attenzione! Numero inserito troppo grande. Controllare valore.");
        EXPECT_EQ(messaggi.mostrati[0].titolo, "KELVO 2014");
        EXPECT_EQ(griglia.corrente(), (Posto{1, 2}));
        EXPECT_EQ(griglia.testoEditor(), "2");
        EXPECT_FALSE(griglia.fallita());
        EXPECT_EQ(riga(1), "1 2 3 4 5 6 7 28 60");
        griglia.premiTasto(Tasto::invio);
        EXPECT_FALSE(griglia.inModifica());
    }
    EXPECT_TRUE(finestra.DatiAllineati());
}

TEST_F(ProveTabella, TheLargestNumberIsTakenWithAllItsDigits) {
    apri();
    for (int c = 1; c <= 7; ++c) {
        scrivi(1, c, "999999999");
    }
    EXPECT_EQ(griglia.testo(1, 8), "6999999993");
    EXPECT_EQ(messaggi.mostrati.size(), 7U);
    scrivi(2, 1, "16777217");  // the first whole number that a single does not hold
    EXPECT_EQ(griglia.testo(2, 8), "16777217");
    finestra.SaveData();
    EXPECT_TRUE(errori.empty());
    EXPECT_EQ(composizione(1).CategoriaSegmento(0, 6), 1e9F);
    EXPECT_EQ(composizione(1).CategoriaSegmento(1, 0), 16777216.0F);
    apri();
    EXPECT_EQ(griglia.testo(2, 1), "16777216");
    EXPECT_EQ(griglia.testo(1, 8), "7000000000");
}

TEST_F(ProveTabella, ARowPastItsFlowIsToldAndKept) {
    riempi(1);
    apri();
    scrivi(1, 7, "39");  // 21 + 39 is the flow
    EXPECT_TRUE(messaggi.mostrati.empty());
    scrivi(1, 7, "40");
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(messaggi.mostrati[0].testo,
              "Segmento di tempo '08:00 - 08:15': numero veicoli inseriti > numero di veicoli in ingresso [60 veic].");
    EXPECT_EQ(messaggi.mostrati[0].titolo, "KELVO 2014 - Attenzione");
    EXPECT_EQ(messaggi.mostrati[0].icona, Icona::esclamazione);
    EXPECT_EQ(riga(1), "1 2 3 4 5 6 40 61 60");
    EXPECT_EQ(griglia.corrente(), (Posto{2, 1}));
}

TEST_F(ProveTabella, HowARowStandsToItsFlowIsSeenAtAGlance) {
    riempi(1);
    apri();
    scrivi(1, 7, "39");
    const auto totale = [this](int r) { return griglia.tabella().cella(r, 8); };
    EXPECT_TRUE(totale(1).grassetto);
    EXPECT_EQ(totale(1).sfondo, colori::dati);
    EXPECT_EQ(griglia.ornamento({1, 8}).barra, tinta::verde);
    EXPECT_FALSE(totale(2).grassetto);  // 98 of 105
    EXPECT_FALSE(griglia.ornamento({2, 8}).barra.has_value());
    EXPECT_EQ(griglia.ornamento({2, 8}).segno, OrnamentoCella::Segno::nessuno);
    EXPECT_TRUE(totale(6).grassetto);  // 378 of 30
    EXPECT_EQ(totale(6).sfondo, (Colore{255, 140, 140}));
    EXPECT_EQ(griglia.ornamento({6, 8}).segno, OrnamentoCella::Segno::attenzione);
    EXPECT_EQ(griglia.ornamento({6, 1}).segno, OrnamentoCella::Segno::nessuno);
}

TEST_F(ProveTabella, TheSegmentOfTheCursorIsToldInWords) {
    riempi(1);
    apri();
    const auto parole = [this](int r) {
        griglia.corrente({r, 1});
        return finestra.lblSegmento.testo();
    };
    EXPECT_EQ(parole(2), "08:15 - 08:30: 98 veicoli su 105, ne mancano 7");
    EXPECT_EQ(parole(6), "09:15 - 09:30: 378 veicoli su 30, 348 di troppo");
    scrivi(2, 7, "23");
    EXPECT_EQ(parole(2), "08:15 - 08:30: 104 veicoli su 105, ne manca 1");
    scrivi(2, 7, "24");
    EXPECT_EQ(parole(2), "08:15 - 08:30: 105 veicoli su 105");
    dati(1).Tempo1(oraDelGiorno(8, 15));
    segmenti(1, 6);
    apri();
    EXPECT_EQ(parole(1), "08:00 - 08:15: nessun veicolo in ingresso");
    scrivi(1, 1, "1");
    EXPECT_EQ(parole(1), "08:00 - 08:15: 1 veicolo su 0, 1 di troppo");
}

TEST_F(ProveTabella, AllSegmentsAreToldTogether) {
    apri();
    EXPECT_EQ(finestra.lblStato.testo(),
              "Segmenti con totale uguale al flusso in ingresso: 0 su 6; inferiore: 6; superiore: 0");
    const std::array<const char*, 6> flussi{"60", "105", "150", "110", "70", "31"};
    for (int r = 1; r <= 6; ++r) {
        scrivi(r, 7, flussi[static_cast<std::size_t>(r - 1)]);
    }
    EXPECT_EQ(finestra.lblErroreStato.testo(),
              "Segmenti con totale uguale al flusso in ingresso: 5 su 6; inferiore: 0; superiore: 1");
    EXPECT_TRUE(finestra.lblErroreStato.visibile());
    scrivi(6, 7, "30");
    EXPECT_EQ(finestra.lblStato.testo(), "Totale uguale al flusso in ingresso in tutti i segmenti");
    EXPECT_TRUE(finestra.lblStato.visibile());
    EXPECT_FALSE(finestra.lblErroreStato.visibile());
}

TEST_F(ProveTabella, AggiornaDatiWritesTheTable) {
    apri(2);
    scrivi(1, 1, "11");
    scrivi(3, 4, "12");
    scrivi(6, 7, "13");
    EXPECT_EQ(composizione(2).CategoriaSegmento(0, 0), 0.0F);
    finestra.ctlToolbar.premi("AggiornaDati");
    TabellaCategorie attesa(6, PerClasse{});
    attesa[0][0] = 11.0F;
    attesa[2][3] = 12.0F;
    attesa[5][6] = 13.0F;
    EXPECT_EQ(composizione(2).Categorie(), attesa);
    EXPECT_EQ(composizione(1).Categorie(), TabellaCategorie(6, PerClasse{}));
    EXPECT_TRUE(finestra.DatiAllineati());
}

TEST_F(ProveTabella, CellsThatWereNotChangedKeepWhatTheProjectHolds) {
    composizione(1).CategoriaSegmento(1.0F / 3.0F, 0, 0);
    composizione(1).CategoriaSegmento(16777216.0F, 1, 1);
    apri();
    EXPECT_EQ(griglia.testo(1, 1), "0,3333333");
    const std::string prima = salva("prima.klv");
    finestra.SaveData();
    EXPECT_EQ(salva("prima.klv"), prima);
    scrivi(1, 2, "5");
    finestra.SaveData();
    EXPECT_EQ(composizione(1).CategoriaSegmento(0, 0), 1.0F / 3.0F);
    EXPECT_EQ(composizione(1).CategoriaSegmento(0, 1), 5.0F);
}

TEST_F(ProveTabella, RefreshBringsTheTableBack) {
    riempi(1);
    apri();
    scrivi(1, 1, "9");
    finestra.ctlToolbar.premi("Refresh");
    EXPECT_EQ(riga(1), "1 2 3 4 5 6 7 28 60");
    EXPECT_TRUE(finestra.DatiAllineati());
}

TEST_F(ProveTabella, RefreshAlsoLeavesANumberThatIsTooLarge) {
    apri();
    griglia.scrivi("1000000000");
    finestra.ctlToolbar.premi("Refresh");
    EXPECT_FALSE(griglia.inModifica());
    EXPECT_TRUE(messaggi.mostrati.empty());
    EXPECT_TRUE(passa(2));
}

TEST_F(ProveTabella, AnEditThatIsRefusedHoldsTheWindow) {
    apri();
    griglia.scrivi("1000000000");
    finestra.SaveData();
    EXPECT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_TRUE(stato.convalidaFallita);
    EXPECT_EQ(composizione(1).CategoriaSegmento(0, 0), 0.0F);
}

TEST_F(ProveTabella, WhatWasTypedGoesToTheLegThatItWasReadFrom) {
    apri(1);
    scrivi(1, 1, "4");
    EXPECT_TRUE(passa(2));
    EXPECT_EQ(composizione(1).CategoriaSegmento(0, 0), 4.0F);
    EXPECT_EQ(composizione(2).CategoriaSegmento(0, 0), 0.0F);
    EXPECT_EQ(riga(1), "0 0 0 0 0 0 0 0 0");
}

TEST_F(ProveTabella, TheHelpFollowsTheColumn) {
    apri();
    const std::array<const char*, 9> pagine{
        "CategoriaAutoarticolati.htm", "CategoriaAutotreni.htm", "CategoriaAutobus.htm",
        "CategoriaCamper.htm",         "CategoriaRoulotte.htm",  "CategoriaDueRuote.htm",
        "CategoriaAutovetture.htm",    "TotaleSegmento.htm",     "FlussoIngresso.htm"};
    for (int c = 1; c <= 9; ++c) {
        griglia.corrente({1, c});
        EXPECT_EQ(finestra.ctlHelp.pagina(), pagine[static_cast<std::size_t>(c - 1)]);
    }
    finestra.fuocoSu(finestra.chkLock[3]);
    EXPECT_EQ(finestra.ctlHelp.pagina(), "BloccoCategoria.htm");
    finestra.fuocoSu(griglia);
    EXPECT_EQ(finestra.ctlHelp.pagina(), "FlussoIngresso.htm");
}

/// A dialogue that is never opened.
class DialogoChiuso final : public DialogoAnteprima {
public:
    bool apri(const RichiestaFile& /*richiesta*/, FinestraAnteprima& /*anteprima*/) override { return false; }
};

TEST_F(ProveTabella, TheImportHasAPageOfItsOwn) {
    DialogoChiuso dialogo;
    frmComposizioneTrafficoST conImportazione(contorno(), &dialogo);
    navigazione.corrente = "keyComposizioneTraffico1";
    conImportazione.attivata();
    ASSERT_TRUE(conImportazione.fuocoSu(conImportazione.cmdImportaCSV));
    EXPECT_EQ(conImportazione.ctlHelp.pagina(), "ImportaCSV.htm");
    ASSERT_TRUE(conImportazione.fuocoSu(conImportazione.chkLock[0]));
    EXPECT_EQ(conImportazione.ctlHelp.pagina(), "BloccoCategoria.htm");
}

TEST_F(ProveTabella, AClassBelowZeroBesideOthersWithinTheFlowIsNoExcess) {
    composizione(1).CategoriaSegmento(40.0F, 0, 0);
    composizione(1).CategoriaSegmento(-5.0F, 0, 6);
    composizione(1).CategoriaSegmento(60.0F, 1, 0);
    composizione(1).CategoriaSegmento(46.0F, 1, 1);  // 106 beside 105
    composizione(1).CategoriaSegmento(-2.0F, 1, 6);
    apri();
    EXPECT_EQ(finestra.lblSegmento.testo(), "08:00 - 08:15: 35 veicoli su 60, una categoria è negativa");
    griglia.corrente({2, 1});
    EXPECT_EQ(finestra.lblSegmento.testo(),
              "08:15 - 08:30: 104 veicoli su 105, una categoria è negativa: le altre superano il flusso in ingresso");
    EXPECT_EQ(finestra.lblErroreStato.testo(),
              "Segmenti con totale uguale al flusso in ingresso: 0 su 6; inferiore: 5; superiore: 1");
    for (const int r : {1, 2}) {
        EXPECT_EQ(griglia.ornamento({r, 8}).segno, OrnamentoCella::Segno::attenzione);
        EXPECT_EQ(griglia.tabella().cella(r, 8).sfondo, (Colore{255, 140, 140}));
    }
}

TEST_F(ProveTabella, TheWindowHasNoImport) {
    apri();
    EXPECT_FALSE(finestra.ctlToolbar.abilitato("Archivio"));
}

}  // namespace
}  // namespace kelvo::prove
