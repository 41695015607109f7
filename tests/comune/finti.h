#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "app/Applicazione.h"
#include "app/servizi.h"
#include "base/date.h"
#include "comune/cartella.h"

namespace kelvo::prove {

/// Records the message boxes and answers them.
class MessaggiFinti final : public FinestraMessaggi {
public:
    struct Messaggio {
        std::string testo;
        std::string titolo;
        Icona icona;
        Pulsanti pulsanti;
        bool sopra = false;  ///< on top of all windows
    };
    Risposta mostra(const std::string& testo, const std::string& titolo, Icona icona, Pulsanti pulsanti) override {
        mostrati.push_back({testo, titolo, icona, pulsanti, sopra_});
        if (alMostrare) {
            alMostrare();
        }
        return risposta;
    }
    Risposta mostraSopra(const std::string& testo, const std::string& titolo, Icona icona, Pulsanti pulsanti) override {
        sopra_ = true;
        const Risposta data = mostra(testo, titolo, icona, pulsanti);
        sopra_ = false;
        return data;
    }
    std::vector<Messaggio> mostrati;
    Risposta risposta = Risposta::ok;
    std::function<void()> alMostrare;  ///< looks at how things stand while a box is open

private:
    bool sopra_ = false;
};

/// A clock that stands still: 21 November 2026, 10:30:05.
class OrologioFinto final : public Orologio {
public:
    DataOra adesso() override { return istante; }
    DataOra istante = giornoCalendario(2026, 11, 21) + oraDelGiorno(10, 30, 5);
};

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
