#pragma once

#include <string>
#include <vector>

#include "base/file.h"

namespace kelvo {

/// A file of this name in the program's folder: a package of the system has laid it, and nobody writes there.
inline constexpr const char* segnoDiSistema = "Sistema.txt";

/// What came of the user's own copy of the parts that are written.
struct EsitoCopia {
    std::string cartella;               ///< folder of the parts that are written: the copy, or the program's
    std::vector<std::string> problemi;  ///< in Italian, what could not be copied and why
};

/// Makes the user's own copy of the parts of the installation that are written, or brings it up to date: Kelvo.ini, the
/// templates, the folders of reports and workbooks below `copia`, the example projects in "Progetti" beside it. Both
/// folders are without a separator at their end.
///
/// A list in the copy ("Copia.txt") holds what each file was when it came. A file that still is what came follows the
/// installation; one that the user has changed stays, Kelvo.ini with the keys that it lacks; what the user has under a
/// name that comes only now stays too. A missing template or configuration comes again, a missing example does not
/// where it has come once. A damaged file (empty, a template that is no archive, a configuration that is no text) makes
/// room for what came: unless it is empty it stays beside it, with ".danneggiato" behind its name ("-2" and so on
/// behind that where one stands already). A damaged file of the installation is told, and replaces none that the user
/// has. A second call with nothing to do writes nothing. Where not even the configuration can be copied, the folder of
/// the answer is `programma`.
EsitoCopia aggiornaCopiaUtente(SistemaFile& sistema, const std::string& programma, const std::string& copia);

/// Folder of the parts that are written for a program that writes none of them: the user's copy if it stands, else the
/// program's. An empty `copia` is none.
std::string cartellaCopiata(const std::string& programma, const std::string& copia);

}  // namespace kelvo
