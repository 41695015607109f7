#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "shell/servizi/Controllo.h"
#include "shell/servizi/documentoPagine.h"
#include "shell/servizi/menuDati.h"

namespace kelvo {

/// A plan as it is handed on to whoever paints, saves or prints it.
template <class Dati, class Opzioni>
DocumentoPagine::Pianta piantaDaMostrare(Dati dati, Opzioni opzioni) {
    return {std::make_shared<const Dati>(std::move(dati)), std::make_shared<const Opzioni>(std::move(opzioni))};
}

/// The plan of the roundabout in a window. Its content is asked for when it is painted, saved or printed; `cambiato`
/// tells that it is another one.
class ControlloPianta : public Controllo {
public:
    /// `soggetto`: what is drawn at this moment; without its parts there is nothing to show.
    ControlloPianta(std::string nome, std::function<DocumentoPagine::Pianta()> soggetto)
        : Controllo(std::move(nome)), soggetto_(std::move(soggetto)) {}

    DocumentoPagine::Pianta soggetto() const { return soggetto_(); }
    /// The content is another one.
    void mutata() { cambiato().emit(); }

    /// What the menu key and the right button bring up; set by the window that declares the plan among its controls.
    std::function<MenuChiavi&()> menuCompleto;
    MenuChiavi* menu() const { return menuCompleto ? &menuCompleto() : nullptr; }
    bool prendeFuoco() const override { return raggiungibile(); }
    /// What is seen, in words, for who does not see it; empty where the name of the plan tells it all.
    virtual std::string descrizione() const { return {}; }

private:
    std::function<DocumentoPagine::Pianta()> soggetto_;
};

/// "Copia immagine" and the plan as PNG, SVG and PDF.
class MenuPianta final : public MenuImmagine {
public:
    MenuPianta(Finestra& finestra, const Contorno& contorno, ControlloPianta& pianta);

private:
    std::string vuota() const override;
    EsitoDisegno disegna(FormatoDisegno formato) const override;

    ControlloPianta& pianta_;
};

}  // namespace kelvo
