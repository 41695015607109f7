#include "platform/linux/cartelle.h"

#include <fmt/format.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>

namespace kelvo {

namespace {

/// Makes the folder where it is missing and closes it to others; false for what is no folder of this user's own.
bool prendi(const std::string& cartella) {
    constexpr mode_t soloMia = 0700;
    ::mkdir(cartella.c_str(), soloMia);
    struct stat stato {};
    if (::lstat(cartella.c_str(), &stato) != 0 || !S_ISDIR(stato.st_mode) || stato.st_uid != ::geteuid()) {
        return false;
    }
    return (stato.st_mode & 07777) == soloMia || ::chmod(cartella.c_str(), soloMia) == 0;
}

/// A folder of that name and six random characters, or nothing.
std::string cartellaNuova(const std::string& inizio) {
    std::string nome = inizio + "-XXXXXX";
    return ::mkdtemp(nome.data()) == nullptr ? std::string{} : nome;
}

}  // namespace

std::string cartellaEseguibile() {
    std::error_code errore;
    const std::filesystem::path programma = std::filesystem::read_symlink("/proc/self/exe", errore);
    return errore ? std::string{"."} : programma.parent_path().string();
}

std::string cartellaTemporanea() {
    const char* const sessione = std::getenv("XDG_RUNTIME_DIR");  // NOLINT(concurrency-mt-unsafe): one thread
    if (sessione != nullptr && *sessione == '/') {
        std::string cartella = std::string{sessione} + "/kelvo";
        if (prendi(cartella)) {
            return cartella;
        }
    }
    std::error_code errore;
    const std::filesystem::path comune = std::filesystem::temp_directory_path(errore);
    if (errore) {
        return ".";
    }
    std::string cartella = (comune / fmt::format("kelvo-{}", ::geteuid())).string();
    if (prendi(cartella)) {
        return cartella;
    }
    const std::string nuova = cartellaNuova(cartella);
    return nuova.empty() ? comune.string() : nuova;
}

}  // namespace kelvo
