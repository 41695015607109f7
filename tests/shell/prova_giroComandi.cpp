#include <fmt/format.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "comune/appunti.h"
#include "comune/fintiShell.h"
#include "comune/stampaFinta.h"
#include "results/PiantaLivelli.h"
#include "shell/barraPrincipale.h"
#include "shell/menuPrincipale.h"
#include "shell/servizi/Grafico.h"
#include "shell/servizi/Griglia.h"

namespace kelvo::prove::shell {
namespace {

namespace fs = std::filesystem;

/// Documents that the build makes where it makes the guide.
const std::set<std::string> conLaGuida{"UserGuide/UserGuide.pdf", "UserGuide/DM19-04-06.pdf",
                                       "Support/SW_KelvoCAD_2010.pdf"};
constexpr bool guida = KELVO_CON_GUIDA != 0;

/// The program with its real windows and everything around it played.
class Programma : public ShellFinta {
public:
    explicit Programma(int layout) {
        disposizione(layout);
        app.appunti = &appunti;
        for (const char* nome : {"Modelli", "Support"}) {
            fs::create_directory_symlink(std::string{KELVO_CARTELLA "/"} + nome, cartella.file(nome));
        }
        ServiziFinestre servizi = finti.servizi();
        servizi.stampa = &stampa;
        servizi.foglio = [this](const std::string& percorso) { appunti.testo += percorso; };
        registraFinestre(cornice.finestre, servizi);
        cornice.Load();
    }
    /// The windows go before what they were handed.
    ~Programma() { cornice.finestre.distruggi(); }
    Programma(const Programma&) = delete;
    Programma& operator=(const Programma&) = delete;
    /// A project of three legs, with results over time, its own file and every window open to the tree.
    void progetto() {
        nuovo(3);
        Rotonda& rotonda = app.theRotonda();
        rotonda.TipoAnalisi(1);
        rotonda.OttimizzazioneGeometrica(true);
        for (std::int16_t i = 1; i <= 3; ++i) {
            rotonda.Ramo(i).theAnalisiMarginale().UsaSemiLarghezza(true);
            rotonda.Ramo(i).theDatiTraffico().FlussoTempo2(5.0F);
            rotonda.MatriceSvolte(100.0F, i, static_cast<std::int16_t>(i % 3 + 1));
        }
        rotonda.Comune("Forlì");
        cornice.SetUpOpzioni();
        cornice.LoadTreeView();
        // A save and what it asks for are answered by Cancel, questions by No.
        dialogo.scelte.clear();
    }
    /// All that can be seen of what a command did.
    std::string traccia() {
        const Finestra* corrente = cornice.gestione.corrente();
        return fmt::format("{}|{}|{}|{}|{}|{}|{}|{}|{}|{}|{}|{}|{}|{}|{}", corrente == nullptr ? "" : corrente->nome(),
                           superficie.modali.size(), superficie.aiuti.size(), superficie.passi.size(),
                           superficie.mostrate.size(), dialogo.richieste.size(), documenti.aperti.size(),
                           finti.documenti.aperti.size(), finti.documenti.avviati.size(), messaggi.mostrati.size(),
                           finti.collegate.passi.size() + finti.anteprima.richieste.size(),
                           stampa.salvati.size() + stampa.stampati.size(), appunti.testo, superficie.terminata,
                           cornice.ctlStatusBar.avviso());
    }
    /// The documents that were opened stand in the installation.
    void documentiConsegnati(const std::string& da) {
        for (const auto& aperti : {documenti.aperti, finti.documenti.aperti}) {
            for (std::string percorso : aperti) {
                std::erase(percorso, '"');
                const std::string relativo = percorso.substr(std::min(percorso.size(), cartella.percorso().size() + 1));
                const bool consegnato =
                    fs::is_regular_file(percorso) || fs::is_regular_file(KELVO_CARTELLA "/" + relativo);
                EXPECT_TRUE(consegnato || (!guida && conLaGuida.count(relativo) == 1)) << da << " opens " << relativo;
            }
        }
        documenti.aperti.clear();
        finti.documenti.aperti.clear();
    }
    /// Nothing of what was done raised a fault.
    void senzaGuasti(const std::string& da) {
        for (const auto& detto : messaggi.mostrati) {
            if (detto.testo == "Questo programma non può disegnare") {
                continue;  // there is no painter here
            }
            EXPECT_EQ(detto.titolo.find(':'), std::string::npos) << da << ": " << detto.titolo << " " << detto.testo;
        }
    }

