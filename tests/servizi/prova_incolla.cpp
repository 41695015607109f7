#include "shell/servizi/incolla.h"

#include <gtest/gtest.h>

namespace kelvo::prove {
namespace {

TEST(ProveIncolla, NumbersOfASpreadsheetAreReadWithCommaOrPoint) {
    struct Caso {
        const char* testo;
        double numero;
    };
    for (const Caso& caso :
         {Caso{"12", 12}, Caso{" 12,5 ", 12.5}, Caso{"12.5", 12.5}, Caso{"-3", -3}, Caso{"+3,25", 3.25},
          Caso{"1.234,5", 1234.5}, Caso{"1,234.5", 1234.5}, Caso{"1.234.567", 1234567},
          Caso{"12.345.678,25", 12345678.25}, Caso{"0.125", 0.125}, Caso{"1234.567", 1234.567}, Caso{"1,234", 1.234},
          Caso{"", 0}, Caso{"  ", 0}, Caso{",", 0}}) {
        const auto numero = numeroIncollato(caso.testo);
        ASSERT_TRUE(numero) << caso.testo;
        EXPECT_DOUBLE_EQ(*numero, caso.numero) << caso.testo;
    }
}

TEST(ProveIncolla, WhatIsNoNumberOrCouldBeMisreadIsNotRead) {
    for (const char* testo : {"1.234", "12.500", "1,2,3", "1,234,567", "1.23.456", "1.234,5,6", "12a", "a", "-",
                              "1 234", "1.2345,6", "1e5", "--1", "."}) {
        EXPECT_EQ(numeroIncollato(testo), std::nullopt) << testo;
    }
}

TEST(ProveIncolla, ARefusalNamesTheCellByItsHeadings) {
    Griglia griglia{"ctlGrid"};
    Tabella tabella(2, 2);
    tabella.cella(0, 1).testo = "Flusso";
    tabella.cella(1, 0).testo = "08:00 - 08:15";
    griglia.tabella(std::move(tabella));
    const EsitoUscita esito = rifiutoBlocco(griglia, {{1, 1}, "abc"}, "non è un numero");
    EXPECT_FALSE(esito.accettato);
    EXPECT_FALSE(esito.bandiera) << "nothing stands there that would have to be mended";
    ASSERT_TRUE(esito.messaggio);
    EXPECT_EQ(esito.messaggio->testo,
              "Il testo 'abc' (riga '08:00 - 08:15', colonna 'Flusso') non è un numero: non è stato incollato nulla.");
    EXPECT_EQ(esito.messaggio->titolo, "KELVO 2014 - Attenzione");
}

}  // namespace
}  // namespace kelvo::prove
