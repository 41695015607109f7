#include "input/sceltaCSV.h"

#include <gtest/gtest.h>

#include "comune/fintiFinestre.h"

namespace kelvo::prove {
namespace {

constexpr auto puntoEVirgola = SeparatoreCSV::puntoEVirgola;
constexpr auto virgola = SeparatoreCSV::virgola;

RigheCSV righe(std::string_view testo) {
    return celleCSV(testo, puntoEVirgola).righe;
}

std::vector<ColonnaCSV> tre() {
    return {{"A", 1, {"Via Roma"}}, {"B", 2, {}}, {"C", 3, {"Ponte"}}};
}

TEST(PrimaRigaDiTesti, HoldsHeadingsWhereNoFigureStands) {
    EXPECT_TRUE(primaRigaDiTesti(righe("Ora;Auto;Bus\n08:00;1;2\n")));
    EXPECT_TRUE(primaRigaDiTesti(righe(";A;B\nA;0;1\n")));
    EXPECT_TRUE(primaRigaDiTesti(righe("Flusso\n12\n")));
    EXPECT_FALSE(primaRigaDiTesti(righe("08:00;12\n08:15;13\n")));
    EXPECT_FALSE(primaRigaDiTesti(righe("A;-;12\nB;7;-\n")));
    EXPECT_FALSE(primaRigaDiTesti(righe("12\n13\n")));
    EXPECT_FALSE(primaRigaDiTesti(righe("x;1.234\n")));
    EXPECT_FALSE(primaRigaDiTesti(righe(";;\n1;2;3\n")));
    EXPECT_FALSE(primaRigaDiTesti({}));
}

TEST(ColonneProposte, EqualHeadingsComeBeforeThePosition) {
    EXPECT_EQ(colonneProposte(righe("Ora;C;b; A \n1;2;3;4\n"), true, tre()), (std::vector<int>{3, 2, 1}));
    EXPECT_EQ(colonneProposte(righe("PONTE;Via Roma;x\n1;2;3\n"), true, tre()), (std::vector<int>{1, -1, 0}));
    EXPECT_EQ(colonneProposte(righe("A;A;C\n1;2;3\n"), true, tre()), (std::vector<int>{0, -1, 2}));
}

TEST(ColonneProposte, OneColumnIsNeverProposedTwice) {
    const std::vector<ColonnaCSV> gemelle{{"X", 1, {}}, {"X", 2, {}}};
    EXPECT_EQ(colonneProposte(righe("X;X\n1;2\n"), true, gemelle), (std::vector<int>{0, 1}));
    EXPECT_EQ(colonneProposte(righe("X;Y\n1;2\n"), true, gemelle), (std::vector<int>{0, -1}));
}

TEST(ColonneProposte, WithoutEqualHeadingsTheyGoByPosition) {
    EXPECT_EQ(colonneProposte(righe("p;q;r\n1;2;3\n"), true, tre()), (std::vector<int>{0, 1, 2}));
    EXPECT_EQ(colonneProposte(righe("1;2;3\n"), false, tre()), (std::vector<int>{0, 1, 2}));
    EXPECT_EQ(colonneProposte(righe("1;2\n"), false, tre()), (std::vector<int>{0, 1, -1}));
}

TEST(ColonneProposte, AColumnThatNamesTheRowsIsPassedOver) {
    EXPECT_EQ(colonneProposte(righe("08:00;2;3\n08:15;4;5\n"), false, tre()), (std::vector<int>{1, 2, -1}));
    EXPECT_EQ(colonneProposte(righe("1;10;20;30\n2;11;21;31\n"), false, tre()), (std::vector<int>{1, 2, 3}))
        << "one column more than the table has";
    EXPECT_EQ(colonneProposte(righe("08:00;12\n08:15;13\n"), false, {{"Flusso", 1, {}}}), std::vector<int>{1});
    EXPECT_EQ(colonneProposte(righe("nota\n"), false, {{"Flusso", 1, {}}}), std::vector<int>{0});
}

TEST(LeggiCellaCSV, NumbersAreReadWithCommaOrPoint) {
    EXPECT_EQ(leggiCellaCSV("12,5").numero, 12.5);
    EXPECT_EQ(leggiCellaCSV("12.5").numero, 12.5);
    EXPECT_EQ(leggiCellaCSV("-3").numero, -3.0);
    EXPECT_EQ(leggiCellaCSV("").numero, 0.0);
    EXPECT_EQ(leggiCellaCSV("1.234,5").numero, 1234.5);
    EXPECT_EQ(leggiCellaCSV("0.125").numero, 0.125);
}

TEST(LeggiCellaCSV, WhatCouldBeReadInTwoWaysIsNoNumber) {
    EXPECT_FALSE(leggiCellaCSV("1.234").numero);
    EXPECT_TRUE(leggiCellaCSV("1.234").ambigua);
    EXPECT_TRUE(leggiCellaCSV("-12.345").ambigua);
    EXPECT_FALSE(leggiCellaCSV("abc").ambigua);
    EXPECT_FALSE(leggiCellaCSV("1.2.3").ambigua);
    EXPECT_FALSE(leggiCellaCSV("12:30").ambigua);
    EXPECT_FALSE(leggiCellaCSV("12").ambigua);
}

TEST(LeggiCellaCSV, BetweenCommasAThousandsCommaIsRefusedAsReadableInTwoWays) {
    for (const char* testo : {"1,234", "12,345", "-123,456", "+1,000"}) {
        EXPECT_TRUE(leggiCellaCSV(testo, virgola).ambigua) << testo;
        EXPECT_FALSE(leggiCellaCSV(testo, virgola).numero) << testo;
    }
    EXPECT_EQ(leggiCellaCSV("0,125", virgola).numero, 0.125);
    EXPECT_EQ(leggiCellaCSV("12,5", virgola).numero, 12.5);
    EXPECT_EQ(leggiCellaCSV("1,2345", virgola).numero, 1.2345);
    EXPECT_EQ(leggiCellaCSV("1234,567", virgola).numero, 1234.567);
    EXPECT_EQ(leggiCellaCSV("1,234.5", virgola).numero, 1234.5);
    EXPECT_FALSE(leggiCellaCSV(",234", virgola).ambigua);
    EXPECT_FALSE(leggiCellaCSV("1,2a4", virgola).ambigua);
    EXPECT_EQ(leggiCellaCSV("1,234", puntoEVirgola).numero, 1.234);
    EXPECT_EQ(leggiCellaCSV("1,234", SeparatoreCSV::tabulazione).numero, 1.234);
}

TEST(ColonneRiproposte, WhatWasChosenByHandStaysAndIsProposedForNoOther) {
    EXPECT_EQ(colonneRiproposte({2, 1, -1}, {true, false, false}, {0, 1, 2}), (std::vector<int>{2, 1, -1}));
    EXPECT_EQ(colonneRiproposte({0, -1, 2}, {false, true, false}, {3, 1, 2}), (std::vector<int>{3, -1, 2}));
    EXPECT_EQ(colonneRiproposte({0, 1}, {false, false}, {1, 2}), (std::vector<int>{1, 2}));
}

TEST(TestoBreveCSV, HasSixtyCharactersAtMost) {
    EXPECT_EQ(testoBreveCSV(std::string(60, 'x')), std::string(60, 'x'));
    EXPECT_EQ(testoBreveCSV(std::string(61, 'x')), std::string(60, 'x') + "…");
}

struct ProveMemoriaCSV : testing::Test {
    ImpostazioniFinte impostazioni;
    MemoriaCSV memoria{&impostazioni, "Matrice"};
    const std::string file = "Ora;X;Y;Z\n1;2;3;4\n";
    const SceltaCSV scelta{.separatore = puntoEVirgola, .intestazioni = true, .colonne = {3, -1, 1}};

