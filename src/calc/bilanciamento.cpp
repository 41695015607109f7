#include "calc/bilanciamento.h"

#include <cmath>
#include <concepts>

#include "base/guasto.h"

namespace kelvo {

namespace {

constexpr double sogliaBilanciamento = 0.001;
constexpr int massimoPassate = 1000000;

std::size_t z(int indice) {
    return static_cast<std::size_t>(indice);
}

void minore(int n, const Quadrata<double>& A, int senzaRiga, int senzaColonna, Quadrata<double>& m) {
    for (int r = 0; r < n - 1; ++r) {
        for (int c = 0; c < n - 1; ++c) {
            m[z(r)][z(c)] = A[z(r < senzaRiga ? r : r + 1)][z(c < senzaColonna ? c : c + 1)];
        }
    }
}

/// Tells when a sequence of states comes back to one that it has passed, with one state kept.
template <class T>
class RitornoDiStato {
public:
    bool tornato(const PerRamo<T>& stato) {
        if (stato == riferimento_) {
            return true;
        }
        if (++passi_ == periodo_) {
            riferimento_ = stato;
            periodo_ *= 2;
            passi_ = 0;
        }
        return false;
    }

private:
    PerRamo<T> riferimento_{};
    int periodo_ = 1;
    int passi_ = 0;
};

constexpr auto luogoBilanciamento = [] { return "bilanciamento dei flussi"; };

}  // namespace

double Determinante(int n, const Quadrata<double>& A) {
    if (n <= 2) {
        return controllato(A[0][0] * A[1][1] - A[0][1] * A[1][0], luogoBilanciamento);
    }
    double prime = 0.0;
    double seconde = 0.0;
    for (int t = 0; t < n; ++t) {
        double prima = 1.0;
        double seconda = 1.0;
        for (int c = 0; c < n; ++c) {
            const std::size_t riga = z(t + c < n ? t + c : t + c - n);
            prima *= A[riga][z(c)];
            seconda *= A[riga][z(n - 1 - c)];
        }
        prime += prima;
        seconde += seconda;
    }
    return controllato(prime - seconde, luogoBilanciamento);
}

Quadrata<double> Trasposta(int n, const Quadrata<double>& A) {
    Quadrata<double> T{};
    for (int r = 0; r < n; ++r) {
        for (int c = 0; c < n; ++c) {
            T[z(c)][z(r)] = A[z(r)][z(c)];
        }
    }
    return T;
}

Quadrata<double> Inversa(int n, const Quadrata<double>& /*A*/, const Quadrata<double>& T, double det) {
    Quadrata<double> inversa{};
    Quadrata<double> m{};
    for (int i = 0; i < n; ++i) {
        for (int j = 0; j < n; ++j) {
            const double segno = (i + j) % 2 == 0 ? 1.0 : -1.0;
            minore(n, T, i, j, m);
            const double complemento = Determinante(n - 1, m) * segno;
            inversa[z(i)][z(j)] =
                dividi(complemento, det, [] { return "determinante della matrice dei coefficienti 0"; });
        }
    }
    return inversa;
}

PerRamo<double> Prodotto(int n, const PerRamo<double>& b, const Quadrata<double>& A) {
    PerRamo<double> prodotto{};
    for (int i = 0; i < n; ++i) {
        double somma = 0.0;
        for (int j = 0; j < n; ++j) {
            somma += b[z(j)] * A[z(i)][z(j)];
        }
        prodotto[z(i)] = controllato(somma, luogoBilanciamento);
    }
    return prodotto;
}

Quadrata<float> Costruisci_Matrice(const Rotonda& rotonda) {
    const int n = rotonda.NumeroRami();
    Matrice p;
    rotonda.GetMatriceSvoltePercentuale(p);
    PerRamo<float> Fc{};
    for (int i = 0; i < n; ++i) {
        const Ramo& ramo = rotonda.Ramo(static_cast<std::int16_t>(i + 1));
        Fc[z(i)] = aSingolo(ramo.Fc(), [&] { return ramo.Descrizione() + ", Fc"; });
    }
    Quadrata<float> M{};
    for (int i = 0; i < n; ++i) {
        M[z(i)][z(i)] = 1.0F;
    }
    for (int i = 0; i < n; ++i) {
        for (const int s : {i + n - 1, i + n - 2}) {
            float somma = 0.0F;
            for (int a = i + n - 2; a >= i + 1; --a) {
                somma += p[z(s % n)][z(a % n)];
            }
            const float peso = aSingolo(static_cast<double>(somma) * static_cast<double>(Fc[z(i)]), luogoBilanciamento);
            if (peso != 0.0F) {
                M[z(s % n)][z(i)] = peso;
            }
        }
    }
    return M;
}

PerRamo<Colonna> colonneDi(int n, const Quadrata<float>& M) {
    PerRamo<Colonna> colonne{};
    for (int i = 0; i < n; ++i) {
        Colonna& colonna = colonne[z(i)];
        for (int j = 0; j < n; ++j) {
            const float peso = M[z(j)][z(i)];
            if (j != i && peso != 0.0F) {
                colonna.righe[colonna.quanti] = z(j);
                colonna.pesi[colonna.quanti] = static_cast<double>(peso);
                ++colonna.quanti;
            }
        }
    }
    return colonne;
}

template <class T>
Soluzione<T> scorriBilanciamento(int n, const PerRamo<T>& F, const Quadrata<float>& W) {
    const PerRamo<Colonna> colonne = colonneDi(n, W);
    Soluzione<T> s;
    RitornoDiStato<T> ritorno;
    for (;;) {
        double massimo = 0.0;
        for (int i = 0; i < n; ++i) {
            const Colonna& colonna = colonne[z(i)];
            T q = F[z(i)];
            for (std::size_t j = 0; j < colonna.quanti; ++j) {
                // In single precision the product is not rounded, the difference is.
                q = static_cast<T>(static_cast<double>(q) -
                                   colonna.pesi[j] * static_cast<double>(s.Q[colonna.righe[j]]));
            }
            controllato(static_cast<double>(q), luogoBilanciamento);
            const double cambio = std::fabs(static_cast<double>(s.Q[z(i)]) - static_cast<double>(q));
            s.Q[z(i)] = q;
            if (cambio > massimo) {
                massimo = cambio;
            }
        }
        ++s.passate;
        if (massimo < sogliaBilanciamento) {
            return s;
        }
        if (s.passate >= massimoPassate || ritorno.tornato(s.Q)) {
            s.convergente = false;
            return s;
        }
    }
}

template <class T>
Soluzione<T> Itera_Bilanciamento(int n, const PerRamo<T>& F, const Quadrata<float>& W) {
    const Soluzione<T> s = scorriBilanciamento<T>(n, F, W);
    if (!s.convergente) {
        throw Guasto::conParole(NumeroGuasto::operazioneImpossibile, "Il bilanciamento non converge");
    }
    return s;
}

template <class T>
Equilibrio<T> bilancia(const Rotonda& rotonda) {
    const int n = rotonda.NumeroRami();
    PerRamo<T> F{};
    PerRamo<double> termini{};
    for (int i = 0; i < n; ++i) {
        const Ramo& ramo = rotonda.Ramo(static_cast<std::int16_t>(i + 1));
        if constexpr (std::same_as<T, float>) {
            F[z(i)] = aSingolo(ramo.F(), [&] { return ramo.Descrizione() + ", F"; });
        } else {
            F[z(i)] = ramo.F();
        }
        termini[z(i)] = static_cast<double>(F[z(i)]);
    }
    Equilibrio<T> e;
    e.M = Costruisci_Matrice(rotonda);

    Quadrata<double> A{};
    for (int r = 0; r < n; ++r) {
        for (int c = 0; c < n; ++c) {
            A[z(r)][z(c)] = static_cast<double>(e.M[z(r)][z(c)]);
        }
    }
    // Nobody uses the product: the chain is run for its faults, a determinant of 0 above all.
    const double det = Determinante(n, A);
    const Quadrata<double> trasposta = Trasposta(n, A);
    Prodotto(n, termini, Inversa(n, A, trasposta, det));

    Quadrata<float> W = e.M;
    for (int i = 0; i < n; ++i) {
        W[z(i)][z(i)] = 0.0F;
    }
    e.soluzione = Itera_Bilanciamento<T>(n, F, W);
    return e;
}

template Soluzione<float> scorriBilanciamento<float>(int, const PerRamo<float>&, const Quadrata<float>&);
template Soluzione<double> scorriBilanciamento<double>(int, const PerRamo<double>&, const Quadrata<float>&);
template Soluzione<float> Itera_Bilanciamento<float>(int, const PerRamo<float>&, const Quadrata<float>&);
template Soluzione<double> Itera_Bilanciamento<double>(int, const PerRamo<double>&, const Quadrata<float>&);
template Equilibrio<float> bilancia<float>(const Rotonda&);
template Equilibrio<double> bilancia<double>(const Rotonda&);

}  // namespace kelvo
