#pragma once

#include <array>
#include <cstdint>

#include "model/Rotonda.h"

namespace kelvo {

/// A square matrix of at most 8 by 8, indices from 0.
template <class T>
using Quadrata = std::array<std::array<T, 8>, 8>;

/// One value a leg, indices from 0.
template <class T>
using PerRamo = std::array<T, static_cast<std::size_t>(massimoRami)>;

/// Determinant by the rule of Sarrus carried to any size, exact up to n = 3. Fault 6 for an overflow.
double Determinante(int n, const Quadrata<double>& A);
/// The transposed matrix.
Quadrata<double> Trasposta(int n, const Quadrata<double>& A);
/// Minors of the transposed matrix `T` with their signs, divided by `det`. Fault 11 if det is 0, fault 6 for an
/// overflow.
Quadrata<double> Inversa(int n, const Quadrata<double>& A, const Quadrata<double>& T, double det);
/// The vector A b. Fault 6 for an overflow.
PerRamo<double> Prodotto(int n, const PerRamo<double>& b, const Quadrata<double>& A);

/// Coefficient matrix M[s][i]: how much one vehicle per hour that enters at leg s takes off the capacity of leg i.
///
/// Only the two nearest upstream legs weigh on an entry, whatever the number of legs; the diagonal is 1. Reads the
/// slopes Fc and the turning shares. Fault 6 for an overflow.
Quadrata<float> Costruisci_Matrice(const Rotonda& rotonda);

/// The entries that weigh on one entry, those alone: leaving out the others changes no result.
struct Colonna {
    std::array<std::size_t, static_cast<std::size_t>(massimoRami)> righe{};  ///< legs from 0, in order
    std::array<double, static_cast<std::size_t>(massimoRami)> pesi{};
    std::size_t quanti = 0;
};

/// The columns of M, or of M with a diagonal of 0, without the diagonal.
PerRamo<Colonna> colonneDi(int n, const Quadrata<float>& M);

/// Balanced entry flows, and the sweeps that they took.
template <class T>
struct Soluzione {
    PerRamo<T> Q{};  ///< veic/h
    int passate = 0;
    bool convergente = true;  ///< false: the sweeps would go on for ever
};

/// Gauss-Seidel sweeps from Q = 0 until the largest change of a sweep is below 0.001, or until the state comes back
/// exactly while it still changes, or to the millionth sweep.
///
/// `W` is M with a diagonal of 0; T is float, where each subtraction is rounded to single, or double. Nothing bounds
/// Q. Fault 6 for an overflow.
template <class T>
Soluzione<T> scorriBilanciamento(int n, const PerRamo<T>& F, const Quadrata<float>& W);

/// The same; fault 17 "Il bilanciamento non converge" for sweeps that would go on for ever.
template <class T>
Soluzione<T> Itera_Bilanciamento(int n, const PerRamo<T>& F, const Quadrata<float>& W);

/// State in which every entry runs at its capacity, with the coefficient matrix that led to it.
template <class T>
struct Equilibrio {
    Quadrata<float> M{};
    Soluzione<T> soluzione;
};

/// Solves the balance for the intercepts F and slopes Fc that the legs hold. T as above.
/// Fault 11 if the determinant of M is 0; the faults of the routines above.
template <class T>
Equilibrio<T> bilancia(const Rotonda& rotonda);

}  // namespace kelvo
