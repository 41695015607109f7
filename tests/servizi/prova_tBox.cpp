#include "shell/servizi/tBox.h"

#include <gtest/gtest.h>

#include "comune/guasti.h"
#include "finestraProva.h"

namespace kelvo::prove {
namespace {

TEST(NumeroIniziale, ReadsTheNumberThatATextBeginsWithAtThePoint) {
    EXPECT_EQ(numeroIniziale("3.5"), 3.5);
    EXPECT_EQ(numeroIniziale("3,5"), 3.0);
    EXPECT_EQ(numeroIniziale("  -7x"), -7.0);
    EXPECT_EQ(numeroIniziale("+2"), 2.0);
    EXPECT_EQ(numeroIniziale("3."), 3.0);
    EXPECT_EQ(numeroIniziale(".5"), 0.5);
    EXPECT_EQ(numeroIniziale("1.2.3"), 1.2);
    for (const char* senza : {"", "abc", "-", ".", ",5", "x3"}) {
        EXPECT_EQ(numeroIniziale(senza), 0.0) << senza;
    }
}

TEST(NumeroIniziale, ANumberBeyondADoubleLiesBeyondEveryLimit) {
    const std::string lungo(400, '9');
    EXPECT_FALSE(RegoleCampo::daTag("ValueMax:300").ammette(lungo));
    EXPECT_TRUE(RegoleCampo::daTag("ValueMin:300").ammette(lungo));
    EXPECT_FALSE(RegoleCampo::daTag("ValueMin:-300").ammette("-" + lungo));
}

TEST(RegoleCampo, ATagIsPairsBetweenSemicolons) {
    const auto regole = RegoleCampo::daTag("Type:Numeric;ValueMin:-2.5;ValueMax:300");
    EXPECT_TRUE(regole.numerico);
    EXPECT_EQ(regole.minimo, -2.5);
    EXPECT_EQ(regole.massimo, 300.0);
}

TEST(RegoleCampo, OrderBlanksAndEmptyPartsDoNotMatter) {
    const auto regole = RegoleCampo::daTag(" ValueMax : 9 ;; Type : Numeric ;");
    EXPECT_TRUE(regole.numerico);
    EXPECT_EQ(regole.massimo, 9.0);
    EXPECT_FALSE(regole.minimo);
}

TEST(RegoleCampo, UnknownKeysAndTypesAndAnEmptyTagAreNoRule) {
    for (const char* tag : {"", "Type:Text", "Type:numeric", "Colour:7", "ValueMinimum:4", "Type", "GREY"}) {
        const auto regole = RegoleCampo::daTag(tag);
        EXPECT_FALSE(regole.numerico || regole.minimo || regole.massimo) << tag;
        EXPECT_TRUE(regole.ammette("qualunque")) << tag;
    }
}

TEST(RegoleCampo, APartWithoutAColonIsNoPairAndALimitWithoutANumberIsZero) {
    const auto senza = RegoleCampo::daTag("ValueMin;ValueMax;Type");
    EXPECT_FALSE(senza.numerico || senza.minimo || senza.massimo);
    EXPECT_EQ(RegoleCampo::daTag("ValueMin:").minimo, 0.0);
    EXPECT_EQ(RegoleCampo::daTag("ValueMax:x").massimo, 0.0);
}

TEST(RegoleCampo, OfAKeyThatComesTwiceBothRulesHold) {
    const auto regole =
        RegoleCampo::daTag("ValueMin:5;ValueMin:1;ValueMax:7;ValueMax:9;ValueMax:8;Type:Numeric;Type:Text");
    EXPECT_EQ(regole.minimo, 5.0);
    EXPECT_EQ(regole.massimo, 7.0);
    EXPECT_TRUE(regole.numerico);
}

TEST(RegoleCampo, TheReasonIsThatOfTheTypeThenOfTheUpperThenOfTheLowerLimit) {
    const auto regole = RegoleCampo::daTag("ValueMin:3,9;ValueMax:-2.5;Type:Numeric");  // no number keeps both limits
    EXPECT_EQ(regole.motivo("x"), "Scrivere un numero.");
    EXPECT_EQ(regole.motivo("0"), "Il valore massimo ammesso è -2,5.");
    EXPECT_EQ(regole.motivo("-3"), "Il valore minimo ammesso è 3.");
    EXPECT_EQ(RegoleCampo::daTag("ValueMin:1").motivo("1"), "");
}

TEST(RegoleCampo, APartIsCutAtItsFirstColon) {
    EXPECT_EQ(RegoleCampo::daTag("ValueMin:5:9").minimo, 5.0);
    EXPECT_FALSE(RegoleCampo::daTag("Type:Numeric:x").numerico);
}

TEST(RegoleCampo, NumericTakesNumbersWithCommaOrPointAndTheEmptyText) {
    const auto regole = RegoleCampo::daTag("Type:Numeric");
    for (const char* buono : {"", "3", "3,5", "3.5", "-1", " 12 "}) {
        EXPECT_TRUE(regole.ammette(buono)) << buono;
    }
    for (const char* storto : {"a", "3a", "1.2.3", "1e3", "1.234,5", "-"}) {
        EXPECT_FALSE(regole.ammette(storto)) << storto;
    }
}

TEST(RegoleCampo, LimitsAreTakenAndComparedWithTheNumberAtTheStart) {
    const auto regole = RegoleCampo::daTag("ValueMin:3;ValueMax:3");
    EXPECT_TRUE(regole.ammette("3"));
    EXPECT_TRUE(regole.ammette("3,5"));  // reads 3
    EXPECT_FALSE(regole.ammette("3.5"));
    EXPECT_FALSE(regole.ammette("2.9"));
    EXPECT_TRUE(regole.ammette("3 metri"));
    EXPECT_FALSE(regole.ammette("metri 3"));
}

TEST(RegoleCampo, AnEmptyTextIsZeroForTheLimits) {
    EXPECT_FALSE(RegoleCampo::daTag("Type:Numeric;ValueMin:1").ammette(""));
    EXPECT_TRUE(RegoleCampo::daTag("Type:Numeric;ValueMin:0").ammette(""));
    EXPECT_FALSE(RegoleCampo::daTag("ValueMax:-1").ammette(""));
}

struct ProveCampo : testing::Test, ScenaFinestre {
    FinestraProva finestra{contorno()};
    tBox& uno = finestra.txtUno;
};

TEST_F(ProveCampo, ARefusedTextKeepsTheFocusAndRaisesTheFlag) {
    finestra.fuocoSu(uno);
    uno.scrivi("11");
    EXPECT_FALSE(uno.fallito());  // only leaving asks
    EXPECT_FALSE(uno.lascia());
    EXPECT_TRUE(uno.fallito());
    EXPECT_TRUE(stato.convalidaFallita);
    EXPECT_NE(cornice.avvisato, "");
    EXPECT_TRUE(messaggi.mostrati.empty());
    EXPECT_FALSE(finestra.fuocoSu(finestra.txtDue));
    EXPECT_EQ(finestra.fuoco(), &uno);
}

TEST_F(ProveCampo, AGoodLeaveTakesTheFailedStateAndTheReasonAway) {
    finestra.fuocoSu(uno);
    uno.scrivi("0");
    uno.lascia();
    uno.aspetto({.carattere = {}, .sfondo = {255, 240, 240}, .inchiostro = colori::nero});
    uno.scrivi("10");
    EXPECT_TRUE(uno.lascia());
    EXPECT_FALSE(uno.fallito());
    EXPECT_EQ(uno.aspetto().sfondo, colori::bianco);
    EXPECT_EQ(cornice.avvisato, "");
}

TEST_F(ProveCampo, ATypedPointBecomesTheCommaInANumericFieldAlone) {
    uno.scrivi("3.5");
    EXPECT_EQ(uno.testo(), "3,5");
    finestra.txtDue.scrivi("a.b");
    EXPECT_EQ(finestra.txtDue.testo(), "a.b");
    finestra.txtDue.virgola = true;
    finestra.txtDue.scrivi("4.5");
    EXPECT_EQ(finestra.txtDue.testo(), "4,5");
}

TEST_F(ProveCampo, EscapePutsBackWhatStoodThereWhenTheFocusCame) {
    int tasti = 0;
    uno.dopoTasto = [&] { ++tasti; };
    uno.testo("4");
    finestra.fuocoSu(uno);
    uno.scrivi("99");
    EXPECT_FALSE(uno.lascia());
    uno.entra();  // the focus is given back to the refused field
    EXPECT_NE(cornice.avvisato, "");
    EXPECT_TRUE(uno.annulla());
    EXPECT_EQ(uno.testo(), "4");
    EXPECT_FALSE(uno.fallito());
    EXPECT_EQ(cornice.avvisato, "");  // the reason goes with the text
    EXPECT_FALSE(uno.annulla());      // nothing more to put back: the key is the window's
    EXPECT_FALSE(uno.modificato());
    EXPECT_EQ(tasti, 2);  // whoever follows the text is told of both changes
}

TEST_F(ProveCampo, OnlyWhatTheUserChangedCountsAsModified) {
    uno.testo("4");
    EXPECT_FALSE(uno.modificato());
    uno.scrivi("5");
    EXPECT_TRUE(uno.modificato());
    uno.scrivi("4");
    EXPECT_FALSE(uno.modificato());
    uno.modifica("6");
    EXPECT_TRUE(uno.modificato());
    uno.salvato();
    EXPECT_FALSE(uno.modificato());
}

TEST_F(ProveCampo, TheProgramsTextTakesTheFailedStateAway) {
    uno.scrivi("99");
    uno.convalida();
    int segnali = 0;
    uno.cambiato().connect([&] { ++segnali; });
    uno.testo("99");
    EXPECT_FALSE(uno.fallito());
    EXPECT_EQ(segnali, 1);
}

TEST_F(ProveCampo, TheWindowsCheckComesAfterTheTagAndSpeaksInItsBox) {
    int chieste = 0;
    int uscite = 0;
    uno.controllo = [&] {
        ++chieste;
        return EsitoUscita::rifiuto(MessaggioCampo{"parole", "titolo", Icona::critica});
    };
    uno.dopoUscita = [&] { ++uscite; };
    uno.scrivi("99");
    EXPECT_FALSE(uno.lascia());
    EXPECT_EQ(chieste, 0);
    uno.scrivi("9");
    EXPECT_FALSE(uno.lascia());
    EXPECT_EQ(chieste, 1);
    EXPECT_EQ(uscite, 0);
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(messaggi.mostrati[0].testo, "parole");
    EXPECT_EQ(messaggi.mostrati[0].titolo, "titolo");
    EXPECT_EQ(messaggi.mostrati[0].icona, Icona::critica);
    EXPECT_EQ(messaggi.mostrati[0].pulsanti, Pulsanti::ok);
    uno.controllo = nullptr;
    EXPECT_TRUE(uno.lascia());
    EXPECT_EQ(uscite, 1);
}

TEST_F(ProveCampo, ACheckMayPutATextInThePlaceOfTheRefusedOneBeforeOrAfterItsBox) {
    std::string mentre;
    messaggi.alMostrare = [&] { mentre = uno.testo(); };
    for (const bool prima : {false, true}) {
        uno.controllo = [prima] {
            EsitoUscita esito = EsitoUscita::rifiuto(MessaggioCampo{"parole", "titolo", Icona::esclamazione});
            esito.rimesso = "7";
            esito.rimessoPrima = prima;
            return esito;
        };
        finestra.fuocoSu(uno);
        stato.convalidaFallita = false;
        uno.scrivi("9");
        EXPECT_FALSE(uno.lascia());
        EXPECT_EQ(mentre, prima ? "7" : "9");
        EXPECT_EQ(uno.testo(), "7");
        EXPECT_FALSE(uno.fallito());
        EXPECT_FALSE(uno.modificato());
        EXPECT_TRUE(stato.convalidaFallita);
    }
    EXPECT_EQ(messaggi.mostrati.size(), 2U);
}

TEST_F(ProveCampo, AskingLooksAndChangesNothing) {
    int uscite = 0;
    uno.dopoUscita = [&] { ++uscite; };
    uno.scrivi("9");
    EXPECT_TRUE(uno.convalida());
    EXPECT_EQ(uscite, 0);
    EXPECT_EQ(uno.testo(), "9");
    EXPECT_TRUE(uno.modificato());
}

TEST_F(ProveCampo, HelpFollowsTheFieldThatIsEntered) {
    EXPECT_EQ(finestra.ctlHelp.pagina(), "EmptyHelp.htm");
    uno.paginaAiuto = "Uno.htm";
    finestra.fuocoSu(uno);
    EXPECT_EQ(finestra.ctlHelp.pagina(), "Uno.htm");
    uno.testo("5");
    finestra.fuocoSu(finestra.txtDue);
    EXPECT_EQ(finestra.ctlHelp.pagina(), "EmptyHelp.htm");
}

TEST_F(ProveCampo, GesturesOnAClosedOrReadOnlyFieldDoNothing) {
    uno.testo("5");
    uno.abilitato(false);
    uno.scrivi("6");
    uno.entra();
    EXPECT_EQ(uno.testo(), "5");
    EXPECT_EQ(finestra.fuoco(), nullptr);
    EXPECT_FALSE(uno.prendeFuoco());
    uno.abilitato(true);
    uno.visibile(false);
    uno.scrivi("6");
    EXPECT_EQ(uno.testo(), "5");
    uno.visibile(true);
    uno.solaLettura(true);
    uno.scrivi("6");
    EXPECT_EQ(uno.testo(), "5");
    EXPECT_TRUE(uno.prendeFuoco());  // it can still be read and copied
}

TEST(FacceCampo, AMaskTakesItsCharactersAndItsLength) {
    tBox cap("txtCAP", tBox::maskedit);
    cap.caratteriAmmessi = "0123456789";
    cap.lunghezzaMassima = 5;
    cap.scrivi("5a6-1.2é78 9");
    EXPECT_EQ(cap.testo(), "56127");
    cap.scrivi("");
    EXPECT_EQ(cap.testo(), "");
}

TEST(FacceCampo, LengthCountsCharactersAndWrongBytesAreReplaced) {
    tBox campo("txt", tBox::textbox);
    campo.lunghezzaMassima = 3;
    campo.scrivi("àèìò");
    EXPECT_EQ(campo.testo(), "àèì");
    campo.scrivi("a\xFF");
    EXPECT_EQ(campo.testo(), "a\xEF\xBF\xBD");
}

TEST(FacceCampo, AListTakesItsRowsAlone) {
    tBox elenco("lst", tBox::combobox);
    elenco.voci({"", "uno", "due"});
    EXPECT_EQ(elenco.scelta(), 0);
    elenco.scrivi("due");
    EXPECT_EQ(elenco.scelta(), 2);
    elenco.scrivi("tre");
    EXPECT_EQ(elenco.testo(), "due");
    elenco.scegli(1);
    EXPECT_EQ(elenco.testo(), "uno");
    EXPECT_TRUE(elenco.modificato());
    elenco.scegli(3);
    elenco.scegli(-1);
    EXPECT_EQ(elenco.testo(), "uno");
}

TEST(FacceCampo, AnEditableListTakesAnyText) {
    tBox elenco("lst", tBox::combobox);
    elenco.digitabile = true;
    elenco.voci({"uno"});
    elenco.scrivi("altro");
    EXPECT_EQ(elenco.testo(), "altro");
    EXPECT_EQ(elenco.scelta(), -1);
}

TEST(FacceCampo, TheProgramPicksRowsByPositionAndFaultsOutsideTheList) {
    tBox elenco("lst", tBox::combobox);
    elenco.voci({"uno", "due"});
    elenco.scelta(1);
    EXPECT_EQ(elenco.testo(), "due");
    EXPECT_FALSE(elenco.modificato());
    EXPECT_EQ(numeroGuasto([&] { elenco.scelta(2); }), 9);
    EXPECT_EQ(numeroGuasto([&] { elenco.scelta(-1); }), 9);
    EXPECT_EQ(elenco.testo(), "due");
}

TEST(FacceCampo, APickerTakesTimesOrDaysAndNothingElse) {
    tBox ora("ora", tBox::dtpicker);
    ora.scrivi("08:15");
    for (const char* storta : {"25:00", "8:15", "ciao", "", "08:60"}) {
        ora.scrivi(storta);
        EXPECT_EQ(ora.testo(), "08:15") << storta;
    }
    tBox giorno("giorno", tBox::dtpicker);
    giorno.giorno = true;
    giorno.scrivi("21/11/2026");
    giorno.scrivi("31/02/2026");
    giorno.scrivi("08:15");
    EXPECT_EQ(giorno.testo(), "21/11/2026");
}

TEST(FacceCampo, ThereAreFive) {
    for (const auto faccia : {tBox::textbox, tBox::combobox, tBox::maskedit, tBox::dtpicker, tBox::objSmartTextBox}) {
        EXPECT_EQ(tBox("campo", faccia).faccia(), faccia);
    }
    tBox libero("campo", tBox::objSmartTextBox);
    libero.scrivi("qualunque testo");
    EXPECT_EQ(libero.testo(), "qualunque testo");
    EXPECT_TRUE(libero.lascia());
}

TEST(VirgolaCampo, TheKeyOfASecondCommaIsPassedOverAndAPastedTextIsNotMended) {
    tBox campo("campo", tBox::maskedit);
    campo.caratteriAmmessi = "0123456789,";
    campo.unaVirgola = true;
    int giri = 0;
    campo.dopoTasto = [&] { ++giri; };
    campo.scrivi("1,5");
    campo.scrivi("1,5,");
    campo.scrivi("1,,5");
    campo.scrivi(",1,5");
    EXPECT_EQ(campo.testo(), "1,5");
    EXPECT_EQ(giri, 1);
    campo.scrivi("1,55");
    EXPECT_EQ(campo.testo(), "1,55");
    campo.scrivi("1,234,567");
    EXPECT_EQ(campo.testo(), "1,234,567");
    campo.scrivi("1,234,5678");
    EXPECT_EQ(campo.testo(), "1,234,5678");
    tBox libero("campo", tBox::maskedit);
    libero.scrivi("1,5");
    libero.scrivi("1,5,");
    EXPECT_EQ(libero.testo(), "1,5,");
}

}  // namespace
}  // namespace kelvo::prove
