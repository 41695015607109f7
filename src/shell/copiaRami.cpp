#include "shell/copiaRami.h"

namespace kelvo {

void copiaDatiTraffico(Rotonda& rotonda, std::int16_t da, std::int16_t a) {
    const DatiTraffico& origine = rotonda.Ramo(da).theDatiTraffico();
    DatiTraffico& meta = rotonda.Ramo(a).theDatiTraffico();
    meta.FlussoMedio(origine.FlussoMedio());
    meta.FlussoOrario(origine.FlussoMedio());  // the mean flow on purpose: figures of old projects rest on it
    meta.FlussoTempo1(origine.FlussoTempo1());
    meta.FlussoTempo2(origine.FlussoTempo2());
    meta.FlussoTempo3(origine.FlussoTempo3());
    meta.FlussoTotale(origine.FlussoTotale());
    meta.Tempo1(origine.Tempo1());
    meta.Tempo2(origine.Tempo2());
    meta.Tempo3(origine.Tempo3());
    for (std::int16_t segmento = 0; segmento < origine.NumSegmentiTempo(); ++segmento) {
        meta.FlussoSegmento(origine.FlussoSegmento(segmento, 0), segmento, 0);
    }
    meta.ScartaIterazioni();
}

void copiaComposizioneTraffico(Rotonda& rotonda, std::int16_t da, std::int16_t a) {
    const ComposizioneTraffico& origine = rotonda.Ramo(da).theComposizioneTraffico();
    ComposizioneTraffico& meta = rotonda.Ramo(a).theComposizioneTraffico();
    meta.Autoarticolati(origine.Autoarticolati());
    meta.Autotreni(origine.Autotreni());
    meta.Autovetture(origine.Autovetture());
    meta.Camper(origine.Camper());
    meta.Pullman(origine.Pullman());
    meta.Roulotte(origine.Roulotte());
    meta.VeicoliDueRuote(origine.VeicoliDueRuote());
    for (std::int16_t segmento = 0; segmento < origine.NumSegmentiTempo(); ++segmento) {
        for (std::int16_t classe = 0; classe < numeroClassi; ++classe) {
            meta.CategoriaSegmento(origine.CategoriaSegmento(segmento, classe), segmento, classe);
        }
    }
    rotonda.Ramo(a).theDatiTraffico().ScartaIterazioni();
}

}  // namespace kelvo
