// The flows of a turning matrix as ribbons. In the ring the ribbons of one origin lie side by side, those that leave
// next outermost; the origin that entered last lies outside all others. So no ribbon crosses another but where one
// leaves from within.

#include <algorithm>
#include <cmath>
#include <string>

#include "pianta/costruzione.h"

namespace kelvo::pianta {

namespace {

/// Parts of lane and ring that the widest stack of ribbons takes.
constexpr double quotaCorsia = 0.86;
constexpr double quotaAnello = 0.88;
/// The ring is made wider for the ribbons up to this part of R.
constexpr double anelloMassimo = 0.5;
/// Part of the way to the nearer neighbour along which a ribbon moves over at a leg.
constexpr double quotaCambio = 0.3;
constexpr double passoAnello = 0.05;

struct Nastro {
    std::size_t da = 0;
    std::size_t a = 0;
    double largo = 0.0;
    double inCorsia = 0.0;        ///< from the middle of the entry lane to the right, seen in the direction of travel
    double inUscita = 0.0;        ///< the same in the exit lane
    std::vector<double> raggi{};  ///< in each sector of the ring from the entry to the exit
};

/// Sectors count as the legs that they follow.
class Fascio {
public:
    explicit Fascio(const Costruzione& opera) : opera_(opera), n_(opera.numero()) {}

    double flusso(std::size_t da, std::size_t a) const {
        const auto& flussi = opera_.opzioni.flussi;
        if (da == a || da >= flussi.size() || a >= flussi[da].size() || !std::isfinite(flussi[da][a])) {
            return 0;
        }
        return std::max(0.0, static_cast<double>(flussi[da][a]));
    }

    /// The ring as wide as the ribbons ask that fill the fullest lane, if there is room for it.
    double anello() const {
        double pieno = 0;
        for (std::size_t k = 0; k < n_; ++k) {
            pieno = std::max(pieno, nelSettore(k));
        }
        const double pianta = opera_.pianta.anello;
        const double largo = pieno / perCorsie() / quotaAnello;
        return std::isfinite(largo) ? std::clamp(largo, pianta, std::max(pianta, anelloMassimo * opera_.pianta.R))
                                    : pianta;
    }

    /// Width of a ribbon by its flow: lanes and ring hold what passes through them; 0 where nothing flows.
    double scala() const {
        double stretta = perCorsie();
        for (std::size_t k = 0; k < n_; ++k) {
            stretta = std::max(stretta, nelSettore(k) / (quotaAnello * opera_.pianta.anello));
        }
        return stretta > 0 && std::isfinite(stretta) ? 1 / stretta : 0;
    }

    /// Ribbons in the order of their origins, of one origin those that leave first in front.
    std::vector<Nastro> nastri() const {
        const double scala = this->scala();
        std::vector<Nastro> tutti;
        for (std::size_t da = 0; da < n_; ++da) {
            for (std::size_t giro = 1; giro < n_; ++giro) {
                const std::size_t a = (da + giro) % n_;
                const double largo = flusso(da, a) * scala;
                if (largo > 0) {
                    Nastro nastro{.da = da, .a = a, .largo = largo};
                    disponi(nastro, scala);
                    tutti.push_back(nastro);
                }
            }
        }
        return tutti;
    }

private:
    /// Flow by width in the fullest lane.
    double perCorsie() const {
        double stretta = 0;
        const auto restringi = [&](double somma, double posto) { stretta = std::max(stretta, somma / posto); };
        for (std::size_t k = 0; k < n_; ++k) {
            const RamoDisegnato& ramo = opera_.pianta.rami[k];
            double entra = 0;
            double esce = 0;
            for (std::size_t i = 0; i < n_; ++i) {
                entra += flusso(k, i);
                esce += flusso(i, k);
            }
            restringi(entra, quotaCorsia * ramo.ingresso.semi);
            restringi(esce, quotaCorsia * ramo.uscita.semi);
        }
        return stretta;
    }

    std::size_t distanza(std::size_t da, std::size_t a) const { return (a + n_ - da) % n_; }

    /// Calls `f` with the legs of each movement that passes a sector, from the outermost to the innermost one.
    template <class F>
    void attraversa(std::size_t settore, F f) const {
        for (std::size_t prima = 0; prima + 1 < n_; ++prima) {
            const std::size_t da = (settore + n_ - prima) % n_;
            for (std::size_t giro = prima + 1; giro < n_; ++giro) {
                f(da, (da + giro) % n_);
            }
        }
    }

