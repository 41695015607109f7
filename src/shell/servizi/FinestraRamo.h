#pragma once

#include <cstdint>
#include <string>

#include "shell/servizi/Finestra.h"

namespace kelvo {

/// A data window of one leg. It takes its leg from the key of the node each time it comes up, and keeps it until it is
/// left: what was typed goes to the leg that it was read from, whatever node has been chosen meanwhile.
class FinestraRamo : public FinestraDati {
public:
    using FinestraDati::FinestraDati;

    /// Binds the window to the leg of the key at hand and reads it. Fault 9 where the key ends in no leg's digit.
    void attivata() override;
    /// Number of the leg, from 1; 0 before the window first came up.
    std::int16_t indiceRamo() const { return indice_; }

protected:
    /// The leg that the window is bound to. Fault 9 before it first came up.
    Ramo& ramo() { return rotonda().Ramo(indice_); }
    const Ramo& ramo() const { return app().theRotonda().Ramo(indice_); }
    /// The window has just been bound to another leg.
    virtual void legata() {}
    /// Shows the name of the leg beside the caption.
    void mostraNome();

private:
    std::int16_t indice_ = 0;
};

}  // namespace kelvo
