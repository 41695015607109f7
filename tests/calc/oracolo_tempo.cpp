#include <cmath>

#include "base/date.h"
#include "base/guasto.h"
#include "oracolo.h"

namespace kelvo::prove::oracolo {

namespace {

std::size_t pos(int i) {
    return static_cast<std::size_t>(i);
}

double d(float valore) {
    return static_cast<double>(valore);
}

double minuti(DataOra da, DataOra a) {
    return static_cast<double>(minutiTra(da, a));
}

/// A line of the demand curve.
struct Retta {
    float pendenza = 0.0F;
    float offset = 0.0F;
};

/// The line through (0, qa) and (x, qb) by Cramer's rule.
Retta calcolaRetta(float qa, float qb, double minutiTratto, int m) {
    const double x = intero(diviso(minutiTratto, m));
    const float somma = singolo(d(qa) + d(qb));
    const float xy = singolo(x * d(qb));
    const float xx = singolo(x * x);
    const float det = singolo(d(xx) - 2.0 * d(xx));
    Retta retta;
    retta.pendenza = singolo(diviso(x * d(somma) - 2.0 * d(xy), d(det)));
    retta.offset = singolo(diviso(x * d(xy) - d(xx) * d(somma), d(det)));
    return retta;
}

/// One run of a simulation.
class Simulazione {
public:
    Simulazione(Progetto& progetto, const Richiesta& richiesta, Esito& esito)
        : p(progetto), r(richiesta), e(esito), n(progetto.n), m(minutoCampo(progetto.segmento)) {}

    void curva();
    void tabella();

private:
    const Ipotesi* ipotesi() const { return r.forma == Forma::ipotesi ? &r.ipotesi : nullptr; }
    void leggiQuote();
    float gDellePercentuali(int i);
    float gDelSegmento(int k, int i);
    double share(int i);
    void passoA();
    void passoB();
    void passoC(bool scrivi);
    void passoD();
    void domandaCurva(int k, int i);
    void domandaTabella(int k, int i);
    void capacitaDelSegmento(int k);
    float capacitaRidotta(int k, int i);
    Iterazione recordCurva(int k, int i);
    Iterazione recordTabella(int k, int i);
    void scrivi(int k, int i, const Iterazione& record);
    void dimensiona();

