#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include "app/Applicazione.h"
#include "app/servizi.h"
#include "base/date.h"

namespace kelvo::prove {

/// Records the message boxes and answers them.
class MessaggiFinti final : public FinestraMessaggi {
public:
    struct Messaggio {
        std::string testo;
        std::string titolo;
        Icona icona;
        Pulsanti pulsanti;
    };
    Risposta mostra(const std::string& testo, const std::string& titolo, Icona icona, Pulsanti pulsanti) override {
        mostrati.push_back({testo, titolo, icona, pulsanti});
        return risposta;
    }
    std::vector<Messaggio> mostrati;
    Risposta risposta = Risposta::ok;
};

/// A clock that stands still: 21 November 2026, 10:30:05.
class OrologioFinto final : public Orologio {
public:
    DataOra adesso() override { return istante; }
    DataOra istante = giornoCalendario(2026, 11, 21) + oraDelGiorno(10, 30, 5);
};

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

/// A program without windows in a folder of its own, with the factory coefficients in memory.
class AppFinta {
public:
    AppFinta() { app.configurazione.coefficienti(coefficientiDiFabbrica); }
    CartellaTemporanea cartella;
    MessaggiFinti messaggi;
    OrologioFinto orologio;
    Applicazione app{cartella.percorso(), cartella.percorso(), {messaggi, orologio, sistemaFileStandard()}};
};

}  // namespace kelvo::prove
