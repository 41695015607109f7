#include "shell/frmAiuto.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "comune/fintiFinestre.h"
#include "comune/fintiShell.h"
#include "shell/servizi/pagineAiuto.h"

namespace kelvo::prove {
namespace {

class Aiuto : public testing::Test, public ScenaFinestre {
protected:
    Aiuto() {
        std::filesystem::create_directory(cartella.file("Support"));
        for (const char* nome : {"Indice", "Uno", "Due", "Tre"}) {
            scriviContenuto(cartella.file(std::string{"Support/"} + nome + ".htm"),
                            std::string{"<title>Pagina "} + nome + "</title><body><p>testo</p></body>");
        }
    }
    prove::DocumentiFinti documenti;
};

TEST_F(Aiuto, BeginsWithTheIndexAndGoesBackAndForth) {
    frmAiuto finestra(contorno(), documenti);
    EXPECT_EQ(finestra.pagina(), paginaIndice);
    EXPECT_FALSE(finestra.cmdIndietro.abilitato());
    finestra.mostra("Uno.htm");
    finestra.mostra("Due.htm");
    EXPECT_EQ(finestra.sottotitolo.testo(), "Pagina Due");
    EXPECT_NE(finestra.ctlPagina.html().find("<p>testo</p>"), std::string::npos);
    finestra.cmdIndietro.premi();
    EXPECT_EQ(finestra.pagina(), "Uno.htm");
    EXPECT_TRUE(finestra.cmdAvanti.abilitato());
    finestra.cmdAvanti.premi();
    EXPECT_EQ(finestra.pagina(), "Due.htm");
    EXPECT_FALSE(finestra.cmdAvanti.abilitato());
    finestra.cmdIndietro.premi();
    finestra.mostra("Tre.htm");
    EXPECT_FALSE(finestra.cmdAvanti.abilitato()) << "another way was taken";
    finestra.cmdIndietro.premi();
    EXPECT_EQ(finestra.pagina(), "Uno.htm");
    finestra.cmdIndice.premi();
    EXPECT_EQ(finestra.pagina(), paginaIndice);
}

TEST_F(Aiuto, TheSamePageAgainIsNoStep) {
    frmAiuto finestra(contorno(), documenti);
    finestra.mostra("Uno.htm");
    finestra.mostra("Uno.htm");
    finestra.cmdIndietro.premi();
    EXPECT_EQ(finestra.pagina(), paginaIndice);
}

TEST_F(Aiuto, LinksLeadToPagesAndAddressesToTheBrowser) {
    frmAiuto finestra(contorno(), documenti);
    finestra.ctlPagina.segui("Due.htm#fonte");
    EXPECT_EQ(finestra.pagina(), "Due.htm");
    finestra.ctlPagina.segui("../UserGuide/Presentazione.htm");
    EXPECT_EQ(documenti.aperti, (std::vector<std::string>{cartella.percorso() + "/UserGuide/Presentazione.htm"}));
    documenti.aperti.clear();
    finestra.ctlPagina.segui("#qui");
    EXPECT_EQ(finestra.pagina(), "Due.htm");
    finestra.ctlPagina.segui("https://www.openstreetmap.org/");
    EXPECT_EQ(documenti.aperti, (std::vector<std::string>{"https://www.openstreetmap.org/"}));
    EXPECT_EQ(finestra.lblAvviso.testo(), "");
    documenti.riesce = false;
    finestra.ctlPagina.segui("https://www.openstreetmap.org/");
    EXPECT_EQ(finestra.lblAvviso.testo(), "Impossibile aprire https://www.openstreetmap.org/");
    finestra.ctlPagina.segui("Uno.htm");
    EXPECT_EQ(finestra.lblAvviso.testo(), "");
}

TEST_F(Aiuto, APageThatIsMissingOrLiesElsewhereIsToldInItsPlace) {
    frmAiuto finestra(contorno(), documenti);
    scriviContenuto(cartella.file("segreto.htm"), "<title>segreto</title>");
    for (const char* nome : {"Manca.htm", "../segreto.htm", "..\\segreto.htm", "file:segreto.htm"}) {
        finestra.mostra(nome);
        EXPECT_EQ(finestra.sottotitolo.testo(), "Pagina non disponibile") << nome;
        EXPECT_NE(finestra.ctlPagina.html().find(nome), std::string::npos) << nome;
    }
    finestra.cmdIndice.premi();
    EXPECT_EQ(finestra.sottotitolo.testo(), "Pagina Indice");
    scriviContenuto(cartella.file("Support/Grande.htm"), std::string(massimoPagina + 1, 'x'));
    finestra.mostra("Grande.htm");
    EXPECT_EQ(finestra.sottotitolo.testo(), "Pagina non disponibile");
}

TEST_F(Aiuto, APageIsFoundWithoutRegardToCase) {
    frmAiuto finestra(contorno(), documenti);
    finestra.mostra("uno.HTM");
    EXPECT_EQ(finestra.sottotitolo.testo(), "Pagina Uno");
}

TEST_F(Aiuto, TheGuideIsOneButtonAwayAndItsAbsenceIsTold) {
    frmAiuto finestra(contorno(), documenti);
    finestra.cmdGuida.premi();
    EXPECT_EQ(documenti.aperti, (std::vector<std::string>{cartella.percorso() + "/UserGuide/UserGuide.pdf"}));
    documenti.riesce = false;
    finestra.cmdGuida.premi();
    EXPECT_EQ(finestra.lblAvviso.testo(), "Impossibile aprire " + cartella.percorso() + "/UserGuide/UserGuide.pdf");
    int chiusa = 0;
    finestra.allaChiusura = [&] { ++chiusa; };
    finestra.cmdChiudi.premi();
    EXPECT_EQ(chiusa, 1);
}

TEST(TastoAiuto, ShowsThePageOfTheFieldElseOfTheWindowElseTheGuide) {
    shell::ShellFinta f;
    f.cornice.Load();
    EXPECT_TRUE(f.cornice.scorciatoia("F1"));
    EXPECT_EQ(f.documenti.aperti.size(), 1U) << "the guide";
    f.nuovo(3);
    f.cornice.albero.UserClick("keyOpzioni");
    EXPECT_TRUE(f.cornice.scorciatoia("F1"));
    f.corrente()->campo.paginaAiuto = "Percentile.htm";
    ASSERT_TRUE(f.corrente()->fuocoSu(f.corrente()->campo));
    EXPECT_TRUE(f.cornice.scorciatoia("F1"));
    f.cornice.ctlMenu.premi("mnuXIndiceAiuto");
    EXPECT_EQ(f.superficie.aiuti, (std::vector<std::string>{"Opzioni.htm", "Percentile.htm", "Indice.htm"}));
    EXPECT_EQ(f.documenti.aperti.size(), 1U);
    f.messaggi.risposte = {Risposta::no};
    f.cornice.CloseRotonda();
    f.cornice.ctlMenu.premi("mnuXAiuto");
    EXPECT_EQ(f.documenti.aperti.size(), 2U) << "the guide again";
}

TEST(TastoAiuto, OfAWindowBesideIsThatWindowsOwn) {
    shell::ShellFinta f;
    f.cornice.Load();
    f.nuovo(3);
    shell::FinestraFinta legenda(f.cornice.contorno(), "frmLEGENDA", false);
    f.superficie.inFuoco = &legenda;
    EXPECT_TRUE(f.cornice.scorciatoia("F1"));
    EXPECT_EQ(f.superficie.aiuti, (std::vector<std::string>{"Legenda.htm"}));
}

TEST(TastoAiuto, AFieldThatRefusesItsTextStillGetsItsHelp) {
    shell::ShellFinta f;
    f.cornice.Load();
    f.nuovo(3);
    f.cornice.albero.UserClick("keyRamo1");
    f.corrente()->campo.paginaAiuto = "Input1.htm";
    ASSERT_TRUE(f.corrente()->fuocoSu(f.corrente()->campo));
    f.corrente()->campo.scrivi("storto");
    EXPECT_TRUE(f.cornice.scorciatoia("F1"));
    EXPECT_EQ(f.superficie.aiuti, (std::vector<std::string>{"Input1.htm"}));
}

}  // namespace
}  // namespace kelvo::prove
