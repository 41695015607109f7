#include "shell/servizi/pelle.h"

#include "shell/servizi/Finestra.h"

namespace kelvo {

namespace {

constexpr std::string_view carattere = "Segoe UI Semilight";
constexpr std::string_view finestraEsente = "frmEmptyForm";

/// Colour of the labels that carry a tag.
struct ColoreTag {
    std::string_view tag;
    Colore colore;
};
constexpr std::array coloriTag{
    ColoreTag{"GREY", {128, 128, 128}},
    ColoreTag{"ROSSO", {255, 0, 0}},
};

Aspetto aspettoDi(const Controllo& controllo) {
    Aspetto aspetto = controllo.aspetto();
    aspetto.carattere = carattere;
    aspetto.sfondo = colori::bianco;
    if (dynamic_cast<const BarraStrumenti*>(&controllo) != nullptr) {
        aspetto.sfondo = colorePrincipale;
        aspetto.inchiostro = colori::bianco;
        return aspetto;
    }
    if (dynamic_cast<const Etichetta*>(&controllo) != nullptr) {
        for (const ColoreTag& c : coloriTag) {
            if (controllo.tag() == c.tag) {
                aspetto.inchiostro = c.colore;
            }
        }
    }
    return aspetto;
}

}  // namespace

Colore colorePannello(std::int16_t posizione) {
    const bool nota = posizione >= 1 && static_cast<std::size_t>(posizione) <= coloriPannello.size();
    return coloriPannello[nota ? static_cast<std::size_t>(posizione) - 1 : 0].colore;
}

void vesti(Finestra& finestra, std::int16_t layoutPannello) {
    for (Controllo* c : finestra.ordine()) {
        if (dynamic_cast<Etichetta*>(c) != nullptr && finestra.nome() == finestraEsente) {
            continue;
        }
        c->aspetto(aspettoDi(*c));
    }
    if (BarraStrumenti* barra = finestra.barra()) {
        barra->aspetto(aspettoDi(*barra));
    }
    if (PannelloAiuto* aiuto = finestra.aiuto()) {
        aiuto->aspetto(aspettoDi(*aiuto));
    }
    finestra.pannello.aspetto(
        {.carattere = std::string{carattere}, .sfondo = colorePannello(layoutPannello), .inchiostro = colori::bianco});
}

}  // namespace kelvo
