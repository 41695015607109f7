#include <algorithm>
#include <cmath>

#include "pianta/costruzione.h"

namespace kelvo::pianta {

namespace {

/// An arrow that points up the y axis, its tip at `punta`.
Tracciato freccia(Punto punta, double lunga, double larga) {
    const double testa = std::min(0.9 * larga, 0.5 * lunga);
    const double gambo = 0.3 * larga;
    const auto v = [&](double x, double y) { return Vertice{{punta.x + x, punta.y + y}, 0}; };
    return {v(0, 0),
            v(-larga / 2, -testa),
            v(-gambo / 2, -testa),
            v(-gambo / 2, -lunga),
            v(gambo / 2, -lunga),
            v(gambo / 2, -testa),
            v(larga / 2, -testa)};
}

Tracciato inGiu(Tracciato via, double mezza) {
    for (Vertice& v : via) {
        v.p = {v.p.x, 2 * mezza - v.p.y};
        v.bombatura = -v.bombatura;
    }
    return via;
}

void precedenza(Costruzione& opera, std::size_t i) {
    const RamoDisegnato& ramo = opera.pianta.rami[i];
    const double R = opera.pianta.R;
    const double inizio = azimut(ramo.ingresso.angolo);
    const double fine = ramo.fineIngresso;
    opera.pianta.linee.push_back(
        {.ruolo = Ruolo::lineaDarePrecedenza,
         .ramo = static_cast<int>(i) + 1,
         .nome = conLettera("lineaDarePrecedenza", i),
         .tracciato = ruotato({{sulCerchio(R, inizio), bombaturaDi(fine - inizio)}, {sulCerchio(R, fine), 0}},
                              opera.angolo(i))});
    const double cuneo = std::min(opera.ipotesi().cuneoPrecedenza, opera.ipotesi().cuneoSuRaggio * R);
    const double misura = cuneo / opera.ipotesi().cuneoPrecedenza;
    const double passo = opera.ipotesi().passoDenti * misura / R;
    const int denti = static_cast<int>((fine - inizio) / passo);
    const double resto = (fine - inizio - denti * passo) / 2;
    for (int k = 0; k < denti; ++k) {
        const double mezzo = inizio + resto + (k + 0.5) * passo;
        constexpr double base = 0.34;
        opera.area(Ruolo::dentiPrecedenza, i, conLettera("dentiPrecedenza", i),
                   {{sulCerchio(R, mezzo - base * passo), 0},
                    {sulCerchio(R + 0.62 * cuneo, mezzo), 0},
                    {sulCerchio(R, mezzo + base * passo), 0}});
    }
}

/// Half-width of the island at a depth, on the right side.
double bordo(const RamoDisegnato& ramo, const Ciglio& lato, double profondita) {
    const double testa = -lato.angolo.y;
    if (profondita >= ramo.naso) {
        return 0;
    }
    const double quota = std::clamp((ramo.naso - profondita) / (ramo.naso - testa), 0.0, 1.0);
    return lato.angolo.x * quota;  // never less than the arc of its edge
}

/// Stripes between the island and the kerb of one side.
void attraversamento(Costruzione& opera, std::size_t i, bool ingresso) {
    const Ipotesi& ipotesi = opera.ipotesi();
    const RamoDisegnato& ramo = opera.pianta.rami[i];
    const Ciglio& lato = ingresso ? ramo.ingresso : ramo.uscita;
    const Tracciato via = ingresso ? opera.ciglioIngresso(i) : opera.ciglioUscita(i);
    const double vicino = opera.pianta.R + ipotesi.attraversamentoDa;
    const double lontano = vicino + ipotesi.attraversamento;
    const double settore = opera.distacco(ingresso ? i : (i + opera.numero() - 1) % opera.numero()) / 2;
    const auto ciglioVicino = ascissa(via, -vicino);
    const auto ciglioLontano = ascissa(via, -lontano);
    if (!ciglioVicino || !ciglioLontano) {
        return;
    }
    const double striscia = ipotesi.strisciaAttraversamento;
    const double sinistra = bordo(ramo, lato, vicino) + striscia / 2;
    const double destra = std::min({*ciglioVicino, *ciglioLontano, vicino * std::tan(0.95 * settore)}) - striscia / 2;
    const int quante = static_cast<int>((destra - sinistra + striscia) / (2 * striscia));
    const double prima = (sinistra + destra) / 2 - (quante - 0.5) * striscia;
    for (int k = 0; k < quante; ++k) {
        const double x = prima + k * 2 * striscia;
        const Tracciato rettangolo{
            {{x, -lontano}, 0}, {{x + striscia, -lontano}, 0}, {{x + striscia, -vicino}, 0}, {{x, -vicino}, 0}};
        opera.area(Ruolo::attraversamento, i, conLettera("attraversamento", i),
                   ingresso ? rettangolo : specchiato(rettangolo));
    }
}

void frecceCorsie(Costruzione& opera, std::size_t i) {
    const RamoDisegnato& ramo = opera.pianta.rami[i];
    const double k = opera.grandezza();
    const double inizio = ramo.naso + 1.6 * k;
    const double lunga = std::min(5.4 * k, opera.pianta.lunghezzaRami - inizio - 1.0);
    const double larga = std::min(1.65 * k, 0.45 * ramo.ingresso.semi);
    const double mezza = ramo.ingresso.semi / 2;
    opera.area(Ruolo::freccia, i, conLettera("freccia ingresso", i), freccia({mezza, -inizio}, lunga, larga));
    opera.area(
        Ruolo::freccia, i, conLettera("freccia uscita", i),
        inGiu(freccia({-ramo.uscita.semi / 2, -inizio - 0.15 * lunga}, lunga * 0.95, larga), -inizio - 0.575 * lunga));
}

/// An arrow along the ring, counter-clockwise, between a leg and the next one.
void frecciaAnello(Costruzione& opera, std::size_t i) {
    const double k = opera.grandezza();
    const double raggio = opera.pianta.R - opera.pianta.anello / 2;
    const double larga = std::min(1.8 * k, 0.3 * opera.pianta.anello);
    const double gambo = 0.15 * larga;
    const double mezzo = opera.distacco(i) / 2;
    const double ampia = std::min(6.5 * k / raggio, 0.55 * opera.distacco(i));
    const double testa = std::min(larga / raggio, ampia / 2);
    const double da = mezzo - ampia / 2;
    const double collo = mezzo + ampia / 2 - testa;
    const double gira = collo - da;
    opera.area(Ruolo::frecciaAnello, i, conLettera("frecciaAnello", i),
               {{sulCerchio(raggio + gambo, da), bombaturaDi(gira)},
                {sulCerchio(raggio + gambo, collo), 0},
                {sulCerchio(raggio + larga / 2, collo), 0},
                {sulCerchio(raggio, collo + testa), 0},
                {sulCerchio(raggio - larga / 2, collo), 0},
                {sulCerchio(raggio - gambo, collo), -bombaturaDi(gira)},
                {sulCerchio(raggio - gambo, da), 0}});
}

void percorso(Costruzione& opera, Movimento movimento) {
    const auto n = static_cast<int>(opera.numero());
    if (movimento.da < 1 || movimento.da > n || movimento.a < 1 || movimento.a > n) {
        return;
    }
    const auto da = static_cast<std::size_t>(movimento.da - 1);
    const auto a = static_cast<std::size_t>(movimento.a - 1);
    const double raggio = opera.pianta.R - opera.pianta.anello / 2;
    const double fine = opera.fineCorsie();
    const Tracciato entra = mezzeria(opera.pianta.rami[da].ingresso, fine, raggio, 0.0);
    const Tracciato esce = mezzeria(opera.pianta.rami[a].uscita, fine, raggio, 0.0);
    double giro = opera.angolo(a) - opera.angolo(da);
    if (giro <= 0) {
        giro += 2 * pi;
    }
    const double arco = giro - azimut(entra.back().p) - azimut(esce.back().p);
    Tracciato via = ruotato(entra, opera.angolo(da));
    if (arco > 0) {
        via.back().bombatura = bombaturaDi(std::min(arco, 1.9 * pi));
    }
    accoda(via, ruotato(inverso(specchiato(esce)), opera.angolo(a)));
    opera.pianta.linee.push_back({.ruolo = Ruolo::percorso,
                                  .ramo = movimento.da,
                                  .nome = conLettera("percorso", da) + "-" + lettera(movimento.a),
                                  .tracciato = via,
                                  .evidenziata = true});
}

}  // namespace

Tracciato raccordo(Punto da, Punto partenza, Punto a, Punto arrivo) {
    const double leva = 0.4 * norma(a - da);
    const Punto c1 = da + partenza * leva;
    const Punto c2 = a - arrivo * leva;
    Tracciato via;
    for (std::size_t k = 0; k <= passiRaccordo; ++k) {
        const double t = static_cast<double>(k) / static_cast<double>(passiRaccordo);
        const double u = 1 - t;
        via.push_back({da * (u * u * u) + c1 * (3 * u * u * t) + c2 * (3 * u * t * t) + a * (t * t * t), 0});
    }
    return via;
}

Tracciato mezzeria(const Ciglio& ciglio, double fine, double raggio, double angolo) {
    const Punto bocca = (ciglio.angolo + ciglio.piede) * 0.5;
    const Punto verso = aSinistra(versore(ciglio.piede - ciglio.angolo));
    // Straight on it would meet the circle there, under its own angle; it arrives farther along the flatter it comes
    // in.
    const double proietta = -scalare(bocca, verso);
    const double manca = raggio * raggio - scalare(bocca, bocca) + proietta * proietta;
    const double lungo = proietta - std::sqrt(std::max(0.0, manca));
    const Punto dritto = bocca + verso * lungo;
    const double dove = azimut(dritto);
    const double suo = std::atan2(vettoriale({std::cos(dove), std::sin(dove)}, verso),
                                  scalare({std::cos(dove), std::sin(dove)}, verso));
    const double arrivo = dove + 0.6 * (suo - angolo) * std::abs(lungo) / raggio;
    const Punto partenza{ciglio.semi / 2, -std::min(fine, std::max(ciglio.inizioCurva, -bocca.y + 2.0))};
    const Punto meta = sulCerchio(raggio, arrivo);
    Tracciato via{{{ciglio.semi / 2, -fine}, 0}};
    // Through the middle of the entry width, square to it.
    accoda(via, raccordo(partenza, {0, 1}, bocca, verso));
    accoda(via, raccordo(bocca, verso, meta, ruotato(Punto{std::cos(arrivo), std::sin(arrivo)}, angolo)));
    return via;
}

void aggiungiSegnaletica(Costruzione& opera) {
    for (std::size_t i = 0; i < opera.numero(); ++i) {
        const RamoDisegnato& ramo = opera.pianta.rami[i];
        precedenza(opera, i);
        opera.pianta.linee.push_back(
            {.ruolo = Ruolo::asse,
             .ramo = static_cast<int>(i) + 1,
             .nome = conLettera("asse", i),
             .tracciato = ruotato({{{0, -opera.pianta.lunghezzaRami}, 0}, {{0, -ramo.naso}, 0}}, opera.angolo(i))});
        if (opera.dati.rami[i].attraversamentoPedonale) {
            attraversamento(opera, i, true);
            attraversamento(opera, i, false);
        }
        if (!opera.conFlussi) {
            frecceCorsie(opera, i);
            frecciaAnello(opera, i);
        }
    }
    const bool conNastro = std::any_of(opera.pianta.aree.begin(), opera.pianta.aree.end(),
                                       [](const Area& a) { return a.ruolo == Ruolo::flusso && a.corrente; });
    if (opera.opzioni.movimento && !conNastro) {
        percorso(opera, *opera.opzioni.movimento);
    }
}

}  // namespace kelvo::pianta
