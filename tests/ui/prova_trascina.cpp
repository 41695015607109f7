#include <QtCore/QMimeData>
#include <QtCore/QUrl>
#include <QtGui/QDragEnterEvent>
#include <QtGui/QDropEvent>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <filesystem>

#include "ui/banco.h"

namespace kelvo::prove {
namespace {

using gesti::smaltisci;

/// Sends what the system sends while something is dragged over a widget and dropped there; true if it was taken.
bool lascia(QWidget& oggetto, QPoint posto, const QMimeData& carico) {
    const Qt::DropActions azioni = Qt::MoveAction | Qt::CopyAction;
    QDragEnterEvent entra(posto, azioni, &carico, Qt::LeftButton, {});
    QApplication::sendEvent(&oggetto, &entra);
    if (!entra.isAccepted()) {
        return false;
    }
    QDragMoveEvent muove(posto, azioni, &carico, Qt::LeftButton, {});
    muove.setDropAction(Qt::MoveAction);
    muove.accept();  // who took the entering takes the moving, unless he says no
    QApplication::sendEvent(&oggetto, &muove);
    if (!muove.isAccepted()) {
        QDragLeaveEvent via;
        QApplication::sendEvent(&oggetto, &via);
        return false;
    }
    QDropEvent cade(posto, azioni, &carico, Qt::LeftButton, {});
    QApplication::sendEvent(&oggetto, &cade);
    return cade.isAccepted();
}

class Trascina : public testing::TestWithParam<int> {
protected:
    Trascina() {
        // Nodes of the composition are open where its window stands.
        for (const char* nome : {"frmComposizioneTraffico"}) {
            banco.cornice.finestre.registra(nome, [nome](const Contorno& contorno) {
                return std::make_unique<shell::FinestraFinta>(contorno, nome, true);
            });
        }
    }
    void SetUp() override {
        banco.mostra();
        banco.nuovo(3);
        DatiTraffico& a = banco.app.theRotonda().Ramo(1).theDatiTraffico();
        a.FlussoMedio(4.5F);
        a.FlussoOrario(270.0F);
        a.FlussoTempo2(9.25F);
        for (std::int16_t s = 0; s < a.NumSegmentiTempo(); ++s) {
            a.FlussoSegmento(static_cast<float>(11 + s), s, 0);
        }
        banco.app.theRotonda().Ramo(1).theComposizioneTraffico().Camper(12.5F);
        testo = banco.app.theRotonda().TestoFile();
        smaltisci();
    }
    /// Presses on a node, drags it and drops it on another one; true if the tree took it.
    bool trascina(const std::string& da, const std::string& a) {
        QTreeWidget& albero = banco.albero();
        const auto posto = [&](const std::string& chiave) {
            QTreeWidgetItem* riga = gesti::nodo(albero, chiave);
            for (QTreeWidgetItem* padre = riga->parent(); padre != nullptr; padre = padre->parent()) {
                padre->setExpanded(true);
            }
            albero.scrollToItem(riga);
            return albero.visualItemRect(riga).center();
        };
        posto(a);
        QTest::mousePress(albero.viewport(), Qt::LeftButton, {}, posto(da));
        const auto dati = banco.cornice.albero.OLEStartDrag();
        QMimeData carico;
        carico.setText(QString::fromStdString(dati.value_or("")));
        const bool preso = dati && lascia(*albero.viewport(), posto(a), carico);
        banco.cornice.albero.OLECompleteDrag();
        smaltisci();
        return preso;
    }
    const Ramo& ramo(std::int16_t i) { return banco.app.theRotonda().Ramo(i); }

