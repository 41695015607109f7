#include "json.h"

#include <charconv>
#include <cmath>

#include "base/numeri.h"

namespace kelvo::cli {

namespace {

constexpr double massimoIntero = 1e15;

}  // namespace

Json numero(double valore) {
    if (valore == std::floor(valore) && std::fabs(valore) < massimoIntero) {
        return static_cast<std::int64_t>(valore);
    }
    return valore;
}

Json numero(float valore) {
    // The double whose shortest text is that of the single.
    const std::string testo = testoEsatto(valore);
    double corto = 0.0;
    std::from_chars(testo.data(), testo.data() + testo.size(), corto);
    return numero(corto);
}

Json tabellaJson(const Tabella& tabella) {
    Json righe = Json::array();
    for (int r = 0; r < tabella.righe(); ++r) {
        Json celle = Json::array();
        for (int c = 0; c < tabella.colonne(); ++c) {
            celle.push_back(tabella.testo(r, c));
        }
        righe.push_back(celle);
    }
    return righe;
}

Json erroriJson(const Contesto& contesto) {
    Json errori = Json::array();
    for (const ErroreRegistrato& errore : contesto.errori()) {
        errori.push_back({{"numero", errore.numero}, {"metodo", errore.metodo}, {"descrizione", errore.descrizione}});
    }
    return errori;
}

std::string riga(const Json& json) {
    return json.dump(-1, ' ', false, Json::error_handler_t::replace) + "\n";
}

}  // namespace kelvo::cli
