#include <QtWidgets/QLineEdit>

#include "shell/disposizioniAlbero.h"
#include "ui/banco.h"

namespace kelvo::prove {
namespace {

using gesti::attendi;
using gesti::smaltisci;
using gesti::tasto;

/// The names of a new project of four legs, with the tree by leg or by type.
class Toponomastica : public testing::TestWithParam<int> {
protected:
    void SetUp() override {
        banco.mostra();
        banco.nuovo(4);
        banco.vai("keyToponomasticaIntersezione");
        ASSERT_EQ(banco.nomeCorrente(), "frmToponomasticaIntersezione");
    }
    void scrivi(const char* campo, const std::string& testo) {
        dynamic_cast<QLineEdit&>(banco.entra(campo)).selectAll();
        if (testo.empty()) {
            tasto(Qt::Key_Delete);
        }
        gesti::digita(testo);
    }
    std::string nodo(const std::string& chiave) {
        QTreeWidgetItem* riga = gesti::nodo(banco.albero(), chiave);
        return riga == nullptr ? "no node " + chiave : riga->text(0).toStdString();
    }
    Banco banco{GetParam()};
};

TEST_P(Toponomastica, OneFieldALegAndNoMore) {
    EXPECT_EQ(gesti::fuoco(), "txtIngresso1");
    EXPECT_TRUE(banco.oggetto<QWidget>("txtIngresso4").isVisible());
    for (const char* nome : {"txtIngresso5", "txtIngresso7", "lblIngresso5"}) {
        EXPECT_FALSE(banco.oggetto<QWidget>(nome).isVisible()) << nome;
    }
}

TEST_P(Toponomastica, TheNodesOfALegFollowItsName) {
    const bool perTipo = GetParam() != 0;
    scrivi("txtIngresso2", "Via dell'Università");
    tasto(Qt::Key_Return);
    EXPECT_EQ(gesti::fuoco(), "txtIngresso3");
    EXPECT_EQ(banco.app.theRotonda().Ramo(2).Descrizione(), "Via dell'Università");
    const std::vector<std::string> chiavi =
        perTipo ? std::vector<std::string>{"keyRamo2",
                                           "keyDatiTraffico2",
                                           "keyComposizioneTraffico2",
                                           "keyAnalisiMarginale2",
                                           "keyCodeRitardi_Out2",
                                           "keyOttimizzazioneGeometrica2"}
                : std::vector<std::string>{"keyRami2", "keyCodeRitardi_Out2", "keyOttimizzazioneGeometrica2"};
    for (const std::string& chiave : chiavi) {
        EXPECT_TRUE(attendi([&] { return nodo(chiave) == "Via dell'Università"; })) << nodo(chiave);
    }
    EXPECT_EQ(nodo(perTipo ? "keyRamo1" : "keyRami1"), "Ramo A");
}

TEST_P(Toponomastica, TwoForbiddenCharactersShowTwoMessagesAndKeepTheFocus) {
    scrivi("txtIngresso1", "a/b:c");
    tasto(Qt::Key_Tab);
    EXPECT_TRUE(attendi([] { return gesti::fuoco() == "txtIngresso1"; }));
    ASSERT_EQ(banco.messaggi.mostrati.size(), 2U);
    for (const auto& messaggio : banco.messaggi.mostrati) {
        EXPECT_EQ(messaggio.testo, "Attenzione, non sono permessi i caratteri: \\/:*?\"<>|");
        EXPECT_EQ(messaggio.titolo, "KELVO 2014 - Errore");
    }
    EXPECT_EQ(banco.app.theRotonda().Ramo(1).Descrizione(), "Ramo A");
    tasto(Qt::Key_Escape);
    tasto(Qt::Key_Tab);
    EXPECT_TRUE(attendi([] { return gesti::fuoco() == "txtIngresso2"; }));
}

TEST_P(Toponomastica, AnEmptyNameKeepsTheWindow) {
    scrivi("txtIngresso3", "");
    gesti::clicNodo(banco.albero(), "keyTempoModellazione");
    smaltisci();
    EXPECT_EQ(banco.nomeCorrente(), "frmToponomasticaIntersezione");
    EXPECT_EQ(banco.ultimo(), "Attenzione, indicare un nome per il ramo");
    EXPECT_EQ(gesti::selezionato(banco.albero()), "keyToponomasticaIntersezione");
}

TEST_P(Toponomastica, ANameThatWasTypedIsWrittenByLeavingTheWindow) {
    scrivi("txtIngresso4", "Corso Italia");
    banco.vai("keyTempoModellazione");
    EXPECT_EQ(banco.app.theRotonda().Ramo(4).Descrizione(), "Corso Italia");
    EXPECT_TRUE(banco.messaggi.mostrati.empty()) << banco.ultimo();
}

INSTANTIATE_TEST_SUITE_P(Disposizioni, Toponomastica, testing::Values(0, 1),
                         [](const auto& valore) { return valore.param == 0 ? "PerRamo" : "PerTipo"; });

}  // namespace
}  // namespace kelvo::prove
