#include "input/frmToponomasticaIntersezione.h"

#include <algorithm>
#include <utility>

#include "shell/servizi/nomiPermessi.h"

namespace kelvo {

namespace {

constexpr const char* titolo = "Toponomastica Intersezione";
constexpr std::size_t massimiIngressi = 7;

template <std::size_t... I>
std::array<Etichetta, massimiIngressi> etichette(std::index_sequence<I...> /*indici*/) {
    return {Etichetta{"lblIngresso" + std::to_string(I + 1),
                      "Ingresso " + std::string(1, static_cast<char>('A' + I)) + ":"}...};
}

template <std::size_t... I>
std::array<tBox, massimiIngressi> caselle(std::index_sequence<I...> /*indici*/) {
    return {tBox{"txtIngresso" + std::to_string(I + 1), tBox::textbox}...};
}

}  // namespace

frmToponomasticaIntersezione::frmToponomasticaIntersezione(const Contorno& contorno)
    : FinestraDati(contorno, "frmToponomasticaIntersezione", titolo),
      lblIngresso(etichette(std::make_index_sequence<massimiIngressi>())),
      txtIngresso(caselle(std::make_index_sequence<massimiIngressi>())) {
    std::vector<Controllo*> controlli;
    for (std::size_t i = 0; i < massimiIngressi; ++i) {
        controlli.push_back(&lblIngresso[i]);
        controlli.push_back(&txtIngresso[i]);
        txtIngresso[i].controllo = [this, i] { return controllaNomeRamo(txtIngresso[i].testo()); };
        txtIngresso[i].dopoTasto = [this] { confronta(); };
        txtIngresso[i].dopoUscita = [this, i] { scrivi(i); };
        txtIngresso[i].paginaAiuto = "Toponomastica.htm";
        txtIngresso[i].nomeCampo = "Ingresso " + std::string(1, static_cast<char>('A' + i));
    }
    controlli.push_back(&ctlPicture);
    ordina(controlli);
}

void frmToponomasticaIntersezione::ReadData() {
    const auto rami = static_cast<std::size_t>(rotonda().NumeroRami());
    for (std::size_t i = 0; i < massimiIngressi; ++i) {
        const bool usato = i < rami;
        lblIngresso[i].visibile(usato);
        txtIngresso[i].visibile(usato);
        txtIngresso[i].testo(usato ? rotonda().Ramo(static_cast<std::int16_t>(i + 1)).Descrizione() : std::string{});
    }
    ctlPicture.risorsa("RAMI" + std::to_string(rami));
    DatiAllineati(true);
}

void frmToponomasticaIntersezione::scrivi(std::size_t indice) {
    tBox& campo = txtIngresso[indice];
    if (campo.modificato()) {
        Ramo& ramo = rotonda().Ramo(static_cast<std::int16_t>(indice + 1));
        ramo.Descrizione(campo.testo());
        campo.salvato();
        cornice().testoNodi(ramo.Key(), ramo.Descrizione());
    }
    confronta();
}

void frmToponomasticaIntersezione::confronta() {
    DatiAllineati(std::none_of(txtIngresso.begin(), txtIngresso.end(), [](const tBox& c) { return c.modificato(); }));
}

void frmToponomasticaIntersezione::SaveData() {
    gestisci("frmToponomasticaIntersezione:SaveData", [this] {
        const auto rami = static_cast<std::size_t>(rotonda().NumeroRami());
        for (std::size_t i = 0; i < rami; ++i) {
            if (txtIngresso[i].convalida()) {
                scrivi(i);
            }
        }
    });
}

}  // namespace kelvo
