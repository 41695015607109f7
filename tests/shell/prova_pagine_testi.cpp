#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <filesystem>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include "base/testo.h"
#include "shell/scenaPagine.h"
#include "shell/servizi/pagineAiuto.h"
#include "shell/servizi/tinte.h"

namespace kelvo::prove {
namespace {

namespace fs = std::filesystem;

/// Every address in the links of a page, as it stands there.
std::vector<std::string> collegamenti(const std::string& html) {
    const std::regex href("href=\"([^\"]*)\"");
    std::vector<std::string> tutti;
    for (auto it = std::sregex_iterator(html.begin(), html.end(), href); it != std::sregex_iterator(); ++it) {
        tutti.push_back((*it)[1].str());
    }
    return tutti;
}

/// The text behind "%20" and its like.
std::string senzaPercento(const std::string& indirizzo) {
    std::string testo;
    for (std::size_t i = 0; i < indirizzo.size(); ++i) {
        if (indirizzo[i] == '%' && i + 2 < indirizzo.size()) {
            testo += static_cast<char>(std::stoi(indirizzo.substr(i + 1, 2), nullptr, 16));
            i += 2;
        } else {
            testo += indirizzo[i];
        }
    }
    return testo;
}

/// What is wrong with the order of the marks of a page; empty where all is well.
std::string segniAperti(const std::string& html) {
    const std::set<std::string> soli{"meta", "link", "br"};
    std::vector<std::string> aperti;
    const std::regex segno(R"(<(/?)([!a-zA-Z0-9]+)[^>]*>)");
    for (auto it = std::sregex_iterator(html.begin(), html.end(), segno); it != std::sregex_iterator(); ++it) {
        std::string nome = (*it)[2].str();
        std::transform(nome.begin(), nome.end(), nome.begin(), [](unsigned char c) { return std::tolower(c); });
        if (soli.count(nome) != 0 || nome.front() == '!') {
            continue;
        }
        if ((*it)[1].str().empty()) {
            aperti.push_back(nome);
        } else if (aperti.empty() || aperti.back() != nome) {
            return "</" + nome + ">";
        } else {
            aperti.pop_back();
        }
    }
    return aperti.empty() ? "" : "<" + aperti.back() + ">";
}

bool vuota(const std::string& nome) {
    return nome == paginaAiutoVuota;
}

struct Pagine : testing::TestWithParam<std::string> {
    std::string html = pagina(GetParam());
};

TEST_P(Pagine, SaysSomethingUnderATitleInTheLookOfAll) {
    EXPECT_EQ(parteValida(html), html.size()) << "not UTF-8";
    EXPECT_NE(html.find("<html lang=\"it\">"), std::string::npos);
    EXPECT_NE(html.find("<meta charset=\"utf-8\">"), std::string::npos);
    EXPECT_EQ(segniAperti(html), "");
    EXPECT_NE(titoloPagina(html), "");
    if (vuota(GetParam())) {
        EXPECT_EQ(rifila(testoVisibile(html)), "");
        return;
    }
    EXPECT_GT(testoVisibile(html).size(), 60U);
    EXPECT_NE(html.find("<link rel=\"stylesheet\" href=\"pagine.css\">"), std::string::npos);
    for (const char* estraneo : {"<script", "<img", "<style", "style=", "<font"}) {
        EXPECT_EQ(html.find(estraneo), std::string::npos) << estraneo;
    }
}

TEST_P(Pagine, HasNoDeadLink) {
    for (const std::string& indirizzo : collegamenti(html)) {
        if (indirizzo.rfind("https://", 0) == 0 || indirizzo == "kelvo:luogo") {
            EXPECT_EQ(GetParam(), "Vaq_google.htm") << indirizzo << ": no other page leads out of the installation";
            continue;
        }
        EXPECT_TRUE(fs::is_regular_file(cartellaPagine + senzaPercento(indirizzo))) << indirizzo;
    }
}

/// All sources of the rooms, one behind the other.
const std::string& sorgenti() {
    static const std::string tutti = [] {
        std::string testo;
        for (const auto& voce : fs::recursive_directory_iterator(KELVO_SORGENTI "/src")) {
            if (voce.is_regular_file()) {
                testo += contenuto(voce.path().string());
            }
        }
        return testo;
    }();
    return tutti;
}

TEST_P(Pagine, IsUsedBySomebody) {
    const std::string& nome = GetParam();
    EXPECT_TRUE(sorgenti().find("\"" + nome + "\"") != std::string::npos ||
                sorgenti().find("\\\\" + nome + "\"") != std::string::npos)
        << "no window names " << nome;
}

INSTANTIATE_TEST_SUITE_P(Tutte, Pagine, testing::ValuesIn(pagineTutte()), [](const auto& p) {
    std::string nome = p.param.substr(0, p.param.size() - 4);
    std::replace_if(
        nome.begin(), nome.end(), [](unsigned char c) { return std::isalnum(c) == 0; }, '_');
    return nome;
});

TEST(PagineTutte, NoTwoHaveTheSameTitle) {
    std::map<std::string, std::string> titoli;
    for (const std::string& nome : pagineTutte()) {
        const auto [posto, nuovo] = titoli.emplace(titoloPagina(pagina(nome)), nome);
        EXPECT_TRUE(nuovo) << nome << " and " << posto->second;
    }
    EXPECT_GE(titoli.size(), 140U);
}

TEST(PagineTutte, TheIndexLeadsToEachOnceByItsTitle) {
    const std::string indice = pagina(std::string{paginaIndice});
    // The index itself, the blank page and the pattern that the window of the place fills in.
    const std::set<std::string> fuori{std::string{paginaIndice}, std::string{paginaAiutoVuota}, "Vaq_google.htm"};
    std::multiset<std::string> elencate;
    const std::regex riga("<li><a href=\"([^\"]*)\">([^<]*)</a></li>");
    for (auto it = std::sregex_iterator(indice.begin(), indice.end(), riga); it != std::sregex_iterator(); ++it) {
        const std::string nome = senzaPercento((*it)[1].str());
        elencate.insert(nome);
        EXPECT_EQ(htmlInTesto((*it)[2].str()), titoloPagina(pagina(nome))) << nome;
    }
    for (const std::string& nome : pagineTutte()) {
        EXPECT_EQ(elencate.count(nome), fuori.count(nome) == 0 ? 1U : 0U) << nome;
    }
}

TEST(PagineTutte, TheColoursOfTheirSheetAreThoseOfTheProgram) {
    const std::array tinte{tinta::inchiostro, tinta::titolo, tinta::secondario, tinta::principale,
                           tinta::verde,      tinta::barra,  colori::bianco};
    const std::string foglio = contenuto(cartellaPagine + "pagine.css");
    const std::regex rgb(R"(rgb\((\d+), (\d+), (\d+)\))");
    int quanti = 0;
    for (auto it = std::sregex_iterator(foglio.begin(), foglio.end(), rgb); it != std::sregex_iterator(); ++it) {
        const auto parte = [&](std::size_t i) { return static_cast<std::uint8_t>(std::stoi((*it)[i].str())); };
        const Colore colore{parte(1), parte(2), parte(3)};
        ++quanti;
        EXPECT_NE(std::find(tinte.begin(), tinte.end(), colore), tinte.end()) << (*it)[0].str();
    }
    EXPECT_GT(quanti, 8);
    EXPECT_EQ(foglio.find('#'), std::string::npos) << "a colour outside the list";
}

TEST(PagineTutte, WhatIsNotConfirmedOfTheDecreeIsNoLimit) {
    const std::string testo = testoVisibile(pagina("DecretoRotatorie.htm"));
    const std::set<std::string> pubblicati{"14", "18", "25", "40", "50"};
    const std::regex misura(R"((\d+(?:,\d+)?)(?= m\b| ÷| e \d))");
    for (auto it = std::sregex_iterator(testo.begin(), testo.end(), misura); it != std::sregex_iterator(); ++it) {
        EXPECT_EQ(pubblicati.count((*it)[1].str()), 1U) << (*it)[0].str();
    }
    EXPECT_NE(testo.find("Gazzetta Ufficiale n. 170 del 24 luglio 2006"), std::string::npos);
    EXPECT_NE(testo.find("vale il testo ufficiale"), std::string::npos);
}

TEST(PagineTutte, ThePresentationIsWholeAndNeedsNothingElse) {
    const std::string html = contenuto(KELVO_SORGENTI "/assets/UserGuide/KelvoSUITE2014_INTRO.htm");
    EXPECT_EQ(parteValida(html), html.size());
    EXPECT_EQ(titoloPagina(html), "Kelvo: presentazione");
    EXPECT_EQ(html.find("src="), std::string::npos);
    EXPECT_EQ(html.find("<script"), std::string::npos);
    EXPECT_EQ(html.find("url("), std::string::npos);
    EXPECT_EQ(html.find("http"), std::string::npos);
    std::size_t figure = 0;
    for (auto da = html.find("<svg"); da != std::string::npos; da = html.find("<svg", da + 1)) {
        ++figure;
        EXPECT_EQ(html.compare(html.find("aria-label=\"", da) - 11, 10, "role=\"img\""), 0);
    }
    EXPECT_EQ(figure, 5U);
    for (const std::string& indirizzo : collegamenti(html)) {
        EXPECT_TRUE(fs::exists(KELVO_SORGENTI "/assets/UserGuide/" + senzaPercento(indirizzo))) << indirizzo;
    }
}

TEST(PaginaMancante, NamesThePageEscapedAndTheReason) {
    const std::string html = paginaMancante("<b>.htm", "file non trovato");
    EXPECT_NE(html.find("«&lt;b&gt;.htm»"), std::string::npos);
    EXPECT_NE(testoVisibile(html).find("non può essere mostrata: file non trovato."), std::string::npos);
    EXPECT_EQ(titoloPagina(html), "Pagina non disponibile");
    EXPECT_EQ(segniAperti(html), "");
}

TEST(TitoloPagina, IsReadWithItsEntitiesAndIsEmptyWhereThereIsNone) {
    EXPECT_EQ(titoloPagina("<title>A &amp; B</title>"), "A & B");
    EXPECT_EQ(titoloPagina("<p>senza</p>"), "");
    EXPECT_EQ(titoloPagina("</title><title>"), "");
}

}  // namespace
}  // namespace kelvo::prove
