#include "platform/linux/SistemaFileLinux.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

namespace kelvo {

namespace {

std::string esitoDi(int risposta) {
    return risposta == 0 ? std::string{} : paroleErrore(std::error_code(errno, std::generic_category()));
}

class FileLinux final : public FileInScrittura {
public:
    explicit FileLinux(int descrittore) : descrittore_(descrittore) {}
    FileLinux(const FileLinux&) = delete;
    FileLinux& operator=(const FileLinux&) = delete;
    ~FileLinux() override { chiudi(); }

    std::string scrivi(std::string_view dati) override {
        while (!dati.empty()) {
            const ssize_t scritti = ::write(descrittore_, dati.data(), dati.size());
            if (scritti == 0) {
                return "la scrittura è incompleta";
            }
            if (scritti > 0) {
                dati.remove_prefix(static_cast<std::size_t>(scritti));
            } else if (errno != EINTR) {
                return esitoDi(-1);
            }
        }
        return {};
    }
    std::string sincronizza() override { return esitoDi(::fsync(descrittore_)); }
    std::string chiudi() override {
        if (descrittore_ < 0) {
            return {};
        }
        const int risposta = ::close(descrittore_);
        descrittore_ = -1;
        return esitoDi(risposta);
    }

private:
    int descrittore_;
};

}  // namespace

std::unique_ptr<FileInScrittura> SistemaFileLinux::crea(const std::string& percorso, std::string& errore) {
    constexpr mode_t permessi = 0666;  // less what the user's mask takes away
    const int descrittore = ::open(percorso.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, permessi);
    if (descrittore < 0) {
        errore = esitoDi(-1);
        return nullptr;
    }
    return std::make_unique<FileLinux>(descrittore);
}

std::int64_t SistemaFileLinux::dimensione(const std::string& percorso) {
    struct stat stato {};
    return ::stat(percorso.c_str(), &stato) == 0 && S_ISREG(stato.st_mode) ? stato.st_size : -1;
}

std::string SistemaFileLinux::rinomina(const std::string& da, const std::string& a) {
    return esitoDi(std::rename(da.c_str(), a.c_str()));
}

void SistemaFileLinux::elimina(const std::string& percorso) {
    ::unlink(percorso.c_str());
}

void SistemaFileLinux::sincronizzaCartella(const std::string& percorso) {
    const auto barra = percorso.rfind('/');
    const std::string cartella = barra == std::string::npos ? "." : percorso.substr(0, barra + 1);
    const int descrittore = ::open(cartella.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descrittore >= 0) {
        ::fsync(descrittore);
        ::close(descrittore);
    }
}

}  // namespace kelvo
