#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDateTimeEdit>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>

#include "base/date.h"
#include "ui/banco.h"

namespace kelvo::prove {
namespace {

using gesti::attendi;
using gesti::digita;
using gesti::fuoco;
using gesti::smaltisci;
using gesti::tasto;

/// A project from its making to its reopening, by the keyboard alone.
class Progetto : public testing::Test {
protected:
    void SetUp() override {
        banco.mostra();
        banco.nuovo(5);
    }
    /// Goes to the window of a node from wherever the keyboard is.
    void finestra(const std::string& chiave, const std::string& primoCampo) {
        if (!banco.albero().hasFocus()) {
            tasto(Qt::Key_F6);
        }
        ASSERT_TRUE(banco.albero().hasFocus());
        ASSERT_TRUE(gesti::vaiAlNodo(banco.albero(), chiave));
        ASSERT_TRUE(attendi([&] { return gesti::selezionato(banco.albero()) == chiave; }));
        smaltisci();
        if (fuoco() != primoCampo) {
            tasto(Qt::Key_F6);
        }
        ASSERT_TRUE(attendi([&] { return fuoco() == primoCampo; })) << fuoco();
    }
    /// Types over the field that has the keyboard and goes on to the next one.
    void campo(const char* nome, const std::string& testo) {
        ASSERT_TRUE(attendi([&] { return fuoco() == nome; })) << fuoco() << " for " << nome;
        tasto(Qt::Key_A, Qt::ControlModifier);
        digita(testo);
        tasto(Qt::Key_Tab);
    }
    void scriviAnagrafica() {
        finestra("keyAnagraficaRotonda", "txtNomeFile");
        campo("txtNomeFile", "Porta Nuova");
        ASSERT_TRUE(attendi([] { return fuoco() == "txtData"; }));
        digita("07");  // day, month, year: what is full leads on
        digita("03");
        digita("2027");
        tasto(Qt::Key_Tab);
        campo("txtStatoAvanzamento", "Collaudo in opera");
        campo("txtLocalita", "Città Vecchia");
        campo("txtComune", "Forlì");
        campo("txtProvincia", "FC");
        campo("txtTitolo", "Rotatoria di Porta Nuova");
        ASSERT_TRUE(attendi([] { return fuoco() == "txtNote"; }));
        digita("prima riga");
        tasto(Qt::Key_Return);
        digita("seconda riga");
        tasto(Qt::Key_Tab);
    }
    void scriviProfessionista() {
        finestra("keyAnagraficaProfessionista", "txtNomeProfessionista");
        campo("txtNomeProfessionista", "Ing. Niccolò Rossi");
        campo("txtIndirizzoProfessionista", "Via Po 12");
        campo("txtCAPProfessionista", "47121");
        campo("txtCittaProfessionista", "Forlì");
        campo("txtProvinciaProfessionista", "FC");
        campo("txtTelefonoProfessionista", "+39 (0543) 12-34");
        campo("txtEMailProfessionista", "rossi@esempio.it");
    }
    /// 08:00 to 09:07 by 7 minutes: 67 minutes are no whole number of segments.
    void scriviTempi() {
        finestra("keyTempoModellazione", "txtTempoIniziale");
        tasto(Qt::Key_Tab);
        campo("txtSegmentoTempo", "7");
        ASSERT_TRUE(attendi([] { return fuoco() == "txtTempoFinale"; }));
        EXPECT_EQ(banco.oggetto<QComboBox>("txtTempoFinale").currentText(), QString());
        tasto(Qt::Key_Down);
        EXPECT_EQ(banco.oggetto<QComboBox>("txtTempoFinale").currentText(), QStringLiteral("09:00"));
        tasto(Qt::Key_Down);
        EXPECT_EQ(banco.oggetto<QComboBox>("txtTempoFinale").currentText(), QStringLiteral("09:07"));
    }
    const Rotonda& rotonda() { return banco.app.theRotonda(); }

