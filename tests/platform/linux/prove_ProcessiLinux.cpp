#include <gtest/gtest.h>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>
#include <thread>

#include "comune/cartella.h"
#include "platform/Piattaforma.h"

namespace kelvo::prove {
namespace {

namespace fs = std::filesystem;
using Fine = EsitoProcesso::Fine;
using std::chrono::milliseconds;
using std::chrono::seconds;

/// Puts another list of folders in the place of PATH for as long as it lives.
class ConPercorsi {
public:
    explicit ConPercorsi(const std::string& valore) {
        if (const char* prima = std::getenv("PATH")) {
            prima_ = prima;
        }
        setenv("PATH", valore.c_str(), 1);
    }
    ConPercorsi(const ConPercorsi&) = delete;
    ConPercorsi& operator=(const ConPercorsi&) = delete;
    ~ConPercorsi() { setenv("PATH", prima_.c_str(), 1); }

private:
    std::string prima_;
};

class ProveProcessi : public testing::Test {
protected:
    std::string copione(const std::string& nome, const std::string& righe) const {
        std::string percorso = cartella.file(nome);
        scriviContenuto(percorso, "#!/bin/sh\n" + righe);
        fs::permissions(percorso, fs::perms::owner_all);
        return percorso;
    }
    /// A process runs; the dead that nobody waited for do not count.
    static bool vive(pid_t numero) {
        std::string stato;
        const std::string scheda = "/proc/" + std::to_string(numero) + "/stat";
        if (!leggiFile(scheda, 4096, stato).empty() && !fs::exists(scheda)) {
            return false;
        }
        return contenuto(scheda).find(") Z ") == std::string::npos;
    }

    CartellaTemporanea cartella;
    std::unique_ptr<Piattaforma> sistema = creaPiattaforma();
    Processi& processi = sistema->processi();
};

TEST_F(ProveProcessi, AProgramIsFoundInTheFoldersOfPath) {
    const std::string questo = copione("ufficio", "exit 0\n");
    fs::create_directory(cartella.file("altra"));
    scriviContenuto(cartella.file("altra/ufficio"), "no program");
    fs::permissions(cartella.file("altra/ufficio"), fs::perms::owner_read);
    const ConPercorsi percorsi("relativa::" + cartella.file("altra") + ":" + cartella.percorso() + ":/usr/bin");
    EXPECT_EQ(processi.trova("ufficio"), questo);
    EXPECT_EQ(processi.trova("altra"), "") << "a folder is no program";
    EXPECT_EQ(processi.trova("nessuno-di-nome-simile"), "");
}

TEST_F(ProveProcessi, WithoutPathNothingIsFound) {
    copione("ufficio", "exit 0\n");
    const ConPercorsi percorsi("");
    EXPECT_EQ(processi.trova("ufficio"), "");
}

TEST_F(ProveProcessi, ArgumentsArriveAsTheyAreAndTheCodeComesBack) {
    const std::string programma =
        copione("p", "for a in \"$@\"; do printf '%s|' \"$a\" >> '" + cartella.file("parole") + "'; done\nexit 7\n");
    const EsitoProcesso esito = processi.esegui(programma, {"a b", "", "$HOME", "è'\""}, seconds(20), {});
    EXPECT_EQ(esito.fine, Fine::uscito);
    EXPECT_EQ(esito.codice, 7);
    EXPECT_EQ(contenuto(cartella.file("parole")), "a b||$HOME|è'\"|");
}

TEST_F(ProveProcessi, ItHasNothingToReadAndWritesToNobody) {
    const std::string programma =
        copione("p", "echo rumore\necho rumore >&2\ncat > '" + cartella.file("letto") + "'\n");
    EXPECT_EQ(processi.esegui(programma, {}, seconds(20), {}).fine, Fine::uscito);
    EXPECT_EQ(contenuto(cartella.file("letto")), "");
}

TEST_F(ProveProcessi, ItIsToldHowTheProgramEnded) {
    EXPECT_EQ(processi.esegui(copione("p", "kill -9 $$\n"), {}, seconds(20), {}).fine, Fine::interrotto);
    EXPECT_EQ(processi.esegui(cartella.file("manca"), {}, seconds(20), {}).fine, Fine::nonAvviato);
    scriviContenuto(cartella.file("chiuso"), "x");
    EXPECT_EQ(processi.esegui(cartella.file("chiuso"), {}, seconds(20), {}).fine, Fine::nonAvviato);
}

TEST_F(ProveProcessi, WhoHangsIsEndedWithWhatItStartedAndNobodyElse) {
    const std::string figli = cartella.file("figli");
    const std::string programma = copione("p", "sleep 60 &\necho $! $$ > '" + figli + "'\nwait\n");
    const pid_t altro = fork();
    if (altro == 0) {
        execl("/bin/sleep", "sleep", "60", nullptr);
        _exit(1);
    }
    ASSERT_GT(altro, 0);
    int giri = 0;
    const EsitoProcesso esito = processi.esegui(programma, {}, milliseconds(2000), [&] { ++giri; });
    EXPECT_EQ(esito.fine, Fine::scaduto);
    EXPECT_GE(giri, 2);
    std::istringstream numeri(contenuto(figli));
    pid_t nipote = 0;
    pid_t figlio = 0;
    numeri >> nipote >> figlio;
    ASSERT_GT(nipote, 0);
    ASSERT_GT(figlio, 0);
    for (int i = 0; i < 200 && vive(nipote); ++i) {
        std::this_thread::sleep_for(milliseconds(10));
    }
    EXPECT_FALSE(vive(nipote));
    EXPECT_FALSE(vive(figlio));
    EXPECT_TRUE(vive(altro));
    kill(altro, SIGKILL);
    waitpid(altro, nullptr, 0);
}

TEST_F(ProveProcessi, WhatAProgramLeavesBehindEndsWithItAndItsCodeComesBack) {
    const std::string figli = cartella.file("figli");
    const std::string programma = copione("p", "sleep 60 &\necho $! > '" + figli + "'\nexit 3\n");
    const EsitoProcesso esito = processi.esegui(programma, {}, seconds(20), {});
    EXPECT_EQ(esito.fine, Fine::uscito);
    EXPECT_EQ(esito.codice, 3);
    const pid_t nipote = std::stoi(contenuto(figli));
    ASSERT_GT(nipote, 0);
    for (int i = 0; i < 200 && vive(nipote); ++i) {
        std::this_thread::sleep_for(milliseconds(10));
    }
    EXPECT_FALSE(vive(nipote));
}

TEST_F(ProveProcessi, AFaultWhileItWaitsLeavesNoChildBehind) {
    const std::string figli = cartella.file("figli");
    const std::string programma = copione("p", "echo $$ > '" + figli + "'\nexec sleep 60\n");
    const auto guasta = [&] {
        if (fs::exists(figli) && fs::file_size(figli) > 0) {
            throw std::runtime_error("guasto");
        }
    };
    EXPECT_THROW(processi.esegui(programma, {}, seconds(20), guasta), std::runtime_error);
    EXPECT_FALSE(vive(std::stoi(contenuto(figli))));
}

}  // namespace
}  // namespace kelvo::prove
