#include "input/categorieTraffico.h"

namespace kelvo {

namespace {

constexpr std::string_view pesanti = "Veicoli pesanti";
constexpr std::string_view ricreativi = "Veicoli ricreativi e commerciali";

}  // namespace

using C = ComposizioneTraffico;
const std::array<CategoriaTraffico, numeroClassi> categorieTraffico{{
    {"Autoarticolati", "Autoarticolati", pesanti, "txtAutoarticolati", "txtAutoarticolatiEquivalenti",
     "txtVEAutoarticolati", "CategoriaAutoarticolati.htm", &C::Autoarticolati, &C::Autoarticolati, &C::VEAutoarticolati,
     &C::VEAutoarticolati},
    {"Autotreni", "Autocarri", pesanti, "txtAutotreni", "txtAutotreniEquivalenti", "txtVEAutotreni",
     "CategoriaAutotreni.htm", &C::Autotreni, &C::Autotreni, &C::VEAutotreni, &C::VEAutotreni},
    {"Autobus", "Autobus", pesanti, "txtPullman", "txtPullmanEquivalenti", "txtVEPullman", "CategoriaAutobus.htm",
     &C::Pullman, &C::Pullman, &C::VEPullman, &C::VEPullman},
    {"Camper", "Furgoni", ricreativi, "txtCamper", "txtCamperEquivalenti", "txtVECamper", "CategoriaCamper.htm",
     &C::Camper, &C::Camper, &C::VECamper, &C::VECamper},
    {"Roulotte", "Roulotte", ricreativi, "txtRoulotte", "txtRoulotteEquivalenti", "txtVERoulotte",
     "CategoriaRoulotte.htm", &C::Roulotte, &C::Roulotte, &C::VERoulotte, &C::VERoulotte},
    {"Veicoli a due ruote", "Motocicli", "Veicoli a due ruote", "txtVeicoliDueRuote", "txtVeicoliDueRuoteEquivalenti",
     "txtVEMotocicli", "CategoriaDueRuote.htm", &C::VeicoliDueRuote, &C::VeicoliDueRuote, &C::VEVeicoliDueRuote,
     &C::VEVeicoliDueRuote},
    {"Autovetture", "Autovetture", "Veicoli ordinari", "txtAutovetture", "txtAutovettureEquivalenti",
     "txtVEAutovetture", "CategoriaAutovetture.htm", &C::Autovetture, &C::Autovetture, &C::VEAutovetture,
     &C::VEAutovetture},
}};

}  // namespace kelvo
