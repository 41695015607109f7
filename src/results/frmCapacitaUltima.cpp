#include "results/frmCapacitaUltima.h"

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
    ctlGrid.colonna(0, {.allineamento = AllineamentoCella::sinistra});
    ctlToolbar.abilita("keyRelazione", false);
    ctlToolbar.annota("keyRelazione", testi::senzaRelazione);
}

void frmCapacitaUltima::riempi() {
    figureDi(rotonda().timbro());
    tabella_.riempi(rotonda());
    ctlGrid.tabella(tabella_.tabella());
    ctlGrid.righeVisibili = ctlGrid.tabella().righe();
}

void frmCapacitaUltima::attivata() {
    riempi();
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
    const Timbro& timbro = app().theRotonda().timbro();
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
