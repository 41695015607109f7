#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QToolBar>
#include <filesystem>

#include "ui/banco.h"

namespace kelvo::prove {
namespace {

using gesti::attendi;
using gesti::clic;
using gesti::smaltisci;
using gesti::tasto;

/// The settings of the sensitivity analysis on a new project of three legs that has the option.
class AnalisiMarginaleVista : public testing::Test {
protected:
    void SetUp() override {
        banco.mostra();
        banco.nuovo(3);
    }
    void abilita() {
        banco.vai("keyOpzioni");
        premi("chkOttimizzazioneGeometrica");
        tasto(Qt::Key_Return, Qt::ControlModifier);  // the tree follows the project, not the tick
        smaltisci();
        banco.vai("keyAnalisiMarginale1");
        ASSERT_EQ(banco.nomeCorrente(), "frmAnalisiMarginale");
    }
    void premi(const char* nome) {
        auto& bottone = banco.oggetto<QAbstractButton>(nome);
        clic(bottone, QPoint(12, bottone.height() / 2));
        smaltisci();
    }
    void scrivi(const char* campo, const std::string& testo) {
        dynamic_cast<QLineEdit&>(banco.entra(campo)).selectAll();
        gesti::digita(testo);
    }
    /// Types into a field and leaves it by the tab key; true if it let go.
    bool accetta(const char* campo, const std::string& testo) {
        scrivi(campo, testo);
        banco.messaggi.mostrati.clear();
        tasto(Qt::Key_Tab);
        smaltisci();
        const bool fuori = gesti::fuoco() != campo;
        EXPECT_EQ(banco.messaggi.mostrati.size(), fuori ? 0U : 1U) << campo << " " << testo;
        return fuori;
    }
    AnalisiMarginale& analisi(std::int16_t ramo) { return banco.app.theRotonda().Ramo(ramo).theAnalisiMarginale(); }
    Banco banco;
};

TEST_F(AnalisiMarginaleVista, ItsNodesOpenOnlyWithTheOptionOfTheProject) {
    banco.vai("keyTempoModellazione");
    gesti::clicNodo(banco.albero(), "keyAnalisiMarginale2");
    smaltisci();
    EXPECT_EQ(banco.nomeCorrente(), "frmTempoModellazione");
    EXPECT_FALSE(banco.cornice.ctlMenu.voce("keyAnalisiMarginale2").abilitata);
    abilita();
    for (const char* ramo : {"1", "2", "3"}) {
        banco.vai(std::string{"keyAnalisiMarginale"} + ramo);
        EXPECT_EQ(banco.nomeCorrente(), "frmAnalisiMarginale");
        EXPECT_EQ(banco.cornice.gestione.corrente()->sottotitolo.testo(),
                  "Ramo " + std::string(1, static_cast<char>('A' + ramo[0] - '1')));
        EXPECT_TRUE(banco.cornice.ctlMenu.voce(std::string{"keyAnalisiMarginale"} + ramo).abilitata);
    }
    banco.vai("keyOpzioni");
    premi("chkOttimizzazioneGeometrica");
    tasto(Qt::Key_Return, Qt::ControlModifier);
    smaltisci();
    EXPECT_FALSE(banco.cornice.ctlMenu.voce("keyAnalisiMarginale2").abilitata);
    gesti::clicNodo(banco.albero(), "keyAnalisiMarginale2");
    smaltisci();
    EXPECT_EQ(banco.nomeCorrente(), "frmOpzioni");
}

TEST_F(AnalisiMarginaleVista, TheMenuOpensItForItsLeg) {
    abilita();
    banco.vai("keyMyProject");
    ASSERT_TRUE(gesti::menu(banco.vista, {"mnuDati", "Ramo B", "keyAnalisiMarginale2"}));
    ASSERT_TRUE(attendi([&] { return banco.nomeCorrente() == "frmAnalisiMarginale"; }));
    EXPECT_EQ(banco.cornice.gestione.corrente()->sottotitolo.testo(), "Ramo B");
}

TEST_F(AnalisiMarginaleVista, AnEditOfOneLegStaysWithItWhenAnotherIsClicked) {
    abilita();
    scrivi("txtLungSvasatura", "3,5");
    premi("chkLungSvasatura");
    scrivi("txtAttraversamentoPedonale", "12");
    const auto prima = istantanea(banco.app.theRotonda());
    banco.vai("keyAnalisiMarginale2");
    EXPECT_EQ(analisi(1).LungSvasatura(), 3.5);
    EXPECT_TRUE(analisi(1).UsaLunghezzaSvasatura());
    EXPECT_EQ(analisi(1).AttraversamentoPedonale(), 12.0);
    const auto dopo = istantanea(banco.app.theRotonda());
    int mutate = 0;
    for (const auto& [nome, valore] : dopo) {
        if (prima.at(nome) != valore) {
            ++mutate;
            EXPECT_EQ(nome.rfind("Ramo 1/AnalisiMarginale/", 0), 0U) << nome;
        }
    }
    EXPECT_EQ(mutate, 3);
    EXPECT_EQ(banco.oggetto<QLineEdit>("txtLungSvasatura").text(), QStringLiteral("0,50"));
}

TEST_F(AnalisiMarginaleVista, EveryStepHoldsBothItsLimits) {
    struct Passo {
        const char* campo;
        const char* sotto;
        const char* minimo;
        const char* massimo;
        const char* sopra;
    };
    constexpr std::array passi{
        Passo{"txtLarghezzaIngresso", "0,009", "0,01", "2", "2,01"},
        Passo{"txtSemiLarghezza", "0,009", "0,01", "2", "2,01"},
        Passo{"txtLungSvasatura", "0,009", "0,01", "20", "20,01"},
        Passo{"txtAngoloConflitto", "0,09", "0,1", "20", "20,01"},
        Passo{"txtRaggioCurvatura", "0,09", "0,1", "20", "20,01"},
        Passo{"txtDiametroInscritto", "0,09", "0,1", "50", "50,01"},
    };
    abilita();
    for (const Passo& passo : passi) {
        EXPECT_FALSE(accetta(passo.campo, passo.sotto)) << passo.campo;
        EXPECT_TRUE(accetta(passo.campo, passo.minimo)) << passo.campo;
        EXPECT_FALSE(accetta(passo.campo, passo.sopra)) << passo.campo;
        EXPECT_TRUE(accetta(passo.campo, passo.massimo)) << passo.campo;
    }
    EXPECT_FALSE(accetta("txtAttraversamentoPedonale", "100,01"));
    EXPECT_TRUE(accetta("txtAttraversamentoPedonale", "100"));
    premi("chkCondizioniEsterne");
    EXPECT_FALSE(accetta("txtCondizioniEsterne", "-100,01"));
    EXPECT_TRUE(accetta("txtCondizioniEsterne", "-100"));
    EXPECT_FALSE(accetta("txtCondizioniEsterne", "100,01"));
    EXPECT_TRUE(accetta("txtCondizioniEsterne", "100"));
}

TEST_F(AnalisiMarginaleVista, AnExternalConditionThatCountsWithoutItsTickSaysSo) {
    abilita();
    auto& nota = banco.oggetto<QWidget>("lblCondizioniEsterne");
    premi("chkCondizioniEsterne");
    scrivi("txtCondizioniEsterne", "-7,5");
    scrivi("txtDescrizioneCondizioniEsterne", "fermata dell'autobus");
    EXPECT_FALSE(nota.isVisible());
    premi("chkCondizioniEsterne");
    EXPECT_TRUE(nota.isVisible());
    EXPECT_FALSE(banco.oggetto<QWidget>("txtDescrizioneCondizioniEsterne").isEnabled());
    banco.vai("keyMyProject");
    EXPECT_EQ(analisi(1).CondizioniEsterne(), -7.5);
    EXPECT_EQ(analisi(1).DescrizioneCondizioniEsterne(), "fermata dell'autobus");
    EXPECT_FALSE(analisi(1).UsaCondizioniEsterne());
}

TEST_F(AnalisiMarginaleVista, TheMnemonicOfACheckBoxTicksIt) {
    abilita();
    auto& spunta = banco.oggetto<QAbstractButton>("chkLarghezzaIngresso");
    EXPECT_EQ(spunta.text(), QStringLiteral("&Larghezza ingresso"));
    EXPECT_FALSE(spunta.isChecked());
    tasto(Qt::Key_L, Qt::AltModifier);
    EXPECT_TRUE(attendi([&] { return spunta.isChecked(); }));
    banco.vai("keyAnalisiMarginale2");
    EXPECT_TRUE(analisi(1).UsaLarghezzaIngresso());
}

TEST_F(AnalisiMarginaleVista, TheHelpPaneFollowsTheKeyboard) {
    abilita();
    EXPECT_EQ(banco.cornice.gestione.corrente()->aiuto()->pagina(), "PassoLarghezzaIngresso.htm");
    banco.entra("txtCondizioniEsterne");
    banco.entra("txtRaggioCurvatura");
    EXPECT_EQ(banco.cornice.gestione.corrente()->aiuto()->pagina(), "PassoRaggioCurvatura.htm");
    banco.entra("txtAttraversamentoPedonale");
    EXPECT_EQ(banco.cornice.gestione.corrente()->aiuto()->pagina(), "IncidenzaPedonale.htm");
}

}  // namespace
}  // namespace kelvo::prove
