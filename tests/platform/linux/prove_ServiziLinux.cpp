#include "platform/linux/ServiziLinux.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>

#include "comune/cartella.h"

namespace kelvo::prove {
namespace {

TEST(Istanza, TheSecondRunSeesTheFirstUntilItEnds) {
    CartellaTemporanea cartella;
    auto prima = std::make_unique<IstanzaLinux>(cartella.file("utente"));
    EXPECT_FALSE(prima->altraIstanza());
    prima->creaMutex("Kelvo");
    EXPECT_FALSE(prima->altraIstanza());
    {
        IstanzaLinux seconda(cartella.file("utente"));
        seconda.creaMutex("Kelvo");
        EXPECT_TRUE(seconda.altraIstanza());
        IstanzaLinux altroNome(cartella.file("utente"));
        altroNome.creaMutex("Altro");
        EXPECT_FALSE(altroNome.altraIstanza());
    }
    prima.reset();
    IstanzaLinux terza(cartella.file("utente"));
    terza.creaMutex("Kelvo");
    EXPECT_FALSE(terza.altraIstanza()) << "the mark that a run left behind counts for nothing";
}

TEST(Istanza, WhereTheMarkCannotBeMadeNobodyElseIsRunning) {
    CartellaTemporanea cartella;
    scriviContenuto(cartella.file("utente"), "un file");
    IstanzaLinux istanza(cartella.file("utente"));
    istanza.creaMutex("Kelvo");
    EXPECT_FALSE(istanza.altraIstanza());
}

TEST(Locale, NothingIsAskedForOnASystemWithoutSeparatorsToSet) {
    LocaleLinux locale;
    EXPECT_EQ(locale.leggi().decimale, ",");
    EXPECT_EQ(locale.leggi().migliaia, ".");
    locale.scriviSeparatori(".", "'");
    EXPECT_EQ(locale.leggi().decimale, ",");
}

}  // namespace
}  // namespace kelvo::prove