    Banco banco;
};

TEST_F(Progetto, FiveLegsAreMadeByTheKeyboard) {
    EXPECT_EQ(rotonda().NumeroRami(), 5);
    EXPECT_EQ(rotonda().Ramo(5).Descrizione(), "Ramo E");
    EXPECT_NE(gesti::nodo(banco.albero(), "keyRamo5"), nullptr);
    EXPECT_EQ(gesti::nodo(banco.albero(), "keyRamo6"), nullptr);
    EXPECT_EQ(banco.vista.windowTitle(), QStringLiteral("KELVO 2014 - [.klv]"));
}

TEST_F(Progetto, CancellingTheNumberOfLegsMakesNothing) {
    banco.chiudi();
    gesti::AlModale finestra("frmInputNumeroRami", [](QWidget&) { tasto(Qt::Key_Escape); });
    tasto(Qt::Key_N, Qt::ControlModifier);
    ASSERT_TRUE(attendi([&] { return finestra.avvenuto() && QApplication::activeModalWidget() == nullptr; }));
    EXPECT_FALSE(banco.stato.ProgettoAperto);
    EXPECT_FALSE(banco.albero().isVisible());
    EXPECT_EQ(banco.vista.windowTitle(), QStringLiteral("KELVO 2014"));
}

TEST_F(Progetto, TheNumberOfLegsIsSelectedToBeTypedOver) {
    banco.chiudi();
    gesti::AlModale finestra("frmInputNumeroRami", [](QWidget& dialogo) {
        auto* numero = dialogo.findChild<QLineEdit*>();
        ASSERT_TRUE(attendi([&] { return numero->hasFocus() || numero->parentWidget()->hasFocus(); }));
        EXPECT_EQ(numero->selectedText(), numero->text());
        gesti::digita("6");
        tasto(Qt::Key_Return);
    });
    tasto(Qt::Key_N, Qt::ControlModifier);
    ASSERT_TRUE(attendi([&] { return finestra.avvenuto() && banco.stato.ProgettoAperto; }));
    EXPECT_EQ(rotonda().NumeroRami(), 6);
}

TEST_F(Progetto, TheProjectsRegistryTakesWhatIsTyped) {
    scriviAnagrafica();
    EXPECT_EQ(banco.vista.windowTitle(), QStringLiteral("KELVO 2014 - [Porta Nuova.klv]"));
    tasto(Qt::Key_Return, Qt::ControlModifier);
    smaltisci();
    EXPECT_EQ(rotonda().NomeFile(), "Porta Nuova");
    EXPECT_EQ(testoData(rotonda().Data()), "07/03/2027");
    EXPECT_EQ(rotonda().StatoAvanzamento(), "Collaudo in opera");
    EXPECT_EQ(rotonda().Localita(), "Città Vecchia");
    EXPECT_EQ(rotonda().Comune(), "Forlì");
    EXPECT_EQ(rotonda().Provincia(), "FC");
    EXPECT_EQ(rotonda().Titolo(), "Rotatoria di Porta Nuova");
    EXPECT_EQ(rotonda().Note(), "prima riga\nseconda riga");
    EXPECT_EQ(banco.oggetto<QLineEdit>("txtNumeroRami").text(), QStringLiteral("5"));
    EXPECT_TRUE(banco.messaggi.mostrati.empty()) << banco.ultimo();
}

TEST_F(Progetto, TheEngineersRegistryTakesWhatIsTyped) {
    scriviProfessionista();
    campo("txtNomeCommittente", "Comune di Forlì");
    tasto(Qt::Key_Return, Qt::ControlModifier);
    smaltisci();
    EXPECT_EQ(rotonda().NomeProfessionista(), "Ing. Niccolò Rossi");
    EXPECT_EQ(rotonda().IndirizzoProfessionista(), "Via Po 12");
    EXPECT_EQ(rotonda().CAPProfessionista(), "47121");
    EXPECT_EQ(rotonda().CittaProfessionista(), "Forlì");
    EXPECT_EQ(rotonda().ProvinciaProfessionista(), "FC");
    EXPECT_EQ(rotonda().TelefonoProfessionista(), "+39 (0543) 12-34");
    EXPECT_EQ(rotonda().EMailProfessionista(), "rossi@esempio.it");
    EXPECT_EQ(rotonda().TestoFile().find("Comune di Forlì"), std::string::npos);
    EXPECT_TRUE(banco.messaggi.mostrati.empty()) << banco.ultimo();
}

TEST_F(Progetto, TheMaskOfThePostcodeTakesFiveDigits) {
    finestra("keyAnagraficaProfessionista", "txtNomeProfessionista");
    banco.entra("txtCAPProfessionista");
    digita("4a7-121999");
    EXPECT_EQ(banco.oggetto<QLineEdit>("txtCAPProfessionista").text(), QStringLiteral("47121"));
    EXPECT_EQ(banco.oggetto<QLineEdit>("txtCAPProfessionista").cursorPosition(), 5);
}

TEST_F(Progetto, AnEndThatIsNoWholeNumberOfSegmentsIsCorrectedAndShown) {
    scriviTempi();
    tasto(Qt::Key_Return, Qt::ControlModifier);
    smaltisci();
    EXPECT_EQ(banco.messaggi.testi(),
              (std::vector<std::string>{
                  "Attenzione, il parametro 'Tempo Finale' è stato aggiornato a <09:10> per ottenere gli intervalli di "
                  "tempo omogenei",
                  "Attenzione, i parametri di modellazione sono stati modificati.\nI dati di traffico dovranno essere "
                  "nuovamente inseriti"}));
    EXPECT_EQ(banco.oggetto<QComboBox>("txtTempoFinale").currentText(), QStringLiteral("09:10"));
    EXPECT_EQ(testoHHNN(rotonda().TempoFinale()), "09:10");
    EXPECT_EQ(minutoCampo(rotonda().SegmentoTempo()), 7);
    // 67 minutes by 7 are 9,57 segments, to the nearest 10.
    EXPECT_EQ(rotonda().Ramo(5).theDatiTraffico().NumSegmentiTempo(), 10);
    // Half of 70 / 7 segments after the start.
    EXPECT_EQ(testoHHNN(rotonda().Ramo(5).theDatiTraffico().Tempo2()), "08:35");
}

TEST_F(Progetto, WhatWasTypedComesBackWholeAfterSavingClosingAndReopening) {
    scriviAnagrafica();
    scriviProfessionista();
    scriviTempi();
    const std::string percorso = banco.cartella.file("prova.klv");
    ASSERT_TRUE(banco.salva(percorso));
    EXPECT_EQ(banco.vista.windowTitle().toStdString(), "KELVO 2014 - [" + percorso + "]");
    const auto prima = istantanea(rotonda());
    const std::string testo = rotonda().TestoFile();
    EXPECT_EQ(prima.at("Rotonda/NomeFile"), "prova");
    EXPECT_EQ(prima.at("Rotonda/Comune"), "Forlì");
    EXPECT_EQ(prima.at("Rotonda/NumeroRami"), "5");

    banco.chiudi();
    EXPECT_EQ(banco.vista.windowTitle(), QStringLiteral("KELVO 2014"));
    EXPECT_NE(istantanea(rotonda()), prima);
    banco.apri(percorso);
    EXPECT_EQ(istantanea(rotonda()), prima);
    EXPECT_EQ(rotonda().TestoFile(), testo);
    EXPECT_EQ(banco.vista.windowTitle(), QStringLiteral("KELVO 2014 - [prova.klv]"));

    // The windows show it again.
    finestra("keyAnagraficaRotonda", "txtNomeFile");
    EXPECT_EQ(banco.oggetto<QLineEdit>("txtComune").text(), QStringLiteral("Forlì"));
    EXPECT_EQ(banco.oggetto<QDateTimeEdit>("txtData").text(), QStringLiteral("07/03/2027"));
    EXPECT_EQ(banco.oggetto<QComboBox>("txtStatoAvanzamento").currentText(), QStringLiteral("Collaudo in opera"));
    EXPECT_EQ(banco.oggetto<QPlainTextEdit>("txtNote").toPlainText(), QStringLiteral("prima riga\nseconda riga"));
    finestra("keyAnagraficaProfessionista", "txtNomeProfessionista");
    EXPECT_EQ(banco.oggetto<QLineEdit>("txtCAPProfessionista").text(), QStringLiteral("47121"));
    EXPECT_EQ(banco.oggetto<QLineEdit>("txtNomeCommittente").text(), QString());
}

TEST_F(Progetto, EnterGoesToTheNextFieldAndEscapePutsBackWhatStoodThere) {
    finestra("keyAnagraficaProfessionista", "txtNomeProfessionista");
    digita("Rossi");
    tasto(Qt::Key_Return);
    ASSERT_TRUE(attendi([] { return fuoco() == "txtIndirizzoProfessionista"; }));
    digita("Via Po");
    tasto(Qt::Key_Escape);
    EXPECT_EQ(banco.oggetto<QLineEdit>("txtIndirizzoProfessionista").text(), QString());
    EXPECT_EQ(banco.oggetto<QLineEdit>("txtNomeProfessionista").text(), QStringLiteral("Rossi"));
}

TEST_F(Progetto, ReloadingPutsTheProjectsDataBack) {
    finestra("keyAnagraficaRotonda", "txtNomeFile");
    banco.entra("txtComune");
    digita("Cesena");
    tasto(Qt::Key_F5);
    EXPECT_EQ(banco.oggetto<QLineEdit>("txtComune").text(), QString());
    EXPECT_EQ(rotonda().Comune(), "");
}

}  // namespace
}  // namespace kelvo::prove
