#include <QtTest/QTest>

#include "ui/banco.h"
#include "ui/shell/VistaAlbero.h"

namespace kelvo::prove {
namespace {

using gesti::smaltisci;

/// The tree in both layouts, with the node of the modelling times at hand; nodes of windows that do not stand are grey.
class AlberoVisto : public testing::TestWithParam<int> {
protected:
    void SetUp() override {
        banco.mostra();
        banco.nuovo(3);
        banco.vai("keyTempoModellazione");
    }
    QPoint posto(const std::string& chiave) {
        QTreeWidgetItem* riga = gesti::nodo(banco.albero(), chiave);
        banco.albero().scrollToItem(riga);
        const QRect r = banco.albero().visualItemRect(riga);
        return {r.left() + r.width() / 2, r.center().y()};
    }
    /// Presses the left button on one node and releases it on another.
    void premi(const std::string& giu, const std::string& su) {
        QWidget* vista = banco.albero().viewport();
        QTest::mousePress(vista, Qt::LeftButton, {}, posto(giu));
        QTest::mouseRelease(vista, Qt::LeftButton, {}, posto(su));
        smaltisci();
    }
    void fermo() {
        EXPECT_EQ(banco.nomeCorrente(), "frmTempoModellazione");
        EXPECT_EQ(gesti::selezionato(banco.albero()), "keyTempoModellazione");
        EXPECT_TRUE(banco.messaggi.mostrati.empty()) << banco.ultimo();
    }
    Banco banco{GetParam()};
};

TEST_P(AlberoVisto, APressOnAGreyNodeThatEndsOnAnOpenOneDoesNothing) {
    premi("keyMatriceSvolte", "keyAnagraficaRotonda");
    fermo();
}

TEST_P(AlberoVisto, APressThatEndsOnAnotherNodeDoesNothing) {
    premi("keyAnagraficaRotonda", "keyAnagraficaProfessionista");
    fermo();
    premi("keyAnagraficaRotonda", "keyMatriceSvolte");
    fermo();
}

TEST_P(AlberoVisto, ADoubleClickOnAGreyFolderLeavesItAsItIs) {
    banco.cornice.albero.DisableNode(banco.cornice.albero.ctlTree, "keyOttimizzazioneGeometrica");
    smaltisci();
    ASSERT_TRUE(gesti::nodo(banco.albero(), "keyOttimizzazioneGeometrica")->isExpanded());
    QWidget* vista = banco.albero().viewport();
    const QPoint dove = posto("keyOttimizzazioneGeometrica");
    QTest::mouseClick(vista, Qt::LeftButton, {}, dove);
    QTest::mouseDClick(vista, Qt::LeftButton, {}, dove);
    smaltisci();
    EXPECT_TRUE(gesti::nodo(banco.albero(), "keyOttimizzazioneGeometrica")->isExpanded());
    fermo();
}

TEST_P(AlberoVisto, ADoubleClickOnAnOpenFolderClosesIt) {
    QWidget* vista = banco.albero().viewport();
    ASSERT_TRUE(gesti::nodo(banco.albero(), "keyStrumenti")->isExpanded());
    const QPoint dove = posto("keyStrumenti");
    QTest::mouseClick(vista, Qt::LeftButton, {}, dove);
    smaltisci();
    QTest::mouseDClick(vista, Qt::LeftButton, {}, posto("keyStrumenti"));
    smaltisci();
    EXPECT_FALSE(gesti::nodo(banco.albero(), "keyStrumenti")->isExpanded());
    EXPECT_FALSE(banco.cornice.albero.ctlTree.nodo("keyStrumenti").espanso);
}

TEST_P(AlberoVisto, TheArrowKeysPassGreyNodes) {
    banco.albero().setFocus();
    banco.albero().setCurrentItem(gesti::nodo(banco.albero(), "keyAnagraficaProfessionista"));
    for (int i = 0; i < 60; ++i) {
        QTest::keyClick(&banco.albero(), Qt::Key_Down);
        const std::string chiave = gesti::chiaveDi(banco.albero().currentItem());
        EXPECT_EQ(banco.cornice.albero.ctlTree.nodo(chiave).ForeColor, frmTreeView::coloreAbilitato) << chiave;
    }
}

TEST_P(AlberoVisto, WhatTheUserOpenedAndClosedOutlivesAChangeOfTheNodes) {
    const std::string cartella = GetParam() == 0 ? "keyRami2" : "keyOpzioni";
    gesti::nodo(banco.albero(), cartella)->setExpanded(true);
    gesti::nodo(banco.albero(), "keyStrumenti")->setExpanded(false);
    smaltisci();
    banco.cornice.testoNodi("3Ramo", "Via Po");
    ASSERT_TRUE(gesti::attendi(
        [&] { return gesti::nodo(banco.albero(), "keyCodeRitardi_Out3")->text(0) == QStringLiteral("Via Po"); }));
    EXPECT_TRUE(gesti::nodo(banco.albero(), cartella)->isExpanded());
    EXPECT_FALSE(gesti::nodo(banco.albero(), "keyStrumenti")->isExpanded());
    banco.cornice.LoadTreeView();  // a build has the flags of its table
    smaltisci();
    EXPECT_TRUE(gesti::nodo(banco.albero(), "keyStrumenti")->isExpanded());
}

TEST_P(AlberoVisto, IsNoWiderThanItsWidestRowNeeds) {
    const int righe = dynamic_cast<ui::VistaAlbero&>(banco.albero()).larghezzaRighe();
    EXPECT_GT(righe, 100);
    EXPECT_LE(banco.albero().width(), righe + 24);
    EXPECT_LE(banco.albero().width(), 300);  // 4500 twips
}

INSTANTIATE_TEST_SUITE_P(Disposizioni, AlberoVisto, testing::Values(0, 1),
                         [](const auto& p) { return p.param == 0 ? "PerRamo" : "PerTipo"; });

}  // namespace
}  // namespace kelvo::prove
