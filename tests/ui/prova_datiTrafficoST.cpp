// The demand of a leg as counts, typed and pasted by the keyboard alone.

#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QScrollBar>
#include <string>

#include "comune/appunti.h"
#include "input/frmDatiTrafficoST.h"
#include "ui/VistaGriglia.h"
#include "ui/banco.h"

namespace kelvo::prove {
namespace {

using gesti::attendi;
using gesti::fuoco;
using gesti::smaltisci;
using gesti::tasto;

/// A project of three legs, 08:00 to 09:30 by 15 minutes, whose option of the segment table was chosen by the keyboard.
class DatiTrafficoSTVista : public testing::Test {
protected:
    void SetUp() override {
        banco.app.appunti = &blocco;
        banco.mostra();
        banco.nuovo(3);
        tempi(15, 6);
        banco.vai("keyOpzioni");
        ASSERT_EQ(fuoco(), "optCurvaTempoFlusso");
        tasto(Qt::Key_Down);
        ASSERT_EQ(fuoco(), "optSegmentiTempo");
        tasto(Qt::Key_Space);
        tasto(Qt::Key_Return, Qt::ControlModifier);
        smaltisci();
        apri("keyDatiTraffico1");
        ASSERT_EQ(banco.nomeCorrente(), "frmDatiTrafficoST");
        banco.messaggi.mostrati.clear();  // that options were changed
    }
    void tempi(int minuti, std::int16_t segmenti) {
        Rotonda& r = banco.app.theRotonda();
        r.TempoIniziale(oraDelGiorno(8, 0));
        r.TempoFinale(oraDelGiorno(8, minuti * segmenti));
        r.SegmentoTempo(oraDelGiorno(0, minuti));
        for (std::int16_t i = 1; i <= 3; ++i) {
            r.Ramo(i).theDatiTraffico().NumSegmentiTempo(segmenti);
            r.Ramo(i).theComposizioneTraffico().NumSegmentiTempo(segmenti);
        }
    }
    void apri(const std::string& chiave) {
        tasto(Qt::Key_F6);
        smaltisci();
        ASSERT_TRUE(gesti::vaiAlNodo(banco.albero(), chiave)) << chiave;
        ASSERT_TRUE(attendi([] { return fuoco() == "ctlGrid"; })) << chiave << ": " << fuoco();
    }
    void conta(const std::string& testo) {
        gesti::digita(testo);
        tasto(Qt::Key_Return);
        smaltisci();
    }
    std::string testo(const char* nome) { return banco.oggetto<QLineEdit>(nome).text().toStdString(); }
    std::string totali() {
        return testo("txtFlussoTotale") + " " + testo("txtFlussoMedio") + " " + testo("txtFlussoOrario");
    }
    const std::vector<float>& flussi(std::int16_t i) {
        return banco.app.theRotonda().Ramo(i).theDatiTraffico().FlussiSegmento();
    }
    frmDatiTrafficoST& finestra() { return dynamic_cast<frmDatiTrafficoST&>(*banco.cornice.gestione.corrente()); }

