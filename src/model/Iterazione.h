#pragma once

namespace kelvo {

/// Results of one time segment of one entry.
struct Iterazione {
    float Flusso = 0.0F;     ///< demand of the segment, veic/min
    float Capacita = 0.0F;   ///< entry capacity after the reductions, veic/h
    float Coeff_Sat = 0.0F;  ///< degree of saturation
    float Coda = 0.0F;       ///< queue at the chosen percentile, veic
    float Ritardo = 0.0F;    ///< mean delay, s/veic

    friend bool operator==(const Iterazione&, const Iterazione&) = default;
};

}  // namespace kelvo
