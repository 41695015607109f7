#include "app/percorsi.h"

#include <filesystem>

#include "base/file.h"
#include "base/testo.h"

namespace kelvo {

namespace fs = std::filesystem;

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
