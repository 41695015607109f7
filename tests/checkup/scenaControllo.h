#pragma once

#include <gtest/gtest.h>

#include <array>
#include <map>
#include <string>
#include <vector>

#include "app/nuovoProgetto.h"
#include "checkup/modERRORI.h"
#include "comune/fintiFinestre.h"

namespace kelvo::prove {

/// Windows whose fields show what a test puts there.
class CampiFinti final : public CampiMostrati {
public:
    std::optional<std::string> testo(std::string_view finestra, std::string_view campo) const override {
        const auto trovato = testi.find(std::string{finestra} + "." + std::string{campo});
        return trovato == testi.end() ? std::nullopt : std::optional{trovato->second};
    }
    bool fuocoSu(std::string_view campo, int riga) override {
        chiesti.push_back(std::string{campo} + (riga > 0 ? " " + std::to_string(riga) : ""));
        return true;
    }

    std::map<std::string, std::string> testi;  ///< by "window.field"
    std::vector<std::string> chiesti;          ///< fields that were given the focus
};

using Testi = std::vector<std::string>;

/// A project of four legs "Nord", "Est", "Sud", "Ovest" in which the rules find nothing, on 21 November 2026, 10:30.
struct ScenaControllo : testing::Test, ScenaFinestre {
    CampiFinti campi;
    std::vector<ErroreRegistrato> registrati;
    modERRORI errori{app, {&cornice, &campi}};

    ScenaControllo() {
        app.comune.alErrore = [this](const ErroreRegistrato& errore) { registrati.push_back(errore); };
        coefficienti("2,5", "2", "1,8", "1,4", "1,2", "0,8", "1");
        creaProgetto(app, 4);
        cornice.caption = "KELVO 2014 - [Prova.klv]";
        Rotonda& r = rotonda();
        r.NomeFile("Prova");
        r.Data(giornoCalendario(2026, 11, 21));
        r.StatoAvanzamento("Progetto Definitivo");
        r.Localita("Borgo");
        r.Comune("Lucca");
        r.Provincia("LU");
        r.Note("nota");
        r.Titolo("Titolo");
        r.NomeProfessionista("Ing. Bianchi");
        r.IndirizzoProfessionista("Via Roma 1");
        r.CAPProfessionista("55100");
        r.CittaProfessionista("Lucca");
        r.ProvinciaProfessionista("LU");
        r.TelefonoProfessionista("0583 1");
        r.EMailProfessionista("a@b.it");
        rami();
    }
    void rami() {
        constexpr std::array nomi{"Nord", "Est", "Sud", "Ovest"};
        for (std::int16_t i = 1; i <= 4; ++i) {
            ramo(i).Descrizione(nomi.at(static_cast<std::size_t>(i - 1)));
            ramo(i).DiametroInscritto(45.0F);
            ramo(i).theDatiTraffico().FlussoTotale(100.0F);
            ramo(i).theDatiTraffico().FlussoOrario(100.0F);
            riga(i, 30.0F, 35.0F, 35.0F);
        }
    }
    Rotonda& rotonda() { return app.theRotonda(); }
    Ramo& ramo(std::int16_t i) { return rotonda().Ramo(i); }
    ComposizioneTraffico& composizione(std::int16_t i) { return ramo(i).theComposizioneTraffico(); }
    /// A row of the turning matrix: right, straight on, left.
    void riga(std::int16_t i, float destra, float dritto, float sinistra) {
        const auto verso = [i](int passo) { return static_cast<std::int16_t>((i - 1 + passo) % 4 + 1); };
        rotonda().MatriceSvolte(destra, i, verso(1));
        rotonda().MatriceSvolte(dritto, i, verso(2));
        rotonda().MatriceSvolte(sinistra, i, verso(3));
    }
    /// In the order of the file.
    void coefficienti(const std::string& autoarticolati, const std::string& autotreni, const std::string& pullman,
                      const std::string& camper, const std::string& roulotte, const std::string& motocicli,
                      const std::string& autovetture) {
        scriviContenuto(app.theAmbiente.PercorsoIni(),
                        "[VEICOLI EQUIVALENTI]\nAutoarticolati=" + autoarticolati + "\nAutotreni=" + autotreni +
                            "\nPullman=" + pullman + "\nCamper=" + camper + "\nRoulotte=" + roulotte +
                            "\nMotocicli=" + motocicli + "\nAutovetture=" + autovetture + "\n");
    }

    /// Runs all rules; the texts of the findings, each begun with the letter of its level.
    Testi trova() {
        errori.svuota();
        errori.AnalisiProgetto();
        Testi testi;
        for (const Riscontro& r : errori.ctlTreeAnalizzatore.riscontri) {
            testi.push_back(r.chiave.substr(0, 1) + " " + r.testo);
        }
        return testi;
    }
    Meta meta(std::size_t i = 0) { return errori.ctlTreeAnalizzatore.riscontri.at(i).meta; }
};

}  // namespace kelvo::prove
