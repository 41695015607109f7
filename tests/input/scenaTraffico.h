#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "app/nuovoProgetto.h"
#include "comune/fintiFinestre.h"
#include "input/frmDatiTraffico.h"
#include "input/gestiDati.h"

namespace kelvo::prove {

/// A project of three legs, 08:00 to 09:30 by 15 minutes, with the window at the first of them: 4, 10 and 2 veic/min at
/// 08:00, 08:30 and 09:30.
struct ScenaTraffico : testing::Test, ScenaFinestre {
    frmDatiTraffico finestra{contorno()};
    tBox& t1 = finestra.txtTempo1;
    tBox& t2 = finestra.txtTempo2;
    tBox& t3 = finestra.txtTempo3;
    tBox& q1 = finestra.txtFlussoTempo1;
    tBox& q2 = finestra.txtFlussoTempo2;
    tBox& q3 = finestra.txtFlussoTempo3;
    std::vector<ErroreRegistrato> errori;

    ScenaTraffico() {
        creaProgetto(app, 3);
        app.comune.alErrore = [this](const ErroreRegistrato& errore) { errori.push_back(errore); };
        Rotonda& r = app.theRotonda();
        r.TempoIniziale(oraDelGiorno(8, 0));
        r.TempoFinale(oraDelGiorno(9, 30));
        r.SegmentoTempo(oraDelGiorno(0, 15));
        for (std::int16_t i = 1; i <= 3; ++i) {
            dati(i).NumSegmentiTempo(6);
            r.Ramo(i).theComposizioneTraffico().NumSegmentiTempo(6);
            flussi(i, 4.0F, 10.0F, 2.0F);
            tempi(i, oraDelGiorno(8, 0), oraDelGiorno(8, 30), oraDelGiorno(9, 30));
        }
        riapri("keyDatiTraffico1");
    }
    DatiTraffico& dati(std::int16_t i) { return app.theRotonda().Ramo(i).theDatiTraffico(); }
    void flussi(std::int16_t i, float uno, float due, float tre) {
        dati(i).FlussoTempo1(uno);
        dati(i).FlussoTempo2(due);
        dati(i).FlussoTempo3(tre);
    }
    void tempi(std::int16_t i, DataOra uno, DataOra due, DataOra tre) {
        dati(i).Tempo1(uno);
        dati(i).Tempo2(due);
        dati(i).Tempo3(tre);
    }
    /// A click on a node; false if the window at hand refused to be left.
    bool apri(const std::string& chiave) {
        navigazione.corrente = chiave;
        return gestione.ShowForm(&finestra);
    }
    /// The window comes up afresh after the project was changed behind it.
    void riapri(const std::string& chiave) {
        gestione.chiudiCorrente();
        ASSERT_TRUE(apri(chiave));
    }
    bool scrivi(tBox& campo, const std::string& testo) { return scriviIn(finestra, campo, testo); }
    std::string salva(const std::string& nome) { return testoSalvato(app, cartella.percorso() + "/" + nome); }
    std::string totali() const {
        return finestra.txtFlussoTotale.testo() + " " + finestra.txtFlussoMedio.testo() + " " +
               finestra.txtFlussoOrario.testo();
    }
    /// The texts of the series that the chart shows.
    const Grafico::Serie& barre() const { return finestra.ctlChart.contenuto().serie.at(0); }
};

}  // namespace kelvo::prove
