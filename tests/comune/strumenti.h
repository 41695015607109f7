#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>
#include <string>

#include "comune/cartella.h"

namespace kelvo::prove {

/// True for a package that strumenti/pacchetti.txt lists.
inline bool elencato(const std::string& pacchetto) {
    std::istringstream elenco(contenuto(KELVO_SORGENTI "/strumenti/pacchetti.txt"));
    for (std::string parola; elenco >> parola;) {
        if (parola == pacchetto) {
            return true;
        }
    }
    return false;
}

/// Whether a program of a package stands on this system; without it there is nothing to test. Where a listed package
/// can be had, its absence fails the test.
inline bool conStrumento(const std::string& programma, const std::string& pacchetto) {
    if (std::filesystem::exists("/usr/bin/" + programma)) {
        return true;
    }
    if (elencato(pacchetto) && std::filesystem::exists("/usr/bin/dpkg")) {
        ADD_FAILURE() << programma << " is not installed: strumenti/pacchetti.txt lists " << pacchetto;
    }
    return false;
}

}  // namespace kelvo::prove
