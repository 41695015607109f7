// The results of all entries by keyboard and mouse: calculation, tabs, the map of the levels, copies, the spreadsheet's
// button.

#include <QtGui/QImage>
#include <QtGui/QPixmap>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLabel>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QTextBrowser>
#include <algorithm>
#include <filesystem>
#include <string>

#include "comune/appunti.h"
#include "results/frmCapacitaCodeRitardi.h"
#include "ui/VistaGriglia.h"
#include "ui/banco.h"
#include "ui/results/VistaMappa.h"
#include "ui/stile.h"

namespace kelvo::prove {
namespace {

using gesti::attendi;
using gesti::smaltisci;
using gesti::tasto;

class Verifiche : public testing::Test {
protected:
    AppuntiFinti blocco;
    void apri(const std::string& esempio) {
        banco.app.appunti = &blocco;
        banco.mostra();
        banco.apri(std::string{KELVO_SORGENTI} + "/assets/Progetti/" + esempio + ".klv");
        banco.vai("keyCodeRitardi_Out");
        ASSERT_EQ(banco.nomeCorrente(), "frmCapacitaCodeRitardi") << banco.ultimo();
        smaltisci();
    }
    void calcola() {
        tasto(Qt::Key_F9);
        smaltisci();
    }
    frmCapacitaCodeRitardi& finestra() {
        return dynamic_cast<frmCapacitaCodeRitardi&>(*banco.cornice.gestione.corrente());
    }
    QTabWidget& schede() { return banco.oggetto<QTabWidget>("ctlTab"); }
    void scheda(int indice) {
        schede().setCurrentIndex(indice);
        smaltisci();
    }
    ui::VistaMappa& mappa() { return banco.oggetto<ui::VistaMappa>("ctlMappa"); }
    ui::VistaGriglia& griglia(const char* nome) { return banco.oggetto<ui::VistaGriglia>(nome); }
    std::string parole(const char* nome) { return banco.oggetto<QLabel>(nome).text().toStdString(); }
    /// How many help panes are seen.
    int pagineViste() {
        const auto pagine = banco.vista.vistaCorrente()->findChildren<QTextBrowser*>(QStringLiteral("ctlHelp"));
        return static_cast<int>(
            std::count_if(pagine.begin(), pagine.end(), [](const QTextBrowser* p) { return p->isVisible(); }));
    }
    void clicMappa(Posto cella) {
        gesti::clic(*mappa().viewport(), mappa().posto(cella).center());
        smaltisci();
    }

