#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "app/nuovoProgetto.h"
#include "comune/appunti.h"
#include "comune/fintiFinestre.h"
#include "input/gestiDati.h"

namespace kelvo::prove {

/// A project of three legs, 08:00 to 09:30 by 15 minutes, with a window of the composition. The first leg has a curve:
/// 4, 10 and 2 veic/min at 08:00, 08:30 and 09:30, which is 60, 105, 150, 110, 70 and 30 vehicles a segment.
template <class Finestra>
struct ScenaComposizione : testing::Test, ScenaFinestre {
    AppuntiFinti blocco;
    Finestra finestra{contorno()};
    std::vector<ErroreRegistrato> errori;

    ScenaComposizione() {
        app.appunti = &blocco;
        creaProgetto(app, 3);
        app.comune.alErrore = [this](const ErroreRegistrato& errore) { errori.push_back(errore); };
        Rotonda& r = app.theRotonda();
        r.TipoAnalisi(1);
        r.TempoIniziale(oraDelGiorno(8, 0));
        r.TempoFinale(oraDelGiorno(9, 30));
        r.SegmentoTempo(oraDelGiorno(0, 15));
        for (std::int16_t i = 1; i <= 3; ++i) {
            segmenti(i, 6);
        }
        dati(1).FlussoTempo1(4.0F);
        dati(1).FlussoTempo2(10.0F);
        dati(1).FlussoTempo3(2.0F);
        dati(1).Tempo1(oraDelGiorno(8, 0));
        dati(1).Tempo2(oraDelGiorno(8, 30));
        dati(1).Tempo3(oraDelGiorno(9, 30));
    }
    void segmenti(std::int16_t ramo, std::int16_t quanti) {
        dati(ramo).NumSegmentiTempo(quanti);
        composizione(ramo).NumSegmentiTempo(quanti);
    }
    DatiTraffico& dati(std::int16_t i) { return app.theRotonda().Ramo(i).theDatiTraffico(); }
    ComposizioneTraffico& composizione(std::int16_t i) { return app.theRotonda().Ramo(i).theComposizioneTraffico(); }
    /// The window comes up for a leg, afresh after the project was changed behind it.
    void apri(int ramo = 1) {
        gestione.chiudiCorrente();
        ASSERT_TRUE(passa(ramo));
    }
    /// A click on the node of a leg; false if the window at hand refused to be left.
    bool passa(int ramo) {
        navigazione.corrente = "keyComposizioneTraffico" + std::to_string(ramo);
        return gestione.ShowForm(&finestra);
    }
    std::string salva(const std::string& nome) { return testoSalvato(app, cartella.percorso() + "/" + nome); }
};

}  // namespace kelvo::prove
