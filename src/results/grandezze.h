#pragma once

#include <array>
#include <string_view>

#include "base/Tabella.h"
#include "base/numeri.h"
#include "model/Iterazione.h"

namespace kelvo {

/// A quantity of a record as the tables of results show it.
struct Grandezza {
    std::string_view intestazione;  ///< of its column
    float Iterazione::*campo = nullptr;
    Formato formato = "#0";
};

/// The quantities in the order of the record; quantity q, from 1, stands in column q of the tables.
inline constexpr std::array grandezze{
    Grandezza{"Flusso [veic/min]", &Iterazione::Flusso, "#0.00"},
    Grandezza{"Capacità [veic/h]", &Iterazione::Capacita, "#0.00"},
    Grandezza{"Coeff. saturazione", &Iterazione::Coeff_Sat, "#0.000"},
    Grandezza{"Coda [veic]", &Iterazione::Coda, "#0.0"},
    Grandezza{"Ritardo [s/veic]", &Iterazione::Ritardo, "#0.0"},
};
inline constexpr std::string_view intestazioneLivello = "L.O.S.";
inline constexpr int colonnaCapacita = 2;
inline constexpr int colonnaSaturazione = 3;
inline constexpr int colonnaCoda = 4;
inline constexpr int colonnaRitardo = 5;
inline constexpr int colonnaLivello = 6;
inline constexpr int colonneRisultati = 7;

/// Colours of the cells that stand out.
namespace colori {
inline constexpr Colore estremo{200, 200, 200};
inline constexpr Colore massimo{230, 0, 0};
inline constexpr Colore minimo{0, 103, 0};
inline constexpr Colore critico{255, 255, 102};
inline constexpr Colore sopraSoglia{255, 220, 220};
inline constexpr Colore sottoSoglia{220, 255, 220};
}  // namespace colori

}  // namespace kelvo
