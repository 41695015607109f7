#include "input/frmToponomasticaIntersezione.h"

#include <gtest/gtest.h>

#include <array>

#include "app/nuovoProgetto.h"
#include "comune/fintiFinestre.h"

namespace kelvo::prove {
namespace {

struct ProveToponomastica : testing::Test, ScenaFinestre {
    frmToponomasticaIntersezione finestra{contorno()};

    ProveToponomastica() {
        creaProgetto(app, 4);
        EXPECT_TRUE(gestione.ShowForm(&finestra));
    }
    Ramo& ramo(std::int16_t i) { return app.theRotonda().Ramo(i); }
    bool scrivi(std::size_t campo, const std::string& testo) {
        finestra.fuocoSu(finestra.txtIngresso[campo]);
        finestra.txtIngresso[campo].scrivi(testo);
        return finestra.lasciaFuoco();
    }
};

TEST_F(ProveToponomastica, TheFirstFieldsAreInUseOneForEachLeg) {
    EXPECT_EQ(finestra.didascalia(), "Toponomastica Intersezione");
    EXPECT_EQ(finestra.ctlPicture.risorsa(), "RAMI4");
    for (std::size_t i = 0; i < 7; ++i) {
        const char lettera = static_cast<char>('A' + i);
        EXPECT_EQ(finestra.txtIngresso[i].nome(), "txtIngresso" + std::to_string(i + 1));
        EXPECT_EQ(finestra.lblIngresso[i].testo(), std::string{"Ingresso "} + lettera + ":");
        EXPECT_EQ(finestra.txtIngresso[i].visibile(), i < 4) << i;
        EXPECT_EQ(finestra.txtIngresso[i].testo(), i < 4 ? std::string{"Ramo "} + lettera : "") << i;
    }
}

TEST(ProveToponomasticaRami, EveryLegHasItsFieldAndThePictureItsNumber) {
    for (const std::int16_t rami : std::array<std::int16_t, 4>{3, 5, 6, 7}) {
        ScenaFinestre scena;
        creaProgetto(scena.app, rami);
        frmToponomasticaIntersezione finestra{scena.contorno()};
        ASSERT_TRUE(scena.gestione.ShowForm(&finestra));
        EXPECT_EQ(finestra.ctlPicture.risorsa(), "RAMI" + std::to_string(rami));
        for (std::size_t i = 0; i < 7; ++i) {
            EXPECT_EQ(finestra.txtIngresso[i].visibile(), i < static_cast<std::size_t>(rami)) << rami;
        }
        finestra.txtIngresso[static_cast<std::size_t>(rami) - 1].scrivi("Via Ultima");
        finestra.SaveData();
        EXPECT_EQ(scena.app.theRotonda().Ramo(rami).Descrizione(), "Via Ultima");
    }
}

TEST_F(ProveToponomastica, TheSignFollowsWhatStandsInTheFields) {
    finestra.fuocoSu(finestra.txtIngresso[0]);
    finestra.txtIngresso[0].scrivi("Via Nuova");
    EXPECT_FALSE(finestra.DatiAllineati());
    EXPECT_TRUE(finestra.txtIngresso[0].annulla());
    EXPECT_TRUE(finestra.DatiAllineati());
}

TEST_F(ProveToponomastica, OneBadNameKeepsNoneOfTheOthersBack) {
    finestra.txtIngresso[0].scrivi("Via Prima");
    finestra.txtIngresso[1].scrivi("Via/Seconda");
    finestra.txtIngresso[2].scrivi("Via Terza");
    finestra.SaveData();
    EXPECT_EQ(ramo(1).Descrizione(), "Via Prima");
    EXPECT_EQ(ramo(2).Descrizione(), "Ramo B");
    EXPECT_EQ(ramo(3).Descrizione(), "Via Terza");
    EXPECT_FALSE(finestra.DatiAllineati());
}

TEST_F(ProveToponomastica, ANameThatPassesIsWrittenAndTheNodesTakeIt) {
    EXPECT_TRUE(scrivi(1, "Via Roma"));
    EXPECT_EQ(ramo(2).Descrizione(), "Via Roma");
    EXPECT_EQ(cornice.nodi["2Ramo"], "Via Roma");
    EXPECT_EQ(cornice.nodi.size(), 1U);
    EXPECT_TRUE(finestra.DatiAllineati());
}

TEST_F(ProveToponomastica, EachForbiddenCharacterHasItsMessage) {
    for (const char vietato : std::string{"\\/:*?\"<>|"}) {
        messaggi.mostrati.clear();
        EXPECT_FALSE(scrivi(0, std::string{"Via "} + vietato)) << vietato;
        ASSERT_EQ(messaggi.mostrati.size(), 1U) << vietato;
        EXPECT_EQ(messaggi.mostrati[0].testo, "Attenzione, non sono permessi i caratteri: \\/:*?\"<>|");
        EXPECT_EQ(messaggi.mostrati[0].titolo, "KELVO 2014 - Errore");
        EXPECT_EQ(messaggi.mostrati[0].icona, Icona::critica);
        EXPECT_TRUE(stato.convalidaFallita);
    }
    EXPECT_EQ(ramo(1).Descrizione(), "Ramo A");
}

TEST_F(ProveToponomastica, TwoForbiddenCharactersShowTheMessageTwice) {
    EXPECT_FALSE(scrivi(0, "a/b:c/d"));
    ASSERT_EQ(messaggi.mostrati.size(), 2U);
    EXPECT_EQ(messaggi.mostrati[0].testo, messaggi.mostrati[1].testo);
}

TEST_F(ProveToponomastica, AnEmptyNameIsRefused) {
    EXPECT_FALSE(scrivi(2, ""));
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(messaggi.mostrati[0].testo, "Attenzione, indicare un nome per il ramo");
    EXPECT_EQ(messaggi.mostrati[0].titolo, "KELVO 2014 - Errore");
    EXPECT_TRUE(stato.convalidaFallita);
    EXPECT_FALSE(gestione.ShowForm(&finestra));
}

TEST_F(ProveToponomastica, HiddenFieldsAreAskedNothing) {
    EXPECT_TRUE(finestra.convalida());
    EXPECT_TRUE(messaggi.mostrati.empty());
}

TEST_F(ProveToponomastica, AggiornaDatiWritesWhatStandsThere) {
    finestra.txtIngresso[3].scrivi("Corso Italia");
    EXPECT_FALSE(finestra.DatiAllineati());
    finestra.ctlToolbar.premi("AggiornaDati");
    EXPECT_EQ(ramo(4).Descrizione(), "Corso Italia");
    EXPECT_EQ(cornice.nodi["4Ramo"], "Corso Italia");
    EXPECT_TRUE(finestra.DatiAllineati());
    finestra.txtIngresso[3].scrivi("altro");
    finestra.ctlToolbar.premi("Refresh");
    EXPECT_EQ(finestra.txtIngresso[3].testo(), "Corso Italia");
}

TEST_F(ProveToponomastica, LookingChangesNothing) {
    const auto prima = app.theRotonda().revisione().tutto;
    for (std::size_t i = 0; i < 4; ++i) {
        finestra.fuocoSu(finestra.txtIngresso[i]);
    }
    finestra.lasciaFuoco();
    finestra.SaveData();
    EXPECT_EQ(app.theRotonda().revisione().tutto, prima);
    EXPECT_TRUE(cornice.nodi.empty());
}

}  // namespace
}  // namespace kelvo::prove
