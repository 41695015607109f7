#pragma once

#include <string>

#include "model/Revisione.h"

namespace kelvo {

/// Sensitivity settings of one entry, with the two percentages that reduce its capacity in every simulation.
class AnalisiMarginale final : public OggettoProgetto {
public:
    explicit AnalisiMarginale(Revisione& revisione) : OggettoProgetto(revisione) {}

    /// Words for the external condition.
    void DescrizioneCondizioniEsterne(const std::string& valore) { scriviAltro(descrizioneCondizioniEsterne_, valore); }
    const std::string& DescrizioneCondizioniEsterne() const { return descrizioneCondizioniEsterne_; }
    /// Reduction of the capacity by the external condition, per cent; negative raises it.
    void CondizioniEsterne(double valore) { scriviDato(condizioniEsterne_, valore); }
    double CondizioniEsterne() const { return condizioniEsterne_; }
    /// The fields of the external condition are open.
    void UsaCondizioniEsterne(bool valore) { scriviAltro(usaCondizioniEsterne_, valore); }
    bool UsaCondizioniEsterne() const { return usaCondizioniEsterne_; }
    /// Reduction of the capacity by the pedestrian crossing, per cent.
    void AttraversamentoPedonale(double valore) { scriviDato(attraversamentoPedonale_, valore); }
    double AttraversamentoPedonale() const { return attraversamentoPedonale_; }

    // The parameter takes part in the analysis.
    void UsaSemiLarghezza(bool valore) { scriviAltro(usaSemiLarghezza_, valore); }
    bool UsaSemiLarghezza() const { return usaSemiLarghezza_; }
    void UsaRaggioCurvatura(bool valore) { scriviAltro(usaRaggioCurvatura_, valore); }
    bool UsaRaggioCurvatura() const { return usaRaggioCurvatura_; }
    void UsaLunghezzaSvasatura(bool valore) { scriviAltro(usaLunghezzaSvasatura_, valore); }
    bool UsaLunghezzaSvasatura() const { return usaLunghezzaSvasatura_; }
    void UsaLarghezzaIngresso(bool valore) { scriviAltro(usaLarghezzaIngresso_, valore); }
    bool UsaLarghezzaIngresso() const { return usaLarghezzaIngresso_; }
    void UsaDiametroInscritto(bool valore) { scriviAltro(usaDiametroInscritto_, valore); }
    bool UsaDiametroInscritto() const { return usaDiametroInscritto_; }
    void UsaAngoloConflitto(bool valore) { scriviAltro(usaAngoloConflitto_, valore); }
    bool UsaAngoloConflitto() const { return usaAngoloConflitto_; }

    // Step of the parameter, up and down; metres, the angle in degrees.
    void LarghezzaIngresso(double valore) { scriviAltro(larghezzaIngresso_, valore); }
    double LarghezzaIngresso() const { return larghezzaIngresso_; }
    void SemiLarghezza(double valore) { scriviAltro(semiLarghezza_, valore); }
    double SemiLarghezza() const { return semiLarghezza_; }
    void LungSvasatura(double valore) { scriviAltro(lungSvasatura_, valore); }
    double LungSvasatura() const { return lungSvasatura_; }
    void AngoloConflitto(double valore) { scriviAltro(angoloConflitto_, valore); }
    double AngoloConflitto() const { return angoloConflitto_; }
    void RaggioCurvatura(double valore) { scriviAltro(raggioCurvatura_, valore); }
    double RaggioCurvatura() const { return raggioCurvatura_; }
    void DiametroInscritto(double valore) { scriviAltro(diametroInscritto_, valore); }
    double DiametroInscritto() const { return diametroInscritto_; }

private:
    std::string descrizioneCondizioniEsterne_;
    double condizioniEsterne_ = 0.0;
    bool usaCondizioniEsterne_ = false;
    double attraversamentoPedonale_ = 0.0;
    bool usaSemiLarghezza_ = false;
    bool usaRaggioCurvatura_ = false;
    bool usaLunghezzaSvasatura_ = false;
    bool usaLarghezzaIngresso_ = false;
    bool usaDiametroInscritto_ = false;
    bool usaAngoloConflitto_ = false;
    double larghezzaIngresso_ = 0.05;
    double semiLarghezza_ = 0.05;
    double lungSvasatura_ = 0.5;
    double angoloConflitto_ = 5.0;
    double raggioCurvatura_ = 1.0;
    double diametroInscritto_ = 1.0;
};

}  // namespace kelvo
