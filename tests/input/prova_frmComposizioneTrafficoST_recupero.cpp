#include <gtest/gtest.h>

#include "input/frmTempoModellazione.h"
#include "input/scenaComposizioneST.h"

namespace kelvo::prove {
namespace {

/// The table of the first leg is filled, then the times change to five segments, which empties it and its demand; the
/// window comes up.
struct ProveRipristino : ScenaComposizioneST {
    ProveRipristino() {
        riempi(1);
        composizione(1).CategoriaSegmento(12345678.0F, 0, 2);
        frmTempoModellazione tempi(contorno());
        tempi.attivata();
        tempi.fuocoSu(tempi.txtTempoFinale);
        tempi.txtTempoFinale.scrivi("09:15");
        tempi.lasciaFuoco();
        tempi.SaveData();
        messaggi.mostrati.clear();
    }
    void apriRispondendo(Risposta risposta) {
        messaggi.risposta = risposta;
        apri();
    }
};

TEST_F(ProveRipristino, YesBringsTheVehiclesBackWithAllTheirDigits) {
    apriRispondendo(Risposta::si);
    EXPECT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(riga(1), "1 2 12345678 4 5 6 7 12345703 0");
    EXPECT_EQ(riga(5), "41 42 43 44 45 46 47 308 0");
    EXPECT_FALSE(finestra.DatiAllineati());
    finestra.SaveData();
    EXPECT_EQ(composizione(1).CategoriaSegmento(0, 2), 12345678.0F);
}

TEST_F(ProveRipristino, NoLeavesTheTableEmptyAndIsNotAskedAgain) {
    apriRispondendo(Risposta::no);
    EXPECT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(griglia.tabella().righe(), 6);
    EXPECT_EQ(riga(1), "0 0 0 0 0 0 0 0 0");
    EXPECT_EQ(riga(5), "0 0 0 0 0 0 0 0 0");
    EXPECT_TRUE(finestra.DatiAllineati());
    finestra.SaveData();
    EXPECT_EQ(composizione(1).Categorie(), TabellaCategorie(5, PerClasse{}));
    apri();
    EXPECT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(riga(1), "0 0 0 0 0 0 0 0 0");
}

TEST_F(ProveRipristino, WhatCameBackIsUndoneAndDoneAgain) {
    apriRispondendo(Risposta::si);
    griglia.premiTasto(Tasto::annulla);
    EXPECT_EQ(riga(1), "0 0 0 0 0 0 0 0 0");
    EXPECT_EQ(riga(5), "0 0 0 0 0 0 0 0 0");
    EXPECT_TRUE(finestra.DatiAllineati());
    griglia.premiTasto(Tasto::ripeti);
    EXPECT_EQ(riga(1), "1 2 12345678 4 5 6 7 12345703 0");
    EXPECT_FALSE(finestra.DatiAllineati());
    griglia.premiTasto(Tasto::annulla);
    finestra.SaveData();
    EXPECT_EQ(composizione(1).Categorie(), TabellaCategorie(5, PerClasse{}));
    EXPECT_EQ(messaggi.mostrati.size(), 1U);
}

}  // namespace
}  // namespace kelvo::prove
