#include "nucleo.h"

#include <cmath>
#include <cstddef>

namespace kelvo::misure {

namespace {

std::size_t z(int i) {
    return static_cast<std::size_t>(i);
}

float f(double v) {
    return static_cast<float>(v);
}

double d(float v) {
    return static_cast<double>(v);
}

}  // namespace

void Nucleo::prepara() {
    Dq.assign(z((K + 1) * n), 0.0F);
    Cq.assign(z((K + 1) * n), 0.0F);
    record.assign(z(K * n * 5), 0.0F);
}

void Nucleo::parametri() {
    for (int i = 0; i < n; ++i) {
        const auto& g = geometria[z(i)];
        const double e = d(g[0]);
        const double v = d(g[1]);
        const double K_ = 1.0 - (d(g[3]) - 30.0) * 0.00347 - (1.0 / d(g[4]) - 0.05) * 0.978;
        const double Td = 0.5 / (1.0 + std::exp((d(g[5]) - 60.0) / 10.0)) + 1.0;
        const double S = (e - v) * 1.6 / d(g[2]);
        const double X2 = (e - v) / (2.0 * S + 1.0) + v;
        F[z(i)] = X2 * 303.0 * K_;
        Fc[z(i)] = K_ * ((0.2 * X2 + 1.0) * (Td * 0.21));
    }
}

void Nucleo::matrice() {
    M.fill(0.0);
    for (int i = 0; i < n; ++i) {
        M[z(i * n + i)] = 1.0;
        for (const int s : {i + n - 1, i + n - 2}) {
            float somma = 0.0F;
            for (int a = i + n - 2; a >= i + 1; --a) {
                somma += p[z(s % n * n + a % n)];
            }
            M[z(s % n * n + i)] = d(f(d(somma) * d(f(Fc[z(i)]))));
        }
    }
}

double Nucleo::determinante(int lato, const double* A) const {
    if (lato <= 2) {
        return A[0] * A[3] - A[1] * A[2];
    }
    double prime = 0.0;
    double seconde = 0.0;
    for (int t0 = 0; t0 < lato; ++t0) {
        double prima = 1.0;
        double seconda = 1.0;
        for (int c = 0; c < lato; ++c) {
            const int riga = (t0 + c) % lato;
            prima *= A[riga * lato + c];
            seconda *= A[riga * lato + lato - 1 - c];
        }
        prime += prima;
        seconde += seconda;
    }
    return prime - seconde;
}

void Nucleo::catena() const {
    std::array<double, massimo * massimo> minore{};
    const double det = determinante(n, M.data());
    volatile double ultimo = 0.0;
    for (int i = 0; i < n; ++i) {
        double somma = 0.0;
        for (int j = 0; j < n; ++j) {
            double* dove = minore.data();
            for (int r = 0; r < n; ++r) {
                for (int c = 0; c < n; ++c) {
                    if (r != i && c != j) {
                        *dove++ = M[z(c * n + r)];
                    }
                }
            }
            somma += F[z(j)] * (determinante(n - 1, minore.data()) * ((i + j) % 2 == 0 ? 1.0 : -1.0) / det);
        }
        ultimo = somma;
    }
    (void)ultimo;
}

void Nucleo::bilancia() {
    PerRamo<float> Q{};
    double cambio = 1.0;
    while (cambio >= 0.001) {
        cambio = 0.0;
        for (int i = 0; i < n; ++i) {
            float q0 = f(F[z(i)]);
            for (const int j : {(i + n - 1) % n, (i + n - 2) % n}) {
                q0 = f(d(q0) - M[z(j * n + i)] * d(Q[z(j)]));
            }
            cambio = std::fmax(cambio, std::fabs(d(Q[z(i)]) - d(q0)));
            Q[z(i)] = q0;
        }
    }
    for (int i = 0; i < n; ++i) {
        CU[z(i)] = capacitaTenute ? CU[z(i)] : d(Q[z(i)]);
    }
}

void Nucleo::portate() {
    for (int i = 0; i < n; ++i) {
        double somma = 0.0;
        for (int j = 0; j < 7; ++j) {
            somma += d(VE[z(j)]) * d(percentuali[z(i)][z(j)]);
        }
        G[z(i)] = f(somma / 100.0);
        const double g = perSegmento ? 1.0 : d(G[z(i)]);
        const float q1 = f(d(q[z(i)][0]) * g);
        const float q2 = f(d(q[z(i)][1]) * g);
        const float q3 = f(d(q[z(i)][2]) * g);
        const auto& tempi = t[z(i)];
        rette[z(i)] = {f(d(q2 - q1) / std::round(double(tempi[1] - tempi[0]) / m)), q1,
                       f(d(q3 - q2) / std::round(double(tempi[2] - tempi[1]) / m)), q2};
        k[z(i)] = {tempi[0] / m, tempi[1] / m, tempi[2] / m};
    }
    for (int s = 0; s <= K; ++s) {
        for (int i = 0; i < n; ++i) {
            float peso = 1.0F;
            if (perSegmento) {
                const float* c = categorie.data() + (s * n + i) * 7;
                float totale = 0.0F;
                float pesata = 0.0F;
                for (int j = 0; j < 7; ++j) {
                    totale += c[j];
                    pesata += VE[z(j)] * c[j];
                }
                peso = totale == 0.0F ? 0.0F : pesata / totale;
            }
            float portata = 0.0F;
            if (tabella) {
                const double g = perSegmento ? d(peso) : d(G[z(i)]);
                portata = f((d(flussi[z(s * n + i)]) - quota[z(i)]) * 60.0 * g / m);
            } else {
                const auto& r = rette[z(i)];
                const auto& punti = k[z(i)];
                float y = 0.0F;
                if (punti[0] <= s && s <= punti[1]) {
                    y = f(d(r[1] + r[0] * static_cast<float>(s - punti[0])) - quota[z(i)]);
                } else if (s > punti[1] && s <= punti[2]) {
                    y = f(d(r[3] + r[2] * static_cast<float>(s - punti[1])) - quota[z(i)]);
                }
                portata = y * 60.0F * peso;
            }
            Dq[z(s * n + i)] = portata;
        }
        for (int i = 0; i < n; ++i) {
            float R = f(F[z(i)]);
            for (const int j : {(i + n - 1) % n, (i + n - 2) % n}) {
                R = f(d(R) - M[z(j * n + i)] * std::fmin(d(Dq[z(s * n + j)]), CU[z(j)]));
            }
            Cq[z(s * n + i)] = R;
        }
    }
}

void Nucleo::scrivi() {
    const double w = 1.0 - percentile / 100.0;
    const double menoLn = -std::log(w);
    const double T = double(K * m) / (segmentiRecord - 1);
    for (int s = 0; s < K; ++s) {
        for (int i = 0; i < n; ++i) {
            const double portata = d(Dq[z(s * n + i)]);
            const float c = f((100.0 - notte - est[z(i)] - ped[z(i)]) * d(Cq[z(s * n + i)]) / 100.0);
            const float flusso = f(portata / 60.0);
            float* r = record.data() + (s * n + i) * 5;
            r[0] = flusso;
            r[1] = c;
            r[2] = d(c) > 0.0 ? f(d(flusso) * 60.0 / d(c)) : 0.0F;
            r[3] = 0.0F;
            r[4] = 0.0F;
            if (!tabella && !(flusso > 0.0F)) {
                continue;
            }
            const bool singolo = !doppio && !tabella;
            const auto tieni = [singolo](double v) { return singolo ? d(f(v)) : v; };
            const double x = tieni(d(flusso) * 60.0 / d(c));
            const double cT = tieni(d(c) / 60.0 * (singolo ? std::nearbyint(T) : T));
            r[3] = f((cT / 4.0) * ((x - 1.0) + std::sqrt((1.0 - x) * (1.0 - x) + (8.0 * x / cT) * menoLn)));
            const double c1 = tieni(d(c) / 60.0);
            const double A = tieni((2.0 + cT) - x * cT);
            r[4] = f((1.0 / c1 + (1.0 / (4.0 * c1)) * (std::sqrt(A * A + 8.0 * cT * x) - A)) * 60.0);
        }
    }
}

void Nucleo::esegui() {
    parametri();
    matrice();
    catena();
    bilancia();
    portate();
    scrivi();
}

}  // namespace kelvo::misure