    void ricorda() { memoria.ricorda(scelta, righe(file)); }
};

TEST_F(ProveMemoriaCSV, AFileWithTheSameHeadingsGetsTheSameChoice) {
    EXPECT_EQ(memoria.adatta(file, 3), std::nullopt);
    ricorda();
    EXPECT_EQ(memoria.adatta("Ora;X;Y;Z\n9;9;9;9\n8;8;8;8\n", 3), scelta);
    const MemoriaCSV dopo(&impostazioni, "Matrice");
    EXPECT_EQ(dopo.adatta(file, 3), scelta) << "of the settings, not of the object";
}

TEST_F(ProveMemoriaCSV, AnotherFileTableOrKindGetsNone) {
    ricorda();
    EXPECT_EQ(memoria.adatta("Ora;X;Y;W\n1;2;3;4\n", 3), std::nullopt);
    EXPECT_EQ(memoria.adatta("Ora;X;Y\n1;2;3\n", 3), std::nullopt);
    EXPECT_EQ(memoria.adatta("Ora,X,Y,Z\n1,2,3,4\n", 3), std::nullopt);
    EXPECT_EQ(memoria.adatta("", 3), std::nullopt);
    EXPECT_EQ(memoria.adatta(file, 4), std::nullopt);
    EXPECT_EQ(MemoriaCSV(&impostazioni, "Composizione").adatta(file, 3), std::nullopt);
}

TEST_F(ProveMemoriaCSV, WithoutHeadingsAsManyColumnsAreEnough) {
    const SceltaCSV senza{.separatore = virgola, .intestazioni = false, .colonne = {2, 1, -1}};
    memoria.ricorda(senza, celleCSV("1,2,3\n", virgola).righe);
    EXPECT_EQ(memoria.adatta("7,8,9\n1,2,3\n", 3), senza);
    EXPECT_EQ(memoria.adatta("7,8\n", 3), std::nullopt);
    EXPECT_EQ(memoria.adatta("a,b,c\n1,2,3\n", 3), std::nullopt) << "a file with headings is another one";
}

TEST_F(ProveMemoriaCSV, SpoiltSettingsAreNoChoice) {
    const auto metti = [&](const char* chiave, const char* valore) {
        ricorda();
        impostazioni.scrivi("Kelvo", "ImportaCSV", chiave, valore);
        return memoria.adatta(file, 3);
    };
    EXPECT_EQ(metti("MatriceColonne", "3 x 1"), std::nullopt);
    EXPECT_EQ(metti("MatriceColonne", "3 -1 4"), std::nullopt) << "a column that the file has not";
    EXPECT_EQ(metti("MatriceColonne", "3 -2 1"), std::nullopt);
    EXPECT_EQ(metti("MatriceColonne", "99999999999 1 1"), std::nullopt);
    EXPECT_EQ(metti("MatriceForma", "7 1"), std::nullopt);
    EXPECT_EQ(metti("MatriceForma", "0"), std::nullopt);
    EXPECT_EQ(metti("MatriceForma", "0 1"), scelta);
}

TEST_F(ProveMemoriaCSV, WithoutSettingsNothingIsRememberedAndNothingFails) {
    MemoriaCSV senza(nullptr, "Matrice");
    senza.ricorda(scelta, righe(file));
    senza.cartella("/da/qualche/parte");
    EXPECT_EQ(senza.adatta(file, 3), std::nullopt);
    EXPECT_EQ(senza.cartella(), "");
}

}  // namespace
}  // namespace kelvo::prove
