#pragma once

#include <functional>
#include <string>
#include <vector>

#include "cad/modKelvoCAD.h"
#include "shell/servizi/Finestra.h"
#include "shell/servizi/scelte.h"

namespace kelvo {

/// "Collegamento AutoCAD": the versions of the CAD program on this machine, and the drawing of the project in the one
/// that is chosen.
class frmLinkACAD final : public Finestra {
public:
    /// Reads the registry. `kelvoCAD` must outlive the window.
    frmLinkACAD(const Contorno& contorno, modKelvoCAD& kelvoCAD);

    Etichetta lblIstruzioni;  ///< what happens here
    Etichetta lblVersioni;    ///< label of the list
    Elenco lstACAD;           ///< one row a version, at first the last one is chosen; hidden where there is none
    Etichetta lblCartella;    ///< where the version that is chosen is installed; else hidden
    Etichetta lblVuoto;       ///< why there is nothing to choose from; else hidden
    Etichetta lblInvece;      ///< what to do instead; else hidden
    Etichetta lblProgetto;    ///< the project that is going to be drawn; else why there is none
    Etichetta lblEsito;       ///< what came of the last try; hidden before it
    Bottone cmdAVVIAcad;      ///< draws; closed until a version is chosen, and while there is no project to read
    Bottone cmdChiudi;
    /// Whoever shows the window closes it here.
    std::function<void()> allaChiusura;

    /// Automation name of the version that is chosen; empty for none.
    const std::string& ProgIDAutoCAD() const { return progIDAutoCAD_; }
    /// Runs the CAD program, or takes the one that runs, and has the companion's macros read the project there. A fault
    /// is logged and shown; the project is not touched.
    void AvviaCAD();

private:
    void scelta(int riga);
    void mostraVuoto();
    void mostraProgetto();
    void comanda();
    void esito(const std::string& parole);

    modKelvoCAD& kelvoCAD_;
    std::vector<AUTOCADInstallato> installati_;
    std::string progIDAutoCAD_;
    bool conProgetto_ = false;  ///< the project that was saved last stands as a file
};

}  // namespace kelvo
