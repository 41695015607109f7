#pragma once

#include <CLI/CLI.hpp>

namespace kelvo::cli {

/// Makes the help of the program Italian.
void italiano(CLI::App& radice);

/// Ends after the option reader stopped: prints help or version, or the error in Italian on standard error.
/// Answers the exit code: 0 after help and version, 2 after a wrong use.
int chiudi(const CLI::App& radice, const CLI::ParseError& errore);

}  // namespace kelvo::cli
