#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "shell/servizi/Controllo.h"

namespace kelvo {

/// A menu bar whose entries have keys.
///
/// A top-level menu is an entry without a parent. Separators have the caption "-".
class MenuChiavi final : public Controllo {
public:
    struct Voce {
        std::string padre;  ///< key of the menu or submenu that it stands in; empty for a top-level menu
        std::string testo;
        std::string chiave;  ///< given to separators and submenus too, where none was told
        int icona = -1;      ///< position in the list of pictures; -1 for none
        bool abilitata = true;
        bool spuntata = false;
        std::string scorciatoia{};
        std::string mnemonico{};  ///< the letter of the caption that is underlined; empty for none
        std::string nota{};       ///< why the entry is closed; empty where there is nothing to tell
        bool visibile = true;
        friend bool operator==(const Voce&, const Voce&) = default;
    };
    explicit MenuChiavi(std::string nome) : Controllo(std::move(nome)) {}

    /// Adds a top-level menu.
    void aggiungiMenu(const std::string& chiave, const std::string& testo);
    /// Underlines a letter of a caption. Fault 9 for a key that is not there.
    void mnemonico(std::string_view chiave, const std::string& lettera);
    /// Removes all entries of a top-level menu.
    void svuota(std::string_view menu);
    /// Appends an entry; answers its key. Fault 9 for a parent that is not there.
    std::string aggiungi(Voce voce);
    /// Sets the enabled flag; a key that is not there is passed over, as entries come and go with the layout.
    void abilita(std::string_view chiave, bool valore);
    /// Shows or hides an entry; what it leads to can be reached otherwise all the same. Fault 9 for a key that is not
    /// there.
    void mostra(std::string_view chiave, bool valore);
    /// Tells why an entry is closed; a key that is not there is passed over.
    void annota(std::string_view chiave, const std::string& nota);
    bool contiene(std::string_view chiave) const { return trova(chiave) != nullptr; }
    /// Fault 9 for a key that is not there.
    const Voce& voce(std::string_view chiave) const;
    /// All entries in the order in which they were added.
    const std::vector<Voce>& voci() const { return voci_; }
    /// The entries that stand directly in a menu or submenu, in order.
    std::vector<const Voce*> figli(std::string_view padre) const;

    std::function<void(const std::string&)> alClic;
    /// The user chooses an entry; nothing happens where it, or a menu that it stands in, is disabled.
    void premi(std::string_view chiave);

    unsigned versione() const { return versione_; }

private:
    const Voce* trova(std::string_view chiave) const;
    void segna() {
        ++versione_;
        cambiato().emit();
    }
    std::vector<Voce> voci_;
    unsigned versione_ = 0;
    unsigned senzaNome_ = 0;
};

}  // namespace kelvo
