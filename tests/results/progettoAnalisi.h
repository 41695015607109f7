#pragma once

#include "app/nuovoProgetto.h"
#include "comune/finti.h"

namespace kelvo::prove {

/// A study of `rami` legs over four segments of a quarter of an hour from 08:00, with the same demand in all turns, as
/// curve and as table; composition of cars alone.
inline void creaStudio(AppFinta& finta, std::int16_t rami, std::int16_t analisi) {
    creaProgetto(finta.app, rami);
    Rotonda& rotonda = finta.app.theRotonda();
    rotonda.TipoAnalisi(analisi);
    rotonda.TempoIniziale(oraDelGiorno(8, 0));
    rotonda.TempoFinale(oraDelGiorno(9, 0));
    rotonda.SegmentoTempo(oraDelGiorno(0, 15));
    for (std::int16_t o = 1; o <= rami; ++o) {
        for (std::int16_t d = 1; d <= rami; ++d) {
            rotonda.MatriceSvolte(o == d ? 0.0F : 25.0F, o, d);
        }
        Ramo& ramo = rotonda.Ramo(o);
        ramo.LarghezzaIngresso(4.5F);
        ramo.SemiLarghezza(3.5F);
        ramo.LunghezzaSvasatura(20.0F);
        ramo.AngoloConflitto(30.0F);
        ramo.RaggioIngresso(20.0F);
        ramo.DiametroInscritto(40.0F);
        DatiTraffico& traffico = ramo.theDatiTraffico();
        traffico.NumSegmentiTempo(4);
        traffico.Tempo1(oraDelGiorno(8, 0));
        traffico.Tempo2(oraDelGiorno(8, 30));
        traffico.Tempo3(oraDelGiorno(9, 0));
        traffico.FlussoTempo1(5.0F);
        traffico.FlussoTempo2(9.0F);
        traffico.FlussoTempo3(4.0F);
        traffico.FlussoTotale(400.0F);
        ComposizioneTraffico& composizione = ramo.theComposizioneTraffico();
        composizione.NumSegmentiTempo(4);
        composizione.Autovetture(100.0F);
        for (std::int16_t k = 0; k < 4; ++k) {
            traffico.FlussoSegmento(60.0F + 20.0F * static_cast<float>(k % 3), k, 0);
        }
    }
}

/// Makes the run of every calculation fail with fault 11: the times t1 and t2 of leg `ramo` are the same.
inline void guastaCurva(AppFinta& finta, std::int16_t ramo) {
    DatiTraffico& traffico = finta.app.theRotonda().Ramo(ramo).theDatiTraffico();
    traffico.Tempo2(traffico.Tempo1());
}

}  // namespace kelvo::prove
