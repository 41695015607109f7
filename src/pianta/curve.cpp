#include "pianta/curve.h"

#include <algorithm>
#include <cmath>

namespace kelvo::pianta {

namespace {

constexpr double vicino = 1e-9;

}  // namespace

double azimut(Punto p) {
    return std::atan2(p.x, -p.y);
}

Punto sulCerchio(double raggio, double azimut) {
    return {raggio * std::sin(azimut), -raggio * std::cos(azimut)};
}

double norma(Punto a) {
    return std::hypot(a.x, a.y);
}

Punto versore(Punto a) {
    const double lungo = norma(a);
    return lungo > 0 ? Punto{a.x / lungo, a.y / lungo} : Punto{1, 0};
}

Punto ruotato(Punto a, double angolo) {
    const double c = std::cos(angolo);
    const double s = std::sin(angolo);
    return {a.x * c - a.y * s, a.x * s + a.y * c};
}

Punto polare(double raggio, double angolo) {
    return {raggio * std::cos(angolo), raggio * std::sin(angolo)};
}

double bombaturaDi(double angolo) {
    return std::tan(angolo / 4);
}

Cerchio cerchioDi(Punto da, Punto a, double bombatura) {
    const double gira = 4 * std::atan(bombatura);
    const Punto corda = a - da;
    // The centre stands on the left of the chord for an arc that turns left by less than half a turn.
    const double altezza = (1 - bombatura * bombatura) / (4 * bombatura);
    const Punto centro = da + corda * 0.5 + aSinistra(corda) * altezza;
    const Punto raggio = da - centro;
    return {.centro = centro, .raggio = norma(raggio), .da = std::atan2(raggio.y, raggio.x), .gira = gira};
}

Punto puntoSu(const Vertice& da, Punto a, double quota) {
    if (quota <= 0) {
        return da.p;
    }
    if (quota >= 1) {
        return a;
    }
    if (da.bombatura == 0) {
        return da.p + (a - da.p) * quota;
    }
    const Cerchio cerchio = cerchioDi(da.p, a, da.bombatura);
    return cerchio.centro + polare(cerchio.raggio, cerchio.da + cerchio.gira * quota);
}

std::vector<Punto> spezzata(const Tracciato& tracciato, bool chiuso, double passo) {
    std::vector<Punto> punti;
    const std::size_t n = tracciato.size();
    for (std::size_t i = 0; i < n; ++i) {
        punti.push_back(tracciato[i].p);
        if ((i + 1 == n && !chiuso) || tracciato[i].bombatura == 0) {
            continue;
        }
        const Punto a = tracciato[(i + 1) % n].p;
        const double gira = std::abs(4 * std::atan(tracciato[i].bombatura));
        const int pezzi = std::max(1, static_cast<int>(std::ceil(gira / passo)));
        for (int k = 1; k < pezzi; ++k) {
            punti.push_back(puntoSu(tracciato[i], a, static_cast<double>(k) / pezzi));
        }
    }
    return punti;
}

Tracciato inverso(const Tracciato& tracciato) {
    Tracciato rovescio(tracciato.rbegin(), tracciato.rend());
    for (std::size_t i = 0; i + 1 < rovescio.size(); ++i) {
        rovescio[i].bombatura = -rovescio[i + 1].bombatura;
    }
    if (!rovescio.empty()) {
        rovescio.back().bombatura = 0;
    }
    return rovescio;
}

Tracciato specchiato(const Tracciato& tracciato) {
    Tracciato altro = tracciato;
    for (Vertice& v : altro) {
        v = {{-v.p.x, v.p.y}, -v.bombatura};
    }
    return altro;
}

Tracciato ruotato(const Tracciato& tracciato, double angolo) {
    Tracciato altro = tracciato;
    for (Vertice& v : altro) {
        v.p = ruotato(v.p, angolo);
    }
    return altro;
}

Tracciato circonferenza(Punto centro, double raggio) {
    return {{{centro.x + raggio, centro.y}, 1.0}, {{centro.x - raggio, centro.y}, 1.0}};
}

void accoda(Tracciato& tracciato, const Tracciato& altro) {
    if (!tracciato.empty() && !altro.empty() && norma(tracciato.back().p - altro.front().p) < vicino) {
        tracciato.pop_back();
    }
    tracciato.insert(tracciato.end(), altro.begin(), altro.end());
}

Punto puntoIn(const Tracciato& tracciato, Posizione dove) {
    return puntoSu(tracciato[dove.pezzo], tracciato[dove.pezzo + 1].p, dove.quota);
}

Tracciato fino(const Tracciato& tracciato, Posizione dove) {
    const auto pezzo = static_cast<std::ptrdiff_t>(dove.pezzo);
    Tracciato parte(tracciato.begin(), tracciato.begin() + pezzo + 1);
    const double gira = 4 * std::atan(parte.back().bombatura);
    parte.back().bombatura = bombaturaDi(gira * dove.quota);
    parte.push_back({puntoIn(tracciato, dove), 0});
    return parte;
}

namespace {

/// Where an arc that the ray meets once is met, from 0 at its beginning to 1 at its end. Of the two points that ray and
/// circle share it is the one that lies on the arc, or nearer to it where rounding has put both outside.
double quotaSulRaggio(const Cerchio& cerchio, Punto verso) {
    const double lungo = scalare(cerchio.centro, verso);
    const double lontano = vettoriale(cerchio.centro, verso);
    const double mezza = std::sqrt(std::max(0.0, cerchio.raggio * cerchio.raggio - lontano * lontano));
    double migliore = 0.0;
    double fuori = HUGE_VAL;
    for (const double quanto : {lungo - mezza, lungo + mezza}) {
        const Punto raggio = verso * quanto - cerchio.centro;
        const double svolta = std::atan2(raggio.y, raggio.x) - cerchio.da;
        // As an arc turns by less than a whole turn, the nearest of its neighbours by whole turns is the one meant.
        for (const double giro : {-4 * pi, -2 * pi, 0.0, 2 * pi, 4 * pi}) {
            const double quota = (svolta + giro) / cerchio.gira;
            const double manca = std::max({0.0, -quota, quota - 1.0});
            if (manca < fuori) {
                fuori = manca;
                migliore = quota;
            }
        }
    }
    return std::clamp(migliore, 0.0, 1.0);
}

}  // namespace

std::optional<Posizione> incontro(const Tracciato& tracciato, double angolo) {
    for (std::size_t i = 0; i + 1 < tracciato.size(); ++i) {
        const Punto da = tracciato[i].p;
        const Punto a = tracciato[i + 1].p;
        if (angolo < azimut(da) - vicino || angolo > azimut(a) + vicino) {
            continue;
        }
        // The angle grows along the piece: which side of its ray a point lies on tells it without a transcendental.
        const Punto verso = sulCerchio(1.0, angolo);
        if (tracciato[i].bombatura == 0) {
            const double passa = vettoriale(a - da, verso);
            return Posizione{i, passa == 0 ? 0.0 : std::clamp(-vettoriale(da, verso) / passa, 0.0, 1.0)};
        }
        const double quota = quotaSulRaggio(cerchioDi(da, a, tracciato[i].bombatura), verso);
        return Posizione{i, quota};
    }
    return std::nullopt;
}

std::optional<double> ascissa(const Tracciato& tracciato, double y) {
    for (std::size_t i = 0; i + 1 < tracciato.size(); ++i) {
        const Punto a = tracciato[i + 1].p;
        if (y < tracciato[i].p.y || y > a.y) {
            continue;
        }
        const double quota = bisezione(0.0, 1.0, [&](double q) { return y - puntoSu(tracciato[i], a, q).y; });
        return puntoSu(tracciato[i], a, quota).x;
    }
    return std::nullopt;
}

double superficie(const Tracciato& contorno) {
    double doppia = 0;
    for (std::size_t i = 0; i < contorno.size(); ++i) {
        const Punto da = contorno[i].p;
        const Punto a = contorno[(i + 1) % contorno.size()].p;
        doppia += vettoriale(da, a);
        if (contorno[i].bombatura != 0) {
            const Cerchio c = cerchioDi(da, a, contorno[i].bombatura);
            doppia += c.raggio * c.raggio * (c.gira - std::sin(c.gira));
        }
    }
    return doppia / 2;
}

}  // namespace kelvo::pianta
