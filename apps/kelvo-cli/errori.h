#pragma once

#include <CLI/CLI.hpp>
#include <string>

namespace kelvo::cli {

/// Makes the help of the program Italian. To be called before the first command is added.
void italiano(CLI::App& radice);

/// What a wrong use of the command line is, in Italian: the reader's own words reach nobody.
std::string descriviErrore(const CLI::App& radice, const CLI::ParseError& errore);

/// Ends after the option reader stopped: prints help or version, or the error on standard error.
/// Answers the exit code: 0 after help and version, 2 after a wrong use.
int chiudi(const CLI::App& radice, const CLI::ParseError& errore);

/// Says on standard error what is wrong in the use of a command; answers the exit code of a wrong use.
int usoErrato(const CLI::App& comando, const std::string& testo);

}  // namespace kelvo::cli
