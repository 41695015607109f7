#pragma once

#include <optional>
#include <string>
#include <vector>

namespace kelvo::schermate {

/// What is asked for on the command line.
struct Richiesta {
    std::string cartella;               ///< where the pictures go
    std::string scala = "1";            ///< device pixels a logical pixel: "1", "1.25", "1.5" or "2"
    int larghezza = 1440;               ///< of the main window, logical pixels
    int altezza = 900;                  ///< of the main window, logical pixels
    std::vector<std::string> progetti;  ///< project files; empty for all the examples
    std::string elenco;                 ///< file that names the pictures to take; empty for all
    bool aiuto = false;                 ///< only tell how the program is used
};

/// A request, or what is wrong with the words of the command line.
struct Lettura {
    std::optional<Richiesta> richiesta;
    std::string errore;
};

/// Reads the words behind the program's name.
Lettura leggiRichiesta(const std::vector<std::string>& parole);

/// How the program is used.
extern const char* const uso;

}  // namespace kelvo::schermate
