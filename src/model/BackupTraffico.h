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

/// Time segments of one length in a row.
struct SerieSegmenti {
    DataOra inizio = 0.0;
    std::int16_t minuti = 0;  ///< length of a segment
    std::int16_t numero = 0;
};

/// Segments from `primo` on, from 0; none where `quanti` is 0.
struct TrattoSegmenti {
    std::int16_t primo = 0;
    std::int16_t quanti = 0;
    friend bool operator==(const TrattoSegmenti&, const TrattoSegmenti&) = default;
};

/// For each segment of `nuovi` those of `vecchi` that make up exactly its interval: the same one, or several shorter
/// ones; none where no such segments stand there.
std::vector<TrattoSegmenti> segmentiCorrispondenti(const SerieSegmenti& vecchi, const SerieSegmenti& nuovi);

/// Where data that were kept come from.
struct OrigineBackup {
    SerieSegmenti tempi;    ///< those that the data belonged to
    bool presente = false;  ///< there was something to keep
    bool offerto = false;   ///< the user was asked whether to take it back, and declined
};

/// Parameters of the demand curve of a leg as they were.
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
    friend bool operator==(const CurvaBackup&, const CurvaBackup&) = default;
};

/// Traffic of a leg as it was. Each kind has an origin of its own: what is all zero takes no other's place.
struct RamoBackup {
    OrigineBackup origineCurva;
    OrigineBackup origineConteggi;
    OrigineBackup origineComposizione;
    CurvaBackup curva;
    std::vector<float> conteggi;  ///< vehicles by segment, from 0
};

/// Traffic data that a change of the modelling time threw away, for the windows that offer them back. They are no part
/// of the project: no file holds them, and they end with the project's content.
struct BackupTraffico {
    bool BackupComposizioneDisponibile = false;
    TabellaBackup BackupComposizione;
    std::vector<RamoBackup> rami;  ///< by leg, from 0
};

}  // namespace kelvo
