// The check-up by keyboard and mouse: findings and the way to their fields, messages, check list, papers.

#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLabel>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QToolButton>
#include <string>

#include "checkup/checkList.h"
#include "checkup/frmANALIZZATORE.h"
#include "ui/VistaGriglia.h"
#include "ui/banco.h"
#include "ui/checkup/VistaRiscontri.h"

namespace kelvo::prove {
namespace {

using gesti::attendi;
using gesti::smaltisci;
using gesti::tasto;

constexpr int si = frmANALIZZATORE::colonnaSI;
constexpr int no = frmANALIZZATORE::colonnaNO;

class CheckUp : public testing::Test {
protected:
    void nuovo(int rami = 4) {
        banco.mostra();
        banco.nuovo(rami);
    }
    void apri() {
        banco.vai("keyAnalizzatore");
        ASSERT_EQ(banco.nomeCorrente(), "frmANALIZZATORE");
    }
    Rotonda& rotonda() { return banco.app.theRotonda(); }
    frmANALIZZATORE& finestra() {
        return dynamic_cast<frmANALIZZATORE&>(*banco.cornice.finestre.viva("frmANALIZZATORE"));
    }
    ui::VistaRiscontri& albero(const char* nome = "ctlTreeAnalizzatore") {
        return banco.oggetto<ui::VistaRiscontri>(nome);
    }
    std::vector<std::string> schede() {
        std::vector<std::string> testi;
        const auto& linguette = banco.oggetto<QTabWidget>("TabStrip1");
        for (int i = 0; i < linguette.count(); ++i) {
            testi.push_back(linguette.tabText(i).toStdString());
        }
        return testi;
    }
    std::string parole(const char* nome) { return banco.oggetto<QLabel>(nome).text().toStdString(); }
    /// Shows the check list with the mouse and puts the keyboard on its first box.
    void apriCheckList() {
        QTabBar& linguette = *banco.oggetto<QTabWidget>("TabStrip2").tabBar();
        gesti::clic(linguette, linguette.tabRect(1).center());
        smaltisci();
        ASSERT_TRUE(banco.oggetto("ctlGrid").isVisible());
        banco.entra("ctlGrid");
        ASSERT_EQ(gesti::fuoco(), "ctlGrid");
    }
    /// A project in which the rules find nothing.
    void tuttoInOrdine() {
        Rotonda& r = rotonda();
        r.NomeFile("Prova");
        r.Data(banco.app.orologio.adesso());
        r.StatoAvanzamento("Progetto Definitivo");
        r.Localita("Borgo");
        r.Comune("Lucca");
        r.Provincia("LU");
        r.Note("nota");
        r.Titolo("Titolo");
        r.NomeProfessionista("Ing. Bianchi");
        r.IndirizzoProfessionista("Via Roma 1");
        r.CAPProfessionista("55100");
        r.CittaProfessionista("Lucca");
        r.ProvinciaProfessionista("LU");
        r.TelefonoProfessionista("0583 1");
        r.EMailProfessionista("a@b.it");
        for (std::int16_t i = 1; i <= r.NumeroRami(); ++i) {
            Ramo& ramo = r.Ramo(i);
            ramo.Descrizione("Via " + std::to_string(i));
            ramo.DiametroInscritto(45.0F);
            ramo.LarghezzaIngresso(4.5F);
            ramo.theDatiTraffico().FlussoTotale(90.0F);
            ramo.theDatiTraffico().FlussoOrario(90.0F);
            for (std::int16_t j = 1; j <= r.NumeroRami(); ++j) {
                r.MatriceSvolte(i == j ? 0.0F : 30.0F, i, j);
            }
        }
    }
    /// Every rule of the legs has something to say, and every window takes what it shows.
    void tuttoSbagliato() {
        for (std::int16_t i = 1; i <= rotonda().NumeroRami(); ++i) {
            Ramo& ramo = rotonda().Ramo(i);
            ramo.DiametroInscritto(13.0F + static_cast<float>(i));
            ramo.LarghezzaIngresso(12.0F);
            ramo.LunghezzaSvasatura(31.0F);
            ramo.SemiLarghezza(11.0F);
            ramo.theDatiTraffico().FlussoTotale(i == 1 ? 0.0F : 2000.0F);
            ramo.theDatiTraffico().FlussoOrario(2000.0F);
            ramo.theComposizioneTraffico().Autovetture(50.0F);
            ramo.theComposizioneTraffico().Autotreni(50.0F);
            rotonda().MatriceSvolte(50.0F, i, static_cast<std::int16_t>(i % rotonda().NumeroRami() + 1));
        }
        rotonda().Data(rotonda().Data() - 400.0);
    }

