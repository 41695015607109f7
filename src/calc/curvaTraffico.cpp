#include "calc/curvaTraffico.h"

#include <cstdlib>

#include "base/guasto.h"
#include "base/numeri.h"

namespace kelvo {

namespace {

double comeTesto(float valore) {
    return leggiNumero(testoNumero(valore)).value_or(0.0);
}

DataOra piuMinuti(DataOra data, int minuti) {
    return data + minuti / 1440.0;
}

std::string etichetta(DataOra data, int indice, int minuti) {
    std::string testo = testoHHNN(piuMinuti(data, indice * minuti));
    testo.push_back('-');
    return testo.append(testoHHNN(piuMinuti(data, (indice + 1) * minuti)));
}

}  // namespace

bool CostruisciCurva(const DatiCurva& dati, CurvaTraffico& curva) {
    const auto oltre = [] { return "curva di traffico"; };
    const int m = dati.minuti;
    const int n1 = segmentiTra(dati.t1, dati.t2, m);
    curva.piatto = segmentiTra(dati.t2, dati.t3, m, -1) <= 1;
    const int piatto = curva.piatto ? 1 : 0;
    const double q3 = curva.piatto ? dati.q2 : dati.q3;
    const int n2 = segmentiTra(dati.t2, dati.t3, m, piatto - 1);
    const auto durata = static_cast<double>(minutiTra(dati.t1, dati.t3));
    if (n1 == 0 || n2 == 0) {
        return false;
    }
    const auto p1 = static_cast<double>(aSingolo(dividi(dati.q2 - dati.q1, n1), oltre));
    const auto p2 = static_cast<double>(aSingolo(dividi(q3 - dati.q2, n2), oltre));
    const int ultima = std::abs(n1) + std::abs(n2) - piatto;
    const std::size_t barre = static_cast<std::size_t>(ultima) + 1;
    curva.FlussiSegmento.assign(barre, 0.0F);
    curva.EtichetteSegmento.assign(barre, {});
    float totale = 0.0F;
    for (std::size_t barra = 0; barra < barre; ++barra) {
        const int i = static_cast<int>(barra);
        const bool salita = i <= n1;
        curva.EtichetteSegmento[barra] = salita ? etichetta(dati.t1, i, m) : etichetta(dati.t2, i - n1, m);
        const float flusso = aSingolo(salita ? dati.q1 + i * p1 : dati.q2 + (i - n1) * p2, oltre);
        curva.FlussiSegmento[barra] = flusso;
        totale = aSingolo(static_cast<double>(totale) + static_cast<double>(flusso) * m, oltre);
    }
    curva.TotaleArrotondato = formatta(totale, "#0");
    curva.TotaleEsatto = formatta(totale, "#0.00");
    scriviTotali(curva.totali, totale, durata);
    return true;
}

DatiCurva datiCurvaDi(const Rotonda& rotonda, const Ramo& ramo) {
    const DatiTraffico& traffico = ramo.theDatiTraffico();
    return {.q1 = comeTesto(traffico.FlussoTempo1()),
            .q2 = comeTesto(traffico.FlussoTempo2()),
            .q3 = comeTesto(traffico.FlussoTempo3()),
            .t1 = traffico.Tempo1(),
            .t2 = traffico.Tempo2(),
            .t3 = traffico.Tempo3(),
            .minuti = minutoCampo(rotonda.SegmentoTempo())};
}

}  // namespace kelvo
