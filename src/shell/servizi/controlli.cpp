#include "shell/servizi/controlli.h"

#include <algorithm>

#include "base/guasto.h"
#include "shell/servizi/CustodeCampi.h"
#include "shell/servizi/scorciatoie.h"

namespace kelvo {

void AreaTesto::entra() {
    if (!raggiungibile()) {
        return;
    }
    if (custode() != nullptr) {
        if (PannelloAiuto* aiuto = custode()->aiuto()) {
            aiuto->pagina(paginaAiuto.empty() ? std::string{paginaAiutoVuota} : paginaAiuto);
        }
    }
    Controllo::entra();
}

void Spin::valore(int nuovo) {
    cambia(valore_, std::clamp(nuovo, minimo_, massimo_));
}

void Spin::imposta(int nuovo) {
    const int prima = valore_;
    if (!raggiungibile()) {
        return;
    }
    valore(nuovo);
    if (valore_ != prima && alCambio) {
        alCambio();
    }
}

std::vector<BarraStrumenti::Tasto>::iterator BarraStrumenti::cerca(std::string_view chiave) {
    const auto trovato =
        std::find_if(tasti_.begin(), tasti_.end(), [&](const Tasto& tasto) { return tasto.chiave == chiave; });
    if (trovato == tasti_.end()) {
        throw Guasto(NumeroGuasto::indiceFuoriIntervallo, nome() + ", tasto '" + std::string{chiave} + "'");
    }
    return trovato;
}

bool BarraStrumenti::abilitato(std::string_view chiave) const {
    return tasto(chiave).abilitato;
}

std::string BarraStrumenti::scorciatoia(std::string_view chiave) const {
    const Tasto& trovato = tasto(chiave);
    return trovato.scorciatoia.empty() ? std::string{scorciatoiaDiTasto(chiave)} : trovato.scorciatoia;
}

std::string BarraStrumenti::spiegazione(std::string_view chiave) const {
    const Tasto& trovato = tasto(chiave);
    std::string testo = trovato.suggerimento;
    const std::string tasti = scorciatoia(chiave);
    if (!testo.empty() && !tasti.empty()) {
        testo += " (" + nomeTasti(tasti) + ")";
    }
    if (!trovato.nota.empty()) {
        testo += (testo.empty() ? "" : "\n") + trovato.nota;
    }
    return testo;
}

void BarraStrumenti::abilita(std::string_view chiave, bool valore) {
    cambia(cerca(chiave)->abilitato, valore);
}

void BarraStrumenti::annota(std::string_view chiave, const std::string& nota) {
    cambia(cerca(chiave)->nota, nota);
}

void BarraStrumenti::premi(std::string_view chiave) {
    const auto tasto = cerca(chiave);
    if (!raggiungibile() || !tasto->abilitato || !allaPressione) {
        return;
    }
    // What the button does may end the window that the bar stands in.
    const auto dopo = dopoPressione;
    allaPressione(std::string{chiave});
    if (dopo) {
        dopo();
    }
}

}  // namespace kelvo
