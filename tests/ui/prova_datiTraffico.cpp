// The demand of a leg as a curve, typed and searched by the keyboard alone.

#include <QtCore/QEvent>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QTimeEdit>
#include <algorithm>
#include <array>
#include <string>

#include "input/frmDatiTraffico.h"
#include "ui/banco.h"

namespace kelvo::prove {
namespace {

using gesti::attendi;
using gesti::fuoco;
using gesti::smaltisci;
using gesti::tasto;

/// Counts how often a widget is painted, and what it shows then.
class Dipinti final : public QObject {
public:
    explicit Dipinti(QProgressBar& barra) : barra_(barra) { barra.installEventFilter(this); }
    std::vector<int> valori;

protected:
    bool eventFilter(QObject* /*oggetto*/, QEvent* evento) override {
        if (evento->type() == QEvent::Paint) {
            valori.push_back(barra_.value());
        }
        return false;
    }

private:
    QProgressBar& barra_;
};

/// A new project of three legs whose modelling time was typed: 08:00 to 09:30 by 15 minutes.
class DatiTrafficoVista : public testing::Test {
protected:
    void SetUp() override {
        banco.mostra();
        banco.nuovo(3);
        apri("keyTempoModellazione", "txtTempoIniziale");
        gesti::digita("0800");
        tasto(Qt::Key_Tab);
        campo("txtSegmentoTempo", "15");
        ASSERT_EQ(fuoco(), "txtTempoFinale");
        auto& fine = banco.oggetto<QComboBox>("txtTempoFinale");
        while (fine.currentText() != QStringLiteral("09:30")) {
            tasto(Qt::Key_Down);
        }
        tasto(Qt::Key_Return, Qt::ControlModifier);
        smaltisci();
        banco.messaggi.mostrati.clear();  // that the traffic data are to be typed again
        apri("keyDatiTraffico1", "txtTempo1");
        ASSERT_EQ(banco.nomeCorrente(), "frmDatiTraffico");
    }
    /// Goes to a node by the keys of the tree and waits until its window has the keyboard.
    void apri(const std::string& chiave, const std::string& primo) {
        tasto(Qt::Key_F6);
        smaltisci();
        ASSERT_TRUE(gesti::vaiAlNodo(banco.albero(), chiave)) << chiave;
        ASSERT_TRUE(attendi([&] { return fuoco() == primo; })) << chiave << ": " << fuoco();
    }
    /// Types over what stands in the field at hand and goes on to the next one.
    void campo(const std::string& nome, const std::string& testo) {
        ASSERT_TRUE(attendi([&] { return fuoco() == nome; })) << nome << ": " << fuoco();
        tasto(Qt::Key_A, Qt::ControlModifier);
        gesti::digita(testo);
        tasto(Qt::Key_Tab);
        smaltisci();
    }
    void ora(const std::string& nome, const std::string& cifre) {
        ASSERT_TRUE(attendi([&] { return fuoco() == nome; })) << nome << ": " << fuoco();
        QTest::keyClicks(QApplication::focusWidget(), QString::fromStdString(cifre));
        tasto(Qt::Key_Tab);
        smaltisci();
    }
    /// Presses Tab until a widget has the keyboard, round the whole program if need be.
    void finoA(const std::string& nome) {
        for (int i = 0; i < 60 && fuoco() != nome; ++i) {
            tasto(Qt::Key_Tab);
            smaltisci();
        }
        ASSERT_EQ(fuoco(), nome);
    }
    /// The curve of a leg: 4, 10 and 2 at 08:00, 08:30 and 09:30.
    void scriviCurva() {
        ora("txtTempo1", "0800");
        ora("txtTempo2", "0830");
        ora("txtTempo3", "0930");
        campo("txtFlussoTempo1", "4");
        campo("txtFlussoTempo2", "10");
        campo("txtFlussoTempo3", "2");
    }
    void cerca(const std::string& obiettivo) {
        banco.messaggi.mostrati.clear();
        finoA("txtTarget");
        campo("txtTarget", obiettivo);
        ASSERT_EQ(fuoco(), "Command1");
        tasto(Qt::Key_Return);
        smaltisci();
    }
    std::string testo(const char* nome) { return banco.oggetto<QLineEdit>(nome).text().toStdString(); }
    std::string orario(const char* nome) { return banco.oggetto<QTimeEdit>(nome).text().toStdString(); }
    std::string totali() {
        return testo("txtFlussoTotale") + " " + testo("txtFlussoMedio") + " " + testo("txtFlussoOrario");
    }
    bool visibile(const char* nome) { return banco.oggetto(nome).isVisible(); }
    DatiTraffico& dati(std::int16_t i) { return banco.app.theRotonda().Ramo(i).theDatiTraffico(); }
    frmDatiTraffico& finestra() { return dynamic_cast<frmDatiTraffico&>(*banco.cornice.gestione.corrente()); }

