#include <gtest/gtest.h>

#include <string>

#include "app/nuovoProgetto.h"
#include "comune/finti.h"
#include "comune/guasti.h"

namespace kelvo::prove {
namespace {

struct ProveNuovoProgetto : testing::Test {
    /// The seven coefficients differ from each other and from the factory's.
    ProveNuovoProgetto() { finta.app.configurazione.coefficienti({1.5F, 2.5F, 3.5F, 4.5F, 5.5F, 6.5F, 7.5F}); }
    Rotonda& rotonda() { return finta.app.theRotonda(); }
    AppFinta finta;
};

TEST_F(ProveNuovoProgetto, EveryLegTakesTheSevenCoefficientsOfTheConfiguration) {
    for (const std::int16_t rami : {std::int16_t{3}, std::int16_t{7}}) {
        creaProgetto(finta.app, rami);
        ASSERT_EQ(rotonda().Rami().Count(), rami);
        for (std::int16_t i = 1; i <= rami; ++i) {
            const ComposizioneTraffico& c = rotonda().Ramo(i).theComposizioneTraffico();
            EXPECT_EQ(c.VEAutoarticolati(), 1.5F);
            EXPECT_EQ(c.VEAutotreni(), 2.5F);
            EXPECT_EQ(c.VEPullman(), 3.5F);
            EXPECT_EQ(c.VECamper(), 4.5F);
            EXPECT_EQ(c.VERoulotte(), 5.5F);
            EXPECT_EQ(c.VEVeicoliDueRuote(), 6.5F) << "the key of the configuration is Motocicli";
            EXPECT_EQ(c.VEAutovetture(), 7.5F);
        }
    }
}

TEST_F(ProveNuovoProgetto, LegsAreKeyedByTheirDigitAndNamedByTheirLetter) {
    creaProgetto(finta.app, 7);
    EXPECT_EQ(rotonda().NumeroRami(), 7);
    for (std::int16_t i = 1; i <= 7; ++i) {
        EXPECT_EQ(rotonda().Ramo(i).Key(), std::to_string(i) + "Ramo");
        EXPECT_EQ(rotonda().Ramo(i).Descrizione(), std::string("Ramo ") + "ABCDEFG"[i - 1]);
    }
}

TEST_F(ProveNuovoProgetto, NothingOfTheOldProjectIsLeft) {
    creaProgetto(finta.app, 4);
    rotonda().MatriceSvolte(9.0F, 1, 2);
    rotonda().Titolo("vecchio");
    rotonda().TempoFinale(oraDelGiorno(11, 0));
    rotonda().Ramo(2).LarghezzaIngresso(9.0F);
    rotonda().timbra(FormaCalcolo::piana);
    finta.app.theRamoCorrente = &rotonda().Ramo(2);
    creaProgetto(finta.app, 4);
    EXPECT_EQ(finta.app.theRamoCorrente, nullptr);
    EXPECT_EQ(rotonda().MatriceSvolte(1, 2), 0.0F);
    EXPECT_EQ(rotonda().Titolo(), "");
    EXPECT_EQ(rotonda().TempoFinale(), oraDelGiorno(9, 0));
    EXPECT_EQ(rotonda().Rami().Count(), 4);
    EXPECT_EQ(rotonda().Ramo(2).LarghezzaIngresso(), 5.0F);
    EXPECT_EQ(rotonda().timbro(), Timbro{});
}

TEST_F(ProveNuovoProgetto, FewerThanThreeOrMoreThanSevenLegsAreFault5) {
    EXPECT_EQ(numeroGuasto([&] { creaProgetto(finta.app, 2); }), 5);
    EXPECT_EQ(numeroGuasto([&] { creaProgetto(finta.app, 8); }), 5);
}

}  // namespace
}  // namespace kelvo::prove
