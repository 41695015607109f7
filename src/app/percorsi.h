#pragma once

#include <string>
#include <string_view>

#include "app/clsAmbiente.h"

namespace kelvo {

/// Whole path of a file of the installation, given from the program's folder with backslashes
/// ("\UserGuide\UserGuide.pdf"); looked up without regard to case. A file that is not there gives the path as written.
std::string percorsoInstallazione(const clsAmbiente& ambiente, std::string_view daProgramma);

/// Folder of the projects: the program's folder less its last six characters, and "Progetti" below it.
std::string cartellaProgetti(const clsAmbiente& ambiente);

/// Project name of a path: the file name without folder and without the extension ".klv".
std::string nomeProgetto(const std::string& percorso);

}  // namespace kelvo
