#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <filesystem>
#include <iterator>
#include <string>

#include "comune/fileDifettosi.h"
#include "model/testiKlv.h"
#include "platform/linux/SistemaFileLinux.h"

namespace kelvo::prove {
namespace {

namespace fs = std::filesystem;

SistemaFile& sistemaLinux() {
    static SistemaFileLinux sistema;
    return sistema;
}

constexpr std::array passiProvati{PassoFile::crea,   PassoFile::scrivi,     PassoFile::mezzo,   PassoFile::sincronizza,
                                  PassoFile::chiudi, PassoFile::dimensione, PassoFile::rinomina};

/// Runs in a process of its own; its exit code.
template <class F>
int inUnFiglio(F f) {
    const pid_t figlio = ::fork();
    if (figlio == 0) {
        ::_exit(f());
    }
    int stato = 0;
    ::waitpid(figlio, &stato, 0);
    return WIFEXITED(stato) ? WEXITSTATUS(stato) : -1;
}

/// Both file systems; the argument is which.
struct ProveSalvataggio : testing::TestWithParam<bool> {
    SistemaFile& sistema = GetParam() ? sistemaLinux() : sistemaFileStandard();
    CartellaTemporanea cartella;
    std::string file = cartella.file("progetto.klv");
    std::string messaggio = "?";
    bool esito = false;

