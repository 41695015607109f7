#pragma once

#include <string>

#include "app/clsAmbiente.h"

namespace kelvo {

/// Folder of the projects: the program's folder less its last six characters, and "Progetti" below it.
std::string cartellaProgetti(const clsAmbiente& ambiente);

/// Project name of a path: the file name without folder and without the extension ".klv".
std::string nomeProgetto(const std::string& percorso);

}  // namespace kelvo
