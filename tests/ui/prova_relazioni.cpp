// The reports by key and mouse, from their own window and from those whose results they show.

#include <QtCore/QEvent>
#include <QtGui/QImage>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <array>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "reports/frmOPZrelazione.h"
#include "reports/modelloProva.h"
#include "reports/zip.h"
#include "results/frmCapacitaCodeRitardiRamo.h"
#include "results/frmDX.h"
#include "results/frmRisultatiAnalisiMarginale.h"
#include "ui/banco.h"

namespace kelvo::prove {
namespace {

using gesti::attendi;
using gesti::clic;
using gesti::smaltisci;
using gesti::tasto;

namespace fs = std::filesystem;

constexpr std::array<Qt::Key, 5> cifre{Qt::Key_1, Qt::Key_2, Qt::Key_3, Qt::Key_4, Qt::Key_5};
constexpr const char* terminata = "KELVO 2014 - Elaborazione terminata";

class Relazioni : public testing::Test {
protected:
    /// Opens an example, with the templates beside the program.
    void apri(const std::string& esempio = "Rotatoria_Viale_della_Stazione") {
        fs::copy(KELVO_CARTELLA "/Modelli", banco.cartella.file("Modelli"));
        banco.mostra();
        banco.apri(std::string{KELVO_SORGENTI} + "/assets/Progetti/" + esempio + ".klv");
        banco.messaggi.mostrati.clear();
        banco.dialogo.richieste.clear();
    }
    void apriRelazioni() {
        ASSERT_TRUE(gesti::menu(banco.vista, {"mnuRisultati", "mnuCompilaRelazione"}));
        ASSERT_TRUE(attendi([&] { return banco.nomeCorrente() == "frmOPZrelazione"; }));
        ASSERT_TRUE(gesti::davanti(banco.vista));
        ASSERT_TRUE(attendi([] { return gesti::fuoco().rfind("cmd", 0) == 0; })) << gesti::fuoco();
    }
    template <class F>
    F& finestra() {
        return dynamic_cast<F&>(*banco.cornice.gestione.corrente());
    }
    std::string uscita() const { return banco.cartella.file("Uscita.docx"); }
    /// Presses a key that makes a report, and chooses its file.
    void compila(Qt::Key chiave, Qt::KeyboardModifiers modi) {
        fs::remove(uscita());
        banco.messaggi.mostrati.clear();
        banco.dialogo.scelte.push_back(uscita());
        tasto(chiave, modi);
        attendi([&] { return !banco.messaggi.mostrati.empty(); });
    }
    /// The report that was saved, found sound.
    Letto letto() const {
        Letto relazione(contenuto(uscita()));
        EXPECT_EQ(relazione.errori(), "");
        EXPECT_EQ(relazione.testoParte("document").find('%' + std::string{"Titolo"}), std::string::npos);
        return relazione;
    }
    /// The pictures of a report, in their order.
    static std::vector<QImage> immagini(const std::string& documento) {
        std::vector<ooxml::Voce> voci;
        EXPECT_EQ(ooxml::leggiArchivio(documento, voci), "");
        std::vector<QImage> tutte;
        for (const ooxml::Voce& voce : voci) {
            if (voce.nome.ends_with(".png")) {
                tutte.push_back(QImage::fromData(QByteArray::fromStdString(voce.dati), "PNG")
                                    .convertToFormat(QImage::Format_RGB32));
            }
        }
        return tutte;
    }
    /// Pixels that are not the same; all of them where the sizes are not.
    static int diversi(const QImage& una, const QImage& altra) {
        if (una.size() != altra.size()) {
            return una.width() * una.height();
        }
        int quanti = 0;
        for (int y = 0; y < una.height(); ++y) {
            const auto* riga = reinterpret_cast<const QRgb*>(una.constScanLine(y));
            const auto* sua = reinterpret_cast<const QRgb*>(altra.constScanLine(y));
            for (int x = 0; x < una.width(); ++x) {
                quanti += riga[x] == sua[x] ? 0 : 1;
            }
        }
        return quanti;
    }
    static bool contiene(const Letto& relazione, const std::string& testo) {
        return relazione.testoParte("document").find(testo) != std::string::npos;
    }
    /// The closing question was asked and the report was opened.
    void controllaChiusura() {
        ASSERT_EQ(banco.messaggi.mostrati.size(), 1U) << banco.ultimo();
        const auto& domanda = banco.messaggi.mostrati.back();
        EXPECT_EQ(domanda.titolo, terminata);
        EXPECT_EQ(domanda.testo, "Relazione correttamente compilata.\r\nIl file è stato salvato nella directory: " +
                                     banco.cartella.percorso() + "\r\nAprire il file ora?");
        EXPECT_EQ(domanda.pulsanti, Pulsanti::siNo);
        EXPECT_EQ(domanda.icona, Icona::informazione);
        ASSERT_FALSE(banco.documenti.aperti.empty());
        EXPECT_EQ(banco.documenti.aperti.back(), uscita());
    }
    std::string nomeProposto() const { return banco.dialogo.richieste.back().nome; }
    QWidget* avanzamento() {
        auto* vista = banco.vista.area().findChild<QWidget*>(QStringLiteral("frmRelazioneProgressBar"));
        return vista != nullptr && vista->isVisible() ? vista : nullptr;
    }