    Banco banco;
};

TEST_F(Verifiche, CalculatesWithItsButtonAndItsKeyAndOnEveryTab) {
    apri("Rotatoria_Via_dei_Mulini");
    auto& invito = banco.oggetto<QAbstractButton>("cmdCalcola");
    EXPECT_EQ(pagineViste(), 0) << "the table has the room";
    for (const int i : {1, 2, 0}) {
        scheda(i);
        EXPECT_TRUE(invito.isVisible());
        EXPECT_EQ(invito.text().remove(QLatin1Char('&')).toStdString(), "Calcola (F9)");
    }
    EXPECT_EQ(finestra().ctlGrid.testo(2, 1), "");
    gesti::clic(invito);
    smaltisci();
    EXPECT_FALSE(invito.isVisible());
    EXPECT_NE(finestra().ctlGrid.testo(2, 1), "");
    EXPECT_EQ(finestra().ctlSintesi.testo(4, 1), "07:45 - 08:45");
    EXPECT_TRUE(banco.messaggi.mostrati.empty()) << banco.ultimo();
}

TEST_F(Verifiche, TheTabsAreReachedByTheKeyboard) {
    apri("Rotatoria_Via_dei_Mulini");
    calcola();
    banco.entra("ctlGrid");
    for (const int i : {1, 2, 0}) {
        tasto(Qt::Key_Tab, Qt::ControlModifier);
        smaltisci();
        EXPECT_EQ(schede().currentIndex(), i);
        EXPECT_EQ(finestra().ctlTab.corrente(), i);
        banco.entra(i == 0 ? "ctlGrid" : i == 1 ? "ctlSintesi" : "ctlMappa");
    }
}

TEST_F(Verifiche, CtrlTabGoesThroughTheTabsFromWhereverTheKeyboardIs) {
    apri("Rotatoria_Via_dei_Mulini");
    calcola();
    banco.entra("cmdInVigore");
    for (const int i : {1, 2, 0, 1}) {
        tasto(Qt::Key_Tab, Qt::ControlModifier);
        smaltisci();
        EXPECT_EQ(finestra().ctlTab.corrente(), i);
        EXPECT_EQ(schede().currentIndex(), i);
    }
    tasto(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    smaltisci();
    EXPECT_EQ(finestra().ctlTab.corrente(), 0);
}

TEST_F(Verifiche, OnTheSmallestWindowTheLegendOfTheLevelsTakesMoreLinesAndNothingIsScrolledAside) {
    apri("Rotatoria_Via_dei_Mulini");
    calcola();
    scheda(2);
    banco.vista.resize(1440, 900);
    smaltisci();
    auto& legenda = banco.oggetto("legendaLivelli");
    EXPECT_EQ(legenda.height(), ui::misura::campo) << "one line where there is room";
    banco.vista.resize(ui::misura::larghezzaMinima, ui::misura::altezzaMinima);
    smaltisci();
    EXPECT_EQ(legenda.height(), legenda.heightForWidth(legenda.width()));
    EXPECT_EQ(legenda.heightForWidth(legenda.sizeHint().width()), ui::misura::campo);
    EXPECT_EQ(legenda.heightForWidth(legenda.sizeHint().width() - 1), 2 * ui::misura::campo);
    for (const int i : {0, 1, 2}) {
        scheda(i);
        auto* scorre = banco.vista.vistaCorrente()->findChild<QScrollArea*>();
        ASSERT_NE(scorre, nullptr);
        EXPECT_EQ(scorre->horizontalScrollBar()->maximum(), 0) << i;
    }
}

TEST_F(Verifiche, TheTabOfPeakHoursShowsItsTableItsWordsAndItsPreview) {
    apri("Rotatoria_Tangenziale_est");
    calcola();
    scheda(1);
    EXPECT_TRUE(griglia("ctlSintesi").isVisible());
    EXPECT_FALSE(griglia("ctlGrid").isVisible());
    EXPECT_EQ(parole("lblPeggiore"),
              "Ingresso peggiore: Tangenziale est, saturazione 1,233 nel segmento 08:15 - 08:30.");
    EXPECT_EQ(parole("lblSaturazione").rfind("Saturazione oltre 0,85: Tangenziale est 1,233 (08:15 - 08:30); ", 0), 0U);
    EXPECT_EQ(pagineViste(), 1);
    gesti::clic(banco.oggetto("cmdAnteprimaSintesi"));
    ASSERT_EQ(banco.documenti.aperti.size(), 1U);
    EXPECT_NE(banco.documenti.aperti.front().find("Sintesi.txt"), std::string::npos);
}

TEST_F(Verifiche, EveryRowOfPeakHoursIsInViewAndItsWordsStandRightBelow) {
    apri("Rotatoria_Aurelia_Sette_Strade");
    calcola();
    scheda(1);
    for (const QSize misura : {QSize(1440, 900), QSize(1366, 768)}) {
        banco.vista.resize(misura);
        smaltisci();
        auto& tabella = griglia("ctlSintesi");
        EXPECT_EQ(tabella.verticalScrollBar()->maximum(), 0) << misura.width();
        EXPECT_EQ(tabella.horizontalScrollBar()->maximum(), 0) << misura.width();
        const int fine = tabella.posto({8, 1}).bottom();
        EXPECT_LE(tabella.height() - fine, 4) << "no room is left below the last row";
    }
}

TEST_F(Verifiche, SeventyTwoSegmentsOfSevenEntriesAreSeenAtOnce) {
    apri("Rotatoria_Aurelia_Sette_Strade");
    ASSERT_EQ(finestra().ctlMappa.tabella().colonne(), 1 + 72);
    calcola();
    scheda(2);
    for (const QSize misura : {QSize(1440, 900), QSize(1366, 768)}) {
        banco.vista.resize(misura);
        smaltisci();
        EXPECT_EQ(mappa().horizontalScrollBar()->maximum(), 0) << misura.width();
        const QRect ultima = mappa().posto({7, 72});
        EXPECT_TRUE(mappa().viewport()->rect().contains(ultima.center()));
        EXPECT_GE(ultima.width(), 10) << "room for a letter";
    }
    // On a small window the letters keep their room and the map is scrolled.
    banco.vista.resize(960, 600);
    smaltisci();
    EXPECT_GT(mappa().horizontalScrollBar()->maximum(), 0);
    clicMappa({1, 2});
    tasto(Qt::Key_End);
    smaltisci();
    EXPECT_TRUE(mappa().viewport()->rect().contains(mappa().posto({1, 72}).center()));
    tasto(Qt::Key_Home);
    smaltisci();
    EXPECT_EQ(mappa().horizontalScrollBar()->value(), 0);
}

TEST_F(Verifiche, ACellOfTheMapHasTheGroundOfItsLevel) {
    apri("Rotatoria_Tangenziale_est");
    calcola();
    scheda(2);
    const QImage figura = mappa().viewport()->grab().toImage();
    const double rapporto = figura.devicePixelRatio();
    int viste = 0;
    const Tabella& t = finestra().ctlMappa.tabella();
    for (int r = 1; r < t.righe(); ++r) {
        for (int c = 1; c < t.colonne(); ++c) {
            const QPointF angolo = QPointF(mappa().posto({r, c}).topLeft() + QPoint(3, 3)) * rapporto;
            EXPECT_EQ(figura.pixelColor(angolo.toPoint()), ui::qcolore(t.cella(r, c).sfondo)) << r << " " << c;
            viste += t.testo(r, c) == "F" ? 1 : 0;
        }
    }
    EXPECT_GT(viste, 0);
}

TEST_F(Verifiche, ClicksAndArrowsTellTheCellsOfTheMap) {
    apri("Rotatoria_Tangenziale_est");
    calcola();
    scheda(2);
    clicMappa({2, 3});
    EXPECT_EQ(gesti::fuoco(), "ctlMappa");
    const auto inizio = [&](int r, int c) {
        const Tabella& t = finestra().ctlMappa.tabella();
        return t.testo(r, 0) + ", " + t.testo(0, c) + ": L.O.S. " + t.testo(r, c) + ", ritardo ";
    };
    EXPECT_EQ(parole("lblCella").rfind(inizio(2, 3), 0), 0U) << parole("lblCella");
    tasto(Qt::Key_Right);
    smaltisci();
    EXPECT_EQ(parole("lblCella").rfind(inizio(2, 4), 0), 0U) << parole("lblCella");
    tasto(Qt::Key_Down);
    smaltisci();
    EXPECT_EQ(parole("lblCella").rfind(inizio(3, 4), 0), 0U) << parole("lblCella");
    clicMappa({1, 1});
    EXPECT_EQ(parole("lblCella").rfind(inizio(1, 1), 0), 0U) << parole("lblCella");
}

TEST_F(Verifiche, ABlockOfTheMapIsCopied) {
    apri("Rotatoria_Tangenziale_est");
    calcola();
    scheda(2);
    clicMappa({1, 1});
    tasto(Qt::Key_Right, Qt::ShiftModifier);
    tasto(Qt::Key_Down, Qt::ShiftModifier);
    tasto(Qt::Key_C, Qt::ControlModifier);
    const Tabella& t = finestra().ctlMappa.tabella();
    EXPECT_EQ(blocco.testo, t.testo(1, 1) + "\t" + t.testo(1, 2) + "\r\n" + t.testo(2, 1) + "\t" + t.testo(2, 2));
    tasto(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_NE(blocco.testo.find(t.testo(0, 1)), std::string::npos);
    EXPECT_NE(blocco.testo.find(t.testo(2, 0)), std::string::npos);
}

TEST_F(Verifiche, WhatCopiesAndSavesFollowsTheTab) {
    apri("Rotatoria_Via_dei_Mulini");
    calcola();
    for (Griglia* griglia : {&finestra().ctlGrid, &finestra().ctlSintesi, &finestra().ctlMappa}) {
        EXPECT_EQ(finestra().menuDati(), griglia->menu()) << griglia->nome();
        scheda(std::min(2, schede().currentIndex() + 1));
    }
}

TEST_F(Verifiche, TheSpreadsheetIsMadeByKeyAndByButtonOnceThereAreFigures) {
    apri("Rotatoria_Via_dei_Mulini");
    const std::string foglio = banco.cartella.file("xls/Risultati.xlsx");
    EXPECT_FALSE(banco.oggetto("Cmd_EXCEL").isEnabled());
    EXPECT_EQ(parole("lblExcel"), "Disponibile dopo Calcola");
    tasto(Qt::Key_E, Qt::ControlModifier);
    EXPECT_FALSE(std::filesystem::exists(foglio));
    calcola();
    tasto(Qt::Key_E, Qt::ControlModifier);
    ASSERT_EQ(banco.documenti.aperti.size(), 1U);
    EXPECT_EQ(banco.documenti.aperti.front(), foglio);
    EXPECT_EQ(contenuto(foglio).substr(0, 2), "PK");
    EXPECT_EQ(contenuto(banco.cartella.file("xls/Risultati.txt")).rfind("Risultati: Verifiche prestazionali\r\n", 0),
              0U);
    std::filesystem::remove(foglio);
    banco.oggetto<QAbstractButton>("Cmd_EXCEL").click();
    EXPECT_EQ(banco.documenti.aperti.size(), 2U);
    EXPECT_TRUE(std::filesystem::exists(foglio));
    EXPECT_TRUE(banco.messaggi.mostrati.empty());
}

TEST_F(Verifiche, WithoutASpreadsheetProgramTheWindowSaysWhereTheFileIs) {
    apri("Rotatoria_Via_dei_Mulini");
    calcola();
    banco.documenti.riesce = false;
    banco.oggetto<QAbstractButton>("Cmd_EXCEL").click();
    ASSERT_EQ(banco.messaggi.mostrati.size(), 1U);
    EXPECT_NE(banco.messaggi.mostrati.front().testo.find(banco.cartella.file("xls/Risultati.xlsx")), std::string::npos);
}

TEST_F(Verifiche, ALongTableIsScrolledByKeysFromEndToEnd) {
    apri("Rotatoria_Aurelia_Sette_Strade");
    calcola();
    ASSERT_EQ(finestra().ctlGrid.tabella().righe(), 72 * 8 + 1);
    banco.entra("ctlGrid");
    tasto(Qt::Key_End, Qt::ControlModifier);
    smaltisci();
    auto& tabella = griglia("ctlGrid");
    EXPECT_EQ(tabella.verticalScrollBar()->value(), tabella.verticalScrollBar()->maximum());
    EXPECT_EQ(finestra().ctlGrid.corrente(), (Posto{576, 6}));
    tasto(Qt::Key_Home, Qt::ControlModifier);
    smaltisci();
    EXPECT_EQ(tabella.verticalScrollBar()->value(), 0);
}

TEST_F(Verifiche, LeavingAndComingBackKeepsFiguresAndTab) {
    apri("Rotatoria_Via_dei_Mulini");
    calcola();
    scheda(2);
    banco.vai("keyTempoModellazione");
    banco.vai("keyCodeRitardi_Out");
    EXPECT_EQ(schede().currentIndex(), 2);
    EXPECT_TRUE(mappa().isVisible());
    EXPECT_NE(finestra().ctlMappa.testo(1, 1), "");
    EXPECT_FALSE(finestra().lblVecchi.visibile());
}

}  // namespace
}  // namespace kelvo::prove
