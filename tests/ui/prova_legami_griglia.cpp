#include <QtGui/QClipboard>
#include <QtGui/QContextMenuEvent>
#include <QtGui/QImage>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QScrollBar>

#include "scenaLegami.h"
#include "shell/servizi/Griglia.h"
#include "shell/servizi/MenuChiavi.h"
#include "ui/VistaGriglia.h"
#include "ui/serviziQt.h"

namespace kelvo::prove {
namespace {

/// A table of numbers under a green heading row and beside a green heading column; digits and comma may be typed.
struct ProveVistaGriglia : ScenaLegami {
    Griglia griglia{"ctlGrid"};
    ui::VistaGriglia* vista = nullptr;

    ProveVistaGriglia() {
        griglia.modificabile = [](Posto) { return true; };
        for (int c = 0; c < 4; ++c) {
            griglia.colonna(c, {.regole = {.caratteri = "0123456789,", .lunghezzaMassima = 4}});
        }
        griglia.tabella(numeri(4));
        vista = ui::collega(griglia, &finestra);
        apri(griglia, vista);
        vista->setFocus();
    }
    ~ProveVistaGriglia() override { delete vista; }

    static Tabella numeri(int righe) {
        Tabella tabella(righe, 4);
        tabella.larghezze = {1000, 1000, 1000, 2000};
        for (int r = 0; r < righe; ++r) {
            for (int c = 0; c < 4; ++c) {
                Cella& cella = tabella.cella(r, c);
                cella.testo = r == 0   ? "C" + std::to_string(c)
                              : c == 0 ? "R" + std::to_string(r)
                                       : std::to_string(r) + std::to_string(c);
                if (r == 0 || c == 0) {
                    cella.sfondo = colori::intestazione;
                    cella.inchiostro = colori::bianco;
                }
            }
        }
        return tabella;
    }
    QRect posto(int riga, int colonna) const { return vista->visualRect(vista->model()->index(riga - 1, colonna - 1)); }
    void clic(int riga, int colonna, Qt::KeyboardModifiers modi = {}) {
        QTest::mouseClick(vista->viewport(), Qt::LeftButton, modi, posto(riga, colonna).center());
    }
    QLineEdit& editor() const { return vista->editor(); }
    /// Colour of a point of the view, in logical pixels.
    QColor colore(QPoint punto) const {
        const QImage foto = vista->grab().toImage();
        const double rapporto = foto.devicePixelRatio();
        return foto.pixelColor(static_cast<int>(punto.x() * rapporto), static_cast<int>(punto.y() * rapporto));
    }
    QPoint nellaVista(QPoint punto) const { return vista->viewport()->mapTo(vista, punto); }
};

TEST_F(ProveVistaGriglia, AWholeTableIsTypedByKeyboardAlone) {
    digita("1,5");
    EXPECT_TRUE(editor().isVisible());
    EXPECT_EQ(fuoco(), "ctlGrid_editor");
    tasto(Qt::Key_Return);
    EXPECT_FALSE(editor().isVisible());
    EXPECT_EQ(fuoco(), "ctlGrid");
    digita("2");
    tasto(Qt::Key_Down);
    digita("3");
    tasto(Qt::Key_Tab);
    digita("4");
    tasto(Qt::Key_Return);
    EXPECT_EQ(griglia.testo(1, 1), "1,5");
    EXPECT_EQ(griglia.testo(2, 1), "2");
    EXPECT_EQ(griglia.testo(3, 1), "3");
    EXPECT_EQ(griglia.testo(3, 2), "4");
    EXPECT_EQ(griglia.corrente(), (Posto{1, 3}));
    EXPECT_EQ(custode.entrati.front(), "ctlGrid");
}

TEST_F(ProveVistaGriglia, TheEditorTakesWhatTheColumnAllows) {
    digita("1x2.3,45");
    EXPECT_EQ(ui::s(editor().text()), "123,");
    tasto(Qt::Key_Home);  // a typed text is left by the arrows, not walked in
    EXPECT_EQ(griglia.testo(1, 1), "123,");
    tasto(Qt::Key_F2);
    EXPECT_EQ(ui::s(editor().selectedText()), "123,");
    tasto(Qt::Key_Home);
    tasto(Qt::Key_Delete);
    EXPECT_EQ(griglia.testoEditor(), "23,");
    tasto(Qt::Key_Right);
    digita("9");
    EXPECT_EQ(ui::s(editor().text()), "293,");
    tasto(Qt::Key_Escape);
    EXPECT_EQ(griglia.testo(1, 1), "123,");
    EXPECT_EQ(fuoco(), "ctlGrid");
}

TEST_F(ProveVistaGriglia, APasteIntoTheEditorThatTheCellDoesNotTakeChangesNothing) {
    tasto(Qt::Key_F2);
    const std::string stava = ui::s(editor().text());
    QGuiApplication::clipboard()->setText(QStringLiteral("a1b2"));
    tasto(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(ui::s(editor().text()), stava);
    EXPECT_EQ(griglia.testoEditor(), stava);
    QGuiApplication::clipboard()->setText(QStringLiteral("12"));
    tasto(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(griglia.testoEditor(), "12");  // F2 selects the whole text
}

TEST_F(ProveVistaGriglia, AKeyThatIsNotAllowedMayEndTheEdit) {
    for (int c = 1; c < 4; ++c) {
        griglia.colonna(c, {.regole = {.caratteri = "0123456789", .esclusoChiude = true}});
    }
    digita("7;");
    EXPECT_EQ(griglia.testo(1, 1), "7");
    EXPECT_EQ(griglia.corrente(), (Posto{2, 1}));
    EXPECT_FALSE(editor().isVisible());
}

TEST_F(ProveVistaGriglia, ARefusedTextKeepsEditorAndFocus) {
    griglia.allaConferma = [](Posto, std::string&) { return EsitoUscita::rifiuto(std::string{"no"}); };
    digita("9");
    tasto(Qt::Key_Return);
    EXPECT_TRUE(editor().isVisible());
    EXPECT_TRUE(editor().property("fallito").toBool());
    campoDopo->setFocus();
    EXPECT_TRUE(QTest::qWaitFor([] { return fuoco() == "ctlGrid_editor"; }));
    QTest::mouseClick(vista->viewport(), Qt::LeftButton, {}, posto(3, 3).center());
    EXPECT_EQ(griglia.corrente(), (Posto{1, 1}));
    EXPECT_TRUE(QTest::qWaitFor([] { return fuoco() == "ctlGrid_editor"; }));
    tasto(Qt::Key_Escape);
    EXPECT_FALSE(editor().isVisible());
    campoDopo->setFocus();
    QApplication::processEvents();
    EXPECT_EQ(fuoco(), "txtDopo");
}

TEST_F(ProveVistaGriglia, LeavingTheGridStoresTheOpenText) {
    digita("8");
    campoDopo->setFocus();
    EXPECT_EQ(griglia.testo(1, 1), "8");
    EXPECT_FALSE(editor().isVisible());
    EXPECT_EQ(fuoco(), "txtDopo");
}

TEST_F(ProveVistaGriglia, TabLeavesAtTheLastCellAndBacktabAtTheFirst) {
    griglia.corrente({3, 3});
    digita("5");
    tasto(Qt::Key_Tab);
    EXPECT_EQ(griglia.testo(3, 3), "5");
    EXPECT_EQ(fuoco(), "txtDopo");
    vista->setFocus();
    griglia.corrente({1, 1});
    tasto(Qt::Key_Backtab);
    EXPECT_EQ(fuoco(), "txtPrima");
}

TEST_F(ProveVistaGriglia, ATableToLookAtIsOneStopOfTheTabKey) {
    griglia.modificabile = nullptr;
    tasto(Qt::Key_Tab);
    EXPECT_EQ(fuoco(), "txtDopo");
}

TEST_F(ProveVistaGriglia, TheMouseMovesTheCursorAndSelectsAndOpens) {
    std::vector<Posto> clics;
    griglia.alClic = [&](Posto p) { clics.push_back(p); };
    clic(2, 2);
    EXPECT_EQ(griglia.corrente(), (Posto{2, 2}));
    clic(3, 3, Qt::ShiftModifier);
    EXPECT_EQ(griglia.selezione(), (AreaCelle{{2, 2}, {3, 3}}));
    EXPECT_EQ(clics, (std::vector<Posto>{{2, 2}}));
    QTest::mouseDClick(vista->viewport(), Qt::LeftButton, {}, posto(1, 3).center());
    EXPECT_TRUE(editor().isVisible());
    EXPECT_EQ(ui::s(editor().selectedText()), "13");
    tasto(Qt::Key_Escape);
    QWidget* testata = vista->horizontalHeader()->viewport();
    QTest::mouseClick(testata, Qt::LeftButton, {},
                      QPoint(vista->horizontalHeader()->sectionViewportPosition(1) + 5, 5));
    EXPECT_EQ(clics.back(), (Posto{0, 2}));
}

TEST_F(ProveVistaGriglia, DraggingSelects) {
    QTest::mousePress(vista->viewport(), Qt::LeftButton, {}, posto(1, 1).center());
    QMouseEvent mossa(QEvent::MouseMove, posto(2, 3).center(), vista->viewport()->mapToGlobal(posto(2, 3).center()),
                      Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(vista->viewport(), &mossa);
    QTest::mouseRelease(vista->viewport(), Qt::LeftButton, {}, posto(2, 3).center());
    EXPECT_EQ(griglia.selezione(), (AreaCelle{{1, 1}, {2, 3}}));
}

TEST_F(ProveVistaGriglia, BlocksGoThroughTheClipboard) {
    tasto(Qt::Key_Right, Qt::ShiftModifier);
    tasto(Qt::Key_Down, Qt::ShiftModifier);
    tasto(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(custode.blocco.testo, "11\t12\r\n21\t22");
    tasto(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(custode.blocco.testo, "C0\tC1\tC2\r\nR1\t11\t12\r\nR2\t21\t22");
    custode.blocco.testo = "7\t8\n9\t10\n";
    tasto(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(griglia.testo(2, 2), "10");
    tasto(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(griglia.testo(2, 2), "22");
    tasto(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(griglia.testo(2, 2), "10");
    tasto(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(griglia.testo(2, 2), "22");
    tasto(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(griglia.testo(2, 2), "10");
    tasto(Qt::Key_A, Qt::ControlModifier);
    tasto(Qt::Key_Delete);
    EXPECT_EQ(griglia.testo(3, 3), "");
}

TEST(AppuntiQt, TextsGoToTheClipboardOfTheDesktop) {
    ui::AppuntiQt appunti;
    appunti.scrivi("12,5\t€\r\n7");
    EXPECT_EQ(ui::s(QGuiApplication::clipboard()->text()), "12,5\t€\r\n7");
    EXPECT_EQ(appunti.leggi(), "12,5\t€\r\n7");
}

TEST_F(ProveVistaGriglia, TheMenuComesUpAtTheKeyAndTheRightButton) {
    MenuChiavi menu("menuTabella");
    menu.aggiungiMenu("contesto", "");
    menu.aggiungi({.padre = "contesto", .testo = "Copia", .chiave = "mnuXCopia"});
    griglia.menuContesto = &menu;
    const auto chiede = [&](QContextMenuEvent::Reason ragione) {
        QContextMenuEvent evento(ragione, posto(1, 1).center(), QPoint(0, 0));
        QApplication::sendEvent(vista->viewport(), &evento);
        QWidget* tendina = QApplication::activePopupWidget();
        const bool venuto = tendina != nullptr;
        if (venuto) {
            tendina->close();
        }
        QApplication::processEvents();
        return venuto;
    };
    EXPECT_TRUE(chiede(QContextMenuEvent::Keyboard));
    EXPECT_TRUE(chiede(QContextMenuEvent::Mouse));
    Posto destro;
    griglia.alTastoDestro = [&](Posto p) { destro = p; };
    EXPECT_FALSE(chiede(QContextMenuEvent::Mouse));
    EXPECT_TRUE(chiede(QContextMenuEvent::Keyboard));
    QTest::mouseClick(vista->viewport(), Qt::RightButton, {}, posto(2, 1).center());
    EXPECT_EQ(destro, (Posto{2, 1}));
    EXPECT_EQ(griglia.corrente(), (Posto{2, 1}));
    griglia.alTastoDestro = nullptr;
    QTest::mouseClick(vista->viewport(), Qt::RightButton, {}, posto(3, 2).center());
    EXPECT_EQ(griglia.corrente(), (Posto{3, 2}));
}

TEST_F(ProveVistaGriglia, CellsArePaintedInTheColoursOfTheTable) {
    griglia.modifica([](Tabella& t) {
        t.cella(2, 2).sfondo = {255, 140, 140};
        t.cella(2, 3).sfondo = {220, 255, 220};
    });
    const auto angolo = [&](int riga, int colonna) {
        return colore(nellaVista(posto(riga, colonna).topLeft() + QPoint(4, 4)));
    };
    EXPECT_EQ(angolo(2, 2), QColor(255, 140, 140));
    EXPECT_EQ(angolo(2, 3), QColor(220, 255, 220));
    EXPECT_EQ(angolo(3, 3), QColor(255, 255, 255));
    EXPECT_EQ(colore(QPoint(3, 3)), QColor(0, 98, 0));                                          // the corner
    EXPECT_EQ(colore(QPoint(nellaVista(posto(1, 2).topLeft()).x() + 3, 3)), QColor(0, 98, 0));  // a heading
    EXPECT_EQ(colore(QPoint(3, nellaVista(posto(2, 1).topLeft()).y() + 3)), QColor(0, 98, 0));
}

TEST_F(ProveVistaGriglia, TheCurrentCellHasABlueLineInside) {
    griglia.corrente({2, 2});
    const QRect cella = posto(2, 2);
    EXPECT_EQ(colore(nellaVista(cella.topLeft())), QColor(0, 114, 198));
    EXPECT_EQ(colore(nellaVista(cella.topLeft() + QPoint(1, 1))), QColor(0, 114, 198));
    EXPECT_EQ(colore(nellaVista(cella.topLeft() + QPoint(3, 3))), QColor(255, 255, 255));
    EXPECT_NE(colore(nellaVista(posto(2, 3).topLeft() + QPoint(1, 1))), QColor(0, 114, 198));
    campoDopo->setFocus();  // no line where the keyboard is not
    EXPECT_EQ(colore(nellaVista(cella.topLeft())), QColor(255, 255, 255));
}

TEST_F(ProveVistaGriglia, SelectedCellsAreTinted) {
    griglia.corrente({1, 1});
    clic(2, 2, Qt::ShiftModifier);
    EXPECT_EQ(colore(nellaVista(posto(2, 2).topLeft() + QPoint(4, 4))), QColor(204, 227, 243));
    EXPECT_EQ(colore(nellaVista(posto(1, 1).topLeft() + QPoint(4, 4))), QColor(255, 255, 255));
}

TEST_F(ProveVistaGriglia, ColumnsShareTheRoomInTheirProportions) {
    const int totale = vista->width();
    EXPECT_EQ(vista->viewport()->width() + vista->verticalHeader()->width(), totale);
    EXPECT_EQ(vista->verticalHeader()->width() + vista->horizontalHeader()->length(), totale);
    EXPECT_NEAR(vista->verticalHeader()->width(), totale * 0.2, 1);
    EXPECT_NEAR(vista->columnWidth(0), totale * 0.2, 1);
    EXPECT_NEAR(vista->columnWidth(2), totale * 0.4, 3);  // what rounding leaves over is here
    griglia.colonna(2, {.nascosta = true});
    EXPECT_TRUE(vista->isColumnHidden(1));
    EXPECT_NEAR(vista->columnWidth(2), totale * 0.5, 1);
}

TEST_F(ProveVistaGriglia, NoColumnIsNarrowerThanItsText) {
    griglia.modifica([](Tabella& t) {
        t.larghezze = {5000, 10, 10, 10};
        t.cella(1, 1).testo = "123456,78";
    });
    const QFontMetrics metrica(ui::PittoreCelle(griglia).carattere({1, 1}));
    EXPECT_GE(vista->columnWidth(0), metrica.horizontalAdvance(QStringLiteral("123456,78")) + 16);
    EXPECT_EQ(vista->rowHeight(0), metrica.height() + 4) << "rows stand closer in a narrow window";
    finestra.resize(1440, 480);
    QApplication::processEvents();
    EXPECT_EQ(vista->rowHeight(0), metrica.height() + 6);
}

TEST_F(ProveVistaGriglia, HeadingsAreBrokenBetweenWordsAndNotInAUnit) {
    griglia.modifica([](Tabella& t) { t.cella(0, 1).testo = "Capacità [veic/h]"; });
    finestra.resize(1200, 480);
    QApplication::processEvents();
    const int una = vista->horizontalHeader()->height();
    finestra.resize(360, 480);
    QApplication::processEvents();
    const QFontMetrics metrica(ui::PittoreCelle(griglia).carattere({0, 1}));
    EXPECT_GE(vista->columnWidth(0), metrica.horizontalAdvance(QStringLiteral("[veic/h]")) + 16);
    EXPECT_LT(vista->columnWidth(0), metrica.horizontalAdvance(QStringLiteral("Capacità [veic/h]")));
    EXPECT_GT(vista->horizontalHeader()->height(), una);
}

TEST_F(ProveVistaGriglia, HeadingsOfANarrowWindowAreSmaller) {
    Tabella lunga = numeri(4);
    lunga.larghezze = {1000, 1, 1000, 1000};
    lunga.cella(0, 1).testo = "parola parola parola parola parola parola parola parola parola parola";
    griglia.tabella(lunga);
    finestra.resize(1400, 480);
    QApplication::processEvents();
    const int larga = vista->horizontalHeader()->height();
    finestra.resize(1399, 480);
    QApplication::processEvents();
    EXPECT_LE(vista->horizontalHeader()->height(), larga - 10);
    finestra.resize(1400, 480);
    QApplication::processEvents();
    EXPECT_EQ(vista->horizontalHeader()->height(), larga);
}

TEST_F(ProveVistaGriglia, LongTextsGoOnInLinesBelow) {
    const int bassa = vista->rowHeight(0);
    ColonnaGriglia colonna;
    colonna.aCapo = true;
    griglia.colonna(1, colonna);
    griglia.testo({1, 1}, "una domanda che in una riga sola non trova proprio posto nella colonna della tabella");
    EXPECT_GT(vista->rowHeight(0), 2 * bassa - 8);
    EXPECT_EQ(vista->rowHeight(1), bassa);
}

TEST_F(ProveVistaGriglia, TheTopRowFollowsTheProgramAndTheUser) {
    griglia.tabella(numeri(200));
    std::vector<int> alte;
    griglia.alloScorrimento = [&](int riga) { alte.push_back(riga); };
    griglia.rigaAlta(51);
    EXPECT_EQ(vista->rowAt(1), 50);
    EXPECT_TRUE(alte.empty());
    vista->verticalScrollBar()->setValue(100);
    EXPECT_EQ(griglia.rigaAlta(), 101);
    EXPECT_EQ(alte, (std::vector<int>{101}));
    vista->setFocus();
    griglia.corrente({1, 1});
    tasto(Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(griglia.corrente(), (Posto{199, 3}));
    EXPECT_TRUE(vista->viewport()->rect().contains(posto(199, 3)));
    tasto(Qt::Key_PageUp);
    EXPECT_EQ(griglia.corrente().riga, 199 - (griglia.righeVisibili - 1));
}

TEST_F(ProveVistaGriglia, AnEmptyTableIsShownAsWell) {
    griglia.tabella(Tabella(0, 4));
    griglia.tabella(Tabella(1, 4));
    EXPECT_EQ(vista->model()->rowCount(), 0);
    griglia.tabella(Tabella());
    vista->grab();
    tasto(Qt::Key_Down);
    griglia.tabella(numeri(3));
    EXPECT_EQ(vista->model()->rowCount(), 2);
    EXPECT_EQ(ui::s(vista->model()->data(vista->model()->index(1, 1)).toString()), "22");
    EXPECT_EQ(ui::s(vista->model()->headerData(0, Qt::Vertical).toString()), "R1");
}

TEST_F(ProveVistaGriglia, SignsBadgesAndBarsStandInTheirCells) {
    griglia.tabella(numeri(4));
    griglia.ornamento = [](Posto p) {
        OrnamentoCella o;
        if (p == Posto{1, 2}) {
            o.segno = OrnamentoCella::Segno::massimo;
        } else if (p == Posto{2, 2}) {
            o.barra = tinta::errore;
        } else if (p == Posto{3, 2}) {
            o.distintivo = distintivoLivello("F");
        }
        return o;
    };
    griglia.modifica([](Tabella& t) { t.cella(1, 2).inchiostro = {173, 0, 0}; });
    const QRect massimo = posto(1, 2);
    EXPECT_EQ(colore(nellaVista(QPoint(massimo.left() + 13, massimo.center().y() + 2))), QColor(173, 0, 0));
    EXPECT_EQ(colore(nellaVista(posto(2, 2).topLeft() + QPoint(1, 5))), QColor(176, 0, 32));
    const QRect livello = posto(3, 2);
    EXPECT_EQ(colore(nellaVista(livello.center() - QPoint(10, 0))), QColor(140, 0, 25));
    EXPECT_EQ(colore(nellaVista(livello.center() - QPoint(17, 0))), QColor(255, 255, 255));
}

}  // namespace
}  // namespace kelvo::prove
