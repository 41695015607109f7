// The check-up by keyboard and mouse: findings and the way to their fields, messages, check list, papers.

#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QToolButton>
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <set>
#include <string>

#include "checkup/checkList.h"
#include "checkup/frmANALIZZATORE.h"
#include "ui/VistaGriglia.h"
#include "ui/banco.h"
#include "ui/checkup/VistaRiscontri.h"
#include "ui/stile.h"

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

    /// The keyboard is on the widget of a control or on a part of it.
    static bool fuocoIn(const std::string& campo) {
        const QWidget* oggetto = QApplication::focusWidget();
        while (oggetto != nullptr && oggetto->objectName().toStdString() != campo) {
            oggetto = oggetto->parentWidget();
        }
        return oggetto != nullptr;
    }
    /// Goes from every finding to its field by Enter; the places that they lead to.
    std::set<std::string> percorriTutti() {
        std::set<std::string> mete;
        const int quanti = albero().topLevelItem(0)->childCount();
        for (int i = 0; i < quanti; ++i) {
            mete.insert(percorri(i));
            if (testing::Test::HasFatalFailure()) {
                break;
            }
        }
        return mete;
    }
    std::string percorri(int quale) {
        std::string dove;
        const auto prova = [&] {
            gesti::clicNodo(banco.albero(), "keyAnalizzatore");
            ASSERT_TRUE(attendi([&] { return banco.nomeCorrente() == "frmANALIZZATORE"; }))
                << banco.nomeCorrente() << " keeps the user: " << banco.ultimo() << banco.cornice.ctlStatusBar.avviso();
            smaltisci();
            QTreeWidgetItem* riga = albero().topLevelItem(0)->child(quale);
            const std::string chiave = ui::VistaRiscontri::chiaveDi(riga);
            const Meta meta = finestra().riscontro(finestra().ctlTreeAnalizzatore, chiave)->meta;
            dove = meta.chiave + " " + meta.campo;
            banco.entra("ctlTreeAnalizzatore");
            albero().setCurrentItem(riga);
            tasto(Qt::Key_Return);
            smaltisci();
            ASSERT_NE(banco.nomeCorrente(), "frmANALIZZATORE") << riga->text(0).toStdString();
            EXPECT_EQ(gesti::selezionato(banco.albero()), meta.chiave);
            const Controllo* campo = banco.cornice.gestione.corrente()->fuoco();
            ASSERT_NE(campo, nullptr) << dove;
            EXPECT_EQ(campo->nome(), meta.campo) << meta.chiave;
            EXPECT_TRUE(fuocoIn(meta.campo)) << dove << ": " << gesti::fuoco();
            if (const auto* griglia = dynamic_cast<const Griglia*>(campo); griglia != nullptr && meta.riga > 0) {
                EXPECT_EQ(griglia->corrente().riga, meta.riga) << dove;
            }
        };
        prova();
        return dove;
    }
    static bool vicino(const QColor& a, const QColor& b) {
        constexpr int scarto = 3;  // of a smooth edge
        return std::abs(a.red() - b.red()) <= scarto && std::abs(a.green() - b.green()) <= scarto &&
               std::abs(a.blue() - b.blue()) <= scarto;
    }
    /// A cell of the check list as the screen shows it: pixels of a colour in its box, which is 15 wide, and the colour
    /// beside the tick.
    struct CasellaVista {
        QColor fondo;
        int bianchi = 0;
        int orlo = 0;
    };
    CasellaVista guarda(Posto cella) {
        auto& griglia = banco.oggetto<ui::VistaGriglia>("ctlGrid");
        const QImage foto = griglia.grab().toImage();
        const double scala = foto.devicePixelRatio();
        const QPoint centro = griglia.posto(cella).center();
        const auto colore = [&](int dx, int dy) {
            return foto.pixelColor(static_cast<int>(std::lround((centro.x() + dx) * scala)),
                                   static_cast<int>(std::lround((centro.y() + dy) * scala)));
        };
        CasellaVista vista{.fondo = colore(-4, -4)};
        for (int dx = -8; dx <= 8; ++dx) {
            for (int dy = -8; dy <= 8; ++dy) {
                const bool dentro = std::max(std::abs(dx), std::abs(dy)) <= 5;
                vista.bianchi += dentro && colore(dx, dy).lightness() > 200 ? 1 : 0;
                vista.orlo += !dentro && vicino(colore(dx, dy), ui::qcolore(tinta::bordoCampo)) ? 1 : 0;
            }
        }
        return vista;
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
    const auto mete = percorriTutti();
    for (const char* meta : {"keyDatiTraffico1 txtFlussoTempo1", "keyDatiTraffico4 txtFlussoTempo2",
                             "keyMatriceSvolte ctlGrid", "keyComposizioneTraffico4 txtAutotreni"}) {
        EXPECT_TRUE(mete.contains(meta)) << meta;
    }
}

