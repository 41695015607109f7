#pragma once

#include <memory>
#include <string>
#include <vector>

#include "base/guasto.h"

namespace kelvo {

/// Numbers of the faults of automation, with their classic words: there is no such program, it does not know what it is
/// asked, it refuses.
inline constexpr NumeroGuasto componenteActiveX{429};
inline constexpr NumeroGuasto proprietaNonSupportata{438};
inline constexpr NumeroGuasto erroreAutomazione{440};
/// A fault of automation with its words, and its place in brackets.
Guasto guastoAutomazione(NumeroGuasto numero, const std::string& luogo);

/// The machine's part of the system's registry, to be read. A key is told by the names from the top on, with '\\'
/// between them, in any case: "Software\\Casa\\Programma".
class RegistroMacchina {
public:
    RegistroMacchina() = default;
    RegistroMacchina(const RegistroMacchina&) = delete;
    RegistroMacchina& operator=(const RegistroMacchina&) = delete;
    virtual ~RegistroMacchina() = default;

    /// Names of the keys right below a key, in the registry's order; none where the key does not stand. Fault 70 or 75
    /// for a key that cannot be read.
    virtual std::vector<std::string> sottochiavi(const std::string& chiave) const = 0;
    /// The text of a value; empty where key or value does not stand. Fault 70 or 75 for one that cannot be read, 13 for
    /// a value that is no text.
    virtual std::string valore(const std::string& chiave, const std::string& nome) const = 0;
};

/// A CAD program that runs and is driven from outside. Every call returns when the program has done it; fault 438 for
/// what the program does not know, 440 in the program's own words where it refuses.
class ProgrammaCAD {
public:
    ProgrammaCAD() = default;
    ProgrammaCAD(const ProgrammaCAD&) = delete;
    ProgrammaCAD& operator=(const ProgrammaCAD&) = delete;
    virtual ~ProgrammaCAD() = default;

    virtual void Visible(bool valore) = 0;
    /// Brings it to the front.
    virtual void Activate() = 0;
    /// Loads a project of macros, whole path.
    virtual void LoadDVB(const std::string& percorso) = 0;
    /// Runs a macro: the path of its project, '!', and its module and name with a point between them.
    virtual void RunMacro(const std::string& nome) = 0;
};

/// Reaches CAD programs by their automation names.
class AutomazioneCAD {
public:
    AutomazioneCAD() = default;
    AutomazioneCAD(const AutomazioneCAD&) = delete;
    AutomazioneCAD& operator=(const AutomazioneCAD&) = delete;
    virtual ~AutomazioneCAD() = default;

    /// Why no program can be driven from this system, in Italian; empty where it can.
    virtual std::string impedimento() const = 0;
    /// The instance of a program that runs; null where there is none.
    virtual std::unique_ptr<ProgrammaCAD> inCorso(const std::string& nome) = 0;
    /// Starts an instance. Fault 429 where there is no such program or it does not start.
    virtual std::unique_ptr<ProgrammaCAD> crea(const std::string& nome) = 0;
};

}  // namespace kelvo
