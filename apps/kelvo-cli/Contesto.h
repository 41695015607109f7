#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "app/Applicazione.h"

namespace kelvo::cli {

/// Exit codes of the program.
inline constexpr int uscitaFatto = 0;
inline constexpr int uscitaFallito = 1;
inline constexpr int uscitaUsoErrato = 2;
inline constexpr int uscitaErroriProgetto = 3;  ///< the check of a project found an error in it

/// The options that the commands share.
struct OpzioniComuni {
    std::string ini;         ///< configuration file; empty: the one beside the program
    std::int16_t notte = 0;  ///< percentage of the night field
    bool json = false;
};

/// The program's state for one command.
class Contesto final : public FinestraMessaggi {
public:
    Contesto();

    /// Reads the configuration; on failure says why on standard error and answers false. A coefficient that is
    /// missing, 0 or negative is a failure for a command that computes: nothing is ever computed with it.
    bool configura(const OpzioniComuni& opzioni, bool calcola = true);
    /// Drops the errors of the file before and loads a project; on failure the reason is among the errors.
    bool carica(const std::string& file);
    /// Records a failure that is no fault of an operation and says it on standard error, begun with the file.
    void segnala(int numero, const std::string& metodo, const std::string& descrizione);
    /// Says on standard error what the user may not expect of the file at hand; no failure.
    void attenzione(const std::string& testo) const;

    /// A message box: on the command line nobody presses a button. Faults have been written when they were recorded;
    /// any other message goes to standard error.
    Risposta mostra(const std::string& testo, const std::string& titolo, Icona icona, Pulsanti pulsanti) override;

    Applicazione& app() { return app_; }
    /// The last file was loaded.
    bool caricato() const { return caricato_; }
    const std::vector<ErroreRegistrato>& errori() const { return errori_; }

private:
    std::string nomeFile() const;

    OrologioSistema orologio_;
    std::vector<ErroreRegistrato> errori_;
    std::string file_;
    bool caricato_ = false;
    Applicazione app_;
};

/// Writes a line to standard error, begun with the program's name.
void avvisa(const std::string& testo);

/// Writes a text to standard output as it is.
void stampa(const std::string& testo);

}  // namespace kelvo::cli
