#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QFrame>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QToolBar>
#include <filesystem>

#include "calc/modCalcolo.h"
#include "shell/frmOpzioni.h"
#include "ui/banco.h"

namespace kelvo::prove {
namespace {

using gesti::attendi;
using gesti::clic;
using gesti::smaltisci;
using gesti::tasto;

constexpr const char* avvertimento =
    "Attenzione! Sono state modificate delle opzioni: verificare con attenzione i dati precedentemente inseriti.";

/// The options window at hand on a new project of four legs.
class Opzioni : public testing::Test {
protected:
    void SetUp() override {
        banco.mostra();
        banco.nuovo(4);
        banco.vai("keyOpzioni");
        ASSERT_EQ(banco.nomeCorrente(), "frmOpzioni");
    }
    Rotonda& rotonda() { return banco.app.theRotonda(); }
    std::string ini(const std::string& sezione, const std::string& chiave) {
        return banco.app.theAmbiente.LeggiIni(sezione, chiave, banco.app.theAmbiente.PercorsoIni());
    }
    /// Clicks on the sign of a check box or an option.
    void premi(const char* nome) {
        auto& bottone = banco.oggetto<QAbstractButton>(nome);
        clic(bottone, QPoint(12, bottone.height() / 2));
        smaltisci();
    }
    void premiBarra(const char* chiave) {
        auto* barra = banco.vista.vistaCorrente()->findChild<QToolBar*>(QStringLiteral("ctlToolbar"));
        QWidget& bottone = *barra->widgetForAction(barra->findChild<QAction*>(QString::fromLatin1(chiave)));
        clic(bottone, bottone.rect().center());
        smaltisci();
    }
    void clicRiga(const char* lista, int riga) {
        auto& elenco = banco.oggetto<QListWidget>(lista);
        // On the words, past the sign.
        clic(*elenco.viewport(), elenco.visualItemRect(elenco.item(riga)).center());
        smaltisci();
    }
    std::vector<int> spuntate(const char* lista) {
        auto& elenco = banco.oggetto<QListWidget>(lista);
        std::vector<int> righe;
        for (int i = 0; i < elenco.count(); ++i) {
            if (elenco.item(i)->checkState() == Qt::Checked) {
                righe.push_back(i);
            }
        }
        return righe;
    }
    int avvertimenti() {
        int quanti = 0;
        for (const auto& m : banco.messaggi.mostrati) {
            quanti += m.testo == avvertimento ? 1 : 0;
        }
        return quanti;
    }
    void scrivi(const char* campo, const std::string& testo) {
        auto& riga = dynamic_cast<QLineEdit&>(banco.entra(campo));
        riga.selectAll();
        gesti::digita(testo);
    }
    std::string testo(const char* campo) { return banco.oggetto<QLineEdit>(campo).text().toStdString(); }
    Banco banco;
};

TEST_F(Opzioni, TreeMenuAndToolBarOpenIt) {
    banco.vai("keyMyProject");
    ASSERT_TRUE(gesti::bottone(banco.vista, "Opzioni"));
    EXPECT_TRUE(attendi([&] { return banco.nomeCorrente() == "frmOpzioni"; }));
    EXPECT_EQ(gesti::selezionato(banco.albero()), "keyOpzioni");
    banco.vai("keyMyProject");
    ASSERT_TRUE(gesti::menu(banco.vista, {"mnuOpzioni", "keyOpzioni"}));
    EXPECT_TRUE(attendi([&] { return banco.nomeCorrente() == "frmOpzioni"; }));
}

TEST_F(Opzioni, AChangedOptionIsToldExactlyOnceOnLeaving) {
    premi("optPercentuale");
    EXPECT_EQ(avvertimenti(), 0);
    banco.vai("keyTempoModellazione");
    EXPECT_EQ(avvertimenti(), 1);
    EXPECT_EQ(banco.messaggi.mostrati.back().titolo, "KELVO 2014 - Attenzione");
    EXPECT_EQ(rotonda().TipoMatriceSvolte(), 1);
    banco.vai("keyOpzioni");
    banco.vai("keyTempoModellazione");
    EXPECT_EQ(avvertimenti(), 1);
}

TEST_F(Opzioni, TheArrowsChooseAnOptionToo) {
    premi("optVeicoli");
    banco.oggetto<QWidget>("optVeicoli").setFocus();
    tasto(Qt::Key_Down);
    EXPECT_TRUE(banco.oggetto<QAbstractButton>("optPercentuale").isChecked());
    EXPECT_TRUE(banco.stato.opzioniModificate);
}

TEST_F(Opzioni, SaturationAloneHidesTheComposition) {
    auto& riquadro = banco.oggetto<QWidget>("frComposizioneTraffico");
    EXPECT_TRUE(riquadro.isVisible());
    premi("optSaturazione");
    EXPECT_FALSE(riquadro.isVisible());
    EXPECT_FALSE(banco.oggetto<QAbstractButton>("optCostante").isEnabled());
    banco.vai("keyMyProject");
    EXPECT_EQ(rotonda().TipoAnalisi(), 0);
    banco.vai("keyOpzioni");
    EXPECT_FALSE(banco.oggetto<QWidget>("frComposizioneTraffico").isVisible());
    premi("optSegmentiTempo");
    EXPECT_TRUE(banco.oggetto<QWidget>("frComposizioneTraffico").isVisible());
}

TEST_F(Opzioni, NoTwoControlsShareAMnemonicAndNoneTakesOneOfTheMenus) {
    QString lettere;
    const auto raccogli = [&lettere](const QString& testo) {
        const auto posto = testo.indexOf(QLatin1Char('&'));
        if (posto >= 0) {
            lettere += testo.at(posto + 1).toUpper();
        }
    };
    const auto* vista = banco.vista.vistaCorrente();
    for (const auto* bottone : vista->findChildren<QAbstractButton*>()) {
        raccogli(bottone->text());
    }
    for (const auto* etichetta : vista->findChildren<QLabel*>()) {
        raccogli(etichetta->buddy() == nullptr ? QString{} : etichetta->text());
    }
    EXPECT_GE(lettere.size(), 10);
    for (const QChar lettera : lettere) {
        EXPECT_EQ(lettere.count(lettera), 1) << lettere.toStdString();
        EXPECT_FALSE(QStringLiteral("FDORSKH").contains(lettera)) << lettere.toStdString();
    }
}

TEST_F(Opzioni, TheFactoryValuesReadOneAndNotOneComma) {
    scrivi("txtAutovetture", "3");
    tasto(Qt::Key_Tab);
    premiBarra("Restore");
    EXPECT_EQ(testo("txtAutovetture"), "1");
    EXPECT_EQ(testo("txtAutotreni"), "2");
    EXPECT_EQ(testo("txtAutoarticolati"), "2,5");
    scrivi("txtAutovetture", "3");
    tasto(Qt::Key_Tab);
    premi("cmdDEFAULT");
    EXPECT_EQ(testo("txtAutovetture"), "1");
}

TEST_F(Opzioni, AClickOnAColourLeavesOneTickAndTheSampleShowsIt) {
    EXPECT_EQ(spuntate("ctlLIST"), (std::vector<int>{2}));
    clicRiga("ctlLIST", 5);
    EXPECT_EQ(spuntate("ctlLIST"), (std::vector<int>{5}));
    const QPixmap campione = banco.oggetto<QFrame>("ctlCampione").grab();
    EXPECT_EQ(campione.toImage().pixelColor(campione.rect().center()), QColor(255, 128, 0));
    clicRiga("ctlLIST", 5);
    EXPECT_EQ(spuntate("ctlLIST"), (std::vector<int>{5})) << "the last tick stays";
    clicRiga("ctlLISTopz", 0);
    EXPECT_EQ(spuntate("ctlLISTopz"), (std::vector<int>{0}));
    EXPECT_EQ(banco.stato.formaRelazione, 0);
}

TEST_F(Opzioni, AggiornaDatiColoursTheCaptionAtOnceAndWritesTheConfiguration) {
    clicRiga("ctlLIST", 5);
    premi("ckFILMATO");
    scrivi("txtAutotreni", "2.2");
    EXPECT_EQ(testo("txtAutotreni"), "2,2") << "the point is taken for the comma";
    tasto(Qt::Key_Return, Qt::ControlModifier);
    smaltisci();
    EXPECT_EQ(ini("LAY_OUT", "CustomPanel"), "6");
    EXPECT_EQ(ini("10_MOTIVI", "Avvia"), "0");
    EXPECT_EQ(ini("VEICOLI EQUIVALENTI", "Autotreni"), "2,2");
    EXPECT_EQ(ini("VEICOLI EQUIVALENTI", "Autovetture"), "1");
    const QImage finestra = banco.vista.vistaCorrente()->grab().toImage();
    EXPECT_EQ(finestra.pixelColor(4, 4), QColor(255, 128, 0));
    banco.vai("keyTempoModellazione");
    EXPECT_EQ(banco.vista.vistaCorrente()->grab().toImage().pixelColor(4, 4), QColor(255, 128, 0));
    EXPECT_TRUE(banco.messaggi.mostrati.empty()) << banco.ultimo();
}

TEST_F(Opzioni, TheTreeIsLaidOutByTypeWithTheConfirmation) {
    ASSERT_NE(gesti::nodo(banco.albero(), "keyRamo1"), nullptr);
    const auto padre = [&] { return gesti::chiaveDi(gesti::nodo(banco.albero(), "keyDatiTraffico1")->parent()); };
    const std::string prima = padre();
    premi("ckTREE");
    EXPECT_EQ(ini("OPZ_EXPLORER", "Rami"), "1");
    EXPECT_EQ(padre(), prima) << "not before it is confirmed";
    premiBarra("AggiornaDati");
    ASSERT_TRUE(attendi([&] { return padre() != prima; }));
    EXPECT_EQ(banco.nomeCorrente(), "frmOpzioni");
    EXPECT_EQ(gesti::selezionato(banco.albero()), "keyOpzioni");
    premi("ckTREE");
    premiBarra("AggiornaDati");
    EXPECT_TRUE(attendi([&] { return padre() == prima; }));
}

TEST_F(Opzioni, TheMenusHideAndShowAgainAndTheShortcutsStay) {
    const auto visibili = [&] {
        int quanti = 0;
        for (const QAction* menu : banco.vista.menuBar()->actions()) {
            quanti += menu->isVisible() ? 1 : 0;
        }
        return quanti;
    };
    EXPECT_EQ(visibili(), 7);
    premi("ckMENU");
    EXPECT_EQ(ini("OPZ_MENU", "Attivo"), "1");
    EXPECT_TRUE(attendi([&] { return visibili() == 0; }));
    EXPECT_TRUE(banco.salva(banco.cartella.file("salvato.klv"))) << "Ctrl+S";
    premiBarra("AggiornaDati");  // builds the menu anew
    EXPECT_EQ(visibili(), 0);
    premi("ckMENU");
    EXPECT_EQ(ini("OPZ_MENU", "Attivo"), "0");
    EXPECT_TRUE(attendi([&] { return visibili() == 7; }));
}

TEST_F(Opzioni, ACalculationSeesTheNightAsItIsTyped) {
    const std::string esempio = "Rotatoria_Viale_della_Stazione.klv";
    std::filesystem::copy_file(KELVO_SORGENTI "/assets/Progetti/" + esempio, banco.cartella.file(esempio));
    banco.chiudi();
    banco.apri(banco.cartella.file(esempio));
    banco.vai("keyOpzioni");
    const auto capacita = [&] {
        modCalcolo calcolo(banco.app);
        calcolo.Calcola_Tempo_Flusso(std::to_string(rotonda().TipoFlusso()));
        return rotonda().Ramo(1).theDatiTraffico().GetIterazione(2).Capacita;
    };
    ASSERT_TRUE(rotonda().CondizioniNotturne());
    const double est = rotonda().Ramo(1).theAnalisiMarginale().CondizioniEsterne();
    const double ped = rotonda().Ramo(1).AttraversamentoPedonale()
                           ? rotonda().Ramo(1).theAnalisiMarginale().AttraversamentoPedonale()
                           : 0.0;
    const double piena = static_cast<double>(capacita()) / (100.0 - est - ped);
    EXPECT_TRUE(banco.oggetto<QWidget>("lblCondizioniNotturne").isVisible());
    scrivi("txtCondizioniNotturne", "25");
    EXPECT_EQ(gesti::fuoco(), "txtCondizioniNotturne") << "nobody has left the field";
    EXPECT_NEAR(static_cast<double>(capacita()), piena * (75.0 - est - ped), 0.01);
    EXPECT_FALSE(banco.oggetto<QWidget>("lblCondizioniNotturne").isVisible());
    EXPECT_EQ(banco.oggetto<QWidget>("txtCondizioniNotturne").toolTip().toStdString(),
              "Incidenza percentuale capacità nodo");
}

TEST_F(Opzioni, TheHintOfThePercentileStandsUnderItsField) {
    rotonda().UsaPercentile(false);
    rotonda().ValorePercentile(95.0F);
    tasto(Qt::Key_F5);
    smaltisci();
    auto& nota = banco.oggetto<QWidget>("lblPercentile");
    auto& campo = banco.oggetto<QWidget>("txtPercentile");
    ASSERT_TRUE(attendi([&] { return nota.isVisible() && nota.y() > 0; }));
    EXPECT_FALSE(campo.isEnabled());
    const int fine = campo.geometry().bottom();
    EXPECT_TRUE(attendi([&] { return nota.y() > fine && nota.y() < fine + 16; })) << nota.y() << " " << fine;
    premi("chkPercentile");
    EXPECT_FALSE(nota.isVisible());
    EXPECT_TRUE(campo.isEnabled());
}

TEST_F(Opzioni, ItFitsASmallScreenWithBothHints) {
    rotonda().UsaPercentile(false);
    rotonda().ValorePercentile(95.0F);
    rotonda().CondizioniNotturne(true);
    tasto(Qt::Key_F5);
    auto* area = banco.vista.vistaCorrente()->findChild<QScrollArea*>();
    for (const QSize misura : {QSize(1366, 768), QSize(1280, 800), QSize(1440, 900)}) {
        banco.vista.resize(misura);
        smaltisci();
        ASSERT_TRUE(attendi([&] { return banco.oggetto<QWidget>("lblPercentile").isVisible(); }));
        EXPECT_TRUE(attendi([&] { return area->verticalScrollBar()->maximum() == 0; })) << misura.width();
        EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0) << misura.width();
    }
}

TEST_F(Opzioni, AConfigurationThatCannotBeWrittenIsToldOnce) {
    const std::string file = banco.app.theAmbiente.PercorsoIni();
    std::filesystem::permissions(file, std::filesystem::perms::owner_read);
    clicRiga("ctlLIST", 0);
    premiBarra("AggiornaDati");
    std::filesystem::permissions(file, std::filesystem::perms::owner_all);
    ASSERT_EQ(banco.messaggi.mostrati.size(), 1U);
    EXPECT_EQ(banco.ultimo(),
              "Impossibile registrare le impostazioni del programma in Kelvo.ini: il file è di sola lettura");
    EXPECT_EQ(banco.vista.vistaCorrente()->grab().toImage().pixelColor(4, 4), QColor(0, 0, 192));
}

TEST_F(Opzioni, ANumberOutOfItsRangeKeepsTheFocusAndTheWindow) {
    scrivi("txtCamper", "100");
    gesti::clicNodo(banco.albero(), "keyTempoModellazione");
    smaltisci();
    EXPECT_EQ(banco.nomeCorrente(), "frmOpzioni");
    EXPECT_EQ(banco.ultimo(), "Il valore deve essere compreso tra 0,01 e 99,99 veicoli/eq");
    EXPECT_TRUE(attendi([] { return gesti::fuoco() == "txtCamper"; }));
    tasto(Qt::Key_Escape);
    EXPECT_EQ(testo("txtCamper"), "1,4");
}

}  // namespace
}  // namespace kelvo::prove