    Banco banco{GetParam()};
    std::string testo;
};

TEST_P(Trascina, TrafficDroppedOnAnotherLegIsCopiedAfterYes) {
    banco.messaggi.risposte.push_back(Risposta::si);
    EXPECT_TRUE(trascina("keyDatiTraffico1", "keyDatiTraffico3"));
    ASSERT_EQ(banco.messaggi.mostrati.size(), 1U);
    const auto& domanda = banco.messaggi.mostrati.front();
    EXPECT_EQ(domanda.testo, "Vuoi copiare i dati del traffico dal ramo <Ramo A> al ramo <Ramo C> ?");
    EXPECT_EQ(domanda.titolo, "KELVO 2014 - Attenzione");
    EXPECT_EQ(domanda.icona, Icona::domanda);
    EXPECT_EQ(domanda.pulsanti, Pulsanti::siNo);
    const DatiTraffico& meta = ramo(3).theDatiTraffico();
    EXPECT_EQ(meta.FlussoMedio(), 4.5F);
    EXPECT_EQ(meta.FlussoOrario(), 4.5F);  // takes the mean flow, as odd as it is
    EXPECT_EQ(meta.FlussoTempo2(), 9.25F);
    EXPECT_EQ(meta.FlussoSegmento(2, 0), 13.0F);
    EXPECT_EQ(ramo(3).theComposizioneTraffico().Camper(), 0.0F);
    EXPECT_EQ(ramo(2).theDatiTraffico().FlussoMedio(), 0.0F);
    EXPECT_TRUE(banco.vista.windowTitle().endsWith(QStringLiteral(" *")));
}

TEST_P(Trascina, NoCopiesNothing) {
    banco.messaggi.risposte.push_back(Risposta::no);
    EXPECT_TRUE(trascina("keyDatiTraffico1", "keyDatiTraffico2"));
    EXPECT_EQ(banco.messaggi.mostrati.size(), 1U);
    EXPECT_EQ(banco.app.theRotonda().TestoFile(), testo);
}

TEST_P(Trascina, CompositionGoesOntoComposition) {
    EXPECT_TRUE(trascina("keyComposizioneTraffico1", "keyComposizioneTraffico2"));
    EXPECT_EQ(banco.messaggi.testi(),
              std::vector<std::string>{
                  "Vuoi copiare i dati della composizione del traffico dal ramo <Ramo A> al ramo <Ramo B> ?"});
    EXPECT_EQ(ramo(2).theComposizioneTraffico().Camper(), 12.5F);
    EXPECT_EQ(ramo(2).theDatiTraffico().FlussoMedio(), 0.0F);
}

TEST_P(Trascina, ItselfAnotherKindAndAFolderAreRefused) {
    EXPECT_FALSE(trascina("keyDatiTraffico1", "keyDatiTraffico1"));
    EXPECT_FALSE(trascina("keyDatiTraffico1", "keyComposizioneTraffico2"));
    EXPECT_FALSE(trascina("keyComposizioneTraffico1", "keyDatiTraffico2"));
    EXPECT_FALSE(trascina("keyDatiTraffico1", "keyTempoModellazione"));
    EXPECT_FALSE(trascina("keyTempoModellazione", "keyDatiTraffico2"));
    EXPECT_FALSE(trascina("keyRotonda", "keyDatiTraffico2"));
    EXPECT_TRUE(banco.messaggi.mostrati.empty()) << banco.ultimo();
    EXPECT_EQ(banco.app.theRotonda().TestoFile(), testo);
}

TEST_P(Trascina, ATextFromElsewhereIsRefused) {
    QTreeWidget& albero = banco.albero();
    QTreeWidgetItem* riga = gesti::nodo(albero, "keyDatiTraffico2");
    riga->parent()->setExpanded(true);
    albero.scrollToItem(riga);
    QMimeData carico;
    carico.setText(QStringLiteral("keyDatiTraffico1"));
    EXPECT_FALSE(lascia(*albero.viewport(), albero.visualItemRect(riga).center(), carico));
    EXPECT_TRUE(banco.messaggi.mostrati.empty());
    EXPECT_EQ(banco.app.theRotonda().TestoFile(), testo);
}

TEST_P(Trascina, AnOpenTargetShowsTheCopiedData) {
    for (std::int16_t i = 1; i <= 3; ++i) {
        DatiTraffico& dati = banco.app.theRotonda().Ramo(i).theDatiTraffico();
        dati.Tempo1(banco.app.theRotonda().TempoIniziale());
        dati.Tempo2(banco.app.theRotonda().TempoIniziale());
        dati.Tempo3(banco.app.theRotonda().TempoFinale());
    }
    banco.vai("keyDatiTraffico2");
    EXPECT_EQ(banco.oggetto<QLineEdit>("txtFlussoTempo2").text(), QStringLiteral("0"));
    EXPECT_TRUE(trascina("keyDatiTraffico1", "keyDatiTraffico2"));
    EXPECT_EQ(banco.oggetto<QLineEdit>("txtFlussoTempo2").text(), QStringLiteral("9,25"));
}

INSTANTIATE_TEST_SUITE_P(Disposizioni, Trascina, testing::Values(0, 1),
                         [](const auto& valore) { return valore.param == 0 ? "PerRamo" : "PerTipo"; });

/// Files dropped on the main window.
class FileLasciato : public testing::Test {
protected:
    void SetUp() override { banco.mostra(); }
    bool cade(QWidget& dove, const std::string& percorso) {
        QMimeData carico;
        carico.setUrls({QUrl::fromLocalFile(QString::fromStdString(percorso))});
        const bool preso = lascia(dove, dove.rect().center(), carico);
        smaltisci();
        return preso;
    }
    std::string progetto(const char* nome) {
        std::string percorso = banco.cartella.file(nome);
        std::filesystem::copy_file(KELVO_SORGENTI "/assets/Progetti/Rotatoria_Piazza_Italia.klv", percorso);
        return percorso;
    }
    Banco banco;
};

TEST_F(FileLasciato, AProjectOpens) {
    const std::string percorso = progetto("Via Emilia.KLV");
    EXPECT_TRUE(cade(banco.vista, percorso));
    EXPECT_TRUE(banco.stato.ProgettoAperto);
    EXPECT_EQ(banco.vista.windowTitle(), QStringLiteral("KELVO 2014 - [Via Emilia.klv]"));
    EXPECT_EQ(banco.cornice.recenti.elenco(), std::vector<std::string>{percorso});
}

TEST_F(FileLasciato, AProjectOpensWhereverOnTheWindowItFalls) {
    EXPECT_TRUE(cade(*banco.vista.centralWidget(), progetto("uno.klv")));
    EXPECT_TRUE(banco.stato.ProgettoAperto);
}

TEST_F(FileLasciato, AnythingElseIsRefused) {
    scriviContenuto(banco.cartella.file("foto.png"), "niente");
    EXPECT_FALSE(cade(banco.vista, banco.cartella.file("foto.png")));
    EXPECT_FALSE(banco.stato.ProgettoAperto);
    EXPECT_TRUE(banco.messaggi.mostrati.empty());
}

TEST_F(FileLasciato, ABrokenProjectTellsSo) {
    scriviContenuto(banco.cartella.file("rotto.klv"), "niente");
    cade(banco.vista, banco.cartella.file("rotto.klv"));
    EXPECT_EQ(banco.messaggi.testi(), std::vector<std::string>{"Il file selezionato non è corretto!"});
    EXPECT_FALSE(banco.stato.ProgettoAperto);
}

TEST_F(FileLasciato, NothingOpensOverAnOpenProject) {
    banco.nuovo(4);
    const std::string percorso = progetto("altro.klv");
    EXPECT_FALSE(cade(banco.vista, percorso));
    EXPECT_FALSE(cade(*banco.albero().viewport(), percorso));
    EXPECT_EQ(banco.vista.windowTitle(), QStringLiteral("KELVO 2014 - [.klv]"));
    EXPECT_EQ(banco.app.theRotonda().NumeroRami(), 4);
}

}  // namespace
}  // namespace kelvo::prove
