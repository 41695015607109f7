#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace kelvo {

/// Equivalent-car coefficients of the vehicle classes, in the order of the configuration file and of the engine:
/// Autoarticolati, Autotreni, Pullman, Camper, Roulotte, Motocicli, Autovetture.
using CoefficientiVeicoli = std::array<float, 7>;

/// Keys of the coefficients in the configuration file, in that order.
inline constexpr std::array<std::string_view, 7> chiaviCoefficienti{
    "Autoarticolati", "Autotreni", "Pullman", "Camper", "Roulotte", "Motocicli", "Autovetture"};

/// Factory values of the coefficients, in that order.
inline constexpr CoefficientiVeicoli coefficientiDiFabbrica{2.5F, 2.0F, 1.8F, 1.4F, 1.2F, 0.8F, 1.0F};

/// Limits of one measure of the geometry.
struct Limiti {
    float minimo;
    float massimo;
};

/// Limits of the steps of the sensitivity analysis, in the order LarghezzaIngresso, SemiLarghezza, LunghezzaSvasatura,
/// AngoloConflitto, RaggioIngresso, DiametroInscritto; metres, the angle in degrees.
inline constexpr std::array<Limiti, 6> limitiGeometria{
    Limiti{3.1F, 16.2F}, Limiti{1.0F, 12.0F},        Limiti{1.0F, 100000000.0F},
    Limiti{0.0F, 77.0F}, Limiti{3.0F, 100000000.0F}, Limiti{13.0F, 176.0F},
};

/// Settings kept in memory after the start.
struct Configurazione {
    std::string PathErrore;           ///< name of the log, relative to the program's folder
    std::int16_t LayoutPannello = 0;  ///< colour of the caption panels, 1 to 7
    bool TraceAbilitato = false;      ///< the trace is on
    std::int16_t AvvioFilmato = 0;    ///< 0: the introduction film runs at every start
    std::int16_t OpzExplorer = 0;     ///< tree layout: 0 by leg, 1 by type
    std::int16_t OpzMenu = 0;         ///< menu layout
    float VEAutoarticolati = 0.0F;
    float VEAutotreni = 0.0F;
    float VEPullman = 0.0F;
    float VECamper = 0.0F;
    float VERoulotte = 0.0F;
    float VEMotocicli = 0.0F;
    float VEAutovetture = 0.0F;

    CoefficientiVeicoli coefficienti() const {
        return {VEAutoarticolati, VEAutotreni, VEPullman, VECamper, VERoulotte, VEMotocicli, VEAutovetture};
    }
    void coefficienti(const CoefficientiVeicoli& valori) {
        VEAutoarticolati = valori[0];
        VEAutotreni = valori[1];
        VEPullman = valori[2];
        VECamper = valori[3];
        VERoulotte = valori[4];
        VEMotocicli = valori[5];
        VEAutovetture = valori[6];
    }
};

}  // namespace kelvo
