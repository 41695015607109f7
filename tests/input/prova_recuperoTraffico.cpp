#include "input/recuperoTraffico.h"

#include <gtest/gtest.h>

#include <fstream>

#include "app/nuovoProgetto.h"
#include "comune/fintiFinestre.h"
#include "input/frmComposizioneTrafficoST.h"
#include "input/frmDatiTraffico.h"
#include "input/frmDatiTrafficoST.h"
#include "input/frmTempoModellazione.h"

namespace kelvo::prove {
namespace {

using Conteggi = std::vector<std::optional<float>>;
using Tratti = std::vector<TrattoSegmenti>;

constexpr auto niente = std::nullopt;

SerieSegmenti serie(int ora, int minuto, std::int16_t minuti, std::int16_t numero) {
    return {oraDelGiorno(ora, minuto), minuti, numero};
}

TEST(SegmentiCorrispondenti, TheSameIntervalStandsForItself) {
    EXPECT_EQ(segmentiCorrispondenti(serie(8, 0, 15, 4), serie(8, 0, 15, 4)), (Tratti{{0, 1}, {1, 1}, {2, 1}, {3, 1}}));
}

TEST(SegmentiCorrispondenti, ALaterStartFindsTheIntervalsThatAreLeft) {
    EXPECT_EQ(segmentiCorrispondenti(serie(8, 0, 15, 4), serie(8, 30, 15, 4)), (Tratti{{2, 1}, {3, 1}, {}, {}}));
}

TEST(SegmentiCorrispondenti, AnEarlierStartLeavesTheFirstOnesOut) {
    EXPECT_EQ(segmentiCorrispondenti(serie(8, 0, 15, 4), serie(7, 30, 15, 4)), (Tratti{{}, {}, {0, 1}, {1, 1}}));
}

TEST(SegmentiCorrispondenti, ShorterOnesMakeUpALongerOne) {
    EXPECT_EQ(segmentiCorrispondenti(serie(8, 0, 5, 7), serie(8, 0, 15, 3)), (Tratti{{0, 3}, {3, 3}, {}}));
}

TEST(SegmentiCorrispondenti, ALongerOneIsNotDivided) {
    EXPECT_EQ(segmentiCorrispondenti(serie(8, 0, 15, 4), serie(8, 0, 5, 3)), (Tratti{{}, {}, {}}));
}

TEST(SegmentiCorrispondenti, BordersThatDoNotMeetFindNothing) {
    EXPECT_EQ(segmentiCorrispondenti(serie(8, 0, 15, 4), serie(8, 5, 15, 2)), (Tratti{{}, {}}));
    EXPECT_EQ(segmentiCorrispondenti(serie(8, 0, 10, 6), serie(8, 0, 15, 2)), (Tratti{{}, {}}));
}

TEST(SegmentiCorrispondenti, NothingComesOfSegmentsWithoutLength) {
    EXPECT_EQ(segmentiCorrispondenti(serie(8, 0, 0, 4), serie(8, 0, 15, 1)), (Tratti{{}}));
    EXPECT_TRUE(segmentiCorrispondenti(serie(8, 0, 15, 4), serie(8, 0, 15, 0)).empty());
}

/// A project of three legs, 08:00 to 09:00 by 15 minutes, with the window of the times.
struct ProveRecupero : testing::Test, ScenaFinestre {
    frmTempoModellazione finestra{contorno()};

