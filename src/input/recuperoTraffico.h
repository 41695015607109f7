#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "app/Applicazione.h"
#include "model/BackupTraffico.h"
#include "model/ComposizioneTraffico.h"

namespace kelvo {

/// Kinds of traffic data that a change of the modelling times takes from the legs.
enum class DatoTraffico { curva, conteggi, composizione };

/// Start, segment length and segments of `numero` legs' rows as the project's times stand.
SerieSegmenti tempiDelProgetto(const Rotonda& rotonda, std::int16_t numero);

// What is offered back to a leg, from 1: nothing where none was kept, where the user has declined, where nothing of it
// fits the times as they stand, or where the leg has data of the kind.

/// A curve fits where its times lie in the modelling window, each a whole number of segments from the next.
std::optional<CurvaBackup> curvaRecuperabile(const Rotonda& rotonda, std::int16_t ramo);
/// Vehicles of each segment as it stands now, of which the same interval was counted before, whole or in shorter
/// segments that are added up.
std::optional<std::vector<std::optional<float>>> conteggiRecuperabili(const Rotonda& rotonda, std::int16_t ramo);
/// The same by class.
std::optional<std::vector<std::optional<PerClasse>>> composizioneRecuperabile(const Rotonda& rotonda,
                                                                              std::int16_t ramo);

/// Asks the user whether to take the data of a leg back, and remembers a No.
bool chiediRecupero(Applicazione& app, std::int16_t ramo, DatoTraffico dato);

}  // namespace kelvo
