#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "model/Revisione.h"

namespace kelvo {

/// Number of the vehicle classes.
inline constexpr std::int16_t numeroClassi = 7;

/// One value for each vehicle class, in the order of the segment table: Autoarticolati, Autotreni, Pullman, Camper,
/// Roulotte, VeicoliDueRuote, Autovetture. The properties of ComposizioneTraffico are declared in another order.
using PerClasse = std::array<float, numeroClassi>;

/// Segments by classes.
using TabellaCategorie = std::vector<PerClasse>;

/// Vehicle mix of one entry.
class ComposizioneTraffico final : public OggettoProgetto {
public:
    explicit ComposizioneTraffico(Revisione& revisione) : OggettoProgetto(revisione) {}

    /// Number of time segments: rows of the segment table; the same as in DatiTraffico of the leg.
    std::int16_t NumSegmentiTempo() const { return static_cast<std::int16_t>(categorie_.size()); }
    /// Sets the number of segments; discards the segment table. Fault 9 for a negative number.
    void NumSegmentiTempo(std::int16_t valore);

    // Equivalent-car coefficients of the classes as they stood when the leg was made. No calculation reads them: it
    // takes those of the configuration.
    float VEAutovetture() const { return veAutovetture_; }
    void VEAutovetture(float valore) { scriviAltro(veAutovetture_, valore); }
    float VEVeicoliDueRuote() const { return veVeicoliDueRuote_; }
    void VEVeicoliDueRuote(float valore) { scriviAltro(veVeicoliDueRuote_, valore); }
    float VERoulotte() const { return veRoulotte_; }
    void VERoulotte(float valore) { scriviAltro(veRoulotte_, valore); }
    float VECamper() const { return veCamper_; }
    void VECamper(float valore) { scriviAltro(veCamper_, valore); }
    float VEPullman() const { return vePullman_; }
    void VEPullman(float valore) { scriviAltro(vePullman_, valore); }
    float VEAutotreni() const { return veAutotreni_; }
    void VEAutotreni(float valore) { scriviAltro(veAutotreni_, valore); }
    float VEAutoarticolati() const { return veAutoarticolati_; }
    void VEAutoarticolati(float valore) { scriviAltro(veAutoarticolati_, valore); }

    // Shares of the classes in per cent, for one composition over the whole window.
    float Autovetture() const { return autovetture_; }
    void Autovetture(float valore) { scriviDato(autovetture_, valore); }
    float VeicoliDueRuote() const { return veicoliDueRuote_; }
    void VeicoliDueRuote(float valore) { scriviDato(veicoliDueRuote_, valore); }
    float Roulotte() const { return roulotte_; }
    void Roulotte(float valore) { scriviDato(roulotte_, valore); }
    float Camper() const { return camper_; }
    void Camper(float valore) { scriviDato(camper_, valore); }
    float Pullman() const { return pullman_; }
    void Pullman(float valore) { scriviDato(pullman_, valore); }
    float Autotreni() const { return autotreni_; }
    void Autotreni(float valore) { scriviDato(autotreni_, valore); }
    float Autoarticolati() const { return autoarticolati_; }
    void Autoarticolati(float valore) { scriviDato(autoarticolati_, valore); }

    /// Vehicles of a class (0 to 6, in the order of PerClasse) in a segment, from 0; 0 past the last row. Calculations
    /// read the proportions of a row alone. Fault 9 below 0 or for another class.
    float CategoriaSegmento(std::int16_t segmento, std::int16_t classe) const;
    /// Writes the same. Fault 9 outside the table.
    void CategoriaSegmento(float valore, std::int16_t segmento, std::int16_t classe);
    /// Copies the whole table, segments by classes.
    void GetCategorieSegmenti(TabellaCategorie& tabella) const { tabella = categorie_; }
    /// The same table, not copied.
    const TabellaCategorie& Categorie() const { return categorie_; }

private:
    float veAutovetture_ = 0.0F;
    float veVeicoliDueRuote_ = 0.0F;
    float veRoulotte_ = 0.0F;
    float veCamper_ = 0.0F;
    float vePullman_ = 0.0F;
    float veAutotreni_ = 0.0F;
    float veAutoarticolati_ = 0.0F;
    float autovetture_ = 100.0F;
    float veicoliDueRuote_ = 0.0F;
    float roulotte_ = 0.0F;
    float camper_ = 0.0F;
    float pullman_ = 0.0F;
    float autotreni_ = 0.0F;
    float autoarticolati_ = 0.0F;
    TabellaCategorie categorie_;
};

}  // namespace kelvo
