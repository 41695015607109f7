#include "input/frmPreviewRami.h"

#include "app/titoli.h"
#include "input/misureIngresso.h"

namespace kelvo {

namespace {

namespace testi {
constexpr const char* didascalia = "Importa la geometria di un ramo";
constexpr const char* geometria = "Geometria rami";
constexpr const char* scegli = "Selezionare un progetto per vederne i rami.";
}  // namespace testi

std::vector<std::string> intestazioni() {
    std::vector<std::string> trovate{"Toponomastica"};
    for (const MisuraIngresso& m : misureIngresso) {
        trovate.emplace_back(m.campo.nome);
    }
    return trovate;
}

}  // namespace

frmPreviewRami::frmPreviewRami(const Contorno& contorno)
    : AnteprimaProgetto(contorno, "frmPreviewRami", testi::didascalia, testi::scegli),
      frGeometria("frGeometria", testi::geometria, {}),
      lstRami("lstRami", intestazioni()) {
    lstRami.sceglie = true;
    lstRami.numericheDa = 1;
    lstRami.allAttivazione = [this](const std::string& riga) {
        lstRami.seleziona(riga);
        if (allaConferma) {
            allaConferma();
        }
    };
    std::vector<Controllo*> controlli = datiProgetto();
    for (Controllo* c : std::initializer_list<Controllo*>{&frGeometria, &lstRami, &lblAvviso}) {
        controlli.push_back(c);
    }
    ordina(controlli);
    vuota(invito());
}

void frmPreviewRami::svuota() {
    lstRami.righe({});
    lstRami.seleziona({});
}

void frmPreviewRami::mostra(const Rotonda& altra) {
    std::vector<ElencoColonne::Riga> righe;
    for (std::int16_t i = 1; i <= altra.NumeroRami(); ++i) {
        const Ramo& ramo = altra.Ramo(i);
        ElencoColonne::Riga riga{.chiave = testoNumero(static_cast<int>(i)), .celle = {ramo.Descrizione()}};
        for (const MisuraIngresso& m : misureIngresso) {
            riga.celle.push_back(formatta((ramo.*m.leggi)(), m.campo.formato));
        }
        righe.push_back(std::move(riga));
    }
    lstRami.righe(righe);
}

bool frmPreviewRami::conferma(const std::string& percorso) {
    const Rotonda* altra = this->altra(percorso);
    const ElencoColonne::Riga* riga = lstRami.riga(lstRami.selezionata());
    if (altra == nullptr || riga == nullptr) {
        return false;
    }
    const Risposta risposta = app().messaggi.mostra("Importo i dati del ramo " + riga->celle[0] + "?",
                                                    titoli::attenzione, Icona::domanda, Pulsanti::siNo);
    if (risposta != Risposta::si) {
        return false;
    }
    const auto indice = static_cast<std::int16_t>(riga->chiave[0] - '0');
    for (std::size_t i = 0; i < scelti_.size(); ++i) {
        scelti_[i] = (altra->Ramo(indice).*misureIngresso[i].leggi)();
    }
    return true;
}

}  // namespace kelvo
