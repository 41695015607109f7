#include "shell/frmAnagraficaRotonda.h"

#include <gtest/gtest.h>

#include "app/nuovoProgetto.h"
#include "comune/fintiFinestre.h"

namespace kelvo::prove {
namespace {

struct ProveAnagrafica : testing::Test, ScenaFinestre {
    frmAnagraficaRotonda finestra{contorno()};
    ProveAnagrafica() {
        creaProgetto(app, 5);
        Rotonda& r = app.theRotonda();
        r.NomeFile("Prova");
        r.Data(giornoCalendario(2024, 3, 1));
        r.StatoAvanzamento("Progetto Definitivo");
        r.Localita("Borgo");
        r.Comune("Lucca");
        r.Provincia("LU");
        r.Titolo("Titolo");
        r.Note("riga uno\nriga due");
        stato.ProgettoAperto = true;
        finestra.attivata();
    }
    Rotonda& rotonda() { return app.theRotonda(); }
};

TEST_F(ProveAnagrafica, FieldsAndLabelsAreThoseOfTheProject) {
    struct Riga {
        const Etichetta& etichetta;
        const char* testo;
        const std::string& valore;
        const char* atteso;
    };
    const std::array righe{
        Riga{finestra.lblNomeFile, "Nome progetto - file", finestra.txtNomeFile.testo(), "Prova"},
        Riga{finestra.lblData, "Data", finestra.txtData.testo(), "01/03/2024"},
        Riga{finestra.lblStatoAvanzamento, "Stato di avanzamento", finestra.txtStatoAvanzamento.testo(),
             "Progetto Definitivo"},
        Riga{finestra.lblLocalita, "Località / Frazione / Borgata", finestra.txtLocalita.testo(), "Borgo"},
        Riga{finestra.lblComune, "Comune", finestra.txtComune.testo(), "Lucca"},
        Riga{finestra.lblProvincia, "Provincia", finestra.txtProvincia.testo(), "LU"},
        Riga{finestra.lblTitolo, "Titolo - Descrizione", finestra.txtTitolo.testo(), "Titolo"},
        Riga{finestra.lblNote, "Note", finestra.txtNote.testo(), "riga uno\nriga due"},
        Riga{finestra.lblNumeroRami, "Numero rami", finestra.txtNumeroRami.testo(), "5"},
    };
    for (const Riga& riga : righe) {
        EXPECT_EQ(riga.etichetta.testo(), riga.testo);
        EXPECT_EQ(riga.valore, riga.atteso) << riga.testo;
    }
    EXPECT_EQ(finestra.didascalia(), "Anagrafica intersezione");
}

TEST_F(ProveAnagrafica, TheStagesAreOfferedAndFreeTextIsTaken) {
    EXPECT_EQ(finestra.txtStatoAvanzamento.voci(),
              (std::vector<std::string>{"Progetto Preliminare", "Progetto Definitivo", "Progetto Esecutivo",
                                        "Studio di prefattibilità", "Studio preliminare", "Verifica prestazionale",
                                        "Versione Finale", "Analisi operativa (cantiere)!"}));
    finestra.txtStatoAvanzamento.scrivi("In gara");
    finestra.SaveData();
    EXPECT_EQ(rotonda().StatoAvanzamento(), "In gara");
}

TEST_F(ProveAnagrafica, TheNumberOfLegsCannotBeChanged) {
    finestra.txtNumeroRami.scrivi("7");
    finestra.SaveData();
    EXPECT_EQ(finestra.txtNumeroRami.testo(), "5");
    EXPECT_EQ(rotonda().NumeroRami(), 5);
}

TEST_F(ProveAnagrafica, TheFocusGoesToTheFirstFieldOfAnOpenProject) {
    EXPECT_EQ(finestra.fuoco(), &finestra.txtNomeFile);
    stato.ProgettoAperto = false;
    frmAnagraficaRotonda altra(contorno());
    altra.attivata();
    EXPECT_EQ(altra.fuoco(), nullptr);
}

TEST_F(ProveAnagrafica, TheCaptionFollowsTheNameAtEachKey) {
    finestra.txtNomeFile.scrivi("P");
    EXPECT_EQ(cornice.caption, "KELVO 2014 - [P.klv]");
    finestra.txtNomeFile.scrivi("Pi");
    EXPECT_EQ(cornice.caption, "KELVO 2014 - [Pi.klv]");
    finestra.txtNomeFile.annulla();
    EXPECT_EQ(cornice.caption, "KELVO 2014 - [Prova.klv]");
}

TEST_F(ProveAnagrafica, EachForbiddenCharacterKeepsTheNameWithItsMessage) {
    for (const char* vietato : {"\\", "/", ":", "*", "?", "\"", "<", ">", "|"}) {
        messaggi.mostrati.clear();
        finestra.txtNomeFile.scrivi(std::string{"a"} + vietato + "b*");
        EXPECT_FALSE(finestra.txtNomeFile.lascia()) << vietato;
        ASSERT_EQ(messaggi.mostrati.size(), 1U) << vietato;
        EXPECT_EQ(messaggi.mostrati[0].testo, "Attenzione, non sono permessi i caratteri: \\/:*?\"<>|");
        EXPECT_EQ(messaggi.mostrati[0].titolo, "KELVO 2014 - Errore");
        EXPECT_EQ(messaggi.mostrati[0].icona, Icona::critica);
    }
    finestra.ctlToolbar.premi("AggiornaDati");
    EXPECT_EQ(rotonda().NomeFile(), "Prova");
    finestra.txtNomeFile.scrivi("Piazza d'Italia (1) è");
    finestra.ctlToolbar.premi("AggiornaDati");
    EXPECT_EQ(rotonda().NomeFile(), "Piazza d'Italia (1) è");
}

TEST_F(ProveAnagrafica, EachFieldThatDiffersTakesTheAlignmentAwayOnLeaving) {
    for (tBox* campo : {&finestra.txtNomeFile, &finestra.txtStatoAvanzamento, &finestra.txtLocalita,
                        &finestra.txtComune, &finestra.txtProvincia, &finestra.txtTitolo}) {
        finestra.ReadData();
        EXPECT_TRUE(campo->lascia());
        EXPECT_TRUE(finestra.DatiAllineati()) << campo->nome();
        campo->scrivi("altro");
        EXPECT_TRUE(finestra.DatiAllineati()) << campo->nome();
        EXPECT_TRUE(campo->lascia());
        EXPECT_FALSE(finestra.DatiAllineati()) << campo->nome();
    }
    finestra.ReadData();
    finestra.txtData.scrivi("02/03/2024");
    finestra.txtData.lascia();
    EXPECT_FALSE(finestra.DatiAllineati());
    finestra.ReadData();
    finestra.txtNote.scrivi("altro");
    finestra.txtNote.lascia();
    EXPECT_FALSE(finestra.DatiAllineati());
    finestra.SaveData();
    EXPECT_TRUE(finestra.DatiAllineati());
}

TEST_F(ProveAnagrafica, ASaveWritesEveryFieldAndTheCaption) {
    finestra.txtNomeFile.scrivi("Nuova");
    finestra.txtData.scrivi("21/11/2026");
    finestra.txtStatoAvanzamento.scegli(6);
    finestra.txtLocalita.scrivi("L2");
    finestra.txtComune.scrivi("C2");
    finestra.txtProvincia.scrivi("P2");
    finestra.txtTitolo.scrivi("T2");
    finestra.txtNote.scrivi("N2");
    cornice.caption.clear();
    finestra.SaveData();
    EXPECT_EQ(rotonda().NomeFile(), "Nuova");
    EXPECT_EQ(rotonda().Data(), giornoCalendario(2026, 11, 21));
    EXPECT_EQ(rotonda().StatoAvanzamento(), "Versione Finale");
    EXPECT_EQ(rotonda().Localita(), "L2");
    EXPECT_EQ(rotonda().Comune(), "C2");
    EXPECT_EQ(rotonda().Provincia(), "P2");
    EXPECT_EQ(rotonda().Titolo(), "T2");
    EXPECT_EQ(rotonda().Note(), "N2");
    EXPECT_EQ(cornice.caption, "KELVO 2014 - [Nuova.klv]");
    EXPECT_FALSE(finestra.txtNomeFile.modificato() || finestra.txtNote.modificato());
}

/// A main window that writes down what the project held when its caption was put.
class CorniceCheGuarda final : public Cornice {
public:
    explicit CorniceCheGuarda(Rotonda& rotonda) : rotonda_(rotonda) {}
    std::string titolo() const override { return {}; }
    void titolo(const std::string& /*testo*/) override {
        visti = {rotonda_.Note(),     rotonda_.Titolo(), rotonda_.NomeFile(), rotonda_.StatoAvanzamento(),
                 rotonda_.Localita(), rotonda_.Comune(), rotonda_.Provincia()};
    }
    void testoNodi(const std::string& /*chiave*/, const std::string& /*testo*/) override {}
    void SetUpOpzioni() override {}
    void LoadTreeView() override {}
    void mostraMenu(bool /*visibili*/) override {}
    void avviso(const std::string& /*testo*/) override {}
    std::vector<std::string> visti;

private:
    Rotonda& rotonda_;
};

TEST_F(ProveAnagrafica, TheCaptionIsPutBetweenTheNameAndTheStage) {
    CorniceCheGuarda guarda(rotonda());
    frmAnagraficaRotonda altra({app, stato, guarda, navigazione});
    altra.ReadData();
    for (tBox* campo : {&altra.txtNomeFile, &altra.txtStatoAvanzamento, &altra.txtLocalita, &altra.txtComune,
                        &altra.txtProvincia, &altra.txtTitolo}) {
        campo->scrivi("nuovo");
    }
    altra.txtNote.scrivi("nuovo");
    altra.SaveData();
    EXPECT_EQ(guarda.visti,
              (std::vector<std::string>{"nuovo", "nuovo", "nuovo", "Progetto Definitivo", "Borgo", "Lucca", "LU"}));
}

TEST_F(ProveAnagrafica, LookingAtTheWindowChangesNothing) {
    rotonda().Data(giornoCalendario(2024, 3, 1) + 0.5);  // more than the field shows
    const auto prima = rotonda().revisione().tutto;
    gestione.ShowForm(&finestra);
    gestione.ShowForm(&finestra);
    EXPECT_EQ(rotonda().revisione().tutto, prima);
    gestione.chiudiCorrente();
}

}  // namespace
}  // namespace kelvo::prove
