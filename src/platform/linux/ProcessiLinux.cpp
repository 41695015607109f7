#include "platform/linux/ProcessiLinux.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <string_view>
#include <thread>

namespace kelvo {

namespace {

using Istante = std::chrono::steady_clock;

bool eseguibile(const std::string& percorso) {
    struct stat stato {};
    return stat(percorso.c_str(), &stato) == 0 && S_ISREG(stato.st_mode) && access(percorso.c_str(), X_OK) == 0;
}

/// What a child is started with: nothing to read, outputs that lead nowhere, a group of its own.
class Avvio {
public:
    Avvio() {
        posix_spawn_file_actions_init(&file_);
        posix_spawn_file_actions_addopen(&file_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        posix_spawn_file_actions_addopen(&file_, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
        posix_spawn_file_actions_adddup2(&file_, STDOUT_FILENO, STDERR_FILENO);
        posix_spawnattr_init(&attributi_);
        posix_spawnattr_setflags(&attributi_, POSIX_SPAWN_SETPGROUP);
        posix_spawnattr_setpgroup(&attributi_, 0);
    }
    Avvio(const Avvio&) = delete;
    Avvio& operator=(const Avvio&) = delete;
    ~Avvio() {
        posix_spawnattr_destroy(&attributi_);
        posix_spawn_file_actions_destroy(&file_);
    }

    /// Number of the child; 0 for none.
    pid_t parte(const std::string& programma, std::vector<std::string> argomenti) const {
        argomenti.insert(argomenti.begin(), programma);
        std::vector<char*> parole;
        parole.reserve(argomenti.size() + 1);
        for (std::string& argomento : argomenti) {
            parole.push_back(argomento.data());
        }
        parole.push_back(nullptr);
        pid_t figlio = 0;
        return posix_spawn(&figlio, programma.c_str(), &file_, &attributi_, parole.data(), environ) == 0 ? figlio : 0;
    }

private:
    posix_spawn_file_actions_t file_{};
    posix_spawnattr_t attributi_{};
};

/// A child that runs; one that is not waited for to its end is ended, and what it has started ends with it.
class Figlio {
public:
    explicit Figlio(pid_t numero) : numero_(numero) {}
    Figlio(const Figlio&) = delete;
    Figlio& operator=(const Figlio&) = delete;
    ~Figlio() { ferma(); }

    /// True once it has come to its end.
    bool finito() {
        if (numero_ != 0 && allaFine()) {
            ferma();  // its own end stands; those of its group that live on have nobody to work for
        }
        return numero_ == 0;
    }
    void ferma() {
        if (numero_ != 0) {
            kill(-numero_, SIGKILL);
            raccogli();
            numero_ = 0;
        }
    }
    EsitoProcesso esito() const {
        if (WIFEXITED(stato_)) {
            return {EsitoProcesso::Fine::uscito, WEXITSTATUS(stato_)};
        }
        return {EsitoProcesso::Fine::interrotto, 0};
    }

private:
    /// It does not run any more. It is left to be gathered: until then its number is that of nobody else's group.
    bool allaFine() const {
        siginfo_t notizia{};
        int esito = 0;
        do {
            esito = waitid(P_PID, static_cast<id_t>(numero_), &notizia, WEXITED | WNOHANG | WNOWAIT);
        } while (esito == -1 && errno == EINTR);
        return esito == -1 || notizia.si_signo != 0;
    }
    void raccogli() {
        pid_t trovato = 0;
        do {
            trovato = waitpid(numero_, &stato_, 0);
        } while (trovato == -1 && errno == EINTR);
    }

    pid_t numero_;
    int stato_ = 0;
};

}  // namespace

std::string ProcessiLinux::trova(const std::string& nome) const {
    const char* tutte = std::getenv("PATH");  // NOLINT(concurrency-mt-unsafe): one thread
    std::string_view resto = tutte == nullptr ? std::string_view{} : std::string_view{tutte};
    while (!resto.empty()) {
        const std::size_t fine = resto.find(':');
        const std::string_view cartella = resto.substr(0, fine);
        // A folder that depends on where the program stands is none to look for programs in.
        if (!cartella.empty() && cartella.front() == '/') {
            std::string percorso = std::string{cartella} + "/" + nome;
            if (eseguibile(percorso)) {
                return percorso;
            }
        }
        resto = fine == std::string_view::npos ? std::string_view{} : resto.substr(fine + 1);
    }
    return {};
}

EsitoProcesso ProcessiLinux::esegui(const std::string& programma, const std::vector<std::string>& argomenti,
                                    std::chrono::milliseconds limite, const std::function<void()>& intanto) {
    constexpr std::chrono::milliseconds giro{50};
    const pid_t numero = Avvio().parte(programma, argomenti);
    if (numero == 0) {
        return {EsitoProcesso::Fine::nonAvviato, 0};
    }
    Figlio figlio(numero);
    const Istante::time_point fine = Istante::now() + limite;
    while (!figlio.finito()) {
        if (Istante::now() >= fine) {
            figlio.ferma();
            return {EsitoProcesso::Fine::scaduto, 0};
        }
        if (intanto) {
            intanto();
        }
        std::this_thread::sleep_for(giro);
    }
    return figlio.esito();
}

}  // namespace kelvo
