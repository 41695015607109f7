#include <algorithm>
#include <cmath>

#include "pianta/costruzione.h"

namespace kelvo::pianta {

namespace {

/// Right edge of the splitter island, from its nose to its corner: an arc that starts along the axis, flatter where it
/// would come near to the head of the island.
Tracciato bordoIsola(Punto naso, Punto angolo, const Ipotesi& ipotesi) {
    const double scarto = std::atan2(angolo.x - naso.x, angolo.y - naso.y);
    const double libero = pi / 2 - radianti(ipotesi.angoloTesta) - azimut(angolo);
    const double gira = std::clamp(2 * (libero - scarto), 0.0, 2 * scarto);
    return {{naso, -bombaturaDi(gira)}, {angolo, 0}};
}

/// Half-width of the nose of an island.
double seminaso(double R, const Ipotesi& ipotesi) {
    return std::min(ipotesi.seminaso, semitesta(R, ipotesi) / 2);
}

/// Lane of one side, right of the axis: axis, island, circle, kerb.
Tracciato corsia(const Ciglio& ciglio, const Tracciato& via, double naso, double fine, const Ipotesi& ipotesi) {
    const double mezzo = seminaso(ciglio.R, ipotesi);
    const double fondo = via.front().p.y;
    Tracciato area{{{0, fondo}, 0}, {{0, -naso}, 0}};
    accoda(area, bordoIsola({mezzo, -naso}, ciglio.angolo, ipotesi));
    const double inizio = azimut(ciglio.angolo);
    accoda(area, {{sulCerchio(ciglio.R, inizio), bombaturaDi(fine - inizio)}, {sulCerchio(ciglio.R, fine), 0}});
    if (const auto dove = incontro(via, fine)) {
        accoda(area, inverso(pianta::fino(via, *dove)));
    }
    return area;
}

Tracciato isola(const RamoDisegnato& ramo, const Ipotesi& ipotesi) {
    const Punto naso{seminaso(ramo.ingresso.R, ipotesi), -ramo.naso};
    const Punto destra = ramo.ingresso.angolo;
    const Punto sinistra{-ramo.uscita.angolo.x, ramo.uscita.angolo.y};
    Tracciato contorno = bordoIsola(naso, destra, ipotesi);
    contorno.back().bombatura = bombaturaDi(azimut(sinistra) - azimut(destra));
    accoda(contorno, inverso(specchiato(bordoIsola(naso, ramo.uscita.angolo, ipotesi))));
    return contorno;
}

/// Kerb from the entry of leg i to the exit of the next one, in the plan: both curves and the circle between them, or,
/// where the legs stand so close that the curves cross, each up to there.
Tracciato cordolo(const Costruzione& opera, std::size_t i) {
    const std::size_t j = (i + 1) % opera.numero();
    const double distacco = opera.distacco(i);
    Tracciato primo = opera.ciglioIngresso(i);
    Tracciato secondo = opera.ciglioUscita(j);
    const double finePrimo = opera.pianta.rami[i].ingresso.fineCurva;
    const double fineSecondo = opera.pianta.rami[j].uscita.fineCurva;
    const double arco = distacco - finePrimo - fineSecondo;
    if (arco < 0) {
        const auto raggio = [](const Tracciato& via, double angolo) {
            const auto dove = incontro(via, angolo);
            return dove ? norma(puntoIn(via, *dove)) : HUGE_VAL;
        };
        const double dove = bisezione(distacco - fineSecondo, finePrimo, [&](double angolo) {
            return raggio(primo, angolo) - raggio(secondo, distacco - angolo);
        });
        const auto taglioPrimo = incontro(primo, dove);
        const auto taglioSecondo = incontro(secondo, distacco - dove);
        primo = taglioPrimo ? fino(primo, *taglioPrimo) : primo;
        secondo = taglioSecondo ? fino(secondo, *taglioSecondo) : secondo;
    }
    Tracciato via = ruotato(primo, opera.angolo(i));
    if (arco > 0) {
        via.back().bombatura = bombaturaDi(arco);
        via.push_back({});
    }
    const Tracciato ritorno = ruotato(inverso(specchiato(secondo)), opera.angolo(i) + distacco);
    via.pop_back();
    via.insert(via.end(), ritorno.begin(), ritorno.end());
    return via;
}

}  // namespace

void aggiungiCarreggiata(Costruzione& opera) {
    Pianta& pianta = opera.pianta;
    const Punto centro{};
    Area tutta{.ruolo = Ruolo::carreggiata, .nome = "carreggiata"};
    for (std::size_t i = 0; i < opera.numero(); ++i) {
        const Tracciato via = cordolo(opera, i);
        const auto prossimo = (i + 1) % opera.numero();
        tutta.contorno.insert(tutta.contorno.end(), via.begin(), via.end());
        pianta.linee.push_back({.ruolo = Ruolo::cordolo,
                                .ramo = static_cast<int>(i) + 1,
                                .nome = conLettera("cordolo", i) + "-" + lettera(static_cast<int>(prossimo) + 1),
                                .tracciato = via});
    }
    pianta.aree.push_back(tutta);
    pianta.aree.push_back({.ruolo = Ruolo::anello,
                           .nome = "anello",
                           .contorno = circonferenza(centro, pianta.R),
                           .foro = circonferenza(centro, opera.raggioCorona())});
    pianta.aree.push_back({.ruolo = Ruolo::corona,
                           .nome = "corona",
                           .contorno = circonferenza(centro, opera.raggioCorona()),
                           .foro = circonferenza(centro, opera.raggioIsola())});
    pianta.aree.push_back(
        {.ruolo = Ruolo::isola, .nome = "isola", .contorno = circonferenza(centro, opera.raggioIsola())});
    pianta.linee.push_back({.ruolo = Ruolo::cerchioInscritto,
                            .nome = "cerchioInscritto",
                            .tracciato = circonferenza(centro, pianta.R),
                            .chiusa = true,
                            .evidenziata = opera.opzioni.misura == Misura::diametro});
    for (std::size_t i = 0; i < opera.numero(); ++i) {
        const RamoDisegnato& ramo = pianta.rami[i];
        opera.area(Ruolo::ingresso, i, conLettera("ingresso", i),
                   corsia(ramo.ingresso, opera.ciglioIngresso(i), ramo.naso, ramo.fineIngresso, opera.ipotesi()));
        opera.area(Ruolo::uscita, i, conLettera("uscita", i),
                   specchiato(corsia(ramo.uscita, opera.ciglioUscita(i), ramo.naso, ramo.fineUscita, opera.ipotesi())));
        opera.area(Ruolo::isolaDivisionale, i, conLettera("isolaDivisionale", i), isola(ramo, opera.ipotesi()));
    }
}

}  // namespace kelvo::pianta
