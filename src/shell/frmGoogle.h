#pragma once

#include <string>

#include "app/campiMostrati.h"
#include "app/serviziSistema.h"
#include "shell/servizi/Finestra.h"

namespace kelvo {

/// Where the roundabout lies: the place that the project tells, on a page of the installation, with links to map
/// services. The links are opened by the system's browser; the window itself never asks the network for anything.
class frmGoogle final : public Finestra {
public:
    /// `campi` leads to the field of the place; null for none: its window comes up as it does.
    frmGoogle(const Contorno& contorno, ApriDocumenti& documenti, CampiMostrati* campi = nullptr);

    BarraStrumenti ctlToolbar;
    VisorePagina ctlBrowser{"ctlBrowser"};
    BarraStrumenti* barra() override { return &ctlToolbar; }

    /// Reads the page and puts the project's place there.
    void attivata() override { aggiorna(); }
    void aggiorna();

    /// The place as one line: what is told of Località, Comune and Provincia, in this order, blanks at their ends and
    /// line ends taken off; empty where nothing is told.
    std::string luogo() const;

private:
    void premuto(const std::string& chiave);
    void segui(const std::string& collegamento);
    void vaiAlLuogo();
    std::string pagina() const;

    ApriDocumenti& documenti_;
    CampiMostrati* campi_;
};

}  // namespace kelvo
