#include "shell/servizi/Albero.h"

#include "base/guasto.h"

namespace kelvo {

void Albero::svuota() {
    nodi_.clear();
    radici_.clear();
    selezionato_.clear();
    segna();
}

void Albero::aggiungi(const std::string& padre, const std::string& chiave, const std::string& testo,
                      const std::string& immagine, bool espanso) {
    if (contiene(chiave)) {
        throw Guasto(NumeroGuasto::chiaveGiaAssociata, "nodo '" + chiave + "'");
    }
    (padre.empty() ? radici_ : trova(padre).figli).push_back(chiave);
    nodi_.emplace(chiave, Nodo{chiave, testo, immagine, padre, espanso, colori::nero, {}, {}});
    segna();
}

const Albero::Nodo& Albero::nodo(std::string_view chiave) const {
    const auto trovato = nodi_.find(chiave);
    if (trovato == nodi_.end()) {
        throw Guasto(NumeroGuasto::indiceFuoriIntervallo, "nodo '" + std::string{chiave} + "'");
    }
    return trovato->second;
}

Albero::Nodo& Albero::trova(std::string_view chiave) {
    return const_cast<Nodo&>(nodo(chiave));
}

std::vector<std::string> Albero::chiavi() const {
    std::vector<std::string> tutte;
    std::vector<std::string> attesa(radici_.rbegin(), radici_.rend());
    while (!attesa.empty()) {
        const Nodo& n = nodo(attesa.back());
        attesa.pop_back();
        tutte.push_back(n.chiave);
        attesa.insert(attesa.end(), n.figli.rbegin(), n.figli.rend());
    }
    return tutte;
}

void Albero::testo(std::string_view chiave, const std::string& valore) {
    muta(trova(chiave).testo, valore);
}

void Albero::colore(std::string_view chiave, Colore valore) {
    muta(trova(chiave).ForeColor, valore);
}

void Albero::annota(std::string_view chiave, const std::string& nota) {
    muta(trova(chiave).nota, nota);
}

void Albero::espandi(std::string_view chiave, bool valore) {
    muta(trova(chiave).espanso, valore);
}

void Albero::seleziona(std::string_view chiave) {
    cambia(selezionato_, nodo(chiave).chiave);
}

}  // namespace kelvo
