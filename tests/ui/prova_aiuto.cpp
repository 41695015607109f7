#include <gtest/gtest.h>

#include <QtGui/QShortcut>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTextBrowser>
#include <filesystem>

#include "shell/frmAiuto.h"
#include "ui/VistaPagina.h"
#include "ui/banco.h"

namespace kelvo::prove {
namespace {

using gesti::AlModale;
using gesti::attendi;
using gesti::smaltisci;
using gesti::tasto;

/// The program with the pages of the installation.
class AiutoVeduto : public testing::Test {
protected:
    void SetUp() override {
        std::filesystem::copy(KELVO_CARTELLA "/Support", banco.cartella.file("Support"),
                              std::filesystem::copy_options::recursive);
        ui::cartellaAiuto(banco.cartella.file("Support"));
        banco.mostra();
    }
    /// The help window; null where none is shown.
    QDialog* aiuto() {
        for (QWidget* finestra : QApplication::topLevelWidgets()) {
            if (finestra->objectName() == QStringLiteral("frmAiuto") && finestra->isVisible()) {
                return qobject_cast<QDialog*>(finestra);
            }
        }
        return nullptr;
    }
    QString testo() {
        return aiuto() == nullptr
                   ? QString{}
                   : aiuto()->findChild<QTextBrowser*>(QStringLiteral("ctlPagina"))->toPlainText().trimmed();
    }
    /// Gives the keyboard back to the main window, as a person does with a click.
    void indietro() {
        banco.vista.activateWindow();
        QApplication::setActiveWindow(&banco.vista);
        smaltisci();
    }
    Banco banco;
};

TEST_F(AiutoVeduto, F1ShowsThePageOfTheFieldInFocus) {
    banco.nuovo(3);
    banco.vai("keyTempoModellazione");
    banco.entra("txtSegmentoTempo");
    tasto(Qt::Key_F1);
    ASSERT_TRUE(attendi([&] { return aiuto() != nullptr; }));
    EXPECT_TRUE(testo().startsWith(QStringLiteral("Segmento di tempo"))) << testo().toStdString();
    EXPECT_EQ(banco.nomeCorrente(), "frmTempoModellazione");
    indietro();
    banco.entra("txtTempoFinale");
    tasto(Qt::Key_F1);
    EXPECT_TRUE(attendi([&] { return testo().startsWith(QStringLiteral("Tempo finale")); })) << testo().toStdString();
}

TEST_F(AiutoVeduto, InAWindowWithoutAPaneTooAndOnWhatIsNoTextBox) {
    banco.nuovo(3);
    banco.vai("keyOpzioni");
    banco.entra("ckTREE");
    tasto(Qt::Key_F1);
    ASSERT_TRUE(attendi([&] { return aiuto() != nullptr; }));
    EXPECT_TRUE(testo().startsWith(QStringLiteral("Raggruppa l'albero per tipo"))) << testo().toStdString();
    QTest::keyClick(aiuto(), Qt::Key_Escape);
    EXPECT_TRUE(attendi([&] { return aiuto() == nullptr; }));
}

TEST_F(AiutoVeduto, BesideTheTreeItIsThePageOfTheWindow) {
    banco.nuovo(3);
    banco.vai("keyOpzioni");
    banco.cornice.gestione.corrente()->scordaFuoco();
    banco.albero().setFocus();
    tasto(Qt::Key_F1);
    ASSERT_TRUE(attendi([&] { return aiuto() != nullptr; }));
    EXPECT_TRUE(testo().startsWith(QStringLiteral("Opzioni"))) << testo().toStdString();
    EXPECT_EQ(banco.documenti.aperti.size(), 0U);
}

TEST_F(AiutoVeduto, WithoutAProjectItIsTheGuide) {
    tasto(Qt::Key_F1);
    ASSERT_TRUE(attendi([&] { return !banco.documenti.aperti.empty(); }));
    EXPECT_EQ(aiuto(), nullptr);
}

TEST_F(AiutoVeduto, AModalWindowHasItsHelpAndStaysOpenBelowIt) {
    QString detto;
    bool rimasta = false;
    AlModale numero("frmInputNumeroRami", [&](QWidget& dialogo) {
        EXPECT_TRUE(
            attendi([] { return gesti::fuoco() == "txtNumeroRami" || gesti::fuoco() == "qt_spinbox_lineedit"; }));
        tasto(Qt::Key_F1);
        EXPECT_TRUE(attendi([&] { return aiuto() != nullptr; }));
        detto = testo();
        rimasta = dialogo.isVisible();
        if (aiuto() != nullptr) {
            EXPECT_EQ(aiuto()->parentWidget(), &dialogo) << "it would take no gestures";
            aiuto()->close();
        }
        dialogo.close();
    });
    tasto(Qt::Key_N, Qt::ControlModifier);
    ASSERT_TRUE(attendi([&] { return numero.avvenuto(); }));
    EXPECT_TRUE(detto.startsWith(QStringLiteral("Numero"))) << detto.toStdString();
    EXPECT_TRUE(rimasta);
    EXPECT_FALSE(numero.rimasto());
    // The dialogue took its help window with it; the next one is made anew.
    indietro();
    banco.nuovo(3);
    banco.vai("keyTempoModellazione");
    tasto(Qt::Key_F1);
    EXPECT_TRUE(attendi([&] { return aiuto() != nullptr; }));
}

TEST_F(AiutoVeduto, ALinkOfThePaneOpensItsPageInTheHelpWindow) {
    banco.nuovo(3);
    banco.vai("keyTempoModellazione");
    banco.entra("txtSegmentoTempo");
    auto& riquadro = banco.oggetto<QTextBrowser>("ctlHelp");
    ASSERT_TRUE(riquadro.toHtml().contains(QStringLiteral("TempiModellazione.htm")));
    Q_EMIT riquadro.anchorClicked(QUrl(QStringLiteral("TempiModellazione.htm")));
    ASSERT_TRUE(attendi([&] { return aiuto() != nullptr; }));
    EXPECT_TRUE(testo().startsWith(QStringLiteral("Tempi di modellazione"))) << testo().toStdString();
    auto* pagina = aiuto()->findChild<QTextBrowser*>(QStringLiteral("ctlPagina"));
    Q_EMIT pagina->anchorClicked(QUrl(QStringLiteral("TempoFinale.htm")));
    EXPECT_TRUE(testo().startsWith(QStringLiteral("Tempo finale"))) << testo().toStdString();
    aiuto()->findChild<QPushButton*>(QStringLiteral("cmdIndietro"))->click();
    EXPECT_TRUE(testo().startsWith(QStringLiteral("Tempi di modellazione"))) << testo().toStdString();
}

TEST_F(AiutoVeduto, ClosingTheProjectTakesTheHelpWindowAway) {
    banco.nuovo(3);
    banco.vai("keyTempoModellazione");
    banco.entra("txtSegmentoTempo");
    tasto(Qt::Key_F1);
    ASSERT_TRUE(attendi([&] { return aiuto() != nullptr; }));
    indietro();
    banco.chiudi();
    EXPECT_TRUE(attendi([&] { return aiuto() == nullptr; }));
}

TEST_F(AiutoVeduto, APageThatIsMissingIsToldInThePaneToo) {
    std::filesystem::remove(banco.cartella.file("Support/SegmentoTempo.htm"));
    banco.nuovo(3);
    banco.vai("keyTempoModellazione");
    banco.entra("txtSegmentoTempo");
    EXPECT_TRUE(banco.oggetto<QTextBrowser>("ctlHelp").toPlainText().contains(
        QStringLiteral("La pagina «SegmentoTempo.htm» non può essere mostrata")));
}

TEST_F(AiutoVeduto, TheMapPageLeadsToTheFieldOfThePlaceAndToTheBrowser) {
    banco.nuovo(3);
    banco.vai("keyterra");
    EXPECT_EQ(banco.nomeCorrente(), "frmGoogle");
    auto& vuota = banco.oggetto<QTextBrowser>("ctlBrowser");
    EXPECT_TRUE(vuota.toPlainText().startsWith(QStringLiteral("Dove si trova la rotatoria?")))
        << vuota.toPlainText().toStdString();
    Q_EMIT vuota.anchorClicked(QUrl(QStringLiteral("kelvo:luogo")));
    ASSERT_TRUE(attendi([&] { return gesti::fuoco() == "txtLocalita"; })) << gesti::fuoco();
    EXPECT_EQ(banco.nomeCorrente(), "frmAnagraficaRotonda");
    gesti::digita("Forlì");
    banco.vai("keyterra");
    auto& piena = banco.oggetto<QTextBrowser>("ctlBrowser");
    EXPECT_TRUE(piena.toPlainText().startsWith(QStringLiteral("Forlì"))) << piena.toPlainText().toStdString();
    Q_EMIT piena.anchorClicked(QUrl(QStringLiteral("https://www.openstreetmap.org/search?query=Forl%C3%AC")));
    EXPECT_EQ(banco.documenti.aperti,
              (std::vector<std::string>{"https://www.openstreetmap.org/search?query=Forl%C3%AC"}));
}

TEST_F(AiutoVeduto, TheKeyboardFollowsALinkOfTheMapPage) {
    banco.nuovo(3);
    banco.vai("keyterra");
    banco.entra("ctlBrowser");
    tasto(Qt::Key_Tab);
    tasto(Qt::Key_Return);
    EXPECT_TRUE(attendi([&] { return banco.nomeCorrente() == "frmAnagraficaRotonda"; }));
}

}  // namespace
}  // namespace kelvo::prove
