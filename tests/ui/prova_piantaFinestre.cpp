// The plan in the data windows and in that of the right-turn lanes: its menu,
// paper, files, by key and mouse.

#include <QtGui/QContextMenuEvent>
#include <QtGui/QImage>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMenu>
#include <string>

#include "disegno/impaginazione.h"
#include "input/frmParametriRamo.h"
#include "ui/VistaPianta.h"
#include "ui/banco.h"

namespace kelvo::prove {
namespace {

using gesti::smaltisci;
using gesti::tasto;
using gesti::voce;

/// A window with a plan: the node that leads to it.
struct Finestra {
    const char* nome;
    const char* nodo;
};

class PiantaFinestre : public testing::TestWithParam<Finestra> {
protected:
    PiantaFinestre() {
        banco.mostra();
        banco.apri(KELVO_SORGENTI "/assets/Progetti/Rotatoria_Viale_della_Stazione.klv");
        banco.vai(GetParam().nodo);
        smaltisci();
    }
    QWidget& pianta() { return banco.oggetto<ui::VistaPianta>("ctlPianta"); }
    /// Brings the menu of the plan up by the menu key.
    void apriMenu() {
        banco.entra("ctlPianta");
        const QPoint dove = pianta().rect().center();
        QContextMenuEvent evento(QContextMenuEvent::Keyboard, dove, pianta().mapToGlobal(dove));
        QApplication::sendEvent(&pianta(), &evento);
        smaltisci();
    }
    static void chiudiMenu() {
        if (QWidget* tendina = QApplication::activePopupWidget()) {
            tendina->close();
        }
        smaltisci();
    }
    Banco banco;
};

TEST_P(PiantaFinestre, ItsMenuOffersFilesAndPaper) {
    apriMenu();
    for (const char* testo : {"Salva come PNG...", "Salva come SVG...", "Salva come PDF..."}) {
        const QAction* azione = voce(QString::fromUtf8(testo));
        ASSERT_NE(azione, nullptr) << testo;
        EXPECT_TRUE(azione->isEnabled()) << testo;
    }
    EXPECT_NE(voce(QStringLiteral("Stampa...")), nullptr);
    EXPECT_NE(voce(QStringLiteral("Stampa in PDF...")), nullptr);
    chiudiMenu();
}

TEST_P(PiantaFinestre, ItIsSavedAsAPictureOfItself) {
    const std::string file = banco.cartella.file("pianta.png");
    banco.dialogo.scelte.push_back(file);
    apriMenu();
    QAction* salva = voce(QStringLiteral("Salva come PNG..."));
    ASSERT_NE(salva, nullptr);
    salva->trigger();
    chiudiMenu();
    QImage immagine;
    ASSERT_TRUE(immagine.load(QString::fromStdString(file)));
    EXPECT_GT(immagine.width(), 1000);
    EXPECT_TRUE(banco.messaggi.mostrati.empty()) << banco.ultimo();
}

TEST_P(PiantaFinestre, TheKeyboardReachesIt) {
    const QWidget* prima = &pianta();
    QWidget* passo = banco.vista.vistaCorrente()->nextInFocusChain();
    int passi = 0;
    while (passo != prima && passi < 500) {
        passo = passo->nextInFocusChain();
        ++passi;
    }
    EXPECT_EQ(passo, prima);
    EXPECT_TRUE((pianta().focusPolicy() & Qt::TabFocus) != 0);
    banco.entra("ctlPianta");
    EXPECT_EQ(QApplication::focusWidget(), prima);
}

INSTANTIATE_TEST_SUITE_P(Tutte, PiantaFinestre,
                         testing::Values(Finestra{"Ramo", "keyRamo2"}, Finestra{"Matrice", "keyMatriceSvolte"},
                                         Finestra{"CorsieDX", "keyCorsiaDX"}),
                         [](const auto& quale) { return quale.param.nome; });

class CartaDati : public PiantaFinestre {
protected:
    static void stampa() {
        tasto(Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
        smaltisci();
    }
};

TEST_P(CartaDati, TheShortcutPrintsPlanAndTablesWhereverTheKeyboardIs) {
    stampa();
    ASSERT_EQ(banco.stampa.stampati.size(), 1U);
    banco.entra("ctlPianta");
    stampa();
    ASSERT_EQ(banco.stampa.stampati.size(), 2U);
    const DocumentoPagine& carta = banco.stampa.stampati.back();
    EXPECT_EQ(carta.progetto, "Rotatoria_Viale_della_Stazione");
    const auto* figura = std::get_if<DocumentoPagine::Figura>(&carta.blocchi.at(0));
    ASSERT_NE(figura, nullptr);
    EXPECT_TRUE(std::holds_alternative<DocumentoPagine::Pianta>(figura->contenuto));
    EXPECT_TRUE(std::holds_alternative<DocumentoPagine::Tabella>(carta.blocchi.at(1)));
    EXPECT_EQ(disegno::impagina(carta).pagine.size(), 1U);
    EXPECT_TRUE(banco.messaggi.mostrati.empty()) << banco.ultimo();
}

TEST_P(CartaDati, ThePdfOfItsPagesIsWritten) {
    const std::string file = banco.cartella.file("pagine.pdf");
    banco.dialogo.scelte.push_back(file);
    apriMenu();
    QAction* salva = voce(QStringLiteral("Stampa in PDF..."));
    ASSERT_NE(salva, nullptr);
    salva->trigger();
    chiudiMenu();
    EXPECT_EQ(banco.stampa.salvati.size(), 1U);
    EXPECT_EQ(contenuto(file), "pagine");
}

INSTANTIATE_TEST_SUITE_P(Tutte, CartaDati,
                         testing::Values(Finestra{"Ramo", "keyRamo2"}, Finestra{"Matrice", "keyMatriceSvolte"}),
                         [](const auto& quale) { return quale.param.nome; });

class PiantaRamo : public PiantaFinestre {};

TEST_P(PiantaRamo, TheMeasureInUseStaysWhileThePlanHasTheKeyboard) {
    auto& finestra = dynamic_cast<frmParametriRamo&>(*banco.cornice.gestione.corrente());
    banco.entra("txtRaggioCurvatura");
    ASSERT_EQ(finestra.misuraInUso(), pianta::Misura::raggioIngresso);
    banco.entra("ctlPianta");
    EXPECT_EQ(finestra.misuraInUso(), pianta::Misura::raggioIngresso);
    EXPECT_EQ(finestra.ctlPianta.soggetto().opzioni->misura, pianta::Misura::raggioIngresso);
    banco.entra("txtDescrizioneRamo");
    EXPECT_FALSE(finestra.misuraInUso().has_value());
    banco.entra("ctlPianta");
    EXPECT_FALSE(finestra.misuraInUso().has_value());
}

TEST_P(PiantaRamo, AFieldThatRefusesIsNotLeftForThePrinter) {
    banco.entra("txtLarghezzaIngresso");
    tasto(Qt::Key_A, Qt::ControlModifier);
    gesti::digita("99");
    tasto(Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
    smaltisci();
    EXPECT_TRUE(banco.stampa.stampati.empty());
}

INSTANTIATE_TEST_SUITE_P(Ramo, PiantaRamo, testing::Values(Finestra{"Ramo", "keyRamo2"}));

}  // namespace
}  // namespace kelvo::prove
