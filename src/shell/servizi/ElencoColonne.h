#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "shell/servizi/Controllo.h"

namespace kelvo {

/// A list of keyed rows in columns: a click opens a row, or marks it where rows are chosen.
class ElencoColonne final : public Controllo {
public:
    struct Riga {
        std::string chiave;
        std::vector<std::string> celle;  ///< one text a column
        bool evidente = false;           ///< asks for the user's attention
        friend bool operator==(const Riga&, const Riga&) = default;
    };
    ElencoColonne(std::string nome, std::vector<std::string> intestazioni)
        : Controllo(std::move(nome)), intestazioni_(std::move(intestazioni)) {}
    const std::vector<std::string>& intestazioni() const { return intestazioni_; }
    const std::vector<Riga>& righe() const { return righe_; }
    void righe(const std::vector<Riga>& valore) { cambia(righe_, valore); }
    /// Null for a key that is not there.
    const Riga* riga(std::string_view chiave) const {
        for (const Riga& r : righe_) {
            if (r.chiave == chiave) {
                return &r;
            }
        }
        return nullptr;
    }
    /// Rows are chosen: a click marks one, a double click or Enter opens it. Else a click opens it.
    bool sceglie = false;
    /// The columns from this one on, from 0, hold numbers; none at first.
    std::size_t numericheDa = std::string::npos;
    std::function<void(const std::string&)> allAttivazione;

    /// Key of the row that is marked; empty for none.
    const std::string& selezionata() const { return selezionata_; }
    /// Marks a row, or none; nothing happens for a key that is not there.
    void seleziona(const std::string& chiave) {
        if (chiave.empty() || riga(chiave) != nullptr) {
            cambia(selezionata_, chiave);
        }
    }
    /// The user marks a row.
    void clicca(const std::string& chiave) {
        if (raggiungibile()) {
            seleziona(chiave);
        }
    }

    /// The user opens a row; nothing happens for a key that is not there.
    void attiva(std::string_view chiave) {
        const Riga* scelta = riga(chiave);
        if (raggiungibile() && scelta != nullptr && allAttivazione) {
            const std::string copia = scelta->chiave;  // the rows may be made anew meanwhile
            allAttivazione(copia);
        }
    }
    bool prendeFuoco() const override { return raggiungibile(); }

private:
    std::vector<std::string> intestazioni_;
    std::vector<Riga> righe_;
    std::string selezionata_;
};

}  // namespace kelvo
