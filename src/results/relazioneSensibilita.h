#pragma once

#include "results/Sensibilita.h"
#include "results/graficiSensibilita.h"
#include "shell/servizi/relazioneGrafica.h"

namespace kelvo {

/// The report of the sensitivity analysis of one measure of a leg, with the chart of one figure.
RelazioneGrafica relazioneSensibilita(const TabellaSensibilita& tabella, Prestazione quale, const Ramo& ramo);

}  // namespace kelvo
