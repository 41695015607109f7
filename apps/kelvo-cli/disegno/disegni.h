#pragma once

#include "Comando.h"

namespace kelvo::cli {

std::unique_ptr<Comando> comandoPianta(CLI::App& radice);
std::unique_ptr<Comando> comandoGrafico(CLI::App& radice);

}  // namespace kelvo::cli
