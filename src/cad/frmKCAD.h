#pragma once

#include <functional>
#include <string_view>

#include "app/serviziSistema.h"
#include "shell/servizi/Finestra.h"

namespace kelvo {

/// "Informazioni su KelvoCAD": what the companion is, whether it stands on this machine, and its documents.
class frmKCAD final : public Finestra {
public:
    /// `documenti` must outlive the window.
    frmKCAD(const Contorno& contorno, ApriDocumenti& documenti);

    Etichetta lblTitolo;
    Etichetta lblDescrizione;
    Etichetta lblPassaggio;  ///< what is handed over, and how
    Etichetta lblStato;      ///< whether the companion stands, and then where
    Etichetta lblInvece;     ///< what to do without it; hidden where it stands
    Bottone cmdVAQ;
    Bottone cmdPDF;
    Bottone cmdChiudi;
    /// Whoever shows the window closes it here.
    std::function<void()> allaChiusura;

    /// Runs the command of a tag: "VAQ" opens the support page, "PDF" the sheet, "Chiudi" closes the window. Nothing
    /// happens for another one.
    void comando(std::string_view tag);

private:
    void apri(const char* documento);
    ApriDocumenti& documenti_;
};

}  // namespace kelvo
