#pragma once

#include "input/AnteprimaProgetto.h"
#include "ui/VistaFinestra.h"

namespace kelvo::ui {

/// What another project shows beside the dialogue that chooses it: its head, then the data to be taken.
class VistaAnteprimaProgetto : public VistaFinestra {
protected:
    VistaAnteprimaProgetto(AnteprimaProgetto& f, QWidget* genitore);
    /// The data of the project in their frame, with the remark below them. Called once, last.
    void sotto(Pannello* pannello, QWidget* dati);

private:
    AnteprimaProgetto& f_;
};

}  // namespace kelvo::ui
