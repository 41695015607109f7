#pragma once

#include <fmt/format.h>

#include <cstdint>
#include <string>
#include <string_view>

#include "base/date.h"
#include "model/Ramo.h"

/// Words and minutes that the files of the simulation share.
namespace kelvo::simulazione {

/// Place of a fault in a segment of an entry; `k` from 1, as the records count it.
inline auto luogo(const Ramo& ramo, std::int16_t k, std::string_view cosa = {}) {
    return [&ramo, k, cosa] {
        std::string testo = fmt::format("{}, segmento {}", ramo.Descrizione(), k);
        if (!cosa.empty()) {
            testo.append(", ").append(cosa);
        }
        return testo;
    };
}

inline auto luogo(const Ramo& ramo, std::string_view cosa) {
    return [&ramo, cosa] { return fmt::format("{}, {}", ramo.Descrizione(), cosa); };
}

inline constexpr std::string_view segmentoZero = "segmento di tempo di 0 minuti";

/// Whole minutes from `da` to `a`.
inline double minuti(DataOra da, DataOra a) {
    return static_cast<double>(minutiTra(da, a));
}

}  // namespace kelvo::simulazione
