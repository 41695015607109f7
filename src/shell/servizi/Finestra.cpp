#include "shell/servizi/Finestra.h"

#include <algorithm>
#include <utility>

#include "shell/servizi/ControlloPianta.h"
#include "shell/servizi/menuDati.h"
#include "shell/servizi/pagineAiuto.h"

namespace kelvo {

namespace {

std::vector<BarraStrumenti::Tasto> tastiDati() {
    return {{"Archivio", "Archivio", "Importa da un altro progetto", "Archivio", true},
            {"AggiornaDati", "Aggiorna dati", "Scrive i dati nel progetto", "AggiornaDati", true},
            {"Refresh", "Refresh", "Rilegge i dati del progetto", "Refresh", true}};
}

}  // namespace

Finestra::Finestra(Contorno contorno, std::string nome, std::string didascalia)
    : pannello("pannello", didascalia),
      sottotitolo("sottotitolo"),
      contorno_(contorno),
      nome_(std::move(nome)),
      didascalia_(std::move(didascalia)) {
    segno.visibile(false);
}

Finestra::~Finestra() = default;

void Finestra::ordina(const std::vector<Controllo*>& controlli) {
    ordine_ = controlli;
    for (Controllo* c : ordine_) {
        c->custode(this);
        if (c->paginaAiuto.empty()) {
            c->paginaAiuto = paginaDiControllo(nome_, c->nome());
        }
        if (auto* griglia = dynamic_cast<Griglia*>(c)) {
            menuDati_.push_back(std::make_unique<MenuTabella>(*this, contorno_, *griglia));
        } else if (auto* grafico = dynamic_cast<Grafico*>(c)) {
            menuDati_.push_back(std::make_unique<MenuGrafico>(*this, contorno_, *grafico));
        } else if (auto* pianta = dynamic_cast<ControlloPianta*>(c)) {
            menuDati_.push_back(std::make_unique<MenuPianta>(*this, contorno_, *pianta));
        }
    }
}

std::string Finestra::paginaInUso() const {
    if (fuoco_ != nullptr && !fuoco_->paginaAiuto.empty()) {
        return fuoco_->paginaAiuto;
    }
    const std::string_view pagina = paginaDiFinestra(nome_);
    return std::string{pagina.empty() ? paginaIndice : pagina};
}

bool Finestra::convalida() {
    bool bene = true;
    inConvalida_ = true;
    rifiutato_ = nullptr;
    contorno_.cornice.avviso({});
    for (Controllo* c : ordine_) {
        // A field that is hidden or closed has nothing to answer for.
        if (c->visibile() && c->abilitato() && !c->convalida()) {
            bene = false;
        }
    }
    inConvalida_ = false;
    return bene;
}

void Finestra::spostaFuoco(Controllo* controllo) {
    if (fuoco_ != controllo) {
        fuoco_ = controllo;
        fuocoMutato_.emit();
    }
}

bool Finestra::fuocoSu(Controllo& controllo) {
    if (&controllo == fuoco_) {
        return true;
    }
    if (!controllo.prendeFuoco() || !lasciaFuoco()) {
        return false;
    }
    spostaFuoco(&controllo);
    controllo.entra();
    return true;
}

bool Finestra::lasciaFuoco() {
    if (fuoco_ == nullptr || !fuoco_->prendeFuoco() || fuoco_->lascia()) {
        return true;
    }
    fuocoMutato_.emit();
    return false;
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
    spostaFuoco(&campo);
}

void Finestra::giudicato(Controllo& campo, const EsitoUscita& esito) {
    if (esito.bandiera) {
        contorno_.stato.convalidaFallita = true;
    }
    // One word at a time stands in the status bar: of all fields that are asked together, the first that has one.
    if (!inConvalida_ || (rifiutato_ == nullptr && !esito.motivo.empty())) {
        contorno_.cornice.avviso(esito.motivo);
    }
    const bool trattenuto = !esito.accettato || esito.bandiera;
    if (inConvalida_ && trattenuto && rifiutato_ == nullptr) {
        rifiutato_ = &campo;
        fuoco_ = &campo;
        fuocoMutato_.emit();  // the place is marked before the message comes up
    }
    if (esito.messaggio) {
        messaggio(esito.messaggio->testo, esito.messaggio->titolo, esito.messaggio->icona);
    }
    for (const MessaggioCampo& altro : esito.altri) {
        messaggio(altro.testo, altro.titolo, altro.icona);
    }
}

void Finestra::messaggio(const std::string& testo, const std::string& titolo, Icona icona) {
    contorno_.app.messaggi.mostra(testo, titolo, icona, Pulsanti::ok);
}

FinestraDati::FinestraDati(Contorno contorno, std::string nome, std::string didascalia)
    : Finestra(contorno, std::move(nome), std::move(didascalia)), ctlToolbar("ctlToolbar", tastiDati()) {
    ctlToolbar.allaPressione = [this](const std::string& chiave) { premuto(chiave); };
    ctlToolbar.abilita("Archivio", false);
    ctlToolbar.annota("Archivio", "Questa finestra non importa dati");
}

void FinestraDati::conArchivio() {
    ctlToolbar.abilita("Archivio", true);
    ctlToolbar.annota("Archivio", {});
}

void FinestraDati::entrato(Controllo& campo) {
    Finestra::entrato(campo);
    if (!campo.paginaAiuto.empty()) {
        ctlHelp.pagina(campo.paginaAiuto);
    }
}

void FinestraDati::DatiAllineati(bool valore) {
    datiAllineati_ = valore;
    segno.visibile(!valore);
}

void FinestraDati::premuto(const std::string& chiave) {
    const std::string metodo = nome() + ":" + chiave;
    // Reloading and restoring put a bad field right, so they alone do not ask it first.
    if (chiave == "Refresh" || chiave == "Restore") {
        gestisci(metodo.c_str(), [&] {
            cornice().avviso({});
            if (chiave == "Refresh") {
                rileggi();
            } else {
                altroTasto(chiave);
            }
        });
        return;
    }
    if (!lasciaFuoco()) {
        return;
    }
    gestisci(metodo.c_str(), [&] {
        if (chiave == "AggiornaDati") {
            aggiornaDati();
        } else if (chiave == "Archivio") {
            Archivio();
        } else {
            altroTasto(chiave);
        }
    });
}

}  // namespace kelvo
