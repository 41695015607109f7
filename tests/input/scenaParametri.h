#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "app/nuovoProgetto.h"
#include "comune/fintiFinestre.h"
#include "input/frmParametriRamo.h"
#include "input/frmPreviewRami.h"
#include "input/gestiDati.h"

namespace kelvo::prove {

/// Plays the user of the file dialogue: selects the files, marks a row, confirms; then Cancel.
class AnteprimaFinta final : public DialogoAnteprima {
public:
    bool apri(const RichiestaFile& richiesta, FinestraAnteprima& anteprima) override {
        richieste.push_back(richiesta);
        for (const std::string& file : selezioni) {
            anteprima.selezionato(file);
        }
        auto& vista = dynamic_cast<frmPreviewRami&>(anteprima);
        vista.lstRami.clicca(riga);
        accettato = anteprima.conferma(selezioni.empty() ? std::string{} : selezioni.back());
        return accettato;
    }
    std::vector<RichiestaFile> richieste;
    std::vector<std::string> selezioni;
    std::string riga;
    bool accettato = false;
};

/// A project of three legs with the window at the first of them.
struct ProveParametri : testing::Test, ScenaFinestre {
    DocumentiFinti documenti;
    AnteprimaFinta dialogo;
    frmParametriRamo finestra{contorno(), {documenti, dialogo}};

    ProveParametri() {
        creaProgetto(app, 3);
        apri("keyRamo1");
    }
    void apri(const std::string& chiave) {
        navigazione.corrente = chiave;
        ASSERT_TRUE(gestione.ShowForm(&finestra));
    }
    Ramo& ramo(std::int16_t i) { return app.theRotonda().Ramo(i); }
    bool scrivi(tBox& campo, const std::string& testo) { return scriviIn(finestra, campo, testo); }
    std::string salva(const std::string& nome) { return testoSalvato(app, cartella.percorso() + "/" + nome); }
    std::string valore(std::string_view nome) {
        for (const auto& v : finestra.valori) {
            if (v.nome == nome) {
                return v.etichetta.testo();
            }
        }
        return "manca " + std::string{nome};
    }
};

}  // namespace kelvo::prove
