#pragma once

#include <CLI/CLI.hpp>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "calc/Geometria.h"
#include "calc/simulazione.h"

namespace kelvo::cli {

/// Bounds of a whole number, both allowed.
struct Estremi {
    std::int16_t minimo;
    std::int16_t massimo;
};

/// A whole number in decimal digits, with no sign and no blanks; nothing for any other text.
std::optional<std::int16_t> leggiIntero(std::string_view testo);

/// "e,v,l,phi,r,D" with points as decimal separators, or the same with semicolons and commas; lengths in metres, phi in
/// degrees. Nothing for any other text.
std::optional<Geometria> leggiGeometria(std::string_view testo);

/// Positions from 1 to 4, separated by commas; nothing for any other text.
std::optional<CorsieDestra> leggiCorsie(std::string_view testo);

/// Adds an option that takes a whole number between the bounds. Any other text is a wrong use.
CLI::Option* aggiungiIntero(CLI::App& comando, const std::string& nome, std::int16_t& valore, Estremi estremi,
                            const std::string& descrizione);

/// Adds an option that takes a text; an empty one is a wrong use.
CLI::Option* aggiungiTesto(CLI::App& comando, const std::string& nome, std::string& valore,
                           const std::string& descrizione);

/// True if both name the same file that stands there, however either is spelled.
bool stessoFile(const std::string& uno, const std::string& altro);

/// The text as a message quotes it: in quotes, on one line, valid UTF-8, no longer than a line of the screen.
std::string citato(std::string_view testo);

}  // namespace kelvo::cli
