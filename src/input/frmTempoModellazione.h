#pragma once

#include <cstdint>
#include <string>

#include "model/BackupTraffico.h"
#include "shell/servizi/Finestra.h"
#include "shell/servizi/tBox.h"

namespace kelvo {

/// Modelling window of the study: start, segment length and end, which fix the number of time segments of every entry.
class frmTempoModellazione final : public FinestraDati {
public:
    explicit frmTempoModellazione(const Contorno& contorno);

    Etichetta lblTempoIniziale;
    tBox txtTempoIniziale{"txtTempoIniziale", tBox::dtpicker};
    Etichetta lblSegmentoTempo;
    tBox txtSegmentoTempo{"txtSegmentoTempo", tBox::combobox};  ///< whole minutes, 5 to 30, may be typed
    Etichetta lblTempoFinale;
    tBox txtTempoFinale{"txtTempoFinale", tBox::combobox};  ///< "HH:NN", filled by FillTempoFinale

    Riquadro frTempo;

    /// The segment lengths that are taken, as they are shown beside the field.
    static std::string limitiSegmento();

    /// Copies the times of the project to the fields. Fault 9 where the end is none of the list; it is shown all the
    /// same.
    void ReadData() override;
    /// Writes the fields that were changed, corrects an end that is no whole number of segments after the start, and
    /// where the number of segments changes keeps a copy of the traffic data and resets them. With nothing changed it
    /// writes nothing.
    void SaveData() override;
    /// Lists the ends: an empty row, then from one hour after the start to six, by the segment length. Nothing is
    /// listed without a segment. The field is empty after it.
    void FillTempoFinale();
    /// Copies the traffic data of all legs to the backup of the project.
    void BackUpData();

private:
    /// The fields as they are saved; minutes of the day for start and end.
    struct Tempi {
        std::int64_t inizio = 0;
        std::int64_t fine = 0;
        int segmento = 0;
    };

    bool completo();
    void confronta();
    Tempi tempi() const;
    void salva();
    void correggiFine(Tempi& tempi);
    void aggiornaRami(const Tempi& tempi);
    EsitoUscita controllaSegmento() const;
    EsitoUscita controllaFine() const;
    void dopoTempoIniziale();
    void dopoSegmento();
    SerieSegmenti serie(std::int16_t numero) const;
    void copiaTraffico(std::int16_t indice);
    void salvaCopiaRamo(std::int16_t indice);

    SerieSegmenti precedenti_;  ///< start and segment length that the traffic data at hand were entered for
};

}  // namespace kelvo
