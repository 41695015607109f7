#pragma once

#include <string>
#include <vector>

namespace kelvo::prove {

/// How a run of the program ended.
struct Esito {
    int codice = -1;     ///< exit code; -1 for a program that a signal ended
    std::string uscita;  ///< standard output
    std::string errori;  ///< standard error
    long piccoKiB = 0;   ///< largest resident set, KiB; never below that of the test itself
};

/// Where standard output goes.
enum class Uscita { letta, chiusa, discoPieno };

/// Runs kelvo-cli with the arguments, in a folder if one is named, and waits for its end.
Esito kelvoCli(const std::vector<std::string>& argomenti, const std::string& cartella = {},
               Uscita uscita = Uscita::letta);

/// Runs another program, whole path first.
Esito esegui(const std::vector<std::string>& comando, const std::string& cartella = {}, Uscita uscita = Uscita::letta);

/// Whole path of an example project beside the program, and of a file of the tests of this folder.
std::string esempio(const std::string& nome);
std::string atteso(const std::string& nome);

/// Names of the example projects, in order, without their extension.
std::vector<std::string> esempi();

/// `testo` with its first `vecchio` behind `dopo` replaced; a text that does not hold them fails the test.
std::string conCambio(std::string testo, const std::string& dopo, const std::string& vecchio, const std::string& nuovo);

/// The lines of a text.
std::vector<std::string> righe(const std::string& testo);

/// The dates of the closing lines give way to marks, where they have their form.
std::string senzaDate(std::string testo);

}  // namespace kelvo::prove
