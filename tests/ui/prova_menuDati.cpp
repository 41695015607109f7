#include <QtGui/QClipboard>
#include <QtGui/QContextMenuEvent>
#include <QtGui/QImage>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMenu>
#include <QtWidgets/QVBoxLayout>

#include "banco.h"
#include "disegno/DisegnatoreQt.h"
#include "ui/VistaGrafico.h"
#include "ui/VistaGriglia.h"

namespace kelvo::prove {
namespace {

using gesti::attendi;
using gesti::fuoco;
using gesti::smaltisci;
using gesti::tasto;

/// A window with a table and a chart.
class FinestraDue final : public Finestra {
public:
    explicit FinestraDue(const Contorno& contorno) : Finestra(contorno, "frmDue", "Due") {
        ordina({&ctlGrid, &ctlChart});
        Tabella tabella(2, 2);
        tabella.cella(0, 1).testo = "Flusso";
        tabella.cella(1, 0).testo = "08:00";
        tabella.cella(1, 1).testo = "12,5";
        ctlGrid.tabella(tabella);
        ctlChart.contenuto({.titolo = "Domanda", .serie = {{.nome = "A", .valori = {1.0, 2.0, 3.0}}}});
    }
    Griglia ctlGrid{"ctlGrid"};
    Grafico ctlChart{"ctlChart"};
};

class MenuDatiVero : public testing::Test {
protected:
    MenuDatiVero() {
        Contorno contorno = banco.cornice.contorno();
        contorno.servizi.disegnatore = &disegnatore;
        contorno.servizi.immagini = &immagini;
        finestra = std::make_unique<FinestraDue>(contorno);
        auto* piano = new QVBoxLayout(&vista);
        griglia = ui::collega(finestra->ctlGrid, &vista);
        grafico = ui::collega(finestra->ctlChart, &vista);
        piano->addWidget(griglia);
        piano->addWidget(grafico);
        vista.resize(600, 600);
        vista.show();
        vista.activateWindow();
        EXPECT_TRUE(gesti::davanti(vista));
    }
    ~MenuDatiVero() override {
        delete griglia;
        delete grafico;
    }
    /// The menu that the menu key brings up on what has the keyboard; null for none.
    static QMenu* menu() {
        QWidget* dove = QApplication::focusWidget();
        if (dove == nullptr) {
            return nullptr;
        }
        QContextMenuEvent evento(QContextMenuEvent::Keyboard, dove->rect().center(), dove->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(dove, &evento);
        return qobject_cast<QMenu*>(QApplication::activePopupWidget());
    }
    static std::vector<std::string> voci(const QMenu& menu) {
        std::vector<std::string> testi;
        for (const QAction* azione : menu.actions()) {
            testi.push_back(azione->isSeparator() ? "-" : azione->text().section('\t', 0, 0).toStdString());
        }
        return testi;
    }
    /// Chooses the entry by the arrow keys and Enter.
    static void scegli(int quante) {
        for (int i = 0; i < quante; ++i) {
            tasto(Qt::Key_Down);
        }
        tasto(Qt::Key_Return);
        smaltisci();
    }

    Banco banco;
    disegno::DisegnatoreQt disegnatore;
    ui::AppuntiImmaginiQt immagini;
    std::unique_ptr<FinestraDue> finestra;
    QWidget vista;
    ui::VistaGriglia* griglia = nullptr;
    ui::VistaGrafico* grafico = nullptr;
};

TEST_F(MenuDatiVero, TheMenuKeyOfATableSavesIt) {
    griglia->setFocus();
    QMenu* tendina = menu();
    ASSERT_NE(tendina, nullptr);
    EXPECT_EQ(voci(*tendina),
              (std::vector<std::string>{"Copia", "Copia con intestazioni", "Incolla", "-", "Salva come CSV..."}));
    banco.dialogo.scelte = {banco.cartella.file("t.csv")};
    tasto(Qt::Key_Up);  // the last entry
    tasto(Qt::Key_Return);
    smaltisci();
    ASSERT_EQ(banco.dialogo.richieste.size(), 1U);
    EXPECT_EQ(banco.dialogo.richieste[0].nome, "Due.csv");
    EXPECT_EQ(contenuto(banco.cartella.file("t.csv")), "\xEF\xBB\xBF;Flusso\r\n08:00;12,5\r\n");
}

TEST_F(MenuDatiVero, AChartIsReachedByTabAndItsPictureIsTheOneOfTheScreen) {
    griglia->setFocus();
    tasto(Qt::Key_Tab);
    smaltisci();
    EXPECT_EQ(fuoco(), "ctlChart");
    QMenu* tendina = menu();
    ASSERT_NE(tendina, nullptr);
    EXPECT_EQ(voci(*tendina), (std::vector<std::string>{"Copia immagine", "-", "Salva come PNG...", "Salva come SVG...",
                                                        "Salva come PDF...", "Salva i dati come CSV..."}));
    banco.dialogo.scelte = {banco.cartella.file("g.png")};
    scegli(2);
    const QImage png(QString::fromStdString(banco.cartella.file("g.png")));
    EXPECT_EQ(png.width(), 2400);
    EXPECT_EQ(png.height(), 1440);
    ASSERT_TRUE(gesti::davanti(vista));
    grafico->setFocus();
    ASSERT_NE(menu(), nullptr);
    scegli(1);
    EXPECT_EQ(QGuiApplication::clipboard()->image().size(), png.size());
}

TEST_F(MenuDatiVero, TheFocusOfAChartIsSeen) {
    grafico->clearFocus();
    smaltisci();
    const auto bordo = [&] { return grafico->grab().toImage().pixelColor(1, grafico->height() / 2); };
    EXPECT_EQ(bordo(), QColor(Qt::white));
    grafico->setFocus();
    smaltisci();
    const Colore blu = tinta::principale;
    EXPECT_EQ(bordo(), QColor(blu.rosso, blu.verde, blu.blu));
}

TEST_F(MenuDatiVero, TheRightButtonBringsTheMenuOfAChartUp) {
    QContextMenuEvent evento(QContextMenuEvent::Mouse, QPoint(50, 50), grafico->mapToGlobal(QPoint(50, 50)));
    QApplication::sendEvent(grafico, &evento);
    QWidget* tendina = QApplication::activePopupWidget();
    ASSERT_NE(tendina, nullptr);
    tendina->close();
}

TEST(AppuntiImmaginiQt, WhatIsNoPictureIsRefused) {
    ui::AppuntiImmaginiQt immagini;
    EXPECT_FALSE(immagini.scrivi("nessuna immagine"));
}

}  // namespace
}  // namespace kelvo::prove
