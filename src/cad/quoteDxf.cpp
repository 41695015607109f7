#include <fmt/format.h>

#include <algorithm>
#include <cmath>

#include "base/numeri.h"
#include "base/testo.h"
#include "cad/disegnoDxf.h"
#include "pianta/curve.h"

namespace kelvo::dxf {

namespace {

using pianta::Misura;
using pianta::Quota;
using pianta::versore;

std::string_view layerQuote() {
    return vociLayer.at(static_cast<std::size_t>(NomeLayer::quote)).layer.nome;
}

/// The dimension of a measure as the plan draws it, the leg at hand being that one and the circle that of the first.
Quota quotaDi(const pianta::DatiPianta& dati, int ramo, Misura misura) {
    const pianta::Pianta pianta =
        costruisci(dati, {.ramo = ramo, .misura = misura, .nomi = false, .lettere = false, .note = false});
    return pianta.quote.front();
}

/// A text along a line reads from the left to the right, or from below.
double leggibile(double angolo) {
    double giro = std::fmod(angolo, 180.0);
    giro += giro <= -90.0 + 1e-6 ? 180.0 : giro > 90.0 + 1e-6 ? -180.0 : 0.0;
    return giro;
}

double angoloDi(Punto verso) {
    return pianta::gradi(std::atan2(verso.y, verso.x));
}

/// A dimension of a leg in the making: what it reads, its text and its picture.
class Quotatore {
public:
    Quotatore(const Quota& quota, const pianta::DatiRamo& ramo, double altezza) : h_(altezza) {
        const auto& voce = pianta::vociMisure.at(static_cast<std::size_t>(quota.misura));
        const bool angolo = quota.misura == Misura::angoloConflitto;
        const std::string unita = (angolo ? "" : " ") + std::string{voce.unita};
        const double vera = ramo.misura(quota.misura);
        // As CAD programs begin what they measure of circles; of the others their texts begin with the symbol.
        const bool raggio = quota.misura == Misura::raggioIngresso;
        const bool cerchio = raggio || quota.misura == Misura::diametro;
        const std::string capo = cerchio ? std::string{} : fmt::format("{} = ", voce.breve);
        const std::string segno = raggio ? "R" : cerchio ? "Ø" : "";
        quota_.layer = layerQuote();
        quota_.misura = quota.misurata;
        if (quota.inScala) {
            mostrato_ = capo + segno + formatta(quota.misurata, "#0.00") + unita;
            // A CAD program shows its own degrees with their sign.
            quota_.testo = capo + "<>" + (angolo ? "" : unita);
        } else {
            mostrato_ =
                capo + segno + (std::isfinite(vera) ? formatta(vera, "#0.00") + unita : "-") + " (non in scala)";
            quota_.testo = mostrato_;
        }
    }

    /// Between two points, on the line through them; the text beyond the second one.
    Quotatura allineata(Punto da, Punto a) {
        quota_.tipo = Quotatura::Tipo::allineata;
        quota_.primo = da;
        quota_.secondo = a;
        quota_.definizione = a;
        freccia(da, da - a);
        freccia(a, a - da);
        oltre(da, a);
        return fine({da, a});
    }

    /// Along a line beside what is measured.
    Quotatura affiancata(Punto da, Punto a, Punto lineaDa, Punto lineaA, Punto fuori) {
        quota_.tipo = Quotatura::Tipo::ruotata;
        quota_.primo = da;
        quota_.secondo = a;
        quota_.definizione = lineaA;
        quota_.direzione = angoloDi(lineaA - lineaDa);
        freccia(lineaDa, lineaDa - lineaA);
        freccia(lineaA, lineaA - lineaDa);
        const Punto esce = fuori * (0.5 * h_);
        tratto(da, lineaDa + esce);
        tratto(a, lineaA + esce);
        tratto(lineaDa, lineaA);
        scritta((lineaDa + lineaA) * 0.5 + fuori * h_, angoloDi(lineaA - lineaDa));
        return fine({da, a});
    }

    /// From the curve towards its centre. Its text looks away from the roundabout, that of the width towards it: both
    /// lines lead to the centre of the curve.
    Quotatura raggio(Punto centro, Punto sulla, double vera) {
        quota_.tipo = Quotatura::Tipo::raggio;
        quota_.definizione = centro;
        quota_.primo = sulla;
        const Punto lato = versore(centro - sulla);
        freccia(sulla, sulla - centro);
        tratto(sulla, sulla + lato * std::min(vera, 2.5 * h_ + larga()));
        scritta(sulla + lato * (2 * h_ + larga() / 2) + verso(lato, sulla) * (0.9 * h_), angoloDi(lato));
        return fine({centro, sulla});
    }

    Quotatura diametro(Punto da, Punto a) {
        quota_.tipo = Quotatura::Tipo::diametro;
        quota_.definizione = da;
        quota_.primo = a;
        freccia(da, da - a);
        freccia(a, a - da);
        tratto(da, a);
        const Punto lato = versore(a - da);
        scritta((da + a) * 0.5 + sopra(lato) * (0.9 * h_), angoloDi(lato));
        return fine({da, a});
    }

