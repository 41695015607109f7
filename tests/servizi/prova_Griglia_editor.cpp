#include <gtest/gtest.h>

#include "base/guasto.h"
#include "comune/guasti.h"
#include "grigliaProva.h"

namespace kelvo::prove {
namespace {

using Tasto = Griglia::Tasto;

struct ProveEditor : ProveGriglia {
    std::vector<TestoCella> chiesti;         ///< what the hook was asked
    std::vector<std::vector<Posto>> mutati;  ///< what it was told
    EsitoUscita risposta;
    ProveEditor() {
        griglia.allaConferma = [this](Posto p, std::string& testo) {
            chiesti.push_back({p, testo});
            if (testo.empty()) {
                testo = "0";
            }
            return risposta;
        };
        griglia.dopoModifica = [this](const std::vector<Posto>& posti) { mutati.push_back(posti); };
    }
};

TEST_F(ProveEditor, TypingReplacesWhatStandsInTheCellAndEnterStoresIt) {
    griglia.scrivi("12,5");
    EXPECT_TRUE(griglia.inModifica());
    EXPECT_EQ(griglia.testoEditor(), "12,5");
    EXPECT_EQ(testo(1, 1), "11");  // not before it is left
    premi({Tasto::invio});
    EXPECT_FALSE(griglia.inModifica());
    EXPECT_EQ(testo(1, 1), "12,5");
    EXPECT_EQ(griglia.corrente(), (Posto{2, 1}));
    EXPECT_EQ(chiesti, (std::vector<TestoCella>{{{1, 1}, "12,5"}}));
    EXPECT_EQ(mutati, (std::vector<std::vector<Posto>>{{{1, 1}}}));
    EXPECT_TRUE(griglia.modificata());
}

TEST_F(ProveEditor, CharactersThatAreNotAllowedFallOutAndNoMoreThanTheLimitAreTaken) {
    griglia.scrivi("x1a2-3.4,567");
    EXPECT_EQ(griglia.testoEditor(), "1234");
    griglia.correggi("9x,8");
    EXPECT_EQ(griglia.testoEditor(), "1234") << "another number without the sign that falls out";
    griglia.correggi("9,8765");
    EXPECT_EQ(griglia.testoEditor(), "1234") << "or without its last figures";
    griglia.correggi("9,87");
    EXPECT_EQ(griglia.testoEditor(), "9,87");
    premi({Tasto::esc});
    griglia.scrivi("abc");
    EXPECT_FALSE(griglia.inModifica());  // nothing of it opens the editor
}

TEST_F(ProveEditor, APastedTextThatTakesTheWholeCellIsReadAsABlock) {
    griglia.allIncolla = [](std::vector<TestoCella>& celle) {
        if (celle.front().testo != "2.5") {
            return EsitoUscita::rifiuto(std::string{"no"});
        }
        celle.front().testo = "2,5";
        return EsitoUscita::bene();
    };
    griglia.testo({1, 1}, "");
    premi({Tasto::f2});
    griglia.correggi("2.5");
    EXPECT_EQ(griglia.testoEditor(), "2,5");
    griglia.correggi("2,52.5");  // it would stand beside other figures
    EXPECT_EQ(griglia.testoEditor(), "2,5");
    griglia.correggi("");
    griglia.correggi("2.x");
    EXPECT_EQ(griglia.testoEditor(), "");
    EXPECT_TRUE(griglia.inModifica());
}

TEST_F(ProveEditor, WhatStoodInTheCellStaysWhenItsTextIsMended) {
    for (int c = 1; c < 4; ++c) {
        griglia.colonna(c, {.regole = {.caratteri = "0123456789", .esclusoChiude = true}});
    }
    griglia.testo({1, 1}, "12,5");
    premi({Tasto::f2});
    griglia.correggi("12,56");  // a 6 was typed behind it
    EXPECT_EQ(griglia.testoEditor(), "12,56");
    griglia.correggi("12,5,6");  // no more of them than there were
    EXPECT_EQ(griglia.testoEditor(), "12,56");
    griglia.correggi("1256");
    EXPECT_EQ(griglia.testoEditor(), "1256");
    griglia.correggi("12,56");  // taken back in the editor
    EXPECT_EQ(griglia.testoEditor(), "12,56");
    griglia.correggi("12,56x");  // never stood there
    EXPECT_EQ(griglia.testoEditor(), "12,56");
    premi({Tasto::indietro, Tasto::invio});
    EXPECT_EQ(testo(1, 1), "12,5");
    EXPECT_TRUE(mutati.empty());
}

TEST_F(ProveEditor, ATextLongerThanTheRulesLosesNothingWhenItIsMended) {
    griglia.testo({1, 1}, "123456");
    premi({Tasto::f2});
    EXPECT_EQ(griglia.lunghezzaAmmessa(), 6U);
    griglia.correggi("123457");
    EXPECT_EQ(griglia.testoEditor(), "123457");
    griglia.correggi("1234578");
    EXPECT_EQ(griglia.testoEditor(), "123457");
    premi({Tasto::esc, Tasto::giu});
    EXPECT_EQ(griglia.lunghezzaAmmessa(), 4U);
    griglia.colonna(1, {});
    EXPECT_EQ(griglia.lunghezzaAmmessa(), 0U);
}

TEST_F(ProveEditor, AKeyThatIsNotAllowedMayEndTheEdit) {
    griglia.versoInvio = Griglia::Verso::destra;
    for (int c = 1; c < 4; ++c) {
        griglia.colonna(c, {.regole = {.caratteri = "0123456789", .esclusoChiude = true}});
    }
    griglia.scrivi("7,8");
    EXPECT_EQ(testo(1, 1), "7");
    EXPECT_EQ(griglia.corrente(), (Posto{1, 2}));
    EXPECT_EQ(griglia.testoEditor(), "8");
    griglia.scrivi("x");
    EXPECT_EQ(testo(1, 2), "8");
    EXPECT_EQ(griglia.corrente(), (Posto{1, 3}));
    griglia.scrivi("x");  // nothing is being typed
    EXPECT_EQ(griglia.corrente(), (Posto{1, 3}));
}

TEST_F(ProveEditor, EscapePutsBackWhatStoodThere) {
    griglia.scrivi("9");
    EXPECT_TRUE(griglia.premiTasto(Tasto::esc));
    EXPECT_EQ(testo(1, 1), "11");
    EXPECT_EQ(griglia.corrente(), (Posto{1, 1}));
    EXPECT_FALSE(griglia.modificata());
    EXPECT_TRUE(chiesti.empty());
    EXPECT_FALSE(griglia.premiTasto(Tasto::esc));  // nothing left to put back
}

TEST_F(ProveEditor, ARefusedTextKeepsTheEditor) {
    risposta = EsitoUscita::rifiuto(std::string{"troppo"});
    griglia.scrivi("99");
    EXPECT_TRUE(griglia.premiTasto(Tasto::invio));
    EXPECT_TRUE(griglia.inModifica());
    EXPECT_TRUE(griglia.fallita());
    EXPECT_EQ(griglia.corrente(), (Posto{1, 1}));
    EXPECT_EQ(custode.esiti.size(), 1U);
    EXPECT_EQ(custode.esiti[0].motivo, "troppo");
    EXPECT_TRUE(griglia.premiTasto(Tasto::giu));
    EXPECT_TRUE(griglia.premiTasto(Tasto::tab));
    EXPECT_FALSE(griglia.clic(3, 3));
    EXPECT_FALSE(griglia.lascia());
    EXPECT_EQ(griglia.corrente(), (Posto{1, 1}));
    EXPECT_EQ(testo(1, 1), "11");
    EXPECT_TRUE(mutati.empty());
    griglia.scrivi("8");  // typing goes on
    EXPECT_FALSE(griglia.fallita());
    EXPECT_EQ(griglia.testoEditor(), "998");
    risposta = EsitoUscita::bene();
    EXPECT_TRUE(griglia.lascia());
    EXPECT_EQ(testo(1, 1), "998");
}

TEST_F(ProveEditor, EscapeLeavesARefusedText) {
    risposta = EsitoUscita::rifiuto(std::string{"no"});
    griglia.scrivi("99");
    premi({Tasto::invio, Tasto::esc});
    EXPECT_FALSE(griglia.fallita());
    EXPECT_TRUE(griglia.lascia());
    EXPECT_EQ(testo(1, 1), "11");
}

TEST_F(ProveEditor, TheHookMendsTheTextAndWarnsWithoutRefusing) {
    griglia.allaConferma = [](Posto, std::string& testo) {
        testo = "11";  // the cell is reset
        return EsitoUscita{
            .accettato = true, .bandiera = false, .messaggio = MessaggioCampo{"troppo grande", "t"}, .motivo = {}};
    };
    griglia.scrivi("9999");
    premi({Tasto::invio});
    EXPECT_EQ(testo(1, 1), "11");
    EXPECT_FALSE(griglia.inModifica());
    ASSERT_EQ(custode.esiti.size(), 1U);
    EXPECT_EQ(custode.esiti[0].messaggio->testo, "troppo grande");
    EXPECT_FALSE(griglia.modificata());
}

TEST_F(ProveEditor, AFaultOfTheHookLeavesTheEditorOpenAndIsNotSwallowed) {
    griglia.allaConferma = [](Posto, std::string&) -> EsitoUscita { throw Guasto(NumeroGuasto::overflow); };
    griglia.scrivi("1");
    EXPECT_EQ(numeroGuasto([&] { griglia.premiTasto(Tasto::invio); }), 6);
    EXPECT_TRUE(griglia.inModifica());
    griglia.allaConferma = nullptr;
    premi({Tasto::invio});
    EXPECT_EQ(testo(1, 1), "1");
}

TEST_F(ProveEditor, OpeningACellAndLeavingItChangesNothing) {
    premi({Tasto::f2});
    EXPECT_TRUE(griglia.inModifica());
    EXPECT_TRUE(griglia.tuttoScelto());
    EXPECT_EQ(griglia.testoEditor(), "11");
    premi({Tasto::invio});
    EXPECT_TRUE(chiesti.empty());
    EXPECT_FALSE(griglia.modificata());
    EXPECT_EQ(griglia.corrente(), (Posto{2, 1}));
}

TEST_F(ProveEditor, InAnOpenedTextTheFirstCharacterReplacesItAndArrowsAreTheViews) {
    griglia.doppioClic(2, 2);
    EXPECT_TRUE(griglia.tuttoScelto());
    EXPECT_FALSE(griglia.premiTasto(Tasto::sinistra));
    EXPECT_FALSE(griglia.premiTasto(Tasto::fine));
    griglia.scrivi("45");
    EXPECT_EQ(griglia.testoEditor(), "45");
    EXPECT_FALSE(griglia.tuttoScelto());
    EXPECT_TRUE(griglia.premiTasto(Tasto::giu));  // up and down leave it all the same
    EXPECT_EQ(testo(2, 2), "45");
    EXPECT_EQ(griglia.corrente(), (Posto{3, 2}));
}

TEST_F(ProveEditor, InATypedTextArrowsStoreItAndMoveOn) {
    griglia.scrivi("4");
    premi({Tasto::destra});
    EXPECT_EQ(testo(1, 1), "4");
    EXPECT_EQ(griglia.corrente(), (Posto{1, 2}));
    griglia.scrivi("5");
    premi({Tasto::f2});  // from now on they walk in the text
    EXPECT_FALSE(griglia.premiTasto(Tasto::sinistra));
    EXPECT_TRUE(griglia.inModifica());
}

TEST_F(ProveEditor, BackspaceOpensAnEmptyTextAndTakesCharactersAway) {
    premi({Tasto::indietro});
    EXPECT_TRUE(griglia.inModifica());
    EXPECT_EQ(griglia.testoEditor(), "");
    griglia.scrivi("123");
    premi({Tasto::indietro});
    EXPECT_EQ(griglia.testoEditor(), "12");
    premi({Tasto::esc, Tasto::f2, Tasto::indietro});
    EXPECT_EQ(griglia.testoEditor(), "");
    premi({Tasto::invio});
    EXPECT_EQ(testo(1, 1), "0");  // the hook's word for an empty cell
}

TEST_F(ProveEditor, ACellThatTakesNoTextOpensNoEditor) {
    griglia.modificabile = [](Posto p) { return p.colonna == 2; };
    griglia.scrivi("1");
    premi({Tasto::f2, Tasto::indietro, Tasto::canc});
    griglia.doppioClic(1, 1);
    EXPECT_FALSE(griglia.inModifica());
    EXPECT_FALSE(griglia.modificata());
    EXPECT_FALSE(griglia.puoModificare({0, 2}));
    EXPECT_TRUE(griglia.puoModificare({1, 2}));
}

TEST_F(ProveEditor, AClosedGridLetsItsEditorGo) {
    griglia.scrivi("99");
    griglia.abilitato(false);
    EXPECT_TRUE(griglia.lascia());
    EXPECT_FALSE(griglia.inModifica());
    EXPECT_EQ(testo(1, 1), "11");
    griglia.scrivi("5");
    EXPECT_FALSE(griglia.inModifica());
}

TEST_F(ProveEditor, TheCheckOfTheWindowLooksAndChangesNothing) {
    EXPECT_TRUE(griglia.convalida());
    griglia.scrivi("7");
    EXPECT_TRUE(griglia.convalida());
    EXPECT_EQ(testo(1, 1), "11");
    risposta = EsitoUscita::rifiuto(std::string{"no"});
    EXPECT_FALSE(griglia.convalida());
    EXPECT_TRUE(griglia.fallita());
    EXPECT_TRUE(griglia.inModifica());
}

TEST_F(ProveEditor, ATableThatComesMeanwhileClosesTheEditor) {
    griglia.scrivi("7");
    griglia.tabella(numeri());
    EXPECT_FALSE(griglia.inModifica());
    griglia.allaConferma = [this](Posto, std::string&) {
        griglia.tabella(numeri());
        return EsitoUscita::bene();
    };
    griglia.scrivi("7");
    premi({Tasto::invio});
    EXPECT_FALSE(griglia.modificata());
}

TEST_F(ProveEditor, WhileTheHookAsksTheEditIsNotEndedTwice) {
    int volte = 0;
    griglia.allaConferma = [&](Posto, std::string&) {
        ++volte;
        EXPECT_FALSE(griglia.lascia());
        return EsitoUscita::bene();
    };
    griglia.scrivi("7");
    EXPECT_TRUE(griglia.lascia());
    EXPECT_EQ(volte, 1);
    EXPECT_EQ(testo(1, 1), "7");
}

TEST_F(ProveEditor, ARefusalMayPutAnotherTextIntoTheEditor) {
    griglia.allaConferma = [](Posto, std::string&) {
        EsitoUscita esito = EsitoUscita::rifiuto(std::string{"no"});
        esito.rimesso = "5,5";
        return esito;
    };
    griglia.scrivi("7");
    premi({Tasto::invio});
    EXPECT_TRUE(griglia.inModifica());
    EXPECT_EQ(griglia.testoEditor(), "5,5");
    EXPECT_TRUE(griglia.tuttoScelto());
    EXPECT_FALSE(griglia.fallita());
    EXPECT_EQ(testo(1, 1), "11");
    griglia.correggi("8");
    EXPECT_FALSE(griglia.convalida());
    EXPECT_EQ(griglia.testoEditor(), "5,5");
}

}  // namespace
}  // namespace kelvo::prove
