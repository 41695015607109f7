#pragma once

#include <QtCore/QObject>
#include <QtWidgets/QVBoxLayout>
#include <string>

#include "servizi/finestraProva.h"
#include "ui/VistaFinestra.h"
#include "ui/gesti.h"
#include "ui/legami.h"

namespace kelvo::prove {

/// View of a window of three fields and a button, one below the other.
class VistaProva final : public ui::VistaFinestra {
public:
    explicit VistaProva(FinestraProva& f);
};

/// A window on a display that is not there, in front and with the keyboard.
struct ScenaVista : ScenaFinestre {
    FinestraProva finestra{contorno()};
    VistaProva vista{finestra};

    ScenaVista();
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
