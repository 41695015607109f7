// The two what-if windows by keyboard and mouse: right-turn lanes, sensitivity of an entry with its summary.

#include <QtGui/QImage>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTabWidget>
#include <filesystem>

#include "results/frmDX.h"
#include "results/frmRisultatiAnalisiMarginale.h"
#include "ui/VistaGriglia.h"
#include "ui/banco.h"

namespace kelvo::prove {
namespace {

using gesti::attendi;
using gesti::clic;
using gesti::smaltisci;
using gesti::tasto;

class Ipotesi : public testing::Test {
protected:
    void progetto(int rami) {
        banco.mostra();
        banco.nuovo(rami);
        Rotonda& rotonda = banco.app.theRotonda();
        rotonda.OttimizzazioneGeometrica(true);
        for (std::int16_t i = 1; i <= rami; ++i) {
            DatiTraffico& traffico = rotonda.Ramo(i).theDatiTraffico();
            traffico.FlussoTempo1(4.0F);
            traffico.FlussoTempo2(16.0F);
            traffico.FlussoTempo3(3.0F);
            traffico.FlussoTotale(300.0F);
            for (std::int16_t j = 1; j <= rami; ++j) {
                rotonda.MatriceSvolte(i == j ? 0.0F : 10.0F, i, j);
            }
        }
        AnalisiMarginale& analisi = rotonda.Ramo(2).theAnalisiMarginale();
        analisi.UsaLarghezzaIngresso(true);
        analisi.UsaDiametroInscritto(true);
        banco.cornice.LoadTreeView();
        banco.cornice.SetUpOpzioni();
    }
    template <class F>
    F& finestra() {
        return dynamic_cast<F&>(*banco.cornice.gestione.corrente());
    }
    /// Clicks on the sign of a check box or an option, or on a button.
    void premi(const char* nome) {
        auto& bottone = banco.oggetto<QAbstractButton>(nome);
        clic(bottone, QPoint(12, bottone.height() / 2));
        smaltisci();
    }
    /// The lanes take vehicles from an entry, by its number.
    bool tolti(int ingresso) {
        const std::string& variazione = finestra<frmDX>().ctlGrid.testo(3, ingresso);
        return !variazione.empty() && variazione != "0%";
    }
    bool veduto(const char* nome) { return banco.oggetto(nome).isVisible(); }
    QTabBar& linguette() { return *banco.oggetto<QTabWidget>("ctlTab").tabBar(); }

