#pragma once

#include <string>

namespace kelvo {

/// Folder of the running program, links resolved, without a separator at its end.
std::string cartellaEseguibile();

/// The program's folder may be written: the user has the right to, also to its configuration file, and it is none that
/// a package of the system has laid (segnoDiSistema stands in it), where even an administrator writes nothing.
bool cartellaScrivibile(const std::string& cartella);

/// Folder of the user's temporary files, closed to others (0700) and made where it is missing: "kelvo" in the folder of
/// the user's session (XDG_RUNTIME_DIR, an absolute path), or, where that is not told or not usable, "kelvo-" and the
/// user's number in the folder of temporary files. What stands there and belongs to somebody else, is a link or is no
/// folder is refused: then a new folder with a name that nobody can foresee. The folder of temporary files itself if
/// none can be made, "." if there is none.
std::string cartellaTemporanea();

}  // namespace kelvo
