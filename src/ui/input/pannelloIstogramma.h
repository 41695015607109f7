#pragma once

#include "shell/servizi/Grafico.h"
#include "shell/servizi/controlli.h"

class QWidget;

namespace kelvo::ui {

/// Panel of the histogram of an entry's demand: title, the check box of its figures, the chart below.
QWidget* pannelloIstogramma(Grafico& grafico, Casella& valori, QWidget* genitore);

}  // namespace kelvo::ui
