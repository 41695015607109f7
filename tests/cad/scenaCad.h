#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <deque>
#include <filesystem>
#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

#include "app/nuovoProgetto.h"
#include "cad/modKelvoCAD.h"
#include "comune/cadFinto.h"
#include "comune/fintiFinestre.h"

namespace kelvo::prove {

/// Saves nothing: tells how it ends, and what the companion is then to read.
class SalvataggioFinto final : public Salvataggio {
public:
    void SaveRotonda(bool& esito) override {
        ++volte;
        if (alSalvataggio) {
            alSalvataggio();
        }
        esito = riesce;
    }
    bool riesce = true;
    int volte = 0;
    std::function<void()> alSalvataggio;
};

/// A program in the folder Prog/Kelvo, with a log, and the link to the CAD program.
struct ScenaCad : testing::Test {
    ScenaCad() {
        app.configurazione.PathErrore = "FILELOGERROR.TXT";
        std::filesystem::create_directories(percorsoDaTesto(cartella.file("Prog/Kelvo")));
        messaggi.alMostrare = [this] {
            messaggi.risposta = Risposta::ok;
            if (!risposte.empty()) {
                messaggi.risposta = risposte.front();
                risposte.pop_front();
            }
        };
        app.comune.alErrore = [this](const ErroreRegistrato& errore) { errori.push_back(errore); };
    }
    /// A project whose legs have these inscribed circles.
    void progetto(std::initializer_list<float> diametri) {
        creaProgetto(app, static_cast<std::int16_t>(diametri.size()));
        std::int16_t ramo = 0;
        for (const float d : diametri) {
            app.theRotonda().Ramo(++ramo).DiametroInscritto(d);
        }
    }
    std::string log() const { return contenuto(cartella.file("Prog/Kelvo/FILELOGERROR.TXT")); }
    std::vector<std::string> testi() const {
        std::vector<std::string> tutti;
        for (const auto& m : messaggi.mostrati) {
            tutti.push_back(m.testo);
        }
        return tutti;
    }
    std::vector<std::string> metodi() const {
        std::vector<std::string> tutti;
        for (const ErroreRegistrato& errore : errori) {
            tutti.push_back(errore.metodo);
        }
        return tutti;
    }

    CartellaTemporanea cartella;
    MessaggiFinti messaggi;
    std::deque<Risposta> risposte;  ///< to the boxes, in order; then OK
    OrologioFinto orologio;
    Applicazione app{cartella.file("Prog/Kelvo"), cartella.percorso(), {messaggi, orologio, sistemaFileStandard()}};
    StatoFinestre stato;
    CorniceFinta cornice;
    NavigazioneFinta navigazione;
    DocumentiFinti documenti;
    ImpostazioniFinte impostazioni;
    SalvataggioFinto salvataggio;
    RegistroFinto registro;
    AutomazioneFinta cad;
    std::vector<ErroreRegistrato> errori;
    modKelvoCAD kelvoCAD{app, {documenti, impostazioni, salvataggio, &registro, &cad}};
    Contorno contorno() { return {app, stato, cornice, navigazione}; }
};

}  // namespace kelvo::prove