    /// Between two rays from a point, the second one to the left of the first.
    /// `dentro`: radius of the inner border of the ring.
    Quotatura angolo(Punto vertice, Punto primo, Punto secondo, const Quota& quota, double dentro) {
        const Tracciato& arco = quota.linee.at(3);
        const Tracciato& percorso = quota.linee.at(0);
        quota_.tipo = Quotatura::Tipo::angolo;
        quota_.vertice = vertice;
        quota_.primo = primo;
        quota_.secondo = secondo;
        quota_.definizione = pianta::puntoSu(arco.front(), arco.back().p, 0.5);
        tratto(vertice, primo);
        tratto(vertice, secondo);
        quota_.figura.emplace_back(Polilinea{.layer = layerQuote(), .tracciato = arco});
        quota_.figura.emplace_back(Polilinea{.layer = layerQuote(), .tracciato = percorso});
        // In the ring stand its arrows: the text goes on to the central island, level.
        const Punto fuori = versore(vertice);
        const double mezzo = std::abs(fuori.x) * larga() / 2 + std::abs(fuori.y) * h_ / 2;
        const Punto orlo = fuori * (dentro - h_ / 2);
        tratto(quota_.definizione, orlo);
        scritta(orlo - fuori * (h_ / 2 + mezzo), 0.0);
        return fine({primo, secondo, vertice});
    }

private:
    double larga() const {
        constexpr double lettera = 0.85;
        return lettera * h_ * static_cast<double>(lunghezza(mostrato_));
    }
    static Punto sopra(Punto lato) {
        const double giro = pianta::radianti(leggibile(angoloDi(lato)));
        return {-std::sin(giro), std::cos(giro)};
    }
    /// The unit vector across a line that looks the way of another one.
    static Punto verso(Punto lato, Punto altro) {
        const Punto traverso = pianta::aSinistra(lato);
        return traverso * (pianta::scalare(traverso, altro) < 0 ? -1.0 : 1.0);
    }
    void tratto(Punto da, Punto a) {
        quota_.figura.emplace_back(Polilinea{.layer = layerQuote(), .tracciato = {{da, 0}, {a, 0}}});
    }
    void freccia(Punto punta, Punto fuori) {
        const Punto verso = versore(fuori);
        const Punto base = punta - verso * h_;
        const Punto lato = pianta::aSinistra(verso) * (h_ / 6);
        quota_.figura.emplace_back(Triangolo{.layer = layerQuote(), .a = punta, .b = base + lato, .c = base - lato});
    }
    void scritta(Punto punto, double angolo) {
        quota_.testoA = punto;
        quota_.rotazioneTesto = leggibile(angolo);
        quota_.figura.emplace_back(Scritta{.layer = layerQuote(),
                                           .testo = mostrato_,
                                           .punto = punto,
                                           .altezza = h_,
                                           .rotazione = quota_.rotazioneTesto});
    }
    /// The line goes on beyond its second end, with the text over it.
    void oltre(Punto da, Punto a) {
        const Punto lato = versore(a - da);
        const Punto fine = a + lato * (1.5 * h_ + larga());
        tratto(da, fine);
        scritta(a + lato * (h_ + larga() / 2) + verso(lato, a * -1.0) * (0.9 * h_), angoloDi(lato));
    }
    Quotatura fine(std::initializer_list<Punto> punti) {
        for (const Punto p : punti) {
            quota_.figura.emplace_back(PuntoQuotato{p});
        }
        return quota_;
    }

    double h_;
    std::string mostrato_;
    Quotatura quota_;
};

Quotatura quotatura(const Quota& quota, const pianta::DatiRamo& dati, const pianta::Pianta& pianta, double altezza) {
    const pianta::RamoDisegnato& ramo = pianta.rami.at(static_cast<std::size_t>(quota.ramo) - 1);
    const double dentro = pianta.R - pianta.anello;
    Quotatore quotatore(quota, dati, altezza);
    const auto estremo = [&](std::size_t linea, bool fine) {
        const Tracciato& via = quota.linee.at(linea);
        return (fine ? via.back() : via.front()).p;
    };
    const Punto da = estremo(0, false);
    const Punto a = estremo(0, true);
    switch (quota.misura) {
        case Misura::lunghezzaSvasatura: {
            const Tracciato& prima = quota.riferimenti.at(0);
            const Tracciato& seconda = quota.riferimenti.at(1);
            const Punto fuori = versore(prima.back().p - prima.front().p);
            // The texts of width and radius end before its line.
            const Punto oltre = fuori * std::max(0.0, 11 * altezza - pianta::scalare(da - prima.front().p, fuori));
            return quotatore.affiancata(prima.front().p, seconda.front().p, da + oltre, a + oltre, fuori);
        }
        case Misura::angoloConflitto:
            return quotatore.angolo(estremo(1, false), estremo(2, true), estremo(1, true), quota, dentro);
        case Misura::raggioIngresso:
            return quotatore.raggio(pianta::ruotato(ramo.ingresso.centro, ramo.direzione), da, ramo.ingresso.raggio);
        case Misura::diametro:
            return quotatore.diametro(da, a);
        case Misura::larghezzaIngresso:
        case Misura::semiLarghezza:
            break;
    }
    return quotatore.allineata(da, a);
}

}  // namespace

std::vector<Quotatura> quotature(const pianta::DatiPianta& dati, const pianta::Pianta& pianta, double altezza) {
    // Whichever leg is at hand, its circle is the one that is drawn.
    pianta::DatiPianta uguali = dati;
    for (pianta::DatiRamo& ramo : uguali.rami) {
        ramo.diametroInscritto = dati.rami.front().diametroInscritto;
    }
    std::vector<Quotatura> quote;
    for (std::size_t i = 0; i < uguali.rami.size(); ++i) {
        for (const pianta::VoceMisura& voce : pianta::vociMisure) {
            const auto misura = static_cast<Misura>(&voce - pianta::vociMisure.data());
            if (misura == Misura::diametro && i > 0) {
                continue;
            }
            const Quota quota = quotaDi(uguali, static_cast<int>(i) + 1, misura);
            quote.push_back(quotatura(quota, uguali.rami[i], pianta, altezza));
        }
    }
    return quote;
}

}  // namespace kelvo::dxf
