#include "shell/servizi/scalaGrafico.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "base/numeri.h"

namespace kelvo {

namespace {

/// Beyond this an axis shows nothing that could be read, and its length would overflow.
constexpr double enorme = 1e100;
/// Ends nearer to each other than this part of their size are one value.
constexpr double vicini = 1e-9;
/// Play of a tick against an end, in steps.
constexpr double gioco = 1e-6;
constexpr int massimiDecimali = 12;
constexpr double massimoDiradamento = 1e6;

/// A step between ticks is one of these times a power of ten; the less round cost more.
struct Mantissa {
    double valore;
    double costo;
};
constexpr std::array mantisse{Mantissa{1.0, 0.0}, Mantissa{1.5, 2.0}, Mantissa{2.0, 0.0}, Mantissa{2.5, 1.0},
                              Mantissa{3.0, 2.0}, Mantissa{4.0, 2.0}, Mantissa{5.0, 0.0}};

/// What makes one step better than another.
constexpr double costoFineScoperta = 3.0;  ///< the last value has no tick
constexpr double costoPerTacca = 0.6;      ///< for each tick more or fewer than the usual number
constexpr double costoVuoto = 4.0;         ///< for an axis twice as long as its values
constexpr int taccheUsuali = 6;

/// A step and what it makes of an axis.
struct Prova {
    double mantissa = 1.0;
    int esponente = 0;
    double primo = 0.0;   ///< number of the first tick, in steps
    double ultimo = 0.0;  ///< of the last one
    double costo = std::numeric_limits<double>::infinity();

