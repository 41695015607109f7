#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "base/Tabella.h"
#include "model/Rotonda.h"
#include "shell/servizi/CellaGriglia.h"

namespace kelvo {

/// The empty map of the levels of service: a row for each entry, a column for each interval of the modelling window,
/// names and intervals as headings; the names alone for a window without intervals or with segments of 0 minutes.
Tabella mappaLivelliVuota(const Rotonda& rotonda);

/// The map with the level of every record, on the ground that its badge has. Fault 9 if an entry has more segments than
/// the window has intervals.
Tabella mappaLivelli(const Rotonda& rotonda);

/// A level of the map and the delays that it stands for, s/veic.
struct FasciaLivello {
    std::string_view livello;
    std::string_view ritardo;
};
inline constexpr std::string_view titoloFasce = "Ritardo [s/veic]";
inline constexpr std::array<FasciaLivello, 7> fasceLivelli{{{"A", "fino a 10"},
                                                            {"B", "fino a 15"},
                                                            {"C", "fino a 25"},
                                                            {"D", "fino a 35"},
                                                            {"E", "fino a 50"},
                                                            {"F", "oltre 50"},
                                                            {"-", "nessuno"}}};

/// A moment on the time axis of the map.
struct OraMappa {
    double posto = 0.0;  ///< from the left edge of the first segment, in segments
    std::string testo;   ///< "HH:NN"
    friend bool operator==(const OraMappa&, const OraMappa&) = default;
};

/// Start of the window and every whole hour in it, its end included; none for a window without intervals.
std::vector<OraMappa> oreMappa(const Rotonda& rotonda);

/// A filled cell of the map in words: entry, interval, level.
std::string parolaMappa(const Tabella& mappa, Posto posto);

}  // namespace kelvo