    AppuntiFinti blocco;
    Banco banco;
};

TEST_F(DatiTrafficoSTVista, TypedCountsEndInTheProject) {
    for (const char* veicoli : {"10", "20,5", "30", "15", "0", "4,5"}) {
        conta(veicoli);
    }
    EXPECT_EQ(totali(), "80 0,89 53,33");
    EXPECT_TRUE(banco.oggetto("segnoDati").isVisible());
    tasto(Qt::Key_Return, Qt::ControlModifier);
    smaltisci();
    EXPECT_EQ(flussi(1), (std::vector<float>{10.0F, 20.5F, 30.0F, 15.0F, 0.0F, 4.5F}));
    const DatiTraffico& dati = banco.app.theRotonda().Ramo(1).theDatiTraffico();
    EXPECT_EQ(dati.FlussoTotale(), 80.0F);
    EXPECT_EQ(dati.FlussoMedio(), 0.89F);
    EXPECT_EQ(dati.FlussoOrario(), 53.33F);
    EXPECT_FALSE(banco.oggetto("segnoDati").isVisible());
    EXPECT_TRUE(banco.messaggi.mostrati.empty()) << banco.ultimo();
}

TEST_F(DatiTrafficoSTVista, APastedBlockEndsInTheProjectAndCanBeUndone) {
    tasto(Qt::Key_Down);
    blocco.testo = "1\r\n2,5\r\n3.5\r\n4\r\n5\r\n6\r\n7\r\n";
    tasto(Qt::Key_V, Qt::ControlModifier);
    smaltisci();
    EXPECT_EQ(totali(), "16 0,18 10,67");
    tasto(Qt::Key_Z, Qt::ControlModifier);
    smaltisci();
    EXPECT_EQ(totali(), "0 0,00 0,00");
    tasto(Qt::Key_Y, Qt::ControlModifier);
    tasto(Qt::Key_A, Qt::ControlModifier);
    tasto(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(blocco.testo, "0\r\n1\r\n2,5\r\n3,5\r\n4\r\n5");
    tasto(Qt::Key_Return, Qt::ControlModifier);
    smaltisci();
    EXPECT_EQ(flussi(1), (std::vector<float>{0.0F, 1.0F, 2.5F, 3.5F, 4.0F, 5.0F}));
}

TEST_F(DatiTrafficoSTVista, ADroppedKeyEndsTheEditAndTheNextRowIsTypedInto) {
    gesti::digita("12x34");
    smaltisci();
    EXPECT_EQ(finestra().ctlGrid.testo(1, 1), "12");
    EXPECT_EQ(finestra().ctlGrid.testoEditor(), "34");
    tasto(Qt::Key_Escape);
    EXPECT_EQ(finestra().ctlGrid.testo(2, 1), "0");
}

TEST_F(DatiTrafficoSTVista, CountsStayWithTheirLegWhenAnotherOneIsChosen) {
    conta("10");
    gesti::digita("7");  // and still being typed
    apri("keyDatiTraffico2");
    EXPECT_EQ(flussi(1), (std::vector<float>{10.0F, 7.0F, 0.0F, 0.0F, 0.0F, 0.0F}));
    EXPECT_EQ(flussi(2), std::vector<float>(6, 0.0F));
    EXPECT_EQ(testo("txtDescrizioneRamo"), "Ramo B");
    EXPECT_EQ(finestra().ctlGrid.corrente(), (Posto{1, 1}));
    conta("3");
    apri("keyDatiTraffico1");
    EXPECT_EQ(flussi(2)[0], 3.0F);
    EXPECT_EQ(finestra().ctlGrid.testo(2, 1), "7");
    EXPECT_EQ(totali(), "17 0,19 11,33");
}

TEST_F(DatiTrafficoSTVista, ATextThatIsNoNumberKeepsTheWindow) {
    gesti::digita("1,2,3");
    tasto(Qt::Key_Return);
    smaltisci();
    EXPECT_EQ(banco.cornice.ctlStatusBar.avviso(), "Scrivere un numero.");
    gesti::clicNodo(banco.albero(), "keyDatiTraffico2");
    smaltisci();
    EXPECT_EQ(finestra().sottotitolo.testo(), "Ramo A");
    EXPECT_TRUE(attendi([&] { return gesti::selezionato(banco.albero()) == "keyDatiTraffico1"; }));
    EXPECT_TRUE(attendi([] { return fuoco() == "ctlGrid_editor"; })) << fuoco();
    tasto(Qt::Key_Escape);
    tasto(Qt::Key_Return);
    EXPECT_EQ(flussi(1), std::vector<float>(6, 0.0F));
}

TEST_F(DatiTrafficoSTVista, TheTabKeyLeavesTheTableAtItsEndAndTheBoxShowsTheFigures) {
    tasto(Qt::Key_End, Qt::ControlModifier);
    tasto(Qt::Key_Tab);
    EXPECT_EQ(fuoco(), "cmdImportaCSV");
    tasto(Qt::Key_Tab);
    EXPECT_EQ(fuoco(), "txtDescrizioneRamo");
    for (int i = 0; i < 8 && fuoco() != "Check1"; ++i) {
        tasto(Qt::Key_Tab);
    }
    ASSERT_EQ(fuoco(), "Check1");
    const QImage prima = banco.oggetto("ctlChart").grab().toImage();
    tasto(Qt::Key_Space);
    smaltisci();
    EXPECT_TRUE(finestra().ctlChart.contenuto().valori);
    EXPECT_NE(banco.oggetto("ctlChart").grab().toImage(), prima);
}

TEST_F(DatiTrafficoSTVista, SeventyTwoRowsScrollWithTheCursor) {
    tempi(5, 72);
    banco.vai("keyMyProject");
    apri("keyDatiTraffico3");
    auto& griglia = banco.oggetto<ui::VistaGriglia>("ctlGrid");
    EXPECT_EQ(griglia.model()->rowCount(), 72);
    EXPECT_EQ(griglia.verticalScrollBar()->value(), 0);
    tasto(Qt::Key_End, Qt::ControlModifier);
    smaltisci();
    EXPECT_GT(griglia.verticalScrollBar()->value(), 20);
    conta("9");
    EXPECT_EQ(finestra().FlussiSegmento().back(), 9.0F);
    apri("keyDatiTraffico2");
    EXPECT_EQ(griglia.verticalScrollBar()->value(), 0) << "another leg starts at its first row";
}

}  // namespace
}  // namespace kelvo::prove
