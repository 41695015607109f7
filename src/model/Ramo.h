#pragma once

#include <string>

#include "model/AnalisiMarginale.h"
#include "model/ComposizioneTraffico.h"
#include "model/DatiTraffico.h"
#include "model/Revisione.h"

namespace kelvo {

/// One leg of the roundabout: the geometry of its entry, its demand, its vehicle mix and its results.
class Ramo final : public OggettoProgetto {
public:
    /// `chiave` is the digit of the leg's position and "Ramo".
    Ramo(Revisione& revisione, std::string chiave, std::string descrizione);

    /// Counts its changes, and those of its children, in another project from now on.
    void segui(Revisione& revisione);

    DatiTraffico& theDatiTraffico() { return datiTraffico_; }
    const DatiTraffico& theDatiTraffico() const { return datiTraffico_; }
    ComposizioneTraffico& theComposizioneTraffico() { return composizioneTraffico_; }
    const ComposizioneTraffico& theComposizioneTraffico() const { return composizioneTraffico_; }
    AnalisiMarginale& theAnalisiMarginale() { return analisiMarginale_; }
    const AnalisiMarginale& theAnalisiMarginale() const { return analisiMarginale_; }

    // Results of the calculation.

    /// Entry flow of the balanced solution, in which all entries run at capacity, veic/h.
    void CapacitaUltima(double valore) { capacitaUltima_ = valore; }
    double CapacitaUltima() const { return capacitaUltima_; }
    /// Entry factor k.
    void K(double valore) { k_ = valore; }
    double K() const { return k_; }
    /// Diameter factor tD.
    void Td(double valore) { td_ = valore; }
    double Td() const { return td_; }
    /// Flare sharpness.
    void S(double valore) { s_ = valore; }
    double S() const { return s_; }
    /// Effective width x2, m.
    void X2(double valore) { x2_ = valore; }
    double X2() const { return x2_; }
    /// Intercept of the capacity line, veic/h, with k included.
    void F(double valore) { f_ = valore; }
    double F() const { return f_; }
    /// Slope of the capacity line against the circulating flow, with k included.
    void Fc(double valore) { fc_ = valore; }
    double Fc() const { return fc_; }

    // Input.

    /// Name of the leg.
    const std::string& Descrizione() const { return descrizione_; }
    void Descrizione(const std::string& valore) { scriviAltro(descrizione_, valore); }
    /// Identity of the leg: the digit of the leg's position and "Ramo".
    const std::string& Key() const { return chiave_; }
    /// Entry width e, m.
    void LarghezzaIngresso(float valore) { scriviDato(larghezzaIngresso_, valore); }
    float LarghezzaIngresso() const { return larghezzaIngresso_; }
    /// Approach half-width v, m.
    void SemiLarghezza(float valore) { scriviDato(semiLarghezza_, valore); }
    float SemiLarghezza() const { return semiLarghezza_; }
    /// Effective flare length l', m.
    void LunghezzaSvasatura(float valore) { scriviDato(lunghezzaSvasatura_, valore); }
    float LunghezzaSvasatura() const { return lunghezzaSvasatura_; }
    /// Conflict angle phi, degrees.
    void AngoloConflitto(float valore) { scriviDato(angoloConflitto_, valore); }
    float AngoloConflitto() const { return angoloConflitto_; }
    /// Entry radius r, m.
    void RaggioIngresso(float valore) { scriviDato(raggioIngresso_, valore); }
    float RaggioIngresso() const { return raggioIngresso_; }
    /// Inscribed circle diameter D, m.
    void DiametroInscritto(float valore) { scriviDato(diametroInscritto_, valore); }
    float DiametroInscritto() const { return diametroInscritto_; }
    /// A pedestrian crossing stands on the entry.
    void AttraversamentoPedonale(bool valore) { scriviDato(attraversamentoPedonale_, valore); }
    bool AttraversamentoPedonale() const { return attraversamentoPedonale_; }

private:
    DatiTraffico datiTraffico_;
    ComposizioneTraffico composizioneTraffico_;
    AnalisiMarginale analisiMarginale_;
    double capacitaUltima_ = 0.0;
    double k_ = 0.0;
    double td_ = 0.0;
    double s_ = 0.0;
    double x2_ = 0.0;
    double f_ = 0.0;
    double fc_ = 0.0;
    std::string descrizione_;
    std::string chiave_;
    float larghezzaIngresso_ = 5.0F;
    float semiLarghezza_ = 3.75F;
    float lunghezzaSvasatura_ = 20.0F;
    float angoloConflitto_ = 5.0F;
    float raggioIngresso_ = 25.0F;
    float diametroInscritto_ = 65.0F;
    bool attraversamentoPedonale_ = false;
};

}  // namespace kelvo
