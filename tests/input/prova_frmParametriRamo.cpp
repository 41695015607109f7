#include "input/scenaParametri.h"

#include <gtest/gtest.h>

#include <array>
#include <fstream>

namespace kelvo::prove {
namespace {

TEST_F(ProveParametri, ThePanelsBearTheirTitles) {
    EXPECT_EQ(finestra.frParametri.titolo(), "Parametri geometrici ingresso");
    EXPECT_EQ(finestra.frFlussi.titolo(), "Flussi interferenti");
    EXPECT_EQ(finestra.frDescrizione.titolo(), "Descrizione parametro geometrico");
}

TEST_F(ProveParametri, FieldsShowTheDefaultsOfANewEntryWithTwoDecimals) {
    EXPECT_EQ(finestra.didascalia(), "Geometria");
    EXPECT_EQ(finestra.sottotitolo.testo(), "Ramo A");
    EXPECT_EQ(finestra.lblDescrizioneRamo.testo(), "Ingresso A:");
    EXPECT_EQ(finestra.txtDescrizioneRamo.testo(), "Ramo A");
    EXPECT_EQ(finestra.txtLarghezzaIngresso.testo(), "5,00");
    EXPECT_EQ(finestra.txtSemiLarghezza.testo(), "3,75");
    EXPECT_EQ(finestra.txtLungSvasatura.testo(), "20,00");
    EXPECT_EQ(finestra.txtAngoloConflitto.testo(), "5,00");
    EXPECT_EQ(finestra.txtRaggioCurvatura.testo(), "25,00");
    EXPECT_EQ(finestra.txtDiametroInscritto.testo(), "65,00");
    EXPECT_FALSE(finestra.chkAttraversamentoPedonale.spuntata());
    EXPECT_EQ(finestra.chkAttraversamentoPedonale.testo(), "Attraversamento pedonale");
    EXPECT_EQ(finestra.cmdDM.testo(), "D.M. 19.04.06");
    EXPECT_TRUE(finestra.DatiAllineati());
}

TEST_F(ProveParametri, TabOrderFollowsTheReadingOrder) {
    std::vector<std::string> nomi;
    for (const Controllo* c : finestra.ordine()) {
        if (c->prendeFuoco()) {
            nomi.push_back(c->nome());
        }
    }
    EXPECT_EQ(nomi,
              (std::vector<std::string>{"txtDescrizioneRamo", "txtLarghezzaIngresso", "txtSemiLarghezza",
                                        "txtLungSvasatura", "txtAngoloConflitto", "txtRaggioCurvatura",
                                        "txtDiametroInscritto", "chkAttraversamentoPedonale", "cmdDM", "ctlPianta"}));
}

struct CasoLimite {
    tBox frmParametriRamo::*campo;
    const char* testo;
    bool passa;
    const char* rifiuto;
};

TEST_F(ProveParametri, EachFieldHoldsItsLimitsAndSaysThem) {
    using F = frmParametriRamo;
    const char* e = "Il valore deve essere compreso tra 3,60 e 16,30 m";
    const char* v = "Il valore deve essere compreso tra 1,90 e 12,50 m";
    const char* l = "Il valore deve essere almeno 1,00 m";
    const char* phi = "Il valore deve essere compreso tra 0,00 e 77,00 gradi";
    const char* r = "Il valore deve essere almeno 3,40 m";
    const char* D = "Il valore deve essere compreso tra 13,50 e 176,00 m";
    ramo(1).SemiLarghezza(2.0F);
    finestra.ReadData();
    const std::vector<CasoLimite> casi{
        {&F::txtLarghezzaIngresso, "3,60", true, e},   {&F::txtLarghezzaIngresso, "3,59", false, e},
        {&F::txtLarghezzaIngresso, "16,31", false, e}, {&F::txtLarghezzaIngresso, "", false, e},
        {&F::txtLarghezzaIngresso, "16,30", true, e},  {&F::txtSemiLarghezza, "1,89", false, v},
        {&F::txtSemiLarghezza, "1,90", true, v},       {&F::txtSemiLarghezza, "12,51", false, v},
        {&F::txtSemiLarghezza, "12,50", true, v},      {&F::txtLungSvasatura, "0,99", false, l},
        {&F::txtLungSvasatura, "1,00", true, l},       {&F::txtLungSvasatura, "99999999", true, l},
        {&F::txtAngoloConflitto, "0", true, phi},      {&F::txtAngoloConflitto, "77", true, phi},
        {&F::txtAngoloConflitto, "77,01", false, phi}, {&F::txtRaggioCurvatura, "3,39", false, r},
        {&F::txtRaggioCurvatura, "3,40", true, r},     {&F::txtRaggioCurvatura, "99999999", true, r},
        {&F::txtDiametroInscritto, "13,49", false, D}, {&F::txtDiametroInscritto, "13,50", true, D},
        {&F::txtDiametroInscritto, "176", true, D},    {&F::txtDiametroInscritto, "176,01", false, D},
    };
    for (const CasoLimite& caso : casi) {
        messaggi.mostrati.clear();
        tBox& campo = finestra.*caso.campo;
        EXPECT_EQ(scrivi(campo, caso.testo), caso.passa) << campo.nome() << " " << caso.testo;
        EXPECT_EQ(campo.fallito(), !caso.passa) << campo.nome() << " " << caso.testo;
        if (caso.passa) {
            EXPECT_TRUE(messaggi.mostrati.empty()) << campo.nome() << " " << caso.testo;
            continue;
        }
        ASSERT_EQ(messaggi.mostrati.size(), 1U) << campo.nome() << " " << caso.testo;
        EXPECT_EQ(messaggi.mostrati[0].testo, caso.rifiuto);
        EXPECT_EQ(messaggi.mostrati[0].titolo, "KELVO 2014 - Attenzione");
        EXPECT_EQ(messaggi.mostrati[0].icona, Icona::esclamazione);
        EXPECT_TRUE(stato.convalidaFallita);
        EXPECT_NE(cornice.avvisato.find(caso.rifiuto), std::string::npos);
    }
    EXPECT_EQ(cornice.avvisato.substr(0, 18), "Diametro inscritto");
}

TEST_F(ProveParametri, ATypedPointBecomesTheComma) {
    EXPECT_TRUE(scrivi(finestra.txtLarghezzaIngresso, "6.25"));
    EXPECT_EQ(finestra.txtLarghezzaIngresso.testo(), "6,25");
    EXPECT_TRUE(scrivi(finestra.txtLungSvasatura, "12a-3"));
    EXPECT_EQ(finestra.txtLungSvasatura.testo(), "123");
}

TEST_F(ProveParametri, EqualWidthsAreRefusedFromBothFields) {
    EXPECT_FALSE(scrivi(finestra.txtSemiLarghezza, "5,00"));
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(messaggi.mostrati[0].testo,
              "Il valore del campo 'Semilarghezza accesso' deve essere sempre minore del campo 'Larghezza ingresso'");
    EXPECT_EQ(messaggi.mostrati[0].titolo, "KELVO 2014 - Attenzione");
    EXPECT_TRUE(stato.convalidaFallita);
    finestra.ReadData();
    EXPECT_FALSE(scrivi(finestra.txtLarghezzaIngresso, "3,75"));
    ASSERT_EQ(messaggi.mostrati.size(), 2U);
    EXPECT_EQ(messaggi.mostrati[1].testo,
              "Il valore del campo 'Larghezza ingresso' deve essere sempre maggiore del campo 'Semilarghezza accesso'");
    EXPECT_TRUE(scrivi(finestra.txtLarghezzaIngresso, "3,76"));
}

TEST_F(ProveParametri, AnEmptyMaskLeavesThePairCheckOut) {
    // Empty counts as 0 for the limits: one message, and it is that of the limits.
    for (const char* vuoto : {",", ""}) {
        messaggi.mostrati.clear();
        EXPECT_FALSE(scrivi(finestra.txtSemiLarghezza, vuoto));
        ASSERT_EQ(messaggi.mostrati.size(), 1U);
        EXPECT_EQ(messaggi.mostrati[0].testo, "Il valore deve essere compreso tra 1,90 e 12,50 m");
    }
}

TEST_F(ProveParametri, AnEmptyAngleCountsAsZeroAndShowsIt) {
    EXPECT_TRUE(scrivi(finestra.txtAngoloConflitto, ""));
    EXPECT_EQ(finestra.txtAngoloConflitto.testo(), "0,00");
    finestra.SaveData();
    EXPECT_EQ(ramo(1).AngoloConflitto(), 0.0F);
}

TEST_F(ProveParametri, ADifferingFieldClearsTheMarkAndSavingSetsIt) {
    scrivi(finestra.txtLarghezzaIngresso, "5");
    EXPECT_TRUE(finestra.DatiAllineati()) << "the same number in other digits";
    scrivi(finestra.txtLarghezzaIngresso, "6,5");
    EXPECT_FALSE(finestra.DatiAllineati());
    finestra.ctlToolbar.premi("AggiornaDati");
    EXPECT_TRUE(finestra.DatiAllineati());
    EXPECT_EQ(ramo(1).LarghezzaIngresso(), 6.5F);
    finestra.chkAttraversamentoPedonale.clicca();
    EXPECT_FALSE(finestra.DatiAllineati());
}

TEST_F(ProveParametri, AggiornaDatiWritesAllAndTheTreeShowsTheNewName) {
    scrivi(finestra.txtDescrizioneRamo, "Via Roma");
    scrivi(finestra.txtLarghezzaIngresso, "7");
    scrivi(finestra.txtSemiLarghezza, "3,5");
    scrivi(finestra.txtLungSvasatura, "25");
    scrivi(finestra.txtAngoloConflitto, "30");
    scrivi(finestra.txtRaggioCurvatura, "20");
    scrivi(finestra.txtDiametroInscritto, "40,5");
    finestra.chkAttraversamentoPedonale.clicca();
    EXPECT_EQ(ramo(1).Descrizione(), "Ramo A") << "nothing before the key is pressed";
    finestra.ctlToolbar.premi("AggiornaDati");
    EXPECT_EQ(ramo(1).Descrizione(), "Via Roma");
    EXPECT_EQ(ramo(1).LarghezzaIngresso(), 7.0F);
    EXPECT_EQ(ramo(1).SemiLarghezza(), 3.5F);
    EXPECT_EQ(ramo(1).LunghezzaSvasatura(), 25.0F);
    EXPECT_EQ(ramo(1).AngoloConflitto(), 30.0F);
    EXPECT_EQ(ramo(1).RaggioIngresso(), 20.0F);
    EXPECT_EQ(ramo(1).DiametroInscritto(), 40.5F);
    EXPECT_TRUE(ramo(1).AttraversamentoPedonale());
    EXPECT_EQ(cornice.nodi["1Ramo"], "Via Roma");
    EXPECT_EQ(finestra.sottotitolo.testo(), "Via Roma");
    EXPECT_EQ(ramo(2).LarghezzaIngresso(), 5.0F);
}

TEST_F(ProveParametri, AggiornaDatiReadsTheTreeLayoutFromTheConfiguration) {
    app.theAmbiente.ScriviIni(app.theAmbiente.PercorsoIni(), "OPZ_EXPLORER", "Rami", "1");
    app.configurazione.OpzExplorer = 0;
    std::ofstream(app.theAmbiente.PercorsoIni()) << "[OPZ_EXPLORER]\nRami=1\n";
    finestra.SaveData();
    EXPECT_EQ(app.configurazione.OpzExplorer, 1);
}

TEST_F(ProveParametri, RefreshDiscardsWhatWasTyped) {
    scrivi(finestra.txtLarghezzaIngresso, "9");
    finestra.ctlToolbar.premi("Refresh");
    EXPECT_EQ(finestra.txtLarghezzaIngresso.testo(), "5,00");
    EXPECT_TRUE(finestra.DatiAllineati());
}

TEST_F(ProveParametri, AnEditOfOneLegStaysWithItWhenTheNextIsChosen) {
    finestra.fuocoSu(finestra.txtLarghezzaIngresso);
    finestra.txtLarghezzaIngresso.scrivi("8");
    finestra.lasciaFuoco();
    apri("keyRamo2");
    EXPECT_EQ(ramo(1).LarghezzaIngresso(), 8.0F);
    EXPECT_EQ(ramo(2).LarghezzaIngresso(), 5.0F);
    EXPECT_EQ(finestra.indiceRamo(), 2);
    EXPECT_EQ(finestra.txtDescrizioneRamo.testo(), "Ramo B");
    EXPECT_EQ(finestra.lblDescrizioneRamo.testo(), "Ingresso B:");
    EXPECT_EQ(finestra.txtLarghezzaIngresso.testo(), "5,00");
    EXPECT_EQ(app.theRamoCorrente, &ramo(2));
}

TEST_F(ProveParametri, ARefusedFieldKeepsTheWindowAtItsLeg) {
    finestra.fuocoSu(finestra.txtLarghezzaIngresso);
    finestra.txtLarghezzaIngresso.scrivi("2");
    navigazione.corrente = "keyRamo2";
    EXPECT_FALSE(gestione.ShowForm(&finestra));
    EXPECT_EQ(finestra.indiceRamo(), 1);
    EXPECT_EQ(ramo(1).LarghezzaIngresso(), 5.0F);
}

TEST_F(ProveParametri, OddDecimalsAreNotTouchedByLooking) {
    ramo(1).LarghezzaIngresso(5.1234567F);
    ramo(1).SemiLarghezza(5.1234560F);  // equal to two decimals, yet smaller
    ramo(1).LunghezzaSvasatura(20.005F);
    ramo(1).AngoloConflitto(0.004F);
    ramo(1).RaggioIngresso(33.333333F);
    ramo(1).DiametroInscritto(41.999F);
    const std::string prima = salva("prima.klv");
    apri("keyRamo1");
    EXPECT_TRUE(messaggi.mostrati.empty());
    for (tBox* campo : finestra.campi()) {
        EXPECT_TRUE(finestra.fuocoSu(*campo)) << campo->nome();
    }
    EXPECT_TRUE(finestra.lasciaFuoco());
    apri("keyRamo2");
    EXPECT_EQ(salva("dopo.klv"), prima);
}

TEST_F(ProveParametri, TheFieldInUseShowsItsPictureAndPage) {
    EXPECT_EQ(finestra.ctlPicture.risorsa(), "VUOTA");
    const std::vector<std::pair<const char*, const char*>> attesi{
        {"LARGHEZZA_INGRESSO", "Input1.htm"},  {"LARGHEZZA_APPROCCIO", "Input2.htm"},
        {"LUNGHEZZA_SVASATURA", "Input3.htm"}, {"ANGOLO_CONFLITTO", "Input4.htm"},
        {"RAGGIO_INGRESSO", "Input5.htm"},     {"DIAMETRO_INSCRITTO", "Input6.htm"}};
    const auto campi = finestra.campi();
    for (std::size_t i = 0; i < campi.size(); ++i) {
        finestra.fuocoSu(*campi[i]);
        EXPECT_EQ(finestra.ctlPicture.risorsa(), attesi[i].first);
        EXPECT_EQ(finestra.ctlHelp.pagina(), attesi[i].second);
        EXPECT_EQ(finestra.misuraInUso(), static_cast<pianta::Misura>(i));
    }
    finestra.fuocoSu(finestra.txtDescrizioneRamo);
    EXPECT_EQ(finestra.ctlPicture.risorsa(), "VUOTA");
    EXPECT_EQ(finestra.ctlHelp.pagina(), "NomeRamo.htm");
    EXPECT_FALSE(finestra.misuraInUso().has_value());
    finestra.fuocoSu(finestra.txtDiametroInscritto);
    finestra.fuocoSu(finestra.cmdDM);
    EXPECT_EQ(finestra.ctlPicture.risorsa(), "VUOTA");
    EXPECT_EQ(finestra.ctlHelp.pagina(), "DecretoRotatorie.htm");
}

TEST_F(ProveParametri, TheDecreeOpensFromKeyAndButton) {
    finestra.ctlToolbar.premi("DM");
    finestra.cmdDM.premi();
    ASSERT_EQ(documenti.aperti.size(), 2U);
    for (const std::string& percorso : documenti.aperti) {
        EXPECT_EQ(percorso, "\"" + cartella.percorso() + "/UserGuide/DM19-04-06.pdf\"");
    }
    documenti.riesce = false;
    finestra.cmdDM.premi();
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(messaggi.mostrati[0].testo, "Impossibile aprire " + cartella.percorso() + "/UserGuide/DM19-04-06.pdf");
}

TEST_F(ProveParametri, FiguresOfTheRelationFollowEachKey) {
    // Worked line: e 7, v 3.5, l' 25, phi 25, r 30, D 40.
    finestra.txtLarghezzaIngresso.scrivi("7");
    finestra.txtSemiLarghezza.scrivi("3,5");
    finestra.txtLungSvasatura.scrivi("25");
    finestra.txtAngoloConflitto.scrivi("25");
    finestra.txtRaggioCurvatura.scrivi("30");
    finestra.txtDiametroInscritto.scrivi("40");
    EXPECT_EQ(valore("k"), "1,0337");
    EXPECT_EQ(valore("tD"), "1,4404");
    EXPECT_EQ(valore("S"), "0,224");
    EXPECT_EQ(valore("x2 [m]"), "5,92");
    EXPECT_EQ(valore("Intercetta"), "1853");
    EXPECT_EQ(valore("Pendenza"), "0,6827");
    EXPECT_EQ(valore("Capacità con Qc = 0"), "1853");
    EXPECT_EQ(valore("Capacità con Qc = 500"), "1512");
    EXPECT_EQ(valore("Capacità con Qc = 1000"), "1171");
    EXPECT_EQ(ramo(1).F(), 0.0) << "the leg keeps the results of its last calculation";
}

TEST_F(ProveParametri, TheSmallestEntryStillHasCapacityAtAThousandVehicles) {
    finestra.txtSemiLarghezza.scrivi("1,90");
    finestra.txtLarghezzaIngresso.scrivi("3,60");
    finestra.txtLungSvasatura.scrivi("1");
    finestra.txtAngoloConflitto.scrivi("77");
    finestra.txtRaggioCurvatura.scrivi("3,40");
    finestra.txtDiametroInscritto.scrivi("13,50");
    // k = 1 - 0.16309 - 0.238747 = 0.598163; S = 2.72; x2 = 1.9 + 1.7/6.44 = 2.163975; F = 392.2;
    // tD = 1.495264; fc = 0.21 x 1.495264 x 1.432795 x k = 0.269117: at 1000 there are 123 left.
    EXPECT_EQ(valore("Capacità con Qc = 0"), "392");
    EXPECT_EQ(valore("Capacità con Qc = 1000"), "123");
}

TEST_F(ProveParametri, HalfTypedMeasuresKeepTheLastGoodPicture) {
    finestra.txtLarghezzaIngresso.scrivi("1");
    EXPECT_EQ(finestra.geometriaMostrata().e, 5.0F);
    finestra.txtLarghezzaIngresso.scrivi("");
    EXPECT_EQ(finestra.geometriaMostrata().e, 5.0F);
    finestra.txtLarghezzaIngresso.scrivi("12");
    EXPECT_EQ(finestra.geometriaMostrata().e, 12.0F);
    finestra.txtSemiLarghezza.scrivi("12,2");
    EXPECT_EQ(finestra.geometriaMostrata().e, 12.0F);
    EXPECT_EQ(finestra.geometriaMostrata().v, 3.75F);
}

TEST_F(ProveParametri, AMeasureOutsideTheRecommendedRangeIsNoted) {
    // The default angle of 5 degrees lies below the recommended 10.
    EXPECT_EQ(finestra.lblNote[3].testo(), "fuori dal campo consigliato 10,00 ÷ 60,00");
    for (const std::size_t i : {0U, 1U, 2U, 4U, 5U}) {
        EXPECT_EQ(finestra.lblNote[i].testo(), "") << i;
    }
    finestra.txtLarghezzaIngresso.scrivi("15,01");
    EXPECT_EQ(finestra.lblNote[0].testo(), "fuori dal campo consigliato 4,00 ÷ 15,00");
    finestra.txtLarghezzaIngresso.scrivi("15");
    EXPECT_EQ(finestra.lblNote[0].testo(), "");
    finestra.txtSemiLarghezza.scrivi("7,31");
    EXPECT_EQ(finestra.lblNote[1].testo(), "fuori dal campo consigliato 2,00 ÷ 7,30");
    finestra.txtLungSvasatura.scrivi("100,5");
    EXPECT_EQ(finestra.lblNote[2].testo(), "fuori dal campo consigliato 1,00 ÷ 100,00");
    finestra.txtRaggioCurvatura.scrivi("5,9");
    EXPECT_EQ(finestra.lblNote[4].testo(), "fuori dal campo consigliato 6,00 ÷ 100,00");
    finestra.txtDiametroInscritto.scrivi("14,9");
    EXPECT_EQ(finestra.lblNote[5].testo(), "fuori dal campo consigliato 15,00 ÷ 100,00");
}

TEST_F(ProveParametri, AnEmptyOrForbiddenNameIsRefused) {
    EXPECT_FALSE(scrivi(finestra.txtDescrizioneRamo, ""));
    EXPECT_EQ(messaggi.mostrati.back().testo, "Attenzione, indicare un nome per il ramo");
    EXPECT_FALSE(scrivi(finestra.txtDescrizioneRamo, "A/B"));
    EXPECT_EQ(messaggi.mostrati.back().testo, "Attenzione, non sono permessi i caratteri: \\/:*?\"<>|");
}

TEST_F(ProveParametri, AnEmptiedAngleIsWorkedOutAtOnce) {
    ramo(1).AngoloConflitto(30.0F);
    finestra.ReadData();
    EXPECT_TRUE(scrivi(finestra.txtAngoloConflitto, ""));
    EXPECT_EQ(finestra.geometriaMostrata().phi, 0.0F);
    // k = 1 - 0.00347 (phi - 30) - 0.978 (1/r - 0.05) at phi 0 and r 25.
    EXPECT_EQ(finestra.valori[0].etichetta.testo(),
              formatta(1.0 + 0.00347 * 30.0 - 0.978 * (1.0 / 25.0 - 0.05), "0.0000"));
    EXPECT_TRUE(finestra.lblNote[3].visibile());
}

TEST_F(ProveParametri, ALoneCommaIsAnEmptyMask) {
    EXPECT_TRUE(scrivi(finestra.txtAngoloConflitto, ","));
    EXPECT_EQ(finestra.txtAngoloConflitto.testo(), "0,00");
    EXPECT_TRUE(messaggi.mostrati.empty());
}

TEST_F(ProveParametri, AWrongLayoutInTheConfigurationKeepsNoMeasureFromBeingWritten) {
    std::ofstream(app.theAmbiente.PercorsoIni()) << "[OPZ_EXPLORER]\nRami=\n";
    EXPECT_TRUE(scrivi(finestra.txtLarghezzaIngresso, "8"));
    finestra.SaveData();
    EXPECT_EQ(ramo(1).LarghezzaIngresso(), 8.0F);
}

TEST_F(ProveParametri, AWrongPairIsToldOnce) {
    ramo(1).LarghezzaIngresso(5.0F);
    ramo(1).SemiLarghezza(6.0F);
    finestra.ReadData();
    finestra.SaveData();
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(messaggi.mostrati[0].icona, Icona::esclamazione);
    EXPECT_TRUE(finestra.txtLarghezzaIngresso.fallito());
    EXPECT_TRUE(finestra.txtSemiLarghezza.fallito());
}

TEST_F(ProveParametri, WidthsAreComparedAsTyped) {
    ramo(1).LarghezzaIngresso(5.004F);
    finestra.ReadData();
    EXPECT_EQ(finestra.txtLarghezzaIngresso.testo(), "5,00");
    EXPECT_FALSE(scrivi(finestra.txtSemiLarghezza, "5,00"));
    EXPECT_EQ(messaggi.mostrati.size(), 1U);
}

TEST_F(ProveParametri, AHalfTypedPairKeepsTheLastOneThatFits) {
    EXPECT_TRUE(scrivi(finestra.txtLarghezzaIngresso, "12"));
    finestra.fuocoSu(finestra.txtSemiLarghezza);
    finestra.txtSemiLarghezza.scrivi("12");
    EXPECT_EQ(finestra.geometriaMostrata().e, 12.0F);
    EXPECT_EQ(finestra.geometriaMostrata().v, ramo(1).SemiLarghezza());
}

TEST_F(ProveParametri, WhatWasSavedIsShownWithTwoDecimals) {
    EXPECT_TRUE(scrivi(finestra.txtLarghezzaIngresso, "6,257"));
    finestra.SaveData();
    EXPECT_EQ(finestra.txtLarghezzaIngresso.testo(), "6,26");
    EXPECT_FALSE(finestra.txtLarghezzaIngresso.modificato());
    EXPECT_EQ(ramo(1).LarghezzaIngresso(), 6.257F);
}

TEST_F(ProveParametri, EachFieldPutsTheSignUp) {
    const std::array<const char*, 6> altri{"6,11", "3,11", "21,5", "33", "26", "66"};
    for (std::size_t i = 0; i < altri.size(); ++i) {
        finestra.ReadData();
        EXPECT_TRUE(scrivi(*finestra.campi()[i], altri[i])) << i;
        EXPECT_FALSE(finestra.DatiAllineati()) << i;
    }
    finestra.ReadData();
    EXPECT_TRUE(scrivi(finestra.txtDescrizioneRamo, "Via Nuova"));
    EXPECT_FALSE(finestra.DatiAllineati());
    finestra.ctlToolbar.premi("Refresh");
    EXPECT_EQ(finestra.txtDescrizioneRamo.testo(), "Ramo A");
    finestra.chkAttraversamentoPedonale.clicca();
    EXPECT_FALSE(finestra.DatiAllineati());
}

TEST_F(ProveParametri, TheCrossingIsReadAndStaysAcrossAVisit) {
    ramo(2).AttraversamentoPedonale(true);
    apri("keyRamo2");
    EXPECT_TRUE(finestra.chkAttraversamentoPedonale.spuntata());
    EXPECT_TRUE(finestra.piantaMostrata().rami[1].attraversamentoPedonale);
    finestra.SaveData();
    EXPECT_TRUE(ramo(2).AttraversamentoPedonale());
}

TEST_F(ProveParametri, EveryTypedMeasureIsInThePlan) {
    const std::array<const char*, 6> altri{"6,11", "3,11", "21,5", "33", "26", "66"};
    for (std::size_t i = 0; i < altri.size(); ++i) {
        finestra.campi()[i]->scrivi(altri[i]);
    }
    const pianta::DatiRamo questo = finestra.piantaMostrata().rami[0];
    EXPECT_FLOAT_EQ(static_cast<float>(questo.larghezzaIngresso), 6.11F);
    EXPECT_FLOAT_EQ(static_cast<float>(questo.semiLarghezza), 3.11F);
    EXPECT_FLOAT_EQ(static_cast<float>(questo.lunghezzaSvasatura), 21.5F);
    EXPECT_FLOAT_EQ(static_cast<float>(questo.angoloConflitto), 33.0F);
    EXPECT_FLOAT_EQ(static_cast<float>(questo.raggioIngresso), 26.0F);
    EXPECT_FLOAT_EQ(static_cast<float>(questo.diametroInscritto), 66.0F);
}

TEST_F(ProveParametri, AWindowWithoutALegIsAFault) {
    for (const char* chiave : {"keyRamo4", "keyRamo", "", "keyRamo0"}) {
        navigazione.corrente = chiave;
        EXPECT_THROW(finestra.attivata(), Guasto) << chiave;
    }
}

}  // namespace
}  // namespace kelvo::prove
