#include "app/copiaUtente.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <map>
#include <string>

#include "app/clsAmbiente.h"
#include "app/percorsi.h"
#include "comune/cartella.h"

namespace kelvo::prove {
namespace {

namespace fs = std::filesystem;

constexpr const char* iniFornito = "; di Kelvo\n[FILE_LOG]\nPathError=LOG.TXT\n[LAY_OUT]\nCustomPanel=5\n";

/// An installation that nobody writes, and a user without a copy.
struct ProveCopia : testing::Test {
    CartellaTemporanea radice;
    std::string programma = radice.file("usr/Prog/Kelvo");
    std::string copia = radice.file("casa/Prog/Kelvo");
    SistemaFile& sistema = sistemaFileStandard();

    ProveCopia() {
        for (const std::string cartella : {"Modelli", "Relazioni", "XLS", "Immagini"}) {
            fs::create_directories(percorsoDaTesto(programma + "/" + cartella));
        }
        fs::create_directories(percorsoDaTesto(radice.file("usr/Prog/Progetti")));
        scriviContenuto(programma + "/Kelvo.ini", iniFornito);
        scriviContenuto(programma + "/Modelli/Totale.dotx", "PK uno");
        scriviContenuto(programma + "/Immagini/a.svg", "<svg/>");
        scriviContenuto(radice.file("usr/Prog/Progetti/Esempio.klv"), "{1}");
    }
    EsitoCopia aggiorna() { return aggiornaCopiaUtente(sistema, programma, copia); }
    std::string nellaCopia(const std::string& nome) const { return radice.file("casa/Prog/Kelvo/" + nome); }
    std::string esempio() const { return radice.file("casa/Prog/Progetti/Esempio.klv"); }
};

TEST_F(ProveCopia, TheFirstStartMakesTheCopyWithTheProjectsBesideIt) {
    const EsitoCopia esito = aggiorna();
    EXPECT_EQ(esito.cartella, copia);
    EXPECT_TRUE(esito.problemi.empty());
    EXPECT_EQ(contenuto(nellaCopia("Kelvo.ini")), iniFornito);
    EXPECT_EQ(contenuto(nellaCopia("Modelli/Totale.dotx")), "PK uno");
    EXPECT_TRUE(fs::is_directory(nellaCopia("Relazioni")));
    EXPECT_TRUE(fs::is_directory(nellaCopia("XLS")));
    EXPECT_EQ(contenuto(esempio()), "{1}");
    EXPECT_FALSE(fs::exists(nellaCopia("Immagini"))) << "what nobody writes is not copied";
}

TEST_F(ProveCopia, ASecondStartWritesNothing) {
    aggiorna();
    std::map<std::string, fs::file_time_type> istanti;
    for (const char* nome : {"Kelvo.ini", "Copia.txt", "Modelli/Totale.dotx"}) {
        fs::last_write_time(nellaCopia(nome), fs::file_time_type::clock::now() - std::chrono::hours(1));
        istanti[nome] = fs::last_write_time(nellaCopia(nome));  // as fine as the system keeps it
    }
    EXPECT_TRUE(aggiorna().problemi.empty());
    for (const auto& [nome, istante] : istanti) {
        EXPECT_EQ(fs::last_write_time(nellaCopia(nome)), istante) << nome;
    }
}

TEST_F(ProveCopia, ANewVersionBringsWhatIsNewAndWhatTheUserHasNotChanged) {
    aggiorna();
    scriviContenuto(programma + "/Modelli/Totale.dotx", "PK due");
    scriviContenuto(programma + "/Modelli/Nuovo.dotx", "PK nuovo");
    scriviContenuto(radice.file("usr/Prog/Progetti/Altro.klv"), "{2}");
    const std::string nuovo = std::string{iniFornito} + "[NUOVA]\nChiave=1\n";
    scriviContenuto(programma + "/Kelvo.ini", nuovo);
    aggiorna();
    EXPECT_EQ(contenuto(nellaCopia("Kelvo.ini")), nuovo);
    EXPECT_EQ(contenuto(nellaCopia("Modelli/Totale.dotx")), "PK due");
    EXPECT_EQ(contenuto(nellaCopia("Modelli/Nuovo.dotx")), "PK nuovo");
    EXPECT_EQ(contenuto(radice.file("casa/Prog/Progetti/Altro.klv")), "{2}");
}

TEST_F(ProveCopia, ANewVersionLeavesTheUsersOwn) {
    aggiorna();
    scriviContenuto(nellaCopia("Modelli/Totale.dotx"), "PK dello studio");
    scriviContenuto(nellaCopia("Modelli/Nuovo.dotx"), "PK suo");
    scriviContenuto(nellaCopia("Relazioni/Relazione.docx"), "PK relazione");
    scriviContenuto(esempio(), "{cambiato}");
    scriviContenuto(programma + "/Modelli/Totale.dotx", "PK due");
    scriviContenuto(programma + "/Modelli/Nuovo.dotx", "PK nuovo");
    scriviContenuto(radice.file("usr/Prog/Progetti/Esempio.klv"), "{2}");
    for (int volta = 0; volta < 2; ++volta) {
        EXPECT_TRUE(aggiorna().problemi.empty());
        EXPECT_EQ(contenuto(nellaCopia("Modelli/Totale.dotx")), "PK dello studio");
        EXPECT_EQ(contenuto(nellaCopia("Modelli/Nuovo.dotx")), "PK suo");
        EXPECT_EQ(contenuto(nellaCopia("Relazioni/Relazione.docx")), "PK relazione");
        EXPECT_EQ(contenuto(esempio()), "{cambiato}");
    }
}

TEST_F(ProveCopia, TheUsersConfigurationGainsTheKeysThatItLacks) {
    aggiorna();
    scriviContenuto(nellaCopia("Kelvo.ini"), "; mia\n[LAY_OUT]\nCustomPanel=3\n[MIA]\nx=1\n");
    aggiorna();
    EXPECT_EQ(contenuto(nellaCopia("Kelvo.ini")),
              "; mia\n[LAY_OUT]\nCustomPanel=3\n[MIA]\nx=1\n[FILE_LOG]\nPathError=LOG.TXT\n");
}

TEST_F(ProveCopia, AKeyThatHasLostItsValueGetsItBack) {
    aggiorna();
    scriviContenuto(nellaCopia("Kelvo.ini"), "[FILE_LOG]\nPathError=\n[LAY_OUT]\nCustomPanel=2\n");
    aggiorna();
    EXPECT_EQ(contenuto(nellaCopia("Kelvo.ini")), "[FILE_LOG]\nPathError=LOG.TXT\n[LAY_OUT]\nCustomPanel=2\n");
}

TEST_F(ProveCopia, WhatIsMissingComesAgainButAnExampleThatWasRemovedDoesNot) {
    aggiorna();
    fs::remove(nellaCopia("Kelvo.ini"));
    fs::remove_all(nellaCopia("Modelli"));
    fs::remove_all(nellaCopia("XLS"));
    fs::remove(esempio());
    aggiorna();
    EXPECT_EQ(contenuto(nellaCopia("Kelvo.ini")), iniFornito);
    EXPECT_EQ(contenuto(nellaCopia("Modelli/Totale.dotx")), "PK uno");
    EXPECT_TRUE(fs::is_directory(nellaCopia("XLS")));
    EXPECT_FALSE(fs::exists(esempio()));
    // With its whole folder gone it is a damage and no choice.
    fs::remove_all(radice.file("casa/Prog/Progetti"));
    aggiorna();
    EXPECT_EQ(contenuto(esempio()), "{1}");
}

TEST_F(ProveCopia, ADamagedFileMakesRoomAndIsKeptBesideUnlessItIsEmpty) {
    aggiorna();
    scriviContenuto(nellaCopia("Modelli/Totale.dotx"), "guasto");
    scriviContenuto(nellaCopia("Kelvo.ini"), std::string("\0\0\0", 3));
    scriviContenuto(esempio(), "");
    EXPECT_TRUE(aggiorna().problemi.empty());
    EXPECT_EQ(contenuto(nellaCopia("Modelli/Totale.dotx")), "PK uno");
    EXPECT_EQ(contenuto(nellaCopia("Modelli/Totale.dotx.danneggiato")), "guasto");
    EXPECT_EQ(contenuto(nellaCopia("Kelvo.ini")), iniFornito);
    EXPECT_EQ(contenuto(nellaCopia("Kelvo.ini.danneggiato")), std::string("\0\0\0", 3));
    EXPECT_EQ(contenuto(esempio()), "{1}");
    EXPECT_FALSE(fs::exists(esempio() + ".danneggiato"));
}

TEST_F(ProveCopia, EveryDamagedFileIsKeptUnderAName) {
    aggiorna();
    for (const char* testo : {"primo", "secondo", "terzo"}) {
        scriviContenuto(nellaCopia("Modelli/Totale.dotx"), testo);
        EXPECT_TRUE(aggiorna().problemi.empty());
    }
    EXPECT_EQ(contenuto(nellaCopia("Modelli/Totale.dotx")), "PK uno");
    EXPECT_EQ(contenuto(nellaCopia("Modelli/Totale.dotx.danneggiato")), "primo");
    EXPECT_EQ(contenuto(nellaCopia("Modelli/Totale.dotx.danneggiato-2")), "secondo");
    EXPECT_EQ(contenuto(nellaCopia("Modelli/Totale.dotx.danneggiato-3")), "terzo");
}

TEST_F(ProveCopia, ADamagedInstallationIsToldAndSpoilsNoCopy) {
    aggiorna();
    const std::string guasto("[\0F\0I\0L\0E\0]\0", 12);
    scriviContenuto(programma + "/Kelvo.ini", guasto);
    scriviContenuto(programma + "/Modelli/Totale.dotx", "");
    const std::string mio = "[LAY_OUT]\nCustomPanel=2\n";
    for (const std::string& ini : {std::string{iniFornito}, mio}) {
        scriviContenuto(nellaCopia("Kelvo.ini"), ini);
        const EsitoCopia esito = aggiorna();
        ASSERT_EQ(esito.problemi.size(), 2U);
        EXPECT_EQ(esito.problemi[0], radice.file("usr/Prog/Kelvo/Kelvo.ini") + ": il file è danneggiato");
        EXPECT_EQ(esito.problemi[1], radice.file("usr/Prog/Kelvo/Modelli/Totale.dotx") + ": il file è danneggiato");
        EXPECT_EQ(contenuto(nellaCopia("Kelvo.ini")), ini);
        EXPECT_EQ(contenuto(nellaCopia("Modelli/Totale.dotx")), "PK uno");
    }
    // Mended, it is followed as before.
    scriviContenuto(programma + "/Modelli/Totale.dotx", "PK due");
    aggiorna();
    EXPECT_EQ(contenuto(nellaCopia("Modelli/Totale.dotx")), "PK due");
}

TEST_F(ProveCopia, AFileAmongTheTemplatesThatIsNoArchiveIsNotTakenForADamage) {
    scriviContenuto(programma + "/Modelli/Leggimi.txt", "Modelli dello studio");
    for (int volta = 0; volta < 3; ++volta) {
        EXPECT_TRUE(aggiorna().problemi.empty());
        EXPECT_EQ(contenuto(nellaCopia("Modelli/Leggimi.txt")), "Modelli dello studio");
        EXPECT_FALSE(fs::exists(nellaCopia("Modelli/Leggimi.txt.danneggiato")));
    }
}

TEST_F(ProveCopia, AConfigurationOfTheInstallationWrittenCarelesslyStillCompletesTheUsersOwn) {
    aggiorna();
    scriviContenuto(nellaCopia("Kelvo.ini"), "[LAY_OUT]\nCustomPanel=2\n");
    scriviContenuto(programma + "/Kelvo.ini", "[ FILE_LOG ]\nPathError=L.TXT\n=3\n");
    EXPECT_TRUE(aggiorna().problemi.empty());
    EXPECT_EQ(contenuto(nellaCopia("Kelvo.ini")), "[LAY_OUT]\nCustomPanel=2\n[FILE_LOG]\nPathError=L.TXT\n");
}

TEST_F(ProveCopia, WithoutItsListNothingOfTheUsersIsReplaced) {
    aggiorna();
    fs::remove(nellaCopia("Copia.txt"));
    scriviContenuto(programma + "/Modelli/Totale.dotx", "PK due");
    EXPECT_TRUE(aggiorna().problemi.empty());
    EXPECT_EQ(contenuto(nellaCopia("Modelli/Totale.dotx")), "PK uno");
}

TEST_F(ProveCopia, AListOfNoSenseIsPassedOver) {
    aggiorna();
    scriviContenuto(nellaCopia("Copia.txt"), std::string("\n\n0123\nxxxxxxxxxxxxxxxx\n\0 \n", 28));
    EXPECT_TRUE(aggiorna().problemi.empty());
    EXPECT_EQ(contenuto(nellaCopia("Modelli/Totale.dotx")), "PK uno");
    EXPECT_NE(contenuto(nellaCopia("Copia.txt")).find(" Modelli/Totale.dotx\n"), std::string::npos);
}

TEST_F(ProveCopia, AFolderInTheWayIsToldAndTheRestGoesOn) {
    fs::create_directories(percorsoDaTesto(copia));
    scriviContenuto(nellaCopia("Modelli"), "un file");
    const EsitoCopia esito = aggiorna();
    EXPECT_EQ(esito.cartella, copia);
    ASSERT_EQ(esito.problemi.size(), 1U);
    EXPECT_EQ(esito.problemi[0].find(nellaCopia("Modelli") + ": "), 0U) << esito.problemi[0];
    EXPECT_EQ(contenuto(esempio()), "{1}");
}

TEST_F(ProveCopia, WhereNoCopyCanBeMadeTheProgramsFolderStays) {
    fs::create_directories(percorsoDaTesto(radice.file("casa")));
    scriviContenuto(radice.file("casa/Prog"), "un file");
    const EsitoCopia esito = aggiorna();
    EXPECT_EQ(esito.cartella, programma);
    ASSERT_EQ(esito.problemi.size(), 1U);
    EXPECT_EQ(esito.problemi[0].find(copia + ": "), 0U) << esito.problemi[0];
}

TEST_F(ProveCopia, AProgramThatCopiesNothingTakesTheCopyThatStands) {
    EXPECT_EQ(cartellaCopiata(programma, copia), programma) << "none yet";
    EXPECT_FALSE(fs::exists(copia));
    aggiorna();
    EXPECT_EQ(cartellaCopiata(programma, copia), copia);
    EXPECT_EQ(cartellaCopiata(programma, ""), programma) << "none needed";
}

TEST_F(ProveCopia, TheSurroundingsFindEachPartWhereItStands) {
    aggiorna();
    clsAmbiente ambiente(programma, radice.percorso(), sistema);
    EXPECT_EQ(ambiente.CartellaScritta(), programma);
    ambiente.CartellaScritta(copia);
    EXPECT_EQ(ambiente.CartellaProgramma(), programma);
    EXPECT_EQ(ambiente.PercorsoIni(), nellaCopia("Kelvo.ini"));
    EXPECT_EQ(cartellaProgetti(ambiente), radice.file("casa/Prog/Progetti"));
    for (const char* nome : {"Kelvo.ini", "LOG.TXT", "Modelli/Totale.dotx", "Relazioni", "XLS"}) {
        EXPECT_EQ(ambiente.PercorsoProgramma(nome), nellaCopia(nome));
    }
    EXPECT_TRUE(fs::equivalent(percorsoDaTesto(ambiente.PercorsoProgramma("\\immagini\\A.svg")),
                               percorsoDaTesto(radice.file("usr/Prog/Kelvo/Immagini/a.svg"))));
    for (const char* nome : {"Support/x.htm", "UserGuide/x.pdf", "Caratteri/x.ttf"}) {
        EXPECT_EQ(ambiente.PercorsoProgramma(nome), radice.file(std::string("usr/Prog/Kelvo/") + nome));
    }
}

}  // namespace
}  // namespace kelvo::prove
