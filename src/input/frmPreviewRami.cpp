#include "input/frmPreviewRami.h"

#include "app/percorsi.h"
#include "base/guasto.h"
#include "base/testo.h"
#include "input/misureIngresso.h"

namespace kelvo {

namespace {

namespace testi {
constexpr const char* didascalia = "Importa la geometria di un ramo";
constexpr const char* datiProgetto = "Dati progetto";
constexpr const char* geometria = "Geometria rami";
constexpr const char* attenzione = "KELVO 2014 - Attenzione";
constexpr const char* scegli = "Selezionare un progetto per vederne i rami.";
}  // namespace testi

constexpr std::size_t lettereEstensione = 3;

std::vector<std::string> intestazioni() {
    std::vector<std::string> trovate{"Toponomastica"};
    for (const MisuraIngresso& m : misureIngresso) {
        trovate.emplace_back(m.campo.nome);
    }
    return trovate;
}

bool nomeDiProgetto(const std::string& percorso) {
    return maiuscoleAscii(ultimiCaratteri(percorso, lettereEstensione)) == "KLV";
}

}  // namespace

frmPreviewRami::frmPreviewRami(const Contorno& contorno)
    : FinestraAnteprima(contorno, "frmPreviewRami", testi::didascalia),
      frDatiProgetto("frDatiProgetto", testi::datiProgetto, {}),
      lblNumeroRami("lblNumeroRami", "Numero rami:"),
      lblNomeProgetto("lblNomeProgetto", "Nome progetto:"),
      lblTitolo("lblTitolo", "Titolo:"),
      lblNote("lblNote", "Note:"),
      frGeometria("frGeometria", testi::geometria, {}),
      lstRami("lstRami", intestazioni()) {
    ordina({&frDatiProgetto, &lblNumeroRami, &txtNumeroRami, &lblNomeProgetto, &txtNomeProgetto, &lblTitolo, &txtTitolo,
            &lblNote, &txtNote, &frGeometria, &lstRami, &lblAvviso});
    lstRami.sceglie = true;
    lstRami.numericheDa = 1;
    lstRami.allAttivazione = [this](const std::string& riga) {
        lstRami.seleziona(riga);
        if (allaConferma) {
            allaConferma();
        }
    };
    vuota(testi::scegli);
}

RichiestaFile frmPreviewRami::richiesta() const {
    return {.estensione = "KLV",
            .filtro = "File di definizione Kelvo (*.KLV)|*.KLV|All Files (*.*)|*.*",
            .cartella = app().theAmbiente.CartellaProgramma(),
            .nome = {}};
}

void frmPreviewRami::vuota(const std::string& motivo) {
    altra_.reset();
    for (Etichetta* e : {&txtNumeroRami, &txtNomeProgetto, &txtTitolo, &txtNote}) {
        e->testo({});
    }
    lstRami.righe({});
    lstRami.seleziona({});
    lblAvviso.testo(motivo);
}

void frmPreviewRami::selezionato(const std::string& percorso) {
    percorso_ = percorso;
    vuota(testi::scegli);
    if (!nomeDiProgetto(percorso)) {
        return;
    }
    gestisci("frmPreviewRami:FillTxt", [&] {
        auto altra = std::make_unique<Rotonda>(app().file);
        std::string messaggio;
        bool esito = false;
        altra->Load(percorso, messaggio, esito);
        if (esito) {
            altra_ = std::move(altra);
            FillTxt();
        } else {
            vuota(messaggio);
        }
    });
}

void frmPreviewRami::FillTxt() {
    txtNumeroRami.testo(testoNumero(altra_->NumeroRami()));
    txtNomeProgetto.testo(nomeProgetto(percorso_));
    txtTitolo.testo(altra_->Titolo());
    txtNote.testo(altra_->Note());
    lblAvviso.testo({});
    std::vector<ElencoColonne::Riga> righe;
    for (std::int16_t i = 1; i <= altra_->NumeroRami(); ++i) {
        const Ramo& ramo = altra_->Ramo(i);
        ElencoColonne::Riga riga{.chiave = testoNumero(static_cast<int>(i)), .celle = {ramo.Descrizione()}};
        for (const MisuraIngresso& m : misureIngresso) {
            riga.celle.push_back(formatta((ramo.*m.leggi)(), m.campo.formato));
        }
        righe.push_back(std::move(riga));
    }
    lstRami.righe(righe);
}

bool frmPreviewRami::conferma(const std::string& percorso) {
    if (percorso != percorso_) {
        selezionato(percorso);  // the name was typed, not clicked
    }
    const ElencoColonne::Riga* riga = lstRami.riga(lstRami.selezionata());
    if (!altra_ || riga == nullptr) {
        return false;
    }
    const Risposta risposta = app().messaggi.mostra("Importo i dati del ramo " + riga->celle[0] + "?",
                                                    testi::attenzione, Icona::domanda, Pulsanti::siNo);
    if (risposta != Risposta::si) {
        return false;
    }
    const auto indice = static_cast<std::int16_t>(riga->chiave[0] - '0');
    for (std::size_t i = 0; i < scelti_.size(); ++i) {
        scelti_[i] = (altra_->Ramo(indice).*misureIngresso[i].leggi)();
    }
    return true;
}

}  // namespace kelvo
