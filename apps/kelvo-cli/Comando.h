#pragma once

#include <CLI/CLI.hpp>
#include <memory>
#include <string>
#include <vector>

#include "Contesto.h"

namespace kelvo::cli {

/// One command of the program: declares its options and runs.
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
    /// Says where --notte and the project's own choice do not go together.
    void avvisaNotte(Contesto& contesto, const OpzioniComuni& comuni) const;

    CLI::App* app_;
};

/// A command that works through project files in order; one that fails does not stop the others.
class ComandoSuFile : public Comando {
public:
    /// Adds the command with the argument that names its files.
    ComandoSuFile(CLI::App& radice, const std::string& nome, const std::string& descrizione, const std::string& esempi);
    int esegui() override;

protected:
    /// Adds --ini, --notte and --json.
    void aggiungiComuni();
    /// Adds --json alone.
    void aggiungiJson();
    /// False for options that do not go together; says why on standard error.
    virtual bool opzioniCoerenti() { return true; }
    /// False if the command computes nothing and needs no configuration.
    virtual bool serveConfigurazione() const { return true; }
    /// False if the command reads the coefficients of the configuration without computing with them.
    virtual bool usaCoefficienti() const { return true; }
    /// As that of every command, with its own options.
    void avvisaNotte(Contesto& contesto) const { Comando::avvisaNotte(contesto, comuni_); }
    /// Works on one file; answers false if it failed.
    virtual bool tratta(Contesto& contesto, const std::string& file) = 0;

    OpzioniComuni comuni_;
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
/// The commands that write documents; none in a program that was built without their libraries.
std::vector<std::unique_ptr<Comando>> comandiDocumenti(CLI::App& radice);
/// The commands that draw; none in a program that was built without the desktop's libraries.
std::vector<std::unique_ptr<Comando>> comandiDisegno(CLI::App& radice);

}  // namespace kelvo::cli
