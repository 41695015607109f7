#pragma once

#include <memory>
#include <string>
#include <vector>

#include "app/automazione.h"
#include "app/processi.h"
#include "app/serviziSistema.h"
#include "base/file.h"

namespace kelvo {

/// What the system below gives to a program, from its start to its end. All texts are UTF-8.
class Piattaforma {
public:
    Piattaforma() = default;
    Piattaforma(const Piattaforma&) = delete;
    Piattaforma& operator=(const Piattaforma&) = delete;
    virtual ~Piattaforma();

    virtual SistemaFile& file() = 0;
    virtual IstanzaUnica& istanza() = 0;
    virtual LocaleUtente& locale() = 0;
    virtual Processi& processi() = 0;
    virtual RegistroMacchina& registro() = 0;
    virtual AutomazioneCAD& cad() = 0;
    /// Null where the desktop's toolkit has the means.
    virtual ImpostazioniUtente* impostazioni() = 0;
    virtual ApriDocumenti* documenti() = 0;

    /// Folder of the running program, without a separator at its end.
    virtual std::string cartellaProgramma() const = 0;
    /// Folder of the user's temporary files, made where it is missing.
    virtual std::string cartellaTemporanea() const = 0;
    /// Folder of the user's own for data that the program keeps, made where it is missing.
    virtual std::string cartellaDati() const = 0;
    /// Where the user's own copy of the parts that are written stands, for a program whose folder is not to be
    /// written: a folder of five letters under one of four, not made here. Empty where the program's folder is written
    /// itself, or where the user has no folder of his own.
    virtual std::string cartellaCopia() const = 0;

    /// The words of the command line behind the program's name; `argc` and `argv` as main has them.
    virtual std::vector<std::string> argomenti(int argc, char** argv) const = 0;
    /// Makes standard output and error carry the bytes as they are written, and a console show them as UTF-8.
    virtual void preparaUscite() const = 0;
};

/// That of the system which the program was built for: made in its own room below platform/.
std::unique_ptr<Piattaforma> creaPiattaforma();

}  // namespace kelvo
