// The windows of the CAD link by key and mouse.

#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>
#include <string>
#include <vector>

#include "ui/banco.h"

namespace kelvo::prove {
namespace {

using gesti::attendi;
using gesti::tasto;

class CadVeduto : public testing::Test {
protected:
    void SetUp() override {
        banco.mostra();
        banco.nuovo(3);
    }
    /// Opens a window of the menu and does something in it until it has closed.
    void apri(const char* finestra, const char* voce, const std::function<void(QWidget&)>& azione) {
        gesti::AlModale modale(finestra, azione);
        ASSERT_TRUE(gesti::menu(banco.vista, {"mnuKelvoCAD", voce}));
        EXPECT_TRUE(attendi([&] { return modale.avvenuto() && QApplication::activeModalWidget() == nullptr; }));
        EXPECT_FALSE(modale.rimasto());
    }
    static QWidget& oggetto(QWidget& finestra, const char* nome) {
        auto* trovato = finestra.findChild<QWidget*>(QString::fromLatin1(nome));
        if (trovato == nullptr) {
            throw std::runtime_error(std::string{"no widget "} + nome);
        }
        return *trovato;
    }
    Banco banco;
};

TEST_F(CadVeduto, AVersionIsChosenAndDrawnInByTheKeyboard) {
    banco.registro.prodotto("R16.2", "ACAD-4001:410", "C:\\Acad 2006", "Italiano");
    banco.registro.prodotto("R17.2", "ACAD-7001:410", "C:\\Acad 2009", "Italiano");
    banco.cad.corre = true;
    const std::string progetto = banco.cartella.file("Piazza.klv");
    scriviContenuto(progetto, "progetto");
    banco.impostazioni.scrivi("KelvoCAD 2014", "StartUp", "FilePathKelvo", progetto);
    apri("frmLinkACAD", "mnuXCollegamentoAutoCAD", [&](QWidget& finestra) {
        auto& elenco = dynamic_cast<QListWidget&>(oggetto(finestra, "lstACAD"));
        ASSERT_TRUE(attendi([&] { return elenco.hasFocus(); }));
        EXPECT_EQ(elenco.count(), 2);
        EXPECT_EQ(elenco.currentRow(), 1);
        tasto(Qt::Key_Up);
        EXPECT_EQ(elenco.currentRow(), 0);
        ASSERT_TRUE(oggetto(finestra, "cmdAVVIAcad").isEnabled());
        tasto(Qt::Key_Return);
        EXPECT_TRUE(attendi([&] { return banco.cad.passi.size() == 4; }));
        EXPECT_TRUE(oggetto(finestra, "lblEsito").isVisible());
        tasto(Qt::Key_Escape);
    });
    EXPECT_EQ(banco.cad.passi.front(), "inCorso AutoCAD.Application.16.2");
    EXPECT_TRUE(banco.messaggi.mostrati.empty()) << banco.ultimo();
}

TEST_F(CadVeduto, WithoutAVersionEnterCloses) {
    apri("frmLinkACAD", "mnuXCollegamentoAutoCAD", [&](QWidget& finestra) {
        EXPECT_FALSE(oggetto(finestra, "lstACAD").isVisible());
        EXPECT_TRUE(oggetto(finestra, "lblVuoto").isVisible());
        EXPECT_TRUE(oggetto(finestra, "lblInvece").isVisible());
        ASSERT_TRUE(attendi([&] { return oggetto(finestra, "cmdChiudi").hasFocus(); }));
        tasto(Qt::Key_Return);
    });
}

TEST_F(CadVeduto, TheDocumentsOfTheCompanionAreOpenedByTheMouse) {
    apri("frmKCAD", "mnuXInformazioniKelvoCAD", [&](QWidget& finestra) {
        gesti::clic(oggetto(finestra, "cmdPDF"));
        EXPECT_EQ(banco.documenti.aperti,
                  std::vector<std::string>{"\"" + banco.cartella.file("Support/SW_KelvoCAD_2010.pdf") + "\""});
        for (const char* nome : {"lblDescrizione", "lblPassaggio", "lblStato", "lblInvece"}) {
            const auto& testo = dynamic_cast<QLabel&>(oggetto(finestra, nome));
            EXPECT_GE(testo.height(), testo.heightForWidth(testo.width())) << nome << " is shown whole";
        }
        tasto(Qt::Key_Escape);
    });
}

TEST_F(CadVeduto, TheButtonOfTheToolBarAsksAndOnNoDoesNothing) {
    banco.messaggi.risposte = {Risposta::no};
    ASSERT_TRUE(gesti::bottone(banco.vista, "KelvoCAD"));
    ASSERT_TRUE(attendi([&] { return !banco.messaggi.mostrati.empty(); }));
    EXPECT_EQ(banco.ultimo(), "Attenzione! Per continuare è necessario salvare il progetto. Salvare adesso?");
    EXPECT_TRUE(banco.documenti.avviati.empty());
}

}  // namespace
}  // namespace kelvo::prove