    Banco banco;
};

TEST_F(Relazioni, TheMenuLeadsToTheWindowAndTheOptionsTellWhereTheKeyboardStarts) {
    apri();
    banco.stato.formaRelazione = 1;
    apriRelazioni();
    EXPECT_EQ(gesti::fuoco(), "cmd2");
    EXPECT_EQ(banco.oggetto<QLabel>("lblTitolo").text(),
              QStringLiteral("Nome Progetto: Rotatoria_Viale_della_Stazione"));
    EXPECT_EQ(finestra<frmOPZrelazione>().ctlHelp.pagina(), "RelazioneRisultati.htm");
    const auto& tasti = banco.cornice.ctlStatusBar.suggerimenti();
    ASSERT_EQ(tasti.size(), 4U);
    EXPECT_EQ(tasti[1], (SuggerimentoTasto{"Alt+1 ... 5", "scelta diretta"}));
    EXPECT_EQ(tasti[2], (SuggerimentoTasto{"Invio", "compila"}));
    tasto(Qt::Key_Tab);
    EXPECT_EQ(gesti::fuoco(), "cmd3");
    tasto(Qt::Key_Down);
    EXPECT_EQ(gesti::fuoco(), "cmd4");
    tasto(Qt::Key_Up);
    EXPECT_EQ(gesti::fuoco(), "cmd3");
    banco.entra("cmdModello");
    EXPECT_EQ(finestra<frmOPZrelazione>().ctlHelp.pagina(), "ModelloRelazione.htm");
}

TEST_F(Relazioni, AltAndItsNumberMakesEachReport) {
    const std::array<std::string, 5> prefissi{"Relazione_", "Relazione_ALLEGATI_", "Relazione_", "Relazione_",
                                              "Grafici_"};
    const std::array<std::string, 5> titoli{"Ipotesi progettuali", "Verifiche prestazionali",
                                            "Ipotesi progettuali e verifiche prestazionali", "Relazione di calcolo",
                                            "ANALISI GRANDEZZE PRESTAZIONALI"};
    apri();
    apriRelazioni();
    for (std::size_t i = 0; i < cifre.size(); ++i) {
        compila(cifre.at(i), Qt::AltModifier);
        controllaChiusura();
        EXPECT_EQ(nomeProposto(), prefissi.at(i) + "Rotatoria_Viale_della_Stazione_21-11-2026--10-30.docx");
        EXPECT_EQ(banco.dialogo.richieste.back().cartella, banco.cartella.file("Relazioni"));
        const Letto relazione = letto();
        EXPECT_EQ(relazione.blocchi().at(1), titoli.at(i));
        const bool piante = i == 0 || i == 2 || i == 3;
        EXPECT_EQ(relazione.conta("pic:pic"), i == 4 ? 20 : piante ? 1 : 0) << i;
        EXPECT_EQ(contiene(relazione, "Verifiche prestazionali - Ingresso"), i >= 1 && i <= 3) << i;
    }
    EXPECT_EQ(banco.dialogo.richieste.size(), 5U);
    EXPECT_EQ(banco.nomeCorrente(), "frmOPZrelazione");
}

TEST_F(Relazioni, EnterAndAClickPressAButton) {
    apri();
    banco.stato.formaRelazione = 0;
    apriRelazioni();
    compila(Qt::Key_Return, Qt::NoModifier);
    controllaChiusura();
    EXPECT_EQ(letto().blocchi().at(1), "Ipotesi progettuali");
    EXPECT_EQ(gesti::fuoco(), "cmd1") << "the keyboard is back on its button";
    fs::remove(uscita());
    banco.dialogo.scelte.push_back(uscita());
    clic(banco.oggetto("cmd2"));
    ASSERT_TRUE(attendi([&] { return fs::exists(uscita()); }));
    EXPECT_EQ(letto().blocchi().at(1), "Verifiche prestazionali");
}

TEST_F(Relazioni, TheProgressStandsBesideTheButtonsWhileARunGoesOn) {
    apri();
    for (const QSize& misura : {QSize(1366, 768), QSize(960, 600)}) {
        banco.vista.resize(misura);
        smaltisci();
        apriRelazioni();
        int viste = 0;
        banco.dialogo.allaRichiesta = [&] {
            ++viste;
            ASSERT_NE(avanzamento(), nullptr);
            EXPECT_EQ(avanzamento()->findChild<QLabel*>(QStringLiteral("lblAvanzamento"))->text(),
                      QStringLiteral("Passo 15 di 19"));
            QWidget& area = banco.vista.area();
            const QRect suo(avanzamento()->mapTo(&area, QPoint()), avanzamento()->size());
            EXPECT_TRUE(area.rect().contains(suo));
            for (const char* nome : {"cmd1", "cmd2", "cmd3", "cmd4", "cmd5"}) {
                QWidget& bottone = banco.oggetto(nome);
                EXPECT_FALSE(suo.intersects(QRect(bottone.mapTo(&area, QPoint()), bottone.size()))) << nome;
                EXPECT_FALSE(bottone.isEnabled()) << nome;
            }
        };
        compila(Qt::Key_3, Qt::AltModifier);
        EXPECT_EQ(viste, 1);
        smaltisci();
        EXPECT_EQ(avanzamento(), nullptr);
        EXPECT_TRUE(banco.oggetto("cmd1").isEnabled());
        banco.vai("keyMyProject");
    }
}

/// Counts how often a widget of a name was painted.
class Contapitture final : public QObject {
public:
    explicit Contapitture(const char* nome) : nome_(QString::fromLatin1(nome)) { qApp->installEventFilter(this); }
    int quante = 0;

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override {
        quante += evento->type() == QEvent::Paint && oggetto->objectName() == nome_ ? 1 : 0;
        return QObject::eventFilter(oggetto, evento);
    }

private:
    QString nome_;
};

TEST_F(Relazioni, EachStepIsPaintedWhileARunGoesOn) {
    apri();
    apriRelazioni();
    Contapitture barra("ctlProgressBar");
    int prima = 0;
    banco.dialogo.allaRichiesta = [&] { prima = barra.quante; };
    compila(Qt::Key_1, Qt::AltModifier);
    EXPECT_GE(prima, 12) << "of 15 steps, each longer than the last";
}

TEST_F(Relazioni, CancelEndsQuietlyAndLeavesNoFile) {
    apri();
    apriRelazioni();
    for (const Qt::Key chiave : cifre) {
        const std::size_t prima = banco.dialogo.richieste.size();
        tasto(chiave, Qt::AltModifier);
        ASSERT_TRUE(attendi([&] { return banco.dialogo.richieste.size() > prima; }));
        smaltisci();
        EXPECT_EQ(avanzamento(), nullptr);
    }
    EXPECT_TRUE(banco.messaggi.mostrati.empty()) << banco.ultimo();
    EXPECT_TRUE(fs::is_empty(banco.cartella.file("Relazioni")));
    EXPECT_TRUE(banco.documenti.aperti.empty());
    EXPECT_TRUE(banco.oggetto("cmd4").isEnabled());
}

TEST_F(Relazioni, AnsweredNoTheReportStaysClosedAndWithoutAProgramItIsToldWhereItIs) {
    apri();
    apriRelazioni();
    banco.messaggi.risposte.push_back(Risposta::no);
    compila(Qt::Key_1, Qt::AltModifier);
    EXPECT_TRUE(fs::exists(uscita()));
    EXPECT_TRUE(banco.documenti.aperti.empty());
    banco.documenti.riesce = false;
    compila(Qt::Key_1, Qt::AltModifier);
    ASSERT_TRUE(attendi([&] { return banco.messaggi.mostrati.size() == 2; }));
    EXPECT_EQ(banco.messaggi.mostrati[0].titolo, terminata);
    EXPECT_EQ(banco.messaggi.mostrati[1].testo, "Nessun programma del sistema ha aperto il file:\r\n" + uscita());
}

TEST_F(Relazioni, ACalculationThatFaultsMakesNoReportAndTellsWhy) {
    apri();
    DatiTraffico& traffico = banco.app.theRotonda().Ramo(2).theDatiTraffico();
    traffico.Tempo2(traffico.Tempo1());
    apriRelazioni();
    for (const Qt::Key chiave : {Qt::Key_2, Qt::Key_3, Qt::Key_4, Qt::Key_5}) {
        compila(chiave, Qt::AltModifier);
        ASSERT_EQ(banco.messaggi.mostrati.size(), 1U);
        EXPECT_NE(banco.messaggi.mostrati[0].titolo, terminata);
        EXPECT_FALSE(banco.ultimo().empty());
        EXPECT_FALSE(fs::exists(uscita()));
    }
    EXPECT_TRUE(banco.dialogo.richieste.empty());
    EXPECT_EQ(avanzamento(), nullptr);
    compila(Qt::Key_1, Qt::AltModifier);
    controllaChiusura();  // what has no results needs no calculation
}

TEST_F(Relazioni, ATargetThatCannotBeWrittenIsToldAndLeavesNothingBehind) {
    apri();
    apriRelazioni();
    fs::create_directory(uscita() + "-cartella");
    for (const std::string& dove : {banco.cartella.file("manca/Uscita.docx"), uscita() + "-cartella"}) {
        banco.messaggi.mostrati.clear();
        banco.dialogo.scelte.push_back(dove);
        tasto(Qt::Key_1, Qt::AltModifier);
        ASSERT_TRUE(attendi([&] { return !banco.messaggi.mostrati.empty(); }));
        ASSERT_EQ(banco.messaggi.mostrati.size(), 1U);
        EXPECT_NE(banco.messaggi.mostrati[0].titolo, terminata);
        EXPECT_TRUE(banco.documenti.aperti.empty());
        smaltisci();
        EXPECT_EQ(avanzamento(), nullptr);
    }
    EXPECT_TRUE(fs::is_empty(uscita() + "-cartella"));
    for (const auto& voce : fs::directory_iterator(banco.cartella.percorso())) {
        EXPECT_EQ(voce.path().extension().string().find("tmp"), std::string::npos) << voce.path();
    }
}

TEST_F(Relazioni, AStudyOfSaturationAloneHasNoChartsAndAllOtherReports) {
    apri("Rotatoria_Piazza_Italia");
    apriRelazioni();
    EXPECT_FALSE(banco.oggetto("cmd5").isEnabled());
    EXPECT_TRUE(banco.oggetto("lblSaturazione").isVisible());
    tasto(Qt::Key_5, Qt::AltModifier);
    smaltisci();
    EXPECT_TRUE(banco.dialogo.richieste.empty());
    compila(Qt::Key_4, Qt::AltModifier);
    controllaChiusura();
    EXPECT_FALSE(contiene(letto(), "Verifiche prestazionali - Ingresso"));
    EXPECT_FALSE(banco.oggetto("cmd5").isEnabled());
}

TEST_F(Relazioni, ATemplateOfTheUsersOwnIsChosenByItsButtonAndGivenBack) {
    apri();
    apriRelazioni();
    EXPECT_FALSE(banco.oggetto("cmdModelloKelvo").isVisible());
    const std::string modello = banco.cartella.file("Studio.dotx");
    scriviContenuto(modello, archivio(parti(prove::p("Progetto %NomefileProgetto%"))));
    banco.dialogo.scelte.push_back(modello);
    banco.entra("cmdModello");
    tasto(Qt::Key_Return);
    ASSERT_TRUE(attendi([&] { return banco.oggetto("cmdModelloKelvo").isVisible(); }));
    EXPECT_EQ(banco.oggetto<QLabel>("lblModello").text(), QStringLiteral("Modello: Studio.dotx"));
    compila(Qt::Key_1, Qt::AltModifier);
    ASSERT_TRUE(attendi([&] { return fs::exists(uscita()); }));
    EXPECT_EQ(letto().blocchi().front(), "Progetto Rotatoria_Viale_della_Stazione");
    clic(banco.oggetto("cmdModelloKelvo"));
    ASSERT_TRUE(attendi([&] { return !banco.oggetto("cmdModelloKelvo").isVisible(); }));
    EXPECT_EQ(banco.oggetto<QLabel>("lblModello").text(), QStringLiteral("Modelli: quelli di Kelvo"));
}

TEST_F(Relazioni, ThePDFIsTickedOnceForAllAndMadeBesideTheReport) {
    apri();
    apriRelazioni();
    auto& spunta = banco.oggetto<QAbstractButton>("chkPDF");
    ASSERT_TRUE(spunta.isEnabled());
    EXPECT_FALSE(banco.oggetto("lblPDF").isVisible());
    compila(Qt::Key_1, Qt::AltModifier);
    EXPECT_TRUE(banco.pdf.fatti.empty());
    banco.entra("chkPDF");
    tasto(Qt::Key_Space);
    ASSERT_TRUE(attendi([&] { return spunta.isChecked(); }));
    compila(Qt::Key_1, Qt::AltModifier);
    ASSERT_EQ(banco.pdf.fatti.size(), 1U);
    EXPECT_EQ(banco.pdf.fatti.front(), std::pair(uscita(), banco.cartella.file("Uscita.pdf")));
    EXPECT_TRUE(fs::exists(banco.cartella.file("Uscita.pdf")));
    banco.pdf.manca = "manca il programma d'ufficio";
    banco.vai("keyMyProject");
    apriRelazioni();
    EXPECT_FALSE(banco.oggetto("chkPDF").isEnabled());
    EXPECT_TRUE(banco.oggetto("lblPDF").isVisible());
}

TEST_F(Relazioni, TheResultWindowsLeadToTheirWindow) {
    apri();
    for (const char* chiave : {"keyCodeRitardi_Out", "keyCodeRitardi_Out2"}) {
        banco.vai(chiave);
        tasto(Qt::Key_R, Qt::ControlModifier);
        ASSERT_TRUE(attendi([&] { return banco.nomeCorrente() == "frmOPZrelazione"; })) << chiave;
        banco.vai("keyMyProject");
    }
    EXPECT_TRUE(banco.messaggi.mostrati.empty()) << banco.ultimo();
}

TEST_F(Relazioni, TheChartsAreDrawnAsInTheWindowOfAnEntry) {
    apri();
    apriRelazioni();
    compila(Qt::Key_5, Qt::AltModifier);
    const std::vector<QImage> barre = immagini(contenuto(uscita()));
    ASSERT_EQ(barre.size(), 20U) << "five charts of four entries";
    // The painter may set the edge of a letter a shade apart.
    constexpr int scarto = 50;
    compila(Qt::Key_5, Qt::AltModifier);
    const std::vector<QImage> ancora = immagini(contenuto(uscita()));
    ASSERT_EQ(ancora.size(), barre.size());
    for (std::size_t i = 0; i < barre.size(); ++i) {
        EXPECT_LE(diversi(ancora[i], barre[i]), scarto) << "the same look, the same report: " << i;
    }
    banco.vai("keyCodeRitardi_Out1");
    ASSERT_EQ(banco.nomeCorrente(), "frmCapacitaCodeRitardiRamo");
    finestra<frmCapacitaCodeRitardiRamo>().opzForma.clicca(0);
    apriRelazioni();
    compila(Qt::Key_5, Qt::AltModifier);
    const std::vector<QImage> linee = immagini(contenuto(uscita()));
    ASSERT_EQ(linee.size(), barre.size());
    for (std::size_t i = 0; i < barre.size(); ++i) {
        EXPECT_GT(diversi(linee[i], barre[i]), 100 * scarto) << "lines: " << i;
    }
    controllaChiusura();
}

TEST_F(Relazioni, TheComparisonOfTheEntriesMakesItsReport) {
    apri();
    banco.vai("keyConfronti");
    ASSERT_EQ(banco.nomeCorrente(), "frmConfronti");
    compila(Qt::Key_R, Qt::ControlModifier);
    controllaChiusura();
    EXPECT_EQ(nomeProposto(), "Analizzatore_Rotatoria_Viale_della_Stazione_21-11-2026--10-30.docx");
    const Letto relazione = letto();
    EXPECT_EQ(relazione.conta("pic:pic"), 1);
    for (const char* testo : {"ANALISI GRANDEZZE PRESTAZIONALI", "Confronto ingressi",
                              "Variabile prestazionale: Flusso di traffico [veic/h]", "Intervallo di tempo: "}) {
        EXPECT_TRUE(contiene(relazione, testo)) << testo;
    }
    EXPECT_EQ(banco.nomeCorrente(), "frmConfronti");
}

TEST_F(Relazioni, TheSensitivityMakesItsReportWithTableAndChart) {
    apri();
    Rotonda& rotonda = banco.app.theRotonda();
    rotonda.Ramo(2).theAnalisiMarginale().UsaLarghezzaIngresso(true);
    banco.cornice.LoadTreeView();
    banco.cornice.SetUpOpzioni();
    banco.vai("keyOttimizzazioneGeometrica2");
    ASSERT_EQ(banco.nomeCorrente(), "frmRisultatiAnalisiMarginale");
    tasto(Qt::Key_R, Qt::ControlModifier);
    ASSERT_TRUE(attendi([&] { return !banco.messaggi.mostrati.empty(); }));
    EXPECT_EQ(banco.ultimo(), "Attenzione! Selezionare una variabile");
    auto& sua = finestra<frmRisultatiAnalisiMarginale>();
    sua.opzVARIABILE.clicca(0);
    tasto(Qt::Key_F9);
    ASSERT_TRUE(attendi([&] { return !sua.griglie[0].testo(2, 4).empty(); }));
    compila(Qt::Key_R, Qt::ControlModifier);
    controllaChiusura();
    EXPECT_EQ(nomeProposto(), "Ottimizzazione_geometrica_Rotatoria_Viale_della_Stazione_21-11-2026--10-30.docx");
    const Letto relazione = letto();
    EXPECT_EQ(relazione.conta("pic:pic"), 1);
    for (const std::string& testo :
         {std::string{"OTTIMIZZAZIONE GEOMETRICA"}, std::string{"Analisi risultati"},
          "Denominazione ramo:  " + rotonda.Ramo(2).Descrizione(), std::string{"Variabile prestazionale:  Capacità"},
          std::string{"Grandezza geometrica: Larghezza ingresso"}, sua.griglie[0].testo(2, 4)}) {
        EXPECT_TRUE(contiene(relazione, testo)) << testo;
    }
}

TEST_F(Relazioni, TheRightTurnLanesGoIntoTheWholeReportWhereTheyAreToElseTheWindowOpens) {
    apri();
    banco.vai("keyCorsiaDX");
    tasto(Qt::Key_R, Qt::ControlModifier);
    ASSERT_TRUE(attendi([&] { return !banco.messaggi.mostrati.empty(); }));
    EXPECT_EQ(banco.ultimo(), "Attezione! Selezionare almeno una corsia di svolta a destra da verificare.");
    auto& corsie = finestra<frmDX>();
    corsie.listDX.clicca(0);
    corsie.chkStampaDX.clicca();
    compila(Qt::Key_R, Qt::ControlModifier);
    controllaChiusura();
    EXPECT_EQ(nomeProposto(), "Relazione_Rotatoria_Viale_della_Stazione_21-11-2026--10-30.docx");
    const Letto relazione = letto();
    EXPECT_TRUE(contiene(relazione, "Confronto senza e con (*) corsie di svolta a destra"));
    EXPECT_TRUE(contiene(relazione, "Posizione 1: (svolta Ramo A-->Ramo B) ==> "));
    EXPECT_TRUE(contiene(relazione, corsie.ctlGrid.testo(4, 1)));
    EXPECT_EQ(banco.nomeCorrente(), "frmDX");
    // Not for the report: their window comes up, and its whole report goes without the comparison.
    corsie.chkStampaDX.clicca();
    tasto(Qt::Key_R, Qt::ControlModifier);
    ASSERT_TRUE(attendi([&] { return banco.nomeCorrente() == "frmOPZrelazione"; }));
    ASSERT_TRUE(attendi([] { return gesti::fuoco() == "cmd4"; }));
    compila(Qt::Key_4, Qt::AltModifier);
    controllaChiusura();
    EXPECT_FALSE(contiene(letto(), "Confronto senza e con (*) corsie di svolta a destra"));
}

TEST_F(Relazioni, TheProjectIsNotChangedByAnyReport) {
    apri();
    const auto prima = istantanea(banco.app.theRotonda());
    apriRelazioni();
    for (const Qt::Key chiave : cifre) {
        compila(chiave, Qt::AltModifier);
    }
    EXPECT_EQ(istantanea(banco.app.theRotonda()), prima);
    EXPECT_FALSE(banco.cornice.modificato());
}

}  // namespace
}  // namespace kelvo::prove
