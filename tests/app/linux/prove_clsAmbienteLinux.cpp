#include <gtest/gtest.h>

#include <filesystem>

#include "app/clsAmbiente.h"
#include "comune/cartella.h"

namespace kelvo::prove {
namespace {

// Names that differ in case alone are different files here.
struct ProveAmbienteLinux : testing::Test {
    CartellaTemporanea cartella;
    clsAmbiente ambiente{cartella.percorso(), cartella.percorso(), sistemaFileStandard()};
};

TEST_F(ProveAmbienteLinux, PathsOfTheProgramAreFoundWithoutRegardToCase) {
    std::filesystem::create_directory(cartella.file("Modelli"));
    scriviContenuto(cartella.file("Modelli/Relazione.dotx"), "");
    EXPECT_EQ(ambiente.PercorsoProgramma("\\modelli\\RELAZIONE.dotx"), cartella.file("Modelli/Relazione.dotx"));
    EXPECT_EQ(ambiente.PercorsoProgramma("modelli/nuova.dotx"), cartella.file("Modelli/nuova.dotx"));
    EXPECT_EQ(ambiente.PercorsoProgramma("Relazioni"), cartella.file("Relazioni"));
}

TEST_F(ProveAmbienteLinux, TheConfigurationIsFoundWhateverItsCase) {
    scriviContenuto(cartella.file("KELVO.INI"), "[S]\nB=1\n");
    const clsAmbiente altro(cartella.percorso(), cartella.percorso(), sistemaFileStandard());
    EXPECT_EQ(altro.PercorsoIni(), cartella.file("KELVO.INI"));
    EXPECT_EQ(altro.LeggiIni("S", "B", altro.PercorsoIni()), "1");
}

}  // namespace
}  // namespace kelvo::prove
