#pragma once

#include <cstdint>
#include <vector>

#include "base/date.h"

namespace kelvo {

/// Whole vehicles by leg (from 1), class (0 to 7, the seven classes from 1) and segment (from 0, the segments from 1).
class TabellaBackup {
public:
    /// Makes room for `rami` legs and segments up to `ultimoSegmento`, keeping what is there; never shrinks.
    void allarga(std::int16_t rami, std::int16_t ultimoSegmento);
    std::int16_t rami() const { return static_cast<std::int16_t>(celle_.size()); }
    /// Last index of a segment; -1 before any room was made.
    std::int16_t ultimoSegmento() const { return ultimoSegmento_; }
    /// Fault 9 outside the table.
    std::int32_t cella(std::int16_t ramo, std::int16_t classe, std::int16_t segmento) const;
    void cella(std::int32_t valore, std::int16_t ramo, std::int16_t classe, std::int16_t segmento);

private:
    std::size_t posto(std::int16_t ramo, std::int16_t classe, std::int16_t segmento) const;

    std::vector<std::vector<std::int32_t>> celle_;  ///< by leg: segments by classes
    std::int16_t ultimoSegmento_ = -1;
};

/// Demand of a leg as it was.
struct CurvaBackup {
    float FlussoTempo1 = 0.0F;
    float FlussoTempo2 = 0.0F;
    float FlussoTempo3 = 0.0F;
    float FlussoTotale = 0.0F;
    float FlussoMedio = 0.0F;
    float FlussoOrario = 0.0F;
    DataOra Tempo1 = 0.0;
    DataOra Tempo2 = 0.0;
    DataOra Tempo3 = 0.0;
    std::vector<float> conteggi;  ///< vehicles by segment, from 0
    friend bool operator==(const CurvaBackup&, const CurvaBackup&) = default;
};

/// Traffic data that a change of the modelling time threw away, for the windows that offer them back. They are no part
/// of the project: no file holds them, and they end with the project's content.
struct BackupTraffico {
    bool BackupComposizioneDisponibile = false;
    TabellaBackup BackupComposizione;
    std::vector<CurvaBackup> curve;  ///< by leg, from 0
};

}  // namespace kelvo
