#include "shell/servizi/scorciatoie.h"

#include <algorithm>
#include <utility>

namespace kelvo {

namespace {

/// Names of keys that an Italian keyboard bears otherwise.
constexpr std::array<std::pair<std::string_view, std::string_view>, 4> nomi{
    {{"Enter", "Invio"}, {"Shift", "Maiusc"}, {"PgDown", "PagGiù"}, {"PgUp", "PagSu"}}};

}  // namespace

std::string_view scorciatoiaDiTasto(std::string_view tasto) {
    const auto* const trovata = std::find_if(scorciatoieTasti.begin(), scorciatoieTasti.end(),
                                             [&](const ScorciatoiaTasto& s) { return s.tasto == tasto; });
    return trovata == scorciatoieTasti.end() ? std::string_view{} : trovata->tasti;
}

std::string nomeTasti(std::string_view tasti) {
    std::string nome{tasti};
    for (const auto& [codice, scritta] : nomi) {
        if (const auto posto = nome.find(codice); posto != std::string::npos) {
            nome.replace(posto, codice.size(), scritta);
        }
    }
    return nome;
}

}  // namespace kelvo
