#pragma once

#include <array>
#include <vector>

namespace kelvo::misure {

/// The numbers of a project on flat arrays, legs from 0, for a bare run of the engine's arithmetic: no model, no
/// checks, no faults.
struct Nucleo {
    static constexpr int massimo = 7;
    template <class T>
    using PerRamo = std::array<T, massimo>;

    int n = 0;                    ///< legs
    int K = 0;                    ///< segments
    int m = 0;                    ///< minutes of a segment
    int segmentiRecord = 0;       ///< segments as the records count them
    bool tabella = false;         ///< demand from a table, else from a curve
    bool perSegmento = false;     ///< one composition for each segment
    bool doppio = false;          ///< queue and delay in double precision
    bool capacitaTenute = false;  ///< the ultimate capacities stay those that CU holds
    double percentile = 95.0;
    double notte = 0.0;
    std::array<float, 7> VE{};
    PerRamo<std::array<float, 6>> geometria{};  ///< e, v, l, phi, r, D
    PerRamo<std::array<float, 7>> percentuali{};
    PerRamo<std::array<float, 3>> q{};  ///< q1, q2, q3
    PerRamo<std::array<int, 3>> t{};    ///< minutes of t1, t2, t3 from the start
    PerRamo<double> est{};
    PerRamo<double> ped{};
    PerRamo<double> quota{};       ///< vehicles a minute of the right-turn lane
    std::vector<float> p;          ///< turning shares, n by n
    std::vector<float> flussi;     ///< vehicles, K + 1 by n
    std::vector<float> categorie;  ///< vehicles, K + 1 by n by 7

    // Results.
    PerRamo<double> CU{};
    std::vector<float> Dq;
    std::vector<float> Cq;
    std::vector<float> record;  ///< K by n by 5

    void prepara();
    /// The whole run.
    void esegui();

private:
    void parametri();
    void matrice();
    void catena() const;
    void bilancia();
    void portate();
    void scrivi();
    double determinante(int lato, const double* A) const;

    PerRamo<double> F{};
    PerRamo<double> Fc{};
    std::array<double, 49> M{};  ///< n by n, n at most `massimo`
    PerRamo<std::array<float, 4>> rette{};
    PerRamo<std::array<int, 3>> k{};
    PerRamo<float> G{};
};

}  // namespace kelvo::misure
