#include "shell/frmInputNumeroRami.h"

#include <gtest/gtest.h>

#include "comune/fintiFinestre.h"

namespace kelvo::prove {
namespace {

struct ProveNumeroRami : testing::Test, ScenaFinestre {
    frmInputNumeroRami finestra{contorno()};
    std::string log = cartella.file("LOG.TXT");
    ProveNumeroRami() {
        scriviContenuto(log, "");
        app.configurazione.PathErrore = "LOG.TXT";
        app.configurazione.TraceAbilitato = true;
    }
};

TEST_F(ProveNumeroRami, TheWarningStandsInTheWindow) {
    EXPECT_EQ(finestra.lblAttenzione.testo(), "ATTENZIONE!");
    EXPECT_EQ(finestra.lblAvvertenza.testo(),
              "Questo parametro non potrà più essere modificato all'interno del progetto");
    EXPECT_EQ(finestra.cmdOk.testo(), "OK");
    EXPECT_EQ(finestra.cmdCancel.testo(), "Annulla");
}

TEST_F(ProveNumeroRami, ThePictureFollowsTheNumber) {
    EXPECT_EQ(finestra.txtNumeroRami.minimo(), 3);
    EXPECT_EQ(finestra.txtNumeroRami.massimo(), 7);
    EXPECT_EQ(finestra.ctlPicture.risorsa(), "4RAMI");
    for (int n = 3; n <= 7; ++n) {
        finestra.txtNumeroRami.imposta(n);
        EXPECT_EQ(finestra.ctlPicture.risorsa(), std::to_string(n) + "RAMI");
    }
}

TEST_F(ProveNumeroRami, CancelOnlySaysThatNoProjectIsOpen) {
    stato.ProgettoAperto = true;
    app.theRotonda().NomeFile("resta");
    finestra.cmdCancel.premi();
    EXPECT_FALSE(stato.ProgettoAperto);
    EXPECT_TRUE(finestra.chiusa());
    EXPECT_EQ(app.theRotonda().NomeFile(), "resta");
    EXPECT_TRUE(cornice.passi.empty());
    EXPECT_EQ(contenuto(log), "");
}

TEST_F(ProveNumeroRami, OkMakesTheProjectAndTracesItsSteps) {
    app.theRotonda().NomeFile("vecchio");
    int chiusure = 0;
    finestra.chiusura().connect([&] {
        ++chiusure;
        // The tree stands before the window goes, and the last line of the trace comes after it.
        EXPECT_EQ(cornice.passi, (std::vector<std::string>{"LoadTreeView"}));
        EXPECT_EQ(contenuto(log).find("Esco"), std::string::npos);
    });
    finestra.txtNumeroRami.imposta(7);
    finestra.cmdOk.premi();
    EXPECT_EQ(chiusure, 1);
    EXPECT_TRUE(stato.ProgettoAperto);
    const Rotonda& r = app.theRotonda();
    EXPECT_EQ(r.NomeFile(), "");
    ASSERT_EQ(r.Rami().Count(), 7);
    EXPECT_EQ(r.Ramo(1).Key(), "1Ramo");
    EXPECT_EQ(r.Ramo(1).Descrizione(), "Ramo A");
    EXPECT_EQ(r.Ramo(7).Key(), "7Ramo");
    EXPECT_EQ(r.Ramo(7).Descrizione(), "Ramo G");
    const ComposizioneTraffico& c = r.Ramo(3).theComposizioneTraffico();
    EXPECT_EQ(c.VEAutoarticolati(), 2.5F);
    EXPECT_EQ(c.VEAutotreni(), 2.0F);
    EXPECT_EQ(c.VEAutovetture(), 1.0F);
    EXPECT_EQ(c.VECamper(), 1.4F);
    EXPECT_EQ(c.VEPullman(), 1.8F);
    EXPECT_EQ(c.VERoulotte(), 1.2F);
    EXPECT_EQ(c.VEVeicoliDueRuote(), 0.8F);
    EXPECT_EQ(contenuto(log),
              "[21/11/2026 10:30:05] - Entro in cmdOk_Click\r\n[21/11/2026 10:30:05] - Esco da cmdOk_Click\r\n");
}

/// A main window whose tree cannot be built.
class CorniceGuasta final : public Cornice {
public:
    std::string titolo() const override { return {}; }
    void titolo(const std::string& /*testo*/) override {}
    void testoNodi(const std::string& /*chiave*/, const std::string& /*testo*/) override {}
    void SetUpOpzioni() override {}
    void LoadTreeView() override { throw Guasto(NumeroGuasto::chiamataNonValida); }
    void mostraMenu(bool /*visibili*/) override {}
    void avviso(const std::string& /*testo*/) override {}
};

TEST_F(ProveNumeroRami, AFaultIsRecordedUnderItsNameAndTheWindowStays) {
    std::vector<ErroreRegistrato> errori;
    app.comune.alErrore = [&](const ErroreRegistrato& errore) { errori.push_back(errore); };
    CorniceGuasta guasta;
    frmInputNumeroRami altra({app, stato, guasta, navigazione});
    altra.cmdOk.premi();
    ASSERT_EQ(errori.size(), 1U);
    EXPECT_EQ(errori[0].numero, 5);
    EXPECT_EQ(errori[0].metodo, "frmInputNumeroRami:cmdOk");
    EXPECT_FALSE(altra.chiusa());
}

}  // namespace
}  // namespace kelvo::prove