TEST_F(CheckUp, OfAStudyOfTheSaturationInPerCentEveryFindingLeadsToItsFieldToo) {
    nuovo();
    tuttoSbagliato();
    rotonda().TipoAnalisi(0);
    rotonda().TipoMatriceSvolte(1);
    banco.cornice.SetUpOpzioni();
    const std::string ini = banco.app.theAmbiente.PercorsoIni();
    std::string scritto = contenuto(ini);
    for (const auto& [prima, dopo] :
         {std::pair{"Autoarticolati=2,5", "Autoarticolati=3"}, std::pair{"Motocicli=0,8", "Motocicli=0,5"}}) {
        const auto posto = scritto.find(prima);
        ASSERT_NE(posto, std::string::npos) << prima;
        scritto.replace(posto, std::string{prima}.size(), dopo);
    }
    scriviContenuto(ini, scritto);
    apri();
    const auto mete = percorriTutti();
    for (const char* meta : {"keyOpzioni grpTipoAnalisi", "keyOpzioni txtAutoarticolati", "keyOpzioni txtMotocicli",
                             "keyMatriceSvolte ctlGrid", "keyComposizioneTraffico1 txtAutoarticolati"}) {
        EXPECT_TRUE(mete.contains(meta)) << meta;
    }
    EXPECT_FALSE(mete.contains("keyOpzioni txtCamper"));
}

TEST_F(CheckUp, OfAStudyBySegmentsEveryFindingLeadsToItsTableToo) {
    nuovo();
    tuttoSbagliato();
    rotonda().TipoAnalisi(2);
    rotonda().TipoFlusso(1);
    banco.cornice.SetUpOpzioni();
    apri();
    const auto mete = percorriTutti();
    for (const char* meta : {"keyDatiTraffico1 ctlGrid", "keyDatiTraffico4 ctlGrid", "keyMatriceSvolte ctlGrid",
                             "keyComposizioneTraffico1 ctlGrid", "keyComposizioneTraffico4 ctlGrid"}) {
        EXPECT_TRUE(mete.contains(meta)) << meta;
    }
    EXPECT_FALSE(mete.contains("keyDatiTraffico1 txtFlussoTempo1"));
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

TEST_F(CheckUp, ThePictureOfTheMessageClosesIt) {
    nuovo();
    tuttoInOrdine();
    rotonda().Comune("");
    apri();
    gesti::AlModale messaggio("frmCheckUpMessaggio", [&](QWidget& dialogo) {
        auto* chiudi = dialogo.findChild<QAbstractButton*>(QStringLiteral("ImageCHIUDI"));
        ASSERT_NE(chiudi, nullptr);
        EXPECT_FALSE(chiudi->icon().isNull());
        gesti::clic(*chiudi, chiudi->rect().center());
    });
    banco.entra("ctlTreeAnalizzatore");
    tasto(Qt::Key_Space);
    ASSERT_TRUE(attendi([&] { return messaggio.avvenuto(); }));
    EXPECT_FALSE(messaggio.rimasto());
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

TEST_F(CheckUp, InTheSmallestWindowTooTheSectionsStandOnTop) {
    nuovo();
    apri();
    apriCheckList();
    for (std::size_t r = 0; r < righeCheckList.size(); ++r) {
        finestra().ctlGrid.clic(static_cast<int>(r), no);
    }
    finestra().ctlGrid.corrente({3, si});
    ASSERT_FALSE(parole("lblCommento").empty());
    const auto& griglia = banco.oggetto<ui::VistaGriglia>("ctlGrid");
    const auto premi = [&](const char* nome) {
        auto& freccia = banco.oggetto<QAbstractButton>(nome);
        gesti::clic(freccia, freccia.rect().center());
        smaltisci();
    };
    for (const QSize misura : {QSize(ui::misura::larghezzaMinima, ui::misura::altezzaMinima), QSize(1366, 768)}) {
        banco.vista.resize(misura);
        smaltisci();
        for (int i = 0; i < 6; ++i) {
            premi("cmdINDIETROsezione");
        }
        EXPECT_EQ(griglia.rowAt(0), 0) << misura.height();
        for (const int riga : {8, 21, 28, 34}) {
            premi("cmdAVANTIsezione");
            EXPECT_EQ(finestra().ctlGrid.rigaAlta(), riga) << misura.height();
            EXPECT_EQ(griglia.rowAt(0), riga) << misura.height();
        }
        for (const int riga : {28, 21, 8, 0}) {
            premi("cmdINDIETROsezione");
            EXPECT_EQ(finestra().ctlGrid.rigaAlta(), riga) << misura.height();
            EXPECT_EQ(griglia.rowAt(0), riga) << misura.height();
        }
    }
}

TEST_F(CheckUp, TheBoxesAreDrawnEmptyAndTicked) {
    nuovo();
    apri();
    apriCheckList();
    const CasellaVista prima = guarda({4, no});
    EXPECT_EQ(prima.fondo, QColor(Qt::white));
    EXPECT_GT(prima.orlo, 30);
    auto& griglia = banco.oggetto<ui::VistaGriglia>("ctlGrid");
    gesti::clic(*griglia.viewport(), griglia.posto({4, no}).center() - griglia.viewport()->pos());
    smaltisci();
    const CasellaVista spuntata = guarda({4, no});
    EXPECT_TRUE(vicino(spuntata.fondo, ui::qcolore(tinta::principale))) << spuntata.fondo.name().toStdString();
    EXPECT_GT(spuntata.bianchi, 5) << "the tick";
    EXPECT_LT(spuntata.bianchi, 60);
    EXPECT_EQ(spuntata.orlo, 0);
    const CasellaVista vuota = guarda({4, si});
    EXPECT_EQ(vuota.fondo, QColor(Qt::white));
    EXPECT_EQ(vuota.bianchi, 121) << "nothing in it";
    EXPECT_GT(vuota.orlo, 30);
    EXPECT_EQ(griglia.model()->index(4, no).data(Qt::AccessibleTextRole).toString(), QStringLiteral("X"));
    EXPECT_EQ(griglia.model()->index(4, no).data().toString(), QStringLiteral("X"));
    EXPECT_EQ(griglia.model()->index(4, si).data().toString(), QString());
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
