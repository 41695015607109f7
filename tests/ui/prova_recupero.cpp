#include <QtWidgets/QLineEdit>
#include <filesystem>

#include "ui/banco.h"

namespace kelvo::prove {
namespace {

using gesti::attendi;
using gesti::smaltisci;
using gesti::tasto;

/// Recent projects in the file menu.
class Recenti : public testing::Test {
protected:
    void SetUp() override {
        banco.mostra();
        for (const char* nome : {"uno.klv", "due.klv"}) {
            std::filesystem::copy_file(KELVO_SORGENTI "/assets/Progetti/Rotatoria_Piazza_Italia.klv",
                                       banco.cartella.file(nome));
        }
        banco.apri(banco.cartella.file("uno.klv"));
        banco.chiudi();
        banco.apri(banco.cartella.file("due.klv"));
        banco.chiudi();
    }
    Banco banco;
};

TEST_F(Recenti, TheLatestStandsFirstAndOpensByTheMouse) {
    EXPECT_EQ(banco.cornice.recenti.elenco(),
              (std::vector<std::string>{banco.cartella.file("due.klv"), banco.cartella.file("uno.klv")}));
    ASSERT_TRUE(gesti::menu(banco.vista, {"mnuFile", "Progetti recenti", "mnuXRecente2"}));
    ASSERT_TRUE(attendi([&] { return banco.stato.ProgettoAperto; }));
    EXPECT_EQ(banco.vista.windowTitle(), QStringLiteral("KELVO 2014 - [uno.klv]"));
    EXPECT_EQ(banco.cornice.recenti.elenco().front(), banco.cartella.file("uno.klv"));
}

TEST_F(Recenti, AProjectThatIsGoneTellsSoAndLeavesTheList) {
    std::filesystem::remove(banco.cartella.file("due.klv"));
    banco.messaggi.mostrati.clear();
    ASSERT_TRUE(gesti::menu(banco.vista, {"mnuFile", "Progetti recenti", "mnuXRecente1"}));
    ASSERT_TRUE(attendi([&] { return !banco.messaggi.mostrati.empty(); }));
    EXPECT_EQ(banco.ultimo(), "Il file selezionato non è corretto!");
    EXPECT_FALSE(banco.stato.ProgettoAperto);
    EXPECT_EQ(banco.cornice.recenti.elenco(), std::vector<std::string>{banco.cartella.file("uno.klv")});
    EXPECT_FALSE(gesti::menu(banco.vista, {"mnuFile", "Progetti recenti", "mnuXRecente2"}));
}

TEST_F(Recenti, TheListIsClosedWhileAProjectIsOpen) {
    banco.nuovo(4);
    EXPECT_FALSE(gesti::menu(banco.vista, {"mnuFile", "Progetti recenti", "mnuXRecente1"}));
}

TEST_F(Recenti, TheListOutlivesTheProgram) {
    shell::ImpostazioniFinte diDomani;
    diDomani.valori = banco.impostazioni.valori;
    const ProgettiRecenti letti(diDomani);
    EXPECT_EQ(letti.elenco(), banco.cornice.recenti.elenco());
}

/// The recovery copy within one run; that it survives a kill is shown by processes of their own.
class CopiaRecupero : public testing::Test {
protected:
    void SetUp() override {
        banco.mostra();
        banco.nuovo(3);
        banco.vai("keyAnagraficaRotonda");
        banco.entra("txtComune");
        gesti::digita("Cervia");
    }
    bool copia() { return banco.cornice.recupero.trovata().has_value(); }
    Banco banco;
};

TEST_F(CopiaRecupero, LeavingTheWindowWritesIt) {
    EXPECT_FALSE(copia());
    banco.vai("keyTempoModellazione");
    ASSERT_TRUE(copia());
    EXPECT_NE(contenuto(*banco.cornice.recupero.trovata()).find("Cervia"), std::string::npos);
    EXPECT_TRUE(banco.vista.windowTitle().endsWith(QStringLiteral(" *")));
}

TEST_F(CopiaRecupero, TheTimerWritesItEveryTwoMinutes) {
    tasto(Qt::Key_Return, Qt::ControlModifier);
    smaltisci();
    EXPECT_FALSE(copia());
    EXPECT_EQ(banco.cronometro.millisecondi, 120'000);
    banco.cronometro.rintocco();
    EXPECT_TRUE(copia());
}

TEST_F(CopiaRecupero, ASaveRemovesItAndTheMark) {
    banco.vai("keyTempoModellazione");
    ASSERT_TRUE(banco.salva(banco.cartella.file("salvato.klv")));
    smaltisci();
    EXPECT_FALSE(copia());
    EXPECT_FALSE(banco.vista.windowTitle().endsWith(QStringLiteral(" *")));
}

TEST_F(CopiaRecupero, ClosingWithoutSavingRemovesIt) {
    banco.vai("keyTempoModellazione");
    banco.chiudi();
    EXPECT_FALSE(copia());
}

}  // namespace
}  // namespace kelvo::prove