    Progetto& p;
    const Richiesta& r;
    Esito& e;
    int n;
    int m;
    int K = 0;
    MatriceSingola M;
    std::vector<DataOra> t1, t2, t3;
    std::vector<double> d12, d23;
    std::vector<float> q1, q2, q3;
    std::vector<float> G;
    std::vector<double> quota;
    std::vector<Retta> sale, scende;
    std::vector<int> k1, k2, k3;
    MatriceSingola Dq, Cq;
};

void Simulazione::leggiQuote() {
    if (r.forma != Forma::corsie) {
        return;
    }
    p.quoteDX = {};
    for (int k = 0; k < 4; ++k) {
        if (!r.corsie[pos(k)]) {
            continue;
        }
        const int destinazione = (k + 1) % 4;
        if (k >= n || destinazione >= n) {
            throw Difetto{9};
        }
        p.quoteDX[pos(k)] = 100.0 * d(p.p[pos(k)][pos(destinazione)]);
    }
}

float Simulazione::gDellePercentuali(int i) {
    double somma = 0.0;
    for (int j = 0; j < 7; ++j) {
        somma += d(p.VE[pos(j)]) * d(ramo(p, i).percentuali[pos(j)]);
    }
    return singolo(somma / 100.0);
}

float Simulazione::gDelSegmento(int k, int i) {
    const Ingresso& in = ramo(p, i);
    std::array<float, 7> c{};
    if (k < static_cast<int>(in.categorie.size())) {
        c = in.categorie[pos(k)];
    }
    float T = 0.0F;
    for (int j = 0; j < 7; ++j) {
        T = singolo(d(T) + d(c[pos(j)]));
    }
    if (T == 0.0F) {
        return 0.0F;
    }
    float somma = 0.0F;
    for (int j = 0; j < 7; ++j) {
        const float termine = singolo(d(p.VE[pos(j)]) * d(c[pos(j)]));
        somma = singolo(d(somma) + d(termine));
    }
    return singolo(diviso(d(somma), d(T)));
}

double Simulazione::share(int i) {
    if (i >= 4) {
        throw Difetto{9};
    }
    const Ingresso& in = ramo(p, i);
    double valore = diviso(p.quoteDX[pos(i)] * d(in.flussoTotale) / 100.0, static_cast<double>(m) * in.numSegmenti);
    if (r.modo == "0") {
        valore *= d(G[pos(i)]);
    }
    return doppio(valore);
}

void Simulazione::passoA() {
    for (int i = 0; i < n; ++i) {
        const Ingresso& in = ramo(p, i);
        t1.push_back(in.t1);
        t2.push_back(in.t2);
        t3.push_back(r.forma == Forma::ipotesi ? in.t3 : in.t3 - p.segmento);
        d12.push_back(minuti(t1.back(), t2.back()));
        d23.push_back(minuti(t2.back(), t3.back()));
        q1.push_back(0.0F);
        q2.push_back(0.0F);
        q3.push_back(0.0F);
        G.push_back(0.0F);
        if (r.modo == "0") {
            G.back() = gDellePercentuali(i);
            q1.back() = singolo(d(in.q1) * d(G.back()));
            q2.back() = singolo(d(in.q2) * d(G.back()));
            q3.back() = singolo(d(in.q3) * d(G.back()));
        }
        if (r.modo == "1") {
            q1.back() = in.q1;
            q2.back() = in.q2;
            q3.back() = in.q3;
        }
        if (r.forma == Forma::corsie) {
            quota.push_back(share(i));
        }
    }
}

void Simulazione::passoB() {
    for (int i = 0; i < n; ++i) {
        sale.push_back(calcolaRetta(q1[pos(i)], q2[pos(i)], d12[pos(i)], m));
    }
    for (int i = 0; i < n; ++i) {
        scende.push_back(calcolaRetta(q2[pos(i)], q3[pos(i)], d23[pos(i)], m));
    }
}

void Simulazione::passoC(bool scriviCapacita) {
    const std::vector<float> Q = bilancia(p, ipotesi(), M);
    for (int i = 0; i < n && scriviCapacita; ++i) {
        ramo(p, i).CapacitaUltima = d(Q[pos(i)]);
    }
}

void Simulazione::passoD() {
    for (int i = 0; i < n; ++i) {
        k1.push_back(sedici(std::floor(diviso(minuti(p.inizio, t1[pos(i)]), m))));
        k2.push_back(sedici(std::floor(diviso(minuti(p.inizio, t2[pos(i)]), m))));
        k3.push_back(sedici(std::floor(diviso(minuti(p.inizio, t3[pos(i)]), m))));
    }
    K = sedici(intero(diviso(minuti(p.inizio, p.fine), m)));
}

void Simulazione::dimensiona() {
    for (int k = 0; k <= K; ++k) {
        Dq.emplace_back(pos(n), 0.0F);
        Cq.emplace_back(pos(n), 0.0F);
    }
}

void Simulazione::domandaCurva(int k, int i) {
    float g = 0.0F;
    if (r.modo == "1") {
        g = gDelSegmento(k, i);
    }
    // The three conditions in their order, the first that holds counts: a segment on the rising line is on it also past
    // k3, a segment before k1 has no demand also where the peak comes first.
    float y = 0.0F;
    bool linea = false;
    if (k1[pos(i)] <= k && k <= k2[pos(i)]) {
        const float passo = singolo(d(sale[pos(i)].pendenza) * (k - k1[pos(i)]));
        y = singolo(d(sale[pos(i)].offset) + d(passo));
        linea = true;
    } else if (k < k1[pos(i)] || k > k3[pos(i)]) {
        Dq[pos(k)][pos(i)] = 0.0F;
    } else if (k2[pos(i)] < k && k <= k3[pos(i)]) {
        const float passo = singolo(d(scende[pos(i)].pendenza) * (k - k2[pos(i)]));
        y = singolo(d(scende[pos(i)].offset) + d(passo));
        linea = true;
    }
    if (!linea || (r.modo != "0" && r.modo != "1")) {
        return;
    }
    if (r.forma == Forma::corsie) {
        y = singolo(d(y) - quota[pos(i)]);
    }
    float domanda = singolo(d(y) * 60.0);
    if (r.modo == "1" && r.forma != Forma::ipotesi) {
        domanda = singolo(d(domanda) * d(g));
    }
    Dq[pos(k)][pos(i)] = domanda;
}

void Simulazione::domandaTabella(int k, int i) {
    float g = 0.0F;
    if (r.modo == "0") {
        g = gDellePercentuali(i);
    } else if (r.modo == "1") {
        g = gDelSegmento(k, i);
    } else {
        return;
    }
    const Ingresso& in = ramo(p, i);
    const float flusso = k < static_cast<int>(in.flussi.size()) ? in.flussi[pos(k)] : 0.0F;
    if (r.forma == Forma::corsie) {
        Dq[pos(k)][pos(i)] = singolo(diviso((d(flusso) - quota[pos(i)]) * 60.0 * d(g), m));
    } else {
        Dq[pos(k)][pos(i)] = singolo(diviso(60.0 * d(flusso) * d(g), m));
    }
}

void Simulazione::capacitaDelSegmento(int k) {
    std::vector<float> R;
    for (int i = 0; i < n; ++i) {
        R.push_back(singolo(ramo(p, i).F));
    }
    const MatriceSingola copia = M;
    MatriceSingola rimasta = M;
    for (int i = 0; i < n; ++i) {
        for (int j = 0; j < n; ++j) {
            if (j == i) {
                continue;
            }
            const double CU = ramo(p, j).CapacitaUltima;
            const double u = CU > d(Dq[pos(k)][pos(j)]) ? d(Dq[pos(k)][pos(j)]) : CU;
            R[pos(i)] = singolo(d(R[pos(i)]) - d(copia[pos(j)][pos(i)]) * u);
            rimasta[pos(j)][pos(i)] = 0.0F;
        }
    }
    std::vector<double> b;
    for (int i = 0; i < n; ++i) {
        b.push_back(d(R[pos(i)]));
    }
    const std::vector<double> soluzione = catena(n, b, rimasta);
    for (int i = 0; i < n; ++i) {
        Cq[pos(k)][pos(i)] = singolo(soluzione[pos(i)]);
    }
}

float Simulazione::capacitaRidotta(int k, int i) {
    const Ingresso& in = ramo(p, i);
    const double notte = p.notturne ? p.percentualeNotturna : 0;
    const float est = singolo(in.condizioniEsterne);
    const float ped = in.pedonale ? singolo(in.incidenzaPedonale) : 0.0F;
    return singolo((100.0 - notte - d(est) - d(ped)) * d(Cq[pos(k - 1)][pos(i)]) / 100.0);
}

Iterazione Simulazione::recordCurva(int k, int i) {
    Iterazione record;
    record.Capacita = capacitaRidotta(k, i);
    const float c = record.Capacita;
    record.Flusso = singolo(d(Dq[pos(k - 1)][pos(i)]) / 60.0);
    const float f = record.Flusso;
    record.Coeff_Sat = c > 0.0F ? singolo(d(f) * 60.0 / d(c)) : 0.0F;
    if (f > 0.0F) {
        const double T = diviso(minuti(p.inizio, p.fine), ramo(p, i).numSegmenti - 1);
        const CodaRitardo esito = r.forma == Forma::ipotesi ? codaDoppia(f, c, p.percentile, T)
                                                            : codaSingola(f, c, p.percentile, sedici(intero(T)));
        record.Coda = esito.coda;
        record.Ritardo = esito.ritardo;
    }
    return record;
}

Iterazione Simulazione::recordTabella(int k, int i) {
    Iterazione record;
    record.Capacita = capacitaRidotta(k, i);
    record.Flusso = singolo(d(Dq[pos(k - 1)][pos(i)]) / 60.0);
    record.Coeff_Sat = singolo(diviso(d(record.Flusso) * 60.0, d(record.Capacita)));
    const double T = diviso(minuti(p.inizio, p.fine), ramo(p, i).numSegmenti - 1);
    const CodaRitardo esito = codaDoppia(record.Flusso, record.Capacita, p.percentile, T);
    record.Coda = esito.coda;
    record.Ritardo = esito.ritardo;
    return record;
}

void Simulazione::scrivi(int k, int i, const Iterazione& record) {
    ramo(p, i).record[k] = record;
    e.scritti.emplace_back(k, i + 1);
}

void Simulazione::curva() {
    leggiQuote();
    passoA();
    passoB();
    passoC(r.forma != Forma::ipotesi);
    passoD();
    dimensiona();
    for (int k = 0; k <= K; ++k) {
        for (int i = 0; i < n; ++i) {
            domandaCurva(k, i);
        }
        capacitaDelSegmento(k);
    }
    for (int k = 1; k <= K; ++k) {
        for (int i = 0; i < n; ++i) {
            scrivi(k, i, recordCurva(k, i));
        }
    }
}

void Simulazione::tabella() {
    leggiQuote();
    K = sedici(intero(diviso(minuti(p.inizio, p.fine), m)));
    if (r.forma == Forma::corsie) {
        for (int i = 0; i < n; ++i) {
            G.push_back(r.modo == "0" ? gDellePercentuali(i) : 0.0F);
            quota.push_back(share(i));
        }
    }
    passoC(true);
    dimensiona();
    for (int k = 0; k <= K; ++k) {
        for (int i = 0; i < n; ++i) {
            domandaTabella(k, i);
        }
        capacitaDelSegmento(k);
    }
    for (int k = 1; k <= K; ++k) {
        for (int i = 0; i < n; ++i) {
            scrivi(k, i, recordTabella(k, i));
        }
    }
}

template <class Lavoro>
Esito conGestore(Progetto& p, const Richiesta& richiesta, const Lavoro& lavoro) {
    Esito esito;
    try {
        Simulazione simulazione(p, richiesta, esito);
        lavoro(simulazione);
    } catch (const Difetto& difetto) {
        esito.guasto = difetto.numero;
    } catch (const Guasto& guasto) {  // a date outside the calendar
        esito.guasto = guasto.codice();
    }
    return esito;
}

}  // namespace

Esito tempoFlusso(Progetto& p, const Richiesta& richiesta) {
    return conGestore(p, richiesta, [](Simulazione& simulazione) { simulazione.curva(); });
}

Esito tempoFlussoST(Progetto& p, const Richiesta& richiesta) {
    return conGestore(p, richiesta, [](Simulazione& simulazione) { simulazione.tabella(); });
}

}  // namespace kelvo::prove::oracolo