    double nelSettore(std::size_t settore) const {
        double somma = 0;
        attraversa(settore, [&](std::size_t da, std::size_t a) { somma += flusso(da, a); });
        return somma;
    }

    /// Places a ribbon in lanes and ring; the stacks stand in the middle of each.
    void disponi(Nastro& nastro, double scala) const {
        double entra = 0;
        double esce = 0;
        double primaEntra = 0;  // on its right
        double primaEsce = 0;
        for (std::size_t giro = 1; giro < n_; ++giro) {
            const double uscente = flusso(nastro.da, (nastro.da + giro) % n_) * scala;
            const double entrante = flusso((nastro.a + n_ - giro) % n_, nastro.a) * scala;
            entra += uscente;
            esce += entrante;
            primaEntra += giro < distanza(nastro.da, nastro.a) ? uscente : 0;
            primaEsce += giro < distanza(nastro.da, nastro.a) ? entrante : 0;
        }
        nastro.inCorsia = entra / 2 - primaEntra - nastro.largo / 2;
        nastro.inUscita = esce / 2 - primaEsce - nastro.largo / 2;
        const double mezzo = opera_.pianta.R - opera_.pianta.anello / 2;
        for (std::size_t s = 0; s < distanza(nastro.da, nastro.a); ++s) {
            const std::size_t settore = (nastro.da + s) % n_;
            double fuori = mezzo + nelSettore(settore) * scala / 2;
            bool trovato = false;
            attraversa(settore, [&](std::size_t da, std::size_t a) {
                trovato = trovato || (da == nastro.da && a == nastro.a);
                fuori -= trovato ? 0 : flusso(da, a) * scala;
            });
            nastro.raggi.push_back(fuori - nastro.largo / 2);
        }
    }

