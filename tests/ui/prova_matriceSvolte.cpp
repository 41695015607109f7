// The turning matrix by keyboard alone: typing from cell to cell, the corrections in per cent, a block pasted, undone
// and done again, the matrix of another project; the totals in line with their rows and columns.

#include <QtGui/QImage>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <string>

#include "comune/appunti.h"
#include "input/frmMatriceSvolte.h"
#include "ui/VistaGriglia.h"
#include "ui/banco.h"

namespace kelvo::prove {
namespace {

using gesti::attendi;
using gesti::smaltisci;
using gesti::tasto;

class MatriceSvolte : public testing::Test {
protected:
    AppuntiFinti blocco;
    void apri(int rami, std::int16_t tipo = 0) {
        banco.mostra();
        banco.nuovo(rami);
        rotonda().TipoMatriceSvolte(tipo);
        banco.vai("keyMatriceSvolte");
        ASSERT_EQ(banco.nomeCorrente(), "frmMatriceSvolte");
        ASSERT_TRUE(attendi([] { return gesti::fuoco() == "ctlGrid"; })) << gesti::fuoco();
    }
    Rotonda& rotonda() { return banco.app.theRotonda(); }
    frmMatriceSvolte& finestra() { return dynamic_cast<frmMatriceSvolte&>(*banco.cornice.gestione.corrente()); }
    ui::VistaGriglia& griglia(const char* nome) { return banco.oggetto<ui::VistaGriglia>(nome); }
    std::string parole(const char* nome) { return banco.oggetto<QLabel>(nome).text().toStdString(); }
    QImage pianta() {
        smaltisci();
        return banco.oggetto("ctlPianta").grab().toImage();
    }
    /// Types the value of each cell, row by row, Enter behind each; the cursor starts in the first cell.
    void scriviTutta(int rami) {
        for (int i = 1; i <= rami; ++i) {
            for (int j = 1; j <= rami; ++j) {
                if (i != j) {
                    gesti::digita(std::to_string(10 * i + j));
                    tasto(Qt::Key_Return);
                }
            }
        }
    }
    void attesa(int rami) {
        for (std::int16_t i = 1; i <= rami; ++i) {
            for (std::int16_t j = 1; j <= rami; ++j) {
                EXPECT_EQ(rotonda().MatriceSvolte(i, j), i == j ? 0.0F : static_cast<float>(10 * i + j)) << i << j;
            }
        }
    }

