#include "base/file.h"

#include <fmt/format.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <random>
#include <system_error>
#include <type_traits>

#include "base/testo.h"

namespace kelvo {

namespace fs = std::filesystem;

namespace {

std::string erroreCorrente() {
    // A stream that fails for a reason of its own leaves no number.
    return errno == 0 ? "errore di scrittura" : paroleErrore(std::error_code(errno, std::generic_category()));
}

/// Removes a file or a link; never a folder.
void togliFile(const fs::path& percorso) {
    std::error_code errore;
    const fs::file_type tipo = fs::symlink_status(percorso, errore).type();
    if (tipo == fs::file_type::regular || tipo == fs::file_type::symlink) {
        fs::remove(percorso, errore);
    }
}

class FileStandard final : public FileInScrittura {
public:
    explicit FileStandard(const fs::path& percorso) : flusso_(percorso, std::ios::binary | std::ios::trunc) {}

    bool aperto() const { return flusso_.is_open(); }
    std::string scrivi(std::string_view dati) override {
        errno = 0;
        flusso_.write(dati.data(), static_cast<std::streamsize>(dati.size()));
        return esito();
    }
    std::string sincronizza() override {
        errno = 0;
        flusso_.flush();
        return esito();
    }
    std::string chiudi() override {
        errno = 0;
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
        const fs::path posto = percorsoDaTesto(percorso);
        std::error_code ignorato;
        if (fs::exists(fs::symlink_status(posto, ignorato))) {
            errore = paroleErrore(std::make_error_code(std::errc::file_exists));
            return nullptr;
        }
        errno = 0;
        auto file = std::make_unique<FileStandard>(posto);
        if (!file->aperto()) {
            errore = erroreCorrente();
            return nullptr;
        }
        return file;
    }
    std::int64_t dimensione(const std::string& percorso) override {
        std::error_code errore;
        const auto byte = fs::file_size(percorsoDaTesto(percorso), errore);
        return errore ? -1 : static_cast<std::int64_t>(byte);
    }
    std::string rinomina(const std::string& da, const std::string& a) override {
        std::error_code errore;
        fs::rename(percorsoDaTesto(da), percorsoDaTesto(a), errore);
        return errore ? paroleErrore(errore) : std::string{};
    }
    void elimina(const std::string& percorso) override { togliFile(percorsoDaTesto(percorso)); }
    void sincronizzaCartella(const std::string& /*percorso*/) override {}
};

/// As `fileDelCollegamento`.
fs::path bersaglio(const std::string& percorso) {
    constexpr int massimiPassi = 40;
    fs::path vero = percorsoDaTesto(percorso);
    std::error_code errore;
    for (int passo = 0; passo < massimiPassi && fs::is_symlink(vero, errore); ++passo) {
        vero = vero.parent_path() / fs::read_symlink(vero, errore);
    }
    return vero;
}

/// Why a file that stands there may not be replaced, or an empty text.
std::string intoccabile(const fs::file_status& stato, const std::error_code& errore) {
    if (!fs::status_known(stato)) {
        return paroleErrore(errore);
    }
    if (!fs::exists(stato)) {
        return {};
    }
    if (fs::is_directory(stato)) {
        return "è una cartella";
    }
    if (!fs::is_regular_file(stato)) {
        return "non è un file";
    }
    return (stato.permissions() & fs::perms::owner_write) == fs::perms::none ? "il file è di sola lettura"
                                                                             : std::string{};
}

std::string riempi(SistemaFile& sistema, FileInScrittura& file, const std::string& percorso, std::string_view dati) {
    std::string errore = file.scrivi(dati);
    if (errore.empty()) {
        errore = file.sincronizza();
    }
    const std::string chiusura = file.chiudi();
    if (errore.empty()) {
        errore = chiusura;
    }
    if (errore.empty() && sistema.dimensione(percorso) != static_cast<std::int64_t>(dati.size())) {
        errore = "la scrittura è incompleta";
    }
    return errore;
}

}  // namespace

fs::path percorsoDaTesto(std::string_view testo) {
    constexpr bool diCaratteri = !std::is_same_v<fs::path::value_type, char>;
    const std::string valido = diCaratteri ? utf8Valido(testo) : std::string(testo);
    return {std::u8string(valido.begin(), valido.end())};
}

std::string testoDaPercorso(const fs::path& percorso) {
    const std::u8string testo = percorso.u8string();
    return {testo.begin(), testo.end()};
}

std::string paroleErrore(const std::error_code& errore) {
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
    if (errore == std::errc::file_exists) {
        return "esiste già un file con questo nome";
    }
    if (errore == std::errc::file_too_large) {
        return "il file è troppo grande per il disco";
    }
    if (errore == std::errc::too_many_symbolic_link_levels) {
        return "il collegamento non porta a un file";
    }
    if (errore == std::errc::filename_too_long) {
        return "il nome è troppo lungo";
    }
    return fmt::format("errore di sistema {}", errore.value());
}

namespace {

std::string testoDimensione(std::uint64_t byte) {
    constexpr std::uint64_t mebi = std::uint64_t{1024} * 1024;
    return byte % mebi == 0 ? fmt::format("{} MiB", byte / mebi) : fmt::format("{} byte", byte);
}

/// A name beside the file that no other process takes at the same time.
std::string nomeTemporaneo(const std::string& percorso) {
    std::random_device caso;
    return fmt::format("{}.{:08x}.tmp~", percorso, static_cast<std::uint32_t>(caso()));
}

/// The name under which `nome` stands in the folder, or `nome` itself.
std::string componente(const fs::path& cartella, const std::string& nome) {
    std::error_code errore;
    if (fs::exists(fs::symlink_status(cartella / percorsoDaTesto(nome), errore))) {
        return nome;
    }
    const std::string cercato = maiuscoleAscii(nome);
    std::string trovato;
    for (auto voce = fs::directory_iterator(cartella, errore); !errore && voce != fs::directory_iterator();
         voce.increment(errore)) {
        const std::string altro = testoDaPercorso(voce->path().filename());
        if (maiuscoleAscii(altro) == cercato && (trovato.empty() || altro < trovato)) {
            trovato = altro;
        }
    }
    return trovato.empty() ? nome : trovato;
}

}  // namespace

SistemaFile& sistemaFileStandard() {
    static SistemaFileStandard sistema;
    return sistema;
}

std::string fileDelCollegamento(const std::string& percorso) {
    return testoDaPercorso(bersaglio(percorso));
}

std::string scriviFileSicuro(SistemaFile& sistema, const std::string& percorso, std::string_view dati) {
    const fs::path vero = bersaglio(percorso);
    const std::string testoVero = testoDaPercorso(vero);
    const std::string temporaneo = nomeTemporaneo(testoVero);
    std::error_code causa;
    const fs::file_status stato = fs::status(vero, causa);
    std::string errore = intoccabile(stato, causa);
    if (!errore.empty()) {
        return errore;
    }
    const auto file = sistema.crea(temporaneo, errore);
    if (!file) {
        return errore;
    }
    if (fs::exists(stato)) {
        // Before the content: what was closed to others stays so at every instant.
        fs::permissions(percorsoDaTesto(temporaneo), stato.permissions(), causa);
    }
    errore = riempi(sistema, *file, temporaneo, dati);
    if (errore.empty()) {
        errore = sistema.rinomina(temporaneo, testoVero);
    }
    if (!errore.empty()) {
        sistema.elimina(temporaneo);
        return errore;
    }
    sistema.sincronizzaCartella(testoVero);
    return {};
}

std::string percorsoSenzaMaiuscole(const std::string& cartella, std::string_view nome) {
    fs::path trovato = percorsoDaTesto(cartella);
    while (!nome.empty()) {
        const std::size_t lungo = std::min(nome.find_first_of("/\\"), nome.size());
        if (lungo > 0) {
            trovato /= percorsoDaTesto(componente(trovato, std::string(nome.substr(0, lungo))));
        }
        nome.remove_prefix(std::min(lungo + 1, nome.size()));
    }
    return testoDaPercorso(trovato);
}

std::string leggiFile(const std::string& percorso, std::uint64_t massimo, std::string& dati) {
    std::error_code errore;
    const fs::path vero = percorsoDaTesto(percorso);
    const fs::file_status stato = fs::status(vero, errore);
    if (stato.type() == fs::file_type::not_found) {
        return "il file non esiste";
    }
    if (errore) {
        return paroleErrore(errore);
    }
    if (!fs::is_regular_file(stato)) {
        return "non è un file";
    }
    errno = 0;
    std::ifstream flusso(vero, std::ios::binary);
    if (!flusso) {
        return erroreCorrente();
    }
    const auto dimensione = fs::file_size(vero, errore);
    if (errore) {
        return paroleErrore(errore);
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
