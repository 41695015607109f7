#include "shell/frmEmptyForm.h"

#include <fmt/format.h>

#include <algorithm>

#include "shell/contenutoProgetto.h"

namespace kelvo {

namespace {

namespace testi {
constexpr const char* didascalia = "Progetto";
constexpr const char* nessunProgetto = "Nessun progetto aperto";
constexpr const char* comeIniziare = "Nuovo (Ctrl+N) crea un progetto, Apri (Ctrl+O) ne apre uno.";
constexpr const char* senzaNome = "Progetto senza nome";
constexpr const char* completo = "Tutti i dati sono presenti: calcolare nelle verifiche prestazionali (F9).";
constexpr const char* presente = "Presente";
constexpr const char* predefinito = "Valori iniziali";
constexpr const char* manca = "Manca";
}  // namespace testi

const char* parola(StatoDato stato) {
    switch (stato) {
        case StatoDato::presente:
            return testi::presente;
        case StatoDato::predefinito:
            return testi::predefinito;
        case StatoDato::mancante:
            break;
    }
    return testi::manca;
}

std::string nomeVoce(const VoceContenuto& voce) {
    return voce.ramo.empty() ? voce.dato : voce.dato + ", " + voce.ramo;
}

/// What to do next: the first datum that is missing, else the first one that is as a new project has it.
std::string guida(const std::vector<VoceContenuto>& voci) {
    const auto primo = [&](StatoDato stato) {
        return std::find_if(voci.begin(), voci.end(), [&](const VoceContenuto& v) { return v.stato == stato; });
    };
    if (const auto v = primo(StatoDato::mancante); v != voci.end()) {
        return "Da completare: " + nomeVoce(*v) + ".";
    }
    if (const auto v = primo(StatoDato::predefinito); v != voci.end()) {
        return "Da verificare, ha ancora i valori iniziali: " + nomeVoce(*v) + ".";
    }
    return testi::completo;
}

}  // namespace

frmEmptyForm::frmEmptyForm(const Contorno& contorno)
    : Finestra(contorno, "frmEmptyForm", testi::didascalia),
      lblTitolo("lblTitolo"),
      lblGuida("lblGuida"),
      ctlContenuto("ctlContenuto", {"Dato", "Ramo", "Stato", "Dettaglio"}) {
    ordina({&lblTitolo, &lblGuida, &ctlPicture, &ctlContenuto});
    ctlContenuto.allAttivazione = [this](const std::string& chiave) { navigazione().mostra(chiave); };
    aggiorna();
}

void frmEmptyForm::aggiorna() {
    if (stato().ProgettoAperto) {
        mostraProgetto();
        return;
    }
    lblTitolo.testo(testi::nessunProgetto);
    lblGuida.testo(testi::comeIniziare);
    ctlPicture.risorsa({});
    ctlContenuto.righe({});
    ctlContenuto.visibile(false);
}

void frmEmptyForm::mostraProgetto() {
    const std::vector<VoceContenuto> voci = contenutoProgetto(rotonda());
    std::vector<ElencoColonne::Riga> righe;
    righe.reserve(voci.size());
    for (const VoceContenuto& voce : voci) {
        righe.push_back({voce.chiave,
                         {voce.dato, voce.ramo, parola(voce.stato), voce.dettaglio},
                         voce.stato == StatoDato::mancante});
    }
    lblTitolo.testo(rotonda().NomeFile().empty() ? testi::senzaNome : rotonda().NomeFile());
    lblGuida.testo(guida(voci));
    ctlPicture.risorsa(fmt::format("RAMI{}", rotonda().NumeroRami()));
    ctlContenuto.righe(righe);
    ctlContenuto.visibile(true);
}

}  // namespace kelvo