    ProveRecupero() {
        creaProgetto(app, 3);
        for (std::int16_t s = 0; s < 4; ++s) {
            dati(2).FlussoSegmento(10.0F + s, s, 0);
            composizione(2).CategoriaSegmento(100.0F + s, s, 0);
            composizione(2).CategoriaSegmento(200.0F + s, s, 6);
        }
        dati(2).FlussoTempo1(4.0F);
        dati(2).FlussoTempo2(10.0F);
        dati(2).Tempo1(oraDelGiorno(8, 0));
        dati(2).Tempo2(oraDelGiorno(8, 30));
        dati(2).Tempo3(oraDelGiorno(9, 0));
    }
    Rotonda& rotonda() { return app.theRotonda(); }
    DatiTraffico& dati(std::int16_t ramo) { return rotonda().Ramo(ramo).theDatiTraffico(); }
    ComposizioneTraffico& composizione(std::int16_t ramo) { return rotonda().Ramo(ramo).theComposizioneTraffico(); }
    void tempi(const std::string& inizio, const std::string& segmento, const std::string& fine) {
        finestra.attivata();
        finestra.fuocoSu(finestra.txtTempoIniziale);
        finestra.txtTempoIniziale.scrivi(inizio);
        finestra.fuocoSu(finestra.txtSegmentoTempo);
        finestra.txtSegmentoTempo.scrivi(segmento);
        finestra.fuocoSu(finestra.txtTempoFinale);
        finestra.txtTempoFinale.scrivi(fine);
        finestra.lasciaFuoco();
        finestra.SaveData();
        ASSERT_TRUE(finestra.DatiAllineati());
    }
};

TEST_F(ProveRecupero, NothingIsOfferedBeforeTheTimesChange) {
    EXPECT_FALSE(curvaRecuperabile(rotonda(), 2));
    EXPECT_FALSE(conteggiRecuperabili(rotonda(), 2));
    EXPECT_FALSE(composizioneRecuperabile(rotonda(), 2));
}

TEST_F(ProveRecupero, ALongerWindowGivesBackTheCountsOfTheOldIntervals) {
    tempi("07:45", "15", "09:15");
    EXPECT_EQ(dati(2).FlussoSegmento(1, 0), 0.0F);
    EXPECT_EQ(conteggiRecuperabili(rotonda(), 2), (Conteggi{niente, 10.0F, 11.0F, 12.0F, 13.0F, niente}));
}

TEST_F(ProveRecupero, LongerSegmentsTakeTheSumOfTheShorterOnes) {
    tempi("08:00", "30", "09:00");
    EXPECT_EQ(conteggiRecuperabili(rotonda(), 2), (Conteggi{21.0F, 25.0F}));
}

TEST_F(ProveRecupero, TheCompositionComesBackByClass) {
    tempi("08:00", "30", "09:30");
    const auto tabella = composizioneRecuperabile(rotonda(), 2);
    ASSERT_TRUE(tabella);
    ASSERT_EQ(tabella->size(), 3U);
    EXPECT_EQ((*tabella)[0], (PerClasse{201.0F, 0, 0, 0, 0, 0, 401.0F}));
    EXPECT_EQ((*tabella)[1], (PerClasse{205.0F, 0, 0, 0, 0, 0, 405.0F}));
    EXPECT_EQ((*tabella)[2], niente);
}

TEST_F(ProveRecupero, ALegWithoutDataIsOfferedNothing) {
    tempi("08:00", "15", "09:30");
    for (const std::int16_t ramo : {std::int16_t{1}, std::int16_t{3}, std::int16_t{7}}) {
        EXPECT_FALSE(curvaRecuperabile(rotonda(), ramo)) << ramo;
        EXPECT_FALSE(conteggiRecuperabili(rotonda(), ramo)) << ramo;
        EXPECT_FALSE(composizioneRecuperabile(rotonda(), ramo)) << ramo;
    }
}

TEST_F(ProveRecupero, WhatFitsNowhereIsNotOffered) {
    tempi("08:05", "15", "09:35");
    EXPECT_FALSE(conteggiRecuperabili(rotonda(), 2));
    EXPECT_FALSE(composizioneRecuperabile(rotonda(), 2));
}

TEST_F(ProveRecupero, SegmentsThatHeldNothingAreNotOffered) {
    dati(2).FlussoSegmento(0.0F, 2, 0);
    dati(2).FlussoSegmento(0.0F, 3, 0);
    tempi("08:30", "15", "10:00");
    EXPECT_FALSE(conteggiRecuperabili(rotonda(), 2));
    EXPECT_TRUE(composizioneRecuperabile(rotonda(), 2));
}

TEST_F(ProveRecupero, TheCurveComesBackWhereItFitsTheWindow) {
    tempi("08:00", "15", "09:30");
    const auto curva = curvaRecuperabile(rotonda(), 2);
    ASSERT_TRUE(curva);
    EXPECT_EQ(curva->FlussoTempo1, 4.0F);
    EXPECT_EQ(curva->FlussoTempo2, 10.0F);
    EXPECT_EQ(testoHHNN(curva->Tempo2), "08:30");
}

TEST_F(ProveRecupero, ACurveThatLeavesTheWindowStaysAway) {
    tempi("08:15", "15", "09:30");  // it starts before
    EXPECT_FALSE(curvaRecuperabile(rotonda(), 2));
    rotonda().TempoIniziale(oraDelGiorno(8, 0));
    EXPECT_TRUE(curvaRecuperabile(rotonda(), 2));
    rotonda().TempoFinale(oraDelGiorno(8, 45));  // it ends behind
    EXPECT_FALSE(curvaRecuperabile(rotonda(), 2));
}

TEST_F(ProveRecupero, ACurveThatIsNoWholeNumberOfSegmentsStaysAway) {
    tempi("08:00", "20", "09:40");
    EXPECT_FALSE(curvaRecuperabile(rotonda(), 2));
    rotonda().SegmentoTempo(oraDelGiorno(0, 30));
    EXPECT_TRUE(curvaRecuperabile(rotonda(), 2));
}

TEST_F(ProveRecupero, AMistypedTimeMendedAtOnceCostsNothing) {
    tempi("08:00", "15", "10:00");
    tempi("08:00", "15", "09:00");
    EXPECT_EQ(conteggiRecuperabili(rotonda(), 2), (Conteggi{10.0F, 11.0F, 12.0F, 13.0F}));
    EXPECT_TRUE(curvaRecuperabile(rotonda(), 2));
    ASSERT_TRUE(composizioneRecuperabile(rotonda(), 2));
    EXPECT_EQ((*composizioneRecuperabile(rotonda(), 2))[3]->at(6), 203.0F);
}

TEST_F(ProveRecupero, DataEnteredSinceTakeThePlaceOfOlderOnes) {
    tempi("08:00", "15", "09:30");
    dati(2).FlussoSegmento(77.0F, 5, 0);
    tempi("08:15", "15", "09:30");
    EXPECT_EQ(conteggiRecuperabili(rotonda(), 2), (Conteggi{0.0F, 0.0F, 0.0F, 0.0F, 77.0F}));
    EXPECT_EQ((*composizioneRecuperabile(rotonda(), 2))[0]->at(0), 101.0F);  // this is still the older one
}

TEST_F(ProveRecupero, EachKindIsAskedForOnceALeg) {
    dati(1).FlussoSegmento(5.0F, 0, 0);
    tempi("08:00", "15", "09:30");
    messaggi.mostrati.clear();
    messaggi.risposta = Risposta::no;
    EXPECT_FALSE(chiediRecupero(app, 2, DatoTraffico::conteggi));
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(messaggi.mostrati[0].testo,
              "I tempi di modellazione sono stati modificati.\nRipristinare i flussi inseriti in precedenza per "
              "l'ingresso 'Ramo B'?\nTornano i valori degli intervalli di tempo ancora presenti.");
    EXPECT_EQ(messaggi.mostrati[0].titolo, "KELVO 2014 - Attenzione");
    EXPECT_EQ(messaggi.mostrati[0].icona, Icona::domanda);
    EXPECT_EQ(messaggi.mostrati[0].pulsanti, Pulsanti::siNo);
    EXPECT_FALSE(conteggiRecuperabili(rotonda(), 2));
    EXPECT_TRUE(conteggiRecuperabili(rotonda(), 1));
    EXPECT_TRUE(composizioneRecuperabile(rotonda(), 2));
    messaggi.risposta = Risposta::si;
    EXPECT_TRUE(chiediRecupero(app, 2, DatoTraffico::composizione));
    EXPECT_NE(messaggi.mostrati[1].testo.find("i veicoli per categoria"), std::string::npos);
    EXPECT_TRUE(composizioneRecuperabile(rotonda(), 2));  // nothing has been saved yet
    messaggi.risposta = Risposta::no;
    EXPECT_FALSE(chiediRecupero(app, 2, DatoTraffico::curva));
    EXPECT_FALSE(curvaRecuperabile(rotonda(), 2));
}

TEST_F(ProveRecupero, ALegThatHasDataIsOfferedNothing) {
    tempi("08:00", "15", "09:30");
    dati(2).FlussoSegmento(1.0F, 5, 0);
    EXPECT_FALSE(conteggiRecuperabili(rotonda(), 2));
    dati(2).FlussoTempo3(1.0F);
    EXPECT_FALSE(curvaRecuperabile(rotonda(), 2));
    EXPECT_TRUE(composizioneRecuperabile(rotonda(), 2));
    composizione(2).CategoriaSegmento(1.0F, 5, 6);
    EXPECT_FALSE(composizioneRecuperabile(rotonda(), 2));
}

TEST_F(ProveRecupero, AnotherChangeOfTheTimesOffersAnew) {
    tempi("08:00", "15", "09:30");
    messaggi.risposta = Risposta::no;
    chiediRecupero(app, 2, DatoTraffico::conteggi);
    tempi("08:00", "15", "09:15");
    EXPECT_TRUE(conteggiRecuperabili(rotonda(), 2));
}

TEST_F(ProveRecupero, TheWindowOfTheCountsOffersThemOnceAndSavesWhatCameBack) {
    tempi("08:00", "15", "09:30");
    messaggi.mostrati.clear();
    messaggi.risposta = Risposta::si;
    frmDatiTrafficoST conteggi{contorno()};
    navigazione.corrente = "keyDatiTraffico2";
    conteggi.attivata();
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(conteggi.ctlGrid.testo(1, 1), "10");
    EXPECT_EQ(conteggi.ctlGrid.testo(4, 1), "13");
    EXPECT_EQ(conteggi.ctlGrid.testo(5, 1), "0");
    EXPECT_EQ(conteggi.txtFlussoTotale.testo(), "46");
    EXPECT_FALSE(conteggi.DatiAllineati());
    EXPECT_EQ(dati(2).FlussoSegmento(0, 0), 0.0F);  // nothing is written before the window is left
    conteggi.SaveData();
    EXPECT_EQ(dati(2).FlussiSegmento(), (std::vector<float>{10.0F, 11.0F, 12.0F, 13.0F, 0.0F, 0.0F}));
    EXPECT_EQ(dati(2).FlussoTotale(), 46.0F);
    conteggi.attivata();
    navigazione.corrente = "keyDatiTraffico1";
    conteggi.attivata();  // this leg had nothing
    EXPECT_EQ(messaggi.mostrati.size(), 1U);
}

TEST_F(ProveRecupero, CountsTakenBackCanBeUndoneAndOnesDiscardedAreOfferedAgain) {
    tempi("08:00", "15", "09:30");
    messaggi.risposta = Risposta::si;
    frmDatiTrafficoST conteggi{contorno()};
    navigazione.corrente = "keyDatiTraffico2";
    conteggi.attivata();
    EXPECT_TRUE(conteggi.ctlGrid.premiTasto(Griglia::Tasto::annulla));
    EXPECT_EQ(conteggi.ctlGrid.testo(1, 1), "0");
    EXPECT_TRUE(conteggi.ctlGrid.premiTasto(Griglia::Tasto::ripeti));
    EXPECT_EQ(conteggi.ctlGrid.testo(1, 1), "10");
    conteggi.ctlToolbar.premi("Refresh");
    EXPECT_EQ(conteggi.ctlGrid.testo(1, 1), "0");
    messaggi.mostrati.clear();
    conteggi.attivata();
    EXPECT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(conteggi.ctlGrid.testo(1, 1), "10");
}

TEST_F(ProveRecupero, WhoAnswersNoKeepsTheEmptyTable) {
    tempi("08:00", "15", "09:30");
    messaggi.mostrati.clear();
    messaggi.risposta = Risposta::no;
    frmDatiTrafficoST conteggi{contorno()};
    navigazione.corrente = "keyDatiTraffico2";
    conteggi.attivata();
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(conteggi.ctlGrid.testo(1, 1), "0");
    EXPECT_TRUE(conteggi.DatiAllineati());
    conteggi.attivata();
    EXPECT_EQ(messaggi.mostrati.size(), 1U);
}

TEST_F(ProveRecupero, TheWindowOfTheCurveOffersItOnceAndSavesWhatCameBack) {
    tempi("08:00", "15", "09:30");
    messaggi.mostrati.clear();
    messaggi.risposta = Risposta::si;
    frmDatiTraffico curva{contorno()};
    navigazione.corrente = "keyDatiTraffico2";
    curva.attivata();
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(
        messaggi.mostrati[0].testo,
        "I tempi di modellazione sono stati modificati.\nRipristinare la curva di traffico inserita in precedenza "
        "per l'ingresso 'Ramo B'?");
    EXPECT_EQ(curva.txtTempo3.testo(), "09:00");
    EXPECT_EQ(curva.txtFlussoTempo2.testo(), "10");
    EXPECT_FALSE(curva.DatiAllineati());
    curva.SaveData();
    EXPECT_EQ(dati(2).FlussoTempo1(), 4.0F);
    EXPECT_EQ(testoHHNN(dati(2).Tempo3()), "09:00");
    // Two segments behind the peak are flat: 4, 7, 10 and 10 veic/min for 15 minutes each.
    EXPECT_EQ(dati(2).FlussoTotale(), 465.0F);
    curva.attivata();
    EXPECT_EQ(messaggi.mostrati.size(), 1U);
}

TEST_F(ProveRecupero, TheTableOfTheCompositionOffersItOnceAndSavesWhatCameBack) {
    tempi("08:00", "30", "09:30");
    messaggi.mostrati.clear();
    messaggi.risposta = Risposta::si;
    frmComposizioneTrafficoST tabella{contorno()};
    navigazione.corrente = "keyComposizioneTraffico2";
    tabella.attivata();
    ASSERT_EQ(messaggi.mostrati.size(), 1U);  // that the vehicles exceed a flow of 0 is no message
    EXPECT_EQ(tabella.ctlGrid.testo(1, 1), "201");
    EXPECT_EQ(tabella.ctlGrid.testo(2, 7), "405");
    EXPECT_EQ(tabella.ctlGrid.testo(1, 8), "602");
    EXPECT_EQ(tabella.ctlGrid.testo(3, 7), "0");
    EXPECT_FALSE(tabella.DatiAllineati());
    EXPECT_EQ(composizione(2).CategoriaSegmento(0, 0), 0.0F);
    tabella.SaveData();
    EXPECT_EQ(composizione(2).CategoriaSegmento(0, 0), 201.0F);
    EXPECT_EQ(composizione(2).CategoriaSegmento(1, 6), 405.0F);
    tabella.attivata();
    EXPECT_EQ(messaggi.mostrati.size(), 1U);
}

/// Plays the user of the file dialogue: selects a file and confirms it.
class DialogoCSV final : public DialogoAnteprima {
public:
    bool apri(const RichiestaFile& /*richiesta*/, FinestraAnteprima& anteprima) override {
        didascalia = anteprima.didascalia();
        anteprima.selezionato(percorso);
        return anteprima.conferma(percorso);
    }
    std::string percorso;
    std::string didascalia;
};

TEST_F(ProveRecupero, CountsAreImportedFromAFile) {
    DialogoCSV dialogo;
    dialogo.percorso = cartella.file("conteggi.csv");
    std::ofstream(dialogo.percorso) << "Ora;Flusso\n08:00;7\n08:15;8,5\n08:30;9\n08:45;10\n";
    frmDatiTrafficoST conteggi{contorno(), &dialogo};
    navigazione.corrente = "keyDatiTraffico1";
    conteggi.attivata();
    ASSERT_TRUE(conteggi.cmdImportaCSV.visibile());
    conteggi.cmdImportaCSV.premi();
    EXPECT_EQ(dialogo.didascalia, "Importa i flussi da CSV");
    EXPECT_EQ(conteggi.txtFlussoTotale.testo(), "35");
    conteggi.SaveData();
    EXPECT_EQ(dati(1).FlussiSegmento(), (std::vector<float>{7.0F, 8.5F, 9.0F, 10.0F}));
}

TEST_F(ProveRecupero, TheCompositionIsImportedFromAFileByTheNamesOfItsColumns) {
    DialogoCSV dialogo;
    dialogo.percorso = cartella.file("composizione.csv");
    std::ofstream(dialogo.percorso) << "Autovetture;Motocicli;Roulotte;Furgoni;Autobus;Autocarri;Autoarticolati\n"
                                       "70;6;5;4;3;2;1\n71;0;0;0;0;0;0\n72;0;0;0;0;0;0\n73;0;0;0;0;0;9\n";
    frmComposizioneTrafficoST tabella{contorno(), &dialogo};
    navigazione.corrente = "keyComposizioneTraffico1";
    tabella.attivata();
    tabella.cmdImportaCSV.premi();
    EXPECT_EQ(dialogo.didascalia, "Importa la composizione del traffico da CSV");
    tabella.SaveData();
    EXPECT_EQ(composizione(1).Categorie().at(0), (PerClasse{1, 2, 3, 4, 5, 6, 70}));
    EXPECT_EQ(composizione(1).Categorie().at(3), (PerClasse{9, 0, 0, 0, 0, 0, 73}));
}

TEST_F(ProveRecupero, WithoutAFileDialogueThereIsNoImport) {
    EXPECT_FALSE(frmDatiTrafficoST{contorno()}.cmdImportaCSV.visibile());
    EXPECT_FALSE(frmComposizioneTrafficoST{contorno()}.cmdImportaCSV.visibile());
}

TEST_F(ProveRecupero, ANewProjectIsOfferedNothing) {
    tempi("08:00", "15", "09:30");
    creaProgetto(app, 3);
    EXPECT_FALSE(conteggiRecuperabili(rotonda(), 2));
    EXPECT_FALSE(composizioneRecuperabile(rotonda(), 2));
    EXPECT_FALSE(curvaRecuperabile(rotonda(), 2));
}

}  // namespace
}  // namespace kelvo::prove
