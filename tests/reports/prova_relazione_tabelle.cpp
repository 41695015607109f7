#include <gtest/gtest.h>

#include "progettoProva.h"
#include "results/corsiaDestra.h"

namespace kelvo::prove {
namespace {

const std::vector<std::string> vuota7(8);

/// A report of input for a project of this form, read back.
Letto ingresso(const Forma& forma) {
    Scena scena(forma);
    EXPECT_EQ(scena.modulo().compilaRelazioneWord("RelazioneMasterIN"), EsitoRelazione::fatta);
    EXPECT_TRUE(scena.errori.empty());
    return scena.letto();
}

class Rami : public testing::TestWithParam<std::int16_t> {};
INSTANTIATE_TEST_SUITE_P(Relazione, Rami, testing::Values(3, 4, 7));

std::string lettera(std::int16_t i) {
    return std::string(1, static_cast<char>('A' + i - 1));
}

TEST_P(Rami, TheMatrixInVehiclesHasEveryCellInItsPlace) {
    const std::int16_t n = GetParam();
    const Celle2D celle = tabellaDi(ingresso({.rami = n}), "MatriceSvolte");
    ASSERT_EQ(celle.size(), 8U);
    EXPECT_EQ(celle[0], (std::vector<std::string>{"Da \\ A", "A", "B", "C", "D", "E", "F", "G"}));
    for (std::int16_t o = 1; o <= 7; ++o) {
        std::vector<std::string> attesa(8);
        if (o <= n) {
            attesa[0] = "Ingresso " + lettera(o);
            for (std::int16_t d = 1; d <= n; ++d) {
                attesa[static_cast<std::size_t>(d)] = o == d ? "" : std::to_string(10 * o + d) + ",00";
            }
        }
        EXPECT_EQ(celle[static_cast<std::size_t>(o)], attesa) << o;
    }
}

TEST_P(Rami, TheMatrixOfSharesHasEveryCellInItsPlace) {
    const std::int16_t n = GetParam();
    const Celle2D celle = tabellaDi(ingresso({.rami = n, .matrice = 1}), "MatriceSvoltePerc");
    ASSERT_EQ(celle.size(), 8U);
    const std::string quota = n == 3 ? "0,5000" : n == 4 ? "0,3333" : "0,1667";
    for (std::int16_t o = 1; o <= 7; ++o) {
        std::vector<std::string> attesa(8);
        if (o <= n) {
            attesa[0] = "Ingresso " + lettera(o);
            for (std::int16_t d = 1; d <= n; ++d) {
                attesa[static_cast<std::size_t>(d)] = o == d ? "" : quota;
            }
        }
        EXPECT_EQ(celle[static_cast<std::size_t>(o)], attesa) << o;
    }
}

TEST(Sezioni, SharesOfAMatrixInVehiclesAreThoseOfItsRows) {
    // Row A of 10 o + d: 12, 13, 14 of 39.
    const Celle2D celle = tabellaDi(ingresso({}), "MatriceSvoltePerc");
    EXPECT_EQ(celle[1], (std::vector<std::string>{"Ingresso A", "", "0,3077", "0,3333", "0,3590", "", "", ""}));
}

TEST(Sezioni, TotalsOfTheMatrixAreVehicles) {
    // Row A: 12 + 13 + 14; column A: 21 + 31 + 41.
    const Celle2D veicoli = tabellaDi(ingresso({}), "TotaliMatriceSvolte");
    EXPECT_EQ(veicoli[0], (std::vector<std::string>{"Ingresso", "Totale entrate", "Totale uscite"}));
    EXPECT_EQ(veicoli[1], (std::vector<std::string>{"", "[veicoli]", "[veicoli]"}));
    EXPECT_EQ(veicoli[2], (std::vector<std::string>{"Ingresso A", "39,00", "93,00"}));
    EXPECT_EQ(veicoli[5], (std::vector<std::string>{"Ingresso D", "126,00", "72,00"}));
    EXPECT_EQ(veicoli[6], std::vector<std::string>(3));
    // In per cent the totals of the entries are 100, 200, 300, a half of each to each other leg.
    const Celle2D percento = tabellaDi(ingresso({.rami = 3, .matrice = 1}), "TotaliMatriceSvolte");
    EXPECT_EQ(percento[2], (std::vector<std::string>{"Ingresso A", "100,00", "250,00"}));
    EXPECT_EQ(percento[4], (std::vector<std::string>{"Ingresso C", "300,00", "150,00"}));
    EXPECT_EQ(percento[5], std::vector<std::string>(3));
}

TEST_P(Rami, FixedTablesLeaveTheRowsOfAbsentLegsEmpty) {
    const std::int16_t n = GetParam();
    const Letto letto = ingresso({.rami = n});
    const auto righe = static_cast<std::size_t>(n);
    for (const char* nome : {"GeometriaIngressi", "DatiTraffico", "ComposizioneTraffico", "CondizioniEsterne"}) {
        const Celle2D celle = tabellaDi(letto, nome);
        ASSERT_EQ(celle.size(), 8U) << nome;
        for (std::size_t r = 1; r < celle.size(); ++r) {
            if (r <= righe) {
                EXPECT_EQ(celle[r][0], "Ingresso " + lettera(static_cast<std::int16_t>(r)));
                EXPECT_NE(celle[r].back(), "") << nome;
            } else {
                EXPECT_EQ(celle[r], std::vector<std::string>(celle[r].size())) << nome << r;
            }
        }
    }
}

TEST(Sezioni, NamesGeometryDemandCompositionAndConditions) {
    const Letto letto = ingresso({});
    const Celle2D nomi = tabellaDi(letto, "ToponomasticaIngressi");
    EXPECT_EQ(nomi[1], std::vector<std::string>{"Località Borgo"});
    EXPECT_EQ(nomi[2], (std::vector<std::string>{"Ingresso A", "Via A"}));
    EXPECT_EQ(nomi[5], (std::vector<std::string>{"Ingresso D", "Via D"}));
    EXPECT_EQ(nomi[6], (std::vector<std::string>{"", ""}));
    EXPECT_EQ(tabellaDi(letto, "GeometriaIngressi")[2],
              (std::vector<std::string>{"Ingresso B", "3,20", "5,20", "20,00", "5,00", "25,00", "65,00", "sì"}));
    EXPECT_EQ(tabellaDi(letto, "GeometriaIngressi")[3].back(), "no");
    EXPECT_EQ(tabellaDi(letto, "DatiTraffico")[3],
              (std::vector<std::string>{"Ingresso C", "08:00", "5,00", "08:30", "7,00", "09:00", "4,00", "300,00",
                                        "4,50", "270,00"}));
    EXPECT_EQ(tabellaDi(letto, "ComposizioneTraffico")[4],
              (std::vector<std::string>{"Ingresso D", "0,00", "4,00", "0,00", "0,00", "0,00", "0,00", "96,00"}));
    EXPECT_EQ(tabellaDi(letto, "CondizioniEsterne")[1],
              (std::vector<std::string>{"Ingresso A", "Condizione 1", "0,25"}));
}

TEST(Sezioni, CountsBySegments) {
    const Celle2D celle =
        tabellaDopo(ingresso({.rami = 3, .analisi = 2}), "Flussi degli ingressi per segmento di tempo");
    const Celle2D attese{
        {"TEMPO\n[h]", "Ingresso A\n[veicoli/min]", "Ingresso B\n[veicoli/min]", "Ingresso C\n[veicoli/min]"},
        {"08:00 - 08:15", "51", "52", "53"},
        {"08:15 - 08:30", "61", "62", "63"},
        {"08:30 - 08:45", "71", "72", "73"},
        {"08:45 - 09:00", "81", "82", "83"},
        {"FLUSSO TOTALE [veicoli]", "100", "200", "300"},
        {"FLUSSO MEDIO [veicoli]", "1,50", "3,00", "4,50"},
        {"FLUSSO ORARIO", "90,00", "180,00", "270,00"}};
    EXPECT_EQ(celle, attese);
}

TEST(Sezioni, CompositionBySegments) {
    const Letto letto = ingresso({.rami = 3, .flusso = 1, .segmenti = 3});
    const Celle2D celle = tabellaDopo(letto, "Composizione del traffico per segmento di tempo - Ingresso B");
    const Celle2D attese{
        {"INGRESSO B - Via B"},
        {"TEMPO\n[h]", "TIPO [%]"},
        {"", "Autoarticolati", "Autotreni", "Autobus", "Camper", "Roulotte", "Veicoli a due ruote", "Autovetture"},
        {"08:00 - 08:15", "2", "3", "4", "5", "6", "7", "8"},
        {"08:15 - 08:30", "2", "3", "4", "5", "6", "7", "8"},
        {"08:30 - 08:45", "2", "3", "4", "5", "6", "7", "8"}};
    EXPECT_EQ(celle, attese);
    // One report calls a class by one name.
    const Celle2D coefficienti = tabellaDopo(letto, "Coefficienti di equivalenza");
    const Celle2D quote = tabellaDi(ingresso({}), "ComposizioneTraffico");
    ASSERT_EQ(coefficienti.size(), 8U);
    ASSERT_EQ(quote[0].size(), 8U);
    for (std::size_t c = 1; c < 8; ++c) {
        EXPECT_EQ(celle[2][c], coefficienti[c][0]);
        EXPECT_EQ(celle[2][c], quote[0][c]);
    }
    EXPECT_FALSE(haSegnalibro(letto, "ParagrafoComposizioneTraffico"));
    EXPECT_EQ(tabellaDopo(letto, "- Ingresso C").size(), 6U);
}

TEST(Sezioni, TheSectionOfTheOtherKindGoes) {
    const auto hanno = [](const Forma& forma) {
        const Letto letto = ingresso(forma);
        return std::vector<bool>{
            haSegnalibro(letto, "ParagrafoDatiTraffico"), haSegnalibro(letto, "ParagrafoDatiTrafficoST"),
            haSegnalibro(letto, "ParagrafoMatriceSvolte"), haSegnalibro(letto, "ParagrafoComposizioneTraffico"),
            haSegnalibro(letto, "ParagrafoComposizioneTrafficoST")};
    };
    EXPECT_EQ(hanno({.analisi = 1}), (std::vector<bool>{true, false, true, true, false}));
    EXPECT_EQ(hanno({.analisi = 2, .flusso = 1, .matrice = 1}), (std::vector<bool>{false, true, false, false, true}));
    // A study of saturation alone fills neither traffic section and takes neither away.
    EXPECT_EQ(hanno({.analisi = 0}), (std::vector<bool>{true, true, true, true, false}));
}

TEST(Sezioni, ContentsForgetTheSectionsThatWent) {
    const std::vector<std::string> blocchi = ingresso({.analisi = 1}).blocchi();
    const auto quante = [&](const std::string& titolo) { return std::count(blocchi.begin(), blocchi.end(), titolo); };
    EXPECT_EQ(quante("Curve di domanda"), 2) << "heading and entry";
    EXPECT_EQ(quante("Flussi per segmento di tempo"), 0);
    EXPECT_EQ(quante("Composizione per segmento di tempo"), 0);
}

TEST(Sezioni, AStudyOfSaturationAloneSaysWhatItDoesNotHave) {
    Scena scena({.analisi = 0});
    EXPECT_EQ(scena.modulo().compilaRelazioneWord("RelazioneMasterIN-OUT.dot"), EsitoRelazione::fatta);
    EXPECT_EQ(scena.app.theRotonda().timbro().forma, FormaCalcolo::bilanciamento);
    const Letto letto = scena.letto();
    const Celle2D curve = tabellaDi(letto, "DatiTraffico");
    for (std::size_t r = 1; r < curve.size(); ++r) {
        EXPECT_EQ(curve[r], std::vector<std::string>(10));
    }
    const std::string testo = Letto::testo(letto.corpo());
    for (const char* frase : {"non usa le curve di domanda", "non usa i conteggi per segmento di tempo",
                              "code e ritardi nel tempo non sono calcolati", "Tipo di analisi: sola saturazione"}) {
        EXPECT_NE(testo.find(frase), std::string::npos) << frase;
    }
    EXPECT_EQ(testo.find("Verifiche prestazionali - Ingresso"), std::string::npos);
    EXPECT_NE(tabellaDi(letto, "CapacitaUltima")[1][1], "");
    Scena altra({.analisi = 1});
    altra.modulo().compilaRelazioneWord("RelazioneMasterIN-OUT.dot");
    EXPECT_EQ(Letto::testo(altra.letto().corpo()).find("sola saturazione"), std::string::npos);
}

TEST(Sezioni, UltimateCapacityWithTheTotalsOfTheNode) {
    Scena scena({.rami = 3, .analisi = 1});
    modCalcolo(scena.app).Calcola_Tempo_Flusso("0");
    Rotonda& r = scena.app.theRotonda();
    r.Ramo(1).CapacitaUltima(1000.1234);
    r.Ramo(2).CapacitaUltima(500.0);
    r.Ramo(3).CapacitaUltima(499.876);
    scena.modulo().compilaAllegatiWord("RelazioneMasterOUT");
    // Shown to two decimals the capacities add up to 2000,00; the hourly flows are 90, 180, 270: 27 %.
    const Celle2D attese{{"Ingresso", "Capacità ultima [veic/h]"},
                         {"Ingresso A", "1000,123"},
                         {"Ingresso B", "500,000"},
                         {"Ingresso C", "499,876"},
                         {"Capacita' Ultima intersezione [veic/h]", "2000,00"},
                         {"Flusso totale nodo [veic/h]", "540,00"},
                         {"Indice di saturazione della rotatoria (I.S.R.)", "27,00%"},
                         {"", ""},
                         {"", ""},
                         {"", ""},
                         {"", ""}};
    EXPECT_EQ(tabellaDi(scena.letto(), "CapacitaUltima"), attese);
}

/// Records of which every column can be told apart, with delays at the bounds of the levels.
void scriviRecord(Rotonda& rotonda) {
    constexpr std::array<float, 4> ritardi{0.0F, 10.04F, 10.06F, 50.1F};
    for (std::int16_t i = 1; i <= rotonda.NumeroRami(); ++i) {
        for (std::int16_t s = 1; s <= 4; ++s) {
            const auto n = static_cast<float>(s);
            rotonda.Ramo(i).theDatiTraffico().SetIterazione(s,
                                                            {.Flusso = 1.005F * n,
                                                             .Capacita = 1000.125F,
                                                             .Coeff_Sat = 0.12345F,
                                                             .Coda = 2.25F,
                                                             .Ritardo = ritardi.at(static_cast<std::size_t>(s - 1))});
        }
    }
}

TEST(Sezioni, ResultsOfEveryEntryBySegments) {
    Scena scena;
    modCalcolo(scena.app).Calcola_Tempo_Flusso("0");
    scriviRecord(scena.app.theRotonda());
    scena.modulo().compilaAllegatiWord("RelazioneMasterOUT");
    const Celle2D attese{{"Tempo", "Flusso\n[veic/min]", "Capacità\n[veic/h]", "Coeff. saturazione", "Coda\n[veic]",
                          "Ritardo\n[s/veic]", "L.O.S."},
                         {"08:00 - 08:15", "1,01", "1000,13", "0,123", "2,3", "0,0", "-"},
                         {"08:15 - 08:30", "2,01", "1000,13", "0,123", "2,3", "10,0", "A"},
                         {"08:30 - 08:45", "3,02", "1000,13", "0,123", "2,3", "10,1", "B"},
                         {"08:45 - 09:00", "4,02", "1000,13", "0,123", "2,3", "50,1", "F"}};
    const Letto letto = scena.letto();
    for (const char* ingresso : {"Ingresso A (Via A)", "Ingresso D (Via D)"}) {
        EXPECT_EQ(tabellaDopo(letto, ingresso), attese) << ingresso;
    }
}

TEST(Sezioni, ResultsFollowOneAnotherInATableOfTheTemplate) {
    Scena scena({.rami = 3});
    modCalcolo(scena.app).Calcola_Tempo_Flusso("0");
    scriviRecord(scena.app.theRotonda());
    scena.modelloProprio = scena.cartella.file("Studio.dotx");
    std::string testa;
    std::string vuote;
    for (int c = 0; c < 7; ++c) {
        testa += tc(c == 6 ? par(segno("CapacitaCodeRitardi", 1) + r("LOS")) : p("x"));
        vuote += tc("<w:p/>");
    }
    scriviContenuto(scena.modelloProprio, archivio(parti(tbl(7, tr(testa) + tr(vuote)))));
    scena.modulo().compilaAllegatiWord("RelazioneMasterOUT");
    const Celle2D celle = tabellaDi(scena.letto(), "CapacitaCodeRitardi");
    ASSERT_EQ(celle.size(), 1U + 3U * 5U);
    EXPECT_EQ(celle[6], (std::vector<std::string>{"Ingresso B", "", "", "", "", "", ""}));
    EXPECT_EQ(celle[8], (std::vector<std::string>{"08:15 - 08:30", "2,01", "1000,13", "0,123", "2,3", "10,0", "A"}));
}

AnalisiCorsiaDX confronto(Scena& scena) {
    ConfrontoCorsie fatto;
    const CorsieDestra corsie{true, false, true, false};
    fatto.calcola(scena.app, corsie);
    EXPECT_TRUE(fatto.calcolato());
    return {corsie, fatto.tabella()};
}

TEST(Sezioni, RightTurnLanesStandInTheReportThatIsNamedAfterThemAlone) {
    Scena scena;
    scena.corsia = confronto(scena);
    scena.modulo().compilaRelazioneWord("RelazioneMasterTOT");
    const Letto letto = scena.letto();
    const std::string testo = Letto::testo(letto.corpo());
    for (const char* frase :
         {"Posizione 1: (svolta Ramo A-->Ramo B) ==> 12 [veic.]", "Posizione 2: (svolta Ramo B-->Ramo C) -",
          "Posizione 3: (svolta Ramo C-->Ramo D) ==> 34 [veic.]", "Posizione 4: (svolta Ramo D-->Ramo A) -"}) {
        EXPECT_NE(testo.find(frase), std::string::npos) << frase;
    }
    EXPECT_EQ(testo.find("non fa parte di questa relazione"), std::string::npos);
    const Celle2D celle = tabellaDopo(letto, "Confronto senza e con (*) corsie di svolta a destra");
    ASSERT_EQ(celle.size(), 18U);
    for (int r = 0; r < 18; ++r) {
        for (int c = 0; c < 5; ++c) {
            EXPECT_EQ(celle[static_cast<std::size_t>(r)][static_cast<std::size_t>(c)],
                      scena.corsia->tabella.testo(r, c));
        }
    }
    EXPECT_EQ(letto.errori(), "");

    // The name with its extension is another one: the section stays, unfilled, and reads well.
    scena.modulo().compilaRelazioneWord("RelazioneMasterTOT.dot");
    const Letto altra = scena.letto();
    const std::string senza = Letto::testo(altra.corpo());
    EXPECT_TRUE(haSegnalibro(altra, "ParagrafoCorsiaDX"));
    EXPECT_EQ(senza.find("Posizione"), std::string::npos);
    EXPECT_EQ(senza.find("Ipotesi esaminate"), std::string::npos);
    EXPECT_NE(senza.find("non fa parte di questa relazione"), std::string::npos);

    // Without an analysis the section goes, from the contents too.
    scena.corsia.reset();
    scena.modulo().compilaRelazioneWord("RelazioneMasterTOT");
    const Letto tolta = scena.letto();
    EXPECT_FALSE(haSegnalibro(tolta, "ParagrafoCorsiaDX"));
    EXPECT_EQ(Letto::testo(tolta.corpo()).find("Corsie preferenziali"), std::string::npos);
    EXPECT_TRUE(scena.errori.empty());
}

TEST(Sezioni, ThePlanStandsWhereSomebodyDrawsIt) {
    Scena scena;
    scena.modulo().compilaRelazioneWord("RelazioneMasterIN");
    EXPECT_EQ(scena.disegnatore.piante, 1);
    const Letto con = scena.letto();
    EXPECT_EQ(con.conta("w:drawing"), 1);
    EXPECT_EQ(con.errori(), "");
    scena.conDisegni = false;
    scena.modulo().compilaRelazioneWord("RelazioneMasterIN");
    const Letto senza = scena.letto();
    EXPECT_EQ(senza.conta("w:drawing"), 0);
    EXPECT_FALSE(haSegnalibro(senza, "ParagrafoPianta"));
    scena.conDisegni = true;
    scena.disegnatore.errore = "la pittura è finita";
    EXPECT_EQ(scena.modulo().compilaRelazioneWord("RelazioneMasterIN"), EsitoRelazione::fatta);
    ASSERT_EQ(scena.errori.size(), 1U);
    EXPECT_EQ(scena.errori.front().metodo, "modStampaRelazione:riempiPianta");
    EXPECT_EQ(scena.errori.front().descrizione, "la pittura è finita");
}

}  // namespace
}  // namespace kelvo::prove
