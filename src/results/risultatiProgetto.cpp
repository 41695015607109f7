#include "results/risultatiProgetto.h"

#include <fmt/format.h>

#include "base/guasto.h"
#include "base/numeri.h"
#include "calc/modCalcolo.h"
#include "results/calcoloIpotesi.h"

namespace kelvo {

namespace {

constexpr const char* metodo = "risultatiProgetto:assicuraRisultati";

}  // namespace

std::string impedimentoAnalisi(const Rotonda& rotonda) {
    if (rotonda.TipoAnalisi() < analisi::saturazione || rotonda.TipoAnalisi() > analisi::tabella) {
        return fmt::format("il tipo di analisi {} non è previsto: i valori sono 0, 1 e 2", rotonda.TipoAnalisi());
    }
    return {};
}

bool assicuraRisultati(Applicazione& app) {
    const Rotonda& rotonda = app.theRotonda();
    if (const std::string motivo = impedimentoAnalisi(rotonda); !motivo.empty()) {
        app.comune.erroreLog(static_cast<int>(NumeroGuasto::chiamataNonValida), metodo, motivo, true);
        return false;
    }
    if (app.risultatiAttuali()) {
        return true;
    }
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
