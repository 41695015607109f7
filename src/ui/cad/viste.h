#pragma once

#include "ui/VistaFinestra.h"

/// The views of the exchange with CAD programs, one function a window.
namespace kelvo::ui {

VistaFinestra* vista_frmEsportaDXF(Finestra& finestra, QWidget* genitore);

}  // namespace kelvo::ui
