#include "input/AnteprimaProgetto.h"

#include <utility>

#include "app/percorsi.h"
#include "base/numeri.h"
#include "base/testo.h"

namespace kelvo {

namespace {

constexpr std::size_t lettereEstensione = 3;

bool nomeDiProgetto(const std::string& percorso) {
    return maiuscoleAscii(ultimiCaratteri(percorso, lettereEstensione)) == "KLV";
}

}  // namespace

AnteprimaProgetto::AnteprimaProgetto(const Contorno& contorno, std::string nome, std::string didascalia,
                                     std::string scegli)
    : FinestraAnteprima(contorno, std::move(nome), std::move(didascalia)),
      frDatiProgetto("frDatiProgetto", "Dati progetto", {}),
      lblNumeroRami("lblNumeroRami", "Numero rami:"),
      lblNomeProgetto("lblNomeProgetto", "Nome progetto:"),
      lblTitolo("lblTitolo", "Titolo:"),
      lblNote("lblNote", "Note:"),
      invito_(std::move(scegli)) {}

std::vector<Controllo*> AnteprimaProgetto::datiProgetto() {
    return {&frDatiProgetto, &lblNumeroRami, &txtNumeroRami, &lblNomeProgetto, &txtNomeProgetto,
            &lblTitolo,      &txtTitolo,     &lblNote,       &txtNote};
}

RichiestaFile AnteprimaProgetto::richiesta(const std::string& cartella) {
    return {.estensione = "KLV",
            .filtro = "File di definizione Kelvo (*.KLV)|*.KLV|All Files (*.*)|*.*",
            .cartella = cartella,
            .nome = {}};
}

void AnteprimaProgetto::vuota(const std::string& motivo) {
    altra_.reset();
    for (Etichetta* e : {&txtNumeroRami, &txtNomeProgetto, &txtTitolo, &txtNote}) {
        e->testo({});
    }
    svuota();
    lblAvviso.testo(motivo);
}

void AnteprimaProgetto::selezionato(const std::string& percorso) {
    percorso_ = percorso;
    vuota(invito_);
    if (!nomeDiProgetto(percorso)) {
        return;
    }
    const std::string metodo = nome() + ":FillTxt";
    gestisci(metodo.c_str(), [&] {
        auto altra = std::make_unique<Rotonda>(app().file);
        std::string messaggio;
        bool esito = false;
        altra->Load(percorso, messaggio, esito);
        if (!esito) {
            vuota(messaggio);
            return;
        }
        altra_ = std::move(altra);
        txtNumeroRami.testo(testoNumero(altra_->NumeroRami()));
        txtNomeProgetto.testo(nomeProgetto(percorso_));
        txtTitolo.testo(altra_->Titolo());
        txtNote.testo(altra_->Note());
        lblAvviso.testo({});
        mostra(*altra_);
    });
}

const Rotonda* AnteprimaProgetto::altra(const std::string& percorso) {
    if (percorso != percorso_) {
        selezionato(percorso);
    }
    return altra_.get();
}

}  // namespace kelvo
