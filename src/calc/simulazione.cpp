#include "calc/simulazione.h"

#include <fmt/format.h>

#include <cmath>
#include <limits>

#include "base/guasto.h"
#include "calc/luoghi.h"

namespace kelvo {

using simulazione::luogo;
using simulazione::minuti;

namespace {

Composizione composizioneDi(std::string_view modo) {
    if (modo == "0") {
        return Composizione::costante;
    }
    return modo == "1" ? Composizione::perSegmento : Composizione::nessuna;
}

}  // namespace

void preparaQuote(const Rotonda& rotonda, const CorsieDestra& corsie, std::array<double, 4>& quote) {
    quote.fill(0.0);
    Matrice p;
    rotonda.GetMatriceSvoltePercentuale(p);
    for (std::size_t k = 0; k < corsie.size(); ++k) {
        if (!corsie[k]) {
            continue;
        }
        const std::size_t arrivo = (k + 1) % corsie.size();
        if (k >= p.size() || arrivo >= p.size()) {
            throw Guasto(NumeroGuasto::indiceFuoriIntervallo,
                         fmt::format("corsia {} di una rotatoria a {} rami", k + 1, p.size()));
        }
        quote[k] = 100.0 * static_cast<double>(p[k][arrivo]);
    }
}

namespace {

/// Arithmetic that raises its faults where they arise.
struct ConControlli {
    template <class L>
    static double dividi(double a, double b, const L& dove) {
        return kelvo::dividi(a, b, dove);
    }
    template <class L>
    static double radice(double valore, const L& dove) {
        return kelvo::radice(valore, dove);
    }
    template <class L>
    static double logaritmo(double valore, const L& dove) {
        return kelvo::logaritmo(valore, dove);
    }
    template <class L>
    static double tieni(double valore, bool singolo, const L& dove) {
        return singolo ? static_cast<double>(aSingolo(valore, dove)) : controllato(valore, dove);
    }
    template <class L>
    static float singolo(double valore, const L& dove) {
        return aSingolo(valore, dove);
    }
    template <class L>
    static double intero(double valore, const L& dove) {
        return static_cast<double>(aIntero16(arrotondaPari(valore), dove));
    }
};

/// The same arithmetic without its checks: every fault leaves an infinity or a NaN in the record.
struct SenzaControlli {
    template <class L>
    static double dividi(double a, double b, const L& /*dove*/) {
        return a / b;
    }
    template <class L>
    static double radice(double valore, const L& /*dove*/) {
        return std::sqrt(valore);
    }
    template <class L>
    static double logaritmo(double valore, const L& /*dove*/) {
        return valore > 0.0 ? std::log(valore) : std::numeric_limits<double>::quiet_NaN();
    }
    template <class L>
    static double tieni(double valore, bool singolo, const L& /*dove*/) {
        return singolo ? static_cast<double>(static_cast<float>(valore)) : valore;
    }
    template <class L>
    static float singolo(double valore, const L& /*dove*/) {
        return static_cast<float>(valore);
    }
    template <class L>
    static double intero(double valore, const L& /*dove*/) {
        const double tondo = arrotondaPari(valore);
        return tondo >= -32768.0 && tondo <= 32767.0 ? tondo : std::numeric_limits<double>::quiet_NaN();
    }
};

bool finito(const Iterazione& r) {
    const float somma = (r.Flusso - r.Flusso) + (r.Capacita - r.Capacita) + (r.Coeff_Sat - r.Coeff_Sat) +
                        (r.Coda - r.Coda) + (r.Ritardo - r.Ritardo);
    return somma == 0.0F;
}

}  // namespace

Simulazione::Simulazione(Applicazione& app, const RichiestaSimulazione& richiesta, const std::array<double, 4>& quote,
                         MemoriaSimulazione& memoria)
    : app_(app),
      rotonda_(app.theRotonda()),
      richiesta_(richiesta),
      quote_(quote),
      memoria_(memoria),
      VE_(app.configurazione.coefficienti()),
      composizione_(composizioneDi(richiesta.modo)),
      singoli_(richiesta.domanda == Domanda::curva && richiesta.forma != FormaCalcolo::ipotesi),
      n_(static_cast<std::size_t>(rotonda_.NumeroRami())) {}

void Simulazione::esegui() {
    m_ = minutoCampo(rotonda_.SegmentoTempo());
    for (std::size_t i = 0; i < n_; ++i) {
        ingressi_[i].ramo = &rotonda_.Ramo(static_cast<std::int16_t>(i + 1));
    }
    std::int16_t K = 0;
    if (richiesta_.domanda == Domanda::curva) {
        leggiCurve();
        costruisciRette();
        bilanciaRete();
        dividiCurve();
        K = numeroSegmenti();
    } else {
        K = numeroSegmenti();
        if (richiesta_.forma == FormaCalcolo::corsiaDestra) {
            leggiCorsie();
        }
        bilanciaRete();
        if (K >= 0) {
            leggiComposizioni();
        }
    }
    calcolaPortate(K);
    scriviRecord(K);
    rotonda_.timbra(richiesta_.forma, app_.ambienteCalcolo());
}

void Simulazione::bilanciaRete() {
    parametriCapacita(rotonda_, richiesta_.indice, richiesta_.geometria);
    const Equilibrio<float> equilibrio = bilancia<float>(rotonda_);
    // The what-if form of a demand curve goes on with the capacities of the last plain calculation.
    const bool scritta = richiesta_.domanda == Domanda::tabella || richiesta_.forma != FormaCalcolo::ipotesi;
    const PerRamo<Colonna> colonne = colonneDi(static_cast<int>(n_), equilibrio.M);
    for (std::size_t i = 0; i < n_; ++i) {
        Ingresso& in = ingressi_[i];
        in.vicini = colonne[i];
        if (scritta) {
            in.ramo->CapacitaUltima(static_cast<double>(equilibrio.soluzione.Q[i]));
        }
        in.CU = in.ramo->CapacitaUltima();
        in.F = aSingolo(in.ramo->F(), luogo(*in.ramo, "F"));
    }
}

std::int16_t Simulazione::numeroSegmenti() const {
    return segmentiTra(rotonda_.TempoIniziale(), rotonda_.TempoFinale(), m_);
}

template <class C>
Simulazione::CostantiCoda Simulazione::costantiCoda(const Ingresso& in, std::int16_t k) const {
    const auto dove = luogo(*in.ramo, k);
    CostantiCoda costanti;
    const double w = C::tieni(1.0 - static_cast<double>(rotonda_.ValorePercentile()) / 100.0, singoli_, dove);
    const double durata = minuti(rotonda_.TempoIniziale(), rotonda_.TempoFinale());
    const double segmenti = in.ramo->theDatiTraffico().NumSegmentiTempo() - 1.0;
    costanti.w = w;
    costanti.T = C::dividi(durata, segmenti, luogo(*in.ramo, "un solo segmento di tempo"));
    if (singoli_) {
        costanti.T = C::intero(costanti.T, dove);
    }
    return costanti;
}

template <class C>
void Simulazione::codaRitardo(Iterazione& r, const Ingresso& in, const CostantiCoda& costanti, std::int16_t k) const {
    const auto dove = luogo(*in.ramo, k);
    const auto c = static_cast<double>(r.Capacita);
    const double x =
        C::tieni(C::dividi(static_cast<double>(r.Flusso) * 60.0, c, luogo(*in.ramo, k, "capacità 0")), singoli_, dove);
    const double cT = C::tieni(c / 60.0 * costanti.T, singoli_, dove);
    const double carico = C::dividi(8.0 * x, cT, luogo(*in.ramo, k, "segmento di tempo di 0 minuti"));
    const double menoLn =
        costanti.menoLn ? *costanti.menoLn : -C::logaritmo(costanti.w, luogo(*in.ramo, k, "percentile non ammesso"));
    const double coda = (cT / 4.0) * ((x - 1.0) + C::radice((1.0 - x) * (1.0 - x) + carico * menoLn, dove));
    r.Coda = C::singolo(coda, dove) + 0.0F;
    const double c1 = C::tieni(c / 60.0, singoli_, dove);
    const double A = C::tieni((2.0 + cT) - x * cT, singoli_, dove);
    const double attesa = C::dividi(1.0, 4.0 * c1, dove) * (C::radice(A * A + 8.0 * cT * x, dove) - A);
    r.Ritardo = C::singolo((C::dividi(1.0, c1, dove) + attesa) * 60.0, dove) + 0.0F;
}

template <class C, class Costanti>
Iterazione Simulazione::record(const Ingresso& in, const Costanti& costanti, std::size_t posto, std::int16_t k) const {
    const Ramo& ramo = *in.ramo;
    const auto dove = luogo(ramo, k);
    const AnalisiMarginale& marginale = ramo.theAnalisiMarginale();
    const double notte = rotonda_.CondizioniNotturne() ? app_.theAmbiente.PercentualeNotturna() : 0.0;
    const auto est = static_cast<double>(C::singolo(marginale.CondizioniEsterne(), dove));
    const double ped = ramo.AttraversamentoPedonale()
                           ? static_cast<double>(C::singolo(marginale.AttraversamentoPedonale(), dove))
                           : 0.0;
    Iterazione r;
    r.Capacita = C::singolo((100.0 - notte - est - ped) * static_cast<double>(memoria_.Cq[posto]) / 100.0, dove);
    r.Flusso = memoria_.Dq[posto] / 60.0F + 0.0F;

    const auto c = static_cast<double>(r.Capacita);
    const bool curva = richiesta_.domanda == Domanda::curva;
    if (!curva || c > 0.0) {
        const double portata = static_cast<double>(r.Flusso) * 60.0;
        r.Coeff_Sat = C::singolo(C::dividi(portata, c, luogo(ramo, k, "capacità 0")), dove) + 0.0F;
    }
    if (!curva || r.Flusso > 0.0F) {
        codaRitardo<C>(r, in, costanti(), k);
    }
    return r;
}

void Simulazione::scriviRecord(std::int16_t K) {
    PerRamo<CostantiCoda> costanti{};
    for (std::size_t i = 0; i < n_; ++i) {
        ingressi_[i].ramo->theDatiTraffico().PreparaIterazioni(K);
        costanti[i] = costantiCoda<SenzaControlli>(ingressi_[i], 1);
        costanti[i].menoLn = -SenzaControlli::logaritmo(costanti[i].w, NessunLuogo{});
    }
    for (int k = 1; k <= K; ++k) {
        const auto segmento = static_cast<std::int16_t>(k);
        for (std::size_t i = 0; i < n_; ++i) {
            const Ingresso& in = ingressi_[i];
            const std::size_t posto = static_cast<std::size_t>(k - 1) * n_ + i;
            Iterazione r = record<SenzaControlli>(
                in, [&]() -> const CostantiCoda& { return costanti[i]; }, posto, segmento);
            if (!finito(r)) [[unlikely]] {
                // Once more with the checks, which raise the fault in its order and name its place.
                r = record<ConControlli>(
                    in, [&] { return costantiCoda<ConControlli>(in, segmento); }, posto, segmento);
            }
            rotonda_.timbra(FormaCalcolo::interrotta);
            in.ramo->theDatiTraffico().SetIterazione(segmento, r);
        }
    }
}

}  // namespace kelvo
