// The results of an entry by keyboard and mouse: calculate, tabs, options of the charts, legend, thresholds, previews;
// what belongs to the window goes with it.

#include <QtGui/QContextMenuEvent>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialog>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTabWidget>
#include <filesystem>
#include <string>

#include "comune/appunti.h"
#include "results/frmCapacitaCodeRitardiRamo.h"
#include "ui/VistaGriglia.h"
#include "ui/banco.h"

namespace kelvo::prove {
namespace {

using gesti::attendi;
using gesti::smaltisci;
using gesti::tasto;

class RisultatiRamo : public testing::Test {
protected:
    /// Opens an example and goes to the results of an entry.
    void apri(const std::string& progetto, int ramo = 1) {
        percorso = banco.cartella.file(progetto + ".klv");
        std::filesystem::copy_file(std::string{KELVO_SORGENTI "/assets/Progetti/"} + progetto + ".klv", percorso);
        banco.mostra();
        banco.apri(percorso);
        banco.vai("keyCodeRitardi_Out" + std::to_string(ramo));
        ASSERT_EQ(banco.nomeCorrente(), "frmCapacitaCodeRitardiRamo");
    }
    frmCapacitaCodeRitardiRamo& finestra() {
        return dynamic_cast<frmCapacitaCodeRitardiRamo&>(*banco.cornice.finestre.viva("frmCapacitaCodeRitardiRamo"));
    }
    void calcola() {
        tasto(Qt::Key_F9);
        ASSERT_TRUE(attendi([&] { return finestra().conFigure(); }));
        smaltisci();
    }
    ui::VistaGriglia& griglia() { return banco.oggetto<ui::VistaGriglia>("ctlGrid"); }
    /// The right button on the first cell of figures.
    void tastoDestro() {
        const QPoint dove = griglia().posto({1, 1}).center() - griglia().viewport()->pos();
        QTest::mouseClick(griglia().viewport(), Qt::RightButton, {}, dove);
        smaltisci();
    }
    /// The legend; null while it is not shown.
    QWidget* legenda() {
        auto* vista = banco.vista.area().findChild<QWidget*>(QStringLiteral("frmLEGENDA"));
        return vista != nullptr && vista->isVisible() ? vista : nullptr;
    }
    void premi(const char* nome) {
        gesti::clic(banco.oggetto(nome), banco.oggetto(nome).rect().center());
        smaltisci();
    }
    void aggiuntivi() {
        tasto(Qt::Key_F7);
        ASSERT_TRUE(attendi([&] { return banco.nomeCorrente() == "frmRAMO_AGGIUNTIVA"; }));
        smaltisci();
    }
    void ritorno() {
        tasto(Qt::Key_Return, Qt::ControlModifier);
        smaltisci();
    }
    bool tornata() { return banco.nomeCorrente() == "frmCapacitaCodeRitardiRamo"; }
    /// Ticks a threshold and types its values, by keyboard alone.
    void soglia(const char* spunta, const char* minimo, const std::string& sotto, const std::string& sopra) {
        banco.entra(spunta);
        if (!banco.oggetto<QCheckBox>(spunta).isChecked()) {
            tasto(Qt::Key_Space);
            smaltisci();
        }
        tasto(Qt::Key_Tab);
        smaltisci();
        ASSERT_EQ(gesti::fuoco(), minimo);
        gesti::digita(sotto);
        tasto(Qt::Key_Tab);
        smaltisci();
        gesti::digita(sopra);
        tasto(Qt::Key_Tab);
        smaltisci();
    }

