#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "calc/Geometria.h"
#include "model/AnalisiMarginale.h"

namespace kelvo {

/// A measure of an entry that the sensitivity analysis moves; its limits are those of `limitiGeometria`.
struct ParametroGeometrico {
    std::string_view nome;           ///< of its tab and its table
    std::string_view nomeGrafico;    ///< in the title and at the axis of a chart
    std::string_view unita;          ///< "m" or "°"
    std::string_view nomeRelazione;  ///< in a report
    float Geometria::*misura;
    bool (AnalisiMarginale::*usa)() const;
    double (AnalisiMarginale::*passo)() const;
};

/// The six measures, in the order of the project.
inline constexpr std::array<ParametroGeometrico, 6> parametriGeometrici{{
    {"Larghezza ingresso", "Larghezza Ingresso", "m", "Larghezza ingresso", &Geometria::e,
     &AnalisiMarginale::UsaLarghezzaIngresso, &AnalisiMarginale::LarghezzaIngresso},
    {"Semilarghezza accesso", "Semilarghezza Accesso", "m", "Semi Larghezza Accesso", &Geometria::v,
     &AnalisiMarginale::UsaSemiLarghezza, &AnalisiMarginale::SemiLarghezza},
    {"Lunghezza svasatura", "Lunghezza Svasatura", "m", "Larghezza Svasatura", &Geometria::l,
     &AnalisiMarginale::UsaLunghezzaSvasatura, &AnalisiMarginale::LungSvasatura},
    {"Angolo di conflitto", "Angolo di Conflitto", "°", "Angolo di conflitto", &Geometria::phi,
     &AnalisiMarginale::UsaAngoloConflitto, &AnalisiMarginale::AngoloConflitto},
    {"Raggio curvatura ingresso", "Raggio Curvatura Ingresso", "m", "Raggio curvatura ingresso", &Geometria::r,
     &AnalisiMarginale::UsaRaggioCurvatura, &AnalisiMarginale::RaggioCurvatura},
    {"Diametro inscritto", "Diametro inscritto", "m", "Diametro inscritto", &Geometria::D,
     &AnalisiMarginale::UsaDiametroInscritto, &AnalisiMarginale::DiametroInscritto},
}};
inline constexpr std::size_t numeroParametri = parametriGeometrici.size();

}  // namespace kelvo
