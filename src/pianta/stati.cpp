#include <algorithm>
#include <cmath>

#include "base/guasto.h"
#include "base/numeri.h"
#include "pianta/costruzione.h"

namespace kelvo::pianta {

namespace {

constexpr double larghezzaVeicolo = 1.9;
constexpr double quotaCorsia = 0.62;   ///< part of the approach half-width that a vehicle takes at most
constexpr double spazioVeicoli = 1.2;  ///< half of it before a vehicle, half behind it
constexpr double primaDelBordo = 3.0;  ///< length of leg that the sign of a cut queue takes

/// The middle of an entry lane in the plan, from the give-way line back to the end of its leg, by lengths along it.
class Corsia {
public:
    Corsia(const Pianta& pianta, std::size_t i) {
        const RamoDisegnato& ramo = pianta.rami[i];
        const Ciglio& lato = ramo.ingresso;
        const Punto bocca = (lato.angolo + lato.piede) * 0.5;
        const Punto verso = aSinistra(versore(lato.piede - lato.angolo));
        const double fine = pianta.lunghezzaRami;
        const Punto partenza{lato.semi / 2, -std::min(fine, std::max(lato.inizioCurva, -bocca.y + 2.0))};
        Tracciato via{{{lato.semi / 2, -fine}, 0}};
        accoda(via, raccordo(partenza, {0, 1}, bocca, verso));
        // Straight on from the middle of the entry width to the circle.
        const double proietta = -scalare(bocca, verso);
        const double manca = pianta.R * pianta.R - scalare(bocca, bocca) + proietta * proietta;
        const double lungo = proietta - std::sqrt(std::max(0.0, manca));
        if (lungo > 0) {
            accoda(via, {{bocca + verso * lungo, 0}});
        }
        for (const Vertice& v : inverso(ruotato(via, ramo.direzione))) {
            if (!punti_.empty()) {
                lunghezza_ += norma(v.p - punti_.back());
            }
            punti_.push_back(v.p);
            quote_.push_back(lunghezza_);
        }
    }

    double lunghezza() const { return lunghezza_; }

    /// At a distance from the give-way line, moved to the left of the way back by `fianco`.
    Punto punto(double distanza, double fianco) const {
        const auto oltre = std::upper_bound(quote_.begin() + 1, quote_.end() - 1, distanza);
        const auto b = static_cast<std::size_t>(oltre - quote_.begin());
        const Punto verso = versore(punti_[b] - punti_[b - 1]);
        return punti_[b - 1] + verso * (distanza - quote_[b - 1]) + aSinistra(verso) * fianco;
    }

