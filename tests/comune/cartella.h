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
    std::string percorso() const { return testo(percorso_); }
    std::string file(const std::string& nome) const {
        return testo((percorso_ / std::u8string(nome.begin(), nome.end())).make_preferred());
    }

private:
    static std::string testo(const std::filesystem::path& percorso) {
        const std::u8string u8 = percorso.u8string();
        return {u8.begin(), u8.end()};
    }
    std::filesystem::path percorso_;
};

inline std::string contenuto(const std::string& percorso) {
    std::ifstream flusso(std::filesystem::path(std::u8string(percorso.begin(), percorso.end())), std::ios::binary);
    return {std::istreambuf_iterator<char>(flusso), std::istreambuf_iterator<char>()};
}

inline void scriviContenuto(const std::string& percorso, const std::string& testo) {
    std::ofstream flusso(std::filesystem::path(std::u8string(percorso.begin(), percorso.end())), std::ios::binary);
    flusso << testo;
}

}  // namespace kelvo::prove
