#include "app/percorsi.h"

#include <filesystem>
#include <optional>
#include <string_view>

#include "base/file.h"
#include "base/testo.h"

namespace kelvo {

namespace fs = std::filesystem;

namespace {

constexpr auto separatore = static_cast<char>(fs::path::preferred_separator);
constexpr std::size_t finoAlPadre = 6;   ///< the separator and a folder name of five letters
constexpr std::size_t finoAlNonno = 11;  ///< those, the separator before and a folder name of four letters

/// The program's folder less its last characters, a separator at its end.
std::string cartellaTagliata(const clsAmbiente& ambiente, std::size_t tolti) {
    return senzaUltimi(ambiente.CartellaProgramma(), tolti) + separatore;
}

/// Value of a hexadecimal digit, or nothing.
std::optional<int> cifra(char c) {
    constexpr std::string_view cifre = "0123456789ABCDEF";
    const auto posto = cifre.find(c >= 'a' && c <= 'f' ? static_cast<char>(c - 'a' + 'A') : c);
    return posto == std::string_view::npos ? std::nullopt : std::optional<int>{static_cast<int>(posto)};
}

/// Each '%' with two hexadecimal digits behind it becomes the byte that they name; a zero byte stays as it is.
std::string decodificato(std::string_view testo) {
    constexpr int base = 16;
    std::string uscita;
    for (std::size_t i = 0; i < testo.size(); ++i) {
        const bool segno = testo[i] == '%' && i + 2 < testo.size();
        const auto alta = segno ? cifra(testo[i + 1]) : std::nullopt;
        const auto bassa = segno ? cifra(testo[i + 2]) : std::nullopt;
        if (alta && bassa && (*alta != 0 || *bassa != 0)) {
            uscita += static_cast<char>(*alta * base + *bassa);
            i += 2;
        } else {
            uscita += testo[i];
        }
    }
    return uscita;
}

}  // namespace

std::string cartellaProgetti(const clsAmbiente& ambiente) {
    return cartellaProgetti(ambiente.CartellaScritta());
}

std::string cartellaProgetti(const std::string& cartella) {
    return senzaUltimi(cartella, finoAlPadre) + separatore + "Progetti";
}

std::string percorsoKelvoCAD(const clsAmbiente& ambiente) {
    return percorsoSenzaMaiuscole(cartellaTagliata(ambiente, finoAlNonno), "\\KELVOCAD 2014\\KelvoCAD 2014.exe");
}

std::string percorsoMacroKelvoCAD(const clsAmbiente& ambiente) {
    return percorsoSenzaMaiuscole(cartellaTagliata(ambiente, finoAlPadre), "\\KelvoCAD\\doc\\KelvoCAD2008.dvb");
}

std::string percorsoDaIndirizzo(const std::string& testo) {
    constexpr std::string_view schema = "FILE:";
    if (maiuscoleAscii(testo.substr(0, schema.size())) != schema) {
        return testo;
    }
    std::string_view resto = std::string_view{testo}.substr(schema.size());
    for (const std::string_view macchina : {"//localhost/", "///"}) {
        if (resto.starts_with(macchina)) {
            resto.remove_prefix(macchina.size() - 1);
        }
    }
    if (!resto.starts_with('/') || resto.starts_with("//")) {
        return testo;  // of another machine
    }
    const std::string percorso = decodificato(resto);
    // "/C:/..." names a drive.
    const bool unita = separatore != '/' && percorso.size() > 2 && percorso[2] == ':';
    return unita ? percorso.substr(1) : percorso;
}

std::string nomeProgetto(const std::string& percorso) {
    constexpr std::size_t caratteriEstensione = 4;
    const std::string nome = testoDaPercorso(percorsoDaTesto(percorso).filename());
    const bool klv = maiuscoleAscii(ultimiCaratteri(nome, caratteriEstensione)) == ".KLV";
    return klv ? senzaUltimi(nome, caratteriEstensione) : nome;
}

}  // namespace kelvo
