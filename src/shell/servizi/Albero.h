#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "shell/servizi/Controllo.h"

namespace kelvo {

/// A tree of keyed nodes. The colour of a node is the only record of whether it is enabled.
class Albero final : public Controllo {
public:
    struct Nodo {
        std::string chiave;
        std::string testo;
        std::string immagine;
        std::string padre;  ///< empty for a root
        bool espanso = false;
        Colore ForeColor;
        std::vector<std::string> figli;  ///< keys, in order
        std::string nota;                ///< why the node is closed; empty where there is nothing to tell
    };
    explicit Albero(std::string nome) : Controllo(std::move(nome)) {}

    void svuota();
    /// Appends a node under `padre`, or as a root if that is empty. Fault 457 for a key that is taken, fault 9 for a
    /// parent that is not there.
    void aggiungi(const std::string& padre, const std::string& chiave, const std::string& testo,
                  const std::string& immagine, bool espanso);
    bool contiene(std::string_view chiave) const { return nodi_.find(chiave) != nodi_.end(); }
    /// Fault 9 for a key that is not there.
    const Nodo& nodo(std::string_view chiave) const;
    const std::vector<std::string>& radici() const { return radici_; }
    /// All keys from top to bottom, as an open tree shows them.
    std::vector<std::string> chiavi() const;

    void testo(std::string_view chiave, const std::string& valore);
    void colore(std::string_view chiave, Colore valore);
    void annota(std::string_view chiave, const std::string& nota);
    void espandi(std::string_view chiave, bool valore);

    /// Key of the selected node; empty for none.
    const std::string& selezionato() const { return selezionato_; }
    void seleziona(std::string_view chiave);
    void deseleziona() { cambia(selezionato_, std::string{}); }

    bool prendeFuoco() const override { return raggiungibile(); }

    /// Counts the rebuilds and changes, for a view that mirrors the nodes.
    unsigned versione() const { return versione_; }

private:
    Nodo& trova(std::string_view chiave);
    void segna() {
        ++versione_;
        cambiato().emit();
    }
    /// Writes a property of a node; only a change counts.
    template <class T>
    void muta(T& campo, const T& valore) {
        if (!(campo == valore)) {
            campo = valore;
            segna();
        }
    }

    std::map<std::string, Nodo, std::less<>> nodi_;
    std::vector<std::string> radici_;
    std::string selezionato_;
    unsigned versione_ = 0;
};

}  // namespace kelvo
