// The comparison of the entries by key and mouse: variable, unit, instant, playback.

#include <QtGui/QImage>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QMenu>
#include <QtWidgets/QSlider>
#include <chrono>
#include <string>
#include <vector>

#include "results/frmConfronti.h"
#include "ui/VistaGriglia.h"
#include "ui/VistaPianta.h"
#include "ui/banco.h"

namespace kelvo::prove {
namespace {

using gesti::attendi;
using gesti::clic;
using gesti::fuoco;
using gesti::smaltisci;
using gesti::tasto;

/// The example of seven legs by 72 segments, with the comparison open.
class ConfrontiVista : public testing::Test {
protected:
    void SetUp() override {
        banco.mostra();
        banco.apri(std::string{KELVO_SORGENTI} + "/assets/Progetti/Rotatoria_Aurelia_Sette_Strade.klv");
        banco.vai("keyConfronti");
        ASSERT_EQ(banco.nomeCorrente(), "frmConfronti");
        finestra().tempoTrascorso = [this] { return std::chrono::milliseconds(banco.simulazione.adesso()); };
    }
    frmConfronti& finestra() { return dynamic_cast<frmConfronti&>(*banco.cornice.gestione.corrente()); }
    QSlider& cursore() { return banco.oggetto<QSlider>("Slider1"); }
    void premi(const char* nome) {
        clic(banco.oggetto(nome));
        smaltisci();
    }
    void controllaIstante(int segmento) {
        EXPECT_EQ(cursore().value(), segmento);
        EXPECT_EQ(banco.oggetto<QListWidget>("listTEMPO").currentRow(), segmento - 1);
        EXPECT_EQ(banco.oggetto<QLabel>("txtSIM").text(), QString::number(segmento));
        EXPECT_EQ(banco.oggetto<QLabel>("txtIstanteTEMPO").text(),
                  banco.oggetto<QListWidget>("listTEMPO").item(segmento - 1)->text());
    }
    QImage pianta() { return banco.oggetto("ctlPianta").grab().toImage(); }
    Banco banco;
};

TEST_F(ConfrontiVista, OpensWithFiguresAndTheFirstInstant) {
    controllaIstante(1);
    EXPECT_EQ(banco.oggetto<QListWidget>("listTEMPO").count(), 72);
    EXPECT_EQ(cursore().maximum(), 72);
    EXPECT_EQ(banco.oggetto<QComboBox>("txtTipoVariabile").count(), 6);
    EXPECT_TRUE(banco.oggetto<QAbstractButton>("Option1veich").isChecked());
    EXPECT_TRUE(finestra().cmdCalcola.visibile() == false);
    EXPECT_EQ(banco.ultimo(), "");
}

TEST_F(ConfrontiVista, TheKeysOfTheSliderMoveTheInstantAndThePlan) {
    cursore().setFocus();
    smaltisci();
    const QImage prima = pianta();
    for (int i = 0; i < 30; ++i) {
        tasto(Qt::Key_Right);
    }
    smaltisci();
    controllaIstante(31);
    EXPECT_NE(pianta(), prima);
    EXPECT_EQ(finestra().ctlGrid.corrente().colonna, 31);
    tasto(Qt::Key_Home);
    smaltisci();
    controllaIstante(1);
    EXPECT_EQ(pianta(), prima);
}

TEST_F(ConfrontiVista, VariableUnitAndListAreChosenByMouseAndKey) {
    auto& variabili = banco.oggetto<QComboBox>("txtTipoVariabile");
    banco.entra("txtTipoVariabile");
    tasto(Qt::Key_Down);
    smaltisci();
    EXPECT_EQ(banco.oggetto<QLabel>("txtVARselezionata").text(), QStringLiteral("Capacità [veic/h]"));
    premi("Option2veicmin");
    EXPECT_EQ(variabili.currentIndex(), 1);
    EXPECT_EQ(variabili.currentText(), QStringLiteral("Capacità [veic/min]"));
    EXPECT_EQ(banco.oggetto<QLabel>("lblUnita").text(), QStringLiteral("[veic/min]"));
    banco.entra("listTEMPO");
    tasto(Qt::Key_Down);
    tasto(Qt::Key_Down);
    smaltisci();
    controllaIstante(3);
}

TEST_F(ConfrontiVista, PlaybackRunsAtItsSpeedsAndStopsAtOnce) {
    premi("Command3");
    EXPECT_EQ(finestra().PausaSimulazione(), 500);
    premi("ImagePLAY");
    EXPECT_TRUE(finestra().inSimulazione());
    EXPECT_FALSE(banco.oggetto("cmdPLAY").isEnabled());
    EXPECT_FALSE(cursore().isEnabled());
    EXPECT_TRUE(banco.oggetto("Command1").isEnabled());
    banco.simulazione.avanza(1500);
    smaltisci();
    controllaIstante(4);
    for (int i = 0; i < 9; ++i) {
        premi("ImageMENO");
    }
    EXPECT_EQ(finestra().PausaSimulazione(), 5000);
    banco.simulazione.avanza(4999);
    controllaIstante(4);
    banco.simulazione.avanza(1);
    smaltisci();
    controllaIstante(5);
    premi("Command1");
    EXPECT_FALSE(finestra().inSimulazione());
    EXPECT_TRUE(banco.oggetto("cmdPLAY").isEnabled());
    EXPECT_TRUE(cursore().isEnabled());
    controllaIstante(5);
}

TEST_F(ConfrontiVista, TheKeyboardPlaysAndStops) {
    banco.oggetto("cmdPLAY").setFocus();
    smaltisci();
    tasto(Qt::Key_Space);
    smaltisci();
    EXPECT_TRUE(finestra().inSimulazione());
    EXPECT_EQ(fuoco(), "Command1");
    tasto(Qt::Key_Space);
    smaltisci();
    EXPECT_FALSE(finestra().inSimulazione());
    EXPECT_EQ(fuoco(), "cmdPLAY");
}

TEST_F(ConfrontiVista, TabGoesFromTheSliderOverTheFiguresToTheColumnAtTheRight) {
    cursore().setFocus();
    smaltisci();
    std::vector<std::string> nomi{fuoco()};
    for (int i = 0; i < 3; ++i) {
        tasto(Qt::Key_Tab);
        smaltisci();
        nomi.push_back(fuoco());
    }
    EXPECT_EQ(nomi, (std::vector<std::string>{"Slider1", "ctlChartConfronti", "ctlPianta", "ctlGrid"}));
    banco.oggetto("txtTipoVariabile").setFocus();
    smaltisci();
    nomi = {fuoco()};
    for (int i = 0; i < 6; ++i) {
        tasto(Qt::Key_Tab);
        smaltisci();
        nomi.push_back(fuoco());
    }
    EXPECT_EQ(nomi, (std::vector<std::string>{"txtTipoVariabile", "Option1veich", "cmdPLAY", "Command1", "Command3",
                                              "Command4", "listTEMPO"}));
}

TEST_F(ConfrontiVista, LeavingByTheTreeEndsThePlayback) {
    premi("cmdPLAY");
    banco.simulazione.avanza(1000);
    banco.vai("keyTempoModellazione");
    EXPECT_FALSE(banco.simulazione.attivo());
    banco.simulazione.avanza(60000);
    banco.vai("keyConfronti");
    controllaIstante(2);
    EXPECT_TRUE(banco.oggetto("cmdPLAY").isEnabled());
}

TEST_F(ConfrontiVista, ClosingTheProjectEndsThePlayback) {
    premi("cmdPLAY");
    ASSERT_TRUE(banco.simulazione.attivo());
    banco.chiudi();
    EXPECT_FALSE(banco.simulazione.attivo());
    banco.simulazione.avanza(60000);
    smaltisci();
}

TEST_F(ConfrontiVista, AnotherProjectDuringThePlaybackIsCompared) {
    premi("cmdPLAY");
    banco.chiudi();
    EXPECT_FALSE(banco.simulazione.attivo());
    banco.apri(std::string{KELVO_SORGENTI} + "/assets/Progetti/Rotatoria_Via_dei_Mulini.klv");
    banco.vai("keyConfronti");
    EXPECT_EQ(banco.oggetto<QListWidget>("listTEMPO").count(), 6);
    controllaIstante(1);
}

TEST_F(ConfrontiVista, TheTableFollowsTheInstantAndMovesIt) {
    auto& tabella = banco.oggetto<ui::VistaGriglia>("ctlGrid");
    cursore().setFocus();
    tasto(Qt::Key_End);
    smaltisci();
    controllaIstante(72);
    const QRect cella = tabella.posto(finestra().ctlGrid.corrente());
    EXPECT_TRUE(tabella.rect().contains(cella.center())) << "the instant in view is scrolled to";
    tabella.setFocus();
    smaltisci();
    tasto(Qt::Key_Left);
    smaltisci();
    controllaIstante(71);
}

}  // namespace
}  // namespace kelvo::prove
