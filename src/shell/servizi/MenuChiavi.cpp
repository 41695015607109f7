#include "shell/servizi/MenuChiavi.h"

#include <algorithm>
#include <set>

#include "base/guasto.h"

namespace kelvo {

const MenuChiavi::Voce* MenuChiavi::trova(std::string_view chiave) const {
    const auto trovata = std::find_if(voci_.begin(), voci_.end(), [&](const Voce& v) { return v.chiave == chiave; });
    return trovata == voci_.end() ? nullptr : &*trovata;
}

const MenuChiavi::Voce& MenuChiavi::voce(std::string_view chiave) const {
    const Voce* trovata = trova(chiave);
    if (trovata == nullptr) {
        throw Guasto(NumeroGuasto::indiceFuoriIntervallo, "menu, voce '" + std::string{chiave} + "'");
    }
    return *trovata;
}

void MenuChiavi::aggiungiMenu(const std::string& chiave, const std::string& testo) {
    Voce menu;
    menu.chiave = chiave;
    menu.testo = testo;
    voci_.push_back(menu);
    segna();
}

void MenuChiavi::mnemonico(std::string_view chiave, const std::string& lettera) {
    const_cast<Voce&>(voce(chiave)).mnemonico = lettera;
    segna();
}

void MenuChiavi::svuota(std::string_view menu) {
    // A child stands behind its parent, so one pass finds all that hangs on the menu.
    std::set<std::string, std::less<>> via{std::string{menu}};
    std::erase_if(voci_, [&](const Voce& v) {
        if (v.padre.empty() || via.find(v.padre) == via.end()) {
            return false;
        }
        via.insert(v.chiave);
        return true;
    });
    segna();
}

std::string MenuChiavi::aggiungi(Voce nuova) {
    voce(nuova.padre);
    if (nuova.chiave.empty()) {
        nuova.chiave = "voce" + std::to_string(++senzaNome_);
    }
    voci_.push_back(nuova);
    segna();
    return nuova.chiave;
}

void MenuChiavi::abilita(std::string_view chiave, bool valore) {
    bool mutata = false;
    for (Voce& v : voci_) {
        if (v.chiave == chiave && v.abilitata != valore) {
            v.abilitata = valore;
            mutata = true;
        }
    }
    if (mutata) {
        segna();
    }
}

void MenuChiavi::mostra(std::string_view chiave, bool valore) {
    voce(chiave);  // a key that is not there is a fault
    const auto trovata = std::find_if(voci_.begin(), voci_.end(), [&](const Voce& v) { return v.chiave == chiave; });
    if (trovata->visibile != valore) {
        trovata->visibile = valore;
        segna();
    }
}

void MenuChiavi::annota(std::string_view chiave, const std::string& nota) {
    const auto trovata = std::find_if(voci_.begin(), voci_.end(), [&](const Voce& v) { return v.chiave == chiave; });
    if (trovata != voci_.end() && trovata->nota != nota) {
        trovata->nota = nota;
        segna();
    }
}

std::vector<const MenuChiavi::Voce*> MenuChiavi::figli(std::string_view padre) const {
    std::vector<const Voce*> trovati;
    for (const Voce& v : voci_) {
        if (v.padre == padre) {
            trovati.push_back(&v);
        }
    }
    return trovati;
}

void MenuChiavi::premi(std::string_view chiave) {
    const Voce* v = &voce(chiave);
    const std::string premuta = v->chiave;
    for (; v != nullptr; v = v->padre.empty() ? nullptr : trova(v->padre)) {
        if (!v->abilitata) {
            return;
        }
    }
    if (raggiungibile() && alClic) {
        alClic(premuta);
    }
}

}  // namespace kelvo
