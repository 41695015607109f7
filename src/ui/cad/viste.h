#pragma once

#include <QtGui/QFont>

#include "ui/VistaFinestra.h"

class QLabel;

/// The views of the windows of the CAD link and of the exchange with CAD programs, one function a window.
namespace kelvo::ui {

VistaFinestra* vista_frmEsportaDXF(Finestra& finestra, QWidget* genitore);
VistaFinestra* vista_frmKCAD(Finestra& finestra, QWidget* genitore);
VistaFinestra* vista_frmLinkACAD(Finestra& finestra, QWidget* genitore);

/// Words in lines of the width of a message; a path in them may be broken behind each of its folders.
QLabel* paragrafoCAD(Etichetta& testo, const QFont& carattere, QWidget* genitore);

}  // namespace kelvo::ui
