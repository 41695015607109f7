#pragma once

#include <string>

#include "app/automazione.h"
#include "app/processi.h"
#include "app/serviziSistema.h"
#include "base/file.h"

namespace kelvo::ui {

/// What the system below gives to the desktop program.
struct Piattaforma {
    SistemaFile& file;
    IstanzaUnica& istanza;
    LocaleUtente& locale;
    ApriDocumenti* documenti = nullptr;          ///< null: by the toolkit's means
    ImpostazioniUtente* impostazioni = nullptr;  ///< null: by the toolkit's means
    std::string cartellaProgramma;               ///< without a separator at its end
    std::string cartellaLavoro;                  ///< temporary files of the user's own
    std::string cartellaRecupero;                ///< recovery copies of the user's own
    std::string cartellaCopia{};                 ///< the user's copy of the parts that are written; empty: none needed
    Processi* processi = nullptr;                ///< runs other programs; null: none are run
    RegistroMacchina* registro = nullptr;        ///< null: there is none
    AutomazioneCAD* cad = nullptr;               ///< null: no CAD program is driven
};

/// Language, faces, look and drawings of the program for the application object that was just made.
void preparaApplicazione(const std::string& cartellaProgramma);

/// Runs the desktop program to its end; answers its exit code.
int avviaDesktop(int argc, char** argv, const Piattaforma& piattaforma);

}  // namespace kelvo::ui
