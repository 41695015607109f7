#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "comune/fintiShell.h"

namespace kelvo::prove::shell {
namespace {

/// A node as a person reads the tree: depth, key, text, picture, expanded.
struct NodoAtteso {
    int livello;
    std::string chiave;
    std::string testo;
    std::string immagine;
    bool espanso = false;
    bool perRamo = false;
};

const std::vector<NodoAtteso> coda{
    {1, "keyStrumenti", "Strumenti", "strumenti", true},   {2, "keyConfronti", "Analizzatore", "analizzatore"},
    {2, "keyCorsiaDX", "Corsia preferenziale", "dx"},      {2, "keyAnalizzatore", "CheckUp Rotatoria", "check"},
    {2, "keyterra", "Localizzazione geografica", "terra"},
};

std::vector<NodoAtteso> ripeti(int rami, const NodoAtteso& nodo) {
    std::vector<NodoAtteso> tutti;
    for (int n = 1; n <= rami; ++n) {
        NodoAtteso uno = nodo;
        uno.chiave += std::to_string(n);
        if (uno.testo.empty()) {
            uno.testo = std::string("Ramo ") + static_cast<char>('A' + n - 1);
        }
        tutti.push_back(uno);
    }
    return tutti;
}

void accoda(std::vector<NodoAtteso>& a, const std::vector<NodoAtteso>& b) {
    a.insert(a.end(), b.begin(), b.end());
}

std::vector<NodoAtteso> attesiPerTipo(int rami) {
    std::vector<NodoAtteso> n{{0, "keyMyProject", "Progetto", "Progetto", true},
                              {1, "keyRotonda", "Intersezione", "Progetto", true},
                              {2, "keyAnagraficaRotonda", "Anagrafica intersezione", "Progetto"},
                              {2, "keyAnagraficaProfessionista", "Anagrafica professionista", "Progetto"},
                              {1, "keyTempoModellazione", "Tempi di modellazione", "TempoModellazione"},
                              {1, "keyRami", "Geometria", "GeometriaFolder", true},
                              {2, "keyToponomasticaIntersezione", "Toponomastica Intersezione", "Geometria"}};
    accoda(n, ripeti(rami, {2, "keyRamo", "", "Geometria"}));
    n.push_back({1, "keyDatiTraffico", "Dati di traffico", "DatiTrafficoFolder", true});
    accoda(n, ripeti(rami, {2, "keyDatiTraffico", "", "DatiTraffico"}));
    n.push_back({1, "keyMatriceSvolte", "Matrice delle svolte", "MatriceSvolte"});
    n.push_back({1, "keyComposizioneTraffico", "Composizione del traffico", "ComposizioneTrafficoFolder", true});
    accoda(n, ripeti(rami, {2, "keyComposizioneTraffico", "", "ComposizioneTraffico"}));
    n.push_back({1, "keyOpzioni", "Opzioni", "Opzioni"});
    accoda(n, ripeti(rami, {2, "keyAnalisiMarginale", "", "Opzioni1"}));
    n.push_back({1, "keyRisultati", "Risultati", "RisultatiFolder", true});
    n.push_back({2, "keyCodeRitardi_Out", "Verifiche prestazionali", "RisultatiFolder", true});
    accoda(n, ripeti(rami, {3, "keyCodeRitardi_Out", "", "Risultati"}));
    n.push_back({2, "keyOttimizzazioneGeometrica", "Ottimizzazione Geometrica", "RisultatiFolder", true});
    accoda(n, ripeti(rami, {3, "keyOttimizzazioneGeometrica", "", "Risultati"}));
    n.push_back({2, "keyCapacitaUltima_Out", "Capacità ultima", "Risultati"});
    accoda(n, coda);
    return n;
}

std::vector<NodoAtteso> attesiPerRamo(int rami) {
    std::vector<NodoAtteso> n{{0, "keyMyProject", "Progetto", "Progetto", true},
                              {1, "keyRotonda", "Intersezione", "Progetto", true},
                              {2, "keyAnagraficaRotonda", "Anagrafica intersezione", "Progetto"},
                              {2, "keyAnagraficaProfessionista", "Anagrafica professionista", "Progetto"},
                              {1, "keyTempoModellazione", "Tempi di modellazione", "TempoModellazione"},
                              {1, "keyToponomasticaIntersezione", "Toponomastica Intersezione", "GeometriaFolder"}};
    for (int i = 1; i <= rami; ++i) {
        const std::string c = std::to_string(i);
        n.push_back({1, "keyRami" + c, std::string("Ramo ") + static_cast<char>('A' + i - 1), "GeometriaFolder"});
        n.push_back({2, "keyRamo" + c, "Geometria", "Geometria"});
        n.push_back({2, "keyDatiTraffico" + c, "Dati di traffico", "DatiTraffico"});
        n.push_back({2, "keyComposizioneTraffico" + c, "Composizone traffico", "ComposizioneTraffico"});
        n.push_back({2, "keyAnalisiMarginale" + c, "Opzioni Analisi Marginale", "Opzioni1"});
    }
    n.push_back({1, "keyMatriceSvolte", "Matrice delle svolte", "MatriceSvolte"});
    n.push_back({1, "keyRisultati", "Risultati", "RisultatiFolder", true});
    n.push_back({2, "keyCodeRitardi_Out", "Verifiche prestazionali", "RisultatiFolder", true});
    accoda(n, ripeti(rami, {3, "keyCodeRitardi_Out", "", "Risultati"}));
    n.push_back({2, "keyOttimizzazioneGeometrica", "Ottimizzazione Geometrica", "RisultatiFolder", true});
    accoda(n, ripeti(rami, {3, "keyOttimizzazioneGeometrica", "", "Risultati"}));
    n.push_back({2, "keyCapacitaUltima_Out", "Capacità ultima", "Risultati"});
    n.push_back({1, "keyOpzioni", "Opzioni", "Opzioni"});
    accoda(n, coda);
    return n;
}

int livelloDi(const Albero& albero, const std::string& chiave) {
    int livello = 0;
    for (std::string padre = albero.nodo(chiave).padre; !padre.empty(); padre = albero.nodo(padre).padre) {
        ++livello;
    }
    return livello;
}

void confronta(const Albero& albero, const std::vector<NodoAtteso>& attesi) {
    const std::vector<std::string> chiavi = albero.chiavi();
    ASSERT_EQ(chiavi.size(), attesi.size());
    for (std::size_t i = 0; i < attesi.size(); ++i) {
        const Albero::Nodo& nodo = albero.nodo(chiavi[i]);
        SCOPED_TRACE(attesi[i].chiave);
        EXPECT_EQ(nodo.chiave, attesi[i].chiave);
        EXPECT_EQ(nodo.testo, attesi[i].testo);
        EXPECT_EQ(nodo.immagine, attesi[i].immagine);
        EXPECT_EQ(nodo.espanso, attesi[i].espanso);
        EXPECT_EQ(livelloDi(albero, chiavi[i]), attesi[i].livello);
    }
}

class Disposizioni : public ::testing::TestWithParam<int> {};

TEST_P(Disposizioni, TheLayoutByTypeHoldsItsNodesInOrder) {
    ShellFinta f;
    f.disposizione(1);
    f.nuovo(GetParam());
    confronta(f.cornice.albero.ctlTree, attesiPerTipo(GetParam()));
}

TEST_P(Disposizioni, TheLayoutByLegHoldsItsNodesInOrder) {
    ShellFinta f;
    f.disposizione(0);
    f.nuovo(GetParam());
    confronta(f.cornice.albero.ctlTree, attesiPerRamo(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Rami, Disposizioni, ::testing::Values(3, 4, 5, 6, 7));

TEST(LoadTreeView, AnyValueButZeroGivesTheLayoutByType) {
    ShellFinta f;
    f.disposizione(5);
    f.nuovo(3);
    EXPECT_TRUE(f.cornice.albero.ctlTree.contiene("keyRami"));
    EXPECT_EQ(f.app.configurazione.OpzExplorer, 5);
}

TEST(LoadTreeView, TheFirstTraceLineIsLostAndTheOthersStandInTheLog) {
    ShellFinta f;
    f.nuovo(3);
    f.app.configurazione.TraceAbilitato = true;
    f.cornice.LoadTreeView();
    ASSERT_EQ(f.messaggi.mostrati.size(), 1U);
    EXPECT_EQ(f.messaggi.mostrati[0].titolo, "KELVO 2014modCommonModule:traceLog()");
    const std::string log = contenuto(f.cartella.file("FILELOGERROR.TXT"));
    EXPECT_EQ(log.find("Entro in LoadTreeView()"), std::string::npos);
    EXPECT_NE(log.find("[21/11/2026 10:30:05] - Esco da LoadTreeView()\r\n"), std::string::npos);
    f.cornice.LoadTreeView();
    const std::string poi = contenuto(f.cartella.file("FILELOGERROR.TXT")).substr(log.size());
    EXPECT_EQ(poi,
              "[21/11/2026 10:30:05] - Entro in LoadTreeView()\r\n[21/11/2026 10:30:05] - Esco da LoadTreeView()\r\n");
}

TEST(LoadTreeView, AFaultIsRecordedUnderTheLabelOfItsLayout) {
    for (const auto& [valore, etichetta] :
         {std::pair{1, std::string{"LoadTreeView MOD 1"}}, std::pair{0, std::string{"LoadTreeView MOD 2"}}}) {
        ShellFinta f;
        f.disposizione(valore);
        f.app.theRotonda().Clear();  // four legs told, none there
        f.cornice.LoadTreeView();
        ASSERT_FALSE(f.messaggi.mostrati.empty());
        EXPECT_EQ(f.messaggi.mostrati[0].titolo, "KELVO 2014" + etichetta);
        EXPECT_EQ(f.messaggi.mostrati[0].testo.substr(0, 4), "9 : ");
        EXPECT_EQ(f.messaggi.mostrati[0].icona, Icona::critica);
    }
}

TEST(LoadTreeView, ASettingThatIsNoNumberIsRecorded) {
    ShellFinta f;
    f.scriviIni("[OPZ_EXPLORER]\nRami=tre\n");
    f.cornice.LoadTreeView();
    ASSERT_EQ(f.messaggi.mostrati.size(), 1U);
    EXPECT_EQ(f.messaggi.mostrati[0].titolo, "KELVO 2014LoadTreeView");
    EXPECT_EQ(f.messaggi.mostrati[0].testo.substr(0, 5), "13 : ");
}

TEST(TestoNodi, ANewNameShowsOnEveryNodeOfTheLegByType) {
    ShellFinta f;
    f.disposizione(1);
    f.nuovo(3);
    f.cornice.testoNodi("2Ramo", "Via Roma");
    const Albero& albero = f.cornice.albero.ctlTree;
    for (const char* radice : {"keyRamo", "keyDatiTraffico", "keyComposizioneTraffico", "keyAnalisiMarginale",
                               "keyCodeRitardi_Out", "keyOttimizzazioneGeometrica"}) {
        EXPECT_EQ(albero.nodo(std::string(radice) + "2").testo, "Via Roma") << radice;
        EXPECT_EQ(albero.nodo(std::string(radice) + "1").testo, "Ramo A") << radice;
    }
}

TEST(TestoNodi, ByLegOnlyTheNodesThatShowTheNameTakeIt) {
    ShellFinta f;
    f.nuovo(3);
    f.cornice.testoNodi("keyRamo3", "Via Po");
    const Albero& albero = f.cornice.albero.ctlTree;
    EXPECT_EQ(albero.nodo("keyRami3").testo, "Via Po");
    EXPECT_EQ(albero.nodo("keyCodeRitardi_Out3").testo, "Via Po");
    EXPECT_EQ(albero.nodo("keyOttimizzazioneGeometrica3").testo, "Via Po");
    EXPECT_EQ(albero.nodo("keyRamo3").testo, "Geometria");
    EXPECT_EQ(albero.nodo("keyDatiTraffico3").testo, "Dati di traffico");
}

TEST(TestoNodi, TheLayoutThatStandsCountsNotTheOneThatIsStillToBeBuilt) {
    ShellFinta f;
    f.nuovo(3);
    f.app.configurazione.OpzExplorer = 1;
    f.cornice.testoNodi("keyRamo3", "Via Po");
    EXPECT_EQ(f.cornice.albero.ctlTree.nodo("keyRami3").testo, "Via Po");
    EXPECT_EQ(f.cornice.albero.ctlTree.nodo("keyRamo3").testo, "Geometria");
}

TEST(TestoNodi, TheMenusTakeTheNameToo) {
    for (const int disposizione : {0, 1}) {
        ShellFinta f;
        f.disposizione(disposizione);
        f.nuovo(3);
        f.app.theRotonda().Ramo(2).Descrizione("Via Roma");
        f.cornice.testoNodi("2Ramo", "Via Roma");
        int trovate = 0;
        for (const MenuChiavi::Voce& voce : f.cornice.ctlMenu.voci()) {
            trovate += voce.testo == "Via Roma" ? 1 : 0;
            EXPECT_NE(voce.testo, "Ramo B") << disposizione;
        }
        EXPECT_GT(trovate, 0) << disposizione;
    }
}

TEST(Misure, TheWidthFollowsTheScreen) {
    EXPECT_EQ(frmTreeView::larghezzaPerSchermo({15360, 11520}), 4500.0);
    EXPECT_EQ(frmTreeView::larghezzaPerSchermo({15361, 11520}), 5500.0);
    EXPECT_EQ(frmTreeView::larghezzaPerSchermo({15360, 11521}), 5500.0);
    EXPECT_EQ(frmTreeView::larghezzaPerSchermo({17280, 12960}), 5500.0);
    EXPECT_EQ(frmTreeView::larghezzaPerSchermo({17281, 12960}), 8000.0);
    EXPECT_EQ(frmTreeView::larghezzaPerSchermo({17280, 12961}), 8000.0);
}

TEST(Misure, TheTreeStandsBetweenToolBarAndStatusBar) {
    ShellFinta f;
    f.cornice.Load();
    f.cornice.albero.ResizeMe();
    // 10000 less caption 300, menu 350, tool bar 700, status bar 250
    EXPECT_EQ(f.superficie.posto, (Rettangolo{0, 0, 4500, 8400}));
}

}  // namespace
}  // namespace kelvo::prove::shell
