#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QScrollBar>

#include "input/frmComposizioneTrafficoST.h"
#include "ui/VistaGriglia.h"
#include "ui/banco.h"

namespace kelvo::prove {
namespace {

using gesti::attendi;
using gesti::digita;
using gesti::smaltisci;
using gesti::tasto;

/// The two windows of the composition on a new project of three legs, 08:00 to 09:30 by 15 minutes; the first leg has
/// a curve of 60, 105, 150, 110, 70 and 30 vehicles a segment.
class ComposizioneVista : public testing::Test {
protected:
    void SetUp() override {
        banco.mostra();
        banco.nuovo(3);
        Rotonda& r = banco.app.theRotonda();
        r.TipoAnalisi(1);
        r.TempoIniziale(oraDelGiorno(8, 0));
        r.TempoFinale(oraDelGiorno(9, 30));
        r.SegmentoTempo(oraDelGiorno(0, 15));
        for (std::int16_t i = 1; i <= 3; ++i) {
            r.Ramo(i).theDatiTraffico().NumSegmentiTempo(6);
            composizione(i).NumSegmentiTempo(6);
        }
        DatiTraffico& curva = r.Ramo(1).theDatiTraffico();
        curva.FlussoTempo1(4.0F);
        curva.FlussoTempo2(10.0F);
        curva.FlussoTempo3(2.0F);
        curva.Tempo1(oraDelGiorno(8, 0));
        curva.Tempo2(oraDelGiorno(8, 30));
        curva.Tempo3(oraDelGiorno(9, 30));
    }
    void apri(int tipoFlusso, const char* ramo = "1") {
        banco.app.theRotonda().TipoFlusso(static_cast<std::int16_t>(tipoFlusso));
        banco.cornice.SetUpOpzioni();
        banco.vai(std::string{"keyComposizioneTraffico"} + ramo);
        ASSERT_EQ(banco.nomeCorrente(), tipoFlusso == 0 ? "frmComposizioneTraffico" : "frmComposizioneTrafficoST");
    }
    ComposizioneTraffico& composizione(std::int16_t i) {
        return banco.app.theRotonda().Ramo(i).theComposizioneTraffico();
    }
    Griglia& griglia() { return dynamic_cast<frmComposizioneTrafficoST&>(*banco.cornice.gestione.corrente()).ctlGrid; }
    std::string riga(int r) {
        std::string testo;
        for (int c = 1; c <= 9; ++c) {
            testo += (c == 1 ? "" : " ") + griglia().testo(r, c);
        }
        return testo;
    }
    Banco banco;
};

TEST_F(ComposizioneVista, TheSharesAndCoefficientsAreEnteredByTheKeyboardAlone) {
    apri(0);
    ASSERT_TRUE(attendi([] { return gesti::fuoco() == "txtAutoarticolati"; })) << gesti::fuoco();
    for (const char* quota : {"3,5", "4.25", "1", "0", "0", "6"}) {
        digita(quota);
        tasto(Qt::Key_Return);
        smaltisci();
    }
    EXPECT_EQ(gesti::fuoco(), "txtAutoarticolatiEquivalenti");
    EXPECT_EQ(banco.oggetto<QLineEdit>("txtAutovetture").text(), QStringLiteral("85,25"));
    for (const char* coefficiente : {"2,6", "2,1", "1,9", "1,5", "1,3", "0,9", "1,1"}) {
        digita(coefficiente);
        tasto(Qt::Key_Tab);
        smaltisci();
    }
    tasto(Qt::Key_Return, Qt::ControlModifier);
    smaltisci();
    const ComposizioneTraffico& c = composizione(1);
    EXPECT_EQ((PerClasse{c.Autoarticolati(), c.Autotreni(), c.Pullman(), c.Camper(), c.Roulotte(), c.VeicoliDueRuote(),
                         c.Autovetture()}),
              (PerClasse{3.5F, 4.25F, 1.0F, 0.0F, 0.0F, 6.0F, 85.25F}));
    EXPECT_EQ((PerClasse{c.VEAutoarticolati(), c.VEAutotreni(), c.VEPullman(), c.VECamper(), c.VERoulotte(),
                         c.VEVeicoliDueRuote(), c.VEAutovetture()}),
              (PerClasse{2.6F, 2.1F, 1.9F, 1.5F, 1.3F, 0.9F, 1.1F}));
    EXPECT_TRUE(banco.messaggi.mostrati.empty()) << banco.ultimo();
    EXPECT_TRUE(banco.oggetto<QLabel>("lblDiversi").isVisible());
}

TEST_F(ComposizioneVista, ATotalPastHundredKeepsTheKeyboardUntilItIsMended) {
    apri(0);
    digita("99,99");
    tasto(Qt::Key_Tab);
    smaltisci();
    digita("0,02");
    tasto(Qt::Key_Tab);
    smaltisci();
    EXPECT_EQ(banco.ultimo(), "Attenzione il totale della categorie dei veicoli deve essere 100");
    EXPECT_EQ(gesti::fuoco(), "txtAutotreni");
    EXPECT_TRUE(banco.oggetto<QLabel>("lblErroreTotale").isVisible());
    EXPECT_EQ(banco.oggetto<QLineEdit>("txtAutovetture").text(), QStringLiteral("0,01"));
    tasto(Qt::Key_Escape);
    smaltisci();
    tasto(Qt::Key_Tab);
    smaltisci();
    EXPECT_EQ(gesti::fuoco(), "txtPullman");
    EXPECT_FALSE(banco.oggetto<QLabel>("lblErroreTotale").isVisible());
    EXPECT_EQ(banco.messaggi.mostrati.size(), 1U);
}

TEST_F(ComposizioneVista, TheKeyOfASecondCommaShowsNothing) {
    apri(0);
    digita("1,2,5");
    EXPECT_EQ(banco.oggetto<QLineEdit>("txtAutoarticolati").text(), QStringLiteral("1,25"));
}

TEST_F(ComposizioneVista, SharesThatNoSingleAddsUpAreShownAndMendedByTheKeyboard) {
    composizione(1).Autoarticolati(3e38F);
    composizione(1).Autotreni(3e38F);
    apri(0);
    EXPECT_TRUE(banco.oggetto<QLabel>("lblErroreTotale").isVisible());
    for (const char* quota : {"4", "6"}) {
        digita(quota);
        tasto(Qt::Key_Tab);
        smaltisci();
    }
    EXPECT_EQ(gesti::fuoco(), "txtPullman");
    EXPECT_EQ(banco.oggetto<QLineEdit>("txtAutovetture").text(), QStringLiteral("90"));
    EXPECT_FALSE(banco.oggetto<QLabel>("lblErroreTotale").isVisible());
    EXPECT_TRUE(banco.messaggi.mostrati.empty()) << banco.ultimo();
}

TEST_F(ComposizioneVista, TheTableIsEnteredByTheKeyboardAlone) {
    apri(1);
    ASSERT_TRUE(attendi([] { return gesti::fuoco() == "ctlGrid"; })) << gesti::fuoco();
    for (int i = 1; i <= 9; ++i) {
        digita(std::to_string(i));
        tasto(Qt::Key_Return);
    }
    smaltisci();
    EXPECT_EQ(riga(1), "1 2 3 4 5 6 7 28 60");
    EXPECT_EQ(riga(2), "8 9 0 0 0 0 0 17 105");
    tasto(Qt::Key_Return, Qt::ControlModifier);
    smaltisci();
    EXPECT_EQ(composizione(1).Categorie()[0], (PerClasse{1, 2, 3, 4, 5, 6, 7}));
    EXPECT_EQ(composizione(1).Categorie()[1], (PerClasse{8, 9, 0, 0, 0, 0, 0}));
    EXPECT_TRUE(banco.messaggi.mostrati.empty()) << banco.ultimo();
}

TEST_F(ComposizioneVista, ALockIsTickedByTheKeyboardAndTheFirstRowCopied) {
    apri(1);
    for (int i = 1; i <= 6; ++i) {
        digita("1");
        tasto(Qt::Key_Return);
    }
    tasto(Qt::Key_End, Qt::ControlModifier);
    tasto(Qt::Key_Tab);  // out of the table
    smaltisci();
    ASSERT_EQ(gesti::fuoco(), "chkLock1");
    for (int i = 1; i < 7; ++i) {
        tasto(Qt::Key_Tab);
    }
    smaltisci();
    ASSERT_EQ(gesti::fuoco(), "chkLock7");
    banco.messaggi.risposte.push_back(Risposta::si);
    tasto(Qt::Key_Space);
    smaltisci();
    EXPECT_EQ(banco.ultimo(), "Riporto i valori della prima riga nelle righe sottostanti?");
    EXPECT_EQ(riga(6), "1 1 1 1 1 1 0 6 30");
    banco.entra("ctlGrid");
    tasto(Qt::Key_Home, Qt::ControlModifier);
    digita("2");
    tasto(Qt::Key_Return);
    smaltisci();
    EXPECT_EQ(riga(1), "2 1 1 1 1 1 53 60 60");
}

TEST_F(ComposizioneVista, ANumberTooLargeComesBackSelectedInItsCell) {
    apri(1);
    digita("12");
    tasto(Qt::Key_Return);
    tasto(Qt::Key_Left);
    digita("1234567890");
    tasto(Qt::Key_Return);
    smaltisci();
    EXPECT_EQ(banco.ultimo(), "Attenzione! Numero inserito troppo grande. Controllare valore.");
    auto& editor = banco.oggetto<QLineEdit>("ctlGrid_editor");
    EXPECT_TRUE(editor.isVisible());
    EXPECT_EQ(editor.text(), QStringLiteral("12"));
    EXPECT_EQ(editor.selectedText(), QStringLiteral("12"));
    digita("7");
    tasto(Qt::Key_Return);
    smaltisci();
    EXPECT_EQ(riga(1), "7 0 0 0 0 0 0 7 60");
}

TEST_F(ComposizioneVista, LocksStandOverTheirColumnsAlsoWhereTheTableIsScrolled) {
    apri(1);
    auto& tabella = banco.oggetto<ui::VistaGriglia>("ctlGrid");
    const auto sopra = [&](int i) {
        auto& casella = banco.oggetto<QAbstractButton>(("chkLock" + std::to_string(i)).c_str());
        const int centro = casella.mapToGlobal(casella.rect().center()).x();
        const int colonna = tabella.viewport()->mapToGlobal(QPoint(tabella.columnViewportPosition(i - 1), 0)).x() +
                            tabella.columnWidth(i - 1) / 2;
        return std::abs(centro - colonna) <= 1;
    };
    for (const QSize misura : {QSize(1440, 900), QSize(960, 600)}) {
        banco.vista.resize(misura);
        ASSERT_TRUE(attendi([&] { return banco.vista.size() == misura; }));
        smaltisci();
        for (int i = 1; i <= 7; ++i) {
            EXPECT_TRUE(sopra(i)) << misura.width() << " " << i;
        }
    }
    griglia().testo({1, 1}, std::string(60, '9'));  // a column as wide as half the window
    smaltisci();
    QScrollBar* barra = tabella.horizontalScrollBar();
    ASSERT_GT(barra->maximum(), 0);
    barra->setValue(barra->maximum());
    smaltisci();
    for (int i = 1; i <= 7; ++i) {
        EXPECT_TRUE(sopra(i)) << i;
    }
}

TEST_F(ComposizioneVista, AnEditOfOneLegStaysWithItWhenAnotherIsClicked) {
    apri(1);
    digita("5");
    banco.vai("keyComposizioneTraffico2");
    EXPECT_EQ(composizione(1).CategoriaSegmento(0, 0), 5.0F);
    EXPECT_EQ(composizione(2).CategoriaSegmento(0, 0), 0.0F);
    EXPECT_EQ(banco.cornice.gestione.corrente()->sottotitolo.testo(), "Ramo B");
}

}  // namespace
}  // namespace kelvo::prove
