#include "app/statoRisultati.h"

#include <gtest/gtest.h>

#include "base/guasto.h"
#include "comune/finti.h"
#include "comune/guasti.h"

namespace kelvo::prove {
namespace {

TEST(StatoRisultati, EntriesAndQuantitiesHavePlacesOfTheirOwn) {
    TabellaMarker tabella;
    for (int i = 1; i <= 6; ++i) {
        for (int q = 1; q <= 6; ++q) {
            EXPECT_EQ(tabella(i, q), 0.0);
            tabella(i, q) = 10.0 * i + q;
        }
    }
    const TabellaMarker copia = tabella;
    for (int i = 1; i <= 6; ++i) {
        for (int q = 1; q <= 6; ++q) {
            EXPECT_EQ(copia(i, q), 10.0 * i + q);
        }
    }
}

TEST(StatoRisultati, ASeventhEntryHasNoRow) {
    Marker marker;
    EXPECT_EQ(numeroGuasto([&] { marker.MarkerAttivo(7, 1) = 1.0; }), 9);
    EXPECT_EQ(numeroGuasto([&] { marker.MarkerMassimo(0, 1) = 1.0; }), 9);
    EXPECT_EQ(numeroGuasto([&] { marker.MarkerMinimo(1, 7) = 1.0; }), 9);
    EXPECT_EQ(numeroGuasto([&] { marker.MarkerMinimo(1, 0) = 1.0; }), 9);
    EXPECT_EQ(numeroGuasto([&] { marker.attivi(7); }), 9);
    EXPECT_EQ(numeroGuasto([&] { marker.azzera(7); }), 9);
    try {
        marker.attivi(7);
        ADD_FAILURE() << "no fault";
    } catch (const Guasto& guasto) {
        EXPECT_EQ(guasto.descrizione(),
                  "Indice non compreso nell'intervallo (le soglie sono previste per gli ingressi da 1 a 6, questo è il "
                  "numero 7)");
    }
}

TEST(StatoRisultati, ThresholdsOfOneEntryGoAlone) {
    Marker marker;
    marker.MarkerAttivo(2, 6) = 1.0;
    marker.MarkerMassimo(2, 6) = 20.0;
    marker.MarkerMinimo(2, 1) = 3.0;
    marker.MarkerAttivo(3, 1) = 1.0;
    marker.progetto[1] = {3, "uno"};
    marker.progetto[2] = {4, "due"};
    EXPECT_FALSE(marker.attivi(1));
    EXPECT_TRUE(marker.attivi(2));
    marker.azzera(2);
    EXPECT_FALSE(marker.attivi(2));
    EXPECT_EQ(marker.MarkerMassimo(2, 6), 0.0);
    EXPECT_EQ(marker.MarkerMinimo(2, 1), 0.0);
    EXPECT_EQ(marker.progetto[1].nome, "");
    EXPECT_EQ(marker.progetto[1].numero, 0U);
    EXPECT_TRUE(marker.attivi(3));
    EXPECT_EQ(marker.progetto[2].nome, "due");
}

TEST(AmbienteCalcolo, FiguresAreOlderThanAChangedNightPercentageWhileNightConditionsAreOn) {
    AppFinta finta;
    Rotonda& r = finta.app.theRotonda();
    finta.app.theAmbiente.PercentualeNotturna(20);
    r.timbra(FormaCalcolo::piana, finta.app.ambienteCalcolo());
    EXPECT_TRUE(finta.app.risultatiAttuali());
    finta.app.theAmbiente.PercentualeNotturna(30);
    EXPECT_TRUE(finta.app.risultatiAttuali()) << "no night conditions: the percentage is not read";
    r.CondizioniNotturne(true);
    EXPECT_FALSE(finta.app.risultatiAttuali());
    r.timbra(FormaCalcolo::piana, finta.app.ambienteCalcolo());
    EXPECT_EQ(r.timbro().ambiente.notte, 30);
    EXPECT_TRUE(finta.app.risultatiAttuali());
    finta.app.theAmbiente.PercentualeNotturna(31);
    EXPECT_FALSE(finta.app.risultatiAttuali());
    finta.app.theAmbiente.PercentualeNotturna(30);
    EXPECT_TRUE(finta.app.risultatiAttuali());
}

TEST(AmbienteCalcolo, FiguresAreOlderThanEachOfTheSevenCoefficients) {
    AppFinta finta;
    Configurazione& c = finta.app.configurazione;
    finta.app.theRotonda().timbra(FormaCalcolo::piana, finta.app.ambienteCalcolo());
    for (float* coefficiente : {&c.VEAutoarticolati, &c.VEAutotreni, &c.VEPullman, &c.VECamper, &c.VERoulotte,
                                &c.VEMotocicli, &c.VEAutovetture}) {
        const float prima = *coefficiente;
        EXPECT_TRUE(finta.app.risultatiAttuali());
        *coefficiente = prima + 0.5F;
        EXPECT_FALSE(finta.app.risultatiAttuali());
        *coefficiente = prima;
    }
}

TEST(AmbienteCalcolo, AStampIsOfTheProjectOnlyInItsPlainForm) {
    AppFinta finta;
    Rotonda& r = finta.app.theRotonda();
    for (const FormaCalcolo forma : {FormaCalcolo::nessuna, FormaCalcolo::interrotta, FormaCalcolo::ipotesi,
                                     FormaCalcolo::corsiaDestra, FormaCalcolo::bilanciamento}) {
        r.timbra(forma, finta.app.ambienteCalcolo());
        EXPECT_FALSE(finta.app.risultatiAttuali());
    }
    // Figures that were read under an earlier stamp stay those of the project.
    const Timbro prima{FormaCalcolo::piana, r.revisione().calcolo, finta.app.ambienteCalcolo()};
    EXPECT_TRUE(r.attuale(prima, finta.app.ambienteCalcolo()));
    r.TipoFlusso(1);
    EXPECT_FALSE(r.attuale(prima, finta.app.ambienteCalcolo()));
}

}  // namespace
}  // namespace kelvo::prove
