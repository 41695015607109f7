#include "results/FinestraRisultati.h"

#include <fmt/format.h>

#include <utility>

#include "base/guasto.h"
#include "base/numeri.h"
#include "results/inVigore.h"

namespace kelvo {

namespace {

namespace testi {
constexpr const char* invito = "Calcola (F9)";
constexpr const char* soloSaturazione =
    "Le verifiche nel tempo non vengono calcolate: l'analisi è di sola saturazione (Opzioni).";
constexpr const char* datiCambiati =
    "I dati sono cambiati dopo il calcolo: le cifre non sono più quelle del progetto. Premere Calcola (F9).";
constexpr const char* interrotto = "Il calcolo si è interrotto: le cifre non sono complete.";
constexpr const char* ipotesi = "Le cifre sono di un'analisi di ipotesi, non del progetto. Premere Calcola (F9).";
constexpr const char* nonRiuscito = "Il calcolo non è riuscito: le cifre non sono quelle del progetto.";
constexpr const char* dati = "Copia e salva";
}  // namespace testi

std::vector<BarraStrumenti::Tasto> tastiRisultati() {
    return {{"keyCalcola", "Calcola", "Calcola il progetto", "Calcola"},
            {"keyAnteprima", "Anteprima", "Scrive la tabella in un file di testo e lo apre", "Anteprima"},
            {"keyRelazione", "Relazione", "Apre la finestra delle relazioni", "Relazione"}};
}

void scriviNota(Etichetta& etichetta, const std::string& testo) {
    etichetta.testo(testo);
    etichetta.visibile(!testo.empty());
}

}  // namespace

FinestraRisultati::FinestraRisultati(const Contorno& contorno, const ServiziRisultati& servizi, std::string nome,
                                     std::string didascalia)
    : Finestra(contorno, std::move(nome), std::move(didascalia)),
      ctlToolbar("ctlToolbar", tastiRisultati()),
      cmdCalcola("cmdCalcola", testi::invito),
      lblVecchi("lblVecchi", {}, "ROSSO"),
      lblFlussi("lblFlussi", {}, "ROSSO"),
      lblNotte("lblNotte", {}, "ROSSO"),
      lblInVigore("lblInVigore", {}, "GREY"),
      cmdInVigore("cmdInVigore", titoloInVigore, Casella::bottone),
      ctlInVigore("ctlInVigore"),
      cmdDati("cmdDati", testi::dati),
      servizi_(servizi),
      motore_(app()),
      anteprima_(contorno, servizi_.finestre, servizi_.documenti) {
    ctlToolbar.allaPressione = [this](const std::string& chiave) { premuto(chiave); };
    cmdCalcola.allaPressione = [this] { ctlToolbar.premi("keyCalcola"); };
    ctlInVigore.visibile(false);
    cmdInVigore.alClic = [this] { ctlInVigore.visibile(cmdInVigore.spuntata()); };
    ctlInVigore.colonna(0, {.allineamento = AllineamentoCella::sinistra});
    ctlInVigore.colonna(1, {.allineamento = AllineamentoCella::sinistra, .aCapo = true});
    for (Etichetta* nota : {&lblVecchi, &lblFlussi, &lblNotte}) {
        nota->visibile(false);
    }
}

std::vector<Controllo*> FinestraRisultati::comuni() {
    return {&cmdCalcola, &lblVecchi, &lblFlussi, &lblNotte, &cmdInVigore, &lblInVigore, &ctlInVigore, &cmdDati};
}

MenuChiavi* FinestraRisultati::menuDati() const {
    for (const Controllo* controllo : ordine()) {
        if (!controllo->visibile() || controllo == &ctlInVigore) {
            continue;
        }
        if (const auto* griglia = dynamic_cast<const Griglia*>(controllo)) {
            return griglia->menu();
        }
        if (const auto* grafico = dynamic_cast<const Grafico*>(controllo)) {
            return grafico->menu();
        }
    }
    return nullptr;
}

void FinestraRisultati::premuto(const std::string& chiave) {
    if (!lasciaFuoco()) {
        return;
    }
    cornice().avviso({});
    if (!ammette(chiave)) {
        return;
    }
    if (chiave == "keyAnteprima") {
        anteprima();
        return;
    }
    const std::string metodo = nome() + ":" + chiave;
    gestisci(metodo.c_str(), [&] {
        if (chiave == "keyCalcola") {
            calcola();
        } else if (chiave == "keyRelazione") {
            relazione();
        } else {
            altroTasto(chiave);
        }
    });
    if (chiave == "keyCalcola") {
        const bool dalBottone = fuoco() == &cmdCalcola;
        aggiornaNote();  // a calculation that failed is told too
        if (dalBottone && !cmdCalcola.visibile()) {
            fuocoAllaTabella();
        }
    }
}

/// The button that had the focus is gone: on to what it has filled.
void FinestraRisultati::fuocoAllaTabella() {
    scordaFuoco();
    for (Controllo* controllo : ordine()) {
        if (dynamic_cast<Griglia*>(controllo) != nullptr && controllo->prendeFuoco()) {
            fuocoSu(*controllo);
            return;
        }
    }
}

void FinestraRisultati::simula() {
    const std::string tipo = testoNumero(static_cast<int>(rotonda().TipoAnalisi()));
    const std::string flusso = testoNumero(static_cast<int>(rotonda().TipoFlusso()));
    if (tipo == "1") {
        motore_.Calcola_Tempo_Flusso(flusso);
    } else if (tipo == "2") {
        motore_.Calcola_Tempo_Flusso_ST(flusso);
    }
    fallita_ = !motore_.riuscita();
}

std::string FinestraRisultati::motivoVecchi() const {
    if (!timbro_) {
        return {};
    }
    const Rotonda& r = app().theRotonda();
    const bool curvaOTabella = r.TipoAnalisi() == 1 || r.TipoAnalisi() == 2;
    if (!curvaOTabella) {
        return testi::soloSaturazione;
    }
    if (r.attuale(*timbro_, app().ambienteCalcolo())) {
        return {};
    }
    switch (timbro_->forma) {
        case FormaCalcolo::interrotta:
            return testi::interrotto;
        case FormaCalcolo::ipotesi:
        case FormaCalcolo::corsiaDestra:
            return testi::ipotesi;
        case FormaCalcolo::piana:
            return fallita_ ? testi::nonRiuscito : testi::datiCambiati;
        case FormaCalcolo::nessuna:
        case FormaCalcolo::bilanciamento:
            break;
    }
    return testi::nonRiuscito;
}

void FinestraRisultati::aggiornaNote() {
    scriviNota(lblVecchi, motivoVecchi());
    scriviNota(lblFlussi, conFigure() ? motivoFlussi() : std::string{});
    scriviNota(lblNotte, avvisoNotte(app()));
    lblInVigore.testo(rigaInVigore(app()));
    ctlInVigore.tabella(tabellaInVigore(inVigore(app())));
    cmdCalcola.visibile(!conFigure());
}

void FinestraRisultati::anteprima() {
    try {
        anteprima_.apri(nomeAnteprima(), testoAnteprima());
    } catch (const Guasto& guasto) {
        anteprimaFallita(guasto);
    }
}

void FinestraRisultati::apriTesto(const std::string& nomeFile, const std::string& testo) {
    cornice().avviso({});
    try {
        anteprima_.apri(nomeFile, testo);
    } catch (const Guasto& guasto) {
        anteprimaFallita(guasto);
    }
}

void FinestraRisultati::anteprimaFallita(const Guasto& guasto) {
    tracciaGuasto(nome() + ":Anteprima", guasto);
}

void FinestraRisultati::tracciaGuasto(const std::string& metodo, const Guasto& guasto) {
    app().comune.traceLog(fmt::format("{} {} : {}", metodo, guasto.codice(), guasto.descrizione()));
    cornice().avviso(guasto.descrizione());
}

}  // namespace kelvo
