#include <cmath>
#include <cstdlib>

#include "oracolo.h"

namespace kelvo::prove::oracolo {

namespace {

std::size_t pos(int i) {
    return static_cast<std::size_t>(i);
}

double d(float valore) {
    return static_cast<double>(valore);
}

float arrotonda(double valore, float) {
    return singolo(valore);
}

double arrotonda(double valore, double) {
    return doppio(valore);
}

/// The sweep in precision T. A sweep that comes back to where it was goes round for ever, and so passes the limit too.
template <class T>
std::vector<T> itera(const std::vector<T>& F, const MatriceSingola& W) {
    const int n = static_cast<int>(F.size());
    std::vector<T> Q(pos(n), T{0});
    for (int passata = 1; passata <= 1'000'000; ++passata) {
        double m = 0.0;
        for (int i = 0; i < n; ++i) {
            T q = F[pos(i)];
            for (int j = 0; j < n; ++j) {
                const double termine = d(W[pos(j)][pos(i)]) * static_cast<double>(Q[pos(j)]);
                q = arrotonda(static_cast<double>(q) - termine, T{});
            }
            const double cambio = std::abs(static_cast<double>(Q[pos(i)]) - static_cast<double>(q));
            Q[pos(i)] = q;
            if (cambio > m) {
                m = cambio;
            }
        }
        if (m < 0.001) {
            return Q;
        }
    }
    throw Difetto{nonConverge};
}

}  // namespace

MatriceSingola costruisciMatrice(Progetto& p) {
    const int n = p.n;
    MatriceSingola P(pos(2 * n), std::vector<float>(pos(2 * n), 0.0F));
    for (int o = 0; o < 2 * n; ++o) {
        for (int c = 0; c < 2 * n; ++c) {
            P[pos(o)][pos(c)] = p.p[pos(o % n)][pos(c % n)];
        }
    }
    std::vector<float> Fc;
    for (int i = 0; i < n; ++i) {
        Fc.push_back(singolo(ramo(p, i).Fc));
    }
    MatriceSingola M(pos(n + 1), std::vector<float>(pos(n + 1), 0.0F));
    for (int i = 0; i < n; ++i) {
        M[pos(i)][pos(i)] = 1.0F;
    }
    for (int i = 0; i < n; ++i) {
        for (int s = i + n - 1; s >= i + n - 2; --s) {
            float somma = 0.0F;
            for (int a = i + n - 2; a >= i + 1; --a) {
                somma = singolo(d(somma) + d(P[pos(s)][pos(a)]));
            }
            const float prodotto = singolo(d(somma) * d(Fc[pos(i)]));
            if (prodotto != 0.0F) {
                M[pos(s % n)][pos(i)] = prodotto;
            }
        }
    }
    return M;
}

double determinante(int n, const MatriceDoppia& A) {
    if (n <= 2) {
        return doppio(A[0][0] * A[1][1] - A[0][1] * A[1][0]);
    }
    double primi = 0.0;
    double secondi = 0.0;
    for (int t = 0; t < n; ++t) {
        double primo = 1.0;
        double secondo = 1.0;
        for (int c = 0; c < n; ++c) {
            primo = doppio(primo * A[pos((t + c) % n)][pos(c)]);
            secondo = doppio(secondo * A[pos((t + c) % n)][pos(n - 1 - c)]);
        }
        primi = doppio(primi + primo);
        secondi = doppio(secondi + secondo);
    }
    return doppio(primi - secondi);
}

MatriceDoppia trasposta(int n, const MatriceDoppia& A) {
    MatriceDoppia T(pos(n), std::vector<double>(pos(n), 0.0));
    for (int i = 0; i < n; ++i) {
        for (int j = 0; j < n; ++j) {
            T[pos(i)][pos(j)] = A[pos(j)][pos(i)];
        }
    }
    return T;
}

MatriceDoppia inversa(int n, const MatriceDoppia& A, const MatriceDoppia& T, double det) {
    (void)A;  // only its transposed is read
    MatriceDoppia I(pos(n), std::vector<double>(pos(n), 0.0));
    for (int i = 0; i < n; ++i) {
        for (int j = 0; j < n; ++j) {
            MatriceDoppia minore;
            for (int r = 0; r < n; ++r) {
                if (r == i) {
                    continue;
                }
                std::vector<double> riga;
                for (int c = 0; c < n; ++c) {
                    if (c != j) {
                        riga.push_back(T[pos(r)][pos(c)]);
                    }
                }
                minore.push_back(riga);
            }
            const double segno = (i + j) % 2 == 0 ? 1.0 : -1.0;
            I[pos(i)][pos(j)] = diviso(determinante(n - 1, minore) * segno, det);
        }
    }
    return I;
}

std::vector<double> prodotto(int n, const std::vector<double>& b, const MatriceDoppia& A) {
    std::vector<double> risultato(pos(n), 0.0);
    for (int i = 0; i < n; ++i) {
        for (int j = 0; j < n; ++j) {
            risultato[pos(i)] = doppio(risultato[pos(i)] + b[pos(j)] * A[pos(i)][pos(j)]);
        }
    }
    return risultato;
}

std::vector<double> catena(int n, const std::vector<double>& b, const MatriceSingola& M) {
    MatriceDoppia A(pos(n), std::vector<double>(pos(n), 0.0));
    for (int i = 0; i < n; ++i) {
        for (int j = 0; j < n; ++j) {
            A[pos(i)][pos(j)] = d(M[pos(i)][pos(j)]);
        }
    }
    const double det = determinante(n, A);
    const MatriceDoppia T = trasposta(n, A);
    const MatriceDoppia I = inversa(n, A, T, det);
    return prodotto(n, b, I);
}

std::vector<float> iteraSingolo(const std::vector<float>& F, const MatriceSingola& W) {
    return itera(F, W);
}

std::vector<double> iteraDoppio(const std::vector<double>& F, const MatriceSingola& W) {
    return itera(F, W);
}

}  // namespace kelvo::prove::oracolo
