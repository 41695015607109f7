#include "calc/curvaTraffico.h"

#include "base/guasto.h"
#include "base/numeri.h"
#include "calc/spezzata.h"

namespace kelvo {

namespace {

DataOra piuMinuti(DataOra data, int minuti) {
    return data + minuti / 1440.0;
}

std::string etichetta(DataOra data, int indice, int minuti) {
    std::string testo = testoHHNN(piuMinuti(data, indice * minuti));
    testo.push_back('-');
    return testo.append(testoHHNN(piuMinuti(data, (indice + 1) * minuti)));
}

}  // namespace

spezzata::Forma spezzata::formaDi(const DatiCurva& dati) {
    Forma forma;
    forma.minuti = dati.minuti;
    forma.n1 = segmentiTra(dati.t1, dati.t2, dati.minuti);
    forma.piatto = segmentiTra(dati.t2, dati.t3, dati.minuti, -1) <= 1;
    forma.n2 = segmentiTra(dati.t2, dati.t3, dati.minuti, forma.piatto ? 0 : -1);
    forma.durata = static_cast<double>(minutiTra(dati.t1, dati.t3));
    return forma;
}

bool CostruisciCurva(const DatiCurva& dati, CurvaTraffico& curva) {
    const spezzata::Forma forma = spezzata::formaDi(dati);
    curva.piatto = forma.piatto;
    if (!forma.costruibile()) {
        return false;
    }
    const spezzata::Rette rette = spezzata::retteDi(forma, dati.q1, dati.q2, dati.q3);
    const std::size_t barre = static_cast<std::size_t>(forma.ultima()) + 1;
    curva.FlussiSegmento.assign(barre, 0.0F);
    curva.EtichetteSegmento.assign(barre, {});
    curva.totale = spezzata::percorri(forma, rette, [&](int i, float flusso) {
        const auto barra = static_cast<std::size_t>(i);
        curva.EtichetteSegmento[barra] =
            i <= forma.n1 ? etichetta(dati.t1, i, dati.minuti) : etichetta(dati.t2, i - forma.n1, dati.minuti);
        curva.FlussiSegmento[barra] = flusso;
    });
    curva.TotaleArrotondato = formatta(curva.totale, "#0");
    curva.TotaleEsatto = formatta(curva.totale, "#0.00");
    scriviTotali(curva.totali, curva.totale, forma.durata);
    return true;
}

DatiCurva datiCurvaDi(const Rotonda& rotonda, const Ramo& ramo) {
    const DatiTraffico& traffico = ramo.theDatiTraffico();
    return {.q1 = spezzata::comeTesto(traffico.FlussoTempo1()),
            .q2 = spezzata::comeTesto(traffico.FlussoTempo2()),
            .q3 = spezzata::comeTesto(traffico.FlussoTempo3()),
            .t1 = traffico.Tempo1(),
            .t2 = traffico.Tempo2(),
            .t3 = traffico.Tempo3(),
            .minuti = minutoCampo(rotonda.SegmentoTempo())};
}

}  // namespace kelvo
