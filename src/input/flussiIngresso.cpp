#include "input/flussiIngresso.h"

#include "base/guasto.h"
#include "base/numeri.h"
#include "calc/curvaTraffico.h"

namespace kelvo {

namespace {

constexpr std::int16_t daCurva = 1;
constexpr std::int16_t daConteggi = 2;

void dallaCurva(const Rotonda& rotonda, const Ramo& ramo, std::vector<double>& flussi) {
    const DatiCurva dati = datiCurvaDi(rotonda, ramo);
    CurvaTraffico curva;
    if (!CostruisciCurva(dati, curva)) {
        return;
    }
    // The first bar stands in the segment that begins at t1.
    const std::int64_t inizio = segmentiTra(rotonda.TempoIniziale(), dati.t1, dati.minuti);
    for (std::size_t k = 0; k < flussi.size(); ++k) {
        const std::int64_t barra = static_cast<std::int64_t>(k) - inizio;
        if (barra >= 0 && barra < static_cast<std::int64_t>(curva.FlussiSegmento.size())) {
            const auto flusso = static_cast<double>(curva.FlussiSegmento[static_cast<std::size_t>(barra)]);
            const float veicoli = aSingolo(flusso * dati.minuti);
            flussi[k] = leggiNumero(formatta(veicoli, "#0")).value_or(0.0);
        }
    }
}

}  // namespace

std::vector<double> flussiIngresso(const Rotonda& rotonda, const Ramo& ramo) {
    const std::int16_t segmenti = ramo.theComposizioneTraffico().NumSegmentiTempo();
    std::vector<double> flussi(static_cast<std::size_t>(segmenti), 0.0);
    if (rotonda.TipoAnalisi() == daCurva) {
        dallaCurva(rotonda, ramo, flussi);
    } else if (rotonda.TipoAnalisi() == daConteggi) {
        for (std::int16_t k = 0; k < segmenti; ++k) {
            const float conteggio = ramo.theDatiTraffico().FlussoSegmento(k, 0);
            flussi[static_cast<std::size_t>(k)] = leggiNumero(testoNumero(conteggio)).value_or(0.0);
        }
    }
    return flussi;
}

}  // namespace kelvo
