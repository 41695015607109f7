#include <gtest/gtest.h>

#include "input/scenaComposizioneST.h"

namespace kelvo::prove {
namespace {

constexpr const char* domanda = "Riporto i valori della prima riga nelle righe sottostanti?";

struct ProveBlocchi : ScenaComposizioneST {};

class UnaColonna : public ScenaComposizioneST, public testing::WithParamInterface<int> {};

TEST_P(UnaColonna, ALockedColumnTakesWhatTheOthersLeave) {
    const int bloccata = GetParam();
    const int altra = bloccata == 4 ? 5 : 4;
    riempi(1);
    apri();
    blocca(bloccata);
    EXPECT_EQ(finestra.bloccata(), bloccata);
    EXPECT_EQ(riga(2), "11 12 13 14 15 16 17 98 105");  // a tick alone changes no figure
    scrivi(2, altra, "3");
    // The seven add up to the flow; of the others only the one that was typed has moved.
    int somma = 0;
    for (int c = 1; c <= 7; ++c) {
        const int prima = c == altra ? 3 : 10 + c;
        if (c != bloccata) {
            EXPECT_EQ(griglia.testo(2, c), std::to_string(prima));
            somma += prima;
        }
    }
    EXPECT_EQ(griglia.testo(2, bloccata), std::to_string(105 - somma));
    EXPECT_EQ(griglia.testo(2, 8), "105");
    EXPECT_TRUE(messaggi.mostrati.empty());
    EXPECT_EQ(riga(1), "1 2 3 4 5 6 7 28 60");  // no other row has moved
    finestra.SaveData();
    EXPECT_EQ(composizione(1).CategoriaSegmento(1, static_cast<std::int16_t>(bloccata - 1)),
              static_cast<float>(105 - somma));
}

TEST_P(UnaColonna, ALockedColumnIsClosedToTyping) {
    const int bloccata = GetParam();
    apri();
    blocca(bloccata);
    for (int c = 1; c <= 7; ++c) {
        EXPECT_EQ(griglia.puoModificare({3, c}), c != bloccata);
        EXPECT_EQ(griglia.tabella().cella(3, c).sfondo, c == bloccata ? colori::dati : colori::bianco);
    }
    griglia.corrente({3, bloccata});
    griglia.scrivi("5");
    EXPECT_FALSE(griglia.inModifica());
    EXPECT_EQ(griglia.testo(3, bloccata), "0");
    griglia.premiTasto(Tasto::canc);
    EXPECT_EQ(riga(3), "0 0 0 0 0 0 0 0 150");
    finestra.chkLock[static_cast<std::size_t>(bloccata - 1)].clicca();
    EXPECT_TRUE(messaggi.mostrati.empty());  // nothing is asked when a lock is taken off
    EXPECT_FALSE(finestra.bloccata().has_value());
    EXPECT_TRUE(griglia.puoModificare({3, bloccata}));
    EXPECT_EQ(griglia.tabella().cella(3, bloccata).sfondo, colori::bianco);
}

TEST_P(UnaColonna, TickingOneUnticksTheOthers) {
    apri();
    for (int prima = 1; prima <= 7; ++prima) {
        if (prima == GetParam()) {
            continue;
        }
        blocca(prima);
        blocca(GetParam());
        for (int c = 1; c <= 7; ++c) {
            EXPECT_EQ(finestra.chkLock[static_cast<std::size_t>(c - 1)].spuntata(), c == GetParam());
        }
        blocca(GetParam());
    }
}

INSTANTIATE_TEST_SUITE_P(Colonne, UnaColonna, testing::Range(1, 8));

TEST_F(ProveBlocchi, TickingAsksAndUntickingTheOthersDoesNot) {
    apri();
    messaggi.risposta = Risposta::no;
    finestra.chkLock[0].clicca();
    finestra.chkLock[6].clicca();
    ASSERT_EQ(messaggi.mostrati.size(), 2U);
    for (const auto& messaggio : messaggi.mostrati) {
        EXPECT_EQ(messaggio.testo, domanda);
        EXPECT_EQ(messaggio.titolo, "KELVO 2014");
        EXPECT_EQ(messaggio.icona, Icona::domanda);
        EXPECT_EQ(messaggio.pulsanti, Pulsanti::siNo);
    }
}

TEST_F(ProveBlocchi, NoLeavesTheRowsAsTheyAre) {
    riempi(1);
    apri();
    blocca(7, Risposta::no);
    EXPECT_EQ(riga(1), "1 2 3 4 5 6 7 28 60");
    EXPECT_EQ(riga(5), "41 42 43 44 45 46 47 308 70");
    EXPECT_TRUE(finestra.DatiAllineati());
}

TEST_F(ProveBlocchi, YesCopiesTheSevenTextsOfTheFirstRow) {
    riempi(1);
    apri();
    blocca(7, Risposta::si);
    const std::array<const char*, 6> attese{"1 2 3 4 5 6 7 28 60",  "1 2 3 4 5 6 7 28 105", "1 2 3 4 5 6 7 28 150",
                                            "1 2 3 4 5 6 7 28 110", "1 2 3 4 5 6 7 28 70",  "1 2 3 4 5 6 7 28 30"};
    for (int r = 1; r <= 6; ++r) {
        EXPECT_EQ(riga(r), attese[static_cast<std::size_t>(r - 1)]);
    }
    EXPECT_FALSE(finestra.DatiAllineati());
    EXPECT_TRUE(messaggi.mostrati.empty());
    finestra.SaveData();
    EXPECT_EQ(composizione(1).Categorie(), TabellaCategorie(6, PerClasse{1, 2, 3, 4, 5, 6, 7}));
}

TEST_F(ProveBlocchi, TheCopyIsUndoneAndDoneAgainToTheLetter) {
    riempi(1);
    apri();
    blocca(7, Risposta::si);
    griglia.premiTasto(Tasto::annulla);
    EXPECT_EQ(riga(2), "11 12 13 14 15 16 17 98 105");
    EXPECT_EQ(riga(6), "51 52 53 54 55 56 57 378 30");
    EXPECT_EQ(griglia.tabella().cella(6, 8).sfondo, (Colore{255, 140, 140}));
    EXPECT_TRUE(finestra.DatiAllineati());
    griglia.premiTasto(Tasto::ripeti);
    EXPECT_EQ(riga(6), "1 2 3 4 5 6 7 28 30");
    EXPECT_EQ(griglia.tabella().cella(6, 8).sfondo, colori::dati);
}

TEST_F(ProveBlocchi, WithOneRowTheCopyChangesNothing) {
    segmenti(1, 1);
    composizione(1).CategoriaSegmento(5.0F, 0, 0);
    apri();
    messaggi.risposta = Risposta::si;
    finestra.chkLock[2].clicca();
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(messaggi.mostrati[0].testo, domanda);
    EXPECT_EQ(riga(1), "5 0 0 0 0 0 0 5 60");
    EXPECT_TRUE(finestra.DatiAllineati());
}

TEST_F(ProveBlocchi, ALockedColumnGoesBelowZeroWhereTheOthersExceedTheFlow) {
    apri();
    blocca(7);
    scrivi(1, 1, "65");
    EXPECT_EQ(riga(1), "65 0 0 0 0 0 -5 60 60");
    EXPECT_TRUE(messaggi.mostrati.empty());
    EXPECT_EQ(griglia.ornamento({1, 7}).segno, OrnamentoCella::Segno::attenzione);
    EXPECT_EQ(griglia.tabella().cella(1, 8).sfondo, (Colore{255, 140, 140}));
    EXPECT_EQ(finestra.lblErroreStato.testo(),
              "Segmenti con totale uguale al flusso in ingresso: 0 su 6; inferiore: 5; superiore: 1");
    griglia.corrente({1, 1});
    EXPECT_EQ(finestra.lblSegmento.testo(),
              "08:00 - 08:15: 60 veicoli su 60, una categoria è negativa: le altre superano il flusso in ingresso");
    finestra.SaveData();
    EXPECT_EQ(composizione(1).CategoriaSegmento(0, 6), -5.0F);
    apri();
    EXPECT_EQ(riga(1), "65 0 0 0 0 0 -5 60 60");
}

TEST_F(ProveBlocchi, ALockTakesTheLargestNumbersToo) {
    apri();
    blocca(1);
    for (int c = 2; c <= 7; ++c) {
        scrivi(1, c, "999999999");
    }
    EXPECT_EQ(griglia.testo(1, 1), "-5999999934");  // 60 - 6 x 999999999
    finestra.SaveData();
    EXPECT_TRUE(errori.empty());
    EXPECT_EQ(composizione(1).CategoriaSegmento(0, 0), -5999999934.0F);
}

TEST_F(ProveBlocchi, EnterPassesOverALockedColumn) {
    apri();
    blocca(2);
    scrivi(1, 1, "1");
    EXPECT_EQ(griglia.corrente(), (Posto{1, 3}));
}

TEST_F(ProveBlocchi, LocksGoWhenTheWindowComesUpAgainAndStayOnARefresh) {
    apri(1);
    blocca(5);
    finestra.ctlToolbar.premi("Refresh");
    EXPECT_EQ(finestra.bloccata(), 5);
    EXPECT_EQ(griglia.tabella().cella(1, 5).sfondo, colori::dati);
    EXPECT_TRUE(passa(2));
    EXPECT_FALSE(finestra.bloccata().has_value());
    EXPECT_EQ(griglia.tabella().cella(1, 5).sfondo, colori::bianco);
}

TEST_F(ProveBlocchi, ABlockIsPastedFromASpreadsheet) {
    apri();
    blocco.scrivi("1\t2\t3\r\n4\t5\t6\r\n");
    griglia.corrente({2, 3});
    EXPECT_TRUE(griglia.premiTasto(Tasto::incolla));
    EXPECT_EQ(riga(2), "0 0 1 2 3 0 0 6 105");
    EXPECT_EQ(riga(3), "0 0 4 5 6 0 0 15 150");
    EXPECT_TRUE(messaggi.mostrati.empty());
    griglia.premiTasto(Tasto::annulla);
    EXPECT_EQ(riga(2), "0 0 0 0 0 0 0 0 105");
    EXPECT_EQ(riga(3), "0 0 0 0 0 0 0 0 150");
    griglia.premiTasto(Tasto::ripeti);
    EXPECT_EQ(riga(3), "0 0 4 5 6 0 0 15 150");
}

TEST_F(ProveBlocchi, TotalsAndFlowsTakeNothingOfABlock) {
    apri();
    blocco.scrivi("1\t2\t3\t4\n5\t6\t7\t8");
    griglia.corrente({5, 6});
    EXPECT_TRUE(griglia.premiTasto(Tasto::incolla));
    EXPECT_EQ(riga(5), "0 0 0 0 0 1 2 3 70");
    EXPECT_EQ(riga(6), "0 0 0 0 0 5 6 11 30");
}

TEST_F(ProveBlocchi, ALockedColumnTakesNothingOfABlockAndIsWorkedOutAfterIt) {
    apri();
    blocca(2);
    blocco.scrivi("1\t99\t3\n4\t99\t6");
    griglia.corrente({1, 1});
    EXPECT_TRUE(griglia.premiTasto(Tasto::incolla));
    EXPECT_EQ(riga(1), "1 56 3 0 0 0 0 60 60");
    EXPECT_EQ(riga(2), "4 95 6 0 0 0 0 105 105");
    EXPECT_EQ(riga(3), "0 0 0 0 0 0 0 0 150");
    griglia.premiTasto(Tasto::annulla);
    EXPECT_EQ(riga(1), "0 0 0 0 0 0 0 0 60");
    griglia.premiTasto(Tasto::ripeti);
    EXPECT_EQ(riga(2), "4 95 6 0 0 0 0 105 105");
}

TEST_F(ProveBlocchi, ABlockIsRefusedAsAWholeForItsFirstBadCell) {
    riempi(1);
    apri();
    struct Caso {
        const char* testo;
        const char* motivo;
    };
    for (const Caso& caso :
         {Caso{"due", "non è un numero"}, Caso{"2,5", "non è un numero intero tra 0 e 999999999"},
          Caso{"-1", "non è un numero intero tra 0 e 999999999"},
          Caso{"1000000000", "non è un numero intero tra 0 e 999999999"}, Caso{"1.234", "non è un numero"}}) {
        messaggi.mostrati.clear();
        blocco.scrivi(std::string{"9\t9\n9\t"} + caso.testo);
        griglia.corrente({2, 3});
        griglia.premiTasto(Tasto::incolla);
        ASSERT_EQ(messaggi.mostrati.size(), 1U) << caso.testo;
        EXPECT_EQ(messaggi.mostrati[0].testo, std::string{"Il testo '"} + caso.testo +
                                                  "' (riga '08:30 - 08:45', colonna 'Furgoni') " + caso.motivo +
                                                  ": non è stato incollato nulla.");
        EXPECT_EQ(riga(2), "11 12 13 14 15 16 17 98 105");
    }
}

TEST_F(ProveBlocchi, OfABlockPastTheFlowsTheFirstSegmentIsTold) {
    apri();
    blocco.scrivi("60\n106\n151");
    griglia.corrente({1, 1});
    griglia.premiTasto(Tasto::incolla);
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(messaggi.mostrati[0].testo,
              "Segmento di tempo '08:15 - 08:30': numero veicoli inseriti > numero di veicoli in ingresso [105 veic].");
    EXPECT_EQ(griglia.testo(3, 1), "151");
    EXPECT_EQ(griglia.tabella().cella(3, 8).sfondo, (Colore{255, 140, 140}));
}

TEST_F(ProveBlocchi, CellsAreCopiedWithTheirHeadings) {
    riempi(1);
    apri();
    griglia.corrente({1, 7});
    griglia.premiTasto(Tasto::fine, true);
    griglia.premiTasto(Tasto::copiaConIntestazioni);
    EXPECT_EQ(blocco.leggi(),
              "[ora]\\[veicoli]\tAutovetture\tTotale segmento\tFlusso ingresso\r\n08:00 - 08:15\t7\t28\t60");
    griglia.premiTasto(Tasto::copia);
    EXPECT_EQ(blocco.leggi(), "7\t28\t60");
}

}  // namespace
}  // namespace kelvo::prove
