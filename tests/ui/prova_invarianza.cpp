#include <QtWidgets/QApplication>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>

#include "model/proprieta.h"
#include "ui/banco.h"

namespace kelvo::prove {
namespace {

using gesti::smaltisci;

/// Keys of the nodes that open a window, in the tree's order.
std::vector<std::string> nodiAperti(Banco& banco) {
    std::vector<std::string> chiavi;
    for (const std::string& chiave : banco.cornice.albero.ctlTree.chiavi()) {
        const Albero::Nodo& nodo = banco.cornice.albero.ctlTree.nodo(chiave);
        if (nodo.ForeColor == frmTreeView::coloreAbilitato) {
            chiavi.push_back(chiave);
        }
    }
    return chiavi;
}

/// Walks through every field of the window at hand.
void passaIcampi(Banco& banco) {
    for (const Controllo* controllo : banco.cornice.gestione.corrente()->ordine()) {
        if (controllo->prendeFuoco()) {
            banco.entra(controllo->nome().c_str());
        }
    }
    if (banco.nomeCorrente() == "frmTempoModellazione") {
        gesti::tasto(Qt::Key_F5);  // whoever leaves the segment has to choose the end again, or read it again
        smaltisci();
    }
}

std::vector<std::string> esempi() {
    std::vector<std::string> nomi;
    for (const auto& voce : std::filesystem::directory_iterator(KELVO_SORGENTI "/assets/Progetti")) {
        nomi.push_back(voce.path().filename().string());
    }
    std::sort(nomi.begin(), nomi.end());
    return nomi;
}

class Invarianza : public testing::TestWithParam<int> {
protected:
    /// Opens, looks at every window, saves under the same name: the bytes before and after.
    void guardaTutto(const std::string& nome) {
        const std::string percorso = banco.cartella.file(nome);
        banco.apri(percorso);
        ASSERT_TRUE(banco.salva(percorso));  // once, so that both are our own writing
        const std::string prima = contenuto(percorso);
        const std::vector<std::string> chiavi = nodiAperti(banco);
        ASSERT_GT(chiavi.size(), 4U);
        for (const std::string& chiave : chiavi) {
            banco.vai(chiave);
            passaIcampi(banco);
        }
        banco.vai("keyMyProject");
        EXPECT_TRUE(banco.messaggi.mostrati.empty()) << banco.ultimo();
        EXPECT_FALSE(banco.cornice.modificato());
        ASSERT_TRUE(banco.salva(percorso));
        EXPECT_EQ(contenuto(percorso), prima);
        banco.chiudi();
        banco.messaggi.mostrati.clear();
    }
    Banco banco{GetParam()};
};

TEST_P(Invarianza, LookingAtEveryWindowLeavesTheSavedFileByteForByte) {
    banco.mostra();
    for (const std::string& nome : esempi()) {
        SCOPED_TRACE(nome);
        std::filesystem::copy_file(KELVO_SORGENTI "/assets/Progetti/" + nome, banco.cartella.file(nome));
        guardaTutto(nome);
    }
}

TEST_P(Invarianza, SoDoesAProjectWhoseEveryPropertyIsItsOwn) {
    Rotonda progetto;
    riempi(progetto, 7, 12);
    // What a window would refuse stands within its limits, with more decimals than it shows; all else is as strange as
    // it comes.
    progetto.ValorePercentile(95.00001F);
    for (std::int16_t i = 1; i <= progetto.NumeroRami(); ++i) {
        Ramo& ramo = progetto.Ramo(i);
        ramo.Descrizione("nome " + std::to_string(i) + " 'àè€' 😀\n\t\x01 fine");
        AnalisiMarginale& analisi = ramo.theAnalisiMarginale();
        const double strano = 1.0 + i / 7.0;
        analisi.LarghezzaIngresso(strano / 3.0);
        analisi.SemiLarghezza(strano / 9.0);
        analisi.LungSvasatura(strano * 3.0);
        analisi.AngoloConflitto(strano);
        analisi.RaggioCurvatura(strano * 2.0);
        analisi.DiametroInscritto(strano * 5.0);
        analisi.AttraversamentoPedonale(strano * 11.0);
        analisi.CondizioniEsterne(-strano * 13.0);
    }
    progetto.TempoIniziale(oraDelGiorno(7, 30));
    progetto.SegmentoTempo(oraDelGiorno(0, 5));
    progetto.TempoFinale(oraDelGiorno(8, 30));
    progetto.CAPProfessionista("00042");
    progetto.TipoAnalisi(1);
    progetto.TipoFlusso(0);
    for (std::int16_t i = 1; i <= progetto.NumeroRami(); ++i) {
        // Within the limits of the fields, and of more decimals than they show.
        const auto passo = static_cast<float>(i);
        progetto.Ramo(i).Descrizione("Strada è n. " + std::to_string(i));
        progetto.Ramo(i).LarghezzaIngresso(5.123457F + passo / 7.0F);
        progetto.Ramo(i).SemiLarghezza(3.005001F + passo / 11.0F);
        progetto.Ramo(i).LunghezzaSvasatura(1.0F + passo / 3.0F);
        progetto.Ramo(i).AngoloConflitto(passo / 13.0F);
        progetto.Ramo(i).RaggioIngresso(1234.567F / passo);
        progetto.Ramo(i).DiametroInscritto(13.5F + passo / 17.0F);
        DatiTraffico& traffico = progetto.Ramo(i).theDatiTraffico();
        traffico.Tempo1(oraDelGiorno(7, 30, 20));
        traffico.Tempo2(oraDelGiorno(8, 0, 10));
        traffico.Tempo3(oraDelGiorno(8, 30, 0));
    }
    std::string messaggio;
    bool esito = false;
    progetto.Save(banco.cartella.file("strano.klv"), messaggio, esito);
    ASSERT_TRUE(esito) << messaggio;
    banco.mostra();
    guardaTutto("strano.klv");
}

TEST_P(Invarianza, FiveHundredSwitchesLeaveNoMoreObjectsThanTen) {
    banco.mostra();
    banco.nuovo(7);
    Rotonda& progetto = banco.app.theRotonda();
    for (std::int16_t i = 1; i <= progetto.NumeroRami(); ++i) {
        // Times within the study: every window lets go at once.
        progetto.Ramo(i).theDatiTraffico().Tempo1(progetto.TempoIniziale());
        progetto.Ramo(i).theDatiTraffico().Tempo2(progetto.TempoIniziale());
        progetto.Ramo(i).theDatiTraffico().Tempo3(progetto.TempoFinale());
    }
    const std::vector<std::string> chiavi = nodiAperti(banco);
    const auto scambi = [&](std::size_t quanti) {
        for (std::size_t i = 0; i < quanti; ++i) {
            gesti::clicNodo(banco.albero(), chiavi[i % chiavi.size()]);
        }
        gesti::clicNodo(banco.albero(), chiavi.front());
        smaltisci();
        smaltisci();  // what the last layout of the frame has left is deleted too
    };
    const auto memoria = [] {
        std::ifstream stato("/proc/self/statm");
        long tutto = 0;
        long presente = 0;
        stato >> tutto >> presente;
        return presente * 4;
    };
    scambi(chiavi.size() * 10);
    const auto widget = QApplication::allWidgets().size();
    const auto oggetti = banco.vista.findChildren<QObject*>().size();
    const std::size_t finestre = banco.cornice.finestre.quanteVive();
    const long prima = memoria();
    scambi(500);
    EXPECT_EQ(QApplication::allWidgets().size(), widget);
    EXPECT_EQ(banco.vista.findChildren<QObject*>().size(), oggetti);
    EXPECT_EQ(banco.cornice.finestre.quanteVive(), finestre);
    std::cout << "resident memory: " << prima << " KiB before 500 switches, " << memoria() << " KiB after\n";
}

TEST_P(Invarianza, OpeningAndClosingProjectsLeavesNoWindowsBehind) {
    banco.mostra();
    const std::string nome = esempi().front();
    std::filesystem::copy_file(KELVO_SORGENTI "/assets/Progetti/" + nome, banco.cartella.file(nome));
    const auto giro = [&] {
        banco.apri(banco.cartella.file(nome));
        for (const std::string& chiave : nodiAperti(banco)) {
            gesti::clicNodo(banco.albero(), chiave);
        }
        banco.chiudi();
    };
    giro();
    giro();
    const auto widget = QApplication::allWidgets().size();
    const auto oggetti = banco.vista.findChildren<QObject*>().size();
    for (int i = 0; i < 10; ++i) {
        giro();
    }
    EXPECT_EQ(QApplication::allWidgets().size(), widget);
    EXPECT_EQ(banco.vista.findChildren<QObject*>().size(), oggetti);
}

INSTANTIATE_TEST_SUITE_P(Disposizioni, Invarianza, testing::Values(0, 1),
                         [](const auto& valore) { return valore.param == 0 ? "PerRamo" : "PerTipo"; });

}  // namespace
}  // namespace kelvo::prove
