#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <set>
#include <string>
#include <vector>

#include "comune/fintiShell.h"
#include "shell/icone.h"

namespace kelvo::prove::shell {
namespace {

/// An entry as a person reads the menu: depth below its top-level menu, caption, key ("" where none is given), picture.
struct VoceAttesa {
    int livello;
    std::string testo;
    std::string chiave;
    std::string icona;
    friend bool operator==(const VoceAttesa&, const VoceAttesa&) = default;
};

std::ostream& operator<<(std::ostream& o, const VoceAttesa& v) {
    return o << "{" << v.livello << ", " << v.testo << ", " << v.chiave << ", " << v.icona << "}";
}

constexpr std::array<const char*, 25> icone{"Risultati",
                                            "DatiTrafficoFolder",
                                            "DatiTraffico",
                                            "Opzioni1",
                                            "Opzioni",
                                            "RisultatiFolder",
                                            "TempoModellazione",
                                            "ComposizioneTraffico",
                                            "GeometriaFolder",
                                            "Geometria",
                                            "MatriceSvolte",
                                            "OpenFolder",
                                            "ComposizioneTrafficoFolder",
                                            "Progetto",
                                            "Nuovo",
                                            "Apri",
                                            "Salva",
                                            "Esci",
                                            "Chiudi",
                                            "Help",
                                            "KelvoCAD",
                                            "Analizzatore",
                                            "Check",
                                            "Dx",
                                            "terra"};

std::string nomeIcona(int posizione) {
    return posizione < 0 ? std::string{} : std::string{icone.at(static_cast<std::size_t>(posizione))};
}

void scendi(const MenuChiavi& menu, const std::string& padre, int livello, std::vector<VoceAttesa>& righe) {
    for (const MenuChiavi::Voce* v : menu.figli(padre)) {
        if (v->chiave.rfind("mnuX", 0) == 0) {
            continue;  // an entry of our own
        }
        const bool data = v->chiave.rfind("voce", 0) != 0;
        righe.push_back({livello, v->testo, data ? v->chiave : std::string{}, nomeIcona(v->icona)});
        scendi(menu, v->chiave, livello + 1, righe);
    }
}

std::vector<VoceAttesa> menuDi(const MenuChiavi& menu, const std::string& chiave) {
    std::vector<VoceAttesa> righe;
    scendi(menu, chiave, 0, righe);
    return righe;
}

void perRamo(std::vector<VoceAttesa>& righe, int rami, int livello, const std::string& chiave,
             const std::string& icona) {
    for (int n = 1; n <= rami; ++n) {
        righe.push_back(
            {livello, std::string("Ramo ") + static_cast<char>('A' + n - 1), chiave + std::to_string(n), icona});
    }
}

const std::vector<VoceAttesa> attesiFile{{0, "Nuovo...", "mnuNuovo", "Nuovo"},
                                         {0, "Apri...", "mnuApri", "Apri"},
                                         {0, "Salva...", "mnuSalva", "Salva"},
                                         {0, "Chiudi", "mnuChiudi", "Chiudi"},
                                         {0, "-", "", ""},
                                         {0, "Esci", "mnuEsci", "Esci"}};

const std::vector<VoceAttesa> attesiStrumenti{{0, "Analizzatore", "keyConfronti", "Analizzatore"},
                                              {0, "Corsia preferenziale", "keyCorsiaDX", "Dx"},
                                              {0, "Check Rotatoria", "keyAnalizzatore", "Check"},
                                              {0, "Localizzazione geografica", "keyterra", "terra"}};

const std::vector<VoceAttesa> attesiHelp{{0, "Guida in linea", "mnuGuidaInLinea", "Help"},
                                         {0, "Vaq on Line", "", ""},
                                         {1, "Home", "mnuHome", "Help"},
                                         {1, "Altri prodotti", "mnuAltriProdotti", "Help"},
                                         {0, "-", "", ""},
                                         {0, "Informazioni sul programma", "mnuInfoSulProgramma", ""}};

std::vector<VoceAttesa> attesiRisultati(int rami) {
    std::vector<VoceAttesa> r{{0, "Capacità, code e ritardi", "", "RisultatiFolder"},
                              {1, "Intersezione", "keyCodeRitardi_Out", "Risultati"}};
    perRamo(r, rami, 1, "keyCodeRitardi_Out", "Risultati");
    r.push_back({0, "Ottimizzazione Geometrica", "", "RisultatiFolder"});
    perRamo(r, rami, 1, "keyOttimizzazioneGeometrica", "Risultati");
    r.push_back({0, "Capacità ultima", "keyCapacitaUltima_Out", ""});
    r.push_back({0, "-", "", ""});
    r.push_back({0, "Compila relazione", "mnuCompilaRelazione", ""});
    return r;
}

std::vector<VoceAttesa> attesiDatiPerTipo(int rami) {
    std::vector<VoceAttesa> r{{0, "Progetto", "", "Progetto"},
                              {1, "Anagrafica rotonda", "keyAnagraficaRotonda", "Progetto"},
                              {1, "Anagrafica professionista", "keyAnagraficaProfessionista", "Progetto"},
                              {1, "Tempi di modellazione", "keyTempoModellazione", "TempoModellazione"},
                              {0, "Geometria", "", "GeometriaFolder"},
                              {1, "Intersezione", "keyToponomasticaIntersezione", "Geometria"}};
    perRamo(r, rami, 1, "keyRamo", "Geometria");
    r.push_back({0, "Dati di traffico", "", "DatiTrafficoFolder"});
    perRamo(r, rami, 1, "keyDatiTraffico", "DatiTraffico");
    r.push_back({0, "Matrice delle svolte", "keyMatriceSvolte", "MatriceSvolte"});
    r.push_back({0, "Composizione del traffico", "", "ComposizioneTrafficoFolder"});
    perRamo(r, rami, 1, "keyComposizioneTraffico", "ComposizioneTraffico");
    return r;
}

std::vector<VoceAttesa> attesiDatiPerRamo(int rami) {
    std::vector<VoceAttesa> r{{0, "Progetto", "", "Progetto"},
                              {1, "Anagrafica rotonda", "keyAnagraficaRotonda", "Progetto"},
                              {1, "Anagrafica professionista", "keyAnagraficaProfessionista", "Progetto"},
                              {1, "Tempi di modellazione", "keyTempoModellazione", "TempoModellazione"},
                              {1, "Toponomastica intersezione", "keyToponomasticaIntersezione", "Geometria"}};
    for (int n = 1; n <= rami; ++n) {
        const std::string c = std::to_string(n);
        r.push_back({0, std::string("Ramo ") + static_cast<char>('A' + n - 1), "", "GeometriaFolder"});
        r.push_back({1, "Geometria", "keyRamo" + c, "Geometria"});
        r.push_back({1, "Dati Traffico", "keyDatiTraffico" + c, "DatiTraffico"});
        r.push_back({1, "Composizione traffico", "keyComposizioneTraffico" + c, "ComposizioneTraffico"});
        r.push_back({1, "Opzioni Analisi Marginale", "keyAnalisiMarginale" + c, "Opzioni1"});
    }
    r.push_back({0, "Matrice delle svolte", "keyMatriceSvolte", "MatriceSvolte"});
    return r;
}

class Menu : public ::testing::TestWithParam<int> {};

void confrontaComuni(const MenuChiavi& menu, int rami) {
    EXPECT_EQ(menuDi(menu, "mnuFile"), attesiFile);
    EXPECT_EQ(menuDi(menu, "mnuRisultati"), attesiRisultati(rami));
    EXPECT_EQ(menuDi(menu, "mnuStrumenti"), attesiStrumenti);
    EXPECT_EQ(menuDi(menu, "mnuKelvoCAD"), (std::vector<VoceAttesa>{{0, "KelvoCAD", "mnuKelvoCAD2", "KelvoCAD"}}));
    EXPECT_EQ(menuDi(menu, "mnuHelp"), attesiHelp);
}

TEST_P(Menu, TheBuildPerTypeHoldsItsRowsInOrder) {
    ShellFinta f;
    f.cornice.Load();
    f.disposizione(1);
    f.nuovo(GetParam());
    EXPECT_EQ(menuDi(f.cornice.ctlMenu, "mnuDati"), attesiDatiPerTipo(GetParam()));
    std::vector<VoceAttesa> opzioni{{0, "Generale", "keyOpzioni", "Opzioni"}};
    perRamo(opzioni, GetParam(), 0, "keyAnalisiMarginale", "Opzioni1");
    EXPECT_EQ(menuDi(f.cornice.ctlMenu, "mnuOpzioni"), opzioni);
    confrontaComuni(f.cornice.ctlMenu, GetParam());
}

TEST_P(Menu, TheBuildPerLegHoldsItsRowsInOrder) {
    ShellFinta f;
    f.cornice.Load();
    f.nuovo(GetParam());
    EXPECT_EQ(menuDi(f.cornice.ctlMenu, "mnuDati"), attesiDatiPerRamo(GetParam()));
    EXPECT_EQ(menuDi(f.cornice.ctlMenu, "mnuOpzioni"),
              (std::vector<VoceAttesa>{{0, "Generale", "keyOpzioni", "Opzioni"}}));
    confrontaComuni(f.cornice.ctlMenu, GetParam());
}

INSTANTIATE_TEST_SUITE_P(Rami, Menu, ::testing::Values(3, 5, 7));

TEST(MenuMinimo, OnlyTheFileMenuHasEntriesBeforeAProject) {
    ShellFinta f;
    f.cornice.Load();
    EXPECT_EQ(menuDi(f.cornice.ctlMenu, "mnuFile"), attesiFile);
    for (const char* menu : {"mnuDati", "mnuOpzioni", "mnuRisultati", "mnuStrumenti", "mnuKelvoCAD", "mnuHelp"}) {
        EXPECT_TRUE(menuDi(f.cornice.ctlMenu, menu).empty()) << menu;
    }
}

TEST(MenuMinimo, TheSevenMenusStandInOrderWithDifferentLetters) {
    ShellFinta f;
    std::vector<std::string> testi;
    std::set<std::string> lettere;
    for (const MenuChiavi::Voce* v : f.cornice.ctlMenu.figli("")) {
        testi.push_back(v->testo);
        lettere.insert(v->mnemonico);
    }
    EXPECT_EQ(testi,
              (std::vector<std::string>{"File", "Dati", "Opzioni", "Risultati", "Strumenti", "KelvoCAD", "Help"}));
    EXPECT_EQ(lettere.size(), 7U);
}

TEST(CostruzioneMenu, HandleMenuFollowsTheStoredSettingAndTheNamesOfTheLegs) {
    ShellFinta f;
    f.nuovo(3);
    f.app.theRotonda().Ramo(2).Descrizione("Via Po");
    f.disposizione(1);
    f.cornice.Handle_Menu();
    EXPECT_EQ(f.cornice.ctlMenu.voce("keyRamo2").testo, "Via Po");
    f.disposizione(0);
    f.cornice.Handle_Menu();
    EXPECT_EQ(f.cornice.ctlMenu.voce("keyRamo2").testo, "Geometria");
    EXPECT_EQ(f.cornice.ctlMenu.voce(f.cornice.ctlMenu.voce("keyRamo2").padre).testo, "Via Po");
}

TEST(CostruzioneMenu, ARebuildKeepsTheFlagsOfStateOptionsAndGreyNodes) {
    ShellFinta f;
    f.cornice.Load();
    f.disposizione(1);
    f.nuovo(3);
    f.cornice.Handle_Menu();
    const MenuChiavi& menu = f.cornice.ctlMenu;
    EXPECT_FALSE(menu.voce("mnuNuovo").abilitata);
    EXPECT_TRUE(menu.voce("mnuSalva").abilitata);
    EXPECT_FALSE(menu.voce("keyAnalisiMarginale1").abilitata);
    EXPECT_FALSE(menu.voce("keyOttimizzazioneGeometrica3").abilitata);
    EXPECT_TRUE(menu.voce("keyRamo1").abilitata);
    f.disposizione(0);
    f.cornice.LoadTreeView();
    EXPECT_FALSE(menu.voce("mnuNuovo").abilitata);
    EXPECT_FALSE(menu.voce("keyAnalisiMarginale1").abilitata);
    EXPECT_FALSE(menu.voce("keyOttimizzazioneGeometrica3").abilitata);
}

TEST(CostruzioneMenu, AFaultOfABuildIsRecordedUnderItsLabel) {
    ShellFinta f;
    f.app.theRotonda().Clear();
    f.cornice.Handle_Menu_normale();
    f.cornice.Handle_Menu_OPZ_raggruppa_tree();
    f.scriviIni("[OPZ_EXPLORER]\nRami=x\n");
    f.cornice.Handle_Menu();
    ASSERT_EQ(f.messaggi.mostrati.size(), 3U);
    EXPECT_EQ(f.messaggi.mostrati[0].titolo, "KELVO 2014MDI_Form:Handle_Menu_normale()");
    EXPECT_EQ(f.messaggi.mostrati[1].titolo, "KELVO 2014MDI_Form:Handle_Menu_OPZ_raggruppa_tree()");
    EXPECT_EQ(f.messaggi.mostrati[2].titolo, "KELVO 2014MDI_Form:Handle_Menu()");
    EXPECT_EQ(f.messaggi.mostrati[2].testo.substr(0, 5), "13 : ");
}

TEST(Icone, EachKeyStandsAtItsPositionInBothLists) {
    for (std::size_t i = 0; i < icone.size(); ++i) {
        EXPECT_EQ(plGetIconIndex(icone[i]), static_cast<int>(i));
        EXPECT_EQ(ImageList2014disable[i], icone[i]);
    }
    EXPECT_EQ(ImageList2014.size(), icone.size());
    try {
        plGetIconIndex("manca");
        FAIL();
    } catch (const Guasto& guasto) {
        EXPECT_EQ(guasto.codice(), 9);
    }
}

TEST(Instradamento, EachKeyOfTheMenuRunsItsCommand) {
    ShellFinta f;
    f.cornice.Load();
    f.nuovo(3);
    f.cornice.ctlMenu.premi("keyMatriceSvolte");
    EXPECT_EQ(f.nomeCorrente(), "frmMatriceSvolte");
    f.cornice.ctlMenu.premi("mnuCompilaRelazione");
    EXPECT_EQ(f.nomeCorrente(), "frmOPZrelazione");
    EXPECT_EQ(f.cornice.albero.ctlTree.selezionato(), "keyMatriceSvolte");
    f.cornice.ctlMenu.premi("mnuGuidaInLinea");
    f.cornice.ctlMenu.premi("mnuHome");
    f.cornice.ctlMenu.premi("mnuAltriProdotti");
    const std::string c = f.cartella.percorso();
    EXPECT_EQ(f.documenti.aperti, (std::vector<std::string>{"\"" + c + "/UserGuide/UserGuide.pdf\"",
                                                            "\"" + c + "/Support/Vaq in rete.htm\"",
                                                            "\"" + c + "/Support/Vaq Products.htm\""}));
    f.messaggi.risposte = {Risposta::no};
    f.cornice.ctlMenu.premi("mnuKelvoCAD2");
    EXPECT_EQ(
        f.messaggi.testi(),
        (std::vector<std::string>{"Attenzione! Per continuare è necessario salvare il progetto. Salvare adesso?"}));
    f.superficie.modali.clear();
    f.cornice.ctlMenu.premi("mnuInfoSulProgramma");
    EXPECT_EQ(f.superficie.modali, (std::vector<std::string>{"frmINFO"}));
    f.cornice.ctlMenu.premi("mnuSalva");
    EXPECT_EQ(f.dialogo.richieste.size(), 1U);
}

TEST(EsportaDXF, StandsBehindTheGivenEntryAndOpensItsWindowWithAProjectAlone) {
    ShellFinta f;
    f.registra("frmEsportaDXF");
    f.cornice.Load();
    f.cornice.Menu_Click("mnuXEsportaDXF");
    EXPECT_EQ(f.superficie.modali, std::vector<std::string>{});
    f.nuovo(4);
    const auto voci = f.cornice.ctlMenu.figli("mnuKelvoCAD");
    ASSERT_GE(voci.size(), 3U);
    EXPECT_EQ(voci.front()->chiave, "mnuKelvoCAD2");
    EXPECT_EQ(voci.back()->chiave, "mnuXEsportaDXF");
    EXPECT_EQ(voci.back()->testo, "Esporta DXF...");
    f.superficie.modali.clear();
    f.cornice.ctlMenu.premi("mnuXEsportaDXF");
    EXPECT_EQ(f.superficie.modali, (std::vector<std::string>{"frmEsportaDXF"}));
    EXPECT_EQ(f.finta("frmEsportaDXF").lette.size(), 1U);
}

TEST(EsportaDXF, TheWindowAtHandIsWrittenToTheProjectFirst) {
    ShellFinta f;
    f.registra("frmEsportaDXF");
    f.cornice.Load();
    f.nuovo(3);
    f.cornice.Menu_Click("keyMatriceSvolte");
    FinestraFinta& matrice = f.finta("frmMatriceSvolte");
    const int prima = matrice.salvataggi;
    f.superficie.modali.clear();
    f.cornice.Menu_Click("mnuXEsportaDXF");
    EXPECT_EQ(matrice.salvataggi, prima + 1);
    EXPECT_EQ(f.superficie.modali, (std::vector<std::string>{"frmEsportaDXF"}));
    // What its window refuses goes nowhere, and no drawing is made without it.
    matrice.campo.modifica("storto");
    f.superficie.modali.clear();
    f.cornice.Menu_Click("mnuXEsportaDXF");
    EXPECT_EQ(matrice.salvataggi, prima + 1);
    EXPECT_EQ(f.superficie.modali, std::vector<std::string>{});
}

TEST_P(Menu, TheEntriesOfTheCadLinkStandBehindTheGivenOne) {
    for (const int disposizione : {0, 1}) {
        ShellFinta f;
        f.disposizione(disposizione);
        f.cornice.Load();
        f.nuovo(GetParam());
        const auto voci = f.cornice.ctlMenu.figli("mnuKelvoCAD");
        ASSERT_GE(voci.size(), 4U);
        EXPECT_EQ(voci[0]->chiave, "mnuKelvoCAD2");
        EXPECT_EQ(voci[1]->testo, "-");
        EXPECT_EQ(voci[2]->chiave, "mnuXCollegamentoAutoCAD");
        EXPECT_EQ(voci[2]->testo, "Collegamento AutoCAD...");
        EXPECT_EQ(voci[3]->chiave, "mnuXInformazioniKelvoCAD");
        EXPECT_EQ(voci[3]->testo, "Informazioni su KelvoCAD");
        std::set<std::string> lettere;
        for (const auto* voce : voci) {
            EXPECT_TRUE(voce->testo == "-" || lettere.insert(voce->mnemonico).second) << voce->testo;
        }
    }
}

TEST(Instradamento, TheEntriesOfTheCadLinkShowTheirWindowsOverTheMainOne) {
    ShellFinta f;
    f.cornice.Load();
    f.nuovo(3);
    f.superficie.modali.clear();
    f.cornice.ctlMenu.premi("mnuXCollegamentoAutoCAD");
    f.cornice.ctlMenu.premi("mnuXInformazioniKelvoCAD");
    EXPECT_EQ(f.superficie.modali, (std::vector<std::string>{"frmLinkACAD", "frmKCAD"}));
    EXPECT_EQ(f.cornice.finestre.viva("frmLinkACAD"), nullptr) << "the registry is read anew at each showing";
    EXPECT_EQ(f.registro.lette, std::vector<std::string>{"Software\\Autodesk\\AutoCAD"});
    f.messaggi.risposte = {Risposta::no};
    f.cornice.CloseRotonda();
    f.superficie.modali.clear();
    f.cornice.ctlMenu.premi("mnuXCollegamentoAutoCAD");
    EXPECT_TRUE(f.superficie.modali.empty()) << "without a project the menu is closed";
}

TEST(Instradamento, ADocumentThatCannotBeOpenedIsTold) {
    ShellFinta f;
    f.documenti.riesce = false;
    f.cornice.Menu_Click("mnuGuidaInLinea");
    ASSERT_EQ(f.messaggi.mostrati.size(), 1U);
    EXPECT_EQ(f.messaggi.mostrati[0].testo, "Impossibile aprire " + f.cartella.percorso() + "/UserGuide/UserGuide.pdf");
    EXPECT_EQ(f.messaggi.mostrati[0].titolo, "KELVO 2014 - Attenzione");
}

TEST(Instradamento, AFieldThatRefusesToBeLeftStopsEveryCommand) {
    ShellFinta f;
    f.cornice.Load();
    f.nuovo(3);
    f.cornice.albero.UserClick("keyRamo1");
    f.corrente()->fuocoSu(f.corrente()->campo);
    f.corrente()->campo.scrivi("storto");
    for (const char* chiave : {"mnuSalva", "mnuChiudi", "mnuEsci", "mnuCompilaRelazione", "keyMatriceSvolte"}) {
        f.cornice.ctlMenu.premi(chiave);
        EXPECT_EQ(f.nomeCorrente(), "frmParametriRamo") << chiave;
    }
    for (const char* chiave : {"Salva", "Chiudi", "Esci", "Opzioni", "Dx", "Google", "Check", "Analizzatore"}) {
        f.cornice.ctlToolbar.premi(chiave);
        EXPECT_EQ(f.nomeCorrente(), "frmParametriRamo") << chiave;
    }
    f.cornice.chiudiCornice();
    EXPECT_TRUE(f.messaggi.mostrati.empty());
    EXPECT_TRUE(f.dialogo.richieste.empty());
    EXPECT_FALSE(f.superficie.terminata);
    EXPECT_FALSE(f.cornice.scorciatoia("Ctrl+Z"));
    f.cornice.scorciatoia("Ctrl+S");
    EXPECT_TRUE(f.dialogo.richieste.empty());
}

/// A data window that counts what its tool bar runs.
class DatiFinti final : public FinestraDati {
public:
    explicit DatiFinti(const Contorno& c) : FinestraDati(c, "frmMatriceSvolte", "") {
        ordina({});
        conArchivio();
    }
    void ReadData() override { ++letture; }
    void SaveData() override {
        rotonda().Titolo("scritto");
        DatiAllineati(true);
    }
    void Archivio() override { ++importazioni; }
    int letture = 0;
    int importazioni = 0;
};

TEST(Scorciatoie, TheToolBarOfTheWindowAtHandHasItsOwn) {
    ShellFinta f;
    f.cornice.Load();
    EXPECT_FALSE(f.cornice.scorciatoia("F5"));
    f.nuovo(3);
    f.cornice.finestre.registra("frmMatriceSvolte", [](const Contorno& c) { return std::make_unique<DatiFinti>(c); });
    f.cornice.albero.UserClick("keyMatriceSvolte");
    auto* finestra = dynamic_cast<DatiFinti*>(f.cornice.gestione.corrente());
    ASSERT_NE(finestra, nullptr);
    EXPECT_TRUE(f.cornice.scorciatoia("F5"));
    EXPECT_EQ(finestra->letture, 2);
    EXPECT_TRUE(f.cornice.scorciatoia("Ctrl+I"));
    EXPECT_EQ(finestra->importazioni, 1);
    EXPECT_TRUE(f.cornice.scorciatoia("Ctrl+Enter"));
    EXPECT_EQ(f.app.theRotonda().Titolo(), "scritto");
    EXPECT_EQ(f.cornice.didascalia.testo(), "KELVO 2014 - [.klv] *");
    EXPECT_FALSE(f.cornice.scorciatoia("F9"));
    EXPECT_FALSE(f.cornice.scorciatoia("Ctrl+P"));
    EXPECT_FALSE(f.cornice.scorciatoia("Ctrl+R"));
}

TEST(Scorciatoie, EachRunsItsEntryAndADisabledOneDoesNothing) {
    ShellFinta f;
    f.cornice.Load();
    const MenuChiavi& menu = f.cornice.ctlMenu;
    for (const auto& [chiave, tasti] :
         {std::pair{"mnuNuovo", "Ctrl+N"}, std::pair{"mnuApri", "Ctrl+O"}, std::pair{"mnuSalva", "Ctrl+S"},
          std::pair{"mnuChiudi", "Ctrl+W"}, std::pair{"mnuEsci", "Ctrl+Q"}}) {
        EXPECT_EQ(menu.voce(chiave).scorciatoia, tasti);
    }
    EXPECT_FALSE(f.cornice.scorciatoia("Ctrl+S"));
    EXPECT_FALSE(f.cornice.scorciatoia("Ctrl+Shift+S"));
    EXPECT_TRUE(f.cornice.scorciatoia("F1"));
    EXPECT_EQ(f.documenti.aperti.size(), 1U);
    EXPECT_TRUE(f.cornice.scorciatoia("Ctrl+N"));
    EXPECT_EQ(f.stato.statoProgetto, StatoProgetto::ProgettoNuovo);
    EXPECT_FALSE(f.cornice.scorciatoia("Ctrl+N"));
    EXPECT_TRUE(f.cornice.scorciatoia("Ctrl+Shift+S"));
    EXPECT_TRUE(f.cornice.scorciatoia("Ctrl+S"));
    EXPECT_EQ(f.dialogo.richieste.size(), 2U);
    EXPECT_TRUE(f.cornice.scorciatoia("Shift+F1"));
    EXPECT_EQ(f.documenti.aperti.size(), 2U);
    f.cornice.albero.UserClick("keyMyProject");
    EXPECT_TRUE(f.cornice.scorciatoia("F1"));
    EXPECT_EQ(f.documenti.aperti.size(), 2U) << "with a window at hand it is help, not the guide";
    EXPECT_EQ(f.superficie.aiuti, (std::vector<std::string>{"Progetto.htm"}));
    EXPECT_FALSE(f.cornice.scorciatoia(""));
}

}  // namespace
}  // namespace kelvo::prove::shell
