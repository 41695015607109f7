#pragma once

#include <cstdint>

#include "confronto.h"

namespace kelvo::prove {

/// Small generator of pseudo-random numbers, the same on every machine.
class Caso {
public:
    explicit Caso(std::uint64_t seme) : stato_(seme * 2862933555777941757ULL + 3037000493ULL) {}
    /// Uniform from 0 up to, but not, 1.
    double unita();
    double tra(double minimo, double massimo) { return minimo + unita() * (massimo - minimo); }
    /// Whole, both ends included.
    int intero(int minimo, int massimo);
    bool volte(double probabilita) { return unita() < probabilita; }
    float singolo(double minimo, double massimo) { return static_cast<float>(tra(minimo, massimo)); }

private:
    std::uint64_t stato_;
};

/// What sets one pseudo-random project apart from another.
struct Varieta {
    int rami = 4;
    bool percento = false;         ///< matrix in per cent
    double domanda = 1.0;          ///< factor of all demand
    bool tempiStrani = false;      ///< the three times in any order, also outside the window
    bool segmentiDiversi = false;  ///< NumSegmentiTempo differs from the number of the grid
};

/// Fills the bench with a fresh project of that variety.
void riempi(Banco& banco, const Varieta& varieta, Caso& caso);

/// A hand-made project: the window 07:30-09:30 by 15 minutes, moderate demand, plausible geometry, all conditions off.
void progettoOrdinato(Banco& banco, int rami);

/// The measures of a leg.
oracolo::Misure misureDi(Banco& banco, int numero);

}  // namespace kelvo::prove
