#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/numeri.h"
#include "pianta/costruzione.h"

namespace kelvo::pianta {

namespace {

/// A dimension in the frame of its leg, and what its leader asks for.
struct Bozza {
    Quota quota{};
    Punto presa;        ///< where the leader starts
    Punto verso{1, 0};  ///< where it goes
    double giu = 0.0;   ///< how far it goes down towards the column of a close-up, in sizes of the type
};

Estremo estremo(Punto punto, Punto altro) {
    return {.punto = punto, .verso = versore(punto - altro)};
}

/// Where the column of the texts of a close-up begins: there is room for the longest name.
double colonna(const Costruzione& opera) {
    const double h = opera.pianta.altezzaTesto;
    return opera.pianta.vista.massimo.x - larghezzaStimata(vociMisure[4].nome, h) - 0.5 * h;
}

/// A straight dimension between two points.
void traDue(Bozza& bozza, Punto da, Punto a) {
    bozza.quota.linee.push_back({{da, 0}, {a, 0}});
    bozza.quota.estremi = {estremo(da, a), estremo(a, da)};
    bozza.quota.misurata = norma(a - da);
}

class Quotatore {
public:
    Quotatore(const Costruzione& opera, std::size_t i)
        : opera_(opera), ramo_(opera.pianta.rami[i]), via_(opera.ciglioIngresso(i)), h_(opera.pianta.altezzaTesto) {}

    Bozza larghezza() const {
        const Ciglio& c = ramo_.ingresso;
        Bozza b{.presa = c.piede, .verso = versore(c.piede - c.angolo), .giu = 2.2};
        traDue(b, c.angolo, c.piede);
        return b;
    }

    Bozza semilarghezza() const {
        const double y = -semilarghezzaProfondita();
        Bozza b{.presa = {ramo_.ingresso.semi, y}};
        traDue(b, {0, y}, {ramo_.ingresso.semi, y});
        return b;
    }

    Bozza svasatura() const {
        const Ciglio& c = ramo_.ingresso;
        const double x = c.piede.x + 2.2 * h_;
        const double fondo = c.piede.y - c.svasatura;
        Bozza b{.presa = {x, (c.piede.y + fondo) / 2}};
        traDue(b, {x, c.piede.y}, {x, fondo});
        const double avanza = 0.5 * h_;
        b.quota.riferimenti.push_back({{c.piede, 0}, {{x + avanza, c.piede.y}, 0}});
        b.quota.riferimenti.push_back({{{ascissa(via_, fondo).value_or(c.semi), fondo}, 0}, {{x + avanza, fondo}, 0}});
        return b;
    }

    /// The angle between the path of an entering vehicle and the middle of the ring, where they meet.
    Bozza angolo(double phi) const {
        const double R = opera_.pianta.R;
        const double raggio = R - opera_.pianta.anello / 2;
        const Tracciato entra = mezzeria(ramo_.ingresso, ramo_.naso, raggio, phi);
        const Punto vertice = entra.back().p;
        const double dove = azimut(vertice);
        const Punto anello{std::cos(dove), std::sin(dove)};
        const Punto ingresso = ruotato(anello, phi);
        const double lungo = 0.75 * opera_.pianta.anello;
        const double arco = 0.62 * lungo;
        Bozza b{.presa = vertice + ruotato(anello, phi / 2) * arco, .verso = {0.9, -0.44}, .giu = 5.0};
        b.quota.linee = {entra,
                         {{vertice, 0}, {vertice + ingresso * lungo, 0}},
                         {{vertice - anello * (0.35 * lungo), 0}, {vertice + anello * lungo, 0}}};
        b.quota.linee.push_back({{vertice + anello * arco, bombaturaDi(phi)}, {vertice + ingresso * arco, 0}});
        b.quota.estremi = {{.punto = vertice + ingresso * lungo, .verso = ingresso, .trattino = false},
                           {.punto = vertice + anello * lungo, .verso = anello, .trattino = false}};
        b.quota.misurata = gradi(phi);
        return b;
    }

    /// From the middle of the entry curve towards its centre.
    Bozza raggio() const {
        const Ciglio& c = ramo_.ingresso;
        const double mezzo = pi - (pi / 2 - c.fineCurva) * 0.45;
        const Punto sulla = c.centro + polare(c.raggio, mezzo);
        const Punto verso = versore(c.centro - sulla);
        const bool primoPiano = opera_.opzioni.vista == Vista::primoPiano;
        const double posto =
            primoPiano ? std::max(2.0 * h_, (colonna(opera_) - 2.0 * h_ - sulla.x) / verso.x) : 7.0 * h_;
        const double lungo = std::min(c.raggio, posto);
        const Punto fine = sulla + verso * lungo;
        Bozza b{.presa = fine};
        b.quota.linee.push_back({{sulla, 0}, {fine, 0}});
        b.quota.estremi = {{.punto = sulla, .verso = versore(sulla - c.centro), .trattino = false}};
        if (lungo == c.raggio) {
            b.quota.estremi.push_back({.punto = fine, .verso = versore(fine - sulla), .freccia = false});
        }
        b.quota.misurata = c.raggio;
        return b;
    }

    Bozza diametro(double mezzoSettore) const {
        const double R = opera_.pianta.R;
        const Punto fine = sulCerchio(R, mezzoSettore);
        Bozza b{.presa = fine, .verso = versore(fine), .giu = 1.5};
        traDue(b, sulCerchio(R, mezzoSettore + pi), fine);
        return b;
    }

private:
    double semilarghezzaProfondita() const {
        const bool primoPiano = opera_.opzioni.vista == Vista::primoPiano;
        return primoPiano ? -opera_.pianta.vista.minimo.y - 3.8 * h_ : opera_.pianta.lunghezzaRami - 1.2 * h_;
    }

