#pragma once

#include <array>
#include <string_view>

#include "model/Ramo.h"
#include "pianta/ipotesi.h"
#include "shell/servizi/campiNumerici.h"

namespace kelvo {

/// A measure of an entry: how the user gives it, where the project holds it.
struct MisuraIngresso {
    pianta::Misura misura;
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
    {pianta::Misura::larghezzaIngresso,
     {pianta::vociMisure[0].nome, "m", 3.6, 16.3, "#0.00"},
     pianta::vociMisure[0].breve,
     "LARGHEZZA_INGRESSO",
     "Input1.htm",
     4.0F,
     15.0F,
     &Ramo::LarghezzaIngresso,
     &Ramo::LarghezzaIngresso},
    {pianta::Misura::semiLarghezza,
     {pianta::vociMisure[1].nome, "m", 1.9, 12.5, "#0.00"},
     pianta::vociMisure[1].breve,
     "LARGHEZZA_APPROCCIO",
     "Input2.htm",
     2.0F,
     7.3F,
     &Ramo::SemiLarghezza,
     &Ramo::SemiLarghezza},
    {pianta::Misura::lunghezzaSvasatura,
     {pianta::vociMisure[2].nome, "m", 1.0, {}, "#0.00"},
     pianta::vociMisure[2].breve,
     "LUNGHEZZA_SVASATURA",
     "Input3.htm",
     1.0F,
     100.0F,
     &Ramo::LunghezzaSvasatura,
     &Ramo::LunghezzaSvasatura},
    {pianta::Misura::angoloConflitto,
     {pianta::vociMisure[3].nome, "gradi", 0.0, 77.0, "#0.00"},
     pianta::vociMisure[3].breve,
     "ANGOLO_CONFLITTO",
     "Input4.htm",
     10.0F,
     60.0F,
     &Ramo::AngoloConflitto,
     &Ramo::AngoloConflitto},
    {pianta::Misura::raggioIngresso,
     {pianta::vociMisure[4].nome, "m", 3.4, {}, "#0.00"},
     pianta::vociMisure[4].breve,
     "RAGGIO_INGRESSO",
     "Input5.htm",
     6.0F,
     100.0F,
     &Ramo::RaggioIngresso,
     &Ramo::RaggioIngresso},
    {pianta::Misura::diametro,
     {pianta::vociMisure[5].nome, "m", 13.5, 176.0, "#0.00"},
     pianta::vociMisure[5].breve,
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
