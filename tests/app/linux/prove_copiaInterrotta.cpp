#include <gtest/gtest.h>

#include <filesystem>

#include "app/copiaUtente.h"
#include "comune/cartella.h"
#include "comune/fileDifettosi.h"

namespace kelvo::prove {
namespace {

TEST(ProveCopiaInterrotta, AWriteThatFailsIsToldAndMendedAtTheNextStart) {
    for (const PassoFile passo : {PassoFile::crea, PassoFile::scrivi, PassoFile::sincronizza, PassoFile::rinomina}) {
        const CartellaTemporanea radice;
        const std::string programma = radice.file("usr/Prog/Kelvo");
        const std::string copia = radice.file("casa/Prog/Kelvo");
        std::filesystem::create_directories(programma);
        scriviContenuto(programma + "/Kelvo.ini", "[FILE_LOG]\nPathError=L\n");
        FileDifettosi difettoso(sistemaFileStandard(), passo, Incidente::errore);
        const EsitoCopia prima = aggiornaCopiaUtente(difettoso, programma, copia);
        EXPECT_EQ(prima.cartella, programma) << "a copy without a configuration is none";
        ASSERT_FALSE(prima.problemi.empty());
        EXPECT_EQ(prima.problemi[0].find(copia + "/Kelvo.ini: "), 0U) << prima.problemi[0];
        const EsitoCopia poi = aggiornaCopiaUtente(sistemaFileStandard(), programma, copia);
        EXPECT_EQ(poi.cartella, copia);
        EXPECT_TRUE(poi.problemi.empty());
        EXPECT_EQ(contenuto(copia + "/Kelvo.ini"), "[FILE_LOG]\nPathError=L\n");
    }
}

}  // namespace
}  // namespace kelvo::prove