    ServiziFinestreFinti finti;
    StampaFinta stampa;
    AppuntiFinti appunti;
};

/// Keys of the entries of the menus, submenus and separators left out, as they stand now.
std::vector<MenuChiavi::Voce> vociPremibili(const MenuChiavi& menu) {
    std::vector<MenuChiavi::Voce> voci;
    for (const MenuChiavi::Voce& voce : menu.voci()) {
        if (voce.testo != "-" && !voce.padre.empty() && menu.figli(voce.chiave).empty()) {
            voci.push_back(voce);
        }
    }
    return voci;
}

class GiroComandi : public testing::TestWithParam<int> {};

TEST_P(GiroComandi, EveryEntryOfTheMenuLeadsSomewhereWithAProjectOpen) {
    std::vector<std::string> chiavi;
    {
        Programma p(GetParam());
        p.progetto();
        for (const MenuChiavi::Voce& voce : vociPremibili(p.cornice.ctlMenu)) {
            chiavi.push_back(voce.chiave);
        }
    }
    EXPECT_GT(chiavi.size(), 30U);
    for (const std::string& chiave : chiavi) {
        Programma p(GetParam());
        p.progetto();
        const MenuChiavi::Voce voce = p.cornice.ctlMenu.voce(chiave);
        if (!voce.abilitata) {
            const bool conProgetto = chiave == "mnuNuovo" || chiave == "mnuApri" || chiave == "mnuXRecenti";
            EXPECT_TRUE(conProgetto) << chiave << " is closed: " << voce.nota;
            continue;
        }
        p.messaggi.mostrati.clear();
        const std::string prima = p.traccia();
        p.messaggi.risposte = {Risposta::no, Risposta::annulla, Risposta::annulla};
        p.cornice.ctlMenu.premi(chiave);
        if (chiave.rfind("key", 0) == 0) {
            ASSERT_NE(p.cornice.gestione.corrente(), nullptr) << chiave;
            EXPECT_EQ(p.cornice.gestione.corrente()->nome(), p.cornice.albero.finestra(chiave)) << chiave;
            EXPECT_EQ(p.cornice.albero.ctlTree.selezionato(), chiave);
        } else {
            EXPECT_NE(p.traccia(), prima) << chiave << " does nothing";
        }
        p.documentiConsegnati(chiave);
        p.senzaGuasti(chiave);
    }
}

TEST_P(GiroComandi, EveryEntryThatIsOpenBeforeAProjectOrAfterOneLeadsSomewhere) {
    for (const bool dopo : {false, true}) {
        std::vector<std::string> chiavi;
        const auto prepara = [&](Programma& p) {
            if (dopo) {
                p.progetto();
                p.messaggi.risposte = {Risposta::no};
                p.cornice.CloseRotonda();
            }
            p.ramiScelti = 0;
        };
        {
            Programma p(GetParam());
            prepara(p);
            for (const MenuChiavi::Voce& voce : vociPremibili(p.cornice.ctlMenu)) {
                chiavi.push_back(voce.chiave);
            }
        }
        int aperte = 0;
        for (const std::string& chiave : chiavi) {
            Programma p(GetParam());
            prepara(p);
            // A menu that is closed takes no press of its entries.
            bool aperta = true;
            for (std::string sopra = chiave; !sopra.empty(); sopra = p.cornice.ctlMenu.voce(sopra).padre) {
                aperta = aperta && p.cornice.ctlMenu.voce(sopra).abilitata;
            }
            const std::string prima = p.traccia();
            p.cornice.ctlMenu.premi(chiave);
            EXPECT_EQ(p.traccia() != prima, aperta) << chiave;
            aperte += aperta ? 1 : 0;
            p.documentiConsegnati(chiave);
            p.senzaGuasti(chiave);
        }
        EXPECT_EQ(aperte, dopo ? 9 : 3);
    }
}

TEST_P(GiroComandi, EveryButtonOfTheMainBarLeadsSomewhere) {
    for (const RigaBarra& riga : barraPrincipale) {
        for (const bool aperto : {true, false}) {
            Programma p(GetParam());
            if (aperto) {
                p.progetto();
            }
            p.ramiScelti = 0;
            const std::string chiave{riga.chiave};
            if (!p.cornice.ctlToolbar.abilitato(riga.chiave)) {
                const bool dallaTavola = std::any_of(statiTasti.begin(), statiTasti.end(), [&](const StatoVoce& s) {
                    return s.chiave == riga.chiave && !(aperto ? s.conProgetto : s.senzaProgetto);
                });
                EXPECT_TRUE(dallaTavola) << chiave << " is closed";
                continue;
            }
            p.messaggi.mostrati.clear();
            p.messaggi.risposte = {Risposta::no, Risposta::annulla};
            const std::string prima = p.traccia();
            p.cornice.ctlToolbar.premi(chiave);
            EXPECT_NE(p.traccia(), prima) << chiave << " does nothing";
            if (riga.azione == AzioneTasto::finestra) {
                ASSERT_NE(p.cornice.gestione.corrente(), nullptr) << chiave;
                EXPECT_EQ(p.cornice.gestione.corrente()->nome(), riga.argomento) << chiave;
            }
            p.documentiConsegnati(chiave);
            p.senzaGuasti(chiave);
        }
    }
}

TEST_P(GiroComandi, EveryNodeOfTheTreeBringsItsWindow) {
    Programma p(GetParam());
    p.progetto();
    std::set<std::string> viste;
    for (const std::string& chiave : p.cornice.albero.ctlTree.chiavi()) {
        EXPECT_EQ(p.cornice.albero.ctlTree.nodo(chiave).nota, "") << chiave;
        EXPECT_TRUE(p.cornice.albero.UserClick(chiave)) << chiave;
        const std::string attesa{p.cornice.albero.finestra(chiave)};
        ASSERT_TRUE(p.cornice.finestre.conosce(attesa)) << chiave << " " << attesa;
        EXPECT_EQ(p.cornice.gestione.corrente()->nome(), attesa) << chiave;
        viste.insert(attesa);
    }
    EXPECT_EQ(viste.count("frmGoogle"), 1U);
    EXPECT_GE(viste.size(), 16U);
    p.senzaGuasti("tree");
}

TEST_P(GiroComandi, EveryShortcutRunsSomethingWhereItIsOpen) {
    const std::vector<std::string> finestre{"keyOpzioni", "keyMatriceSvolte", "keyCodeRitardi_Out"};
    for (const std::string& tasti : MDI_Form::scorciatoie()) {
        bool corsa = false;
        for (const std::string& chiave : finestre) {
            Programma p(GetParam());
            p.progetto();
            p.cornice.albero.UserClick(chiave);
            p.cornice.scorciatoia("F9");
            p.messaggi.risposte = {Risposta::no, Risposta::annulla};
            corsa = p.cornice.scorciatoia(tasti) || corsa;
            p.senzaGuasti(tasti);
            p.documentiConsegnati(tasti);
        }
        Programma senza(GetParam());
        senza.ramiScelti = 0;
        corsa = senza.cornice.scorciatoia(tasti) || corsa;
        EXPECT_TRUE(corsa) << tasti << " runs nothing anywhere";
    }
}

INSTANTIATE_TEST_SUITE_P(Layouts, GiroComandi, testing::Values(0, 1));

/// The context menu of a control; null for a control that has none.
MenuChiavi* menuDi(Controllo& controllo) {
    if (auto* griglia = dynamic_cast<Griglia*>(&controllo)) {
        return griglia->menu();
    }
    if (auto* grafico = dynamic_cast<Grafico*>(&controllo)) {
        return grafico->menu();
    }
    auto* pianta = dynamic_cast<PiantaLivelli*>(&controllo);
    return pianta == nullptr ? nullptr : pianta->menu();
}

TEST(GiroMenuContestuali, EveryEntryDoesSomethingOrTellsWhyItIsClosed) {
    int menu = 0;
    int premute = 0;
    for (const FinestraDiChiave& riga : finestrePerChiave) {
        Programma p(0);
        p.progetto();
        p.cornice.albero.UserClick(std::string{riga.chiave} + (riga.perRamo ? "1" : ""));
        Finestra& finestra = *p.cornice.gestione.corrente();
        if (finestra.barra() != nullptr && p.cornice.scorciatoia("F9")) {
            p.senzaGuasti(finestra.nome());
        }
        for (Controllo* controllo : finestra.ordine()) {
            MenuChiavi* contestuale = menuDi(*controllo);
            if (contestuale == nullptr) {
                continue;
            }
            ++menu;
            for (const MenuChiavi::Voce& voce : std::vector<MenuChiavi::Voce>(contestuale->voci())) {
                const std::string dove = finestra.nome() + "." + controllo->nome() + " " + voce.testo;
                if (voce.testo == "-" || !contestuale->figli(voce.chiave).empty() || voce.padre.empty()) {
                    continue;
                }
                if (!voce.abilitata) {
                    EXPECT_NE(voce.nota, "") << dove << " is closed and does not say why";
                    continue;
                }
                p.appunti.testo = "7";
                p.cornice.avviso("prima");
                const std::string prima = p.traccia();
                const std::uint64_t revisione = p.app.theRotonda().revisione().tutto;
                menuDi(*controllo)->premi(voce.chiave);
                const bool incolla = voce.testo == "Incolla";
                EXPECT_TRUE(incolla || p.traccia() != prima || p.app.theRotonda().revisione().tutto != revisione)
                    << dove << " does nothing";
                ++premute;
            }
        }
        p.senzaGuasti(finestra.nome());
    }
    EXPECT_GT(menu, 15);
    EXPECT_GT(premute, 40);
}

TEST(GiroBarre, EveryButtonOfAWindowRunsOrTellsWhyItIsClosed) {
    int premuti = 0;
    for (const FinestraDiChiave& riga : finestrePerChiave) {
        const std::string chiave = std::string{riga.chiave} + (riga.perRamo ? "1" : "");
        std::vector<BarraStrumenti::Tasto> tasti;
        {
            Programma p(0);
            p.progetto();
            p.cornice.albero.UserClick(chiave);
            if (BarraStrumenti* barra = p.cornice.gestione.corrente()->barra()) {
                tasti = barra->tasti();
            }
        }
        for (const BarraStrumenti::Tasto& tasto : tasti) {
            Programma p(0);
            p.progetto();
            p.cornice.albero.UserClick(chiave);
            Finestra& finestra = *p.cornice.gestione.corrente();
            const std::string dove = finestra.nome() + " " + tasto.chiave;
            EXPECT_NE(tasto.suggerimento, "") << dove;
            if (!tasto.abilitato) {
                EXPECT_NE(tasto.nota, "") << dove << " is closed and does not say why";
                continue;
            }
            p.messaggi.risposte = {Risposta::no, Risposta::no};
            finestra.barra()->premi(tasto.chiave);
            p.senzaGuasti(dove);
            p.documentiConsegnati(dove);
            ++premuti;
        }
    }
    EXPECT_GT(premuti, 40);
}

TEST(Consegna, TheFoldersThatTheProgramWritesToStandInTheInstallation) {
    for (const char* cartella : {"Relazioni", "XLS", "UserGuide", "Support", "Modelli"}) {
        EXPECT_TRUE(fs::is_directory(std::string{KELVO_CARTELLA "/"} + cartella)) << cartella;
    }
    for (const char* file :
         {"Support/Vaq in rete.htm", "Support/Vaq Products.htm", "Support/Vaq_google.htm", "Support/Vaq KelvoCAD.htm",
          "Support/EmptyHelp.htm", "Support/pagine.css", "UserGuide/KelvoSUITE2014_INTRO.htm"}) {
        EXPECT_TRUE(fs::is_regular_file(std::string{KELVO_CARTELLA "/"} + file)) << file;
    }
}

}  // namespace
}  // namespace kelvo::prove::shell
