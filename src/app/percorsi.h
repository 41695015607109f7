#pragma once

#include <string>

#include "app/clsAmbiente.h"

namespace kelvo {

/// Folder of the projects: the folder of the parts that are written less its last six characters, and "Progetti" below
/// it.
std::string cartellaProgetti(const clsAmbiente& ambiente);
/// The same of such a folder.
std::string cartellaProgetti(const std::string& cartella);

/// The path that a file manager may hand on as an address: "file:" with no host or "localhost", its signs decoded.
/// Any other text is a path as it stands.
std::string percorsoDaIndirizzo(const std::string& testo);

/// The companion that draws in the CAD program: the program's folder less its last eleven characters, and
/// "KELVOCAD 2014/KelvoCAD 2014.exe" below it, found without regard to case.
std::string percorsoKelvoCAD(const clsAmbiente& ambiente);
/// The companion's macros: the program's folder less its last six characters, and "KelvoCAD/doc/KelvoCAD2008.dvb" below
/// it, found without regard to case.
std::string percorsoMacroKelvoCAD(const clsAmbiente& ambiente);

/// Project name of a path: the file name without folder and without the extension ".klv".
std::string nomeProgetto(const std::string& percorso);

}  // namespace kelvo
