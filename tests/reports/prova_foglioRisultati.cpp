// What stands in the workbook of the results.

#include <algorithm>
#include <clocale>
#include <set>

#include "comune/strumenti.h"
#include "foglioProva.h"
#include "reports/LibroFoglio.h"
#include "reports/foglioRisultati.h"
#include "results/TabellaCapacitaUltima.h"
#include "results/risultatiProgetto.h"
#include "results/sintesiNodo.h"
#include "results/tabellaRamo.h"
#include "results/tabellaVerifiche.h"

namespace kelvo::prove {
namespace {

/// A project with its results and its workbook.
struct Prodotto {
    explicit Prodotto(const Forma& forma = {}, const std::function<void(Rotonda&)>& cambio = {}) : scena(forma) {
        if (cambio) {
            cambio(scena.app.theRotonda());
        }
        EXPECT_TRUE(assicuraRisultati(scena.app));
        letto = std::make_unique<FoglioLetto>(foglioRisultati(scena.app));
    }
    Rotonda& r() { return scena.app.theRotonda(); }
    Scena scena;
    std::unique_ptr<FoglioLetto> letto;
};

std::string nomeCella(int riga, int colonna) {
    return std::string(1, static_cast<char>('A' + colonna)) + std::to_string(riga + 1);
}

/// A number under a pattern of the format, as its program shows it in Italian.
std::string mostrata(const CellaLetta& cella) {
    const std::size_t punto = cella.formato.find('.');
    const std::size_t percento = cella.formato.find('%');
    const double valore = percento == std::string::npos ? cella.valore() : cella.valore() * 100.0;
    const std::string coda = percento == std::string::npos ? "" : "%";
    if (punto == std::string::npos) {
        return formatta(valore, "#0") + coda;
    }
    switch (cella.formato.size() - punto - 1 - coda.size()) {
        case 1:
            return formatta(valore, "#0.0") + coda;
        case 2:
            return formatta(valore, "#0.00") + coda;
        default:
            return formatta(valore, "#0.000") + coda;
    }
}

/// The cells of a sheet show a table, its row 0 in row `riga` of the sheet.
void mostraTabella(const FoglioLetto& letto, const std::string& foglio, int riga, const Tabella& tabella) {
    auto celle = letto.celle(foglio);
    for (int r = 0; r < tabella.righe(); ++r) {
        for (int c = 0; c < tabella.colonne(); ++c) {
            const CellaLetta& cella = celle[nomeCella(riga + r, c)];
            EXPECT_EQ(cella.numero ? mostrata(cella) : cella.testo, tabella.testo(r, c))
                << foglio << " " << nomeCella(riga + r, c);
        }
    }
}

Tabella verifiche(const Rotonda& rotonda) {
    Tabella tabella = impostaTabellaVerifiche(rotonda);
    riempiTabellaVerifiche(rotonda, tabella);
    return tabella;
}

TEST(Foglio, TheTableOfAllEntriesStandsInItsFirstSheet) {
    for (const std::int16_t rami : std::initializer_list<std::int16_t>{3, 4, 7}) {
        for (const std::int16_t analisi : std::initializer_list<std::int16_t>{1, 2}) {
            Prodotto p({.rami = rami, .analisi = analisi, .flusso = static_cast<std::int16_t>(analisi - 1)});
            mostraTabella(*p.letto, "Verifiche", 2, verifiche(p.r()));
            auto celle = p.letto->celle("Verifiche");
            EXPECT_EQ(celle["A1"].testo, "Risultati: Verifiche prestazionali");
            EXPECT_EQ(celle["A2"].testo, "Nome Progetto: Rotatoria_prova");
            // The second entry in the third interval, its figures to seven digits and not as they are shown.
            const Iterazione record = p.r().Ramo(2).theDatiTraffico().GetIterazione(3);
            const int riga = 2 + 2 * (rami + 1) + 1 + 2;
            EXPECT_EQ(celle[nomeCella(riga, 0)].testo, "Via B");
            EXPECT_TRUE(celle[nomeCella(riga, 2)].numero);
            EXPECT_NEAR(celle[nomeCella(riga, 2)].valore(), static_cast<double>(record.Capacita), 1e-3);
            EXPECT_NE(celle[nomeCella(riga, 2)].valore(), std::round(celle[nomeCella(riga, 2)].valore() * 100) / 100);
            EXPECT_EQ(celle[nomeCella(riga, 1)].formato, "0.00");
            EXPECT_EQ(celle[nomeCella(riga, 2)].formato, "0.00");
            EXPECT_EQ(celle[nomeCella(riga, 3)].formato, "0.000");
            EXPECT_EQ(celle[nomeCella(riga, 4)].formato, "0.0");
            EXPECT_EQ(celle[nomeCella(riga, 5)].formato, "0.0");
        }
    }
}

TEST(Foglio, HeadingsBandsAndNamesHaveTheColoursOfTheTable) {
    Prodotto p;
    auto celle = p.letto->celle("Verifiche");
    EXPECT_EQ(celle["B3"].sfondo, "FF006200");
    EXPECT_EQ(celle["B3"].inchiostro, "FFFFFFFF");
    EXPECT_TRUE(celle["B3"].grassetto);
    EXPECT_EQ(celle["A4"].testo, "08:00 - 08:15");
    EXPECT_EQ(celle["A4"].sfondo, "FF006200");
    EXPECT_EQ(celle["B4"].sfondo, "FFDCDCDC");
    EXPECT_EQ(celle["A5"].sfondo, "FFA4C400");
    EXPECT_EQ(celle["A5"].inchiostro, "FF202020") << "white would not be read on it";
}

TEST(Foglio, LevelsOfServiceHaveTheirColours) {
    Prodotto p({.segmenti = 7});
    // Delays that give each level, at the bounds as they are shown.
    const std::vector<float> ritardi{0.0F, 10.04F, 15.0F, 25.0F, 35.0F, 50.0F, 50.06F};
    for (std::int16_t s = 1; s <= 7; ++s) {
        p.r().Ramo(1).theDatiTraffico().SetIterazione(
            s, {1.0F, 900.0F, 0.5F, 1.0F, ritardi[static_cast<std::size_t>(s) - 1]});
    }
    const FoglioLetto letto(foglioRisultati(p.scena.app));
    const std::vector<std::array<std::string, 3>> attesi{{"-", "", "FF202020"},         {"A", "FF006200", "FFFFFFFF"},
                                                         {"B", "FF3F7A00", "FFFFFFFF"}, {"C", "FFA4C400", "FF202020"},
                                                         {"D", "FFFFD24D", "FF202020"}, {"E", "FFF08A24", "FF202020"},
                                                         {"F", "FF8C0019", "FFFFFF66"}};
    auto tutti = letto.celle("Verifiche");
    auto suo = letto.celle("A - Via A");
    for (int s = 0; s < 7; ++s) {
        const std::string banda = nomeCella(2 + s * 5 + 2, 6);
        const std::string riga = nomeCella(3 + s, 7);
        for (const CellaLetta& cella : {tutti[banda], suo[riga]}) {
            EXPECT_EQ(cella.testo, attesi[static_cast<std::size_t>(s)][0]);
            EXPECT_EQ(cella.sfondo, attesi[static_cast<std::size_t>(s)][1]);
            EXPECT_EQ(cella.inchiostro, attesi[static_cast<std::size_t>(s)][2]);
        }
        EXPECT_EQ(suo[nomeCella(3 + s, 8)].valore(), 5.0 * s) << "code of the level";
    }
    // The chart has the bars in these colours, the letters on top.
    const pugi::xml_document grafico = std::move(letto.grafici("A - Via A").back());
    const auto punti = grafico.select_nodes("//c:dPt");
    ASSERT_EQ(punti.size(), 7U);
    EXPECT_STREQ(punti[6].node().select_node(".//a:srgbClr").node().attribute("val").value(), "8C0019");
    const auto lettere = grafico.select_nodes("//c:dLbl//a:t");
    ASSERT_EQ(lettere.size(), 7U);
    EXPECT_STREQ(lettere[6].node().text().get(), "F");
    EXPECT_STREQ(lettere[0].node().text().get(), "-");
}

TEST(Foglio, HeadingsStayInSight) {
    Prodotto p;
    for (const std::string& nome : p.letto->nomi()) {
        const pugi::xml_document foglio = p.letto->foglio(nome);
        const pugi::xml_node pane = foglio.select_node("//sheetView/pane").node();
        EXPECT_STREQ(pane.attribute("ySplit").value(), "3") << nome;
        EXPECT_STREQ(pane.attribute("state").value(), "frozen") << nome;
        const bool ingresso = nome.substr(1, 3) == " - ";
        EXPECT_STREQ(pane.attribute("xSplit").value(), ingresso ? "2" : "1") << nome;
        EXPECT_STREQ(foglio.select_node("//pageSetup").node().attribute("paperSize").value(), "9") << nome;
        EXPECT_NE(p.letto->parte("xl/workbook.xml").find("_xlnm.Print_Titles"), std::string::npos);
    }
}

TEST(Foglio, EachEntryHasASheetWithItsSegmentsAndFiveCharts) {
    for (const std::int16_t rami : std::initializer_list<std::int16_t>{3, 4, 7}) {
        Prodotto p({.rami = rami});
        ASSERT_EQ(p.letto->nomi().size(), static_cast<std::size_t>(rami) + 4);
        std::size_t grafici = 0;
        for (std::int16_t i = 1; i <= rami; ++i) {
            const char lettera = static_cast<char>('A' + i - 1);
            const std::string nome = std::string(1, lettera) + " - Via " + lettera;
            EXPECT_EQ(p.letto->nomi()[static_cast<std::size_t>(i) + 1], nome);
            Tabella tabella = impostaTabellaRamo(p.r());
            riempiTabellaRamo(p.r().Ramo(i), tabella);
            auto celle = p.letto->celle(nome);
            for (int s = 1; s <= 4; ++s) {
                EXPECT_EQ(celle[nomeCella(2 + s, 0)].testo + " - " + celle[nomeCella(2 + s, 1)].testo,
                          tabella.testo(s, 0));
                for (int c = 1; c <= 5; ++c) {
                    EXPECT_EQ(mostrata(celle[nomeCella(2 + s, c + 1)]), tabella.testo(s, c));
                }
                EXPECT_EQ(celle[nomeCella(2 + s, 7)].testo, tabella.testo(s, 6));
            }
            grafici += p.letto->grafici(nome).size();
            const pugi::xml_document elenco = p.letto->documento(p.letto->legata(p.letto->parteFoglio(nome), "table"));
            EXPECT_STREQ(elenco.document_element().attribute("ref").value(), "A3:I7");
            EXPECT_EQ(elenco.document_element().attribute("name").value(), std::string("Ingresso_") + lettera);
        }
        EXPECT_EQ(grafici, static_cast<std::size_t>(rami) * 5);
    }
}

TEST(Foglio, ChartsAreOfTheCellsOfTheirSheet) {
    Prodotto p({.segmenti = 6}, [](Rotonda& r) { r.Ramo(2).Descrizione("Via dell'Olmo"); });
    const std::string nome = "B - Via dell'Olmo";
    const auto grafici = p.letto->grafici(nome);
    ASSERT_EQ(grafici.size(), 5U);
    auto celle = p.letto->celle(nome);
    const std::vector<std::array<std::string, 4>> attesi{
        {"Capacità", "D", "veic/h", "0072C6"},
        {"Coefficiente Saturazione", "E", "Coeff. Saturazione", "C44E00"},
        {"Lunghezza Code", "F", "veic", "007A62"},
        {"Ritardi", "G", "s/veic", "882E72"},
        {"Livello di Servizio", "I", "L.O.S.", "404850"}};
    for (std::size_t g = 0; g < 5; ++g) {
        const pugi::xml_document& grafico = grafici[g];
        const auto testo = [&](const char* dove) { return std::string(grafico.select_node(dove).node().text().get()); };
        EXPECT_EQ(testo("//c:chart/c:title//a:t"), attesi[g][0] + " - Ingresso Via dell'Olmo");
        EXPECT_EQ(testo("//c:valAx/c:title//a:t"), attesi[g][2]);
        EXPECT_EQ(testo("//c:catAx/c:title//a:t"), "ora");
        EXPECT_EQ(testo("//c:val//c:f"), "'B - Via dell''Olmo'!$" + attesi[g][1] + "$4:$" + attesi[g][1] + "$9");
        EXPECT_EQ(testo("//c:cat//c:f"), "'B - Via dell''Olmo'!$A$4:$A$9");
        EXPECT_STREQ(grafico.select_node("//c:ser/c:spPr//a:srgbClr").node().attribute("val").value(),
                     attesi[g][3].c_str());
        // Viewers that do not calculate show what the chart carries with it.
        const auto valori = grafico.select_nodes("//c:val//c:pt/c:v");
        ASSERT_EQ(valori.size(), 6U);
        for (int s = 0; s < 6; ++s) {
            EXPECT_EQ(valori[static_cast<std::size_t>(s)].node().text().get(),
                      celle[attesi[g][1] + std::to_string(4 + s)].testo);
        }
        EXPECT_EQ(std::string(grafico.select_node("//c:cat//c:pt/c:v").node().text().get()), "08:00");
        // An hour has four segments of a quarter: so many steps lie between two labels.
        EXPECT_STREQ(grafico.select_node("//c:catAx/c:tickLblSkip").node().attribute("val").value(), "4");
    }
}

TEST(Foglio, TheAxisOfValuesEndsAsInTheProgram) {
    Prodotto p({.segmenti = 2});
    p.r().Ramo(1).theDatiTraffico().SetIterazione(1, {1.0F, 1500.0F, 1.25F, 2.0F, 12.0F});
    p.r().Ramo(1).theDatiTraffico().SetIterazione(2, {1.0F, 1400.0F, 0.25F, 2.4F, 4.0F});
    const FoglioLetto letto(foglioRisultati(p.scena.app));
    const auto grafici = letto.grafici("A - Via A");
    const std::vector<std::string> cime{"1505", "2", "5", "15", "30"};
    for (std::size_t g = 0; g < 5; ++g) {
        const pugi::xml_node asse = grafici[g].select_node("//c:valAx/c:scaling").node();
        EXPECT_EQ(asse.child("c:max").attribute("val").value(), cime[g]);
        EXPECT_STREQ(asse.child("c:min").attribute("val").value(), "0");
    }
}

TEST(Foglio, TheAxisOfValuesHoldsNegativeCapacitiesAndFollowsTheFiguresAsShown) {
    Prodotto p({.segmenti = 2});
    // A saturation of 0,9996 is shown as 1,000, one of 0,9994 as 0,999; a delay of 9,96 as 10,0.
    p.r().Ramo(1).theDatiTraffico().SetIterazione(1, {1.0F, -12.4F, 0.9996F, 2.0F, 9.96F});
    p.r().Ramo(1).theDatiTraffico().SetIterazione(2, {1.0F, 1400.0F, 0.25F, 2.4F, 4.0F});
    p.r().Ramo(2).theDatiTraffico().SetIterazione(1, {1.0F, -5.004F, 0.9994F, 2.0F, 9.94F});
    p.r().Ramo(2).theDatiTraffico().SetIterazione(2, {1.0F, -5.004F, 0.25F, 2.4F, 4.0F});
    const FoglioLetto letto(foglioRisultati(p.scena.app));
    const auto asse = [&](const char* foglio, std::size_t g, const char* quale) {
        const auto grafici = letto.grafici(foglio);
        return std::string(
            grafici.at(g).select_node("//c:valAx/c:scaling").node().child(quale).attribute("val").value());
    };
    EXPECT_EQ(asse("A - Via A", 0, "c:min"), "-13");
    EXPECT_EQ(asse("A - Via A", 0, "c:max"), "1405");
    EXPECT_EQ(asse("A - Via A", 1, "c:max"), "2");
    EXPECT_EQ(asse("A - Via A", 1, "c:min"), "0");
    EXPECT_EQ(asse("A - Via A", 3, "c:max"), "15");
    EXPECT_EQ(asse("B - Via B", 0, "c:min"), "-5") << "-5,004 is shown as -5,00";
    EXPECT_EQ(asse("B - Via B", 0, "c:max"), "5");
    EXPECT_EQ(asse("B - Via B", 1, "c:max"), "1");
}

TEST(Foglio, NamesOfEntriesHaveTheWidthThatTheyNeed) {
    const std::string lungo = "Strada Provinciale dei Colli Euganei";  // 36 characters
    const std::string troppo(80, 'x');
    const auto larghezza = [](const FoglioLetto& letto, const std::string& foglio) {
        const pugi::xml_document xml = letto.foglio(foglio);
        const pugi::xml_node colonna = xml.select_node("//cols/col[@min='1']").node();
        return leggiNumero(formatta(colonna.attribute("width").as_double(), "#0")).value_or(0.0);
    };
    for (const char* foglio : {"Verifiche", "Sintesi nodo"}) {
        Prodotto p;
        const double breve = larghezza(*p.letto, foglio);
        EXPECT_LT(breve, 30.0) << foglio;
        p.r().Ramo(2).Descrizione(lungo);
        const FoglioLetto lunghi(foglioRisultati(p.scena.app));
        EXPECT_GE(larghezza(lunghi, foglio), 38.0) << foglio;
        EXPECT_LT(larghezza(lunghi, foglio), 40.0) << foglio;
        p.r().Ramo(2).Descrizione(troppo);
        const FoglioLetto troppi(foglioRisultati(p.scena.app));
        EXPECT_LT(larghezza(troppi, foglio), 52.0) << foglio;
        // What does not fit in goes on in the next line of its cell: the row is as high as that needs.
        const pugi::xml_document xml = troppi.foglio(foglio);
        const pugi::xml_document stili = troppi.documento("xl/styles.xml");
        const auto celle = troppi.celle(foglio);
        const auto trovata =
            std::find_if(celle.begin(), celle.end(), [&](const auto& voce) { return voce.second.testo == troppo; });
        ASSERT_NE(trovata, celle.end()) << foglio;
        const unsigned stile =
            xml.select_node(("//c[@r='" + trovata->first + "']").c_str()).node().attribute("s").as_uint();
        const pugi::xml_node posa = stili.select_nodes("//cellXfs/xf")[stile].node().child("alignment");
        EXPECT_STREQ(posa.attribute("wrapText").value(), "1") << foglio;
    }
}

TEST(Foglio, NeitherTextsNorWordsOfHeadingsAreCutAndRemarksStandInTheWidthOfTheTable) {
    Prodotto p;
    const pugi::xml_document xml = p.letto->foglio("Sintesi nodo");
    const auto larghezza = [&](int colonna) {
        const std::string quale =
            "//cols/col[@min<=" + std::to_string(colonna) + " and @max>=" + std::to_string(colonna) + "]";
        return xml.select_node(quale.c_str()).node().attribute("width").as_double();
    };
    EXPECT_GE(larghezza(2), 15.0) << "07:00 - 08:00 is 13 characters";
    EXPECT_GE(larghezza(7), 13.0) << "Saturazione is 11 characters";
    EXPECT_GE(xml.select_nodes("//mergeCells/mergeCell").size(), 2U);
    double alte = 0.0;
    for (const pugi::xpath_node& unita : xml.select_nodes("//mergeCells/mergeCell")) {
        const std::string riga = unita.node().attribute("ref").value();
        EXPECT_EQ(riga[0], 'A');
        const std::string numero = riga.substr(1, riga.find(':') - 1);
        alte =
            std::max(alte, xml.select_node(("//row[@r='" + numero + "']").c_str()).node().attribute("ht").as_double());
    }
    EXPECT_GE(alte, 30.0) << "the longest remark takes two lines at least";
}

TEST(Foglio, AnEntryWithMoreSegmentsThanTheWindowHasIntervalsIsRefused) {
    Prodotto p;
    p.r().Ramo(2).theDatiTraffico().NumSegmentiTempo(5);
    const std::string parole = paroleDi([&] { foglioRisultati(p.scena.app); }, NumeroGuasto::indiceFuoriIntervallo);
    EXPECT_NE(parole.find("ingresso B: 5 segmenti, la finestra di modellazione ha 4 intervalli"), std::string::npos)
        << parole;
}

TEST(Foglio, ExtremesAndMeansAreFormulasWithTheirValue) {
    Prodotto p({.segmenti = 2});
    p.r().Ramo(1).theDatiTraffico().SetIterazione(1, {3.0F, 1500.0F, 0.5F, 2.0F, 12.0F});
    p.r().Ramo(1).theDatiTraffico().SetIterazione(2, {4.5F, 1400.0F, 0.25F, 5.0F, 4.0F});
    auto celle = FoglioLetto(foglioRisultati(p.scena.app)).celle("A - Via A");
    EXPECT_EQ(celle["A7"].testo, "Minimo");
    EXPECT_EQ(celle["A8"].testo, "Massimo");
    EXPECT_EQ(celle["A9"].testo, "Medio");
    EXPECT_EQ(celle["C7"].formula, "MIN(C4:C5)");
    EXPECT_EQ(celle["C7"].testo, "3");
    EXPECT_EQ(celle["D8"].formula, "MAX(D4:D5)");
    EXPECT_EQ(celle["D8"].testo, "1500");
    EXPECT_EQ(celle["E9"].formula, "AVERAGE(E4:E5)");
    EXPECT_EQ(celle["E9"].testo, "0.375");
    EXPECT_EQ(celle["E9"].formato, "0.000");
    EXPECT_EQ(celle["G9"].testo, "8");
}

TEST(Foglio, TheSummaryOfTheNodeHasItsTableAndItsWords) {
    Prodotto p({.rami = 7, .segmenti = 6});
    const SintesiNodo sintesi = sintesiNodo(p.r());
    const Tabella tabella = tabellaSintesi(p.r(), sintesi);
    mostraTabella(*p.letto, "Sintesi nodo", 2, tabella);
    auto celle = p.letto->celle("Sintesi nodo");
    EXPECT_TRUE(celle["C4"].numero);
    int riga = 2 + tabella.righe() + 2;
    for (const std::string& parola : paroleSintesi(p.r(), sintesi)) {
        EXPECT_EQ(celle["A" + std::to_string(riga++)].testo, parola);
    }
}

TEST(Foglio, UltimateCapacityAndWhatIsInForceHaveTheirSheets) {
    for (const std::int16_t analisi : std::initializer_list<std::int16_t>{0, 1, 2}) {
        Prodotto p({.analisi = analisi});
        TabellaCapacitaUltima ultima;
        ultima.riempi(p.r());
        mostraTabella(*p.letto, "Capacità ultima", 2, ultima.tabella());
        auto celle = p.letto->celle("Capacità ultima");
        EXPECT_TRUE(celle["B4"].numero);
        EXPECT_GT(celle["B4"].valore(), 0.0);
        EXPECT_EQ(celle["B10"].formato, "0.00%") << "the saturation index";
        auto vigore = p.letto->celle("In vigore");
        EXPECT_EQ(vigore["A4"].testo, "Percentile della coda");
        EXPECT_EQ(vigore["A5"].testo, "Condizioni notturne");
    }
}

TEST(Foglio, AStudyOfSaturationAloneHasTheFrameOfItsTable) {
    Prodotto p({.analisi = 0});
    EXPECT_EQ(p.letto->nomi(), (std::vector<std::string>{"Verifiche", "Capacità ultima", "In vigore"}));
    auto celle = p.letto->celle("Verifiche");
    EXPECT_EQ(celle["B3"].testo, "Flusso [veic/min]");
    EXPECT_EQ(celle["A4"].testo, "08:00 - 08:15");
    EXPECT_EQ(celle["A5"].testo, "Via A");
    for (const auto& [nome, cella] : celle) {
        EXPECT_FALSE(cella.numero) << nome;
    }
    EXPECT_NE(celle["A25"].testo.find("sola saturazione"), std::string::npos);
    // No length of the segments: the headings are what is left.
    p.r().SegmentoTempo(0.0);
    EXPECT_EQ(FoglioLetto(foglioRisultati(p.scena.app)).celle("Verifiche")["A4"].testo, "");
}

TEST(Foglio, SheetsAreNamedAfterTheirEntryWhateverItIsCalled) {
    EXPECT_EQ(foglio::nomeFoglioIngresso(1, "Via Roma"), "A - Via Roma");
    EXPECT_EQ(foglio::nomeFoglioIngresso(3, ""), "Ingresso C");
    EXPECT_EQ(foglio::nomeFoglioIngresso(3, " \t"), "Ingresso C");
    EXPECT_EQ(foglio::nomeFoglioIngresso(2, "S.S. 1 [nord]: a/b\\c*d?"), "B - S.S. 1 _nord__ a_b_c_d_");
    EXPECT_EQ(foglio::nomeFoglioIngresso(7, "Strada Provinciale dei Colli Euganei"), "G - Strada Provinciale dei Coll");
    EXPECT_EQ(foglio::nomeFoglioIngresso(1, "Città è più"), "A - Città è più");
    EXPECT_EQ(foglio::nomeFoglioIngresso(1, "'Via'"), "A - 'Via");
    // Thirty-one units of UTF-16: a roundabout of emoji takes two each, the last of them whole or not at all.
    std::string fila;
    for (int i = 0; i < 20; ++i) {
        fila += "🚗";
    }
    EXPECT_EQ(foglio::nomeFoglioIngresso(1, fila), "A - " + fila.substr(0, std::size_t{4} * 13));
    EXPECT_EQ(foglio::nomeFoglioIngresso(1, "a\nb\x01\xFF"), "A - a b \xEF\xBF\xBD");
}

TEST(Foglio, TextsAreCleanedOfWhatACellCannotHold) {
    EXPECT_EQ(foglio::testoCella("Via Roma & C."), "Via Roma & C.");
    EXPECT_EQ(foglio::testoCella(" \ta\r\nb\x01 "), "a  b");
    EXPECT_EQ(foglio::testoCella("a\xC3"), "a\xEF\xBF\xBD");
    EXPECT_EQ(foglio::testoCella("a\xEF\xBF\xBF"), "a\xEF\xBF\xBD");
    EXPECT_EQ(foglio::testoCella(std::string(40000, 'x')).size(), 32767U);
    EXPECT_EQ(foglio::testoCella(" "), "");
}

TEST(Foglio, ATextThatLooksLikeACharacterByItsCodeStaysWhatItIs) {
    // Read back, "_x005F_" is an underline; each of two codes that share one needs its own.
    EXPECT_EQ(foglio::testoCella("a_x0041_b"), "a_x005F_x0041_b");
    EXPECT_EQ(foglio::testoCella("_x00e9_"), "_x005F_x00e9_");
    EXPECT_EQ(foglio::testoCella("_x0041_x0042_"), "_x005F_x0041_x005F_x0042_");
    EXPECT_EQ(foglio::testoCella("è_x005F_"), "è_x005F_x005F_");
    for (const char* testo : {"_x0041", "x0041_", "_X0041_", "_x004g_", "_x041_", "_x00410_", "a_b__c"}) {
        EXPECT_EQ(foglio::testoCella(testo), testo);
    }
    // No longer than a cell takes, and no code is cut through: 32760 and 7 make 32767.
    EXPECT_EQ(foglio::testoCella(std::string(32760, 'y') + "_x0041_"), std::string(32760, 'y') + "_x005F_");
    EXPECT_EQ(foglio::testoCella(std::string(32761, 'y') + "_x0041_"), std::string(32761, 'y') + "_x0041");
    Prodotto p({}, [](Rotonda& r) {
        r.Ramo(1).Descrizione("Via_x0041_");
        r.NomeFile("P_x0042_");
    });
    EXPECT_EQ(p.letto->celle("Verifiche")["A5"].testo, "Via_x005F_x0041_");
    EXPECT_EQ(p.letto->celle("Verifiche")["A2"].testo, "Nome Progetto: P_x005F_x0042_");
    // Titles of charts and footers know no such codes.
    const auto grafici = p.letto->grafici("A - Via_x0041_");
    EXPECT_STREQ(grafici.at(0).select_node("//c:chart/c:title//a:t").node().text().get(),
                 "Capacità - Ingresso Via_x0041_");
    const std::string piede = p.letto->foglio("Verifiche").select_node("//oddFooter").node().text().get();
    EXPECT_EQ(piede.rfind("&LP_x0042_&C", 0), 0U) << piede;
}

TEST(Foglio, NamesThatAreAlikeForbiddenOrTooLongMakeAWorkbookThatOpens) {
    for (const char* nome : {"Via [A]: 1/2*?\\", "", "=1+1", "History", "R", "C", "<&>\"'", "Strada 🚗 Città & Cª",
                             "Una strada dal nome molto più lungo di quanto un foglio di calcolo ammetta"}) {
        Prodotto p({}, [&](Rotonda& r) {
            for (std::int16_t i = 1; i <= 4; ++i) {
                r.Ramo(i).Descrizione(nome);
            }
            r.NomeFile(nome);
            r.NomeProfessionista(nome);
        });
        const std::vector<std::string>& nomi = p.letto->nomi();
        EXPECT_EQ(std::set<std::string>(nomi.begin(), nomi.end()).size(), 8U) << nome;
        for (const std::string& foglio : nomi) {
            EXPECT_EQ(foglio.find_first_of("[]:*?/\\"), std::string::npos) << foglio;
        }
        EXPECT_EQ(p.letto->celle("Verifiche")["A5"].testo, nome);
        EXPECT_EQ(p.letto->errori(), "") << nome;
    }
}

TEST(Foglio, NoNameBecomesAFormula) {
    Prodotto p({}, [](Rotonda& r) {
        r.Ramo(1).Descrizione("=HYPERLINK(\"http://x\")");
        r.Ramo(2).Descrizione("+1+1");
        r.Ramo(3).Descrizione("@SUM(A1)");
        r.NomeFile("=1+1");
        r.NomeProfessionista("=2+2");
    });
    for (const std::string& nome : p.letto->nomi()) {
        const bool ingresso = nome.substr(1, 3) == " - ";
        for (const auto& [dove, cella] : p.letto->celle(nome)) {
            const std::string inizio = cella.formula.substr(0, cella.formula.find('('));
            const bool propria = inizio == "MIN" || inizio == "MAX" || inizio == "AVERAGE";
            EXPECT_TRUE(cella.formula.empty() || (ingresso && propria)) << nome << dove << cella.formula;
        }
        for (const pugi::xml_document& grafico : p.letto->grafici(nome)) {
            EXPECT_TRUE(grafico.select_nodes("//c:title//c:f").empty());
        }
    }
    EXPECT_EQ(p.letto->celle("Verifiche")["A5"].testo, "=HYPERLINK(\"http://x\")");
    EXPECT_EQ(p.letto->celle("Verifiche")["A2"].testo, "Nome Progetto: =1+1");
}

TEST(Foglio, AProjectNameDoesNotChangeTheFooter) {
    Prodotto p({}, [](Rotonda& r) { r.NomeFile("A&B &P " + std::string(300, 'x')); });
    const std::string piede = p.letto->foglio("Verifiche").select_node("//oddFooter").node().text().get();
    EXPECT_EQ(piede.rfind("&LA&&B &&P xxx", 0), 0U) << piede;
    EXPECT_NE(piede.find("&CPagina &P di &N&RKelvo"), std::string::npos) << piede;
    EXPECT_LT(piede.size(), 255U);
}

TEST(Foglio, EveryPartFitsTheFormat) {
    if (!std::filesystem::exists(schemi() + "/sml.xsd") || !conStrumento("xmllint", "libxml2-utils")) {
        GTEST_SKIP() << "senza gli schemi del formato o xmllint i fogli non sono verificati";
    }
    for (const std::int16_t analisi : std::initializer_list<std::int16_t>{0, 1, 2}) {
        for (const std::int16_t rami : std::initializer_list<std::int16_t>{3, 4, 7}) {
            Prodotto p({.rami = rami, .analisi = analisi});
            EXPECT_EQ(p.letto->errori(), "") << rami << " " << analisi;
        }
    }
}

TEST(Foglio, NumbersHaveADecimalPointUnderAnyLocaleAndTheLocaleStays) {
    const std::string prima = std::setlocale(LC_NUMERIC, nullptr);
    Prodotto p;
    EXPECT_EQ(std::setlocale(LC_NUMERIC, nullptr), prima);
    for (const ooxml::Voce& voce : p.letto->voci()) {
        EXPECT_EQ(voce.dati.find("val=\"0,"), std::string::npos) << voce.nome;
    }
    for (const auto& [dove, cella] : p.letto->celle("A - Via A")) {
        EXPECT_TRUE(!cella.numero || cella.testo.find(',') == std::string::npos) << dove;
    }
    const std::string larghezza =
        p.letto->foglio("A - Via A").select_node("//cols/col").node().attribute("width").value();
    EXPECT_EQ(larghezza.find(','), std::string::npos) << larghezza;
}

TEST(Foglio, TheSameProjectGivesTheSameWorkbook) {
    Prodotto p;
    EXPECT_EQ(foglioRisultati(p.scena.app), foglioRisultati(p.scena.app));
    const std::string proprieta = p.letto->parte("docProps/core.xml");
    EXPECT_NE(proprieta.find("2026-11-2"), std::string::npos) << "the day of the program's clock";
}

TEST(Foglio, NothingIsLeftInTheFolderForTemporaryFiles) {
    Scena scena;
    ASSERT_TRUE(assicuraRisultati(scena.app));
    const auto conta = [&] {
        return std::distance(std::filesystem::directory_iterator(scena.cartella.percorso()), {});
    };
    const auto prima = conta();
    foglioRisultati(scena.app);
    EXPECT_EQ(conta(), prima);
}

TEST(Foglio, AFolderForTemporaryFilesThatIsNotThereIsTold) {
    Scena scena;
    std::string perche;
    bool esito = false;
    scena.app.theRotonda().Save(scena.cartella.file("prova.klv"), perche, esito);
    MessaggiFinti messaggi;
    OrologioFinto ora;
    const CartellaTemporanea cartella;
    Applicazione altra(cartella.percorso(), cartella.file("manca"), {messaggi, ora, sistemaFileStandard()});
    altra.caricaRotonda(scena.cartella.file("prova.klv"), perche, esito);
    ASSERT_TRUE(esito) << perche;
    const std::string parole = paroleDi([&] { foglioRisultati(altra); }, NumeroGuasto::operazioneImpossibile);
    EXPECT_EQ(parole,
              "Il foglio di calcolo non può essere composto: la cartella dei file temporanei non può essere scritta o "
              "è piena");
}

}  // namespace
}  // namespace kelvo::prove