    Banco banco;
};

TEST_F(DatiTrafficoVista, ATypedCurveEndsInTheProject) {
    scriviCurva();
    EXPECT_EQ(totali(), "525 5,83 350,00");
    EXPECT_TRUE(banco.oggetto("segnoDati").isVisible());
    tasto(Qt::Key_Return, Qt::ControlModifier);
    smaltisci();
    EXPECT_TRUE(banco.messaggi.mostrati.empty()) << banco.ultimo();
    EXPECT_EQ(testoHHNN(dati(1).Tempo1()), "08:00");
    EXPECT_EQ(testoHHNN(dati(1).Tempo2()), "08:30");
    EXPECT_EQ(testoHHNN(dati(1).Tempo3()), "09:30");
    EXPECT_EQ(dati(1).FlussoTempo1(), 4.0F);
    EXPECT_EQ(dati(1).FlussoTempo2(), 10.0F);
    EXPECT_EQ(dati(1).FlussoTempo3(), 2.0F);
    EXPECT_EQ(dati(1).FlussoTotale(), 525.0F);
    EXPECT_EQ(dati(1).FlussoMedio(), 5.83F);
    EXPECT_EQ(dati(1).FlussoOrario(), 350.0F);
    EXPECT_FALSE(banco.oggetto("segnoDati").isVisible());
}

TEST_F(DatiTrafficoVista, ASearchedCurveEndsInTheProject) {
    scriviCurva();
    finoA("Check2");
    for (const char* nascosto : {"lblTarget", "txtTarget", "lblUnitaTarget", "Command1", "lblApprox", "prgCurva"}) {
        EXPECT_FALSE(visibile(nascosto)) << nascosto;
    }
    tasto(Qt::Key_Space);
    smaltisci();
    for (const char* mostrato : {"lblTarget", "txtTarget", "lblUnitaTarget", "Command1", "lblApprox"}) {
        EXPECT_TRUE(visibile(mostrato)) << mostrato;
    }
    EXPECT_FALSE(visibile("prgCurva"));
    EXPECT_FALSE(banco.oggetto("txtFlussoTempo2").isEnabled());
    EXPECT_FALSE(banco.oggetto("txtFlussoTempo3").isEnabled());
    cerca("600");
    EXPECT_EQ(testo("txtFlussoTempo2"), "7,99");
    EXPECT_EQ(testo("txtFlussoTempo3"), "7");
    EXPECT_EQ(testo("txtFlussoTotale"), "600");
    EXPECT_EQ(banco.oggetto<QProgressBar>("prgCurva").value(), 20000);
    EXPECT_TRUE(visibile("prgCurva"));
    EXPECT_EQ(banco.oggetto<QLabel>("lblApprox").text().left(29), QStringLiteral("Approssimazione applicata :  "));
    EXPECT_TRUE(banco.oggetto("txtFlussoTempo2").isEnabled());
    EXPECT_EQ(fuoco(), "Command1") << "the keyboard is where it was";
    tasto(Qt::Key_Return, Qt::ControlModifier);
    smaltisci();
    EXPECT_TRUE(banco.messaggi.mostrati.empty()) << banco.ultimo();
    EXPECT_EQ(dati(1).FlussoTempo1(), 4.0F);
    EXPECT_EQ(dati(1).FlussoTempo2(), 7.99F);
    EXPECT_EQ(dati(1).FlussoTempo3(), 7.0F);
    EXPECT_EQ(dati(1).FlussoTotale(), 600.0F);
}

TEST_F(DatiTrafficoVista, Q1IsWrittenInRedWhileTheCurveIsToBeSearched) {
    const auto inchiostro = [&] { return banco.oggetto("txtFlussoTempo1").palette().color(QPalette::Text); };
    const QColor prima = inchiostro();
    EXPECT_LT(prima.red(), 64);
    finoA("Check2");
    tasto(Qt::Key_Space);
    EXPECT_GT(inchiostro().red(), 200);
    EXPECT_LT(inchiostro().green(), 32);
    EXPECT_LT(inchiostro().blue(), 32);
    // What is painted, not only what is told.
    finoA("txtTarget");
    const QImage foto = banco.oggetto("txtFlussoTempo1").grab().toImage();
    int rossi = 0;
    for (int y = 0; y < foto.height(); ++y) {
        for (int x = 0; x < foto.width(); ++x) {
            const QColor c = foto.pixelColor(x, y);
            rossi += c.red() > 180 && c.green() < 80 && c.blue() < 80 ? 1 : 0;
        }
    }
    EXPECT_GT(rossi, 3);
    finoA("Check2");
    tasto(Qt::Key_Space);
    EXPECT_EQ(inchiostro(), prima);
}

TEST_F(DatiTrafficoVista, TheBarIsPaintedWhileTheSearchRuns) {
    scriviCurva();
    finoA("Check2");
    tasto(Qt::Key_Space);
    finoA("txtTarget");
    campo("txtTarget", "6000");  // some ten thousand steps
    const Dipinti dipinti(banco.oggetto<QProgressBar>("prgCurva"));
    std::vector<int> mentre;
    finestra().lblApprox.cambiato().connect([&] { mentre = dipinti.valori; });
    tasto(Qt::Key_Return);
    ASSERT_GT(mentre.size(), 10U) << "before the event loop has run";
    EXPECT_TRUE(std::is_sorted(mentre.begin(), mentre.end()));
    EXPECT_EQ(mentre.back(), 20000);
}

TEST_F(DatiTrafficoVista, RefusedTimesAreToldPutBackAndKeepTheKeyboard) {
    struct Caso {
        const char* campo;
        const char* cifre;
        const char* resta;
        const char* messaggio;
    };
    const std::string intervallo = "Indicare dei tempi che rispettino l'intervallo di tempo indicato";
    const std::array casi{
        Caso{"txtTempo1", "0745", "08:00",
             "Il parametro 't1' deve essere compreso nel  tempo di modellazione [08:00],[09:30]"},
        Caso{"txtTempo1", "0805", "08:00", intervallo.c_str()},
        Caso{"txtTempo1", "0900", "08:00", ""},
        Caso{"txtTempo2", "0945", "08:30",
             "Il parametro 't2' deve essere compreso tra i valori di 't1' [08:00] e di 't3' [09:30]"},
        Caso{"txtTempo2", "0840", "08:30", intervallo.c_str()},
        Caso{"txtTempo3", "0815", "09:30", "Il parametro 't3' deve essere maggiore del parametro 't2' [08:30]."},
        Caso{"txtTempo3", "0945", "09:30",
             "Il parametro 't3' deve essere compreso nel  tempo di modellazione [08:00],[09:30]"},
        Caso{"txtTempo3", "0920", "09:30", intervallo.c_str()},
    };
    scriviCurva();
    tasto(Qt::Key_Return, Qt::ControlModifier);
    smaltisci();
    for (const Caso& caso : casi) {
        finoA(caso.campo);
        banco.messaggi.mostrati.clear();
        ora(caso.campo, caso.cifre);
        EXPECT_TRUE(attendi([&] { return fuoco() == caso.campo; })) << caso.campo << caso.cifre << ": " << fuoco();
        EXPECT_EQ(orario(caso.campo), caso.resta) << caso.cifre;
        if (*caso.messaggio == '\0') {
            EXPECT_TRUE(banco.messaggi.mostrati.empty()) << banco.ultimo();
            continue;
        }
        ASSERT_EQ(banco.messaggi.mostrati.size(), 1U) << caso.campo << caso.cifre;
        EXPECT_EQ(banco.messaggi.mostrati[0].testo, caso.messaggio);
        EXPECT_EQ(banco.messaggi.mostrati[0].titolo, "KELVO 2014 - Attenzione");
    }
    EXPECT_EQ(totali(), "525 5,83 350,00");
}

TEST_F(DatiTrafficoVista, EachMessageOfTheSearchComesUp) {
    scriviCurva();
    finoA("Check2");
    tasto(Qt::Key_Space);
    cerca("");
    EXPECT_EQ(banco.messaggi.testi(),
              std::vector<std::string>{
                  "Attezione!\r- Impostare un valore di flusso totale coerente\r- Inserire un valore q1>0"});
    EXPECT_EQ(fuoco(), "txtTarget") << "where the figure is missing";
    cerca("300");
    ASSERT_EQ(banco.messaggi.mostrati.size(), 1U);
    EXPECT_EQ(banco.ultimo(),
              "Attenzione!\rSi è verificato un errore nella costruzione della curva di traffico.\rSi suggerisce di: "
              "\r- Controllare i valori inseriti\r - Ridurre il valore assegnato a q1\re ricalcolare la curva di "
              "traffico.");
    cerca("1500");
    ASSERT_EQ(banco.messaggi.mostrati.size(), 1U);
    EXPECT_EQ(banco.ultimo(),
              "Attenzione!\rI valori calcolati presentano una differenza anomala tra il valore di picco q2 e q1.\rSi "
              "suggerisce di modificare il valore q1 e ricalcolare la curva di traffico.");
    cerca("5001");
    ASSERT_EQ(banco.messaggi.mostrati.size(), 2U);
    EXPECT_EQ(banco.messaggi.mostrati[0].testo,
              "Attezione!\rValore apparentemente elevato. [Flusso totale ingresso > 5000 veicoli]\rControllare i dati "
              "immessi.");
    EXPECT_EQ(fuoco(), "Command1");
}

TEST_F(DatiTrafficoVista, AnEditStaysWithItsLegWhenAnotherOneIsChosen) {
    scriviCurva();
    finoA("Check2");
    tasto(Qt::Key_Space);
    apri("keyDatiTraffico2", "txtTempo1");
    EXPECT_EQ(dati(1).FlussoTempo2(), 10.0F);
    EXPECT_EQ(dati(1).FlussoTotale(), 525.0F);
    EXPECT_EQ(dati(2).FlussoTempo2(), 0.0F);
    EXPECT_EQ(testo("txtFlussoTempo2"), "0");
    EXPECT_EQ(testo("txtDescrizioneRamo"), "Ramo B");
    EXPECT_FALSE(visibile("txtTarget")) << "a leg comes up typed";
    EXPECT_EQ(orario("txtTempo2"), "08:45");
    apri("keyDatiTraffico1", "txtTempo1");
    EXPECT_EQ(testo("txtFlussoTempo2"), "10");
    EXPECT_EQ(totali(), "525 5,83 350,00");
    EXPECT_TRUE(banco.messaggi.mostrati.empty()) << banco.ultimo();
}

TEST_F(DatiTrafficoVista, AFlatCurveClosesT3AndQ3UnderTheKeyboard) {
    ora("txtTempo1", "0800");
    ora("txtTempo2", "0900");
    EXPECT_FALSE(banco.oggetto("txtTempo3").isEnabled());
    ASSERT_TRUE(attendi([] { return fuoco() == "txtFlussoTempo1"; })) << fuoco();
    campo("txtFlussoTempo1", "4");
    campo("txtFlussoTempo2", "10");
    EXPECT_FALSE(banco.oggetto("txtFlussoTempo3").isEnabled());
    EXPECT_EQ(testo("txtFlussoTempo3"), "10");
    EXPECT_EQ(fuoco(), "txtFlussoTotale");
}

TEST_F(DatiTrafficoVista, EveryFieldShowsItsPageAndTheChartSpeaks) {
    EXPECT_FALSE(banco.oggetto("ctlChart").accessibleDescription().isEmpty());
    finoA("txtFlussoTempo1");
    EXPECT_EQ(finestra().ctlHelp.pagina(), "FlussoTempo1.htm");
    EXPECT_EQ(banco.oggetto<QLineEdit>("txtFlussoTempo1").alignment() & Qt::AlignRight, Qt::AlignRight);
}

}  // namespace
}  // namespace kelvo::prove
