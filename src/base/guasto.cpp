#include "base/guasto.h"

#include <array>
#include <cmath>

namespace kelvo {

namespace {

struct Voce {
    NumeroGuasto numero;
    std::string_view parole;
};

constexpr std::array voci{
    Voce{NumeroGuasto::chiamataNonValida, "Chiamata di routine o argomento non validi"},
    Voce{NumeroGuasto::overflow, "Overflow"},
    Voce{NumeroGuasto::indiceFuoriIntervallo, "Indice non compreso nell'intervallo"},
    Voce{NumeroGuasto::divisionePerZero, "Divisione per zero"},
    Voce{NumeroGuasto::tipoNonCorrispondente, "Tipo non corrispondente"},
    Voce{NumeroGuasto::operazioneImpossibile, "Impossibile eseguire l'operazione richiesta"},
    Voce{NumeroGuasto::fileNonTrovato, "File non trovato"},
    Voce{NumeroGuasto::erroreDispositivo, "Errore di I/O di dispositivo"},
    Voce{NumeroGuasto::discoPieno, "Disco pieno"},
    Voce{NumeroGuasto::autorizzazioneNegata, "Autorizzazione negata"},
    Voce{NumeroGuasto::accessoPercorso, "Errore di accesso al percorso o al file"},
    Voce{NumeroGuasto::percorsoNonTrovato, "Percorso non trovato"},
    Voce{NumeroGuasto::chiaveGiaAssociata, "Questa chiave è già associata a un elemento di questo insieme"},
};

std::string conLuogo(NumeroGuasto numero, std::string_view luogo) {
    std::string testo{paroleGuasto(numero)};
    if (!luogo.empty()) {
        testo.append(" (").append(luogo).append(")");
    }
    return testo;
}

}  // namespace

std::string_view paroleGuasto(NumeroGuasto numero) {
    for (const Voce& voce : voci) {
        if (voce.numero == numero) {
            return voce.parole;
        }
    }
    return "Errore definito dall'applicazione o dall'oggetto";
}

Guasto::Guasto(NumeroGuasto numero, std::string_view luogo) : Guasto(numero, Parole{conLuogo(numero, luogo)}) {}

Guasto::Guasto(NumeroGuasto numero, const Parole& parole) : std::runtime_error(parole.testo), numero_(numero) {}

Guasto Guasto::conParole(NumeroGuasto numero, std::string_view parole) {
    return {numero, Parole{std::string{parole}}};
}

void lancia(NumeroGuasto numero, const std::string& luogo) {
    throw Guasto(numero, luogo);
}

bool finito(double valore) {
    return std::isfinite(valore);
}

double radice(double valore) {
    if (!(valore >= 0.0)) {
        throw Guasto(NumeroGuasto::chiamataNonValida, "radice di un numero negativo");
    }
    return controllato(std::sqrt(valore));
}

double logaritmo(double valore) {
    if (!(valore > 0.0)) {
        throw Guasto(NumeroGuasto::chiamataNonValida, "logaritmo di un numero non positivo");
    }
    return controllato(std::log(valore));
}

double esponenziale(double valore) {
    return controllato(std::exp(valore));
}

double arrotondaPari(double valore) {
    // Not nearbyint: the result does not depend on the rounding mode of the machine.
    const double basso = std::floor(valore);
    const double resto = valore - basso;
    if (resto < 0.5) {
        return basso;
    }
    if (resto > 0.5) {
        return basso + 1.0;
    }
    return std::fmod(basso, 2.0) == 0.0 ? basso : basso + 1.0;
}

}  // namespace kelvo
