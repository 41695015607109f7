#include "ricerca.h"

#include <array>
#include <cmath>

#include "base/date.h"

namespace kelvo::misure {

namespace {

constexpr int salita = 36;   ///< segments from t1 to the peak
constexpr int discesa = 35;  ///< from there to the last bar
constexpr double minuti = 5.0;
constexpr double q1 = 3.0;
constexpr double q3 = 6.0;
constexpr double fuoriPortata = 1e9;  ///< vehicles
constexpr int tacche = 200;           ///< changes of the bar that can be seen

}  // namespace

RicercaLunga::RicercaLunga() {
    richiesta_ = {.dati = {.t1 = oraDelGiorno(8, 0),
                           .t2 = oraDelGiorno(11, 0),
                           .t3 = oraDelGiorno(14, 0),
                           .minuti = static_cast<int>(minuti)},
                  .q1 = "3",
                  .obiettivo = fuoriPortata};
    barra_.cambiato().connect([this] { ++avvisi_; });
}

void RicercaLunga::cerca() {
    barra_.valore(0);
    avvisi_ = 0;
    risultato_ = cercaCurva(richiesta_, curva_, [this](int passo) { barra_.valore(passo); });
}

void RicercaLunga::nuda() {
    double q2 = q1;
    std::array<float, salita + discesa + 1> barre{};
    for (int passo = 0; passo < passiMassimiRicerca; ++passo) {
        q2 += 0.01;
        const auto p1 = static_cast<double>(static_cast<float>((q2 - q1) / salita));
        const auto p2 = static_cast<double>(static_cast<float>((q3 - q2) / discesa));
        float totale = 0.0F;
        for (int i = 0; i <= salita + discesa; ++i) {
            const auto flusso = static_cast<float>(i <= salita ? q1 + i * p1 : q2 + (i - salita) * p2);
            barre[static_cast<std::size_t>(i)] = flusso;
            totale = static_cast<float>(static_cast<double>(totale) + static_cast<double>(flusso) * minuti);
        }
        totaleNudo_ = totale;
    }
}

std::string RicercaLunga::difetto() const {
    if (risultato_.esito != EsitoRicerca::passiEsauriti || risultato_.passi != passiMassimiRicerca) {
        return "la ricerca non ha fatto tutti i passi";
    }
    if (curva_.FlussiSegmento.size() != salita + discesa + 1) {
        return "le barre non sono 72";
    }
    if (barra_.valore() != passiMassimiRicerca || avvisi_ != tacche) {
        return "la barra di avanzamento non è andata fino in fondo";
    }
    if (std::fabs(curva_.totale - totaleNudo_) > 1e-5F * totaleNudo_) {
        return "la ricerca nuda dà un altro totale";
    }
    return {};
}

}  // namespace kelvo::misure
