#include "calc/totaliTraffico.h"

#include "base/guasto.h"
#include "base/numeri.h"
#include "calc/curvaTraffico.h"

namespace kelvo {

std::optional<TotaliTraffico> totaliTabella(const Rotonda& rotonda, const Ramo& ramo) {
    const int m = minutoCampo(rotonda.SegmentoTempo());
    const auto durata = static_cast<double>(minutiTra(rotonda.TempoIniziale(), rotonda.TempoFinale()));
    const std::int16_t n = aIntero16(arrotondaPari(dividi(durata, m, [] { return "segmento di tempo di 0 minuti"; })));
    if (n == 0) {
        return std::nullopt;
    }
    float totale = 0.0F;
    for (std::int16_t i = 0; i < n; ++i) {
        totale =
            aSingolo(static_cast<double>(totale) + static_cast<double>(ramo.theDatiTraffico().FlussoSegmento(i, 0)));
    }
    const double medio = dividi(static_cast<double>(totale), durata);
    return TotaliTraffico{.FlussoTotale = formatta(totale, "#0"),
                          .FlussoMedio = formatta(medio, "#0.00"),
                          .FlussoOrario = formatta(medio * 60.0, "#0.00")};
}

std::optional<TotaliTraffico> totaliCurva(const Rotonda& rotonda, const Ramo& ramo) {
    const CurvaTraffico curva = CostruisciCurva(datiCurvaDi(rotonda, ramo));
    if (!curva.costruita) {
        return std::nullopt;
    }
    return TotaliTraffico{curva.FlussoTotale, curva.FlussoMedio, curva.FlussoOrario};
}

TotaliTraffico totaliConservati(const Ramo& ramo) {
    const DatiTraffico& traffico = ramo.theDatiTraffico();
    return {.FlussoTotale = formatta(traffico.FlussoTotale(), "#0"),
            .FlussoMedio = formatta(traffico.FlussoMedio(), "#0.00"),
            .FlussoOrario = formatta(traffico.FlussoOrario(), "#0.00")};
}

}  // namespace kelvo
