#include "platform/Piattaforma.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <random>
#include <string>

#include "app/copiaUtente.h"
#include "base/file.h"
#include "comune/cartella.h"

namespace kelvo::prove {
namespace {

namespace fs = std::filesystem;

/// What both systems keep.
struct ProvePiattaforma : testing::Test {
    CartellaTemporanea cartella;
    std::unique_ptr<Piattaforma> sistema = creaPiattaforma();

    std::size_t fileNellaCartella() const {
        return static_cast<std::size_t>(
            std::distance(fs::directory_iterator(percorsoDaTesto(cartella.percorso())), fs::directory_iterator()));
    }
};

TEST_F(ProvePiattaforma, AFileIsMadeWrittenMeasuredAndClosedTwiceWithoutHarm) {
    const std::string nome = cartella.file("Città di Forlì – ½ €.klv");
    std::string errore;
    const auto file = sistema->file().crea(nome, errore);
    ASSERT_NE(file, nullptr) << errore;
    EXPECT_EQ(file->scrivi("riga\n"), "");
    EXPECT_EQ(file->scrivi(""), "");
    EXPECT_EQ(file->scrivi("altra\r\n"), "");
    EXPECT_EQ(file->sincronizza(), "");
    EXPECT_EQ(file->chiudi(), "");
    EXPECT_EQ(file->chiudi(), "");
    EXPECT_EQ(sistema->file().dimensione(nome), 12);
    EXPECT_EQ(contenuto(nome), "riga\naltra\r\n") << "not a byte is changed";
}

TEST_F(ProvePiattaforma, AFileThatStandsIsNotMadeAgain) {
    const std::string nome = cartella.file("uno");
    scriviContenuto(nome, "vecchio");
    std::string errore;
    EXPECT_EQ(sistema->file().crea(nome, errore), nullptr);
    EXPECT_EQ(errore, "esiste già un file con questo nome");
    EXPECT_EQ(contenuto(nome), "vecchio");
}

TEST_F(ProvePiattaforma, FailuresAnswerInWords) {
    std::string errore;
    EXPECT_EQ(sistema->file().crea(cartella.file("manca/uno"), errore), nullptr);
    EXPECT_EQ(errore, "percorso non trovato");
    EXPECT_EQ(sistema->file().rinomina(cartella.file("manca"), cartella.file("altro")), "percorso non trovato");
    EXPECT_EQ(sistema->file().dimensione(cartella.file("manca")), -1);
    EXPECT_EQ(sistema->file().dimensione(cartella.percorso()), -1) << "a folder has none";
    EXPECT_NE(sistema->file().rinomina(cartella.percorso(), cartella.file("manca/altrove")), "");
}

TEST_F(ProvePiattaforma, RenamingTakesThePlaceOfAnotherFile) {
    scriviContenuto(cartella.file("nuovo"), "nuovo testo");
    scriviContenuto(cartella.file("perché.klv"), "vecchio");
    EXPECT_EQ(sistema->file().rinomina(cartella.file("nuovo"), cartella.file("perché.klv")), "");
    EXPECT_EQ(contenuto(cartella.file("perché.klv")), "nuovo testo");
    EXPECT_EQ(fileNellaCartella(), 1U);
}

TEST_F(ProvePiattaforma, DeletingTakesFilesAndLeavesFolders) {
    scriviContenuto(cartella.file("uno"), "testo");
    scriviContenuto(cartella.file("sola lettura"), "testo");
    fs::permissions(percorsoDaTesto(cartella.file("sola lettura")), fs::perms::owner_read);
    fs::create_directory(percorsoDaTesto(cartella.file("cartella")));
    sistema->file().elimina(cartella.file("uno"));
    sistema->file().elimina(cartella.file("sola lettura"));
    sistema->file().elimina(cartella.file("cartella"));
    sistema->file().elimina(cartella.file("manca"));
    EXPECT_EQ(fileNellaCartella(), 1U);
    EXPECT_TRUE(fs::is_directory(percorsoDaTesto(cartella.file("cartella"))));
}

TEST_F(ProvePiattaforma, ASafeWriteReplacesTheFileAndLeavesNothingElse) {
    const std::string nome = cartella.file("Università.klv");
    EXPECT_EQ(scriviFileSicuro(sistema->file(), nome, "primo"), "");
    EXPECT_EQ(scriviFileSicuro(sistema->file(), nome, "secondo testo"), "");
    EXPECT_EQ(contenuto(nome), "secondo testo");
    EXPECT_EQ(fileNellaCartella(), 1U);
    fs::permissions(percorsoDaTesto(nome), fs::perms::owner_read);
    EXPECT_EQ(scriviFileSicuro(sistema->file(), nome, "terzo"), "il file è di sola lettura");
    EXPECT_EQ(contenuto(nome), "secondo testo");
    EXPECT_EQ(fileNellaCartella(), 1U);
    fs::permissions(percorsoDaTesto(nome), fs::perms::owner_write, fs::perm_options::add);
    EXPECT_EQ(scriviFileSicuro(sistema->file(), nome, "terzo"), "") << "the attribute is cleared";
}

TEST_F(ProvePiattaforma, ASecondInstanceIsSeenUntilTheFirstEnds) {
    std::random_device caso;
    const std::string nome = "Kelvo-prova-" + std::to_string(caso());
    {
        const auto altro = creaPiattaforma();
        sistema->istanza().creaMutex(nome);
        EXPECT_FALSE(sistema->istanza().altraIstanza());
        altro->istanza().creaMutex(nome);
        EXPECT_TRUE(altro->istanza().altraIstanza());
        EXPECT_FALSE(sistema->istanza().altraIstanza()) << "the first one stays the first";
    }
    sistema.reset();
    const auto terzo = creaPiattaforma();
    terzo->istanza().creaMutex(nome);
    EXPECT_FALSE(terzo->istanza().altraIstanza());
    std::error_code ignorato;
    fs::remove(percorsoDaTesto(terzo->cartellaTemporanea()) / (nome + ".lock"), ignorato);
}

TEST_F(ProvePiattaforma, TheLocaleHasItsSeparators) {
    const ImpostazioniInternazionali lette = sistema->locale().leggi();
    EXPECT_EQ(lette.decimale.size(), 1U) << lette.decimale;
    EXPECT_FALSE(lette.migliaia.empty());
    EXPECT_NE(lette.decimale, lette.migliaia);
    EXPECT_EQ(lette.valutaInternazionale.size(), 3U) << lette.valutaInternazionale;
    EXPECT_FALSE(lette.valuta.empty());
    EXPECT_FALSE(lette.decimaleValuta.empty());
    EXPECT_FALSE(lette.migliaiaValuta.empty());
}

TEST_F(ProvePiattaforma, ACopyIsNeededWhereAPackageHasLaidTheProgram) {
    const std::string segno = sistema->cartellaProgramma() + "/" + segnoDiSistema;
    sistema->file().elimina(segno);
    EXPECT_EQ(sistema->cartellaCopia(), "") << "the folder of this build is written itself";
    ASSERT_EQ(scriviFileSicuro(sistema->file(), segno, "prova"), "");
    const std::string copia = sistema->cartellaCopia();
    sistema->file().elimina(segno);
    constexpr std::size_t caratteri = 11;
    EXPECT_EQ(copia.size(), sistema->cartellaDati().size() + caratteri) << copia;
    EXPECT_EQ(copia.find(sistema->cartellaDati()), 0U) << copia;
    EXPECT_EQ(percorsoDaTesto(copia).filename(), "Kelvo");
    EXPECT_EQ(percorsoDaTesto(copia).parent_path().filename(), "Prog");
}

TEST_F(ProvePiattaforma, ItsFoldersStandAndThoseOfTheUserTakeFiles) {
    const std::string programma = sistema->cartellaProgramma();
    EXPECT_TRUE(fs::is_directory(percorsoDaTesto(programma)));
    EXPECT_TRUE(fs::equivalent(percorsoDaTesto(programma), percorsoDaTesto(KELVO_COSTRUZIONE "/tests"))) << programma;
    for (const std::string& sua : {sistema->cartellaTemporanea(), sistema->cartellaDati()}) {
        ASSERT_FALSE(sua.empty());
        EXPECT_TRUE(sua.back() != '/' && sua.back() != '\\') << sua;
        const std::string file = sua + "/prova-" + std::to_string(std::random_device{}());
        EXPECT_EQ(scriviFileSicuro(sistema->file(), file, "testo"), "") << file;
        sistema->file().elimina(file);
    }
}

}  // namespace
}  // namespace kelvo::prove
