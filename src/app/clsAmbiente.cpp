#include "app/clsAmbiente.h"

#include <filesystem>
#include <utility>

#include "app/FileIni.h"

namespace kelvo {

namespace {

constexpr std::uint64_t massimoIni = 1024UL * 1024UL;

std::string conSeparatore(std::string cartella) {
    const auto separatore = static_cast<char>(std::filesystem::path::preferred_separator);
    if (cartella.empty() || (cartella.back() != separatore && cartella.back() != '/')) {
        cartella.push_back(separatore);
    }
    return cartella;
}

}  // namespace

clsAmbiente::clsAmbiente(std::string cartellaProgramma, const std::string& cartellaLavoro, SistemaFile& sistema)
    : cartellaProgramma_(std::move(cartellaProgramma)),
      cartellaLavoro_(conSeparatore(cartellaLavoro)),
      percorsoIni_(PercorsoProgramma("Kelvo.ini")),
      sistema_(sistema) {}

std::string clsAmbiente::PercorsoProgramma(const std::string& nome) const {
    return conSeparatore(cartellaProgramma_) + nome;
}

void clsAmbiente::ScriviIni(const std::string& percorsoFile, const std::string& sezione, const std::string& chiave,
                            const std::string& valore) {
    std::string testo;
    if (!leggiFile(percorsoFile, massimoIni, testo).empty() && sistema_.dimensione(percorsoFile) >= 0) {
        return;  // it is there and cannot be read: never overwrite what was not seen
    }
    FileIni ini(testo);
    ini.scrivi(sezione, chiave, valore);
    scriviFileSicuro(sistema_, percorsoFile, ini.testo());
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
