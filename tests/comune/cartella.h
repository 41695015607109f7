#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

namespace kelvo::prove {

/// A folder of its own for one test, removed at its end.
class CartellaTemporanea {
public:
    CartellaTemporanea() {
        std::random_device caso;
        percorso_ = std::filesystem::temp_directory_path() / ("kelvo-prova-" + std::to_string(caso()));
        std::filesystem::create_directories(percorso_);
    }
    CartellaTemporanea(const CartellaTemporanea&) = delete;
    CartellaTemporanea& operator=(const CartellaTemporanea&) = delete;
    ~CartellaTemporanea() {
        std::error_code ignorato;
        std::filesystem::remove_all(percorso_, ignorato);
    }
    std::string percorso() const { return percorso_.string(); }
    std::string file(const std::string& nome) const { return (percorso_ / nome).string(); }

private:
    std::filesystem::path percorso_;
};

inline std::string contenuto(const std::string& percorso) {
    std::ifstream flusso(percorso, std::ios::binary);
    return {std::istreambuf_iterator<char>(flusso), std::istreambuf_iterator<char>()};
}

inline void scriviContenuto(const std::string& percorso, const std::string& testo) {
    std::ofstream flusso(percorso, std::ios::binary);
    flusso << testo;
}

}  // namespace kelvo::prove
