#pragma once

#include "Comando.h"

namespace kelvo::cli {

std::unique_ptr<Comando> comandoRelazione(CLI::App& radice);
std::unique_ptr<Comando> comandoEsporta(CLI::App& radice);

}  // namespace kelvo::cli
