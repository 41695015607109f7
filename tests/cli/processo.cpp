#include "processo.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <sstream>
#include <stdexcept>
#include <system_error>

extern char** environ;

namespace kelvo::prove {

namespace {

/// A pipe of which this end reads.
class Tubo {
public:
    Tubo() {
        if (pipe2(capi_.data(), O_CLOEXEC) != 0) {
            throw std::system_error(errno, std::generic_category(), "pipe");
        }
    }
    Tubo(const Tubo&) = delete;
    Tubo& operator=(const Tubo&) = delete;
    ~Tubo() {
        chiudi(capi_[0]);
        chiudi(capi_[1]);
    }
    int lettura() const { return capi_[0]; }
    int scrittura() const { return capi_[1]; }
    void soloLettura() { chiudi(capi_[1]); }

private:
    static void chiudi(int& capo) {
        if (capo >= 0) {
            close(capo);
            capo = -1;
        }
    }
    std::array<int, 2> capi_{-1, -1};
};

/// Appends what is there to read; false at the end.
bool leggi(int capo, std::string& testo) {
    std::array<char, 65536> pezzo{};
    const ssize_t letti = read(capo, pezzo.data(), pezzo.size());
    if (letti > 0) {
        testo.append(pezzo.data(), static_cast<std::size_t>(letti));
    }
    return letti > 0;
}

void leggiTutto(const Tubo& uscita, const Tubo& errori, Esito& esito) {
    std::array<pollfd, 2> attese{pollfd{uscita.lettura(), POLLIN, 0}, pollfd{errori.lettura(), POLLIN, 0}};
    while (attese[0].fd >= 0 || attese[1].fd >= 0) {
        if (poll(attese.data(), attese.size(), -1) < 0 && errno != EINTR) {
            throw std::system_error(errno, std::generic_category(), "poll");
        }
        if (attese[0].revents != 0 && !leggi(attese[0].fd, esito.uscita)) {
            attese[0].fd = -1;
        }
        if (attese[1].revents != 0 && !leggi(attese[1].fd, esito.errori)) {
            attese[1].fd = -1;
        }
    }
}

/// What the new process does before it becomes the program.
class Azioni {
public:
    Azioni() { posix_spawn_file_actions_init(&azioni_); }
    Azioni(const Azioni&) = delete;
    Azioni& operator=(const Azioni&) = delete;
    ~Azioni() { posix_spawn_file_actions_destroy(&azioni_); }

    void prepara(const Tubo& uscita, const Tubo& errori, const std::string& cartella, Uscita dove) {
        posix_spawn_file_actions_addopen(&azioni_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        if (dove == Uscita::chiusa) {
            posix_spawn_file_actions_addclose(&azioni_, STDOUT_FILENO);
        } else if (dove == Uscita::discoPieno) {
            posix_spawn_file_actions_addopen(&azioni_, STDOUT_FILENO, "/dev/full", O_WRONLY, 0);
        } else {
            posix_spawn_file_actions_adddup2(&azioni_, uscita.scrittura(), STDOUT_FILENO);
        }
        posix_spawn_file_actions_adddup2(&azioni_, errori.scrittura(), STDERR_FILENO);
        if (!cartella.empty()) {
            posix_spawn_file_actions_addchdir_np(&azioni_, cartella.c_str());
        }
    }
    const posix_spawn_file_actions_t* operator*() const { return &azioni_; }

private:
    posix_spawn_file_actions_t azioni_{};
};

}  // namespace

Esito esegui(const std::vector<std::string>& comando, const std::string& cartella, Uscita uscita) {
    Tubo tuboUscita;
    Tubo tuboErrori;
    Azioni azioni;
    azioni.prepara(tuboUscita, tuboErrori, cartella, uscita);
    std::vector<std::string> parole = comando;
    std::vector<char*> argomenti;
    for (std::string& parola : parole) {
        argomenti.push_back(parola.data());
    }
    argomenti.push_back(nullptr);
    pid_t processo = 0;
    const int errore = posix_spawn(&processo, comando.front().c_str(), *azioni, nullptr, argomenti.data(), environ);
    if (errore != 0) {
        throw std::system_error(errore, std::generic_category(), comando.front());
    }
    tuboUscita.soloLettura();
    tuboErrori.soloLettura();
    Esito esito;
    leggiTutto(tuboUscita, tuboErrori, esito);
    int stato = 0;
    rusage risorse{};
    while (wait4(processo, &stato, 0, &risorse) < 0 && errno == EINTR) {
    }
    esito.codice = WIFEXITED(stato) ? WEXITSTATUS(stato) : -1;
    esito.piccoKiB = risorse.ru_maxrss;
    return esito;
}

Esito kelvoCli(const std::vector<std::string>& argomenti, const std::string& cartella, Uscita uscita) {
    std::vector<std::string> comando{KELVO_CARTELLA "/kelvo-cli"};
    comando.insert(comando.end(), argomenti.begin(), argomenti.end());
    return esegui(comando, cartella, uscita);
}

std::string esempio(const std::string& nome) {
    return KELVO_CARTELLA "/../Progetti/" + nome + ".klv";
}

std::string atteso(const std::string& nome) {
    return KELVO_SORGENTI "/tests/cli/attesi/" + nome;
}

std::vector<std::string> esempi() {
    std::vector<std::string> nomi;
    for (const auto& voce : std::filesystem::directory_iterator(KELVO_SORGENTI "/assets/Progetti")) {
        nomi.push_back(voce.path().stem().string());
    }
    std::sort(nomi.begin(), nomi.end());
    return nomi;
}

std::string conCambio(std::string testo, const std::string& dopo, const std::string& vecchio,
                      const std::string& nuovo) {
    const auto inizio = testo.find(dopo);
    const auto posto = inizio == std::string::npos ? inizio : testo.find(vecchio, inizio);
    if (posto == std::string::npos) {
        throw std::invalid_argument("il testo non contiene " + dopo + " ... " + vecchio);
    }
    return testo.replace(posto, vecchio.size(), nuovo);
}

std::vector<std::string> righe(const std::string& testo) {
    std::vector<std::string> tutte;
    std::istringstream flusso(testo);
    for (std::string riga; std::getline(flusso, riga);) {
        tutte.push_back(riga);
    }
    return tutte;
}

std::string senzaDate(std::string testo) {
    const std::string inizio = "Output creato con Kelvo V1.0.0 il ";
    const std::string forma = "00/00/0000 00:00:00";
    for (auto posto = testo.find(inizio); posto != std::string::npos; posto = testo.find(inizio, posto + 1)) {
        std::string data = testo.substr(posto + inizio.size(), forma.size());
        std::replace_if(
            data.begin(), data.end(), [](char c) { return c >= '0' && c <= '9'; }, '0');
        if (data == forma) {
            testo.replace(posto + inizio.size(), forma.size(), "<data>");
        }
    }
    return testo;
}

}  // namespace kelvo::prove
