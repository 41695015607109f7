#pragma once

#include "progetti.h"

namespace kelvo::prove {

// Marks put in the place of results before a run, so that it shows what the run wrote and what it left.

inline constexpr Iterazione recordVecchio{-1.0F, -2.0F, -3.0F, -4.0F, -5.0F};
inline constexpr double capacitaVecchia = -600.0;
inline constexpr double parametroVecchio = -7.0;
inline constexpr int recordSegnati = 10;

/// Marks the results of every leg, and stamps the project as left by a plain run.
inline void segna(Banco& banco) {
    for (int i = 1; i <= banco.rotonda().NumeroRami(); ++i) {
        Ramo& ramo = banco.ramo(i);
        ramo.CapacitaUltima(capacitaVecchia);
        ramo.K(parametroVecchio);
        ramo.Td(parametroVecchio);
        ramo.S(parametroVecchio);
        ramo.X2(parametroVecchio);
        ramo.F(parametroVecchio);
        ramo.Fc(parametroVecchio);
        for (std::int16_t k = 1; k <= recordSegnati; ++k) {
            ramo.theDatiTraffico().SetIterazione(k, recordVecchio);
        }
    }
    banco.rotonda().timbra(FormaCalcolo::piana);
}

/// How many of K, Td, S, X2, F, Fc of a leg were written, in that order; -1 if a later one was and an earlier was not.
inline int parametriScritti(Banco& banco, int numero) {
    const Ramo& ramo = banco.ramo(numero);
    const std::array valori{ramo.K(), ramo.Td(), ramo.S(), ramo.X2(), ramo.F(), ramo.Fc()};
    std::size_t scritti = 0;
    while (scritti < valori.size() && valori[scritti] != parametroVecchio) {
        ++scritti;
    }
    for (std::size_t i = scritti; i < valori.size(); ++i) {
        if (valori[i] != parametroVecchio) {
            return -1;
        }
    }
    return static_cast<int>(scritti);
}

/// How many legs from the first have a new CapacitaUltima; -1 if they are not the first ones.
inline int capacitaScritte(Banco& banco) {
    const int n = banco.rotonda().NumeroRami();
    int scritte = 0;
    while (scritte < n && banco.ramo(scritte + 1).CapacitaUltima() != capacitaVecchia) {
        ++scritte;
    }
    for (int i = scritte + 1; i <= n; ++i) {
        if (banco.ramo(i).CapacitaUltima() != capacitaVecchia) {
            return -1;
        }
    }
    return scritte;
}

/// How many records were written, in the order record 1 of every leg, record 2 of every leg, ...; -1 if one was
/// written past one that was not.
inline int recordScritti(Banco& banco) {
    const int n = banco.rotonda().NumeroRami();
    int scritti = 0;
    bool finiti = false;
    for (int k = 1; k <= recordSegnati; ++k) {
        for (int i = 1; i <= n; ++i) {
            const bool nuovo = !(banco.record(i, k) == recordVecchio);
            if (nuovo && finiti) {
                return -1;
            }
            finiti = finiti || !nuovo;
            scritti += nuovo ? 1 : 0;
        }
    }
    return scritti;
}

inline constexpr const char* divisionePerZero = "Divisione per zero";
inline constexpr const char* overflow = "Overflow";
inline constexpr const char* chiamataNonValida = "Chiamata di routine o argomento non validi";
inline constexpr const char* indiceFuori = "Indice non compreso nell'intervallo";

}  // namespace kelvo::prove
