// The playback of the comparison.

#include <algorithm>
#include <chrono>

#include "comune/immagini.h"
#include "scenaConfronti.h"

namespace kelvo::prove {
namespace {

TEST_F(ProveConfronti, PlaybackDrawsEveryInstantAndWaitsBetweenThem) {
    apriConfronti();
    f->Slider1.imposta(3);  // where it stands does not matter
    f->cmdPLAY.premi();
    EXPECT_TRUE(f->inSimulazione());
    controllaPannello(false);
    controllaIstante(1, "08:00");
    EXPECT_EQ(titolo(), prefissoSimulazione + "Flusso di traffico [veic/h]");
    EXPECT_EQ(f->txtdescrizioneGRAFICO.testo(), titolo() + " - simulazione");
    EXPECT_EQ(valori(), attesi(1));
    cronometro.avanza(999);
    controllaIstante(1, "08:00");
    cronometro.avanza(1);
    controllaIstante(2, "08:15");
    EXPECT_EQ(valori(), attesi(2));
    cronometro.avanza(2000);
    controllaIstante(4, "08:45");
    EXPECT_TRUE(f->inSimulazione()) << "the last instant has its pause too";
    EXPECT_EQ(titolo(), prefissoSimulazione + "Flusso di traffico [veic/h]");
    cronometro.avanza(1000);
    EXPECT_FALSE(f->inSimulazione());
    EXPECT_FALSE(cronometro.attivo());
    controllaPannello(true);
    controllaIstante(4, "08:45");
    EXPECT_EQ(titolo(), prefisso + "Flusso di traffico [veic/h] - 08:45");
    EXPECT_EQ(f->txtdescrizioneGRAFICO.testo(), titolo());
}

TEST_F(ProveConfronti, BothButtonsOfAPairDoTheSame) {
    apriConfronti();
    f->ImagePLAY.premi();
    EXPECT_TRUE(f->inSimulazione());
    f->ImagePIU.premi();
    EXPECT_EQ(f->PausaSimulazione(), 500);
    f->ImageMENO.premi();
    EXPECT_EQ(f->PausaSimulazione(), 1000);
    f->ImageSTOP.premi();
    EXPECT_FALSE(f->inSimulazione());
}

TEST_F(ProveConfronti, ThePauseGoesFromHalfASecondToFiveByHalves) {
    EXPECT_EQ(f->PausaSimulazione(), 1000);
    EXPECT_EQ(f->lblPausa.testo(), "Pausa 1,0 s");
    apriConfronti();
    f->Command3.premi();
    EXPECT_EQ(f->PausaSimulazione(), 500);
    f->Command3.premi();
    EXPECT_EQ(f->PausaSimulazione(), 500);
    EXPECT_EQ(f->lblPausa.testo(), "Pausa 0,5 s");
    for (int pausa = 1000; pausa <= 5000; pausa += 500) {
        f->Command4.premi();
        EXPECT_EQ(f->PausaSimulazione(), pausa);
    }
    f->Command4.premi();
    EXPECT_EQ(f->PausaSimulazione(), 5000);
    EXPECT_TRUE(cronometro.chiesti.empty()) << "nothing runs";
}

TEST_F(ProveConfronti, PlaybackKeepsItsPauseAtTheFastestAndTheSlowest) {
    apriConfronti();
    f->Command3.premi();
    f->cmdPLAY.premi();
    cronometro.avanza(499);
    controllaIstante(1, "08:00");
    cronometro.avanza(1);
    controllaIstante(2, "08:15");
    cronometro.avanza(1500);
    EXPECT_FALSE(f->inSimulazione());
    EXPECT_EQ(cronometro.adesso(), 2000);
    for (int i = 0; i < 9; ++i) {
        f->Command4.premi();
    }
    f->cmdPLAY.premi();
    cronometro.avanza(4999);
    controllaIstante(1, "08:00");
    cronometro.avanza(1);
    controllaIstante(2, "08:15");
    cronometro.avanza(14999);
    EXPECT_TRUE(f->inSimulazione());
    cronometro.avanza(1);
    EXPECT_FALSE(f->inSimulazione());
}

TEST_F(ProveConfronti, AnotherSpeedHoldsAtOnce) {
    apriConfronti();
    for (int i = 0; i < 8; ++i) {
        f->Command4.premi();
    }
    f->cmdPLAY.premi();
    cronometro.avanza(100);
    for (int i = 0; i < 9; ++i) {
        f->Command3.premi();
    }
    EXPECT_EQ(f->PausaSimulazione(), 500);
    controllaIstante(1, "08:00");
    cronometro.avanza(399);
    controllaIstante(1, "08:00");
    cronometro.avanza(1);
    controllaIstante(2, "08:15");
    const std::size_t chiesti = cronometro.chiesti.size();
    cronometro.avanza(400);
    f->Command3.premi();  // at its end already: the wait goes on
    EXPECT_EQ(cronometro.chiesti.size(), chiesti);
    cronometro.avanza(100);
    controllaIstante(3, "08:30");
}

TEST_F(ProveConfronti, AnotherPauseCountsFromWhenTheInstantWasDrawn) {
    apriConfronti();
    f->cmdPLAY.premi();
    cronometro.avanza(900);
    f->Command4.premi();
    EXPECT_EQ(cronometro.chiesti.back(), 600) << "900 of 1500 have passed";
    cronometro.avanza(599);
    controllaIstante(1, "08:00");
    cronometro.avanza(1);
    controllaIstante(2, "08:15");
    EXPECT_EQ(cronometro.chiesti.back(), 1500);
    for (int i = 0; i < 7; ++i) {
        f->Command4.premi();
    }
    cronometro.avanza(4900);
    f->Command3.premi();
    EXPECT_EQ(f->PausaSimulazione(), 4500);
    EXPECT_EQ(cronometro.chiesti.back(), 0) << "the new pause is over already";
    controllaIstante(2, "08:15");
    cronometro.avanza(1);
    controllaIstante(3, "08:30");
    EXPECT_EQ(cronometro.chiesti.back(), 4500) << "the next instant has its whole pause";
}

TEST_F(ProveConfronti, APlaybackLeavesRecordsAndProjectAlone) {
    apriConfronti();
    const Lasciati prima = lasciati();
    ASSERT_EQ(prima.record.size(), 12U);
    f->cmdPLAY.premi();
    cronometro.avanza(4000);
    ASSERT_FALSE(f->inSimulazione());
    EXPECT_EQ(lasciati(), prima) << "played to its end";
    f->cmdPLAY.premi();
    cronometro.avanza(1500);
    f->Command1.premi();
    EXPECT_EQ(lasciati(), prima) << "stopped";
    f->cmdPLAY.premi();
    cronometro.avanza(1500);
    riapri();
    EXPECT_EQ(lasciati(), prima) << "hidden and shown again";
    f->cmdPLAY.premi();
    cronometro.avanza(1500);
    f.reset();
    EXPECT_EQ(lasciati(), prima) << "closed";
}

TEST_F(ProveConfronti, StopEndsAtOnceAndShowsTheInstantThatWasInView) {
    apriConfronti();
    f->cmdPLAY.premi();
    cronometro.avanza(1500);
    f->Command1.premi();
    EXPECT_FALSE(f->inSimulazione());
    EXPECT_FALSE(cronometro.attivo());
    controllaPannello(true);
    controllaIstante(2, "08:15");
    EXPECT_EQ(titolo(), prefisso + "Flusso di traffico [veic/h] - 08:15");
    EXPECT_EQ(f->txtdescrizioneGRAFICO.testo(), titolo());
    cronometro.avanza(60000);
    controllaIstante(2, "08:15");
    f->opzUnita.clicca(1);
    controllaIstante(2, "08:15");
    f->Command1.premi();  // without a playback it draws the instant once more
    controllaIstante(2, "08:15");
    EXPECT_EQ(valori(), attesi(2, {0, UnitaFlussi::minuto}));
}

TEST_F(ProveConfronti, OneSegmentIsDrawnOnce) {
    r().TempoFinale(oraDelGiorno(8, 15));
    for (int i = 1; i <= 3; ++i) {
        ramo(i).theDatiTraffico().NumSegmentiTempo(1);
    }
    r().TipoAnalisi(2);
    apriConfronti();
    ASSERT_EQ(f->listTEMPO.voci().size(), 1U);
    int simulati = 0;
    f->ctlChartConfronti.cambiato().connect([&] { simulati += titolo().rfind(prefissoSimulazione, 0) == 0 ? 1 : 0; });
    f->cmdPLAY.premi();
    EXPECT_EQ(simulati, 1);
    cronometro.avanza(1000);
    EXPECT_EQ(simulati, 1);
    EXPECT_FALSE(f->inSimulazione());
    controllaIstante(1, "08:00");
}

TEST_F(ProveConfronti, LeavingEndsThePlayback) {
    apriConfronti();
    f->cmdPLAY.premi();
    cronometro.avanza(1000);
    gestione.chiudiCorrente();
    EXPECT_FALSE(f->inSimulazione());
    EXPECT_FALSE(cronometro.attivo());
    controllaPannello(true);
    apriConfronti();
    controllaIstante(2, "08:15");
    f->cmdPLAY.premi();
    EXPECT_TRUE(f->inSimulazione());
}

TEST_F(ProveConfronti, ClosingEndsThePlayback) {
    apriConfronti();
    f->cmdPLAY.premi();
    f.reset();
    EXPECT_FALSE(cronometro.attivo());
    cronometro.avanza(60000);
}

TEST_F(ProveConfronti, CalculatingEndsThePlayback) {
    apriConfronti();
    f->cmdPLAY.premi();
    cronometro.avanza(1000);
    calcola();
    EXPECT_FALSE(f->inSimulazione());
    controllaPannello(true);
    EXPECT_EQ(titolo(), prefisso + "Flusso di traffico [veic/h]");
    controllaIstante(2, "08:15");
}

TEST_F(ProveConfronti, AnInstantChosenInTheTableEndsThePlayback) {
    apriConfronti();
    f->cmdPLAY.premi();
    ASSERT_TRUE(f->ctlGrid.corrente({1, 3}));
    EXPECT_FALSE(f->inSimulazione());
    controllaIstante(3, "08:30");
}

TEST_F(ProveConfronti, TheKeyboardGoesToStopAndBackToPlay) {
    apriConfronti();
    ASSERT_TRUE(f->fuocoSu(f->cmdPLAY));
    f->cmdPLAY.premi();
    EXPECT_EQ(f->fuoco(), &f->Command1);
    f->Command1.premi();
    EXPECT_EQ(f->fuoco(), &f->cmdPLAY);
}

}  // namespace
}  // namespace kelvo::prove
