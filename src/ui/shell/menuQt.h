#pragma once

#include <QtCore/QPoint>

#include "shell/servizi/MenuChiavi.h"

class QMenuBar;
class QWidget;

namespace kelvo::ui {

/// Keeps a menu bar the mirror of a keyed menu; the bar must not outlive the menu.
void collega(MenuChiavi& menu, QMenuBar& barra);

/// Brings up the entries of the first menu of a keyed menu at a point of a widget; waits for nothing. An empty or
/// closed menu does not come up.
void mostraContesto(MenuChiavi& menu, QWidget& oggetto, QPoint dove);

}  // namespace kelvo::ui
