#include "shell/servizi/esporta.h"

#include <gtest/gtest.h>

#include "servizi/grigliaProva.h"

namespace kelvo::prove {
namespace {

const std::string segno = "\xEF\xBB\xBF";

using ProveCSVTabella = ProveGriglia;

TEST_F(ProveCSVTabella, HeadingsAndAllRowsStandInTheFile) {
    EXPECT_EQ(csvDiTabella(griglia), segno +
                                         "C0;C1;C2;C3\r\n"
                                         "R1;11;12;13\r\n"
                                         "R2;21;22;23\r\n"
                                         "R3;31;32;33\r\n");
}

TEST_F(ProveCSVTabella, HiddenColumnsStayOut) {
    ColonnaGriglia nascosta;
    nascosta.nascosta = true;
    griglia.colonna(2, nascosta);
    EXPECT_EQ(csvDiTabella(griglia), segno + "C0;C1;C3\r\nR1;11;13\r\nR2;21;23\r\nR3;31;33\r\n");
    EXPECT_EQ(testoDiTabella(griglia, false), "11\t13\r\n21\t23\r\n31\t33");
}

TEST_F(ProveCSVTabella, TextsThatWouldBeMisreadStandBetweenQuotes) {
    Tabella tabella(2, 5);
    tabella.cella(0, 0).testo = "[ora]\n[veicoli]";
    tabella.cella(0, 1).testo = "A;B";
    tabella.cella(0, 2).testo = "\"centro\"";
    tabella.cella(1, 0).testo = " 12";
    tabella.cella(1, 1).testo = "12,5";
    tabella.cella(1, 2).testo = "-3";
    griglia.tabella(tabella);
    EXPECT_EQ(csvDiTabella(griglia), segno + "[ora] [veicoli];\"A;B\";\"\"\"centro\"\"\";;\r\n\" 12\";12,5;-3;;\r\n");
}

TEST_F(ProveCSVTabella, ACopyOfTheWholeTableHasTabsAndHeadingsOnWish) {
    EXPECT_EQ(testoDiTabella(griglia, false), "11\t12\t13\r\n21\t22\t23\r\n31\t32\t33");
    EXPECT_EQ(testoDiTabella(griglia, true), "C0\tC1\tC2\tC3\r\nR1\t11\t12\t13\r\nR2\t21\t22\t23\r\nR3\t31\t32\t33");
}

TEST_F(ProveCSVTabella, WhatLeavesTheTableReadsAsItsOwnerSaysAndEndsWithTheLastRowThatTellsSomething) {
    Tabella tabella(6, 3);
    tabella.cella(0, 1).testo = "C1";
    tabella.cella(0, 2).testo = "C2";
    tabella.cella(1, 0).testo = "R1";
    tabella.cella(1, 1).testo = "o";
    tabella.cella(1, 2).testo = "x";
    tabella.cella(3, 2).testo = "x";
    griglia.modificabile = [](Posto) { return false; };
    griglia.letturaFuori = [this](Posto p) -> std::optional<std::string> {
        const std::string& scritto = testo(p.riga, p.colonna);
        return scritto == "x"   ? std::optional<std::string>("X")
               : scritto == "o" ? std::optional<std::string>("")
                                : std::nullopt;
    };
    griglia.tabella(tabella);
    EXPECT_EQ(csvDiTabella(griglia), segno + ";C1;C2\r\nR1;;X\r\n;;\r\n;;X\r\n");
    EXPECT_EQ(testoDiTabella(griglia, false), "\tX\r\n\t\r\n\tX");
    griglia.premiTasto(Griglia::Tasto::tutto);
    EXPECT_EQ(griglia.testoSelezione(false), "\tX\r\n\t\r\n\tX");
    griglia.modificabile = [](Posto) { return true; };
    EXPECT_EQ(griglia.testoSelezione(false), "\tX\r\n\t\r\n\tX\r\n\t\r\n\t") << "rows to be filled are rows";
}

TEST(CSVGrafico, ARowForEachPlaceAndAColumnForEachSeries) {
    Grafico::Contenuto contenuto;
    contenuto.x = {.titolo = "[ora]", .etichette = {"08:00", "08:15"}, .passiPerEtichetta = 1.0};
    contenuto.y.titolo = "[veic/min]";
    contenuto.serie = {{.nome = "Prima", .valori = {1.5, 1234.25}}, {.valori = {0.0, -2.0}}};
    EXPECT_EQ(csvDiGrafico(contenuto), segno + "[ora];Prima;[veic/min]\r\n08:00;1,5;0\r\n08:15;1234,25;-2\r\n");
}

TEST(CSVGrafico, PlacesWithoutALabelHaveTheirNumberAndMissingValuesAreEmpty) {
    Grafico::Contenuto contenuto;
    contenuto.serie = {{.valori = {5.0, 6.0, 7.0}}, {.valori = {8.0}}};
    EXPECT_EQ(csvDiGrafico(contenuto), segno + "X;Serie 1;Serie 2\r\n1;5;8\r\n2;6;\r\n3;7;\r\n");
}

TEST(CSVGrafico, SeriesAtPlacesOfTheirOwnShareTheRowsOfEqualPlaces) {
    Grafico::Contenuto contenuto;
    contenuto.x.titolo = "step";
    contenuto.serie = {{.nome = "A", .valori = {1.0, 2.0}, .ascisse = {-1.0, 0.5}},
                       {.nome = "B", .valori = {3.0, 4.0}, .ascisse = {0.5, 2.0}}};
    EXPECT_EQ(csvDiGrafico(contenuto), segno + "step;A;B\r\n-1;1;\r\n0,5;2;3\r\n2;;4\r\n");
}

TEST(CSVGrafico, AValueThatIsASingleHasThePlainFormOfASingle) {
    Grafico::Contenuto contenuto;
    contenuto.serie = {{.nome = "A", .valori = {static_cast<double>(0.1F), 0.1}}};
    EXPECT_EQ(csvDiGrafico(contenuto), segno + "X;A\r\n1;0,1\r\n2;0,1\r\n");
}

TEST(NomeFileDati, IsMadeOfCaptionAndLegWithoutForbiddenCharacters) {
    EXPECT_EQ(nomeFileDati("Matrice delle svolte", ""), "Matrice delle svolte");
    EXPECT_EQ(nomeFileDati("Curva tempo/flusso", "Via A: \"nord\""), "Curva tempo-flusso - Via A- -nord-");
    EXPECT_EQ(nomeFileDati("Dati", "Ing. "), "Dati - Ing");
}

}  // namespace
}  // namespace kelvo::prove
