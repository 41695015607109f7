#include <gtest/gtest.h>

#include <QtGui/QImage>
#include <QtGui/QKeyEvent>
#include <QtGui/QWheelEvent>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTimeEdit>

#include "ui/SegnoErrore.h"
#include "ui/scenaVista.h"
#include "ui/stile.h"

namespace kelvo::prove {
namespace {

using gesti::smaltisci;

struct ProveLegame : testing::Test, ScenaVista {
    QLineEdit& uno = oggetto<QLineEdit>(finestra.txtUno);
    QLineEdit& due = oggetto<QLineEdit>(finestra.txtDue);
    QAbstractButton& fine = oggetto<QAbstractButton>(finestra.cmdFine);

    void clic(QWidget& widget) {
        QTest::mouseClick(&widget, Qt::LeftButton);
        smaltisci();
    }
    void tasto(Qt::Key chiave) {
        QTest::keyClick(QApplication::focusWidget(), chiave);
        smaltisci();
    }
    void scrivi(QLineEdit& campo, const char* testo) {
        campo.selectAll();
        QTest::keyClicks(&campo, QString::fromLatin1(testo));
    }
};

TEST_F(ProveLegame, AWindowOpensOnItsFirstFieldWithAllItsTextSelected) {
    EXPECT_EQ(tastiera(), "txtUno");
    EXPECT_EQ(finestra.fuoco(), &finestra.txtUno);
    EXPECT_EQ(uno.selectedText(), "5");
}

TEST_F(ProveLegame, AFieldThatIsEnteredByKeySelectsAllItsText) {
    finestra.txtDue.testo("abc");
    tasto(Qt::Key_Tab);
    EXPECT_EQ(tastiera(), "txtDue");
    EXPECT_EQ(due.selectedText(), "abc");
    tasto(Qt::Key_Backtab);
    due.deselect();
    tasto(Qt::Key_Return);
    EXPECT_EQ(tastiera(), "txtDue");
    EXPECT_EQ(due.selectedText(), "abc");
}

TEST_F(ProveLegame, EnterGoesToTheNextFieldThatCanBeEnteredAndRoundToTheFirst) {
    finestra.txtDue.abilitato(false);
    tasto(Qt::Key_Return);
    EXPECT_EQ(tastiera(), "txtTre");
    finestra.cmdFine.visibile(false);
    tasto(Qt::Key_Enter);
    EXPECT_EQ(tastiera(), "txtUno");
}

TEST_F(ProveLegame, EscapePutsTheValueBackAndIsTheWindowsKeyAfterThat) {
    scrivi(uno, "77");
    tasto(Qt::Key_Escape);
    EXPECT_EQ(uno.text(), "5");
    QKeyEvent altro(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(&uno, &altro);
    EXPECT_FALSE(altro.isAccepted());
}

TEST_F(ProveLegame, ARefusedFieldKeepsTheKeyboardAndTellsWhyInTheStatusBar) {
    scrivi(uno, "77");
    clic(due);
    EXPECT_EQ(tastiera(), "txtUno");
    EXPECT_EQ(finestra.fuoco(), &finestra.txtUno);
    EXPECT_EQ(cornice.avvisato, "Il valore massimo ammesso è 10.");
    scrivi(uno, "7");
    clic(due);
    EXPECT_EQ(tastiera(), "txtDue");
    EXPECT_EQ(finestra.fuoco(), &finestra.txtDue);
    EXPECT_EQ(cornice.avvisato, "");
}

TEST_F(ProveLegame, TwoBadFieldsDoNotPassTheKeyboardToAndFro) {
    const EsitoUscita rifiuto = EsitoUscita::rifiuto(MessaggioCampo{"no", "titolo", Icona::informazione});
    int chieste = 0;
    finestra.txtUno.controllo = [&] { return rifiuto; };
    finestra.txtDue.controllo = [&] {
        ++chieste;
        return rifiuto;
    };
    for (int i = 1; i <= 2; ++i) {
        clic(due);
        EXPECT_EQ(tastiera(), "txtUno");
        EXPECT_EQ(messaggi.mostrati.size(), static_cast<std::size_t>(i));
    }
    tasto(Qt::Key_Tab);
    EXPECT_EQ(tastiera(), "txtUno");
    EXPECT_EQ(messaggi.mostrati.size(), 3U);
    EXPECT_EQ(chieste, 0);
}

TEST_F(ProveLegame, AButtonDoesNotRunAsLongAsTheFieldInFocusIsRefused) {
    int premuto = 0;
    finestra.cmdFine.allaPressione = [&] { ++premuto; };
    scrivi(uno, "77");
    clic(fine);
    EXPECT_EQ(premuto, 0);
    EXPECT_FALSE(fine.isDown());
    EXPECT_EQ(tastiera(), "txtUno");
    scrivi(uno, "7");
    clic(fine);
    EXPECT_EQ(premuto, 1);
}

TEST_F(ProveLegame, TheKeyboardFollowsTheFocusOfTheWindowAndTheFieldIsLeftOnce) {
    int uscite = 0;
    finestra.txtUno.dopoUscita = [&] { ++uscite; };
    finestra.txtTre.testo("xyz");
    EXPECT_TRUE(finestra.fuocoSu(finestra.txtTre));
    smaltisci();
    EXPECT_EQ(tastiera(), "txtTre");
    EXPECT_EQ(oggetto<QLineEdit>(finestra.txtTre).selectedText(), "xyz");
    EXPECT_EQ(uscite, 1);
}

TEST_F(ProveLegame, TheCheckOfTheWholeWindowBringsTheKeyboardToTheFieldThatItRefused) {
    finestra.txtDue.controllo = [] { return EsitoUscita::rifiuto(std::string{"vuoto"}); };
    EXPECT_FALSE(finestra.convalida());
    smaltisci();
    EXPECT_EQ(tastiera(), "txtDue");
    // The keyboard has gone elsewhere, the window's focus has not.
    vista.setFocusPolicy(Qt::StrongFocus);
    finestra.txtDue.controllo = nullptr;
    vista.setFocus();
    smaltisci();
    EXPECT_EQ(tastiera(), "frmProva");
    finestra.txtDue.controllo = [] { return EsitoUscita::rifiuto(std::string{"vuoto"}); };
    EXPECT_FALSE(finestra.convalida());
    EXPECT_EQ(tastiera(), "txtDue");
}

TEST_F(ProveLegame, AWindowThatComesUpAgainHasTheKeyboardWhereItsFocusStands) {
    finestra.txtTre.entra();
    uno.setFocus();
    finestra.txtTre.entra();
    vista.fuocoIniziale();
    EXPECT_EQ(tastiera(), "txtTre");
}

TEST_F(ProveLegame, TheWheelTurnsNoFieldThatHasNotTheKeyboard) {
    tBox elenco("lst", tBox::combobox);
    elenco.voci({"uno", "due", "tre"});
    elenco.testo("due");
    auto* widget = qobject_cast<QComboBox*>(ui::collega(elenco, &vista));
    widget->show();
    const QPointF posto(5, 5);
    QWheelEvent giro(posto, widget->mapToGlobal(posto), {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                     false);
    QApplication::sendEvent(widget, &giro);
    EXPECT_EQ(elenco.testo(), "due");
    widget->setFocus();
    QApplication::sendEvent(widget, &giro);
    EXPECT_EQ(elenco.testo(), "tre");
    delete widget;
}

TEST_F(ProveLegame, ARefusedFieldHasARedBorderATintedGroundAndATriangle) {
    const auto punto = [&](QPoint p) { return uno.grab().toImage().pixelColor(p); };
    const QPoint dentro(uno.width() / 2, 4);
    scrivi(uno, "7");
    uno.deselect();
    EXPECT_EQ(punto(dentro), QColor(Qt::white));
    EXPECT_EQ(uno.findChild<ui::SegnoErrore*>(), nullptr);
    scrivi(uno, "77");
    EXPECT_FALSE(finestra.lasciaFuoco());
    auto* segno = uno.findChild<ui::SegnoErrore*>();
    ASSERT_NE(segno, nullptr);
    EXPECT_TRUE(segno->isVisible());
    EXPECT_EQ(segno->size(), QSize(14, 14));
    EXPECT_EQ(segno->geometry().center().y(), uno.rect().center().y());
    EXPECT_TRUE(uno.rect().adjusted(2, 2, -uno.width() / 2, -2).contains(segno->geometry()));
    EXPECT_EQ(punto({segno->x() + 4, segno->y() + 11}), QColor(176, 0, 32));
    EXPECT_EQ(punto(dentro), QColor(255, 240, 240));
    for (const int y : {0, 1, uno.height() - 2, uno.height() - 1}) {
        EXPECT_EQ(punto({uno.width() / 2, y}), QColor(176, 0, 32)) << y;
    }
    EXPECT_EQ(punto({uno.width() / 2, 2}), QColor(255, 240, 240));
    scrivi(uno, "7");
    EXPECT_TRUE(finestra.lasciaFuoco());
    EXPECT_FALSE(segno->isVisible());
    uno.deselect();
    EXPECT_EQ(punto(dentro), QColor(Qt::white));
}

TEST_F(ProveLegame, PickersAndListsShowThatTheyWereRefused) {
    tBox giorno("dt", tBox::dtpicker);
    giorno.giorno = true;
    giorno.testo("21/11/2026");
    tBox elenco("lst", tBox::combobox);
    elenco.digitabile = true;
    for (tBox* campo : {&giorno, &elenco}) {
        campo->controllo = [] { return EsitoUscita::rifiuto(std::string{"no"}); };
        QWidget* widget = ui::collega(*campo, &vista);
        widget->resize(160, 26);
        widget->show();
        campo->lascia();
        const QImage quadro = widget->grab().toImage();
        EXPECT_EQ(quadro.pixelColor(60, 0), QColor(176, 0, 32)) << campo->nome();
        EXPECT_EQ(quadro.pixelColor(60, 1), QColor(176, 0, 32)) << campo->nome();
        EXPECT_EQ(quadro.pixelColor(120, 4), QColor(255, 240, 240)) << campo->nome();
        const auto* testo = widget->findChild<QLineEdit*>();
        const auto* segno = widget->findChild<ui::SegnoErrore*>();
        ASSERT_TRUE(testo != nullptr && segno != nullptr);
        // The text does not run under it.
        EXPECT_GT(testo->x() + testo->textMargins().left(), segno->geometry().right()) << campo->nome();
        delete widget;
    }
}

TEST_F(ProveLegame, AListShowsATextThatIsNoneOfItsRowsAndDoesNotOfferIt) {
    tBox elenco("lst", tBox::combobox);
    elenco.voci({"", "09:00", "09:07"});
    auto* widget = qobject_cast<QComboBox*>(ui::collega(elenco, &vista));
    elenco.testo("09:03");
    EXPECT_EQ(widget->currentText(), "09:03");
    EXPECT_EQ(elenco.voci().size(), 3U);
    EXPECT_FALSE(widget->model()->flags(widget->model()->index(3, 0)).testFlag(Qt::ItemIsEnabled));
    EXPECT_TRUE(widget->model()->flags(widget->model()->index(2, 0)).testFlag(Qt::ItemIsEnabled));
    widget->setCurrentIndex(2);
    EXPECT_EQ(elenco.testo(), "09:07");
    EXPECT_EQ(widget->count(), 3);
    delete widget;
}

TEST_F(ProveLegame, AListThatMayBeTypedShowsWhatItTook) {
    tBox elenco("lst", tBox::combobox);
    elenco.digitabile = true;
    elenco.caratteriAmmessi = "0123456789";
    elenco.voci({"", "5", "10"});
    auto* widget = qobject_cast<QComboBox*>(ui::collega(elenco, &vista));
    widget->show();
    widget->setFocus();
    QTest::keyClicks(widget, QStringLiteral("1x2y"));
    EXPECT_EQ(elenco.testo(), "12");
    EXPECT_EQ(widget->currentText(), "12");
    delete widget;
}

TEST_F(ProveLegame, AnHourThatIsNotTypedOutCountsWhenThePickerIsLeft) {
    tBox ora("ora", tBox::dtpicker);
    ora.testo("08:00");
    std::string allUscita;
    ora.dopoUscita = [&] { allUscita = ora.testo(); };
    auto* widget = qobject_cast<QTimeEdit*>(ui::collega(ora, &vista));
    widget->show();
    widget->setFocus(Qt::TabFocusReason);
    QTest::keyClick(widget, Qt::Key_1);
    due.setFocus(Qt::TabFocusReason);
    EXPECT_EQ(allUscita, "01:00");
    delete widget;
}

TEST_F(ProveLegame, ALabelTakesTheColourOfItsTag) {
    auto& grigia = oggetto<QLabel>(finestra.lblUno);
    const Colore grigio{128, 128, 128};
    EXPECT_EQ(grigia.palette().color(QPalette::WindowText), ui::qcolore(tinta::inchiostro));
    gestione.ShowForm(&finestra);
    // Grey is too faint on white: it is shown in ink.
    EXPECT_EQ(finestra.lblUno.aspetto().inchiostro, grigio);
    EXPECT_EQ(grigia.palette().color(QPalette::WindowText), ui::qcolore(inchiostroLeggibile(grigio, colori::bianco)));
    gestione.chiudiCorrente();
}

}  // namespace
}  // namespace kelvo::prove