    Banco banco;
};

TEST_F(MatriceSvolte, AWholeMatrixIsTypedWithEnterFromCellToCell) {
    for (const int rami : {4, 7}) {
        if (rami == 4) {
            apri(rami);
        } else {
            banco.chiudi();
            banco.nuovo(rami);
            banco.vai("keyMatriceSvolte");
        }
        scriviTutta(rami);
        EXPECT_EQ(finestra().movimento(), (Posto{rami, rami - 1})) << "it stays in the last cell";
        tasto(Qt::Key_Return, Qt::ControlModifier);
        smaltisci();
        attesa(rami);
    }
    EXPECT_TRUE(banco.messaggi.mostrati.size() <= 1) << banco.ultimo();  // only the question of closing
}

TEST_F(MatriceSvolte, ArrowsAndShiftEnterSkipTheDiagonalBothWays) {
    apri(4);
    EXPECT_EQ(finestra().movimento(), (Posto{1, 2}));
    tasto(Qt::Key_Down);
    EXPECT_EQ(finestra().movimento(), (Posto{3, 2}));
    tasto(Qt::Key_Right);
    EXPECT_EQ(finestra().movimento(), (Posto{3, 4}));
    tasto(Qt::Key_Left);
    EXPECT_EQ(finestra().movimento(), (Posto{3, 2}));
    tasto(Qt::Key_Up);
    EXPECT_EQ(finestra().movimento(), (Posto{1, 2}));
    tasto(Qt::Key_Return);
    tasto(Qt::Key_Return);
    tasto(Qt::Key_Return);
    EXPECT_EQ(finestra().movimento(), (Posto{2, 1}));
    tasto(Qt::Key_Return);
    EXPECT_EQ(finestra().movimento(), (Posto{2, 3}));
    tasto(Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(finestra().movimento(), (Posto{2, 1}));
}

TEST_F(MatriceSvolte, WhatIsMissingTo100FollowsEachCell) {
    apri(4, 1);
    EXPECT_TRUE(banco.oggetto("lblPercentualeROSSO").isVisible());
    EXPECT_FALSE(banco.oggetto("ctlGridUscite").isVisible());
    EXPECT_FALSE(banco.oggetto("frmTotaleUscite").isVisible());
    const std::vector<std::string> dopo{"[%] [ aggiungere 70]", "[%] [ aggiungere 20]", "[%] [ sottrarre 5]"};
    const std::vector<std::string> valori{"30", "50", "25"};
    for (std::size_t i = 0; i < valori.size(); ++i) {
        gesti::digita(valori[i]);
        tasto(Qt::Key_Return);
        EXPECT_EQ(parole("lblVeicoliEntrate1"), dopo[i]);
    }
    tasto(Qt::Key_Return, Qt::ShiftModifier);
    gesti::digita("20");
    tasto(Qt::Key_Return);
    EXPECT_EQ(parole("lblVeicoliEntrate1"), "[%]");
    EXPECT_EQ(parole("lblVeicoliEntrate2"), "[%]");
}

TEST_F(MatriceSvolte, AFractionIsMendedWithItsCommaAndWhatIsNotTakenEndsTheEdit) {
    apri(4);
    rotonda().MatriceSvolte(12.5F, 1, 2);
    tasto(Qt::Key_F5);
    smaltisci();
    tasto(Qt::Key_F2);
    tasto(Qt::Key_End);
    gesti::digita("6");
    auto& editor = griglia("ctlGrid").editor();
    EXPECT_EQ(editor.text(), "12,56");
    tasto(Qt::Key_Escape);
    EXPECT_EQ(finestra().ctlGrid.testo(1, 2), "12,5");
    gesti::digita("40,");
    EXPECT_EQ(finestra().ctlGrid.testo(1, 2), "40");
    EXPECT_EQ(finestra().movimento(), (Posto{1, 3}));
}

TEST_F(MatriceSvolte, ABlockIsPastedUndoneAndDoneAgain) {
    apri(4);
    tasto(Qt::Key_Return, Qt::ShiftModifier);  // nothing lies before the first cell
    gesti::digita("3");
    tasto(Qt::Key_Return);
    tasto(Qt::Key_Home);
    blocco.testo = "5\t6\t7\r\n\t9\t10\r\n";
    banco.app.appunti = &blocco;
    tasto(Qt::Key_V, Qt::ControlModifier);
    const auto riga = [&](int r) {
        std::string testo;
        for (int c = 1; c <= 4; ++c) {
            testo += (c == 1 ? "" : " ") + finestra().ctlGrid.testo(r, c);
        }
        return testo;
    };
    EXPECT_EQ(riga(1), " 5 6 7");
    EXPECT_EQ(riga(2), "0  9 10");
    tasto(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(riga(1), " 3 0 0");
    tasto(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(riga(1), " 0 0 0");
    tasto(Qt::Key_Y, Qt::ControlModifier);
    tasto(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(riga(1), " 5 6 7");
    EXPECT_EQ(finestra().ctlGridEntrate.testo(0, 0), "18");
    tasto(Qt::Key_Return, Qt::ControlModifier);
    smaltisci();
    EXPECT_EQ(rotonda().MatriceSvolte(2, 4), 10.0F);
}

TEST_F(MatriceSvolte, TotalsStandInLineWithTheirRowsAndColumns) {
    apri(7);
    constexpr int linea = 1;  // tables of totals draw it beside their cells, the matrix within them
    for (const QSize misura : {QSize(1440, 900), QSize(1366, 768), QSize(960, 600)}) {
        banco.vista.resize(misura);
        smaltisci();
        for (const char* valore : {"1", "32767"}) {
            gesti::digita(valore);  // a total wider than its column was
            tasto(Qt::Key_Return);
            smaltisci();
            auto& celle = griglia("ctlGrid");
            QWidget& quadro = *celle.parentWidget();
            const auto nelQuadro = [&](const char* nome, Posto cella) {
                auto& vista = griglia(nome);
                return vista.posto(cella).translated(vista.mapTo(&quadro, QPoint(0, 0)));
            };
            for (int i = 1; i <= 7; ++i) {
                const QRect riga = nelQuadro("ctlGrid", {i, i == 1 ? 2 : 1});
                const QRect totale = nelQuadro("ctlGridEntrate", {i - 1, 0});
                EXPECT_EQ(totale.top(), riga.top()) << i;
                EXPECT_EQ(totale.bottom() + linea, riga.bottom()) << i;
                const QRect colonna = nelQuadro("ctlGrid", {1, i});
                const QRect somma = nelQuadro("ctlGridUscite", {0, i - 1});
                EXPECT_EQ(somma.left(), colonna.left()) << i;
                EXPECT_EQ(somma.right() + linea, colonna.right()) << i;
                const auto unita = "lblVeicoliEntrate" + std::to_string(i);
                const QWidget& parole = banco.oggetto(unita.c_str());
                EXPECT_EQ(parole.geometry().center().y(), riga.center().y()) << i;
                EXPECT_GE(parole.width(), parole.sizeHint().width()) << i;
            }
        }
    }
}

TEST_F(MatriceSvolte, ThePlanFollowsTheCellAndShowsTheFlowsOnDemand) {
    apri(4);
    const QImage prima = pianta();
    tasto(Qt::Key_Right);
    EXPECT_NE(pianta(), prima);
    EXPECT_EQ(parole("lblMovimento"), "Da A verso C: 0 veicoli");
    tasto(Qt::Key_Left);
    EXPECT_EQ(pianta(), prima);
    auto& flussi = banco.oggetto<QAbstractButton>("chkFlussi");
    banco.entra("chkFlussi");
    tasto(Qt::Key_Space);
    EXPECT_TRUE(flussi.isChecked());
    EXPECT_EQ(pianta(), prima) << "no ribbon for 0";
    banco.entra("ctlGrid");
    gesti::digita("80");
    tasto(Qt::Key_Return);
    tasto(Qt::Key_Left);
    const QImage conNastro = pianta();
    EXPECT_NE(conNastro, prima);
    gesti::clic(flussi, {10, 10});
    EXPECT_NE(pianta(), conNastro);
}

TEST_F(MatriceSvolte, ALargerMatrixIsImportedThroughTheDialogueWithItsPreview) {
    Rotonda altra;
    altra.NumeroRami(7);
    for (int i = 1; i <= 7; ++i) {
        altra.AddRamo(std::to_string(i) + "Ramo");
    }
    for (std::int16_t i = 1; i <= 7; ++i) {
        for (std::int16_t j = 1; j <= 7; ++j) {
            altra.MatriceSvolte(i == j ? 0.0F : static_cast<float>(10 * i + j), i, j);
        }
    }
    altra.Titolo("Sette strade");
    const std::string file = banco.cartella.file("sette.klv");
    std::string messaggio;
    bool esito = false;
    altra.Save(file, messaggio, esito);
    ASSERT_TRUE(esito) << messaggio;
    apri(4);
    gesti::AlModale dialogo("dialogoFile", [&](QWidget& modale) {
        auto& aperto = dynamic_cast<QFileDialog&>(modale);
        Q_EMIT aperto.currentChanged(QString::fromStdString(file));
        aperto.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(QString::fromStdString(file));
        EXPECT_EQ(aperto.findChild<QLabel*>(QStringLiteral("txtTitolo"))->text(), "Sette strade");
        auto* celle = aperto.findChild<ui::VistaGriglia*>(QStringLiteral("ctlGrid"));
        EXPECT_EQ(celle->model()->rowCount(), 7);
        EXPECT_EQ(celle->model()->index(6, 5).data().toString(), "76");
        aperto.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setFocus();
        tasto(Qt::Key_Return);
        EXPECT_TRUE(attendi([&] { return !aperto.isVisible(); }));
        if (aperto.isVisible()) {
            aperto.reject();
        }
    });
    finestra().barra()->premi("Archivio");
    EXPECT_TRUE(dialogo.avvenuto());
    EXPECT_FALSE(dialogo.rimasto());
    ASSERT_TRUE(gesti::davanti(banco.vista));
    EXPECT_EQ(rotonda().MatriceSvolte(4, 3), 0.0F) << "nothing is written yet";
    tasto(Qt::Key_Return, Qt::ControlModifier);
    smaltisci();
    attesa(4);
    EXPECT_TRUE(banco.messaggi.mostrati.empty()) << banco.ultimo();
}

}  // namespace
}  // namespace kelvo::prove