    Banco banco;
};

TEST_F(Ipotesi, ALaneIsChosenAndCalculatedByKeysAlone) {
    progetto(4);
    const auto prima = istantanea(banco.app.theRotonda());
    banco.vai("keyCorsiaDX");
    ASSERT_EQ(banco.nomeCorrente(), "frmDX");
    ASSERT_TRUE(attendi([] { return gesti::fuoco() == "listDX"; })) << gesti::fuoco();
    tasto(Qt::Key_F9);
    EXPECT_EQ(banco.ultimo(), "Attezione! Selezionare almeno una corsia di svolta a destra da verificare.");
    EXPECT_TRUE(attendi([] { return gesti::fuoco() == "listDX"; })) << gesti::fuoco();
    tasto(Qt::Key_Space);
    tasto(Qt::Key_Down);
    tasto(Qt::Key_Down);
    tasto(Qt::Key_Space);
    EXPECT_EQ(finestra<frmDX>().corsie(), (CorsieDestra{true, false, true, false}));
    tasto(Qt::Key_F9);
    smaltisci();
    EXPECT_TRUE(tolti(1));
    EXPECT_FALSE(tolti(2));
    EXPECT_TRUE(tolti(3));
    EXPECT_FALSE(veduto("cmdCalcola"));
    tasto(Qt::Key_P, Qt::ControlModifier);
    ASSERT_EQ(banco.documenti.aperti.size(), 1U);
    EXPECT_TRUE(std::filesystem::exists(banco.documenti.aperti[0]));
    EXPECT_EQ(istantanea(banco.app.theRotonda()), prima);
}

TEST_F(Ipotesi, AClickOnALaneAndOnTheButtonInTheTableCalculates) {
    progetto(4);
    banco.vai("keyCorsiaDX");
    EXPECT_TRUE(veduto("cmdCalcola"));
    EXPECT_FALSE(veduto("frameAVVISO"));
    auto& elenco = banco.oggetto<QListWidget>("listDX");
    clic(*elenco.viewport(), elenco.visualItemRect(elenco.item(1)).center());
    EXPECT_EQ(finestra<frmDX>().corsie(), (CorsieDestra{false, true, false, false}));
    clic(banco.oggetto("cmdCalcola"), banco.oggetto("cmdCalcola").rect().center());
    smaltisci();
    EXPECT_TRUE(tolti(2));
    EXPECT_FALSE(veduto("cmdCalcola"));
    EXPECT_EQ(gesti::fuoco(), "ctlGrid");
    clic(*elenco.viewport(), elenco.visualItemRect(elenco.item(3)).center());
    EXPECT_TRUE(veduto("lblVecchi"));
    EXPECT_EQ(banco.oggetto<QLabel>("lblVecchi").text(),
              QStringLiteral("Le corsie scelte non sono quelle del confronto mostrato. Premere Calcola (F9)."));
    EXPECT_TRUE(banco.messaggi.mostrati.empty());
}

TEST_F(Ipotesi, ThePlanFollowsWhatWasChangedMeanwhile) {
    progetto(4);
    const auto ritorno = [this] {
        banco.vai("keyMyProject");
        banco.vai("keyCorsiaDX");
        smaltisci();
        return banco.oggetto("ctlPianta").grab().toImage();
    };
    const QImage prima = ritorno();
    EXPECT_EQ(ritorno(), prima);
    banco.app.theRotonda().Ramo(1).LarghezzaIngresso(12.0F);
    const QImage larga = ritorno();
    EXPECT_NE(larga, prima);
    banco.app.theRotonda().Ramo(1).Descrizione("");
    EXPECT_EQ(ritorno(), larga) << "a leg without a name is drawn all the same";
}

TEST_F(Ipotesi, EachFlowStandsOnTheLineOfItsLane) {
    progetto(4);
    banco.vai("keyCorsiaDX");
    auto& elenco = banco.oggetto<QListWidget>("listDX");
    const char* nomi[] = {"labelAB", "labelBC", "labelCD", "labelDA"};
    for (int i = 0; i < 4; ++i) {
        auto& flusso = banco.oggetto<QLabel>(nomi[i]);
        EXPECT_EQ(flusso.text(), QStringLiteral("10 [veic.]"));
        const int riga = elenco.viewport()->mapToGlobal(elenco.visualItemRect(elenco.item(i)).center()).y();
        EXPECT_NEAR(flusso.mapToGlobal(flusso.rect().center()).y(), riga, 3) << i;
    }
}

TEST_F(Ipotesi, ThreeLegsShowTheNoticeAndNothingElse) {
    progetto(3);
    banco.vai("keyCorsiaDX");
    EXPECT_TRUE(veduto("frameAVVISO"));
    EXPECT_EQ(banco.oggetto<QLabel>("lblAVVISO").text(),
              QStringLiteral("Funzione disponibile solo per rotatorie a quattro ingressi!"));
    for (const char* nome : {"frSCELTA", "listDX", "ctlGrid", "lblLegenda", "cmdCalcola", "ctlPianta"}) {
        EXPECT_FALSE(veduto(nome)) << nome;
    }
    tasto(Qt::Key_F9);
    tasto(Qt::Key_P, Qt::ControlModifier);
    EXPECT_TRUE(banco.messaggi.mostrati.empty());
    EXPECT_TRUE(banco.documenti.aperti.empty());
}

TEST_F(Ipotesi, TheNodeOfALegOpensItsSensitivityAndClosedTabsStayClosed) {
    progetto(3);
    banco.vai("keyOttimizzazioneGeometrica2");
    ASSERT_EQ(banco.nomeCorrente(), "frmRisultatiAnalisiMarginale");
    auto& f = finestra<frmRisultatiAnalisiMarginale>();
    EXPECT_EQ(f.sottotitolo.testo(), "Ramo B");
    clic(linguette(), linguette().tabRect(1).center());
    EXPECT_EQ(f.ctlTab.corrente(), 0);
    clic(linguette(), linguette().tabRect(5).center());
    smaltisci();
    EXPECT_EQ(f.ctlTab.corrente(), 5);
    EXPECT_TRUE(veduto("ctlGrid6"));
    EXPECT_FALSE(veduto("ctlGrid1"));
    tasto(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(f.ctlTab.corrente(), 6);
    tasto(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(f.ctlTab.corrente(), 0);
    gesti::clicNodo(banco.albero(), "keyOttimizzazioneGeometrica1");  // no measure of this leg is to be moved
    smaltisci();
    EXPECT_EQ(f.sottotitolo.testo(), "Ramo B");
}

TEST_F(Ipotesi, AFigureIsChosenAndCalculatedByKeys) {
    progetto(3);
    const auto prima = istantanea(banco.app.theRotonda());
    banco.vai("keyOttimizzazioneGeometrica2");
    auto& f = finestra<frmRisultatiAnalisiMarginale>();
    tasto(Qt::Key_F9);
    EXPECT_EQ(banco.ultimo(), "Attenzione! Selezionare una variabile");
    ASSERT_TRUE(attendi([] { return gesti::fuoco() == "OptCAPACITA"; })) << gesti::fuoco();
    tasto(Qt::Key_Space);
    tasto(Qt::Key_F9);
    smaltisci();
    EXPECT_EQ(f.RMChartX1.contenuto().titolo, "Relazione tra Larghezza Ingresso e Capacità");
    EXPECT_NE(f.griglie[0].testo(2, 4), "");
    EXPECT_NE(f.griglie[5].testo(2, 4), "");
    tasto(Qt::Key_Down);
    EXPECT_EQ(f.RMChartX1.contenuto().titolo, "Relazione tra Larghezza Ingresso e Coda");
    tasto(Qt::Key_P, Qt::ControlModifier);
    ASSERT_EQ(banco.documenti.aperti.size(), 1U);
    EXPECT_EQ(std::filesystem::path(banco.documenti.aperti[0]).filename(), "RisultatiMarginale.txt");
    EXPECT_EQ(istantanea(banco.app.theRotonda()), prima);
}

TEST_F(Ipotesi, TheButtonCalculatesTheTabInViewOnly) {
    progetto(3);
    banco.vai("keyOttimizzazioneGeometrica2");
    auto& f = finestra<frmRisultatiAnalisiMarginale>();
    premi("OptRITARDO");
    premi("Command1");
    EXPECT_NE(f.griglie[0].testo(2, 4), "");
    EXPECT_EQ(f.griglie[5].testo(2, 4), "");
    EXPECT_FALSE(f.cmdCalcola.visibile());
}

TEST_F(Ipotesi, TheSummaryAnswersHowMuchIsNeeded) {
    progetto(3);
    const auto prima = istantanea(banco.app.theRotonda());
    banco.vai("keyOttimizzazioneGeometrica2");
    auto& f = finestra<frmRisultatiAnalisiMarginale>();
    premi("OptCAPACITA");
    tasto(Qt::Key_F9);
    clic(linguette(), linguette().tabRect(6).center());
    smaltisci();
    EXPECT_EQ(f.RMChartX1.contenuto().titolo, "Capacità: variazione per un passo di ogni grandezza");
    EXPECT_TRUE(veduto("RMChartX1"));
    auto& campo = dynamic_cast<QLineEdit&>(banco.entra("txtSaturazione"));
    campo.selectAll();
    gesti::digita("0,3");
    premi("cmdQuantoServe");
    EXPECT_EQ(campo.text(), QStringLiteral("0,30"));
    ASSERT_TRUE(f.risposta());
    EXPECT_EQ(banco.oggetto<QLabel>("lblQuantoServe").text().toStdString(),
              paroleQuantoServe(*f.risposta(), 0, {.saturazione = 0.3}));
    EXPECT_TRUE(veduto("lblEffetto"));
    premi("optLIVELLO");
    EXPECT_FALSE(campo.isEnabled());
    EXPECT_FALSE(f.risposta());
    EXPECT_EQ(istantanea(banco.app.theRotonda()), prima);
}

TEST_F(Ipotesi, LeavingTheWindowsWritesNothing) {
    progetto(4);
    const std::string prima = banco.app.theRotonda().TestoFile();
    const auto revisione = banco.app.theRotonda().revisione().tutto;
    banco.vai("keyCorsiaDX");
    auto& elenco = banco.oggetto<QListWidget>("listDX");
    clic(*elenco.viewport(), elenco.visualItemRect(elenco.item(0)).center());
    premi("chkStampaDX");
    tasto(Qt::Key_F9);
    banco.vai("keyOttimizzazioneGeometrica2");
    premi("OptCODA");
    tasto(Qt::Key_F9);
    banco.vai("keyMyProject");
    EXPECT_EQ(banco.app.theRotonda().TestoFile(), prima);
    EXPECT_EQ(banco.app.theRotonda().revisione().tutto, revisione);
    banco.vai("keyCorsiaDX");
    EXPECT_EQ(finestra<frmDX>().listDX.quanteSpuntate(), 1) << "the choice lives as long as the window";
}

}  // namespace
}  // namespace kelvo::prove