    std::string vecchio() const { return testoCompleto(); }
    /// Saves a project other than that of the old file.
    void salva(SistemaFile& dove, const std::string& percorso) {
        Rotonda r(dove);
        riempi(r, 5, 2);
        nuovo = r.TestoFile();
        r.Save(percorso, messaggio, esito);
    }
    void salva(SistemaFile& dove) { salva(dove, file); }
    std::size_t fileNellaCartella() const {
        return static_cast<std::size_t>(std::distance(fs::directory_iterator(cartella.percorso()), {}));
    }
    void attendiRifiuto(const std::string& perche) {
        salva(sistema);
        EXPECT_FALSE(esito);
        EXPECT_EQ(messaggio, "Impossibile salvare il progetto: " + perche + " (" + file + ")");
    }
    std::string nuovo;
};

TEST_P(ProveSalvataggio, ASavedProjectIsLoadedAgain) {
    salva(sistema);
    EXPECT_TRUE(esito);
    EXPECT_EQ(messaggio, "");
    EXPECT_EQ(contenuto(file), nuovo);
    Rotonda r;
    r.Load(file, messaggio, esito);
    EXPECT_TRUE(esito);
    EXPECT_EQ(messaggio, "");
    EXPECT_EQ(r.TestoFile(), nuovo);
    EXPECT_EQ(fileNellaCartella(), 1U);
}

TEST_P(ProveSalvataggio, TheStepsOfASafeWriteComeInOrder) {
    FileDifettosi difettosi(sistema, PassoFile::crea, Incidente::nessuno);
    salva(difettosi);
    ASSERT_TRUE(esito);
    EXPECT_EQ(difettosi.passi,
              (std::vector<PassoFile>{PassoFile::crea, PassoFile::scrivi, PassoFile::sincronizza, PassoFile::chiudi,
                                      PassoFile::dimensione, PassoFile::rinomina, PassoFile::sincronizzaCartella}));
}

TEST_P(ProveSalvataggio, AFailureAtAnyStepLeavesTheOldFileAndNoOther) {
    for (const PassoFile passo : passiProvati) {
        SCOPED_TRACE(static_cast<int>(passo));
        scriviContenuto(file, vecchio());
        FileDifettosi difettosi(sistema, passo, Incidente::errore);
        salva(difettosi);
        EXPECT_FALSE(esito);
        const std::string parole = passo == PassoFile::dimensione ? "la scrittura è incompleta" : "incidente";
        EXPECT_EQ(messaggio, "Impossibile salvare il progetto: " + parole + " (" + file + ")");
        EXPECT_EQ(contenuto(file), vecchio());
        EXPECT_EQ(fileNellaCartella(), 1U);
        salva(sistema);
        EXPECT_TRUE(esito) << messaggio;
        EXPECT_EQ(contenuto(file), nuovo);
    }
}

TEST_P(ProveSalvataggio, AFailureLeavesNothingWhereNoFileStood) {
    for (const PassoFile passo : passiProvati) {
        FileDifettosi difettosi(sistema, passo, Incidente::errore);
        salva(difettosi);
        EXPECT_FALSE(esito);
        EXPECT_EQ(fileNellaCartella(), 0U);
    }
}

TEST_P(ProveSalvataggio, AShortWriteIsFoundByTheSize) {
    scriviContenuto(file, vecchio());
    FileDifettosi difettosi(sistema, PassoFile::scrivi, Incidente::corto);
    salva(difettosi);
    EXPECT_FALSE(esito);
    EXPECT_EQ(messaggio, "Impossibile salvare il progetto: la scrittura è incompleta (" + file + ")");
    EXPECT_EQ(contenuto(file), vecchio());
    EXPECT_EQ(fileNellaCartella(), 1U);
}

TEST_P(ProveSalvataggio, AKillBetweenAnyTwoStepsLeavesTheOldOrTheNewFileWhole) {
    for (const PassoFile passo :
         {PassoFile::crea, PassoFile::scrivi, PassoFile::mezzo, PassoFile::sincronizza, PassoFile::chiudi,
          PassoFile::dimensione, PassoFile::rinomina, PassoFile::sincronizzaCartella}) {
        SCOPED_TRACE(static_cast<int>(passo));
        scriviContenuto(file, vecchio());
        const int uscita = inUnFiglio([&] {
            FileDifettosi difettosi(sistema, passo, Incidente::morte);
            salva(difettosi);
            return 0;
        });
        EXPECT_EQ(uscita, 9) << "the process died on the way";
        salva(sistemaFileStandard(), cartella.file("altro.klv"));  // what the new file would be
        const bool rinominato = passo == PassoFile::sincronizzaCartella;
        EXPECT_EQ(contenuto(file), rinominato ? nuovo : vecchio());
        const bool temporaneo = passo != PassoFile::crea && !rinominato;
        // What the dead process left is in nobody's way.
        salva(sistema);
        EXPECT_TRUE(esito) << messaggio;
        EXPECT_EQ(contenuto(file), nuovo);
        EXPECT_EQ(fileNellaCartella(), temporaneo ? 3U : 2U);
        for (const auto& voce : fs::directory_iterator(cartella.percorso())) {
            fs::remove(voce.path());
        }
    }
}

TEST_P(ProveSalvataggio, ADiskThatTakesNoMoreBytesLeavesTheOldFile) {
    scriviContenuto(file, vecchio());
    const int uscita = inUnFiglio([&] {
        ::signal(SIGXFSZ, SIG_IGN);
        const rlimit limite{1000, 1000};
        if (::setrlimit(RLIMIT_FSIZE, &limite) != 0) {
            return 2;
        }
        salva(sistema);
        return !esito && messaggio.find("il file è troppo grande per il disco") != std::string::npos ? 0 : 1;
    });
    EXPECT_EQ(uscita, 0);
    EXPECT_EQ(contenuto(file), vecchio());
    EXPECT_EQ(fileNellaCartella(), 1U);
}

TEST_P(ProveSalvataggio, AReadOnlyFileIsNotReplaced) {
    scriviContenuto(file, vecchio());
    fs::permissions(file, fs::perms::owner_read);
    attendiRifiuto("il file è di sola lettura");
    EXPECT_EQ(contenuto(file), vecchio());
    EXPECT_EQ(fileNellaCartella(), 1U);
}

TEST_P(ProveSalvataggio, AFolderClosedToTheUserIsToldInWords) {
    scriviContenuto(file, vecchio());
    fs::permissions(cartella.percorso(),
                    fs::perms::owner_read | fs::perms::owner_exec | fs::perms::others_read | fs::perms::others_exec);
    const int uscita = inUnFiglio([&] {
        constexpr unsigned nessuno = 65534;
        if (::geteuid() == 0 && ::setuid(nessuno) != 0) {  // nothing is closed to the superuser
            return 2;
        }
        salva(sistema);
        return esito ? 1 : messaggio.find("accesso negato") == std::string::npos ? 3 : 0;
    });
    fs::permissions(cartella.percorso(), fs::perms::owner_all);
    EXPECT_EQ(uscita, 0);
    EXPECT_EQ(contenuto(file), vecchio());
}

TEST_P(ProveSalvataggio, WhatIsNoRegularFileIsNotReplaced) {
    fs::create_directory(file);
    attendiRifiuto("è una cartella");
    EXPECT_TRUE(fs::is_directory(file));
    fs::remove(file);
    ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0);
    attendiRifiuto("non è un file");
    EXPECT_TRUE(fs::is_fifo(file));
}

TEST_P(ProveSalvataggio, ALinkToItselfAndANameTooLongAreToldInWords) {
    fs::create_symlink("progetto.klv", file);
    attendiRifiuto("il collegamento non porta a un file");
    EXPECT_TRUE(fs::is_symlink(file));
    file = cartella.file(std::string(300, 'n'));
    attendiRifiuto("il nome è troppo lungo");
    file = cartella.file(std::string(252, 'n'));  // room for the file, not for the temporary
    attendiRifiuto("il nome è troppo lungo");
}

TEST_P(ProveSalvataggio, AMissingFolderIsToldInWords) {
    file = cartella.file("manca/progetto.klv");
    attendiRifiuto("percorso non trovato");
}

TEST_P(ProveSalvataggio, AnEmptyProjectIsNotSaved) {
    scriviContenuto(file, vecchio());
    Rotonda r(sistema);
    r.Save(file, messaggio, esito);
    EXPECT_FALSE(esito);
    EXPECT_EQ(messaggio, "Impossibile salvare il progetto: il progetto non ha ancora rami (" + file + ")");
    EXPECT_EQ(contenuto(file), vecchio());
}

TEST_P(ProveSalvataggio, TheFileKeepsItsPermissions) {
    scriviContenuto(file, vecchio());
    const auto privato = fs::perms::owner_read | fs::perms::owner_write;
    fs::permissions(file, privato);
    salva(sistema);
    EXPECT_TRUE(esito);
    EXPECT_EQ(fs::status(file).permissions(), privato);
}

TEST_P(ProveSalvataggio, ALinkStaysAndItsFileIsReplaced) {
    fs::create_directory(cartella.file("sotto"));
    const std::string vero = cartella.file("sotto/vero.klv");
    scriviContenuto(vero, vecchio());
    fs::create_symlink("sotto/vero.klv", file);
    salva(sistema);
    EXPECT_TRUE(esito);
    EXPECT_TRUE(fs::is_symlink(file));
    EXPECT_EQ(contenuto(vero), nuovo);
    fs::remove(vero);
    salva(sistema);
    EXPECT_TRUE(esito) << messaggio;
    EXPECT_TRUE(fs::is_symlink(file)) << "also where its file does not stand yet";
    EXPECT_EQ(contenuto(vero), nuovo);
}

TEST_P(ProveSalvataggio, EverySaveHasATemporaryNameOfItsOwnBesideTheFile) {
    for (int i = 0; i < 3; ++i) {
        // A process that dies in front of the rename leaves its temporary behind.
        ASSERT_EQ(inUnFiglio([&] {
                      FileDifettosi difettosi(sistema, PassoFile::rinomina, Incidente::morte);
                      salva(difettosi);
                      return 0;
                  }),
                  9);
        EXPECT_EQ(fileNellaCartella(), static_cast<std::size_t>(i + 1)) << "an old temporary is left alone";
    }
    for (const auto& voce : fs::directory_iterator(cartella.percorso())) {
        EXPECT_THAT(voce.path().filename().string(), testing::MatchesRegex("progetto\\.klv\\.[0-9a-f]{8}\\.tmp~"));
    }
}

TEST_P(ProveSalvataggio, WhatStandsUnderTheTemporaryNameIsNeitherReplacedNorFollowed) {
    const std::string altrui = cartella.file("altrui.txt");
    const std::string preso = cartella.file("preso");
    scriviContenuto(altrui, "altrui");
    std::string errore;
    for (const std::string& vero : {altrui, cartella.file("manca")}) {
        errore.clear();
        fs::create_symlink(vero, preso);
        EXPECT_EQ(sistema.crea(preso, errore), nullptr);
        EXPECT_EQ(errore, "esiste già un file con questo nome");
        EXPECT_TRUE(fs::is_symlink(preso));
        fs::remove(preso);
    }
    EXPECT_FALSE(fs::exists(cartella.file("manca")));
    errore.clear();
    EXPECT_EQ(sistema.crea(altrui, errore), nullptr);
    EXPECT_EQ(errore, "esiste già un file con questo nome");
    EXPECT_EQ(contenuto(altrui), "altrui");
}

TEST_P(ProveSalvataggio, TwoProcessesThatSaveTheSameFileNeverMeet) {
    constexpr int volte = 200;
    const std::array contenuti{std::string(20000, 'a'), std::string(70000, 'b')};
    const auto salvaSpesso = [&](const std::string& dati) {
        int guasti = 0;
        for (int i = 0; i < volte; ++i) {
            guasti += scriviFileSicuro(sistema, file, dati).empty() ? 0 : 1;
            const std::string letto = contenuto(file);
            guasti += letto == contenuti[0] || letto == contenuti[1] ? 0 : 1;
        }
        return guasti;
    };
    const pid_t figlio = ::fork();
    if (figlio == 0) {
        ::_exit(std::min(salvaSpesso(contenuti[0]), 100));
    }
    EXPECT_EQ(salvaSpesso(contenuti[1]), 0);
    int stato = 0;
    ::waitpid(figlio, &stato, 0);
    EXPECT_TRUE(WIFEXITED(stato));
    EXPECT_EQ(WEXITSTATUS(stato), 0);
    EXPECT_EQ(fileNellaCartella(), 1U);
}

INSTANTIATE_TEST_SUITE_P(, ProveSalvataggio, testing::Bool(),
                         [](const auto& caso) { return caso.param ? "Linux" : "Standard"; });

TEST(ProveSistemaFileLinux, AFileIsWrittenMeasuredAndClosedTwiceWithoutHarm) {
    const CartellaTemporanea cartella;
    const std::string percorso = cartella.file("a");
    std::string errore;
    const auto file = sistemaLinux().crea(percorso, errore);
    ASSERT_NE(file, nullptr) << errore;
    EXPECT_EQ(file->scrivi("nuovo"), "");
    EXPECT_EQ(file->sincronizza(), "");
    EXPECT_EQ(file->chiudi(), "");
    EXPECT_EQ(file->chiudi(), "");
    EXPECT_EQ(contenuto(percorso), "nuovo");
    EXPECT_EQ(sistemaLinux().dimensione(percorso), 5);
    EXPECT_EQ(sistemaLinux().dimensione(cartella.percorso()), -1);
    EXPECT_EQ(sistemaLinux().dimensione(cartella.file("manca")), -1);
}

TEST(ProveSistemaFileLinux, FailuresAnswerInWords) {
    const CartellaTemporanea cartella;
    std::string errore;
    EXPECT_EQ(sistemaLinux().crea(cartella.file("manca/a"), errore), nullptr);
    EXPECT_EQ(errore, "percorso non trovato");
    EXPECT_EQ(sistemaLinux().rinomina(cartella.file("manca"), cartella.file("b")), "percorso non trovato");
    sistemaLinux().sincronizzaCartella("nome senza cartella");
    sistemaLinux().sincronizzaCartella(cartella.file("manca/a"));
}

}  // namespace
}  // namespace kelvo::prove
