#include "model/BackupTraffico.h"

#include <fmt/format.h>

#include <algorithm>

#include "base/guasto.h"

namespace kelvo {

namespace {

constexpr std::int16_t classi = 8;  ///< 0 to 7

}  // namespace

void TabellaBackup::allarga(std::int16_t rami, std::int16_t ultimoSegmento) {
    ultimoSegmento_ = std::max(ultimoSegmento_, ultimoSegmento);
    celle_.resize(std::max(celle_.size(), static_cast<std::size_t>(std::max<std::int16_t>(rami, 0))));
    // Segments stand one behind the other, so that a longer table keeps what it holds in its place.
    for (auto& ramo : celle_) {
        ramo.resize(static_cast<std::size_t>(ultimoSegmento_ + 1) * classi, 0);
    }
}

std::size_t TabellaBackup::posto(std::int16_t ramo, std::int16_t classe, std::int16_t segmento) const {
    const bool dentro =
        ramo >= 1 && ramo <= rami() && classe >= 0 && classe < classi && segmento >= 0 && segmento <= ultimoSegmento_;
    if (!dentro) {
        throw Guasto(
            NumeroGuasto::indiceFuoriIntervallo,
            fmt::format("copia della composizione: ramo {}, categoria {}, segmento {}", ramo, classe, segmento));
    }
    return static_cast<std::size_t>(segmento) * classi + static_cast<std::size_t>(classe);
}

std::int32_t TabellaBackup::cella(std::int16_t ramo, std::int16_t classe, std::int16_t segmento) const {
    const std::size_t i = posto(ramo, classe, segmento);
    return celle_[static_cast<std::size_t>(ramo) - 1][i];
}

void TabellaBackup::cella(std::int32_t valore, std::int16_t ramo, std::int16_t classe, std::int16_t segmento) {
    const std::size_t i = posto(ramo, classe, segmento);
    celle_[static_cast<std::size_t>(ramo) - 1][i] = valore;
}

std::vector<TrattoSegmenti> segmentiCorrispondenti(const SerieSegmenti& vecchi, const SerieSegmenti& nuovi) {
    std::vector<TrattoSegmenti> tratti(static_cast<std::size_t>(std::max<std::int16_t>(nuovi.numero, 0)));
    if (vecchi.minuti <= 0 || nuovi.minuti % vecchi.minuti != 0) {
        return tratti;
    }
    const std::int64_t quanti = nuovi.minuti / vecchi.minuti;
    const std::int64_t scarto = minutiTra(vecchi.inizio, nuovi.inizio);
    if (scarto % vecchi.minuti != 0) {
        return tratti;
    }
    std::int64_t primo = scarto / vecchi.minuti;
    for (TrattoSegmenti& tratto : tratti) {
        if (primo >= 0 && primo + quanti <= vecchi.numero) {
            tratto = {static_cast<std::int16_t>(primo), static_cast<std::int16_t>(quanti)};
        }
        primo += quanti;
    }
    return tratti;
}

}  // namespace kelvo
