#include <cmath>

#include "oracolo.h"

namespace kelvo::prove::oracolo {

namespace {

double d(float valore) {
    return static_cast<double>(valore);
}

double radiceDi(double valore) {
    if (valore < 0.0) {
        throw Difetto{5};
    }
    return std::sqrt(valore);
}

double logaritmoDi(double valore) {
    if (valore <= 0.0) {
        throw Difetto{5};
    }
    return std::log(valore);
}

}  // namespace

CodaRitardo codaSingola(float f, float c, float percentile, int T) {
    const float w = singolo(1.0 - d(percentile) / 100.0);
    const float x = singolo(diviso(d(f) * 60.0, d(c)));
    const float cT = singolo(d(c) / 60.0 * T);
    const double primo = (1.0 - d(x)) * (1.0 - d(x));
    const double secondo = diviso(8.0 * d(x), d(cT)) * -logaritmoDi(d(w));
    CodaRitardo esito;
    esito.coda = singolo(d(cT) / 4.0 * (d(x) - 1.0 + radiceDi(primo + secondo)));
    const float c1 = singolo(d(c) / 60.0);
    const float A = singolo(2.0 + d(cT) - d(x) * d(cT));
    const double radicando = d(A) * d(A) + 8.0 * d(cT) * d(x);
    esito.ritardo = singolo((diviso(1.0, d(c1)) + diviso(1.0, 4.0 * d(c1)) * (radiceDi(radicando) - d(A))) * 60.0);
    return esito;
}

CodaRitardo codaDoppia(float f, float c, float percentile, double T) {
    const double w = 1.0 - d(percentile) / 100.0;
    const double x = diviso(d(f) * 60.0, d(c));
    const double cT = d(c) / 60.0 * T;
    const double primo = (1.0 - x) * (1.0 - x);
    const double secondo = diviso(8.0 * x, cT) * -logaritmoDi(w);
    CodaRitardo esito;
    esito.coda = singolo(cT / 4.0 * (x - 1.0 + radiceDi(primo + secondo)));
    const double c1 = d(c) / 60.0;
    const double A = 2.0 + cT - x * cT;
    const double radicando = A * A + 8.0 * cT * x;
    esito.ritardo = singolo((diviso(1.0, c1) + diviso(1.0, 4.0 * c1) * (radiceDi(radicando) - A)) * 60.0);
    return esito;
}

}  // namespace kelvo::prove::oracolo
