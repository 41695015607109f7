#include "validazione/CasoNoto.h"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace kelvo::validazione {

namespace {

const std::string& testo(const CasoNoto& caso, const std::string& chiave) {
    const auto trovato = caso.find(chiave);
    if (trovato == caso.end()) {
        throw std::runtime_error("nel caso manca " + chiave);
    }
    return trovato->second;
}

}  // namespace

CasoNoto leggiCaso(const std::string& percorso) {
    std::ifstream righe(percorso);
    CasoNoto caso;
    for (std::string riga; std::getline(righe, riga);) {
        const std::size_t uguale = riga.find('=');
        if (uguale != std::string::npos) {
            caso[riga.substr(0, uguale)] = riga.substr(uguale + 1);
        }
    }
    if (!caso.contains("fonte")) {
        throw std::runtime_error(percorso + ": nessuna fonte");
    }
    return caso;
}

std::vector<std::string> fileDeiCasi(const std::string& cartella, const std::string& inizio) {
    std::vector<std::string> trovati;
    for (const auto& voce : std::filesystem::directory_iterator(cartella)) {
        if (voce.path().filename().string().starts_with(inizio)) {
            trovati.push_back(voce.path().string());
        }
    }
    std::sort(trovati.begin(), trovati.end());
    return trovati;
}

double numero(const CasoNoto& caso, const std::string& chiave) {
    const std::string& scritto = testo(caso, chiave);
    double valore = 0.0;
    const auto letto = std::from_chars(scritto.data(), scritto.data() + scritto.size(), valore);
    if (letto.ec != std::errc{} || letto.ptr != scritto.data() + scritto.size()) {
        throw std::runtime_error(chiave + "=" + scritto + " non è un numero");
    }
    return valore;
}

float misura(const CasoNoto& caso, const std::string& chiave) {
    return static_cast<float>(numero(caso, chiave));
}

int decimali(const CasoNoto& caso, const std::string& chiave) {
    const std::string& scritto = testo(caso, chiave);
    const std::size_t punto = scritto.find('.');
    return punto == std::string::npos ? 0 : static_cast<int>(scritto.size() - punto) - 1;
}

void applica(Ramo& ramo, const CasoNoto& caso) {
    ramo.LarghezzaIngresso(misura(caso, "e"));
    ramo.SemiLarghezza(misura(caso, "v"));
    ramo.LunghezzaSvasatura(misura(caso, "l"));
    ramo.DiametroInscritto(misura(caso, "D"));
    ramo.AngoloConflitto(misura(caso, "phi"));
    ramo.RaggioIngresso(misura(caso, "r"));
}

}  // namespace kelvo::validazione
