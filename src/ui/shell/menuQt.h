#pragma once

#include "shell/servizi/MenuChiavi.h"

class QMenuBar;

namespace kelvo::ui {

/// Keeps a menu bar the mirror of a keyed menu; the bar must not outlive the menu.
void collega(MenuChiavi& menu, QMenuBar& barra);

}  // namespace kelvo::ui
