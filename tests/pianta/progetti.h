#pragma once

#include <array>
#include <cmath>
#include <random>
#include <string>
#include <vector>

#include "pianta/Pianta.h"
#include "pianta/curve.h"

/// Roundabouts for the tests and what is asked of every plan.
namespace kelvo::prove {

inline pianta::DatiPianta uguali(int rami, const pianta::DatiRamo& ramo) {
    return {.rami = std::vector<pianta::DatiRamo>(static_cast<std::size_t>(rami), ramo), .ipotesi = {}};
}

/// The measures of the fields' own examples on a circle of 40 m.
inline pianta::DatiRamo ramoUsuale(const std::string& nome = "S.P. 62 Sud") {
    return {.nome = nome,
            .larghezzaIngresso = 5.0,
            .semiLarghezza = 3.75,
            .lunghezzaSvasatura = 20.0,
            .angoloConflitto = 25.0,
            .raggioIngresso = 25.0,
            .diametroInscritto = 40.0,
            .attraversamentoPedonale = true};
}

/// Every measure over the range of its field; the open ranges up to ten kilometres.
inline pianta::DatiRamo ramoACaso(std::mt19937& caso) {
    const auto fra = [&](double da, double a) { return std::uniform_real_distribution<double>(da, a)(caso); };
    const auto logaritmico = [&](double da, double a) { return std::exp(fra(std::log(da), std::log(a))); };
    return {.nome = "Ramo",
            .larghezzaIngresso = fra(3.6, 16.3),
            .semiLarghezza = fra(1.9, 12.5),
            .lunghezzaSvasatura = logaritmico(1.0, 10000.0),
            .angoloConflitto = fra(0.0, 77.0),
            .raggioIngresso = logaritmico(3.4, 10000.0),
            .diametroInscritto = logaritmico(13.5, 176.0),
            .attraversamentoPedonale = caso() % 2 == 0};
}

/// Least distance between a point and a chain of points, by brute force.
inline double distanza(pianta::Punto p, const std::vector<pianta::Punto>& catena) {
    double minima = 1e300;
    for (std::size_t i = 0; i + 1 < catena.size(); ++i) {
        const pianta::Punto lato = catena[i + 1] - catena[i];
        const double quadro = scalare(lato, lato);
        const double t = quadro > 0 ? std::min(1.0, std::max(0.0, scalare(p - catena[i], lato) / quadro)) : 0.0;
        minima = std::min(minima, norma(p - (catena[i] + lato * t)));
    }
    return minima;
}

/// Two sides of a closed chain that do not follow each other cross.
inline bool siIncrocia(const std::vector<pianta::Punto>& c) {
    const std::size_t n = c.size();
    const auto verso = [](pianta::Punto a, pianta::Punto b, pianta::Punto p) { return vettoriale(b - a, p - a); };
    for (std::size_t i = 0; i < n; ++i) {
        for (std::size_t j = i + 2; j < n; ++j) {
            if (i == 0 && j + 1 == n) {
                continue;
            }
            const pianta::Punto a = c[i];
            const pianta::Punto b = c[i + 1];
            const pianta::Punto d = c[j];
            const pianta::Punto e = c[(j + 1) % n];
            constexpr double niente = 1e-9;
            const double d1 = verso(a, b, d);
            const double d2 = verso(a, b, e);
            const double d3 = verso(d, e, a);
            const double d4 = verso(d, e, b);
            if (((d1 > niente && d2 < -niente) || (d1 < -niente && d2 > niente)) &&
                ((d3 > niente && d4 < -niente) || (d3 < -niente && d4 > niente))) {
                return true;
            }
        }
    }
    return false;
}

}  // namespace kelvo::prove
