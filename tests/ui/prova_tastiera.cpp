#include <QtWidgets/QApplication>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <algorithm>

#include "shell/finestrePerChiave.h"
#include "ui/banco.h"

namespace kelvo::prove {
namespace {

using gesti::attendi;
using gesti::smaltisci;
using gesti::tasto;

struct Nodo {
    const char* chiave;
    const char* finestra;
    std::int16_t tipoAnalisi = 0;
    std::int16_t tipoFlusso = 0;
};
/// A node of the windows that start in the first field of their order.
const std::vector<Nodo>& nodiAperti() {
    static const std::vector<Nodo> nodi{{"keyMyProject", "frmEmptyForm"},
                                        {"keyAnagraficaRotonda", "frmAnagraficaRotonda"},
                                        {"keyAnagraficaProfessionista", "frmCommittenteProfessionista"},
                                        {"keyTempoModellazione", "frmTempoModellazione"},
                                        {"keyRamo1", "frmParametriRamo"},
                                        {"keyComposizioneTraffico1", "frmComposizioneTraffico"},
                                        {"keyMatriceSvolte", "frmMatriceSvolte"},
                                        {"keyCapacitaUltima_Out", "frmCapacitaUltima"},
                                        {"keyDatiTraffico1", "frmDatiTrafficoST", 2, 0},
                                        {"keyComposizioneTraffico1", "frmComposizioneTrafficoST", 2, 1}};
    return nodi;
}

class Tastiera : public testing::TestWithParam<std::size_t> {
protected:
    void SetUp() override {
        banco.mostra();
        banco.nuovo(4);
        banco.app.theRotonda().TipoAnalisi(nodiAperti()[GetParam()].tipoAnalisi);
        banco.app.theRotonda().TipoFlusso(nodiAperti()[GetParam()].tipoFlusso);
        banco.cornice.SetUpOpzioni();
    }
    /// Names of the controls of the window at hand that take the keyboard, as the window declares them.
    std::vector<std::string> dichiarati() {
        std::vector<std::string> nomi;
        for (const Controllo* controllo : banco.cornice.gestione.corrente()->ordine()) {
            if (controllo->prendeFuoco()) {
                nomi.push_back(controllo->nome());
            }
        }
        return nomi;
    }
    /// Where the key leads from the widget that has the keyboard, so many times; in a table it goes through its cells
    /// first.
    static std::vector<std::string> giro(Qt::Key chiave, std::size_t passi) {
        std::vector<std::string> nomi{gesti::fuoco()};
        while (nomi.size() < passi) {
            constexpr int celle = 500;
            for (int i = 0; i < celle && gesti::fuoco() == nomi.back(); ++i) {
                tasto(chiave, chiave == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
                smaltisci();
            }
            nomi.push_back(gesti::fuoco());
        }
        return nomi;
    }

    Banco banco;
};

TEST_P(Tastiera, TabGoesThroughTheFieldsInTheirDeclaredOrderAndBack) {
    banco.vai(nodiAperti()[GetParam()].chiave);
    ASSERT_EQ(banco.nomeCorrente(), nodiAperti()[GetParam()].finestra);
    std::vector<std::string> attesi = dichiarati();
    ASSERT_FALSE(attesi.empty());
    if (gesti::fuoco() != attesi.front()) {
        tasto(Qt::Key_F6);  // the tree kept the keyboard
        smaltisci();
    }
    EXPECT_EQ(giro(Qt::Key_Tab, attesi.size()), attesi);
    tasto(Qt::Key_F5);  // whoever leaves the segment has to choose the end again, or read it again
    smaltisci();
    std::reverse(attesi.begin(), attesi.end());
    EXPECT_EQ(giro(Qt::Key_Backtab, attesi.size()), attesi);
    EXPECT_TRUE(banco.messaggi.mostrati.empty()) << banco.ultimo();
}

TEST_P(Tastiera, TheTreesKeyOpensTheWindowAndPutsTheKeyboardOnItsFirstField) {
    tasto(Qt::Key_F6);
    smaltisci();
    ASSERT_TRUE(banco.albero().hasFocus());
    ASSERT_TRUE(gesti::vaiAlNodo(banco.albero(), nodiAperti()[GetParam()].chiave));
    smaltisci();
    EXPECT_EQ(banco.nomeCorrente(), nodiAperti()[GetParam()].finestra);
    EXPECT_TRUE(attendi([&] { return gesti::fuoco() == dichiarati().front(); })) << gesti::fuoco();
}

INSTANTIATE_TEST_SUITE_P(PerOgniFinestra, Tastiera, testing::Range(std::size_t{0}, nodiAperti().size()),
                         [](const auto& p) { return nodiAperti()[p.param].finestra; });

/// The main window by keys and mouse.
class TastiCornice : public testing::TestWithParam<int> {
protected:
    void SetUp() override { banco.mostra(); }
    Banco banco{GetParam()};
};

TEST_P(TastiCornice, TheMenusOpenByTheirMnemonics) {
    banco.nuovo(3);
    tasto(Qt::Key_D, Qt::AltModifier);
    ASSERT_TRUE(attendi([] { return QApplication::activePopupWidget() != nullptr; }));
    tasto(Qt::Key_P);  // Progetto
    ASSERT_TRUE(attendi([] {
        auto* aperto = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        return aperto != nullptr && aperto->title() == QStringLiteral("&Progetto");
    }));
    tasto(Qt::Key_Down);
    tasto(Qt::Key_Down);
    auto* aperto = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    while (aperto->activeAction() != nullptr && aperto->activeAction()->objectName() != "keyTempoModellazione") {
        tasto(Qt::Key_Down);
    }
    tasto(Qt::Key_Return);
    ASSERT_TRUE(attendi([&] { return banco.nomeCorrente() == "frmTempoModellazione"; }));
    EXPECT_TRUE(attendi([&] { return gesti::selezionato(banco.albero()) == "keyTempoModellazione"; }));
}

TEST_P(TastiCornice, EveryNodeHasItsWindowAndAClosedOneTellsWhatOpensIt) {
    banco.nuovo(3);
    smaltisci();
    for (const std::string& chiave : banco.cornice.albero.ctlTree.chiavi()) {
        const std::string_view nome = banco.cornice.albero.finestra(chiave);
        EXPECT_TRUE(nome.empty() || banco.cornice.finestre.conosce(nome)) << chiave;
        const Albero::Nodo& nodo = banco.cornice.albero.ctlTree.nodo(chiave);
        EXPECT_EQ(nodo.nota.empty(), nodo.ForeColor == frmTreeView::coloreAbilitato) << chiave;
        const QTreeWidgetItem* riga = gesti::nodo(banco.albero(), chiave);
        ASSERT_NE(riga, nullptr) << chiave;
        EXPECT_EQ(riga->toolTip(0).toStdString(), nodo.nota) << chiave;
    }
    banco.vai("keyterra");
    EXPECT_EQ(banco.nomeCorrente(), "frmGoogle");
}

TEST_P(TastiCornice, AClickOnANodeShowsItsWindowAndTheKeyboardIsInItsFirstField) {
    banco.nuovo(3);
    banco.vai("keyTempoModellazione");
    EXPECT_EQ(banco.nomeCorrente(), "frmTempoModellazione");
    EXPECT_TRUE(attendi([] { return gesti::fuoco() == "txtTempoIniziale"; })) << gesti::fuoco();
}

TEST_P(TastiCornice, ALineOfTheContentLeadsToItsWindow) {
    banco.nuovo(3);
    banco.vai("keyMyProject");
    auto& elenco = banco.oggetto<QTreeWidget>("ctlContenuto");
    QTreeWidgetItem* riga = gesti::nodo(elenco, "keyTempoModellazione");
    ASSERT_NE(riga, nullptr);
    elenco.setFocus();
    elenco.setCurrentItem(riga);
    tasto(Qt::Key_Return);
    ASSERT_TRUE(attendi([&] { return banco.nomeCorrente() == "frmTempoModellazione"; }));
    EXPECT_TRUE(attendi([&] { return gesti::selezionato(banco.albero()) == "keyTempoModellazione"; }));
}

TEST_P(TastiCornice, TheInformationWindowClosesByItsButton) {
    banco.nuovo(3);
    gesti::AlModale info("frmINFO", [](QWidget&) { tasto(Qt::Key_Return); });
    EXPECT_TRUE(gesti::menu(banco.vista, {"mnuHelp", "mnuInfoSulProgramma"}));
    EXPECT_TRUE(attendi([&] { return info.avvenuto() && QApplication::activeModalWidget() == nullptr; }));
    EXPECT_FALSE(info.rimasto());
}

INSTANTIATE_TEST_SUITE_P(Disposizioni, TastiCornice, testing::Values(0, 1),
                         [](const auto& valore) { return valore.param == 0 ? "PerRamo" : "PerTipo"; });

}  // namespace
}  // namespace kelvo::prove
