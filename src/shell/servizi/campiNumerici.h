#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/numeri.h"
#include "shell/servizi/tBox.h"

namespace kelvo {

/// A number that the user types with the decimal comma: its name, its unit and its limits, both included.
struct CampoNumerico {
    std::string_view nome;
    std::string_view unita;
    double minimo = 0.0;
    std::optional<double> massimo;
    Formato formato = "#0.00";
};

/// Tag of the rule of a number field: "Type:Numeric;ValueMin:...;ValueMax:...".
std::string tagNumerico(const CampoNumerico& campo);
/// "3,60 ÷ 16,30", or "≥ 1,00" where there is no upper limit.
std::string intervalloAmmesso(const CampoNumerico& campo);
/// "Il valore deve essere compreso tra 3,60 e 16,30 m", or "Il valore deve essere almeno 1,00 m".
std::string rifiutoLimiti(const CampoNumerico& campo);

/// Makes a field one for that number: its characters, the decimal comma in its check, the words of its refusal.
void preparaNumerico(tBox& casella, const CampoNumerico& campo);

/// The number that a field shows, rounded to single; 0 for an empty one or a lone comma. Fault 6 where it does not fit.
float singoloDi(const tBox& casella);
/// True for an empty mask: nothing, or a comma alone.
bool mascheraVuota(const tBox& casella);

/// A number as fields show it, in a pattern.
template <class T>
void mostraNumero(tBox& casella, T valore, Formato formato) {
    casella.testo(formatta(valore, formato));
}

}  // namespace kelvo
