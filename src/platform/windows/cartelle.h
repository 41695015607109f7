#pragma once

#include <string>

namespace kelvo {

/// Folder of the running program as it was started, without a separator at its end.
std::string cartellaEseguibile();

/// The program's folder may be written: the system lets this user make files in it, and no installer has marked it as
/// the system's own (segnoDiSistema stands in it).
bool cartellaScrivibile(const std::string& cartella);

/// "Kelvo" in the folder of the user's temporary files, made where it is missing; that folder itself if it cannot be
/// made, "." if there is none. Without a separator at its end.
std::string cartellaTemporanea();

/// "Kelvo" in the folder of the user's own data on this machine, made where it is missing; "." if there is none.
std::string cartellaDatiUtente();

}  // namespace kelvo
