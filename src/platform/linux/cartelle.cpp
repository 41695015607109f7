#include "platform/linux/cartelle.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>

#include "app/copiaUtente.h"

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

bool cartellaScrivibile(const std::string& cartella) {
    const auto scrivibile = [](const std::string& percorso) {
        // A read-only file that is the user's own is made writable at the start: only its folder counts then.
        struct stat stato {};
        const bool sua = ::stat(percorso.c_str(), &stato) == 0 && stato.st_uid == ::geteuid();
        return sua || ::faccessat(AT_FDCWD, percorso.c_str(), W_OK, AT_EACCESS) == 0 || errno == ENOENT;
    };
    std::error_code errore;
    return !std::filesystem::exists(cartella + "/" + segnoDiSistema, errore) &&
           ::faccessat(AT_FDCWD, cartella.c_str(), W_OK, AT_EACCESS) == 0 && scrivibile(cartella + "/Kelvo.ini");
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
