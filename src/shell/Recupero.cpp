#include "shell/Recupero.h"

#include <filesystem>
#include <vector>

#include "base/file.h"
#include "base/guasto.h"
#include "base/testo.h"
#include "shell/servizi/nomiPermessi.h"

namespace kelvo {

namespace fs = std::filesystem;

namespace {

/// The copies in a folder.
std::vector<fs::path> copie(const std::string& cartella) {
    std::vector<fs::path> trovate;
    std::error_code errore;
    for (fs::directory_iterator voce(percorsoDaTesto(cartella), errore), fine; !errore && voce != fine;
         voce.increment(errore)) {
        std::error_code ignorato;
        if (voce->path().extension() == ".klv" && voce->is_regular_file(ignorato)) {
            trovate.push_back(voce->path());
        }
    }
    return trovate;
}

/// A file name of the system holds 255 bytes; the writer's temporary file has some behind the name.
constexpr std::size_t massimoNome = 50;

std::string nomeAmmesso(std::string nome) {
    const std::size_t lungo = lunghezza(nome);
    if (lungo > massimoNome) {
        nome = senzaUltimi(nome, lungo - massimoNome);
    }
    for (std::size_t i = nome.find_first_of(caratteriVietati); i != std::string::npos;
         i = nome.find_first_of(caratteriVietati, i)) {
        nome[i] = '_';
    }
    if (!nome.empty() && nome.front() == '.') {
        nome.front() = '_';
    }
    return nome.empty() ? Recupero::senzaNome : nome;
}

}  // namespace

std::string Recupero::percorso() const {
    return testoDaPercorso(percorsoDaTesto(cartella_) /
                           percorsoDaTesto(nomeAmmesso(app_.theRotonda().NomeFile()) + ".klv"));
}

std::string Recupero::scrivi() {
    const std::uint64_t revisione = app_.theRotonda().revisione().tutto;
    if (revisione_ == revisione) {
        return {};
    }
    try {
        std::error_code errore;
        fs::create_directories(percorsoDaTesto(cartella_), errore);
        const std::string meta = percorso();
        std::string esito = scriviFileSicuro(app_.file, meta, app_.theRotonda().TestoFile());
        if (esito.empty()) {
            revisione_ = revisione;
            eliminaAltre(meta);
        }
        return esito;
    } catch (const Guasto& guasto) {
        return guasto.descrizione();
    }
}

void Recupero::eliminaAltre(const std::string& tenuta) {
    for (const fs::path& copia : copie(cartella_)) {
        if (testoDaPercorso(copia) != tenuta) {
            app_.file.elimina(testoDaPercorso(copia));
        }
    }
}

void Recupero::elimina() {
    revisione_.reset();
    eliminaAltre({});
}

std::optional<std::string> Recupero::trovata() const {
    std::optional<std::string> ultima;
    fs::file_time_type quando;
    for (const fs::path& copia : copie(cartella_)) {
        std::error_code errore;
        const fs::file_time_type scritta = fs::last_write_time(copia, errore);
        if (!errore && (!ultima || scritta > quando)) {
            ultima = testoDaPercorso(copia);
            quando = scritta;
        }
    }
    return ultima;
}

bool Recupero::appartiene(const std::string& percorso) const {
    std::error_code errore;
    return fs::equivalent(percorsoDaTesto(percorso).parent_path(), percorsoDaTesto(cartella_), errore);
}

}  // namespace kelvo
