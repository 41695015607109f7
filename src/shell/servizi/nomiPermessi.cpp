#include "shell/servizi/nomiPermessi.h"

namespace kelvo {

namespace {

constexpr const char* titoloErrore = "KELVO 2014 - Errore";
constexpr const char* nonPermessi = "Attenzione, non sono permessi i caratteri: ";
constexpr const char* nomeMancante = "Attenzione, indicare un nome per il ramo";

}  // namespace

MessaggioCampo messaggioCaratteriVietati() {
    return {nonPermessi + std::string{caratteriVietati}, titoloErrore, Icona::critica};
}

EsitoUscita controllaNomeRamo(std::string_view nome) {
    if (nome.empty()) {
        return EsitoUscita::rifiuto(MessaggioCampo{nomeMancante, titoloErrore, Icona::critica});
    }
    EsitoUscita esito;
    for (const char vietato : caratteriVietati) {
        if (nome.find(vietato) == std::string_view::npos) {
            continue;
        }
        if (esito.accettato) {
            esito = EsitoUscita::rifiuto(messaggioCaratteriVietati());
        } else {
            esito.altri.push_back(messaggioCaratteriVietati());
        }
    }
    return esito;
}

}  // namespace kelvo
