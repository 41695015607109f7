#include "app/nuovoProgetto.h"

#include <fmt/format.h>

namespace kelvo {

void creaProgetto(Applicazione& app, std::int16_t numeroRami) {
    Rotonda& rotonda = app.theRotonda();
    const Configurazione& configurazione = app.configurazione;
    app.altroProgetto();
    rotonda.Clear();
    rotonda.NumeroRami(numeroRami);
    for (int i = 1; i <= numeroRami; ++i) {
        Ramo& ramo = rotonda.AddRamo(fmt::format("{}Ramo", i));
        ramo.Descrizione(fmt::format("Ramo {}", static_cast<char>(i + 64)));
        ComposizioneTraffico& composizione = ramo.theComposizioneTraffico();
        composizione.VEAutoarticolati(configurazione.VEAutoarticolati);
        composizione.VEAutotreni(configurazione.VEAutotreni);
        composizione.VEAutovetture(configurazione.VEAutovetture);
        composizione.VECamper(configurazione.VECamper);
        composizione.VEPullman(configurazione.VEPullman);
        composizione.VERoulotte(configurazione.VERoulotte);
        composizione.VEVeicoliDueRuote(configurazione.VEMotocicli);
    }
}

}  // namespace kelvo
