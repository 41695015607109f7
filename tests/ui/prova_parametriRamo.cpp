// The geometry of a leg by key and mouse, its live plan, and the dialogue that takes the geometry of another project.

#include <QtCore/QFileInfo>
#include <QtGui/QImage>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTreeWidget>
#include <array>
#include <string>

#include "input/frmParametriRamo.h"
#include "ui/banco.h"
#include "ui/icone.h"

namespace kelvo::prove {
namespace {

using gesti::attendi;
using gesti::smaltisci;
using gesti::tasto;

constexpr std::array campi{"txtLarghezzaIngresso", "txtSemiLarghezza",   "txtLungSvasatura",
                           "txtAngoloConflitto",   "txtRaggioCurvatura", "txtDiametroInscritto"};

/// Counts how often a widget is painted.
class ContaDipinti final : public QObject {
public:
    explicit ContaDipinti(QWidget& oggetto) { oggetto.installEventFilter(this); }
    int quanti = 0;

protected:
    bool eventFilter(QObject* /*oggetto*/, QEvent* evento) override {
        quanti += evento->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

class ParametriRamo : public testing::Test {
protected:
    void SetUp() override {
        banco.mostra();
        banco.nuovo(4);
        banco.vai("keyRamo1");
    }
    /// Types over what stands in a field, and leaves it there.
    void scrivi(const char* campo, const std::string& testo) {
        banco.entra(campo);
        tasto(Qt::Key_A, Qt::ControlModifier);
        gesti::digita(testo);
    }
    std::string testo(const char* campo) { return banco.oggetto<QLineEdit>(campo).text().toStdString(); }
    QImage pianta() {
        smaltisci();
        return banco.oggetto("ctlPianta").grab().toImage();
    }
    QImage fascia() { return banco.oggetto("pannello").grab().toImage(); }
    Ramo& ramo(std::int16_t i) { return banco.app.theRotonda().Ramo(i); }
    std::string avviso() { return banco.cornice.ctlStatusBar.avviso(); }

    Banco banco;
};

TEST_F(ParametriRamo, WhatWasTypedStaysWithItsLegWhenAnotherOneIsChosen) {
    scrivi("txtLarghezzaIngresso", "6,25");
    tasto(Qt::Key_Tab);
    scrivi("txtRaggioCurvatura", "31,5");
    const QImage titolo = fascia();
    banco.vai("keyRamo2");
    EXPECT_EQ(ramo(1).LarghezzaIngresso(), 6.25F);
    EXPECT_EQ(ramo(1).RaggioIngresso(), 31.5F);
    EXPECT_EQ(ramo(2).LarghezzaIngresso(), 5.0F);
    EXPECT_EQ(ramo(2).RaggioIngresso(), 25.0F);
    EXPECT_EQ(testo("txtLarghezzaIngresso"), "5,00");
    EXPECT_EQ(testo("txtRaggioCurvatura"), "25,00");
    EXPECT_EQ(banco.oggetto<QLabel>("lblDescrizioneRamo").text().remove(QLatin1Char('&')), "Ingresso B:");
    EXPECT_EQ(banco.oggetto("pannello").accessibleName(), "Geometria, Ramo B");
    EXPECT_NE(fascia(), titolo);
    banco.vai("keyRamo1");
    EXPECT_EQ(testo("txtLarghezzaIngresso"), "6,25");
    EXPECT_EQ(testo("txtRaggioCurvatura"), "31,50");
    EXPECT_TRUE(banco.messaggi.mostrati.empty()) << banco.ultimo();
}

TEST_F(ParametriRamo, AnEntryAsWideAsItsApproachIsRefusedFromBothFields) {
    struct Caso {
        const char* campo;
        const char* testo;
        const char* messaggio;
    };
    const std::array casi{
        Caso{"txtLarghezzaIngresso", "3,75",
             "Il valore del campo 'Larghezza ingresso' deve essere sempre maggiore del campo 'Semilarghezza accesso'"},
        Caso{"txtSemiLarghezza", "5,00",
             "Il valore del campo 'Semilarghezza accesso' deve essere sempre minore del campo 'Larghezza ingresso'"}};
    for (const Caso& caso : casi) {
        banco.messaggi.mostrati.clear();
        scrivi(caso.campo, caso.testo);
        gesti::clicNodo(banco.albero(), "keyRamo2");
        smaltisci();
        ASSERT_FALSE(banco.messaggi.mostrati.empty()) << caso.campo;
        EXPECT_EQ(banco.messaggi.mostrati.front().testo, caso.messaggio);
        EXPECT_EQ(banco.messaggi.mostrati.front().titolo, "KELVO 2014 - Attenzione");
        EXPECT_TRUE(attendi([&] { return gesti::fuoco() == caso.campo; })) << gesti::fuoco();
        EXPECT_TRUE(attendi([&] { return gesti::selezionato(banco.albero()) == "keyRamo1"; }));
        EXPECT_EQ(ramo(1).LarghezzaIngresso(), 5.0F);
        EXPECT_EQ(ramo(1).SemiLarghezza(), 3.75F);
        tasto(Qt::Key_Escape);
    }
    EXPECT_EQ(testo("txtLarghezzaIngresso"), "5,00");
    EXPECT_EQ(testo("txtSemiLarghezza"), "3,75");
}

TEST_F(ParametriRamo, TheLimitsThemselvesPassAndTheNextHundredthIsRefused) {
    for (const char* passa : {"3,60", "16,30"}) {
        scrivi("txtSemiLarghezza", "3,00");
        tasto(Qt::Key_Tab);
        scrivi("txtLarghezzaIngresso", passa);
        tasto(Qt::Key_Tab);
        EXPECT_TRUE(attendi([] { return gesti::fuoco() == "txtSemiLarghezza"; })) << passa;
        EXPECT_TRUE(banco.messaggi.mostrati.empty()) << passa << ": " << banco.ultimo();
    }
    for (const char* rifiutato : {"3,59", "16,31"}) {
        banco.messaggi.mostrati.clear();
        scrivi("txtLarghezzaIngresso", rifiutato);
        tasto(Qt::Key_Tab);
        smaltisci();
        EXPECT_EQ(banco.messaggi.testi(),
                  std::vector<std::string>{"Il valore deve essere compreso tra 3,60 e 16,30 m"});
        EXPECT_EQ(avviso(), "Larghezza ingresso: Il valore deve essere compreso tra 3,60 e 16,30 m");
        EXPECT_TRUE(attendi([] { return gesti::fuoco() == "txtLarghezzaIngresso"; })) << rifiutato;
        EXPECT_TRUE(banco.oggetto("txtLarghezzaIngresso").property("fallito").toBool());
        tasto(Qt::Key_Escape);
        EXPECT_FALSE(banco.oggetto("txtLarghezzaIngresso").property("fallito").toBool());
    }
}

TEST_F(ParametriRamo, ThePlanFollowsEachKeyAndTheMeasureInFocus) {
    banco.entra("txtLarghezzaIngresso");
    tasto(Qt::Key_A, Qt::ControlModifier);
    const QImage prima = pianta();
    gesti::digita("8");
    const QImage otto = pianta();
    EXPECT_NE(otto, prima);
    gesti::digita(",5");
    EXPECT_NE(pianta(), otto);
    tasto(Qt::Key_Escape);
    EXPECT_EQ(pianta(), prima);  // what stood there is back, and so is its picture
    QImage precedente = prima;
    for (const char* campo : campi) {
        if (campo != campi.front()) {
            banco.entra(campo);
            const QImage sua = pianta();
            EXPECT_NE(sua, precedente) << campo;
            precedente = sua;
        }
    }
    banco.entra("cmdDM");
    EXPECT_NE(pianta(), precedente);
    const QImage senza = pianta();
    gesti::clic(banco.oggetto("chkAttraversamentoPedonale"), {10, 14});
    EXPECT_NE(pianta(), senza);
}

TEST_F(ParametriRamo, ThePlanIsPaintedOnceForAKey) {
    banco.entra("txtLarghezzaIngresso");
    tasto(Qt::Key_A, Qt::ControlModifier);
    smaltisci();
    ContaDipinti conta(banco.oggetto("ctlPianta"));
    int emissioni = 0;
    auto& finestra = dynamic_cast<frmParametriRamo&>(*banco.cornice.gestione.corrente());
    sigc::connection legame = finestra.geometriaMutata().connect([&] { ++emissioni; });
    gesti::digita("7");
    gesti::digita(",");
    gesti::digita("5");
    smaltisci();
    legame.disconnect();
    EXPECT_EQ(emissioni, 3);
    EXPECT_EQ(conta.quanti, 1);
    smaltisci();
    EXPECT_EQ(conta.quanti, 1);
}

TEST_F(ParametriRamo, FiguresAndNotesFollowEachKey) {
    banco.entra("txtAngoloConflitto");
    const auto capacita = [&] { return banco.oggetto<QLabel>("lblQ0").text().toStdString(); };
    const std::string prima = capacita();
    EXPECT_TRUE(banco.oggetto("lblNotaAngoloConflitto").isVisible());  // 5 degrees
    scrivi("txtAngoloConflitto", "30");
    EXPECT_NE(capacita(), prima);
    EXPECT_FALSE(banco.oggetto("lblNotaAngoloConflitto").isVisible());
    scrivi("txtDiametroInscritto", "14");
    EXPECT_TRUE(banco.oggetto("lblNotaDiametroInscritto").isVisible());
    EXPECT_EQ(banco.oggetto<QLabel>("lblNotaDiametroInscritto").text(),
              QStringLiteral("fuori dal campo consigliato 15,00 ÷ 100,00"));
}

TEST_F(ParametriRamo, TheDecreeOpensFromItsButtonAndItsKey) {
    gesti::clic(banco.oggetto("cmdDM"), {10, 10});
    ASSERT_EQ(banco.documenti.aperti.size(), 1U);
    EXPECT_NE(banco.documenti.aperti[0].find("DM19-04-06.pdf"), std::string::npos);
}

TEST(FigureMisure, TheSixPicturesAndTheEmptyOneLoadAndShowTheirDimension) {
    ui::cartellaImmagini(KELVO_CARTELLA "/Immagini");
    const auto quota = [](std::string_view nome) {
        const QImage figura = ui::immagine(std::string{nome}, QSize(220, 190), 1.0).toImage();
        int punti = 0;
        for (int y = 0; y < figura.height(); ++y) {
            for (int x = 0; x < figura.width(); ++x) {
                const QColor c = figura.pixelColor(x, y);
                punti += c.alpha() > 200 && c.red() < 60 && c.blue() > 110 ? 1 : 0;  // dimension blue
            }
        }
        return punti;
    };
    for (const MisuraIngresso& misura : misureIngresso) {
        ASSERT_TRUE(ui::esisteImmagine(std::string{misura.figura})) << misura.figura;
        EXPECT_GT(quota(misura.figura), 60) << misura.figura;
    }
    ASSERT_TRUE(ui::esisteImmagine(std::string{figuraVuota}));
    EXPECT_FALSE(ui::immagine(std::string{figuraVuota}, QSize(220, 190), 1.0).isNull());
    EXPECT_EQ(quota(figuraVuota), 0);
}

/// What a person does in the dialogue that imports a leg.
class ImportaRamo : public ParametriRamo {
protected:
    void SetUp() override {
        ParametriRamo::SetUp();
        Rotonda altra;
        altra.NumeroRami(3);
        for (int i = 1; i <= 3; ++i) {
            altra.AddRamo(std::to_string(i) + "Ramo");
        }
        Ramo& terzo = altra.Ramo(3);
        terzo.Descrizione("Via Lunga");
        terzo.LarghezzaIngresso(7.125F);
        terzo.SemiLarghezza(4.5F);
        terzo.LunghezzaSvasatura(33.0F);
        terzo.AngoloConflitto(41.5F);
        terzo.RaggioIngresso(18.0F);
        terzo.DiametroInscritto(52.0F);
        std::string messaggio;
        bool esito = false;
        altra.Save(file, messaggio, esito);
        ASSERT_TRUE(esito) << messaggio;
    }
    /// Opens the dialogue and plays the gestures in it.
    void importa(const std::function<void(QFileDialog&)>& gesto) {
        gesti::AlModale dialogo("dialogoFile", [&](QWidget& modale) {
            auto& aperto = dynamic_cast<QFileDialog&>(modale);
            gesto(aperto);
            if (aperto.isVisible()) {
                aperto.reject();
            }
        });
        banco.cornice.gestione.corrente()->barra()->premi("Archivio");
        EXPECT_TRUE(dialogo.avvenuto());
        EXPECT_FALSE(dialogo.rimasto());
        ASSERT_TRUE(gesti::davanti(banco.vista));
    }
    /// Chooses the file in the list, as a click does, and waits for its legs.
    void scegliFile(QFileDialog& dialogo) {
        Q_EMIT dialogo.currentChanged(QString::fromStdString(file));
        dialogo.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(QString::fromStdString(file));
        ASSERT_EQ(righe(dialogo).topLevelItemCount(), 3);
    }
    static QTreeWidget& righe(QFileDialog& dialogo) {
        return *dialogo.findChild<QTreeWidget*>(QStringLiteral("lstRami"));
    }
    std::string file = banco.cartella.file("altra.klv");
};

TEST_F(ImportaRamo, TheLegThatIsChosenFillsTheSixFieldsAndNothingElse) {
    importa([&](QFileDialog& dialogo) {
        EXPECT_TRUE(dialogo.testOption(QFileDialog::DontUseNativeDialog));
        scegliFile(dialogo);
        QTreeWidget& elenco = righe(dialogo);
        EXPECT_EQ(elenco.topLevelItem(2)->text(0), "Via Lunga");
        EXPECT_EQ(elenco.topLevelItem(2)->text(1), "7,13");
        EXPECT_EQ(dialogo.findChild<QLabel*>(QStringLiteral("txtNumeroRami"))->text(), "3");
        elenco.setFocus();
        tasto(Qt::Key_End);
        smaltisci();
        tasto(Qt::Key_Return);
        EXPECT_TRUE(attendi([&] { return !dialogo.isVisible(); }));
    });
    EXPECT_EQ(banco.messaggi.testi(), std::vector<std::string>{"Importo i dati del ramo Via Lunga?"});
    EXPECT_EQ(banco.messaggi.mostrati.at(0).pulsanti, Pulsanti::siNo);
    const std::array<const char*, 6> attesi{"7,125", "4,5", "33", "41,5", "18", "52"};
    for (std::size_t i = 0; i < campi.size(); ++i) {
        EXPECT_EQ(testo(campi[i]), attesi[i]);
    }
    EXPECT_EQ(testo("txtDescrizioneRamo"), "Ramo A");
    EXPECT_EQ(ramo(1).LarghezzaIngresso(), 5.0F);  // nothing is written yet
    tasto(Qt::Key_Return, Qt::ControlModifier);
    smaltisci();
    EXPECT_EQ(ramo(1).LarghezzaIngresso(), 7.125F);
    EXPECT_EQ(ramo(1).DiametroInscritto(), 52.0F);
    EXPECT_EQ(ramo(2).LarghezzaIngresso(), 5.0F);
}

TEST_F(ImportaRamo, WithNoRowOrOnNoTheDialogueStaysOpen) {
    banco.messaggi.risposte = {Risposta::no};
    importa([&](QFileDialog& dialogo) {
        scegliFile(dialogo);
        auto* nome = dialogo.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        nome->setFocus();
        tasto(Qt::Key_Return);
        smaltisci();
        EXPECT_TRUE(dialogo.isVisible());
        EXPECT_TRUE(banco.messaggi.mostrati.empty()) << banco.ultimo();
        righe(dialogo).setCurrentItem(righe(dialogo).topLevelItem(0));
        nome->setFocus();
        tasto(Qt::Key_Return);
        smaltisci();
        EXPECT_TRUE(dialogo.isVisible());
        EXPECT_EQ(banco.messaggi.mostrati.size(), 1U);
    });
    EXPECT_EQ(testo("txtLarghezzaIngresso"), "5,00");
    EXPECT_EQ(testo("txtDiametroInscritto"), "65,00");
}

TEST_F(ImportaRamo, AFileThatIsNoProjectEmptiesTheView) {
    const std::string altro = banco.cartella.file("nota.txt");
    scriviContenuto(altro, "testo");
    importa([&](QFileDialog& dialogo) {
        scegliFile(dialogo);
        Q_EMIT dialogo.currentChanged(QString::fromStdString(altro));
        EXPECT_EQ(righe(dialogo).topLevelItemCount(), 0);
        EXPECT_EQ(dialogo.findChild<QLabel*>(QStringLiteral("txtNumeroRami"))->text(), "");
    });
    EXPECT_TRUE(banco.messaggi.mostrati.empty()) << banco.ultimo();
}

TEST(FuocoDiUnaFinestra, ComesByTheTreesLogicByMenuAndByButtonAlike) {
    Banco banco;
    banco.mostra();
    banco.nuovo(4);
    banco.vai("keyToponomasticaIntersezione");
    EXPECT_EQ(gesti::fuoco(), "txtIngresso1");
    banco.cornice.albero.mostra("keyRamo1");
    gesti::smaltisci();
    EXPECT_EQ(banco.nomeCorrente(), "frmParametriRamo");
    EXPECT_EQ(gesti::fuoco(), "txtDescrizioneRamo");
    banco.vai("keyToponomasticaIntersezione");
    ASSERT_TRUE(gesti::bottone(banco.vista, "Opzioni"));
    gesti::smaltisci();
    EXPECT_EQ(banco.nomeCorrente(), "frmOpzioni");
    EXPECT_EQ(gesti::fuoco(), "optCurvaTempoFlusso");  // the one that is chosen
    banco.vai("keyRamo2");
    EXPECT_EQ(gesti::fuoco(), "txtDescrizioneRamo");
    ASSERT_TRUE(gesti::menu(banco.vista, {"mnuOpzioni", "keyOpzioni"}));
    gesti::smaltisci();
    EXPECT_EQ(banco.nomeCorrente(), "frmOpzioni");
    EXPECT_EQ(gesti::fuoco(), "optCurvaTempoFlusso");  // the one that is chosen
    banco.cornice.albero.mostra("keyRamo2");
    gesti::smaltisci();
    EXPECT_EQ(gesti::fuoco(), "txtDescrizioneRamo");
}

}  // namespace
}  // namespace kelvo::prove
