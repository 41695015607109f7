#pragma once

#include <array>
#include <string_view>

#include "model/Ramo.h"
#include "shell/servizi/campiNumerici.h"

namespace kelvo {

/// The six measures of an entry, in the order of the capacity relation.
enum class MisuraGeometrica {
    larghezzaIngresso,
    semiLarghezza,
    lunghezzaSvasatura,
    angoloConflitto,
    raggioIngresso,
    diametro
};

/// A measure of an entry: how the user gives it, where the project holds it.
struct MisuraIngresso {
    MisuraGeometrica misura;
    CampoNumerico campo;           ///< limits of the range of validity of the relation
    std::string_view simbolo;      ///< as formulas write it
    std::string_view figura;       ///< picture that shows it
    std::string_view paginaAiuto;  ///< page of the help pane
    float consigliatoMinimo;       ///< recommended range of the published relation
    float consigliatoMassimo;
    float (Ramo::*leggi)() const;
    void (Ramo::*scrivi)(float);
};

/// The six measures. Recommended ranges: M. Rogers, Highway Engineering, chapter 5, after TA 23/81.
inline constexpr std::array<MisuraIngresso, 6> misureIngresso{{
    {MisuraGeometrica::larghezzaIngresso,
     {"Larghezza ingresso", "m", 3.6, 16.3, "#0.00"},
     "e",
     "LARGHEZZA_INGRESSO",
     "Input1.htm",
     4.0F,
     15.0F,
     &Ramo::LarghezzaIngresso,
     &Ramo::LarghezzaIngresso},
    {MisuraGeometrica::semiLarghezza,
     {"Semilarghezza accesso", "m", 1.9, 12.5, "#0.00"},
     "v",
     "LARGHEZZA_APPROCCIO",
     "Input2.htm",
     2.0F,
     7.3F,
     &Ramo::SemiLarghezza,
     &Ramo::SemiLarghezza},
    {MisuraGeometrica::lunghezzaSvasatura,
     {"Lunghezza svasatura", "m", 1.0, {}, "#0.00"},
     "l'",
     "LUNGHEZZA_SVASATURA",
     "Input3.htm",
     1.0F,
     100.0F,
     &Ramo::LunghezzaSvasatura,
     &Ramo::LunghezzaSvasatura},
    {MisuraGeometrica::angoloConflitto,
     {"Angolo conflitto", "gradi", 0.0, 77.0, "#0.00"},
     "φ",
     "ANGOLO_CONFLITTO",
     "Input4.htm",
     10.0F,
     60.0F,
     &Ramo::AngoloConflitto,
     &Ramo::AngoloConflitto},
    {MisuraGeometrica::raggioIngresso,
     {"Raggio curvatura ingresso", "m", 3.4, {}, "#0.00"},
     "r",
     "RAGGIO_INGRESSO",
     "Input5.htm",
     6.0F,
     100.0F,
     &Ramo::RaggioIngresso,
     &Ramo::RaggioIngresso},
    {MisuraGeometrica::diametro,
     {"Diametro inscritto", "m", 13.5, 176.0, "#0.00"},
     "D",
     "DIAMETRO_INSCRITTO",
     "Input6.htm",
     15.0F,
     100.0F,
     &Ramo::DiametroInscritto,
     &Ramo::DiametroInscritto},
}};

/// Picture of the panel while no measure is in use.
inline constexpr std::string_view figuraVuota = "VUOTA";

/// "fuori dal campo consigliato 4,00 ÷ 15,00" where a value lies outside the recommended range, else empty.
std::string notaConsigliato(const MisuraIngresso& misura, float valore);

}  // namespace kelvo
