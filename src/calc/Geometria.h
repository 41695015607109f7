#pragma once

#include <cstdint>

#include "model/Rotonda.h"

namespace kelvo {

/// The six measures of one entry.
struct Geometria {
    float e = 0.0F;    ///< entry width, m
    float v = 0.0F;    ///< approach half-width, m
    float l = 0.0F;    ///< effective flare length, m
    float phi = 0.0F;  ///< conflict angle, degrees
    float r = 0.0F;    ///< entry radius, m
    float D = 0.0F;    ///< inscribed circle diameter, m
};

/// The six measures that a leg holds.
Geometria geometriaDi(const Ramo& ramo);

/// Computes the capacity line of a leg from the measures `g` and writes K, Td, S, X2, F and Fc, one after the other.
/// On a fault those written so far stay. Faults 11 and 6 as for modCalcolo::Calcola_Parametri.
void parametriCapacita(Ramo& ramo, const Geometria& g);

/// The same for every leg in order; the leg of number `indice`, from 1, takes the measures `g` in place of its own.
void parametriCapacita(const Rotonda& rotonda, std::int16_t indice, const Geometria& g);

}  // namespace kelvo
