#include "app/percorsi.h"

#include <filesystem>

#include "base/testo.h"

namespace kelvo {

namespace fs = std::filesystem;

namespace {

fs::path percorsoDi(const std::string& testo) {
    return fs::path(std::u8string(testo.begin(), testo.end()));
}

std::string testoDi(const fs::path& percorso) {
    const std::u8string u8 = percorso.u8string();
    return {u8.begin(), u8.end()};
}

}  // namespace

std::string cartellaProgetti(const clsAmbiente& ambiente) {
    constexpr std::size_t caratteriTolti = 6;  // the separator and a folder name of five letters
    const auto separatore = static_cast<char>(fs::path::preferred_separator);
    return senzaUltimi(ambiente.CartellaProgramma(), caratteriTolti) + separatore + "Progetti";
}

std::string nomeProgetto(const std::string& percorso) {
    constexpr std::size_t caratteriEstensione = 4;
    const std::string nome = testoDi(percorsoDi(percorso).filename());
    const bool klv = maiuscoleAscii(ultimiCaratteri(nome, caratteriEstensione)) == ".KLV";
    return klv ? senzaUltimi(nome, caratteriEstensione) : nome;
}

}  // namespace kelvo
