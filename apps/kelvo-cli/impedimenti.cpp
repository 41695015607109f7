#include "impedimenti.h"

#include <fmt/format.h>

#include "results/calcoloIpotesi.h"
#include "results/corsiaDestra.h"

namespace kelvo::cli {

std::string impedimentoSintesi(const Rotonda& rotonda) {
    if (const std::string motivo = impedimentoAnalisi(rotonda); !motivo.empty()) {
        return motivo;
    }
    return rotonda.TipoAnalisi() == analisi::saturazione
               ? "un'analisi della sola saturazione non ha risultati nel tempo: l'ora di punta non si trova"
               : "";
}

std::string impedimentoCorsie(const Rotonda& rotonda) {
    if (const std::string motivo = impedimentoAnalisi(rotonda); !motivo.empty()) {
        return motivo;
    }
    if (rotonda.TipoAnalisi() == analisi::saturazione) {
        return "le corsie di svolta a destra non hanno effetto su un'analisi della sola saturazione";
    }
    if (!corsieDisponibili(rotonda)) {
        return fmt::format(
            "corsie di svolta a destra: funzione disponibile solo per rotatorie a quattro ingressi, questa ne ha {}",
            rotonda.NumeroRami());
    }
    return {};
}

Impedimento impedimentoRamo(const Rotonda& rotonda, std::int16_t ramo) {
    if (ramo <= rotonda.NumeroRami()) {
        return {};
    }
    return {.motivo = fmt::format("il ramo {} non esiste, i rami sono {}", ramo, rotonda.NumeroRami()),
            .numero = NumeroGuasto::indiceFuoriIntervallo};
}

}  // namespace kelvo::cli