    Banco banco;
    std::string percorso;
};

TEST_F(RisultatiRamo, TheButtonInTheMiddleCalculatesAndTheKeyboardGoesToTheTable) {
    apri("Rotatoria_Via_dei_Mulini");
    auto& bottone = banco.oggetto<QPushButton>("cmdCalcola");
    ASSERT_TRUE(attendi([&] { return bottone.hasFocus(); })) << gesti::fuoco();
    const QPoint mezzo = bottone.geometry().center() - griglia().rect().center();
    EXPECT_LE(mezzo.manhattanLength(), 2);
    tasto(Qt::Key_Return);
    ASSERT_TRUE(attendi([&] { return finestra().conFigure(); }));
    EXPECT_FALSE(bottone.isVisible());
    EXPECT_TRUE(attendi([&] { return griglia().hasFocus(); })) << gesti::fuoco();
    EXPECT_FALSE(banco.oggetto("lblVecchi").isVisible());
    EXPECT_FALSE(banco.oggetto("note").isVisible()) << "no strip without a note";
    EXPECT_TRUE(banco.messaggi.mostrati.empty()) << banco.ultimo();
}

TEST_F(RisultatiRamo, TheToolsFollowTheCalculation) {
    apri("Rotatoria_Via_dei_Mulini");
    auto* aggiuntivi = banco.vista.findChild<QAction*>(QStringLiteral("Aggiuntivi"));
    ASSERT_NE(aggiuntivi, nullptr);
    EXPECT_FALSE(aggiuntivi->isEnabled());
    tasto(Qt::Key_F7);
    smaltisci();
    EXPECT_TRUE(tornata()) << "a closed tool does nothing by its key either";
    calcola();
    EXPECT_TRUE(aggiuntivi->isEnabled());
    EXPECT_FALSE(banco.vista.findChild<QAction*>(QStringLiteral("Visualizza"))->isEnabled());
}

TEST_F(RisultatiRamo, CtrlTabGoesThroughTheTabsFromWhereverTheKeyboardIs) {
    apri("Rotatoria_Via_dei_Mulini");
    calcola();
    banco.entra("chkValori");
    for (const int attesa : {1, 2, 3, 4, 5, 0, 1}) {
        tasto(Qt::Key_Tab, Qt::ControlModifier);
        smaltisci();
        EXPECT_EQ(finestra().ctlTab.corrente(), attesa);
        EXPECT_EQ(banco.oggetto<QTabWidget>("ctlTab").currentIndex(), attesa);
    }
    EXPECT_TRUE(banco.oggetto("ctlChartCapacita").isVisible());
    EXPECT_TRUE(banco.oggetto("txtMAX").isVisible());
    EXPECT_FALSE(banco.oggetto("txtMAX2").isVisible());
    EXPECT_EQ(banco.oggetto<QLineEdit>("txtMAX").text().toStdString(), finestra().riassunti[0].massimo.testo());
    tasto(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    smaltisci();
    EXPECT_EQ(finestra().ctlTab.corrente(), 0);
    gesti::clic(*banco.oggetto<QTabWidget>("ctlTab").tabBar(),
                banco.oggetto<QTabWidget>("ctlTab").tabBar()->tabRect(4).center());
    smaltisci();
    EXPECT_EQ(finestra().ctlTab.corrente(), 4);
    EXPECT_TRUE(banco.oggetto("ctlChartRitardi").isVisible());
}

TEST_F(RisultatiRamo, OptionsOfTheChartsRedrawThemAtOnce) {
    apri("Rotatoria_Via_dei_Mulini");
    calcola();
    finestra().ctlTab.scegli(1);
    smaltisci();
    const auto disegno = [&] { return banco.oggetto("ctlChartCapacita").grab().toImage(); };
    const QImage barre = disegno();
    banco.entra("optBARRE");
    tasto(Qt::Key_Up);
    smaltisci();
    EXPECT_EQ(finestra().opzForma.scelta(), 0);
    const QImage linee = disegno();
    EXPECT_NE(linee, barre);
    banco.entra("chkValori");
    tasto(Qt::Key_Space);
    smaltisci();
    EXPECT_NE(disegno(), linee);
    EXPECT_FALSE(finestra().grafici[4].contenuto().valori) << "all of them";
}

TEST_F(RisultatiRamo, TheRightButtonBringsTheLegendBesideTheTable) {
    apri("Rotatoria_Via_dei_Mulini");
    calcola();
    EXPECT_EQ(legenda(), nullptr);
    tastoDestro();
    ASSERT_NE(legenda(), nullptr);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << "no menu with it";
    const QRect sua(legenda()->mapTo(&banco.vista, QPoint{}), legenda()->size());
    const QRect tabella(griglia().mapTo(&banco.vista, QPoint{}), griglia().size());
    EXPECT_FALSE(sua.intersects(tabella));
    EXPECT_TRUE(banco.vista.rect().contains(sua));
    EXPECT_FALSE(legenda()->findChild<QLabel*>(QStringLiteral("lblColore1"))->isVisible());
    premi("cmdMARKER");
    EXPECT_TRUE(legenda()->findChild<QLabel*>(QStringLiteral("lblColore1"))->isVisible());
    banco.vista.resize(banco.vista.width() + 120, banco.vista.height() + 60);
    smaltisci();
    const QRect dopo(legenda()->mapTo(&banco.vista, QPoint{}), legenda()->size());
    EXPECT_EQ(dopo.right() - sua.right(), 120) << "it stays at the edge";
    tasto(Qt::Key_Escape);
    smaltisci();
    EXPECT_EQ(legenda(), nullptr);
    QWidget* testata = griglia().horizontalHeader()->viewport();
    QContextMenuEvent sulTitolo(QContextMenuEvent::Mouse, {5, 5}, testata->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(testata, &sulTitolo);
    smaltisci();
    EXPECT_NE(legenda(), nullptr) << "a heading is of the table too";
    tastoDestro();
    ASSERT_NE(legenda(), nullptr);
    gesti::clic(*legenda()->findChild<QWidget*>(QStringLiteral("cmdChiudi")), {3, 3});
    smaltisci();
    EXPECT_EQ(legenda(), nullptr);
}

TEST_F(RisultatiRamo, TheMenuKeyBringsTheLegendAndWhatCopiesAndSaves) {
    AppuntiFinti appunti;
    banco.app.appunti = &appunti;
    apri("Rotatoria_Via_dei_Mulini");
    calcola();
    griglia().setFocus();
    QContextMenuEvent evento(QContextMenuEvent::Keyboard, {5, 5}, griglia().mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&griglia(), &evento);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    ASSERT_GE(menu->actions().size(), 4);
    EXPECT_EQ(menu->actions()[0]->text().toStdString(), "Legenda valori e colori");
    EXPECT_EQ(menu->actions()[2]->text().section(QLatin1Char('\t'), 0, 0).toStdString(), "Copia");
    tasto(Qt::Key_Down);
    tasto(Qt::Key_Return);
    smaltisci();
    EXPECT_NE(legenda(), nullptr);
    ASSERT_TRUE(gesti::davanti(banco.vista));
    banco.entra("ctlGrid");
    tasto(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(appunti.testo, finestra().ctlGrid.testo(1, 1));
    banco.app.appunti = nullptr;
}

TEST_F(RisultatiRamo, TheButtonBelowSavesTheTableOrTheChartInView) {
    apri("Rotatoria_Via_dei_Mulini");
    calcola();
    banco.entra("cmdDati");
    tasto(Qt::Key_Return);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    banco.dialogo.scelte = {banco.cartella.file("tabella.csv")};
    for (int i = 0; i < 3; ++i) {
        tasto(Qt::Key_Up);  // from the end: the two for paper stand behind it
    }
    tasto(Qt::Key_Return);
    smaltisci();
    const std::string csv = contenuto(banco.cartella.file("tabella.csv"));
    EXPECT_NE(csv.find(finestra().ctlGrid.testo(1, 0)), std::string::npos);
    EXPECT_NE(csv.find("Capacità [veic/h]"), std::string::npos);
    finestra().ctlTab.scegli(5);
    smaltisci();
    premi("cmdDati");
    menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->actions()[0]->text().toStdString(), "Copia immagine");
    menu->close();
    smaltisci();
}

TEST_F(RisultatiRamo, WhatIsInForceOpensBelowTheFigures) {
    apri("Rotatoria_Via_dei_Mulini");
    EXPECT_FALSE(banco.oggetto("ctlInVigore").isVisible());
    premi("cmdInVigore");
    EXPECT_TRUE(banco.oggetto("ctlInVigore").isVisible());
    EXPECT_GT(griglia().height(), 60) << "the table keeps room";
    EXPECT_FALSE(banco.oggetto<QLabel>("lblInVigore").text().isEmpty());
    EXPECT_EQ(banco.oggetto<QLabel>("lblInVigore").toolTip(), banco.oggetto<QLabel>("lblInVigore").text());
    premi("cmdInVigore");
    EXPECT_FALSE(banco.oggetto("ctlInVigore").isVisible());
}

TEST_F(RisultatiRamo, FiguresOlderThanTheDataAreToldAboveThem) {
    apri("Rotatoria_Via_dei_Mulini");
    calcola();
    banco.vai("keyTempoModellazione");
    banco.app.theRotonda().Ramo(1).LarghezzaIngresso(9.0F);
    banco.vai("keyCodeRitardi_Out1");
    EXPECT_TRUE(banco.oggetto("note").isVisible());
    EXPECT_TRUE(banco.oggetto("lblVecchi").isVisible());
    calcola();
    EXPECT_FALSE(banco.oggetto("note").isVisible());
}

TEST_F(RisultatiRamo, ThresholdsAreTypedCheckedAndColourTheTable) {
    apri("Rotatoria_Via_dei_Mulini");
    calcola();
    const StatisticheIngresso s = finestra().statistiche();
    premi("cmdMARKER");
    aggiuntivi();
    const double quarto = (s.ValoriMassimi[1] - s.ValoriMinimi[1]) / 4.0;
    const std::string sotto = formatta(s.ValoriMinimi[1] + quarto, "#0.00");
    const std::string sopra = formatta(s.ValoriMassimi[1] - quarto, "#0.00");
    soglia("chCAPACITA", "txtvalMIN2", "999999", sopra);
    ASSERT_FALSE(banco.messaggi.mostrati.empty());
    EXPECT_NE(banco.ultimo().find("Attenzione! valori ammessi: MINIMO = "), std::string::npos);
    banco.messaggi.mostrati.clear();
    ritorno();
    EXPECT_FALSE(tornata());
    EXPECT_NE(banco.ultimo().find("valori ammessi per la CAPACITA'"), std::string::npos);
    banco.messaggi.mostrati.clear();
    soglia("chCAPACITA", "txtvalMIN2", sopra, sotto);
    EXPECT_NE(banco.ultimo().find("Attenzione! valore MASSIMO < valore MINIMO  " + sotto + " < " + sopra),
              std::string::npos)
        << banco.ultimo();
    banco.messaggi.mostrati.clear();
    soglia("chCAPACITA", "txtvalMIN2", sotto, sopra);
    EXPECT_TRUE(banco.messaggi.mostrati.size() <= 1) << "only the step between the two pairs may be told";
    banco.messaggi.mostrati.clear();
    ritorno();
    ASSERT_TRUE(tornata()) << banco.ultimo();
    ASSERT_TRUE(banco.vista.findChild<QAction*>(QStringLiteral("Visualizza"))->isEnabled());
    tasto(Qt::Key_F8);
    smaltisci();
    const auto tinte = [&](const Colore& colore) {
        const Tabella& tabella = finestra().ctlGrid.tabella();
        int quante = 0;
        for (int r = 1; r < tabella.righe(); ++r) {
            quante += tabella.cella(r, 2).sfondo == colore ? 1 : 0;
        }
        return quante;
    };
    EXPECT_GT(tinte(colori::sopraSoglia), 0);
    EXPECT_GT(tinte(colori::sottoSoglia), 0);
    calcola();
    EXPECT_EQ(tinte(colori::sopraSoglia), 0) << "a new filling takes the marks away";
    EXPECT_EQ(tinte(colori::sottoSoglia), 0);
}

TEST_F(RisultatiRamo, TheAdditionalWindowShowsWhatIsInForceBelowTheSummary) {
    apri("Rotatoria_Via_dei_Mulini");
    calcola();
    premi("cmdRIASSUNTO");
    premi("cmdMARKER");
    aggiuntivi();
    auto* vista = banco.vista.vistaCorrente();
    auto* riga = vista->findChild<QLabel*>(QStringLiteral("lblInVigore"));
    ASSERT_NE(riga, nullptr);
    EXPECT_TRUE(riga->isVisible());
    EXPECT_EQ(riga->text().toStdString(), finestra().lblInVigore.testo());
    const auto cima = [&](const char* nome) {
        return vista->findChild<QWidget*>(QString::fromLatin1(nome))->mapTo(vista, QPoint{}).y();
    };
    EXPECT_GT(cima("lblInVigore"), cima("txtminLOS"));
    EXPECT_LT(cima("lblInVigore"), cima("chFLUSSO"));
}

TEST_F(RisultatiRamo, LevelsAreChosenByKeyAndAnUpperOneBeforeTheLowerIsRefused) {
    apri("Rotatoria_Via_dei_Mulini");
    calcola();
    premi("cmdMARKER");
    aggiuntivi();
    banco.entra("chLOS");
    tasto(Qt::Key_Space);
    smaltisci();
    ritorno();
    EXPECT_FALSE(tornata());
    EXPECT_EQ(banco.ultimo(), "Attenzione! Selezionare un valore corretto per i livelli di servizio (L.O.S.)");
    banco.messaggi.mostrati.clear();
    banco.entra("comboLOSmin");
    gesti::digita("C");
    banco.entra("comboLOSmax");
    gesti::digita("A");
    smaltisci();
    EXPECT_EQ(banco.ultimo(), "Selezionare un LOS coerente!");
    EXPECT_EQ(banco.oggetto<QComboBox>("comboLOSmax").currentText(), QStringLiteral("-"));
    banco.messaggi.mostrati.clear();
    tasto(Qt::Key_End);
    smaltisci();
    EXPECT_TRUE(banco.messaggi.mostrati.empty()) << banco.ultimo();
    ritorno();
    EXPECT_TRUE(tornata()) << banco.ultimo();
    EXPECT_EQ(banco.app.risultati.marker.MarkerMinimo(1, 6), 15.0);
    EXPECT_EQ(banco.app.risultati.marker.MarkerMassimo(1, 6), 30.0);
}

TEST_F(RisultatiRamo, OnlyDigitsAndTheCommaComeThroughAndAFieldWithoutANumberKeepsTheKeyboard) {
    apri("Rotatoria_Via_dei_Mulini");
    calcola();
    premi("cmdMARKER");
    aggiuntivi();
    EXPECT_FALSE(banco.oggetto("txtvalMIN1").isEnabled());
    banco.entra("chFLUSSO");
    tasto(Qt::Key_Space);
    smaltisci();
    EXPECT_TRUE(banco.oggetto("txtvalMIN1").isEnabled());
    banco.entra("txtvalMIN1");
    auto& campo = banco.oggetto<QLineEdit>("txtvalMIN1");
    campo.selectAll();
    gesti::digita("-1.a2,5e");
    EXPECT_EQ(campo.text(), QStringLiteral("12,5"));
    campo.selectAll();
    gesti::digita(",");
    tasto(Qt::Key_Tab);
    smaltisci();
    EXPECT_EQ(banco.ultimo(), "Attenzione! Inserire solo valori numerici");
    EXPECT_EQ(gesti::fuoco(), "txtvalMIN1");
    tasto(Qt::Key_Escape);
    smaltisci();
    banco.entra("chFLUSSO");
    tasto(Qt::Key_Space);
    smaltisci();
    EXPECT_FALSE(campo.isEnabled());
}

TEST_F(RisultatiRamo, TheSeventhEntryHasNoThresholdsAndIsTold) {
    apri("Rotatoria_Aurelia_Sette_Strade", 7);
    calcola();
    premi("cmdMARKER");
    aggiuntivi();
    ASSERT_EQ(banco.messaggi.mostrati.size(), 1U);
    EXPECT_NE(banco.ultimo().find("Indice non compreso nell'intervallo"), std::string::npos) << banco.ultimo();
    EXPECT_TRUE(banco.oggetto("lblSenzaSoglie").isVisible());
    EXPECT_FALSE(banco.oggetto("chFLUSSO").isEnabled());
    ritorno();
    EXPECT_TRUE(tornata());
    EXPECT_FALSE(banco.vista.findChild<QAction*>(QStringLiteral("Visualizza"))->isEnabled());
}

TEST_F(RisultatiRamo, LeavingByTheTreeStoresNothingAndTheFileStays) {
    apri("Rotatoria_Via_dei_Mulini");
    ASSERT_TRUE(banco.salva(percorso));
    const std::string prima = contenuto(percorso);
    calcola();
    const double minimo = finestra().statistiche().ValoriMinimi[0];
    const std::string valore = formatta(minimo, "#0.00");
    premi("cmdMARKER");
    aggiuntivi();
    soglia("chFLUSSO", "txtvalMIN1", valore, formatta(finestra().statistiche().ValoriMassimi[0], "#0.00"));
    banco.vai("keyTempoModellazione");
    EXPECT_EQ(banco.nomeCorrente(), "frmTempoModellazione");
    EXPECT_EQ(banco.app.risultati.marker.MarkerAttivo(1, 1), 0.0);
    EXPECT_FALSE(banco.cornice.modificato());
    ASSERT_TRUE(banco.salva(percorso));
    EXPECT_EQ(contenuto(percorso), prima);
}

TEST_F(RisultatiRamo, ThePreviewIsWrittenAndGivenToTheSystemsEditor) {
    apri("Rotatoria_Via_dei_Mulini");
    calcola();
    tasto(Qt::Key_P, Qt::ControlModifier);
    smaltisci();
    ASSERT_EQ(banco.documenti.aperti.size(), 1U);
    const std::string testo = contenuto(banco.documenti.aperti[0]);
    EXPECT_EQ(testo.rfind("Risultati: Verifiche prestazionali\r\n", 0), 0U);
    EXPECT_NE(testo.find(finestra().ctlGrid.testo(1, 2)), std::string::npos);
    premi("cmdRIASSUNTO");
    aggiuntivi();
    tasto(Qt::Key_P, Qt::ControlModifier);
    smaltisci();
    ASSERT_EQ(banco.documenti.aperti.size(), 2U);
    EXPECT_EQ(contenuto(banco.documenti.aperti[1]).rfind("Risultati: Dettagli riassuntivi ingresso\r\n", 0), 0U);
}

TEST_F(RisultatiRamo, WithoutAnEditorTheTextComesUpInAWindowOfOurs) {
    banco.documenti.riesce = false;
    apri("Rotatoria_Via_dei_Mulini");
    calcola();
    std::string mostrato;
    gesti::AlModale finestraTesto("frmAnteprimaTesto", [&](QWidget& dialogo) {
        mostrato = dialogo.findChild<QPlainTextEdit*>(QStringLiteral("txtTesto"))->toPlainText().toStdString();
        EXPECT_GE(dialogo.width(), 900);
        gesti::clic(*dialogo.findChild<QAbstractButton*>(QStringLiteral("cmdChiudi")), {4, 4});
    });
    tasto(Qt::Key_P, Qt::ControlModifier);
    ASSERT_TRUE(attendi([&] { return finestraTesto.avvenuto() && QApplication::activeModalWidget() == nullptr; }));
    EXPECT_FALSE(finestraTesto.rimasto());
    EXPECT_EQ(mostrato.rfind("Risultati: Verifiche prestazionali\n", 0), 0U);
    EXPECT_NE(mostrato.find("Nome Progetto: Rotatoria_Via_dei_Mulini"), std::string::npos);
    ASSERT_TRUE(gesti::davanti(banco.vista));
    calcola();
}

TEST_F(RisultatiRamo, TheLegendGoesWithItsWindowAndWithTheProject) {
    apri("Rotatoria_Via_dei_Mulini");
    calcola();
    tastoDestro();
    ASSERT_NE(legenda(), nullptr);
    banco.vai("keyTempoModellazione");
    EXPECT_EQ(legenda(), nullptr);
    banco.vai("keyCodeRitardi_Out2");
    tastoDestro();
    ASSERT_NE(legenda(), nullptr);
    banco.chiudi();
    EXPECT_EQ(legenda(), nullptr);
    banco.apri(percorso);
    banco.vai("keyCodeRitardi_Out1");
    calcola();
    tastoDestro();
    ASSERT_NE(legenda(), nullptr);
    const std::string altro = banco.cartella.file("altro.klv");
    std::filesystem::copy_file(KELVO_SORGENTI "/assets/Progetti/Rotatoria_Tangenziale_est.klv", altro);
    banco.cornice.LoadRotonda(altro);
    smaltisci();
    EXPECT_EQ(legenda(), nullptr);
    EXPECT_EQ(banco.app.theRotonda().NumeroRami(), 4);
}

TEST_F(RisultatiRamo, AProjectIsClosedWhileTheAdditionalWindowIsUp) {
    apri("Rotatoria_Via_dei_Mulini");
    calcola();
    aggiuntivi();
    banco.chiudi();
    EXPECT_EQ(banco.nomeCorrente(), "");
    banco.apri(percorso);
    banco.vai("keyCodeRitardi_Out3");
    calcola();
    EXPECT_TRUE(finestra().conFigure());
}

}  // namespace
}  // namespace kelvo::prove
