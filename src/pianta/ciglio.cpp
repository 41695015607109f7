#include "pianta/ciglio.h"

#include <algorithm>
#include <cmath>

namespace kelvo::pianta {

namespace {

/// The curve of radius `raggio` that touches the kerb at `semi` from the axis and the circle from outside: its centre
/// lies at distance R + raggio from the centre. Depth of that centre.
double inizioCurva(double R, double semi, double raggio) {
    return std::sqrt((R - semi) * (R + semi + 2 * raggio));
}

/// One side under trial: circle, half-width where the curve starts, radius, half-width of the island's head.
struct Prova {
    double R = 0.0;
    double teste = 0.0;  ///< distance from the centre to the head of the island
    double semi = 0.0;
    double raggio = 0.0;
    double testa = 0.0;

    double profonditaAngolo() const { return std::sqrt(teste * teste - testa * testa); }
    Punto angolo() const { return {testa, -profonditaAngolo()}; }
    Punto centro() const { return {semi + raggio, -inizioCurva(R, semi, raggio)}; }
    /// The corner faces the curve, and not the straight kerb before it.
    bool inCurva() const { return profonditaAngolo() <= inizioCurva(R, semi, raggio); }
    double larghezza() const { return inCurva() ? norma(centro() - angolo()) - raggio : semi - testa; }
    Punto piede() const {
        return inCurva() ? centro() + versore(angolo() - centro()) * raggio : Punto{semi, -profonditaAngolo()};
    }
    double fineCurva() const { return std::asin(std::min(1.0, (semi + raggio) / (R + raggio))); }
};

double corda(const RichiestaCiglio& richiesta) {
    return richiesta.R * std::sin(richiesta.settore);
}

/// The head of the island that gives a width, at the half-width at hand; it is wider for a narrower entry.
double testaPerLarghezza(Prova prova, double minima, double massima, double larghezza) {
    return bisezione(minima, massima, [&](double testa) {
        prova.testa = testa;
        return prova.larghezza() - larghezza;
    });
}

/// The half-width at the start of the curve that gives a width, at the head at hand.
double semiPerLarghezza(Prova prova, double minima, double massima, double larghezza) {
    return bisezione(minima, massima, [&](double semi) {
        prova.semi = semi;
        return larghezza - prova.larghezza();
    });
}

/// Head and half-width for the width asked for, with a given radius. The half-width is at least the road's own and
/// what the kerb takes of the flare; it grows where the narrowest island still leaves too little.
Prova conRaggio(const RichiestaCiglio& richiesta, double semi, double raggio, const Ipotesi& ipotesi) {
    const double massima = std::max(semi, ipotesi.larghezzaSuCorda * corda(richiesta));
    const double minimaTesta = semitesta(richiesta.R, ipotesi);
    Prova prova{.R = richiesta.R,
                .teste = raggioTeste(richiesta.R, ipotesi),
                .semi = semi,
                .raggio = raggio,
                .testa = minimaTesta};
    const auto massimaTesta = [&] { return std::max(minimaTesta, prova.teste * std::sin(prova.fineCurva())); };
    if (prova.larghezza() >= richiesta.larghezza) {
        prova.testa = testaPerLarghezza(prova, minimaTesta, massimaTesta(), richiesta.larghezza);
    }
    // How much of the flare lies before the curve: that part is drawn by the kerb.
    const double curva = inizioCurva(richiesta.R, semi, raggio) + prova.piede().y;
    const double prima = std::clamp(1 - std::max(0.0, curva) / richiesta.svasatura, 0.0, 1.0);
    const double apertura = std::max(0.0, richiesta.larghezza - semi) * ipotesi.quotaSvasaturaCiglio * prima;
    prova.semi = std::min(semi + apertura, massima);
    prova.testa = minimaTesta;
    if (prova.larghezza() >= richiesta.larghezza) {
        prova.testa = testaPerLarghezza(prova, minimaTesta, massimaTesta(), richiesta.larghezza);
    } else {
        prova.semi = semiPerLarghezza(prova, prova.semi, massima, richiesta.larghezza);
    }
    return prova;
}

Ciglio finito(const Prova& prova, const RichiestaCiglio& richiesta, double semi, double ripidezza) {
    Ciglio c;
    c.R = prova.R;
    c.semi = semi;
    c.semiCurva = prova.semi;
    c.raggio = prova.raggio;
    c.larghezza = prova.larghezza();
    c.angolo = prova.angolo();
    c.piede = prova.piede();
    c.centro = prova.centro();
    c.fineCurva = prova.fineCurva();
    c.inizioCurva = inizioCurva(prova.R, prova.semi, prova.raggio);
    c.fineSvasatura = std::max(c.inizioCurva, -c.angolo.y);
    const double apertura = c.semiCurva - c.semi;
    if (apertura > 0) {
        // No point of the flare comes nearer to the corner than the foot of the width.
        const double lato = std::max(0.0, c.semi - c.angolo.x);
        const double distante = std::sqrt(std::max(0.0, c.larghezza * c.larghezza - lato * lato));
        c.fineSvasatura = std::max(c.fineSvasatura, distante - c.angolo.y);
    }
    const double piede = -c.piede.y;
    const double voluta = piede + richiesta.svasatura;
    const double ripida = c.fineSvasatura + ripidezza * apertura;
    c.inizioSvasatura = std::max(ripida, std::min(voluta, std::max(richiesta.profondita, ripida)));
    const bool anticipata = apertura > 0 && ripida > voluta;
    c.svasatura = apertura > 0 ? c.inizioSvasatura - piede : std::min(voluta, c.inizioSvasatura) - piede;
    if (!anticipata && voluta <= c.inizioSvasatura) {
        c.svasatura = richiesta.svasatura;
    }
    return c;
}

}  // namespace

double Ciglio::profondita() const {
    return std::max({inizioSvasatura, fineSvasatura, -piede.y + svasatura});
}

double raggioTeste(double R, const Ipotesi& ipotesi) {
    return R + ipotesi.arretramentoIsola;
}

double semitesta(double R, const Ipotesi& ipotesi) {
    return std::min(ipotesi.semitestaMinima, ipotesi.semitestaSuRaggio * R);
}

Ciglio ciglioIngresso(const RichiestaCiglio& richiesta, const Ipotesi& ipotesi) {
    const double semi = std::min(richiesta.semi, ipotesi.semilarghezzaSuCorda * corda(richiesta));
    const double R = richiesta.R;
    // The largest radius whose curve starts within the leg.
    const double dentro = (richiesta.profondita * richiesta.profondita / (R - semi) - R - semi) / 2;
    const double massimo = std::max(ipotesi.raggioMinimo, std::min(richiesta.raggio, dentro));
    const auto inSettore = [&](const Prova& prova) {
        return ipotesi.piedeSuSettore * richiesta.settore - azimut(prova.piede());
    };
    Prova prova = conRaggio(richiesta, semi, massimo, ipotesi);
    if (inSettore(prova) < 0) {
        const double raggio = bisezione(ipotesi.raggioMinimo, massimo, [&](double provato) {
            return inSettore(conRaggio(richiesta, semi, provato, ipotesi));
        });
        prova = conRaggio(richiesta, semi, raggio, ipotesi);
    }
    return finito(prova, richiesta, semi, ipotesi.svasaturaRipida);
}

Ciglio ciglioUscita(const RichiestaCiglio& richiesta, double testa, const Ipotesi& ipotesi) {
    const double semi = std::min(richiesta.semi, ipotesi.semilarghezzaSuCorda * corda(richiesta));
    const double massima = std::max(semi, ipotesi.larghezzaSuCorda * corda(richiesta));
    const double R = richiesta.R;
    const double dentro = (richiesta.profondita * richiesta.profondita / (R - semi) - R - semi) / 2;
    const auto prova = [&](double mezza, double mezzaTesta) {
        // The largest radius whose curve ends within the sector.
        const double settore = (corda(richiesta) - mezza) / (1 - std::sin(richiesta.settore));
        const double raggio = std::max(ipotesi.raggioMinimo * 0.1, std::min({richiesta.raggio, settore, dentro}));
        return Prova{.R = R, .teste = raggioTeste(R, ipotesi), .semi = mezza, .raggio = raggio, .testa = mezzaTesta};
    };
    if (prova(semi, testa).larghezza() >= richiesta.larghezza) {
        return finito(prova(semi, testa), richiesta, semi, ipotesi.svasaturaUscitaRipida);
    }
    const double larga =
        bisezione(semi, massima, [&](double mezza) { return richiesta.larghezza - prova(mezza, testa).larghezza(); });
    Prova trovata = prova(larga, testa);
    if (trovata.larghezza() < richiesta.larghezza - 1e-6) {
        const double minimaTesta = semitesta(R, ipotesi);
        trovata.testa = testaPerLarghezza(trovata, minimaTesta, std::max(testa, minimaTesta), richiesta.larghezza);
    }
    return finito(trovata, richiesta, semi, ipotesi.svasaturaUscitaRipida);
}

Tracciato tracciatoCiglio(const Ciglio& c, double fine) {
    Tracciato via{{{c.semi, -fine}, 0}};
    const double apertura = c.semiCurva - c.semi;
    constexpr double nulla = 1e-6;
    if (apertura > nulla) {
        // Two arcs that turn against each other, from one parallel of the axis to another.
        const double lunga = c.inizioSvasatura - c.fineSvasatura;
        const double mezzo = bombaturaDi(2 * std::atan2(apertura, lunga));
        accoda(via, {{{c.semi, -c.inizioSvasatura}, -mezzo},
                     {{(c.semi + c.semiCurva) / 2, -(c.inizioSvasatura + c.fineSvasatura) / 2}, mezzo},
                     {{c.semiCurva, -c.fineSvasatura}, 0}});
    }
    const double gira = pi / 2 - c.fineCurva;
    if (c.fineSvasatura > c.inizioCurva + nulla || apertura <= nulla) {
        accoda(via, {{{c.semiCurva, -c.inizioCurva}, 0}});
    }
    via.back().bombatura = -bombaturaDi(gira);
    via.push_back({{c.R * std::sin(c.fineCurva), -c.R * std::cos(c.fineCurva)}, 0});
    return via;
}

}  // namespace kelvo::pianta
