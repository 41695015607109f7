#pragma once

#include <cstdint>
#include <vector>

#include "base/date.h"
#include "model/Iterazione.h"
#include "model/Revisione.h"

namespace kelvo {

/// Demand of one entry, and the records that the calculation leaves for it.
class DatiTraffico final : public OggettoProgetto {
public:
    explicit DatiTraffico(Revisione& revisione) : OggettoProgetto(revisione) {}

    std::int16_t NumSegmentiTempo() const { return numSegmentiTempo_; }
    /// Sets the number of segments; discards the segment table and the records. Fault 9 for a negative number.
    void NumSegmentiTempo(std::int16_t valore);

    /// Writes record `indice`, from 1; it may lie past NumSegmentiTempo. Fault 9 below 1.
    void SetIterazione(std::int16_t indice, const Iterazione& record) {
        const auto posto = static_cast<std::size_t>(indice) - 1;  // 0 and below lie past every size
        if (posto < record_.size()) {
            record_[posto] = record;
        } else {
            aggiungiIterazione(indice, record);
        }
    }
    /// Makes room for records up to `ultimo`, so that writing them in order allocates nothing more.
    void PreparaIterazioni(std::int16_t ultimo);
    /// Record `indice`, from 1; all 0 where none was written. Fault 9 below 1.
    Iterazione GetIterazione(std::int16_t indice) const;
    /// Highest number of a record written since the records were last discarded.
    std::int16_t IterazioniScritte() const { return static_cast<std::int16_t>(record_.size()); }

    /// Mean flow, veic/min.
    float FlussoMedio() const { return flussoMedio_; }
    void FlussoMedio(float valore) { scriviAltro(flussoMedio_, valore); }
    /// Mean flow, veic/h.
    float FlussoOrario() const { return flussoOrario_; }
    void FlussoOrario(float valore) { scriviAltro(flussoOrario_, valore); }
    /// Vehicles over the whole window.
    float FlussoTotale() const { return flussoTotale_; }
    void FlussoTotale(float valore) { scriviDato(flussoTotale_, valore); }
    /// q3, demand at t3, veic/min.
    float FlussoTempo3() const { return flussoTempo3_; }
    void FlussoTempo3(float valore) { scriviDato(flussoTempo3_, valore); }
    /// q2, demand at t2, the peak, veic/min.
    float FlussoTempo2() const { return flussoTempo2_; }
    void FlussoTempo2(float valore) { scriviDato(flussoTempo2_, valore); }
    /// q1, demand at t1, veic/min.
    float FlussoTempo1() const { return flussoTempo1_; }
    void FlussoTempo1(float valore) { scriviDato(flussoTempo1_, valore); }
    // The times are kept in whole seconds, as the project file tells them.

    /// t3, end of the demand curve.
    DataOra Tempo3() const { return tempo3_; }
    void Tempo3(DataOra valore) { scriviDato(tempo3_, alSecondo(valore)); }
    /// t2, time of the peak.
    DataOra Tempo2() const { return tempo2_; }
    void Tempo2(DataOra valore) { scriviDato(tempo2_, alSecondo(valore)); }
    /// t1, start of the demand curve.
    DataOra Tempo1() const { return tempo1_; }
    void Tempo1(DataOra valore) { scriviDato(tempo1_, alSecondo(valore)); }
    /// Writes the vehicles of a segment, from 0, column 0. Fault 9 outside the table.
    void FlussoSegmento(float valore, std::int16_t segmento, std::int16_t colonna);
    /// Vehicles of a segment, from 0, column 0; 0 past the last row. Fault 9 below 0 or in another column.
    float FlussoSegmento(std::int16_t segmento, std::int16_t colonna) const;
    /// The whole segment table, column 0, as many rows as NumSegmentiTempo.
    const std::vector<float>& FlussiSegmento() const { return flussi_; }

private:
    void aggiungiIterazione(std::int16_t indice, const Iterazione& record);

    std::int16_t numSegmentiTempo_ = 0;
    float flussoMedio_ = 0.0F;
    float flussoOrario_ = 0.0F;
    float flussoTotale_ = 0.0F;
    float flussoTempo3_ = 0.0F;
    float flussoTempo2_ = 0.0F;
    float flussoTempo1_ = 0.0F;
    DataOra tempo3_ = 0.0;
    DataOra tempo2_ = 0.0;
    DataOra tempo1_ = 0.0;
    std::vector<float> flussi_;
    std::vector<Iterazione> record_;
};

}  // namespace kelvo
