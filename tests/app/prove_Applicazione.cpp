#include <gtest/gtest.h>

#include "app/nuovoProgetto.h"
#include "comune/finti.h"

namespace kelvo::prove {
namespace {

struct ProveApplicazione : testing::Test {
    AppFinta finta;
    Applicazione& app = finta.app;
    std::string messaggio = "?";
    bool esito = false;
};

TEST_F(ProveApplicazione, AFreshProjectIsOfTodayAtMidnightByTheClock) {
    const DataOra mezzanotte = giornoCalendario(2026, 11, 21);
    EXPECT_EQ(app.theRotonda().Data(), mezzanotte);
    EXPECT_EQ(app.theRotonda().NumeroRami(), 4);
    finta.orologio.istante = mezzanotte + 1.0 + oraDelGiorno(23, 59, 59);
    app.nuovaRotonda();
    EXPECT_EQ(app.theRotonda().Data(), mezzanotte + 1.0);
    app.theRotonda().Data(0.0);
    creaProgetto(app, 3);
    EXPECT_EQ(app.theRotonda().Data(), mezzanotte + 1.0);
}

TEST_F(ProveApplicazione, AFreshProjectHasNoCurrentLeg) {
    creaProgetto(app, 3);
    app.theRamoCorrente = &app.theRotonda().Ramo(1);
    app.nuovaRotonda();
    EXPECT_EQ(app.theRamoCorrente, nullptr);
    EXPECT_EQ(app.theRotonda().Rami().Count(), 0);
}

TEST_F(ProveApplicazione, ALoadedProjectHasNoCurrentLeg) {
    const std::string file = finta.cartella.file("progetto.klv");
    creaProgetto(app, 5);
    app.theRotonda().Titolo("del file");
    app.theRotonda().Save(file, messaggio, esito);
    ASSERT_TRUE(esito) << messaggio;
    creaProgetto(app, 3);
    app.theRamoCorrente = &app.theRotonda().Ramo(3);
    app.caricaRotonda(file, messaggio, esito);
    EXPECT_TRUE(esito) << messaggio;
    EXPECT_EQ(app.theRotonda().Titolo(), "del file");
    EXPECT_EQ(app.theRotonda().Rami().Count(), 5);
    EXPECT_EQ(app.theRamoCorrente, nullptr);
}

TEST_F(ProveApplicazione, AFailedLoadKeepsTheProjectAndItsCurrentLeg) {
    creaProgetto(app, 3);
    Ramo* const corrente = &app.theRotonda().Ramo(3);
    app.theRamoCorrente = corrente;
    app.caricaRotonda(finta.cartella.file("manca.klv"), messaggio, esito);
    EXPECT_FALSE(esito);
    EXPECT_EQ(messaggio, "il file non esiste");
    EXPECT_EQ(app.theRamoCorrente, corrente);
    EXPECT_EQ(&app.theRotonda().Ramo(3), corrente);
}

}  // namespace
}  // namespace kelvo::prove
