#include "results/frmCapacitaUltima.h"

#include <utility>

#include "base/guasto.h"
#include "results/inVigore.h"

namespace kelvo {

namespace {

namespace testi {
constexpr const char* didascalia = "Risultati: Capacità ultima";
constexpr const char* senzaRelazione = "Questa finestra non ha una relazione";
constexpr const char* maiCalcolate = "Le capacità ultime non sono ancora state calcolate. Premere Calcola (F9).";
constexpr const char* datiCambiati =
    "I dati sono cambiati dopo il calcolo: le capacità possono non essere più quelle del progetto. Premere Calcola "
    "(F9).";
constexpr const char* ipotesi =
    "L'ultimo calcolo è di un'ipotesi o si è interrotto: le capacità possono non essere quelle del progetto. Premere "
    "Calcola (F9).";
constexpr const char* senzaFlussi =
    "Tutti i flussi orari sono 0: vengono dai totali della domanda di ogni ingresso (Dati di traffico).";
constexpr const char* senzaMatrice = "La matrice delle svolte è vuota: nessun flusso circola nell'anello.";
}  // namespace testi

/// Another window's name, under which failures of this preview have always been told.
constexpr const char* metodoAnteprima = "frmCapacitaCodeRitardiRamo:Anteprima";

}  // namespace

frmCapacitaUltima::frmCapacitaUltima(const Contorno& contorno, const ServiziRisultati& servizi)
    : FinestraRisultati(contorno, servizi, "frmCapacitaUltima", testi::didascalia) {
    std::vector<Controllo*> controlli{&ctlGrid};
    for (Controllo* c : comuni()) {
        controlli.push_back(c);
    }
    ordina(controlli);
    ctlHelp.pagina("CapacitaUltima.htm");
    ctlGrid.colonna(0, {.allineamento = AllineamentoCella::sinistra});
    ctlToolbar.abilita("keyRelazione", false);
    ctlToolbar.annota("keyRelazione", testi::senzaRelazione);
}

void frmCapacitaUltima::riempi() {
    // The index of the last filling goes on in the next one; a filling that fails leaves everything as it was.
    TabellaCapacitaUltima nuova = tabella_;
    nuova.riempi(rotonda());
    tabella_ = std::move(nuova);
    ctlGrid.tabella(tabella_.tabella());
    figureDi(rotonda().timbro());
    ctlGrid.righeVisibili = ctlGrid.tabella().righe();
}

void frmCapacitaUltima::attivata() {
    try {
        riempi();
    } catch (const Guasto&) {
        FinestraRisultati::attivata();  // what the table still shows is told to be old
        throw;
    }
    FinestraRisultati::attivata();
}

void frmCapacitaUltima::calcola() {
    motore().Calcola_Bilanciamento();
    riempi();
}

std::string frmCapacitaUltima::testoAnteprima() {
    return tabella_.testo(rotonda(), app().orologio.adesso());
}

void frmCapacitaUltima::anteprimaFallita(const Guasto& guasto) {
    app().comune.erroreLog(guasto.codice(), metodoAnteprima, guasto.descrizione(), true);
}

std::string frmCapacitaUltima::motivoVecchi() const {
    if (!conFigure()) {
        return testi::maiCalcolate;
    }
    const Timbro& timbro = timbroFigure();
    switch (timbro.forma) {
        case FormaCalcolo::nessuna:
            return testi::maiCalcolate;
        case FormaCalcolo::interrotta:
        case FormaCalcolo::ipotesi:
            return testi::ipotesi;
        case FormaCalcolo::piana:
        case FormaCalcolo::corsiaDestra:
        case FormaCalcolo::bilanciamento:
            break;
    }
    // Neither the night nor the coefficients weigh on the balanced state.
    return timbro.revisione == app().theRotonda().revisione().calcolo ? "" : testi::datiCambiati;
}

std::string frmCapacitaUltima::motivoFlussi() const {
    std::string nota = tabella_.SF() == 0.0F ? testi::senzaFlussi : "";
    if (matriceVuota(app().theRotonda())) {
        nota += (nota.empty() ? "" : " ") + std::string{testi::senzaMatrice};
    }
    return nota;
}

}  // namespace kelvo
