#include "ui/DisposizioneProporzionale.h"

#include <gtest/gtest.h>

#include <QtWidgets/QLabel>
#include <memory>
#include <vector>

#include "app/nuovoProgetto.h"
#include "comune/fintiShell.h"
#include "shell/registroFinestre.h"
#include "ui/scenaVista.h"

namespace kelvo::prove {
namespace {

using gesti::smaltisci;
using ui::DisposizioneProporzionale;

TEST(ProveDisposizione, PanelsFollowTheRatioOfTheRoomToTheDesign) {
    QWidget finestra;
    auto* piano = new DisposizioneProporzionale({200, 100}, &finestra);
    auto* sinistra = new QWidget(&finestra);
    auto* destra = new QWidget(&finestra);
    piano->aggiungi(sinistra, {10, 20, 80, 40});
    piano->aggiungi(destra, {100, 0, 100, 100});
    piano->setContentsMargins(0, 0, 0, 0);
    piano->setGeometry({0, 0, 200, 100});
    EXPECT_EQ(sinistra->geometry(), QRect(10, 20, 80, 40));
    EXPECT_EQ(destra->geometry(), QRect(100, 0, 100, 100));
    piano->setGeometry({0, 0, 400, 150});
    EXPECT_EQ(sinistra->geometry(), QRect(20, 30, 160, 60));
    EXPECT_EQ(destra->geometry(), QRect(200, 0, 200, 150));
    piano->setContentsMargins(16, 8, 16, 8);
    piano->setGeometry({0, 0, 232, 116});
    EXPECT_EQ(sinistra->geometry(), QRect(26, 28, 80, 40));
}

TEST(ProveDisposizione, NeighboursMeetAtEverySizeAndNeverOverlap) {
    QWidget finestra;
    auto* piano = new DisposizioneProporzionale({3, 1}, &finestra);
    piano->setContentsMargins(0, 0, 0, 0);
    std::vector<QWidget*> terzi;
    for (int i = 0; i < 3; ++i) {
        terzi.push_back(new QWidget(&finestra));
        piano->aggiungi(terzi.back(), {static_cast<double>(i), 0, 1, 1});
    }
    for (int larga = 3; larga < 60; ++larga) {
        piano->setGeometry({0, 0, larga, 10});
        EXPECT_EQ(terzi[0]->geometry().left(), 0);
        EXPECT_EQ(terzi[1]->geometry().left(), terzi[0]->geometry().right() + 1) << larga;
        EXPECT_EQ(terzi[2]->geometry().left(), terzi[1]->geometry().right() + 1) << larga;
        EXPECT_EQ(terzi[2]->geometry().right(), larga - 1);
    }
}

TEST(ProveDisposizione, TheRoomIsNeverTooSmallForAPanel) {
    QWidget finestra;
    auto* piano = new DisposizioneProporzionale({200, 100}, &finestra);
    piano->setContentsMargins(5, 5, 5, 5);
    auto* pannello = new QWidget(&finestra);
    pannello->setMinimumSize(120, 30);
    piano->aggiungi(pannello, {0, 0, 100, 50});
    EXPECT_EQ(piano->minimumSize(), QSize(250, 70));
    EXPECT_EQ(piano->sizeHint(), QSize(250, 110));
    piano->setGeometry({{0, 0}, piano->minimumSize()});
    EXPECT_EQ(pannello->size(), QSize(120, 30));
}

TEST(ProveDisposizione, WrappedTextAsksForItsHeight) {
    QWidget finestra;
    auto* piano = new DisposizioneProporzionale({200, 100}, &finestra);
    piano->setContentsMargins(0, 0, 0, 0);
    auto* testo = new QLabel(QStringLiteral("parole ").repeated(30), &finestra);
    testo->setWordWrap(true);
    piano->aggiungi(testo, {0, 0, 100, 50});
    ASSERT_TRUE(piano->hasHeightForWidth());
    EXPECT_EQ(piano->heightForWidth(400), 2 * testo->heightForWidth(200));
    EXPECT_GT(piano->heightForWidth(200), piano->heightForWidth(400));
}

TEST(ProveDisposizione, WhatIsTakenOutIsPlacedNoMore) {
    QWidget finestra;
    auto* piano = new DisposizioneProporzionale({200, 100}, &finestra);
    piano->aggiungi(new QWidget(&finestra), {0, 0, 100, 50});
    EXPECT_EQ(piano->count(), 1);
    EXPECT_EQ(piano->takeAt(1), nullptr);
    delete piano->takeAt(0);
    EXPECT_EQ(piano->count(), 0);
    EXPECT_EQ(piano->itemAt(0), nullptr);
}

/// All windows that stand in the work area, each with its view.
struct ProveViste : testing::Test, ScenaFinestre {
    /// The boxes that the proportional layout placed.
    static std::vector<QRect> pannelli(const QWidget& vista) {
        std::vector<QRect> posti;
        const auto* piano = dynamic_cast<DisposizioneProporzionale*>(corpo(vista)->layout());
        for (int i = 0; piano != nullptr && i < piano->count(); ++i) {
            posti.push_back(piano->itemAt(i)->geometry());
        }
        return posti;
    }
    static QWidget* corpo(const QWidget& vista) { return vista.findChild<QWidget*>(QStringLiteral("lavoro")); }
};

TEST_F(ProveViste, PanelsOfEveryWindowStandBesideEachOtherAndHoldTheirContent) {
    creaProgetto(app, 4);
    stato.ProgettoAperto = true;
    shell::ServiziFinestreFinti servizi;
    FabbricaFinestre fabbrica;
    registraFinestre(fabbrica, servizi.servizi());
    navigazione.corrente = "keyRamo1";
    for (const char* nome :
         {"frmEmptyForm", "frmAnagraficaRotonda", "frmCommittenteProfessionista", "frmTempoModellazione",
          "frmParametriRamo", "frmComposizioneTraffico", "frmComposizioneTrafficoST"}) {
        Finestra* finestra = &fabbrica.finestra(nome, contorno());
        const std::unique_ptr<ui::VistaFinestra> vista(ui::creaVista(*finestra, nullptr));
        ASSERT_NE(vista, nullptr) << finestra->nome();
        finestra->attivata();
        vista->show();
        for (const QSize misura : {QSize(700, 500), QSize(984, 690), QSize(2400, 1700)}) {
            vista->resize(misura);
            smaltisci();
            const auto posti = pannelli(*vista);
            ASSERT_FALSE(posti.empty()) << finestra->nome();
            for (std::size_t i = 0; i < posti.size(); ++i) {
                EXPECT_TRUE(corpo(*vista)->rect().contains(posti[i])) << finestra->nome();
                for (std::size_t j = 0; j < i; ++j) {
                    EXPECT_FALSE(posti[i].intersects(posti[j])) << finestra->nome() << misura.width();
                }
            }
            for (const auto* figlio : corpo(*vista)->findChildren<QLabel*>()) {
                if (figlio->isVisible() && !figlio->wordWrap()) {
                    EXPECT_GE(figlio->width(), figlio->minimumSizeHint().width())
                        << finestra->nome() << ": " << figlio->text().toStdString();
                }
            }
        }
    }
}

TEST_F(ProveViste, AWindowThatIsShownIsPlacedAnew) {
    FinestraProva finestra(contorno());
    VistaProva vista(finestra);
    vista.resize(984, 690);
    vista.show();
    smaltisci();
    const QRect prima = pannelli(vista).at(0);
    QWidget* colonna = corpo(vista)->layout()->itemAt(0)->widget();
    colonna->setGeometry(0, 0, 10, 10);
    vista.ridimensiona();
    EXPECT_EQ(colonna->geometry(), prima);
}

}  // namespace
}  // namespace kelvo::prove
