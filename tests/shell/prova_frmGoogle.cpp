#include "shell/frmGoogle.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <regex>

#include "comune/appunti.h"
#include "comune/fintiFinestre.h"
#include "shell/scenaPagine.h"

namespace kelvo::prove {
namespace {

/// Remembers the field that was asked for.
class CampiFinti final : public CampiMostrati {
public:
    std::optional<std::string> testo(std::string_view /*finestra*/, std::string_view /*campo*/) const override {
        return std::nullopt;
    }
    bool fuocoSu(std::string_view campo, int /*riga*/) override {
        chiesti.emplace_back(campo);
        return true;
    }
    std::vector<std::string> chiesti;
};

class Luogo : public testing::Test, public ScenaFinestre {
protected:
    Luogo() {
        std::filesystem::create_directory(cartella.file("Support"));
        scriviContenuto(cartella.file("Support/Vaq_google.htm"), pagina("Vaq_google.htm"));
        app.appunti = &appunti;
    }
    void luogo(const std::string& localita, const std::string& comune, const std::string& provincia) {
        app.theRotonda().Localita(localita);
        app.theRotonda().Comune(comune);
        app.theRotonda().Provincia(provincia);
        finestra.attivata();
    }
    std::vector<std::string> indirizzi() {
        const std::regex href("href=\"(https[^\"]*)\"");
        const std::string& html = finestra.ctlBrowser.html();
        std::vector<std::string> tutti;
        for (auto it = std::sregex_iterator(html.begin(), html.end(), href); it != std::sregex_iterator(); ++it) {
            tutti.push_back((*it)[1].str());
        }
        return tutti;
    }
    AppuntiFinti appunti;
    prove::DocumentiFinti documenti;
    CampiFinti campi;
    frmGoogle finestra{contorno(), documenti, &campi};
};

TEST_F(Luogo, TheTermsOfThePlaceStandOnThePageAndInEveryLink) {
    app.theRotonda().Titolo("Nodo nuovo");
    luogo("  San Giò ", "Forlì", "FC");
    EXPECT_EQ(finestra.luogo(), "San Giò, Forlì, FC");
    const std::string testo = testoVisibile(finestra.ctlBrowser.html());
    for (const char* parola : {"San Giò, Forlì, FC", "Nodo nuovo", "Località", "Comune", "Provincia", "connessione"}) {
        EXPECT_NE(testo.find(parola), std::string::npos) << parola;
    }
    EXPECT_EQ(testo.find("non dice ancora dove"), std::string::npos);
    EXPECT_EQ(indirizzi(),
              (std::vector<std::string>{
                  "https://www.openstreetmap.org/search?query=San%20Gi%C3%B2%2C%20Forl%C3%AC%2C%20FC",
                  "https://www.google.com/maps/search/?api=1&amp;query=San%20Gi%C3%B2%2C%20Forl%C3%AC%2C%20FC",
                  "https://www.bing.com/maps?q=San%20Gi%C3%B2%2C%20Forl%C3%AC%2C%20FC"}));
}

TEST_F(Luogo, WhatIsMissingOfItIsLeftOut) {
    luogo("", "Forlì", " \t");
    EXPECT_EQ(finestra.luogo(), "Forlì");
    EXPECT_NE(finestra.ctlBrowser.html().find("<td class=\"nota\">Località</td><td>–</td>"), std::string::npos);
    luogo("Riga\r\ndoppia", "", "");
    EXPECT_EQ(finestra.luogo(), "Riga  doppia");
}

TEST_F(Luogo, TextOfTheProjectIsNoMarkOfThePageNorOfTheAddress) {
    luogo("<b>\"&'</b>", "{ricerca}<!--/LUOGO-->", "a&q=1#x");
    const std::string& html = finestra.ctlBrowser.html();
    EXPECT_EQ(html.find("<b>"), std::string::npos);
    EXPECT_NE(html.find("&lt;b&gt;&quot;&amp;&#39;&lt;/b&gt;"), std::string::npos);
    EXPECT_NE(testoVisibile(html).find("{ricerca}<!--/LUOGO-->"), std::string::npos)
        << "a value is not searched for places again";
    ASSERT_EQ(indirizzi().size(), 3U);
    EXPECT_EQ(
        indirizzi()[0],
        "https://www.openstreetmap.org/search?query=%3Cb%3E%22%26%27%3C%2Fb%3E%2C%20%7Bricerca%7D%3C%21--%2FLUOGO--"
        "%3E%2C%20a%26q%3D1%23x");
}

TEST_F(Luogo, WithoutAPlaceThePageSaysWhereToTypeItAndLeadsThere) {
    luogo(" ", "", "");
    const std::string testo = testoVisibile(finestra.ctlBrowser.html());
    EXPECT_NE(testo.find("«Località / Frazione / Borgata», «Comune» e «Provincia»"), std::string::npos);
    EXPECT_TRUE(indirizzi().empty());
    EXPECT_FALSE(finestra.ctlToolbar.abilitato("keyXCopia"));
    finestra.ctlBrowser.segui("kelvo:luogo");
    EXPECT_EQ(navigazione.chieste, (std::vector<std::string>{"keyAnagraficaRotonda"}));
    EXPECT_EQ(campi.chiesti, (std::vector<std::string>{"txtLocalita"}));
    navigazione.risposta = false;
    finestra.ctlToolbar.premi("keyXAnagrafica");
    EXPECT_EQ(navigazione.chieste.size(), 2U);
    EXPECT_EQ(campi.chiesti.size(), 1U) << "the window at hand refused to be left";
}

TEST_F(Luogo, ALinkGoesToTheBrowserOfTheSystemAndItsFailureIsTold) {
    luogo("", "Forlì", "");
    finestra.ctlBrowser.segui("https://www.bing.com/maps?q=Forl%C3%AC");
    EXPECT_EQ(documenti.aperti, (std::vector<std::string>{"https://www.bing.com/maps?q=Forl%C3%AC"}));
    EXPECT_TRUE(messaggi.mostrati.empty());
    documenti.riesce = false;
    finestra.ctlBrowser.segui("https://www.bing.com/maps?q=x");
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(messaggi.mostrati[0].testo,
              "Impossibile aprire il collegamento con il programma di navigazione del sistema:\n"
              "https://www.bing.com/maps?q=x");
    documenti.riesce = true;
    documenti.aperti.clear();
    finestra.ctlBrowser.segui("file:///etc/passwd");
    EXPECT_TRUE(documenti.aperti.empty()) << "a page opens no files";
    EXPECT_EQ(messaggi.mostrati.size(), 2U);
}

TEST_F(Luogo, NothingIsOpenedUnasked) {
    luogo("Piazza", "Forlì", "FC");
    finestra.ctlToolbar.premi("Refresh");
    EXPECT_TRUE(documenti.aperti.empty());
    EXPECT_TRUE(documenti.avviati.empty());
    EXPECT_TRUE(messaggi.mostrati.empty());
}

TEST_F(Luogo, ThePlaceCanBeCopied) {
    luogo("Piazza", "Forlì", "FC");
    finestra.ctlToolbar.premi("keyXCopia");
    EXPECT_EQ(appunti.testo, "Piazza, Forlì, FC");
    EXPECT_EQ(cornice.avvisato, "Luogo copiato: Piazza, Forlì, FC");
}

TEST_F(Luogo, WithoutItsPageAWordStandsInItsPlace) {
    std::filesystem::remove(cartella.file("Support/Vaq_google.htm"));
    luogo("Piazza", "Forlì", "FC");
    EXPECT_NE(testoVisibile(finestra.ctlBrowser.html()).find("«Vaq_google.htm» non può essere mostrata"),
              std::string::npos);
    EXPECT_TRUE(messaggi.mostrati.empty());
}

TEST_F(Luogo, IsNoneOfTheWindowsThatASaveAsksForData) {
    EXPECT_FALSE(finestra.haSaveData());
    luogo("Piazza", "", "");
    finestra.SaveData();
    EXPECT_EQ(app.theRotonda().Localita(), "Piazza");
}

}  // namespace
}  // namespace kelvo::prove
