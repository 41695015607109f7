#include "app/percorsi.h"

#include <filesystem>

#include "base/file.h"
#include "base/testo.h"

namespace kelvo {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t finoAlPadre = 6;   ///< the separator and a folder name of five letters
constexpr std::size_t finoAlNonno = 11;  ///< those, the separator before and a folder name of four letters

/// The program's folder less its last characters, a separator at its end.
std::string cartellaTagliata(const clsAmbiente& ambiente, std::size_t tolti) {
    return senzaUltimi(ambiente.CartellaProgramma(), tolti) + static_cast<char>(fs::path::preferred_separator);
}

}  // namespace

std::string cartellaProgetti(const clsAmbiente& ambiente) {
    return cartellaTagliata(ambiente, finoAlPadre) + "Progetti";
}

std::string percorsoKelvoCAD(const clsAmbiente& ambiente) {
    return percorsoSenzaMaiuscole(cartellaTagliata(ambiente, finoAlNonno), "\\KELVOCAD 2014\\KelvoCAD 2014.exe");
}

std::string percorsoMacroKelvoCAD(const clsAmbiente& ambiente) {
    return percorsoSenzaMaiuscole(cartellaTagliata(ambiente, finoAlPadre), "\\KelvoCAD\\doc\\KelvoCAD2008.dvb");
}

std::string nomeProgetto(const std::string& percorso) {
    constexpr std::size_t caratteriEstensione = 4;
    const std::string nome = testoDaPercorso(percorsoDaTesto(percorso).filename());
    const bool klv = maiuscoleAscii(ultimiCaratteri(nome, caratteriEstensione)) == ".KLV";
    return klv ? senzaUltimi(nome, caratteriEstensione) : nome;
}

}  // namespace kelvo
