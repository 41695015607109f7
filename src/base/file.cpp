#include "base/file.h"

#include <fmt/format.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace kelvo {

namespace fs = std::filesystem;

namespace {

fs::path percorsoDi(const std::string& testo) {
    return fs::path(std::u8string(testo.begin(), testo.end()));
}

std::string testoDi(const fs::path& percorso) {
    const std::u8string testo = percorso.u8string();
    return {testo.begin(), testo.end()};
}

std::string parole(const std::error_code& errore) {
    if (errore == std::errc::no_space_on_device) {
        return "il disco è pieno";
    }
    if (errore == std::errc::permission_denied || errore == std::errc::operation_not_permitted) {
        return "accesso negato";
    }
    if (errore == std::errc::read_only_file_system) {
        return "il disco è di sola lettura";
    }
    if (errore == std::errc::no_such_file_or_directory || errore == std::errc::not_a_directory) {
        return "percorso non trovato";
    }
    if (errore == std::errc::is_a_directory) {
        return "è una cartella";
    }
    if (errore == std::errc::filename_too_long) {
        return "il nome è troppo lungo";
    }
    return fmt::format("errore di sistema {}", errore.value());
}

std::string testoDimensione(std::uint64_t byte) {
    constexpr std::uint64_t mebi = std::uint64_t{1024} * 1024;
    return byte % mebi == 0 ? fmt::format("{} MiB", byte / mebi) : fmt::format("{} byte", byte);
}

std::string erroreCorrente() {
    return parole(std::error_code(errno, std::generic_category()));
}

class FileStandard final : public FileInScrittura {
public:
    explicit FileStandard(const fs::path& percorso) : flusso_(percorso, std::ios::binary | std::ios::trunc) {}

    bool aperto() const { return flusso_.is_open(); }
    std::string scrivi(std::string_view dati) override {
        flusso_.write(dati.data(), static_cast<std::streamsize>(dati.size()));
        return esito();
    }
    std::string sincronizza() override {
        flusso_.flush();
        return esito();
    }
    std::string chiudi() override {
        flusso_.close();
        return esito();
    }

private:
    std::string esito() const { return flusso_ ? std::string{} : erroreCorrente(); }
    std::ofstream flusso_;
};

class SistemaFileStandard final : public SistemaFile {
public:
    std::unique_ptr<FileInScrittura> crea(const std::string& percorso, std::string& errore) override {
        auto file = std::make_unique<FileStandard>(percorsoDi(percorso));
        if (!file->aperto()) {
            errore = erroreCorrente();
            return nullptr;
        }
        return file;
    }
    std::int64_t dimensione(const std::string& percorso) override {
        std::error_code errore;
        const auto byte = fs::file_size(percorsoDi(percorso), errore);
        return errore ? -1 : static_cast<std::int64_t>(byte);
    }
    std::string rinomina(const std::string& da, const std::string& a) override {
        std::error_code errore;
        fs::rename(percorsoDi(da), percorsoDi(a), errore);
        return errore ? parole(errore) : std::string{};
    }
    void elimina(const std::string& percorso) override {
        std::error_code errore;
        fs::remove(percorsoDi(percorso), errore);
    }
    void sincronizzaCartella(const std::string& /*percorso*/) override {}
};

/// The file that a link leads to, or the path itself.
std::string bersaglio(const std::string& percorso) {
    std::error_code errore;
    if (fs::is_symlink(percorsoDi(percorso), errore)) {
        const fs::path vero = fs::weakly_canonical(percorsoDi(percorso), errore);
        if (!errore) {
            return testoDi(vero);
        }
    }
    return percorso;
}

bool solaLettura(const std::string& percorso) {
    std::error_code errore;
    const fs::file_status stato = fs::status(percorsoDi(percorso), errore);
    return fs::exists(stato) && (stato.permissions() & fs::perms::owner_write) == fs::perms::none;
}

std::string riempi(SistemaFile& sistema, const std::string& percorso, std::string_view dati) {
    std::string errore;
    const auto file = sistema.crea(percorso, errore);
    if (!file) {
        return errore;
    }
    errore = file->scrivi(dati);
    if (errore.empty()) {
        errore = file->sincronizza();
    }
    const std::string chiusura = file->chiudi();
    if (errore.empty()) {
        errore = chiusura;
    }
    if (errore.empty() && sistema.dimensione(percorso) != static_cast<std::int64_t>(dati.size())) {
        errore = "la scrittura è incompleta";
    }
    return errore;
}

}  // namespace

SistemaFile& sistemaFileStandard() {
    static SistemaFileStandard sistema;
    return sistema;
}

std::string scriviFileSicuro(SistemaFile& sistema, const std::string& percorso, std::string_view dati) {
    const std::string vero = bersaglio(percorso);
    const std::string temporaneo = vero + ".tmp~";
    if (solaLettura(vero)) {
        return "il file è di sola lettura";
    }
    std::string errore = riempi(sistema, temporaneo, dati);
    if (errore.empty()) {
        std::error_code ignorato;
        const fs::file_status stato = fs::status(percorsoDi(vero), ignorato);
        if (fs::is_regular_file(stato)) {
            fs::permissions(percorsoDi(temporaneo), stato.permissions(), ignorato);
        }
        errore = sistema.rinomina(temporaneo, vero);
    }
    if (!errore.empty()) {
        sistema.elimina(temporaneo);
        return errore;
    }
    sistema.sincronizzaCartella(vero);
    return {};
}

std::string leggiFile(const std::string& percorso, std::uint64_t massimo, std::string& dati) {
    std::error_code errore;
    const fs::path vero = percorsoDi(percorso);
    const fs::file_status stato = fs::status(vero, errore);
    if (stato.type() == fs::file_type::not_found) {
        return "il file non esiste";
    }
    if (errore) {
        return parole(errore);
    }
    if (!fs::is_regular_file(stato)) {
        return "non è un file";
    }
    std::ifstream flusso(vero, std::ios::binary);
    if (!flusso) {
        return erroreCorrente();
    }
    const auto dimensione = fs::file_size(vero, errore);
    if (errore) {
        return parole(errore);
    }
    if (dimensione > massimo) {
        return fmt::format("il file supera {}", testoDimensione(massimo));
    }
    // The file may grow while it is read: one byte more than the size tells.
    std::string letto(static_cast<std::size_t>(dimensione) + 1, '\0');
    flusso.read(letto.data(), static_cast<std::streamsize>(letto.size()));
    if (flusso.bad()) {
        return "errore di lettura";
    }
    letto.resize(static_cast<std::size_t>(flusso.gcount()));
    if (letto.size() > dimensione) {
        return "il file sta cambiando mentre viene letto";
    }
    dati = std::move(letto);
    return {};
}

}  // namespace kelvo
