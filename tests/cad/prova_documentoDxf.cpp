// The text of a DXF file: groups, handles, numbers, texts, what is left out.

#include <gtest/gtest.h>

#include <algorithm>
#include <clocale>
#include <cmath>
#include <limits>
#include <map>
#include <set>

#include "cad/disegnoProva.h"
#include "cad/documentoDxf.h"
#include "pianta/curve.h"

namespace kelvo::prove {

namespace {

using dxf::Documento;
using pianta::Punto;

/// Kinds of the entities of the model, in order.
std::vector<std::string> entitaDi(const std::string& testo) {
    std::vector<std::string> tipi;
    bool dentro = false;
    for (const auto& [codice, valore] : gruppiDi(testo)) {
        if (codice == "2" && valore == "ENTITIES") {
            dentro = true;
        } else if (codice == "0" && valore == "ENDSEC") {
            dentro = false;
        } else if (codice == "0" && dentro) {
            tipi.push_back(valore);
        }
    }
    return tipi;
}

/// Values of a code within the section of the entities.
std::vector<std::string> valoriDi(const std::string& testo, const std::string& cercato) {
    std::vector<std::string> valori;
    bool dentro = false;
    for (const auto& [codice, valore] : gruppiDi(testo)) {
        if (codice == "2" && valore == "ENTITIES") {
            dentro = true;
        } else if (codice == "0" && valore == "ENDSEC") {
            dentro = false;
        } else if (codice == cercato && dentro) {
            valori.push_back(valore);
        }
    }
    return valori;
}

Documento con(dxf::Entita entita) {
    Documento documento;
    documento.layer = {{.nome = "L"}};
    documento.entita = {std::move(entita)};
    return documento;
}

std::vector<std::string> scritta(const std::string& testo) {
    return valoriDi(testoDxf(con(dxf::Scritta{.layer = "L", .testo = testo})), "1");
}

TEST(DocumentoDxf, SectionsStandInTheirOrderAndTheFileEnds) {
    const auto gruppi = gruppiDi(filePianta(rotatoria(4)));
    std::vector<std::string> sezioni;
    for (std::size_t i = 0; i + 1 < gruppi.size(); ++i) {
        if (gruppi[i] == GruppoDxf{"0", "SECTION"}) {
            sezioni.push_back(gruppi[i + 1].second);
        }
    }
    EXPECT_EQ(sezioni, (std::vector<std::string>{"HEADER", "CLASSES", "TABLES", "BLOCKS", "ENTITIES", "OBJECTS"}));
    EXPECT_EQ(gruppi.back(), (GruppoDxf{"0", "EOF"}));
}

TEST(DocumentoDxf, EveryHandleStandsOnceBelowTheSeedAndEveryReferenceLeadsToOne) {
    const auto gruppi = gruppiDi(filePianta(rotatoria(7)));
    std::set<std::string> maniglie;
    unsigned long massima = 0;
    unsigned long seme = 0;
    for (std::size_t i = 0; i < gruppi.size(); ++i) {
        const auto& [codice, valore] = gruppi[i];
        if (codice == "5" && i > 0 && gruppi[i - 1] == GruppoDxf{"9", "$HANDSEED"}) {
            seme = std::stoul(valore, nullptr, 16);
        } else if (codice == "5" || codice == "105") {
            EXPECT_TRUE(maniglie.insert(valore).second) << valore;
            massima = std::max(massima, std::stoul(valore, nullptr, 16));
        }
    }
    EXPECT_GT(maniglie.size(), 300U);
    EXPECT_GT(seme, massima);
    for (const auto& [codice, valore] : gruppi) {
        if ((codice == "330" || codice == "340" || codice == "350" || codice == "390") && valore != "0") {
            EXPECT_TRUE(maniglie.contains(valore)) << codice << " " << valore;
        }
    }
}

TEST(DocumentoDxf, TablesTellHowManyEntriesTheyHave) {
    const auto gruppi = gruppiDi(filePianta(rotatoria(5)));
    std::map<std::string, int> dette;
    std::map<std::string, int> stanno;
    std::string tavola;
    for (std::size_t i = 0; i + 1 < gruppi.size(); ++i) {
        const auto& [codice, valore] = gruppi[i];
        if (codice == "0" && valore == "TABLE") {
            tavola = gruppi[i + 1].second;
            stanno[tavola] = 0;
        } else if (codice == "0" && valore == "ENDTAB") {
            tavola.clear();
        } else if (codice == "0" && !tavola.empty()) {
            ++stanno[tavola];
        } else if (codice == "70" && !tavola.empty() && !dette.contains(tavola)) {
            dette[tavola] = std::stoi(valore);
        }
    }
    EXPECT_EQ(stanno.size(), 9U);
    EXPECT_EQ(dette, stanno);
}

TEST(DocumentoDxf, TheSamePlanGivesTheSameBytes) {
    EXPECT_EQ(filePianta(rotatoria(6)), filePianta(rotatoria(6)));
}

TEST(DocumentoDxf, NumbersHaveAPointWhateverTheLanguageOfTheSystem) {
    const std::string prima = filePianta(rotatoria(4));
    const std::string lingua = std::setlocale(LC_ALL, nullptr);
    std::setlocale(LC_ALL, "it_IT.UTF-8");  // where it is installed; the whole suite runs under it once more
    EXPECT_EQ(filePianta(rotatoria(4)), prima);
    std::setlocale(LC_ALL, lingua.c_str());
    const std::string file = testoDxf(con(dxf::Scritta{.layer = "L", .testo = "x", .punto = {1.5, -0.0}}));
    EXPECT_EQ(valoriDi(file, "10"), std::vector<std::string>{"1.5"});
    EXPECT_EQ(valoriDi(file, "20"), std::vector<std::string>{"0.0"});
}

TEST(DocumentoDxf, AFullCircleIsACircleAndAStraightPieceALine) {
    const auto cerchio = pianta::circonferenza({1, 2}, 3);
    const std::string file = testoDxf(con(dxf::Polilinea{.layer = "L", .tracciato = cerchio, .chiusa = true}));
    EXPECT_EQ(entitaDi(file), std::vector<std::string>{"CIRCLE"});
    EXPECT_EQ(valoriDi(file, "10"), std::vector<std::string>{"1.0"});
    EXPECT_EQ(valoriDi(file, "40"), std::vector<std::string>{"3.0"});
    const pianta::Tracciato dritto{{{0, 0}, 0}, {{1, 0}, 0}};
    EXPECT_EQ(entitaDi(testoDxf(con(dxf::Polilinea{.layer = "L", .tracciato = dritto}))),
              std::vector<std::string>{"LINE"});
    const pianta::Tracciato arco{{{0, 0}, 0.25}, {{1, 0}, 0}};
    const std::string curva = testoDxf(con(dxf::Polilinea{.layer = "L", .tracciato = arco}));
    EXPECT_EQ(entitaDi(curva), std::vector<std::string>{"LWPOLYLINE"});
    EXPECT_EQ(valoriDi(curva, "42"), std::vector<std::string>{"0.25"});
}

TEST(DocumentoDxf, VerticesThatCoincideAreOneAndKeepTheArcThatFollows) {
    const pianta::Tracciato doppio{{{0, 0}, 0}, {{0, 0}, 0.5}, {{2, 0}, 0}, {{2, 1}, 0}, {{0, 1e-9}, 0}};
    const std::string file = testoDxf(con(dxf::Polilinea{.layer = "L", .tracciato = doppio, .chiusa = true}));
    EXPECT_EQ(valoriDi(file, "90"), std::vector<std::string>{"3"});
    EXPECT_EQ(valoriDi(file, "42"), std::vector<std::string>{"0.5"});
}

TEST(DocumentoDxf, WhatCannotBeDrawnIsLeftOut) {
    const double nessuno = std::numeric_limits<double>::quiet_NaN();
    const double infinito = std::numeric_limits<double>::infinity();
    const pianta::Tracciato punto{{{1, 1}, 0}, {{1, 1}, 0}};
    const pianta::Tracciato rotto{{{0, 0}, 0}, {{nessuno, 1}, 0}};
    const pianta::Tracciato lontano{{{0, 0}, infinito}, {{1, 1}, 0}};
    const auto cerchio = pianta::circonferenza({0, 0}, 2);
    for (const dxf::Entita& entita : std::vector<dxf::Entita>{
             dxf::Polilinea{.layer = "L", .tracciato = punto}, dxf::Polilinea{.layer = "L", .tracciato = rotto},
             dxf::Polilinea{.layer = "L", .tracciato = lontano}, dxf::Polilinea{.layer = "L"},
             dxf::Campitura{.layer = "L", .contorni = {punto}}, dxf::Campitura{.layer = "L"},
             dxf::Campitura{.layer = "L", .contorni = {cerchio, cerchio}},
             dxf::Triangolo{.layer = "L", .a = {nessuno, 0}}, dxf::PuntoQuotato{{0, infinito}},
             dxf::Scritta{.layer = "L", .testo = " \t"}, dxf::Scritta{.layer = "L", .testo = "x", .altezza = 0}}) {
        EXPECT_EQ(entitaDi(testoDxf(con(entita))), std::vector<std::string>{}) << entita.index();
    }
    Documento documento;
    documento.quote = {dxf::Quotatura{.layer = "L", .misura = nessuno}};
    EXPECT_EQ(entitaDi(testoDxf(documento)), std::vector<std::string>{});
}

TEST(DocumentoDxf, ADimensionWithoutExtentKeepsItsTextAlone) {
    using Tipo = dxf::Quotatura::Tipo;
    const std::vector<dxf::Entita> figura{dxf::Scritta{.layer = "L", .testo = "x"}, dxf::PuntoQuotato{{1, 1}},
                                          dxf::Triangolo{.layer = "L", .a = {0, 0}, .b = {1, 0}, .c = {0, 1}}};
    dxf::Quotatura allineata{.layer = "L", .tipo = Tipo::allineata, .primo = {1, 1}, .secondo = {1, 1}};
    dxf::Quotatura ruotata{.layer = "L", .tipo = Tipo::ruotata, .primo = {1, 1}, .secondo = {1, 5}, .direzione = 0};
    dxf::Quotatura raggio{.layer = "L", .tipo = Tipo::raggio, .definizione = {2, 3}, .primo = {2, 3}};
    dxf::Quotatura diametro{.layer = "L", .tipo = Tipo::diametro, .definizione = {2, 3}, .primo = {2, 3}};
    dxf::Quotatura angolo{.layer = "L", .tipo = Tipo::angolo, .primo = {1, 0}, .secondo = {3, 0}, .vertice = {0, 0}};
    const auto scritta = [&](dxf::Quotatura quota) {
        quota.figura = figura;
        Documento documento;
        documento.layer = {{.nome = "L"}};
        documento.quote = {quota};
        return testoDxf(documento);
    };
    for (const dxf::Quotatura& quota : {allineata, ruotata, raggio, diametro, angolo}) {
        EXPECT_EQ(entitaDi(scritta(quota)), std::vector<std::string>{"TEXT"}) << static_cast<int>(quota.tipo);
    }
    allineata.secondo = {1, 2};
    ruotata.direzione = 90;
    raggio.primo = {2, 4};
    diametro.primo = {2, 4};
    angolo.secondo = {3, 0.01};
    for (const dxf::Quotatura& quota : {allineata, ruotata, raggio, diametro, angolo}) {
        EXPECT_EQ(entitaDi(scritta(quota)), std::vector<std::string>{"DIMENSION"}) << static_cast<int>(quota.tipo);
    }
}

TEST(DocumentoDxf, ARingIsFilledWithItsHole) {
    const auto fuori = pianta::circonferenza({0, 0}, 3);
    const auto dentro = pianta::circonferenza({0, 0}, 2);
    const std::string file = testoDxf(con(dxf::Campitura{.layer = "L", .contorni = {fuori, dentro}}));
    EXPECT_EQ(entitaDi(file), std::vector<std::string>{"HATCH"});
    EXPECT_EQ(valoriDi(file, "91"), std::vector<std::string>{"2"});
    EXPECT_EQ(valoriDi(file, "92"), (std::vector<std::string>{"3", "18"}));
}

TEST(DocumentoDxf, TextsStandOnOneLineWithoutCodes) {
    EXPECT_EQ(scritta("Città di \"Forlì\" € 🚗"), std::vector<std::string>{"Città di \"Forlì\" € 🚗"});
    EXPECT_EQ(scritta("uno\r\ndue\ttre"), std::vector<std::string>{"uno  due tre"});
    EXPECT_EQ(scritta("100%"), std::vector<std::string>{"100%"});
    EXPECT_EQ(scritta("100%%d"), std::vector<std::string>{"100% %d"});
    EXPECT_EQ(scritta("a^Ib"), std::vector<std::string>{"a^ Ib"});
    EXPECT_EQ(scritta("\\U+00E0"), std::vector<std::string>{"\\ U+00E0"});
    EXPECT_EQ(scritta("C:\\via"), std::vector<std::string>{"C:\\via"});
    EXPECT_EQ(scritta("\xff"), std::vector<std::string>{"\xEF\xBF\xBD"});
    EXPECT_EQ(dxf::testoSemplice(std::string(1000, 'x')), std::string(240, 'x') + "…");
}

TEST(DocumentoDxf, TheUnitsAreMetres) {
    const auto gruppi = gruppiDi(dxf::testoDxf(Documento{}));
    const auto segue = [&](const char* nome, const char* codice, const char* valore) {
        for (std::size_t i = 0; i + 1 < gruppi.size(); ++i) {
            if (gruppi[i] == GruppoDxf{"9", nome}) {
                return gruppi[i + 1] == GruppoDxf{codice, valore};
            }
        }
        return false;
    };
    EXPECT_TRUE(segue("$INSUNITS", "70", "6"));
    EXPECT_TRUE(segue("$MEASUREMENT", "70", "1"));
    EXPECT_TRUE(segue("$ACADVER", "1", "AC1021"));
}

}  // namespace

}  // namespace kelvo::prove
