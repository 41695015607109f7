#pragma once

#include <CLI/CLI.hpp>
#include <memory>
#include <string>
#include <vector>

#include "Contesto.h"
#include "base/guasto.h"

namespace kelvo::cli {

/// What a command asks of the configuration.
enum class Configurazione {
    nessuna,       ///< nothing: it computes nothing
    letta,         ///< that it can be read, whatever coefficients it holds
    perCalcolare,  ///< coefficients that can be computed with
};

/// Why a project does not allow what a command asks for.
struct Impedimento {
    std::string motivo;  ///< in Italian; empty where it does
    NumeroGuasto numero = NumeroGuasto::chiamataNonValida;
};

/// One command of the program: declares its options and runs.
///
/// Every run begins alike: `inizia`, then `prepara` for each project that it works on.
class Comando {
public:
    /// Adds the command to the program; `esempi`: lines at the end of its help.
    Comando(CLI::App& radice, const std::string& nome, const std::string& descrizione, const std::string& esempi);
    Comando(const Comando&) = delete;
    Comando& operator=(const Comando&) = delete;
    virtual ~Comando() = default;

    /// Runs with the options that were read; answers the exit code.
    virtual int esegui() = 0;
    /// The command as the option reader knows it.
    const CLI::App& opzioni() const { return *app_; }

protected:
    /// Adds --ini.
    void aggiungiIni(OpzioniComuni& comuni);
    /// Adds --notte.
    void aggiungiNotte(OpzioniComuni& comuni);
    /// Adds --json.
    void aggiungiJson(const std::string& descrizione);
    /// Says where --notte and the project's own choice do not go together.
    void avvisaNotte(Contesto& contesto, const OpzioniComuni& comuni) const;

    /// What is wrong with the options that the reader let pass, in Italian; empty where they go together.
    virtual std::string usoSbagliato() { return {}; }
    virtual Configurazione configurazione() const { return Configurazione::perCalcolare; }
    /// What stands against the work on a project that was read.
    virtual Impedimento impedimento(const Rotonda& /*rotonda*/) const { return {}; }

    /// Looks at the options and reads the configuration. False for a wrong use, which was told on standard error.
    bool inizia(Contesto& contesto);
    /// Reads a project. True if the work on it can begin; else the reason is among the errors of the context. Of the
    /// night percentage it says what the user may not expect, where the command has one.
    bool prepara(Contesto& contesto, const std::string& file) const;

    CLI::App* app_;
    OpzioniComuni comuni_;
};

/// How many projects a command takes.
enum class Quanti { uno, molti };

/// A command that works through project files in order; one that fails does not stop the others.
class ComandoSuFile : public Comando {
public:
    /// Adds the command with the argument that names its files.
    ComandoSuFile(CLI::App& radice, const std::string& nome, const std::string& descrizione, const std::string& esempi,
                  Quanti quanti = Quanti::molti);
    int esegui() override;

protected:
    /// Adds --ini, --notte and --json.
    void aggiungiComuni();
    /// Adds --json alone.
    void aggiungiJson();
    /// Works on one file, which it begins with by `prepara`; answers false if it failed.
    virtual bool tratta(Contesto& contesto, const std::string& file) = 0;

    std::vector<std::string> file_;
};

std::unique_ptr<Comando> comandoCalcola(CLI::App& radice);
std::unique_ptr<Comando> comandoCapacitaUltima(CLI::App& radice);
std::unique_ptr<Comando> comandoNuovo(CLI::App& radice);
std::unique_ptr<Comando> comandoMostra(CLI::App& radice);
std::unique_ptr<Comando> comandoVerifica(CLI::App& radice);
std::unique_ptr<Comando> comandoCurva(CLI::App& radice);
std::unique_ptr<Comando> comandoControllo(CLI::App& radice);
std::unique_ptr<Comando> comandoCorsiaDx(CLI::App& radice);
std::unique_ptr<Comando> comandoSensibilita(CLI::App& radice);
std::unique_ptr<Comando> comandoSintesi(CLI::App& radice);
std::unique_ptr<Comando> comandoDxf(CLI::App& radice);
std::unique_ptr<Comando> comandoConfronta(CLI::App& radice);
/// The commands that write documents; none in a program that was built without their libraries.
std::vector<std::unique_ptr<Comando>> comandiDocumenti(CLI::App& radice);
/// The commands that draw; none in a program that was built without the desktop's libraries.
std::vector<std::unique_ptr<Comando>> comandiDisegno(CLI::App& radice);

}  // namespace kelvo::cli