    /// The first point, where the vehicles enter.
    Punto inizio() const { return punti_.front(); }

private:
    std::vector<Punto> punti_;
    std::vector<double> quote_;  ///< distance of each point from the first one
    double lunghezza_ = 0.0;
};

Tracciato quadro(const Corsia& corsia, double da, double a, double mezzo) {
    return {{corsia.punto(da, mezzo), 0},
            {corsia.punto(a, mezzo), 0},
            {corsia.punto(a, -mezzo), 0},
            {corsia.punto(da, -mezzo), 0}};
}

/// Vehicles one behind the other; the queue ends where its length says, within a vehicle too.
void disegnaVeicoli(Pianta& pianta, std::size_t i, const Corsia& corsia, double lunga) {
    const double mezzo = std::min(larghezzaVeicolo, quotaCorsia * pianta.rami[i].ingresso.semi) / 2;
    const auto inizio = [](int veicolo) { return spazioVeicoli / 2 + veicolo * metriPerVeicolo; };
    for (int veicolo = 0; inizio(veicolo) < lunga; ++veicolo) {
        const double da = inizio(veicolo);
        const double a = std::min(da + metriPerVeicolo - spazioVeicoli, lunga);
        pianta.aree.push_back({.ruolo = Ruolo::coda,
                               .ramo = static_cast<int>(i) + 1,
                               .nome = conLettera("coda", i),
                               .contorno = quadro(corsia, da, a, mezzo)});
    }
}

/// Two strokes across the lane at its end.
void disegnaTaglio(Pianta& pianta, std::size_t i, const Corsia& corsia) {
    const double mezzo = 0.5 * pianta.rami[i].ingresso.semi;
    constexpr double obliquo = 0.8;
    for (const double da : {2.4, 1.2}) {
        const double dove = corsia.lunghezza() - da;
        pianta.linee.push_back(
            {.ruolo = Ruolo::taglioCoda,
             .ramo = static_cast<int>(i) + 1,
             .nome = conLettera("taglioCoda", i),
             .tracciato = {{corsia.punto(dove + obliquo, mezzo), 0}, {corsia.punto(dove - obliquo, -mezzo), 0}}});
    }
}

/// Beside the end of a leg, outside its entry.
Testo postoOltre(const Pianta& pianta, std::size_t i) {
    const RamoDisegnato& ramo = pianta.rami[i];
    const double h = 0.9 * pianta.altezzaTesto;
    constexpr double quasiDritto = 0.35;
    const Punto lato = ruotato(Punto{1, 0}, ramo.direzione);
    const Allineamento allineamento = lato.x > quasiDritto    ? Allineamento::sinistra
                                      : lato.x < -quasiDritto ? Allineamento::destra
                                                              : Allineamento::centro;
    const double distacco = (allineamento == Allineamento::centro ? 0.9 : 0.5) * h;
    return {.ruolo = Ruolo::oltreCoda,
            .ramo = static_cast<int>(i) + 1,
            .punto = ruotato(Punto{ramo.ingresso.semi + distacco, -pianta.lunghezzaRami + 0.8 * h}, ramo.direzione),
            .altezza = h,
            .allineamento = allineamento};
}

void disegnaCoda(Pianta& pianta, std::size_t i, const Corsia& corsia, double veicoli) {
    const double lunga = std::isfinite(veicoli) ? std::max(0.0, veicoli) * metriPerVeicolo : 0.0;
    if (lunga <= corsia.lunghezza()) {
        disegnaVeicoli(pianta, i, corsia, lunga);
        return;
    }
    const double intera = std::floor((corsia.lunghezza() - primaDelBordo) / metriPerVeicolo);
    disegnaVeicoli(pianta, i, corsia, std::max(0.0, intera) * metriPerVeicolo);
    disegnaTaglio(pianta, i, corsia);
    Testo oltre = postoOltre(pianta, i);
    oltre.testo = "+" + formatta(veicoli - std::max(0.0, intera), "#0.0") + " veic";
    pianta.testi.push_back(oltre);
}

/// The level stands in the ring, where the vehicles of the entry come in.
void scriviLivello(Pianta& pianta, std::size_t i, const Corsia& corsia, const std::string& livello) {
    const Punto dove = versore(corsia.inizio()) * (pianta.R - pianta.anello / 2);
    pianta.testi.push_back({.ruolo = Ruolo::livello,
                            .ramo = static_cast<int>(i) + 1,
                            .testo = livello,
                            .punto = dove,
                            .altezza = pianta.altezzaTesto});
}

}  // namespace

void comprendiStati(Costruzione& opera) {
    Pianta& pianta = opera.pianta;
    for (std::size_t i = 0; i < opera.numero(); ++i) {
        const Testo testo = postoOltre(pianta, i);
        const double larga = larghezzaStimata("+999,9 veic", testo.altezza);
        const double parte = testo.allineamento == Allineamento::sinistra ? 0.0
                             : testo.allineamento == Allineamento::destra ? 1.0
                                                                          : 0.5;
        Riquadro& vista = pianta.vista;
        vista.minimo.x = std::min(vista.minimo.x, testo.punto.x - parte * larga);
        vista.massimo.x = std::max(vista.massimo.x, testo.punto.x + (1 - parte) * larga);
    }
}

void mostraStati(Pianta& pianta, const std::vector<StatoIngresso>& stati) {
    if (stati.size() != pianta.rami.size()) {
        throw Guasto(NumeroGuasto::indiceFuoriIntervallo, "stati della pianta");
    }
    std::erase_if(pianta.aree, [](const Area& a) { return a.ruolo == Ruolo::coda; });
    std::erase_if(pianta.linee, [](const Linea& l) { return l.ruolo == Ruolo::taglioCoda; });
    std::erase_if(pianta.testi,
                  [](const Testo& t) { return t.ruolo == Ruolo::livello || t.ruolo == Ruolo::oltreCoda; });
    pianta.stati = stati;
    for (std::size_t i = 0; i < stati.size(); ++i) {
        const Corsia corsia(pianta, i);
        disegnaCoda(pianta, i, corsia, stati[i].coda);
        scriviLivello(pianta, i, corsia, stati[i].livello);
    }
}

}  // namespace kelvo::pianta
