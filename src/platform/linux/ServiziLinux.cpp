#include "platform/linux/ServiziLinux.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>

namespace kelvo {

namespace fs = std::filesystem;

IstanzaLinux::~IstanzaLinux() {
    if (file_ >= 0) {
        ::close(file_);
    }
}

void IstanzaLinux::creaMutex(const std::string& nome) {
    std::error_code errore;
    fs::create_directories(cartella_, errore);
    const std::string percorso = (fs::path(cartella_) / (nome + ".lock")).string();
    constexpr mode_t soloUtente = 0600;
    file_ = ::open(percorso.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, soloUtente);
    // Where the file cannot be made or locked nobody can hold it either.
    altra_ = file_ >= 0 && ::flock(file_, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

ImpostazioniInternazionali LocaleLinux::leggi() const {
    return {.valuta = "€",
            .valutaInternazionale = "EUR",
            .decimale = ",",
            .migliaia = ".",
            .decimaleValuta = ",",
            .migliaiaValuta = "."};
}

std::string percorsoDatiUtente() {
    const char* dati = std::getenv("XDG_DATA_HOME");  // NOLINT(concurrency-mt-unsafe): one thread
    const char* casa = std::getenv("HOME");           // NOLINT(concurrency-mt-unsafe): one thread
    fs::path cartella;
    if (dati != nullptr && *dati == '/') {
        cartella = dati;
    } else if (casa != nullptr && *casa == '/') {
        cartella = fs::path(casa) / ".local" / "share";
    } else {
        return {};
    }
    return (cartella / "Kelvo").string();
}

std::string cartellaDatiUtente() {
    const std::string sua = percorsoDatiUtente();
    std::string cartella = sua.empty() ? "./Kelvo" : sua;
    std::error_code errore;
    fs::create_directories(cartella, errore);
    return cartella;
}

}  // namespace kelvo