    const Costruzione& opera_;
    const RamoDisegnato& ramo_;
    Tracciato via_;
    double h_;
};

Bozza bozza(const Costruzione& opera, std::size_t i, Misura misura) {
    const Quotatore quotatore(opera, i);
    switch (misura) {
        case Misura::larghezzaIngresso:
            return quotatore.larghezza();
        case Misura::semiLarghezza:
            return quotatore.semilarghezza();
        case Misura::lunghezzaSvasatura:
            return quotatore.svasatura();
        case Misura::angoloConflitto:
            return quotatore.angolo(radianti(disegnabile(opera.dati.rami[i], Misura::angoloConflitto)));
        case Misura::raggioIngresso:
            return quotatore.raggio();
        case Misura::diametro:
            break;
    }
    return quotatore.diametro(opera.distacco(i) / 2);
}

/// Height that the text of a dimension takes in a column.
double ingombro(const Quota& quota, double h) {
    return (quota.evidenziata ? 3.1 : 1.7) * h;
}

/// Leaders and texts of a close-up: in one column on the right, from the top down, none over another.
void incolonna(const Costruzione& opera, std::vector<Bozza>& bozze) {
    const Pianta& pianta = opera.pianta;
    const double h = pianta.altezzaTesto;
    const auto altezza = [&](const Bozza& b) { return b.presa.y - b.giu * h; };
    std::stable_sort(bozze.begin(), bozze.end(),
                     [&](const Bozza& a, const Bozza& b) { return altezza(a) > altezza(b); });
    double tutte = 0.6 * h;
    for (const Bozza& b : bozze) {
        tutte += ingombro(b.quota, h);
    }
    double y = pianta.vista.massimo.y - h;
    double sotto = pianta.vista.minimo.y + tutte;
    for (Bozza& b : bozze) {
        y = std::min(y, std::max(altezza(b), sotto));
        sotto -= ingombro(b.quota, h);
        const double x = std::max(colonna(opera), b.presa.x + 1.5 * h);
        b.quota.richiamo = {{b.presa, 0}, {{x - 1.2 * h, y}, 0}, {{x - 0.4 * h, y}, 0}};
        b.quota.testo = {x, y};
        b.quota.allineamento = Allineamento::sinistra;
        y -= ingombro(b.quota, h);
    }
}

/// Leader and text beside the dimension, on the side that it looks to.
void accosta(Bozza& b, double h) {
    const double segno = b.verso.x >= -1e-9 ? 1 : -1;
    const Punto gomito = b.presa + b.verso * (2.5 * h);
    b.quota.richiamo = {{b.presa, 0}, {gomito, 0}, {gomito + Punto{segno * 0.8 * h, 0}, 0}};
    b.quota.testo = b.quota.richiamo.back().p + Punto{segno * 0.4 * h, 0};
    b.quota.allineamento = segno > 0 ? Allineamento::sinistra : Allineamento::destra;
}

std::string valore(double misura, Misura quale) {
    if (!std::isfinite(misura)) {
        return {};
    }
    const std::string_view unita = vociMisure[static_cast<std::size_t>(quale)].unita;
    return formatta(misura, "#0.00") + (quale == Misura::angoloConflitto ? "" : " ") + std::string(unita);
}

/// From the leg's frame into the plan.
void porta(Bozza& b, double angolo) {
    for (Tracciato& via : b.quota.linee) {
        via = ruotato(via, angolo);
    }
    for (Tracciato& via : b.quota.riferimenti) {
        via = ruotato(via, angolo);
    }
    for (Estremo& e : b.quota.estremi) {
        e.punto = ruotato(e.punto, angolo);
        e.verso = ruotato(e.verso, angolo);
    }
    b.presa = ruotato(b.presa, angolo);
    b.verso = ruotato(b.verso, angolo);
}

}  // namespace

void aggiungiQuote(Costruzione& opera) {
    if (opera.opzioni.ramo == 0) {
        return;
    }
    const auto i = static_cast<std::size_t>(opera.opzioni.ramo) - 1;
    const double h = opera.pianta.altezzaTesto;
    std::vector<Bozza> bozze;
    for (std::size_t m = 0; m < numeroMisure; ++m) {
        const auto misura = static_cast<Misura>(m);
        const bool evidenziata = opera.opzioni.misura == misura;
        // Beside the measure at hand a close-up keeps the two widths, which the others start from.
        const bool secondaria = opera.opzioni.vista == Vista::primoPiano &&
                                (misura == Misura::larghezzaIngresso || misura == Misura::semiLarghezza) &&
                                opera.opzioni.misura != Misura::diametro;
        if (!evidenziata && !secondaria) {
            continue;
        }
        Bozza b = bozza(opera, i, misura);
        b.quota.misura = misura;
        b.quota.ramo = opera.opzioni.ramo;
        b.quota.evidenziata = evidenziata;
        b.quota.inScala = opera.pianta.rami[i].inScala[m];
        b.quota.nome = vociMisure[m].nome;
        b.quota.valore = valore(opera.dati.rami[i].misura(misura), misura);
        b.quota.altezza = h;
        if (!b.quota.inScala) {
            b.quota.valore += " (non in scala)";
        }
        porta(b, opera.angolo(i));
        accosta(b, h);
        bozze.push_back(b);
    }
    if (opera.opzioni.vista == Vista::primoPiano) {
        incolonna(opera, bozze);
    }
    for (Bozza& b : bozze) {
        opera.pianta.quote.push_back(std::move(b.quota));
    }
}

}  // namespace kelvo::pianta