    const Costruzione& opera_;
    std::size_t n_;
};

double morbido(double t) {
    const double u = std::clamp(t, 0.0, 1.0);
    return u * u * (3 - 2 * u);
}

/// Direction of travel at each point of a chain.
std::vector<Punto> versi(const std::vector<Punto>& catena) {
    std::vector<Punto> tutti;
    for (std::size_t i = 0; i < catena.size(); ++i) {
        const Punto prima = catena[i == 0 ? 0 : i - 1];
        const Punto dopo = catena[std::min(i + 1, catena.size() - 1)];
        tutti.push_back(versore(dopo - prima));
    }
    return tutti;
}

/// A chain moved to the right by what `quanto` tells of each point.
template <class F>
std::vector<Punto> aDestra(const std::vector<Punto>& catena, F quanto) {
    const std::vector<Punto> verso = versi(catena);
    std::vector<Punto> mossa;
    for (std::size_t i = 0; i < catena.size(); ++i) {
        mossa.push_back(catena[i] - aSinistra(verso[i]) * quanto(i));
    }
    return mossa;
}

std::vector<Punto> punti(const Tracciato& via) {
    return spezzata(via, false);
}

/// Lane of a side from its end to the circle of `raggio`, moved by `scarto` to the kerb's side: all along for an entry
/// (`fissa`); of an exit the move ends at the circle.
std::vector<Punto> corsia(const Costruzione& opera, const Ciglio& ciglio, double raggio, double scarto, bool fissa) {
    const std::vector<Punto> mezza = punti(mezzeria(ciglio, opera.fineCorsie(), raggio, 0.0));
    const std::size_t bocca = mezza.size() - 1 - passiRaccordo;
    return aDestra(mezza, [&](std::size_t i) {
        const double oltre = i <= bocca ? 0.0 : static_cast<double>(i - bocca) / static_cast<double>(passiRaccordo);
        return fissa ? scarto : scarto * (1 - morbido(oltre));
    });
}

/// The way along the ring between two azimuths in the frame of the leg of entry; its radius changes at each leg passed.
std::vector<Punto> lungoAnello(const Costruzione& opera, const Nastro& nastro, double da, double a) {
    const std::size_t n = opera.numero();
    struct Cambio {
        double inizio = 0.0;
        double fine = 0.0;
        double quanto = 0.0;
    };
    std::vector<Cambio> cambi;
    double gamba = 0;
    for (std::size_t s = 1; s < nastro.raggi.size(); ++s) {
        const double prima = opera.distacco((nastro.da + s - 1) % n);
        gamba += prima;
        const double mezzo = quotaCambio * std::min(prima, opera.distacco((nastro.da + s) % n));
        cambi.push_back(
            {std::max(da, gamba - mezzo), std::min(a, gamba + mezzo), nastro.raggi[s] - nastro.raggi[s - 1]});
    }
    const int passi = std::max(1, static_cast<int>(std::ceil((a - da) / passoAnello)));
    std::vector<Punto> via;
    for (int k = 0; k <= passi; ++k) {
        const double angolo = da + (a - da) * k / passi;
        double raggio = nastro.raggi.front();
        for (const Cambio& cambio : cambi) {
            const double lungo = cambio.fine - cambio.inizio;
            const double quota = lungo > 0 ? (angolo - cambio.inizio) / lungo : (angolo < cambio.inizio ? 0 : 1);
            raggio += cambio.quanto * morbido(quota);
        }
        via.push_back(sulCerchio(raggio, angolo));
    }
    return via;
}

void aggiungi(std::vector<Punto>& via, const std::vector<Punto>& altra) {
    for (const Punto& p : altra) {
        constexpr double vicino = 0.05;
        if (via.empty() || norma(p - via.back()) > vicino) {
            via.push_back(p);
        }
    }
}

/// Middle of a ribbon from the end of its entry lane to that of its exit lane, in the frame of the leg of entry.
std::vector<Punto> mezzo(const Costruzione& opera, const Nastro& nastro) {
    const std::size_t n = opera.numero();
    double giro = 0;
    for (std::size_t s = 0; s < nastro.raggi.size(); ++s) {
        giro += opera.distacco((nastro.da + s) % n);
    }
    const double fascia = nastro.raggi.front() - nastro.inCorsia;
    std::vector<Punto> entra = corsia(opera, opera.pianta.rami[nastro.da].ingresso, fascia, nastro.inCorsia, true);
    std::vector<Punto> esce =
        corsia(opera, opera.pianta.rami[nastro.a].uscita, nastro.raggi.back(), nastro.inUscita, false);
    for (Punto& p : esce) {
        p = ruotato(Punto{-p.x, p.y}, giro);
    }
    std::reverse(esce.begin(), esce.end());
    const double da = azimut(entra.back());
    double a = azimut(esce.front());
    a += 2 * pi * std::round((giro - a) / (2 * pi));
    std::vector<Punto> via;
    if (a - da > passoAnello) {
        aggiungi(via, entra);
        aggiungi(via, lungoAnello(opera, nastro, da, a));
        aggiungi(via, esce);
        return via;
    }
    // No room between entry and exit: straight from one mouth to the other.
    entra.resize(entra.size() - passiRaccordo);
    esce.erase(esce.begin(), esce.begin() + static_cast<std::ptrdiff_t>(passiRaccordo));
    aggiungi(via, entra);
    aggiungi(via, punti(raccordo(entra.back(), versi(entra).back(), esce.front(), versi(esce).front())));
    aggiungi(via, esce);
    return via;
}

/// Border of a ribbon: its right edge, the tip, its left edge back to the start.
Tracciato contorno(const std::vector<Punto>& mezzo, double largo) {
    const auto bordo = [&](double quanto) { return aDestra(mezzo, [=](std::size_t) { return quanto; }); };
    const std::vector<Punto> destra = bordo(largo / 2);
    const std::vector<Punto> sinistra = bordo(-largo / 2);
    Tracciato via;
    for (const Punto& p : destra) {
        via.push_back({p, 0});
    }
    constexpr double puntaMassima = 1.5;
    via.push_back({mezzo.back() + versi(mezzo).back() * std::min(largo / 2, puntaMassima), 0});
    for (auto p = sinistra.rbegin(); p != sinistra.rend(); ++p) {
        via.push_back({*p, 0});
    }
    return via;
}

}  // namespace

bool aggiungiFlussi(Costruzione& opera) {
    opera.pianta.anello = Fascio(opera).anello();
    const std::vector<Nastro> nastri = Fascio(opera).nastri();
    const auto& movimento = opera.opzioni.movimento;
    for (const Nastro& nastro : nastri) {
        opera.area(Ruolo::flusso, nastro.da,
                   conLettera("flusso", nastro.da) + "-" + lettera(static_cast<int>(nastro.a) + 1),
                   contorno(mezzo(opera, nastro), nastro.largo));
        opera.pianta.aree.back().corrente = movimento && movimento->da == static_cast<int>(nastro.da) + 1 &&
                                            movimento->a == static_cast<int>(nastro.a) + 1;
    }
    return !nastri.empty();
}

}  // namespace kelvo::pianta
