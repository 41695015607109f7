#include "app/statoRisultati.h"

#include <fmt/format.h>

#include "base/guasto.h"

namespace kelvo {

void TabellaMarker::controlla(int ingresso, int grandezza) {
    if (ingresso < 1 || ingresso > ingressi) {
        throw Guasto(NumeroGuasto::indiceFuoriIntervallo,
                     fmt::format("le soglie sono previste per gli ingressi da 1 a {}, questo è il numero {}", ingressi,
                                 ingresso));
    }
    if (grandezza < 1 || grandezza > grandezze) {
        throw Guasto(NumeroGuasto::indiceFuoriIntervallo, fmt::format("soglia della grandezza {}", grandezza));
    }
}

double& TabellaMarker::operator()(int ingresso, int grandezza) {
    controlla(ingresso, grandezza);
    return valori_[static_cast<std::size_t>(ingresso) - 1][static_cast<std::size_t>(grandezza) - 1];
}

double TabellaMarker::operator()(int ingresso, int grandezza) const {
    controlla(ingresso, grandezza);
    return valori_[static_cast<std::size_t>(ingresso) - 1][static_cast<std::size_t>(grandezza) - 1];
}

bool Marker::attivi(int ingresso) const {
    bool uno = false;
    for (int q = 1; q <= TabellaMarker::grandezze; ++q) {
        uno = MarkerAttivo(ingresso, q) != 0.0 || uno;
    }
    return uno;
}

void Marker::azzera(int ingresso) {
    for (int q = 1; q <= TabellaMarker::grandezze; ++q) {
        MarkerAttivo(ingresso, q) = 0.0;
        MarkerMassimo(ingresso, q) = 0.0;
        MarkerMinimo(ingresso, q) = 0.0;
    }
    progetto[static_cast<std::size_t>(ingresso) - 1] = {};
}

}  // namespace kelvo
