#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "cad/disegnoDxf.h"
#include "pianta/progetti.h"

/// Drawings for the tests, and the groups of a file.
namespace kelvo::prove {

inline pianta::DatiRamo ramoMedio(const std::string& nome = "Via Roma") {
    return ramoUsuale(nome);
}

inline pianta::DatiPianta rotatoria(int rami) {
    return uguali(rami, ramoMedio());
}

inline const dxf::Cartiglio cartiglioProva{.titolo = "Titolo", .luogo = "Luogo", .progettista = "P", .data = "D"};

inline std::string filePianta(const pianta::DatiPianta& dati, const dxf::Scelte& scelte = {}) {
    return dxf::testoDxf(dxf::disegno(dati, cartiglioProva, scelte));
}

using GruppoDxf = std::pair<std::string, std::string>;

/// Codes, without blanks, and values of a file, in their order. A line that is not ended by CR LF is a group "?".
inline std::vector<GruppoDxf> gruppiDi(std::string_view testo) {
    std::vector<std::string> righe;
    while (!testo.empty()) {
        const auto fine = testo.find("\r\n");
        if (fine == std::string_view::npos) {
            return {{"?", std::string{testo}}};
        }
        righe.emplace_back(testo.substr(0, fine));
        testo.remove_prefix(fine + 2);
    }
    std::vector<GruppoDxf> gruppi;
    for (std::size_t i = 0; i + 1 < righe.size(); i += 2) {
        gruppi.emplace_back(righe[i].substr(righe[i].find_first_not_of(' ')), righe[i + 1]);
    }
    return gruppi;
}

}  // namespace kelvo::prove
