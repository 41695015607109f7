#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>

#include "ui/banco.h"

namespace kelvo::prove {
namespace {

using gesti::attendi;
using gesti::smaltisci;
using gesti::tasto;

constexpr const char* limiti = "Sono consentiti valori compresi tra <5> e <30> minuti";

/// One way out of a window.
struct Via {
    const char* nome;
    std::function<void(Banco&)> gesto;
};

const std::vector<Via>& vie() {
    static const std::vector<Via> tutte{
        {"TreeClick", [](Banco& b) { gesti::clicNodo(b.albero(), "keyAnagraficaRotonda"); }},
        {"TreeByKeyboard",
         [](Banco& b) {
             gesti::tasto(Qt::Key_F6);
             smaltisci();
             if (b.albero().hasFocus()) {
                 gesti::vaiAlNodo(b.albero(), "keyAnagraficaRotonda");
             }
         }},
        {"MenuOfWindows",
         [](Banco& b) {
             EXPECT_TRUE(gesti::menu(b.vista, {"mnuDati", "Progetto", "keyAnagraficaProfessionista"}));
         }},
        {"MenuSave",
         [](Banco& b) {
             EXPECT_TRUE(gesti::menu(b.vista, {"mnuFile", "mnuSalva"}));
         }},
        {"ToolBarSave", [](Banco& b) { EXPECT_TRUE(gesti::bottone(b.vista, "Salva")); }},
        {"ToolBarClose", [](Banco& b) { EXPECT_TRUE(gesti::bottone(b.vista, "Chiudi")); }},
        {"ToolBarExit", [](Banco& b) { EXPECT_TRUE(gesti::bottone(b.vista, "Esci")); }},
        {"ShortcutSave", [](Banco&) { tasto(Qt::Key_S, Qt::ControlModifier); }},
        {"ShortcutClose", [](Banco&) { tasto(Qt::Key_W, Qt::ControlModifier); }},
        {"ShortcutExit", [](Banco&) { tasto(Qt::Key_Q, Qt::ControlModifier); }},
        {"ShortcutUpdate", [](Banco&) { tasto(Qt::Key_Return, Qt::ControlModifier); }},
        {"SystemClose", [](Banco& b) { b.vista.close(); }},
        {"Tab", [](Banco&) { tasto(Qt::Key_Tab); }},
    };
    return tutte;
}

class DatiErrati : public testing::TestWithParam<std::size_t> {
protected:
    void SetUp() override {
        banco.mostra();
        banco.nuovo(3);
        testo = banco.app.theRotonda().TestoFile();
    }
    void esci() {
        GetParam() < vie().size() ? vie()[GetParam()].gesto(banco) : void();
        smaltisci();
    }
    void resta(const std::string& finestra, const std::string& nodo, const char* campo) {
        EXPECT_EQ(banco.nomeCorrente(), finestra);
        EXPECT_TRUE(attendi([&] { return gesti::fuoco() == campo; })) << gesti::fuoco();
        EXPECT_TRUE(attendi([&] { return gesti::selezionato(banco.albero()) == nodo; }))
            << gesti::selezionato(banco.albero());
        EXPECT_TRUE(banco.dialogo.richieste.empty());
        EXPECT_TRUE(banco.vista.isVisible());
        EXPECT_TRUE(banco.stato.ProgettoAperto);
        EXPECT_EQ(banco.app.theRotonda().TestoFile(), testo);
    }

    Banco banco;
    std::string testo;  ///< the project before anything was typed
};

TEST_P(DatiErrati, ASegmentOutOfItsBoundsKeepsTheWindowAndIsToldOnce) {
    banco.vai("keyTempoModellazione");
    banco.entra("txtSegmentoTempo");
    tasto(Qt::Key_A, Qt::ControlModifier);
    gesti::digita("3");
    esci();
    EXPECT_EQ(banco.messaggi.testi(), std::vector<std::string>{limiti});
    EXPECT_EQ(banco.messaggi.mostrati.front().icona, Icona::informazione);
    resta("frmTempoModellazione", "keyTempoModellazione", "txtSegmentoTempo");
    EXPECT_EQ(banco.oggetto<QComboBox>("txtSegmentoTempo").currentText(), QStringLiteral("3"));
}

TEST_P(DatiErrati, AForbiddenCharacterInTheNameKeepsTheWindowAndIsToldOnce) {
    banco.vai("keyAnagraficaRotonda");
    banco.entra("txtNomeFile");
    gesti::digita("Roma/Est");
    esci();
    EXPECT_EQ(banco.messaggi.testi(),
              std::vector<std::string>{"Attenzione, non sono permessi i caratteri: \\/:*?\"<>|"});
    EXPECT_EQ(banco.messaggi.mostrati.front().icona, Icona::critica);
    resta("frmAnagraficaRotonda", "keyAnagraficaRotonda", "txtNomeFile");
    EXPECT_EQ(banco.oggetto<QLineEdit>("txtNomeFile").text(), QStringLiteral("Roma/Est"));
}

TEST_P(DatiErrati, ARefusalWithoutAMessageIsToldInTheStatusBar) {
    banco.vai("keyTempoModellazione");
    banco.entra("txtTempoFinale");
    tasto(Qt::Key_Home);  // the empty row
    ASSERT_EQ(banco.oggetto<QComboBox>("txtTempoFinale").currentText(), QString());
    esci();
    EXPECT_TRUE(banco.messaggi.mostrati.empty()) << banco.ultimo();
    EXPECT_EQ(banco.cornice.ctlStatusBar.avviso(), "Scegliere un tempo finale successivo al tempo iniziale.");
    resta("frmTempoModellazione", "keyTempoModellazione", "txtTempoFinale");
}

TEST_P(DatiErrati, AMendedFieldLetsTheNextCommandThrough) {
    banco.vai("keyTempoModellazione");
    banco.entra("txtSegmentoTempo");
    tasto(Qt::Key_A, Qt::ControlModifier);
    gesti::digita("3");
    esci();
    ASSERT_TRUE(attendi([] { return gesti::fuoco() == "txtSegmentoTempo"; }));
    tasto(Qt::Key_A, Qt::ControlModifier);
    gesti::digita("15");
    tasto(Qt::Key_Tab);
    ASSERT_TRUE(attendi([] { return gesti::fuoco() == "txtTempoFinale"; }));
    tasto(Qt::Key_Down);
    banco.vai("keyAnagraficaRotonda");
    EXPECT_EQ(banco.nomeCorrente(), "frmAnagraficaRotonda");
}

INSTANTIATE_TEST_SUITE_P(PerOgniVia, DatiErrati, testing::Range(std::size_t{0}, vie().size()),
                         [](const auto& via) { return vie()[via.param].nome; });

}  // namespace
}  // namespace kelvo::prove
