#include "app/clsAmbiente.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <string_view>
#include <utility>

#include "app/FileIni.h"
#include "base/testo.h"

namespace kelvo {

namespace fs = std::filesystem;

namespace {

std::string conSeparatore(std::string cartella) {
    const auto separatore = static_cast<char>(fs::path::preferred_separator);
    if (cartella.empty()) {
        cartella = ".";  // never the root
    }
    if (cartella.back() != separatore && cartella.back() != '/') {
        cartella.push_back(separatore);
    }
    return cartella;
}

/// The first component of a path is a folder that comes with the program and that nobody writes.
bool soloLetto(std::string_view nome) {
    constexpr std::array<std::string_view, 4> cartelle{"IMMAGINI", "CARATTERI", "SUPPORT", "USERGUIDE"};
    constexpr std::string_view separatori = "/\\";
    nome.remove_prefix(std::min(nome.find_first_not_of(separatori), nome.size()));
    const std::string prima = maiuscoleAscii(nome.substr(0, nome.find_first_of(separatori)));
    return std::find(cartelle.begin(), cartelle.end(), prima) != cartelle.end();
}

bool manca(const std::string& percorso) {
    std::error_code errore;
    return fs::status(percorsoDaTesto(percorso), errore).type() == fs::file_type::not_found;
}

}  // namespace

clsAmbiente::clsAmbiente(std::string cartellaProgramma, const std::string& cartellaLavoro, SistemaFile& sistema)
    : cartellaProgramma_(std::move(cartellaProgramma)),
      cartellaScritta_(cartellaProgramma_),
      cartellaLavoro_(conSeparatore(cartellaLavoro)),
      percorsoIni_(PercorsoProgramma("Kelvo.ini")),
      sistema_(sistema) {}

std::string clsAmbiente::PercorsoProgramma(const std::string& nome) const {
    return percorsoSenzaMaiuscole(conSeparatore(soloLetto(nome) ? cartellaProgramma_ : cartellaScritta_), nome);
}

void clsAmbiente::CartellaScritta(const std::string& cartella) {
    cartellaScritta_ = cartella;
    percorsoIni_ = PercorsoProgramma("Kelvo.ini");
}

std::string clsAmbiente::ScriviIni(const std::string& percorsoFile, const std::string& sezione,
                                   const std::string& chiave, const std::string& valore) {
    std::string testo;
    std::string illeggibile = leggiFile(percorsoFile, massimoIni, testo);
    if (!illeggibile.empty() && !manca(percorsoFile)) {
        return illeggibile;  // it may be there and cannot be read: never overwrite what was not seen
    }
    if (FileIni::codificaNonValida(testo)) {
        return "il file non è di testo UTF-8";  // its lines cannot be told apart
    }
    FileIni ini(testo);
    ini.scrivi(sezione, chiave, valore);
    return ini.testo() == testo ? std::string{} : scriviFileSicuro(sistema_, percorsoFile, ini.testo());
}

std::string clsAmbiente::LeggiIni(const std::string& sezione, const std::string& chiave,
                                  const std::string& percorsoFile) const {
    std::string testo;
    if (!leggiFile(percorsoFile, massimoIni, testo).empty()) {
        return {};
    }
    return FileIni(testo).leggi(sezione, chiave).value_or(std::string{});
}

}  // namespace kelvo
