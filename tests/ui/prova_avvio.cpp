#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>

#include "comune/fintiFinestre.h"
#include "model/proprieta.h"
#include "shell/Main.h"
#include "ui/banco.h"
#include "ui/serviziQt.h"

namespace kelvo::prove {
namespace {

using gesti::attendi;

/// The start with its real splash and its real pause.
class Avvio : public testing::Test {
protected:
    bool parte(Attesa& attesa, const std::string& rigaComando = {}) {
        modMain avvio(banco.app, banco.stato, banco.cornice, {locale, istanza, banco.documenti, attesa});
        const bool andato = avvio.Main(rigaComando);
        banco.cornice.alloScarico = {};
        return andato;
    }
    /// Does something at the first step of the splash; answers how far it came, -1 if it never showed.
    int splashInterrotto(const std::function<void(QWidget&)>& gesto) {
        int ultimo = -1;
        gesti::AlModale splash("frmSplash", [&](QWidget& finestra) {
            auto* barra = finestra.findChild<QProgressBar*>(QStringLiteral("ctlProgresso"));
            ultimo = barra->value();
            QObject::connect(barra, &QProgressBar::valueChanged, &finestra, [&](int valore) { ultimo = valore; });
            gesto(finestra);
        });
        ui::AttesaQt attesa;
        EXPECT_TRUE(parte(attesa));
        return ultimo;
    }

    Banco banco;
    LocaleFinto locale;
    IstanzaFinta istanza;
};

TEST_F(Avvio, AKeyEndsTheSplash) {
    const int fino = splashInterrotto([](QWidget& finestra) { QTest::keyClick(&finestra, Qt::Key_Space); });
    EXPECT_GT(fino, 0);
    EXPECT_LT(fino, 50);
    EXPECT_TRUE(banco.vista.isVisible());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(Avvio, AClickEndsTheSplash) {
    const int fino = splashInterrotto([](QWidget& finestra) { gesti::clic(finestra, finestra.rect().center()); });
    EXPECT_GT(fino, 0);
    EXPECT_LT(fino, 50);
    EXPECT_TRUE(banco.vista.isVisible());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(Avvio, TheSplashPausesAHundredTimesFortyMillisecondsThroughItsService) {
    AttesaFinta attesa;
    EXPECT_TRUE(parte(attesa));
    EXPECT_EQ(attesa.pause, std::vector<int>(100, 40));
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(Avvio, WithoutAProjectTheMainWindowOffersNewAndOpen) {
    AttesaFinta attesa;
    attesa.interrotta = true;
    ASSERT_TRUE(parte(attesa));
    gesti::smaltisci();
    EXPECT_EQ(banco.vista.windowTitle(), QStringLiteral("KELVO 2014"));
    EXPECT_FALSE(banco.albero().isVisible());
    for (const char* chiave : {"mnuNuovo", "mnuApri"}) {
        auto* pulsante = banco.vista.findChild<QPushButton*>(QString::fromLatin1(chiave));
        ASSERT_NE(pulsante, nullptr) << chiave;
        EXPECT_TRUE(pulsante->isVisible()) << chiave;
    }
    gesti::AlModale rami("frmInputNumeroRami", [](QWidget&) { gesti::tasto(Qt::Key_Escape); });
    gesti::clic(*banco.vista.findChild<QPushButton*>(QStringLiteral("mnuNuovo")));
    EXPECT_TRUE(rami.avvenuto());
    EXPECT_FALSE(banco.stato.ProgettoAperto);
    EXPECT_EQ(banco.vista.windowTitle(), QStringLiteral("KELVO 2014"));
}

TEST_F(Avvio, AProjectOnTheCommandLineIsOpen) {
    AttesaFinta attesa;
    attesa.interrotta = true;
    Rotonda progetto;
    riempi(progetto, 3, 4);
    std::string messaggio;
    bool esito = false;
    progetto.Save(banco.cartella.file("con bianchi.klv"), messaggio, esito);
    ASSERT_TRUE(esito) << messaggio;
    ASSERT_TRUE(parte(attesa, "\"" + banco.cartella.file("con bianchi.klv") + "\""));
    ASSERT_TRUE(attendi([&] { return gesti::selezionato(banco.albero()) == "keyMyProject"; }));
    EXPECT_EQ(banco.nomeCorrente(), "frmEmptyForm");
    EXPECT_EQ(banco.vista.windowTitle(), QStringLiteral("KELVO 2014 - [con bianchi.klv]"));
    EXPECT_TRUE(banco.messaggi.mostrati.empty());
}

TEST_F(Avvio, ACorruptProjectOnTheCommandLineTellsSoAndLeavesAnEmptyProgram) {
    AttesaFinta attesa;
    attesa.interrotta = true;
    scriviContenuto(banco.cartella.file("rotto.klv"), "non un progetto");
    ASSERT_TRUE(parte(attesa, banco.cartella.file("rotto.klv")));
    EXPECT_EQ(banco.messaggi.testi(), std::vector<std::string>{"Il file selezionato non è corretto!"});
    EXPECT_FALSE(banco.albero().isVisible());
    EXPECT_EQ(banco.vista.windowTitle(), QStringLiteral("KELVO 2014"));
    ASSERT_TRUE(gesti::davanti(banco.vista));
    banco.nuovo(4);  // and nothing else is broken
    EXPECT_TRUE(banco.stato.ProgettoAperto);
}

}  // namespace
}  // namespace kelvo::prove
