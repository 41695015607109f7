#include "calc/totaliTraffico.h"

#include "base/guasto.h"
#include "base/numeri.h"
#include "calc/curvaTraffico.h"

namespace kelvo {

void scriviTotali(TotaliTraffico& totali, float veicoli, double durata) {
    totali.FlussoTotale = formatta(veicoli, "#0");
    const double medio = dividi(static_cast<double>(veicoli), durata, [] { return "curva di 0 minuti"; });
    totali.FlussoMedio = formatta(medio, "#0.00");
    totali.FlussoOrario = formatta(medio * 60.0, "#0.00");
}

std::optional<TotaliTraffico> totaliTabella(const Rotonda& rotonda, const Ramo& ramo) {
    const DataOra inizio = rotonda.TempoIniziale();
    const DataOra fine = rotonda.TempoFinale();
    const std::int16_t n = segmentiTra(inizio, fine, minutoCampo(rotonda.SegmentoTempo()));
    if (n == 0) {
        return std::nullopt;
    }
    float totale = 0.0F;
    for (std::int16_t i = 0; i < n; ++i) {
        const auto veicoli = static_cast<double>(ramo.theDatiTraffico().FlussoSegmento(i, 0));
        totale = aSingolo(static_cast<double>(totale) + veicoli, [&] { return ramo.Descrizione(); });
    }
    TotaliTraffico totali;
    scriviTotali(totali, totale, static_cast<double>(minutiTra(inizio, fine)));
    return totali;
}

std::optional<TotaliTraffico> totaliCurva(const Rotonda& rotonda, const Ramo& ramo) {
    CurvaTraffico curva;
    if (!CostruisciCurva(datiCurvaDi(rotonda, ramo), curva)) {
        return std::nullopt;
    }
    return curva.totali;
}

TotaliTraffico totaliConservati(const Ramo& ramo) {
    const DatiTraffico& traffico = ramo.theDatiTraffico();
    return {.FlussoTotale = formatta(traffico.FlussoTotale(), "#0"),
            .FlussoMedio = formatta(traffico.FlussoMedio(), "#0.00"),
            .FlussoOrario = formatta(traffico.FlussoOrario(), "#0.00")};
}

}  // namespace kelvo
