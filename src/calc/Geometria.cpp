#include "calc/Geometria.h"

#include <fmt/format.h>

#include "base/guasto.h"
#include "base/numeri.h"

namespace kelvo {

Geometria geometriaDi(const Ramo& ramo) {
    return {.e = ramo.LarghezzaIngresso(),
            .v = ramo.SemiLarghezza(),
            .l = ramo.LunghezzaSvasatura(),
            .phi = ramo.AngoloConflitto(),
            .r = ramo.RaggioIngresso(),
            .D = ramo.DiametroInscritto()};
}

void parametriCapacita(Ramo& ramo, const Geometria& g) {
    const auto luogo = [&](std::string_view misura, float valore) {
        return [&ramo, misura, valore] {
            return fmt::format("{}, {} {}", ramo.Descrizione(), misura, testoNumero(valore));
        };
    };
    const auto parametro = [&](std::string_view nome) {
        return [&ramo, nome] { return fmt::format("{}, {}", ramo.Descrizione(), nome); };
    };
    const double e = g.e;
    const double v = g.v;
    const double l = g.l;
    const double phi = g.phi;
    const double r = g.r;
    const double D = g.D;

    const double inverso = dividi(1.0, r, luogo("raggio ingresso", g.r));
    ramo.K(controllato(1.0 - (phi - 30.0) * 0.00347 - (inverso - 0.05) * 0.978, parametro("K")));
    const double E = esponenziale((D - 60.0) / 10.0, luogo("diametro inscritto", g.D));
    ramo.Td(0.5 / (1.0 + E) + 1.0);
    ramo.S(dividi((e - v) * 1.6, l, luogo("lunghezza svasatura", g.l)));
    const auto acutezza = [&] {
        return fmt::format("{}, acutezza svasatura {}", ramo.Descrizione(), testoNumero(ramo.S()));
    };
    ramo.X2(controllato(dividi(e - v, 2.0 * ramo.S() + 1.0, acutezza) + v, parametro("X2")));
    ramo.F(controllato(ramo.X2() * 303.0 * ramo.K(), parametro("F")));
    ramo.Fc(ramo.Td() * 0.21);
    ramo.Fc(controllato((0.2 * ramo.X2() + 1.0) * ramo.Fc(), parametro("Fc")));
    ramo.Fc(controllato(ramo.K() * ramo.Fc(), parametro("Fc")));
}

void parametriCapacita(const Rotonda& rotonda, std::int16_t indice, const Geometria& g) {
    for (std::int16_t i = 1; i <= rotonda.NumeroRami(); ++i) {
        Ramo& ramo = rotonda.Ramo(i);
        parametriCapacita(ramo, i == indice ? g : geometriaDi(ramo));
    }
}

}  // namespace kelvo
