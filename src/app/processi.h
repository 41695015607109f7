#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <vector>

namespace kelvo {

/// How a program that was started came to its end.
struct EsitoProcesso {
    enum class Fine {
        uscito,      ///< by itself, with `codice`
        interrotto,  ///< something else ended it
        scaduto,     ///< it took too long and was ended, with what it had started
        nonAvviato,  ///< the system could not start it
    };
    Fine fine = Fine::nonAvviato;
    int codice = 0;
};

/// Runs programs to their end. None but one that was started here is ever ended.
class Processi {
public:
    Processi() = default;
    Processi(const Processi&) = delete;
    Processi& operator=(const Processi&) = delete;
    virtual ~Processi() = default;

    /// Whole path of a program, by its name without extension: where the system looks for programs, and where it
    /// usually keeps those that are not looked for there. Empty where there is none.
    virtual std::string trova(const std::string& nome) const = 0;
    /// Runs a program, whole path, and waits for its end, at most `limite`. What it writes to its outputs is lost; it
    /// has nothing to read. Meanwhile `intanto`, where it is set, is called some 20 times a second.
    virtual EsitoProcesso esegui(const std::string& programma, const std::vector<std::string>& argomenti,
                                 std::chrono::milliseconds limite, const std::function<void()>& intanto) = 0;
};

}  // namespace kelvo
