#include "calc/curvaTraffico.h"

#include <cstdlib>

#include "base/guasto.h"
#include "base/numeri.h"

namespace kelvo {

namespace {

/// Minutes between two times over the length of a segment, rounded, ties to even; a 16-bit number of segments.
int segmentiTra(DataOra da, DataOra a, int minuti) {
    const auto durata = static_cast<double>(minutiTra(da, a));
    return aIntero16(arrotondaPari(dividi(durata, minuti, [] { return "segmento di tempo di 0 minuti"; })));
}

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

CurvaTraffico CostruisciCurva(const DatiCurva& dati) {
    CurvaTraffico curva;
    const int m = dati.minuti;
    const int n1 = segmentiTra(dati.t1, dati.t2, m);
    const int discesa = segmentiTra(dati.t2, dati.t3, m) - 1;
    curva.piatto = discesa <= 1;
    const int piatto = curva.piatto ? 1 : 0;
    const double q3 = curva.piatto ? dati.q2 : dati.q3;
    const int n2 = discesa + piatto;
    const auto durata = static_cast<double>(minutiTra(dati.t1, dati.t3));
    if (n1 == 0 || n2 == 0) {
        return curva;
    }
    const auto p1 = static_cast<double>(aSingolo(dividi(dati.q2 - dati.q1, n1)));
    const auto p2 = static_cast<double>(aSingolo(dividi(q3 - dati.q2, n2)));
    const int ultima = std::abs(n1) + std::abs(n2) - piatto;
    float totale = 0.0F;
    for (int i = 0; i <= ultima; ++i) {
        const bool salita = i <= n1;
        const float flusso = aSingolo(salita ? dati.q1 + i * p1 : dati.q2 + (i - n1) * p2);
        curva.EtichetteSegmento.push_back(salita ? etichetta(dati.t1, i, m) : etichetta(dati.t2, i - n1, m));
        curva.FlussiSegmento.push_back(flusso);
        totale = aSingolo(static_cast<double>(totale) + static_cast<double>(flusso) * m);
    }
    curva.TotaleArrotondato = formatta(totale, "#0");
    curva.TotaleEsatto = formatta(totale, "#0.00");
    curva.FlussoTotale = curva.TotaleArrotondato;
    const double medio = dividi(static_cast<double>(totale), durata, [] { return "t1 e t3 coincidono"; });
    curva.FlussoMedio = formatta(medio, "#0.00");
    curva.FlussoOrario = formatta(medio * 60.0, "#0.00");
    curva.costruita = true;
    return curva;
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
