#include "input/frmTempoModellazione.h"

#include <gtest/gtest.h>

#include "app/nuovoProgetto.h"
#include "comune/fintiFinestre.h"
#include "comune/guasti.h"

namespace kelvo::prove {
namespace {

using Voci = std::vector<std::string>;

/// A new project of three legs: 08:00 to 09:00 by 15 minutes.
struct ProveTempo : testing::Test, ScenaFinestre {
    frmTempoModellazione finestra{contorno()};
    tBox& inizio = finestra.txtTempoIniziale;
    tBox& segmento = finestra.txtSegmentoTempo;
    tBox& fine = finestra.txtTempoFinale;
    std::vector<ErroreRegistrato> errori;

    ProveTempo() {
        creaProgetto(app, 3);
        app.comune.alErrore = [this](const ErroreRegistrato& errore) { errori.push_back(errore); };
        finestra.attivata();
    }
    Rotonda& rotonda() { return app.theRotonda(); }
    DatiTraffico& dati(std::int16_t ramo) { return rotonda().Ramo(ramo).theDatiTraffico(); }
    ComposizioneTraffico& composizione(std::int16_t ramo) { return rotonda().Ramo(ramo).theComposizioneTraffico(); }
    BackupTraffico& backup() { return rotonda().backupTraffico(); }
    void progetto(int ora, int minuto, int passo, int oraFine, int minutoFine) {
        rotonda().TempoIniziale(oraDelGiorno(ora, minuto));
        rotonda().SegmentoTempo(oraDelGiorno(0, passo));
        rotonda().TempoFinale(oraDelGiorno(oraFine, minutoFine));
    }
    /// Types the three fields one after the other, as a person does.
    void scrivi(const std::string& i, const std::string& s, const std::string& f) {
        finestra.fuocoSu(inizio);
        inizio.scrivi(i);
        finestra.fuocoSu(segmento);
        segmento.scrivi(s);
        finestra.fuocoSu(fine);
        fine.scrivi(f);
        finestra.lasciaFuoco();
    }
    std::string messaggio(std::size_t i) { return messaggi.mostrati.at(i).testo; }
};

TEST_F(ProveTempo, TheFieldsShowTheTimesOfTheProject) {
    EXPECT_EQ(inizio.testo(), "08:00");
    EXPECT_EQ(segmento.testo(), "15");
    EXPECT_EQ(fine.testo(), "09:00");
    EXPECT_EQ(segmento.voci(), (Voci{"", "5", "10", "15", "20", "30"}));
    EXPECT_TRUE(finestra.DatiAllineati());
    EXPECT_EQ(inizio.faccia(), tBox::dtpicker);
    EXPECT_EQ(segmento.faccia(), tBox::combobox);
    EXPECT_EQ(fine.faccia(), tBox::combobox);
}

TEST_F(ProveTempo, LabelsAreInTheWordsOfTheField) {
    EXPECT_EQ(finestra.didascalia(), "Tempi di modellazione");
    EXPECT_EQ(finestra.lblTempoIniziale.testo(), "Tempo iniziale");
    EXPECT_EQ(finestra.lblSegmentoTempo.testo(), "Segmento di tempo");
    EXPECT_EQ(finestra.frTempo.titolo(), "Tempo di modellazione");
    EXPECT_EQ(frmTempoModellazione::limitiSegmento(), "5 ÷ 30");
    EXPECT_EQ(finestra.lblTempoFinale.testo(), "Tempo finale");
}

TEST_F(ProveTempo, TheSegmentHasNoLeadingZero) {
    rotonda().SegmentoTempo(oraDelGiorno(0, 5));
    finestra.ReadData();
    EXPECT_EQ(segmento.testo(), "5");
}

TEST_F(ProveTempo, SegmentsOfThirtyListTheEndsInHalfHours) {
    progetto(8, 0, 30, 9, 0);
    finestra.ReadData();
    EXPECT_EQ(fine.voci(), (Voci{"", "09:00", "09:30", "10:00", "10:30", "11:00", "11:30", "12:00", "12:30", "13:00",
                                 "13:30", "14:00"}));
}

TEST_F(ProveTempo, SegmentsOfSevenAreCountedFromOneHourAfterTheStart) {
    segmento.scrivi("7");
    finestra.FillTempoFinale();
    const Voci& voci = fine.voci();
    // 300 / 7 = 42 whole steps: 43 ends from 09:00 on, the last one 294 minutes later.
    ASSERT_EQ(voci.size(), 44U);
    EXPECT_EQ(voci[0], "");
    EXPECT_EQ(voci[1], "09:00");
    EXPECT_EQ(voci[2], "09:07");
    EXPECT_EQ(voci[43], "13:54");
}

TEST_F(ProveTempo, WithoutASegmentNoEndIsListed) {
    segmento.scrivi("");
    finestra.FillTempoFinale();
    EXPECT_TRUE(fine.voci().empty());
    EXPECT_EQ(fine.testo(), "");
}

TEST_F(ProveTempo, ASegmentOfNoMinutesEndsTheListAtOnce) {
    progetto(8, 0, 0, 9, 0);
    EXPECT_EQ(numeroGuasto([&] { finestra.ReadData(); }), 9);
    EXPECT_EQ(fine.voci(), (Voci{""}));
}

TEST_F(ProveTempo, AnEndThatIsNotListedIsAFaultForTheCaller) {
    progetto(8, 0, 10, 9, 5);
    EXPECT_EQ(numeroGuasto([&] { finestra.ReadData(); }), 9);
    EXPECT_EQ(fine.scelta(), -1);
    EXPECT_EQ(fine.testo(), "09:05");  // shown all the same: the window can be left as it is
    EXPECT_FALSE(fine.modificato());
    finestra.ctlToolbar.premi("Refresh");
    ASSERT_EQ(errori.size(), 1U);
    EXPECT_EQ(errori[0].numero, 9);
    EXPECT_EQ(errori[0].metodo, "frmTempoModellazione:Refresh");
    gestione.ShowForm(&finestra);
    ASSERT_EQ(errori.size(), 2U);
    EXPECT_EQ(errori[1].metodo, "modGestioneFinestre.ShowForm()");
    EXPECT_EQ(gestione.corrente(), &finestra);
    gestione.chiudiCorrente();
}

TEST_F(ProveTempo, AnotherStartFillsTheListAnewAndTheSameOneDoesNot) {
    finestra.fuocoSu(inizio);
    EXPECT_TRUE(inizio.lascia());
    EXPECT_EQ(fine.testo(), "09:00");
    EXPECT_TRUE(finestra.DatiAllineati());
    inizio.scrivi("10:30");
    EXPECT_TRUE(inizio.lascia());
    EXPECT_EQ(fine.voci().at(1), "11:30");
    EXPECT_EQ(fine.testo(), "");
    EXPECT_FALSE(finestra.DatiAllineati());
}

TEST_F(ProveTempo, AnEmptySegmentRaisesTheFlagAndNothingElse) {
    const Voci prima = fine.voci();
    segmento.scrivi("");
    EXPECT_TRUE(segmento.lascia());
    EXPECT_TRUE(stato.convalidaFallita);
    EXPECT_FALSE(segmento.fallito());
    EXPECT_TRUE(messaggi.mostrati.empty());
    EXPECT_EQ(fine.voci(), prima);
    EXPECT_EQ(fine.testo(), "09:00");
    EXPECT_NE(cornice.avvisato, "");
}

TEST_F(ProveTempo, ASegmentOutsideItsLimitsKeepsTheFocusWithItsMessage) {
    for (const char* fuori : {"4", "31", "0", "1000"}) {
        messaggi.mostrati.clear();
        stato.convalidaFallita = false;
        segmento.scrivi(fuori);
        EXPECT_FALSE(segmento.lascia()) << fuori;
        EXPECT_TRUE(stato.convalidaFallita);
        ASSERT_EQ(messaggi.mostrati.size(), 1U);
        EXPECT_EQ(messaggio(0), "Sono consentiti valori compresi tra <5> e <30> minuti");
        EXPECT_EQ(messaggi.mostrati[0].icona, Icona::informazione);
        EXPECT_EQ(messaggi.mostrati[0].titolo, "KELVO 2014 - Informazione");
        EXPECT_EQ(fine.testo(), "09:00");
    }
    for (const char* dentro : {"5", "30", "7"}) {
        segmento.scrivi(dentro);
        EXPECT_TRUE(segmento.lascia()) << dentro;
    }
}

TEST_F(ProveTempo, TheSegmentTakesDigitsAlone) {
    segmento.scrivi("1a2,");
    EXPECT_EQ(segmento.testo(), "12");
}

TEST_F(ProveTempo, LeavingTheSegmentMakesTheEndBeChosenAgain) {
    segmento.lascia();  // unchanged: the list stays, the choice does not
    EXPECT_EQ(fine.testo(), "");
    EXPECT_EQ(fine.scelta(), 0);
    EXPECT_EQ(fine.voci().at(2), "09:15");
    fine.scrivi("09:15");
    segmento.scrivi("20");
    segmento.lascia();
    EXPECT_EQ(fine.voci().at(2), "09:20");
    EXPECT_EQ(fine.testo(), "");
}

TEST_F(ProveTempo, AnEndThatIsMissingOrNotAfterTheStartIsRefusedWithoutAMessage) {
    fine.scrivi("");
    EXPECT_FALSE(fine.lascia());
    EXPECT_TRUE(stato.convalidaFallita);
    EXPECT_NE(cornice.avvisato, "");
    progetto(9, 0, 15, 9, 0);
    numeroGuasto([&] { finestra.ReadData(); });
    EXPECT_FALSE(fine.lascia());
    // Past midnight the list goes on with the small hours, which lie before the start.
    progetto(22, 0, 30, 23, 0);
    finestra.ReadData();
    ASSERT_EQ(fine.voci().at(3), "00:00");
    fine.scegli(3);
    EXPECT_FALSE(fine.lascia());
    fine.scegli(2);
    EXPECT_TRUE(fine.lascia());
    EXPECT_TRUE(messaggi.mostrati.empty());
}

TEST_F(ProveTempo, TheChecksOnlyLook) {
    EXPECT_TRUE(finestra.convalida());
    EXPECT_EQ(fine.testo(), "09:00");
    EXPECT_FALSE(stato.convalidaFallita);
}

TEST_F(ProveTempo, LookingAtTheWindowChangesNothing) {
    frmTempoModellazione altra(contorno());
    gestione.ShowForm(&finestra);
    const std::string prima = rotonda().TestoFile();
    const auto revisione = rotonda().revisione().tutto;
    EXPECT_TRUE(gestione.ShowForm(&altra));
    EXPECT_EQ(rotonda().TestoFile(), prima);
    EXPECT_EQ(rotonda().revisione().tutto, revisione);
    gestione.chiudiCorrente();
}

TEST_F(ProveTempo, AProjectThatDoesNotAddUpIsLeftAloneAsLongAsNothingIsChanged) {
    progetto(8, 0, 10, 9, 10);  // seven segments, the legs hold four
    finestra.ReadData();
    finestra.SaveData();
    EXPECT_EQ(dati(1).NumSegmentiTempo(), 4);
    EXPECT_TRUE(messaggi.mostrati.empty());
}

TEST_F(ProveTempo, SecondsOfTheProjectSurviveAChangeOfAnotherField) {
    const DataOra fineEsatta = oraDelGiorno(9, 0, 30);
    rotonda().TempoFinale(fineEsatta);
    finestra.ReadData();
    inizio.scrivi("08:30");
    finestra.SaveData();
    EXPECT_EQ(rotonda().TempoFinale(), fineEsatta);
}

TEST_F(ProveTempo, AnIncompleteWindowIsNotSaved) {
    segmento.scrivi("");
    finestra.SaveData();
    fine.modifica("");
    segmento.scrivi("10");
    finestra.SaveData();
    ASSERT_EQ(messaggi.mostrati.size(), 2U);
    for (const auto& m : messaggi.mostrati) {
        EXPECT_EQ(m.testo, "Completare tutti i campi visualizzati");
        EXPECT_EQ(m.titolo, "KELVO 2014 - Attenzione");
        EXPECT_EQ(m.icona, Icona::esclamazione);
    }
    EXPECT_TRUE(stato.convalidaFallita);
    EXPECT_EQ(rotonda().SegmentoTempo(), oraDelGiorno(0, 15));
}

TEST_F(ProveTempo, AnEndThatAnotherFieldMadeWrongIsNotSaved) {
    fine.scrivi("09:30");
    inizio.scrivi("10:00");  // the focus has not left it yet
    finestra.SaveData();
    EXPECT_TRUE(fine.fallito());
    EXPECT_EQ(rotonda().TempoIniziale(), oraDelGiorno(8, 0));
    EXPECT_EQ(rotonda().TempoFinale(), oraDelGiorno(9, 0));
}

TEST_F(ProveTempo, ASaveWritesTheThreeTimes) {
    scrivi("07:30", "20", "09:30");
    finestra.ctlToolbar.premi("AggiornaDati");
    EXPECT_EQ(rotonda().TempoIniziale(), oraDelGiorno(7, 30));
    EXPECT_EQ(rotonda().SegmentoTempo(), oraDelGiorno(0, 20));
    EXPECT_EQ(rotonda().TempoFinale(), oraDelGiorno(9, 30));
    EXPECT_EQ(stato.NumSegmenti, 6);
    EXPECT_TRUE(finestra.DatiAllineati());
    EXPECT_FALSE(inizio.modificato() || segmento.modificato() || fine.modificato());
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(messaggio(0),
              "Attenzione, i parametri di modellazione sono stati modificati.\nI dati di traffico dovranno essere "
              "nuovamente inseriti");
    EXPECT_EQ(messaggi.mostrati[0].titolo, "KELVO 2014 - Attenzione");
    EXPECT_EQ(messaggi.mostrati[0].icona, Icona::esclamazione);
    for (std::int16_t i = 1; i <= 3; ++i) {
        EXPECT_EQ(dati(i).NumSegmentiTempo(), 6);
        EXPECT_EQ(composizione(i).NumSegmentiTempo(), 6);
    }
}

TEST_F(ProveTempo, AnEndThatIsNoWholeNumberOfSegmentsIsMovedAndTold) {
    scrivi("08:00", "7", "09:00");
    finestra.SaveData();
    // 60 = 8 x 7 + 4: three minutes more. 60 / 7 = 8,57 gives 9 segments.
    EXPECT_EQ(rotonda().TempoFinale(), oraDelGiorno(9, 3));
    EXPECT_EQ(fine.testo(), "09:03");
    EXPECT_EQ(stato.NumSegmenti, 9);
    ASSERT_EQ(messaggi.mostrati.size(), 2U);
    EXPECT_EQ(
        messaggio(0),
        "Attenzione, il parametro 'Tempo Finale' è stato aggiornato a <09:03> per ottenere gli intervalli di tempo "
        "omogenei");
    EXPECT_EQ(messaggi.mostrati[0].icona, Icona::informazione);
    EXPECT_EQ(messaggi.mostrati[0].titolo, "KELVO 2014 - Informazione");
}

TEST_F(ProveTempo, TheMessagesComeAfterTheTimesAreWrittenAndBeforeTheTrafficIsTouched) {
    dati(1).FlussoTempo2(7.0F);
    scrivi("08:00", "7", "09:00");
    std::vector<std::string> visti;
    messaggi.alMostrare = [&] {
        EXPECT_EQ(rotonda().SegmentoTempo(), oraDelGiorno(0, 7));
        EXPECT_EQ(rotonda().TempoFinale(), oraDelGiorno(9, 3));
        EXPECT_EQ(dati(1).NumSegmentiTempo(), 4);
        EXPECT_EQ(dati(1).FlussoTempo2(), 7.0F);
        EXPECT_TRUE(backup().rami.empty());
        EXPECT_FALSE(backup().BackupComposizioneDisponibile);
        visti.push_back(fine.testo());
    };
    finestra.SaveData();
    EXPECT_EQ(visti, (Voci{"09:03", "09:03"}));
    EXPECT_EQ(dati(1).FlussoTempo2(), 0.0F);
}

TEST_F(ProveTempo, TheNumberOfSegmentsComesFromTheLengthBeforeTheCorrection) {
    progetto(8, 0, 5, 9, 5);
    finestra.ReadData();
    segmento.scrivi("10");  // 65 minutes: 6,5 segments, rounded to the even 6, though the end moves to 70
    finestra.SaveData();
    EXPECT_EQ(rotonda().TempoFinale(), oraDelGiorno(9, 10));
    EXPECT_EQ(stato.NumSegmenti, 6);
    EXPECT_EQ(dati(1).NumSegmentiTempo(), 6);
    // 70 / 10 = 7 segments on the clock, their half 3,5 rounded to the even 4.
    EXPECT_EQ(dati(1).Tempo2(), oraDelGiorno(8, 40));
    EXPECT_EQ(dati(1).Tempo3(), oraDelGiorno(9, 10));
    // Saved once more with nothing changed it stays as it is.
    messaggi.mostrati.clear();
    finestra.SaveData();
    EXPECT_EQ(dati(1).NumSegmentiTempo(), 6);
    EXPECT_TRUE(messaggi.mostrati.empty());
}

TEST_F(ProveTempo, TheSameNumberOfSegmentsLeavesTheTrafficAlone) {
    dati(2).FlussoTempo2(7.0F);
    dati(2).FlussoSegmento(55.0F, 1, 0);
    const DataOra t1 = dati(2).Tempo1();
    scrivi("10:00", "15", "11:00");
    finestra.SaveData();
    EXPECT_EQ(rotonda().TempoIniziale(), oraDelGiorno(10, 0));
    EXPECT_EQ(stato.NumSegmenti, 4);
    EXPECT_TRUE(messaggi.mostrati.empty());
    EXPECT_EQ(dati(2).FlussoTempo2(), 7.0F);
    EXPECT_EQ(dati(2).FlussoSegmento(1, 0), 55.0F);
    EXPECT_EQ(dati(2).Tempo1(), t1);
    EXPECT_FALSE(backup().BackupComposizioneDisponibile);
}

TEST_F(ProveTempo, OneLegThatDiffersResetsThemAllAndIsToldOnce) {
    dati(3).NumSegmentiTempo(9);
    dati(1).FlussoTempo1(1.0F);
    scrivi("10:00", "15", "11:00");
    finestra.SaveData();
    EXPECT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(dati(3).NumSegmentiTempo(), 4);
    EXPECT_EQ(dati(1).FlussoTempo1(), 0.0F);
}

TEST_F(ProveTempo, TheCurvesAreResetToTheNewWindow) {
    for (std::int16_t i = 1; i <= 3; ++i) {
        dati(i).FlussoTempo1(1.0F);
        dati(i).FlussoTempo2(2.0F);
        dati(i).FlussoTempo3(3.0F);
        dati(i).FlussoTotale(4.0F);
        dati(i).FlussoMedio(5.0F);
        dati(i).FlussoOrario(6.0F);
    }
    scrivi("08:00", "15", "09:15");
    finestra.SaveData();
    for (std::int16_t i = 1; i <= 3; ++i) {
        EXPECT_EQ(dati(i).FlussoTempo1(), 0.0F);
        EXPECT_EQ(dati(i).FlussoTempo2(), 0.0F);
        EXPECT_EQ(dati(i).FlussoTempo3(), 0.0F);
        EXPECT_EQ(dati(i).FlussoTotale(), 0.0F);
        EXPECT_EQ(dati(i).FlussoMedio(), 0.0F);
        EXPECT_EQ(dati(i).FlussoOrario(), 0.0F);
        EXPECT_EQ(dati(i).Tempo1(), oraDelGiorno(8, 0));
        EXPECT_EQ(dati(i).Tempo3(), oraDelGiorno(9, 15));
        EXPECT_EQ(dati(i).Tempo2(), oraDelGiorno(8, 30));  // 5 segments, half of them 2,5: the even 2
    }
}

TEST_F(ProveTempo, TheOldTrafficIsKeptInTheBackup) {
    composizione(2).CategoriaSegmento(12.5F, 0, 0);
    composizione(2).CategoriaSegmento(13.5F, 3, 6);
    composizione(1).CategoriaSegmento(7.4F, 1, 2);
    dati(2).FlussoSegmento(88.0F, 2, 0);
    dati(2).FlussoTempo2(9.5F);
    const DataOra picco = dati(2).Tempo2();
    scrivi("08:00", "10", "09:00");
    finestra.SaveData();
    EXPECT_TRUE(backup().BackupComposizioneDisponibile);
    const TabellaBackup& copia = backup().BackupComposizione;
    EXPECT_EQ(copia.rami(), 3);
    EXPECT_EQ(copia.ultimoSegmento(), 4);
    EXPECT_EQ(copia.cella(2, 1, 1), 12);  // halves to the even neighbour
    EXPECT_EQ(copia.cella(2, 7, 4), 14);
    EXPECT_EQ(copia.cella(1, 3, 2), 7);
    EXPECT_EQ(copia.cella(1, 0, 0), 0);
    EXPECT_EQ(composizione(2).CategoriaSegmento(0, 0), 0.0F);
    ASSERT_EQ(backup().rami.size(), 3U);
    EXPECT_EQ(backup().rami[1].curva.FlussoTempo2, 9.5F);
    EXPECT_EQ(backup().rami[1].curva.Tempo2, picco);
    EXPECT_EQ(backup().rami[1].conteggi, (std::vector<float>{0.0F, 0.0F, 88.0F, 0.0F}));
}

TEST_F(ProveTempo, TheBackupGrowsAndEndsWithTheProject) {
    composizione(1).CategoriaSegmento(3.0F, 3, 0);
    finestra.BackUpData();
    composizione(2).NumSegmentiTempo(6);
    composizione(2).CategoriaSegmento(4.0F, 5, 0);
    finestra.BackUpData();
    EXPECT_EQ(backup().BackupComposizione.ultimoSegmento(), 6);
    EXPECT_EQ(backup().BackupComposizione.cella(1, 1, 4), 3);
    EXPECT_EQ(backup().BackupComposizione.cella(2, 1, 6), 4);
    EXPECT_EQ(backup().rami.size(), 3U);
    creaProgetto(app, 3);
    EXPECT_EQ(backup().BackupComposizione.rami(), 0);
}

TEST_F(ProveTempo, AFaultOfTheBackupIsRecordedUnderItsName) {
    composizione(1).CategoriaSegmento(3e9F, 0, 0);
    finestra.BackUpData();
    ASSERT_EQ(errori.size(), 1U);
    EXPECT_EQ(errori[0].numero, 6);
    EXPECT_EQ(errori[0].metodo, "frmTempoModellazione:BackUpDATA");
}

TEST_F(ProveTempo, AFaultOfTheSaveIsRecordedUnderItsName) {
    progetto(8, 0, 15, 9, 0);
    finestra.ReadData();
    inizio.scrivi("08:30");
    app.theRotonda().TempoFinale(1e9);  // no date of the calendar
    finestra.SaveData();
    ASSERT_EQ(errori.size(), 1U);
    EXPECT_EQ(errori[0].numero, 6);
    EXPECT_EQ(errori[0].metodo, "frmTempoModellazione:SaveData");
    EXPECT_EQ(rotonda().TempoIniziale(), oraDelGiorno(8, 0));
}

TEST_F(ProveTempo, RefreshPutsTheProjectsTimesBackAndArchiveDoesNothing) {
    finestra.fuocoSu(segmento);
    segmento.scrivi("99");
    finestra.ctlToolbar.premi("Refresh");
    EXPECT_EQ(segmento.testo(), "15");
    EXPECT_EQ(fine.testo(), "09:00");
    EXPECT_TRUE(finestra.DatiAllineati());
    finestra.ctlToolbar.premi("Archivio");
    EXPECT_TRUE(messaggi.mostrati.empty());
}

TEST_F(ProveTempo, AWindowWithBadDataIsNotLeft) {
    gestione.ShowForm(&finestra);
    frmTempoModellazione altra(contorno());
    segmento.scrivi("99");
    EXPECT_FALSE(gestione.ShowForm(&altra));
    segmento.scrivi("");
    EXPECT_FALSE(gestione.ShowForm(&altra));  // the flag alone
    segmento.scrivi("15");
    fine.scrivi("");
    EXPECT_FALSE(gestione.ShowForm(&altra));
    EXPECT_EQ(gestione.corrente(), &finestra);
    fine.scrivi("10:00");
    EXPECT_TRUE(gestione.ShowForm(&altra));
    EXPECT_EQ(rotonda().TempoFinale(), oraDelGiorno(10, 0));
    gestione.chiudiCorrente();
}

}  // namespace
}  // namespace kelvo::prove
