#pragma once

#include <functional>
#include <string>

#include "shell/servizi/Finestra.h"
#include "shell/servizi/FinestreCollegate.h"

namespace kelvo {

/// Shows a text export where the system has no editor for it: the text as it was written, and where it stands.
class frmAnteprimaTesto final : public Finestra {
public:
    explicit frmAnteprimaTesto(const Contorno& contorno);

    Etichetta txtTesto{"txtTesto"};        ///< the text; shown in letters of one width, taken by no gesture
    Etichetta lblPercorso{"lblPercorso"};  ///< whole path of the file
    Bottone cmdCopia;                      ///< copies the text; closed where there is no clipboard
    Bottone cmdChiudi;
    /// The user closes the window; set by whoever shows it.
    std::function<void()> allaChiusura;

    /// Puts a text there. Its lines may end in CR LF; they are shown and copied with LF alone.
    void mostra(const std::string& percorso, const std::string& testo);
};

/// Writes text exports and brings them up, in the system's editor or in the window above.
class AnteprimaTesto {
public:
    AnteprimaTesto(const Contorno& contorno, FinestreCollegate& finestre, ApriDocumenti& documenti);
    AnteprimaTesto(const AnteprimaTesto&) = delete;
    AnteprimaTesto& operator=(const AnteprimaTesto&) = delete;
    ~AnteprimaTesto();

    /// Writes the file into the folder for temporary files and shows it. Fault 75, in words for the user, for a file
    /// that cannot be written: one that stood there is untouched.
    void apri(const std::string& nomeFile, const std::string& testo);

    frmAnteprimaTesto visore;

private:
    Contorno contorno_;
    FinestreCollegate& finestre_;
    ApriDocumenti& documenti_;
};

/// Writes an export. Fault 75, in words for the user, if that fails; a file that stood there is then untouched.
void scriviEsportazione(Applicazione& app, const std::string& percorso, const std::string& testo);

}  // namespace kelvo
