// esporta: the results of a project as a workbook.

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <locale>
#include <pugixml.hpp>
#include <sstream>

#include "cli/processo.h"
#include "comune/cartella.h"
#include "reports/zip.h"

namespace kelvo::prove {

namespace {

const std::string stazione = "Rotatoria_Viale_della_Stazione";

class ComandoEsporta : public testing::Test {
protected:
    std::string file(const std::string& nome) const { return cartella_.file(nome); }
    static Esito esporta(const std::string& progetto, const std::string& uscita,
                         const std::vector<std::string>& altri = {}) {
        std::vector<std::string> argomenti{"esporta", "--xlsx", uscita, progetto};
        argomenti.insert(argomenti.end(), altri.begin(), altri.end());
        return kelvoCli(argomenti);
    }
    std::string parte(const std::string& nome, const std::string& quale) const {
        std::vector<ooxml::Voce> voci;
        EXPECT_EQ(ooxml::leggiArchivio(contenuto(file(nome)), voci), "");
        for (const ooxml::Voce& voce : voci) {
            if (voce.nome == quale) {
                return voce.dati;
            }
        }
        return {};
    }
    /// The number in a cell of the first sheet.
    double cifra(const std::string& nome, const std::string& cella) const {
        pugi::xml_document foglio;
        EXPECT_TRUE(foglio.load_string(parte(nome, "xl/worksheets/sheet1.xml").c_str()));
        const std::string testo = foglio.select_node(("//c[@r='" + cella + "']/v").c_str()).node().text().get();
        double valore = 0.0;
        std::istringstream lettore(testo);
        lettore.imbue(std::locale::classic());
        lettore >> valore;
        return valore;
    }
    CartellaTemporanea cartella_;
};

TEST_F(ComandoEsporta, WritesTheFiguresOfCalcola) {
    const Esito esito = esporta(esempio(stazione), file("r.xlsx"), {"--notte", "15"});
    ASSERT_EQ(esito.codice, 0) << esito.errori;
    EXPECT_EQ(esito.uscita, "");
    EXPECT_EQ(esito.errori, "");
    // The first entry in the first segment: the second row of the table of calcola behind its headings.
    std::istringstream tabella(kelvoCli({"calcola", "--notte", "15", esempio(stazione)}).uscita);
    std::string riga;
    while (std::getline(tabella, riga) && riga.find(" - ") == std::string::npos) {
    }
    std::getline(tabella, riga);
    std::istringstream celle(riga.substr(riga.find('\t')));
    celle.imbue(std::locale::classic());
    for (const char* cella : {"B5", "C5", "D5", "E5", "F5"}) {
        std::string testo;
        celle >> testo;
        testo.replace(testo.find(','), 1, ".");
        double mostrato = 0.0;
        std::istringstream lettore(testo);
        lettore.imbue(std::locale::classic());
        lettore >> mostrato;
        const double meta = 0.5 * std::pow(10.0, -static_cast<double>(testo.size() - testo.find('.') - 1));
        EXPECT_NEAR(cifra("r.xlsx", cella), mostrato, meta * 1.0001) << cella << riga;
        EXPECT_GT(mostrato, 0.0);
    }
}

TEST_F(ComandoEsporta, EveryExampleIsExported) {
    for (const std::string& nome : esempi()) {
        const Esito esito = esporta(esempio(nome), file(nome + ".xlsx"));
        EXPECT_EQ(esito.codice, 0) << nome << esito.errori;
        EXPECT_NE(parte(nome + ".xlsx", "xl/workbook.xml").find("Capacità ultima"), std::string::npos) << nome;
    }
}

TEST_F(ComandoEsporta, TheNightTakesItsShareOfTheCapacity) {
    ASSERT_EQ(esporta(esempio(stazione), file("giorno.xlsx"), {"--notte", "0"}).codice, 0);
    ASSERT_EQ(esporta(esempio(stazione), file("notte.xlsx"), {"--notte", "20"}).codice, 0);
    EXPECT_LT(cifra("notte.xlsx", "C5"), cifra("giorno.xlsx", "C5") * 0.95);
}

TEST_F(ComandoEsporta, ReplacesAFileAndLeavesNothingElse) {
    scriviContenuto(file("r.xlsx"), "vecchio");
    EXPECT_EQ(esporta(esempio(stazione), file("r.xlsx")).codice, 0);
    EXPECT_EQ(contenuto(file("r.xlsx")).substr(0, 2), "PK");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(cartella_.percorso()), {}), 1);
}

