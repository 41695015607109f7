#pragma once

#include "ui/VistaFinestra.h"

/// The views of the check-up, one function a window.
namespace kelvo::ui {

VistaFinestra* vista_frmANALIZZATORE(Finestra& finestra, QWidget* genitore);
VistaFinestra* vista_frmCheckUpMessaggio(Finestra& finestra, QWidget* genitore);

}  // namespace kelvo::ui
