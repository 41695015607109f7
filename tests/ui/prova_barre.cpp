#include <QtGui/QAction>
#include <QtGui/QShortcut>
#include <QtTest/QTest>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QToolBar>
#include <QtWidgets/QToolButton>
#include <algorithm>

#include "ui/banco.h"

namespace kelvo::prove {
namespace {

using gesti::attendi;
using gesti::smaltisci;
using gesti::tasto;

class Barre : public testing::Test {
protected:
    void SetUp() override { banco.mostra(); }
    QToolBar& barra() { return *banco.vista.findChild<QToolBar*>(QStringLiteral("ctlToolbar")); }
    /// "F6 Albero" and so on, as they are shown.
    std::vector<std::string> suggerimenti() {
        std::vector<std::string> tutti;
        const auto labels = banco.vista.statusBar()
                                ->findChild<QWidget*>(QStringLiteral("suggerimenti"))
                                ->findChildren<QLabel*>(QString{}, Qt::FindDirectChildrenOnly);
        for (qsizetype i = 0; i + 1 < labels.size(); i += 2) {
            EXPECT_EQ(labels[i]->objectName(), QStringLiteral("tastoSuggerito"));
            EXPECT_EQ(labels[i]->isVisible(), labels[i + 1]->isVisible());
            if (labels[i]->isVisible()) {
                tutti.push_back((labels[i]->text() + QLatin1Char(' ') + labels[i + 1]->text()).toStdString());
            }
        }
        return tutti;
    }
    Banco banco;
};

TEST_F(Barre, TheMainBarIs48HighWithIconsOf28) {
    EXPECT_EQ(barra().height(), 48);
    EXPECT_EQ(barra().iconSize(), QSize(28, 28));
    for (QAction* azione : barra().actions()) {
        if (!azione->isSeparator()) {
            const QRect posto = barra().widgetForAction(azione)->geometry();
            EXPECT_TRUE(barra().rect().contains(posto)) << azione->objectName().toStdString();
            EXPECT_GE(posto.height(), 28);
        }
    }
}

TEST_F(Barre, LinesFollowFourOfItsTwelveButtons) {
    std::vector<std::string> fila;
    for (const QAction* azione : barra().actions()) {
        fila.push_back(azione->isSeparator() ? "|" : azione->objectName().toStdString());
    }
    EXPECT_EQ(fila, (std::vector<std::string>{"Nuovo", "Apri", "Salva", "Chiudi", "|", "Help", "Opzioni", "|",
                                              "Analizzatore", "Dx", "Check", "Google", "|", "KelvoCAD", "|", "Esci"}));
}

TEST_F(Barre, WithAProjectTheButtonsOfWindowsAreOpen) {
    banco.nuovo(3);
    for (const char* chiave : {"Google", "KelvoCAD", "Analizzatore", "Dx", "Check", "Opzioni"}) {
        const auto* tasto = barra().findChild<QAction*>(QString::fromLatin1(chiave));
        ASSERT_NE(tasto, nullptr) << chiave;
        EXPECT_TRUE(tasto->isEnabled()) << chiave;
    }
    EXPECT_EQ(barra().findChild<QAction*>(QStringLiteral("Salva"))->toolTip(),
              QStringLiteral("Salva progetto (Ctrl+S)"));
    ASSERT_TRUE(attendi([&] { return banco.vista.findChild<QAction*>(QStringLiteral("keyterra")) != nullptr; }));
    EXPECT_TRUE(banco.vista.findChild<QAction*>(QStringLiteral("keyterra"))->isEnabled());
}

TEST_F(Barre, ShortcutsAreBoundOnceAndShownInTheMenu) {
    banco.nuovo(3);
    smaltisci();
    QList<QKeySequence> tutte;
    for (const QShortcut* scorciatoia : banco.vista.findChildren<QShortcut*>(QString{}, Qt::FindDirectChildrenOnly)) {
        tutte += scorciatoia->keys();
    }
    for (const QKeySequence& una : tutte) {
        EXPECT_EQ(std::count(tutte.begin(), tutte.end(), una), 1) << una.toString().toStdString();
    }
    for (const char* una : {"Ctrl+N", "Ctrl+O", "Ctrl+S", "Ctrl+Shift+S", "Ctrl+W", "Ctrl+Q", "F1", "Shift+F1", "F5",
                            "F6", "F9", "Ctrl+Return", "Ctrl+Enter", "Ctrl+I", "Ctrl+P", "Ctrl+R", "Ctrl+E"}) {
        EXPECT_TRUE(tutte.contains(QKeySequence::fromString(QString::fromLatin1(una)))) << una;
    }
    for (const QAction* azione : banco.vista.findChildren<QAction*>()) {
        EXPECT_TRUE(azione->shortcut().isEmpty()) << azione->objectName().toStdString();
    }
    EXPECT_TRUE(
        banco.vista.findChild<QAction*>(QStringLiteral("mnuSalva"))->text().endsWith(QStringLiteral("\tCtrl+S")));
}

TEST_F(Barre, TheStatusBarShowsTheKeysOfTheMoment) {
    EXPECT_EQ(suggerimenti(), (std::vector<std::string>{"Ctrl+N Nuovo", "Ctrl+O Apri", "F1 Guida"}));
    banco.nuovo(3);
    EXPECT_EQ(suggerimenti(), (std::vector<std::string>{"F6 Albero", "F1 Aiuto"}));
    banco.vai("keyTempoModellazione");
    const auto ora = suggerimenti();
    ASSERT_EQ(ora.size(), 4U);
    EXPECT_EQ(ora[0], "F6 Albero");
    EXPECT_EQ(ora[1], "Ctrl+Invio Aggiorna dati");
    EXPECT_EQ(ora[2].substr(0, 3), "F5 ");
    EXPECT_EQ(ora[3], "F1 Aiuto");
    EXPECT_LE(banco.vista.statusBar()->height(), 30);
}

TEST_F(Barre, ADotStandsBesideTheCaptionUntilTheDataAreWritten) {
    banco.nuovo(3);
    banco.vai("keyAnagraficaRotonda");
    auto& punto = banco.oggetto<QWidget>("segnoDati");
    EXPECT_FALSE(punto.isVisible());
    banco.entra("txtComune");
    gesti::digita("Lucca");
    tasto(Qt::Key_Tab);
    EXPECT_TRUE(attendi([&] { return punto.isVisible(); }));
    EXPECT_EQ(punto.toolTip(), QStringLiteral("Dati non ancora registrati"));
    EXPECT_TRUE(punto.parentWidget()->rect().contains(punto.geometry()));
    EXPECT_GT(punto.geometry().left(), 16);
    tasto(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_TRUE(attendi([&] { return !punto.isVisible(); }));
    EXPECT_EQ(banco.app.theRotonda().Comune(), "Lucca");
    EXPECT_EQ(banco.vista.windowTitle(), QStringLiteral("KELVO 2014 - [.klv] *"));
}

TEST_F(Barre, AButtonOfTheWindowPressedByTheMouseMarksTheTitleToo) {
    banco.nuovo(3);
    banco.vai("keyAnagraficaRotonda");
    banco.entra("txtComune");
    gesti::digita("Pisa");
    auto* strumenti = banco.vista.vistaCorrente()->findChild<QToolBar*>(QStringLiteral("ctlToolbar"));
    auto* azione = strumenti->findChild<QAction*>(QStringLiteral("AggiornaDati"));
    QTest::mouseClick(strumenti->widgetForAction(azione), Qt::LeftButton);
    smaltisci();
    EXPECT_EQ(banco.app.theRotonda().Comune(), "Pisa");
    EXPECT_EQ(banco.vista.windowTitle(), QStringLiteral("KELVO 2014 - [.klv] *"));
}

}  // namespace
}  // namespace kelvo::prove
