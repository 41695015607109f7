#include "results/risultatiProgetto.h"

#include "base/numeri.h"
#include "calc/modCalcolo.h"
#include "results/calcoloIpotesi.h"

namespace kelvo {

bool assicuraRisultati(Applicazione& app) {
    if (app.risultatiAttuali()) {
        return true;
    }
    const Rotonda& rotonda = app.theRotonda();
    modCalcolo motore(app);
    const std::string modo = testoNumero(static_cast<int>(rotonda.TipoFlusso()));
    if (rotonda.TipoAnalisi() == analisi::saturazione) {
        motore.Calcola_Bilanciamento();
    } else if (rotonda.TipoAnalisi() == analisi::curva) {
        motore.Calcola_Tempo_Flusso(modo);
    } else if (rotonda.TipoAnalisi() == analisi::tabella) {
        motore.Calcola_Tempo_Flusso_ST(modo);
    }
    return motore.riuscita();
}

bool analisiNelTempo(const Rotonda& rotonda) {
    return rotonda.TipoAnalisi() == analisi::curva || rotonda.TipoAnalisi() == analisi::tabella;
}

}  // namespace kelvo