TEST_F(ComandoEsporta, AWrongUseIsRefusedWithWords) {
    const Esito nome = esporta(esempio(stazione), file("r.xls"));
    EXPECT_EQ(nome.codice, 2);
    EXPECT_NE(nome.errori.find(".xlsx"), std::string::npos) << nome.errori;
    EXPECT_EQ(kelvoCli({"esporta", esempio(stazione)}).codice, 2);
    EXPECT_FALSE(std::filesystem::exists(file("r.xls")));
}

TEST_F(ComandoEsporta, TheProjectIsNotReplacedByItsWorkbook) {
    const std::string prima = contenuto(esempio(stazione));
    scriviContenuto(file("p.xlsx"), prima);
    std::filesystem::create_directories(file("sotto"));
    std::filesystem::create_symlink(file("p.xlsx"), file("altro.xlsx"));
    const std::vector<std::pair<std::string, std::string>> coppie{
        {"p.xlsx", "p.xlsx"}, {"p.xlsx", "sotto/../p.xlsx"}, {"altro.xlsx", "./p.xlsx"}, {"p.xlsx", "altro.xlsx"}};
    for (const auto& [progetto, uscita] : coppie) {
        const Esito esito = esporta(file(progetto), file(uscita));
        EXPECT_EQ(esito.codice, 2) << uscita;
        EXPECT_NE(esito.errori.find("è il progetto, che il foglio di calcolo sostituirebbe"), std::string::npos)
            << esito.errori;
        EXPECT_EQ(contenuto(file("p.xlsx")), prima) << uscita;
    }
    EXPECT_EQ(esporta(file("p.xlsx"), file("r.xlsx")).codice, 0);
    EXPECT_EQ(contenuto(file("p.xlsx")), prima);
}

TEST_F(ComandoEsporta, WhatFailsLeavesNoFile) {
    EXPECT_EQ(esporta(file("manca.klv"), file("r.xlsx")).codice, 1);
    const Esito altrove = esporta(esempio(stazione), file("manca/r.xlsx"));
    EXPECT_EQ(altrove.codice, 1);
    EXPECT_NE(altrove.errori.find("Impossibile scrivere"), std::string::npos) << altrove.errori;
    scriviContenuto(file("zero.klv"), conCambio(contenuto(esempio(stazione)), "\"Rami\"", "\"RaggioIngresso\": 20",
                                                "\"RaggioIngresso\": 0"));
    const Esito zero = esporta(file("zero.klv"), file("r.xlsx"));
    EXPECT_EQ(zero.codice, 1);
    EXPECT_NE(zero.errori.find("Divisione per zero"), std::string::npos) << zero.errori;
    scriviContenuto(file("analisi.klv"),
                    conCambio(contenuto(esempio(stazione)), "", "\"TipoAnalisi\": 1", "\"TipoAnalisi\": 7"));
    EXPECT_EQ(esporta(file("analisi.klv"), file("r.xlsx")).codice, 1);
    EXPECT_FALSE(std::filesystem::exists(file("r.xlsx")));
}

TEST_F(ComandoEsporta, AWorkbookThatIsOpenIsLeftAsItIs) {
    scriviContenuto(file("r.xlsx"), "vecchio");
    scriviContenuto(file(".~lock.r.xlsx#"), "");
    const Esito esito = esporta(esempio(stazione), file("r.xlsx"));
    EXPECT_EQ(esito.codice, 1);
    EXPECT_NE(esito.errori.find("aperto in un foglio di calcolo"), std::string::npos) << esito.errori;
    EXPECT_EQ(contenuto(file("r.xlsx")), "vecchio");
}

}  // namespace

}  // namespace kelvo::prove
