#pragma once

#include <string>
#include <vector>

#include "app/Applicazione.h"
#include "base/Tabella.h"

namespace kelvo {

inline constexpr const char* titoloInVigore = "In vigore nel calcolo";

/// What weighs on the figures of a calculation and stands in no table of results.
struct VoceInVigore {
    std::string nome;
    std::string valore;
    friend bool operator==(const VoceInVigore&, const VoceInVigore&) = default;
};

/// Percentile of the queue, night percentage, external and pedestrian percentages of each leg, the seven coefficients,
/// as a calculation would read them at this moment.
std::vector<VoceInVigore> inVigore(const Applicazione& app);
/// The same as a table of names and values below their headings.
Tabella tabellaInVigore(const std::vector<VoceInVigore>& voci);
/// The same in one line; of the legs only those with a reduction.
std::string rigaInVigore(const Applicazione& app);
/// Warns of night conditions that are on with an incidence of 0; empty where there is nothing to warn of.
std::string avvisoNotte(const Applicazione& app);

/// Why all flows of the records are 0, of one leg (from 1) or of all (0); where they are not, whether the turning
/// matrix is empty. Empty where there is nothing to tell. Fault 9 for a leg that does not exist.
std::string notaFlussi(const Applicazione& app, std::int16_t ramo = 0);

/// True if the turning matrix holds no movement.
bool matriceVuota(const Rotonda& rotonda);

}  // namespace kelvo
