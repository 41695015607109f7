#include "shell/servizi/Finestra.h"

#include <algorithm>
#include <utility>

namespace kelvo {

namespace {

std::vector<BarraStrumenti::Tasto> tastiDati() {
    return {{"Archivio", "Archivio", "Importa da un altro progetto (Ctrl+I)", "Apri", true},
            {"AggiornaDati", "Aggiorna dati", "Scrive i dati nel progetto (Ctrl+Invio)", "Salva", true},
            {"Refresh", "Ripristina", "Rilegge i dati del progetto (F5)", "Nuovo", true}};
}

}  // namespace

Finestra::Finestra(Contorno contorno, std::string nome, std::string didascalia)
    : pannello("pannello", didascalia),
      contorno_(contorno),
      nome_(std::move(nome)),
      didascalia_(std::move(didascalia)) {}

void Finestra::ordina(std::initializer_list<Controllo*> controlli) {
    ordine_.assign(controlli);
    for (Controllo* c : ordine_) {
        c->custode(this);
    }
}

bool Finestra::convalida() {
    bool bene = true;
    for (Controllo* c : ordine_) {
        // A field that is hidden or closed has nothing to answer for.
        if (c->visibile() && c->abilitato() && !c->convalida()) {
            bene = false;
        }
    }
    return bene;
}

bool Finestra::fuocoSu(Controllo& controllo) {
    if (&controllo == fuoco_) {
        return true;
    }
    if (!controllo.prendeFuoco() || !lasciaFuoco()) {
        return false;
    }
    fuoco_ = &controllo;
    controllo.entra();
    return true;
}

bool Finestra::lasciaFuoco() {
    if (fuoco_ == nullptr) {
        return true;
    }
    Controllo* lasciato = fuoco_;
    if (lasciato->prendeFuoco() && !lasciato->lascia()) {
        return false;
    }
    fuoco_ = nullptr;
    return true;
}

Controllo* Finestra::successivo(bool avanti) const {
    const auto quanti = static_cast<std::ptrdiff_t>(ordine_.size());
    const auto trovato = std::find(ordine_.begin(), ordine_.end(), fuoco_);
    std::ptrdiff_t da = trovato == ordine_.end() ? (avanti ? -1 : quanti) : trovato - ordine_.begin();
    for (std::ptrdiff_t i = 0; i < quanti; ++i) {
        da = (da + (avanti ? 1 : -1) + quanti) % quanti;
        Controllo* c = ordine_[static_cast<std::size_t>(da)];
        if (c->prendeFuoco()) {
            return c;
        }
    }
    return nullptr;
}

void Finestra::entrato(Controllo& campo) {
    fuoco_ = &campo;
}

void Finestra::giudicato(Controllo& /*campo*/, const EsitoUscita& esito) {
    if (esito.bandiera) {
        contorno_.stato.convalidaFallita = true;
    }
    contorno_.cornice.avviso(esito.motivo);
    if (esito.messaggio) {
        messaggio(esito.messaggio->testo, esito.messaggio->titolo, esito.messaggio->icona);
    }
}

void Finestra::messaggio(const std::string& testo, const std::string& titolo, Icona icona) {
    contorno_.app.messaggi.mostra(testo, titolo, icona, Pulsanti::ok);
}

FinestraDati::FinestraDati(Contorno contorno, std::string nome, std::string didascalia)
    : Finestra(contorno, std::move(nome), std::move(didascalia)), ctlToolbar("ctlToolbar", tastiDati()) {
    ctlToolbar.allaPressione = [this](const std::string& chiave) { premuto(chiave); };
}

void FinestraDati::DatiAllineati(bool valore) {
    if (datiAllineati_ != valore) {
        datiAllineati_ = valore;
        ctlToolbar.cambiato().emit();
    }
}

void FinestraDati::premuto(const std::string& chiave) {
    // Reloading puts a bad field right, so it alone does not ask it first.
    if (chiave == "Refresh") {
        ReadData();
        return;
    }
    if (!lasciaFuoco()) {
        return;
    }
    if (chiave == "AggiornaDati") {
        SaveData();
    } else if (chiave == "Archivio") {
        Archivio();
    } else {
        altroTasto(chiave);
    }
}

}  // namespace kelvo
