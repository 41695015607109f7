#pragma once

#include <QtCore/QObject>
#include <QtWidgets/QVBoxLayout>
#include <string>

#include "servizi/finestraProva.h"
#include "ui/VistaFinestra.h"
#include "ui/legami.h"

namespace kelvo::prove {

/// Makes the toolkit's application once, in the program's look and without a display.
void avviaQt();
/// Runs what waits in the event loop.
void smaltisci();

/// View of a window of three fields and a button, one below the other.
class VistaProva final : public ui::VistaFinestra {
public:
    explicit VistaProva(FinestraProva& f);
};

/// A window on a display that is not there, in front and with the keyboard.
struct BancoVista : ScenaFinestre {
    FinestraProva finestra{contorno()};
    VistaProva vista{finestra};

    BancoVista();
    template <class W>
    W& oggetto(const Controllo& controllo) {
        auto* trovato = vista.findChild<W*>(ui::q(controllo.nome()));
        if (trovato == nullptr) {
            throw std::runtime_error("no widget " + controllo.nome());
        }
        return *trovato;
    }
    /// Name of the widget that has the keyboard.
    std::string tastiera() const;
};

}  // namespace kelvo::prove
