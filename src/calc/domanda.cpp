#include <fmt/format.h>

#include <cmath>

#include "base/guasto.h"
#include "calc/luoghi.h"
#include "calc/simulazione.h"

// The part of a run that works the flows out: compositions, lines of the curves, demand and capacity of each segment.

namespace kelvo {

using simulazione::luogo;
using simulazione::minuti;
using simulazione::segmentoZero;

namespace {

/// Weighted sum of a composition, coefficients in the order of the classes.
template <class T>
T sommaPesata(const CoefficientiVeicoli& VE, const PerClasse& quantita) {
    T somma = 0;
    for (std::size_t j = 0; j < quantita.size(); ++j) {
        somma += static_cast<T>(VE[j]) * static_cast<T>(quantita[j]);
    }
    return somma;
}

}  // namespace

float Simulazione::coefficienteMedio(const Ingresso& in) const {
    const ComposizioneTraffico& c = in.ramo->theComposizioneTraffico();
    const PerClasse percentuali{c.Autoarticolati(), c.Autotreni(),       c.Pullman(),    c.Camper(),
                                c.Roulotte(),       c.VeicoliDueRuote(), c.Autovetture()};
    return aSingolo(sommaPesata<double>(VE_, percentuali) / 100.0, luogo(*in.ramo, "composizione"));
}

float Simulazione::coefficienteSegmento(const Ingresso& in, std::int16_t k) const {
    const TabellaCategorie& tabella = in.ramo->theComposizioneTraffico().Categorie();
    if (static_cast<std::size_t>(k) >= tabella.size()) {
        return 0.0F;
    }
    const PerClasse& categorie = tabella[static_cast<std::size_t>(k)];
    const auto dove = luogo(*in.ramo, static_cast<std::int16_t>(k + 1), "composizione");
    float totale = 0.0F;
    for (const float c : categorie) {
        totale += c;
    }
    controllato(static_cast<double>(totale), dove);
    if (totale == 0.0F) {
        return 0.0F;
    }
    const float pesata = sommaPesata<float>(VE_, categorie);
    return aSingolo(static_cast<double>(pesata / totale), dove);
}

double Simulazione::quotaCorsia(std::size_t i) const {
    const Ingresso& in = ingressi_[i];
    if (i >= quote_.size()) {
        throw Guasto(NumeroGuasto::indiceFuoriIntervallo, luogo(*in.ramo, "corsia di svolta a destra")());
    }
    const DatiTraffico& traffico = in.ramo->theDatiTraffico();
    const double veicoli = quote_[i] * static_cast<double>(traffico.FlussoTotale()) / 100.0;
    const double durata = static_cast<double>(m_) * traffico.NumSegmentiTempo();
    const std::string_view nulla = m_ == 0 ? segmentoZero : "nessun segmento di tempo";
    const double quota = dividi(veicoli, durata, luogo(*in.ramo, nulla));
    return composizione_ == Composizione::costante ? quota * static_cast<double>(in.G) : quota;
}

void Simulazione::leggiCurve() {
    for (std::size_t i = 0; i < n_; ++i) {
        Ingresso& in = ingressi_[i];
        const DatiTraffico& traffico = in.ramo->theDatiTraffico();
        const bool intera = richiesta_.forma == FormaCalcolo::ipotesi;
        in.t3 = intera ? traffico.Tempo3() : traffico.Tempo3() - rotonda_.SegmentoTempo();
        in.d12 = minuti(traffico.Tempo1(), traffico.Tempo2());
        in.d23 = minuti(traffico.Tempo2(), in.t3);
        if (composizione_ == Composizione::costante) {
            in.G = coefficienteMedio(in);
            const auto G = static_cast<double>(in.G);
            in.q1 = aSingolo(static_cast<double>(traffico.FlussoTempo1()) * G, luogo(*in.ramo, "q1"));
            in.q2 = aSingolo(static_cast<double>(traffico.FlussoTempo2()) * G, luogo(*in.ramo, "q2"));
            in.q3 = aSingolo(static_cast<double>(traffico.FlussoTempo3()) * G, luogo(*in.ramo, "q3"));
        } else if (composizione_ == Composizione::perSegmento) {
            in.q1 = traffico.FlussoTempo1();
            in.q2 = traffico.FlussoTempo2();
            in.q3 = traffico.FlussoTempo3();
        }
        if (richiesta_.forma == FormaCalcolo::corsiaDestra) {
            in.quota = quotaCorsia(i);
        }
    }
}

Simulazione::Retta Simulazione::retta(const Ingresso& in, float qa, float qb, double durata) const {
    // Line through (0, qa) and (x, qb) by Cramer's rule, every named term a single.
    const double x = arrotondaPari(dividi(durata, m_, luogo(*in.ramo, segmentoZero)));
    const auto a = static_cast<double>(qa);
    const auto b = static_cast<double>(qb);
    const auto curva = luogo(*in.ramo, "curva di domanda");
    const auto senzaSegmenti = luogo(*in.ramo, "tratto della curva senza segmenti");
    const auto sum = static_cast<double>(aSingolo(a + b, curva));
    const auto xy = static_cast<double>(aSingolo(x * b, curva));
    const auto xx = static_cast<double>(aSingolo(x * x, curva));
    const auto det = static_cast<double>(aSingolo(xx - 2.0 * xx, curva));
    return {.pendenza = aSingolo(dividi(x * sum - 2.0 * xy, det, senzaSegmenti), curva),
            .scarto = aSingolo(dividi(x * xy - xx * sum, det, senzaSegmenti), curva)};
}

void Simulazione::costruisciRette() {
    for (std::size_t i = 0; i < n_; ++i) {
        Ingresso& in = ingressi_[i];
        in.salita = retta(in, in.q1, in.q2, in.d12);
    }
    for (std::size_t i = 0; i < n_; ++i) {
        Ingresso& in = ingressi_[i];
        in.discesa = retta(in, in.q2, in.q3, in.d23);
    }
}

void Simulazione::dividiCurve() {
    const auto segmento = [&](const Ingresso& in, DataOra t) {
        const double quoziente = dividi(minuti(rotonda_.TempoIniziale(), t), m_, luogo(*in.ramo, segmentoZero));
        return aIntero16(std::floor(quoziente), luogo(*in.ramo, "tempi della curva"));
    };
    for (std::size_t i = 0; i < n_; ++i) {
        Ingresso& in = ingressi_[i];
        const DatiTraffico& traffico = in.ramo->theDatiTraffico();
        in.k1 = segmento(in, traffico.Tempo1());
        in.k2 = segmento(in, traffico.Tempo2());
        in.k3 = segmento(in, in.t3);
    }
}

void Simulazione::leggiComposizioni() {
    if (composizione_ == Composizione::costante) {
        for (std::size_t i = 0; i < n_; ++i) {
            ingressi_[i].G = coefficienteMedio(ingressi_[i]);
        }
    }
}

void Simulazione::leggiCorsie() {
    for (std::size_t i = 0; i < n_; ++i) {
        if (composizione_ == Composizione::costante) {
            ingressi_[i].G = coefficienteMedio(ingressi_[i]);
        }
        ingressi_[i].quota = quotaCorsia(i);
    }
}

float Simulazione::domandaCurva(const Ingresso& in, std::int16_t k) const {
    const bool segmenti = composizione_ == Composizione::perSegmento;
    if (composizione_ == Composizione::nessuna) {
        return 0.0F;
    }
    // Computed even where no line applies: its faults come all the same.
    const float G = segmenti ? coefficienteSegmento(in, k) : 1.0F;
    float y = 0.0F;
    if (in.k1 <= k && k <= in.k2) {
        y = in.salita.scarto + in.salita.pendenza * static_cast<float>(k - in.k1);
    } else if (k < in.k1 || k > in.k3) {
        return 0.0F;
    } else {
        y = in.discesa.scarto + in.discesa.pendenza * static_cast<float>(k - in.k2);
    }
    if (richiesta_.forma == FormaCalcolo::corsiaDestra) {
        y = static_cast<float>(static_cast<double>(y) - in.quota);
    }
    const float portata = y * 60.0F;
    // The what-if form works out the composition of the segment and does not apply it.
    const bool applicata = segmenti && richiesta_.forma != FormaCalcolo::ipotesi;
    return aSingolo(static_cast<double>(applicata ? portata * G : portata),
                    luogo(*in.ramo, static_cast<std::int16_t>(k + 1)));
}

float Simulazione::domandaTabella(const Ingresso& in, std::int16_t k) const {
    const bool segmenti = composizione_ == Composizione::perSegmento;
    if (composizione_ == Composizione::nessuna) {
        return 0.0F;
    }
    const auto G = static_cast<double>(segmenti ? coefficienteSegmento(in, k) : in.G);
    const std::vector<float>& flussi = in.ramo->theDatiTraffico().FlussiSegmento();
    const auto riga = static_cast<std::size_t>(k);
    const double veicoli = riga < flussi.size() ? static_cast<double>(flussi[riga]) : 0.0;
    const double portata =
        richiesta_.forma == FormaCalcolo::corsiaDestra ? (veicoli - in.quota) * 60.0 * G : 60.0 * veicoli * G;
    return aSingolo(portata / m_, luogo(*in.ramo, static_cast<std::int16_t>(k + 1)));
}

void Simulazione::calcolaPortate(std::int16_t K) {
    const auto righe = static_cast<std::size_t>(K + 1 > 0 ? K + 1 : 0);
    memoria_.Dq.resize(righe * n_);
    memoria_.Cq.resize(righe * n_);
    for (std::size_t riga = 0; riga < righe; ++riga) {
        const auto k = static_cast<std::int16_t>(riga);
        float* Dq = memoria_.Dq.data() + riga * n_;
        float* Cq = memoria_.Cq.data() + riga * n_;
        for (std::size_t i = 0; i < n_; ++i) {
            const Ingresso& in = ingressi_[i];
            Dq[i] = richiesta_.domanda == Domanda::curva ? domandaCurva(in, k) : domandaTabella(in, k);
        }
        for (std::size_t i = 0; i < n_; ++i) {
            const Ingresso& in = ingressi_[i];
            // No entry sends round more than its ultimate capacity.
            float R = in.F;
            for (std::size_t v = 0; v < in.vicini.quanti; ++v) {
                const std::size_t j = in.vicini.righe[v];
                const auto domanda = static_cast<double>(Dq[j]);
                const double u = ingressi_[j].CU > domanda ? domanda : ingressi_[j].CU;
                R = static_cast<float>(static_cast<double>(R) - in.vicini.pesi[v] * u);
            }
            Cq[i] = aSingolo(static_cast<double>(R), luogo(*in.ramo, static_cast<std::int16_t>(k + 1)));
        }
    }
}

}  // namespace kelvo
