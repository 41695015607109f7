#pragma once

#include "ui/VistaFinestra.h"

/// The views of the reports, one function a window.
namespace kelvo::ui {

VistaFinestra* vista_frmOPZrelazione(Finestra& finestra, QWidget* genitore);
VistaFinestra* vista_frmRelazioneProgressBar(Finestra& finestra, QWidget* genitore);

}  // namespace kelvo::ui
