#include <gtest/gtest.h>
#include <sys/stat.h>

#include "app/modCommonModule.h"
#include "comune/cartella.h"
#include "comune/finti.h"

namespace kelvo::prove {
namespace {

TEST(LogNonFile, APipeInThePlaceOfTheLogIsPassedOver) {
    const CartellaTemporanea cartella;
    MessaggiFinti messaggi;
    OrologioFinto orologio;
    clsAmbiente ambiente(cartella.percorso(), cartella.percorso(), sistemaFileStandard());
    Configurazione configurazione;
    modCommonModule comune(ambiente, configurazione, messaggi, orologio);
    configurazione.PathErrore = "tubo";
    ASSERT_EQ(::mkfifo(cartella.file("tubo").c_str(), 0600), 0);
    comune.erroreLog(9, "m", "d", false);
    configurazione.TraceAbilitato = true;
    comune.traceLog("t");
    EXPECT_EQ(messaggi.mostrati.size(), 1U) << "the trace cannot be written either, and says so";
}

}  // namespace
}  // namespace kelvo::prove
