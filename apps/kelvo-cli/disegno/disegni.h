#pragma once

#include <functional>
#include <string>

#include "Comando.h"
#include "shell/servizi/disegnatore.h"

namespace kelvo::cli {

/// What is wrong with the name of a drawing, in Italian: its end names no format. Empty where nothing is.
std::string usoDisegno(const std::string& uscita);

/// Writes what `disegna` makes, in the format that the name `uscita` asks for; a failure is told on standard error.
bool scriviDisegno(Contesto& contesto, const std::string& uscita,
                   const std::function<EsitoDisegno(Disegnatore&, FormatoDisegno)>& disegna);

std::unique_ptr<Comando> comandoPianta(CLI::App& radice);
std::unique_ptr<Comando> comandoGrafico(CLI::App& radice);

}  // namespace kelvo::cli