    /// Value at the `k`-th step, free of the rounding of a negative power.
    double valore(double k) const {
        return esponente < 0 ? k * mantissa / std::pow(10.0, -esponente) : k * mantissa * std::pow(10.0, esponente);
    }
    int quante() const { return static_cast<int>(ultimo - primo) + 1; }
    int decimali() const {
        const double intera = std::round(mantissa);
        return std::clamp((intera == mantissa ? 0 : 1) - esponente, 0, massimiDecimali);
    }
};

/// `fuori`: the ends move out to ticks; else ticks stand between them.
Prova migliore(double minimo, double massimo, int quante, bool fuori) {
    const double lunghezza = massimo - minimo;
    const int ordine = static_cast<int>(std::floor(std::log10(lunghezza / quante)));
    const int almeno = quante > minimeTacche ? minimeTacche : 2;
    Prova scelta;
    for (int esponente = ordine - 1; esponente <= ordine + 2; ++esponente) {
        for (const Mantissa& mantissa : mantisse) {
            Prova prova{.mantissa = mantissa.valore, .esponente = esponente};
            const double passo = prova.valore(1.0);
            const double da = minimo / passo;
            const double a = massimo / passo;
            prova.primo = fuori ? std::floor(da + gioco) : std::ceil(da - gioco);
            prova.ultimo = fuori ? std::ceil(a - gioco) : std::floor(a + gioco);
            const double numero = prova.ultimo - prova.primo + 1.0;
            if (numero < almeno || numero > quante) {
                continue;
            }
            const double vuoto = fuori ? (numero - 1.0) * passo / lunghezza - 1.0 : 0.0;
            const bool scoperta = !fuori && std::abs(a - prova.ultimo) > gioco;
            prova.costo = mantissa.costo + (scoperta ? costoFineScoperta : 0.0) + costoVuoto * vuoto +
                          costoPerTacca * std::abs(numero - std::min(taccheUsuali, quante));
            if (prova.costo < scelta.costo) {
                scelta = prova;
            }
        }
    }
    return scelta;
}

/// Two ends that can be told apart and subtracted.
struct Estremi {
    double minimo = 0.0;
    double massimo = 1.0;
};

Estremi estremi(double minimo, double massimo) {
    const double da = std::clamp(minimo, -enorme, enorme);
    const double a = std::clamp(massimo, -enorme, enorme);
    const double grande = std::max(std::abs(da), std::abs(a));
    if (a - da > vicini * grande && a - da > 1.0 / enorme) {
        return {da, a};
    }
    if (grande <= 1.0 / enorme) {
        return {0.0, 1.0};
    }
    const double uno = std::abs(a) == grande ? a : da;
    return {std::min(0.0, uno), std::max(0.0, uno)};
}

Scala scala(double minimo, double massimo, int quante, bool fuori) {
    const Estremi e = estremi(minimo, massimo);
    const int limite = std::clamp(quante, 2, massimeTacche);
    const Prova prova = migliore(e.minimo, e.massimo, limite, fuori);
    Scala fatta{.minimo = e.minimo, .massimo = e.massimo};
    if (!std::isfinite(prova.costo)) {
        return scalaDivisa(e.minimo, e.massimo, 2);
    }
    for (int i = 0; i < prova.quante(); ++i) {
        const double valore = prova.valore(prova.primo + i);
        fatta.tacche.push_back(fuori ? valore : std::clamp(valore, e.minimo, e.massimo));
    }
    fatta.decimali = prova.decimali();
    if (fuori) {
        fatta.minimo = std::min(e.minimo, fatta.tacche.front());
        fatta.massimo = std::max(e.massimo, fatta.tacche.back());
    }
    return fatta;
}

}  // namespace

double Scala::quota(double valore) const {
    return (valore - minimo) / (massimo - minimo);
}

std::string Scala::testo(double valore) const {
    Formato formato("#0");
    formato.decimali = decimali;
    return formatta(valore, formato);
}

Scala scalaEntro(double minimo, double massimo, int quante) {
    return scala(minimo, massimo, quante, false);
}

Scala scalaAttorno(double minimo, double massimo, int quante) {
    return scala(minimo, massimo, quante, true);
}

Scala scalaDivisa(double minimo, double massimo, int quante) {
    const Estremi e = estremi(minimo, massimo);
    const int parti = std::max(2, quante) - 1;
    Scala fatta{.minimo = e.minimo, .massimo = e.massimo};
    for (int i = 0; i <= parti; ++i) {
        fatta.tacche.push_back(e.minimo + (e.massimo - e.minimo) * i / parti);
    }
    // As many decimals as a hundredth part of a step needs at most; fewer where all ticks are told without.
    const double passo = (e.massimo - e.minimo) / parti;
    const int fini = std::clamp(2 - static_cast<int>(std::floor(std::log10(passo))), 0, massimiDecimali);
    while (fatta.decimali < fini) {
        const double potenza = std::pow(10.0, fatta.decimali);
        const bool esatte = std::all_of(fatta.tacche.begin(), fatta.tacche.end(), [&](double v) {
            return std::abs(std::round(v * potenza) / potenza - v) < passo * gioco;
        });
        if (esatte) {
            break;
        }
        ++fatta.decimali;
    }
    return fatta;
}

int diradamentoValori(double larghezza, double passo) {
    constexpr double sporgenza = 1.15;
    constexpr double distacco = 2.0;
    if (!(passo > 0.0)) {
        return static_cast<int>(massimoDiradamento);
    }
    if (larghezza <= sporgenza * passo) {
        return 1;
    }
    return std::max(2, static_cast<int>(std::ceil(std::min((larghezza + distacco) / passo, massimoDiradamento))));
}

int diradamentoEtichette(double larghezza, double passo) {
    constexpr double distacco = 8.0;
    constexpr std::array comode{1, 2, 3, 4, 6, 12};
    if (!(passo > 0.0)) {
        return static_cast<int>(massimoDiradamento);
    }
    const double ogni = std::min((larghezza + distacco) / passo, massimoDiradamento);
    for (const int comoda : comode) {
        if (ogni <= comoda) {
            return comoda;
        }
    }
    return comode.back() * static_cast<int>(std::ceil(ogni / comode.back()));
}

}  // namespace kelvo
