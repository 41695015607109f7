#include "calc/modCalcolo.h"

#include <fmt/format.h>

#include <algorithm>

#include "base/guasto.h"
#include "calc/bilanciamento.h"

namespace kelvo {

namespace {

constexpr std::int16_t nessunRamo = 0;
constexpr const char* metodoBilanciamento = "Calcola_Bilanciamento";
constexpr const char* metodoCurva = "Calcola_Tempo_Flusso";
constexpr const char* metodoTabella = "Calcola_Tempo_Flusso_ST";

template <class T>
void scriviCapacitaUltime(Rotonda& rotonda, const PerRamo<T>& Q) {
    for (std::int16_t i = 1; i <= rotonda.NumeroRami(); ++i) {
        rotonda.Ramo(i).CapacitaUltima(static_cast<double>(Q[static_cast<std::size_t>(i - 1)]));
    }
}

}  // namespace

template <class Operazione>
void modCalcolo::gestisci(const char* metodo, Operazione operazione) {
    riuscita_ = true;
    try {
        operazione();
    } catch (const Guasto& guasto) {
        riuscita_ = false;
        if (daRaccontare(fmt::format("{} {} {}", guasto.codice(), metodo, guasto.descrizione()))) {
            app_.comune.erroreLog(guasto.codice(), metodo, guasto.descrizione(), true);
        }
    }
}

bool modCalcolo::daRaccontare(const std::string& impronta) {
    if (racconto_ != Racconto::unaVolta) {
        return racconto_ == Racconto::sempre;
    }
    const bool nuovo = std::find(raccontati_.begin(), raccontati_.end(), impronta) == raccontati_.end();
    if (nuovo) {
        raccontati_.push_back(impronta);
    }
    return nuovo;
}

void modCalcolo::Calcola_Parametri() {
    Calcola_Parametri(nessunRamo, {});
}

void modCalcolo::Calcola_Parametri(std::int16_t indice, const Geometria& g) {
    parametriCapacita(app_.theRotonda(), indice, g);
}

void modCalcolo::Calcola_Bilanciamento() {
    gestisci(metodoBilanciamento, [&] { bilanciamentoPiano(); });
}

void modCalcolo::Calcola_Bilanciamento(std::int16_t indice, const Geometria& g) {
    gestisci(metodoBilanciamento, [&] { bilanciamentoIpotesi(indice, g); });
}

void modCalcolo::bilanciamentoPiano() {
    Rotonda& rotonda = app_.theRotonda();
    Calcola_Parametri();
    scriviCapacitaUltime(rotonda, bilancia<float>(rotonda).soluzione.Q);
    rotonda.timbra(FormaCalcolo::bilanciamento, app_.ambienteCalcolo());
}

void modCalcolo::bilanciamentoIpotesi(std::int16_t indice, const Geometria& g) {
    Rotonda& rotonda = app_.theRotonda();
    Calcola_Parametri(indice, g);
    scriviCapacitaUltime(rotonda, bilancia<double>(rotonda).soluzione.Q);
    for (std::int16_t i = 1; i <= rotonda.NumeroRami(); ++i) {
        Ramo& ramo = rotonda.Ramo(i);
        DatiTraffico& traffico = ramo.theDatiTraffico();
        const auto dove = [&] { return ramo.Descrizione() + ", capacità ultima"; };
        for (int k = 1; k <= traffico.NumSegmentiTempo(); ++k) {
            const Iterazione record{.Capacita = aSingolo(ramo.CapacitaUltima(), dove)};
            rotonda.timbra(FormaCalcolo::interrotta);
            traffico.SetIterazione(static_cast<std::int16_t>(k), record);
        }
    }
    rotonda.timbra(FormaCalcolo::ipotesi, app_.ambienteCalcolo());
}

void modCalcolo::simula(const RichiestaSimulazione& richiesta) {
    gestisci(richiesta.domanda == Domanda::curva ? metodoCurva : metodoTabella, [&] {
        if (richiesta.forma == FormaCalcolo::corsiaDestra) {
            preparaQuote(app_.theRotonda(), richiesta.corsie, quoteSvoltaDX_);
        }
        Simulazione(app_, richiesta, quoteSvoltaDX_, memoria_).esegui();
    });
}

void modCalcolo::Calcola_Tempo_Flusso(std::string_view modo) {
    simula({.domanda = Domanda::curva, .forma = FormaCalcolo::piana, .modo = modo});
}

void modCalcolo::Calcola_Tempo_Flusso(std::int16_t indice, const Geometria& g, std::string_view modo) {
    simula({.domanda = Domanda::curva, .forma = FormaCalcolo::ipotesi, .modo = modo, .indice = indice, .geometria = g});
}

void modCalcolo::Calcola_Tempo_Flusso_DX(std::string_view modo, const CorsieDestra& corsie) {
    simula({.domanda = Domanda::curva, .forma = FormaCalcolo::corsiaDestra, .modo = modo, .corsie = corsie});
}

void modCalcolo::Calcola_Tempo_Flusso_ST(std::string_view modo) {
    simula({.domanda = Domanda::tabella, .forma = FormaCalcolo::piana, .modo = modo});
}

void modCalcolo::Calcola_Tempo_Flusso_ST(std::int16_t indice, const Geometria& g, std::string_view modo) {
    simula(
        {.domanda = Domanda::tabella, .forma = FormaCalcolo::ipotesi, .modo = modo, .indice = indice, .geometria = g});
}

void modCalcolo::Calcola_Tempo_Flusso_ST_DX(std::string_view modo, const CorsieDestra& corsie) {
    simula({.domanda = Domanda::tabella, .forma = FormaCalcolo::corsiaDestra, .modo = modo, .corsie = corsie});
}

}  // namespace kelvo
