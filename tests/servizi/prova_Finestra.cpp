#include "shell/servizi/Finestra.h"

#include <gtest/gtest.h>

#include "finestraProva.h"

namespace kelvo::prove {
namespace {

struct ProveFinestra : testing::Test, ScenaFinestre {
    FinestraProva finestra{contorno()};
    ProveFinestra() { finestra.txtUno.testo("5"); }
};

TEST_F(ProveFinestra, TheTabOrderGoesRoundTheControlsThatTakeTheFocus) {
    EXPECT_EQ(finestra.successivo(true), &finestra.txtUno);  // labels are passed over
    EXPECT_EQ(finestra.successivo(false), &finestra.cmdFine);
    finestra.fuocoSu(finestra.txtUno);
    finestra.txtDue.abilitato(false);
    EXPECT_EQ(finestra.successivo(true), &finestra.txtTre);
    finestra.txtTre.visibile(false);
    EXPECT_EQ(finestra.successivo(true), &finestra.cmdFine);
    finestra.fuocoSu(finestra.cmdFine);
    EXPECT_EQ(finestra.successivo(true), &finestra.txtUno);
    EXPECT_EQ(finestra.successivo(false), &finestra.txtUno);
}

TEST_F(ProveFinestra, TheFocusIsToldWhenItMoves) {
    int mosse = 0;
    finestra.fuocoMutato().connect([&] { ++mosse; });
    EXPECT_TRUE(finestra.fuocoSu(finestra.txtDue));
    EXPECT_TRUE(finestra.fuocoSu(finestra.txtDue));
    EXPECT_EQ(mosse, 1);
    finestra.cmdFine.entra();  // the user's own way there
    EXPECT_EQ(finestra.fuoco(), &finestra.cmdFine);
    EXPECT_EQ(mosse, 2);
    EXPECT_FALSE(finestra.fuocoSu(finestra.lblUno));
    finestra.scordaFuoco();
    EXPECT_EQ(finestra.fuoco(), nullptr);
}

TEST_F(ProveFinestra, ACommandAsksTheFieldInFocusEachTime) {
    int uscite = 0;
    finestra.txtUno.dopoUscita = [&] { ++uscite; };
    finestra.fuocoSu(finestra.txtUno);
    EXPECT_TRUE(finestra.lasciaFuoco());
    EXPECT_EQ(finestra.fuoco(), &finestra.txtUno);
    finestra.txtUno.scrivi("77");
    EXPECT_FALSE(finestra.lasciaFuoco());
    EXPECT_EQ(uscite, 1);
}

TEST_F(ProveFinestra, ARefusedFieldIsCalledBackTo) {
    int chiamate = 0;
    finestra.fuocoSu(finestra.txtUno);
    finestra.fuocoMutato().connect([&] { ++chiamate; });
    finestra.txtUno.scrivi("77");
    EXPECT_FALSE(finestra.lasciaFuoco());
    EXPECT_EQ(chiamate, 1);
    EXPECT_FALSE(finestra.convalida());  // the focus stood there already: told all the same
    EXPECT_EQ(chiamate, 2);
    EXPECT_EQ(finestra.fuoco(), &finestra.txtUno);
    finestra.txtUno.scrivi("7");
    EXPECT_TRUE(finestra.lasciaFuoco());
    EXPECT_TRUE(finestra.convalida());
    EXPECT_EQ(chiamate, 2);
}

TEST_F(ProveFinestra, AControlKnowsIfTheFocusOfItsWindowStandsThere) {
    finestra.fuocoSu(finestra.txtDue);
    EXPECT_TRUE(finestra.txtDue.haFuoco());
    EXPECT_FALSE(finestra.txtUno.haFuoco());
    const tBox sola("txtSola", tBox::textbox);
    EXPECT_TRUE(sola.haFuoco());
}

TEST_F(ProveFinestra, AFieldThatWasClosedOrHiddenIsLeftUnasked) {
    finestra.fuocoSu(finestra.txtUno);
    finestra.txtUno.scrivi("77");
    finestra.txtUno.abilitato(false);
    EXPECT_TRUE(finestra.lasciaFuoco());
    EXPECT_TRUE(finestra.convalida());
    finestra.txtUno.abilitato(true);
    finestra.txtUno.visibile(false);
    EXPECT_TRUE(finestra.convalida());
    finestra.txtUno.visibile(true);
    EXPECT_FALSE(finestra.convalida());
}

TEST_F(ProveFinestra, TheCheckOfAllFieldsMarksTheFirstRefusedOneAndKeepsItsReason) {
    finestra.txtUno.scrivi("77");
    finestra.txtDue.controllo = [] { return EsitoUscita::rifiuto(std::string{"secondo motivo"}); };
    cornice.avvisato = "vecchio";
    EXPECT_FALSE(finestra.convalida());
    EXPECT_EQ(finestra.fuoco(), &finestra.txtUno);
    EXPECT_TRUE(finestra.txtUno.fallito());
    EXPECT_TRUE(finestra.txtDue.fallito());
    EXPECT_FALSE(finestra.txtTre.fallito());
    EXPECT_EQ(cornice.avvisato, "Il valore massimo ammesso è 10.");
    finestra.txtUno.testo("5");
    finestra.txtDue.controllo = nullptr;
    EXPECT_TRUE(finestra.convalida());
    EXPECT_EQ(cornice.avvisato, "");
}

TEST_F(ProveFinestra, TheToolbarOfADataWindowHasItsThreeKeys) {
    std::vector<std::string> chiavi;
    for (const auto& tasto : finestra.ctlToolbar.tasti()) {
        chiavi.push_back(tasto.chiave);
    }
    EXPECT_EQ(chiavi, (std::vector<std::string>{"Archivio", "AggiornaDati", "Refresh"}));
    EXPECT_EQ(finestra.barra(), &finestra.ctlToolbar);
    finestra.ctlToolbar.premi("AggiornaDati");
    EXPECT_EQ(finestra.scritture, 1);
    finestra.ctlToolbar.premi("Refresh");
    EXPECT_EQ(finestra.letture, 1);
    finestra.ctlToolbar.premi("Archivio");
    EXPECT_EQ(finestra.scritture + finestra.letture, 2);
}

TEST_F(ProveFinestra, AWindowWithoutAnImportHasItsKeyClosedAndTellsWhy) {
    EXPECT_FALSE(finestra.ctlToolbar.abilitato("Archivio"));
    EXPECT_NE(finestra.ctlToolbar.spiegazione("Archivio").find("Questa finestra non importa dati"), std::string::npos);
}

TEST_F(ProveFinestra, SavingWaitsForTheFieldInFocusAndReloadingDoesNot) {
    finestra.fuocoSu(finestra.txtUno);
    finestra.txtUno.scrivi("77");
    finestra.ctlToolbar.premi("AggiornaDati");
    EXPECT_EQ(finestra.scritture, 0);
    EXPECT_NE(cornice.avvisato, "");
    finestra.ctlToolbar.premi("Refresh");
    EXPECT_EQ(finestra.letture, 1);
    EXPECT_EQ(cornice.avvisato, "");
}

TEST_F(ProveFinestra, AFaultUnderAToolbarKeyIsRecordedAndGoesNoFurther) {
    std::vector<ErroreRegistrato> errori;
    app.comune.alErrore = [&](const ErroreRegistrato& errore) { errori.push_back(errore); };
    finestra.allaLettura = [] { throw Guasto(NumeroGuasto::indiceFuoriIntervallo); };
    finestra.ctlToolbar.premi("Refresh");
    ASSERT_EQ(errori.size(), 1U);
    EXPECT_EQ(errori[0].numero, 9);
    EXPECT_EQ(errori[0].metodo, "frmProva:Refresh");
    EXPECT_EQ(messaggi.mostrati.size(), 1U);
}

TEST_F(ProveFinestra, AWindowReadsItsDataWhenItComesUp) {
    finestra.attivata();
    EXPECT_EQ(finestra.letture, 1);
    EXPECT_TRUE(finestra.haSaveData());
    EXPECT_TRUE(finestra.DatiAllineati());
}

struct ProveGestione : testing::Test, ScenaFinestre {
    FinestraProva prima{contorno(), "frmPrima"};
    FinestraProva seconda{contorno(), "frmSeconda"};
    ProveGestione() {
        prima.txtUno.testo("5");
        seconda.txtUno.testo("5");
        gestione.ShowForm(&prima);
        area.passi.clear();
    }
};

TEST_F(ProveGestione, NoWindowIsAnsweredTrueAndChangesNothing) {
    stato.convalidaFallita = true;
    EXPECT_TRUE(gestione.ShowForm(nullptr));
    EXPECT_EQ(gestione.corrente(), &prima);
    EXPECT_TRUE(area.passi.empty());
    EXPECT_EQ(prima.scritture, 0);
    EXPECT_TRUE(stato.convalidaFallita);
}

TEST_F(ProveGestione, TheStepsComeInTheirOrder) {
    prima.allaScrittura = [&] { area.passi.emplace_back("SaveData"); };
    seconda.allaLettura = [&] { area.passi.emplace_back("ReadData"); };
    EXPECT_TRUE(gestione.ShowForm(&seconda));
    EXPECT_EQ(area.passi,
              (std::vector<std::string>{"SaveData", "nascondi frmPrima", "mostra frmSeconda", "colloca frmSeconda",
                                        "vestiBarra frmSeconda", "ridimensiona frmSeconda", "ReadData"}));
    EXPECT_EQ(gestione.corrente(), &seconda);
    EXPECT_EQ(prima.nascoste, 1);
    EXPECT_EQ(prima.fuoco(), nullptr);
}

TEST_F(ProveGestione, AnOldFlagIsClearedBeforeTheCheck) {
    stato.convalidaFallita = true;
    EXPECT_TRUE(gestione.ShowForm(&seconda));
    EXPECT_FALSE(stato.convalidaFallita);
}

TEST_F(ProveGestione, ARefusedFieldKeepsTheWindowUnsavedAndClearsTheFlag) {
    prima.txtUno.scrivi("77");
    EXPECT_FALSE(gestione.ShowForm(&seconda));
    EXPECT_EQ(gestione.corrente(), &prima);
    EXPECT_TRUE(area.passi.empty());
    EXPECT_EQ(prima.scritture, 0);
    EXPECT_FALSE(stato.convalidaFallita);
    EXPECT_EQ(seconda.letture, 0);
}

TEST_F(ProveGestione, AFlagRaisedByAnAcceptedFieldKeepsTheWindowToo) {
    prima.txtDue.controllo = [] {
        return EsitoUscita{.accettato = true, .bandiera = true, .messaggio = {}, .motivo = "vuoto"};
    };
    EXPECT_FALSE(gestione.ShowForm(&seconda));
    EXPECT_EQ(prima.scritture, 0);
    EXPECT_FALSE(stato.convalidaFallita);
    EXPECT_EQ(cornice.avvisato, "vuoto");
    EXPECT_EQ(prima.fuoco(), &prima.txtDue);
}

TEST_F(ProveGestione, AFlagRaisedBySavingKeepsTheWindowToo) {
    prima.allaScrittura = [&] { stato.convalidaFallita = true; };
    EXPECT_FALSE(gestione.ShowForm(&seconda));
    EXPECT_EQ(gestione.corrente(), &prima);
    EXPECT_EQ(prima.scritture, 1);
    EXPECT_FALSE(stato.convalidaFallita);
    EXPECT_TRUE(area.passi.empty());
    prima.allaScrittura = nullptr;
    EXPECT_TRUE(gestione.ShowForm(&seconda));
}

TEST_F(ProveGestione, ChangedOptionsAreToldOnceAfterTheOldWindowWasHidden) {
    stato.opzioniModificate = true;
    prima.txtUno.scrivi("77");
    EXPECT_FALSE(gestione.ShowForm(&seconda));
    EXPECT_TRUE(messaggi.mostrati.empty());
    EXPECT_TRUE(stato.opzioniModificate);  // waits for the switch
    prima.txtUno.testo("5");
    EXPECT_TRUE(gestione.ShowForm(&seconda));
    EXPECT_TRUE(gestione.ShowForm(&prima));
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(messaggi.mostrati[0].testo,
              "Attenzione! Sono state modificate delle opzioni: verificare con attenzione i dati precedentemente "
              "inseriti.");
    EXPECT_EQ(messaggi.mostrati[0].titolo, "KELVO 2014 - Attenzione");
    EXPECT_EQ(messaggi.mostrati[0].icona, Icona::esclamazione);
    EXPECT_FALSE(stato.opzioniModificate);
}

TEST_F(ProveGestione, ChangedOptionsAreToldBetweenTheTwoWindows) {
    stato.opzioniModificate = true;
    messaggi.alMostrare = [&] { area.passi.emplace_back("messaggio"); };
    gestione.ShowForm(&seconda);
    ASSERT_GE(area.passi.size(), 3U);
    EXPECT_EQ(area.passi[0], "nascondi frmPrima");
    EXPECT_EQ(area.passi[1], "messaggio");
    EXPECT_EQ(area.passi[2], "mostra frmSeconda");
}

TEST_F(ProveGestione, ARefusedFieldIsMarkedBeforeItsMessageComesUp) {
    prima.txtDue.controllo = [] {
        return EsitoUscita::rifiuto(MessaggioCampo{"parole", "titolo", Icona::informazione});
    };
    const Controllo* fuoco = nullptr;
    bool fallito = false;
    messaggi.alMostrare = [&] {
        fuoco = prima.fuoco();
        fallito = prima.txtDue.fallito();
    };
    EXPECT_FALSE(gestione.ShowForm(&seconda));
    EXPECT_EQ(fuoco, &prima.txtDue);
    EXPECT_TRUE(fallito);
}

TEST_F(ProveGestione, AWindowStandsRightOfTheTree) {
    area.postoAlbero = {10, 60, 300, 700};
    area.larghezza = 1500;
    gestione.ShowForm(&seconda);
    EXPECT_EQ(area.posti.at("frmSeconda"), (Rettangolo{310, 60, 1060, 700}));
}

TEST_F(ProveGestione, TheLegendIsShownWhereItStands) {
    FinestraProva legenda(contorno(), "frmLEGENDA");
    EXPECT_TRUE(gestione.ShowForm(&legenda));
    EXPECT_EQ(area.posti.count("frmLEGENDA"), 0U);
    EXPECT_EQ(area.passi, (std::vector<std::string>{"nascondi frmPrima", "mostra frmLEGENDA", "vestiBarra frmLEGENDA",
                                                    "ridimensiona frmLEGENDA"}));
    gestione.chiudiCorrente();
}

TEST_F(ProveGestione, TheWindowAtHandIsReadAgainWhenItIsAskedForAgain) {
    EXPECT_TRUE(gestione.ShowForm(&prima));
    EXPECT_EQ(prima.scritture, 1);
    EXPECT_EQ(prima.letture, 2);
    EXPECT_EQ(gestione.corrente(), &prima);
}

TEST_F(ProveGestione, AFaultIsRecordedUnderTheSwitcher) {
    std::vector<ErroreRegistrato> errori;
    app.comune.alErrore = [&](const ErroreRegistrato& errore) { errori.push_back(errore); };
    prima.allaScrittura = [] { throw Guasto(NumeroGuasto::overflow); };
    EXPECT_FALSE(gestione.ShowForm(&seconda));  // not saved: stays
    EXPECT_EQ(gestione.corrente(), &prima);
    prima.allaScrittura = nullptr;
    seconda.allaLettura = [] { throw Guasto(NumeroGuasto::indiceFuoriIntervallo); };
    EXPECT_TRUE(gestione.ShowForm(&seconda));  // the window is up, only its data are not
    EXPECT_EQ(gestione.corrente(), &seconda);
    ASSERT_EQ(errori.size(), 2U);
    EXPECT_EQ(errori[0].numero, 6);
    EXPECT_EQ(errori[1].numero, 9);
    EXPECT_EQ(errori[0].metodo, "modGestioneFinestre.ShowForm()");
    EXPECT_EQ(errori[1].metodo, "modGestioneFinestre.ShowForm()");
}

TEST_F(ProveGestione, ClosingAsksNothing) {
    prima.txtUno.scrivi("77");
    gestione.chiudiCorrente();
    EXPECT_EQ(gestione.corrente(), nullptr);
    EXPECT_EQ(prima.scritture, 0);
    EXPECT_EQ(area.passi, (std::vector<std::string>{"nascondi frmPrima"}));
    gestione.chiudiCorrente();
    EXPECT_EQ(area.passi.size(), 1U);
}

}  // namespace
}  // namespace kelvo::prove
