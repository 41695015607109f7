#include "app/percorsi.h"

#include <filesystem>

#include "base/testo.h"

namespace kelvo {

namespace fs = std::filesystem;

namespace {

/// The entry of a folder that has this name but for the case of its letters; else the name itself.
fs::path cercaSenzaMaiuscole(const fs::path& cartella, const std::string& nome) {
    std::error_code errore;
    fs::path esatto = cartella / percorsoDaTesto(nome);
    if (fs::exists(esatto, errore)) {
        return esatto;
    }
    for (fs::directory_iterator voce(cartella, errore), fine; !errore && voce != fine; voce.increment(errore)) {
        if (maiuscoleAscii(testoDaPercorso(voce->path().filename())) == maiuscoleAscii(nome)) {
            return voce->path();
        }
    }
    return esatto;
}

}  // namespace

std::string percorsoInstallazione(const clsAmbiente& ambiente, std::string_view daProgramma) {
    fs::path percorso = percorsoDaTesto(ambiente.CartellaProgramma());
    while (!daProgramma.empty()) {
        const std::size_t fine = daProgramma.find('\\');
        const std::string_view nome = daProgramma.substr(0, fine);
        if (!nome.empty()) {
            percorso = cercaSenzaMaiuscole(percorso, std::string{nome});
        }
        daProgramma.remove_prefix(fine == std::string_view::npos ? daProgramma.size() : fine + 1);
    }
    return testoDaPercorso(percorso);
}

std::string cartellaProgetti(const clsAmbiente& ambiente) {
    constexpr std::size_t caratteriTolti = 6;  // the separator and a folder name of five letters
    const auto separatore = static_cast<char>(fs::path::preferred_separator);
    return senzaUltimi(ambiente.CartellaProgramma(), caratteriTolti) + separatore + "Progetti";
}

std::string nomeProgetto(const std::string& percorso) {
    constexpr std::size_t caratteriEstensione = 4;
    const std::string nome = testoDaPercorso(percorsoDaTesto(percorso).filename());
    const bool klv = maiuscoleAscii(ultimiCaratteri(nome, caratteriEstensione)) == ".KLV";
    return klv ? senzaUltimi(nome, caratteriEstensione) : nome;
}

}  // namespace kelvo
