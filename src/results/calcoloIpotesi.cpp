#include "results/calcoloIpotesi.h"

#include "base/numeri.h"

namespace kelvo {

bool preparaIpotesi(Applicazione& app, modCalcolo& motore) {
    if (app.theRotonda().TipoAnalisi() != analisi::curva) {
        return true;
    }
    motore.Calcola_Tempo_Flusso(testoNumero(app.theRotonda().TipoFlusso()));
    return motore.riuscita();
}

bool calcolaIpotesi(Applicazione& app, modCalcolo& motore, std::int16_t ramo, const Geometria& misure) {
    const std::int16_t tipo = app.theRotonda().TipoAnalisi();
    const std::string modo = testoNumero(app.theRotonda().TipoFlusso());
    if (tipo == analisi::curva) {
        motore.Calcola_Tempo_Flusso(ramo, misure, modo);
    } else if (tipo == analisi::tabella) {
        motore.Calcola_Tempo_Flusso_ST(ramo, misure, modo);
    } else if (tipo == analisi::saturazione) {
        motore.Calcola_Bilanciamento(ramo, misure);
    } else {
        return false;
    }
    return motore.riuscita();
}

}  // namespace kelvo
