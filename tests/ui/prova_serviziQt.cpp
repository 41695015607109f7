#include <gtest/gtest.h>

#include <QtCore/QEvent>
#include <QtGui/QScreen>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListView>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollArea>
#include <algorithm>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <utility>

#include "comune/cartella.h"
#include "ui/DialogoMessaggio.h"
#include "ui/gesti.h"
#include "ui/serviziQt.h"

namespace kelvo::prove {
namespace {

using gesti::AlModale;
using gesti::attendi;
using gesti::tasto;

struct CasoBox {
    const char* nome;
    Pulsanti pulsanti;
    Icona icona;
    std::vector<const char*> bottoni;  ///< in their order
    Risposta allInvio;
    std::optional<Risposta> allEsc;  ///< nothing: Escape does nothing
};

class Box : public testing::TestWithParam<CasoBox> {};

/// Texts of the buttons of a box from left to right, by their names.
std::vector<std::string> nomiBottoni(const QWidget& box) {
    std::vector<QPushButton*> bottoni;
    for (QPushButton* bottone : box.findChildren<QPushButton*>()) {
        bottoni.push_back(bottone);
    }
    std::sort(bottoni.begin(), bottoni.end(), [](const auto* a, const auto* b) { return a->x() < b->x(); });
    std::vector<std::string> nomi;
    for (const QPushButton* bottone : bottoni) {
        nomi.push_back(bottone->objectName().toStdString());
    }
    return nomi;
}

TEST_P(Box, ShowsWordsIconAndButtonsAndAnswersEnterAndEscape) {
    const CasoBox& caso = GetParam();
    for (const bool invio : {true, false}) {
        QString testo;
        QString titolo;
        auto icona = Icona::nessuna;
        std::vector<std::string> bottoni;
        bool ancoraAperto = false;
        AlModale risponde("messaggio", [&](QWidget& finestra) {
            auto& box = dynamic_cast<ui::DialogoMessaggio&>(finestra);
            testo = box.findChild<QLabel*>(QStringLiteral("testoMessaggio"))->text();
            titolo = box.windowTitle();
            icona = box.icona();
            bottoni = nomiBottoni(box);
            EXPECT_GE(box.width(), box.fontMetrics().horizontalAdvance(titolo)) << "the title is cut";
            QTest::keyClick(&box, invio ? Qt::Key_Return : Qt::Key_Escape);
            if (!invio && !caso.allEsc) {
                box.close();
                ancoraAperto = box.isVisible();
                gesti::clic(*box.findChild<QPushButton*>(QStringLiteral("cmdSi")));
            }
        });
        ui::MessaggiQt messaggi;
        const Risposta data =
            messaggi.mostra("Prima <riga>\r\nseconda & ultima", "KELVO 2014 - Attenzione", caso.icona, caso.pulsanti);
        EXPECT_EQ(data, invio ? caso.allInvio : caso.allEsc.value_or(Risposta::si)) << invio;
        EXPECT_EQ(ancoraAperto, !invio && !caso.allEsc);
        EXPECT_TRUE(risponde.avvenuto());
        EXPECT_FALSE(risponde.rimasto());
        EXPECT_EQ(testo, QStringLiteral("Prima <riga>\nseconda & ultima"));
        EXPECT_EQ(titolo, QStringLiteral("KELVO 2014 - Attenzione"));
        EXPECT_EQ(icona, caso.icona);
        EXPECT_EQ(bottoni, std::vector<std::string>(caso.bottoni.begin(), caso.bottoni.end()));
    }
}

TEST(BoxSopra, StandsOverAllWindowsAndAnswersAsTheOthersDo) {
    for (const bool sopra : {true, false}) {
        bool inCima = !sopra;
        QString testo;
        AlModale risponde("messaggio", [&](QWidget& finestra) {
            inCima = finestra.windowFlags().testFlag(Qt::WindowStaysOnTopHint);
            testo = finestra.findChild<QLabel*>(QStringLiteral("testoMessaggio"))->text();
            QTest::keyClick(&finestra, Qt::Key_Return);
        });
        ui::MessaggiQt messaggi;
        const Risposta data = sopra ? messaggi.mostraSopra("Uno\rdue", "KELVO 2014", Icona::critica, Pulsanti::ok)
                                    : messaggi.mostra("Uno\rdue", "KELVO 2014", Icona::critica, Pulsanti::ok);
        EXPECT_EQ(data, Risposta::ok);
        EXPECT_EQ(inCima, sopra);
        EXPECT_EQ(testo, QStringLiteral("Uno\ndue"));
        EXPECT_TRUE(risponde.avvenuto());
    }
}

TEST(BoxLungo, AVeryLongTextIsScrolledAndTheAnswersStayOnTheScreen) {
    std::string lungo;
    for (int i = 0; i < 500; ++i) {
        lungo += "Riga " + std::to_string(i) + "\n";
    }
    const ui::DialogoMessaggio breve("Due parole", "KELVO 2014", Icona::esclamazione, Pulsanti::ok, nullptr);
    EXPECT_EQ(breve.findChild<QScrollArea*>(), nullptr);
    ui::DialogoMessaggio box(lungo, std::string(2000, 'T'), Icona::esclamazione, Pulsanti::okAnnulla, nullptr);
    box.show();
    const QSize schermo = box.screen()->availableSize();
    EXPECT_LT(box.height(), schermo.height());
    EXPECT_LE(box.width(), schermo.width());
    const auto* bottone = box.findChild<QPushButton*>(QStringLiteral("cmdOk"));
    ASSERT_NE(bottone, nullptr);
    EXPECT_TRUE(box.rect().contains(QRect(bottone->mapTo(&box, QPoint(0, 0)), bottone->size())));
    const auto* parole = box.findChild<QLabel*>(QStringLiteral("testoMessaggio"));
    EXPECT_EQ(parole->text(), QString::fromStdString(lungo));
    EXPECT_GT(parole->height(), box.height()) << "all of it is there to be scrolled to";
}

TEST_P(Box, EachButtonAnswersForItself) {
    const std::map<std::string, Risposta> tutti{
        {"cmdOk", Risposta::ok}, {"cmdAnnulla", Risposta::annulla}, {"cmdSi", Risposta::si}, {"cmdNo", Risposta::no}};
    for (const char* bottone : GetParam().bottoni) {
        AlModale risponde("messaggio", [&](QWidget& finestra) {
            gesti::clic(*finestra.findChild<QPushButton*>(QString::fromLatin1(bottone)));
        });
        ui::MessaggiQt messaggi;
        EXPECT_EQ(messaggi.mostra("?", "KELVO 2014", GetParam().icona, GetParam().pulsanti), tutti.at(bottone));
    }
}

INSTANTIATE_TEST_SUITE_P(
    Pulsanti, Box,
    testing::Values(
        CasoBox{"Ok", Pulsanti::ok, Icona::critica, {"cmdOk"}, Risposta::ok, Risposta::ok},
        CasoBox{
            "OkAnnulla", Pulsanti::okAnnulla, Icona::domanda, {"cmdOk", "cmdAnnulla"}, Risposta::ok, Risposta::annulla},
        CasoBox{"SiNo", Pulsanti::siNo, Icona::esclamazione, {"cmdSi", "cmdNo"}, Risposta::si, {}},
        CasoBox{"SiNoAnnulla",
                Pulsanti::siNoAnnulla,
                Icona::informazione,
                {"cmdSi", "cmdNo", "cmdAnnulla"},
                Risposta::si,
                Risposta::annulla}),
    [](const auto& p) { return std::string{p.param.nome}; });

class Dialogo : public testing::Test {
protected:
    RichiestaFile richiesta(const std::string& nome = {}) {
        return {.estensione = "klv",
                .filtro = "File definizione rotonda (*.klv)|*.klv|Tutti i files(*.*)|*.*",
                .cartella = cartella.percorso(),
                .nome = nome};
    }
    /// Types a name into the file dialogue and presses Enter.
    static void scrivi(QWidget& finestra, const std::string& nome) {
        auto* riga = finestra.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        riga->setText(QString::fromStdString(nome));
        QTest::keyClick(riga, Qt::Key_Return);
    }
    CartellaTemporanea cartella;
    ui::DialogoFileQt dialogo;
};

TEST_F(Dialogo, SavesUnderTheNameTypedWithTheDefaultExtension) {
    QString proposto;
    QStringList filtri;
    AlModale risponde("dialogoFile", [&](QWidget& finestra) {
        proposto = finestra.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text();
        filtri = dynamic_cast<QFileDialog&>(finestra).nameFilters();
        scrivi(finestra, "nuovo");
    });
    EXPECT_EQ(dialogo.salva(richiesta("Rotatoria_001")), cartella.file("nuovo.klv"));
    EXPECT_EQ(proposto, QStringLiteral("Rotatoria_001"));
    EXPECT_EQ(filtri,
              (QStringList{QStringLiteral("File definizione rotonda (*.klv)"), QStringLiteral("Tutti i files (*)")}));
}

TEST_F(Dialogo, ANameWithADotGetsTheExtensionUnlessItEndsAsTheChosenFilterWants) {
    for (const auto& [scritto, salvato] : {std::pair{"Nodo 1.2", "Nodo 1.2.klv"}, {"Nodo 1.KLV", "Nodo 1.KLV"}}) {
        AlModale risponde("dialogoFile", [&](QWidget& finestra) { scrivi(finestra, scritto); });
        EXPECT_EQ(dialogo.salva(richiesta()), cartella.file(salvato));
    }
    AlModale tutti("dialogoFile", [&](QWidget& finestra) {
        dynamic_cast<QFileDialog&>(finestra).selectNameFilter(QStringLiteral("Tutti i files (*)"));
        scrivi(finestra, "Nodo 1.2");
    });
    EXPECT_EQ(dialogo.salva(richiesta()), cartella.file("Nodo 1.2"));
}

TEST_F(Dialogo, AFileThatStandsThereUnderTheWholeNameIsAskedAboutToo) {
    scriviContenuto(cartella.file("Nodo 1.2.klv"), "x");
    for (const bool sostituisce : {true, false}) {
        std::string domanda;
        std::unique_ptr<AlModale> dinuovo;
        AlModale chiede("messaggio", [&](QWidget& finestra) {
            domanda = finestra.findChild<QLabel*>(QStringLiteral("testoMessaggio"))->text().toStdString();
            // After a no the dialogue stands there again.
            dinuovo = std::make_unique<AlModale>("dialogoFile",
                                                 [](QWidget& altra) { QTest::keyClick(&altra, Qt::Key_Escape); });
            gesti::clic(
                *finestra.findChild<QPushButton*>(sostituisce ? QStringLiteral("cmdSi") : QStringLiteral("cmdNo")));
        });
        AlModale risponde("dialogoFile", [](QWidget& finestra) { scrivi(finestra, "Nodo 1.2"); });
        const auto scelto = dialogo.salva(richiesta());
        EXPECT_EQ(scelto, sostituisce ? std::optional{cartella.file("Nodo 1.2.klv")} : std::nullopt);
        EXPECT_EQ(domanda, "Il file esiste già:\n" + cartella.file("Nodo 1.2.klv") + "\nSostituirlo?");
        ASSERT_NE(dinuovo, nullptr);
        EXPECT_EQ(dinuovo->avvenuto(), !sostituisce);
    }
}

TEST_F(Dialogo, AsksBeforeItOverwrites) {
    scriviContenuto(cartella.file("vecchio.klv"), "x");
    bool chiesto = false;
    AlModale domanda("", [&](QWidget& finestra) {
        chiesto = qobject_cast<QMessageBox*>(&finestra) != nullptr;
        // The dialogue stands again when its question is gone: no other name is wanted.
        QTimer::singleShot(0, finestra.parentWidget(),
                           [dialogo_ = finestra.parentWidget()] { QTest::keyClick(dialogo_, Qt::Key_Escape); });
        dynamic_cast<QMessageBox&>(finestra).button(QMessageBox::No)->click();
    });
    AlModale risponde("dialogoFile", [](QWidget& finestra) { scrivi(finestra, "vecchio"); });
    EXPECT_EQ(dialogo.salva(richiesta()), std::nullopt);
    EXPECT_TRUE(chiesto);
    EXPECT_EQ(contenuto(cartella.file("vecchio.klv")), "x");
}

TEST_F(Dialogo, CancelAnswersNothing) {
    AlModale primo("dialogoFile", [](QWidget& finestra) { QTest::keyClick(&finestra, Qt::Key_Escape); });
    EXPECT_EQ(dialogo.salva(richiesta()), std::nullopt);
    AlModale secondo("dialogoFile", [](QWidget& finestra) { QTest::keyClick(&finestra, Qt::Key_Escape); });
    EXPECT_EQ(dialogo.apri(richiesta(), {}), std::nullopt);
    EXPECT_TRUE(primo.avvenuto());
    EXPECT_TRUE(secondo.avvenuto());
}

TEST_F(Dialogo, OpensAFileThatStandsThereAndTellsEachSelection) {
    scriviContenuto(cartella.file("rotonda.klv"), "x");
    std::vector<std::string> scelte;
    AlModale risponde("dialogoFile", [&](QWidget& finestra) {
        auto* lista = finestra.findChild<QListView*>(QStringLiteral("listView"));
        attendi([&] { return lista->model()->rowCount(lista->rootIndex()) == 1; });
        lista->setCurrentIndex(lista->model()->index(0, 0, lista->rootIndex()));
        scrivi(finestra, "rotonda.klv");
    });
    EXPECT_EQ(dialogo.apri(richiesta(), [&](const std::string& percorso) { scelte.push_back(percorso); }),
              cartella.file("rotonda.klv"));
    ASSERT_FALSE(scelte.empty());
    EXPECT_EQ(scelte.back(), cartella.file("rotonda.klv"));
}

TEST(AttesaQt, APauseThatNobodyEndsRunsOutAndLetsEventsRun) {
    ui::AttesaQt attesa;
    bool girato = false;
    QTimer::singleShot(0, qApp, [&] { girato = true; });
    EXPECT_FALSE(attesa.pausa(20));
    EXPECT_TRUE(girato);
}

TEST(AttesaQt, AKeyOrAClickEndsAPauseLongBeforeItsTime) {
    ui::AttesaQt attesa;
    QWidget finestra;
    finestra.show();
    ASSERT_TRUE(attendi([&] { return finestra.isVisible(); }));
    constexpr int unOra = 3'600'000;
    QTimer::singleShot(0, &finestra, [&] { QTest::keyClick(&finestra, Qt::Key_A); });
    EXPECT_TRUE(attesa.pausa(unOra));
    QTimer::singleShot(0, &finestra, [&] { QTest::mouseClick(&finestra, Qt::LeftButton); });
    EXPECT_TRUE(attesa.pausa(unOra));
}

TEST(CronometroQt, CallsBackUntilItIsStopped) {
    ui::CronometroQt cronometro;
    int rintocchi = 0;
    cronometro.ogni(1, [&] { ++rintocchi; });
    EXPECT_TRUE(attendi([&] { return rintocchi >= 3; }));
    cronometro.ferma();
    const int fermo = rintocchi;
    bool dopo = false;
    QTimer::singleShot(50, qApp, [&] { dopo = true; });
    EXPECT_TRUE(attendi([&] { return dopo; }));
    EXPECT_EQ(rintocchi, fermo);
}

TEST(ImpostazioniQt, WhatIsWrittenIsReadAgainAndAMissingKeyIsEmpty) {
    ui::ImpostazioniQt impostazioni;
    impostazioni.scrivi("Prova", "Sezione", "Chiave", "città = 1");
    EXPECT_EQ(ui::ImpostazioniQt{}.leggi("Prova", "Sezione", "Chiave"), "città = 1");
    EXPECT_EQ(impostazioni.leggi("Prova", "Sezione", "Altra"), "");
}

}  // namespace
}  // namespace kelvo::prove
