#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "base/versione.h"
#include "comune/fintiShell.h"
#include "shell/barraPrincipale.h"
#include "shell/registroFinestre.h"
#include "shell/servizi/pelle.h"

namespace kelvo::prove::shell {
namespace {

bool acceso(ShellFinta& f, const std::string& tasto) {
    return f.cornice.ctlToolbar.abilitato(std::string_view{tasto});
}

TEST(Carico, CaptionColourAndStatusBarAreSet) {
    ShellFinta f;
    EXPECT_EQ(f.cornice.titolo(), "KELVO 2014");
    f.cornice.Load();
    EXPECT_EQ(f.cornice.titolo(), "KELVO 2014");
    EXPECT_EQ(f.cornice.didascalia.testo(), "KELVO 2014");
    EXPECT_EQ(f.cornice.ctlStatusBar.testo(), "Kelvo " + std::string{versione()});
    EXPECT_EQ(f.cornice.BackColor, (Colore{0, 114, 198}));
    EXPECT_EQ(f.cornice.ctlToolbar.aspetto().sfondo, (Colore{0, 114, 198}));
}

TEST(Carico, TheBrushOfTheToolBarIsSetAgainInFront) {
    ShellFinta f;
    f.cornice.Load();
    f.cornice.ctlToolbar.aspetto({});
    f.cornice.inPrimoPiano();
    EXPECT_EQ(f.cornice.ctlToolbar.aspetto().sfondo, (Colore{0, 114, 198}));
}

TEST(Barra, TheButtonsStandInOrderWithTheirTexts) {
    ShellFinta f;
    struct Atteso {
        std::string chiave, testo, suggerimento, icona;
    };
    const std::vector<Atteso> attesi{{"Nuovo", "Nuova rotonda", "Nuovo progetto", "Nuovo"},
                                     {"Apri", "Apri rotonda", "Apri progetto", "Apri"},
                                     {"Salva", "Salva rotonda", "Salva progetto", "Salva"},
                                     {"Chiudi", "Chiudi la rotonda", "Chiudi progetto", "Chiudi"},
                                     {"Help", "Help", "Guida utente", "Help"},
                                     {"Opzioni", "Opzioni", "Opzioni programma", "Opzioni"},
                                     {"Analizzatore", "", "Analizzatore rotatoria", "Analizzatore"},
                                     {"Dx", "", "Valutazione Corsia Preferenziale", "Dx"},
                                     {"Check", "", "Check progetto rotatoria", "Check"},
                                     {"Google", "", "", "terra"},
                                     {"KelvoCAD", "KelvoCAD", "Avvia KelvoCAD", "KelvoCAD"},
                                     {"Esci", "Esci", "Esci dal programma", "Esci"}};
    const auto& tasti = f.cornice.ctlToolbar.tasti();
    ASSERT_EQ(tasti.size(), attesi.size());
    for (std::size_t i = 0; i < attesi.size(); ++i) {
        EXPECT_EQ(tasti[i].chiave, attesi[i].chiave);
        EXPECT_EQ(tasti[i].testo, attesi[i].testo);
        EXPECT_EQ(tasti[i].suggerimento, attesi[i].suggerimento);
        EXPECT_EQ(tasti[i].icona, attesi[i].icona);
    }
}

TEST(Barra, TheToolButtonsShowTheirWindowAndLeaveTheSelection) {
    ShellFinta f;
    f.cornice.Load();
    f.nuovo(3);
    f.cornice.ctlToolbar.premi("Opzioni");
    EXPECT_EQ(f.nomeCorrente(), "frmOpzioni");
    EXPECT_EQ(f.cornice.albero.ctlTree.selezionato(), "keyOpzioni");
    for (const auto& [tasto, finestra] : {std::pair{"Analizzatore", "frmConfronti"}, std::pair{"Dx", "frmDX"},
                                          std::pair{"Check", "frmANALIZZATORE"}, std::pair{"Google", "frmGoogle"}}) {
        f.cornice.ctlToolbar.premi(tasto);
        EXPECT_EQ(f.nomeCorrente(), finestra);
        EXPECT_EQ(f.cornice.albero.ctlTree.selezionato(), "keyOpzioni");
        EXPECT_EQ(f.cornice.albero.nodoCorrente(), "keyOpzioni");
    }
    f.messaggi.risposte = {Risposta::no};
    f.cornice.ctlToolbar.premi("KelvoCAD");
    ASSERT_EQ(f.messaggi.mostrati.size(), 1U);
    EXPECT_EQ(f.messaggi.mostrati.front().testo,
              "Attenzione! Per continuare è necessario salvare il progetto. Salvare adesso?");
    f.cornice.ctlToolbar.premi("Help");
    EXPECT_EQ(f.documenti.aperti.size(), 1U);
    f.cornice.ctlToolbar.premi("Salva");
    EXPECT_EQ(f.dialogo.richieste.size(), 1U);
    f.messaggi.risposte = {Risposta::no};
    f.cornice.ctlToolbar.premi("Chiudi");
    EXPECT_EQ(f.stato.statoProgetto, StatoProgetto::NessunProgetto);
    f.cornice.ctlToolbar.premi("Apri");
    EXPECT_EQ(f.dialogo.richieste.size(), 2U);
    f.cornice.ctlToolbar.premi("Nuovo");
    EXPECT_EQ(f.stato.statoProgetto, StatoProgetto::ProgettoNuovo);
    f.messaggi.risposte = {Risposta::no, Risposta::ok};
    f.cornice.ctlToolbar.premi("Esci");
    EXPECT_TRUE(f.superficie.terminata);
}

class Stati : public ::testing::TestWithParam<StatoProgetto> {};

TEST_P(Stati, ButtonsAndMenusFollowTheState) {
    ShellFinta f;
    f.cornice.Load();
    f.nuovo(3);
    f.cornice.gestioneToolbar(GetParam());
    const bool con = GetParam() != StatoProgetto::NessunProgetto;
    EXPECT_EQ(f.stato.statoProgetto, GetParam());
    for (const char* tasto : {"Nuovo", "Apri"}) {
        EXPECT_EQ(acceso(f, tasto), !con) << tasto;
    }
    for (const char* tasto : {"Chiudi", "Salva", "Opzioni", "KelvoCAD", "Analizzatore", "Check", "Dx", "Google"}) {
        EXPECT_EQ(acceso(f, tasto), con) << tasto;
    }
    EXPECT_TRUE(acceso(f, "Help"));
    EXPECT_TRUE(acceso(f, "Esci"));
    for (const char* voce : {"mnuNuovo", "mnuApri"}) {
        EXPECT_EQ(f.cornice.ctlMenu.voce(voce).abilitata, !con) << voce;
    }
    for (const char* voce :
         {"mnuChiudi", "mnuSalva", "mnuDati", "mnuOpzioni", "mnuRisultati", "mnuStrumenti", "mnuKelvoCAD"}) {
        EXPECT_EQ(f.cornice.ctlMenu.voce(voce).abilitata, con) << voce;
    }
    EXPECT_TRUE(f.cornice.ctlMenu.voce("mnuHelp").abilitata);
    EXPECT_TRUE(f.cornice.ctlMenu.voce("mnuEsci").abilitata);
    EXPECT_EQ(f.cornice.ctlToolbar.tasti().size(), 12U);
}

INSTANTIATE_TEST_SUITE_P(Tutti, Stati,
                         ::testing::Values(StatoProgetto::ProgettoNuovo, StatoProgetto::ProgettoSalvato,
                                           StatoProgetto::NessunProgetto, StatoProgetto::ProgettoCaricato));

TEST(StatiIniziali, BeforeAnyProjectTheFlagsAreThoseOfNoProject) {
    ShellFinta f;
    f.cornice.Load();
    EXPECT_TRUE(acceso(f, "Nuovo"));
    EXPECT_FALSE(acceso(f, "Salva"));
    EXPECT_FALSE(f.cornice.ctlMenu.voce("mnuSalva").abilitata);
    EXPECT_TRUE(f.cornice.ctlMenu.voce("mnuEsci").abilitata);
}

bool aperto(ShellFinta& f, const std::string& chiave) {
    const bool nodo = f.cornice.albero.ctlTree.nodo(chiave).ForeColor == frmTreeView::coloreAbilitato;
    EXPECT_EQ(nodo, f.cornice.ctlMenu.voce(chiave).abilitata) << chiave;
    return nodo;
}

class Opzioni : public ::testing::TestWithParam<int> {
protected:
    void SetUp() override {
        f.disposizione(GetParam());
        f.cornice.Load();
        f.nuovo(3);
    }
    ShellFinta f;
};

TEST_P(Opzioni, WithoutTheOptimisationItsNodesAndEntriesAreClosed) {
    for (const char* ramo : {"1", "2", "3"}) {
        EXPECT_FALSE(aperto(f, std::string("keyAnalisiMarginale") + ramo));
        EXPECT_FALSE(aperto(f, std::string("keyOttimizzazioneGeometrica") + ramo));
        EXPECT_TRUE(aperto(f, std::string("keyRamo") + ramo));
    }
}

TEST_P(Opzioni, AClosedKeyTellsWhatOpensIt) {
    const std::string opzione = "Si apre con «Ottimizzazione Geometrica» nelle Opzioni";
    const std::string scelta = "Si apre spuntando una grandezza in Opzioni Analisi Marginale";
    const auto nota = [this](const std::string& chiave) {
        const std::string& nodo = f.cornice.albero.ctlTree.nodo(chiave).nota;
        EXPECT_EQ(f.cornice.ctlMenu.voce(chiave).nota, nodo) << chiave;
        return nodo;
    };
    EXPECT_EQ(nota("keyAnalisiMarginale1"), opzione);
    EXPECT_EQ(nota("keyOttimizzazioneGeometrica1"), opzione);
    EXPECT_EQ(nota("keyRamo1"), "");
    f.app.theRotonda().OttimizzazioneGeometrica(true);
    f.app.theRotonda().Ramo(2).theAnalisiMarginale().UsaSemiLarghezza(true);
    f.cornice.SetUpOpzioni();
    EXPECT_EQ(nota("keyAnalisiMarginale1"), "");
    EXPECT_EQ(nota("keyOttimizzazioneGeometrica1"), scelta);
    EXPECT_EQ(nota("keyOttimizzazioneGeometrica2"), "");
    f.cornice.Handle_Menu();
    EXPECT_EQ(nota("keyOttimizzazioneGeometrica1"), scelta) << "a menu that is built anew";
}

TEST_P(Opzioni, TheTrafficKeysAreOpenWhateverWindowIsChosen) {
    for (const int tipo : {2, 1, 0}) {
        f.app.theRotonda().TipoAnalisi(static_cast<std::int16_t>(tipo));
        f.cornice.SetUpOpzioni();
        EXPECT_TRUE(aperto(f, "keyDatiTraffico1")) << tipo;
        EXPECT_EQ(f.cornice.albero.ctlTree.nodo("keyDatiTraffico1").nota, "") << tipo;
    }
}

TEST_P(Opzioni, EachFlagOfALegOpensItsResults) {
    using Scrittore = void (AnalisiMarginale::*)(bool);
    const std::vector<Scrittore> flag{
        &AnalisiMarginale::UsaLarghezzaIngresso,  &AnalisiMarginale::UsaSemiLarghezza,
        &AnalisiMarginale::UsaLunghezzaSvasatura, &AnalisiMarginale::UsaAngoloConflitto,
        &AnalisiMarginale::UsaRaggioCurvatura,    &AnalisiMarginale::UsaDiametroInscritto};
    f.app.theRotonda().OttimizzazioneGeometrica(true);
    for (const Scrittore scrivi : flag) {
        AnalisiMarginale& usa = f.app.theRotonda().Ramo(2).theAnalisiMarginale();
        (usa.*scrivi)(true);
        f.cornice.SetUpOpzioni();
        EXPECT_TRUE(aperto(f, "keyAnalisiMarginale1"));
        EXPECT_TRUE(aperto(f, "keyAnalisiMarginale2"));
        EXPECT_TRUE(aperto(f, "keyOttimizzazioneGeometrica2"));
        EXPECT_FALSE(aperto(f, "keyOttimizzazioneGeometrica1"));
        (usa.*scrivi)(false);
        f.cornice.SetUpOpzioni();
        EXPECT_FALSE(aperto(f, "keyOttimizzazioneGeometrica2"));
    }
    f.app.theRotonda().Ramo(3).theAnalisiMarginale().UsaSemiLarghezza(true);
    f.cornice.LoadTreeView();
    EXPECT_TRUE(aperto(f, "keyOttimizzazioneGeometrica3"));
    EXPECT_FALSE(aperto(f, "keyOttimizzazioneGeometrica1"));
    f.app.theRotonda().OttimizzazioneGeometrica(false);
    f.cornice.SetUpOpzioni();
    EXPECT_FALSE(aperto(f, "keyAnalisiMarginale2"));
    EXPECT_FALSE(aperto(f, "keyOttimizzazioneGeometrica3"));
}

TEST_P(Opzioni, WithoutATreeInSightNothingIsClosed) {
    f.app.theRotonda().OttimizzazioneGeometrica(true);
    f.cornice.SetUpOpzioni();
    f.cornice.albero.visibile(false);
    f.app.theRotonda().OttimizzazioneGeometrica(false);
    f.cornice.SetUpOpzioni();
    EXPECT_TRUE(aperto(f, "keyAnalisiMarginale1"));
}

INSTANTIATE_TEST_SUITE_P(Layouts, Opzioni, ::testing::Values(0, 1));

TEST(OgniChiave, LeadsToAWindowThatIsRegistered) {
    ServiziFinestreFinti servizi;
    FabbricaFinestre vere;
    registraFinestre(vere, servizi.servizi());
    std::set<std::string_view> mete{"frmDatiTraffico", "frmDatiTrafficoST", "frmComposizioneTraffico",
                                    "frmComposizioneTrafficoST", "frmOPZrelazione"};
    for (const FinestraDiChiave& riga : finestrePerChiave) {
        if (riga.finestra.front() != '<') {
            mete.insert(riga.finestra);
        }
    }
    for (const RigaBarra& riga : barraPrincipale) {
        if (riga.azione == AzioneTasto::finestra) {
            mete.insert(riga.argomento);
        }
    }
    EXPECT_GT(mete.size(), 20U);
    for (const std::string_view meta : mete) {
        EXPECT_TRUE(vere.conosce(meta)) << meta;
    }
}

TEST(OgniChiave, IsOpenWithTheRealWindowsAndTellsNoReasonToBeClosed) {
    for (const int disposizione : {0, 1}) {
        ServiziFinestreFinti servizi;
        ShellFinta f;
        f.disposizione(disposizione);
        MDI_Form cornice{
            f.app, f.stato, {f.superficie, f.dialogo, f.documenti, f.impostazioni, f.cronometro, f.cartella.file("R")}};
        registraFinestre(cornice.finestre, servizi.servizi());
        cornice.Load();
        creaProgetto(f.app, 3);
        f.app.theRotonda().OttimizzazioneGeometrica(true);
        for (std::int16_t ramo = 1; ramo <= 3; ++ramo) {
            f.app.theRotonda().Ramo(ramo).theAnalisiMarginale().UsaSemiLarghezza(true);
        }
        cornice.LoadTreeView();
        cornice.SetUpOpzioni();
        cornice.gestioneToolbar(StatoProgetto::ProgettoNuovo);
        for (const std::string& chiave : cornice.albero.ctlTree.chiavi()) {
            const Albero::Nodo& nodo = cornice.albero.ctlTree.nodo(chiave);
            EXPECT_EQ(nodo.ForeColor, frmTreeView::coloreAbilitato) << chiave;
            EXPECT_EQ(nodo.nota, "") << chiave;
            if (cornice.ctlMenu.contiene(chiave)) {
                EXPECT_TRUE(cornice.ctlMenu.voce(chiave).abilitata) << chiave;
                EXPECT_EQ(cornice.ctlMenu.voce(chiave).nota, "") << chiave;
            }
        }
        for (const auto& tasto : cornice.ctlToolbar.tasti()) {
            EXPECT_EQ(tasto.abilitato, tasto.chiave != "Nuovo" && tasto.chiave != "Apri") << tasto.chiave;
            EXPECT_EQ(tasto.nota, "") << tasto.chiave;
        }
        for (const char* voce : {"mnuKelvoCAD2", "mnuCompilaRelazione"}) {
            EXPECT_TRUE(cornice.ctlMenu.voce(voce).abilitata) << voce;
        }
        EXPECT_TRUE(f.messaggi.mostrati.empty());
    }
}

}  // namespace
}  // namespace kelvo::prove::shell
