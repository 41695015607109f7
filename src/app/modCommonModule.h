#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

#include "app/Configurazione.h"
#include "app/clsAmbiente.h"
#include "app/servizi.h"
#include "base/guasto.h"

namespace kelvo {

/// A fault as it was recorded.
struct ErroreRegistrato {
    int numero = 0;
    std::string metodo;
    std::string descrizione;
};

/// Reads and writes the program's settings, and keeps the two logs.
class modCommonModule {
public:
    modCommonModule(clsAmbiente& ambiente, Configurazione& configurazione, FinestraMessaggi& messaggi,
                    Orologio& orologio);

    /// Reads all settings from the configuration file: PathError, CustomPanel, TraceEnabled, Avvia, the seven
    /// coefficients. A missing key gives an empty text or 0; fault 13 for a text that is no number, fault 6 for one
    /// that does not fit.
    void LeggiConfigurazione();
    /// The same, key by key: a fault is told to `alGuasto` and its setting keeps what it held.
    void LeggiConfigurazione(const std::function<void(const Guasto&)>& alGuasto);
    /// Reads the setting of the introduction film. Fault 13 for a text that is no number.
    void LeggiAvvioFilmato() { configurazione_.AvvioFilmato = leggiIntero("10_MOTIVI", "Avvia"); }

    /// Reads a coefficient from the configuration file, by its position in `chiaviCoefficienti`; memory keeps what it
    /// holds. A missing key gives 0; faults as above.
    float LeggiCoefficiente(std::size_t indice) const;

    // Settings that are read where they are used, at each use: these keep the value in memory and answer it. A missing
    // key gives 0; faults as above.
    std::int16_t LeggiOpzExplorer();
    std::int16_t LeggiOpzMenu();

    // Each writer writes the value, reads it straight back and keeps the value read, so that memory follows the file
    // even when the write failed. The answer tells why it failed; empty where all went well.
    std::string ScriviCustomPanel(std::int16_t valore);
    std::string ScriviAvvioFilmato(std::int16_t valore);
    std::string ScriviOpzExplorer(std::int16_t valore);
    std::string ScriviOpzMenu(std::int16_t valore);
    /// All seven: first the writes, then the reads. Of several failures the first is told.
    std::string ScriviVeicoliEquivalenti(const CoefficientiVeicoli& valori);

    /// Appends a line to the log if the trace is on. The log is opened only if it exists: where it does not, the
    /// failure goes to erroreLog, which makes it.
    void traceLog(const std::string& testo);
    /// Records a fault: tells `alErrore`, then shows it if `mostra`, then writes it to the log. A log that cannot be
    /// written is passed over.
    void erroreLog(int numero, const std::string& metodo, const std::string& descrizione, bool mostra);

    /// Called with every fault that is recorded, before it is shown; may be empty.
    std::function<void(const ErroreRegistrato&)> alErrore;

private:
    std::string leggi(const std::string& sezione, const std::string& chiave) const;
    float leggiSingolo(const std::string& sezione, const std::string& chiave) const;
    std::int16_t leggiIntero(const std::string& sezione, const std::string& chiave) const;
    std::string scriviIntero(const std::string& sezione, const std::string& chiave, std::int16_t valore,
                             std::int16_t& globale);
    CoefficientiVeicoli leggiCoefficienti() const;
    std::string percorsoLog() const;

    clsAmbiente& ambiente_;
    Configurazione& configurazione_;
    FinestraMessaggi& messaggi_;
    Orologio& orologio_;
};

}  // namespace kelvo