    Banco banco;
};

TEST_F(CheckUp, TheTabsCountTheFindingsAndTheTreesShowThem) {
    nuovo();
    tuttoSbagliato();
    apri();
    const auto& esito = finestra();
    const int tutti = static_cast<int>(esito.ctlTreeAnalizzatore.chiavi().size()) - 1;
    EXPECT_GT(tutti, 30);
    int somma = 0;
    int scheda = 1;
    for (const char* nome : {"ctlTreeGREEN", "ctlTreeYELLOW", "ctlTreeRED"}) {
        const int suoi = albero(nome).topLevelItem(0)->childCount();
        EXPECT_GT(suoi, 0) << nome;
        EXPECT_TRUE(schede().at(static_cast<std::size_t>(scheda)).starts_with("[" + std::to_string(suoi) + "] "))
            << nome;
        EXPECT_FALSE(banco.oggetto<QTabWidget>("TabStrip1").tabIcon(scheda).isNull()) << nome;
        somma += suoi;
        ++scheda;
    }
    EXPECT_EQ(somma, tutti);
    EXPECT_EQ(schede().at(0), "[" + std::to_string(tutti) + "] Report");
    EXPECT_EQ(albero().topLevelItem(0)->childCount(), tutti);
    EXPECT_FALSE(albero().topLevelItem(0)->child(0)->icon(0).isNull());
}

TEST_F(CheckUp, EveryFindingLeadsByEnterToAFieldThatStandsInItsWindow) {
    nuovo();
    tuttoSbagliato();
    apri();
    const int quanti = albero().topLevelItem(0)->childCount();
    for (int i = 0; i < quanti; ++i) {
        gesti::clicNodo(banco.albero(), "keyAnalizzatore");
        ASSERT_TRUE(attendi([&] { return banco.nomeCorrente() == "frmANALIZZATORE"; }))
            << banco.nomeCorrente() << " keeps the user: " << banco.ultimo() << banco.cornice.ctlStatusBar.avviso();
        smaltisci();
        QTreeWidgetItem* riga = albero().topLevelItem(0)->child(i);
        const std::string chiave = ui::VistaRiscontri::chiaveDi(riga);
        const Meta meta = finestra().riscontro(finestra().ctlTreeAnalizzatore, chiave)->meta;
        banco.entra("ctlTreeAnalizzatore");
        albero().setCurrentItem(riga);
        tasto(Qt::Key_Return);
        smaltisci();
        ASSERT_NE(banco.nomeCorrente(), "frmANALIZZATORE") << riga->text(0).toStdString();
        EXPECT_EQ(gesti::selezionato(banco.albero()), meta.chiave);
        ASSERT_NE(banco.cornice.gestione.corrente()->fuoco(), nullptr) << meta.chiave << " " << meta.campo;
        EXPECT_EQ(banco.cornice.gestione.corrente()->fuoco()->nome(), meta.campo) << meta.chiave;
        EXPECT_EQ(gesti::fuoco(), meta.campo) << meta.chiave;
    }
}

TEST_F(CheckUp, AFindingOnAMatrixRowPutsTheCursorThere) {
    nuovo();
    tuttoInOrdine();
    rotonda().MatriceSvolte(33.0F, 3, 1);
    apri();
    EXPECT_EQ(schede().at(0), "[1] Report");
    banco.entra("ctlTreeAnalizzatore");
    tasto(Qt::Key_Return);
    smaltisci();
    ASSERT_EQ(banco.nomeCorrente(), "frmMatriceSvolte");
    const auto* griglia = dynamic_cast<const Griglia*>(banco.cornice.gestione.corrente()->fuoco());
    ASSERT_NE(griglia, nullptr);
    EXPECT_EQ(griglia->corrente().riga, 3);
}

TEST_F(CheckUp, AClickShowsTheMessageAndEscapeClosesIt) {
    nuovo();
    tuttoInOrdine();
    rotonda().Comune("");
    apri();
    std::string gruppo;
    std::string testo;
    std::string titolo;
    gesti::AlModale messaggio("frmCheckUpMessaggio", [&](QWidget& dialogo) {
        titolo = dialogo.windowTitle().toStdString();
        gruppo = dialogo.findChild<QLabel*>(QStringLiteral("lblGruppo"))->text().toStdString();
        auto* parole = dialogo.findChild<QLabel*>(QStringLiteral("lblMessaggio"));
        testo = parole->text().toStdString();
        EXPECT_EQ(parole->font().pointSizeF(), 14.0);
        tasto(Qt::Key_Escape);
    });
    const QRect riga = albero().visualItemRect(albero().topLevelItem(0)->child(0));
    gesti::clic(*albero().viewport(), riga.center());
    ASSERT_TRUE(attendi([&] { return messaggio.avvenuto(); }));
    EXPECT_FALSE(messaggio.rimasto());
    EXPECT_EQ(titolo, "Kelvo 1.0 - CheckUp Rotatoria messaggio - Prova");
    EXPECT_EQ(gruppo, "Messaggi di Informazione : ");
    EXPECT_EQ(testo, "Anagrafica rotatoria:campo 'Comune' non inserito.");
    EXPECT_EQ(banco.nomeCorrente(), "frmANALIZZATORE");
}

TEST_F(CheckUp, EnterInTheMessageLeadsToTheField) {
    nuovo();
    tuttoInOrdine();
    rotonda().Comune("");
    apri();
    gesti::AlModale messaggio("frmCheckUpMessaggio", [&](QWidget& /*dialogo*/) { tasto(Qt::Key_Return); });
    banco.entra("ctlTreeAnalizzatore");
    tasto(Qt::Key_Space);
    ASSERT_TRUE(attendi([&] { return messaggio.avvenuto() && banco.nomeCorrente() == "frmAnagraficaRotonda"; }));
    EXPECT_FALSE(messaggio.rimasto());
    ASSERT_TRUE(gesti::davanti(banco.vista));
    EXPECT_TRUE(attendi([] { return gesti::fuoco() == "txtComune"; })) << gesti::fuoco();
}

TEST_F(CheckUp, TheRootOpensNothingAndLeadsNowhere) {
    nuovo();
    apri();
    banco.entra("ctlTreeAnalizzatore");
    tasto(Qt::Key_Home);
    EXPECT_EQ(ui::VistaRiscontri::chiaveDi(albero().currentItem()), "keyMyProject");
    tasto(Qt::Key_Return);
    tasto(Qt::Key_Space);
    smaltisci();
    EXPECT_EQ(banco.nomeCorrente(), "frmANALIZZATORE");
    EXPECT_TRUE(banco.messaggi.mostrati.empty());
}

TEST_F(CheckUp, AProjectInOrderHasNoFindings) {
    nuovo();
    tuttoInOrdine();
    apri();
    EXPECT_EQ(schede(), (std::vector<std::string>{"[0] Report", "[0] Messaggi di informazione",
                                                  "[0] Messaggi di verifica", "[0] Messaggi di errore"}));
    EXPECT_EQ(albero().topLevelItem(0)->childCount(), 0);
}

TEST_F(CheckUp, TheReportIsMarkedOnceTheProjectHasChangedAndF9RunsItAnew) {
    nuovo();
    tuttoInOrdine();
    rotonda().Comune("");
    apri();
    EXPECT_FALSE(finestra().segno.visibile());
    banco.vai("keyAnagraficaRotonda");
    banco.entra("txtComune");
    gesti::digita("Lucca");
    apri();
    EXPECT_TRUE(finestra().segno.visibile());
    EXPECT_EQ(schede().at(0), "[1] Report");
    tasto(Qt::Key_F9);
    EXPECT_FALSE(finestra().segno.visibile());
    EXPECT_EQ(schede().at(0), "[0] Report");
}

TEST_F(CheckUp, LongFindingsAreBrokenToTheWidth) {
    nuovo();
    tuttoSbagliato();
    apri();
    smaltisci();
    int alte = 0;
    for (int i = 0; i < albero().topLevelItem(0)->childCount(); ++i) {
        const QRect riga = albero().visualItemRect(albero().topLevelItem(0)->child(i));
        EXPECT_LE(riga.right(), albero().viewport()->width());
        alte += riga.height() > 40 ? 1 : 0;
    }
    EXPECT_GT(alte, 0);
    EXPECT_FALSE(albero().horizontalScrollBar()->isVisible());
}

TEST_F(CheckUp, TheCheckListIsAnsweredByTheKeyboardAlone) {
    nuovo();
    apri();
    apriCheckList();
    EXPECT_EQ(finestra().ctlGrid.corrente(), (Posto{3, si}));
    tasto(Qt::Key_Space);
    EXPECT_EQ(parole("lblIndice"), "Risposte inserite: 1 di 29   -   Indice: 6");
    tasto(Qt::Key_Right);
    tasto(Qt::Key_Space);
    EXPECT_EQ(parole("lblIndice"), "Risposte inserite: 1 di 29   -   Indice: -8");
    EXPECT_TRUE(banco.oggetto<QLabel>("lblCopertina").isVisible());
    tasto(Qt::Key_Left);
    for (int i = 0; i < 29; ++i) {
        tasto(Qt::Key_Space);
        tasto(Qt::Key_Down);
    }
    EXPECT_EQ(parole("lblIndice"), "Risposte inserite: 29 di 29   -   Indice: 101");
    EXPECT_FALSE(banco.oggetto<QLabel>("lblCopertina").isVisible());
    EXPECT_EQ(parole("lblSenzaLivello"), "L'indice 101 non rientra in alcun livello.");
    EXPECT_EQ(parole("lblCommento"), "");
    tasto(Qt::Key_Right);
    tasto(Qt::Key_Space);  // the last question: 2 less
    EXPECT_EQ(parole("lblIndice"), "Risposte inserite: 29 di 29   -   Indice: 99");
    EXPECT_EQ(parole("lblLivello7"), " LIVELLO ECCELLENTE: ");
    EXPECT_EQ(parole("lblSenzaLivello"), "");
    EXPECT_EQ(parole("lblCommento"), std::string{fasceIndice[6].commento});
}

TEST_F(CheckUp, SectionsAreTurnedByKeysAndByTheirArrows) {
    nuovo();
    apri();
    apriCheckList();
    const std::array righe{8, 21, 28, 34, 34};
    for (const int riga : righe) {
        tasto(Qt::Key_PageDown, Qt::ControlModifier);
        smaltisci();
        EXPECT_EQ(finestra().ctlGrid.rigaAlta(), riga);
    }
    EXPECT_EQ(parole("lblSezione"), "Analisi Check List Progetto - Interferenza utenza debole e sicurezza generale");
    EXPECT_EQ(finestra().ctlGrid.corrente(), (Posto{39, si}));
    EXPECT_FALSE(banco.oggetto<QAbstractButton>("cmdAVANTIsezione").isEnabled());
    for (const int riga : {28, 21, 8, 0, 0}) {
        auto& freccia = banco.oggetto<QAbstractButton>("cmdINDIETROsezione");
        gesti::clic(freccia, freccia.rect().center());
        smaltisci();
        EXPECT_EQ(finestra().ctlGrid.rigaAlta(), riga);
    }
    tasto(Qt::Key_PageDown, Qt::ControlModifier);
    tasto(Qt::Key_PageUp, Qt::ControlModifier);
    smaltisci();
    EXPECT_EQ(finestra().ctlGrid.rigaAlta(), 0);
    EXPECT_EQ(banco.oggetto("cmdAVANTIsezione").toolTip().toStdString(), "Sezione seguente (Ctrl+PagGiù)");
}

TEST_F(CheckUp, ABoxIsTickedByTheMouse) {
    nuovo();
    apri();
    apriCheckList();
    auto& griglia = banco.oggetto<ui::VistaGriglia>("ctlGrid");
    gesti::clic(*griglia.viewport(), griglia.posto({4, no}).center() - griglia.viewport()->pos());
    EXPECT_EQ(parole("lblIndice"), "Risposte inserite: 1 di 29   -   Indice: -2");
    EXPECT_EQ(finestra().casella({4, no}), true);
    gesti::clic(*griglia.viewport(), griglia.posto({1, si}).center() - griglia.viewport()->pos());
    EXPECT_EQ(finestra().risposte(), 1);
}

TEST_F(CheckUp, AnswersAreKeptWhileTheWindowLivesAndGoWithTheProject) {
    nuovo();
    apri();
    apriCheckList();
    tasto(Qt::Key_Space);
    banco.vai("keyAnagraficaRotonda");
    banco.vai("keyAnalizzatore");
    EXPECT_EQ(finestra().risposte(), 1);
    EXPECT_TRUE(banco.oggetto("ctlGrid").isVisible()) << "the page stays in view";
    banco.chiudi();
    banco.nuovo(3);
    apri();
    EXPECT_EQ(finestra().risposte(), 0);
    EXPECT_FALSE(banco.oggetto("ctlGrid").isVisible());
}

TEST_F(CheckUp, ButtonsOfTheToolBarPrintAndSave) {
    nuovo();
    apri();
    const auto premi = [&](const char* chiave) {
        auto* azione = banco.vista.vistaCorrente()->findChild<QAction*>(QString::fromLatin1(chiave));
        ASSERT_NE(azione, nullptr) << chiave;
        EXPECT_FALSE(azione->icon().isNull()) << chiave;
        azione->trigger();
    };
    premi("keyXStampa");
    EXPECT_EQ(banco.stampa.stampati.size(), 1U);
    banco.dialogo.scelte.push_back(banco.cartella.file("Controllo.pdf"));
    premi("keyXPDF");
    EXPECT_EQ(contenuto(banco.cartella.file("Controllo.pdf")), "pagine");
}

TEST_F(CheckUp, WhereNothingOpensTheReportItsTextIsShown) {
    nuovo();
    apri();
    banco.documenti.riesce = false;
    std::string mostrato;
    gesti::AlModale visore("frmAnteprimaTesto", [&](QWidget& dialogo) {
        mostrato = dialogo.findChild<QLabel*>(QStringLiteral("lblPercorso"))->text().toStdString();
        tasto(Qt::Key_Escape);
    });
    tasto(Qt::Key_P, Qt::ControlModifier);
    ASSERT_TRUE(attendi([&] { return visore.avvenuto(); }));
    EXPECT_FALSE(visore.rimasto());
    EXPECT_TRUE(mostrato.ends_with("Report.txt")) << mostrato;
}

}  // namespace
}  // namespace kelvo::prove
