#include "app/automazione.h"

namespace kelvo {

Guasto guastoAutomazione(NumeroGuasto numero, const std::string& luogo) {
    const char* parole = "Errore di automazione";
    if (numero == componenteActiveX) {
        parole = "Il componente ActiveX non può creare l'oggetto";
    } else if (numero == proprietaNonSupportata) {
        parole = "Proprietà o metodo non supportati dall'oggetto";
    }
    return Guasto::conParole(numero, std::string{parole} + " (" + luogo + ")");
}

}  // namespace kelvo
