#include "oracolo.h"

#include <cmath>

#include "base/guasto.h"

namespace kelvo::prove::oracolo {

namespace {

std::size_t pos(int i) {
    return static_cast<std::size_t>(i);
}

double d(float valore) {
    return static_cast<double>(valore);
}

Ingresso leggiIngresso(const Ramo& ramo) {
    const DatiTraffico& traffico = ramo.theDatiTraffico();
    const ComposizioneTraffico& mezzi = ramo.theComposizioneTraffico();
    Ingresso in;
    in.misure = {ramo.LarghezzaIngresso(), ramo.SemiLarghezza(),  ramo.LunghezzaSvasatura(),
                 ramo.AngoloConflitto(),   ramo.RaggioIngresso(), ramo.DiametroInscritto()};
    in.pedonale = ramo.AttraversamentoPedonale();
    in.incidenzaPedonale = ramo.theAnalisiMarginale().AttraversamentoPedonale();
    in.condizioniEsterne = ramo.theAnalisiMarginale().CondizioniEsterne();
    in.t1 = traffico.Tempo1();
    in.t2 = traffico.Tempo2();
    in.t3 = traffico.Tempo3();
    in.q1 = traffico.FlussoTempo1();
    in.q2 = traffico.FlussoTempo2();
    in.q3 = traffico.FlussoTempo3();
    in.flussoTotale = traffico.FlussoTotale();
    in.numSegmenti = traffico.NumSegmentiTempo();
    in.percentuali = {mezzi.Autoarticolati(), mezzi.Autotreni(),       mezzi.Pullman(),    mezzi.Camper(),
                      mezzi.Roulotte(),       mezzi.VeicoliDueRuote(), mezzi.Autovetture()};
    for (int k = 0; k < in.numSegmenti; ++k) {
        in.flussi.push_back(traffico.FlussoSegmento(static_cast<std::int16_t>(k), 0));
        std::array<float, 7> riga{};
        for (int j = 0; j < 7; ++j) {
            riga[pos(j)] = mezzi.CategoriaSegmento(static_cast<std::int16_t>(k), static_cast<std::int16_t>(j));
        }
        in.categorie.push_back(riga);
    }
    in.K = ramo.K();
    in.Td = ramo.Td();
    in.S = ramo.S();
    in.X2 = ramo.X2();
    in.F = ramo.F();
    in.Fc = ramo.Fc();
    in.CapacitaUltima = ramo.CapacitaUltima();
    for (int k = 1; k <= traffico.IterazioniScritte(); ++k) {
        in.record[k] = traffico.GetIterazione(static_cast<std::int16_t>(k));
    }
    return in;
}

/// Shares of each row: of 100, or of the row's own total.
std::vector<std::vector<float>> quote(const Rotonda& rotonda) {
    const int n = rotonda.NumeroRami();
    std::vector<std::vector<float>> p(pos(n), std::vector<float>(pos(n), 0.0F));
    for (int o = 0; o < n; ++o) {
        double totale = 0.0;
        for (int c = 0; c < n; ++c) {
            totale += d(rotonda.MatriceSvolte(static_cast<std::int16_t>(o + 1), static_cast<std::int16_t>(c + 1)));
        }
        if (rotonda.TipoMatriceSvolte() == 1) {
            totale = 100.0;
        }
        for (int c = 0; c < n && totale != 0.0; ++c) {
            const float cella =
                rotonda.MatriceSvolte(static_cast<std::int16_t>(o + 1), static_cast<std::int16_t>(c + 1));
            p[pos(o)][pos(c)] = static_cast<float>(d(cella) / totale);
        }
    }
    return p;
}

}  // namespace

Progetto leggi(const Applicazione& app, const std::array<double, 4>& quoteDX) {
    const Rotonda& rotonda = app.theRotonda();
    Progetto p;
    p.n = rotonda.NumeroRami();
    for (int i = 1; i <= rotonda.Rami().Count(); ++i) {
        p.ingressi.push_back(leggiIngresso(rotonda.Ramo(static_cast<std::int16_t>(i))));
    }
    p.p = quote(rotonda);
    p.inizio = rotonda.TempoIniziale();
    p.fine = rotonda.TempoFinale();
    p.segmento = rotonda.SegmentoTempo();
    p.percentile = rotonda.ValorePercentile();
    p.notturne = rotonda.CondizioniNotturne();
    p.percentualeNotturna = app.theAmbiente.PercentualeNotturna();
    const Configurazione& c = app.configurazione;
    p.VE = {c.VEAutoarticolati, c.VEAutotreni, c.VEPullman, c.VECamper, c.VERoulotte, c.VEMotocicli, c.VEAutovetture};
    p.quoteDX = quoteDX;
    return p;
}

float singolo(double valore) {
    const auto f = static_cast<float>(valore);
    if (!std::isfinite(f)) {
        throw Difetto{6};
    }
    return f;
}

double doppio(double valore) {
    if (!std::isfinite(valore)) {
        throw Difetto{6};
    }
    return valore;
}

double diviso(double a, double b) {
    if (b == 0.0) {
        throw Difetto{11};
    }
    return doppio(a / b);
}

double intero(double valore) {
    return std::nearbyint(valore);
}

int sedici(double valore) {
    if (valore < -32768.0 || valore > 32767.0) {
        throw Difetto{6};
    }
    return static_cast<int>(valore);
}

Ingresso& ramo(Progetto& p, int i) {
    if (i < 0 || i >= static_cast<int>(p.ingressi.size())) {
        throw Difetto{9};
    }
    return p.ingressi[pos(i)];
}

void parametri(Progetto& p, const Ipotesi* ipotesi) {
    for (int i = 0; i < p.n; ++i) {
        Ingresso& in = ramo(p, i);
        const bool altra = ipotesi != nullptr && ipotesi->indice == i + 1;
        const Misure& m = altra ? ipotesi->misure : in.misure;
        const double e = d(m.e);
        const double v = d(m.v);
        const double l = d(m.l);
        const double phi = d(m.phi);
        const double r = d(m.r);
        const double D = d(m.D);
        in.K = doppio(1.0 - (phi - 30.0) * 0.00347 - (diviso(1.0, r) - 0.05) * 0.978);
        const double E = doppio(std::exp((D - 60.0) / 10.0));
        in.Td = 0.5 / (1.0 + E) + 1.0;
        in.S = diviso((e - v) * 1.6, l);
        in.X2 = diviso(e - v, 2.0 * in.S + 1.0) + v;
        in.F = doppio(in.X2 * 303.0 * in.K);
        in.Fc = doppio(in.Td * 0.21);
        in.Fc = doppio((0.2 * in.X2 + 1.0) * in.Fc);
        in.Fc = doppio(in.K * in.Fc);
    }
}

namespace {

Esito chiudi(int guasto, Esito esito) {
    esito.guasto = guasto;
    return esito;
}

template <class Lavoro>
Esito conGestore(const Lavoro& lavoro) {
    Esito esito;
    try {
        lavoro(esito);
    } catch (const Difetto& difetto) {
        return chiudi(difetto.numero, esito);
    }
    return esito;
}

MatriceSingola senzaDiagonale(int n, MatriceSingola M) {
    for (int i = 0; i < n; ++i) {
        M[pos(i)][pos(i)] = 0.0F;
    }
    return M;
}

}  // namespace

std::vector<float> bilancia(Progetto& p, const Ipotesi* ipotesi, MatriceSingola& M) {
    parametri(p, ipotesi);
    std::vector<float> F;
    std::vector<double> b;
    for (int i = 0; i < p.n; ++i) {
        F.push_back(singolo(ramo(p, i).F));
        b.push_back(d(F.back()));
    }
    M = costruisciMatrice(p);
    (void)catena(p.n, b, M);
    return iteraSingolo(F, senzaDiagonale(p.n, M));
}

Esito bilanciamento(Progetto& p) {
    return conGestore([&](Esito&) {
        MatriceSingola M;
        const std::vector<float> Q = bilancia(p, nullptr, M);
        for (int i = 0; i < p.n; ++i) {
            ramo(p, i).CapacitaUltima = d(Q[pos(i)]);
        }
    });
}

Esito bilanciamento(Progetto& p, const Ipotesi& ipotesi) {
    return conGestore([&](Esito& esito) {
        parametri(p, &ipotesi);
        std::vector<double> F;
        for (int i = 0; i < p.n; ++i) {
            F.push_back(ramo(p, i).F);
        }
        const MatriceSingola M = costruisciMatrice(p);
        (void)catena(p.n, F, M);
        const std::vector<double> Q = iteraDoppio(F, senzaDiagonale(p.n, M));
        for (int i = 0; i < p.n; ++i) {
            ramo(p, i).CapacitaUltima = Q[pos(i)];
        }
        for (int i = 0; i < p.n; ++i) {
            for (int k = 1; k <= ramo(p, i).numSegmenti; ++k) {
                Iterazione record;
                record.Capacita = singolo(ramo(p, i).CapacitaUltima);
                ramo(p, i).record[k] = record;
                esito.scritti.emplace_back(k, i + 1);
            }
        }
    });
}

}  // namespace kelvo::prove::oracolo
